// A modal dialog that shows a long read-only text (a licence, a log, release
// notes) under an optional title, scrolled with the knob.
//
//   TextViewDialog::showText(page, tr("Licences"), licenceText, homeRect);
//
// Sizes follow the host rectangle (W × H): the dialog is 3·W/4 × 4·H/5 and centred
// on the rectangle when shown; the font is W/37.5 pixels. An empty rectangle is
// logged ("[TextViewDialog] host rectangle is empty, using 800x480") and replaced by
// the panel's 800x480 screen.
//
// Keys (the text view holds the knob while the dialog is open):
//   Up / Down      scroll towards the start / the end by `level` lines (the level
//                  carried in the key text, rounded; at least one line, at most a page;
//                  an empty or unreadable level is 1)
//   Enter / Return close the dialog, accepted (exec() returns 1)
//   Escape         close the dialog, rejected (exec() returns 0)
//   Every other key is swallowed: the text is read-only.
//
// `parent` is kept but does not own the dialog (a top-level window, like the other
// boxes): when the parent is destroyed a running dialog ends with -1. exec() logs
// "[dialog] exec finish with " and the result.
//
// Bad input: showText() with an empty text shows nothing and returns 0
// ("[TextViewDialog] showText: text is empty: nothing shown"); a text longer than
// maxTextLength() characters is cut there ("[TextViewDialog] setText: text of N
// characters cut to 1048576").
#pragma once

#include "lcdwidgets_global.h"

#include <QDialog>
#include <QRect>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TextViewDialog : public QDialog
{
    Q_OBJECT
public:
    // rect: the host rectangle the dialog is sized from; no title, no text.
    explicit TextViewDialog(QRect rect, QWidget* parent = nullptr);
    ~TextViewDialog() override;

    // Builds a dialog with `title` (may be empty: no title row) and `text`, runs it
    // modally and returns its result: 1 for Enter/Return, 0 for Escape, -1 when the
    // parent went away.
    static int showText(QWidget* parent, QString const& title, QString const& text, QRect rect);

    // Longest text the dialog shows, in characters (1048576); setText() cuts the rest.
    static constexpr int maxTextLength() { return 1 << 20; }

    // The title above the text; an empty title hides the title row.
    void setTitle(QString const& title);
    // The title above the text.
    QString title() const;
    // Plain text, wrapped to the view's width; the view returns to the start.
    void setText(QString const& text);
    // The shown text (after any cut).
    QString text() const;

    // The scroll position, in pixels, and its maximum (0 while the text fits).
    int scrollValue() const;
    // The largest scroll position in px (0 while the text fits).
    int scrollMaximum() const;
    // Pixels one knob step of level 1 scrolls (a text line).
    int lineStep() const;

    // The dialog's width in px (3/4 of the host's width).
    int getTextViewDialogWidth() const;
    // The dialog's height in px (4/5 of the host's height).
    int getTextViewDialogHeight() const;
    // The text size in px derived from the host rectangle (its width / 37.5).
    float getFontSize() const;
    // Whether exec() is running; safe to poll from any thread.
    bool isExec() const;

    // Runs the dialog modally: 1 (Enter/Return), 0 (Escape), -1 (parent destroyed). A
    // second run while one is under way is refused ("[TextViewDialog] exec: already
    // running, refused") and answers 0.
    int exec() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    // True when the key was used (or swallowed).
    bool handleKey(QKeyEvent* event);

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
