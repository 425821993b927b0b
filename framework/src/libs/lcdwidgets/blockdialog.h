// A modal blocking notice that covers its parent widget: the loading animation, a
// text and an optional twelve-segment vertical progress bar that can be animated
// over a given duration. Escape does not close it; its owner does (accept(),
// reject() or done()), after which run() returns and the dialog deletes itself
// (unless auto-delete was cleared).
#pragma once

#include "lcdwidgets_global.h"

#include <QDialog>
#include <QProgressBar>
#include <memory>

namespace LCD {
namespace Widget {

// A vertical bar drawn as twelve segments filled from the bottom.
class LCDWIDGETS_EXPORT TwelveSegmentVerticalProgressBar : public QProgressBar
{
    Q_OBJECT
public:
    // A QProgressBar painted as twelve segments; set it vertical and its range as usual.
    explicit TwelveSegmentVerticalProgressBar(QWidget* parent = nullptr);

    // Number of lit segments (0 to 12) for the current value.
    int filledSegments() const;

protected:
    void paintEvent(QPaintEvent* event) override;
};

class LCDWIDGETS_EXPORT BlockDialog : public QDialog
{
    Q_OBJECT
public:
    // A frameless, translucent dialog with `text`; the bar (18×120 px, range 0..12) is
    // hidden. Auto-delete is on.
    explicit BlockDialog(QString const& text = QString(), QWidget* parent = nullptr);
    ~BlockDialog() override;

    // Creates one on the heap, sets the text and runs it; returns the exec() result.
    // An empty text is refused (nothing shown, QDialog::Rejected).
    static int createBlockDialog(QString const& text, QWidget* parent = nullptr);

    // The notice's text.
    void setText(QString const& text);
    // The notice's text.
    QString text() const;
    // Shows or hides the twelve-segment bar (hidden by default).
    void setProgressBarVisible(bool visible);
    // Refused (with a warning) when min > max.
    void setProgressRange(int min, int max);
    // Animates the bar from its minimum to its maximum in twelve ticks over `ms`
    // (negative counts as 0; 0 starts nothing).
    void setEffectDurationMs(int ms);
    // The duration given to setEffectDurationMs(), in ms.
    int effectDurationMs() const;
    // Whether run() deletes the dialog (deleteLater()) when it returns (default true).
    void setAutoDelete(bool autoDelete);
    // Place over the parent's global position (true) or at (0, 0).
    void setWinIsShow(bool mapToGlobal);
    // The bar (owned by the dialog).
    TwelveSegmentVerticalProgressBar* progressBar() const;
    // The running animation's tick interval in ms, 0 when it is not running.
    int animationInterval() const;
    // Ticks the animation has made: 0 to 12 (12: the bar is full).
    int animationStep() const;

    // exec(), then deleteLater() with auto-delete.
    int run();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
