// On-screen keypad for typing an IPv4 address: a title, an IPLineEdit and a grid of
// digit, dot and back-space keys, a wide OK key and a narrow triangle key (the host
// folds the pad away with it). The keys never take the focus: each press becomes a
// synthetic key press and release sent to the editor's focused octet field, so the
// editor treats pad input exactly like keys from the panel. Call setIPFocus() before
// the first key: until a field has had the focus, the keys have nowhere to go.
#pragma once

#include "lcdwidgets_global.h"

#include <QFrame>
#include <QRect>
#include <QString>
#include <QVariant>
#include <memory>

namespace LCD {
namespace Widget {

class IPLineEdit;
class Ui_NumberPad;

// The editor's initial address.
LCDWIDGETS_EXPORT extern const QString DEFAULT_IP_ADDRESS;

class LCDWIDGETS_EXPORT NumberPad : public QFrame
{
    Q_OBJECT
public:
    // geometry: the pad's place (a null rectangle keeps the form's); the editor starts
    // with DEFAULT_IP_ADDRESS at 24 px, the title "IP Address:".
    explicit NumberPad(QRect geometry, QWidget* parent = nullptr);
    ~NumberPad() override;

    // Title "<text>:".
    void setLabelText(QVariant text);
    // The editor's address (the value's text; see IPLineEdit::setIpText()).
    void setLineEditText(QVariant text);
    // Gives the focus to the editor's first octet field, so that the keys have a target.
    void setIPFocus() const;
    // The address editor (owned by the pad).
    IPLineEdit* lineEdit() const;
    // Sets every key's and the title's text again in the current language.
    void retranslateUi();
    // Sends a key press and its release to the editor's focus widget (nothing when
    // no field has had the focus yet).
    void sendPushBtnEvent(Qt::Key key, QString text) const;

signals:
    // OK was pressed: the editor's dotted address.
    void signalOkPushBtnClicked(QString text);
    // The triangle key was pressed (the host folds the pad away).
    void signalTriangleClicked();

public slots:
    // A digit key: sends Qt::Key_0..Key_9 with the digit's text (the key is the sender).
    void slotNumberPushBtnClicked() const;
    // The dot key: sends Qt::Key_Period with ".".
    void slotDotPushBtnClicked() const;
    // The back-space key: sends Qt::Key_Escape, which ends the editor's edit.
    void slotBackSpacePushBtnClicked() const;
    // Emits signalOkPushBtnClicked() with the address.
    void slotOkPushBtnClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<Ui_NumberPad> ui;
    IPLineEdit* m_lineEdit = nullptr;
    QRect m_geometry;
    QString m_title;
};

} // namespace Widget
} // namespace LCD
