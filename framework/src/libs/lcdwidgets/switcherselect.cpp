#include "switcherselect.h"

#include "adddevice.h"
#include "lcdtranslate.h"
#include "stylehelper.h"

#include <QApplication>
#include <QDebug>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <unordered_map>

namespace LCD {
namespace Widget {

namespace {
constexpr int kItemWidth = 510;
constexpr int kItemHeight = 52;
constexpr int kKeyAdd = Qt::Key_Z; // 90
// Until the host names the model.
char const* const kPlaceholderModel = QT_TRANSLATE_NOOP("LCD::MenuWidgets", "Switcher");
QString const kBoundImage = QStringLiteral("toast_success");

// Sets a style property; re-polishes only a widget already polished with another value.
void restyle(QWidget* w, char const* name, QVariant const& value)
{
    if (w->property(name) == value)
        return;
    w->setProperty(name, value);
    if (w->testAttribute(Qt::WA_WState_Polished))
        repolish(w);
}

// A one-line label that ends a text too long for its width with "...", instead of
// cutting it off, and that lets its row shrink it.
class ElidedLabel : public QLabel
{
public:
    using QLabel::QLabel;
    QSize minimumSizeHint() const override { return QSize(0, QLabel::minimumSizeHint().height()); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter p(this);
        p.setPen(palette().color(foregroundRole()));
        QRect const r = contentsRect();
        p.drawText(r, int(alignment()), fontMetrics().elidedText(text(), Qt::ElideRight, r.width()));
    }
};
} // namespace

// ---------------------------------------------------------------------------
// SwitcherItem

// Internal: hidden although its enclosing class is exported.
struct LCDWIDGETS_HIDDEN SwitcherItem::Impl
{
    SwitcherInfo info;
    bool online = false;
    bool isBind = false;
    QString name;
    QPushButton* main = nullptr;
    QLabel* model = nullptr;
    QWidget* separator = nullptr;
    QLabel* dot = nullptr;
    QLabel* detail = nullptr;
    QLabel* bound = nullptr;
    QPushButton* remove = nullptr;
};

SwitcherItem::SwitcherItem(QWidget* parent) : QWidget(parent), d(std::make_unique<Impl>())
{
    createWidget();
}

SwitcherItem::~SwitcherItem() = default;

void SwitcherItem::createWidget()
{
    setFixedSize(kItemWidth, kItemHeight);

    d->main = new QPushButton(this);
    d->main->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    d->main->setProperty("style", QStringLiteral("focusBtn"));
    auto* row = new QHBoxLayout(d->main);
    row->setContentsMargins(8, 0, 8, 0);
    row->setSpacing(4);

    d->model = new QLabel(lcdTranslate(QString::fromLatin1(kPlaceholderModel)), d->main);
    d->model->setFixedWidth(90);
    d->model->setProperty("isSwitcherModel", true);
    d->separator = new QWidget(d->main);
    d->separator->setAttribute(Qt::WA_StyledBackground);
    d->separator->setProperty("background", QStringLiteral("white_30"));
    d->separator->setFixedSize(1, 22);
    d->dot = new QLabel(d->main);
    d->dot->setFixedSize(8, 8);
    d->dot->setProperty("style", QStringLiteral("offline"));
    d->dot->setProperty("borderRadius", QStringLiteral("px_4"));
    d->detail = new ElidedLabel(d->main);
    d->detail->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    d->detail->setProperty("isSwitcherDetail", true);
    d->bound = new QLabel(d->main);
    d->bound->setFixedSize(24, 24);
    d->bound->setProperty("image", QString());

    row->addWidget(d->model);
    row->addSpacing(4);
    row->addWidget(d->separator);
    row->addSpacing(4);
    row->addWidget(d->dot, 0, Qt::AlignLeft | Qt::AlignVCenter);
    row->addSpacing(4);
    // The name is shown with the address in the detail label.
    row->addWidget(d->detail, 1);
    row->addWidget(d->bound);
    row->addStretch();

    d->remove = new QPushButton(this);
    d->remove->setFixedSize(30, 52);
    d->remove->setProperty("image", QStringLiteral("delete"));
    d->remove->setProperty("style", QStringLiteral("focusBtn"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(d->main, 1);
    layout->addWidget(d->remove);
    layout->addStretch();

    connect(d->main, &QPushButton::clicked, this, [this] { emit signalBind(d->info.sn, d->info.ip); });
    connect(d->remove, &QPushButton::clicked, this, [this] { emit signalDelete(d->info.ip); });
}

void SwitcherItem::setSwitcherInfo(SwitcherInfo const& info)
{
    d->info = info;
    d->model->setText(QString::fromStdString(info.model));
    d->name = QString::fromStdString(info.name);
    d->detail->setText(QStringLiteral("%1(%2)").arg(d->name, QString::fromStdString(info.ip)));
    setOnline(info.online);
    setBind(info.isBind);
    qDebug() << "Switcher Info" << d->model->text() << d->detail->text();
}

SwitcherInfo SwitcherItem::switcherInfo() const { return d->info; }

void SwitcherItem::setOnline(bool online)
{
    d->online = online;
    d->info.online = online;
    restyle(d->dot, "style", online ? QStringLiteral("online") : QStringLiteral("offline"));
}

void SwitcherItem::setBind(bool isBind)
{
    d->isBind = isBind;
    d->info.isBind = isBind;
    restyle(d->bound, "image", isBind ? kBoundImage : QString());
}

void SwitcherItem::setSelected(bool selected)
{
    if (selected && d->remove->isVisible())
        d->remove->setFocus(Qt::OtherFocusReason);
    else
        d->main->setFocus(Qt::OtherFocusReason);
}

bool SwitcherItem::hasItemFocus() const { return d->main->hasFocus() || d->remove->hasFocus(); }

QPushButton* SwitcherItem::mainButton() const { return d->main; }
QPushButton* SwitcherItem::deleteButton() const { return d->remove; }
QString SwitcherItem::detailText() const { return d->detail->text(); }

// ---------------------------------------------------------------------------
// SwitcherSelect

// Internal: hidden although its enclosing class is exported.
struct LCDWIDGETS_HIDDEN SwitcherSelect::Impl
{
    SwitcherSelect* page = nullptr;
    QLabel* title = nullptr;
    QPushButton* add = nullptr;
    AddDevice* addDevice = nullptr;
    QScrollArea* scroll = nullptr;
    QWidget* container = nullptr;
    QGridLayout* grid = nullptr;
    std::vector<SwitcherItem*> items;
    std::vector<SwitcherInfo> records;
    std::unordered_map<std::string, SwitcherItem*> bySn;
    std::unordered_map<std::string, bool> known; // serial numbers held
    QPushButton* enter = nullptr;
    int selected = -1;
    int shown = 0; // items [0, shown) are visible

    void createWidget();
    void updateLayout();
    // Fills and shows the items from `first` on, hides the ones beyond the records.
    void updateSwitchers(int first);
    void updateSelectedIndex();
    void restoreFocus();
    int focusedItem() const;
    void select(int index, bool deleteButton);
    void slotAddClicked();
    void fitScrollWidth(int itemWidth);
    void slotAddDevice(SwitcherInfo const& info);
    bool appendRecord(SwitcherInfo const& info);
    // The item of a device held, for a status change: null (with the warning) for an
    // empty or unknown serial number.
    SwitcherItem* itemToUpdate(std::string const& sn) const;
    // Sets a status of every record of `sn`.
    void updateRecords(std::string const& sn, bool SwitcherInfo::*status, bool value);
};

SwitcherSelect::SwitcherSelect(QWidget* parent) : QWidget(parent), d(std::make_unique<Impl>())
{
    qRegisterMetaType<SwitcherInfo>("LCD::Widget::SwitcherInfo");
    qRegisterMetaType<std::string>("std::string");
    d->page = this;
    d->createWidget();
    retranslateUi();
}

SwitcherSelect::~SwitcherSelect() = default;

void SwitcherSelect::Impl::createWidget()
{
    page->setAttribute(Qt::WA_StyledBackground);
    page->setProperty("style", QStringLiteral("miniWidget"));
    // With no switchers the page itself holds the knob (for "Add").
    page->setFocusPolicy(Qt::StrongFocus);
    page->installEventFilter(page);

    title = new QLabel(page);
    title->setProperty("fontWeight", QStringLiteral("bold"));
    title->setProperty("fontSize", QStringLiteral("XL"));
    title->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    add = new QPushButton(page);
    enter = new QPushButton(page);
    for (QPushButton* b : {add, enter}) {
        b->setFocusPolicy(Qt::NoFocus);
        b->setProperty("style", QStringLiteral("general"));
        b->setFixedSize(128, 50);
    }

    scroll = new QScrollArea(page);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setProperty("background", QStringLiteral("transparent"));
    scroll->setProperty("borderWidth", QStringLiteral("px_1"));
    scroll->setProperty("borderColor", QStringLiteral("white_20"));
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFixedHeight(180);
    container = new QWidget;
    container->setProperty("background", QStringLiteral("transparent"));
    grid = new QGridLayout(container);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(32);
    grid->setVerticalSpacing(8);
    grid->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    items.reserve(kMaxSwitchers);
    for (int i = 0; i < kMaxSwitchers; ++i) {
        auto* item = new SwitcherItem(container);
        item->hide();
        // A button moves the focus with the arrow keys itself: the page sees them first.
        item->mainButton()->installEventFilter(page);
        item->deleteButton()->installEventFilter(page);
        QObject::connect(item, &SwitcherItem::signalBind, page, &SwitcherSelect::signalBind);
        QObject::connect(item, &SwitcherItem::signalDelete, page,
                         [this](std::string const& ip) { emit page->signalAddSwitcher(ip, true); });
        items.push_back(item);
    }
    updateLayout();
    scroll->setWidget(container);
    fitScrollWidth(kItemWidth);

    auto* left = new QVBoxLayout;
    left->addWidget(title);
    left->addStretch();

    auto* addRow = new QHBoxLayout;
    addRow->addStretch();
    addRow->addWidget(add);
    auto* middle = new QVBoxLayout;
    middle->setSpacing(6);
    middle->addWidget(scroll, 0, Qt::AlignTop);
    middle->addStretch(1);
    middle->addLayout(addRow);

    auto* right = new QVBoxLayout;
    right->addWidget(enter);
    right->addStretch();

    auto* layout = new QHBoxLayout(page);
    layout->setContentsMargins(12, 16, 16, 16);
    layout->setSpacing(24);
    layout->addLayout(left, 1);
    layout->addLayout(middle);
    layout->addLayout(right);

    QObject::connect(add, &QPushButton::clicked, page, [this] { slotAddClicked(); });
}

void SwitcherSelect::retranslateUi()
{
    d->title->setText(lcdTranslate(QStringLiteral("Select\nSwitcher")));
    d->add->setText(lcdTranslate(QStringLiteral("Add")));
    d->enter->setText(lcdTranslate(QStringLiteral("Enter")));
    if (d->addDevice)
        d->addDevice->retranslateUi();
}

void SwitcherSelect::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void SwitcherSelect::Impl::fitScrollWidth(int itemWidth)
{
    // Two columns, the spacing, the frame and room for the vertical scroll bar.
    int const bar = scroll->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, scroll);
    scroll->setFixedWidth(2 * itemWidth + grid->horizontalSpacing() + 2 * scroll->frameWidth() + bar + 2);
}

void SwitcherSelect::Impl::updateLayout()
{
    for (SwitcherItem* item : items)
        grid->removeWidget(item);
    for (int i = 0; i < int(items.size()); ++i)
        if (items[i])
            grid->addWidget(items[i], i / 2, i % 2);
}

void SwitcherSelect::Impl::updateSwitchers(int first)
{
    int const count = int(records.size());
    for (int i = first; i < count; ++i) {
        SwitcherItem* item = items[i];
        item->setSwitcherInfo(records[i]);
        item->show();
    }
    for (int i = count; i < shown; ++i)
        items[i]->hide();
    shown = count;
    updateSelectedIndex();
}

void SwitcherSelect::Impl::updateSelectedIndex()
{
    if (shown == 0)
        selected = -1;
    else if (selected >= shown)
        selected = shown - 1;
}

bool SwitcherSelect::Impl::appendRecord(SwitcherInfo const& info)
{
    auto it = bySn.find(info.sn);
    if (it != bySn.end()) {
        SwitcherItem* item = it->second;
        item->setSwitcherInfo(info);
        for (SwitcherInfo& r : records) {
            if (r.sn == info.sn) {
                r.model = info.model;
                r.name = info.name;
                r.ip = info.ip;
                r.sn = info.sn;
                r.online = info.online;
                r.isBind = info.isBind;
                break;
            }
        }
        return false;
    }
    if (int(records.size()) >= kMaxSwitchers) {
        qWarning() << "[SwitcherSelect] Cannot add switcher, maximum count reached:" << kMaxSwitchers;
        return false;
    }
    records.push_back(info);
    known[info.sn] = true;
    // Mapped at once: a later record of the same batch with this number updates it.
    bySn[info.sn] = items[records.size() - 1];
    return true;
}

void SwitcherSelect::addSwitcher(SwitcherInfo const& info)
{
    int const before = int(d->records.size());
    if (d->appendRecord(info))
        d->updateSwitchers(before);
}

void SwitcherSelect::addSwitchers(std::vector<SwitcherInfo> const& infos)
{
    // One pass over the new rows, however many arrive.
    int const before = int(d->records.size());
    bool added = false;
    for (SwitcherInfo const& info : infos)
        added = d->appendRecord(info) || added;
    if (added)
        d->updateSwitchers(before);
}

void SwitcherSelect::clearSwitchers()
{
    for (SwitcherItem* item : d->items)
        item->hide();
    d->records.clear();
    d->bySn.clear();
    d->known.clear();
    d->shown = 0;
    d->selected = -1;
    if (isVisible() && !isAddDeviceShow())
        setFocus(Qt::OtherFocusReason);
}

SwitcherItem* SwitcherSelect::Impl::itemToUpdate(std::string const& sn) const
{
    if (sn.empty()) {
        qWarning() << "[SwitcherSelect] Device SN is empty";
        return nullptr;
    }
    auto it = bySn.find(sn);
    if (it == bySn.end()) {
        qWarning() << "[SwitcherSelect] Device not found, SN:" << sn.c_str();
        return nullptr;
    }
    return it->second;
}

void SwitcherSelect::Impl::updateRecords(std::string const& sn, bool SwitcherInfo::*status, bool value)
{
    for (SwitcherInfo& r : records)
        if (r.sn == sn)
            r.*status = value;
}

void SwitcherSelect::setDeviceOnline(std::string const& sn, bool online)
{
    SwitcherItem* item = d->itemToUpdate(sn);
    if (!item)
        return;
    item->setOnline(online);
    d->updateRecords(sn, &SwitcherInfo::online, online);
    qDebug() << "[SwitcherSelect] Updated device online status, SN:" << sn.c_str() << ", Online:"
             << (online ? "true" : "false");
}

void SwitcherSelect::setDeviceBind(std::string const& sn, bool isBind)
{
    SwitcherItem* item = d->itemToUpdate(sn);
    if (!item)
        return;
    item->setBind(isBind);
    d->updateRecords(sn, &SwitcherInfo::isBind, isBind);
    qDebug() << "[SwitcherSelect] Updated device isBind status, SN:" << sn.c_str() << ", isBind:"
             << (isBind ? "true" : "false");
}

void SwitcherSelect::Impl::slotAddClicked()
{
    if (!addDevice) {
        addDevice = new AddDevice(page);
        addDevice->hide();
        QObject::connect(addDevice, &AddDevice::signalApply, page,
                         [this](SwitcherInfo const& info) { slotAddDevice(info); });
        QObject::connect(addDevice, &AddDevice::signalEditingStarted, page, &SwitcherSelect::signalEditingStarted);
        QObject::connect(addDevice, &AddDevice::signalEditingFinished, page, &SwitcherSelect::signalEditingFinished);
        QObject::connect(addDevice, &AddDevice::signalAddDeviceHide, page, [this] {
            emit page->signalAddDeviceType(false);
            restoreFocus();
        });
    }
    if (addDevice->isHidden()) {
        emit page->signalAddDeviceType(true);
        addDevice->resetData();
        addDevice->setGeometry(page->rect());
        addDevice->show();
    }
}

void SwitcherSelect::Impl::slotAddDevice(SwitcherInfo const& info) { emit page->signalAddSwitcher(info.ip, false); }

bool SwitcherSelect::hideInterface()
{
    if (isAddDeviceShow()) {
        emit signalAddDeviceType(false);
        // Hidden here, not by the page itself: no second report.
        QSignalBlocker const block(d->addDevice);
        d->addDevice->hide();
        d->restoreFocus();
        return true;
    }
    hide();
    return false;
}

bool SwitcherSelect::isAddDeviceShow() const { return d->addDevice && d->addDevice->isVisible(); }

std::string SwitcherSelect::getCurrentIp() const
{
    return d->addDevice ? d->addDevice->getCurrentIp() : std::string();
}

void SwitcherSelect::setDeviceName(std::string const& name) const
{
    if (d->addDevice)
        d->addDevice->setDeviceName(name);
}

std::vector<SwitcherInfo> SwitcherSelect::switchers() const { return d->records; }

SwitcherItem* SwitcherSelect::itemBySn(std::string const& sn) const
{
    auto it = d->bySn.find(sn);
    return it == d->bySn.end() ? nullptr : it->second;
}

SwitcherItem* SwitcherSelect::itemAt(int index) const
{
    return index >= 0 && index < int(d->items.size()) ? d->items[index] : nullptr;
}

int SwitcherSelect::selectedIndex() const { return d->selected; }

void SwitcherSelect::setItemWidth(int width)
{
    if (width < 120 || width > QWIDGETSIZE_MAX)
        return;
    for (SwitcherItem* item : d->items)
        item->setFixedWidth(width);
    d->fitScrollWidth(width);
}

QPushButton* SwitcherSelect::addButton() const { return d->add; }
QPushButton* SwitcherSelect::enterButton() const { return d->enter; }
AddDevice* SwitcherSelect::addDevicePage() const { return d->addDevice; }

int SwitcherSelect::Impl::focusedItem() const
{
    QWidget* focus = QApplication::focusWidget();
    if (!focus)
        return -1;
    for (int i = 0; i < shown; ++i)
        if (items[i]->isAncestorOf(focus))
            return i;
    return -1;
}

void SwitcherSelect::Impl::select(int index, bool deleteButton)
{
    if (index < 0 || index >= shown)
        return;
    selected = index;
    items[index]->setSelected(deleteButton);
    scroll->ensureWidgetVisible(items[index], 50, 50);
}

void SwitcherSelect::Impl::restoreFocus()
{
    if (!page->isVisible())
        return;
    updateSelectedIndex();
    if (selected < 0 && shown > 0)
        selected = 0;
    if (selected >= 0)
        select(selected, false);
    else
        page->setFocus(Qt::OtherFocusReason);
}

void SwitcherSelect::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    d->restoreFocus();
}

bool SwitcherSelect::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !isVisible() || isAddDeviceShow())
        return QWidget::eventFilter(watched, event);
    int const key = static_cast<QKeyEvent*>(event)->key();
    int const current = d->focusedItem();
    switch (key) {
    case Qt::Key_Right:
        if (current >= 0) {
            d->items[current]->setSelected(true);
            return true;
        }
        break;
    case Qt::Key_Left:
        if (current >= 0) {
            d->items[current]->setSelected(false);
            return true;
        }
        break;
    case Qt::Key_Down:
    case Qt::Key_Up: {
        int const step = key == Qt::Key_Down ? 1 : -1;
        if (current < 0)
            d->select(qMax(0, d->selected), false);
        else if (current + step >= 0 && current + step < d->shown)
            d->select(current + step, false);
        return true;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* button = qobject_cast<QPushButton*>(QApplication::focusWidget()); button && current >= 0) {
            button->click();
            return true;
        }
        break;
    case kKeyAdd:
        d->add->click();
        return true;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace Widget
} // namespace LCD
