// An item row of several dials side by side, one per map entry, keyed by the map's
// key. Each dial shows its value and unit through a DashBoardLabel laid over the
// open bottom of its arc, and its caption (the data's text) underneath.
//
// Editing: editValue() selects the first visible dial (the row takes the knob);
// Up/Down choose the previous/next visible dial in key order; the press gives the
// knob to the chosen dial, which then changes its value (Down raises, Up lowers) and
// hands the knob back to the row on Escape or on the press; Escape on the row ends
// the edit (signalCloseEditStatus). Every value a dial reports is re-emitted as
// signalDashBoardValueChanged(key, value).
#pragma once

#include "commonitemtype.h"
#include "dashboardwidget.h"
#include "lcdwidgets_global.h"

#include <QMap>
#include <QSize>
#include <memory>

namespace LCD {
namespace Widget {

class DashBoardLabel;

class LCDWIDGETS_EXPORT TypeItemDashBoard : public CommonItemType
{
    Q_OBJECT
public:
    // No dials, no title, no icons.
    explicit TypeItemDashBoard(QWidget* parent = nullptr);
    ~TypeItemDashBoard() override;

    // Replaces the dials: one per entry, in key order.
    void setListItems(QMap<int, DashBoardData> const& items);
    // Sets a dial's value at once (no animation, nothing emitted). Unknown keys and
    // values that are not finite numbers are refused with a warning.
    void setCurrentValue(int key, QVariant value);
    // The dial's value (the one its animation ends at), or an invalid QVariant for an
    // unknown key.
    QVariant getCurrentValue(int key);
    // Shows or hides the dial with that key (a hidden chosen dial passes the choice on);
    // an unknown key is refused ("[TypeItemDashBoard] setItemVisible: no dial with key").
    void setItemVisible(int key, bool visible);
    // Size of every dial (negative sizes are refused).
    void setItemSize(QSize size);
    // That dial selected, every other one not; null or a foreign dial is refused.
    void setCurrentSelected(DashBoardWidget* dial);
    // Sizes below 1 or above DashBoardWidget::kMaxFontSize are refused.
    void setContentFontSize(int size) override;
    int getWidgetRow() override;
    void editValue() override;
    void setContentDisabled(bool disabled) const override;

    // The dial under `key`, or null; the chosen dial, or null.
    DashBoardWidget* dashBoard(int key) const;
    // The chosen dial, or null.
    DashBoardWidget* currentDashBoard() const;
    // The value label of the dial under `key`, or null.
    DashBoardLabel* dashBoardLabel(int key) const;

    // The row's keys while it chooses a dial (see above); the dials' own keys pass untouched.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // A dial reported a value (its signalValueChanged()): the dial's key and the value.
    void signalDashBoardValueChanged(int key, QVariant value);

private:
    void moveCurrent(int direction);

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
