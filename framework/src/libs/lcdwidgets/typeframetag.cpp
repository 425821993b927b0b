#include "typeframetag.h"
#include "sheet_p.h"

#include "stylehelper.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace LCD {
namespace Widget {

namespace {
char const* kindName(TypeFrameTag::Kind kind)
{
    switch (kind) {
    case TypeFrameTag::Program: return "program";
    case TypeFrameTag::Preview: return "preview";
    case TypeFrameTag::Source: return "source";
    case TypeFrameTag::Custom: return "custom";
    case TypeFrameTag::None: break;
    }
    return "none";
}
} // namespace

struct LCDWIDGETS_HIDDEN TypeFrameTag::Impl
{
    QLabel* tag = nullptr;
    Kind kind = None;
    QColor color;
    int fontSize = 20;
};

TypeFrameTag::TypeFrameTag(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setRightIconButtonHide(true);
    d->tag = new QLabel(dynamicFrame());
    d->tag->setAlignment(Qt::AlignCenter);
    d->tag->setProperty("frameTagKind", QStringLiteral("none"));
    d->tag->hide();
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->tag);
}

TypeFrameTag::~TypeFrameTag() = default;

void TypeFrameTag::setTag(QString const& text, Kind kind)
{
    setTagKind(kind);
    setTagText(text);
}

void TypeFrameTag::setTagText(QString const& text)
{
    d->tag->setText(text);
    d->tag->setVisible(!text.isEmpty());
    // The title gets the room the tag leaves (measured as the theme draws it).
    if (!itemTitle().isEmpty()) {
        d->tag->ensurePolished();
        setItemTitleText(itemTitle());
    }
}

QString TypeFrameTag::tagText() const { return d->tag->text(); }

void TypeFrameTag::setTagKind(Kind kind)
{
    if (kind < None || kind > Custom) {
        qWarning() << "[TypeFrameTag] unknown tag kind:" << int(kind);
        return;
    }
    if (kind == Custom && !d->color.isValid()) {
        qWarning() << "[TypeFrameTag] invalid tag colour";
        return;
    }
    d->kind = kind;
    if (kind != Custom)
        d->color = QColor();
    applyKind();
}

TypeFrameTag::Kind TypeFrameTag::tagKind() const { return d->kind; }

void TypeFrameTag::setTagColor(QColor const& color)
{
    if (!color.isValid()) {
        qWarning() << "[TypeFrameTag] invalid tag colour";
        return;
    }
    d->color = color;
    d->kind = Custom;
    applyKind();
}

QColor TypeFrameTag::tagColor() const { return d->color; }

void TypeFrameTag::applyKind()
{
    // Only a caller's colour needs a sheet of its own; the kinds come from the theme.
    QString sheet = QStringLiteral("QLabel { font-size: %1px; }").arg(d->fontSize);
    if (d->kind == Custom) {
        QColor const text = qGray(d->color.rgb()) > 140 ? Qt::black : Qt::white;
        sheet = QStringLiteral("QLabel { font-size: %1px; background: %2; color: %3; }")
                    .arg(d->fontSize)
                    .arg(d->color.name(QColor::HexArgb), text.name());
    }
    applyStyleSheet(d->tag, sheet);
    setStyleProperty(d->tag, "frameTagKind", QString::fromLatin1(kindName(d->kind)));
}

void TypeFrameTag::setLabelValue(QVariant value, int) { setTagText(value.toString()); }

QVariant TypeFrameTag::getLabelValue() { return tagText(); }

void TypeFrameTag::editValue() { emit signalClicked(false); }

void TypeFrameTag::setContentDisabled(bool disabled) const { d->tag->setDisabled(disabled); }

void TypeFrameTag::setContentFontSize(int size)
{
    if (size < 1 || size > 1024) { // no panel font is larger; the derived sizes would overflow
        qWarning() << "Invalid font size:" << size;
        return;
    }
    CommonItemType::setContentFontSize(size);
    d->fontSize = qMax(1, size * 4 / 5);
    applyKind();
}

QLabel* TypeFrameTag::tagLabel() const { return d->tag; }

} // namespace Widget
} // namespace LCD
