// Crop drawing: the rectangles' data round trip, empty input, the view's 16:9 size
// and its fit to the rectangles, the crop limits inside the picture, and the row.
#include "leakcheck.h"

#include <lcdwidgets.h>

#include <QSignalSpy>
#include <QtTest>
#include <climits>
#include <cmath>
#include <limits>

using namespace LCD::Widget;

Q_DECLARE_METATYPE(LCD::Widget::ItemDataInfo)

namespace {

ItemDataInfo info(char const* text, int x, int y, int w, int h) { return ItemDataInfo{text, x, y, w, h}; }

ItemDataInfoArray layoutTemplate()
{
    return {info("PGM", 0, 0, 1920, 1080), info("PiP 1", 1200, 90, 640, 360),
            info("\xe6\x9c\xba\xe4\xbd\x8d 2", 1200, 630, 640, 360)}; // UTF-8 label
}

QString describe(ItemDataInfo const& i)
{
    return QStringLiteral("%1 %2,%3 %4x%5")
        .arg(QString::fromStdString(i.text))
        .arg(i.x)
        .arg(i.y)
        .arg(i.width)
        .arg(i.height);
}

} // namespace

namespace QTest {
template <>
char* toString(ItemDataInfo const& i)
{
    return qstrdup(describe(i).toUtf8().constData());
}
} // namespace QTest

class TestCropDrawing : public LeakCheckedTest
{
    Q_OBJECT

private slots:
    void templateRoundTrip()
    {
        DrawGraphicsView view;
        view.setItemInfo(layoutTemplate());
        DrawGraphicsScene* scene = view.drawScene();
        QCOMPARE(scene->itemInfo(), layoutTemplate());
        auto const rects = scene->items(Qt::AscendingOrder);
        QCOMPARE(rects.size(), 3);
        auto* pip = qgraphicsitem_cast<DrawGraphicsRectItem*>(rects.at(1));
        QVERIFY(pip);
        QCOMPARE(pip->rectText(), QStringLiteral("PiP 1"));
        QVERIFY(pip->isBaseMapHasBoder());
        QVERIFY(!pip->isCropRect());
        QCOMPARE(pip->contentFontSize(), 20); // the scene's size, not the item's own 40
        QCOMPARE(qgraphicsitem_cast<DrawGraphicsRectItem*>(rects.at(2))->rectText(), QStringLiteral("机位 2"));
        QCOMPARE(scene->outCutRect(), QRectF(0, 0, 1920, 1080));

        // A new template replaces the old one.
        view.setItemInfo({info("A", 10, 20, 30, 40)});
        QCOMPARE(scene->itemInfo(), (ItemDataInfoArray{info("A", 10, 20, 30, 40)}));
    }

    void cropRoundTripSetsBothFlags()
    {
        DrawGraphicsView view;
        CropRectInfoArray const crop{{false, info("", 0, 0, 1920, 1080)}, {true, info("", 240, 160, 1280, 720)}};
        view.setCropRectInfo(crop);
        QCOMPARE(view.drawScene()->cropRectInfo(), crop);
        auto const rects = view.drawScene()->items(Qt::AscendingOrder);
        auto* picture = qgraphicsitem_cast<DrawGraphicsRectItem*>(rects.at(0));
        auto* frame = qgraphicsitem_cast<DrawGraphicsRectItem*>(rects.at(1));
        QVERIFY(!picture->isCropRect() && !picture->isBaseMapHasBoder());
        QVERIFY(frame->isCropRect() && frame->isBaseMapHasBoder());
        // Crop rectangles carry no text, even when the data has one.
        view.setCropRectInfo({{true, info("ignored", 1, 2, 3, 4)}});
        QCOMPARE(view.drawScene()->itemInfo(), (ItemDataInfoArray{info("", 1, 2, 3, 4)}));
    }

    void emptyInputKeepsTheDrawing()
    {
        DrawGraphicsView view;
        view.setItemInfo(layoutTemplate());
        QTest::ignoreMessage(QtDebugMsg, "item info array is empty");
        view.setItemInfo({});
        QTest::ignoreMessage(QtDebugMsg, "item info array is empty");
        view.setCropRectInfo({});
        QCOMPARE(view.drawScene()->itemInfo(), layoutTemplate());

        // An empty scene: nothing to fit, nothing divided by zero.
        view.drawScene()->removeItems();
        QVERIFY(view.drawScene()->items().isEmpty());
        QCOMPARE(view.drawScene()->outCutRect(), QRectF());
        QTransform const before = view.transform();
        QTest::ignoreMessage(QtDebugMsg, "[DrawGraphicsScene] nothing to fit the view to");
        view.drawScene()->updateViewCenter();
        QCOMPARE(view.transform(), before);
        view.resize(160, 90);
        view.grab();
        DrawGraphicsScene lonely; // no view at all
        lonely.setTemplateInfo(layoutTemplate());
        lonely.updateViewCenter();
    }

    void sceneRectangle()
    {
        DrawGraphicsScene scene;
        QCOMPARE(scene.sceneRect(), QRectF(-196608, -196608, 393216, 393216));
        scene.setSceneSize(QRectF(0, 0, 1920, 1080));
        QCOMPARE(scene.sceneRect(), QRectF(0, 0, 1920, 1080));
        scene.initScene();
        QCOMPARE(scene.sceneRect(), QRectF(-196608, -196608, 393216, 393216));
        // Rectangles a view cannot scroll (its ranges are int) are refused.
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^\\[DrawGraphicsScene\\] setSceneSize: rectangle refused:"));
        scene.setSceneSize(QRectF(0, 0, 1e300, 10));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^\\[DrawGraphicsScene\\] setSceneSize: rectangle refused:"));
        scene.setSceneSize(QRectF(std::nan(""), 0, 10, 10));
        QCOMPARE(scene.sceneRect(), QRectF(-196608, -196608, 393216, 393216));
    }

    void viewIsSixteenByNine()
    {
        DrawGraphicsView view;
        view.setDrawViewHeight(90);
        QCOMPARE(view.size(), QSize(160, 90));
        QCOMPARE(view.minimumSize(), view.maximumSize());
        view.setDrawViewHeight(100);
        QCOMPARE(view.size(), QSize(177, 100));
        QTest::ignoreMessage(QtWarningMsg, "[DrawGraphicsView] setDrawViewHeight: height refused: 0");
        view.setDrawViewHeight(0);
        QCOMPARE(view.size(), QSize(177, 100));
        view.setDrawViewHeight(INT_MAX); // the width stays a widget width
        QVERIFY(view.width() <= QWIDGETSIZE_MAX && view.width() > view.height());
        QCOMPARE(DrawGraphicsView::BackgroundColor, QColor(25, 110, 136));
    }

    void fitsOnlyWhenTheViewCanShowIt()
    {
        DrawGraphicsView view;
        view.setDrawViewHeight(90);
        view.show(); // a hidden view's viewport has no size yet
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.resetTransform();
        view.setItemInfo({info("PGM", 0, 0, 1920, 1080)});
        // 160 / 1920 = 0.083: fitted (the scale is about 160/1920).
        QVERIFY(qAbs(view.transform().m11() - 160.0 / 1920.0) < 0.01);

        view.setDrawViewHeight(9); // 16 x 9
        view.resetTransform();
        QTransform const before = view.transform();
        // 16 / 100000 and 9 / 100000 lie below 0.012 and 0.015: left as it is.
        view.setItemInfo({info("huge", 0, 0, 100000, 100000)});
        QCOMPARE(view.transform(), before);
        // Wide enough but too short: 16/1000 = 0.016 >= 0.012, 9/1000 = 0.009 < 0.015.
        view.setItemInfo({info("tall", 0, 0, 1000, 1000)});
        QCOMPARE(view.transform(), before);
        // Both ratios large enough: fitted.
        view.setItemInfo({info("small", 0, 0, 500, 300)});
        QVERIFY(view.transform() != before);
    }

    void rectItemGeometry()
    {
        DrawGraphicsRectItem item;
        QCOMPARE(item.getItemSize(), QSizeF(0, 0));
        QCOMPARE(item.contentFontSize(), 40);
        item.setPos(10, 20);
        item.setItemSize(QSizeF(300, 200));
        QVERIFY(item.mapToScene(item.boundingRect()).boundingRect().contains(QRectF(10, 20, 300, 200)));
        item.setItemSize(QSizeF(-5, std::nan("")));
        QCOMPARE(item.getItemSize(), QSizeF(0, 0));
        // Extents no view could scroll stop at the largest scene coordinate.
        item.setItemSize(QSizeF(1e300, 3e9));
        QCOMPARE(item.getItemSize(), QSizeF(DrawGraphicsScene::kMaxSceneCoordinate, DrawGraphicsScene::kMaxSceneCoordinate));
        QTest::ignoreMessage(QtWarningMsg, "[DrawGraphicsRectItem] setContentFontSize: size refused: 0");
        item.setContentFontSize(0);
        QCOMPARE(item.contentFontSize(), 40);
    }

    void drawsTheCropFrame()
    {
        DrawGraphicsView view;
        view.setDrawViewHeight(180);
        view.setCropRectInfo({{false, info("", 0, 0, 1920, 1080)}, {true, info("", 480, 270, 960, 540)}});
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QImage const img = view.grab().toImage();
        QColor const background = img.pixelColor(5, 5);
        QCOMPARE(background, DrawGraphicsView::BackgroundColor);
        // The crop's frame lies at a quarter of the picture: white there.
        QColor const frame = img.pixelColor(160, 45);
        QVERIFY2(frame.lightness() > 200, qPrintable(frame.name()));
        QColor const inside = img.pixelColor(160, 90);
        QVERIFY(inside.lightness() > background.lightness()); // the crop is lit
        view.setEnabled(false);
        view.grab();
    }

    void cropStaysInsideThePicture_data()
    {
        QTest::addColumn<ItemDataInfo>("crop");
        QTest::addColumn<ItemDataInfo>("picture");
        QTest::addColumn<int>("minimum");
        QTest::addColumn<ItemDataInfo>("expected");
        ItemDataInfo const hd = info("", 0, 0, 1920, 1080);
        QTest::newRow("inside: unchanged")
            << info("c", 100, 100, 800, 600) << hd << 16 << info("c", 100, 100, 800, 600);
        QTest::newRow("moved past the right: stops at the edge")
            << info("", 1500, 100, 800, 600) << hd << 16 << info("", 1120, 100, 800, 600);
        QTest::newRow("moved past the top-left") << info("", -40, -1, 800, 600) << hd << 16 << info("", 0, 0, 800, 600);
        QTest::newRow("larger than the picture") << info("", 10, 10, 5000, 5000) << hd << 16 << hd;
        QTest::newRow("below the minimum size") << info("", 10, 10, 2, -50) << hd << 16 << info("", 10, 10, 16, 16);
        QTest::newRow("offset picture") << info("", 0, 0, 50, 50) << info("", 100, 200, 400, 300) << 16
                                        << info("", 100, 200, 50, 50);
        QTest::newRow("minimum larger than the picture") << info("", 0, 0, 5, 5) << info("", 0, 0, 10, 8) << 64
                                                         << info("", 0, 0, 10, 8);
        QTest::newRow("picture without area: unchanged")
            << info("", 5, 5, 10, 10) << info("", 0, 0, 0, 1080) << 16 << info("", 5, 5, 10, 10);
        QTest::newRow("minimum below 1: unchanged") << info("", -5, 5, 10, 10) << hd << 0 << info("", -5, 5, 10, 10);
        QTest::newRow("int extremes") << info("", INT_MIN, INT_MAX, INT_MAX, INT_MAX)
                                      << info("", INT_MAX - 100, INT_MIN, 100, INT_MAX) << 1
                                      << info("", INT_MAX - 100, INT_MIN, 100, INT_MAX);
    }

    void cropStaysInsideThePicture()
    {
        QFETCH(ItemDataInfo, crop);
        QFETCH(ItemDataInfo, picture);
        QFETCH(int, minimum);
        QFETCH(ItemDataInfo, expected);
        QCOMPARE(cropRectInside(crop, picture, minimum), expected);
    }

    void cropRow()
    {
        QWidget page;
        auto* row = new TypeDrawCropWidget(&page);
        row->setContentFontSize(20);
        row->setCropViewHeight(110);
        QCOMPARE(row->view()->size(), QSize(160, 90));
        QCOMPARE(row->view()->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QTest::ignoreMessage(QtWarningMsg, "[TypeDrawCropWidget] setCropViewHeight: height refused: 20");
        row->setCropViewHeight(20);
        QCOMPARE(row->view()->size(), QSize(160, 90));

        row->setItemInfo(layoutTemplate());
        QCOMPARE(row->view()->drawScene()->itemInfo(), layoutTemplate());
        row->setCropRectInfo({{true, info("", 1, 1, 10, 10)}});
        QCOMPARE(row->view()->drawScene()->itemInfo().size(), size_t(1));

        QSignalSpy clicked(row, &TypeDrawCropWidget::signalClicked);
        QSignalSpy started(row, &CommonItemType::signalEditStarted);
        row->editValue();
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.at(0).at(0), QVariant(false));
        QCOMPARE(started.count(), 0); // the host takes it from here

        row->setContentEnabled(false);
        QVERIFY(!row->view()->isEnabled());
        row->setContentEnabled(true);
        QVERIFY(row->view()->isEnabled());
        row->setContentFontSize(30); // handed to the rectangles
        QCOMPARE(row->view()->drawScene()->contentFontSize(), 30);
    }
};

QTEST_MAIN(TestCropDrawing)
#include "tst_cropdrawing.moc"
