#include "typedualint.h"

#include "nqduallineedit.h"
#include "spinrow_p.h"
#include "stylehelper.h"
#include "typeintadjust.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace LCD {
namespace Widget {

namespace {
constexpr int kEditorWidth = 70;
}

struct LCDWIDGETS_HIDDEN TypeDualInt::Impl
{
    NQDualLineEdit* editor = nullptr;
};

TypeDualInt::TypeDualInt(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    d->editor = new NQDualLineEdit(dynamicFrame());
    d->editor->setProperty("isCompomentsSpinBoxInput", true);
    d->editor->setFixedWidth(kEditorWidth);
    setStyleProperty(rightIconButton(), "isIconListEdit", true);
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->editor);

    connect(d->editor, &NQDualLineEdit::signalValueChanged, this,
            [this](QSize value) { emit signalValueChanged(QVariant(value)); });
    connect(d->editor, &NQDualLineEdit::signalEditFinished, this, [this] {
        returnFocusToParent(this);
        closeEditValue();
    });
}

TypeDualInt::~TypeDualInt() = default;

void TypeDualInt::setLabelValue(QVariant value, int)
{
    // QVariant has no text form of a QSize: take the size itself when it is one.
    if (value.type() == QVariant::Size)
        d->editor->setValue(value.toSize());
    else
        d->editor->setText(value.toString());
}

QVariant TypeDualInt::getLabelValue() { return QVariant(d->editor->value()); }

void TypeDualInt::editValue()
{
    if (!canEdit(d->editor))
        return;
    d->editor->setFocus(Qt::TabFocusReason);
    CommonItemType::editValue();
}

void TypeDualInt::setRange(int minimum, int maximum) { d->editor->setRange(minimum, maximum); }

void TypeDualInt::setSingleStep(float step)
{
    if (step >= 1.0f)
        d->editor->setSingleStep(truncateToInt(step));
}

void TypeDualInt::setContentDisabled(bool disabled) const { d->editor->setDisabled(disabled); }

NQDualLineEdit* TypeDualInt::editor() const { return d->editor; }

} // namespace Widget
} // namespace LCD
