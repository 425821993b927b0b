// Base of the grouped choice controls: a horizontal row of like children (buttons,
// check boxes or labelled switches) that the knob walks with Up/Down and chooses from
// with a press.
//
// Each child carries its own value as object user data under id 256 (an icon-only
// button its text under id 257). The row is the event filter of its children and acts
// on key presses only; focus moves one child at a time with Qt::OtherFocusReason and
// never wraps. Children that are hidden or disabled are stepped over.
#pragma once

#include "lcdwidgets_global.h"

#include <QFrame>
#include <QList>
#include <QPair>
#include <memory>

class QHBoxLayout;

namespace LCD {
namespace Widget {

// What a grouped control's child is.
enum e_WidgetType {
    e_PushButton = 0,   // QPushButton showing text (or an icon and text)
    e_ToolButton = 1,   // QToolButton showing an icon only
    e_CheckBox = 2,     // QCheckBox
    e_SwitchWidget = 3, // SwitchWidget
};

// The children of a grouped control: (kind, widget) in display order.
using MultiWidgetList = QList<QPair<e_WidgetType, QWidget*>>;

class LCDWIDGETS_EXPORT MultiWidgetControl : public QFrame
{
    Q_OBJECT
public:
    // User data ids of the children.
    static constexpr int kValueDataId = 256;
    // User data id of an icon-only button's text.
    static constexpr int kTextDataId = 257;

    // An empty row (margins and spacing 0).
    explicit MultiWidgetControl(QWidget* parent = nullptr);
    ~MultiWidgetControl() override;

    // Lays the row out: margins 0, spacing 0 (only resets them once the layout exists).
    void initControl();
    // Spacing between the children; a negative spacing, or one above kMaxSpacing
    // pixels, is refused.
    static constexpr int kMaxSpacing = 4096;
    // Spacing in px between the children, 0..kMaxSpacing; another value is refused
    // ("MultiWidgetControl::setSpacing: invalid spacing <n>").
    void setSpacing(int spacing);
    // A stretch at the end of the row.
    void addStretch();
    // Puts each pair's widget into the row in list order (widgets already there move
    // to their new place). The child list itself is not touched.
    void addWidgets(MultiWidgetList widgets);
    // The children in display order.
    MultiWidgetList widgetList() const;

    // The knob's focus step from the focused child (nothing when no child has focus).
    void setUpDownPressed(bool up);

    // A child's key press goes to filterKey(); consumed when the row acted on it.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    // The child list, for subclasses to append to.
    MultiWidgetList& entries();
    MultiWidgetList const& entries() const;
    QHBoxLayout* controlLayout() const;
    // Index of the focused child, -1 when none has the focus.
    int focusedIndex() const;

    // A key press on a child (or on the row itself): true when the row acted on it.
    // The base moves the focus on Up/Down.
    virtual bool filterKey(int key);
    // A press (Enter/Return) that reached the row without being acted on: the base
    // swallows it so that the page does not take it for a press on the row.
    virtual void pressKey(int key);
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
