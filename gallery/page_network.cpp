// Network: the network settings page, the address rows and the number pad.
// The settings page: press to work it, Up/Down walk the chooser and the editors, the
// press opens the chooser or types into an editor's last octet (digit keys), X
// applies, Z restores the defaults, Escape leaves an editor and then the page.
// Address rows: press to step the last octet, press again to walk to another one.
#include "gallerycontext.h"
#include "itempage.h"
#include "pagerow.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QCoreApplication>
#include <QPushButton>

using namespace LCD::Widget;

namespace {

QString describe(NetworkInfo const& info)
{
    return QObject::tr("%1  %2 / %3 via %4")
        .arg(info.mode == 0 ? QObject::tr("Manual") : QObject::tr("DHCP"), QString::fromStdString(info.ip),
             QString::fromStdString(info.mask), QString::fromStdString(info.gateway));
}

} // namespace

ItemPage* buildNetworkPage(GalleryContext&)
{
    auto* page = new ItemPage(QObject::tr("Network"));

    page->addSection(QObject::tr("Network settings (press to work the page, Esc to leave)"));
    auto* settings = new NetworkSettings;
    settings->setFixedHeight(400);
    NetworkInfo current;
    current.mode = 0;
    current.ip = "192.168.10.20";
    current.mask = "255.255.255.0";
    current.gateway = "192.168.10.1";
    current.mac = "00:1C:A2:3F:10:5E";
    settings->setNetworkInfo(current);
    auto* row = new PageRow(settings, QObject::tr("Network settings"), page->list());
    row->enter = [settings] { settings->modeChooser()->setFocus(Qt::OtherFocusReason); };
    page->addItem(row, 400);
    // The gallery plays the host: an apply is taken as the new state; the defaults
    // are DHCP.
    QObject::connect(settings, &NetworkSettings::signalApplyNetwork, page, [page, settings](NetworkInfo const& info) {
        settings->setNetworkInfo(info);
        emit page->statusMessage(QObject::tr("Apply: %1").arg(describe(info)));
    });
    QObject::connect(settings, &NetworkSettings::signalResetNetwork, page, [page, settings, current] {
        NetworkInfo defaults = current;
        defaults.mode = 1;
        settings->setNetworkInfo(defaults);
        emit page->statusMessage(QObject::tr("Restore defaults: DHCP"));
    });
    QObject::connect(settings->enterButton(), &QPushButton::clicked, page,
                     [page] { emit page->statusMessage(QObject::tr("Enter")); });

    page->addSection(QObject::tr("Address rows (press: step the last octet; press again: walk; Esc)"));
    auto* address = new TypeIpAdjust(page->list(), 9);
    address->setItemTitle(QObject::tr("Switcher address"));
    page->addItem(address);
    address->setLabelValue(QStringLiteral("192.168.0.100"));
    auto* fixed = new TypeIpAdjust(page->list(), 10);
    fixed->setItemTitle(QObject::tr("Multiview address (locked)"));
    page->addItem(fixed);
    fixed->setLabelValue(QStringLiteral("10.0.0.12"));
    fixed->setContentEnabled(false);

    page->addSection(QObject::tr("Number pad (the host shows it beside an address)"));
    auto* pad = new NumberPad(QRect(0, 0, 460, 430));
    pad->setFixedHeight(430);
    pad->setLabelText(QObject::tr("IP Address"));
    // Press: the pad's editor takes the knob and the digit keys (the pad's own keys
    // take clicks); Esc (or the pad's back-space key) ends the edit, Esc again leaves.
    auto* padRow = new PageRow(pad, QObject::tr("Number pad"), page->list());
    padRow->enter = [pad] {
        pad->setIPFocus();
        pad->lineEdit()->setEditStatus(true);
    };
    page->addItem(padRow, 430);
    QObject::connect(pad, &NumberPad::signalOkPushBtnClicked, page,
                     [page](QString const& text) { emit page->statusMessage(QObject::tr("Number pad: %1").arg(text)); });

    page->screenshotSetup = [page, settings] {
        QCoreApplication::processEvents();
        page->activate();
        page->setCurrentIndex(0);
        settings->gatewayEdit()->setFocus(Qt::OtherFocusReason);
    };
    page->addStretch();
    return page;
}
