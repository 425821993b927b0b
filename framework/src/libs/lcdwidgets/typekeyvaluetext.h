// A key and its value, both wrapped over as many lines as they need (an "about" page
// line such as "Serial number  2301-7788-0042"). The key is the row's title, at most two
// fifths of the row wide; the value takes the rest. getWidgetRow() wraps both and
// returns the larger line count, which the page uses to size the row.
#pragma once

#include "commonitemtype.h"

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeKeyValueText : public CommonItemType
{
    Q_OBJECT
public:
    explicit TypeKeyValueText(QWidget* parent = nullptr);
    ~TypeKeyValueText() override;

    void setKeyValueText(QString key, QString value);
    void setItemTitles(QString key);
    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;

    int getWidgetRow() override;
    void setItemWidth(int width);
    void setItemHeight(int height) override;
    int getItemValueRow() const;
    void setValueLabelSize(QSize size);

    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    QLabel* valueLabel() const;

private:
    void createWidget();
    // Wraps key and value to the row; returns the larger line count.
    int relayout();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
