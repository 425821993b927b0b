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
    explicit TextViewDialog(QRect rect, QWidget* parent = nullptr);
    ~TextViewDialog() override;

    // Builds a dialog with `title` (may be empty: no title row) and `text`, runs it
    // modally and returns its result: 1 for Enter/Return, 0 for Escape, -1 when the
    // parent went away.
    static int showText(QWidget* parent, QString const& title, QString const& text, QRect rect);

    static constexpr int maxTextLength() { return 1 << 20; }

    // The title above the text; an empty title hides the title row.
    void setTitle(QString const& title);
    QString title() const;
    // Plain text, wrapped to the view's width; the view returns to the start.
    void setText(QString const& text);
    QString text() const;

    // The scroll position, in pixels, and its maximum (0 while the text fits).
    int scrollValue() const;
    int scrollMaximum() const;
    // Pixels one knob step of level 1 scrolls (a text line).
    int lineStep() const;

    int getTextViewDialogWidth() const;
    int getTextViewDialogHeight() const;
    float getFontSize() const;
    // Whether exec() is running; safe to poll from any thread.
    bool isExec() const;

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
