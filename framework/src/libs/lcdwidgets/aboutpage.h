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
    // Pixel size of the rows' texts.
    Q_PROPERTY(int contentFontSize READ contentFontSize WRITE setContentFontSize)
public:
    // Most rows the page holds.
    static constexpr int kMaxRows = 256;

    // An empty page (no rows, no current row) that takes the focus; text 20 px.
    explicit AboutPage(QWidget* parent = nullptr);
    ~AboutPage() override;

    // --- The standard rows (added on first use, in the order of first use) ---
    // The "Model" row.
    void setModel(QString const& model);
    // The "Software version" row.
    void setSoftwareVersion(QString const& version);
    // The "Hardware version" row.
    void setHardwareVersion(QString const& version);
    // The "Serial number" row.
    void setSerialNumber(QString const& serial);
    // The "IP address" row.
    void setIpAddress(QString const& address);
    // The "MAC address" row.
    void setMacAddress(QString const& address);

    // --- Any row ---
    // Updates the row with this key or adds one at the end; returns its index, or -1
    // when refused.
    int setInfo(QString const& key, QString const& value);
    // Sets the value of the row at `index`; false (and logged) for a bad index.
    bool setInfoAt(int index, QString const& value);
    // Removes the row with this key (the current row follows, signalCurrentChanged() if it
    // moved); false (and logged) when there is none.
    bool removeInfo(QString const& key);
    // Removes every row; signalCurrentChanged(-1) when there was a current row.
    void clear();

    // Number of rows.
    int count() const;
    // -1 when there is no row with this key.
    int indexOf(QString const& key) const;
    // The key as shown (translated for the standard rows); empty for a bad index.
    QString key(int index) const;
    // A row's value as given; empty for a bad index.
    QString value(int index) const;
    // A row's widget (owned by the page); null for a bad index.
    TypeKeyValueText* item(int index) const;

    // The current row; -1 when none.
    int currentIndex() const;
    // Makes a row current and scrolls it into view (signalCurrentChanged()); a bad index is
    // refused ("[AboutPage] setCurrentIndex: no row N (M rows)").
    void setCurrentIndex(int index);

    // Pixel size of the rows' texts (20 by default).
    void setContentFontSize(int size);
    // Pixel size of the rows' texts.
    int contentFontSize() const;

signals:
    // The current row changed (-1: none).
    void signalCurrentChanged(int index);
    // Escape: the host leaves the page.
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
