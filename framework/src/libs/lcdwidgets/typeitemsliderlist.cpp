#include "typeitemsliderlist.h"
#include "inputcheck_p.h"

#include "knoblevel.h"
#include "spinrow_p.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSlider>
#include <QStandardItemModel>
#include <cmath>

namespace LCD {
namespace Widget {

namespace {
void logBadIndex(char const* function, int index, int count)
{
    qDebug().noquote() << QStringLiteral("[TypeItemSliderList] %1: index %2 out of range (count %3)")
                              .arg(function)
                              .arg(index)
                              .arg(count);
}
} // namespace

struct LCDWIDGETS_HIDDEN TypeItemSliderList::Impl
{
    TypeItemSliderList* q;
    QStandardItemModel model;
    QSlider* slider = nullptr;
    QLabel* text = nullptr;
    int current = -1;
    bool editable = true;
    bool editing = false;

    explicit Impl(TypeItemSliderList* owner) : q(owner) {}

    bool valid(int i) const { return i >= 0 && i < model.rowCount(); }
    bool hidden(int i) const { return model.item(i)->data(kHiddenRowRole).toBool(); }

    // Shows `current` on the slider and in the text.
    void show()
    {
        QSignalBlocker block(slider);
        slider->setRange(0, qMax(0, model.rowCount() - 1));
        slider->setValue(qMax(0, current));
        text->setText(valid(current) ? model.item(current)->text() : QString());
    }

    // Makes `i` current; `report`: the user moved (live signals).
    void choose(int i, bool report)
    {
        if (i == current) {
            show();
            return;
        }
        current = i;
        show();
        if (!report)
            return;
        QString const t = valid(i) ? model.item(i)->text() : QString();
        emit q->signalSelectedIndexChanged(i);
        emit q->signalSelectedChanged(t);
        emit q->signalCurrentIndexChanged(i);
        emit q->signalCurrentTextChanged(t);
        emit q->signalValueChanged(valid(i) ? model.item(i)->data(Qt::UserRole) : QVariant());
        q->notifyTextChanged();
    }

    // The visible entry `steps` entries from the current one (dir +1/-1), clamped.
    int stepFrom(int dir, int steps) const
    {
        int target = current;
        for (int i = current + dir; steps > 0 && i >= 0 && i < model.rowCount(); i += dir)
            if (!hidden(i)) {
                target = i;
                --steps;
            }
        return target;
    }

    void endEdit(bool back)
    {
        bool const was = editing;
        editing = false;
        q->setEdit(false);
        if (was)
            setStyleProperty(slider, "sliderListStatus", QStringLiteral("normal"));
        returnFocusToParent(q);
        if (back)
            emit q->signalCloseEditStatus();
        if (was)
            emit q->signalEditFinished();
    }
};

TypeItemSliderList::TypeItemSliderList(QWidget* parent) : StringComboxBaseType(parent), d(std::make_unique<Impl>(this))
{
    setRightIconButtonHide(true);
    d->slider = new QSlider(Qt::Horizontal, dynamicFrame());
    d->slider->setProperty("isSliderList", true);
    d->slider->setProperty("sliderListStatus", QStringLiteral("normal"));
    d->slider->setFocusPolicy(Qt::StrongFocus);
    d->slider->setRange(0, 0);
    d->slider->setPageStep(1);
    d->slider->installEventFilter(this);
    d->text = new QLabel(dynamicFrame());
    d->text->setProperty("isSliderListText", true);
    d->text->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QHBoxLayout* layout = dynamicLayout();
    layout->setSpacing(12);
    layout->addWidget(d->slider, 1);
    layout->addWidget(d->text);
    // A drag with the touch screen or mouse chooses too (snapped to visible entries).
    connect(d->slider, &QSlider::valueChanged, this, [this](int v) {
        if (d->valid(v) && !d->hidden(v))
            d->choose(v, true);
        else
            d->show();
    });
}

TypeItemSliderList::~TypeItemSliderList() = default;

void TypeItemSliderList::addItem(QString const& text, QVariant const& userData)
{
    auto* it = new QStandardItem(text);
    it->setData(userData, Qt::UserRole);
    d->model.appendRow(it);
    d->show();
}

void TypeItemSliderList::removeItem(int index)
{
    if (!d->valid(index)) {
        logBadIndex("removeItem", index, count());
        return;
    }
    d->model.removeRow(index);
    if (d->current == index)
        d->current = -1;
    else if (d->current > index)
        --d->current;
    d->show();
}

void TypeItemSliderList::insertItem(int index, QString const& text, QVariant const& userData)
{
    if (index < 0 || index > count()) {
        logBadIndex("insertItem", index, count());
        return;
    }
    auto* it = new QStandardItem(text);
    it->setData(userData, Qt::UserRole);
    d->model.insertRow(index, it);
    if (d->current >= index)
        ++d->current;
    d->show();
}

int TypeItemSliderList::currentIndex() const { return d->current; }

QString TypeItemSliderList::currentText() const { return d->valid(d->current) ? d->model.item(d->current)->text() : QString(); }

QVariant TypeItemSliderList::currentData(int role) const
{
    return d->valid(d->current) ? d->model.item(d->current)->data(role) : QVariant();
}

void TypeItemSliderList::setCurrentIndex(int index)
{
    if (index != -1 && !d->valid(index)) {
        logBadIndex("setCurrentIndex", index, count());
        return;
    }
    d->choose(index, false);
}

void TypeItemSliderList::setCurrentUserData(QVariant data)
{
    int const i = findData(data);
    if (i < 0) {
        qDebug() << "[TypeItemSliderList] setCurrentUserData: no entry holds" << data;
        return;
    }
    d->choose(i, false);
}

void TypeItemSliderList::setCurrentText(QString text)
{
    int const i = findText(text);
    if (i < 0) {
        qDebug() << "[TypeItemSliderList] setCurrentText: no entry holds" << text;
        return;
    }
    d->choose(i, false);
}

void TypeItemSliderList::setItemText(int index, QString const& text)
{
    if (!d->valid(index)) {
        logBadIndex("setItemText", index, count());
        return;
    }
    d->model.item(index)->setText(text);
    if (index == d->current)
        d->show();
}

QString TypeItemSliderList::itemText(int index) const
{
    if (!d->valid(index)) {
        logBadIndex("itemText", index, count());
        return QString();
    }
    return d->model.item(index)->text();
}

void TypeItemSliderList::updateItems(std::list<std::pair<int, QString>>& items)
{
    for (auto const& [index, text] : items)
        setItemText(index, text);
}

void TypeItemSliderList::clear()
{
    d->model.clear();
    d->current = -1;
    d->show();
}

int TypeItemSliderList::count() const { return d->model.rowCount(); }

int TypeItemSliderList::findText(QString const& text) const
{
    for (int i = 0; i < count(); ++i)
        if (d->model.item(i)->text() == text)
            return i;
    return -1;
}

int TypeItemSliderList::findData(QVariant const& data, int role) const
{
    for (int i = 0; i < count(); ++i)
        if (d->model.item(i)->data(role) == data)
            return i;
    return -1;
}

QVariant TypeItemSliderList::itemData(int index, int role) const
{
    if (!d->valid(index)) {
        logBadIndex("itemData", index, count());
        return QVariant();
    }
    return d->model.item(index)->data(role);
}

void TypeItemSliderList::setItemData(int index, QVariant value, int role)
{
    if (!d->valid(index)) {
        logBadIndex("setItemData", index, count());
        return;
    }
    d->model.item(index)->setData(value, role);
    if (index == d->current)
        d->show();
}

void TypeItemSliderList::setRowHidden(int index, bool hidden)
{
    if (!d->valid(index)) {
        logBadIndex("setRowHidden", index, count());
        return;
    }
    d->model.item(index)->setData(hidden, kHiddenRowRole);
}

void TypeItemSliderList::setEditable(bool editable) { d->editable = editable; }

int TypeItemSliderList::visableCount() const
{
    int n = 0;
    for (int i = 0; i < count(); ++i)
        n += d->hidden(i) ? 0 : 1;
    return n;
}

void TypeItemSliderList::editValue()
{
    if (!d->editable) {
        qDebug().noquote() << QStringLiteral("[TypeItemSliderList] %1: the choice is fixed").arg(itemTitle());
        return;
    }
    if (!canEdit(d->slider))
        return;
    if (visableCount() < 2) {
        qDebug().noquote() << QStringLiteral("[TypeItemSliderList] %1: nothing to choose from").arg(itemTitle());
        return;
    }
    d->slider->setFocus(Qt::OtherFocusReason);
    d->editing = true;
    setStyleProperty(d->slider, "sliderListStatus", QStringLiteral("edit"));
    setEdit(true);
    emit signalEditStarted();
}

void TypeItemSliderList::closeEditValue()
{
    if (d->editing) {
        d->editing = false;
        setStyleProperty(d->slider, "sliderListStatus", QStringLiteral("normal"));
        setEdit(false);
        returnFocusToParent(this);
    }
    CommonItemType::closeEditValue();
}

void TypeItemSliderList::setContentFontSize(int size)
{
    if (size < 1) {
        qDebug() << "[TypeItemSliderList] setContentFontSize: font size must be positive, got" << size;
        return;
    }
    if (!fontSizeOk("TypeItemSliderList", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    QFont f = d->text->font();
    f.setPixelSize(size);
    d->text->setFont(f);
    d->slider->setMinimumWidth(static_cast<int>(qMin<qint64>(qint64(size) * 6, QWIDGETSIZE_MAX)));
}

void TypeItemSliderList::setContentDisabled(bool disabled) const
{
    d->slider->setDisabled(disabled);
    d->text->setDisabled(disabled);
    setStyleProperty(d->text, "Gray", disabled);
}

QSlider* TypeItemSliderList::slider() const { return d->slider; }
QLabel* TypeItemSliderList::textLabel() const { return d->text; }

bool TypeItemSliderList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != d->slider)
        return StringComboxBaseType::eventFilter(watched, event);
    if (event->type() == QEvent::KeyRelease) {
        int const key = static_cast<QKeyEvent*>(event)->key();
        return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Escape || key == Qt::Key_Return
            || key == Qt::Key_Enter;
    }
    if (event->type() != QEvent::KeyPress)
        return StringComboxBaseType::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
        float const level = std::fabs(knobLevel(key));
        int const steps = level >= 1.0f ? static_cast<int>(qMin(level, float(count()))) : 1;
        int const dir = key->key() == Qt::Key_Up ? 1 : -1;
        if (d->current < 0) {
            // No choice yet: the first turn lands on the first visible entry.
            for (int i = 0; i < count(); ++i)
                if (!d->hidden(i)) {
                    d->choose(i, true);
                    break;
                }
        } else {
            d->choose(d->stepFrom(dir, steps), true);
        }
        return true;
    }
    case Qt::Key_Enter:
    case Qt::Key_Return:
    case Qt::Key_Escape:
        d->endEdit(true);
        return true;
    default:
        return StringComboxBaseType::eventFilter(watched, event);
    }
}

} // namespace Widget
} // namespace LCD
