#include "typeitemswitch.h"

#include "multiswitchwidget.h"
#include "spinrow_p.h"
#include "switchcontrol.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>

namespace LCD {
namespace Widget {

namespace {
// Until the host sizes it (setRightIconSize), a row's switch is 2 x 28 by 28.
constexpr int kDefaultSwitchHeight = 28;
} // namespace

struct TypeItemSwitch::Impl
{
    SwitchControl* control = nullptr;
    QLabel* label = nullptr;
};

TypeItemSwitch::TypeItemSwitch(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setRightIconButtonHide(true);
    d->control = new SwitchControl(dynamicFrame());
    d->control->setObjectName(QStringLiteral("switchControl"));
    d->control->setSwitchSize(QSize(2 * kDefaultSwitchHeight, kDefaultSwitchHeight));
    d->label = new QLabel(dynamicFrame());
    d->label->setProperty("isValueText", true);
    d->label->hide();
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->label);
    dynamicLayout()->addWidget(d->control);
    connect(d->control, &SwitchControl::toggled, this, &TypeItemSwitch::signalSwitchControlStatusChanged);
    connect(d->control, &SwitchControl::toggled, this, [this](bool checked) {
        emit signalEditFinished();
        emit signalValueChanged(QVariant(checked));
    });
}

TypeItemSwitch::~TypeItemSwitch() = default;

void TypeItemSwitch::setToggle(bool checked) { d->control->setToggle(checked); }

bool TypeItemSwitch::getToggle() { return d->control->isToggled(); }

void TypeItemSwitch::setLabelText(QString const& text)
{
    d->label->show();
    d->label->setText(text);
}

void TypeItemSwitch::setSwitchColor(QString const& color)
{
    QColor const c(color);
    if (!c.isValid()) {
        qDebug().noquote() << "TypeItemSwitch::setSwitchColor: invalid colour" << color;
        return;
    }
    d->control->setCheckedColor(c);
}

void TypeItemSwitch::editValue()
{
    // A disabled switch doesn't flip.
    if (!d->control->isEnabled())
        return;
    setToggle(!getToggle());
}

void TypeItemSwitch::setContentDisabled(bool disabled) const
{
    if (disabled) {
        d->control->setDisbaledColor(QColor(0, 191, 76));
        d->control->setThumbColor(QColor(153, 153, 153));
    } else {
        d->control->setBackgroundColor(QColor(QStringLiteral("#29FFFFFF")));
        d->control->setThumbColor(Qt::white);
    }
    d->control->setDisabled(disabled);
}

void TypeItemSwitch::setRightIconSize(QSize size)
{
    if (size.height() < 1 || size.height() > QWIDGETSIZE_MAX / 2) {
        qDebug().noquote().nospace() << "TypeItemSwitch::setRightIconSize: invalid size " << size.width() << "x"
                                     << size.height();
        return;
    }
    d->control->setSwitchSize(QSize(2 * size.height(), size.height()));
}

SwitchControl* TypeItemSwitch::switchControl() const { return d->control; }

// ---------------------------------------------------------------------------

struct TypeItemMultiSwitch::Impl
{
    MultiSwitchWidget* widget = nullptr;
};

TypeItemMultiSwitch::TypeItemMultiSwitch(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setRightIconButtonHide(true);
    setItemTitleLabelHide(true);
    d->widget = new MultiSwitchWidget(dynamicFrame());
    d->widget->setSwitchSize(QSize(2 * kDefaultSwitchHeight, kDefaultSwitchHeight));
    dynamicLayout()->addWidget(d->widget);
    connect(d->widget, &MultiSwitchWidget::signalValueChanged, this, &TypeItemMultiSwitch::signalMultiSwitchValueChanged);
    connect(d->widget, &MultiSwitchWidget::signalCloseEditStatus, this, [this] {
        returnFocusToParent(this);
        emit signalCloseEditStatus();
    });
}

TypeItemMultiSwitch::~TypeItemMultiSwitch() = default;

void TypeItemMultiSwitch::setCurrentValue(int index, int value) { d->widget->setCurrentData(index, value); }

int TypeItemMultiSwitch::getCurrentValue(int index) { return d->widget->getCurrentData(index) ? 1 : 0; }

void TypeItemMultiSwitch::setItemVisible(int index, bool visible) { d->widget->setItemVisible(index, visible); }

void TypeItemMultiSwitch::setSwitchColor(QString const& color) { d->widget->setSwitchColor(color); }

void TypeItemMultiSwitch::setTextData(QVector<QPair<QString, int>>& data) { d->widget->setTextData(data); }

void TypeItemMultiSwitch::editValue()
{
    if (!canEdit(d->widget))
        return;
    d->widget->setFocus(Qt::TabFocusReason);
    if (d->widget->visibleWidgetCount() < 2) {
        // A lone switch flips at once; the edit is over as soon as it began.
        d->widget->singleItemEnterPressed();
        CommonItemType::editValue();
        return;
    }
    CommonItemType::editValue();
    emit signalEditStarted();
}

void TypeItemMultiSwitch::setContentDisabled(bool disabled) const { d->widget->setContentDisabled(disabled); }

void TypeItemMultiSwitch::setRightIconSize(QSize size) { d->widget->setSwitchSize(size); }

void TypeItemMultiSwitch::setContentFontSize(int size)
{
    // The switches refuse (and log) a size below 1; the row follows them.
    d->widget->setContentFontSize(size);
    if (size >= 1)
        CommonItemType::setContentFontSize(size);
}

MultiSwitchWidget* TypeItemMultiSwitch::multiSwitchWidget() const { return d->widget; }

} // namespace Widget
} // namespace LCD
