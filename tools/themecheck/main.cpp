// lcdthemecheck: checks that a theme provides for everything the library's widgets
// set: a selector for each dynamic property value and object name, and each image.
//
//   lcdthemecheck [path/to/theme.qss]   (default: the default theme, ./../share/themes/default/default.qss
//                                        from the folder of this program)
//   lcdthemecheck --list                prints what the widgets set, then checks
//
// Prints what the theme lacks and exits with 1; exits with 0 when it lacks nothing,
// with 2 when the sheet cannot be read.
#include "themecontract.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <cstdio>

int main(int argc, char** argv)
{
    // The check renders nothing to a screen: it runs without a display.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("lcdthemecheck"));
    // The widgets' own debug notes are not this program's output.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Checks a theme style sheet against the dynamic properties, object names and images that "
        "liblcdwidgets' widgets set. Images are looked for in the images/ folder beside the sheet."));
    parser.addHelpOption();
    QCommandLineOption list(QStringLiteral("list"), QStringLiteral("Print what the widgets set."));
    parser.addOption(list);
    parser.addPositionalArgument(QStringLiteral("theme"), QStringLiteral("The theme's style sheet (.qss)."));
    parser.process(app);

    QString qss = parser.positionalArguments().value(0);
    qss = qss.isEmpty() ? QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../share/themes/default/default.qss"))
                        : QFileInfo(qss).absoluteFilePath();
    QFile file(qss);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "lcdthemecheck: cannot read %s\n", qPrintable(qss));
        return 2;
    }
    // The widgets are built and worked under the theme being checked, from the folder
    // a host runs in (images are addressed relative to it).
    app.setStyleSheet(QString::fromUtf8(file.readAll()));
    QDir::setCurrent(QCoreApplication::applicationDirPath());

    ThemeContract::Contract const contract = ThemeContract::collect();
    if (parser.isSet(list)) {
        for (auto it = contract.properties.cbegin(); it != contract.properties.cend(); ++it) {
            QStringList values = it.value().values();
            values.sort();
            std::printf("property %s = %s\n", qPrintable(it.key()), qPrintable(values.join(QStringLiteral(", "))));
        }
        for (QString const& p : contract.opaqueProperties)
            std::printf("property %s (not comparable)\n", qPrintable(p));
        for (auto it = contract.objectNames.cbegin(); it != contract.objectNames.cend(); ++it)
            std::printf("object name %s (%s)\n", qPrintable(it.key()), qPrintable(it.value()));
        for (auto it = contract.images.cbegin(); it != contract.images.cend(); ++it)
            std::printf("image %s (%s)\n", qPrintable(it.key()), qPrintable(it.value()));
    }

    QStringList const missing = ThemeContract::check(contract, qss);
    for (QString const& line : missing)
        std::printf("%s\n", qPrintable(line));
    int values = 0;
    for (auto const& v : contract.properties)
        values += v.size();
    std::printf("lcdthemecheck: %s: %d widgets, %d properties (%d values), %d object names, %d images: %s\n",
                qPrintable(qss), contract.widgetsSeen, int(contract.properties.size()), values,
                int(contract.objectNames.size()), int(contract.images.size()),
                missing.isEmpty() ? "nothing missing" : qPrintable(QStringLiteral("%1 missing").arg(missing.size())));
    return missing.isEmpty() ? 0 : 1;
}
