// A step control: a left button, a display text and a right button. It holds no
// number of its own; it reports "down" (left) and "up" (right) presses and the text
// shown is set from outside. While it has the knob, Up presses the left button and
// Down the right one; Escape hands the knob back to its parent.
#pragma once

#include "lcdwidgets_global.h"

#include <QFrame>

class QLabel;
class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT ExtendSpinBox : public QFrame
{
    Q_OBJECT
    // The text between the buttons ("---" by default).
    Q_PROPERTY(QString displayText READ displayText WRITE setDisplayText)
public:
    // Object name "ExtendSpinBox", buttons of 28×28 px, the text "---", not selected.
    explicit ExtendSpinBox(QFrame* parent = nullptr);
    ~ExtendSpinBox() override;

    // The selected look is the absence of the plain "isExtendSpinBox" look.
    void setCtrlSelect(bool on);
    // Whether the control has the selected look.
    bool isCtrlSelected() const { return m_selected; }
    // The editing (blue) background.
    void setFocusBlueBg(bool on);
    // The left button's pressed look ("isIconSpinboxLeftBtn" = !pressed); no signal.
    void setLeftButtonPressed(bool pressed);
    // The right button's pressed look ("isIconSpinboxRightBtn" = !pressed); no signal.
    void setRightButtonPressed(bool pressed);
    // The text between the buttons.
    void setDisplayText(QString const& text);
    // The text between the buttons.
    QString displayText() const;
    // Fixed width of the display text.
    void resetWidth(int width);
    // Fixed size of both buttons.
    void resetIconSize(QSize size);
    // Pixel size of the text; outside 1..512 refused ("[ExtendSpinBox] setContentFontSize:
    // font size <size> refused").
    void setContentFontSize(int size);

    // The left ("down") button.
    QPushButton* leftButton() const { return m_left; }
    // The right ("up") button.
    QPushButton* rightButton() const { return m_right; }

    // Up presses the left button, Down the right one (signalValueChanged), the release of
    // either key emits signalChangedFinished(); Escape gives the knob back to the parent,
    // clears the pressed and blue looks and emits signalEditFinished(); Enter is swallowed.
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    // Left button pressed: its pressed look, then signalValueChanged(false).
    void slotLeftButtonPressed();
    // Right button pressed: its pressed look, then signalValueChanged(true).
    void slotRightButtonPressed();
    // Emits signalChangedFinished().
    void slotLeftButtonReleased();
    // Emits signalChangedFinished().
    void slotRightButtonReleased();

signals:
    // true = right button (up), false = left button (down).
    void signalValueChanged(bool value);
    // Escape ended the work with the control.
    void signalEditFinished();
    // A press ended (button released or knob key released).
    void signalChangedFinished();

private:
    QPushButton* m_left = nullptr;
    QLabel* m_display = nullptr;
    QPushButton* m_right = nullptr;
    bool m_selected = false;
};

} // namespace Widget
} // namespace LCD
