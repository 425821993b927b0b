#include "spinfields_p.h"

#include "commonitemtype.h"
#include "lcdspinbox.h"
#include "spinrow_p.h"

#include <QFont>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

namespace LCD {
namespace Widget {

namespace {
constexpr int kDefaultMaximum = 9999;
}

SpinFields::SpinFields(CommonItemType* row, QHBoxLayout* layout) : QObject(row), m_row(row), m_layout(layout) {}

void SpinFields::setCaptions(QStringList const& captions)
{
    if (m_current >= 0)
        end();
    qDeleteAll(m_boxes);
    qDeleteAll(m_captions);
    m_boxes.clear();
    m_captions.clear();
    QWidget* parent = m_layout->parentWidget();
    for (int i = 0; i < captions.size(); ++i) {
        auto* label = new QLabel(captions.at(i), parent);
        label->setProperty("isMultiSpinCaption", true);
        auto* box = new NQSpinBox(SuffixNone, QuitKeepValue, 0, parent);
        box->setProperty("isMultiSpinField", true);
        box->setAlignment(Qt::AlignCenter);
        box->setRange(0, kDefaultMaximum);
        box->setFocusPolicy(Qt::ClickFocus);
        box->installEventFilter(this);
        QObject::connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, [this, i](int v) {
            if (valueChanged)
                valueChanged(i, v);
        });
        m_layout->addWidget(label);
        m_layout->addWidget(box);
        m_captions.append(label);
        m_boxes.append(box);
        fitWidth(i);
        QFont f = label->font();
        f.setPixelSize(m_fontSize);
        label->setFont(f);
        box->setFont(f);
    }
}

void SpinFields::setRange(int index, int minimum, int maximum)
{
    NQSpinBox* b = box(index);
    if (!b)
        return;
    bool const blocked = b->blockSignals(true);
    b->setRange(minimum, maximum);
    b->blockSignals(blocked);
    fitWidth(index);
}

void SpinFields::setValue(int index, int value)
{
    NQSpinBox* b = box(index);
    if (b)
        b->setValueByManual(qBound(b->minimum(), value, b->maximum()));
}

void SpinFields::setFontSize(int size)
{
    m_fontSize = size;
    for (int i = 0; i < m_boxes.size(); ++i) {
        QFont f = m_boxes.at(i)->font();
        f.setPixelSize(size);
        m_boxes.at(i)->setFont(f);
        m_captions.at(i)->setFont(f);
        fitWidth(i);
    }
}

void SpinFields::setEnabled(bool enabled)
{
    for (int i = 0; i < m_boxes.size(); ++i) {
        m_boxes.at(i)->setEnabled(enabled);
        m_captions.at(i)->setEnabled(enabled);
    }
}

void SpinFields::fitWidth(int index)
{
    NQSpinBox* b = m_boxes.at(index);
    b->setFixedWidth(intSpinBoxWidth(b->minimum(), b->maximum(), m_fontSize));
}

void SpinFields::focusField(int index)
{
    m_current = index;
    m_boxes.at(index)->setFocus(Qt::TabFocusReason);
}

bool SpinFields::hasKnob() const
{
    if (m_current < 0)
        return false;
    for (NQSpinBox* b : m_boxes)
        if (b->hasFocus())
            return true;
    return false;
}

bool SpinFields::start()
{
    if (m_boxes.isEmpty() || !m_boxes.first()->isEnabled() || m_boxes.first()->isHidden())
        return false;
    focusField(0);
    return true;
}

void SpinFields::end()
{
    if (m_current < 0)
        return;
    NQSpinBox* b = m_boxes.value(m_current);
    m_current = -1;
    if (m_row->parentWidget())
        returnFocusToParent(m_row);
    else if (b)
        b->clearFocus();
    if (finished)
        finished();
}

bool SpinFields::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return QObject::eventFilter(watched, event);
    int const key = static_cast<QKeyEvent*>(event)->key();
    bool const ours = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape || key == Qt::Key_Up
        || key == Qt::Key_Down;
    if (event->type() == QEvent::KeyRelease)
        return ours;
    if (m_current < 0)
        return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape;
    if (key == Qt::Key_Escape) {
        end();
        return true;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (m_current + 1 < m_boxes.size() && m_boxes.at(m_current + 1)->isEnabled())
            focusField(m_current + 1);
        else
            end();
        return true;
    }
    return false;
}

} // namespace Widget
} // namespace LCD
