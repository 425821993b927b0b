#include "multiplespinbox.h"
#include "inputcheck_p.h"

#include "lcdspinbox.h"
#include "spinrow_p.h"
#include "stylehelper.h"

#include <QApplication>
#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

// ===========================================================================
// MultipleSpinBoxItem

struct LCDWIDGETS_HIDDEN MultipleSpinBoxItem::Impl
{
    QLabel* title = nullptr;
    NQSpinBox* spinBox = nullptr;
    int fontSize = 20;
    bool current = false;
};

MultipleSpinBoxItem::MultipleSpinBoxItem(QString const& title, SuffixType suffix, QWidget* parent)
    : QFrame(parent), d(std::make_unique<Impl>())
{
    setProperty("isMultipleSpinBoxItem", true);
    setProperty("multipleItemCurrent", false);
    d->title = new QLabel(title, this);
    d->title->setProperty("isMultipleSpinBoxTitle", true);
    d->spinBox = new NQSpinBox(suffix, QuitKeepValue, 0, this);
    d->spinBox->setProperty("isMultipleSpinBox", true);
    d->spinBox->setFocusPolicy(Qt::ClickFocus);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 0, 6, 0);
    layout->setSpacing(8);
    layout->addWidget(d->title, 1);
    layout->addWidget(d->spinBox);
    setFontSize(d->fontSize);
}

MultipleSpinBoxItem::~MultipleSpinBoxItem() = default;

QString MultipleSpinBoxItem::title() const { return d->title->text(); }
void MultipleSpinBoxItem::setTitle(QString const& title) { d->title->setText(title); }
NQSpinBox* MultipleSpinBoxItem::spinBox() const { return d->spinBox; }
QLabel* MultipleSpinBoxItem::titleLabel() const { return d->title; }

void MultipleSpinBoxItem::setRange(int minimum, int maximum)
{
    bool const blocked = d->spinBox->blockSignals(true);
    d->spinBox->setRange(minimum, maximum);
    d->spinBox->blockSignals(blocked);
    // Room for the longer bound and the suffix.
    d->spinBox->setFixedWidth(intSpinBoxWidth(minimum, maximum, d->fontSize) + d->fontSize / 2);
}

void MultipleSpinBoxItem::setSingleStep(int step) { d->spinBox->setSingleStep(step); }

void MultipleSpinBoxItem::setValue(int value)
{
    d->spinBox->setValueByManual(qBound(d->spinBox->minimum(), value, d->spinBox->maximum()));
}

int MultipleSpinBoxItem::value() const { return d->spinBox->value(); }

void MultipleSpinBoxItem::setCurrent(bool current)
{
    if (current == d->current)
        return;
    d->current = current;
    setStyleProperty(this, "multipleItemCurrent", current);
}

bool MultipleSpinBoxItem::isCurrent() const { return d->current; }

void MultipleSpinBoxItem::setFontSize(int size)
{
    if (!fontSizeOk("MultipleSpinBoxItem", "setFontSize", size))
        return;
    d->fontSize = size;
    for (QWidget* w : {static_cast<QWidget*>(d->title), static_cast<QWidget*>(d->spinBox)}) {
        QFont f = w->font();
        f.setPixelSize(size);
        w->setFont(f);
    }
    d->spinBox->setFixedWidth(intSpinBoxWidth(d->spinBox->minimum(), d->spinBox->maximum(), size) + size / 2);
}

// ===========================================================================
// MultipleSpinBox

struct LCDWIDGETS_HIDDEN MultipleSpinBox::Impl
{
    QWidget* list = nullptr;
    QVBoxLayout* listLayout = nullptr;
    QList<MultipleSpinBoxItem*> items;
    int current = -1;
    bool walking = false;
    bool itemEditing = false;
};

MultipleSpinBox::MultipleSpinBox(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setRightIconButtonHide(true);
    d->list = new QWidget(dynamicFrame());
    d->listLayout = new QVBoxLayout(d->list);
    d->listLayout->setContentsMargins(0, 2, 0, 2);
    d->listLayout->setSpacing(2);
    dynamicLayout()->addWidget(d->list, 1);
}

MultipleSpinBox::~MultipleSpinBox() = default;

MultipleSpinBoxItem* MultipleSpinBox::addItem(QString const& title, int minimum, int maximum, int step, int value,
                                              SuffixType suffix)
{
    if (minimum > maximum) {
        qWarning().noquote()
            << QStringLiteral("[MultipleSpinBox] addItem: %1..%2 is not a range, refused").arg(minimum).arg(maximum);
        return nullptr;
    }
    qint64 const span = qint64(maximum) - minimum;
    if (step <= 0 || step > qMax<qint64>(span, 1)) {
        qWarning().noquote() << QStringLiteral("[MultipleSpinBox] addItem: %1 is not a step of %2..%3, 1 used")
                                    .arg(step)
                                    .arg(minimum)
                                    .arg(maximum);
        step = 1;
    }
    auto* item = new MultipleSpinBoxItem(title, suffix, d->list);
    item->setFontSize(contentFontSize());
    item->setRange(minimum, maximum);
    item->setSingleStep(step);
    item->setValue(value);
    item->spinBox()->installEventFilter(this);
    item->setEnabled(getContentEnabled());
    int const index = d->items.size();
    connect(item->spinBox(), QOverload<int>::of(&QSpinBox::valueChanged), this, [this, index](int v) {
        emit signalSpinBoxValueChanged(index, QVariant(v));
        emit signalValueChanged(QVariant(valueList()));
    });
    d->items.append(item);
    d->listLayout->addWidget(item);
    return item;
}

void MultipleSpinBox::clear()
{
    if (d->walking)
        endEdit();
    qDeleteAll(d->items);
    d->items.clear();
}

int MultipleSpinBox::count() const { return d->items.size(); }

bool MultipleSpinBox::checkIndex(int index, char const* function) const
{
    if (index >= 0 && index < d->items.size())
        return true;
    qWarning().noquote() << QStringLiteral("[MultipleSpinBox] %1: index %2 is outside 0..%3")
                                .arg(QLatin1String(function))
                                .arg(index)
                                .arg(d->items.size() - 1);
    return false;
}

MultipleSpinBoxItem* MultipleSpinBox::item(int index) const
{
    return checkIndex(index, "item") ? d->items.at(index) : nullptr;
}

void MultipleSpinBox::setValue(int index, int value)
{
    if (checkIndex(index, "setValue"))
        d->items.at(index)->setValue(value);
}

int MultipleSpinBox::value(int index) const { return checkIndex(index, "value") ? d->items.at(index)->value() : 0; }

QVariantList MultipleSpinBox::valueList() const
{
    QVariantList list;
    for (MultipleSpinBoxItem* item : d->items)
        list.append(item->value());
    return list;
}

void MultipleSpinBox::setLabelValue(QVariant value, int)
{
    QVariantList const list = value.toList();
    if (list.size() != d->items.size()) {
        qWarning().noquote() << QStringLiteral("[MultipleSpinBox] setLabelValue: %1 values for %2 items, ignored")
                                    .arg(list.size())
                                    .arg(d->items.size());
        return;
    }
    for (int i = 0; i < list.size(); ++i)
        d->items.at(i)->setValue(list.at(i).toInt());
}

QVariant MultipleSpinBox::getLabelValue() { return QVariant(valueList()); }

void MultipleSpinBox::setCurrent(int index)
{
    if (d->current >= 0 && d->current < d->items.size())
        d->items.at(d->current)->setCurrent(false);
    d->current = index;
    if (index >= 0 && index < d->items.size())
        d->items.at(index)->setCurrent(true);
}

void MultipleSpinBox::editValue()
{
    QWidget* focus = QApplication::focusWidget();
    if (d->walking && focus && (focus == this || isAncestorOf(focus)))
        return;
    // An edit whose focus was taken away starts afresh.
    d->walking = false;
    d->itemEditing = false;
    if (d->items.isEmpty()) {
        qWarning().noquote() << QStringLiteral("[MultipleSpinBox] editValue: no items");
        return;
    }
    if (!canEdit(d->list))
        return;
    d->walking = true;
    setCurrent(0);
    setFocus(Qt::OtherFocusReason);
    CommonItemType::editValue();
    emit signalEditStarted();
}

void MultipleSpinBox::closeEditValue()
{
    endEdit();
    CommonItemType::closeEditValue();
}

void MultipleSpinBox::endItemEdit()
{
    if (!d->itemEditing)
        return;
    d->itemEditing = false;
    setFocus(Qt::OtherFocusReason);
}

void MultipleSpinBox::endEdit()
{
    if (!d->walking)
        return;
    d->walking = false;
    d->itemEditing = false;
    setCurrent(-1);
    if (parentWidget())
        returnFocusToParent(this);
    else
        clearFocus();
    emit signalCloseEditStatus();
    emit signalEditFinished();
}

void MultipleSpinBox::keyPressEvent(QKeyEvent* event)
{
    if (!d->walking) {
        CommonItemType::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
        // Down walks down the list, as on the page.
        int const next = qBound(0, d->current + (event->key() == Qt::Key_Down ? 1 : -1), d->items.size() - 1);
        setCurrent(next);
        break;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        NQSpinBox* box = d->items.at(d->current)->spinBox();
        if (box->isEnabled()) {
            d->itemEditing = true;
            box->setFocus(Qt::TabFocusReason);
        }
        break;
    }
    case Qt::Key_Escape:
        endEdit();
        break;
    default:
        CommonItemType::keyPressEvent(event);
        return;
    }
    event->accept();
}

void MultipleSpinBox::keyReleaseEvent(QKeyEvent* event)
{
    if (d->walking)
        event->accept();
    else
        CommonItemType::keyReleaseEvent(event);
}

bool MultipleSpinBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return CommonItemType::eventFilter(watched, event);
    int const key = static_cast<QKeyEvent*>(event)->key();
    bool const ours = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape;
    if (event->type() == QEvent::KeyRelease)
        return ours || key == Qt::Key_Up || key == Qt::Key_Down;
    if (ours) {
        endItemEdit();
        return true;
    }
    return false;
}

void MultipleSpinBox::setContentDisabled(bool disabled) const
{
    for (MultipleSpinBoxItem* item : d->items)
        item->setEnabled(!disabled);
}

void MultipleSpinBox::setContentFontSize(int size)
{
    if (size <= 0) {
        qWarning().noquote() << QStringLiteral("[MultipleSpinBox] setContentFontSize: %1 is not a size, ignored").arg(size);
        return;
    }
    if (!fontSizeOk("MultipleSpinBox", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    for (MultipleSpinBoxItem* item : d->items)
        item->setFontSize(size);
}

int MultipleSpinBox::currentIndex() const { return d->walking ? d->current : -1; }

bool MultipleSpinBox::isItemEditing() const { return d->itemEditing; }

} // namespace Widget
} // namespace LCD
