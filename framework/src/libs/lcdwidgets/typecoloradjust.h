// An item row that edits a colour: a swatch showing the colour, then its red, green
// and blue channels (0..255) as knob spin boxes captioned "R", "G", "B". The value
// is a QColor, always opaque (the panel has no transparency: a given alpha is
// dropped).
//
// Edit protocol: editValue() starts on the red channel (signalEditStarted()); the
// knob changes the current channel live by the NQSpinBox rule (level 1 one step of
// the channel's single step, default 1; faster levels a share of 0..255), each
// change reported with signalValueChanged(QVariant(QColor)) and the swatch repainted;
// Return / Enter move on to the next channel and after blue end the edit; Escape
// ends it at once. The end returns the focus to the row's parent and emits
// signalCloseEditStatus() then signalEditFinished(). The colour reached stays.
//
// setLabelValue() takes a QColor or a colour text ("#ff8a00", "#f80", "orange");
// setters never emit. Bad input is refused and logged at warning level:
//   "[TypeColorAdjust] setLabelValue: \"<text>\" is not a colour, ignored"
//   "[TypeColorAdjust] setColor: the colour is not valid, ignored"
//   "[TypeColorAdjust] setSingleStep: <step> is not a step of 0..255, ignored"
//
// Theme: "isColorSwatch" on the swatch (its border; the fill is the colour itself),
// "isMultiSpinCaption" and "isMultiSpinField" on the channels.
#pragma once

#include "commonitemtype.h"
#include "lcdwidgets_global.h"

#include <QColor>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeColorAdjust : public CommonItemType
{
    Q_OBJECT
    // The colour, opaque (set silently).
    Q_PROPERTY(QColor color READ color WRITE setColor)
public:
    // Black, a 32×24 px swatch, no right icon.
    explicit TypeColorAdjust(QWidget* parent = nullptr);
    ~TypeColorAdjust() override;

    void setLabelValue(QVariant value, int mode = 0) override;
    QVariant getLabelValue() override;
    void editValue() override;
    void closeEditValue() override;
    // The knob's single step of every channel (1..255).
    void setSingleStep(float step) override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // Sets the colour silently (alpha dropped); an invalid colour is refused (see above).
    void setColor(QColor const& color);
    // The colour (opaque; black by default).
    QColor color() const;
    // Channel being edited (0 red, 1 green, 2 blue); -1 while not editing.
    int currentChannel() const;

private:
    void channelChanged();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
