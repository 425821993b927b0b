// Dialogs: every kind of dialog, opened with the knob's press on its row. Modal
// boxes take the knob until they close (Up/Down walk their buttons, Enter presses,
// Escape leaves); the toasts close themselves; the waiting panel is hidden by the
// page after a few seconds (or by its Cancel button), as a host would.
#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"
#include "shotclasses.h"

#include <lcdwidgets.h>

#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

using namespace LCD::Widget;

namespace {

// The host area dialogs centre on: the gallery window as it lies on the screen.
QRect hostArea(QWidget* any)
{
    QWidget* window = any->window();
    return QRect(window->mapToGlobal(QPoint(0, 0)), window->size());
}

QString roleName(int role)
{
    switch (role) {
    case QDialogButtonBox::YesRole:
        return QStringLiteral("YesRole");
    case QDialogButtonBox::NoRole:
        return QStringLiteral("NoRole");
    case QDialogButtonBox::ActionRole:
        return QStringLiteral("ActionRole");
    default:
        return QString::number(role);
    }
}

// The host hides the waiting panel; the knob then returns to the row that showed it.
void returnWhenHidden(WaitingDialog* w, QWidget* row)
{
    auto connection = std::make_shared<QMetaObject::Connection>();
    *connection = QObject::connect(w, &WaitingDialog::hideDialog, row, [row, connection] {
        QObject::disconnect(*connection);
        row->window()->activateWindow();
        row->parentWidget()->setFocus(Qt::OtherFocusReason); // the page's list
    });
}

QString const kLongText = QStringLiteral(
    "The firmware update replaces the control software, the video engine and the panel's own program. "
    "The program output stays black while the engine restarts, the multiview shows the update progress, "
    "and the panel restarts twice. Do not switch the device off until the home page is back. "
    "Keep the network cable connected: the update is read from the server in parts, and a broken "
    "connection starts the download again from the beginning. Presets, macros and media are kept.");

// One dialog kind: what its row opens, and (for the pictures) a shown, non-modal
// instance of it.
struct DialogKind
{
    QString title;
    QString id;
    std::function<QString(QWidget* row)> open;
    std::function<QWidget*(QWidget* window)> picture;
};

// A row of the page that opens its dialog on the knob's press (given the focus,
// it takes the press itself; other keys go on to the page).
class DialogRow : public QFrame
{
public:
    DialogRow(DialogKind kind, ItemPage* page) : m_kind(std::move(kind)), m_page(page)
    {
        setFocusPolicy(Qt::StrongFocus);
        setFixedHeight(ItemPage::kRowHeight);
        auto* layout = new QHBoxLayout(this);
        layout->setContentsMargins(8, 0, 8, 0);
        auto* title = new QLabel(m_kind.title, this);
        title->setProperty("itemTitleLabel", true);
        title->setStyleSheet(QStringLiteral("font-size: 20px;"));
        m_value = new QLabel(QObject::tr("press to open"), this);
        m_value->setProperty("galleryValue", true);
        layout->addWidget(title);
        layout->addStretch();
        layout->addWidget(m_value);
    }

    void open()
    {
        emit m_page->statusMessage(QObject::tr("%1 open").arg(m_kind.title));
        QPointer<DialogRow> self(this);
        QString const result = m_kind.open(this);
        if (!self)
            return;
        m_value->setText(result);
        emit m_page->statusMessage(QObject::tr("%1: %2").arg(m_kind.title, result));
        // Back to the page: the window takes the keys again (a window manager
        // would do it; the offscreen platform does not).
        if (isVisible()) {
            if (!window()->isActiveWindow() && !QApplication::activeModalWidget())
                window()->activateWindow();
            m_page->list()->setFocus(Qt::OtherFocusReason);
        }
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            open();
            return;
        }
        event->ignore();
    }

private:
    DialogKind m_kind;
    ItemPage* m_page;
    QLabel* m_value = nullptr;
};

QList<DialogKind> reminderKinds()
{
    QList<DialogKind> kinds;
    auto helper = [](QString title, QString id, int (*run)(QWidget*, QString const&, QRect, QDialogButtonBox::ButtonRole),
                     QDialogButtonBox::ButtonRole role, ReminderDialog::DialogType type, QString text) {
        DialogKind k;
        k.title = title;
        k.id = id;
        k.open = [run, role, text](QWidget* row) { return roleName(run(row, text, hostArea(row), role)); };
        k.picture = [type, role, text](QWidget* window) -> QWidget* {
            auto* d = new ReminderDialog(type, hostArea(window), window);
            d->setIcon(type);
            if (type == ReminderDialog::Question) {
                d->addButton(QDialogButtonBox::YesRole);
                d->setDefaultButton(d->addButton(QDialogButtonBox::NoRole));
                d->setButtonBoxLayoutDirection(Qt::RightToLeft);
            } else if (role != QDialogButtonBox::NoRole) {
                d->setDefaultButton(d->addButton(role));
            }
            d->setText(text);
            return d;
        };
        return k;
    };
    kinds << helper(QObject::tr("Information"), QStringLiteral("information"), &ReminderDialog::information,
                    QDialogButtonBox::YesRole, ReminderDialog::Information,
                    QObject::tr("The output format is now 1080p59.94."));
    kinds << helper(QObject::tr("Question"), QStringLiteral("question"), &ReminderDialog::question,
                    QDialogButtonBox::NoRole, ReminderDialog::Question,
                    QObject::tr("Overwrite preset 4 \"Keynote\" with the current settings?"));
    kinds << helper(QObject::tr("Warning with details"), QStringLiteral("warning"), &ReminderDialog::warning,
                    QDialogButtonBox::ActionRole, ReminderDialog::Warning,
                    QObject::tr("Input 3 has lost its signal."));
    kinds << helper(QObject::tr("Success"), QStringLiteral("prosper"), &ReminderDialog::prosper,
                    QDialogButtonBox::YesRole, ReminderDialog::Prosper, QObject::tr("The preset has been saved."));
    kinds << helper(QObject::tr("Error"), QStringLiteral("error"), &ReminderDialog::error, QDialogButtonBox::YesRole,
                    ReminderDialog::Error, QObject::tr("The USB drive is full: the recording has stopped."));
    kinds << helper(QObject::tr("Long text (scrolls with the knob)"), QStringLiteral("longtext"),
                    &ReminderDialog::information, QDialogButtonBox::YesRole, ReminderDialog::Information, kLongText);

    DialogKind progress;
    progress.title = QObject::tr("Progress with Cancel");
    progress.id = QStringLiteral("progress");
    auto makeProgress = [](QWidget* host) {
        ReminderDialog* d = ReminderDialog::progress(host, QObject::tr("Copying media"), hostArea(host),
                                                     QDialogButtonBox::NoRole, true);
        d->setProgressText(QObject::tr("clip_0042.mov"));
        d->setProgressValue(64);
        return d;
    };
    progress.open = [makeProgress](QWidget* row) {
        std::unique_ptr<ReminderDialog> d(makeProgress(row));
        auto* timer = new QTimer(d.get());
        int value = 0;
        QObject::connect(timer, &QTimer::timeout, d.get(), [&value, dialog = d.get(), timer] {
            value += 4;
            dialog->setProgressValue(qMin(value, 100));
            if (value >= 100) {
                timer->stop();
                QTimer::singleShot(600, dialog, &QDialog::accept);
            }
        });
        timer->start(120);
        d->exec();
        return d->clickedButtonRole() == QDialogButtonBox::NoRole ? QObject::tr("cancelled") : QObject::tr("done");
    };
    progress.picture = makeProgress;
    kinds << progress;

    DialogKind ongoing;
    ongoing.title = QObject::tr("Busy (closes after 2 s)");
    ongoing.id = QStringLiteral("ongoing");
    ongoing.open = [](QWidget* row) {
        std::unique_ptr<ReminderDialog> d(
            ReminderDialog::ongoing(row, QObject::tr("Searching for devices on the network..."), hostArea(row)));
        d->setDialogShowTimer(2000);
        d->exec();
        return QObject::tr("closed");
    };
    ongoing.picture = [](QWidget* window) -> QWidget* {
        return ReminderDialog::ongoing(window, QObject::tr("Searching for devices on the network..."), hostArea(window));
    };
    kinds << ongoing;

    DialogKind mini;
    mini.title = QObject::tr("Progress band");
    mini.id = QStringLiteral("miniprogress");
    auto makeMini = [](QWidget* host) {
        QRect const area = hostArea(host);
        MiniProcessDialog* d = MiniProcessDialog::progress(host, QString(), QRect(0, 0, area.width(), 96));
        d->setProgressText(QObject::tr("Importing stills"));
        d->setProgressValue(30);
        // The band lies at the bottom of the dialog (as large as the screen): line
        // that bottom up with the window's.
        d->move(area.left(), area.bottom() + 1 - d->height());
        return d;
    };
    mini.open = [makeMini](QWidget* row) {
        std::unique_ptr<MiniProcessDialog> d(makeMini(row));
        auto* timer = new QTimer(d.get());
        int value = 30;
        QObject::connect(timer, &QTimer::timeout, d.get(), [&value, dialog = d.get(), timer] {
            value += 5;
            dialog->setProgressValue(qMin(value, 100));
            if (value >= 100) {
                timer->stop();
                QTimer::singleShot(600, dialog, &QDialog::accept);
            }
        });
        timer->start(100);
        d->exec();
        return QObject::tr("done");
    };
    mini.picture = makeMini;
    kinds << mini;

    DialogKind apply;
    apply.title = QObject::tr("Notice with Apply");
    apply.id = QStringLiteral("apply");
    auto makeApply = [](QWidget* host) {
        auto* d = new ReminderDialogApply(host);
        d->setIconPath(QStringLiteral("./../share/themes/default/images/icon_reminder_warning.png"));
        d->setText(QObject::tr("The panel is locked"));
        QObject::connect(d, &ReminderDialogApply::signalPushBtnClicked, d, &QDialog::accept);
        d->move(hostArea(host).topLeft());
        return d;
    };
    apply.open = [makeApply](QWidget* row) {
        std::unique_ptr<ReminderDialogApply> d(makeApply(row));
        d->applyButton()->setFocus();
        return d->exec() == QDialog::Accepted ? QObject::tr("applied") : QObject::tr("left");
    };
    apply.picture = makeApply;
    kinds << apply;
    return kinds;
}

QList<DialogKind> noticeKinds()
{
    QList<DialogKind> kinds;
    DialogKind toast;
    toast.title = QObject::tr("Reminder toast (2 s)");
    toast.id = QStringLiteral("remindertoast");
    toast.open = [](QWidget* row) {
        ReminderToastDialog::prosper(row, QObject::tr("Preset 4 saved"), hostArea(row), 2000);
        return QObject::tr("closed by its timer");
    };
    toast.picture = [](QWidget* window) -> QWidget* {
        auto* d = new ReminderToastDialog(hostArea(window), window);
        d->setDialogText(QObject::tr("Preset 4 saved"));
        d->setDialgIcon(Enum::DialogProsper);
        d->setBStartTimer(false);
        return d;
    };
    kinds << toast;

    DialogKind popup;
    popup.title = QObject::tr("Toast popup (2 s, not modal)");
    popup.id = QStringLiteral("toast");
    popup.open = [](QWidget* row) {
        ToastDialog::createToastDialog(QObject::tr("Recording started on USB 1"), 2000, 3, false, row->window());
        return QObject::tr("shown");
    };
    popup.picture = [](QWidget* window) -> QWidget* {
        return new ToastDialog(QObject::tr("Recording started on USB 1"), 0, 3, true, window);
    };
    kinds << popup;

    DialogKind tip;
    tip.title = QObject::tr("Tip: Cancel or OK");
    tip.id = QStringLiteral("tip");
    tip.open = [](QWidget* row) {
        return TipDialog::createTipDialog(QObject::tr("Restart the device now to apply the new network settings?"),
                                          row->window())
                   ? QObject::tr("OK")
                   : QObject::tr("Cancel");
    };
    tip.picture = [](QWidget* window) -> QWidget* {
        auto* d = new TipDialog(QObject::tr("Restart the device now to apply the new network settings?"), window);
        d->setAutoDelete(false);
        d->okButton()->setFocus();
        return d;
    };
    kinds << tip;

    DialogKind waiting;
    waiting.title = QObject::tr("Please wait (hidden after 3 s)");
    waiting.id = QStringLiteral("waiting");
    waiting.open = [](QWidget* row) {
        WaitingDialog* w = WaitingDialog::instance(hostArea(row), row->window());
        w->showWaitingDialog(QObject::tr("Connecting to the switcher..."), hostArea(row));
        returnWhenHidden(w, row);
        QTimer::singleShot(3000, w, [w] {
            if (w->isVisible())
                w->hideWaitingDialog();
        });
        return QObject::tr("shown");
    };
    waiting.picture = [](QWidget* window) -> QWidget* {
        WaitingDialog* w = WaitingDialog::instance(hostArea(window), window);
        w->showWaitingDialog(QObject::tr("Connecting to the switcher..."), hostArea(window));
        return w;
    };
    kinds << waiting;

    DialogKind cancelable;
    cancelable.title = QObject::tr("Please wait, with Cancel");
    cancelable.id = QStringLiteral("waitingcancel");
    auto showCancelable = [](QWidget* host) {
        WaitingDialog* w = WaitingDialog::instance(hostArea(host), host->window());
        w->showWaitingDialog(QObject::tr("Downloading the firmware (48 MB)..."), hostArea(host));
        w->setFunButtonStatus(true, QObject::tr("Cancel"), 7);
        return w;
    };
    cancelable.open = [showCancelable](QWidget* row) {
        WaitingDialog* w = showCancelable(row);
        returnWhenHidden(w, row);
        if (!w->property("galleryCancelWired").toBool()) {
            w->setProperty("galleryCancelWired", true);
            QObject::connect(w, &WaitingDialog::signalFunButtonClicked, w, [w](int) { w->hideWaitingDialog(); });
        }
        QTimer::singleShot(6000, w, [w] {
            if (w->isVisible())
                w->hideWaitingDialog();
        });
        return QObject::tr("shown");
    };
    cancelable.picture = showCancelable;
    kinds << cancelable;

    DialogKind block;
    block.title = QObject::tr("Blocking, with progress");
    block.id = QStringLiteral("block");
    auto makeBlock = [](QWidget* host) {
        auto* d = new BlockDialog(QObject::tr("Calibrating the T-bar..."), host->window());
        d->setProgressBarVisible(true);
        d->setWinIsShow(true);
        return d;
    };
    block.open = [makeBlock](QWidget* row) {
        BlockDialog* d = makeBlock(row);
        d->setEffectDurationMs(2400);
        QTimer::singleShot(3000, d, &QDialog::accept);
        d->run();
        return QObject::tr("done");
    };
    block.picture = [makeBlock](QWidget* window) -> QWidget* {
        BlockDialog* d = makeBlock(window);
        d->setAutoDelete(false);
        d->progressBar()->setValue(8);
        return d;
    };
    kinds << block;

    DialogKind tiles;
    tiles.title = QObject::tr("Tiles: preset actions");
    tiles.id = QStringLiteral("tiles");
    auto makeTiles = [](QWidget* host) {
        auto* d = new CustomReminderDialog(hostArea(host));
        d->addButton(1, QObject::tr("Save"), QStringLiteral("isIconTileSave"));
        d->addButton(2, QObject::tr("Load"), QStringLiteral("isIconTileLoad"));
        d->addButton(3, QObject::tr("Rename"), QStringLiteral("isIconTileRename"));
        d->addButton(4, QObject::tr("Delete"), QStringLiteral("isIconTileDelete"), true);
        d->setBtnFocus(2);
        return d;
    };
    tiles.open = [makeTiles](QWidget* row) {
        std::unique_ptr<CustomReminderDialog> d(makeTiles(row));
        int const id = d->exec();
        return id < 0 ? QObject::tr("left with Escape") : QObject::tr("tile %1").arg(id);
    };
    tiles.picture = [makeTiles](QWidget* window) -> QWidget* {
        CustomReminderDialog* d = makeTiles(window);
        d->move(hostArea(window).center() - QPoint(d->width() / 2, d->height() / 2));
        return d;
    };
    kinds << tiles;
    return kinds;
}

QList<DialogKind> const& allKinds()
{
    static QList<DialogKind> const kinds = reminderKinds() + noticeKinds();
    return kinds;
}

// Composes the window's picture with the dialog's over it.
QImage composite(QWidget* window, QWidget* dialog)
{
    QImage image = window->grab().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.fillRect(image.rect(), QColor(0, 0, 0, 110)); // the host dims its page under a dialog
    QPoint const at = dialog->isWindow() ? dialog->pos() - window->mapToGlobal(QPoint(0, 0)) : dialog->pos();
    painter.drawPixmap(at, dialog->grab());
    return image;
}

} // namespace

// The press reaches the page's list while the list holds the knob (after the page
// is shown): it opens the current row's dialog too.
class PressToRow : public QObject
{
public:
    PressToRow(ItemPage* page, QList<DialogRow*> rows) : QObject(page), m_page(page), m_rows(std::move(rows)) {}
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress && watched == m_page->list()) {
            int const key = static_cast<QKeyEvent*>(event)->key();
            if ((key == Qt::Key_Return || key == Qt::Key_Enter) && m_page->currentIndex() >= 0 &&
                m_page->currentIndex() < m_rows.size()) {
                m_rows.at(m_page->currentIndex())->open();
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    ItemPage* m_page;
    QList<DialogRow*> m_rows;
};

ItemPage* buildDialogsPage(GalleryContext&)
{
    auto* page = new ItemPage(QObject::tr("Dialogs"));
    QList<DialogRow*> rows;
    page->addSection(QObject::tr("Message boxes (Up/Down walk the buttons, Enter presses, Esc leaves)"));
    QList<DialogKind> const& kinds = allKinds();
    for (int i = 0; i < kinds.size(); ++i) {
        if (i == reminderKinds().size())
            page->addSection(QObject::tr("Notices and busy panels"));
        auto* row = new DialogRow(kinds.at(i), page);
        // The list keeps the knob (Left/Right still change pages); its press opens
        // the current row's dialog.
        page->addWidget(row, true, [page] { page->list()->setFocus(Qt::OtherFocusReason); });
        rows << row;
    }
    page->addStretch();
    page->list()->installEventFilter(new PressToRow(page, rows));

    // Pictures of every dialog, open over this page.
    page->extraScreenshots = [page](QString const& dir, QString const& prefix) {
        int written = 0;
        QWidget* window = page->window();
        QList<QImage> shots;
        for (DialogKind const& kind : allKinds()) {
            QWidget* dialog = kind.picture(window);
            dialog->show();
            for (int i = 0; i < 3; ++i)
                QApplication::processEvents();
            QImage const image = composite(window, dialog);
            QString const file = QDir(dir).filePath(QStringLiteral("%1-dialog-%2.png").arg(prefix, kind.id));
            if (image.save(file)) {
                noteScreenshotClasses(file);
                ++written;
            }
            shots << image;
            if (auto* waiting = qobject_cast<WaitingDialog*>(dialog))
                waiting->hideWaitingDialog();
            else
                delete dialog;
            QApplication::processEvents();
        }
        WaitingDialog::deleteInstance();
        // A contact sheet of all of them.
        int const columns = 3;
        QSize const cell(400, 240);
        int const rows = (shots.size() + columns - 1) / columns;
        QImage sheet(columns * cell.width() + (columns + 1) * 8, rows * cell.height() + (rows + 1) * 8,
                     QImage::Format_ARGB32_Premultiplied);
        sheet.fill(QColor(0x10, 0x13, 0x17));
        QPainter painter(&sheet);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        for (int i = 0; i < shots.size(); ++i) {
            QRect const target(8 + (i % columns) * (cell.width() + 8), 8 + (i / columns) * (cell.height() + 8),
                               cell.width(), cell.height());
            painter.drawImage(target, shots.at(i).copy(0, 44, shots.at(i).width(), 480 - 44 - 30));
        }
        painter.end();
        if (sheet.save(QDir(dir).filePath(QStringLiteral("%1-dialogs-all.png").arg(prefix))))
            ++written;
        return written;
    };
    return page;
}
