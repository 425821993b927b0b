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
    explicit TypeItemMultiPictureCheck(QWidget* parent = nullptr);
    ~TypeItemMultiPictureCheck() override;

    void addPicture(QIcon const& picture, QString const& caption, int value);
    void addPicture(QString const& file, QString const& caption, int value);
    void removePicture(int value);
    void clear();
    int count() const;
    void setColumns(int columns);
    void setPictureSize(QSize size);

    // Silent setters.
    void setChecked(int value, bool checked);
    void setCurrentValue(QVector<int> const& values);
    bool isChecked(int value) const;
    QVector<int> getCurrentValue() const;

    // --- Row operations ---
    void editValue() override;
    void closeEditValue() override;
    void setContentFontSize(int size) override;
    void setContentDisabled(bool disabled) const override;
    // Rows of pictures the grid shows (at least 1).
    int getWidgetRow() override;

    PictureCheckWidget* pictureCheckWidget() const;

signals:
    void signalPictureCheckChanged(int value, bool checked);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
