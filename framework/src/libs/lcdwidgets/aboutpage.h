// The device's "About" page: its information (model, software and hardware versions,
// serial number, addresses, anything else the host adds) as key/value rows that the
// knob scrolls through. The host fills and updates it; the page never reads the
// device itself.
//
//   auto* about = new AboutPage(settingsStack);
//   about->setModel("VS-840");  about->setSoftwareVersion("2.4.1 (build 5120)");
//   about->setInfo(tr("Uptime"), "3 d 04:12");
//
// Rows are TypeKeyValueText rows (the CommonItemType protocol): the key at most two
// fifths of the width, the value wrapped over as many lines as it needs; the row grows
// with its lines. The standard rows use the untranslated keys "Model", "Software
// version", "Hardware version", "Serial number", "IP address" and "MAC address",
// translated for display and again on a language change; rows added by setInfo() keep
// the host's key as given. An empty value shows as "-".
//
// Keys (the page takes the focus; StrongFocus):
//   Up / Down  move the current row up / down by `level` rows (the key text's level,
//              rounded, at least 1), stopping at the ends; the view follows
//   Escape     emits signalBack() (the host leaves the page)
//   Enter and Return are not used and go on to the host.
// The current row is marked with setCurrentItem() and the theme property
// "isAboutCurrent"; the page has "isAboutPage", each row "isAboutRow".
//
// Bad input is refused with a warning and changes nothing:
//   "[AboutPage] setInfo: empty key refused"
//   "[AboutPage] setInfoAt: no row 5 (3 rows)"   (any bad index)
//   "[AboutPage] removeInfo: no row \"Uptime\""
//   "[AboutPage] setContentFontSize: size 0 refused"
//   "[AboutPage] setInfo: at most 256 rows"
#pragma once

#include "lcdwidgets_global.h"

#include <QFrame>
#include <memory>

namespace LCD {
namespace Widget {

class TypeKeyValueText;

class LCDWIDGETS_EXPORT AboutPage : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int contentFontSize READ contentFontSize WRITE setContentFontSize)
public:
    static constexpr int kMaxRows = 256;

    explicit AboutPage(QWidget* parent = nullptr);
    ~AboutPage() override;

    // --- The standard rows (added on first use, in the order of first use) ---
    void setModel(QString const& model);
    void setSoftwareVersion(QString const& version);
    void setHardwareVersion(QString const& version);
    void setSerialNumber(QString const& serial);
    void setIpAddress(QString const& address);
    void setMacAddress(QString const& address);

    // --- Any row ---
    // Updates the row with this key or adds one at the end; returns its index, or -1
    // when refused.
    int setInfo(QString const& key, QString const& value);
    bool setInfoAt(int index, QString const& value);
    bool removeInfo(QString const& key);
    void clear();

    int count() const;
    // -1 when there is no row with this key.
    int indexOf(QString const& key) const;
    // The key as shown (translated for the standard rows); empty for a bad index.
    QString key(int index) const;
    QString value(int index) const;
    TypeKeyValueText* item(int index) const;

    int currentIndex() const;
    void setCurrentIndex(int index);

    // Pixel size of the rows' texts (20 by default).
    void setContentFontSize(int size);
    int contentFontSize() const;

signals:
    void signalCurrentChanged(int index);
    void signalBack();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    // Rows follow the width of the scroll area's viewport.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int setRow(QString const& source, bool translated, QString const& value, char const* who);
    void fitRow(int index);
    void markCurrent(int index, bool current);

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
