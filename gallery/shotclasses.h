// Which library classes each gallery picture shows. The API reference uses the list
// (DIR/classes.txt) to put each class's picture on its page.
#pragma once

#include <QString>

// Records the classes of the library seen in the picture just saved as `file`: those
// of the open menus, pop-ups and dialogs first (they are what such a picture is
// about), then those of the gallery's window.
void noteScreenshotClasses(QString const& file);
// Forgets what was recorded.
void clearScreenshotClasses();
// Writes DIR/classes.txt: one line per picture, "file<TAB>Class Class ...", in the
// order the pictures were taken. Returns false when the file cannot be written.
bool writeScreenshotClasses(QString const& dir);
