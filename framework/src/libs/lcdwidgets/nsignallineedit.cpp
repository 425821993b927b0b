#include "nsignallineedit.h"

#include "titlededitor_p.h"
#include "stylehelper.h"

#include <QDebug>
#include <QKeyEvent>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN NSignalLineEdit::Impl
{
    bool editOnFocus = true;
    bool editing = false;
};

NSignalLineEdit::NSignalLineEdit(QWidget* parent) : QLineEdit(parent), d(std::make_unique<Impl>())
{
    setProperty("isSignalLineEdit", true);
    setProperty("lineEditEditing", false);
    connect(this, &QLineEdit::textChanged, this, [this](QString const& text) {
        if (d->editing)
            emit signalTextEdited(text);
    });
}

NSignalLineEdit::~NSignalLineEdit() = default;

void NSignalLineEdit::setEditOnFocus(bool on) { d->editOnFocus = on; }
bool NSignalLineEdit::editOnFocus() const { return d->editOnFocus; }

void NSignalLineEdit::setTextMaxLength(int length)
{
    if (length < 1) {
        qWarning().noquote() << QStringLiteral("[NSignalLineEdit] setTextMaxLength: %1 is not a length, ignored").arg(length);
        return;
    }
    setMaxLength(length);
}

bool NSignalLineEdit::isEditing() const { return d->editing; }

void NSignalLineEdit::beginEdit()
{
    if (d->editing)
        return;
    d->editing = true;
    setStyleProperty(this, "lineEditEditing", true);
    emit signalEditStarted();
}

void NSignalLineEdit::startEdit()
{
    if (d->editing)
        return;
    if (!hasFocus()) {
        bool const onFocus = d->editOnFocus;
        d->editOnFocus = false; // the focus-in must not start a second edit
        setFocus(Qt::OtherFocusReason);
        d->editOnFocus = onFocus;
    }
    beginEdit();
}

void NSignalLineEdit::finishEdit()
{
    if (!d->editing)
        return;
    d->editing = false;
    setStyleProperty(this, "lineEditEditing", false);
    emit signalEditFinished(text());
    handFocusBack(this);
}

void NSignalLineEdit::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        if (d->editing)
            finishEdit();
        else
            beginEdit();
        return;
    case Qt::Key_Escape:
        if (!d->editing)
            break; // back goes to the page
        event->accept();
        finishEdit();
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (d->editing) {
            event->accept();
            return;
        }
        event->ignore();
        return;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
}

void NSignalLineEdit::keyReleaseEvent(QKeyEvent* event)
{
    if (isEditingKey(event->key()))
        event->accept();
    else
        QLineEdit::keyReleaseEvent(event);
}

void NSignalLineEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    emit signalFocusIn();
    if (d->editOnFocus)
        beginEdit();
}

void NSignalLineEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    finishEdit();
    emit signalFocusOut();
}

} // namespace Widget
} // namespace LCD
