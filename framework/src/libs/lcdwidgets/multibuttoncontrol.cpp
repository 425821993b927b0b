#include "multibuttoncontrol.h"

#include "choicekeys_p.h"
#include "stylehelper.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

namespace LCD {
namespace Widget {

namespace {
constexpr char kCurrentProperty[] = "multiButtonCurrent";
} // namespace

struct MultiButtonControl::Impl
{
    QHBoxLayout* layout = nullptr;
    QVector<QPushButton*> buttons;
    int current = -1;
    bool oneVisible = false;
};

MultiButtonControl::MultiButtonControl(QWidget* parent) : QFrame(parent), d(std::make_unique<Impl>())
{
    setFocusPolicy(Qt::StrongFocus);
    setProperty("multiButtonFrame", QStringLiteral("normal"));
    d->layout = new QHBoxLayout(this);
    d->layout->setContentsMargins(0, 0, 0, 0);
    d->layout->setSpacing(4);
}

MultiButtonControl::~MultiButtonControl() = default;

void MultiButtonControl::setBtnText(QVector<QPair<QString, int>>& data)
{
    for (QPushButton* b : qAsConst(d->buttons)) {
        d->layout->removeWidget(b);
        b->hide();
        b->deleteLater();
    }
    d->buttons.clear();
    d->current = -1;
    for (auto const& pair : qAsConst(data)) {
        auto* b = new QPushButton(pair.first, this);
        b->setFocusPolicy(Qt::NoFocus);
        b->setProperty(kCurrentProperty, false);
        setChoiceData(b, kChoiceValueId, pair.second);
        connect(b, &QPushButton::clicked, this, &MultiButtonControl::slotBtnClicked);
        d->layout->addWidget(b);
        if (isVisible())
            b->show();
        d->buttons.append(b);
    }
    if (!d->buttons.isEmpty())
        updateBtnStyle(d->buttons.first());
}

void MultiButtonControl::setCurrentData(int value)
{
    for (QPushButton* b : qAsConst(d->buttons)) {
        if (choiceData(b, kChoiceValueId).toInt() == value) {
            updateBtnStyle(b);
            return;
        }
    }
    qDebug().noquote().nospace() << "MultiButtonControl::setCurrentData: no button with value " << value;
}

int MultiButtonControl::getCurrentData() const
{
    QPushButton* b = button(d->current);
    return b ? choiceData(b, kChoiceValueId).toInt() : -1;
}

void MultiButtonControl::setOneBtnVisible(bool one)
{
    d->oneVisible = one;
    for (int i = 0; i < d->buttons.size(); ++i)
        d->buttons.at(i)->setHidden(one && i != d->current);
}

void MultiButtonControl::nextBtnClicked() { step(+1); }

void MultiButtonControl::previousClicked() { step(-1); }

void MultiButtonControl::step(int delta)
{
    int const next = d->current + delta;
    if (d->current < 0 || next < 0 || next >= d->buttons.size())
        return;
    updateBtnStyle(d->buttons.at(next));
    emit signalValueChanged(QVariant(getCurrentData()));
}

void MultiButtonControl::updateBtnStyle(QPushButton* button)
{
    int const index = d->buttons.indexOf(button);
    if (index < 0)
        return;
    int const old = d->current;
    d->current = index;
    // Only the two buttons whose mark changes are re-polished.
    if (QPushButton* was = this->button(old); was && old != index) {
        setStyleProperty(was, kCurrentProperty, false);
        was->setHidden(d->oneVisible);
    }
    if (!button->property(kCurrentProperty).toBool())
        setStyleProperty(button, kCurrentProperty, true);
    button->setHidden(false);
}

int MultiButtonControl::count() const { return d->buttons.size(); }

QPushButton* MultiButtonControl::button(int index) const { return d->buttons.value(index, nullptr); }

void MultiButtonControl::slotBtnClicked()
{
    auto* b = qobject_cast<QPushButton*>(sender());
    if (!b || !d->buttons.contains(b))
        return;
    updateBtnStyle(b);
    emit signalValueChanged(QVariant(getCurrentData()));
    emit signalEditFinished();
}

void MultiButtonControl::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        previousClicked();
        break;
    case Qt::Key_Down:
        nextBtnClicked();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        emit signalEditFinished();
        break;
    default:
        QFrame::keyPressEvent(event);
        return;
    }
    event->accept();
}

} // namespace Widget
} // namespace LCD
