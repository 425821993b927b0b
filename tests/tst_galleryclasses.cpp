// The list of library classes each gallery picture shows (DIR/classes.txt), which
// the API reference uses to put a picture on each class's page.
#include "leakcheck.h"
#include "shotclasses.h"

#include <ellipsislabel.h>
#include <typeitemtext.h>

#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QtTest>

namespace {

// A host's own row: its class is not the library's, its base is.
class HostRow : public LCD::Widget::TypeItemText
{
    Q_OBJECT
public:
    using TypeItemText::TypeItemText;
};

QStringList readLines(QString const& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

class TestGalleryClasses : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void init() { startLeakCheck(); }
    void cleanup()
    {
        clearScreenshotClasses();
        endLeakCheck();
    }
    void listsVisibleLibraryClassesPopupsFirst();
    void eachPictureHasItsLine();
};

void TestGalleryClasses::listsVisibleLibraryClassesPopupsFirst()
{
    QWidget window;
    window.setObjectName(QStringLiteral("galleryWindow"));
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new HostRow(&window));
    layout->addWidget(new QLabel(QStringLiteral("plain Qt"), &window));
    auto* hidden = new LCD::Widget::TypeItemText(&window);
    layout->addWidget(hidden);
    hidden->hide();
    window.show();

    QWidget popup;
    popup.setObjectName(QStringLiteral("popup"));
    auto* label = new EllipsisLabel(&popup);
    label->setText(QStringLiteral("a popup"));
    popup.show();

    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    noteScreenshotClasses(dir.filePath(QStringLiteral("01-page.png")));
    QVERIFY(writeScreenshotClasses(dir.path()));

    QStringList const lines = readLines(dir.filePath(QStringLiteral("classes.txt")));
    QCOMPARE(lines.size(), 1);
    QStringList const fields = lines.first().split(QLatin1Char('\t'));
    QCOMPARE(fields.size(), 2);
    QCOMPARE(fields.at(0), QStringLiteral("01-page.png"));
    QStringList const classes = fields.at(1).split(QLatin1Char(' '));
    // The popup's classes first (global classes of the library count), then the
    // window's: the host's row by its library bases and its title label.
    QCOMPARE(classes.value(0), QStringLiteral("EllipsisLabel"));
    QVERIFY(classes.contains(QStringLiteral("LCD::Widget::TypeItemText")));
    QVERIFY(classes.contains(QStringLiteral("LCD::Widget::CommonItemType")));
    QVERIFY(classes.contains(QStringLiteral("RollLabel")));
    QVERIFY(!classes.contains(QStringLiteral("HostRow")));
    QVERIFY(!classes.contains(QStringLiteral("QLabel")));
    QVERIFY(!classes.contains(QStringLiteral("QWidget")));
    QCOMPARE(classes.count(QStringLiteral("LCD::Widget::TypeItemText")), 1);
}

void TestGalleryClasses::eachPictureHasItsLine()
{
    QWidget window;
    window.setObjectName(QStringLiteral("galleryWindow"));
    auto* row = new LCD::Widget::TypeItemText(&window);
    window.show();

    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    noteScreenshotClasses(QStringLiteral("01-a.png"));
    row->hide();
    noteScreenshotClasses(QStringLiteral("01-b.png"));
    QVERIFY(writeScreenshotClasses(dir.path()));
    QStringList const lines = readLines(dir.filePath(QStringLiteral("classes.txt")));
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.at(0).startsWith(QStringLiteral("01-a.png\tLCD::Widget::TypeItemText")));
    // Nothing of the library is seen once the row is hidden: the line stays, empty.
    QCOMPARE(lines.at(1), QStringLiteral("01-b.png\t"));

    clearScreenshotClasses();
    QVERIFY(writeScreenshotClasses(dir.path()));
    QVERIFY(readLines(dir.filePath(QStringLiteral("classes.txt"))).isEmpty());
}

QTEST_MAIN(TestGalleryClasses)
#include "moc_leakcheck.cpp"
#include "tst_galleryclasses.moc"
