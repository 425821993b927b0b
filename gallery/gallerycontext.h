// What the gallery's pages may use of their host.
#pragma once

#include <lcd/ihomeframe.h>

#include <QRect>
#include <QString>

class GalleryHostApi;

// The host's home frame: the whole screen of the panel.
class GalleryHomeFrame : public LCD::MainWidgets::IHomeFrame
{
public:
    QSize size() const override { return m_size; }
    void setSize(QSize size) { m_size = size; }

private:
    QSize m_size{800, 480};
};

struct GalleryContext
{
    GalleryHostApi* host = nullptr;
    // The home frame rectangle that dialogs and pop-ups size themselves from.
    QRect homeRect;
    // The home frame that menus centre themselves on.
    GalleryHomeFrame homeFrame;
    // Folder of the theme's images, as the library addresses them.
    QString imageDir = QStringLiteral("./../share/themes/default/images/");
};
