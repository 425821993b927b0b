#include "mutilprogressbardialog.h"

#include "dialogutil_p.h"
#include "knoblevel.h"
#include "lcdtranslate.h"
#include "progressbarctr.h"
#include "reminderbuttons_p.h"
#include "stylehelper.h"

#include <QApplication>
#include <QDebug>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <atomic>
#include <cmath>

namespace LCD {
namespace Widget {

namespace {
char const* const kWho = "[MutilProgressBarDialog]";
}

struct LCDWIDGETS_HIDDEN MutilProgressBarDialog::Impl
{
    struct Task
    {
        ProgressBarCtr* bar = nullptr;
        QString label;
        int value = 0;
        TaskState state = TaskRunning;
    };

    QRect rect;
    float fontSize = 0;
    int width = 0;
    int height = 0;
    QFrame* frame = nullptr;
    QLabel* title = nullptr;
    QScrollArea* scroll = nullptr;
    QWidget* list = nullptr;
    QVBoxLayout* listLayout = nullptr;
    QLabel* summary = nullptr;
    std::unique_ptr<ReminderButtons> buttons;
    QPushButton* ok = nullptr;
    QList<Task> tasks;
    int succeeded = 0;
    int failed = 0;
    std::atomic<int> executing{0};

    bool validIndex(int index) const { return index >= 0 && index < tasks.size(); }
    int rowStep() const
    {
        return tasks.isEmpty() ? 1 : qMax(1, tasks.first().bar->height() + listLayout->spacing());
    }
};

MutilProgressBarDialog::MutilProgressBarDialog(QRect rect, QWidget* parent) : QDialog(nullptr), d(new Impl)
{
    d->rect = DialogUtil::hostRect(rect, kWho);
    d->fontSize = DialogUtil::fontSize(d->rect);
    d->width = DialogUtil::part(d->rect.width(), 11, 16);
    d->height = DialogUtil::part(d->rect.height(), 4, 5);
    int const N = DialogUtil::fontPixels(d->fontSize);

    d->frame = DialogUtil::buildFramedWindow(this, QSize(d->width, d->height), QStringLiteral("multiProgressFrame"));

    d->title = DialogUtil::buildTitle(d->frame, QStringLiteral("multiProgressTitle"), N);

    d->scroll = new QScrollArea(d->frame);
    d->scroll->setObjectName(QStringLiteral("multiProgressList"));
    d->scroll->setFrameShape(QFrame::NoFrame);
    d->scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    d->scroll->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    d->scroll->setFocusPolicy(Qt::NoFocus);
    d->scroll->setWidgetResizable(true);
    d->scroll->setProperty("isMultiProgressList", true);
    // Named after the policies above polished it: polish it again for the theme.
    d->scroll->verticalScrollBar()->setObjectName(QStringLiteral("multiProgressScrollBar"));
    repolish(d->scroll->verticalScrollBar());
    d->list = new QWidget;
    d->list->setObjectName(QStringLiteral("multiProgressRows"));
    d->listLayout = new QVBoxLayout(d->list);
    d->listLayout->setContentsMargins(0, 0, 0, 0);
    d->listLayout->setSpacing(N / 2);
    d->listLayout->addStretch();
    d->scroll->setWidget(d->list);

    d->summary = new QLabel(d->frame);
    d->summary->setObjectName(QStringLiteral("multiProgressSummary"));
    d->summary->setAlignment(Qt::AlignCenter);
    d->summary->setProperty("multiProgressSummary", "running");
    d->summary->setStyleSheet(DialogUtil::fontSheet("QLabel", N));

    d->buttons = std::make_unique<ReminderButtons>(this, d->rect.width(), d->fontSize);
    d->ok = d->buttons->add(QDialogButtonBox::YesRole, d->width, kWho);
    d->ok->setFocusPolicy(Qt::StrongFocus);
    d->buttons->box()->setVisible(false);
    connect(d->buttons->box(), &QDialogButtonBox::clicked, this, [this] {
        if (allEnded())
            accept();
    });

    auto* layout = DialogUtil::buildColumn(d->frame, d->rect, N);
    layout->addWidget(d->title);
    layout->addWidget(d->scroll, 1);
    layout->addWidget(d->summary);
    layout->addWidget(d->buttons->box(), 0, Qt::AlignHCenter);

    DialogUtil::closeWithParent(this, parent, kWho);
    setFocus(Qt::OtherFocusReason);
    updateSummary();
}

MutilProgressBarDialog::~MutilProgressBarDialog() = default;

void MutilProgressBarDialog::setTitle(QString const& title)
{
    d->title->setText(title);
    d->title->setVisible(!title.isEmpty());
}

QString MutilProgressBarDialog::title() const { return d->title->text(); }

int MutilProgressBarDialog::addTask(QString const& label)
{
    if (label.isEmpty()) {
        qWarning().noquote() << kWho << "addTask: empty label refused";
        return -1;
    }
    if (d->tasks.size() >= kMaxTasks) {
        qWarning().noquote() << kWho << "addTask: at most" << kMaxTasks << "tasks";
        return -1;
    }
    // The bar fills the list's width (beside the scroll bar) and is 1/20 of the host
    // height high; the bar takes 5/8 of its rectangle's width.
    int const N = DialogUtil::fontPixels(d->fontSize);
    int const listWidth = qMax(1, d->width - 3 * N);
    QRect const barRect(0, 0, DialogUtil::part(listWidth, 8, 5), d->rect.height() / 2);
    Impl::Task task;
    task.label = label;
    task.bar = new ProgressBarCtr(barRect, d->list);
    task.bar->setObjectName(QStringLiteral("multiProgressTask"));
    task.bar->setFontSize(DialogUtil::fontPixels(d->fontSize * 0.8f));
    task.bar->setProgressText(label);
    task.bar->setSpecialValue(0);
    if (QLayout* l = task.bar->layout())
        task.bar->setFixedHeight(l->minimumSize().height());
    d->listLayout->insertWidget(d->tasks.size(), task.bar, 0, Qt::AlignHCenter);
    d->tasks.append(task);
    updateSummary();
    return d->tasks.size() - 1;
}

void MutilProgressBarDialog::setTasks(QStringList const& labels)
{
    clearTasks();
    for (QString const& label : labels)
        addTask(label);
}

void MutilProgressBarDialog::clearTasks()
{
    for (Impl::Task const& task : qAsConst(d->tasks))
        delete task.bar;
    d->tasks.clear();
    d->succeeded = 0;
    d->failed = 0;
    updateSummary();
}

int MutilProgressBarDialog::taskCount() const { return d->tasks.size(); }

QString MutilProgressBarDialog::taskLabel(int index) const
{
    return d->validIndex(index) ? d->tasks.at(index).label : QString();
}

bool MutilProgressBarDialog::checkRunning(int index, char const* what) const
{
    if (!d->validIndex(index)) {
        qWarning().noquote() << kWho << QString::fromLatin1(what) + QLatin1Char(':') << "no task" << index
                             << QStringLiteral("(%1 tasks)").arg(d->tasks.size());
        return false;
    }
    if (d->tasks.at(index).state != TaskRunning) {
        qWarning().noquote() << kWho << QString::fromLatin1(what) + QLatin1Char(':') << "task" << index
                             << "has already ended";
        return false;
    }
    return true;
}

void MutilProgressBarDialog::setTaskValue(int index, int percent)
{
    if (!checkRunning(index, "setTaskValue"))
        return;
    if (percent < 0 || percent > 100) {
        qWarning().noquote() << kWho << "setTaskValue: value" << percent << "clamped to 0..100";
        percent = qBound(0, percent, 100);
    }
    Impl::Task& task = d->tasks[index];
    if (task.value == percent)
        return;
    task.value = percent;
    task.bar->setSpecialValue(percent);
}

void MutilProgressBarDialog::setTaskSucceeded(int index)
{
    if (checkRunning(index, "setTaskSucceeded"))
        endTask(index, true, QString());
}

void MutilProgressBarDialog::setTaskFailed(int index, QString const& reason)
{
    if (checkRunning(index, "setTaskFailed"))
        endTask(index, false, reason);
}

void MutilProgressBarDialog::endTask(int index, bool succeeded, QString const& reason)
{
    Impl::Task& task = d->tasks[index];
    if (succeeded) {
        task.state = TaskSucceeded;
        task.value = 100;
        task.bar->setFinish();
        ++d->succeeded;
    } else {
        task.state = TaskFailed;
        if (reason.isEmpty())
            task.bar->setError();
        else
            task.bar->setError(reason);
        ++d->failed;
    }
    updateSummary();
    QPointer<MutilProgressBarDialog> self(this);
    emit signalTaskEnded(index, succeeded);
    if (self && allEnded())
        emit signalAllEnded(d->succeeded, d->failed);
}

MutilProgressBarDialog::TaskState MutilProgressBarDialog::taskState(int index) const
{
    return d->validIndex(index) ? d->tasks.at(index).state : TaskInvalid;
}

int MutilProgressBarDialog::taskValue(int index) const { return d->validIndex(index) ? d->tasks.at(index).value : -1; }

int MutilProgressBarDialog::succeededCount() const { return d->succeeded; }

int MutilProgressBarDialog::failedCount() const { return d->failed; }

bool MutilProgressBarDialog::allEnded() const
{
    return !d->tasks.isEmpty() && d->succeeded + d->failed == d->tasks.size();
}

QString MutilProgressBarDialog::summaryText() const { return d->summary->text(); }

void MutilProgressBarDialog::updateSummary()
{
    int const n = d->tasks.size();
    QString text;
    char const* state = "running";
    if (allEnded()) {
        if (d->failed == 0) {
            text = lcdTranslate(QStringLiteral("All %1 tasks succeeded")).arg(n);
            state = "success";
        } else {
            text = lcdTranslate(QStringLiteral("%1 succeeded, %2 failed")).arg(d->succeeded).arg(d->failed);
            state = "failure";
        }
    } else if (n > 0) {
        text = lcdTranslate(QStringLiteral("Finished: %1 of %2")).arg(d->succeeded + d->failed).arg(n);
    }
    d->summary->setText(text);
    if (d->summary->property("multiProgressSummary").toByteArray() != state)
        setStyleProperty(d->summary, "multiProgressSummary", QString::fromLatin1(state));
    bool const ended = allEnded();
    if (d->buttons->box()->isVisibleTo(this) != ended) {
        d->buttons->box()->setVisible(ended);
        if (ended)
            d->ok->setFocus(Qt::OtherFocusReason);
        else
            setFocus(Qt::OtherFocusReason);
    }
}

int MutilProgressBarDialog::scrollValue() const { return d->scroll->verticalScrollBar()->value(); }

int MutilProgressBarDialog::scrollMaximum() const { return d->scroll->verticalScrollBar()->maximum(); }

int MutilProgressBarDialog::getDialogWidth() const { return d->width; }

int MutilProgressBarDialog::getDialogHeight() const { return d->height; }

float MutilProgressBarDialog::getFontSize() const { return d->fontSize; }

bool MutilProgressBarDialog::isExec() const { return d->executing.load() != 0; }

int MutilProgressBarDialog::exec()
{
    if (d->tasks.isEmpty())
        qWarning().noquote() << kWho << "exec: no task: only the host can close the dialog";
    return DialogUtil::execModal(this, &d->executing);
}

bool MutilProgressBarDialog::handleKey(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
        QScrollBar* bar = d->scroll->verticalScrollBar();
        float const level = std::fabs(knobLevel(event));
        int const rows = level >= float(kMaxTasks) ? kMaxTasks : qMax(1, int(std::lround(level)));
        qint64 const delta = qint64(rows) * d->rowStep() * (event->key() == Qt::Key_Up ? -1 : 1);
        bar->setValue(int(qBound<qint64>(bar->minimum(), bar->value() + delta, bar->maximum())));
        return true;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (allEnded())
            accept();
        return true;
    case Qt::Key_Escape:
    case Qt::Key_Back:
        if (allEnded())
            reject();
        return true;
    default:
        return true;
    }
}

bool MutilProgressBarDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && watched == d->ok && handleKey(static_cast<QKeyEvent*>(event)))
        return true;
    return QDialog::eventFilter(watched, event);
}

void MutilProgressBarDialog::keyPressEvent(QKeyEvent* event)
{
    if (handleKey(event))
        event->accept();
    else
        QDialog::keyPressEvent(event);
}

void MutilProgressBarDialog::showEvent(QShowEvent* event)
{
    QPoint const pos = DialogUtil::centreOn(d->rect, size());
    setGeometry(QRect(pos, size()));
    qDebug().nospace() << "MutilProgressBarDialog pos x:" << pos.x() << ";y:" << pos.y();
    QDialog::showEvent(event);
    if (allEnded())
        d->ok->setFocus(Qt::OtherFocusReason);
    else
        setFocus(Qt::OtherFocusReason);
}

void MutilProgressBarDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        d->buttons->retranslate();
        updateSummary();
    }
    QDialog::changeEvent(event);
}

} // namespace Widget
} // namespace LCD
