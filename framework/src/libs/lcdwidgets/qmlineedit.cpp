#include "qmlineedit.h"

#include "knoblevel.h"
#include "titlededitor_p.h"
#include "stylehelper.h"

#include <QDebug>
#include <QKeyEvent>
#include <cmath>

namespace LCD {
namespace Widget {

namespace {
constexpr int kDefaultMaxLength = 16;
constexpr int kLongestText = 32767; // QLineEdit's own limit
} // namespace

struct LCDWIDGETS_HIDDEN QMLineEdit::Impl
{
    QString characters = QMLineEdit::defaultCharacterSet();
    int position = -1;
    bool editing = false;
};

QMLineEdit::QMLineEdit(QWidget* parent) : QLineEdit(parent), d(std::make_unique<Impl>())
{
    setMaxLength(kDefaultMaxLength);
    setProperty("isKnobLineEdit", true);
    setProperty("lineEditEditing", false);
    connect(this, &QLineEdit::textEdited, this, [this](QString const& text) { emit signalTextChanged(text); });
}

QMLineEdit::~QMLineEdit() = default;

QString QMLineEdit::defaultCharacterSet()
{
    return QStringLiteral(" ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.");
}

void QMLineEdit::setCharacterSet(QString const& characters)
{
    QString unique;
    for (QChar c : characters)
        if (!unique.contains(c))
            unique.append(c);
    if (unique.isEmpty()) {
        qWarning().noquote() << QStringLiteral("[QMLineEdit] setCharacterSet: empty character set, ignored");
        return;
    }
    d->characters = unique;
}

QString QMLineEdit::characterSet() const { return d->characters; }

void QMLineEdit::setTextMaxLength(int length)
{
    if (length < 1 || length > kLongestText) {
        qWarning().noquote() << QStringLiteral("[QMLineEdit] setTextMaxLength: %1 is not a length, ignored").arg(length);
        return;
    }
    setMaxLength(length);
    if (d->position >= length)
        d->position = length - 1;
}

int QMLineEdit::textMaxLength() const { return maxLength(); }

void QMLineEdit::setValueText(QString const& text)
{
    if (text.size() > maxLength())
        qWarning().noquote()
            << QStringLiteral("[QMLineEdit] setValueText: text longer than %1 characters, cut").arg(maxLength());
    setText(text.left(maxLength()));
    if (d->editing) {
        d->position = qMin(d->position, qMin(text.size(), maxLength() - 1));
        markPosition();
    }
}

int QMLineEdit::editPosition() const { return d->editing ? d->position : -1; }

bool QMLineEdit::isEditing() const { return d->editing; }

void QMLineEdit::markPosition()
{
    // The character at the position is shown selected; after the text, the cursor.
    if (d->position < text().size())
        setSelection(d->position, 1);
    else
        setCursorPosition(d->position);
}

void QMLineEdit::turn(bool up, float level)
{
    int const n = d->characters.size();
    // Level 1 (or less) is one character; faster turns skip, at most one round.
    float const magnitude = std::fabs(level);
    int const skip = magnitude <= 1.0f ? 1 : static_cast<int>(qMin(magnitude, static_cast<float>(n)));
    QString t = text();
    int const p = qBound(0, d->position, qMin(t.size(), maxLength() - 1));
    d->position = p;
    int index = p < t.size() ? d->characters.indexOf(t.at(p)) : -1;
    if (index < 0)
        index = up ? skip - 1 : n - skip;
    else
        index = up ? (index + skip) % n : ((index - skip) % n + n) % n;
    QChar const c = d->characters.at(index);
    if (p < t.size()) {
        if (t.at(p) == c) {
            markPosition();
            return; // a set of one character: nothing changes
        }
        t[p] = c;
    } else {
        t.append(c);
    }
    setText(t);
    markPosition();
    emit signalTextChanged(t);
}

void QMLineEdit::moveOn()
{
    int const next = d->position + 1;
    if (d->position >= text().size() || next >= maxLength()) {
        finishEdit();
        return;
    }
    d->position = next;
    markPosition();
}

void QMLineEdit::finishEdit()
{
    if (!d->editing)
        return;
    d->editing = false;
    d->position = -1;
    deselect();
    setStyleProperty(this, "lineEditEditing", false);
    emit signalEditFinished(text());
    handFocusBack(this);
}

void QMLineEdit::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        event->accept();
        if (d->editing)
            turn(event->key() == Qt::Key_Up, knobLevel(event));
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        if (d->editing)
            moveOn();
        return;
    case Qt::Key_Escape:
        if (!d->editing) {
            event->ignore(); // back goes to the page
            return;
        }
        event->accept();
        finishEdit();
        return;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
    if (d->editing)
        d->position = qBound(0, cursorPosition(), qMax(0, maxLength() - 1));
}

void QMLineEdit::keyReleaseEvent(QKeyEvent* event)
{
    if (isEditingKey(event->key()))
        event->accept();
    else
        QLineEdit::keyReleaseEvent(event);
}

void QMLineEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (d->editing)
        return;
    d->editing = true;
    d->position = 0;
    markPosition();
    setStyleProperty(this, "lineEditEditing", true);
    emit signalEditStarted();
}

void QMLineEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    finishEdit();
}

} // namespace Widget
} // namespace LCD
