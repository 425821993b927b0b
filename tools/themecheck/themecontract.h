// The theme contract: what the library's widgets ask of a theme, and the check of a
// theme's style sheet and images against it.
//
// What a theme must provide (what check() reports when it is missing):
//  - every dynamic property P that a widget sets, with each value V it takes: a
//    selector [P="V"], [P=V] or [P] in the style sheet. A "false" value is covered by
//    any selector on P: false is the property's plain state, the look without it.
//    Values a style sheet cannot compare (colours, sizes, pointers, lists) ask for a
//    selector naming P.
//  - every object name N on a widget that carries no style property: a selector #N.
//    A widget with a style property is styled through it; its name serves lookups
//    (the tests', a host's) and a theme may use it, but need not.
//  - every image the library names (in a property, a style sheet, a running
//    animation, or a literal path in its sources, forms and the host interface
//    headers), and every image the sheet itself names with url(): a file of that name
//    under the theme folder's images/.
// Left out, because no theme styles them:
//  - names Qt gives itself: properties "_q_*", object names "qt_*";
//  - the demo host's own names, "gallery*" (the gallery styles them in its own sheet);
//  - properties that keep a value for code, not a look (kDataProperties in
//    themecontract.cpp: a button's role or value, the host's texts, a shown flag).
// The style sheet is read as text: comments are stripped, and only the selectors
// (the text before each "{") count.
#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

namespace ThemeContract {

struct Contract
{
    // Dynamic property -> the values it was seen with, as a style sheet compares them.
    QMap<QString, QSet<QString>> properties;
    // Properties seen with a value a style sheet cannot compare.
    QSet<QString> opaqueProperties;
    // Object name -> class of a widget that carries it.
    QMap<QString, QString> objectNames;
    // Image path below the theme's images/ folder -> where it was named.
    QMap<QString, QString> images;
    // "P=V" or "P" -> class of a widget that set it (for the report).
    QMap<QString, QString> where;
    int widgetsSeen = 0;
};

// Builds every gallery page, sets up each of its screenshot states and opens its
// dialogs, then works every row with the knob (press, turns, back) while any modal
// dialog that comes up is worked and closed; records what the widgets set on the way.
// Needs a QApplication whose working directory is the host's bin/ folder.
Contract collect();

// Adds the images that the library's sources and the host interface name as literal
// paths (compiled in when the checker is built).
void addSourceImages(Contract& contract);

struct Sheet
{
    QMap<QString, QSet<QString>> propertyValues; // [P="V"] and [P=V]
    QSet<QString> properties;                    // every P named in a selector
    QSet<QString> bareProperties;                // [P]
    QSet<QString> objectNames;                   // #N
    QStringList urls;                            // url(...) anywhere in the sheet
};

Sheet parseSheet(QString const& text);

// What the theme at `qssPath` lacks, one line each; empty when it is complete. Images
// are looked up in the images/ folder beside the sheet.
QStringList check(Contract const& contract, QString const& qssPath);

// The image path below ".../images/" of a path or url, or an empty string.
QString imageName(QString const& path);

} // namespace ThemeContract
