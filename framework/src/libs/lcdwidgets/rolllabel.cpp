#include "rolllabel.h"
#include "inputcheck_p.h"

#include <QEvent>
#include <QPainter>
#include <QTextDocument>
#include <QTimer>

RollLabel::RollLabel(QWidget* parent) : QLabel(parent) {}

RollLabel::~RollLabel() = default;

void RollLabel::setWidth(int width)
{
    // Below 1: no fixed width wanted (the label takes its text as it is).
    if (!LCD::Widget::lengthOk("RollLabel", "setWidth", qMax(0, width)))
        return;
    m_width = width;
    setFixedWidth(qMax(0, width));
}

void RollLabel::setItemName(QString const& name) { m_itemName = name; }

void RollLabel::setTextLabel(QString const& text, bool roll)
{
    m_sourceText = text;
    m_rolling = !Qt::mightBeRichText(text);
    if (m_width < 1) {
        QLabel::setText(text);
        return;
    }
    QString shown = text;
    if (!roll && advanceOf(text) > m_width)
        shown = QFontMetrics(font()).elidedText(text, Qt::ElideRight, m_width);
    QLabel::setText(shown);
    m_rollRequested = roll;
    upateLabelRollingState();
}

void RollLabel::setCalTextLabel(QString const& text, int width, bool roll)
{
    m_itemName = text;
    // Two thirds of the row, computed wide so that any int width is safe.
    qint64 const third = (2 * static_cast<qint64>(width)) / 3;
    m_width = static_cast<int>(qMin<qint64>(third, QFontMetrics(font()).horizontalAdvance(text)));
    setTextLabel(text, roll);
}

void RollLabel::setspeed(int step, int interval)
{
    if (interval < 1) {
        qWarning().noquote() << QStringLiteral("[RollLabel] setspeed: interval %1 refused").arg(interval);
        return;
    }
    // A step is a few pixels a tick; beyond a screen's width it is no marquee.
    if (step < 1 || step > 10000) {
        qWarning().noquote() << QStringLiteral("[RollLabel] setspeed: step %1 refused").arg(step);
        return;
    }
    m_step = step;
    m_interval = interval;
}

void RollLabel::setPixmapLabel(QPixmap const& pixmap)
{
    m_rolling = false;
    if (m_timer)
        m_timer->stop();
    QLabel::setPixmap(pixmap);
}

bool RollLabel::getLabelRoll() const { return m_rollRequested; }

int RollLabel::advanceOf(QString const& text) const
{
    QFont const& f = font();
    if (m_measuredWidth < 0 || text != m_measuredText || f != m_measuredFont) {
        m_measuredText = text;
        m_measuredFont = f;
        m_measuredWidth = QFontMetrics(f).horizontalAdvance(text);
    }
    return m_measuredWidth;
}

void RollLabel::upateLabelRollingState()
{
    m_textWidth = advanceOf(m_itemName);
    if (m_width < m_textWidth && m_rolling && m_rollRequested) {
        QFontMetrics const fm(font());
        m_offset = 0;
        m_gapText = QStringLiteral(" ");
        m_gapWidth = fm.horizontalAdvance(m_gapText);
        m_paintText = m_itemName + m_gapText + m_itemName;
        rollTimer()->start(m_interval);
    } else {
        m_rolling = false;
        if (m_timer)
            m_timer->stop();
        m_paintText.clear();
    }
}

void RollLabel::updateText()
{
    int const next = m_offset + m_step;
    m_offset = next > m_textWidth + m_gapWidth ? 0 : next;
    update();
}

void RollLabel::paintEvent(QPaintEvent* event)
{
    if (!isRolling()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setClipRect(rect());
    painter.setFont(font());
    painter.setPen(palette().color(foregroundRole()));
    QRect const r = contentsRect().translated(-m_offset, 0);
    painter.drawText(QRect(r.x(), r.y(), m_textWidth * 2 + m_gapWidth + 1, r.height()),
                     Qt::AlignVCenter | Qt::AlignLeft, m_paintText);
}

void RollLabel::resizeEvent(QResizeEvent* event) { QWidget::resizeEvent(event); }

void RollLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    bool const showsPixmap = !pixmap(Qt::ReturnByValue).isNull();
#else
    bool const showsPixmap = pixmap() != nullptr;
#endif
    if (event->type() == QEvent::FontChange && m_width >= 1 && !m_sourceText.isEmpty() && !showsPixmap)
        setTextLabel(m_sourceText, m_rollRequested);
}

bool RollLabel::isRolling() const { return m_rolling && m_timer && m_timer->isActive(); }
int RollLabel::scrollOffset() const { return m_offset; }
int RollLabel::textWidth() const { return m_textWidth; }
int RollLabel::gapWidth() const { return m_gapWidth; }
int RollLabel::storedWidth() const { return m_width; }
QString RollLabel::itemName() const { return m_itemName; }
QTimer* RollLabel::rollTimer() const
{
    // Most labels never roll: the marquee's timer is made when first needed.
    if (!m_timer) {
        auto* self = const_cast<RollLabel*>(this);
        m_timer = new QTimer(self);
        connect(m_timer, &QTimer::timeout, self, &RollLabel::updateText);
    }
    return m_timer;
}
