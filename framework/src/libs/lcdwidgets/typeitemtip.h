// A hint line: a tip icon and a smaller text (80 % of the row's font size) wrapped over
// as many lines as it needs. The row has no title; setLabelValue() sets the tip text and
// getWidgetRow() wraps it and returns its line count.
#pragma once

#include "commonitemtype.h"

class QLabel;
class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeItemTip : public CommonItemType
{
    Q_OBJECT
public:
    // A row without title or right icon: the tip icon ("isTipItemIcon", 24 x 24) and the
    // tip text ("isTipText"), which take the whole row.
    explicit TypeItemTip(QWidget* parent = nullptr);
    ~TypeItemTip() override;

    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;
    int getWidgetRow() override;
    void setContentDisabled(bool disabled) const override;
    // Sizes below 1 are refused with a warning.
    void setContentFontSize(int size) override;
    // Sizes the tip icon.
    void setLeftIconSize(QSize size) override;

    // Hides (true) or shows (false) the tip icon; a hidden icon leaves its room to the text
    // at the next getWidgetRow() (unless setTextLabelWidth() fixed the text's width).
    void setIconHidden(bool hidden);
    // A fixed width for the tip text (0: what the row leaves beside the icon).
    void setTextLabelWidth(int width);

    // The tip text's label.
    QLabel* tipLabel() const;
    // The tip icon.
    QPushButton* tipIcon() const;

private:
    void createWidget();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
