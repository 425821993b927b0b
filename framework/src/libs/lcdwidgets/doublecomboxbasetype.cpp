#include "doublecomboxbasetype.h"
#include "inputcheck_p.h"

#include "spinrow_p.h"

#include <QPointer>
#include <QApplication>
#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN DoubleComboxBaseType::Impl
{
    DoubleComboxBaseType* q;
    StringComboxBaseType* first = nullptr;
    StringComboxBaseType* second = nullptr;
    QLabel* separator = nullptr;
    int stage = 0;
    // signalCloseEditStatus seen from the open choice since it opened.
    bool backSeen = false;
    // signalEditStarted seen from the choice being opened.
    bool startSeen = false;

    explicit Impl(DoubleComboxBaseType* owner) : q(owner) {}

    bool open(StringComboxBaseType* choice, int which)
    {
        backSeen = false;
        startSeen = false;
        stage = which; // set first: the choice may end at once
        QPointer<DoubleComboxBaseType> const self(q);
        choice->editValue();
        if (!self)
            return false; // deleted while the choice opened (this Impl with it)
        if (startSeen)
            return true;
        stage = 0;
        return false;
    }

    void finish(bool back)
    {
        stage = 0;
        q->setEdit(false);
        QWidget* parent = q->parentWidget();
        QWidget* focus = QApplication::focusWidget();
        if (parent && (!focus || focus == q || q->isAncestorOf(focus)))
            parent->setFocus(Qt::OtherFocusReason);
        if (back)
            emit q->signalCloseEditStatus();
        emit q->signalEditFinished();
    }

    void choiceEnded(StringComboxBaseType* choice)
    {
        if ((choice == first && stage != 1) || (choice == second && stage != 2))
            return;
        bool const back = q->choiceWentBack(choice);
        if (!back && choice == first && open(second, 2))
            return;
        finish(back);
    }
};

DoubleComboxBaseType::DoubleComboxBaseType(QWidget* parent)
    : StringComboxBaseType(parent), d(std::make_unique<Impl>(this))
{
    setRightIconButtonHide(true);
}

DoubleComboxBaseType::~DoubleComboxBaseType() = default;

void DoubleComboxBaseType::setChoices(StringComboxBaseType* first, StringComboxBaseType* second)
{
    if (d->first || !first || !second || first == second) {
        qWarning("[DoubleComboxBaseType] setChoices: needs two distinct rows, once");
        return;
    }
    d->first = first;
    d->second = second;
    d->separator = new QLabel(dynamicFrame());
    d->separator->setProperty("isDoubleComboxSeparator", true);
    d->separator->hide();
    QHBoxLayout* layout = dynamicLayout();
    layout->setSpacing(4);
    layout->addStretch();
    for (StringComboxBaseType* c : {first, second}) {
        c->setItemTitleLabelHide(true);
        c->setRightIconButtonHide(true);
        c->removeUnderLine();
        c->setContentsMargins(0, 0, 0, 0);
        c->setProperty("isDoubleComboxPart", true);
        if (c->layout())
            c->layout()->setContentsMargins(0, 0, 0, 0);
        connect(c, &CommonItemType::signalCloseEditStatus, this, [this] { d->backSeen = true; });
        connect(c, &CommonItemType::signalEditStarted, this, [this] { d->startSeen = true; });
        connect(c, &CommonItemType::signalEditFinished, this, [this, c] { d->choiceEnded(c); });
    }
    layout->addWidget(first);
    layout->addWidget(d->separator);
    layout->addWidget(second);
    connect(first, &StringComboxBaseType::signalCurrentIndexChanged, this, &StringComboxBaseType::signalCurrentIndexChanged);
    connect(first, &StringComboxBaseType::signalCurrentTextChanged, this, &StringComboxBaseType::signalCurrentTextChanged);
    connect(first, &StringComboxBaseType::signalSelectedIndexChanged, this,
            &StringComboxBaseType::signalSelectedIndexChanged);
    connect(first, &StringComboxBaseType::signalSelectedChanged, this, &StringComboxBaseType::signalSelectedChanged);
    connect(first, &StringComboxBaseType::signalActivated, this, &StringComboxBaseType::signalActivated);
    connect(first, &StringComboxBaseType::signalShowPop, this, &StringComboxBaseType::signalShowPop);
    connect(second, &StringComboxBaseType::signalCurrentIndexChanged, this,
            &DoubleComboxBaseType::signalSecondCurrentIndexChanged);
    connect(second, &StringComboxBaseType::signalCurrentTextChanged, this,
            &DoubleComboxBaseType::signalSecondCurrentTextChanged);
    // After the choice's own signals.
    for (StringComboxBaseType* c : {first, second})
        connect(c, &StringComboxBaseType::signalCurrentIndexChanged, this, [this] { emitPairValue(); });
}

bool DoubleComboxBaseType::choiceWentBack(StringComboxBaseType*) const { return d->backSeen; }

void DoubleComboxBaseType::emitPairValue()
{
    if (!d->first)
        return;
    emit signalValueChanged(QVariantList{d->first->currentData(Qt::UserRole), d->second->currentData(Qt::UserRole)});
}

StringComboxBaseType* DoubleComboxBaseType::firstChoice() const { return d->first; }
StringComboxBaseType* DoubleComboxBaseType::secondChoice() const { return d->second; }

// The list interface goes to the first choice.
void DoubleComboxBaseType::addItem(QString const& text, QVariant const& userData) { d->first->addItem(text, userData); }
void DoubleComboxBaseType::removeItem(int index) { d->first->removeItem(index); }
void DoubleComboxBaseType::insertItem(int index, QString const& text, QVariant const& userData)
{
    d->first->insertItem(index, text, userData);
}
int DoubleComboxBaseType::currentIndex() const { return d->first->currentIndex(); }
QString DoubleComboxBaseType::currentText() const { return d->first->currentText(); }
QVariant DoubleComboxBaseType::currentData(int role) const { return d->first->currentData(role); }
void DoubleComboxBaseType::setCurrentIndex(int index) { d->first->setCurrentIndex(index); }
void DoubleComboxBaseType::setCurrentUserData(QVariant data) { d->first->setCurrentUserData(std::move(data)); }
void DoubleComboxBaseType::setCurrentText(QString text) { d->first->setCurrentText(std::move(text)); }
void DoubleComboxBaseType::setItemText(int index, QString const& text) { d->first->setItemText(index, text); }
QString DoubleComboxBaseType::itemText(int index) const { return d->first->itemText(index); }
void DoubleComboxBaseType::updateItems(std::list<std::pair<int, QString>>& items) { d->first->updateItems(items); }
void DoubleComboxBaseType::clear() { d->first->clear(); }
int DoubleComboxBaseType::count() const { return d->first->count(); }
int DoubleComboxBaseType::findText(QString const& text) const { return d->first->findText(text); }
int DoubleComboxBaseType::findData(QVariant const& data, int role) const { return d->first->findData(data, role); }
QVariant DoubleComboxBaseType::itemData(int index, int role) const { return d->first->itemData(index, role); }
void DoubleComboxBaseType::setItemData(int index, QVariant value, int role)
{
    d->first->setItemData(index, std::move(value), role);
}
void DoubleComboxBaseType::setRowHidden(int index, bool hidden) { d->first->setRowHidden(index, hidden); }

void DoubleComboxBaseType::setHomeFramePoint(QPoint point)
{
    d->first->setHomeFramePoint(point);
    d->second->setHomeFramePoint(point);
}

void DoubleComboxBaseType::setEditable(bool editable)
{
    d->first->setEditable(editable);
    d->second->setEditable(editable);
}

void DoubleComboxBaseType::addSecondItem(QString const& text, QVariant const& userData)
{
    d->second->addItem(text, userData);
}
int DoubleComboxBaseType::secondCurrentIndex() const { return d->second->currentIndex(); }
QString DoubleComboxBaseType::secondCurrentText() const { return d->second->currentText(); }
QVariant DoubleComboxBaseType::secondCurrentData(int role) const { return d->second->currentData(role); }
void DoubleComboxBaseType::setSecondCurrentIndex(int index) { d->second->setCurrentIndex(index); }
void DoubleComboxBaseType::setSecondCurrentText(QString const& text) { d->second->setCurrentText(text); }
int DoubleComboxBaseType::secondCount() const { return d->second->count(); }

void DoubleComboxBaseType::editValue()
{
    if (!d->first || d->stage != 0)
        return;
    QPointer<DoubleComboxBaseType> const self(this);
    bool opened = d->open(d->first, 1);
    if (!self)
        return;
    if (!opened) {
        opened = d->open(d->second, 2);
        if (!self)
            return;
    }
    if (opened) {
        setEdit(true);
        emit signalEditStarted();
        return;
    }
    qDebug().noquote() << QStringLiteral("[%1] %2: nothing to choose from")
                              .arg(QString::fromLatin1(metaObject()->className()).section(QStringLiteral("::"), -1), itemTitle());
}

void DoubleComboxBaseType::closeEditValue()
{
    if (d->first && d->stage != 0) {
        int const stage = d->stage;
        d->stage = 0; // the choice's own end of edit must not open the next one
        (stage == 1 ? d->first : d->second)->closeEditValue();
        setEdit(false);
        returnFocusToParent(this);
    }
    CommonItemType::closeEditValue();
}

void DoubleComboxBaseType::setContentFontSize(int size)
{
    if (size < 1) {
        qDebug() << "[DoubleComboxBaseType] setContentFontSize: font size must be positive, got" << size;
        return;
    }
    if (!fontSizeOk("DoubleComboxBaseType", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    if (!d->first)
        return;
    d->first->setContentFontSize(size);
    d->second->setContentFontSize(size);
    QFont f = d->separator->font();
    f.setPixelSize(size);
    d->separator->setFont(f);
}

void DoubleComboxBaseType::setContentDisabled(bool disabled) const
{
    if (!d->first)
        return;
    d->first->setContentDisabled(disabled);
    d->second->setContentDisabled(disabled);
    d->separator->setDisabled(disabled);
}

void DoubleComboxBaseType::setHomeRect(QRect rect)
{
    CommonItemType::setHomeRect(rect);
    if (!d->first)
        return;
    d->first->setHomeRect(rect);
    d->second->setHomeRect(rect);
}

void DoubleComboxBaseType::setSeparatorText(QString const& text)
{
    if (!d->first)
        return;
    d->separator->setText(text);
    d->separator->setVisible(!text.isEmpty());
}

int DoubleComboxBaseType::editStage() const { return d->stage; }

} // namespace Widget
} // namespace LCD
