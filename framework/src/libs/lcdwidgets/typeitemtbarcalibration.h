// Item row that walks the user through calibrating the T-bar: six numbered steps that
// ask in turn to push the T-bar to the top and to the bottom. The first press of the
// action button starts a run (signalTBarCalibrationBegin); each further press records
// the T-bar's position, read through the host's keyboard proxy ("lcdKeyboardEvent");
// the sixth reading ends the run (signalTBarCalibrationEnd) and the six values are
// then in getCalibrationValue(). Escape abandons a run (signalTBarCalibrationBack,
// then signalCloseEditStatus); its readings stay until the next start.
//
// Without a proxy the procedure still runs: every reading is -1 (with a warning).
#pragma once

#include "commonitemtype.h"
#include "lcdwidgets_global.h"

#include <memory>
#include <vector>

class QLabel;
class QPushButton;

namespace LCD {
class KeyboardProxy;

namespace Widget {

class LCDWIDGETS_EXPORT TypeItemTBarCalibration : public CommonItemType
{
    Q_OBJECT
public:
    // Idle, the six steps shown; the keyboard proxy is looked up once, here.
    explicit TypeItemTBarCalibration(QWidget* parent = nullptr);
    ~TypeItemTBarCalibration() override;

    // Lines the row takes: the header, six steps and the button.
    int getWidgetRow() override;
    // The action button takes the knob.
    void editValue() override;
    void setContentDisabled(bool disabled) const override;
    // Font sizes of the labels and the button (ignored below 1).
    // Sizes below 1 or above kMaxFontSize are refused
    // ("[TypeItemTBarCalibration] setContentFontSize: size N refused").
    static constexpr int kMaxFontSize = 1024;
    void setContentFontSize(int size) override;
    // Sets the header, the steps and the button again in the current language.
    void retranslateUi();

    // The T-bar's position now (-1 without a proxy).
    int getTBarValue();
    // The readings of the last run (up to six; empty before the first).
    std::vector<int> getCalibrationValue();
    // 0 idle, 1..6 the step whose reading comes next.
    int currentStep() const;
    // The action button (start, next, done).
    QPushButton* actionButton() const;
    QLabel* stepLabel(int step) const; // 1..6, null otherwise

    // Enter/Return click the action button (when enabled); Escape abandons a run.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // A run started (the first press).
    void signalTBarCalibrationBegin();
    // The sixth reading ended the run.
    void signalTBarCalibrationEnd();
    // Escape abandoned the run (signalCloseEditStatus() follows).
    void signalTBarCalibrationBack();

public slots:
    // The action button's press: starts a run, or records the next reading.
    void slotBtnClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    void createWidget();
    void initCalibration();
    void refreshLabelProperty();
    void finishRun();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
