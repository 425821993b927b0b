#include "multiwidgetcontrol.h"

#include "choicekeys_p.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>

namespace LCD {
namespace Widget {

static_assert(MultiWidgetControl::kValueDataId == kChoiceValueId && MultiWidgetControl::kTextDataId == kChoiceTextId,
              "user data ids");

struct MultiWidgetControl::Impl
{
    QHBoxLayout* layout = nullptr;
    MultiWidgetList widgets;
};

MultiWidgetControl::MultiWidgetControl(QWidget* parent) : QFrame(parent), d(std::make_unique<Impl>())
{
    initControl();
}

MultiWidgetControl::~MultiWidgetControl() = default;

void MultiWidgetControl::initControl()
{
    if (!d->layout)
        d->layout = new QHBoxLayout(this);
    d->layout->setContentsMargins(0, 0, 0, 0);
    d->layout->setSpacing(0);
}

void MultiWidgetControl::setSpacing(int spacing)
{
    // A spacing wider than any panel would overflow the layout's sums of the row.
    if (spacing < 0 || spacing > kMaxSpacing) {
        qDebug().noquote().nospace() << "MultiWidgetControl::setSpacing: invalid spacing " << spacing;
        return;
    }
    d->layout->setSpacing(spacing);
}

void MultiWidgetControl::addStretch() { d->layout->addStretch(); }

void MultiWidgetControl::addWidgets(MultiWidgetList widgets)
{
    for (auto const& pair : qAsConst(widgets)) {
        QWidget* w = pair.second;
        if (!w)
            continue;
        d->layout->addWidget(w);
        // In a row already on screen a new child shows at once (not on a later turn of
        // the event loop), so that the knob can focus it straight away.
        if (isVisible() && !w->testAttribute(Qt::WA_WState_ExplicitShowHide))
            w->show();
    }
}

MultiWidgetList MultiWidgetControl::widgetList() const { return d->widgets; }

void MultiWidgetControl::setUpDownPressed(bool up)
{
    MultiWidgetList const& list = d->widgets;
    stepChoiceFocus(list.size(), [&list](int i) { return list.at(i).second; }, up);
}

bool MultiWidgetControl::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && filterKey(static_cast<QKeyEvent*>(event)->key()))
        return true;
    return QObject::eventFilter(watched, event);
}

MultiWidgetList& MultiWidgetControl::entries() { return d->widgets; }

MultiWidgetList const& MultiWidgetControl::entries() const { return d->widgets; }

QHBoxLayout* MultiWidgetControl::controlLayout() const { return d->layout; }

int MultiWidgetControl::focusedIndex() const
{
    MultiWidgetList const& list = d->widgets;
    return focusedChoice(list.size(), [&list](int i) { return list.at(i).second; });
}

bool MultiWidgetControl::filterKey(int key)
{
    switch (key) {
    case Qt::Key_Up:
        setUpDownPressed(true);
        return true;
    case Qt::Key_Down:
        setUpDownPressed(false);
        return true;
    default:
        return false;
    }
}

void MultiWidgetControl::pressKey(int) {}

void MultiWidgetControl::keyPressEvent(QKeyEvent* event)
{
    // Keys for the row itself (it holds the focus when it has no child to give it to),
    // and presses its focused child left alone.
    int const key = event->key();
    if (filterKey(key)) {
        event->accept();
        return;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        pressKey(key);
        event->accept();
        return;
    }
    QFrame::keyPressEvent(event);
}

} // namespace Widget
} // namespace LCD
