// Label that fits its width to its text up to a limit and elides beyond it.
#pragma once

#include "lcdwidgets_global.h"

#include <QLabel>

class LCDWIDGETS_EXPORT EllipsisLabel : public QLabel
{
    Q_OBJECT
public:
    // An empty label that expands horizontally.
    explicit EllipsisLabel(QWidget* parent = nullptr);

    // Fixes the width to the text's width (plus margins), at most maxWidth when it is
    // positive; a text cut at maxWidth is elided 10 px short of it.
    void updateElidedText(int maxWidth);
};
