#include "networksettings.h"

#include "focuscombobox.h"
#include "ipedit.h"
#include "lcdtranslate.h"
#include "stylehelper.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

namespace {
constexpr int kKeyApply = Qt::Key_X;   // 88
constexpr int kKeyRestore = Qt::Key_Z; // 90
QString const kDhcp = QStringLiteral("DHCP");
QString const kNoMac = QStringLiteral("--:--:--:--:--:--");
} // namespace

// Internal: hidden although its enclosing class is exported.
struct LCDWIDGETS_HIDDEN NetworkSettings::Impl
{
    NetworkSettings* page = nullptr;
    FocusComboBox* mode = nullptr;
    IPEdit* ip = nullptr;
    IPEdit* mask = nullptr;
    IPEdit* gateway = nullptr;
    QLabel* mac = nullptr;
    QPushButton* reset = nullptr;
    QPushButton* apply = nullptr;
    QPushButton* enter = nullptr;
    QPushButton* cancel = nullptr;
    QLabel* title = nullptr;
    QLabel* captions[5] = {};

    void createWidget();
    QWidget* labelledRow(int index, QWidget* control);
    QPushButton* button(char const* style);
    void updateControlsForDhcp(bool dhcp);
    void slotModeChanged(QString const& text);
    void slotApply();
    void slotReset();
    // The editors in knob order, and the one holding `w` (a frame or one of its fields).
    int editorIndex(QObject* w) const;
    IPEdit* editorAt(int index) const;
};

NetworkSettings::NetworkSettings(QWidget* parent) : QWidget(parent), d(std::make_unique<Impl>())
{
    qRegisterMetaType<NetworkInfo>("LCD::Widget::NetworkInfo");
    d->page = this;
    d->createWidget();
    retranslateUi();
}

NetworkSettings::~NetworkSettings() = default;

QPushButton* NetworkSettings::Impl::button(char const* style)
{
    auto* b = new QPushButton(page);
    b->setFocusPolicy(Qt::NoFocus);
    b->setProperty("style", QString::fromLatin1(style));
    b->setFixedSize(128, 50);
    return b;
}

QWidget* NetworkSettings::Impl::labelledRow(int index, QWidget* control)
{
    auto* row = new QWidget(page);
    row->setFixedWidth(360);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    captions[index] = new QLabel(row);
    captions[index]->setProperty("fontOpcity", QStringLiteral("opcity_70"));
    layout->addWidget(captions[index]);
    layout->addStretch();
    layout->addWidget(control);
    return row;
}

void NetworkSettings::Impl::createWidget()
{
    page->setAttribute(Qt::WA_StyledBackground);
    page->setProperty("style", QStringLiteral("miniWidget"));

    title = new QLabel(page);
    title->setProperty("fontWeight", QStringLiteral("bold"));
    title->setProperty("fontSize", QStringLiteral("XL"));
    title->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    // Created in knob order: the focus chain runs chooser, IP, mask, gateway.
    mode = new FocusComboBox(page);
    mode->addItem(QStringLiteral("Manual"));
    mode->addItem(kDhcp);
    mode->setFixedSize(246, 40);
    ip = new IPEdit(page);
    mask = new IPEdit(page);
    gateway = new IPEdit(page);
    for (IPEdit* e : {ip, mask, gateway}) {
        e->setFixedSize(246, 40);
        e->setEnterSwitchEidt(false);
    }
    mac = new QLabel(kNoMac, page);
    mac->setProperty("isNetworkMacText", true);
    mac->setFixedSize(246, 40);

    auto* rows = new QVBoxLayout;
    rows->setContentsMargins(0, 0, 45, 0);
    rows->setSpacing(8);
    rows->addWidget(labelledRow(0, mode));
    rows->addWidget(labelledRow(1, ip));
    rows->addWidget(labelledRow(2, mask));
    rows->addWidget(labelledRow(3, gateway));
    rows->addWidget(labelledRow(4, mac));
    rows->addStretch();

    reset = button("assist");
    apply = button("general");
    auto* applyRow = new QHBoxLayout;
    applyRow->setSpacing(30);
    applyRow->addWidget(reset);
    applyRow->addWidget(apply);
    applyRow->addStretch();
    rows->addLayout(applyRow);

    enter = button("general");
    cancel = button("assist");
    auto* side = new QVBoxLayout;
    side->setSpacing(30);
    side->addWidget(enter);
    side->addWidget(cancel);
    side->addStretch();

    auto* left = new QVBoxLayout;
    left->addWidget(title);
    left->addStretch();

    auto* layout = new QHBoxLayout(page);
    layout->setContentsMargins(9, 16, 24, 16);
    layout->setSpacing(16);
    layout->addLayout(left, 1);
    layout->addLayout(rows);
    layout->addLayout(side);

    for (QWidget* w : {static_cast<QWidget*>(mode), static_cast<QWidget*>(ip), static_cast<QWidget*>(mask),
                       static_cast<QWidget*>(gateway)})
        w->installEventFilter(page);

    QObject::connect(mode, &QComboBox::currentTextChanged, page, [this](QString const& t) { slotModeChanged(t); });
    for (IPEdit* e : {ip, mask, gateway}) {
        QObject::connect(e, &IPEdit::sigEditingStarted, page, &NetworkSettings::signalEditingStarted);
        QObject::connect(e, &IPEdit::sigEditingFinished, page, &NetworkSettings::signalEditingFinished);
    }
    QObject::connect(apply, &QPushButton::clicked, page, [this] { slotApply(); });
    QObject::connect(reset, &QPushButton::clicked, page, [this] { slotReset(); });
}

void NetworkSettings::retranslateUi()
{
    d->title->setText(tr("Network Settings"));
    static char const* const captions[5] = {
        QT_TRANSLATE_NOOP("LCD::MenuWidgets", "Network Mode"), QT_TRANSLATE_NOOP("LCD::MenuWidgets", "IP Address"),
        QT_TRANSLATE_NOOP("LCD::MenuWidgets", "Subnet Mask"), QT_TRANSLATE_NOOP("LCD::MenuWidgets", "Gateway"),
        QT_TRANSLATE_NOOP("LCD::MenuWidgets", "Mac Address")};
    for (int i = 0; i < 5; ++i)
        d->captions[i]->setText(lcdTranslate(QString::fromLatin1(captions[i])));
    d->mode->setItemText(0, lcdTranslate(QStringLiteral("Manual")));
    d->reset->setText(lcdTranslate(QStringLiteral("Restore Defaults")));
    d->apply->setText(lcdTranslate(QStringLiteral("Apply")));
    d->enter->setText(lcdTranslate(QStringLiteral("Enter")));
    d->cancel->setText(lcdTranslate(QStringLiteral("Cancel")));
}

void NetworkSettings::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        // Renaming "Manual" must not look like a change of mode.
        QSignalBlocker const block(d->mode);
        retranslateUi();
    }
    QWidget::changeEvent(event);
}

void NetworkSettings::Impl::updateControlsForDhcp(bool dhcp)
{
    for (QWidget* w : {static_cast<QWidget*>(ip), static_cast<QWidget*>(mask), static_cast<QWidget*>(gateway),
                       static_cast<QWidget*>(mac), static_cast<QWidget*>(reset), static_cast<QWidget*>(apply)})
        w->setEnabled(!dhcp);
}

void NetworkSettings::Impl::slotModeChanged(QString const& text)
{
    bool const dhcp = text == kDhcp;
    updateControlsForDhcp(dhcp);
    if (dhcp)
        slotApply();
}

void NetworkSettings::Impl::slotApply()
{
    NetworkInfo info;
    info.mode = mode->currentIndex();
    info.ip = ip->ipText().toStdString();
    info.mask = mask->ipText().toStdString();
    info.gateway = gateway->ipText().toStdString();
    info.mac = mac->text().toStdString();
    emit page->signalApplyNetwork(info);
}

void NetworkSettings::Impl::slotReset()
{
    emit page->signalResetNetwork();
    mode->setFocus(Qt::OtherFocusReason);
}

void NetworkSettings::setNetworkInfo(NetworkInfo const& info)
{
    {
        QSignalBlocker const block(d->mode);
        d->mode->setCurrentIndex(info.mode == 0 ? 0 : 1);
    }
    d->updateControlsForDhcp(info.mode != 0);
    d->ip->setIpText(QString::fromStdString(info.ip));
    d->mask->setIpText(QString::fromStdString(info.mask));
    d->gateway->setIpText(QString::fromStdString(info.gateway));
    d->mac->setText(info.mac.empty() ? kNoMac : QString::fromStdString(info.mac));
}

FocusComboBox* NetworkSettings::modeChooser() const { return d->mode; }
IPEdit* NetworkSettings::ipEdit() const { return d->ip; }
IPEdit* NetworkSettings::maskEdit() const { return d->mask; }
IPEdit* NetworkSettings::gatewayEdit() const { return d->gateway; }
QPushButton* NetworkSettings::resetButton() const { return d->reset; }
QPushButton* NetworkSettings::applyButton() const { return d->apply; }
QPushButton* NetworkSettings::enterButton() const { return d->enter; }
QPushButton* NetworkSettings::cancelButton() const { return d->cancel; }
QString NetworkSettings::macText() const { return d->mac->text(); }

int NetworkSettings::Impl::editorIndex(QObject* w) const
{
    if (w == ip)
        return 0;
    if (w == mask)
        return 1;
    if (w == gateway)
        return 2;
    return -1;
}

IPEdit* NetworkSettings::Impl::editorAt(int index) const
{
    switch (index) {
    case 0: return ip;
    case 1: return mask;
    case 2: return gateway;
    default: return nullptr;
    }
}

bool NetworkSettings::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !isVisible())
        return QWidget::eventFilter(watched, event);
    int const key = static_cast<QKeyEvent*>(event)->key();
    int const editor = d->editorIndex(watched);
    switch (key) {
    case Qt::Key_Down:
        if (watched == d->mode) {
            if (d->mode->view() && d->mode->view()->isVisible())
                break; // the open popup moves its cursor
            // On to the address, which DHCP disables: then the chooser keeps the knob.
            if (d->ip->isEnabled())
                d->ip->setFocus(Qt::OtherFocusReason);
            return true;
        }
        if (IPEdit* next = d->editorAt(editor + 1); next && next->isEnabled())
            next->setFocus(Qt::OtherFocusReason);
        return true;
    case Qt::Key_Up:
        if (watched == d->mode) {
            if (d->mode->view() && d->mode->view()->isVisible())
                break; // the open popup moves its cursor
            return true;
        }
        if (editor == 0)
            d->mode->setFocus(Qt::OtherFocusReason);
        else if (IPEdit* prev = d->editorAt(editor - 1))
            prev->setFocus(Qt::OtherFocusReason);
        return true;
    case kKeyApply:
        if (d->apply->isEnabled())
            d->apply->click();
        break;
    case kKeyRestore:
        if (d->reset->isEnabled())
            d->reset->click();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void NetworkSettings::showEvent(QShowEvent* event)
{
    d->mode->setFocus(Qt::OtherFocusReason);
    QWidget::showEvent(event);
}

void NetworkSettings::hideEvent(QHideEvent* event)
{
    d->mode->clearFocus();
    clearFocus();
    QWidget::hideEvent(event);
}

} // namespace Widget
} // namespace LCD
