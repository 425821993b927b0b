// Add-device page of the switcher selection: the address of a switcher to add, typed
// into an IPEdit (keyboard or number pad), with "Confirm" and "Cancel".
//
// Knob and keys: the page opens with the address frame focused; the press starts
// typing at the last octet (Up/Down, "." and "-" walk the octets), Escape ends the
// typing and, from the frame, closes the page (signalAddDeviceHide). Key X (or
// "Confirm") checks the address: a usable unicast IPv4 address is sent with
// signalApply and the page closes; anything else shows a hint and keeps the page.
#pragma once

#include "lcdwidgets_global.h"

#include <QWidget>
#include <memory>
#include <string>

class QPushButton;

namespace LCD {
namespace Widget {

class IPEdit;
struct SwitcherInfo;

class LCDWIDGETS_EXPORT AddDevice : public QWidget
{
    Q_OBJECT
public:
    // An empty address, no device name, no hint; "Confirm" and "Cancel".
    explicit AddDevice(QWidget* parent = nullptr);
    ~AddDevice() override;

    // Empties the address, the device name and the hint.
    void resetData();
    // The address as typed ("" while every field is empty).
    std::string getCurrentIp() const;
    // The name the host found for the address, shown under it.
    void setDeviceName(std::string const& name);
    // The name last given to setDeviceName().
    QString deviceName() const;
    // The hint under the address ("" when none).
    QString hintText() const;
    // Sets the page's texts ("Add Device" on two lines, "IP Address", "Confirm", "Cancel", the hint
    // "Invalid IP address", "Device: %1") again in the current language.
    void retranslateUi();

    // The address editor (owned by the page).
    IPEdit* ipEdit() const;
    // The "Confirm" button (confirm()).
    QPushButton* confirmButton() const;
    // The "Cancel" button (closePage()).
    QPushButton* cancelButton() const;

    // The page's keys, as described above.
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    // Confirms the address (see above); returns whether it was taken.
    bool confirm();
    // Closes the page: hides it and emits signalAddDeviceHide().
    void closePage();

signals:
    // A usable address was confirmed: info.ip and info.name filled, the rest empty. A
    // refused one is logged ("[AddDevice] Invalid IP address:") and shows the hint.
    void signalApply(LCD::Widget::SwitcherInfo const& info);
    // Typing into the address began.
    void signalEditingStarted();
    // Typing into the address ended.
    void signalEditingFinished();
    // The page closed itself (closePage()).
    void signalAddDeviceHide();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
