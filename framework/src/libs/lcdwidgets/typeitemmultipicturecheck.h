// A row that holds a PictureCheckWidget: the title on the left, the grid of pictures
// on the right. Any number of pictures can be checked.
//
// Edit: the knob's press (editValue()) gives the grid the focus (its first picture)
// and emits signalEditStarted(); Up/Down walk the pictures, Enter/Return flips the
// focused one: signalPictureCheckChanged(value, checked) and then
// signalValueChanged(QVariant(QVariantList of the checked values, display order)),
// live. Escape returns the focus to the row's parent and emits
// signalCloseEditStatus() and then signalEditFinished(). A row whose grid is empty,
// hidden or disabled does not start an edit.
//
// Bad input is refused with the grid's messages ("[PictureCheckWidget] ...") and
//   "[TypeItemMultiPictureCheck] <title>: no pictures to choose from" (editValue)
//   "[TypeItemMultiPictureCheck] setContentFontSize: font size must be positive, got N"
// Theme: see PictureCheckWidget; the grid has the object name "PictureCheckWidget".
#pragma once

#include "commonitemtype.h"

#include <QIcon>
#include <QVector>

namespace LCD {
namespace Widget {

class PictureCheckWidget;

class LCDWIDGETS_EXPORT TypeItemMultiPictureCheck : public CommonItemType
{
    Q_OBJECT
public:
    // An empty grid (see PictureCheckWidget's defaults), no right icon.
    explicit TypeItemMultiPictureCheck(QWidget* parent = nullptr);
    ~TypeItemMultiPictureCheck() override;

    // PictureCheckWidget::addPicture(): an unchecked picture; values must be unique.
    void addPicture(QIcon const& picture, QString const& caption, int value);
    // The same from an image file.
    void addPicture(QString const& file, QString const& caption, int value);
    // Removes the picture with that value (unknown values are logged).
    void removePicture(int value);
    // Removes every picture.
    void clear();
    // Number of pictures.
    int count() const;
    // Pictures a row (at least 1, default 4).
    void setColumns(int columns);
    // Size of each picture in px (default 64 × 40).
    void setPictureSize(QSize size);

    // Silent setters.
    void setChecked(int value, bool checked);
    // Exactly the listed values checked; unknown values are logged and skipped.
    void setCurrentValue(QVector<int> const& values);
    // Whether the picture with that value is checked.
    bool isChecked(int value) const;
    // The checked values in display order.
    QVector<int> getCurrentValue() const;

    // --- Row operations ---
    void editValue() override;
    void closeEditValue() override;
    void setContentFontSize(int size) override;
    void setContentDisabled(bool disabled) const override;
    // Rows of pictures the grid shows (at least 1).
    int getWidgetRow() override;

    // The grid (owned by the row).
    PictureCheckWidget* pictureCheckWidget() const;

signals:
    // The user flipped a picture (before signalValueChanged()).
    void signalPictureCheckChanged(int value, bool checked);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
