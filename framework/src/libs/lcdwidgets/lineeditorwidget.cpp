#include "lineeditorwidget.h"
#include "inputcheck_p.h"

#include "nsignallineedit.h"
#include "qmlineedit.h"
#include "spinrow_p.h"
#include "titlededitor_p.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace LCD {
namespace Widget {

namespace {
constexpr int kDefaultEditorWidth = 200;
}

struct LCDWIDGETS_HIDDEN LineEditorWidget::Impl
{
    Kind kind = KnobText;
    QMLineEdit* knob = nullptr;
    NSignalLineEdit* pad = nullptr;
    QLineEdit* editor = nullptr;
    QLabel* unit = nullptr;
};

LineEditorWidget::LineEditorWidget(QWidget* parent, Kind kind) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    d->kind = kind == PadText ? PadText : KnobText;
    setRightIconButtonHide(true);
    if (d->kind == KnobText) {
        d->knob = new QMLineEdit(dynamicFrame());
        d->editor = d->knob;
        connect(d->knob, &QMLineEdit::signalEditStarted, this, [this] { emit signalEditStarted(); });
        connect(d->knob, &QMLineEdit::signalTextChanged, this,
                [this](QString const& text) { emit signalValueChanged(QVariant(text)); });
        connect(d->knob, &QMLineEdit::signalEditFinished, this, [this] { editEnded(); });
    } else {
        d->pad = new NSignalLineEdit(dynamicFrame());
        d->editor = d->pad;
        connect(d->pad, &NSignalLineEdit::signalEditStarted, this, [this] { emit signalEditStarted(); });
        connect(d->pad, &NSignalLineEdit::signalTextEdited, this,
                [this](QString const& text) { emit signalValueChanged(QVariant(text)); });
        connect(d->pad, &NSignalLineEdit::signalEditFinished, this, [this] { editEnded(); });
    }
    d->editor->setProperty("isItemLineEdit", true);
    d->editor->setFocusPolicy(Qt::ClickFocus);
    d->editor->setFixedWidth(kDefaultEditorWidth);
    d->unit = new QLabel(dynamicFrame());
    d->unit->setProperty("isLineEditUnit", true);
    d->unit->hide();
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->editor);
    dynamicLayout()->addWidget(d->unit);
}

LineEditorWidget::~LineEditorWidget() = default;

LineEditorWidget::Kind LineEditorWidget::kind() const { return d->kind; }
QLineEdit* LineEditorWidget::editor() const { return d->editor; }
QMLineEdit* LineEditorWidget::knobEditor() const { return d->knob; }
NSignalLineEdit* LineEditorWidget::padEditor() const { return d->pad; }

void LineEditorWidget::editEnded()
{
    returnFocusToParent(this);
    emit signalCloseEditStatus();
    emit signalEditFinished();
}

void LineEditorWidget::setLabelValue(QVariant value, int)
{
    if (!value.canConvert<QString>() || (value.type() != QVariant::String && value.toString().isNull())) {
        qWarning().noquote() << QStringLiteral("[LineEditorWidget] setLabelValue: value has no text form, ignored");
        return;
    }
    if (d->knob)
        d->knob->setValueText(value.toString());
    else
        d->pad->setText(value.toString());
}

QVariant LineEditorWidget::getLabelValue() { return QVariant(d->editor->text()); }

void LineEditorWidget::editValue()
{
    if (isEditorEditing() || !canEdit(d->editor))
        return;
    CommonItemType::editValue();
    if (d->pad)
        d->pad->startEdit();
    else
        d->editor->setFocus(Qt::OtherFocusReason);
}

void LineEditorWidget::closeEditValue()
{
    if (d->knob)
        d->knob->finishEdit();
    else
        d->pad->finishEdit();
    CommonItemType::closeEditValue();
}

bool LineEditorWidget::isEditorEditing() const { return d->knob ? d->knob->isEditing() : d->pad->isEditing(); }

void LineEditorWidget::setContentDisabled(bool disabled) const
{
    d->editor->setDisabled(disabled);
    d->unit->setDisabled(disabled);
}

void LineEditorWidget::setContentFontSize(int size)
{
    if (size <= 0) {
        qWarning().noquote() << QStringLiteral("[LineEditorWidget] setContentFontSize: %1 is not a size, ignored").arg(size);
        return;
    }
    if (!fontSizeOk("LineEditorWidget", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    for (QWidget* w : {static_cast<QWidget*>(d->editor), static_cast<QWidget*>(d->unit)}) {
        QFont f = w->font();
        f.setPixelSize(size);
        w->setFont(f);
    }
}

void LineEditorWidget::setTextMaxLength(int length)
{
    if (length < 1 || length > 32767) {
        qWarning().noquote() << QStringLiteral("[LineEditorWidget] setTextMaxLength: %1 is not a length, ignored").arg(length);
        return;
    }
    if (d->knob)
        d->knob->setTextMaxLength(length);
    else
        d->pad->setTextMaxLength(length);
}

void LineEditorWidget::setCharacterSet(QString const& characters)
{
    if (!d->knob) {
        qWarning().noquote()
            << QStringLiteral("[LineEditorWidget] setCharacterSet: a PadText row has no character set, ignored");
        return;
    }
    d->knob->setCharacterSet(characters);
}

void LineEditorWidget::setPlaceholder(QString const& text) { d->editor->setPlaceholderText(text); }

void LineEditorWidget::setUnit(QString const& unit) { setUnitText(d->unit, unit); }

QString LineEditorWidget::unit() const { return d->unit->text(); }

void LineEditorWidget::setEditorWidth(int width)
{
    if (width < 1 || width > QWIDGETSIZE_MAX) {
        qWarning().noquote() << QStringLiteral("[LineEditorWidget] setEditorWidth: %1 is not a width, ignored").arg(width);
        return;
    }
    d->editor->setFixedWidth(width);
}

} // namespace Widget
} // namespace LCD
