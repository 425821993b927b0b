// The theme contract (the rule is written out in tools/themecheck/themecontract.h):
// every dynamic property value and object name that the widgets set, as the gallery
// builds and works them, has a selector in the default theme, and every image the
// library or the sheet names is in the theme's images/ folder. A broken copy of the
// theme (rules and an image taken away) is reported line by line.
#include "leakcheck.h"
#include "themecontract.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using ThemeContract::Contract;

class TestThemeContract : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void initTestCase();
    void sheetSelectorsAreParsed();
    void widgetsWereWorked();
    void defaultThemeIsComplete();
    void brokenThemeIsReported();

private:
    static QString defaultTheme() { return QStringLiteral(LCDWIDGETS_THEME_DIR "/default.qss"); }
    Contract m_contract;
};

void TestThemeContract::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    QVERIFY(QFile::exists(defaultTheme()));
    QFile file(defaultTheme());
    QVERIFY(file.open(QIODevice::ReadOnly));
    qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
    m_contract = ThemeContract::collect();
    qApp->setStyleSheet(QString());
}

void TestThemeContract::sheetSelectorsAreParsed()
{
    ThemeContract::Sheet const sheet = ThemeContract::parseSheet(QStringLiteral(
        "/* QLabel[commented=\"true\"] #commentedName { } */\n"
        "QLabel[a=\"x\"], QFrame[b=y] QLabel[c], #name[d='z'] { color: #ff8a00; image: url(./../share/themes/t/images/i.png); }\n"
        "QWidget#other::item:focus { background: #123; }"));
    QCOMPARE(sheet.propertyValues.value(QStringLiteral("a")), QSet<QString>{QStringLiteral("x")});
    QCOMPARE(sheet.propertyValues.value(QStringLiteral("b")), QSet<QString>{QStringLiteral("y")});
    QCOMPARE(sheet.propertyValues.value(QStringLiteral("d")), QSet<QString>{QStringLiteral("z")});
    QCOMPARE(sheet.bareProperties, QSet<QString>{QStringLiteral("c")});
    QVERIFY(!sheet.properties.contains(QStringLiteral("commented")));
    // Colours in the declarations are not object names.
    QCOMPARE(sheet.objectNames, (QSet<QString>{QStringLiteral("name"), QStringLiteral("other")}));
    QCOMPARE(sheet.urls, QStringList{QStringLiteral("./../share/themes/t/images/i.png")});
    QCOMPARE(ThemeContract::imageName(sheet.urls.first()), QStringLiteral("i.png"));
}

void TestThemeContract::widgetsWereWorked()
{
    // The walk reached the rows' states, the dialogs and the screenshot variants:
    // a value set only while a row is current, one only on a toast, one only in a
    // running edit.
    QVERIFY2(m_contract.widgetsSeen > 1000, qPrintable(QString::number(m_contract.widgetsSeen)));
    QVERIFY(m_contract.properties.value(QStringLiteral("itemTitleLabel")).contains(QStringLiteral("true")));
    QVERIFY(m_contract.properties.contains(QStringLiteral("image")));
    QVERIFY(m_contract.objectNames.contains(QStringLiteral("itemDynamicFrame")));
    QVERIFY(!m_contract.properties.contains(QStringLiteral("galleryCurrent")));
    // Paths that only the code names.
    QVERIFY(m_contract.images.contains(QStringLiteral("icon_loading.gif")));
    QVERIFY(m_contract.images.contains(QStringLiteral("screen_bg.png")));
}

void TestThemeContract::defaultThemeIsComplete()
{
    QStringList const missing = ThemeContract::check(m_contract, defaultTheme());
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
}

void TestThemeContract::brokenThemeIsReported()
{
    // A copy of the default theme without the row title rules, the dynamic frame's
    // rule and the loading animation.
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QDir const source(QStringLiteral(LCDWIDGETS_THEME_DIR "/images"));
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("images")));
    for (QString const& name : source.entryList(QDir::Files)) {
        if (name != QLatin1String("icon_loading.gif"))
            QVERIFY(QFile::copy(source.filePath(name), dir.filePath(QStringLiteral("images/") + name)));
    }
    QFile file(defaultTheme());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QStringList kept;
    for (QString const& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        if (!line.contains(QLatin1String("itemTitleLabel")) && !line.contains(QLatin1String("#itemDynamicFrame")))
            kept << line;
    }
    QFile broken(dir.filePath(QStringLiteral("broken.qss")));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write(kept.join(QLatin1Char('\n')).toUtf8());
    broken.close();

    QStringList const missing = ThemeContract::check(m_contract, broken.fileName());
    auto reported = [&missing](QString const& what) {
        for (QString const& line : missing)
            if (line.startsWith(what))
                return true;
        return false;
    };
    QVERIFY2(reported(QStringLiteral("property: no selector [itemTitleLabel=\"true\"]")), qPrintable(missing.join('\n')));
    QVERIFY(reported(QStringLiteral("object name: no selector #itemDynamicFrame")));
    QVERIFY(reported(QStringLiteral("image: no file ") + dir.filePath(QStringLiteral("images/icon_loading.gif"))));
    QCOMPARE(missing.size(), 3 + (m_contract.properties.value(QStringLiteral("itemTitleLabel")).size() - 1));

    QVERIFY(!ThemeContract::check(m_contract, dir.filePath(QStringLiteral("absent.qss"))).isEmpty());

    // The program a host runs says the same, and fails.
    QProcess program;
    program.start(QStringLiteral(LCDTHEMECHECK_FILE), {broken.fileName()});
    QVERIFY(program.waitForFinished(300000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 1);
    QString const out = QString::fromUtf8(program.readAllStandardOutput());
    for (QString const& line : missing)
        QVERIFY2(out.contains(line), qPrintable(line));
    QVERIFY(out.contains(QStringLiteral("%1 missing").arg(missing.size())));
    program.start(QStringLiteral(LCDTHEMECHECK_FILE), {dir.filePath(QStringLiteral("absent.qss"))});
    QVERIFY(program.waitForFinished(30000));
    QCOMPARE(program.exitCode(), 2);
}

QTEST_MAIN(TestThemeContract)
#include "tst_themecontract.moc"
