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
    Q_PROPERTY(QString displayText READ displayText WRITE setDisplayText)
public:
    explicit ExtendSpinBox(QFrame* parent = nullptr);
    ~ExtendSpinBox() override;

    // The selected look is the absence of the plain "isExtendSpinBox" look.
    void setCtrlSelect(bool on);
    bool isCtrlSelected() const { return m_selected; }
    // The editing (blue) background.
    void setFocusBlueBg(bool on);
    void setLeftButtonPressed(bool pressed);
    void setRightButtonPressed(bool pressed);
    void setDisplayText(QString const& text);
    QString displayText() const;
    // Fixed width of the display text.
    void resetWidth(int width);
    // Fixed size of both buttons.
    void resetIconSize(QSize size);
    void setContentFontSize(int size);

    QPushButton* leftButton() const { return m_left; }
    QPushButton* rightButton() const { return m_right; }

    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    void slotLeftButtonPressed();
    void slotRightButtonPressed();
    void slotLeftButtonReleased();
    void slotRightButtonReleased();

signals:
    // true = right button (up), false = left button (down).
    void signalValueChanged(bool value);
    void signalEditFinished();
    void signalChangedFinished();

private:
    QPushButton* m_left = nullptr;
    QLabel* m_display = nullptr;
    QPushButton* m_right = nullptr;
    bool m_selected = false;
};

} // namespace Widget
} // namespace LCD
