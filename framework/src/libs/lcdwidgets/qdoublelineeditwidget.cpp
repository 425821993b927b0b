#include "qdoublelineeditwidget.h"

#include "ndoublelineedit.h"
#include "titlededitor_p.h"

#include <QLabel>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN QDoubleLineEditWidget::Impl
{
    NDoubleLineEdit* editor = nullptr;
    QLabel* title = nullptr;
    QLabel* unit = nullptr;
};

QDoubleLineEditWidget::QDoubleLineEditWidget(QString const& title, QString const& unit, QWidget* parent)
    : QFrame(parent), d(std::make_unique<Impl>())
{
    d->editor = new NDoubleLineEdit(this);
    buildTitledEditor(this, d->editor, d->title, d->unit);
    d->title->setText(title);
    setUnitText(d->unit, unit);
    connect(d->editor, &NDoubleLineEdit::signalValueChanged, this, &QDoubleLineEditWidget::signalValueChanged);
    connect(d->editor, &NDoubleLineEdit::signalEditStarted, this, &QDoubleLineEditWidget::signalEditStarted);
    connect(d->editor, &NDoubleLineEdit::signalEditFinished, this, &QDoubleLineEditWidget::signalEditFinished);
}

QDoubleLineEditWidget::~QDoubleLineEditWidget()
{
    // The editor ends a running edit when it loses the focus while the children go:
    // its signals must no longer reach this (by then only a QFrame).
    d->editor->disconnect(this);
}

NDoubleLineEdit* QDoubleLineEditWidget::editor() const { return d->editor; }
void QDoubleLineEditWidget::setTitle(QString const& title) { d->title->setText(title); }
QString QDoubleLineEditWidget::title() const { return d->title->text(); }
void QDoubleLineEditWidget::setUnit(QString const& unit) { setUnitText(d->unit, unit); }
QString QDoubleLineEditWidget::unit() const { return d->unit->text(); }
void QDoubleLineEditWidget::setRange(double minimum, double maximum) { d->editor->setRange(minimum, maximum); }
void QDoubleLineEditWidget::setDecimals(int decimals) { d->editor->setDecimals(decimals); }
void QDoubleLineEditWidget::setSingleStep(double step) { d->editor->setSingleStep(step); }
void QDoubleLineEditWidget::setValue(double value) { d->editor->setValue(value); }
double QDoubleLineEditWidget::value() const { return d->editor->value(); }
void QDoubleLineEditWidget::startEdit() { d->editor->setFocus(Qt::OtherFocusReason); }

} // namespace Widget
} // namespace LCD
