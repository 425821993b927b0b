// The drop-down choice row: a title and the chosen entry in a DropCombobox, with an
// optional label before the value (for instance "Input") and one after it (a unit).
//
// The knob's press (editValue()) opens the combo's list, unless at most one entry is
// visible and the row's auto-update-content flag is off: a list with one choice never
// opens. While the list is open the knob moves the cursor (signalSelectedIndexChanged
// and signalSelectedChanged report it live), the press chooses the entry
// (signalCurrentIndexChanged, signalCurrentTextChanged, signalValueChanged with the
// entry's user data, then signalActivated and signalEditFinished) and Escape closes
// the list keeping the choice (signalCloseEditStatus, then signalEditFinished). In
// both cases the focus returns to the row's parent.
//
// Bad indexes and unknown texts or data are logged ("[TypeStringCombox] ...") and
// refused; reads at a bad index give an empty text or an invalid QVariant.
//
// Theme properties: the combo has "isComboboxText" = true and "isHaveArrow"; the label
// before the value has "defPreValueText" = true (and "userdata" when set); a disabled
// row sets "Gray" = true on the combo and both labels.
#pragma once

#include "stringcomboxbasetype.h"

#include <QIcon>

class QLabel;

namespace LCD {
namespace Widget {

class DropCombobox;

class LCDWIDGETS_EXPORT TypeStringCombox : public StringComboxBaseType
{
    Q_OBJECT
public:
    // haveArrow: whether the combo shows its drop-down arrow.
    explicit TypeStringCombox(QWidget* parent = nullptr, bool haveArrow = true);
    ~TypeStringCombox() override;

    // --- The list interface ---
    void addItem(QString const& text, QVariant const& userData = QVariant()) override;
    void removeItem(int index) override;
    void insertItem(int index, QString const& text, QVariant const& userData = QVariant()) override;
    int currentIndex() const override;
    QString currentText() const override;
    QVariant currentData(int role = Qt::UserRole) const override;
    void setCurrentIndex(int index) override;
    void setCurrentUserData(QVariant data) override;
    void setCurrentText(QString text) override;
    void setItemText(int index, QString const& text) override;
    QString itemText(int index) const override;
    void updateItems(std::list<std::pair<int, QString>>& items) override;
    void clear() override;
    int count() const override;
    int findText(QString const& text) const override;
    int findData(QVariant const& data, int role = Qt::UserRole) const override;
    QVariant itemData(int index, int role = Qt::UserRole) const override;
    void setItemData(int index, QVariant value, int role = Qt::UserRole) override;
    void setRowHidden(int index, bool hidden) override;
    void setHomeFramePoint(QPoint point) override;
    // false: the knob's press no longer opens the list (the choice is fixed).
    void setEditable(bool editable) override;

    // --- Row operations ---
    // Opens the list (showPopup(false)); see above.
    void editValue() override;
    void closeEditValue() override;
    void setContentDisabled(bool disabled) const override;
    // Also the size of the combo's drop-down arrow.
    void setRightIconSize(QSize size) override;
    void setContentFontSize(int size) override;
    void setItemHeight(int height) override;
    void setHomeRect(QRect rect) override;
    void setCurrentItem(bool current) override;

    // --- Entries with icons ---
    // Appends an entry with an icon, a text and its user data.
    void addItem(QIcon const& icon, QString const& text, QVariant const& userData = QVariant());
    // An icon-only entry whose user data is `value`.
    void addItem(QIcon const& icon, int const& value);

    // Number of entries that are not hidden.
    int visableCount() const;
    // Opens the list; quiet: without signalValueChanged and signalShowPop.
    void showPopup(bool quiet);
    // Closes the list without choosing (no signal).
    void hidePopup();
    // The row under the list's cursor (-1: none).
    int curSelectedRow() const;
    // Puts the list's cursor on `row` (the choice is unchanged).
    void setRowSelected(int row);
    // Shows or hides the combo (the value) and lays the title out again.
    void setComboBoxVisible(bool visible);
    // Size in px of the entries' icons. A negative side is refused ("[TypeStringCombox]
    // setIconSize: negative size refused: " and the size); so is a side above QWIDGETSIZE_MAX.
    void setIconSize(QSize size);
    // Whether the combo's text may be typed (default: read-only).
    void setComboboxEditable(bool editable);
    // Re-applies the read-only state, alignment and font to the combo's line edit.
    void updateComboboxEditable();
    // Fits the combo's width to its widest entry within the row's value area.
    void initComboBoxWidth();
    // Whether opening the list first fits the combo's width to its entries (default true).
    void setIsNeedShowCombox(bool show);
    // The combo that shows the value and opens the list (owned by the row).
    DropCombobox* comboBox() const;

    // --- Label before the value ---
    // Shows or hides the label before the value (hidden by default); the title is laid out again.
    void setPreValueLabelHidden(bool hidden);
    // The text of the label before the value (for instance "Input").
    void setPreValueLabelText(QString text);
    // Sets a theme property on the label before the value and repolishes it; a null or empty
    // name is refused ("[TypeStringCombox] setPreValueLabelProperty: no property name").
    void setPreValueLabelProperty(char const* name, QVariant const& value);
    // Stores `data` as the label's "userdata" property (the theme may match on it).
    void setPreValueLabelUserdata(QVariant data);
    // The label's "userdata" property; invalid when never set.
    QVariant getPreValueLabelUserdata() const;
    // The object name of the label before the value (for the theme's object-name selectors).
    void setPreValueLabelObjectName(QString name);
    // The object name of the label before the value.
    QString getPreValueLabelObjectName() const;

    // --- Label after the value ---
    // The label after the value (a unit), owned by the row; hidden by default.
    QLabel* getLastLabel();
    // Shows or hides the label after the value; the title is laid out again.
    void setLastValueLabelHidden(bool hidden);
    // Sets a theme property on the label after the value and repolishes it; a null or empty
    // name is refused ("[TypeStringCombox] setLastValueLabelProperty: no property name").
    void setLastValueLabelProperty(char const* name, QVariant const& value);

    // Escape closes the list and ends the edit; Enter ends it (Return is left to the
    // combo). Both are consumed.
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    // The combo's activated(index): emits signalActivated and, during an edit, ends it.
    void slotComBoxActivated(int index);
    // The combo's currentIndexChanged(index): emits signalCurrentIndexChanged,
    // signalCurrentTextChanged and signalValueChanged (the entry's user data), in that order.
    void slotComBoxIndexChanged(int index);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
