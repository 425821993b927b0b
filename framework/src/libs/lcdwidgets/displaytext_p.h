// Small text and size rules shared by the display rows (internal: not installed, not exported).
#pragma once

#include <QString>

class QFontMetrics;
class RollLabel;

namespace LCD {
namespace Widget {

// Elides `text` on the right at `width` pixels. When the text is cut, the shown text is
// "%1..." filled with the elided text less its last three characters (the ellipsis
// character and the two before it become three dots). A width below 1 never elides.
QString elideWithDots(QFontMetrics const& metrics, QString const& text, int width);

// Side of a row's square icon button for an item height: (height / 36) * 24 pixels,
// truncating; heights below 36 (and the unset height -1) give 0.
int itemIconSide(int itemHeight);

// "QLabel{font-size: Npx; }": the compact label sheet of the rows.
QString labelFontSheet(int pixelSize);
// "QLabel { font-size: Npx; }": the spaced label sheet of the tip, arrow and multi-value rows.
QString spacedLabelFontSheet(int pixelSize);

// Shows `text` on a value label as it is: a running marquee stops.
void showPlainText(RollLabel* label, QString const& text);
// Shows `text` in two thirds of `itemWidth` (capped at the text's own width): elided
// when roll is false, scrolling inside that box when roll is true and it does not fit.
void showFittedText(RollLabel* label, QString const& text, int itemWidth, bool roll);

} // namespace Widget
} // namespace LCD
