#include "extendspinbox.h"
#include "inputcheck_p.h"

#include "stylehelper.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace LCD {
namespace Widget {

namespace {

// Re-polishing is the expensive part of a look change: skip it when nothing changes.
void setLook(QWidget* w, char const* name, bool on)
{
    QVariant const old = w->property(name);
    if (old.isValid() && old.toBool() == on)
        return;
    setStyleProperty(w, name, on);
}

} // namespace

ExtendSpinBox::ExtendSpinBox(QFrame* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("ExtendSpinBox"));
    setProperty("isExtendSpinBox", true);
    setProperty("isExtendSpinBoxBlueBg", false);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 0, 8, 0);
    layout->setSpacing(8);
    m_left = new QPushButton(this);
    m_left->setProperty("isIconSpinboxLeftBtn", true);
    m_display = new QLabel(QStringLiteral("---"), this);
    m_display->setProperty("isIconSpinboxDisplay", true);
    m_display->setAlignment(Qt::AlignCenter);
    m_right = new QPushButton(this);
    m_right->setProperty("isIconSpinboxRightBtn", true);
    layout->addWidget(m_left);
    layout->addWidget(m_display, 1);
    layout->addWidget(m_right);
    resetIconSize(QSize(28, 28));

    installEventFilter(this);
    m_left->installEventFilter(this);
    m_right->installEventFilter(this);

    connect(m_left, &QPushButton::pressed, this, &ExtendSpinBox::slotLeftButtonPressed);
    connect(m_right, &QPushButton::pressed, this, &ExtendSpinBox::slotRightButtonPressed);
    connect(m_left, &QPushButton::released, this, &ExtendSpinBox::slotLeftButtonReleased);
    connect(m_right, &QPushButton::released, this, &ExtendSpinBox::slotRightButtonReleased);
}

ExtendSpinBox::~ExtendSpinBox() = default;

void ExtendSpinBox::setCtrlSelect(bool on)
{
    m_selected = on;
    setLook(this, "isExtendSpinBox", !on);
}

void ExtendSpinBox::setFocusBlueBg(bool on) { setLook(this, "isExtendSpinBoxBlueBg", on); }

void ExtendSpinBox::setLeftButtonPressed(bool pressed)
{
    setLook(m_left, "isIconSpinboxLeftBtn", !pressed);
}

void ExtendSpinBox::setRightButtonPressed(bool pressed)
{
    setLook(m_right, "isIconSpinboxRightBtn", !pressed);
}

void ExtendSpinBox::setDisplayText(QString const& text)
{
    m_display->setText(text);
    repolish(m_display);
}

QString ExtendSpinBox::displayText() const { return m_display->text(); }

void ExtendSpinBox::resetWidth(int width)
{
    if (!lengthOk("ExtendSpinBox", "resetWidth", qMax(0, width)))
        return;
    m_display->setFixedWidth(qMax(0, width));
}

void ExtendSpinBox::resetIconSize(QSize size)
{
    if (!sizeOk("ExtendSpinBox", "resetIconSize", size))
        return;
    m_left->setFixedSize(size);
    m_right->setFixedSize(size);
}

void ExtendSpinBox::setContentFontSize(int size)
{
    if (!fontSizeOk("ExtendSpinBox", "setContentFontSize", size))
        return;
    m_display->setStyleSheet(QStringLiteral("QLabel{font-size:%1px;}").arg(size));
}

void ExtendSpinBox::slotLeftButtonPressed()
{
    setLeftButtonPressed(true);
    setRightButtonPressed(false);
    emit signalValueChanged(false);
}

void ExtendSpinBox::slotRightButtonPressed()
{
    setRightButtonPressed(true);
    setLeftButtonPressed(false);
    emit signalValueChanged(true);
}

void ExtendSpinBox::slotLeftButtonReleased() { emit signalChangedFinished(); }

void ExtendSpinBox::slotRightButtonReleased() { emit signalChangedFinished(); }

bool ExtendSpinBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        switch (key->key()) {
        case Qt::Key_Up:
            // One knob detent is one press of the left button.
            m_left->setFocus(Qt::OtherFocusReason);
            slotLeftButtonPressed();
            return true;
        case Qt::Key_Down:
            m_right->setFocus(Qt::OtherFocusReason);
            slotRightButtonPressed();
            return true;
        case Qt::Key_Escape:
            if (QWidget* parent = parentWidget())
                parent->setFocus(Qt::OtherFocusReason);
            else
                clearFocus();
            setLeftButtonPressed(false);
            setRightButtonPressed(false);
            setFocusBlueBg(false);
            emit signalEditFinished();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return true;
        default:
            break;
        }
    } else if (event->type() == QEvent::KeyRelease) {
        // The end of a knob detent is the end of the press.
        auto* key = static_cast<QKeyEvent*>(event);
        if (!key->isAutoRepeat() && (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down)) {
            emit signalChangedFinished();
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

} // namespace Widget
} // namespace LCD
