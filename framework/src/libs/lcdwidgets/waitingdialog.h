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

    void setInformativeText(QString const& text, TooltipLevel level = White);
    QString informativeText() const;
    // The function button: shown with `text`, reporting `functionCode` when pressed.
    void setFunButtonStatus(bool visible, QString const& text, int functionCode);
    void setFunButtonVisible(bool visible);
    bool isFunButtonVisible() const;
    void setButtonText(QString const& text);
    void setButtonProperty(int functionCode);
    void setFunButtonEnable(bool enable);

    // Moves the panel onto another widget (null: a top-level window).
    void attachToWidget(QWidget* widget);
    void setParentChanged(bool changed);
    void setIndicatorSize(IndicatorSize size);
    IndicatorSize indicatorSize() const;
    int getFontSize() const;
    QRect hostRect() const;
    // Advances the indicator angle (modulo 360) and repaints.
    void step();
    int angle() const;
    QSize sizeHint() const override;

signals:
    void signalFunButtonClicked(int functionCode);
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
