// A title with a column of value texts that wrap onto further lines (addresses, long
// descriptions, lists of outputs). The column is as wide as its widest text, at most
// three fifths of the row; getItemHeight() gives the height the row needs for all the
// visible texts, never less than the item height.
#pragma once

#include "commonitemtype.h"

class QLabel;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeItemLineWrap : public CommonItemType
{
    Q_OBJECT
public:
    // labelCount: the value texts, 1..kMaxLabels; another count is logged
    // ("TypeItemLineWrap: invalid label count <n>") and clamped. All start empty and hidden.
    explicit TypeItemLineWrap(QWidget* parent = nullptr, int labelCount = 2);
    ~TypeItemLineWrap() override;

    // Number of value texts.
    int labelCount() const;
    // A value text (the variant's text); an empty text hides it. A bad index is logged
    // ("TypeItemLineWrap::setLabelText invalid label index <i>").
    void setLabelText(int index, QVariant const& text);
    // A value text; empty (and logged) for a bad index.
    QString labelText(int index) const;
    // Shows or hides a value text (a bad index is logged).
    void setLabelVisible(int index, bool visible);
    // Sets a theme property on a value text and repolishes it (bad index logged; null name
    // ignored).
    void setLabelProperty(int index, char const* name, QVariant const& value);
    // Label 0.
    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;

    // The row height in px all the visible texts need, never less than the item height.
    int getItemHeight() const;
    // The width `text` is wrapped at: its own width, at most three fifths of the row.
    int getTextMaxWidth(QVariant const& text) const;

    void setItemTitleWidth(int width) override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // A value text's label; null (and logged) for a bad index.
    QLabel* label(int index) const;

private:
    void createWidget(int labelCount);
    void relayout();
    bool checkIndex(int index, char const* function) const;

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
