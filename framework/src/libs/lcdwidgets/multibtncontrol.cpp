#include "multibtncontrol.h"
#include "sheet_p.h"

#include "choicekeys_p.h"
#include "stylehelper.h"

#include <QDebug>

#include <cmath>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

namespace LCD {
namespace Widget {

namespace {

// The text a button was given (its shown text has its ampersands doubled).
constexpr char kTextProperty[] = "multiBtnText";
constexpr int kToolButtonSide = 40;

// A lone "&" would make a mnemonic: doubled, it shows as such. Runs of "&" the caller
// already doubled stay as they are.
QString shownText(QString const& text)
{
    QString out;
    out.reserve(text.size() + 2);
    for (int i = 0; i < text.size(); ++i) {
        QChar const c = text.at(i);
        out += c;
        if (c == QLatin1Char('&')) {
            bool const before = i > 0 && text.at(i - 1) == QLatin1Char('&');
            bool const after = i + 1 < text.size() && text.at(i + 1) == QLatin1Char('&');
            if (!before && !after)
                out += c;
        }
    }
    return out;
}

int clampedSize(qint64 v) { return static_cast<int>(qBound<qint64>(0, v, QWIDGETSIZE_MAX)); }

// Where an icon goes inside its button: a coordinate that is no number counts as 0,
// the others stay within what a widget takes (rounding them could overflow an int).
QPoint iconPlace(QPointF pos)
{
    auto const place = [](qreal v) {
        return std::isfinite(v) ? qRound(qBound<qreal>(-QWIDGETSIZE_MAX, v, QWIDGETSIZE_MAX)) : 0;
    };
    return QPoint(place(pos.x()), place(pos.y()));
}

} // namespace

struct MultiBtnControl::Impl
{
    QPointer<QAbstractButton> current;
    int fontSize = -1;
};

MultiBtnControl::MultiBtnControl(QWidget* parent) : MultiWidgetControl(parent), d(std::make_unique<Impl>())
{
    setProperty("multiButtonFrame", QStringLiteral("normal"));
}

MultiBtnControl::~MultiBtnControl() = default;

// ---------------------------------------------------------------------------
// Building

void MultiBtnControl::insertButton(int index, e_WidgetType type, QAbstractButton* button, QVariant const& data)
{
    button->setCheckable(true);
    button->setProperty("isMultiBtnChecked", true);
    button->setFocusPolicy(Qt::StrongFocus);
    setChoiceData(button, kChoiceValueId, data);
    button->installEventFilter(this);
    MultiWidgetList& list = entries();
    list.insert(qBound(0, index, list.size()), qMakePair(type, static_cast<QWidget*>(button)));
    // The position is looked up at the click: it is always the button's present one.
    connect(button, &QAbstractButton::clicked, this, [this, button] { chooseButton(button, indexOf(button)); });
    buttonAdded();
}

void MultiBtnControl::buttonAdded()
{
    setSpacing(5);
    if (d->fontSize > 0)
        setContentFontSize(d->fontSize);
    addWidgets(entries());
}

void MultiBtnControl::addBtnData(QString const& text, QVariant const& data) { insertBtnData(count(), text, data); }

void MultiBtnControl::addBtnData(QIcon const& icon, QString const& text, QVariant const& data)
{
    insertBtnData(count(), icon, text, data);
}

void MultiBtnControl::addBtnData(QIcon const& icon, QPointF iconPos, QString const& text, QVariant const& data)
{
    auto* button = new QPushButton(shownText(text), this);
    button->setProperty(kTextProperty, text);
    // The icon stands on its own label, placed where asked.
    auto* iconLabel = new QLabel(button);
    iconLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    QSize const side = button->iconSize();
    iconLabel->setPixmap(icon.pixmap(side));
    iconLabel->setFixedSize(side);
    iconLabel->move(iconPlace(iconPos));
    button->adjustSize();
    insertButton(count(), e_PushButton, button, data);
}

void MultiBtnControl::insertBtnData(int index, QString const& text, QVariant const& data)
{
    auto* button = new QPushButton(shownText(text), this);
    button->setProperty(kTextProperty, text);
    button->adjustSize();
    insertButton(index, e_PushButton, button, data);
}

void MultiBtnControl::insertBtnData(int index, QIcon const& icon, QString const& text, QVariant const& data)
{
    auto* button = new QPushButton(icon, shownText(text), this);
    button->setProperty(kTextProperty, text);
    button->adjustSize();
    insertButton(index, e_PushButton, button, data);
}

void MultiBtnControl::setBtnData(QVector<QPair<QString, int>> const& data)
{
    for (auto const& pair : data)
        addBtnData(pair.first, QVariant(pair.second));
}

void MultiBtnControl::setBtnData(QVector<QPair<QIcon, QPair<QString, int>>> const& data)
{
    for (auto const& row : data) {
        auto* button = new QToolButton(this);
        button->setFixedSize(kToolButtonSide, kToolButtonSide);
        button->setIcon(row.first);
        setChoiceData(button, kChoiceTextId, row.second.first);
        insertButton(count(), e_ToolButton, button, QVariant(row.second.second));
    }
}

void MultiBtnControl::updateBtns(std::list<std::pair<int, QString>>& items)
{
    MultiWidgetList const& list = entries();
    for (auto const& item : items) {
        for (auto const& pair : list) {
            auto* button = qobject_cast<QAbstractButton*>(pair.second);
            if (!button || choiceData(button, kChoiceValueId).toInt() != item.first)
                continue;
            if (pair.first == e_ToolButton) {
                setChoiceData(button, kChoiceTextId, item.second);
            } else {
                button->setText(shownText(item.second));
                button->setProperty(kTextProperty, item.second);
                button->adjustSize();
            }
            break;
        }
    }
    updateWidth();
}

void MultiBtnControl::removeBtnData(int index)
{
    MultiWidgetList& list = entries();
    if (index < 0 || index >= list.size()) {
        qDebug() << "the index is bigger than _widList!";
        return;
    }
    QWidget* w = list.at(index).second;
    controlLayout()->removeWidget(w);
    w->hide();
    w->deleteLater();
    list.removeAt(index);
    controlLayout()->update();
    updateWidth();
}

void MultiBtnControl::removeAllBtnData()
{
    MultiWidgetList& list = entries();
    for (auto const& pair : qAsConst(list)) {
        controlLayout()->removeWidget(pair.second);
        pair.second->hide();
        pair.second->deleteLater();
    }
    list.clear();
    d->current = nullptr;
}

// ---------------------------------------------------------------------------
// Reading

QAbstractButton* MultiBtnControl::buttonAt(int index) const
{
    MultiWidgetList const& list = entries();
    if (index < 0 || index >= list.size())
        return nullptr;
    return qobject_cast<QAbstractButton*>(list.at(index).second);
}

int MultiBtnControl::indexOf(QAbstractButton const* button) const
{
    MultiWidgetList const& list = entries();
    for (int i = 0; i < list.size(); ++i)
        if (list.at(i).second == button)
            return i;
    return -1;
}

QVariant MultiBtnControl::btnData(int index, int role) const
{
    if (index < 0 || index >= count()) {
        qDebug() << "the index is bigger than _widList!";
        return QVariant();
    }
    return choiceData(buttonAt(index), role);
}

QVariant MultiBtnControl::getCurrentData(int role) const
{
    return indexOf(d->current) >= 0 ? choiceData(d->current, role) : QVariant();
}

namespace {
QString buttonText(QAbstractButton const* button)
{
    if (!button)
        return QString();
    QVariant const iconText = choiceData(button, kChoiceTextId);
    if (iconText.isValid())
        return iconText.toString();
    return button->property(kTextProperty).toString();
}
} // namespace

QString MultiBtnControl::getCurrentText() const
{
    return indexOf(d->current) >= 0 ? buttonText(d->current) : QString();
}

int MultiBtnControl::getCurrentIndex() const { return qMax(0, indexOf(d->current)); }

int MultiBtnControl::count() const { return entries().size(); }

int MultiBtnControl::findData(QVariant const& data, int role) const
{
    int const wanted = data.toInt();
    for (int i = 0; i < count(); ++i) {
        QVariant const v = choiceData(buttonAt(i), role);
        if (v.isValid() && v.toInt() == wanted)
            return i;
    }
    return -1;
}

// ---------------------------------------------------------------------------
// Choosing

void MultiBtnControl::setCurrentIndex(int index)
{
    QAbstractButton* button = buttonAt(index);
    if (!button) {
        qDebug().noquote().nospace() << "index error! index is: " << index;
        return;
    }
    d->current = button;
    resetBtnCheckStatus();
}

void MultiBtnControl::setCurrentData(int value)
{
    for (int i = 0; i < count(); ++i) {
        QVariant const v = choiceData(buttonAt(i), kChoiceValueId);
        if (v.isValid() && v.toInt() == value) {
            d->current = buttonAt(i);
            resetBtnCheckStatus();
            return;
        }
    }
}

void MultiBtnControl::setCurrentText(QString text)
{
    for (int i = 0; i < count(); ++i) {
        if (buttonText(buttonAt(i)) == text) {
            d->current = buttonAt(i);
            resetBtnCheckStatus();
            return;
        }
    }
}

void MultiBtnControl::setCurrentUserData(QVariant data)
{
    for (int i = 0; i < count(); ++i) {
        if (choiceData(buttonAt(i), kChoiceValueId) == data) {
            d->current = buttonAt(i);
            resetBtnCheckStatus();
            return;
        }
    }
}

void MultiBtnControl::enterPressed()
{
    qDebug() << "enterPressed";
    QAbstractButton* button = buttonAt(focusedIndex());
    if (!button)
        return;
    d->current = button;
    button->setChecked(true);
}

void MultiBtnControl::resetBtnCheckStatus()
{
    if (!d->current || indexOf(d->current) < 0)
        return;
    for (int i = 0; i < count(); ++i) {
        QAbstractButton* button = buttonAt(i);
        if (button)
            button->setChecked(button == d->current);
    }
}

void MultiBtnControl::chooseButton(QAbstractButton* button, int index)
{
    QPointer<QAbstractButton> const guard(button);
    QPointer<MultiBtnControl> const self(this);
    QVariant const data = choiceData(button, kChoiceValueId);
    QString const text = buttonText(button);
    d->current = button;
    bool const wasBlocked = button->blockSignals(true);
    button->setChecked(true);
    qDebug().noquote().nospace() << "MultiBtnControl index changed: " << index;
    qDebug().noquote().nospace() << "MultiBtnControl text changed: " << text;
    resetBtnCheckStatus();
    emit signalValueChanged(data.toInt());
    if (self)
        emit signalTextChanged(text);
    if (self)
        emit signalIndexChanged(index);
    if (self)
        emit signalCloseEditStatus();
    if (guard)
        guard->blockSignals(wasBlocked);
}

void MultiBtnControl::focusInEvent(QFocusEvent* event)
{
    MultiWidgetControl::focusInEvent(event);
    // While the user browses, the committed choice shows as focused, not checked.
    for (int i = 0; i < count(); ++i) {
        QAbstractButton* button = buttonAt(i);
        if (!button || !button->isChecked())
            continue;
        button->style()->unpolish(button);
        button->setChecked(false);
        button->style()->polish(button);
        button->update();
        button->setFocus(Qt::OtherFocusReason);
        d->current = button;
        return;
    }
    focusFirstChoice(entries());
}

bool MultiBtnControl::filterKey(int key)
{
    if (key == Qt::Key_Escape) {
        resetBtnCheckStatus();
        emit signalCloseEditStatus();
        return true;
    }
    return MultiWidgetControl::filterKey(key);
}

void MultiBtnControl::pressKey(int)
{
    // The knob's press on the focused button chooses it, as a click does.
    if (QAbstractButton* button = buttonAt(focusedIndex()))
        button->click();
}

// ---------------------------------------------------------------------------
// Look

void MultiBtnControl::setBtnVisible(int value, bool visible)
{
    for (int i = 0; i < count(); ++i) {
        QAbstractButton* button = buttonAt(i);
        if (button && choiceData(button, kChoiceValueId).toInt() == value) {
            button->setHidden(!visible);
            break;
        }
    }
    updateWidth();
}

void MultiBtnControl::setContentDisabled(bool disabled)
{
    setDisabled(disabled);
    for (int i = 0; i < count(); ++i)
        if (QAbstractButton* button = buttonAt(i))
            button->setDisabled(disabled);
}

void MultiBtnControl::setStyleProperty(QString const& name)
{
    if (name.isEmpty())
        return;
    QByteArray const key = name.toLatin1();
    for (int i = 0; i < count(); ++i) {
        QAbstractButton* button = buttonAt(i);
        if (!button)
            continue;
        button->setStyleSheet(QString());
        button->setProperty(key.constData(), true);
        repolish(button);
    }
}

void MultiBtnControl::setContentFontSize(int size)
{
    if (size < 1) {
        qDebug().noquote().nospace() << "MultiBtnControl::setContentFontSize: invalid font size " << size;
        return;
    }
    d->fontSize = size;
    int const radius = size / 4;
    int const height = clampedSize(qint64(size) * 24 / 16);
    setStyleSheet(QStringLiteral("QFrame{border-radius: %1px;}").arg(radius));
    setFixedHeight(height);
    QString const pushSheet =
        QStringLiteral("QPushButton{font-size:%1px;border-radius:%2px;padding-left:%3px;padding-right:%3px;}")
            .arg(size)
            .arg(radius)
            .arg(radius);
    QString const toolSheet =
        QStringLiteral("QToolButton{font-size:%1px;border-radius:%2px;padding-left:%3px;padding-right:%3px;}")
            .arg(size)
            .arg(radius)
            .arg(radius);
    for (auto const& pair : qAsConst(entries())) {
        QWidget* button = pair.second;
        button->setFixedHeight(height);
        QString const& sheet = pair.first == e_PushButton ? pushSheet : toolSheet;
        // An icon-only button's icon fills two thirds of its height.
        if (auto* tool = qobject_cast<QAbstractButton*>(button); tool && pair.first == e_ToolButton)
            tool->setIconSize(QSize(height * 2 / 3, height * 2 / 3));
        applyStyleSheet(button, sheet);
        button->adjustSize();
    }
    updateWidth();
}

int MultiBtnControl::contentFontSize() const { return d->fontSize; }

void MultiBtnControl::updateWidth()
{
    qint64 sum = 0;
    for (auto const& pair : qAsConst(entries()))
        sum += pair.second->sizeHint().width();
    if (sum == 0)
        return;
    sum += qint64(count() - 1) * controlLayout()->spacing();
    setFixedWidth(clampedSize(sum));
}

} // namespace Widget
} // namespace LCD
