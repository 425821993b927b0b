// A row of mutually exclusive buttons: one choice out of several.
//
// The current button is the committed choice and shows checked while the row is not
// being browsed. When the row takes the focus, the checked button gives up its check
// mark and takes the focus instead; Up/Down then move the focus, the knob's press
// (Enter/Return on the focused button, or a click) chooses and emits, in this order,
// signalValueChanged(), signalTextChanged(), signalIndexChanged() and
// signalCloseEditStatus(); Escape restores the check mark of the committed choice and
// emits signalCloseEditStatus() only. The current-setters never emit.
#pragma once

#include "multiwidgetcontrol.h"

#include <QIcon>
#include <QPointF>
#include <QVariant>
#include <QVector>
#include <list>
#include <utility>

class QAbstractButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT MultiBtnControl : public MultiWidgetControl
{
    Q_OBJECT
    // Pixel size of the buttons' text (the row's height follows).
    Q_PROPERTY(int contentFontSize READ contentFontSize WRITE setContentFontSize)
public:
    // An empty row ("multiButtonFrame" = "normal").
    explicit MultiBtnControl(QWidget* parent = nullptr);
    ~MultiBtnControl() override;

    // A text button (a single "&" shows as such); `data` is its value (user data 256).
    void addBtnData(QString const& text, QVariant const& data);
    // A button with an icon and text.
    void addBtnData(QIcon const& icon, QString const& text, QVariant const& data);
    // The same, with the icon drawn at `iconPos` inside the button (a coordinate that is
    // not a number counts as 0).
    void addBtnData(QIcon const& icon, QPointF iconPos, QString const& text, QVariant const& data);
    // The same, inserted at `index` (clamped to 0..count()).
    void insertBtnData(int index, QString const& text, QVariant const& data);
    // A button with an icon and text, inserted at `index` (clamped to 0..count()).
    void insertBtnData(int index, QIcon const& icon, QString const& text, QVariant const& data);
    // One text button a pair (text, value).
    void setBtnData(QVector<QPair<QString, int>> const& data);
    // One icon-only 40 x 40 button a row (icon, (text, value)); the text is kept as
    // user data 257.
    void setBtnData(QVector<QPair<QIcon, QPair<QString, int>>> const& data);
    // Renames buttons: for each (value, text) the button with that value.
    void updateBtns(std::list<std::pair<int, QString>>& items);
    // Removes (and deletes later) the button at `index`; a bad index is refused with the
    // debug message "the index is bigger than _widList!".
    void removeBtnData(int index);
    // Removes (and deletes later) every button; no current button remains.
    void removeAllBtnData();

    // User data `role` of the button at `index` (invalid for a bad index).
    QVariant btnData(int index, int role) const;
    // User data `role` of the current button (256: its value); invalid when there is none.
    QVariant getCurrentData(int role) const;
    // Text of the current button (an icon-only button's kept text); empty when none.
    QString getCurrentText() const;
    // Position of the current button; 0 when there is none.
    int getCurrentIndex() const;
    // Number of buttons, hidden ones included.
    int count() const;
    // First button whose data (as int) equals `data` (as int); -1 if none.
    int findData(QVariant const& data, int role) const;

    // The current-setters: no signal.
    void setCurrentIndex(int index);
    // Makes the button with that value current and checked; an unknown value changes nothing.
    void setCurrentData(int value);
    // Makes the button with that text current; an unknown text changes nothing.
    void setCurrentText(QString text);
    // Makes the button whose value equals `data` (as a QVariant) current.
    void setCurrentUserData(QVariant data);

    // Shows or hides the first button with that value; the row's width follows.
    void setBtnVisible(int value, bool visible);
    // Disables (or enables) the row and every button.
    void setContentDisabled(bool disabled);
    // Every button: no own style sheet, dynamic property `name` = true.
    void setStyleProperty(QString const& name);
    // Font size n: height n * 24 / 16, corners and paddings n / 4; sizes below 1 are refused.
    void setContentFontSize(int size);
    // Pixel size of the buttons' text; -1 until set.
    int contentFontSize() const;
    // The focused button becomes current and checked (no signal).
    void enterPressed();
    // Checks the current button and unchecks the others.
    void resetBtnCheckStatus();

signals:
    // A button was chosen: its value (first of the four signals).
    void signalValueChanged(int value);
    // A button was chosen: its position (third).
    void signalIndexChanged(int index);
    // A button was chosen: its text (second).
    void signalTextChanged(QString text);
    // The browse ended: after a choice (last signal) or on Escape.
    void signalCloseEditStatus();

protected:
    void focusInEvent(QFocusEvent* event) override;
    bool filterKey(int key) override;
    void pressKey(int key) override;

private:
    void insertButton(int index, e_WidgetType type, QAbstractButton* button, QVariant const& data);
    void buttonAdded();
    void remakeConnections();
    void chooseButton(QAbstractButton* button, int index);
    void updateWidth();
    QAbstractButton* buttonAt(int index) const;
    int indexOf(QAbstractButton const* button) const;

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
