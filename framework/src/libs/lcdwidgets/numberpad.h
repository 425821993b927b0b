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
    explicit NumberPad(QRect geometry, QWidget* parent = nullptr);
    ~NumberPad() override;

    // Title "<text>:".
    void setLabelText(QVariant text);
    void setLineEditText(QVariant text);
    void setIPFocus() const;
    IPLineEdit* lineEdit() const;
    void retranslateUi();
    // Sends a key press and its release to the editor's focus widget (nothing when
    // no field has had the focus yet).
    void sendPushBtnEvent(Qt::Key key, QString text) const;

signals:
    void signalOkPushBtnClicked(QString text);
    void signalTriangleClicked();

public slots:
    void slotNumberPushBtnClicked() const;
    void slotDotPushBtnClicked() const;
    void slotBackSpacePushBtnClicked() const;
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
