#include "typeitemdashboard.h"

#include "dashboardlabel.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <cmath>

namespace LCD {
namespace Widget {

namespace {

constexpr int kDefaultDialSide = 150;

struct Dial
{
    QWidget* cell = nullptr;
    DashBoardWidget* dial = nullptr;
    DashBoardLabel* label = nullptr;
    QLabel* caption = nullptr;
};

// The value label lies over the open bottom of the dial's arc, below the pointer's
// pivot.
void placeLabel(Dial const& e)
{
    int const w = e.dial->width();
    int const h = e.dial->height();
    int const side = qMin(w, h);
    double const R = side / 3.0;
    int const top = h / 2 + int(R * 0.5);
    int const bottom = h / 2 + side * 9 / 20;
    int const width = int(2 * R * 0.9);
    e.label->setGeometry(w / 2 - width / 2, top, qMax(0, width), qMax(0, bottom - top));
}

} // namespace

struct LCDWIDGETS_HIDDEN TypeItemDashBoard::Impl
{
    QWidget* strip = nullptr;
    QHBoxLayout* stripLayout = nullptr;
    QMap<int, Dial> dials;
    DashBoardWidget* current = nullptr;
    QSize itemSize = QSize(kDefaultDialSide, kDefaultDialSide);

    int keyOf(DashBoardWidget const* dial) const
    {
        for (auto it = dials.cbegin(); it != dials.cend(); ++it)
            if (it->dial == dial)
                return it.key();
        return -1;
    }
    bool owns(DashBoardWidget const* dial) const
    {
        for (Dial const& e : dials)
            if (e.dial == dial)
                return true;
        return false;
    }
};

TypeItemDashBoard::TypeItemDashBoard(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setLeftIconButtonHide(true);
    setRightIconButtonHide(true);
    setItemTitleLabelHide(true);
    setFocusPolicy(Qt::ClickFocus);

    d->strip = new QWidget(dynamicFrame());
    d->stripLayout = new QHBoxLayout(d->strip);
    d->stripLayout->setContentsMargins(0, 4, 0, 4);
    d->stripLayout->setSpacing(8);
    dynamicLayout()->addWidget(d->strip, 1);
    rowLayout()->setStretchFactor(dynamicFrame(), 1);
    installEventFilter(this);
}

TypeItemDashBoard::~TypeItemDashBoard() = default;

void TypeItemDashBoard::setListItems(QMap<int, DashBoardData> const& items)
{
    for (Dial const& e : qAsConst(d->dials))
        delete e.cell;
    d->dials.clear();
    d->current = nullptr;
    while (QLayoutItem* item = d->stripLayout->takeAt(0))
        delete item;

    d->stripLayout->addStretch();
    for (auto it = items.cbegin(); it != items.cend(); ++it) {
        int const key = it.key();
        Dial e;
        e.cell = new QWidget(d->strip);
        auto* column = new QVBoxLayout(e.cell);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(2);
        e.dial = new DashBoardWidget(e.cell);
        e.dial->setDashBoardData(it.value());
        e.dial->setItemSize(d->itemSize);
        // The value is shown by the label laid over the dial.
        e.dial->setTextColor(Qt::transparent);
        e.label = new DashBoardLabel(QSize(), e.dial);
        e.label->setAttribute(Qt::WA_TransparentForMouseEvents);
        e.label->setContentFontSize(contentFontSize());
        e.caption = new QLabel(it.value().text, e.cell);
        e.caption->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        e.caption->setProperty("isDashBoardCaption", true);
        QFont font = e.caption->font();
        font.setPixelSize(qMax(1, contentFontSize() * 4 / 5));
        e.caption->setFont(font);
        column->addWidget(e.dial, 0, Qt::AlignHCenter);
        column->addWidget(e.caption);
        d->stripLayout->addWidget(e.cell);
        d->stripLayout->addStretch();

        connect(e.dial, &DashBoardWidget::signalDrawValueChanged, e.label, &DashBoardLabel::slotDrawValueChanged);
        connect(e.dial, &DashBoardWidget::signalValueChanged, this,
                [this, key](QVariant const& v) { emit signalDashBoardValueChanged(key, v); });
        auto backToRow = [this] { setFocus(Qt::OtherFocusReason); };
        connect(e.dial, &DashBoardWidget::signalCloseEditStatus, this, backToRow);
        connect(e.dial, &DashBoardWidget::signalEditFinished, this, backToRow);
        e.dial->installEventFilter(this);
        placeLabel(e);
        d->dials.insert(key, e);
    }
}

void TypeItemDashBoard::setCurrentValue(int key, QVariant value)
{
    auto it = d->dials.find(key);
    if (it == d->dials.end()) {
        qWarning() << "[TypeItemDashBoard] setCurrentValue: no dial with key" << key;
        return;
    }
    bool ok = false;
    double const v = value.toDouble(&ok);
    if (!ok || !std::isfinite(v)) {
        qWarning() << "[TypeItemDashBoard] setCurrentValue: not a number for key" << key << ":" << value;
        return;
    }
    it->dial->setCurrentValue(v);
}

QVariant TypeItemDashBoard::getCurrentValue(int key)
{
    auto it = d->dials.constFind(key);
    if (it == d->dials.cend()) {
        qDebug() << "[TypeItemDashBoard] getCurrentValue: no dial with key" << key;
        return QVariant();
    }
    return QVariant(it->dial->targetValue());
}

void TypeItemDashBoard::setItemVisible(int key, bool visible)
{
    auto it = d->dials.find(key);
    if (it == d->dials.end()) {
        qWarning() << "[TypeItemDashBoard] setItemVisible: no dial with key" << key;
        return;
    }
    it->cell->setVisible(visible);
    if (!visible && it->dial == d->current) {
        it->dial->setSelected(false);
        d->current = nullptr;
        if (hasFocus())
            moveCurrent(+1);
    }
}

void TypeItemDashBoard::setItemSize(QSize size)
{
    if (size.width() < 0 || size.height() < 0) {
        qWarning() << "[TypeItemDashBoard] setItemSize: negative size, ignored:" << size;
        return;
    }
    d->itemSize = size;
    for (Dial const& e : qAsConst(d->dials)) {
        e.dial->setItemSize(size);
        placeLabel(e);
    }
}

void TypeItemDashBoard::setCurrentSelected(DashBoardWidget* dial)
{
    if (!dial || !d->owns(dial)) {
        qWarning() << "[TypeItemDashBoard] setCurrentSelected: not a dial of this row";
        return;
    }
    for (Dial const& e : qAsConst(d->dials))
        e.dial->setSelected(e.dial == dial);
    d->current = dial;
}

void TypeItemDashBoard::setContentFontSize(int size)
{
    if (size < 1 || size > DashBoardWidget::kMaxFontSize) {
        qWarning() << "[TypeItemDashBoard] setContentFontSize: size refused:" << size;
        return;
    }
    CommonItemType::setContentFontSize(size);
    DashBoardWidget::setContentFontSize(size);
    for (Dial const& e : qAsConst(d->dials)) {
        e.label->setContentFontSize(size);
        QFont font = e.caption->font();
        font.setPixelSize(qMax(1, size * 4 / 5));
        e.caption->setFont(font);
    }
}

int TypeItemDashBoard::getWidgetRow()
{
    int const h = itemHeight();
    if (h <= 0)
        return 1;
    qint64 const needed = qint64(d->itemSize.height()) + contentFontSize() * 2;
    return int(qBound<qint64>(1, (needed + h - 1) / h, 1000));
}

void TypeItemDashBoard::editValue()
{
    DashBoardWidget* first = nullptr;
    for (Dial const& e : qAsConst(d->dials)) {
        if (!e.cell->isHidden()) {
            first = e.dial;
            break;
        }
    }
    if (first)
        setCurrentSelected(first);
    else if (d->current)
        setCurrentSelected(d->current);
    if (!d->current || !canEdit(d->strip)) {
        qDebug() << "[TypeItemDashBoard] editValue: no dial to edit";
        return;
    }
    setFocus(Qt::OtherFocusReason);
    CommonItemType::editValue();
    emit signalEditStarted();
}

void TypeItemDashBoard::setContentDisabled(bool disabled) const { d->strip->setDisabled(disabled); }

DashBoardWidget* TypeItemDashBoard::dashBoard(int key) const
{
    auto it = d->dials.constFind(key);
    return it == d->dials.cend() ? nullptr : it->dial;
}

DashBoardWidget* TypeItemDashBoard::currentDashBoard() const { return d->current; }

DashBoardLabel* TypeItemDashBoard::dashBoardLabel(int key) const
{
    auto it = d->dials.constFind(key);
    return it == d->dials.cend() ? nullptr : it->label;
}

void TypeItemDashBoard::moveCurrent(int direction)
{
    QList<int> const keys = d->dials.keys();
    int index = d->current ? keys.indexOf(d->keyOf(d->current)) : (direction > 0 ? -1 : keys.size());
    for (index += direction; index >= 0 && index < keys.size(); index += direction) {
        Dial const& e = d->dials[keys.at(index)];
        if (!e.cell->isHidden()) {
            setCurrentSelected(e.dial);
            return;
        }
    }
}

bool TypeItemDashBoard::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != this) {
        if (event->type() == QEvent::Resize) {
            for (Dial const& e : qAsConst(d->dials))
                if (e.dial == watched)
                    placeLabel(e);
        }
        // A dial's keys are its own: the row's edit-key filter must not see them.
        return false;
    }
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
        moveCurrent(-1);
        return true;
    case Qt::Key_Down:
        moveCurrent(+1);
        return true;
    case Qt::Key_Escape:
        if (QWidget* parent = parentWidget())
            parent->setFocus(Qt::OtherFocusReason);
        else
            clearFocus();
        for (Dial const& e : qAsConst(d->dials))
            e.dial->setSelected(false);
        emit signalCloseEditStatus();
        return true;
    case Qt::Key_Enter:
    case Qt::Key_Return:
        if (d->current && d->current->isEnabled())
            d->current->setFocus(Qt::OtherFocusReason);
        return true;
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}

} // namespace Widget
} // namespace LCD
