// What the gallery's pages may use of their host.
#pragma once

#include <QRect>
#include <QString>

class GalleryHostApi;

struct GalleryContext
{
    GalleryHostApi* host = nullptr;
    // The home frame rectangle that dialogs and pop-ups size themselves from.
    QRect homeRect;
    // Folder of the theme's images, as the library addresses them.
    QString imageDir = QStringLiteral("./../share/themes/default/images/");
};
