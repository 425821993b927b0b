// Internal helper of the titled line-edit widgets (not installed, not exported).
#pragma once

class QFrame;
class QString;
class QLabel;
class QWidget;

namespace LCD {
namespace Widget {

// Lays out "title  editor  unit" in `frame` and sets the theme properties
// ("isLineEditWidget", "isLineEditTitle", "isLineEditUnit"); the unit label is
// hidden while its text is empty. The editor becomes the frame's focus proxy.
void buildTitledEditor(QFrame* frame, QWidget* editor, QLabel*& title, QLabel*& unit);
// End of an edit in a line edit that still has the focus: the nearest ancestor
// that does not hand its focus straight back (no focus proxy) takes it; without
// one the editor just drops the focus.
void handFocusBack(QWidget* editor);
// Shows the unit label only when it has a text.
void setUnitText(QLabel* unit, QString const& text);
// The keys an edit works with (knob turns, press, back): the editor takes their
// releases too, the page must not see the end of an editing key.
bool isEditingKey(int key);

} // namespace Widget
} // namespace LCD
