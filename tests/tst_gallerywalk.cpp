// Works every gallery page the way a user does with the panel: every row is made
// current, pressed, turned slowly and fast, and left with Escape. Each edit that
// starts must end and give the knob back to the page.
#include "leakcheck.h"
#include "gallerytest.h"
#include "knob.h"

#include <commonitemtype.h>
#include <lcdwidgets.h>

#include <QSignalSpy>
#include <QtTest>

class TestGalleryWalk : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void everyRowEditsAndGivesTheKnobBack();
    void knobWalksTheRows();
    void keysWorkInAnInactiveWindow();
    // Instruments page
    void instrumentsPageWorksWithTheKnob();
    // Layers and factory test pages
    void layersPageMovesLayersWithTheKnob();
    void factoryTestPageRunsATest();
};

void TestGalleryWalk::everyRowEditsAndGivesTheKnobBack()
{
    Gallery gallery;
    QVERIFY(gallery.show());
    GalleryWindow& window = gallery.window;
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
    Gallery gallery(false);
    QVERIFY(gallery.show());
    gallery.window.showPage(0);
    ItemPage* page = gallery.window.page(0);
    QCOMPARE(page->currentIndex(), 0);
    Knob::turn(page->list(), -3); // Down three times
    QCOMPARE(page->currentIndex(), 3);
    Knob::turn(page->list(), 10); // Up past the top stays on the first row
    QCOMPARE(page->currentIndex(), 0);
    QCOMPARE(page->itemAt(0)->property("galleryCurrent"), QVariant(true));
    QCOMPARE(page->itemAt(3)->property("galleryCurrent"), QVariant(false));
}

// ---- Instruments page: a dial turned, the crop moved to the picture's edge ----
void TestGalleryWalk::instrumentsPageWorksWithTheKnob()
{
    Gallery gallery(false);
    QVERIFY(gallery.show());
    ItemPage* page = gallery.openPage(QStringLiteral("instruments"));
    QVERIFY(page);

    auto* dials = qobject_cast<LCD::Widget::TypeItemDashBoard*>(page->itemAt(0));
    QVERIFY(dials);
    page->setCurrentIndex(0);
    Knob::press(page->list());                   // choose a dial
    Knob::turn(QApplication::focusWidget(), -1); // Down: the second dial
    Knob::press(QApplication::focusWidget());    // it takes the knob
    LCD::Widget::DashBoardWidget* tbar = dials->dashBoard(1);
    QCOMPARE(QApplication::focusWidget(), tbar);
    double const before = tbar->targetValue();
    Knob::turn(tbar, -2); // Down raises
    QCOMPARE(tbar->targetValue(), before + 2);
    Knob::back(tbar);
    Knob::back(QApplication::focusWidget());
    QCOMPARE(QApplication::focusWidget(), page->list());
    QVERIFY(!page->isEditing());

    // The crop: the drawing's press leads to the rows; a fast turn of the left edge
    // stops where the crop touches the picture's right edge.
    int drawing = -1;
    for (int i = 0; i < page->count(); ++i)
        if (qobject_cast<LCD::Widget::TypeDrawCropWidget*>(page->itemAt(i)))
            drawing = i; // the last one is the crop
    QVERIFY(drawing > 0);
    auto* crop = qobject_cast<LCD::Widget::TypeDrawCropWidget*>(page->itemAt(drawing));
    page->setCurrentIndex(drawing);
    Knob::press(page->list());
    QCOMPARE(page->currentIndex(), drawing + 1);
    Knob::press(page->list());
    for (int i = 0; i < 40; ++i)
        Knob::turn(QApplication::focusWidget(), 1, 0.05);
    Knob::back(QApplication::focusWidget());
    auto const rects = crop->view()->drawScene()->cropRectInfo();
    QCOMPARE(rects.size(), size_t(2));
    LCD::Widget::ItemDataInfo const picture = rects.at(0).second;
    LCD::Widget::ItemDataInfo const cropped = rects.at(1).second;
    QVERIFY(rects.at(1).first);
    QCOMPARE(cropped.x + cropped.width, picture.x + picture.width);
    QVERIFY(cropped.x > 0);
}

// ---- Layers page: a layer moved to the front, the preview and the other rows follow ----

void TestGalleryWalk::layersPageMovesLayersWithTheKnob()
{
    Gallery gallery(false);
    QVERIFY(gallery.show());
    ItemPage* page = gallery.openPage(QStringLiteral("layers"));
    QVERIFY(page);

    auto* previewRow = qobject_cast<LCD::Widget::TypePreviewWidget*>(page->itemAt(0));
    QVERIFY(previewRow);
    LCD::Widget::PreviewWidget* preview = previewRow->preview();
    LCD::Widget::TypeZOrderItemMore* camera1 = nullptr;
    LCD::Widget::TypeZOrderItemMore* logo = nullptr;
    int camera1Index = -1;
    for (int i = 0; i < page->count(); ++i)
        if (auto* row = qobject_cast<LCD::Widget::TypeZOrderItemMore*>(page->itemAt(i))) {
            if (row->itemTitle() == QLatin1String("Camera 1")) {
                camera1 = row;
                camera1Index = i;
            } else if (row->itemTitle() == QLatin1String("Logo")) {
                logo = row;
            }
        }
    QVERIFY(camera1 && logo);
    QCOMPARE(camera1->zOrder(), 2);

    page->setCurrentIndex(camera1Index);
    Knob::press(page->list());
    QCOMPARE(preview->currentLayer(), 1);
    Knob::turn(QApplication::focusWidget(), 1, 5.0); // a fast turn: to the front
    QCOMPARE(camera1->zOrder(), 4);
    QCOMPARE(preview->layerText(3), QStringLiteral("Camera 1"));
    QCOMPARE(preview->currentLayer(), 3);
    QCOMPARE(logo->zOrder(), 3);
    Knob::back(QApplication::focusWidget());
    QCOMPARE(QApplication::focusWidget(), page->list());

    // The X row moves the current layer; the preview follows live.
    page->setCurrentIndex(camera1Index + 2);
    auto* x = page->itemAt(camera1Index + 2);
    QVERIFY(x && x->itemTitle().contains(QLatin1String("X")));
    Knob::press(page->list());
    Knob::turn(QApplication::focusWidget(), 3);
    QCOMPARE(int(preview->layerRect(3).x()), x->getLabelValue().toInt());
    QVERIFY(int(preview->layerRect(3).x()) != 120);
    Knob::back(QApplication::focusWidget());
    QVERIFY(!page->isEditing());
}

// ---- Factory test page: the knob test run from the list, the mark set ----
void TestGalleryWalk::factoryTestPageRunsATest()
{
    Gallery gallery(false);
    QVERIFY(gallery.show());
    ItemPage* page = gallery.openPage(QStringLiteral("factorytest"));
    QVERIFY(page);
    page->setCurrentIndex(0);
    auto* frame = page->itemAt(0)->findChild<LCD::Widget::FactoryTestFrame*>();
    QVERIFY(frame);

    Knob::press(page->list());
    QCOMPARE(QApplication::focusWidget(), frame->leftFrame());
    Knob::turn(QApplication::focusWidget(), -1); // Down: the knob test
    Knob::press(QApplication::focusWidget());
    QCOMPARE(QApplication::focusWidget(), frame->rightFrame());
    Knob::turn(QApplication::focusWidget(), 5);
    Knob::turn(QApplication::focusWidget(), -5);
    QCOMPARE(frame->result(int(LCD::Widget::FactoryTestItem::Knob)), LCD::Widget::FactoryTestResult::Passed);
    QCOMPARE(QApplication::focusWidget(), frame->leftFrame());
    Knob::back(QApplication::focusWidget());
    QCOMPARE(QApplication::focusWidget(), page->list());
    QVERIFY(!page->isEditing());
}

void TestGalleryWalk::keysWorkInAnInactiveWindow()
{
    // A kiosk session without a window manager never activates the window: keys
    // still arrive, at the window's focus widget, and must work as on the panel.
    Gallery gallery(false);
    GalleryWindow& window = gallery.window;
    GalleryHostApi& host = gallery.host;
    KnobKeyboard keyboard(&window, gallery.context);
    qApp->installEventFilter(&keyboard);
    QVERIFY(gallery.show());
    QApplication::setActiveWindow(nullptr);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(nullptr));
    window.showPage(0);
    QWidget* target = window.focusWidget();
    QVERIFY(target);

    auto send = [&](int code) {
        QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier);
        QApplication::sendEvent(window.focusWidget(), &press);
    };
    send(Qt::Key_Right); // next page
    QCOMPARE(window.currentPage(), 1);
    send(Qt::Key_Left);
    QCOMPARE(window.currentPage(), 0);
    send(Qt::Key_PageDown); // a fast turn walks the rows like a slow one
    QCOMPARE(window.page(0)->currentIndex(), 1);
    int const tbar = host.keyboard().position();
    send(Qt::Key_BracketRight);
    QVERIFY(host.keyboard().position() > tbar);
    qApp->removeEventFilter(&keyboard);
}

QTEST_MAIN(TestGalleryWalk)
#include "tst_gallerywalk.moc"
