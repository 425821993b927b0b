// Rows with several values side by side, as in a self-check or status list.
//
// TypeMultItemText: three values in one row: the first at the left, the second centred,
// the third at the right, each at 90 % of the row's font size. setLabelWidth() shares a
// width out among them: a text narrower than an equal share keeps its own width and
// leaves the rest to the others; the texts that still do not fit are cut (or scroll with
// setRollLabel(true)).
//
// TypeKeyCheck: a self-check line: the title names what is checked, label 0 shows the
// measured value and label 1 the result. setLabelProperty() sets the label's own style
// property ("isSelfCheckValueText" for the value, "isValueText" for the result): true
// for the normal look, "pass" or "fail" for a result the theme colours.
#pragma once

#include "commonitemtype.h"

class QLabel;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeMultItemText : public CommonItemType
{
    Q_OBJECT
public:
    // Number of values (0 left, 1 centre, 2 right).
    static constexpr int kLabelCount = 3;

    // Three empty values, no right icon.
    explicit TypeMultItemText(QWidget* parent = nullptr);
    ~TypeMultItemText() override;

    // A value's text (0..2); a bad index is logged ("TypeMultItemText::setLabelText
    // invalid label index <i>").
    void setLabelText(int index, QVariant value);
    // A value's full text (not the cut one); empty (and logged) for a bad index.
    QString getLabelText(int index) const;
    // Sets a theme property on a value's label and repolishes it (bad index logged; null
    // name ignored).
    void setLabelProperty(int index, char const* name, QVariant const& value);
    // Label 0.
    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;

    // Shares `width` out among the three labels (see above).
    void setLabelWidth(int width);
    // `text` cut on the right to `width` in the labels' font.
    QString calTextSize(QString text, int width) const;
    void setRollLabel(bool roll) override;

    void setContentDisabled(bool disabled) const override;
    // Sizes below 1 are refused with a warning.
    void setContentFontSize(int size) override;

    // A value's label; null (and logged) for a bad index.
    RollLabel* label(int index) const;

private:
    void createWidget();
    bool checkIndex(int index, char const* function) const;
    void showLabel(int index);

    struct Impl;
    std::unique_ptr<Impl> d;
};

class LCDWIDGETS_EXPORT TypeKeyCheck : public CommonItemType
{
    Q_OBJECT
public:
    // Number of labels (0 the measured value, 1 the result).
    static constexpr int kLabelCount = 2;

    // Two empty labels ("isSelfCheckValueText" and "isValueText" = true), no right icon.
    explicit TypeKeyCheck(QWidget* parent = nullptr);
    ~TypeKeyCheck() override;

    // A label's text (0 value, 1 result); a bad index is logged ("TypeKeyCheck::setLabelText
    // invalid label index <i>").
    void setLabelText(int index, QVariant value) const;
    // Sets the label's own style property to `value` (true, "pass" or "fail"); bad index logged.
    void setLabelProperty(int index, QVariant const& value);
    // The result (label 1).
    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;

    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // A label; null (and logged) for a bad index.
    QLabel* label(int index) const;

private:
    void createWidget();
    bool checkIndex(int index, char const* function) const;

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
