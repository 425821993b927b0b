#include "typeitemlinewrap.h"
#include "inputcheck_p.h"

#include "displaytext_p.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

namespace {
constexpr int kMaxLabels = 16;
constexpr int kColumnSpacing = 2;
constexpr int kRowPadding = 12;
} // namespace

struct LCDWIDGETS_HIDDEN TypeItemLineWrap::Impl
{
    QWidget* column = nullptr;
    QVBoxLayout* columnLayout = nullptr;
    QList<QLabel*> labels;
    int columnWidth = 0;
};

TypeItemLineWrap::TypeItemLineWrap(QWidget* parent, int labelCount)
    : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidget(labelCount);
}

TypeItemLineWrap::~TypeItemLineWrap() = default;

void TypeItemLineWrap::createWidget(int labelCount)
{
    if (labelCount < 1 || labelCount > kMaxLabels) {
        qWarning() << "TypeItemLineWrap: invalid label count" << labelCount;
        labelCount = qBound(1, labelCount, kMaxLabels);
    }
    setRightIconButtonHide(true);
    d->column = new QWidget(dynamicFrame());
    d->columnLayout = new QVBoxLayout(d->column);
    d->columnLayout->setContentsMargins(0, kRowPadding / 2, 0, kRowPadding / 2);
    d->columnLayout->setSpacing(kColumnSpacing);
    for (int i = 0; i < labelCount; ++i) {
        auto* label = new QLabel(d->column);
        label->setProperty("isValueText", true);
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        label->hide();
        d->columnLayout->addWidget(label);
        d->labels << label;
    }
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->column);
}

bool TypeItemLineWrap::checkIndex(int index, char const* function) const
{
    if (index >= 0 && index < d->labels.size())
        return true;
    qWarning() << function << "invalid label index" << index;
    return false;
}

int TypeItemLineWrap::labelCount() const { return d->labels.size(); }

int TypeItemLineWrap::getTextMaxWidth(QVariant const& text) const
{
    QFontMetrics const fm(d->labels.first()->font());
    int natural = 0;
    for (QString const& line : text.toString().split(QLatin1Char('\n')))
        natural = qMax(natural, fm.horizontalAdvance(line));
    int const itemWidth = getItemWidth();
    if (itemWidth > 0)
        natural = qMin(natural, int((3 * qint64(itemWidth)) / 5));
    return natural + 1; // rounding of the advance
}

void TypeItemLineWrap::relayout()
{
    int width = 0;
    for (QLabel* label : qAsConst(d->labels))
        if (!label->isHidden())
            width = qMax(width, getTextMaxWidth(label->text()));
    d->columnWidth = qMax(1, width);
    for (QLabel* label : qAsConst(d->labels))
        label->setFixedWidth(d->columnWidth);
    d->column->setFixedWidth(d->columnWidth);
}

void TypeItemLineWrap::setLabelText(int index, QVariant const& text)
{
    if (!checkIndex(index, "TypeItemLineWrap::setLabelText"))
        return;
    QLabel* label = d->labels.at(index);
    // A text shows its label, an empty text hides it.
    label->setText(text.toString());
    label->setHidden(text.toString().isEmpty());
    relayout();
}

QString TypeItemLineWrap::labelText(int index) const
{
    if (!checkIndex(index, "TypeItemLineWrap::labelText"))
        return QString();
    return d->labels.at(index)->text();
}

void TypeItemLineWrap::setLabelVisible(int index, bool visible)
{
    if (!checkIndex(index, "TypeItemLineWrap::setLabelVisible"))
        return;
    d->labels.at(index)->setVisible(visible);
    relayout();
}

void TypeItemLineWrap::setLabelProperty(int index, char const* name, QVariant const& value)
{
    if (!checkIndex(index, "TypeItemLineWrap::setLabelProperty") || !name)
        return;
    setStyleProperty(d->labels.at(index), name, value);
}

void TypeItemLineWrap::setLabelValue(QVariant value, int) { setLabelText(0, value); }

QVariant TypeItemLineWrap::getLabelValue() { return d->labels.first()->text(); }

int TypeItemLineWrap::getItemHeight() const
{
    int height = kRowPadding + 3;
    int shown = 0;
    for (QLabel* label : qAsConst(d->labels)) {
        if (label->isHidden())
            continue;
        height += label->heightForWidth(qMax(1, d->columnWidth));
        ++shown;
    }
    height += qMax(0, shown - 1) * kColumnSpacing;
    return qMax(height, itemHeight());
}

void TypeItemLineWrap::setItemTitleWidth(int width)
{
    CommonItemType::setItemTitleWidth(width);
    relayout();
}

void TypeItemLineWrap::setContentDisabled(bool disabled) const
{
    for (QLabel* label : qAsConst(d->labels))
        label->setDisabled(disabled);
}

void TypeItemLineWrap::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeItemLineWrap", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    QString const sheet = labelFontSheet(size);
    for (QLabel* label : qAsConst(d->labels))
        label->setStyleSheet(sheet);
    relayout();
}

QLabel* TypeItemLineWrap::label(int index) const
{
    if (!checkIndex(index, "TypeItemLineWrap::label"))
        return nullptr;
    return d->labels.at(index);
}

} // namespace Widget
} // namespace LCD
