#include "nqlistwidget.h"
#include "inputcheck_p.h"

#include "dropcombobox.h"
#include "knoblevel.h"
#include "wraplistdelegate.h"

#include <QDebug>
#include <QKeyEvent>
#include <QTimer>
#include <cmath>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN NQListWidget::Impl
{
    NQListWidget* q;
    ScrollingTextDelegate* scrolling = nullptr;
    WrapListDelegate* wrapping = nullptr;
    QTimer* timer = nullptr;
    int interval = kScrollInterval;
    int fontSize = 20;
    bool wrap = false;

    explicit Impl(NQListWidget* owner) : q(owner) {}

    void startScroll()
    {
        if (wrap || !q->hasFocus())
            return;
        if (!timer) {
            timer = new QTimer(q);
            timer->setInterval(interval);
            QObject::connect(timer, &QTimer::timeout, q, [this] { scrolling->advance(); });
        }
        scrolling->setScrollingRow(q->currentRow());
        q->viewport()->update(); // the row's text is measured as it is painted
        timer->start();
    }
    void stopScroll()
    {
        if (timer)
            timer->stop();
        scrolling->reset();
        q->viewport()->update();
    }
};

NQListWidget::NQListWidget(QWidget* parent) : QListWidget(parent), d(std::make_unique<Impl>(this))
{
    setProperty("isNQListWidget", true);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformItemSizes(false);
    d->scrolling = new ScrollingTextDelegate(this);
    setItemDelegate(d->scrolling);
    connect(d->scrolling, &ScrollingTextDelegate::requestUpdate, viewport(), qOverload<>(&QWidget::update));
    connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!d->wrap)
            d->scrolling->setScrollingRow(row);
    });
}

NQListWidget::~NQListWidget() = default;

void NQListWidget::setCurrentIndex(int row)
{
    if (row < -1 || row >= count()) {
        qDebug().noquote() << QStringLiteral("[NQListWidget] setCurrentIndex: index %1 out of range (count %2)")
                                  .arg(row)
                                  .arg(count());
        return;
    }
    setCurrentRow(row);
    if (row >= 0)
        scrollToItem(item(row));
}

int NQListWidget::currentIndex() const { return currentRow(); }

void NQListWidget::setContentFontSize(int size)
{
    if (size < 1) {
        qDebug() << "[NQListWidget] setContentFontSize: font size must be positive, got" << size;
        return;
    }
    if (!fontSizeOk("NQListWidget", "setContentFontSize", size))
        return;
    d->fontSize = size;
    QFont f = font();
    f.setPixelSize(size);
    setFont(f);
}

int NQListWidget::contentFontSize() const { return d->fontSize; }

void NQListWidget::setWrapText(bool wrap)
{
    if (wrap == d->wrap)
        return;
    d->wrap = wrap;
    if (wrap) {
        d->stopScroll();
        if (!d->wrapping)
            d->wrapping = new WrapListDelegate(this);
        setItemDelegate(d->wrapping);
        setWordWrap(true);
    } else {
        setItemDelegate(d->scrolling);
        setWordWrap(false);
        d->startScroll();
    }
    scheduleDelayedItemsLayout();
}

bool NQListWidget::wrapText() const { return d->wrap; }

void NQListWidget::setScrollInterval(int ms)
{
    if (ms < 1) {
        qDebug() << "[NQListWidget] setScrollInterval: interval must be positive, got" << ms;
        return;
    }
    d->interval = ms;
    if (d->timer)
        d->timer->setInterval(ms);
}

int NQListWidget::visibleCount() const
{
    int n = 0;
    for (int i = 0; i < count(); ++i)
        n += isRowHidden(i) ? 0 : 1;
    return n;
}

void NQListWidget::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
        event->accept();
        int const dir = event->key() == Qt::Key_Up ? -1 : 1;
        float const level = std::fabs(knobLevel(event));
        int steps = level >= 1.0f ? static_cast<int>(qMin(level, float(count()))) : 1;
        int row = currentRow();
        int target = row;
        if (row < 0) {
            // No current row yet: the first turn lands on the first (or last) visible one.
            for (int i = dir > 0 ? 0 : count() - 1; i >= 0 && i < count(); i += dir)
                if (!isRowHidden(i)) {
                    target = i;
                    break;
                }
        } else {
            for (int i = row + dir; steps > 0 && i >= 0 && i < count(); i += dir)
                if (!isRowHidden(i)) {
                    target = i;
                    --steps;
                }
        }
        if (target != row && target >= 0)
            setCurrentIndex(target);
        return;
    }
    case Qt::Key_Enter:
    case Qt::Key_Return:
        event->accept();
        if (QListWidgetItem* it = currentItem(); it && !isRowHidden(currentRow())) {
            emit itemActivated(it);
            emit signalActivated(currentRow());
        }
        return;
    case Qt::Key_Escape:
        event->accept();
        emit sigCloseEdit();
        return;
    default:
        QListWidget::keyPressEvent(event);
    }
}

void NQListWidget::focusInEvent(QFocusEvent* event)
{
    QListWidget::focusInEvent(event);
    d->startScroll();
}

void NQListWidget::focusOutEvent(QFocusEvent* event)
{
    QListWidget::focusOutEvent(event);
    if (!d->wrap)
        d->stopScroll();
}

void NQListWidget::resizeEvent(QResizeEvent* event)
{
    QListWidget::resizeEvent(event);
    if (d->wrap)
        scheduleDelayedItemsLayout(); // wrapped rows change height with the width
}

} // namespace Widget
} // namespace LCD
