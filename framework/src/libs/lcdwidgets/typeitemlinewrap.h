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
    explicit TypeItemLineWrap(QWidget* parent = nullptr, int labelCount = 2);
    ~TypeItemLineWrap() override;

    int labelCount() const;
    void setLabelText(int index, QVariant const& text);
    QString labelText(int index) const;
    void setLabelVisible(int index, bool visible);
    void setLabelProperty(int index, char const* name, QVariant const& value);
    // Label 0.
    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;

    int getItemHeight() const;
    // The width `text` is wrapped at: its own width, at most three fifths of the row.
    int getTextMaxWidth(QVariant const& text) const;

    void setItemTitleWidth(int width) override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

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
