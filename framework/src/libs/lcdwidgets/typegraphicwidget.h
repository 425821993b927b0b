// A row showing a picture (a source thumbnail, a layer's content) scaled to fit its
// area with the aspect ratio kept and centred. The picture is scaled once when it or
// the area changes, never while painting. Without a picture, or when the file cannot
// be read, the area shows an empty frame ("graphicState" = "empty" or "missing"; "ready"
// with a picture) so the host's theme can mark it.
//
// The row only shows: the page's press (editValue) emits signalClicked(false).
// setLabelValue(value, _) loads the file named by value.toString().
//
// Bad input is refused and logged at warning level: "[TypeGraphicWidget] picture not
// found:" PATH (missing or unreadable file: the old picture is dropped, state "missing"),
// "[TypeGraphicWidget] null picture" (setPixmap with a null pixmap: nothing changes),
// "[TypeGraphicWidget] invalid picture height:" N (N < 1: nothing changes).
#pragma once

#include "commonitemtype.h"
#include "lcdwidgets_global.h"

#include <QPixmap>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeGraphicWidget : public CommonItemType
{
    Q_OBJECT
    // The picture's file path.
    Q_PROPERTY(QString picture READ picturePath WRITE setPicture)
public:
    // An empty area ("graphicState" = "empty", object name "graphicArea"), no right icon.
    explicit TypeGraphicWidget(QWidget* parent = nullptr);
    ~TypeGraphicWidget() override;

    // Loads a picture file; returns false (and logs) when it cannot be read.
    bool setPicture(QString const& path);
    // Shows a picture given in memory (the path is cleared); a null pixmap is refused.
    void setPixmap(QPixmap const& pixmap);
    // Removes the picture ("graphicState" = "empty").
    void clearPicture();
    // The file of the picture shown; empty without one or for a pixmap.
    QString picturePath() const;
    // Whether a picture is shown.
    bool hasPicture() const;
    // The picture area: height h, width 16h/9 (the panel's frame shape).
    void setPictureHeight(int h);
    // The picture area's size in px.
    QSize pictureAreaSize() const;
    // The picture as drawn (scaled to the area), null without one.
    QPixmap shownPixmap() const;

    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;
    void editValue() override;
    void setContentDisabled(bool disabled) const override;

    // The picture area (owned by the row).
    QWidget* pictureArea() const;

signals:
    // The page's press on the row; always false.
    void signalClicked(bool checked);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
