#include "gallerywindow.h"

#include "galleryhost.h"
#include "itempage.h"
#include "pages.h"
#include "shotclasses.h"

#include <lcdfwtranslatemanager.h>

#include <QApplication>
#include <QFileInfo>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QStackedWidget>
#include <QVBoxLayout>

GalleryWindow::GalleryWindow(GalleryContext& context, QString const& pluginText, QWidget* parent)
    : QWidget(parent), m_context(context), m_pluginText(pluginText)
{
    setObjectName(QStringLiteral("galleryWindow"));
    setWindowTitle(QStringLiteral("lcdgallery"));
    setFixedSize(kWidth, kHeight);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    auto* header = new QWidget(this);
    header->setObjectName(QStringLiteral("galleryHeader"));
    header->setFixedHeight(44);
    auto* headerLayout = new QHBoxLayout(header);
    headerLayout->setContentsMargins(16, 0, 16, 0);
    m_title = new QLabel(header);
    m_title->setObjectName(QStringLiteral("galleryTitle"));
    m_plugin = new QLabel(header);
    m_plugin->setObjectName(QStringLiteral("galleryPlugin"));
    headerLayout->addWidget(m_title);
    headerLayout->addStretch();
    headerLayout->addWidget(m_plugin);
    layout->addWidget(header);

    m_stack = new QStackedWidget(this);
    layout->addWidget(m_stack, 1);
    for (PageInfo const& info : galleryPages()) {
        ItemPage* p = info.build(context);
        m_stack->addWidget(p);
        m_ids << info.id;
        connect(p, &ItemPage::statusMessage, this, &GalleryWindow::setStatus);
    }

    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("galleryFooter"));
    m_status->setFixedHeight(30);
    layout->addWidget(m_status);

    showPage(0);
}

GalleryWindow::~GalleryWindow()
{
    // Pages torn down after this point must not report to a half-destroyed window.
    for (int i = 0; i < pageCount(); ++i)
        page(i)->disconnect(this);
}

int GalleryWindow::pageCount() const { return m_stack->count(); }

ItemPage* GalleryWindow::page(int index) const { return qobject_cast<ItemPage*>(m_stack->widget(index)); }

QString GalleryWindow::pageId(int index) const { return m_ids.value(index); }

int GalleryWindow::currentPage() const { return m_stack->currentIndex(); }

void GalleryWindow::showPage(int index)
{
    if (index < 0 || index >= pageCount())
        return;
    m_stack->setCurrentIndex(index);
    page(index)->activate();
    updateHeader();
    setStatus(tr("\u2191\u2193 turn   PgUp/PgDn fast   Enter press   Esc back   \u2190\u2192 page   [ ] T-bar   L language"));
}

void GalleryWindow::updateHeader()
{
    int const i = currentPage();
    m_title->setText(tr("%1   <span style=\"color:#8a8f98\">%2 / %3</span>")
                         .arg(page(i)->title())
                         .arg(i + 1)
                         .arg(pageCount()));
    QString text = tr("%1   T-bar %2").arg(m_pluginText).arg(m_context.host->keyboard().position());
    if (language() != QLatin1String("en"))
        text += QStringLiteral("   \u4e2d\u6587"); // the library's texts are in Chinese
    m_plugin->setText(text);
}

void GalleryWindow::setStatus(QString const& text) { m_status->setText(text); }

QPixmap GalleryWindow::grabScreen()
{
    QPixmap shot = grab();
    // Menus and pop-ups are windows of their own: paint them where they stand.
    QPainter painter(&shot);
    QPoint const origin = mapToGlobal(QPoint(0, 0));
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (top == this || !top->isVisible() || top->windowType() == Qt::Desktop)
            continue;
        painter.setOpacity(top->windowOpacity());
        painter.drawPixmap(top->mapToGlobal(QPoint(0, 0)) - origin, top->grab());
    }
    return shot;
}

void GalleryWindow::closeOtherWindows()
{
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (top != this && top->isVisible() && top->windowType() != Qt::Desktop) {
            // A menu or pop-up ends its edit the way the user would.
            QWidget* focus = top->focusWidget();
            QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QApplication::sendEvent(focus ? focus : top, &escape);
            top->hide();
        }
    }
    QApplication::processEvents();
}

int GalleryWindow::renderScreenshots(QString const& dir)
{
    QDir().mkpath(dir);
    clearScreenshotClasses();
    int written = 0;
    auto render = [&](int i, QString const& suffix, std::function<void()> const& setup) {
        showPage(i);
        ItemPage* p = page(i);
        if (setup)
            setup();
        // Tall pages are rendered whole.
        int const needed = 44 + 30 + p->contentHeight();
        setFixedSize(kWidth, qMax(kHeight, needed));
        QApplication::processEvents();
        QString const name = QStringLiteral("%1-%2%3.png").arg(i + 1, 2, 10, QLatin1Char('0')).arg(pageId(i), suffix);
        bool const saved = grabScreen().save(QDir(dir).filePath(name));
        if (saved)
            noteScreenshotClasses(name);
        closeOtherWindows();
        setFixedSize(kWidth, kHeight);
        return saved;
    };
    for (int i = 0; i < pageCount(); ++i) {
        ItemPage* p = page(i);
        if (render(i, QString(), p->screenshotSetup))
            ++written;
        for (auto const& variant : qAsConst(p->screenshotVariants))
            render(i, QStringLiteral("-") + variant.first, variant.second);
        if (p->extraScreenshots) {
            QApplication::processEvents();
            p->extraScreenshots(dir, QStringLiteral("%1").arg(i + 1, 2, 10, QLatin1Char('0')));
            closeOtherWindows();
        }
    }
    writeScreenshotClasses(dir);
    return written;
}

QString GalleryWindow::catalogueFor(QString const& language)
{
    if (language.isEmpty() || language == QLatin1String("en") || language.startsWith(QLatin1String("en_")))
        return QString();
    // Relative to bin/, as the theme.
    return QFileInfo(QStringLiteral("./../share/translations/lcdwidgets_%1.qm").arg(language)).absoluteFilePath();
}

bool GalleryWindow::setLanguage(QString const& language)
{
    LCDFWTranslateManager* manager = LCDFWTranslateManager::instance();
    QString const qm = catalogueFor(language);
    if (qm.isEmpty()) {
        manager->resetLanguage();
        return true;
    }
    return manager->setLanguage(qm);
}

QString GalleryWindow::language()
{
    QString const qm = QFileInfo(LCDFWTranslateManager::instance()->currentCatalogue()).completeBaseName();
    return qm.startsWith(QLatin1String("lcdwidgets_")) ? qm.mid(11) : QStringLiteral("en");
}

void GalleryWindow::toggleLanguage()
{
    QString const next = language() == QLatin1String("en") ? QStringLiteral("zh_CN") : QStringLiteral("en");
    if (!setLanguage(next)) {
        setStatus(tr("Cannot load %1").arg(catalogueFor(next)));
        return;
    }
    // The widgets re-translate themselves on the language-change event that follows.
    updateHeader();
    setStatus(next == QLatin1String("en") ? tr("Language: English (L: \u4e2d\u6587)")
                                          : tr("Language: \u4e2d\u6587 (L: English)"));
}

KnobKeyboard::KnobKeyboard(GalleryWindow* window, GalleryContext& context) : m_window(window), m_context(context) {}

bool KnobKeyboard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return QObject::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    // Without a window manager (a kiosk session) the window may never be made the
    // active one: the application then has no focus widget, and keys go to the
    // window's own focus widget (or the window). Take them where they arrive.
    QWidget* focus = QApplication::focusWidget();
    if (!focus)
        focus = m_window->focusWidget() ? m_window->focusWidget() : m_window;
    if (watched != focus)
        return QObject::eventFilter(watched, event);

    switch (key->key()) {
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
        // A fast knob turn: the same key as a slow one, with the level in the text.
        QKeyEvent turn(key->type(), key->key() == Qt::Key_PageUp ? Qt::Key_Up : Qt::Key_Down, Qt::NoModifier,
                       QString::fromLatin1(kFastLevel), key->isAutoRepeat());
        QApplication::sendEvent(focus, &turn);
        return true;
    }
    case Qt::Key_Left:
    case Qt::Key_Right: {
        ItemPage* page = m_window->page(m_window->currentPage());
        if (page && focus == page->list()) {
            if (event->type() == QEvent::KeyPress) {
                int const n = m_window->pageCount();
                m_window->showPage((m_window->currentPage() + (key->key() == Qt::Key_Right ? 1 : n - 1)) % n);
            }
            return true;
        }
        break;
    }
    case Qt::Key_L: {
        // Only while the page's list has the knob: an editor keeps its letters.
        ItemPage* page = m_window->page(m_window->currentPage());
        if (page && focus == page->list()) {
            if (event->type() == QEvent::KeyPress && !key->isAutoRepeat())
                m_window->toggleLanguage();
            return true;
        }
        break;
    }
    case Qt::Key_BracketLeft:
    case Qt::Key_BracketRight:
        if (event->type() == QEvent::KeyPress) {
            m_context.host->keyboard().move(key->key() == Qt::Key_BracketRight ? 25 : -25);
            m_window->updateHeader();
        }
        return true;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
