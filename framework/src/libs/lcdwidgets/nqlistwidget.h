// A list worked by the knob: Up/Down move the current row, the press activates it,
// Escape gives the knob back. The current row's text, when it does not fit, scrolls
// as in the drop-down's list (ScrollingTextDelegate); setWrapText(true) wraps long
// texts over several lines instead (WrapListDelegate).
//
// Keys: Up (previous) / Down (next) move by the knob's level in rows, truncated, at
// least one row (level 3 skips three rows), skipping hidden rows, no wrap at the ends;
// Enter/Return emit signalActivated(row) (and QListWidget's itemActivated); Escape
// emits sigCloseEdit(). A move emits QListWidget's currentRowChanged(row).
//
// Bad input is refused with a debug message and changes nothing:
//   "[NQListWidget] setCurrentIndex: index N out of range (count M)"
//   "[NQListWidget] setContentFontSize: font size must be positive, got N"
//   "[NQListWidget] setScrollInterval: interval must be positive, got N"
//
// Theme: the list has the dynamic property "isNQListWidget" = true.
#pragma once

#include "lcdwidgets_global.h"

#include <QListWidget>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT NQListWidget : public QListWidget
{
    Q_OBJECT
    // Pixel size of the rows' text (default 20).
    Q_PROPERTY(int contentFontSize READ contentFontSize WRITE setContentFontSize)
    // Whether long texts wrap (true) or the current row scrolls (false, default).
    Q_PROPERTY(bool wrapText READ wrapText WRITE setWrapText)
public:
    static constexpr int kScrollInterval = 50; // ms a scroll tick

    // An empty single-selection list ("isNQListWidget"), no horizontal scroll bar, text 20 px.
    explicit NQListWidget(QWidget* parent = nullptr);
    ~NQListWidget() override;

    // Makes the row current (silently scrolled into view); -1 clears it.
    void setCurrentIndex(int row);
    // The current row; -1 when none.
    int currentIndex() const;
    // Pixel size of the rows' text, 1..512; another size is refused (see above).
    void setContentFontSize(int size);
    // Pixel size of the rows' text.
    int contentFontSize() const;
    // true: long texts wrap and rows grow; false (default): the current row scrolls.
    void setWrapText(bool wrap);
    // Whether long texts wrap.
    bool wrapText() const;
    // Tick of the current row's scrolling text in ms (default kScrollInterval); below 1
    // refused (see above).
    void setScrollInterval(int ms);
    // Rows that are not hidden.
    int visibleCount() const;

signals:
    // Enter/Return activated the current row.
    void signalActivated(int row);
    // Escape: the list gives the knob back.
    void sigCloseEdit();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
