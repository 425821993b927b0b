// A row of a one-of-many list: the tick on the right marks the chosen row. The knob's
// press chooses the row (shows the tick and reports true through signalValueChanged());
// the page clears the other rows' ticks with setTickLabelHidden(true).
#pragma once

#include "commonitemtype.h"

class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeItemTick : public CommonItemType
{
    Q_OBJECT
public:
    // A row without a tick shown.
    explicit TypeItemTick(QWidget* parent = nullptr);
    ~TypeItemTick() override;

    // Hides or shows the tick (theme property "isIconListTick" = !hidden); no signal.
    void setTickLabelHidden(bool hidden);
    // Chooses the row.
    void editValue() override;
    // true while the tick is shown.
    QVariant getLabelValue() override;
    // Sizes the tick.
    void setRightIconSize(QSize size) override;
    void setContentDisabled(bool disabled) const override;

    // The tick (owned by the row).
    QPushButton* tickLabel() const;

private:
    void createWidget();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
