#include "shotclasses.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QDir>
#include <QMetaObject>
#include <QStringList>
#include <QWidget>

#include <cstring>
#include <dlfcn.h>

namespace {

QList<QPair<QString, QStringList>>& records()
{
    static QList<QPair<QString, QStringList>> list;
    return list;
}

// A class is the library's when its meta-object lives in liblcdwidgets (this also
// finds its classes outside the namespace, such as the roll label, and leaves out
// the gallery's own subclasses).
bool isLibraryClass(QMetaObject const* meta)
{
    Dl_info info;
    return dladdr(static_cast<void const*>(meta), &info) && info.dli_fname
        && std::strstr(info.dli_fname, "liblcdwidgets") != nullptr;
}

void collect(QWidget* root, QStringList& classes)
{
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.prepend(root);
    for (QWidget* w : qAsConst(widgets)) {
        if (!w->isVisible())
            continue;
        // The class and the library's classes it derives from (a base's page shows
        // its subclasses).
        for (QMetaObject const* meta = w->metaObject(); meta; meta = meta->superClass()) {
            QString const name = QString::fromLatin1(meta->className());
            if (!classes.contains(name) && isLibraryClass(meta))
                classes << name;
        }
    }
}

} // namespace

void noteScreenshotClasses(QString const& file)
{
    QStringList popups;
    QWidget* main = nullptr;
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (!top->isVisible() || top->windowType() == Qt::Desktop)
            continue;
        if (top->objectName() == QLatin1String("galleryWindow"))
            main = top;
        else
            collect(top, popups);
    }
    QStringList classes = popups;
    if (main)
        collect(main, classes);
    records().append(qMakePair(QFileInfo(file).fileName(), classes));
}

void clearScreenshotClasses() { records().clear(); }

bool writeScreenshotClasses(QString const& dir)
{
    QFile out(QDir(dir).filePath(QStringLiteral("classes.txt")));
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text))
        return false;
    for (auto const& r : qAsConst(records()))
        out.write((r.first + QLatin1Char('\t') + r.second.join(QLatin1Char(' ')) + QLatin1Char('\n')).toUtf8());
    return true;
}
