#include "typepreviewwidget.h"

#include "previewwidget.h"
#include "stylehelper.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN TypePreviewWidget::Impl
{
    PreviewWidget* preview = nullptr;
    bool editing = false;
};

TypePreviewWidget::TypePreviewWidget(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setItemTitleLabelHide(true);
    setRightIconButtonHide(true);
    setProperty("isPreviewEditing", false);
    d->preview = new PreviewWidget(dynamicFrame());
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->preview);
    dynamicLayout()->addStretch();
    d->preview->setDrawViewHeight(180);
    setFocusPolicy(Qt::StrongFocus);
    installEventFilter(this);
}

TypePreviewWidget::~TypePreviewWidget() = default;

PreviewWidget* TypePreviewWidget::preview() const { return d->preview; }

void TypePreviewWidget::setPreviewHeight(int h)
{
    qint64 const view = qint64(h) - contentFontSize(); // h may be INT_MIN
    if (view < 1) {
        qWarning() << "[TypePreviewWidget] invalid preview height:" << h;
        return;
    }
    d->preview->setDrawViewHeight(int(view));
}

void TypePreviewWidget::setLabelValue(QVariant value, int)
{
    bool ok = false;
    int const index = value.toInt(&ok);
    d->preview->setCurrentLayer(ok ? index : -2);
}

QVariant TypePreviewWidget::getLabelValue() { return d->preview->currentLayer(); }

void TypePreviewWidget::setEditing(bool editing)
{
    d->editing = editing;
    setEdit(editing);
    setStyleProperty(this, "isPreviewEditing", editing);
}

void TypePreviewWidget::editValue()
{
    if (d->preview->layerCount() == 0 || !isEnabled() || !getContentEnabled()) {
        qDebug() << "[TypePreviewWidget] no layers to choose from";
        return;
    }
    if (d->preview->currentLayer() < 0)
        d->preview->setCurrentLayer(0);
    setEditing(true);
    setFocus(Qt::OtherFocusReason);
    emit signalEditStarted();
}

void TypePreviewWidget::closeEditValue()
{
    if (d->editing)
        setEditing(false);
    CommonItemType::closeEditValue();
}

void TypePreviewWidget::setContentDisabled(bool disabled) const { d->preview->setDisabled(disabled); }

void TypePreviewWidget::setContentFontSize(int size)
{
    if (size < 1 || size > 1024) { // no panel font is larger; the derived sizes would overflow
        qWarning() << "Invalid font size:" << size;
        return;
    }
    CommonItemType::setContentFontSize(size);
    d->preview->setContentFontSize(qMax(1, size * 7 / 10));
}

void TypePreviewWidget::setCurrentItem(bool current)
{
    if (!current && d->editing)
        closeEditValue();
}

int TypePreviewWidget::getWidgetRow() { return 1; }

bool TypePreviewWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != this || event->type() != QEvent::KeyPress || !d->editing)
        return QFrame::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
        int const count = d->preview->layerCount();
        int const from = d->preview->currentLayer();
        int const to = qBound(0, from + (key->key() == Qt::Key_Up ? 1 : -1), count - 1);
        if (count > 0 && to != from) {
            d->preview->setCurrentLayer(to);
            emit signalCurrentLayerChanged(to);
            emit signalValueChanged(QVariant(to));
        }
        return true;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        setEditing(false);
        if (parentWidget())
            parentWidget()->setFocus(Qt::OtherFocusReason);
        emit signalCloseEditStatus();
        emit signalEditFinished();
        return true;
    default:
        return QFrame::eventFilter(watched, event);
    }
}

} // namespace Widget
} // namespace LCD
