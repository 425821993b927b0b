// lcdgallery: a demo host for liblcdwidgets.
//
//   lcdgallery                    interactive, in a window (renders PNGs when there is no display)
//   lcdgallery --screenshots DIR  renders every page to DIR/NN-page.png and exits
//   lcdgallery --language zh_CN   starts in Chinese (L switches English <-> Chinese)
#include "gallerycontext.h"
#include "galleryhost.h"
#include "gallerywindow.h"

#include <lcdfwtranslatemanager.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <cstdio>
#include <cstdlib>

namespace {

// The host's own look around the library's widgets: window, header, footer and the
// marker of the current row.
char const* const kHostStyle = R"(
#galleryWindow, #galleryList, #galleryScroll { background: #101317; }
#galleryHeader { background: #1b2027; border-bottom: 1px solid #2c333d; }
#galleryTitle { color: #f2f2f2; font-size: 20px; font-weight: 600; }
#galleryPlugin { color: #8a8f98; font-size: 14px; }
#galleryFooter { background: #1b2027; color: #8a8f98; font-size: 13px; padding-left: 16px; border-top: 1px solid #2c333d; }
#gallerySection { color: #ff8a00; font-size: 13px; font-weight: 600; padding: 10px 8px 4px 8px; }
QFrame[galleryCurrent="true"], QWidget[galleryCurrent="true"] { background: rgba(255, 138, 0, 0.12); border-radius: 6px; }
QFrame[galleryTile="true"] { background: #1b2027; border-radius: 8px; }
QFrame[galleryTile="true"] QLabel[itemTitleLabel="true"] { color: #c8ccd2; }
QLabel[galleryValue="true"] { color: #c8ccd2; font-size: 18px; padding: 2px 8px; border-radius: 4px; }
QLabel[galleryValue="true"]:disabled { color: rgba(255, 255, 255, 0.3); }
QLabel[galleryEditing="true"] { color: #ffffff; border: 2px solid rgba(255, 255, 255, 0.8); }
)";

bool haveDisplay()
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return qgetenv("QT_QPA_PLATFORM") != "offscreen" && qgetenv("QT_QPA_PLATFORM") != "minimal";
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

void mapFonts()
{
    // The families the widgets name, mapped to what this machine has.
    QStringList const candidates = {QStringLiteral("WenQuanYi Micro Hei"), QStringLiteral("Noto Sans CJK SC"),
                                    QStringLiteral("DejaVu Sans")};
    QStringList const installed = QFontDatabase().families();
    for (QString const& family : candidates) {
        if (installed.contains(family)) {
            QFont::insertSubstitution(QStringLiteral("Microsoft YaHei"), family);
            QFont::insertSubstitution(QStringLiteral("Source Han Sans SC"), family);
            QFont font(family);
            font.setPixelSize(18);
            QApplication::setFont(font);
            return;
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    bool const headless = !haveDisplay();
    if (headless)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("lcdgallery"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Demo host of liblcdwidgets: every widget on pages worked like the panel's knob."));
    parser.addHelpOption();
    QCommandLineOption shots(QStringLiteral("screenshots"), QStringLiteral("Render every page to PNG files in <dir> and exit."),
                             QStringLiteral("dir"));
    QCommandLineOption lang(QStringLiteral("language"),
                            QStringLiteral("Start in <language>: a name (zh_CN, en) or a catalogue file (.qm)."),
                            QStringLiteral("language"));
    QCommandLineOption pageOpt(QStringLiteral("page"), QStringLiteral("Start on page <n> (1-based)."), QStringLiteral("n"));
    parser.addOptions({shots, lang, pageOpt});
    parser.process(app);

    QString shotDir = parser.value(shots);
    if (shotDir.isEmpty() && headless)
        shotDir = QStringLiteral("gallery-screenshots");
    if (!shotDir.isEmpty())
        shotDir = QDir(shotDir).absolutePath();
    // A catalogue file is taken relative to where the gallery was started; a language
    // name is looked up among the installed catalogues once bin/ is the current folder.
    QString const language = parser.value(lang);
    bool const languageIsFile = language.endsWith(QLatin1String(".qm")) || language.contains(QLatin1Char('/'));
    QString qm = languageIsFile ? QFileInfo(language).absoluteFilePath() : QString();

    // Theme images are addressed relative to the host's working directory (bin/).
    QDir::setCurrent(QCoreApplication::applicationDirPath());
    mapFonts();

    GalleryHostApi host;
    PluginLoader plugin;
    if (!plugin.load(&host)) {
        std::fprintf(stderr, "lcdgallery: cannot load liblcdwidgets: %s\n", qPrintable(plugin.errorString()));
        return 1;
    }
    if (!language.isEmpty() && !languageIsFile)
        qm = GalleryWindow::catalogueFor(language);
    if (!qm.isEmpty() && !LCDFWTranslateManager::instance()->setLanguage(qm)) {
        std::fprintf(stderr, "lcdgallery: cannot load %s\n", qPrintable(qm));
        return 1;
    }

    QFile theme(QStringLiteral("./../share/themes/default/default.qss"));
    QString sheet;
    if (theme.open(QIODevice::ReadOnly))
        sheet = QString::fromUtf8(theme.readAll());
    else
        std::fprintf(stderr, "lcdgallery: theme not found at %s\n", qPrintable(QDir::current().absoluteFilePath(theme.fileName())));
    app.setStyleSheet(sheet + QString::fromLatin1(kHostStyle));

    GalleryContext context;
    context.host = &host;
    context.homeRect = QRect(0, 0, GalleryWindow::kWidth, GalleryWindow::kHeight);

    GalleryWindow window(context, QStringLiteral("%1 %2").arg(plugin.name(), plugin.version()));
    if (!shotDir.isEmpty()) {
        window.show();
        int const written = window.renderScreenshots(shotDir);
        std::printf("lcdgallery: %s %s, %d page(s) rendered to %s\n", qPrintable(plugin.name()),
                    qPrintable(plugin.version()), written, qPrintable(shotDir));
        return written == window.pageCount() ? 0 : 1;
    }

    KnobKeyboard keyboard(&window, context);
    app.installEventFilter(&keyboard);
    window.show();
    // A kiosk session has no window manager to activate the window: ask for it.
    window.activateWindow();
    window.showPage(qMax(0, parser.value(pageOpt).toInt() - 1));
    return app.exec();
}
