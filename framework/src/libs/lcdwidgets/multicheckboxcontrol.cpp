#include "multicheckboxcontrol.h"
#include "sheet_p.h"

#include "choicekeys_p.h"

#include <QCheckBox>
#include <QDebug>

namespace LCD {
namespace Widget {

struct MultiCheckBoxControl::Impl
{
    int fontSize = 0;
};

MultiCheckBoxControl::MultiCheckBoxControl(QWidget* parent) : MultiWidgetControl(parent), d(std::make_unique<Impl>())
{
    setStyleSheet(QStringLiteral("QFrame{background-color:transparent;}"));
}

MultiCheckBoxControl::~MultiCheckBoxControl() = default;

namespace {
template <typename F>
void forEachBox(MultiWidgetList const& list, F f)
{
    forEachChoice<QCheckBox>(list, f);
}
} // namespace

void MultiCheckBoxControl::setCheckBoxData(QVector<std::pair<QString, int>> data)
{
    for (auto const& pair : data) {
        auto* box = new QCheckBox(pair.first, this);
        box->setProperty("isMultiCheckItem", true);
        box->setFocusPolicy(Qt::StrongFocus);
        int const value = pair.second;
        setChoiceData(box, kChoiceValueId, value);
        entries().append(qMakePair(e_CheckBox, static_cast<QWidget*>(box)));
        box->installEventFilter(this);
        connect(box, &QCheckBox::stateChanged, this, [this, value](int state) { emit signalValueChanged(value, state != 0); });
    }
    setSpacing(6);
    if (d->fontSize > 0)
        setFontSize(d->fontSize);
    addWidgets(entries());
}

void MultiCheckBoxControl::setCheckStatus(int value, bool checked, bool partial) const
{
    forEachBox(entries(), [&](QCheckBox* box) {
        if (choiceData(box, kChoiceValueId).toInt() != value)
            return;
        bool const was = box->blockSignals(true);
        box->setChecked(checked);
        box->setCheckState(partial ? Qt::PartiallyChecked : checked ? Qt::Checked : Qt::Unchecked);
        box->blockSignals(was);
    });
}

int MultiCheckBoxControl::getCheckStatus(int value) const
{
    QCheckBox const* box = choiceWithValue<QCheckBox>(entries(), value);
    return box ? static_cast<int>(box->checkState()) : -1;
}

void MultiCheckBoxControl::setCurrentData(QVector<int> values)
{
    forEachBox(entries(), [&values](QCheckBox* box) {
        bool const was = box->blockSignals(true);
        box->setChecked(false);
        if (values.contains(choiceData(box, kChoiceValueId).toInt()))
            box->setChecked(true);
        box->blockSignals(was);
    });
}

QVector<int> MultiCheckBoxControl::getCurrentData() const
{
    QVector<int> values;
    forEachBox(entries(), [&values](QCheckBox* box) {
        if (box->checkState() != Qt::Checked)
            return;
        int const value = choiceData(box, kChoiceValueId).toInt();
        if (!values.contains(value))
            values.append(value);
    });
    return values;
}

void MultiCheckBoxControl::setIconSize(QSize size) const
{
    if (size.width() < 0 || size.height() < 0) {
        qDebug().noquote().nospace() << "MultiCheckBoxControl::setIconSize: invalid size " << size.width() << "x"
                                     << size.height();
        return;
    }
    forEachBox(entries(), [size](QCheckBox* box) { box->setIconSize(size); });
}

void MultiCheckBoxControl::setFontSize(int size)
{
    if (size < 1) {
        qDebug().noquote().nospace() << "MultiCheckBoxControl::setFontSize: invalid font size " << size;
        return;
    }
    d->fontSize = size;
    QString const n = QString::number(size);
    QString const sheet = QStringLiteral("QCheckBox{font-size: ") + n + QStringLiteral("px; }") +
                          QStringLiteral("QCheckBox::indicator:unchecked{width:") + n + QStringLiteral("px; height:") + n +
                          QStringLiteral("px; }") + QStringLiteral("QCheckBox::indicator:checked{width:") + n +
                          QStringLiteral("px; height:") + n + QStringLiteral("px; }") +
                          QStringLiteral("QCheckBox::indicator:indeterminate{width:") + n + QStringLiteral("px; height:") +
                          n + QStringLiteral("px; }") + QStringLiteral("QCheckBox:focus {border:") +
                          QString::number(size / 20) + QStringLiteral("px solid rgb(0,140,242) }");
    forEachBox(entries(), [&sheet](QCheckBox* box) {
        applyStyleSheet(box, sheet);
    });
    setSpacing(size / 4);
}

void MultiCheckBoxControl::setContentDisabled(bool disabled) const
{
    forEachBox(entries(), [disabled](QCheckBox* box) { box->setDisabled(disabled); });
}

void MultiCheckBoxControl::enterPressed() const
{
    int const i = focusedIndex();
    if (i < 0)
        return;
    if (auto* box = qobject_cast<QCheckBox*>(entries().at(i).second))
        box->setChecked(!box->isChecked());
}

void MultiCheckBoxControl::focusInEvent(QFocusEvent* event)
{
    MultiWidgetControl::focusInEvent(event);
    focusFirstChoice(entries());
}

bool MultiCheckBoxControl::filterKey(int key)
{
    switch (key) {
    case Qt::Key_Escape:
        emit signalCloseEditStatus();
        return true;
    case Qt::Key_Enter:
        enterPressed();
        return true;
    default:
        return MultiWidgetControl::filterKey(key);
    }
}

} // namespace Widget
} // namespace LCD
