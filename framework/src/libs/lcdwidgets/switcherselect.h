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
    // The switcher's model, shown on the first line.
    std::string model;
    // The switcher's name, shown with its address: "name(ip)".
    std::string name;
    std::string ip; // the key for adding and deleting
    std::string sn; // the key for lookup, online and bound updates
    // Whether the switcher answers (the dot's "style": "online" or "offline").
    bool online = false;
    // Whether the panel is bound to it (the bound mark shows).
    bool isBind = false;
};

// One switcher of the list: the main button (pressed: signalBind) and the delete
// button (signalDelete). Fixed 510 x 52 unless the page is told otherwise.
class LCDWIDGETS_EXPORT SwitcherItem : public QWidget
{
    Q_OBJECT
public:
    // An empty row of 510 × 52 px.
    explicit SwitcherItem(QWidget* parent = nullptr);
    ~SwitcherItem() override;

    // Shows a switcher: its model, "name(ip)", online dot and bound mark.
    void setSwitcherInfo(SwitcherInfo const& info);
    // The switcher shown, with its latest online and bound states.
    SwitcherInfo switcherInfo() const;
    // The online dot.
    void setOnline(bool online);
    // The bound mark.
    void setBind(bool isBind);
    // true: the delete button takes the focus (the main button if the delete button
    // is hidden); false: the main button takes it.
    void setSelected(bool selected);
    // Whether the focus is on one of the item's buttons.
    bool hasItemFocus() const;
    // The main button (the press: signalBind()).
    QPushButton* mainButton() const;
    // The delete button (the press: signalDelete()).
    QPushButton* deleteButton() const;
    // The second line: "name(ip)".
    QString detailText() const;

signals:
    // The main button was pressed: the switcher's serial number and address.
    void signalBind(std::string const& sn, std::string const& ip);
    // The delete button was pressed: the switcher's address.
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
    // Most switchers the page holds.
    static constexpr int kMaxSwitchers = 128;

    // An empty list with "Add" and "Enter"; the page holds the knob while the list is empty.
    explicit SwitcherSelect(QWidget* parent = nullptr);
    ~SwitcherSelect() override;

    // Appends a switcher, or updates the row of its serial number. Past kMaxSwitchers it is
    // refused ("[SwitcherSelect] Cannot add switcher, maximum count reached: 128").
    void addSwitcher(SwitcherInfo const& info);
    // addSwitcher() for each, laid out once.
    void addSwitchers(std::vector<SwitcherInfo> const& infos);
    // Removes every switcher (their rows are hidden for reuse).
    void clearSwitchers();
    // The online dot of the switcher with that serial number; an empty or unknown number is
    // refused ("[SwitcherSelect] Device SN is empty", "[SwitcherSelect] Device not found, SN:").
    void setDeviceOnline(std::string const& sn, bool online);
    // The bound mark of the switcher with that serial number (refusals as setDeviceOnline()).
    void setDeviceBind(std::string const& sn, bool isBind);

    // The host's "back": closes the add-device page if it is shown (true: the back
    // was used up) or hides the page itself (false).
    bool hideInterface();
    // Whether the add-device page is shown.
    bool isAddDeviceShow() const;
    // Sets "Select Switcher" (on two lines), "Add", "Enter" (and the add-device page's
    // texts) again.
    void retranslateUi();

    // Forwarded to the add-device page (empty / nothing before it was first opened).
    std::string getCurrentIp() const;
    // AddDevice::setDeviceName() (nothing before the page was first opened).
    void setDeviceName(std::string const& name) const;

    // The switchers held, in order, and the row showing `sn` (null if none).
    std::vector<SwitcherInfo> switchers() const;
    // The row showing the switcher with that serial number; null if none.
    SwitcherItem* itemBySn(std::string const& sn) const;
    // The row at `index` in the grid (0..127; visible or not), or null.
    SwitcherItem* itemAt(int index) const;
    // The current row's index; -1 when none.
    int selectedIndex() const;
    // Width of every row (the panel's 510 by default); ignored below 120.
    void setItemWidth(int width);
    // The "Add" button (opens the add-device page).
    QPushButton* addButton() const;
    // The "Enter" button (for the host to connect).
    QPushButton* enterButton() const;
    // The add-device page; null until it was first opened.
    AddDevice* addDevicePage() const;

    // The page's and the rows' keys, as described above.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // A switcher's row was pressed: its serial number and address.
    void signalBind(std::string const& sn, std::string const& ip);
    // remove false: an address was confirmed on the add-device page; true: a row's delete
    // button was pressed.
    void signalAddSwitcher(std::string ip, bool remove);
    // The add-device page opened (true) or closed (false).
    void signalAddDeviceType(bool shown);
    // The add-device page's address edit started.
    void signalEditingStarted();
    // The add-device page's address edit ended.
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
