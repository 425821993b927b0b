// System: the text view, the multi-progress dialog, the panel lock with its reminder
// and the about page. Dialog rows open on the knob's press (Up/Down scroll inside the
// dialog, Enter or Esc close it); "Lock the panel" locks the whole gallery until Esc
// is held for 2 s (any other key shows the reminder); the about page row takes the
// knob on the press (Up/Down walk its rows, Esc gives the knob back).
#include "gallerycontext.h"
#include "itempage.h"
#include "pagerow.h"
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
#include <QTimer>

using namespace LCD::Widget;

namespace {

QRect systemHostArea(QWidget* any)
{
    QWidget* window = any->window();
    return QRect(window->mapToGlobal(QPoint(0, 0)), window->size());
}

QString const kLicence = QStringLiteral(
    "Third-party software in this device\n\n"
    "The control software of this switcher contains components that are distributed under "
    "their own licences. Each component is listed below with its licence; the full licence "
    "texts follow the list.\n\n"
    "1. Qt 5 widgets, GUI and core modules: GNU Lesser General Public License, version 3.\n"
    "2. The Linux kernel and its drivers: GNU General Public License, version 2.\n"
    "3. zlib compression library: zlib licence.\n"
    "4. libpng image library: PNG reference library licence.\n"
    "5. FreeType font engine: FreeType licence.\n"
    "6. OpenSSL: Apache License 2.0.\n\n"
    "You may obtain the source code of the components licensed under the GNU licences from "
    "the manufacturer for three years after the last shipment of this product, for a charge "
    "no more than the cost of physically performing the distribution.\n\n"
    "THE SOFTWARE IS PROVIDED \"AS IS\", WITHOUT WARRANTY OF ANY KIND, EXPRESS OR IMPLIED, "
    "INCLUDING BUT NOT LIMITED TO THE WARRANTIES OF MERCHANTABILITY, FITNESS FOR A PARTICULAR "
    "PURPOSE AND NONINFRINGEMENT. IN NO EVENT SHALL THE AUTHORS OR COPYRIGHT HOLDERS BE LIABLE "
    "FOR ANY CLAIM, DAMAGES OR OTHER LIABILITY, WHETHER IN AN ACTION OF CONTRACT, TORT OR "
    "OTHERWISE, ARISING FROM, OUT OF OR IN CONNECTION WITH THE SOFTWARE OR THE USE OR OTHER "
    "DEALINGS IN THE SOFTWARE.\n\n"
    "Full licence texts\n\n"
    "GNU LESSER GENERAL PUBLIC LICENSE, Version 3, 29 June 2007. This version of the GNU "
    "Lesser General Public License incorporates the terms and conditions of version 3 of the "
    "GNU General Public License, supplemented by the additional permissions listed below.");

QStringList const kCameras = {QStringLiteral("Camera 1 (studio left)"), QStringLiteral("Camera 2 (studio right)"),
                              QStringLiteral("Camera 3 (wide)"), QStringLiteral("Camera 4 (PTZ)"),
                              QStringLiteral("Camera 5 (audience)")};

// Fills a multi-progress dialog with the cameras and, when `drive`, runs the update:
// each camera advances at its own pace; camera 4 fails on the way.
MutilProgressBarDialog* makeUpdate(QWidget* host, bool drive)
{
    auto* d = new MutilProgressBarDialog(systemHostArea(host), host);
    d->setTitle(QObject::tr("Updating camera firmware"));
    d->setTasks(kCameras);
    if (!drive)
        return d;
    auto* timer = new QTimer(d);
    auto tick = std::make_shared<int>(0);
    QObject::connect(timer, &QTimer::timeout, d, [d, timer, tick] {
        ++*tick;
        for (int i = 0; i < d->taskCount(); ++i) {
            if (d->taskState(i) != MutilProgressBarDialog::TaskRunning)
                continue;
            int const value = qMin(100, *tick * (3 + 2 * i));
            if (i == 3 && value >= 60) {
                d->setTaskFailed(i, QObject::tr("No answer"));
                continue;
            }
            d->setTaskValue(i, value);
            if (value >= 100)
                d->setTaskSucceeded(i);
        }
        if (d->allEnded())
            timer->stop();
    });
    timer->start(80);
    return d;
}

// A row that does something on the knob's press; its value label tells the outcome.
class ActionRow : public QFrame
{
public:
    ActionRow(QString const& title, std::function<QString(ActionRow*)> action, ItemPage* page)
        : m_action(std::move(action)), m_page(page)
    {
        setFocusPolicy(Qt::StrongFocus);
        setFixedHeight(ItemPage::kRowHeight);
        m_layout = new QHBoxLayout(this);
        m_layout->setContentsMargins(8, 0, 8, 0);
        auto* label = new QLabel(title, this);
        label->setProperty("itemTitleLabel", true);
        label->setStyleSheet(QStringLiteral("font-size: 20px;"));
        m_value = new QLabel(QObject::tr("press to open"), this);
        m_value->setProperty("galleryValue", true);
        m_layout->addWidget(label);
        m_layout->addStretch();
        m_layout->addWidget(m_value);
    }

    QHBoxLayout* rowLayout() const { return m_layout; }
    void setValue(QString const& text) { m_value->setText(text); }

    void run()
    {
        QPointer<ActionRow> self(this);
        QString const result = m_action(this);
        if (!self)
            return;
        if (!result.isEmpty()) {
            m_value->setText(result);
            emit m_page->statusMessage(result);
        }
        if (isVisible()) {
            if (!window()->isActiveWindow() && !QApplication::activeModalWidget())
                window()->activateWindow();
            m_page->list()->setFocus(Qt::OtherFocusReason);
        }
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            run();
        else
            event->ignore();
    }

private:
    std::function<QString(ActionRow*)> m_action;
    ItemPage* m_page;
    QHBoxLayout* m_layout = nullptr;
    QLabel* m_value = nullptr;
};

// The list keeps the knob; its press runs the current action row.
class SystemPress : public QObject
{
public:
    SystemPress(ItemPage* page, QMap<int, ActionRow*> rows) : QObject(page), m_page(page), m_rows(std::move(rows)) {}
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress && watched == m_page->list()) {
            int const key = static_cast<QKeyEvent*>(event)->key();
            if ((key == Qt::Key_Return || key == Qt::Key_Enter) && m_rows.contains(m_page->currentIndex())) {
                m_rows.value(m_page->currentIndex())->run();
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    ItemPage* m_page;
    QMap<int, ActionRow*> m_rows;
};

AboutPage* makeAbout(QWidget* parent)
{
    auto* about = new AboutPage(parent);
    about->setModel(QStringLiteral("VS-840 Production Switcher"));
    about->setSoftwareVersion(QStringLiteral("2.4.1 (build 5120, 2026-11-02)"));
    about->setHardwareVersion(QStringLiteral("Rev. C (main board), Rev. B (panel)"));
    about->setSerialNumber(QStringLiteral("2301-7788-0042"));
    about->setIpAddress(QStringLiteral("192.168.10.40 (DHCP)"));
    about->setMacAddress(QStringLiteral("00:1C:42:9A:7E:10"));
    about->setInfo(QStringLiteral("Panel firmware"), QStringLiteral("1.12.0"));
    about->setInfo(QStringLiteral("Licences"), QStringLiteral("Streaming encoder, multiview with sixteen windows, "
                                                             "chroma keyer pro, macro recorder"));
    about->setInfo(QStringLiteral("Uptime"), QStringLiteral("3 d 04:12"));
    return about;
}

QImage overWindow(QWidget* window, QWidget* dialog)
{
    QImage image = window->grab().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.fillRect(image.rect(), QColor(0, 0, 0, 110));
    QPoint const at = dialog->isWindow() ? dialog->pos() - window->mapToGlobal(QPoint(0, 0)) : dialog->pos();
    painter.drawPixmap(at, dialog->grab());
    return image;
}

} // namespace

ItemPage* buildSystemPage(GalleryContext&)
{
    auto* page = new ItemPage(QObject::tr("System"));
    QMap<int, ActionRow*> actions;
    auto addAction = [page, &actions](QString const& title, std::function<QString(ActionRow*)> action) {
        auto* row = new ActionRow(title, std::move(action), page);
        actions.insert(page->count(), row);
        page->addWidget(row, true, [page] { page->list()->setFocus(Qt::OtherFocusReason); });
        return row;
    };

    page->addSection(QObject::tr("Dialogs (Up/Down scroll, Enter or Esc close)"));
    addAction(QObject::tr("Licences (text view)"), [](ActionRow* row) {
        int const r = TextViewDialog::showText(row, QObject::tr("Licences"), kLicence, systemHostArea(row));
        return r == QDialog::Accepted ? QObject::tr("closed with Enter") : QObject::tr("closed with Esc");
    });
    addAction(QObject::tr("Update five cameras (multi-progress)"), [](ActionRow* row) {
        std::unique_ptr<MutilProgressBarDialog> d(makeUpdate(row, true));
        d->exec();
        return d->summaryText();
    });
    addAction(QObject::tr("Lock reminder (closes after 2 s)"), [](ActionRow* row) {
        LockReminderDialog::remind(row, QString(), systemHostArea(row));
        return QObject::tr("closed itself");
    });

    page->addSection(QObject::tr("Panel lock (hold Esc for 2 s to unlock)"));
    auto lockHolder = std::make_shared<QPointer<LockPanel>>();
    ActionRow* lockRow = addAction(QObject::tr("Lock the panel"), [lockHolder](ActionRow*) {
        if (*lockHolder)
            (*lockHolder)->lock();
        return QString();
    });
    // The indicator sits in the row, as a host would put it in its status bar.
    auto* lock = new LockPanel(QRect(0, 0, 800, 480), lockRow);
    *lockHolder = lock;
    lockRow->rowLayout()->insertWidget(2, lock);
    lockRow->setValue(QObject::tr("unlocked"));
    QObject::connect(lock, &LockPanel::signalLockedChanged, lockRow, [lockRow, page](bool locked) {
        lockRow->setValue(locked ? QString() : QObject::tr("unlocked"));
        emit page->statusMessage(locked ? QObject::tr("Panel locked: hold Esc for 2 s") : QObject::tr("Panel unlocked"));
    });

    page->addSection(QObject::tr("About (press to scroll the rows, Esc leaves)"));
    AboutPage* about = makeAbout(nullptr);
    about->setFixedHeight(300);
    auto* aboutRow = new PageRow(about, QObject::tr("About"), page->list());
    page->addItem(aboutRow, 300);
    page->addStretch();
    page->list()->installEventFilter(new SystemPress(page, actions));

    page->extraScreenshots = [page, lock](QString const& dir, QString const& prefix) {
        QWidget* window = page->window();
        int written = 0;
        auto save = [&](QImage const& image, QString const& id) {
            QString const file = QDir(dir).filePath(QStringLiteral("%1-system-%2.png").arg(prefix, id));
            if (image.save(file)) {
                noteScreenshotClasses(file);
                ++written;
            }
        };
        auto settle = [] {
            for (int i = 0; i < 3; ++i)
                QApplication::processEvents();
        };
        {
            TextViewDialog d(systemHostArea(window), window);
            d.setTitle(QObject::tr("Licences"));
            d.setText(kLicence);
            d.show();
            settle();
            QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QStringLiteral("3"));
            QApplication::sendEvent(QApplication::focusWidget() ? QApplication::focusWidget() : &d, &down);
            settle();
            save(overWindow(window, &d), QStringLiteral("textview"));
        }
        {
            std::unique_ptr<MutilProgressBarDialog> d(makeUpdate(window, false));
            d->setTaskValue(0, 100);
            d->setTaskSucceeded(0);
            d->setTaskValue(1, 72);
            d->setTaskValue(2, 35);
            d->setTaskFailed(3, QObject::tr("No answer"));
            d->setTaskValue(4, 12);
            d->show();
            settle();
            save(overWindow(window, d.get()), QStringLiteral("multiprogress"));
            d->setTaskSucceeded(1);
            d->setTaskSucceeded(2);
            d->setTaskSucceeded(4);
            settle();
            save(overWindow(window, d.get()), QStringLiteral("multiprogress-done"));
        }
        {
            lock->lock();
            settle();
            LockReminderDialog d(systemHostArea(window), window);
            d.setDisplayTime(60000);
            d.show();
            settle();
            save(overWindow(window, &d), QStringLiteral("lockreminder"));
            lock->unlock();
        }
        return written;
    };
    return page;
}
