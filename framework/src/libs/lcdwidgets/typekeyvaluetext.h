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
    // An empty key and value, no right icon.
    explicit TypeKeyValueText(QWidget* parent = nullptr);
    ~TypeKeyValueText() override;

    // The key (the row's title) and the value, wrapped again.
    void setKeyValueText(QString key, QString value);
    // The key alone, wrapped again.
    void setItemTitles(QString key);
    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;

    int getWidgetRow() override;
    // The title's width in px (setItemTitleWidth()), then both are wrapped again.
    void setItemWidth(int width);
    void setItemHeight(int height) override;
    // Lines the value took at the last wrap.
    int getItemValueRow() const;
    // Caps the value's height and sets its least width, in px; a negative or too large size
    // is refused ("[TypeKeyValueText] setValueLabelSize: size <w>x<h> refused").
    void setValueLabelSize(QSize size);

    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // The value label (owned by the row).
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
