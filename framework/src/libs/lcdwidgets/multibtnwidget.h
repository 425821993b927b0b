// A pad of operation buttons: a fixed number of text buttons, each reporting its value
// when pressed. Up/Down move the focus (no wrap), the knob's press (Enter/Return) or a
// click reports the focused button's value with signalValueChanged(), Escape ends the
// edit with signalCloseEditStatus(); the panel's back key (Qt::Key_Back) reports
// signalBackBtnClicked().
#pragma once

#include "lcdwidgets_global.h"

#include <QPair>
#include <QVariant>
#include <QVector>
#include <QWidget>
#include <memory>

class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT MultiBtnWidget : public QWidget
{
    Q_OBJECT
public:
    // `count` buttons (a negative count makes none).
    explicit MultiBtnWidget(int count, QWidget* parent = nullptr);
    ~MultiBtnWidget() override;

    // Text and value of the first `count` buttons, one pair each (extra pairs are ignored).
    void setBtnData(QVector<QPair<QString, int>> data);
    // Sets the dynamic property `name` on every button and re-polishes it.
    void setBtnDefaultStyle(QString name);
    // Font size of the buttons; sizes below 1 are refused.
    void setFontSize(int size);
    // Reports the focused button's value; nothing when no button has the focus.
    void enterPressed();
    // Position of `button`; -1 when it is not one of this pad's.
    int getIndex(QPushButton* button) const;
    // Number of buttons.
    int count() const;
    // The button at `index`; null for a bad index.
    QPushButton* button(int index) const;

    // The buttons' keys: Up/Down, Enter/Return, Escape and Back as described above.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // A button was pressed (knob or click): its value, QVariant(int).
    void signalValueChanged(QVariant value);
    // Escape ended the edit.
    void signalCloseEditStatus();
    // The panel's back key (Qt::Key_Back) was pressed.
    void signalBackBtnClicked();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool handleKey(int key);

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
