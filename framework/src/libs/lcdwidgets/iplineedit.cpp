#include "iplineedit.h"

#include "inputcheck_p.h"
#include "knoblevel.h"
#include "stylehelper.h"

#include <QApplication>
#include <QDebug>
#include <QHBoxLayout>
#include <QHostAddress>
#include <QKeyEvent>
#include <QLabel>
#include <QRegExpValidator>
#include <QRegularExpression>
#include <cmath>

namespace LCD {
namespace Widget {

namespace {

constexpr int kMaxOctet = 255;

// The panel's address pattern, kept exactly as the devices check it: its dots match
// any character and its first group takes any three-digit number from 100 to 299.
QRegularExpression const& addressPattern()
{
    static QRegularExpression const re(QStringLiteral(
        "^([12]\\d?\\d?|2[0-4]\\d|25[0-5]).([1]?\\d\\d?|2[0-4]\\d|25[0-5]).([1]?\\d\\d?|2[0-4]\\d|25[0-5])."
        "([1]?\\d\\d?|2[0-4]\\d|25[0-5])$"));
    return re;
}

// Four decimal parts of at most three digits, each 0..255.
bool fourOctets(QStringList const& parts)
{
    if (parts.size() != 4)
        return false;
    for (QString const& p : parts) {
        if (p.isEmpty() || p.size() > 3)
            return false;
        bool ok = false;
        int const v = p.toInt(&ok);
        if (!ok || v < 0 || v > kMaxOctet || !p.at(0).isDigit())
            return false;
    }
    return true;
}

} // namespace

IPLineEdit::IPLineEdit(QWidget* parent) : QLineEdit(parent), m_parent(parent)
{
    setReadOnly(true);
    setFocusPolicy(Qt::NoFocus);
    setObjectName(QStringLiteral("ipLineEdit"));
    setProperty("isIPLineEditFrame", true);
    setAttribute(Qt::WA_StyledBackground);

    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(4);
    layout->setContentsMargins(0, 6, 8, 6);
    // Spare width goes around the address, not between its octets.
    layout->addStretch();

    static QRegExp const firstRule(QStringLiteral("^[1-9][0-9]*$"));
    static QRegExp const otherRule(QStringLiteral("^[0-9][0-9]*$"));
    for (int i = 0; i < 4; ++i) {
        auto* f = new QLineEdit(this);
        f->setFrame(false);
        f->setMaxLength(3);
        f->setProperty("isLineEditText", true);
        f->setProperty("editing", false);
        f->setAlignment(Qt::AlignCenter);
        f->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        f->setAttribute(Qt::WA_MacShowFocusRect, false);
        f->setValidator(new QRegExpValidator(i == 0 ? firstRule : otherRule, f));
        f->installEventFilter(this);
        connect(f, &QLineEdit::editingFinished, this, &IPLineEdit::slot_fixInput);
        // Typed digits never show more than 255 nor a leading zero ("0" then "5" is 5).
        connect(f, &QLineEdit::textEdited, f, [f](QString const& text) {
            int const v = text.toInt();
            if (v > kMaxOctet)
                f->setText(QString::number(kMaxOctet));
            else if (text.size() > 1 && text.at(0) == QLatin1Char('0'))
                f->setText(QString::number(v));
        });
        m_fields[i] = f;
        layout->addWidget(f);
        if (i < 3) {
            auto* dot = new QLabel(QStringLiteral("."), this);
            dot->setObjectName(QStringLiteral("ipLineEditDot"));
            dot->setAlignment(Qt::AlignCenter);
            m_dots[i] = dot;
            layout->addWidget(dot);
        }
    }
    layout->addStretch();
    updateFieldWidths();
    if (qApp)
        connect(qApp, &QApplication::focusChanged, this, &IPLineEdit::slotFocusChanged);
}

IPLineEdit::~IPLineEdit()
{
    // The focus leaves the fields while the QWidget part is taken down: the slot must
    // not run on the half-destroyed editor.
    if (qApp)
        disconnect(qApp, &QApplication::focusChanged, this, nullptr);
}

QString IPLineEdit::Iptext() const
{
    return QStringLiteral("%1.%2.%3.%4")
        .arg(m_fields[0]->text(), m_fields[1]->text(), m_fields[2]->text(), m_fields[3]->text());
}

void IPLineEdit::setIpText(QString const& text) const
{
    if (text.isEmpty())
        return;
    QHostAddress const address(text);
    QStringList const parts = text.split(QLatin1Char('.'));
    // QHostAddress also reads IPv6 and shortened forms such as "10.1": only the four
    // dotted octets can go into the four fields.
    if (address.isNull() || address.isMulticast() || address.protocol() != QAbstractSocket::IPv4Protocol
        || !fourOctets(parts)) {
        qWarning().noquote() << "strIP:" << text;
        qWarning().noquote() << __FUNCTION__ << "Your IP Address is Invalid!";
        return;
    }
    for (int i = 0; i < 4; ++i)
        m_fields[i]->setText(QString::number(parts.at(i).toInt()));
}

bool IPLineEdit::isTextValid(QString const& text) const
{
    if (text.isEmpty())
        return true;
    return addressPattern().match(text).hasMatch();
}

bool IPLineEdit::isDataModified() const
{
    for (QLineEdit* f : m_fields)
        if (f->isModified())
            return true;
    return false;
}

void IPLineEdit::clearText() const
{
    for (QLineEdit* f : m_fields)
        f->clear();
}

void IPLineEdit::setIPFocus() const
{
    m_fields[3]->setFocus(Qt::OtherFocusReason);
    m_fields[3]->selectAll();
}

void IPLineEdit::setEditStatus(bool editing)
{
    m_isEdit = editing;
    setLineEditProperty("editing", editing);
    if (!editing) {
        for (QLineEdit* f : m_fields)
            f->clearFocus();
    }
}

void IPLineEdit::setEnable(bool enabled) const
{
    for (QLineEdit* f : m_fields)
        f->setEnabled(enabled);
}

int IPLineEdit::getStep(float level) const
{
    if (std::fabs(level - 1.0f) < 0.000001f)
        return 1;
    if (std::isnan(level))
        return 1;
    float const scaled = level * kMaxOctet;
    // Clamped before the cast: a huge or negative level can't overflow it.
    if (scaled >= kMaxOctet)
        return kMaxOctet;
    if (scaled <= 0.0f)
        return 0;
    return static_cast<int>(scaled);
}

int IPLineEdit::fieldsWidth() const { return layout()->minimumSize().width(); }

int IPLineEdit::getIndex(QLineEdit* field) const
{
    for (int i = 0; i < 4; ++i)
        if (field && m_fields[i] == field)
            return i;
    return -1;
}

QLineEdit* IPLineEdit::field(int index) const { return index >= 0 && index < 4 ? m_fields[index] : nullptr; }

void IPLineEdit::setFontSize(int size)
{
    if (!fontSizeOk("IPLineEdit", "setFontSize", size))
        return;
    m_fontSize = size;
    QFont font = m_fields[0]->font();
    font.setPixelSize(size);
    for (QLineEdit* f : m_fields)
        f->setFont(font);
    for (QLabel* dot : m_dots)
        dot->setFont(font);
    updateFieldWidths();
}

void IPLineEdit::setHeight(int height)
{
    // A field of no height shows nothing: refused like a negative one.
    if (height < 1) {
        qWarning().noquote() << QStringLiteral("[IPLineEdit] setHeight: length %1 refused").arg(height);
        return;
    }
    int const h = qMin(height, QWIDGETSIZE_MAX - 12);
    for (QLineEdit* f : m_fields)
        f->setFixedHeight(h);
    m_fieldHeight = h;
    updateFieldWidths();
}

void IPLineEdit::updateFieldWidths()
{
    // Three digits and a little air; the font is set on the fields, not by the theme.
    QFontMetrics const fm(m_fields[0]->font());
    int const w = fm.horizontalAdvance(QStringLiteral("000")) + 8;
    for (QLineEdit* f : m_fields)
        f->setFixedWidth(w);
    int const dotWidth = fm.horizontalAdvance(QLatin1Char('.')) + 4;
    for (QLabel* dot : m_dots)
        dot->setFixedWidth(dotWidth);
    // The frame is a line edit: its own size hint knows nothing of the fields.
    int const fieldHeight = m_fieldHeight > 0 ? m_fieldHeight : m_fields[0]->sizeHint().height();
    setFixedHeight(fieldHeight + 12);
}

void IPLineEdit::setLineEditProperty(char const* name, QVariant const& value) const
{
    if (!name)
        return;
    for (QLineEdit* f : m_fields)
        setStyleProperty(f, name, value);
}

void IPLineEdit::slot_fixInput()
{
    for (int i = 0; i < 4; ++i) {
        QLineEdit* f = m_fields[i];
        QString const text = f->text().trimmed();
        if (text.isEmpty())
            continue;
        bool ok = false;
        int v = text.toInt(&ok);
        if (!ok) {
            f->clear();
            continue;
        }
        v = qBound(i == 0 ? 1 : 0, v, kMaxOctet);
        QString const fixed = QString::number(v);
        if (fixed != f->text())
            f->setText(fixed);
    }
}

void IPLineEdit::slotFocusChanged(QWidget* old, QWidget* now)
{
    int const from = getIndex(qobject_cast<QLineEdit*>(old));
    int const to = getIndex(qobject_cast<QLineEdit*>(now));
    if (to >= 0)
        m_index = to;
    if (from >= 0 && to != from)
        slot_fixInput();
}

void IPLineEdit::moveToField(int index)
{
    if (index < 0 || index > 3)
        return;
    m_index = index;
    m_fields[index]->setFocus(Qt::OtherFocusReason);
    m_fields[index]->selectAll();
}

void IPLineEdit::stepField(int index, bool up, float level)
{
    QLineEdit* f = m_fields[index];
    int const value = f->text().toInt();
    int const step = getStep(level);
    int const low = index == 0 ? 1 : 0;
    int const next = up ? qMin(value + step, kMaxOctet) : qMax(value - step, low);
    qDebug() << "m_isEdit" << (m_isEdit ? "true" : "false") << ",index:" << index << ",val:" << value
                       << ",step:" << step << ",newVal:" << next;
    if (next != value || f->text().isEmpty()) {
        f->setText(QString::number(next));
        f->setModified(true);
    }
    f->selectAll();
}

bool IPLineEdit::eventFilter(QObject* watched, QEvent* event)
{
    auto* f = qobject_cast<QLineEdit*>(watched);
    int const index = getIndex(f);
    if (index < 0 || event->type() != QEvent::KeyPress)
        return QLineEdit::eventFilter(watched, event);

    auto* key = static_cast<QKeyEvent*>(event);
    m_index = index;
    switch (key->key()) {
    case Qt::Key_Up:
        if (m_isEdit)
            stepField(index, true, knobLevel(key));
        else if (index >= 1)
            moveToField(index - 1);
        return true;
    case Qt::Key_Down:
        if (m_isEdit)
            stepField(index, false, knobLevel(key));
        else if (index <= 2)
            moveToField(index + 1);
        return true;
    case Qt::Key_Period:
        // The dot typed on the pad or a keyboard always goes on to the next octet.
        slot_fixInput();
        if (index <= 2)
            moveToField(index + 1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_isEdit = !m_isEdit;
        setLineEditProperty("editing", m_isEdit);
        f->selectAll();
        return true;
    case Qt::Key_Escape:
        m_isEdit = false;
        setLineEditProperty("editing", false);
        slot_fixInput();
        // The parent takes the focus: the field stays the editor's focus widget, so
        // that a pad's next key still reaches it.
        if (m_parent)
            m_parent->setFocus(Qt::OtherFocusReason);
        else
            f->clearFocus();
        emit signalEditFinished();
        return false;
    default:
        break;
    }
    return QLineEdit::eventFilter(watched, event);
}

} // namespace Widget
} // namespace LCD
