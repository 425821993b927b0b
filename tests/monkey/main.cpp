// lcdmonkey: works every public class of the library at random (see driver.h).
//   lcdmonkey [--seed N] [--events N] [--only=A,B] [--keep-going] [--abort] [--list] [--verbose]
#include "driver.h"
#include "factories.h"

#include <QApplication>
#include <QDir>
#include <QFile>

#include <cstdio>

int main(int argc, char** argv)
{
    // The monkey opens and closes hundreds of windows: off screen unless asked otherwise.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);

    Monkey::Options options;
    bool list = false;
    QStringList const args = app.arguments().mid(1);
    for (int i = 0; i < args.size(); ++i) {
        QString const a = args.at(i);
        auto value = [&](QString const& name, QString& out) {
            if (a == name && i + 1 < args.size()) {
                out = args.at(++i);
                return true;
            }
            if (a.startsWith(name + QLatin1Char('='))) {
                out = a.mid(name.size() + 1);
                return true;
            }
            return false;
        };
        QString v;
        bool ok = true;
        if (value(QStringLiteral("--seed"), v))
            options.seed = v.toULongLong(&ok);
        else if (value(QStringLiteral("--events"), v))
            options.events = v.toInt(&ok);
        else if (value(QStringLiteral("--only"), v))
            options.only = v.split(QLatin1Char(','), QString::SkipEmptyParts);
        else if (value(QStringLiteral("--hang"), v))
            options.hangSeconds = v.toInt(&ok);
        else if (a == QLatin1String("--list"))
            list = true;
        else if (a == QLatin1String("--abort"))
            options.abortOnFailure = true;
        else if (a == QLatin1String("--keep-going"))
            options.keepGoing = true;
        else if (a == QLatin1String("--verbose") || a == QLatin1String("-v"))
            options.verbose = true;
        else {
            std::fprintf(stderr,
                         "usage: lcdmonkey [--seed N] [--events N per class] [--only=Class,...] [--hang S] "
                         "[--keep-going] [--abort] [--list] [--verbose]\n");
            return 2;
        }
        if (!ok || options.events < 0 || options.hangSeconds < 1) {
            std::fprintf(stderr, "lcdmonkey: bad value for %s\n", qPrintable(a));
            return 2;
        }
    }

    // The theme, as a host applies it (the images are addressed from bin/).
    QFile qss(QStringLiteral("./../share/themes/default/default.qss"));
    if (qss.open(QIODevice::ReadOnly))
        app.setStyleSheet(QString::fromUtf8(qss.readAll()));
    else
        std::fprintf(stderr, "lcdmonkey: no theme at %s (run from the build's bin/)\n",
                     qPrintable(QDir::current().absoluteFilePath(qss.fileName())));

    std::vector<Monkey::ClassEntry> entries;
    Monkey::addRowClasses(entries);
    size_t const rows = entries.size();
    Monkey::addDeviceClasses(entries);
    bool const devicesJoined = entries.size() > rows;

    if (list) {
        for (auto const& e : entries)
            std::printf("%s (%zu setters)\n", qPrintable(e.name), e.actions.size());
        return 0;
    }
    return Monkey::run(options, entries, devicesJoined);
}
