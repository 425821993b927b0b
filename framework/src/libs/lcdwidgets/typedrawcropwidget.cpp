#include "typedrawcropwidget.h"

#include "drawgraphicsview.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN TypeDrawCropWidget::Impl
{
    DrawGraphicsView* view = nullptr;
};

TypeDrawCropWidget::TypeDrawCropWidget(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setLeftIconButtonHide(true);
    setRightIconButtonHide(true);
    setItemTitleLabelHide(true);

    d->view = new DrawGraphicsView(dynamicFrame());
    d->view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 2, 0, 2);
    column->addWidget(d->view);
    column->addStretch();
    dynamicLayout()->addStretch();
    dynamicLayout()->addLayout(column);
    dynamicLayout()->addStretch();
    rowLayout()->setStretchFactor(dynamicFrame(), 1);
}

TypeDrawCropWidget::~TypeDrawCropWidget() = default;

void TypeDrawCropWidget::setItemInfo(std::vector<ItemDataInfo> const& infos) { d->view->setItemInfo(infos); }

void TypeDrawCropWidget::setCropRectInfo(CropRectInfoArray const& infos) { d->view->setCropRectInfo(infos); }

void TypeDrawCropWidget::setCropViewHeight(int h)
{
    qint64 const height = qint64(h) - contentFontSize();
    if (height < 1) {
        qWarning() << "[TypeDrawCropWidget] setCropViewHeight: height refused:" << h;
        return;
    }
    d->view->setDrawViewHeight(int(height));
}

void TypeDrawCropWidget::setContentFontSize(int size)
{
    if (size < 1 || size > 1024) { // no panel font is larger; the derived sizes would overflow
        qWarning() << "[TypeDrawCropWidget] setContentFontSize: size refused:" << size;
        return;
    }
    CommonItemType::setContentFontSize(size);
    d->view->setContentFontSize(size);
}

void TypeDrawCropWidget::setContentDisabled(bool disabled) const
{
    d->view->setDisabled(disabled);
    d->view->viewport()->update();
}

int TypeDrawCropWidget::getWidgetRow()
{
    int const h = itemHeight();
    if (h <= 0)
        return 1;
    qint64 const needed = qint64(d->view->height()) + 4;
    return int(qBound<qint64>(1, (needed + h - 1) / h, 1000));
}

void TypeDrawCropWidget::editValue() { emit signalClicked(false); }

DrawGraphicsView* TypeDrawCropWidget::view() const { return d->view; }

} // namespace Widget
} // namespace LCD
