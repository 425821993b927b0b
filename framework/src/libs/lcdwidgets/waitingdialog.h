// The shared please-wait panel: an animated loading image, an informative text and
// an optional function button (for example a cancel). One instance serves the whole
// host; it is modal, and the user can never close it (Escape, Enter and close
// requests are swallowed): only the host hides it.
//
//   WaitingDialog::instance(homeRect, window)->showWaitingDialog(tr("Saving..."), homeRect);
//   ...
//   WaitingDialog::instance()->hideWaitingDialog();
//
// Sizes follow the host rectangle (W × H): 5·W/8 × H/2, with the function button
// 11·W/16 wide; font W/37.5 pixels.
#pragma once

#include "lcdwidgets_global.h"

#include <QDialog>
#include <QRect>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT WaitingDialog : public QDialog
{
    Q_OBJECT
public:
    // Colour of the informative text.
    enum TooltipLevel { White = 0, Yellow = 1, Red = 2 };
    Q_ENUM(TooltipLevel)
    // Kept for the host; the loading image does not depend on it.
    enum IndicatorSize { Small = 0, Medium = 1, Large = 2 };
    Q_ENUM(IndicatorSize)

    // The instance, created on the first call (later calls ignore the arguments).
    // The first call must come from the GUI thread.
    static WaitingDialog* instance(QRect rect = QRect(), QWidget* parent = nullptr,
                                   Qt::WindowFlags flags = Qt::WindowFlags());
    // Deletes the instance; the next instance() creates a new one.
    static void deleteInstance();
    // The instance if there is one (never creates it).
    static WaitingDialog* existingInstance();

    // Shows the panel centred on `rect` with `text` (always white). Refused while
    // another modal widget is active.
    void showWaitingDialog(QString const& text, QRect rect, TooltipLevel level = White);
    // Hides the panel and emits hideDialog(); a hidden panel logs a warning.
    void hideWaitingDialog();

    // The text under the image, in the colour of `level` (white, yellow, red); an unknown
    // level is logged ("[WaitingDialog] setInformativeText: unknown text level") and taken
    // as White.
    void setInformativeText(QString const& text, TooltipLevel level = White);
    // The text under the image.
    QString informativeText() const;
    // The function button: shown with `text`, reporting `functionCode` when pressed.
    void setFunButtonStatus(bool visible, QString const& text, int functionCode);
    // Shows the function button (enabled, focused; the panel grows to 11·W/16 × 3·H/5) or
    // hides it (the panel shrinks back).
    void setFunButtonVisible(bool visible);
    // Whether the function button is shown (hidden by default).
    bool isFunButtonVisible() const;
    // The function button's text.
    void setButtonText(QString const& text);
    // The code signalFunButtonClicked() reports (the button's "userData" property).
    void setButtonProperty(int functionCode);
    // Enables the function button again (a press disables it until the host reacts).
    void setFunButtonEnable(bool enable);

    // Moves the panel onto another widget (null: a top-level window).
    void attachToWidget(QWidget* widget);
    // Stored for the host; the panel does not read it.
    void setParentChanged(bool changed);
    // Stored for the host (default Small); an unknown size is refused
    // ("[WaitingDialog] setIndicatorSize: unknown size").
    void setIndicatorSize(IndicatorSize size);
    // The size given to setIndicatorSize().
    IndicatorSize indicatorSize() const;
    // The text size in px (the host rectangle's width / 37.5).
    int getFontSize() const;
    // The rectangle the panel is sized from and centred on (the last one shown with).
    QRect hostRect() const;
    // Advances the indicator angle (modulo 360) and repaints.
    void step();
    // The indicator angle in degrees, 0..330 in steps of 30.
    int angle() const;
    // The loading image's size in px.
    QSize sizeHint() const override;

signals:
    // The function button was pressed: its code (the button is then disabled).
    void signalFunButtonClicked(int functionCode);
    // hideWaitingDialog() hid the panel.
    void hideDialog();

private slots:
    void slotFunButtonClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    WaitingDialog(QRect rect, QWidget* parent, Qt::WindowFlags flags);
    ~WaitingDialog() override;
    void recentre();
    void placeFrame();

    struct Impl;
    std::unique_ptr<Impl> d;
    static WaitingDialog* s_instance;
};

} // namespace Widget
} // namespace LCD
