#include "typegraphicwidget.h"

#include "stylehelper.h"

#include <QDebug>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

namespace LCD {
namespace Widget {

namespace {
// The area paints the cached scaled picture; the theme draws its frame.
class GraphicArea : public QWidget
{
public:
    explicit GraphicArea(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_StyledBackground); }

    void setSource(QPixmap const& pixmap)
    {
        source = pixmap;
        rescale();
    }
    QPixmap source;
    QPixmap scaled;

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QWidget::resizeEvent(event);
        rescale();
    }
    void paintEvent(QPaintEvent*) override
    {
        if (scaled.isNull())
            return;
        QPainter p(this);
        p.drawPixmap((width() - scaled.width()) / 2, (height() - scaled.height()) / 2, scaled);
    }

private:
    void rescale()
    {
        if (source.isNull() || width() < 1 || height() < 1) {
            scaled = QPixmap();
        } else {
            scaled = source.scaled(size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        }
        update();
    }
};
} // namespace

struct LCDWIDGETS_HIDDEN TypeGraphicWidget::Impl
{
    GraphicArea* area = nullptr;
    QString path;
};

TypeGraphicWidget::TypeGraphicWidget(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setRightIconButtonHide(true);
    d->area = new GraphicArea(dynamicFrame());
    d->area->setObjectName(QStringLiteral("graphicArea"));
    d->area->setProperty("graphicState", QStringLiteral("empty"));
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->area);
    setPictureHeight(45);
}

TypeGraphicWidget::~TypeGraphicWidget() = default;

bool TypeGraphicWidget::setPicture(QString const& path)
{
    QPixmap pixmap;
    if (path.isEmpty() || !QFileInfo(path).isFile() || !pixmap.load(path)) {
        qWarning().noquote() << "[TypeGraphicWidget] picture not found:" << path;
        d->path.clear();
        d->area->setSource(QPixmap());
        setStyleProperty(d->area, "graphicState", QStringLiteral("missing"));
        return false;
    }
    d->path = path;
    d->area->setSource(pixmap);
    setStyleProperty(d->area, "graphicState", QStringLiteral("ready"));
    return true;
}

void TypeGraphicWidget::setPixmap(QPixmap const& pixmap)
{
    if (pixmap.isNull()) {
        qWarning() << "[TypeGraphicWidget] null picture";
        return;
    }
    d->path.clear();
    d->area->setSource(pixmap);
    setStyleProperty(d->area, "graphicState", QStringLiteral("ready"));
}

void TypeGraphicWidget::clearPicture()
{
    d->path.clear();
    d->area->setSource(QPixmap());
    setStyleProperty(d->area, "graphicState", QStringLiteral("empty"));
}

QString TypeGraphicWidget::picturePath() const { return d->path; }

bool TypeGraphicWidget::hasPicture() const { return !d->area->source.isNull(); }

void TypeGraphicWidget::setPictureHeight(int h)
{
    if (h < 1 || h > 4096) {
        qWarning() << "[TypeGraphicWidget] invalid picture height:" << h;
        return;
    }
    d->area->setFixedSize(16 * h / 9, h);
}

QSize TypeGraphicWidget::pictureAreaSize() const { return d->area->size(); }

QPixmap TypeGraphicWidget::shownPixmap() const { return d->area->scaled; }

void TypeGraphicWidget::setLabelValue(QVariant value, int) { setPicture(value.toString()); }

QVariant TypeGraphicWidget::getLabelValue() { return d->path; }

void TypeGraphicWidget::editValue() { emit signalClicked(false); }

void TypeGraphicWidget::setContentDisabled(bool disabled) const { d->area->setDisabled(disabled); }

QWidget* TypeGraphicWidget::pictureArea() const { return d->area; }

} // namespace Widget
} // namespace LCD
