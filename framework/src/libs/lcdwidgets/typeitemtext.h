// Rows that show a title and a value text.
//
// TypeItemText: the value sits right-aligned in the row, optionally with an icon in
// front of it. setLabelValue() with mode 0 cuts a long value at two thirds of the item
// width, mode 1 shows it as it is; setRollValue() scrolls a value that does not fit.
//
// TypeItemTextCenter: the same row with the value centred in the right half of the row
// (a two-column look for read-outs); the value greys with the row when it is disabled.
#pragma once

#include "commonitemtype.h"

#include <QFont>

class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeItemText : public CommonItemType
{
    Q_OBJECT
public:
    // A row with an empty, right-aligned value label ("isValueText"); the row's right icon
    // is hidden. The icon in front of the value is built on first use.
    explicit TypeItemText(QWidget* parent = nullptr);
    ~TypeItemText() override;

    // mode > 0: plain text; otherwise elided at two thirds of the item width.
    void setLabelValue(QVariant value, int mode) override;
    // Same width rule, but a value that does not fit scrolls.
    void setRollValue(QVariant value);
    QVariant getLabelValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // Lets the value label wrap its text over several lines (true) or not (false, the
    // default).
    void setValueLabelFeed(bool wrap);
    // Sets "isValueTextStyle" on the value label and "isTitleTextStyle" on the title (both
    // true) and re-polishes them, for the theme's alternative text look.
    void setLabelStyle();
    // The value label's font.
    QFont valueLabelFont() const;
    // Height = the value's maximum height, width = its minimum width.
    void setValueLabelSize(QSize size);
    // Shows (false) or hides (true) the icon in front of the value, hidden by default.
    // Showing builds it on first use; hiding one never built does nothing.
    void setIconButtonHide(bool hide);
    // Sets the dynamic property `name` on the icon (building it, hidden, on first use) and
    // re-polishes it.
    void setIconButtonProperty(std::string const& name, QVariant value);
    // The icon's fixed size, kept until the icon is built; a later setContentFontSize() sets
    // it again from the item height. A negative side (or one beyond QWIDGETSIZE_MAX) is
    // refused with the warning "[TypeItemText] setIconButtonSize: size <w>x<h> refused".
    void setIconButtonSize(QSize size);
    // Adds a fixed spacer of `width` after the value. Only the very first call in the
    // process, on whichever text row makes it, has an effect.
    void rightDistanceCorrection(int width);

    // The value label.
    RollLabel* valueLabel() const;
    // The icon in front of the value; the first call builds it (hidden).
    QPushButton* iconButton() const;

signals:
    // Never emitted by the row itself (its icon is not connected to it); kept for hosts
    // that relay a click on the row.
    void signalClicked(bool checked);

private:
    void createWidget();
    void ensureIconButton() const;
    void createConnects();

    struct Impl;
    std::unique_ptr<Impl> d;
};

class LCDWIDGETS_EXPORT TypeItemTextCenter : public CommonItemType
{
    Q_OBJECT
public:
    // A row with an empty value label ("isValueText") centred in its value area; the row's
    // right icon is hidden.
    explicit TypeItemTextCenter(QWidget* parent = nullptr);
    ~TypeItemTextCenter() override;

    void setLabelValue(QVariant value, int mode) override;
    // Shows `value` in two thirds of the item width at most (no more than its own width);
    // a value that does not fit scrolls.
    void setRollValue(QVariant value);
    QVariant getLabelValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;
    void setContentEnabled(bool enabled) override;
    // The value column takes the right half of the row.
    void setItemTitleWidth(int width) override;

    // Lets the value label wrap its text over several lines (true) or not (false, the
    // default).
    void setValueLabelFeed(bool wrap);
    // Sets "isValueTextStyle" on the value label and "isTitleTextStyle" on the title (both
    // true) and re-polishes them, for the theme's alternative text look.
    void setLabelStyle();
    // The value label's font.
    QFont valueLabelFont() const;
    // Height = the value's maximum height, width = its minimum width, which then wins over
    // the half-row width of setItemTitleWidth(). A negative side (or one beyond
    // QWIDGETSIZE_MAX) is refused with the warning
    // "[TypeItemTextCenter] setValueLabelSize: size <w>x<h> refused".
    void setValueLabelSize(QSize size);

    // The value label.
    RollLabel* valueLabel() const;

private:
    void createWidget();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
