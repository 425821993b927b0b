// Network settings page: the mode chooser (Manual / DHCP), the IP address, subnet
// mask and gateway editors, the MAC address, and the buttons "Restore Defaults",
// "Apply", "Enter" and "Cancel". The page applies nothing itself: it hands the host a
// NetworkInfo (signalApplyNetwork) or asks for the defaults (signalResetNetwork); the
// host fills it with setNetworkInfo().
//
// Knob: Up/Down walk chooser -> IP -> mask -> gateway (inside an editor they walk its
// octets first); the press opens the chooser or starts typing into an editor's last
// octet; Escape leaves the editor. Key X clicks "Apply", key Z "Restore Defaults".
// Choosing DHCP applies at once; a manual address waits for "Apply". "Enter" and
// "Cancel" are the host's to connect (enterButton(), cancelButton()).
#pragma once

#include "lcdwidgets_global.h"

#include <QMetaType>
#include <QWidget>
#include <memory>
#include <string>

class QPushButton;

namespace LCD {
namespace Widget {

class FocusComboBox;
class IPEdit;

struct NetworkInfo
{
    int mode = 0; // 0 manual, any other value DHCP (the chooser's index)
    // IPv4 address, dotted.
    std::string ip;
    // Subnet mask, dotted.
    std::string mask;
    // Gateway address, dotted.
    std::string gateway;
    std::string mac; // display only
};

class LCDWIDGETS_EXPORT NetworkSettings : public QWidget
{
    Q_OBJECT
public:
    // Manual mode, empty addresses and MAC.
    explicit NetworkSettings(QWidget* parent = nullptr);
    ~NetworkSettings() override;

    // Shows the host's settings without applying anything.
    void setNetworkInfo(NetworkInfo const& info);
    // Sets the captions, "Manual" and the buttons' texts again in the current language.
    void retranslateUi();

    // The page's parts, for the host's wiring and for tests.
    FocusComboBox* modeChooser() const;
    // The IP address editor.
    IPEdit* ipEdit() const;
    // The subnet mask editor.
    IPEdit* maskEdit() const;
    // The gateway editor.
    IPEdit* gatewayEdit() const;
    // "Restore Defaults" (signalResetNetwork()).
    QPushButton* resetButton() const;
    // "Apply" (signalApplyNetwork()).
    QPushButton* applyButton() const;
    // "Enter", for the host to connect.
    QPushButton* enterButton() const;
    // "Cancel", for the host to connect.
    QPushButton* cancelButton() const;
    // The MAC address shown.
    QString macText() const;

    // The page's keys, as described above.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // "Apply" (or choosing DHCP): the mode and the three addresses as typed (not checked),
    // and the MAC shown.
    void signalApplyNetwork(LCD::Widget::NetworkInfo const& info);
    // "Restore Defaults": the host should send its defaults (setNetworkInfo()).
    void signalResetNetwork();
    // Typing into one of the address editors began.
    void signalEditingStarted();
    // Typing into one of the address editors ended.
    void signalEditingFinished();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD

Q_DECLARE_METATYPE(LCD::Widget::NetworkInfo)
