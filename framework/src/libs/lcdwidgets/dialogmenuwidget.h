// The modal menu from which the user picks one entry with the knob.
//
// A title and a window of slidWindowCount() row positions (7): the row under the
// cursor always stands in the middle position; near the start or the end of the list
// empty space fills the positions above or below it. Up/Down move the cursor over the
// rows that are not hidden, without wrapping, and report it live
// (signalSelectedChanged, signalSelectedIndexChanged); Return/Enter commit it
// (signalValueChanged with the entry's Qt::UserRole data, signalCurrentChanged,
// signalCurrentIndexChanged, signalEditFinished); Escape returns to the entry
// committed before, sets the key-back flag (isKeyBackPressed()) and emits
// signalEditFinished before the dialog closes itself.
//
// An index past the end is refused with the debug message
// "the index is bigger than _itemNameList!".
//
// Theme: the dialog's title label has "isDialogMenuTitle" = true, its list
// "isDialogMenuWidget" = true. Row texts are painted by ListWidgetDelegate in the
// selected colour (bold) or the normal colour; the theme should not give the rows a
// text colour of its own.
#pragma once

#include "lcdwidgets_global.h"

#include <QColor>
#include <QDialog>
#include <QListView>
#include <QMap>
#include <QSet>
#include <QStringList>
#include <QStyledItemDelegate>
#include <QVariant>
#include <QVector>
#include <utility>

class QLabel;
class QListWidget;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT ListWidgetDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    // Rows at 20 px, the selected row orange (255, 150, 38) and bold, the others white.
    explicit ListWidgetDelegate(QObject* parent = nullptr);

    // Paints the row's text at fontPixelSize() in the selected colour (bold) or the normal one.
    void paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override;

    // Pixel size of the rows' text (values below 1 are refused).
    void setFontPixelSize(int size);
    // The rows' text pixel size (default 20).
    int fontPixelSize() const { return m_fontSize; }
    // Text colour of the row under the cursor; an invalid colour is ignored.
    void setSelectedColor(QColor color);
    // Text colour of the row under the cursor (default (255, 150, 38)).
    QColor selectedColor() const { return m_selectedColor; }
    // Text colour of the other rows; an invalid colour is ignored.
    void setNormalColor(QColor color);
    // Text colour of the other rows (default white).
    QColor normalColor() const { return m_normalColor; }

private:
    int m_fontSize = 20;
    QColor m_selectedColor = QColor(255, 150, 38);
    QColor m_normalColor = QColor(Qt::white);
    mutable QColor m_textColor; // the colour of the row being painted
};

class LCDWIDGETS_EXPORT DialogMenuWidget : public QDialog
{
    Q_OBJECT
public:
    // An entry: its text and its item data by role.
    using Entry = std::pair<QString, QMap<int, QVariant>>;

    // A modal dialog, empty, with no title; 16 px margins, a 90 % opaque dark background.
    explicit DialogMenuWidget(QWidget* parent = nullptr);
    ~DialogMenuWidget() override;

    // Replaces the entries (text and item data by role) and rebuilds the rows; the
    // window is refreshed without selection signals.
    void setListItems(QVector<Entry> const& items);
    // Replaces the entries' data and rebuilds the rows.
    void updateItemDatas(QVector<Entry> const& items);
    // Makes i the current and the committed entry. A bad index (negative or past the
    // end) is refused with "the index is bigger than _itemNameList!", a hidden row with
    // "[DialogMenuWidget] setCurrentIndex: row <i> is hidden": false, nothing changes.
    bool setCurrentIndex(int i);
    // Like setCurrentIndex() without the current-signals; silent: no selection
    // signals either.
    void updateCurrentIndex(int i, bool silent);
    // The row under the cursor (0 when empty).
    int getCurrentIndex() const;
    // The current entry's text; empty for a bad index.
    QString getCurrentText() const;
    // The data for `role` of the row under the cursor; invalid for none.
    QVariant getCurrentData(int role = Qt::UserRole) const;
    // An entry's data for `role`; an invalid QVariant for a bad index.
    QVariant getItemData(int index, int role = Qt::UserRole) const;
    // An entry's text; empty for a bad index.
    QString getItemText(int index) const;
    // Sets an entry's data for `role` (kept over rebuilds), without signals; a bad index
    // is refused with "the index is bigger than _itemNameList!".
    void setItemData(int index, QVariant value, int role = Qt::UserRole) const;
    // Renames an entry, without signals; a bad index is refused with
    // "the index is bigger than _itemNameList!".
    void setItemText(int index, QString const& text);
    // Make the first entry with that text (data) the current and committed one.
    void setCurrentText(QString text);
    // By Qt::UserRole data. An unknown text or data is refused ("[DialogMenuWidget]
    // setCurrentText: no entry" or "[DialogMenuWidget] setCurrentData: no entry holds").
    void setCurrentData(QVariant data);
    // The index of the first entry with this text; -1 if none.
    int findText(QString const& text) const;
    // The index of the first entry whose data for `role` equals `data`; -1 if none.
    int findData(QVariant const& data, int role = Qt::UserRole) const;
    // Number of rows, hidden ones included.
    int count() const;
    // Number of rows that are not hidden.
    int visibleCount() const;
    // Hides or shows a row (it keeps its index); a row not yet added is remembered for it.
    // A negative row is refused ("[DialogMenuWidget] setRowHidden: negative row").
    void setRowHidden(int row, bool hide);
    // Whether the row was hidden with setRowHidden().
    bool isRowHidden(int row) const;
    // Removes every entry and hidden mark; cursor and committed entry back to 0. No signal.
    void clear();
    // The title shown above the rows.
    void setDialogMenuTitle(QString title);
    // The title shown above the rows.
    QString dialogMenuTitle() const;
    // Height shared by the title and the rows (the title takes one row).
    void setMenuWidgetHeight(int height);
    // The height given to setMenuWidgetHeight(), in px (0: rows keep their natural height).
    int menuWidgetHeight() const;
    // Sizes the title and the existing rows for a dialog menuHeight px high and width px
    // wide (a row: menuHeight / 8; the rows span width - 32). A negative or too large
    // height is refused ("[DialogMenuWidget] updateItemHeight: negative height").
    void updateItemHeight(int menuHeight, int width);
    // The list's flow (default QListView::TopToBottom).
    void setFlow(QListView::Flow flow);
    // Pixel size of the rows' and the title's text; outside 1..512 refused
    // ("[DialogMenuWidget] setContentFontSize: size out of range:").
    void setContentFontSize(int size);
    // Text colour of the rows not under the cursor (an invalid colour is ignored).
    void setItemTextColor(QColor color);
    // Takes the font's pixel size for the rows (a font sized in points is ignored).
    void setItemTextFont(QFont font);
    // Whether the last key the list took was Escape (the edit was given up).
    bool isKeyBackPressed() const;
    // Number of row positions the window shows (7).
    int slidWindowCount() const;
    // The committed entry (Escape returns to it).
    int selectedIndex() const;

    // The parts, for the theme and for tests.
    QListWidget* listWidget() const;
    // The title label ("isDialogMenuTitle").
    QLabel* titleLabel() const;
    // Empty space above the rows near the start of the list (its height: rows x row height).
    QWidget* topSpacer() const;
    // Empty space below the rows near the end of the list.
    QWidget* bottomSpacer() const;
    // The delegate that paints the rows (owned by the list).
    ListWidgetDelegate* delegate() const;

    // Works the list's keys as described above; Escape is passed on so that the dialog closes.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // The cursor moved: the text of the row under it (before signalSelectedIndexChanged).
    void signalSelectedChanged(QString text);
    // The cursor moved: the index of the row under it.
    void signalSelectedIndexChanged(int selectIndex);
    // An entry was committed (or setCurrentIndex()): its text, before signalCurrentIndexChanged.
    void signalCurrentChanged(QString text);
    // An entry was committed (or setCurrentIndex()): its index.
    void signalCurrentIndexChanged(int curIndex);
    // Return/Enter committed an entry: its Qt::UserRole data (the first signal of a commit).
    void signalValueChanged(QVariant value);
    // The edit ended: Return/Enter (after the commit signals) or Escape.
    void signalEditFinished();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void createWidgets();
    void addItems();
    void updateCurrentShowItem(bool silent);
    void curRowItemDown();
    void curRowItemUp();
    int rowHeight() const;
    QSize rowSizeHint(int width) const;

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
