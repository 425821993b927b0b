#include "dropcombobox.h"
#include "sheet_p.h"
#include "inputcheck_p.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDebug>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QTimer>
#include <cmath>

namespace LCD {
namespace Widget {

namespace {

// Largest font size the combo accepts: beyond it rows and widths stop making sense
// on any screen, and products stay far from the int limits.
constexpr int kMaxFontSize = 512;
// Room beside the text: line-edit margins and frame, and the arrow when the theme
// gives it no size of its own.
constexpr int kTextFrame = 12;
constexpr int kDefaultArrow = 20;
// Narrowest combo, so that an empty one can still be seen and clicked.
constexpr int kMinWidth = 48;
// Narrowest standard popup view.
constexpr int kMinPopupWidth = 120;

} // namespace

// ---------------------------------------------------------------------------
// ScrollingTextDelegate

ScrollingTextDelegate::ScrollingTextDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

void ScrollingTextDelegate::setScrollingRow(int row)
{
    if (row == m_row)
        return;
    m_row = row;
    m_offset = 0;
    m_textWidth = 0;
    m_room = 0;
}

void ScrollingTextDelegate::reset()
{
    m_row = -1;
    m_offset = 0;
    m_textWidth = 0;
    m_room = 0;
}

void ScrollingTextDelegate::advance()
{
    if (m_row < 0 || m_textWidth <= m_room)
        return;
    m_offset = (m_offset + kStep) % (m_textWidth + kGap);
    emit requestUpdate();
}

void ScrollingTextDelegate::paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    if (index.row() != m_row) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem opt(option);
    initStyleOption(&opt, index);
    QWidget const* widget = opt.widget;
    QStyle const* style = widget ? widget->style() : QApplication::style();

    QRect const textRect = style->subElementRect(QStyle::SE_ItemViewItemText, &opt, widget);
    QString const text = opt.text;
    opt.text.clear();
    m_textWidth = opt.fontMetrics.horizontalAdvance(text);
    m_room = textRect.width();
    if (m_textWidth <= m_room) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }

    // Background, selection and icon as usual; the text slides inside its rectangle.
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, widget);
    painter->save();
    painter->setClipRect(textRect);
    painter->setFont(opt.font);
    bool const selected = opt.state & QStyle::State_Selected;
    painter->setPen(opt.palette.color(QPalette::Normal, selected ? QPalette::HighlightedText : QPalette::Text));
    int const x = textRect.left() - m_offset;
    int const flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;
    painter->drawText(QRect(x, textRect.top(), m_textWidth, textRect.height()), flags, text);
    painter->drawText(QRect(x + m_textWidth + kGap, textRect.top(), m_textWidth, textRect.height()), flags, text);
    painter->restore();
}

// ---------------------------------------------------------------------------
// CustomListView

CustomListView::CustomListView(QWidget* parent) : QListView(parent)
{
    setObjectName(QStringLiteral("CustomListView"));
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    m_delegate = new ScrollingTextDelegate(this);
    setItemDelegate(m_delegate);
    connect(m_delegate, &ScrollingTextDelegate::requestUpdate, this, [this] {
        QModelIndex const current = currentIndex();
        if (current.isValid())
            viewport()->update(visualRect(current));
    });
}

CustomListView::~CustomListView() = default;

void CustomListView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (currentIndex().isValid())
            emit activated(currentIndex());
        event->accept();
        return;
    case Qt::Key_Escape:
        m_quietHide = true;
        hide();
        m_quietHide = false;
        event->accept();
        emit sigCloseEdit();
        return;
    default:
        QListView::keyPressEvent(event);
    }
}

void CustomListView::hideEvent(QHideEvent* event)
{
    QListView::hideEvent(event);
    // The list was the active window: without a window manager nobody gives the
    // page's window the keyboard back.
    if (QWidget* owner = parentWidget()) {
        QWidget* top = owner->window();
        QWidget* active = QApplication::activeWindow();
        if (top->isVisible() && (!active || active == this)) {
            top->activateWindow();
            QApplication::setActiveWindow(top);
        }
    }
    // A popup also closes when the user clicks elsewhere: that ends the edit too.
    if (!m_quietHide)
        emit sigCloseEdit();
}

void CustomListView::currentChanged(QModelIndex const& current, QModelIndex const& previous)
{
    m_delegate->setScrollingRow(current.isValid() ? current.row() : -1);
    QListView::currentChanged(current, previous);
}

// ---------------------------------------------------------------------------
// DropCombobox

struct LCDWIDGETS_HIDDEN DropCombobox::Impl
{
    int fontSize = -1;
    QRect homeRect; // null: (0, 0, -1, -1)
    bool automatic = true;
    bool needShow = true;
    bool current = false;
    CustomListView* list = nullptr;
    QTimer* scrollTimer = nullptr;
    QSize arrow;
    int widthLimit = 0;
    int widest = 0;     // widest visible entry text, as last measured
    bool editing = false; // a list was opened by showPopup() and has not ended yet
    bool viewPrepared = false; // the standard popup exists and is watched
    QString viewSheet;  // standard popup's sheet, as last applied
};

DropCombobox::DropCombobox(QWidget* parent) : DropCombobox(true, parent) {}

DropCombobox::DropCombobox(bool haveArrow, QWidget* parent) : QComboBox(parent), d(std::make_unique<Impl>())
{
    setProperty("isHaveArrow", haveArrow);
    createWidget();
    QAbstractItemModel* m = model();
    connect(m, &QAbstractItemModel::rowsInserted, this,
            [this](QModelIndex const&, int first, int last) { widenFor(first, last); });
    connect(m, &QAbstractItemModel::rowsRemoved, this, &DropCombobox::setComboBoxMaxWidth);
    connect(m, &QAbstractItemModel::dataChanged, this, &DropCombobox::setComboBoxMaxWidth);
    connect(m, &QAbstractItemModel::modelReset, this, &DropCombobox::setComboBoxMaxWidth);
    createView();
}

DropCombobox::~DropCombobox() = default;

void DropCombobox::createWidget()
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    lineEdit()->setReadOnly(true);
    lineEdit()->installEventFilter(this);
    // The standard popup (a window with its view) is made when first opened.

    d->scrollTimer = new QTimer(this);
    d->scrollTimer->setInterval(kScrollInterval);

    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &DropCombobox::slotIndexChanged);
    // The standard popup's keyboard choice arrives as the combo's activated().
    connect(this, QOverload<int>::of(&QComboBox::activated), this, [this](int) { finishEdit(); });
    setComboBoxMaxWidth();
}

void DropCombobox::createView()
{
    d->list = new CustomListView(this);
    d->list->setModel(model());
    d->list->hide();
    connect(d->scrollTimer, &QTimer::timeout, d->list->scrollingDelegate(), &ScrollingTextDelegate::advance);
    connect(d->list, &QAbstractItemView::activated, this, [this](QModelIndex const& index) {
        if (!index.isValid())
            return;
        setCurrentIndex(index.row());
        d->list->m_quietHide = true;
        d->list->hide();
        d->list->m_quietHide = false;
        finishEdit();
    });
    connect(d->list, &CustomListView::sigCloseEdit, this, [this] {
        d->editing = false;
        slotCloseEdit();
        emit sigCloseEdit();
    });
}

void DropCombobox::finishEdit()
{
    if (!d->editing)
        return;
    d->editing = false;
    slotCloseEdit();
    emit eidtFinished(currentIndex());
}

void DropCombobox::setFontSize(int size)
{
    if (size < 1 || size > kMaxFontSize) {
        qDebug() << "[DropCombobox] setFontSize: size out of range:" << size;
        return;
    }
    d->fontSize = size;
    QFont f = lineEdit()->font();
    f.setPixelSize(size);
    lineEdit()->setFont(f);
    setFont(f);
    applySheet();
    setComboBoxMaxWidth();
}

int DropCombobox::fontSize() const { return d->fontSize; }

void DropCombobox::applySheet()
{
    QString sheet;
    if (d->fontSize > 0)
        sheet = QStringLiteral("QComboBox{padding-right:%1px}").arg(d->fontSize / 4);
    if (d->arrow.isValid())
        sheet += QStringLiteral("QComboBox::down-arrow{width:%1px;height:%2px;}").arg(d->arrow.width()).arg(d->arrow.height());
    if (sheet != styleSheet())
        setStyleSheet(sheet);
}

void DropCombobox::setHeight(int height)
{
    if (height < 0) {
        qDebug() << "[DropCombobox] setHeight: negative height refused:" << height;
        return;
    }
    if (height > QWIDGETSIZE_MAX) {
        qDebug() << "[DropCombobox] setHeight: height above" << QWIDGETSIZE_MAX << "refused:" << height;
        return;
    }
    lineEdit()->setFixedHeight(height);
    setFixedHeight(height);
}

void DropCombobox::setHomeRect(QRect rect) { d->homeRect = rect; }

QRect DropCombobox::homeRect() const { return d->homeRect; }

void DropCombobox::setLineEditAlign(QFlags<Qt::AlignmentFlag> align) { lineEdit()->setAlignment(align); }

void DropCombobox::setComboxAutomaticCal(bool automatic)
{
    d->automatic = automatic;
    if (automatic)
        setComboBoxMaxWidth();
}

void DropCombobox::setIsNeedShowCombox(bool show) { d->needShow = show; }

bool DropCombobox::isNeedShowCombox() const { return d->needShow; }

void DropCombobox::setCurrentItem(bool current) { d->current = current; }

bool DropCombobox::isCurrentItem() const { return d->current; }

void DropCombobox::setArrowSize(QSize size)
{
    if (!sizeOk("DropCombobox", "setArrowSize", size))
        return;
    d->arrow = (size.width() >= 0 && size.height() >= 0) ? size : QSize();
    applySheet();
    setComboBoxMaxWidth();
}

void DropCombobox::setComboBoxWidthLimit(int width)
{
    d->widthLimit = qMax(0, width);
    setComboBoxMaxWidth();
}

int DropCombobox::textWidth(int row) const
{
    QFontMetrics const fm(lineEdit()->font());
    int w = fm.horizontalAdvance(itemText(row));
    if (!itemIcon(row).isNull())
        w += iconSize().width() + 4;
    return w;
}

void DropCombobox::widenFor(int first, int last)
{
    if (!d->automatic)
        return;
    int widest = d->widest;
    for (int row = first; row <= last; ++row) {
        if (!isRowHidden(row))
            widest = qMax(widest, textWidth(row));
    }
    if (widest == d->widest && minimumWidth() == maximumWidth() && first > 0)
        return;
    d->widest = widest;
    int const arrow = d->arrow.isValid() ? d->arrow.width() : kDefaultArrow;
    int const padding = d->fontSize > 0 ? d->fontSize / 4 : 0;
    qint64 w = qMax<qint64>(kMinWidth, qint64(widest) + kTextFrame + arrow + padding);
    if (d->widthLimit > 0)
        w = qMin<qint64>(w, d->widthLimit);
    int const width = static_cast<int>(qMin<qint64>(w, QWIDGETSIZE_MAX));
    if (minimumWidth() != width || maximumWidth() != width) {
        setFixedWidth(width);
        emit signalWidthChanged(width);
    }
}

void DropCombobox::setComboBoxMaxWidth()
{
    if (!d->automatic)
        return;
    d->widest = 0;
    // A full pass: widenFor() then always applies the width.
    int widest = 0;
    for (int row = 0; row < count(); ++row) {
        if (!isRowHidden(row))
            widest = qMax(widest, textWidth(row));
    }
    d->widest = widest;
    widenFor(0, -1);
}

CustomListView* DropCombobox::getCustomListView() const { return d->list; }

bool DropCombobox::isPopupVisible() const { return d->viewPrepared && view()->isVisible(); }

QAbstractItemView* DropCombobox::standardView()
{
    if (!d->viewPrepared) {
        view()->installEventFilter(this);
        d->viewPrepared = true;
        emit signalStandardViewCreated(view());
    }
    return view();
}

bool DropCombobox::isCustomPopupVisible() const { return d->list && d->list->isVisible(); }

bool DropCombobox::usesCustomPopup() const
{
    QRect const& r = d->homeRect;
    if (r.right() - r.left() <= kSmallHomeWidth - 1 && r.bottom() - r.top() <= kSmallHomeHeight - 1)
        return true;
    return count() > kMaxStandardRows;
}

bool DropCombobox::isRowHidden(int row) const
{
    QVariant const v = itemData(row, kHiddenRowRole);
    return v.isValid() && v.toBool();
}

int DropCombobox::visibleCount() const
{
    int n = 0;
    for (int row = 0; row < count(); ++row)
        n += isRowHidden(row) ? 0 : 1;
    return n;
}

void DropCombobox::applyHiddenRows(QListView* view) const
{
    if (!view)
        return;
    for (int row = 0; row < count(); ++row)
        view->setRowHidden(row, isRowHidden(row));
}

int DropCombobox::rowHeight() const
{
    if (d->fontSize > 0)
        return d->fontSize;
    int const h = view()->sizeHintForRow(0);
    return h > 0 ? h : QFontMetrics(font()).height();
}

void DropCombobox::showPopup()
{
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    if (usesCustomPopup()) {
        showCustomPopupView();
        return;
    }

    d->editing = true;
    QAbstractItemView* v = standardView();
    disconnect(v, &QAbstractItemView::activated, this, nullptr);
    connect(v, &QAbstractItemView::activated, this, [this](QModelIndex const& index) {
        if (!index.isValid())
            return;
        setCurrentIndex(index.row());
        QComboBox::hidePopup();
        finishEdit();
    });
    if (d->fontSize > 0) {
        QString const sheet = QStringLiteral("QListView{font-size: ") + QString::number(d->fontSize)
            + QStringLiteral("px;} QListView::item{height: ") + QString::number(d->fontSize) + QStringLiteral("px;}");
        if (sheet != d->viewSheet) {
            v->setStyleSheet(sheet);
            d->viewSheet = sheet;
        }
    }
    v->setMinimumWidth(kMinPopupWidth);
    applyHiddenRows(qobject_cast<QListView*>(v));
    v->setFocus();
    QComboBox::showPopup();
    v->window()->activateWindow();
    moveListView(v->width());
    settleActivation();
}

void DropCombobox::settleActivation()
{
    // The window system reports the popup's activation later; taken while the popup
    // is open it is ignored, taken after it has closed it would leave a hidden window
    // active and the page without the knob.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void DropCombobox::moveListView(int width)
{
    QRect const home = d->homeRect;
    int const visibleRows = visibleCount();
    qint64 const rowH = rowHeight();
    qint64 const listHeight = visibleRows * rowH;

    QPoint const g = mapToGlobal(QPoint(0, 0));
    int const y = g.y() - home.top();
    qDebug() << "pos: x:" << g.x() - home.left() << "pos: y:" << y;
    qDebug() << "_homeRect: height" << home.height();

    int const popupWidth = qMax(0, qMin(this->width(), width));
    qint64 const H = qint64(home.bottom()) - home.top() + 1;
    qint64 h = 0;
    qint64 top = 0;
    if (y > H / 2) {
        // Lower half: the list ends at the combo's top edge and grows upward.
        h = qMin<qint64>(listHeight, y);
        top = y - h + home.top();
    } else {
        // Upper half: one and a quarter rows below the combo's top.
        h = qMin<qint64>(static_cast<qint64>(std::trunc(double(H) - y - 1.25 * rowH)), listHeight);
        top = static_cast<qint64>(std::trunc(home.top() + y + 1.25 * rowH));
    }
    h = qBound<qint64>(0, h, QWIDGETSIZE_MAX);
    QWidget* popup = view()->window();
    popup->setFixedSize(popupWidth, static_cast<int>(h));
    popup->move(g.x(), static_cast<int>(qBound<qint64>(-QWIDGETSIZE_MAX, top, QWIDGETSIZE_MAX)));
}

void DropCombobox::showCustomPopupView()
{
    QPointer<DropCombobox> guard(this);
    CustomListView* list = d->list;
    list->setFocus();
    QCoreApplication::processEvents();
    if (!guard)
        return;

    QWidget* window = QApplication::activeWindow();
    if (!window || window == list) {
        // A window system without a window manager may leave no window active after
        // a popup closed: the combo's own shown window is the one the user works in.
        window = this->window()->isVisible() && this->window() != this ? this->window() : nullptr;
    }
    if (!window) {
        qWarning("-------activeWindow is null-----");
        return;
    }
    QRect const& home = d->homeRect;
    int const margin = (home.width() <= kSmallHomeWidth && home.height() < kSmallHomeHeight + 1) ? 24 : 32;
    int const w = qMax(0, home.width() / 2);
    int const h = qMax(0, home.height() - margin);

    if (d->fontSize > 0) {
        QString const sheet = QStringLiteral("QListView{font-size: ") + QString::number(d->fontSize) + QStringLiteral("px; }");
        applyStyleSheet(list, sheet);
        list->setIconSize(iconSize());
    }
    applyHiddenRows(list);
    list->setFixedSize(w, h);
    QPoint const topRight = window->mapToGlobal(QPoint(window->width(), 0));
    int const x = topRight.x() - w;
    int const yPos = topRight.y() + margin;
    qDebug() << "pos: x:" << x << "pos: y:" << yPos;
    list->move(x, yPos);

    d->editing = true;
    int row = currentIndex() < 0 ? 0 : currentIndex();
    if (isRowHidden(row)) {
        for (int r = 0; r < count(); ++r) {
            if (!isRowHidden(r)) {
                row = r;
                break;
            }
        }
    }
    list->scrollingDelegate()->reset();
    QModelIndex const index = model()->index(row, modelColumn(), rootModelIndex());
    list->setCurrentIndex(index);
    list->show();
    list->setFocus();
    list->activateWindow();
    if (index.isValid())
        list->scrollTo(index, QAbstractItemView::PositionAtCenter);
    d->scrollTimer->start();
    settleActivation();
}

void DropCombobox::hidePopup()
{
    if (d->list->isVisible()) {
        d->list->m_quietHide = true;
        d->list->hide();
        d->list->m_quietHide = false;
        slotCloseEdit();
    }
    QComboBox::hidePopup();
    if (d->editing) {
        // Closed without a choice (from outside, or a click elsewhere): once the
        // choice that may follow the close has had its turn, report the end.
        QTimer::singleShot(0, this, [this] {
            if (!d->editing || isPopupVisible() || isCustomPopupVisible())
                return;
            d->editing = false;
            emit sigCloseEdit();
        });
    }
}

void DropCombobox::slotCloseEdit()
{
    d->scrollTimer->stop();
    d->list->scrollingDelegate()->reset();
    d->list->viewport()->update();
}

void DropCombobox::slotIndexChanged(int index)
{
    // A text wider than the combo shows its beginning.
    lineEdit()->setCursorPosition(0);
    emit signalIndexChanged(index);
    emit signalValueChanged(itemData(index, Qt::UserRole));
}

bool DropCombobox::isStrContainsChinese(QString text) const
{
    for (QChar const c : text) {
        ushort const u = c.unicode();
        if (u >= 0x4E00 && u <= 0x9FA5)
            return true;
    }
    return false;
}

bool DropCombobox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease && watched == lineEdit()) {
        if (isPopupVisible() || isCustomPopupVisible())
            hidePopup();
        else
            showPopup();
        return true;
    }
    if ((event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease)
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        if (event->type() == QEvent::KeyPress && !isHidden()) {
            bool const wasEditing = d->editing;
            d->editing = false;
            hidePopup();
            if (wasEditing)
                emit sigCloseEdit();
        }
        return true;
    }
    return QComboBox::eventFilter(watched, event);
}

} // namespace Widget
} // namespace LCD
