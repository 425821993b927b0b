// A plain combo box that keeps the knob inside its popup while the popup is open.
//
// With the popup closed, the knob's press (Return/Enter) opens it and a turn moves the
// page's focus (Down: next widget, Up: previous one). With the popup open, a turn moves
// the popup's cursor by one row without wrapping, the press makes the row under the
// cursor the current entry and closes the popup, and Escape closes it unchanged.
#pragma once

#include "lcdwidgets_global.h"

#include <QComboBox>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT FocusComboBox : public QComboBox
{
    Q_OBJECT
public:
    // An empty combo; it watches the application's events to keep the knob in its popup.
    explicit FocusComboBox(QWidget* parent = nullptr);
    ~FocusComboBox() override;

    // Escape sent to the combo while its popup is open closes the popup.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool popupVisible() const;
};

} // namespace Widget
} // namespace LCD
