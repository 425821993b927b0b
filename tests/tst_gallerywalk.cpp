// Works every gallery page the way a user does with the panel: every row is made
// current, pressed, turned slowly and fast, and left with Escape. Each edit that
// starts must end and give the knob back to the page.
#include "gallerycontext.h"
#include "galleryhost.h"
#include "gallerywindow.h"
#include "itempage.h"
#include "knob.h"

#include <commonitemtype.h>

#include <QSignalSpy>
#include <QtTest>

class TestGalleryWalk : public QObject
{
    Q_OBJECT
private slots:
    void everyRowEditsAndGivesTheKnobBack();
    void knobWalksTheRows();
};

void TestGalleryWalk::everyRowEditsAndGivesTheKnobBack()
{
    GalleryHostApi host;
    GalleryContext context;
    context.host = &host;
    context.homeRect = QRect(0, 0, GalleryWindow::kWidth, GalleryWindow::kHeight);
    GalleryWindow window(context, QStringLiteral("lcdwidgets 0.1.0"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(window.pageCount() >= 3);

    int edited = 0;
    for (int p = 0; p < window.pageCount(); ++p) {
        window.showPage(p);
        ItemPage* page = window.page(p);
        QVERIFY(page->count() > 0);
        for (int i = 0; i < page->count(); ++i) {
            page->setCurrentIndex(i);
            LCD::Widget::CommonItemType* item = page->itemAt(i);
            if (!item || !item->getContentEnabled())
                continue;
            page->list()->setFocus();
            QSignalSpy started(item, &LCD::Widget::CommonItemType::signalEditStarted);
            Knob::press(page->list());
            QString const where = QStringLiteral("page %1 row %2 (%3)").arg(page->title()).arg(i).arg(item->itemTitle());
            if (started.isEmpty())
                continue; // a display row: the press does not edit it
            ++edited;
            QVERIFY2(page->isEditing(), qPrintable(where));
            QWidget* editor = QApplication::focusWidget();
            QVERIFY2(editor && editor != page->list(), qPrintable(where));
            Knob::turn(editor, 3);
            Knob::turn(QApplication::focusWidget(), -2, 0.05);
            Knob::back(QApplication::focusWidget());
            QCoreApplication::processEvents();
            QVERIFY2(!page->isEditing(), qPrintable(where));
            QCOMPARE(QApplication::focusWidget(), page->list());
        }
    }
    QVERIFY(edited >= 5);
}

void TestGalleryWalk::knobWalksTheRows()
{
    GalleryHostApi host;
    GalleryContext context;
    context.host = &host;
    GalleryWindow window(context, QStringLiteral("lcdwidgets 0.1.0"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.showPage(0);
    ItemPage* page = window.page(0);
    QCOMPARE(page->currentIndex(), 0);
    Knob::turn(page->list(), -3); // Down three times
    QCOMPARE(page->currentIndex(), 3);
    Knob::turn(page->list(), 10); // Up past the top stays on the first row
    QCOMPARE(page->currentIndex(), 0);
    QCOMPARE(page->itemAt(0)->property("galleryCurrent"), QVariant(true));
    QCOMPARE(page->itemAt(3)->property("galleryCurrent"), QVariant(false));
}

QTEST_MAIN(TestGalleryWalk)
#include "tst_gallerywalk.moc"
