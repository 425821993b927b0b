// Switcher selection page: the switchers the panel knows, as a two-column grid of
// SwitcherItem rows in a scroll area (model, name and address, online dot, bound mark,
// delete button), an "Add" button that opens the add-device page, and an "Enter"
// button for the host to wire.
//
// The host feeds the list (addSwitcher, addSwitchers: at most 128 switchers, a known
// serial number updates its row in place) and the online / bound state by serial
// number. The page reports the user's choices:
//   signalBind(sn, ip)              a switcher's row was pressed
//   signalAddSwitcher(ip, false)    an address was confirmed on the add-device page
//   signalAddSwitcher(ip, true)     a switcher's delete button was pressed
//   signalAddDeviceType(shown)      the add-device page opened or closed
// The host changes the list itself (clearSwitchers + addSwitchers); the page never
// drops a row on its own.
//
// Knob: Up/Down walk the rows (the current row is scrolled into view), Right moves to
// a row's delete button and Left back, the press clicks the focused button, key Z
// clicks "Add". While the add-device page is shown it takes the keys.
#pragma once

#include "lcdwidgets_global.h"

#include <QMetaType>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

class QLabel;
class QPushButton;

namespace LCD {
namespace Widget {

struct SwitcherInfo
{
    std::string model;
    std::string name;
    std::string ip; // the key for adding and deleting
    std::string sn; // the key for lookup, online and bound updates
    bool online = false;
    bool isBind = false;
};

// One switcher of the list: the main button (pressed: signalBind) and the delete
// button (signalDelete). Fixed 510 x 52 unless the page is told otherwise.
class LCDWIDGETS_EXPORT SwitcherItem : public QWidget
{
    Q_OBJECT
public:
    explicit SwitcherItem(QWidget* parent = nullptr);
    ~SwitcherItem() override;

    void setSwitcherInfo(SwitcherInfo const& info);
    SwitcherInfo switcherInfo() const;
    void setOnline(bool online);
    void setBind(bool isBind);
    // true: the delete button takes the focus (the main button if the delete button
    // is hidden); false: the main button takes it.
    void setSelected(bool selected);
    // Whether the focus is on one of the item's buttons.
    bool hasItemFocus() const;
    QPushButton* mainButton() const;
    QPushButton* deleteButton() const;
    QString detailText() const;

signals:
    void signalBind(std::string const& sn, std::string const& ip);
    void signalDelete(std::string const& ip);

private:
    void createWidget();

    struct Impl;
    std::unique_ptr<Impl> d;
};

class AddDevice;

class LCDWIDGETS_EXPORT SwitcherSelect : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kMaxSwitchers = 128;

    explicit SwitcherSelect(QWidget* parent = nullptr);
    ~SwitcherSelect() override;

    void addSwitcher(SwitcherInfo const& info);
    void addSwitchers(std::vector<SwitcherInfo> const& infos);
    void clearSwitchers();
    void setDeviceOnline(std::string const& sn, bool online);
    void setDeviceBind(std::string const& sn, bool isBind);

    // The host's "back": closes the add-device page if it is shown (true: the back
    // was used up) or hides the page itself (false).
    bool hideInterface();
    bool isAddDeviceShow() const;
    void retranslateUi();

    // Forwarded to the add-device page (empty / nothing before it was first opened).
    std::string getCurrentIp() const;
    void setDeviceName(std::string const& name) const;

    // The switchers held, in order, and the row showing `sn` (null if none).
    std::vector<SwitcherInfo> switchers() const;
    SwitcherItem* itemBySn(std::string const& sn) const;
    // The row at `index` in the grid (0..127; visible or not), or null.
    SwitcherItem* itemAt(int index) const;
    int selectedIndex() const;
    // Width of every row (the panel's 510 by default); ignored below 120.
    void setItemWidth(int width);
    QPushButton* addButton() const;
    QPushButton* enterButton() const;
    AddDevice* addDevicePage() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void signalBind(std::string const& sn, std::string const& ip);
    void signalAddSwitcher(std::string ip, bool remove);
    void signalAddDeviceType(bool shown);
    void signalEditingStarted();
    void signalEditingFinished();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD

Q_DECLARE_METATYPE(LCD::Widget::SwitcherInfo)
