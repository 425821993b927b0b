#include "typeitemmultibtn.h"

#include "multibtncontrol.h"
#include "spinrow_p.h"

#include <QHBoxLayout>

namespace LCD {
namespace Widget {

struct TypeItemMultiBtn::Impl
{
    MultiBtnControl* control = nullptr;
};

TypeItemMultiBtn::TypeItemMultiBtn(QWidget* parent) : StringComboxBaseType(parent), d(std::make_unique<Impl>())
{
    createWidget();
    createConnects();
}

TypeItemMultiBtn::~TypeItemMultiBtn() = default;

void TypeItemMultiBtn::createWidget()
{
    setRightIconButtonHide(true);
    d->control = new MultiBtnControl(dynamicFrame());
    dynamicLayout()->setContentsMargins(0, 6, 0, 6);
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->control);
}

void TypeItemMultiBtn::createConnects()
{
    connect(d->control, &MultiBtnControl::signalValueChanged, this,
            [this](int value) { emit signalMultiBtnValueChanged(QVariant(value)); });
    connect(d->control, &MultiBtnControl::signalTextChanged, this, &StringComboxBaseType::signalCurrentTextChanged);
    connect(d->control, &MultiBtnControl::signalIndexChanged, this, &StringComboxBaseType::signalCurrentIndexChanged);
    connect(d->control, &MultiBtnControl::signalCloseEditStatus, this, [this] {
        returnFocusToParent(this);
        emit signalCloseEditStatus();
        emit signalEditFinished();
    });
}

void TypeItemMultiBtn::addItem(QString const& text, QVariant const& userData) { d->control->addBtnData(text, userData); }

void TypeItemMultiBtn::addItem(QIcon const& icon, QString const& text, QVariant const& userData)
{
    d->control->addBtnData(icon, text, userData);
}

void TypeItemMultiBtn::addItem(QIcon const& icon, QPointF iconPos, QString const& text, QVariant const& userData)
{
    d->control->addBtnData(icon, iconPos, text, userData);
}

void TypeItemMultiBtn::insertItem(int index, QString const& text, QVariant const& userData)
{
    d->control->insertBtnData(index, text, userData);
}

void TypeItemMultiBtn::insertItem(int index, QIcon const& icon, QString const& text, QVariant const& userData)
{
    d->control->insertBtnData(index, icon, text, userData);
}

void TypeItemMultiBtn::removeItem(int index) { d->control->removeBtnData(index); }

void TypeItemMultiBtn::clear() { d->control->removeAllBtnData(); }

int TypeItemMultiBtn::count() const { return d->control->count(); }

int TypeItemMultiBtn::currentIndex() const { return d->control->getCurrentIndex(); }

void TypeItemMultiBtn::setCurrentIndex(int index) { d->control->setCurrentIndex(index); }

QString TypeItemMultiBtn::currentText() const { return d->control->getCurrentText(); }

void TypeItemMultiBtn::setCurrentText(QString text) { d->control->setCurrentText(text); }

QVariant TypeItemMultiBtn::currentData(int role) const { return d->control->getCurrentData(role); }

void TypeItemMultiBtn::setCurrentData(int value) { d->control->setCurrentData(value); }

void TypeItemMultiBtn::setCurrentUserData(QVariant data) { d->control->setCurrentUserData(data); }

int TypeItemMultiBtn::findData(QVariant const& data, int role) const { return d->control->findData(data, role); }

QVariant TypeItemMultiBtn::itemData(int index, int role) const { return d->control->btnData(index, role); }

void TypeItemMultiBtn::updateItems(std::list<std::pair<int, QString>>& items) { d->control->updateBtns(items); }

int TypeItemMultiBtn::findText(QString const&) const { return 0; }

QString TypeItemMultiBtn::itemText(int) const { return QString(); }

void TypeItemMultiBtn::setItemText(int, QString const&) {}

void TypeItemMultiBtn::setItemData(int, QVariant, int) {}

void TypeItemMultiBtn::setBtnText(QVector<QPair<QString, int>> const& data) { d->control->setBtnData(data); }

void TypeItemMultiBtn::setBtnIcon(QVector<QPair<QIcon, QPair<QString, int>>> const& data)
{
    d->control->setBtnData(data);
}

void TypeItemMultiBtn::setBtnVisible(int value, bool visible) { d->control->setBtnVisible(value, visible); }

void TypeItemMultiBtn::setContentDisabled(bool disabled) const { d->control->setContentDisabled(disabled); }

void TypeItemMultiBtn::setContentFontSize(int size)
{
    // The buttons refuse (and log) a size below 1; the row follows them.
    d->control->setContentFontSize(size);
    if (size >= 1)
        CommonItemType::setContentFontSize(size);
}

void TypeItemMultiBtn::editValue()
{
    if (!canEdit(d->control))
        return;
    d->control->setFocus(Qt::TabFocusReason);
    CommonItemType::editValue();
    emit signalEditStarted();
}

MultiBtnControl* TypeItemMultiBtn::multiBtnControl() const { return d->control; }

} // namespace Widget
} // namespace LCD
