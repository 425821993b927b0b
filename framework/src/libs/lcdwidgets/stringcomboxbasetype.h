// Base of the rows that choose one string out of a list: the drop-down row, the menu
// row and the button-row choice all offer this one list interface, so that a page can
// fill and read any of them alike.
//
// Entries keep their index when hidden: an entry whose item data at role
// kHiddenRowRole (252) is true stays in the list and in count(), but no popup shows it.
#pragma once

#include "commonitemtype.h"

#include <QPoint>
#include <QString>
#include <QVariant>
#include <list>
#include <utility>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT StringComboxBaseType : public CommonItemType
{
    Q_OBJECT
public:
    // Item data role that marks an entry as hidden.
    static constexpr int kHiddenRowRole = 252;

    // Constructs the row; derived rows build their value widget.
    explicit StringComboxBaseType(QWidget* parent = nullptr);
    ~StringComboxBaseType() override;

    // --- The list interface ---
    virtual void addItem(QString const& text, QVariant const& userData = QVariant()) = 0;
    virtual void removeItem(int index) = 0;
    virtual void insertItem(int index, QString const& text, QVariant const& userData = QVariant()) = 0;
    // The chosen entry, -1 when none.
    virtual int currentIndex() const = 0;
    virtual QString currentText() const = 0;
    virtual QVariant currentData(int role = Qt::UserRole) const = 0;
    virtual void setCurrentIndex(int index) = 0;
    // Chooses the entry whose user data equals `data`.
    virtual void setCurrentUserData(QVariant data) = 0;
    virtual void setCurrentText(QString text) = 0;
    virtual void setItemText(int index, QString const& text) = 0;
    virtual QString itemText(int index) const = 0;
    // Replaces the texts of the listed entries: (index, new text).
    virtual void updateItems(std::list<std::pair<int, QString>>& items) = 0;
    virtual void clear() = 0;
    // Number of entries, hidden ones included.
    virtual int count() const = 0;
    virtual int findText(QString const& text) const = 0;
    virtual int findData(QVariant const& data, int role = Qt::UserRole) const = 0;
    virtual QVariant itemData(int index, int role = Qt::UserRole) const = 0;
    virtual void setItemData(int index, QVariant value, int role = Qt::UserRole) = 0;
    // Optional: hide or show an entry.
    virtual void setRowHidden(int index, bool hidden);
    // Optional: the screen position of the page's frame, for popups.
    virtual void setHomeFramePoint(QPoint point);
    // Optional: whether the user may change the choice.
    virtual void setEditable(bool editable);
    // Optional: for menu rows, hides (or shows) the menu dialog.
    virtual void setDlgMenuWidgetHidden(bool hidden);

signals:
    // A list opened for the user.
    void signalShowPop();
    // The cursor of an open list moved (live preview; the choice is unchanged).
    void signalSelectedIndexChanged(int index);
    void signalSelectedChanged(QString text);
    // The chosen entry changed.
    void signalCurrentIndexChanged(int index);
    void signalCurrentTextChanged(QString text);
    // The user committed an entry (even the one already chosen).
    void signalActivated(int index);
};

} // namespace Widget
} // namespace LCD
