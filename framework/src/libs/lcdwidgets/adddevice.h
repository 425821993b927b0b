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
    explicit AddDevice(QWidget* parent = nullptr);
    ~AddDevice() override;

    // Empties the address, the device name and the hint.
    void resetData();
    // The address as typed ("" while every field is empty).
    std::string getCurrentIp() const;
    // The name the host found for the address, shown under it.
    void setDeviceName(std::string const& name);
    QString deviceName() const;
    // The hint under the address ("" when none).
    QString hintText() const;
    void retranslateUi();

    IPEdit* ipEdit() const;
    QPushButton* confirmButton() const;
    QPushButton* cancelButton() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    // Confirms the address (see above); returns whether it was taken.
    bool confirm();
    // Closes the page: hides it and emits signalAddDeviceHide().
    void closePage();

signals:
    void signalApply(LCD::Widget::SwitcherInfo const& info);
    void signalEditingStarted();
    void signalEditingFinished();
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
