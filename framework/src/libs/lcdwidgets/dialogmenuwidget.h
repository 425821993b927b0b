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
    explicit ListWidgetDelegate(QObject* parent = nullptr);

    void paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override;

    // Pixel size of the rows' text (values below 1 are refused).
    void setFontPixelSize(int size);
    int fontPixelSize() const { return m_fontSize; }
    void setSelectedColor(QColor color);
    QColor selectedColor() const { return m_selectedColor; }
    void setNormalColor(QColor color);
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
    using Entry = std::pair<QString, QMap<int, QVariant>>;

    explicit DialogMenuWidget(QWidget* parent = nullptr);
    ~DialogMenuWidget() override;

    // Replaces the entries (text and item data by role) and rebuilds the rows; the
    // window is refreshed without selection signals.
    void setListItems(QVector<Entry> const& items);
    // Replaces the entries' data and rebuilds the rows.
    void updateItemDatas(QVector<Entry> const& items);
    // Makes i the current and the committed entry; false for a bad index.
    bool setCurrentIndex(int i);
    // Like setCurrentIndex() without the current-signals; silent: no selection
    // signals either.
    void updateCurrentIndex(int i, bool silent);
    int getCurrentIndex() const;
    // The current entry's text; empty for a bad index.
    QString getCurrentText() const;
    QVariant getCurrentData(int role = Qt::UserRole) const;
    QVariant getItemData(int index, int role = Qt::UserRole) const;
    QString getItemText(int index) const;
    void setItemData(int index, QVariant value, int role = Qt::UserRole) const;
    void setItemText(int index, QString const& text);
    // Make the first entry with that text (data) the current and committed one.
    void setCurrentText(QString text);
    void setCurrentData(QVariant data);
    int findText(QString const& text) const;
    int findData(QVariant const& data, int role = Qt::UserRole) const;
    // Number of rows, hidden ones included.
    int count() const;
    int visibleCount() const;
    void setRowHidden(int row, bool hide);
    bool isRowHidden(int row) const;
    void clear();
    void setDialogMenuTitle(QString title);
    QString dialogMenuTitle() const;
    // Height shared by the title and the rows (the title takes one row).
    void setMenuWidgetHeight(int height);
    int menuWidgetHeight() const;
    void updateItemHeight(int menuHeight, int width);
    void setFlow(QListView::Flow flow);
    void setContentFontSize(int size);
    void setItemTextColor(QColor color);
    void setItemTextFont(QFont font);
    bool isKeyBackPressed() const;
    int slidWindowCount() const;
    // The committed entry (Escape returns to it).
    int selectedIndex() const;

    // The parts, for the theme and for tests.
    QListWidget* listWidget() const;
    QLabel* titleLabel() const;
    QWidget* topSpacer() const;
    QWidget* bottomSpacer() const;
    ListWidgetDelegate* delegate() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void signalSelectedChanged(QString text);
    void signalSelectedIndexChanged(int selectIndex);
    void signalCurrentChanged(QString text);
    void signalCurrentIndexChanged(int curIndex);
    void signalValueChanged(QVariant value);
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
