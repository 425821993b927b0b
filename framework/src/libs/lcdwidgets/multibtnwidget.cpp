#include "multibtnwidget.h"

#include "choicekeys_p.h"
#include "stylehelper.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

struct MultiBtnWidget::Impl
{
    QVector<QPushButton*> buttons;
    int fontSize = 0;
};

MultiBtnWidget::MultiBtnWidget(int count, QWidget* parent) : QWidget(parent), d(std::make_unique<Impl>())
{
    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(16);
    layout->setContentsMargins(0, 5, 0, 15);
    for (int i = 0; i < count; ++i) {
        auto* button = new QPushButton(this);
        button->setProperty("isMultiBtnChecked", true);
        button->setProperty("isMultiBtnFocus", true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        setChoiceData(button, kChoiceValueId, QVariant());
        button->installEventFilter(this);
        connect(button, &QPushButton::clicked, this, &MultiBtnWidget::enterPressed);
        auto* column = new QVBoxLayout;
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        column->addStretch();
        column->addWidget(button);
        column->addStretch();
        layout->addLayout(column);
        d->buttons.append(button);
    }
}

MultiBtnWidget::~MultiBtnWidget() = default;

void MultiBtnWidget::setBtnData(QVector<QPair<QString, int>> data)
{
    int const n = qMin(data.size(), d->buttons.size());
    for (int i = 0; i < n; ++i) {
        d->buttons.at(i)->setText(data.at(i).first);
        setChoiceData(d->buttons.at(i), kChoiceValueId, data.at(i).second);
    }
}

void MultiBtnWidget::setBtnDefaultStyle(QString name)
{
    if (name.isEmpty())
        return;
    QByteArray const key = name.toLatin1();
    for (QPushButton* button : qAsConst(d->buttons)) {
        button->setProperty(key.constData(), true);
        repolish(button);
    }
}

void MultiBtnWidget::setFontSize(int size)
{
    if (size < 1) {
        qDebug().noquote().nospace() << "MultiBtnWidget::setFontSize: invalid font size " << size;
        return;
    }
    d->fontSize = size;
    QString const sheet = QStringLiteral("QPushButton{font-size:") + QString::number(size) + QStringLiteral("px; }");
    for (QPushButton* button : qAsConst(d->buttons))
        button->setStyleSheet(sheet);
}

void MultiBtnWidget::enterPressed()
{
    QVector<QPushButton*> const& list = d->buttons;
    int const i = focusedChoice(list.size(), [&list](int k) { return list.at(k); });
    if (i < 0)
        return;
    QVariant const value = choiceData(list.at(i), kChoiceValueId);
    qDebug() << "signalValueChanged:" << value.toInt();
    emit signalValueChanged(QVariant(value.toInt()));
}

int MultiBtnWidget::getIndex(QPushButton* button) const { return d->buttons.indexOf(button); }

int MultiBtnWidget::count() const { return d->buttons.size(); }

QPushButton* MultiBtnWidget::button(int index) const { return d->buttons.value(index, nullptr); }

bool MultiBtnWidget::handleKey(int key)
{
    QVector<QPushButton*> const& list = d->buttons;
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        stepChoiceFocus(list.size(), [&list](int k) { return list.at(k); }, key == Qt::Key_Up);
        return true;
    case Qt::Key_Escape:
        emit signalCloseEditStatus();
        return true;
    case Qt::Key_Back:
        emit signalBackBtnClicked();
        return true;
    default:
        return false;
    }
}

bool MultiBtnWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && handleKey(static_cast<QKeyEvent*>(event)->key()))
        return true;
    return QWidget::eventFilter(watched, event);
}

void MultiBtnWidget::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    QVector<QPushButton*> const& list = d->buttons;
    int const first = firstChoice(list.size(), [&list](int k) { return list.at(k); });
    if (first >= 0)
        list.at(first)->setFocus(Qt::OtherFocusReason);
}

void MultiBtnWidget::keyPressEvent(QKeyEvent* event)
{
    int const key = event->key();
    if (handleKey(key)) {
        event->accept();
        return;
    }
    // The knob's press on the focused button works it, as a click does (and never
    // reaches the page as a press on the row).
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        QVector<QPushButton*> const& list = d->buttons;
        int const i = focusedChoice(list.size(), [&list](int k) { return list.at(k); });
        if (i >= 0)
            list.at(i)->click();
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace Widget
} // namespace LCD
