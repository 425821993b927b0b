// Internal helper of the rows that edit several integers side by side (not
// installed, not exported): a caption and a knob spin box per field, laid out in the
// row's dynamic layout, and the keys of an edit that walks through them.
#pragma once

#include <QObject>
#include <QStringList>
#include <functional>

class QHBoxLayout;
class QLabel;

namespace LCD {
namespace Widget {

class CommonItemType;
class NQSpinBox;

class SpinFields : public QObject
{
public:
    SpinFields(CommonItemType* row, QHBoxLayout* layout);

    // Replaces the fields (range 0..9999, step 1, value 0 each).
    void setCaptions(QStringList const& captions);
    int count() const { return m_boxes.size(); }
    NQSpinBox* box(int index) const { return m_boxes.value(index); }
    QLabel* caption(int index) const { return m_captions.value(index); }
    // Field being edited; -1 while not editing.
    int current() const { return m_current; }

    // Range and step of one field, checked by the caller. Signals blocked.
    void setRange(int index, int minimum, int maximum);
    void setValue(int index, int value); // clamped, no signal
    void setFontSize(int size);
    void setEnabled(bool enabled);

    // Whether an edit runs and one of the fields still has the focus (an edit whose
    // focus was taken away can be started afresh).
    bool hasKnob() const;
    // Starts the edit on the first field; false when there is none to edit.
    bool start();
    // Ends the edit: the row's parent takes the focus back, then `finished` runs.
    void end();

    std::function<void(int index, int value)> valueChanged;
    std::function<void()> finished;

    // The keys of an edit: Return / Enter move to the next field (the last one ends
    // the edit), Escape ends it, releases of those keys stay in the row.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void focusField(int index);
    void fitWidth(int index);

    CommonItemType* m_row;
    QHBoxLayout* m_layout;
    QList<NQSpinBox*> m_boxes;
    QList<QLabel*> m_captions;
    int m_current = -1;
    int m_fontSize = 20;
};

} // namespace Widget
} // namespace LCD
