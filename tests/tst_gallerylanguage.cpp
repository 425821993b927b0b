// The gallery's language key: L on a page's list switches the library's texts to
// Chinese and back, live; while a row is edited the key is the editor's.
#include "gallerytest.h"
#include "knob.h"
#include "leakcheck.h"

#include <lcdfwtranslatemanager.h>
#include <lcdwidgets.h>

#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace LCD::Widget;

class TestGalleryLanguage : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void languageNames();
    void lKeySwitchesTheLanguageLive();
};

void TestGalleryLanguage::languageNames()
{
    QVERIFY(GalleryWindow::catalogueFor(QStringLiteral("en")).isEmpty());
    QVERIFY(GalleryWindow::catalogueFor(QStringLiteral("en_US")).isEmpty());
    QVERIFY(GalleryWindow::catalogueFor(QStringLiteral("zh_CN")).endsWith(QLatin1String("/share/translations/lcdwidgets_zh_CN.qm")));
    QVERIFY(!GalleryWindow::setLanguage(QStringLiteral("xx_XX"))); // no such catalogue
    QCOMPARE(GalleryWindow::language(), QStringLiteral("en"));
    QVERIFY(GalleryWindow::setLanguage(QStringLiteral("zh_CN")));
    QCOMPARE(GalleryWindow::language(), QStringLiteral("zh_CN"));
    QVERIFY(GalleryWindow::setLanguage(QStringLiteral("en")));
    QCOMPARE(GalleryWindow::language(), QStringLiteral("en"));
    QCoreApplication::processEvents();
}

void TestGalleryLanguage::lKeySwitchesTheLanguageLive()
{
    Gallery gallery;
    KnobKeyboard keyboard(&gallery.window, gallery.context);
    qApp->installEventFilter(&keyboard);
    QVERIFY(gallery.show());

    ItemPage* page = gallery.openPage(QStringLiteral("network"), false);
    QVERIFY(page);
    auto* settings = page->findChild<NetworkSettings*>();
    QVERIFY(settings);
    page->list()->setFocus();
    QCOMPARE(settings->applyButton()->text(), QStringLiteral("Apply"));

    Knob::key(page->list(), Qt::Key_L);
    QCoreApplication::processEvents();
    QCOMPARE(GalleryWindow::language(), QStringLiteral("zh_CN"));
    QCOMPARE(settings->applyButton()->text(), QStringLiteral("应用"));
    QCOMPARE(settings->cancelButton()->text(), QStringLiteral("取消"));

    Knob::key(page->list(), Qt::Key_L);
    QCoreApplication::processEvents();
    QCOMPARE(GalleryWindow::language(), QStringLiteral("en"));
    QCOMPARE(settings->applyButton()->text(), QStringLiteral("Apply"));

    // An editor holding the knob keeps its letters.
    auto* editor = new QLineEdit(page->list());
    editor->show();
    editor->setFocus();
    QCOMPARE(QApplication::focusWidget(), editor);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_L, Qt::NoModifier, QStringLiteral("l"));
    QApplication::sendEvent(editor, &press);
    QCOMPARE(editor->text(), QStringLiteral("l"));
    QCOMPARE(GalleryWindow::language(), QStringLiteral("en"));
    delete editor;

    qApp->removeEventFilter(&keyboard);
    LCDFWTranslateManager::instance()->resetLanguage();
    QCoreApplication::processEvents();
}

QTEST_MAIN(TestGalleryLanguage)
#include "tst_gallerylanguage.moc"
