#include "typeitemvalue.h"
#include "inputcheck_p.h"

#include "displaytext_p.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

namespace LCD {
namespace Widget {

namespace {

// Loads a picture for a label beside the value, scaled to the text height.
bool setPicture(QLabel* label, QString const& file, int height)
{
    QPixmap pix(file);
    if (pix.isNull()) {
        qWarning() << "TypeItemValue: cannot load image" << file;
        return false;
    }
    if (height > 0 && pix.height() != height)
        pix = pix.scaledToHeight(height, Qt::SmoothTransformation);
    label->setPixmap(pix);
    return true;
}

} // namespace

// ---------------------------------------------------------------------------
// TypeItemValue

struct LCDWIDGETS_HIDDEN TypeItemValue::Impl
{
    int fixedValueWidth = 0;
    QPushButton* iconButton = nullptr;
    QLabel* leftImage = nullptr;
    RollLabel* valueLabel = nullptr;
    QLabel* rightImage = nullptr;
    QString text;
    bool plain = false; // last value was set with mode > 0
    bool roll = false;
    QVariant userData;
};

TypeItemValue::TypeItemValue(QWidget* parent, int valueWidth) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    d->fixedValueWidth = qMax(0, valueWidth);
    createWidget();
}

TypeItemValue::~TypeItemValue() = default;

void TypeItemValue::createWidget()
{
    setRightIconButtonHide(true);
    d->iconButton = new QPushButton(dynamicFrame());
    d->iconButton->setObjectName(QStringLiteral("iconButton"));
    d->iconButton->setFocusPolicy(Qt::NoFocus);
    d->iconButton->hide();
    d->leftImage = new QLabel(dynamicFrame());
    d->leftImage->setProperty("isValueImage", true);
    d->leftImage->hide();
    d->valueLabel = new RollLabel(dynamicFrame());
    d->valueLabel->setProperty("isValueText", true);
    d->valueLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    d->rightImage = new QLabel(dynamicFrame());
    d->rightImage->setProperty("isValueImage", true);
    d->rightImage->hide();
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->iconButton);
    dynamicLayout()->addWidget(d->leftImage);
    dynamicLayout()->addWidget(d->valueLabel);
    dynamicLayout()->addWidget(d->rightImage);
}

int TypeItemValue::valueWidth() const
{
    return d->fixedValueWidth > 0 ? d->fixedValueWidth : int((2 * qint64(qMax(0, getItemWidth()))) / 3);
}

void TypeItemValue::showValue()
{
    if (!d->roll) {
        // A box left from an earlier scroll would clip the text.
        d->valueLabel->setMinimumWidth(0);
        d->valueLabel->setMaximumWidth(QWIDGETSIZE_MAX);
    }
    if (d->plain) {
        showPlainText(d->valueLabel, d->text);
    } else if (d->roll) {
        d->valueLabel->setItemName(d->text);
        d->valueLabel->setWidth(qMin(valueWidth(), d->valueLabel->fontMetrics().horizontalAdvance(d->text)));
        d->valueLabel->setTextLabel(d->text, true);
    } else {
        showPlainText(d->valueLabel, elideWithDots(d->valueLabel->fontMetrics(), d->text, valueWidth()));
    }
}

void TypeItemValue::setLabelValue(QVariant value, int mode)
{
    d->text = value.toString();
    d->plain = mode > 0;
    d->roll = false;
    showValue();
}

QVariant TypeItemValue::getLabelValue() { return d->text; }

void TypeItemValue::setRollLabelText(QString text, bool roll)
{
    d->text = text;
    d->plain = false;
    d->roll = roll;
    showValue();
}

void TypeItemValue::setContentDisabled(bool disabled) const
{
    d->valueLabel->setDisabled(disabled);
    d->iconButton->setDisabled(disabled);
    d->leftImage->setDisabled(disabled);
    d->rightImage->setDisabled(disabled);
}

void TypeItemValue::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeItemValue", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    d->valueLabel->setStyleSheet(labelFontSheet(size));
    int const side = itemIconSide(itemHeight());
    d->iconButton->setFixedSize(side, side);
    d->iconButton->setIconSize(QSize(side, side));
    showValue();
}

int TypeItemValue::getWidgetRow()
{
    int const rows = CommonItemType::getWidgetRow();
    showValue();
    return rows;
}

void TypeItemValue::editValue() { emit signalValueChanged(d->userData); }

void TypeItemValue::setLeftImageHidden(QString image, bool hidden)
{
    if (!image.isEmpty() && !setPicture(d->leftImage, image, contentFontSize()))
        hidden = true;
    d->leftImage->setHidden(hidden || d->leftImage->pixmap(Qt::ReturnByValue).isNull());
}

void TypeItemValue::setRightImageHidden(QString image, bool hidden)
{
    if (!image.isEmpty() && !setPicture(d->rightImage, image, contentFontSize()))
        hidden = true;
    d->rightImage->setHidden(hidden || d->rightImage->pixmap(Qt::ReturnByValue).isNull());
}

void TypeItemValue::setLabelIcon(QString const& image) { d->iconButton->setIcon(QIcon(image)); }

void TypeItemValue::setIconVisible(bool visible) { d->iconButton->setVisible(visible); }

void TypeItemValue::setItemData(QVariant data) { d->userData = data; }

QVariant TypeItemValue::getUserData() const { return d->userData; }

void TypeItemValue::setItemValueProperty(std::string const& name, QVariant value)
{
    setStyleProperty(d->valueLabel, name.c_str(), value);
}

void TypeItemValue::setValueLabelHidden() { d->valueLabel->hide(); }

RollLabel* TypeItemValue::valueLabel() const { return d->valueLabel; }

// ---------------------------------------------------------------------------
// TypeItemValueBorder

struct LCDWIDGETS_HIDDEN TypeItemValueBorder::Impl
{
    RollLabel* valueLabel = nullptr;
};

TypeItemValueBorder::TypeItemValueBorder(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidget();
}

TypeItemValueBorder::~TypeItemValueBorder() = default;

void TypeItemValueBorder::createWidget()
{
    setRightIconButtonHide(true);
    d->valueLabel = new RollLabel(dynamicFrame());
    d->valueLabel->setProperty("isValueText", true);
    d->valueLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->valueLabel);
}

void TypeItemValueBorder::setLabelValue(QVariant value, int mode)
{
    if (mode > 0)
        showPlainText(d->valueLabel, value.toString());
    else
        showFittedText(d->valueLabel, value.toString(), getItemWidth(), false);
}

QVariant TypeItemValueBorder::getLabelValue() { return d->valueLabel->text(); }

void TypeItemValueBorder::setContentDisabled(bool disabled) const { d->valueLabel->setDisabled(disabled); }

void TypeItemValueBorder::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeItemValueBorder", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    d->valueLabel->setStyleSheet(labelFontSheet(size));
}

void TypeItemValueBorder::editValue() { emit signalClicked(); }

RollLabel* TypeItemValueBorder::valueLabel() const { return d->valueLabel; }

void TypeItemValueBorder::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    QColor line(Qt::white);
    line.setAlpha(128);
    painter.setPen(QPen(line, 1));
    painter.drawLine(QPoint(0, 0), QPoint(width() - 1, 0));
}

void TypeItemValueBorder::mouseReleaseEvent(QMouseEvent* event)
{
    CommonItemType::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        emit signalClicked();
}

} // namespace Widget
} // namespace LCD
