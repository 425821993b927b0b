// A modal dialog with one labelled progress bar per task, for jobs that run on
// several devices at once (updating the firmware of four cameras, copying a preset
// to every switcher). Each task ends on its own, as a success or a failure; when all
// have ended a summary appears with an OK button, and only then can the user close
// the dialog. The host may close it at any time (accept(), reject(), done()).
//
//   MutilProgressBarDialog dialog(homeRect, page);
//   dialog.setTitle(tr("Updating cameras"));
//   int cam1 = dialog.addTask(tr("Camera 1"));
//   ... from the update's progress reports:
//   dialog.setTaskValue(cam1, 40);  dialog.setTaskSucceeded(cam1);  dialog.setTaskFailed(cam2, tr("Timeout"));
//   dialog.exec();
//
// Sizes follow the host rectangle (W × H): the dialog is 11·W/16 × 4·H/5, centred on
// the rectangle when shown; the font is W/37.5 pixels. Each task is a ProgressBarCtr
// (its label above the bar, its percentage or result at the right); a task's value
// never ends it by itself, even at 100: the host reports the end with
// setTaskSucceeded() (green "Succeed", full bar) or setTaskFailed() (red "Failure" or
// the reason given, empty bar). The summary reads "Finished: 1 of 3" while tasks run,
// then "All 3 tasks succeeded" or "2 succeeded, 1 failed" (property
// "multiProgressSummary" = "running", "success" or "failure" for the theme).
//
// Keys:
//   Up / Down      scroll the task list by `level` tasks (at least one) when it is
//                  longer than the dialog
//   Enter / Return once all tasks have ended: close, accepted (exec() returns 1)
//   Escape         once all tasks have ended: close, rejected (0); before that it is
//                  swallowed, like every other key
//
// Signals: signalTaskEnded(index, succeeded) once per task, then
// signalAllEnded(succeeded, failed) once when the last running task ends.
//
// `parent` is kept but does not own the dialog: when the parent is destroyed a
// running dialog ends with -1. exec() logs "[dialog] exec finish with " and the result.
//
// Bad input is refused with a warning and changes nothing:
//   "[MutilProgressBarDialog] setTaskValue: no task 7 (3 tasks)"      (any bad index)
//   "[MutilProgressBarDialog] setTaskValue: task 1 has already ended"  (also for the ends)
//   "[MutilProgressBarDialog] addTask: empty label refused"
//   "[MutilProgressBarDialog] addTask: at most 64 tasks"
// A value outside 0..100 is clamped with "[MutilProgressBarDialog] setTaskValue: value
// 150 clamped to 0..100".
#pragma once

#include "lcdwidgets_global.h"

#include <QDialog>
#include <QRect>
#include <QStringList>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT MutilProgressBarDialog : public QDialog
{
    Q_OBJECT
public:
    // A task's state: running until the host ends it as a success or a failure.
    enum TaskState {
        TaskInvalid = -1, // no such task
        TaskRunning = 0,
        TaskSucceeded = 1,
        TaskFailed = 2,
    };
    Q_ENUM(TaskState)

    // Most tasks a dialog takes; addTask() refuses more.
    static constexpr int kMaxTasks = 64;

    // rect: the host rectangle the dialog is sized from and centred on (an empty one is
    // logged and replaced by 800x480). No task, no title; the OK button appears at the end.
    explicit MutilProgressBarDialog(QRect rect, QWidget* parent = nullptr);
    ~MutilProgressBarDialog() override;

    // The title above the tasks; an empty title hides it (the default).
    void setTitle(QString const& title);
    // The title above the tasks.
    QString title() const;

    // Adds a running task at 0 % and returns its index, or -1 when refused.
    int addTask(QString const& label);
    // Replaces every task by one per label (refused labels are skipped).
    void setTasks(QStringList const& labels);
    // Removes every task and resets the counts, without signals.
    void clearTasks();
    // Number of tasks.
    int taskCount() const;
    // The task's label; empty for a bad index.
    QString taskLabel(int index) const;

    // The task's progress, 0 to 100; a running task only.
    void setTaskValue(int index, int percent);
    // Ends a running task.
    void setTaskSucceeded(int index);
    // Shows `reason` in red at the right of the bar ("Failure" when empty).
    void setTaskFailed(int index, QString const& reason = QString());

    // The task's state; TaskInvalid for a bad index.
    TaskState taskState(int index) const;
    // The task's value, or -1 for a bad index.
    int taskValue(int index) const;
    // Number of tasks ended as a success.
    int succeededCount() const;
    // Number of tasks ended as a failure.
    int failedCount() const;
    // Whether there is at least one task and none is running.
    bool allEnded() const;
    // The summary line as shown (empty without tasks).
    QString summaryText() const;

    // The task list's scroll position in pixels and its maximum.
    int scrollValue() const;
    // The largest scroll position (0 while every task fits).
    int scrollMaximum() const;

    // The dialog's width in px (11/16 of the host's width).
    int getDialogWidth() const;
    // The dialog's height in px (4/5 of the host's height).
    int getDialogHeight() const;
    // The text size in px derived from the host rectangle (its width / 37.5).
    float getFontSize() const;
    // Whether exec() is running; safe to poll from any thread.
    bool isExec() const;

    // Runs the dialog modally; without a task it warns "[MutilProgressBarDialog] exec: no
    // task: only the host can close the dialog". A second run while one is under way is
    // refused ("[MutilProgressBarDialog] exec: already running, refused"), Rejected.
    int exec() override;

signals:
    // A task ended (once per task).
    void signalTaskEnded(int index, bool succeeded);
    // The last running task ended: the counts (after that task's signalTaskEnded).
    void signalAllEnded(int succeeded, int failed);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool handleKey(QKeyEvent* event);
    bool checkRunning(int index, char const* what) const;
    void endTask(int index, bool succeeded, QString const& reason);
    void updateSummary();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
