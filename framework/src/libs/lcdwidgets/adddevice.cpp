#include "adddevice.h"

#include "ipedit.h"
#include "lcdtranslate.h"
#include "switcherselect.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QHostAddress>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

namespace {
constexpr int kKeyConfirm = Qt::Key_X; // 88, as "Apply" on the network page

// A switcher's address: four filled octets forming a unicast host address.
bool usableAddress(IPEdit const* edit, QString const& text)
{
    for (int i = 0; i < 4; ++i)
        if (edit->field(i)->text().trimmed().isEmpty())
            return false;
    QHostAddress const a(text);
    if (a.isNull() || a.protocol() != QAbstractSocket::IPv4Protocol)
        return false;
    // Not "this network" (0.x), loopback, multicast, reserved or broadcast.
    int const first = int(a.toIPv4Address() >> 24);
    return first != 0 && first != 127 && first < 224;
}
} // namespace

// Internal: hidden although its enclosing class is exported.
struct LCDWIDGETS_HIDDEN AddDevice::Impl
{
    AddDevice* page = nullptr;
    QLabel* title = nullptr;
    QLabel* caption = nullptr;
    IPEdit* ip = nullptr;
    QLabel* name = nullptr;
    QLabel* hint = nullptr;
    QPushButton* confirm = nullptr;
    QPushButton* cancel = nullptr;
    QString deviceName;
};

AddDevice::AddDevice(QWidget* parent) : QWidget(parent), d(std::make_unique<Impl>())
{
    d->page = this;
    setAttribute(Qt::WA_StyledBackground);
    setProperty("style", QStringLiteral("miniWidget"));

    d->title = new QLabel(this);
    d->title->setProperty("fontWeight", QStringLiteral("bold"));
    d->title->setProperty("fontSize", QStringLiteral("XL"));
    d->title->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    d->caption = new QLabel(this);
    d->caption->setProperty("fontOpcity", QStringLiteral("opcity_70"));
    d->ip = new IPEdit(this);
    d->ip->setFixedSize(246, 40);
    d->ip->setEnterSwitchEidt(false);
    d->ip->installEventFilter(this);
    d->name = new QLabel(this);
    d->name->setProperty("isAddDeviceName", true);
    d->hint = new QLabel(this);
    d->hint->setProperty("isAddDeviceHint", true);
    d->hint->hide();

    d->confirm = new QPushButton(this);
    d->cancel = new QPushButton(this);
    d->confirm->setProperty("style", QStringLiteral("general"));
    d->cancel->setProperty("style", QStringLiteral("assist"));
    for (QPushButton* b : {d->confirm, d->cancel}) {
        b->setFocusPolicy(Qt::NoFocus);
        b->setFixedSize(128, 50);
    }

    auto* left = new QVBoxLayout;
    left->addWidget(d->title);
    left->addStretch();

    auto* addressRow = new QHBoxLayout;
    addressRow->setSpacing(12);
    addressRow->addWidget(d->caption);
    addressRow->addWidget(d->ip);
    addressRow->addStretch();
    auto* middle = new QVBoxLayout;
    middle->setSpacing(10);
    middle->addLayout(addressRow);
    middle->addWidget(d->name);
    middle->addWidget(d->hint);
    middle->addStretch();

    auto* right = new QVBoxLayout;
    right->setSpacing(30);
    right->addWidget(d->confirm);
    right->addWidget(d->cancel);
    right->addStretch();

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 16, 16, 16);
    layout->setSpacing(24);
    layout->addLayout(left, 1);
    layout->addLayout(middle, 2);
    layout->addLayout(right);

    connect(d->ip, &IPEdit::sigEditingStarted, this, &AddDevice::signalEditingStarted);
    connect(d->ip, &IPEdit::sigEditingFinished, this, &AddDevice::signalEditingFinished);
    connect(d->confirm, &QPushButton::clicked, this, &AddDevice::confirm);
    connect(d->cancel, &QPushButton::clicked, this, &AddDevice::closePage);
    // A new address makes the last hint stale.
    for (int i = 0; i < 4; ++i)
        connect(d->ip->field(i), &QLineEdit::textEdited, this, [this] {
            d->hint->hide();
        });
    retranslateUi();
}

AddDevice::~AddDevice() = default;

void AddDevice::retranslateUi()
{
    d->title->setText(lcdTranslate(QStringLiteral("Add\nDevice")));
    d->caption->setText(lcdTranslate(QStringLiteral("IP Address")));
    d->confirm->setText(lcdTranslate(QStringLiteral("Confirm")));
    d->cancel->setText(lcdTranslate(QStringLiteral("Cancel")));
    d->hint->setText(lcdTranslate(QStringLiteral("Invalid IP address")));
    d->name->setText(d->deviceName.isEmpty() ? QString()
                                             : lcdTranslate(QStringLiteral("Device: %1")).arg(d->deviceName));
}

void AddDevice::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void AddDevice::resetData()
{
    d->ip->clearText();
    d->deviceName.clear();
    d->hint->hide();
    retranslateUi();
}

std::string AddDevice::getCurrentIp() const
{
    for (int i = 0; i < 4; ++i)
        if (!d->ip->field(i)->text().trimmed().isEmpty())
            return d->ip->ipText().toStdString();
    return std::string();
}

void AddDevice::setDeviceName(std::string const& name)
{
    d->deviceName = QString::fromStdString(name);
    retranslateUi();
}

QString AddDevice::deviceName() const { return d->deviceName; }

QString AddDevice::hintText() const { return d->hint->isHidden() ? QString() : d->hint->text(); }

IPEdit* AddDevice::ipEdit() const { return d->ip; }
QPushButton* AddDevice::confirmButton() const { return d->confirm; }
QPushButton* AddDevice::cancelButton() const { return d->cancel; }

bool AddDevice::confirm()
{
    QString const text = d->ip->ipText();
    if (!usableAddress(d->ip, text)) {
        qWarning().noquote() << "[AddDevice] Invalid IP address:" << text;
        retranslateUi();
        d->hint->show();
        d->ip->setFocus(Qt::OtherFocusReason);
        return false;
    }
    SwitcherInfo info;
    info.ip = text.toStdString();
    info.name = d->deviceName.toStdString();
    emit signalApply(info);
    closePage();
    return true;
}

void AddDevice::closePage()
{
    if (isHidden())
        return;
    hide();
    emit signalAddDeviceHide();
}

void AddDevice::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (parentWidget())
        raise(); // over the page it belongs to
    d->ip->setFocus(Qt::OtherFocusReason);
}

bool AddDevice::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != d->ip || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Escape:
        // From a field the editor takes the first Escape; from the frame it closes.
        closePage();
        return true;
    case kKeyConfirm:
        confirm();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        return true; // one editor: the knob stays on it
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace Widget
} // namespace LCD
