// A row that chooses one of several buttons (a MultiBtnControl on the right), with the
// list interface of the string choice rows mapped onto the buttons.
//
// The knob's press on the row (editValue()) hands the focus to the buttons, which show
// the present choice as focused; Up/Down walk them, the press chooses: the row emits
// signalMultiBtnValueChanged(value), signalCurrentTextChanged(), signalCurrentIndexChanged(),
// signalCloseEditStatus() and signalEditFinished(), in this order, and the page gets the
// focus back. Escape leaves the choice as it was. The current-setters never emit.
//
// The buttons have no item texts of their own apart from what they show: findText()
// always answers 0 and itemText() an empty string; setItemText() and setItemData() do
// nothing. currentIndex() answers 0 when no button is current.
#pragma once

#include "stringcomboxbasetype.h"

#include <QIcon>
#include <QPointF>
#include <QVector>

namespace LCD {
namespace Widget {

class MultiBtnControl;

class LCDWIDGETS_EXPORT TypeItemMultiBtn : public StringComboxBaseType
{
    Q_OBJECT
public:
    // No buttons, no right icon.
    explicit TypeItemMultiBtn(QWidget* parent = nullptr);
    ~TypeItemMultiBtn() override;

    // --- The list interface ---
    void addItem(QString const& text, QVariant const& userData = QVariant()) override;
    // Appends a button with an icon and text.
    void addItem(QIcon const& icon, QString const& text, QVariant const& userData = QVariant());
    // Appends a button with the icon drawn at `iconPos` inside it (NaN counts as 0).
    void addItem(QIcon const& icon, QPointF iconPos, QString const& text, QVariant const& userData = QVariant());
    void insertItem(int index, QString const& text, QVariant const& userData = QVariant()) override;
    // Inserts a button with an icon and text at `index` (clamped to 0..count()).
    void insertItem(int index, QIcon const& icon, QString const& text, QVariant const& userData = QVariant());
    void removeItem(int index) override;
    void clear() override;
    int count() const override;
    int currentIndex() const override;
    void setCurrentIndex(int index) override;
    QString currentText() const override;
    void setCurrentText(QString text) override;
    QVariant currentData(int role = Qt::UserRole) const override;
    // Makes the button with that value current, silently; an unknown value changes nothing.
    void setCurrentData(int value);
    void setCurrentUserData(QVariant data) override;
    int findData(QVariant const& data, int role = Qt::UserRole) const override;
    QVariant itemData(int index, int role = Qt::UserRole) const override;
    void updateItems(std::list<std::pair<int, QString>>& items) override;
    int findText(QString const& text) const override;
    QString itemText(int index) const override;
    void setItemText(int index, QString const& text) override;
    void setItemData(int index, QVariant value, int role = Qt::UserRole) override;

    // --- Buttons ---
    // One text button a pair (text, value).
    void setBtnText(QVector<QPair<QString, int>> const& data);
    // One icon-only button a row (icon, (text, value)).
    void setBtnIcon(QVector<QPair<QIcon, QPair<QString, int>>> const& data);
    // Shows or hides the first button with that value.
    void setBtnVisible(int value, bool visible);

    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;
    void editValue() override;

    // The buttons (owned by the row).
    MultiBtnControl* multiBtnControl() const;

signals:
    // A button was chosen: its value, QVariant(int) (first of the signals above).
    void signalMultiBtnValueChanged(QVariant value);

private:
    void createWidget();
    void createConnects();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
