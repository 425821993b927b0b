#include "ipedit.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRegExpValidator>
#include <QTimer>

namespace LCD {
namespace Widget {

namespace {
constexpr int kMaxOctet = 255;
} // namespace

IPEdit::IPEdit(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("focusFrame"));
    setProperty("borderRadius", QStringLiteral("px_4"));
    setAttribute(Qt::WA_StyledBackground);
    setFocusPolicy(Qt::StrongFocus);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 1, 0, 1);
    layout->setSpacing(4);

    auto* validator = new QRegExpValidator(QRegExp(QStringLiteral("^[0-9]{0,3}$")), this);
    for (int i = 0; i < 4; ++i) {
        auto* f = new QLineEdit(this);
        f->setValidator(validator);
        f->setMaxLength(3);
        f->setProperty("borderWidth", QStringLiteral("px_0"));
        f->setProperty("background", QStringLiteral("transparent"));
        f->setAlignment(Qt::AlignCenter);
        f->setFrame(false);
        f->setAttribute(Qt::WA_MacShowFocusRect, false);
        f->installEventFilter(this);
        connect(f, &QLineEdit::textChanged, this, &IPEdit::onTextChanged);
        m_fields[i] = f;
        layout->addWidget(f);
        if (i < 3) {
            auto* dot = new QLabel(QStringLiteral("."), this);
            dot->setAlignment(Qt::AlignCenter);
            dot->setFixedWidth(4);
            dot->setProperty("isIpEditDot", true);
            m_dots[i] = dot;
            layout->addWidget(dot);
        }
    }
    layout->addStretch();
}

IPEdit::~IPEdit() = default;

QString IPEdit::ipText() const
{
    QStringList parts;
    for (QLineEdit* f : m_fields) {
        QString const t = f->text().trimmed();
        parts << (t.isEmpty() ? QStringLiteral("0") : t);
    }
    return parts.join(QLatin1Char('.'));
}

void IPEdit::setIpText(QString const& text) const
{
    QStringList const parts = text.split(QLatin1Char('.'), Qt::KeepEmptyParts);
    if (parts.size() != 4)
        return;
    for (int i = 0; i < 4; ++i) {
        bool ok = false;
        int const v = parts.at(i).trimmed().toInt(&ok);
        if (ok && v >= 0 && v <= kMaxOctet)
            m_fields[i]->setText(QString::number(v));
        else
            m_fields[i]->clear();
    }
}

void IPEdit::clearText() const
{
    for (QLineEdit* f : m_fields)
        f->clear();
}

bool IPEdit::hasEditingFocus() const { return indexOf(QApplication::focusWidget()) >= 0; }

void IPEdit::setEnterSwitchEidt(bool on) { m_enterSwitch = on; }

bool IPEdit::isEnterSwitchEidt() const { return m_enterSwitch; }

QLineEdit* IPEdit::field(int index) const { return index >= 0 && index < 4 ? m_fields[index] : nullptr; }

int IPEdit::indexOf(QObject* field) const
{
    if (!field)
        return -1;
    for (int i = 0; i < 4; ++i)
        if (m_fields[i] == field)
            return i;
    return -1;
}

void IPEdit::focusField(int index) const
{
    if (index < 0 || index > 3)
        return;
    m_fields[index]->setFocus(Qt::OtherFocusReason);
    m_fields[index]->selectAll();
}

void IPEdit::leaveFields()
{
    if (QWidget* f = QApplication::focusWidget(); indexOf(f) >= 0)
        f->clearFocus();
    setFocus(Qt::OtherFocusReason);
}

void IPEdit::onTextChanged()
{
    auto* f = qobject_cast<QLineEdit*>(sender());
    if (indexOf(f) < 0)
        return;
    QString const text = f->text();
    if (text.isEmpty())
        return;
    bool ok = false;
    int const v = text.trimmed().toInt(&ok);
    if (!ok)
        return;
    if (v > kMaxOctet)
        f->setText(QString::number(kMaxOctet));
    else if (v < 0)
        f->clear();
}

bool IPEdit::eventFilter(QObject* watched, QEvent* event)
{
    int const i = indexOf(watched);
    if (i < 0)
        return QFrame::eventFilter(watched, event);

    switch (event->type()) {
    case QEvent::FocusIn:
        if (!m_editingStarted) {
            m_editingStarted = true;
            emit sigEditingStarted();
        }
        break;
    case QEvent::FocusOut: {
        // Moving between the fields is no end of the edit: look once the focus has
        // settled.
        QPointer<IPEdit> self(this);
        QTimer::singleShot(0, this, [self] {
            if (self && self->m_editingStarted && !self->hasEditingFocus()) {
                self->m_editingStarted = false;
                emit self->sigEditingFinished();
            }
        });
        break;
    }
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        switch (key->key()) {
        case Qt::Key_Escape:
            leaveFields();
            event->accept();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (i == 0 || !m_enterSwitch)
                leaveFields();
            else
                focusField(i - 1);
            return true;
        case Qt::Key_Up:
            if (i > 0) {
                focusField(i - 1);
                return true;
            }
            passOn(key);
            return true;
        case Qt::Key_Down:
        case Qt::Key_Minus:
        case Qt::Key_Period:
            if (i < 3) {
                focusField(i + 1);
                return true;
            }
            passOn(key);
            return true;
        case Qt::Key_Backspace:
        case Qt::Key_Delete:
        case Qt::Key_Left:
        case Qt::Key_Right:
            return false;
        default:
            if (key->key() >= Qt::Key_0 && key->key() <= Qt::Key_9)
                return false;
            return true; // nothing else reaches an octet field
        }
    }
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}

void IPEdit::passOn(QKeyEvent* event)
{
    // A field would type the level text of a knob turn: the key goes to the frame,
    // and from there (through its filters) on to the page.
    QKeyEvent copy(event->type(), event->key(), event->modifiers(), event->text(), event->isAutoRepeat(),
                   ushort(event->count()));
    QApplication::sendEvent(this, &copy);
    event->setAccepted(copy.isAccepted());
}

void IPEdit::keyPressEvent(QKeyEvent* event)
{
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && !hasEditingFocus()) {
        focusField(3);
        event->accept();
        return;
    }
    QFrame::keyPressEvent(event);
}

} // namespace Widget
} // namespace LCD
