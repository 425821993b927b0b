#pragma once

class QWidget;

// Puts one of every public widget class on `page`; returns how many.
int createEveryClass(QWidget* page);
