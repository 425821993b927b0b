#include "typekeyvaluetext.h"
#include "inputcheck_p.h"

#include "displaytext_p.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN TypeKeyValueText::Impl
{
    QLabel* valueLabel = nullptr;
    QString key;
    QString value;
    int keyRows = 1;
    int valueRows = 1;
};

TypeKeyValueText::TypeKeyValueText(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidget();
}

TypeKeyValueText::~TypeKeyValueText() = default;

void TypeKeyValueText::createWidget()
{
    setRightIconButtonHide(true);
    getTitleLabel()->setObjectName(QStringLiteral("AboutTextEdit"));
    d->valueLabel = new QLabel(dynamicFrame());
    d->valueLabel->setObjectName(QStringLiteral("AboutTextValueEdit"));
    d->valueLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->valueLabel);
}

int TypeKeyValueText::relayout()
{
    RollLabel* title = getTitleLabel();
    int const f = contentFontSize();
    int const itemWidth = getItemWidth();
    d->keyRows = d->valueRows = 1;
    d->valueLabel->setText(d->value);
    if (itemWidth < 1 || f < 1) {
        title->setText(d->key);
        return 1;
    }
    QFont font;
    font.setPixelSize(f);
    qint64 const natural = QFontMetrics(font).horizontalAdvance(d->key);
    qint64 const twoF = 2 * qint64(f);
    qint64 const keyWidth = qBound(twoF, natural, qMax(twoF, (2 * qint64(itemWidth)) / 5));
    // The value column first, so that the key wraps into what is left of the row.
    d->valueLabel->setFixedWidth(int(qBound<qint64>(1, itemWidth - keyWidth - twoF, QWIDGETSIZE_MAX)));
    title->rollTimer()->stop();
    title->setText(d->key);
    d->keyRows = getLabelRow(title);
    title->setFixedWidth(qMax(1, qMin(title->width(), title->sizeHint().width())));
    d->valueRows = getLabelRow(d->valueLabel);
    d->valueLabel->setAlignment((d->valueRows > 1 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    return qMax(d->keyRows, d->valueRows);
}

void TypeKeyValueText::setKeyValueText(QString key, QString value)
{
    d->key = key;
    d->value = value;
    setItemTitle(key);
    relayout();
}

void TypeKeyValueText::setItemTitles(QString key)
{
    d->key = key;
    setItemTitle(key);
    relayout();
}

void TypeKeyValueText::setLabelValue(QVariant value, int)
{
    d->value = value.toString();
    relayout();
}

QVariant TypeKeyValueText::getLabelValue() { return d->value; }

int TypeKeyValueText::getWidgetRow() { return relayout(); }

void TypeKeyValueText::setItemWidth(int width)
{
    setItemTitleWidth(width);
    relayout();
}

void TypeKeyValueText::setItemHeight(int height)
{
    CommonItemType::setItemHeight(height);
    relayout();
}

int TypeKeyValueText::getItemValueRow() const { return d->valueRows; }

void TypeKeyValueText::setValueLabelSize(QSize size)
{
    if (!sizeOk("TypeKeyValueText", "setValueLabelSize", size))
        return;
    d->valueLabel->setMaximumHeight(size.height());
    d->valueLabel->setMinimumWidth(size.width());
}

void TypeKeyValueText::setContentDisabled(bool disabled) const { d->valueLabel->setDisabled(disabled); }

void TypeKeyValueText::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeKeyValueText", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    d->valueLabel->setStyleSheet(labelFontSheet(size));
    relayout();
}

QLabel* TypeKeyValueText::valueLabel() const { return d->valueLabel; }

} // namespace Widget
} // namespace LCD
