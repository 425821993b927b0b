#include "themecontract.h"

#include "gallerycontext.h"
#include "galleryhost.h"
#include "gallerywindow.h"
#include "itempage.h"

#include <commonitemtype.h>
#include <pluginentry.h>
#include <waitingdialog.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMovie>
#include <QPointer>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>

namespace ThemeContract {

namespace {

// Properties that keep a value for code (the host's data, a button's role or value,
// a shown flag, a dialog's modal run), set without a re-polish: they style nothing, and their values are
// the host's.
QSet<QByteArray> const kDataProperties = {"MarkValue", "MyButtonRole", "WindowStateShow", "captionText",
                                          "multiBtnText", "userData", "lcdModalRunning"};

bool skippedProperty(QByteArray const& name)
{
    return name.startsWith("_q_") || name.startsWith("gallery") || kDataProperties.contains(name);
}

bool hasStyleProperty(QWidget const* w)
{
    for (QByteArray const& name : w->dynamicPropertyNames())
        if (!skippedProperty(name))
            return true;
    return false;
}

bool skippedObjectName(QString const& name)
{
    return name.isEmpty() || name.startsWith(QLatin1String("qt_")) || name.startsWith(QLatin1String("gallery"));
}

QString className(QObject const* o) { return QString::fromLatin1(o->metaObject()->className()); }

// The value as a style sheet's attribute selector compares it; null when it cannot.
QString comparable(QVariant const& v, bool* ok)
{
    *ok = true;
    switch (v.userType()) {
    case QMetaType::Bool:
        return v.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::QString:
    case QMetaType::QByteArray:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::QChar:
        return v.toString();
    default:
        *ok = false;
        return QString();
    }
}

// Records what widgets set, as they set it (dynamic-property events) and when they
// are polished or shown.
class Recorder : public QObject
{
public:
    explicit Recorder(Contract& contract) : m_contract(contract) {}

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::DynamicPropertyChange:
            if (watched->isWidgetType())
                property(static_cast<QWidget*>(watched),
                         static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName());
            break;
        case QEvent::Polish:
        case QEvent::Show:
            if (watched->isWidgetType())
                widget(static_cast<QWidget*>(watched));
            break;
        default:
            break;
        }
        return false;
    }

    void widget(QWidget* w)
    {
        m_seen.insert(w);
        for (QByteArray const& name : w->dynamicPropertyNames())
            property(w, name);
        QString const name = w->objectName();
        if (!skippedObjectName(name)) {
            if (!m_names.contains(name))
                m_names.insert(name, className(w));
            if (hasStyleProperty(w))
                m_styledByProperty.insert(name);
        }
        if (!w->styleSheet().isEmpty())
            images(w->styleSheet(), w);
        if (auto* label = qobject_cast<QLabel*>(w); label && label->movie())
            images(label->movie()->fileName(), w);
        for (QMovie* movie : w->findChildren<QMovie*>(QString(), Qt::FindDirectChildrenOnly))
            images(movie->fileName(), w);
    }

    void everything()
    {
        for (QWidget* w : QApplication::allWidgets())
            widget(w);
    }

    void finish()
    {
        m_contract.widgetsSeen = m_seen.size();
        for (auto it = m_names.cbegin(); it != m_names.cend(); ++it)
            if (!m_styledByProperty.contains(it.key()))
                m_contract.objectNames.insert(it.key(), it.value());
    }

private:
    void property(QWidget* w, QByteArray const& name)
    {
        if (skippedProperty(name))
            return;
        QVariant const value = w->property(name.constData());
        if (!value.isValid())
            return;
        QString const p = QString::fromLatin1(name);
        bool ok = false;
        QString const v = comparable(value, &ok);
        if (ok) {
            m_contract.properties[p].insert(v);
            if (!m_contract.where.contains(p + QLatin1Char('=') + v))
                m_contract.where.insert(p + QLatin1Char('=') + v, className(w));
            if (value.userType() == QMetaType::QString)
                images(v, w);
        } else {
            m_contract.opaqueProperties.insert(p);
            if (!m_contract.where.contains(p))
                m_contract.where.insert(p, className(w));
        }
    }

    void images(QString const& text, QWidget* w)
    {
        static QRegularExpression const path(QStringLiteral("share/themes/[^\"')\\s;]*"));
        auto it = path.globalMatch(text);
        while (it.hasNext()) {
            QString const name = imageName(it.next().captured(0));
            if (!name.isEmpty() && !m_contract.images.contains(name))
                m_contract.images.insert(name, className(w));
        }
    }

    Contract& m_contract;
    QSet<QWidget*> m_seen;
    QMap<QString, QString> m_names;
    // Names seen on a widget that carries a style property: that is its hook.
    QSet<QString> m_styledByProperty;
};

void sendKey(QWidget* w, int key, QString const& text = QString())
{
    if (!w)
        return;
    QWidget* focus = QApplication::focusWidget();
    QPointer<QWidget> target = focus && (focus == w || w->isAncestorOf(focus)) ? focus : w;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(target, &press);
    if (!target)
        return;
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(target, &release);
}

QWidget* focusOr(QWidget* fallback)
{
    QWidget* focus = QApplication::focusWidget();
    return focus ? focus : fallback;
}

// Works every modal dialog that comes up (a turn each way, so that the focused and
// current states show) and closes it: with Escape as the user would, by force for
// the ones the user cannot close.
class ModalCloser : public QObject
{
public:
    explicit ModalCloser(Recorder& recorder) : m_recorder(recorder)
    {
        connect(&m_timer, &QTimer::timeout, this, [this] { tick(); });
        m_timer.start(5);
    }

private:
    void tick()
    {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || !modal->isVisible())
            return;
        QPointer<QWidget> guard = modal;
        m_recorder.everything();
        sendKey(modal, Qt::Key_Down);
        if (guard)
            sendKey(modal, Qt::Key_Up);
        m_recorder.everything();
        if (guard)
            sendKey(modal, Qt::Key_Escape);
        if (!guard || !guard->isVisible())
            return;
        if (auto* waiting = qobject_cast<LCD::Widget::WaitingDialog*>(guard.data()))
            waiting->hideWaitingDialog();
        else if (auto* dialog = qobject_cast<QDialog*>(guard.data()))
            dialog->done(-1);
        else
            guard->hide();
    }

    Recorder& m_recorder;
    QTimer m_timer;
};

void settle()
{
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Every row made current, pressed, turned slowly and fast, and left with Escape.
void walk(GalleryWindow& window, Recorder& recorder)
{
    for (int p = 0; p < window.pageCount(); ++p) {
        window.showPage(p);
        ItemPage* page = window.page(p);
        page->activate();
        for (int i = 0; i < page->count(); ++i) {
            page->setCurrentIndex(i);
            settle();
            recorder.everything();
            LCD::Widget::CommonItemType* item = page->itemAt(i);
            if (item && !item->getContentEnabled())
                continue;
            if (item)
                page->list()->setFocus();
            sendKey(focusOr(page->list()), Qt::Key_Return);
            settle();
            recorder.everything();
            sendKey(focusOr(page->list()), Qt::Key_Up, QStringLiteral("1"));
            sendKey(focusOr(page->list()), Qt::Key_Down, QStringLiteral("0.05"));
            recorder.everything();
            sendKey(focusOr(page->list()), Qt::Key_Escape);
            settle();
            window.closeOtherWindows();
            // Whatever the row left open, the page takes the knob back.
            if (page->isEditing())
                sendKey(focusOr(page->list()), Qt::Key_Escape);
            window.activateWindow();
            page->list()->setFocus();
        }
        recorder.everything();
    }
}

} // namespace

QString imageName(QString const& path)
{
    int const at = path.lastIndexOf(QLatin1String("images/"));
    if (at < 0)
        return QString();
    QString name = path.mid(at + 7);
    while (name.endsWith(QLatin1Char('"')) || name.endsWith(QLatin1Char('\'')))
        name.chop(1);
    return name.isEmpty() || name.endsWith(QLatin1Char('/')) ? QString() : name;
}

Contract collect()
{
    Contract contract;
    Recorder recorder(contract);
    qApp->installEventFilter(&recorder);
    {
        GalleryHostApi host;
        ::pluginit(static_cast<dov::IHostApi*>(&host));
        GalleryContext context;
        context.host = &host;
        context.homeRect = QRect(0, 0, GalleryWindow::kWidth, GalleryWindow::kHeight);
        GalleryWindow window(context, QStringLiteral("lcdwidgets"));
        window.show();
        window.activateWindow();
        settle();
        recorder.everything();
        {
            ModalCloser closer(recorder);
            // The states the gallery's pictures show, and the dialogs they open.
            QTemporaryDir shots;
            window.renderScreenshots(shots.path());
            recorder.everything();
            walk(window, recorder);
            // Toasts and tips close themselves; let them go.
            QElapsedTimer clock;
            clock.start();
            while (clock.elapsed() < 100)
                QApplication::processEvents(QEventLoop::AllEvents, 20);
            recorder.everything();
        }
        window.closeOtherWindows();
        ::pluginit(nullptr);
    }
    LCD::Widget::WaitingDialog::deleteInstance();
    settle();
    qApp->removeEventFilter(&recorder);
    recorder.finish();
    addSourceImages(contract);
    return contract;
}

void addSourceImages(Contract& contract)
{
    // Generated when the checker is built: {path, source file} of every literal image
    // path in the library's sources and the host interface headers.
    static char const* const kSourceImages[][2] = {
#include "sourceimages.inc"
        {nullptr, nullptr}};
    for (auto const& entry : kSourceImages) {
        if (!entry[0])
            break;
        QString const name = imageName(QString::fromLatin1(entry[0]));
        if (!name.isEmpty() && !contract.images.contains(name))
            contract.images.insert(name, QString::fromLatin1(entry[1]));
    }
}

Sheet parseSheet(QString const& input)
{
    Sheet sheet;
    QString text = input;
    static QRegularExpression const comment(QStringLiteral("/\\*.*?\\*/"), QRegularExpression::DotMatchesEverythingOption);
    text.remove(comment);

    static QRegularExpression const url(QStringLiteral("url\\(\\s*[\"']?([^\"')]*)[\"']?\\s*\\)"));
    for (auto it = url.globalMatch(text); it.hasNext();)
        sheet.urls << it.next().captured(1).trimmed();

    // Selectors: the text at brace depth 0 up to each "{".
    QStringList selectors;
    int depth = 0;
    int start = 0;
    for (int i = 0; i < text.size(); ++i) {
        QChar const c = text.at(i);
        if (c == QLatin1Char('{')) {
            if (depth == 0)
                selectors << text.mid(start, i - start);
            ++depth;
        } else if (c == QLatin1Char('}')) {
            if (depth > 0 && --depth == 0)
                start = i + 1;
        }
    }
    static QRegularExpression const attribute(QStringLiteral(
        "\\[\\s*([A-Za-z_][\\w-]*)\\s*(?:[~|]?=\\s*(?:\"([^\"]*)\"|'([^']*)'|([^\\]\\s]*)))?\\s*\\]"));
    static QRegularExpression const id(QStringLiteral("#([A-Za-z_][\\w-]*)"));
    for (QString const& s : qAsConst(selectors)) {
        for (auto it = attribute.globalMatch(s); it.hasNext();) {
            QRegularExpressionMatch const m = it.next();
            QString const name = m.captured(1);
            sheet.properties.insert(name);
            if (m.capturedStart(2) < 0 && m.capturedStart(3) < 0 && m.capturedStart(4) < 0)
                sheet.bareProperties.insert(name);
            else
                sheet.propertyValues[name].insert(m.captured(2) + m.captured(3) + m.captured(4));
        }
        for (auto it = id.globalMatch(s); it.hasNext();)
            sheet.objectNames.insert(it.next().captured(1));
    }
    return sheet;
}

QStringList check(Contract const& contract, QString const& qssPath)
{
    QStringList missing;
    QFile file(qssPath);
    if (!file.open(QIODevice::ReadOnly)) {
        missing << QStringLiteral("cannot read the style sheet %1").arg(qssPath);
        return missing;
    }
    Sheet const sheet = parseSheet(QString::fromUtf8(file.readAll()));
    QDir const images(QFileInfo(qssPath).absoluteDir().filePath(QStringLiteral("images")));

    for (auto it = contract.properties.cbegin(); it != contract.properties.cend(); ++it) {
        QString const& p = it.key();
        if (sheet.bareProperties.contains(p))
            continue;
        QStringList values = it.value().values();
        values.sort();
        for (QString const& v : qAsConst(values)) {
            if (sheet.propertyValues.value(p).contains(v))
                continue;
            if (v == QLatin1String("false") && sheet.properties.contains(p))
                continue;
            missing << QStringLiteral("property: no selector [%1=\"%2\"] (set by %3)")
                           .arg(p, v, contract.where.value(p + QLatin1Char('=') + v));
        }
    }
    for (QString const& p : contract.opaqueProperties) {
        if (!sheet.properties.contains(p) && !contract.properties.contains(p))
            missing << QStringLiteral("property: no selector [%1] (set by %2)").arg(p, contract.where.value(p));
    }
    for (auto it = contract.objectNames.cbegin(); it != contract.objectNames.cend(); ++it) {
        if (!sheet.objectNames.contains(it.key()))
            missing << QStringLiteral("object name: no selector #%1 (on %2)").arg(it.key(), it.value());
    }
    QMap<QString, QString> wanted = contract.images;
    for (QString const& u : sheet.urls) {
        QString const name = imageName(u);
        if (!name.isEmpty() && !wanted.contains(name))
            wanted.insert(name, QStringLiteral("the style sheet"));
    }
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        if (!QFileInfo(images.filePath(it.key())).isFile())
            missing << QStringLiteral("image: no file %1 (named by %2)").arg(images.filePath(it.key()), it.value());
    }
    missing.sort();
    return missing;
}

} // namespace ThemeContract
