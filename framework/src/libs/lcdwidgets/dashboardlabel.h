// The value and unit a dial reports, as two labels: the value at the top, the unit at
// the bottom, centred. Connect a dial's signalDrawValueChanged to
// slotDrawValueChanged. The theme styles the labels through the dynamic properties
// "isDashBoardValue" and "isDashBoardUnit".
#pragma once

#include "lcdwidgets_global.h"

#include <QSize>
#include <QWidget>
#include <memory>

class QLabel;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT DashBoardLabel : public QWidget
{
    Q_OBJECT
public:
    // Two empty labels in a widget resized to `size` (negative sides count as 0).
    explicit DashBoardLabel(QSize size, QWidget* parent = nullptr);
    ~DashBoardLabel() override;

    // Pixel font size of the value; the unit is drawn at 0.6 of it. Sizes below 1 or
    // above kMaxFontSize are refused.
    static constexpr int kMaxFontSize = 1024;
    // Refused sizes are logged: "[DashBoardLabel] setContentFontSize: size refused:".
    void setContentFontSize(int size);

    // The value text shown.
    QString valueText() const;
    // The unit text shown.
    QString unitText() const;

public slots:
    // Shows a dial's value and unit texts.
    void slotDrawValueChanged(QString value, QString unit);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
