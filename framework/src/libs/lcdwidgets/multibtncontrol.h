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
    Q_PROPERTY(int contentFontSize READ contentFontSize WRITE setContentFontSize)
public:
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
    void insertBtnData(int index, QIcon const& icon, QString const& text, QVariant const& data);
    // One text button a pair (text, value).
    void setBtnData(QVector<QPair<QString, int>> const& data);
    // One icon-only 40 x 40 button a row (icon, (text, value)); the text is kept as
    // user data 257.
    void setBtnData(QVector<QPair<QIcon, QPair<QString, int>>> const& data);
    // Renames buttons: for each (value, text) the button with that value.
    void updateBtns(std::list<std::pair<int, QString>>& items);
    void removeBtnData(int index);
    void removeAllBtnData();

    // User data `role` of the button at `index` (invalid for a bad index).
    QVariant btnData(int index, int role) const;
    QVariant getCurrentData(int role) const;
    QString getCurrentText() const;
    // Position of the current button; 0 when there is none.
    int getCurrentIndex() const;
    int count() const;
    // First button whose data (as int) equals `data` (as int); -1 if none.
    int findData(QVariant const& data, int role) const;

    // The current-setters: no signal.
    void setCurrentIndex(int index);
    void setCurrentData(int value);
    void setCurrentText(QString text);
    void setCurrentUserData(QVariant data);

    void setBtnVisible(int value, bool visible);
    void setContentDisabled(bool disabled);
    // Every button: no own style sheet, dynamic property `name` = true.
    void setStyleProperty(QString const& name);
    // Font size n: height n * 24 / 16, corners and paddings n / 4; sizes below 1 are refused.
    void setContentFontSize(int size);
    int contentFontSize() const;
    // The focused button becomes current and checked (no signal).
    void enterPressed();
    // Checks the current button and unchecks the others.
    void resetBtnCheckStatus();

signals:
    void signalValueChanged(int value);
    void signalIndexChanged(int index);
    void signalTextChanged(QString text);
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
