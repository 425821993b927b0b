#include "multiswitchwidget.h"

#include "choicekeys_p.h"
#include "switchcontrol.h"

#include <QDebug>

namespace LCD {
namespace Widget {

struct MultiSwitchWidget::Impl
{
    int count = 0;
    int lastKey = -1;
    QSize switchSize;
    int fontSize = 0;
    QString switchColor;
};

MultiSwitchWidget::MultiSwitchWidget(QWidget* parent) : MultiWidgetControl(parent), d(std::make_unique<Impl>()) {}

MultiSwitchWidget::~MultiSwitchWidget() = default;

namespace {
SwitchWidget* switchWith(MultiWidgetList const& list, int value) { return choiceWithValue<SwitchWidget>(list, value); }

template <typename F>
void forEachSwitch(MultiWidgetList const& list, F f)
{
    forEachChoice<SwitchWidget>(list, f);
}
} // namespace

void MultiSwitchWidget::setTextData(QVector<QPair<QString, int>> data)
{
    for (auto const& pair : data) {
        auto* w = new SwitchWidget(this);
        w->setLabelText(pair.first);
        int const value = pair.second;
        setChoiceData(w, kChoiceValueId, value);
        entries().append(qMakePair(e_SwitchWidget, static_cast<QWidget*>(w)));
        w->installEventFilter(this);
        connect(w, &SwitchWidget::signalSwitchControlStatusChanged, this,
                [this, value](bool on) { emit signalValueChanged(value, on ? 1 : 0); });
    }
    d->count = entries().size();
    forEachSwitch(entries(), [this](SwitchWidget* w) {
        if (d->switchSize.isValid())
            w->setSwitchSize(d->switchSize);
        if (d->fontSize > 0)
            w->setContentFontSize(d->fontSize);
        if (!d->switchColor.isEmpty())
            w->setSwitchColor(d->switchColor);
    });
    setSpacing(16);
    addWidgets(entries());
}

void MultiSwitchWidget::setCurrentData(int value, int on)
{
    d->lastKey = value;
    if (SwitchWidget* w = switchWith(entries(), value))
        w->setToggle(on != 0);
}

bool MultiSwitchWidget::getCurrentData(int value) const
{
    SwitchWidget const* w = switchWith(entries(), value);
    return w && w->getToggle();
}

void MultiSwitchWidget::setItemVisible(int value, bool visible)
{
    if (SwitchWidget* w = switchWith(entries(), value))
        w->setHidden(!visible);
}

int MultiSwitchWidget::visibleWidgetCount() const
{
    int n = 0;
    forEachSwitch(entries(), [&n](SwitchWidget* w) { n += w->isHidden() ? 0 : 1; });
    return n;
}

void MultiSwitchWidget::setSwitchSize(QSize size)
{
    if (size.height() < 1 || size.width() < 0) {
        qDebug().noquote().nospace() << "MultiSwitchWidget::setSwitchSize: invalid size " << size.width() << "x"
                                     << size.height();
        return;
    }
    d->switchSize = size;
    forEachSwitch(entries(), [size](SwitchWidget* w) { w->setSwitchSize(size); });
}

void MultiSwitchWidget::setContentFontSize(int size)
{
    if (size < 1) {
        qDebug().noquote().nospace() << "MultiSwitchWidget::setContentFontSize: invalid font size " << size;
        return;
    }
    d->fontSize = size;
    forEachSwitch(entries(), [size](SwitchWidget* w) { w->setContentFontSize(size); });
}

void MultiSwitchWidget::setSwitchColor(QString const& color)
{
    if (!QColor(color).isValid()) {
        qDebug().noquote() << "MultiSwitchWidget::setSwitchColor: invalid colour" << color;
        return;
    }
    d->switchColor = color;
    forEachSwitch(entries(), [&color](SwitchWidget* w) { w->setSwitchColor(color); });
}

void MultiSwitchWidget::setContentDisabled(bool disabled) const
{
    forEachSwitch(entries(), [disabled](SwitchWidget* w) { w->setContentDisabled(disabled); });
}

void MultiSwitchWidget::enterPressed() const
{
    int const i = focusedIndex();
    if (i < 0)
        return;
    auto* w = qobject_cast<SwitchWidget*>(entries().at(i).second);
    if (w && w->switchControl()->isEnabled())
        w->setToggle(!w->getToggle());
}

void MultiSwitchWidget::singleItemEnterPressed()
{
    for (auto const& pair : qAsConst(entries())) {
        auto* w = qobject_cast<SwitchWidget*>(pair.second);
        if (w && !w->isHidden()) {
            if (w->switchControl()->isEnabled())
                w->setToggle(!w->getToggle());
            break;
        }
    }
    emit signalCloseEditStatus();
}

void MultiSwitchWidget::focusInEvent(QFocusEvent* event)
{
    MultiWidgetControl::focusInEvent(event);
    focusFirstChoice(entries());
}

bool MultiSwitchWidget::filterKey(int key)
{
    // A lone switch is flipped by its item, not walked.
    if (visibleWidgetCount() < 2)
        return false;
    switch (key) {
    case Qt::Key_Escape:
        emit signalCloseEditStatus();
        return true;
    case Qt::Key_Enter:
    case Qt::Key_Return:
        enterPressed();
        return true;
    default:
        return MultiWidgetControl::filterKey(key);
    }
}

} // namespace Widget
} // namespace LCD
