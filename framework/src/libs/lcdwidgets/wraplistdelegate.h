// An item delegate that wraps long texts over as many lines as they need (at word
// boundaries, inside a word only when one word is wider than the row) and sizes each
// row to fit its text. For lists and tables of notes, messages or long values.
//
// The width a row wraps to is the item's own rectangle, or, while the view is asking
// for sizes, the view's column (tree views) or viewport width (lists). A limit of
// lines can be set (setMaximumLines); the last line shown then ends in "…".
//
// Bad input is refused with a debug message and changes nothing:
//   "[WrapListDelegate] setTextMargins: negative margins"
//   "[WrapListDelegate] setMaximumLines: negative line count"
//
// Global namespace, as the panel's labels.
#pragma once

#include "lcdwidgets_global.h"

#include <QStyledItemDelegate>

class LCDWIDGETS_EXPORT WrapListDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    // Margins 8 px and 4 px, no line limit.
    explicit WrapListDelegate(QObject* parent = nullptr);
    ~WrapListDelegate() override;

    // Space between the row's edges and its text (default 8, 4).
    void setTextMargins(int horizontal, int vertical);
    // Space in px between the row's left and right edges and its text.
    int horizontalMargin() const { return m_hMargin; }
    // Space in px between the row's top and bottom edges and its text.
    int verticalMargin() const { return m_vMargin; }
    // At most this many lines a row; 0 (the default) = no limit.
    void setMaximumLines(int lines);
    // The line limit; 0 = none.
    int maximumLines() const { return m_maxLines; }

    // Lines `text` takes in `font` at `width` pixels (at least 1; honours the limit).
    int lineCount(QString const& text, QFont const& font, int width) const;

    // Paints the row with its text wrapped inside the margins (elided on the last allowed line).
    void paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    // The row's size with its wrapped text: lines × line height plus the margins.
    QSize sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const override;

private:
    int textWidth(QStyleOptionViewItem const& option, QModelIndex const& index) const;

    int m_hMargin = 8;
    int m_vMargin = 4;
    int m_maxLines = 0;
};
