// Switchers: the switcher selection page holding 128 switchers, and its add-device
// page. Press to work the page: Up/Down walk the switchers (the list scrolls), Right
// and Left move between a switcher and its delete button, the press binds (or
// deletes), Z opens the add-device page (type an address: press, digits, "." to
// move on, Esc; X confirms), Esc closes the add page and then leaves the page.
#include "gallerycontext.h"
#include "itempage.h"
#include "pagerow.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <memory>

using namespace LCD::Widget;

namespace {

std::vector<SwitcherInfo> studioSwitchers()
{
    static char const* const models[] = {"V-8HD", "V-1200", "M-5", "XS-40"};
    static char const* const rooms[] = {"Studio", "Ctrl", "Stage", "OB", "Edit", "Hall", "Gym", "Lobby"};
    std::vector<SwitcherInfo> out;
    for (int i = 0; i < SwitcherSelect::kMaxSwitchers; ++i) {
        SwitcherInfo s;
        s.model = models[i % 4];
        s.name = std::string(rooms[(i / 4) % 8]) + " " + std::to_string(i / 32 + 1) + char('A' + i % 4);
        s.ip = "10.0." + std::to_string(i / 100) + "." + std::to_string(10 + i % 100);
        s.sn = "SW" + std::to_string(240100 + i);
        s.online = i % 5 != 3;
        s.isBind = i == 2;
        out.push_back(s);
    }
    return out;
}

} // namespace

ItemPage* buildSwitchersPage(GalleryContext&)
{
    auto* page = new ItemPage(QObject::tr("Switchers"));
    page->addSection(QObject::tr("Switcher selection, 128 switchers (press to work it, Esc to leave)"));

    auto* select = new SwitcherSelect;
    // Two columns fit the gallery's 800 pixels (the panel's rows are 510 wide): the
    // section caption stands in for the page's title, and the "Enter" button is the
    // host's to wire, which this host does not need.
    select->setItemWidth(320);
    select->enterButton()->hide();
    if (auto* title = select->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
        title->hide();
    select->setFixedHeight(300);
    select->addSwitchers(studioSwitchers());
    auto* row = new PageRow(select, QObject::tr("Switcher selection"), page->list());
    row->enter = [select] {
        // The page gives the knob to its selected switcher when shown.
        select->hide();
        select->show();
    };
    row->back = [select] { return select->isAddDeviceShow() && select->hideInterface(); };
    page->addItem(row, 300);

    // The gallery plays the host: binding moves the mark, deleting drops the switcher,
    // adding appends one (online, named after the address's last octet).
    auto bound = std::make_shared<std::string>("SW240102");
    auto list = std::make_shared<std::vector<SwitcherInfo>>(studioSwitchers());
    QObject::connect(select, &SwitcherSelect::signalBind, page,
                     [page, select, bound](std::string const& sn, std::string const& ip) {
                         select->setDeviceBind(*bound, false);
                         select->setDeviceBind(sn, true);
                         *bound = sn;
                         emit page->statusMessage(QObject::tr("Bind %1 (%2)").arg(QString::fromStdString(sn),
                                                                                 QString::fromStdString(ip)));
                     });
    QObject::connect(select, &SwitcherSelect::signalAddSwitcher, page,
                     [page, select, list](std::string const& ip, bool remove) {
                         if (remove) {
                             list->erase(std::remove_if(list->begin(), list->end(),
                                                        [&ip](SwitcherInfo const& s) { return s.ip == ip; }),
                                         list->end());
                             select->clearSwitchers();
                             select->addSwitchers(*list);
                             select->hide();
                             select->show();
                             emit page->statusMessage(QObject::tr("Deleted %1").arg(QString::fromStdString(ip)));
                             return;
                         }
                         SwitcherInfo s;
                         s.model = "V-8HD";
                         s.name = "New " + ip.substr(ip.rfind('.') + 1);
                         s.ip = ip;
                         s.sn = "SWNEW" + ip;
                         s.online = true;
                         if (list->size() < size_t(SwitcherSelect::kMaxSwitchers))
                             list->push_back(s);
                         select->addSwitcher(s);
                         emit page->statusMessage(QObject::tr("Add %1").arg(QString::fromStdString(ip)));
                     });
    QObject::connect(select, &SwitcherSelect::signalAddDeviceType, page, [page](bool shown) {
        emit page->statusMessage(shown ? QObject::tr("Add device: type the address, X confirms")
                                       : QObject::tr("Add device closed"));
    });

    // The rows are narrow here: the status line shows the current one in full.
    QObject::connect(qApp, &QApplication::focusChanged, page, [page, select](QWidget*, QWidget* now) {
        for (QWidget* w = now; w && w != select; w = w->parentWidget()) {
            if (auto* item = qobject_cast<SwitcherItem*>(w)) {
                SwitcherInfo const info = item->switcherInfo();
                emit page->statusMessage(QObject::tr("%1  %2  %3  SN %4%5")
                                             .arg(QString::fromStdString(info.model), QString::fromStdString(info.name),
                                                  QString::fromStdString(info.ip), QString::fromStdString(info.sn),
                                                  info.online ? QString() : QObject::tr("  (offline)")));
                return;
            }
        }
    });

    page->screenshotSetup = [page, select] {
        QCoreApplication::processEvents();
        page->activate();
        page->setCurrentIndex(0);
        select->hide();
        select->show();
        for (int i = 0; i < 9; ++i) {
            QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QStringLiteral("1"));
            QApplication::sendEvent(QApplication::focusWidget(), &down);
        }
    };
    page->addStretch();
    return page;
}
