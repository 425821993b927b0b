// The drop-down of the choice rows, worked entirely with the panel's keys.
//
// DropCombobox shows the chosen entry in a read-only line edit and opens one of two
// lists when asked (showPopup()):
//  - on a small screen (a home rectangle of at most 479 x 319) or with 13 entries or
//    more: its own popup list, a CustomListView half as wide as the home rectangle,
//    set against the right edge of the active window;
//  - otherwise the combo's standard popup, placed inside the home rectangle below the
//    combo when the combo sits in the upper half, above it in the lower half.
// In either list the knob moves the cursor, the press (Return/Enter) chooses the entry
// under it (eidtFinished(index)), and Escape closes the list (sigCloseEdit()).
//
// Hidden entries: an entry whose item data at role kHiddenRowRole (252) is true stays
// in the model and keeps its index, but no list shows it.
//
// The combo's width follows its widest visible entry (setComboBoxMaxWidth()), within
// the limit given with setComboBoxWidthLimit(); setComboxAutomaticCal(false) fixes it.
//
// ScrollingTextDelegate paints the popup list's rows: the row under the cursor whose
// text does not fit scrolls like a marquee while the list is open, advanced by the
// combo's scroll timer; every other row is cut with "...".
#pragma once

#include "lcdwidgets_global.h"

#include <QComboBox>
#include <QListView>
#include <QRect>
#include <QStyledItemDelegate>
#include <memory>

class QAbstractItemView;
class QTimer;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT ScrollingTextDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    // Pixels the text moves per tick, and the gap between the end of the text and
    // its next turn.
    static constexpr int kStep = 2;
    // Gap in px between the end of the scrolling text and its next turn.
    static constexpr int kGap = 40;

    // No row scrolls until setScrollingRow() names one.
    explicit ScrollingTextDelegate(QObject* parent = nullptr);

    // Paints the scrolling row's text shifted by offset(), twice kGap px apart, clipped to its
    // rectangle; a row that fits, and every other row, is painted as usual.
    void paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override;

    // The row whose text may scroll (the row under the cursor); -1: none. Changing it
    // restarts the text at its beginning.
    void setScrollingRow(int row);
    // The row whose text may scroll; -1: none.
    int scrollingRow() const { return m_row; }
    // Current scroll offset of that row, in pixels.
    int offset() const { return m_offset; }
    // One tick: moves the text of the scrolling row when it does not fit, and asks
    // for a repaint (requestUpdate()). Does nothing while no row overflows.
    void advance();
    // Back to the start, no row scrolling.
    void reset();

signals:
    // The scrolling row moved: repaint it (the popup list repaints that row alone).
    void requestUpdate();

private:
    int m_row = -1;
    int m_offset = 0;
    // Width of the scrolling row's text and the room it has, as last painted.
    mutable int m_textWidth = 0;
    mutable int m_room = 0;
};

class LCDWIDGETS_EXPORT CustomListView : public QListView
{
    Q_OBJECT
public:
    // A frameless popup list (object name "CustomListView"), single selection, not
    // editable, no horizontal scroll bar, its rows painted by a ScrollingTextDelegate.
    explicit CustomListView(QWidget* parent = nullptr);
    ~CustomListView() override;

    // The delegate that paints the rows (owned by the list).
    ScrollingTextDelegate* scrollingDelegate() const { return m_delegate; }

signals:
    // Escape closed the list, or it was closed from outside (a click elsewhere).
    void sigCloseEdit();

protected:
    // Return/Enter activate the entry under the cursor; Escape closes the list; every
    // other key (the knob's Up/Down included) moves the cursor as in any list.
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void currentChanged(QModelIndex const& current, QModelIndex const& previous) override;

private:
    friend class DropCombobox;
    ScrollingTextDelegate* m_delegate = nullptr;
    bool m_quietHide = false; // hidden by its owner: not a close by the user
};

class LCDWIDGETS_EXPORT DropCombobox : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(int fontSize READ fontSize WRITE setFontSize)
    Q_PROPERTY(bool isNeedShowCombox READ isNeedShowCombox WRITE setIsNeedShowCombox)
public:
    // Item data role that marks an entry as hidden (true: no list shows it).
    static constexpr int kHiddenRowRole = 252;
    // Screens up to this size always use the custom list.
    static constexpr int kSmallHomeWidth = 479;
    // Height in px of that small screen.
    static constexpr int kSmallHomeHeight = 319;
    // The standard popup serves up to this many entries.
    static constexpr int kMaxStandardRows = 12;
    // Marquee tick of the popup list's scrolling text, in ms.
    static constexpr int kScrollInterval = 40;

    // haveArrow: whether the combo shows its drop-down arrow (dynamic property
    // "isHaveArrow" for the theme).
    explicit DropCombobox(bool haveArrow = true, QWidget* parent = nullptr);
    // With the arrow; without this, DropCombobox(parent) would take the parent for haveArrow.
    explicit DropCombobox(QWidget* parent);
    ~DropCombobox() override;

    // Pixel size of the combo's and the lists' text (and the height of a list row);
    // values below 1 are refused.
    void setFontSize(int size);
    // The text pixel size; -1 until set.
    int fontSize() const;
    // Fixes the height of the combo and its line edit. Refused (debug log): a negative
    // height ("[DropCombobox] setHeight: negative height refused: <h>") and one above
    // QWIDGETSIZE_MAX ("[DropCombobox] setHeight: height above 16777215 refused: <h>").
    void setHeight(int height);
    // The page area popups must stay inside.
    void setHomeRect(QRect rect);
    // The rectangle last given to setHomeRect() (a null QRect by default).
    QRect homeRect() const;
    // Alignment of the shown entry's text in the combo's line edit.
    void setLineEditAlign(QFlags<Qt::AlignmentFlag> align);
    // Whether the width follows the entries (default true).
    void setComboxAutomaticCal(bool automatic);
    // Whether TypeStringCombox fits the combo's width to the entries each time it opens the
    // list (default true).
    void setIsNeedShowCombox(bool show);
    // See setIsNeedShowCombox().
    bool isNeedShowCombox() const;
    // Records whether the combo's row is the page's current row (read by isCurrentItem(); it
    // does not change the look).
    void setCurrentItem(bool current);
    // See setCurrentItem(); false by default.
    bool isCurrentItem() const;
    // Size of the drop-down arrow (a style sheet rule on the combo); an empty size
    // leaves the theme's arrow.
    void setArrowSize(QSize size);
    // Widest the combo may grow when its width follows the entries (0: no limit).
    void setComboBoxWidthLimit(int width);
    // Recomputes the width from the widest visible entry.
    void setComboBoxMaxWidth();

    // The combo's own popup list (owned by the combo; hidden until shown).
    CustomListView* getCustomListView() const;
    // Whether the standard popup is open.
    bool isPopupVisible() const;
    // Whether the custom list is open.
    bool isCustomPopupVisible() const;
    // Whether showPopup() would use the custom list with the current home rectangle
    // and entry count.
    bool usesCustomPopup() const;
    // Number of entries that are not hidden.
    int visibleCount() const;
    // Whether the entry's data at kHiddenRowRole is true (false for a bad row).
    bool isRowHidden(int row) const;

    // Opens the custom list or the standard popup (see usesCustomPopup()) with the cursor on
    // the chosen entry (the first visible one when none), and makes it the active window.
    // The custom list needs a visible window; without one it logs
    // "-------activeWindow is null-----".
    void showPopup() override;
    // Closes whichever list is open; when a list opened by showPopup() closes this way
    // without a choice, sigCloseEdit() follows from the event loop.
    void hidePopup() override;

    // Whether `text` holds a CJK ideograph (U+4E00..U+9FA5).
    bool isStrContainsChinese(QString text) const;

    // A click on the line edit opens or closes the list; Escape (press and release) is
    // consumed: its press closes an open list and ends the edit with sigCloseEdit().
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    // Stops the popup list's scrolling text and sets it back to its start.
    void slotCloseEdit();
    // The current entry changed: signalIndexChanged and signalValueChanged (its user data).
    void slotIndexChanged(int index);

signals:
    // A list closed without a choice (Escape, or closed from outside); the edit is over.
    void sigCloseEdit();
    // The current entry changed: its user data (after signalIndexChanged).
    void signalValueChanged(QVariant value);
    // An entry was chosen in a list; the edit is over.
    void eidtFinished(int index);
    // The current entry changed: its index (before signalValueChanged).
    void signalIndexChanged(int index);
    // The width that follows the entries changed (the row lays its title out anew).
    void signalWidthChanged(int width);
    // The standard popup was made (on its first opening): its view, for watchers.
    void signalStandardViewCreated(QAbstractItemView* view);

protected:
    // Places the standard popup inside the home rectangle (width: the widest the
    // popup may be).
    void moveListView(int width);
    void showCustomPopupView();

private:
    void createWidget();
    void createView();
    void finishEdit();
    void settleActivation();
    QAbstractItemView* standardView();
    void applyHiddenRows(QListView* view) const;
    void applySheet();
    int rowHeight() const;
    int textWidth(int row) const;
    void widenFor(int first, int last);

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
