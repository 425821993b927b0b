#include "qsignallineeditwidget.h"

#include "nsignallineedit.h"
#include "titlededitor_p.h"

#include <QLabel>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN QSignalLineEditWidget::Impl
{
    NSignalLineEdit* editor = nullptr;
    QLabel* title = nullptr;
    QLabel* unit = nullptr;
};

QSignalLineEditWidget::QSignalLineEditWidget(QString const& title, QString const& unit, QWidget* parent)
    : QFrame(parent), d(std::make_unique<Impl>())
{
    d->editor = new NSignalLineEdit(this);
    buildTitledEditor(this, d->editor, d->title, d->unit);
    d->title->setText(title);
    setUnitText(d->unit, unit);
    connect(d->editor, &NSignalLineEdit::signalEditStarted, this, &QSignalLineEditWidget::signalEditStarted);
    connect(d->editor, &NSignalLineEdit::signalTextEdited, this, &QSignalLineEditWidget::signalTextEdited);
    connect(d->editor, &NSignalLineEdit::signalEditFinished, this, &QSignalLineEditWidget::signalEditFinished);
}

QSignalLineEditWidget::~QSignalLineEditWidget()
{
    // The editor ends a running edit when it loses the focus while the children go:
    // its signals must no longer reach this (by then only a QFrame).
    d->editor->disconnect(this);
}

NSignalLineEdit* QSignalLineEditWidget::editor() const { return d->editor; }
void QSignalLineEditWidget::setTitle(QString const& title) { d->title->setText(title); }
QString QSignalLineEditWidget::title() const { return d->title->text(); }
void QSignalLineEditWidget::setUnit(QString const& unit) { setUnitText(d->unit, unit); }
QString QSignalLineEditWidget::unit() const { return d->unit->text(); }
void QSignalLineEditWidget::setText(QString const& text) { d->editor->setText(text); }
QString QSignalLineEditWidget::text() const { return d->editor->text(); }
void QSignalLineEditWidget::startEdit() { d->editor->startEdit(); }

} // namespace Widget
} // namespace LCD
