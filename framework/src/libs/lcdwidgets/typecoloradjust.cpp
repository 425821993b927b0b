#include "typecoloradjust.h"
#include "inputcheck_p.h"

#include "lcdspinbox.h"
#include "spinfields_p.h"
#include "spinrow_p.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

namespace LCD {
namespace Widget {

namespace {

// The colour itself, painted: no style sheet per colour.
class ColorSwatch : public QWidget
{
public:
    explicit ColorSwatch(QWidget* parent) : QWidget(parent)
    {
        setProperty("isColorSwatch", true);
        setAttribute(Qt::WA_OpaquePaintEvent, false);
    }
    void setColor(QColor const& c)
    {
        if (c == m_color)
            return;
        m_color = c;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(QPen(palette().color(QPalette::WindowText), 1));
        p.setBrush(m_color);
        p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    }

private:
    QColor m_color = Qt::black;
};

} // namespace

struct LCDWIDGETS_HIDDEN TypeColorAdjust::Impl
{
    SpinFields* fields = nullptr;
    ColorSwatch* swatch = nullptr;
    QColor color = Qt::black;
};

TypeColorAdjust::TypeColorAdjust(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setRightIconButtonHide(true);
    dynamicLayout()->addStretch();
    d->swatch = new ColorSwatch(dynamicFrame());
    d->swatch->setFixedSize(32, 24);
    dynamicLayout()->addWidget(d->swatch);
    d->fields = new SpinFields(this, dynamicLayout());
    d->fields->setCaptions({QStringLiteral("R"), QStringLiteral("G"), QStringLiteral("B")});
    for (int i = 0; i < 3; ++i)
        d->fields->setRange(i, 0, 255);
    d->fields->setFontSize(contentFontSize());
    d->fields->valueChanged = [this](int, int) { channelChanged(); };
    d->fields->finished = [this] {
        emit signalCloseEditStatus();
        emit signalEditFinished();
    };
}

TypeColorAdjust::~TypeColorAdjust() = default;

void TypeColorAdjust::channelChanged()
{
    d->color = QColor(d->fields->box(0)->value(), d->fields->box(1)->value(), d->fields->box(2)->value());
    d->swatch->setColor(d->color);
    emit signalValueChanged(QVariant(d->color));
}

void TypeColorAdjust::setColor(QColor const& color)
{
    if (!color.isValid()) {
        qWarning().noquote() << QStringLiteral("[TypeColorAdjust] setColor: the colour is not valid, ignored");
        return;
    }
    QColor const rgb = color.toRgb();
    d->color = QColor(rgb.red(), rgb.green(), rgb.blue());
    d->fields->setValue(0, d->color.red());
    d->fields->setValue(1, d->color.green());
    d->fields->setValue(2, d->color.blue());
    d->swatch->setColor(d->color);
}

QColor TypeColorAdjust::color() const { return d->color; }

void TypeColorAdjust::setLabelValue(QVariant value, int)
{
    if (value.type() == QVariant::Color) {
        setColor(value.value<QColor>());
        return;
    }
    QString const text = value.toString().trimmed();
    // Checked first: QColor would warn about an unknown name itself.
    if (text.isEmpty() || !QColor::isValidColor(text)) {
        qWarning().noquote() << QStringLiteral("[TypeColorAdjust] setLabelValue: \"%1\" is not a colour, ignored").arg(text);
        return;
    }
    setColor(QColor(text));
}

QVariant TypeColorAdjust::getLabelValue() { return QVariant(d->color); }

void TypeColorAdjust::editValue()
{
    if (d->fields->hasKnob())
        return;
    if (!canEdit(d->fields->box(0)) || !d->fields->start())
        return;
    CommonItemType::editValue();
    emit signalEditStarted();
}

void TypeColorAdjust::closeEditValue()
{
    d->fields->end();
    CommonItemType::closeEditValue();
}

void TypeColorAdjust::setSingleStep(float step)
{
    if (!(step >= 1.0f) || step > 255.0f) {
        qWarning().noquote() << QStringLiteral("[TypeColorAdjust] setSingleStep: %1 is not a step of 0..255, ignored")
                                    .arg(static_cast<double>(step));
        return;
    }
    for (int i = 0; i < 3; ++i)
        d->fields->box(i)->setSingleStep(truncateToInt(step));
}

void TypeColorAdjust::setContentDisabled(bool disabled) const
{
    d->fields->setEnabled(!disabled);
    d->swatch->setEnabled(!disabled);
}

void TypeColorAdjust::setContentFontSize(int size)
{
    if (size <= 0) {
        qWarning().noquote() << QStringLiteral("[TypeColorAdjust] setContentFontSize: %1 is not a size, ignored").arg(size);
        return;
    }
    if (!fontSizeOk("TypeColorAdjust", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    d->fields->setFontSize(size);
}

int TypeColorAdjust::currentChannel() const { return d->fields->current(); }

} // namespace Widget
} // namespace LCD
