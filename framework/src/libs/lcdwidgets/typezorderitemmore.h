// A layer row: the layer's name as the title, its z-order position ("3/8": third of
// eight from the bottom, the highest number in front) and an arrow to its settings.
//
// Keys (after the page's press, editValue()): Up moves the layer one place towards the
// front, Down one place back; a fast turn (level L) moves max(1, trunc(|L|)) places,
// never beyond 1 or the count. Each move emits signalZOrderChanged(from, to) and then
// signalValueChanged(QVariant(int to)); a turn at an end changes nothing and emits
// nothing. The press again asks for the layer's settings (signalSettingsRequested)
// and ends the move like Escape: the focus goes back to the parent, then
// signalCloseEditStatus() and signalEditFinished(). Moves are live: Escape keeps them.
//
// Bad input is refused and logged at warning level, nothing changes:
// "[TypeZOrderItemMore] invalid layer count:" N (N < 1), "[TypeZOrderItemMore] z-order
// out of range:" N (not within 1..count). A smaller count clamps the position into it.
// Theme: the position label has "isZOrderText" (true), and "isZOrderEditing" (true while
// moving); the arrow is the row's right icon button with "isIconListMore".
#pragma once

#include "commonitemtype.h"
#include "lcdwidgets_global.h"

#include <memory>

class QLabel;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeZOrderItemMore : public CommonItemType
{
    Q_OBJECT
    // Number of layers, at least 1.
    Q_PROPERTY(int layerCount READ layerCount WRITE setLayerCount)
    // The layer's position, 1..layerCount.
    Q_PROPERTY(int zOrder READ zOrder WRITE setZOrder)
public:
    // Position 1 of 1 ("1/1"), the "more" arrow on the right.
    explicit TypeZOrderItemMore(QWidget* parent = nullptr);
    ~TypeZOrderItemMore() override;

    // Number of layers (the position is clamped into it); below 1 refused (see above). No signal.
    void setLayerCount(int count);
    // Number of layers (default 1).
    int layerCount() const;
    // 1 (bottom) .. layerCount() (front).
    void setZOrder(int position);
    // The layer's position (default 1).
    int zOrder() const;
    // setLabelValue(value, _) is setZOrder(value.toInt()); getLabelValue() the position.
    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;

    void editValue() override;
    void closeEditValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;
    void setCurrentItem(bool current) override;

    // The position label (owned by the row).
    QLabel* zOrderLabel() const;
    // The keys during a move, as described above.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // The knob moved the layer (before signalValueChanged()).
    void signalZOrderChanged(int from, int to);
    // The press during a move: open the layer's settings (the move then ends).
    void signalSettingsRequested();

private:
    void showPosition();
    void leaveEdit();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
