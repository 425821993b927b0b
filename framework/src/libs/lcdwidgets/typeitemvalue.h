// Value rows with pictures and user data.
//
// TypeItemValue: a title and a right-aligned value with optional pictures on either side
// of it (for instance a lock or a signal mark) and an optional icon in front. Long values
// are cut with three dots at the value width given to the constructor (0: two thirds of
// the item width), or scroll when set with setRollLabelText(text, true). The knob's
// press on the row reports the row's user data through signalValueChanged().
//
// TypeItemValueBorder: a title and value row drawn with a light line along its top edge,
// to open a block of rows; the press (or a click) emits signalClicked().
#pragma once

#include "commonitemtype.h"

class QLabel;
class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeItemValue : public CommonItemType
{
    Q_OBJECT
public:
    // valueWidth: px at which values are cut (0 or negative: two thirds of the item width).
    // No pictures, no icon, no right icon.
    explicit TypeItemValue(QWidget* parent = nullptr, int valueWidth = 0);
    ~TypeItemValue() override;

    // mode > 0: shown as it is; otherwise cut with "..." at the value width.
    void setLabelValue(QVariant value, int mode) override;
    // The full value text (not the cut one).
    QVariant getLabelValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;
    int getWidgetRow() override;
    // The press: reports the user data.
    void editValue() override;

    // Shows `text` as the value: scrolling when roll is true and it does not fit, else cut.
    void setRollLabelText(QString text, bool roll);
    // Picture files left and right of the value; an empty name keeps the current picture.
    void setLeftImageHidden(QString image, bool hidden);
    // A file that does not load is logged ("TypeItemValue: cannot load image" and the file)
    // and the picture hidden; pictures are scaled to the content font's height.
    void setRightImageHidden(QString image, bool hidden);
    // The icon in front of the value (an image file); see setIconVisible().
    void setLabelIcon(QString const& image);
    // Shows or hides the icon in front of the value (hidden by default).
    void setIconVisible(bool visible);
    // The row's user data, reported by the press through signalValueChanged().
    void setItemData(QVariant data);
    // The row's user data (invalid by default).
    QVariant getUserData() const;
    // Sets a theme property on the value label and repolishes it.
    void setItemValueProperty(std::string const& name, QVariant value);
    // Hides the value label.
    void setValueLabelHidden();

    // The value label (owned by the row).
    RollLabel* valueLabel() const;
    // Width at which values are cut (the constructor's, or two thirds of the item width).
    int valueWidth() const;

private:
    void createWidget();
    void showValue();

    struct Impl;
    std::unique_ptr<Impl> d;
};

class LCDWIDGETS_EXPORT TypeItemValueBorder : public CommonItemType
{
    Q_OBJECT
public:
    // An empty value, no right icon, a half-transparent white line along the top edge.
    explicit TypeItemValueBorder(QWidget* parent = nullptr);
    ~TypeItemValueBorder() override;

    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;
    void editValue() override;

    // The value label (owned by the row).
    RollLabel* valueLabel() const;

signals:
    // The knob's press (editValue()) or a click released on the row.
    void signalClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void createWidget();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
