// Layer rows, tags, picture rows and the layer preview: moving a layer with the knob
// (levels, ends, signal order, leaving the edit), the preview's geometry, order and
// highlight, and the refusals of bad input with their messages.
#include "hostwindow.h"
#include "leakcheck.h"

#include <knob.h>
#include <lcdwidgets.h>

#include <QDir>
#include <QImage>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QtTest>
#include <climits>
#include <cmath>
#include <limits>

using namespace LCD::Widget;

namespace {

// A shown, active window holding one row, so that focus moves as on the panel.
template <typename Row>
struct Page : HostWindow::RowPage<Row>
{
    Page() : HostWindow::RowPage<Row>(500, QSize(520, 260)) {}
};

// Records the row's signals in one list, to check their order.
QStringList* record(CommonItemType* row, QObject* owner)
{
    auto* log = new QStringList;
    QObject::connect(owner, &QObject::destroyed, [log] { delete log; });
    QObject::connect(row, &CommonItemType::signalEditStarted, owner, [log] { *log << "started"; });
    QObject::connect(row, &CommonItemType::signalValueChanged, owner,
                     [log](QVariant const& v) { *log << QStringLiteral("value %1").arg(v.toInt()); });
    QObject::connect(row, &CommonItemType::signalCloseEditStatus, owner, [log] { *log << "close"; });
    QObject::connect(row, &CommonItemType::signalEditFinished, owner, [log] { *log << "finished"; });
    return log;
}

ItemDataInfoArray fourLayers()
{
    return {{"Background", 0, 0, 1920, 1080},
            {"Camera 1", 120, 140, 960, 540},
            {"Camera 2", 840, 420, 960, 540},
            {"Logo", 1580, 60, 280, 160}};
}

} // namespace

class TestLayers : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void zOrderMovesWithKnob();
    void zOrderLevelsAndEnds_data();
    void zOrderLevelsAndEnds();
    void zOrderPressAsksForSettings();
    void zOrderRefusesBadInput();
    void frameTagKindsAndColours();
    void graphicScalesToFitAndRefuses();
    void previewGeometry();
    void previewOrderAndCurrent();
    void previewRefusesBadRectangles();
    void previewPaintsCurrentOnTop();
    void previewRowChoosesLayer();
};

void TestLayers::zOrderMovesWithKnob()
{
    Page<TypeZOrderItemMore> p;
    QVERIFY(p.start());
    p.row->setLayerCount(4);
    p.row->setZOrder(2);
    QStringList* log = record(p.row, &p.window);
    QSignalSpy moved(p.row, &TypeZOrderItemMore::signalZOrderChanged);

    // Not editing: the knob is the page's, the row does not move.
    Knob::turn(p.row, 1);
    QCOMPARE(p.row->zOrder(), 2);

    p.row->editValue();
    QVERIFY(p.row->hasFocus());
    QCOMPARE(p.row->zOrderLabel()->property("isZOrderEditing").toBool(), true);
    Knob::turn(p.row, 1);
    QCOMPARE(p.row->zOrder(), 3);
    QCOMPARE(p.row->zOrderLabel()->text(), QStringLiteral("3/4"));
    QCOMPARE(moved.count(), 1);
    QCOMPARE(moved.at(0).at(0).toInt(), 2);
    QCOMPARE(moved.at(0).at(1).toInt(), 3);
    Knob::turn(p.row, -2);
    QCOMPARE(p.row->zOrder(), 1);

    Knob::back(p.row);
    QVERIFY(p.window.hasFocus());
    QCOMPARE(p.row->zOrderLabel()->property("isZOrderEditing").toBool(), false);
    // Live: Escape keeps the moves.
    QCOMPARE(p.row->getLabelValue().toInt(), 1);
    QCOMPARE(*log, (QStringList{"started", "value 3", "value 2", "value 1", "close", "finished"}));
}

void TestLayers::zOrderLevelsAndEnds_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("detents");
    QTest::addColumn<QString>("level");
    QTest::addColumn<int>("expected");
    QTest::addColumn<int>("emitted");
    QTest::newRow("fast turn moves three") << 2 << 1 << "3.7" << 5 << 1;
    QTest::newRow("fast turn stops at the front") << 6 << 1 << "5" << 8 << 1;
    QTest::newRow("huge level clamped") << 4 << -1 << "1e9" << 1 << 1;
    QTest::newRow("nan counts as one") << 4 << 1 << "nan" << 5 << 1;
    QTest::newRow("unreadable counts as one") << 4 << -1 << "fast" << 3 << 1;
    QTest::newRow("slow level still moves") << 4 << 1 << "0.05" << 5 << 1;
    QTest::newRow("at the front nothing") << 8 << 2 << "1" << 8 << 0;
    QTest::newRow("at the bottom nothing") << 1 << -3 << "1" << 1 << 0;
}

void TestLayers::zOrderLevelsAndEnds()
{
    QFETCH(int, start);
    QFETCH(int, detents);
    QFETCH(QString, level);
    QFETCH(int, expected);
    QFETCH(int, emitted);
    Page<TypeZOrderItemMore> p;
    QVERIFY(p.start());
    p.row->setLayerCount(8);
    p.row->setZOrder(start);
    p.row->editValue();
    QSignalSpy values(p.row, &CommonItemType::signalValueChanged);
    Knob::turnText(p.row, detents, level);
    QCOMPARE(p.row->zOrder(), expected);
    QCOMPARE(values.count(), emitted);
}

void TestLayers::zOrderPressAsksForSettings()
{
    Page<TypeZOrderItemMore> p;
    QVERIFY(p.start());
    QStringList* log = record(p.row, &p.window);
    QObject::connect(p.row, &TypeZOrderItemMore::signalSettingsRequested, &p.window, [log] { *log << "settings"; });
    p.row->editValue();
    Knob::press(p.row);
    QCOMPARE(*log, (QStringList{"started", "settings", "close", "finished"}));
    QVERIFY(p.window.hasFocus());
    // A disabled row does not take the knob.
    log->clear();
    p.row->setContentEnabled(false);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("no editor to edit with"));
    p.row->editValue();
    QVERIFY(log->isEmpty());
}

void TestLayers::zOrderRefusesBadInput()
{
    TypeZOrderItemMore row;
    row.setLayerCount(5);
    row.setZOrder(5);
    QTest::ignoreMessage(QtWarningMsg, "[TypeZOrderItemMore] invalid layer count: 0");
    row.setLayerCount(0);
    QTest::ignoreMessage(QtWarningMsg, "[TypeZOrderItemMore] z-order out of range: 6");
    row.setZOrder(6);
    QTest::ignoreMessage(QtWarningMsg, "[TypeZOrderItemMore] z-order out of range: 0");
    row.setLabelValue(0, 0);
    QCOMPARE(row.layerCount(), 5);
    QCOMPARE(row.zOrder(), 5);
    // A smaller count pulls the position in.
    row.setLayerCount(3);
    QCOMPARE(row.zOrder(), 3);
    QCOMPARE(row.zOrderLabel()->text(), QStringLiteral("3/3"));
    QTest::ignoreMessage(QtWarningMsg, "Invalid font size: 0");
    row.setContentFontSize(0);
}

void TestLayers::frameTagKindsAndColours()
{
    TypeFrameTag row;
    QVERIFY(row.tagLabel()->isHidden());
    row.setTag(QStringLiteral("PGM"), TypeFrameTag::Program);
    QVERIFY(!row.tagLabel()->isHidden());
    QCOMPARE(row.tagLabel()->property("frameTagKind").toString(), QStringLiteral("program"));
    row.setTagKind(TypeFrameTag::Preview);
    QCOMPARE(row.tagLabel()->property("frameTagKind").toString(), QStringLiteral("preview"));
    QVERIFY(!row.tagLabel()->styleSheet().contains("background"));

    row.setTagColor(QColor(250, 240, 10));
    QCOMPARE(row.tagKind(), TypeFrameTag::Custom);
    QCOMPARE(row.tagLabel()->property("frameTagKind").toString(), QStringLiteral("custom"));
    // A light colour gets dark text.
    QVERIFY(row.tagLabel()->styleSheet().contains("background: #fffaf00a"));
    QVERIFY(row.tagLabel()->styleSheet().contains("color: #000000"));

    QTest::ignoreMessage(QtWarningMsg, "[TypeFrameTag] invalid tag colour");
    row.setTagColor(QColor());
    QTest::ignoreMessage(QtWarningMsg, "[TypeFrameTag] unknown tag kind: 9");
    row.setTagKind(TypeFrameTag::Kind(9));
    QCOMPARE(row.tagKind(), TypeFrameTag::Custom);

    // Back to a theme kind drops the caller's colour.
    row.setTagKind(TypeFrameTag::Source);
    QVERIFY(!row.tagColor().isValid());
    QVERIFY(!row.tagLabel()->styleSheet().contains("background"));
    // Custom without a colour has nothing to draw with.
    QTest::ignoreMessage(QtWarningMsg, "[TypeFrameTag] invalid tag colour");
    row.setTagKind(TypeFrameTag::Custom);
    QCOMPARE(row.tagKind(), TypeFrameTag::Source);

    row.setLabelValue(QString(), 0);
    QVERIFY(row.tagLabel()->isHidden());
    QSignalSpy clicked(&row, &TypeFrameTag::signalClicked);
    row.editValue();
    QCOMPARE(clicked.count(), 1);
}

void TestLayers::graphicScalesToFitAndRefuses()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QString const file = dir.filePath("wide.png");
    QImage wide(400, 100, QImage::Format_RGB32);
    wide.fill(Qt::red);
    QVERIFY(wide.save(file));

    Page<TypeGraphicWidget> p;
    p.row->setPictureHeight(90);
    QCOMPARE(p.row->pictureAreaSize(), QSize(160, 90));
    QVERIFY(p.start());
    QVERIFY(p.row->setPicture(file));
    QCOMPARE(p.row->pictureArea()->property("graphicState").toString(), QStringLiteral("ready"));
    // 4:1 in 160 x 90: the width decides, aspect kept.
    QCOMPARE(p.row->shownPixmap().size(), QSize(160, 40));
    p.row->setPictureHeight(45);
    QCoreApplication::processEvents();
    QCOMPARE(p.row->shownPixmap().size(), QSize(80, 20));

    QString const missing = dir.filePath("none.png");
    QTest::ignoreMessage(QtWarningMsg, qPrintable("[TypeGraphicWidget] picture not found: " + missing));
    QVERIFY(!p.row->setPicture(missing));
    QVERIFY(!p.row->hasPicture());
    QVERIFY(p.row->shownPixmap().isNull());
    QCOMPARE(p.row->pictureArea()->property("graphicState").toString(), QStringLiteral("missing"));

    // A file that is not a picture is missing too.
    QFile junk(dir.filePath("junk.png"));
    QVERIFY(junk.open(QIODevice::WriteOnly));
    junk.write("not a picture");
    junk.close();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("picture not found: .*junk.png"));
    p.row->setLabelValue(junk.fileName(), 0);
    QVERIFY(!p.row->hasPicture());

    QTest::ignoreMessage(QtWarningMsg, "[TypeGraphicWidget] null picture");
    p.row->setPixmap(QPixmap());
    QTest::ignoreMessage(QtWarningMsg, "[TypeGraphicWidget] invalid picture height: 0");
    p.row->setPictureHeight(0);
    QTest::ignoreMessage(QtWarningMsg, "[TypeGraphicWidget] invalid picture height: -5");
    p.row->setPictureHeight(-5);
    QCOMPARE(p.row->pictureAreaSize(), QSize(80, 45));
}

void TestLayers::previewGeometry()
{
    PreviewWidget view;
    view.setDrawViewHeight(180);
    QCOMPARE(view.size(), QSize(320, 180));
    view.setLayers(fourLayers());
    QCOMPARE(view.canvasArea(), QRectF(0, 0, 320, 180));
    // 1920 canvas units on 320 pixels: a sixth.
    QCOMPARE(view.layerArea(1), QRectF(20, 140.0 / 6, 160, 90));

    // A taller widget letterboxes the canvas, centred.
    view.setFixedSize(320, 240);
    QCOMPARE(view.canvasArea(), QRectF(0, 30, 320, 180));
    QCOMPARE(view.layerArea(0), QRectF(0, 30, 320, 180));
    // A 4:3 canvas in a wide widget is pillarboxed.
    view.setFixedSize(400, 180);
    view.setCanvasSize(QSize(1440, 1080));
    QCOMPARE(view.canvasArea(), QRectF(80, 0, 240, 180));

    QTest::ignoreMessage(QtWarningMsg, "[PreviewWidget] invalid canvas size: QSize(0, 1080)");
    view.setCanvasSize(QSize(0, 1080));
    QTest::ignoreMessage(QtWarningMsg, "[PreviewWidget] invalid view height: 0");
    view.setDrawViewHeight(0);
    QCOMPARE(view.canvasSize(), QSize(1440, 1080));
    QCOMPARE(view.size(), QSize(400, 180));
}

void TestLayers::previewOrderAndCurrent()
{
    PreviewWidget view;
    view.setLayers(fourLayers());
    QSignalSpy current(&view, &PreviewWidget::signalCurrentLayerChanged);
    view.setCurrentLayer(1);
    QCOMPARE(current.count(), 1);
    view.setCurrentLayer(1);
    QCOMPARE(current.count(), 1);

    // Camera 1 to the front: the others step back, the current one follows it.
    view.moveLayer(1, 3);
    QCOMPARE(view.layerText(3), QStringLiteral("Camera 1"));
    QCOMPARE(view.layerText(1), QStringLiteral("Camera 2"));
    QCOMPARE(view.currentLayer(), 3);
    // Moving another layer across the current one shifts it.
    view.moveLayer(0, 3);
    QCOMPARE(view.currentLayer(), 2);
    QCOMPARE(view.layerText(2), QStringLiteral("Camera 1"));
    view.moveLayer(3, 0);
    QCOMPARE(view.currentLayer(), 3);

    QTest::ignoreMessage(QtWarningMsg, "[PreviewWidget] layer index out of range: 4");
    view.moveLayer(0, 4);
    QTest::ignoreMessage(QtWarningMsg, "[PreviewWidget] layer index out of range: 7");
    view.setCurrentLayer(7);
    QTest::ignoreMessage(QtWarningMsg, "[PreviewWidget] layer index out of range: -2");
    view.setCurrentLayer(-2);
    QCOMPARE(view.currentLayer(), 3);
    view.setCurrentLayer(-1);
    QCOMPARE(view.currentLayer(), -1);

    // Fewer layers than the current index: no current layer.
    view.setCurrentLayer(3);
    view.setLayers({{"One", 0, 0, 10, 10}});
    QCOMPARE(view.currentLayer(), -1);
    view.clearLayers();
    QCOMPARE(view.layerCount(), 0);
    QTest::ignoreMessage(QtWarningMsg, "[PreviewWidget] layer index out of range: 0");
    QVERIFY(view.layerRect(0).isNull());
}

void TestLayers::previewRefusesBadRectangles()
{
    PreviewWidget view;
    QTest::ignoreMessage(QtWarningMsg, "[PreviewWidget] empty rectangle ignored at 1");
    QTest::ignoreMessage(QtWarningMsg, "[PreviewWidget] empty rectangle ignored at 2");
    view.setLayers({{"A", 0, 0, 100, 100}, {"B", 0, 0, 0, 100}, {"C", 0, 0, 100, -1}, {"D", 10, 10, 50, 50}});
    QCOMPARE(view.layerCount(), 2);
    QCOMPARE(view.layerText(1), QStringLiteral("D"));

    double const nan = std::numeric_limits<double>::quiet_NaN();
    double const inf = std::numeric_limits<double>::infinity();
    QTest::ignoreMessage(QtWarningMsg, "[PreviewWidget] rectangle is not finite");
    view.setLayerRect(0, QRectF(nan, 0, 10, 10));
    QTest::ignoreMessage(QtWarningMsg, "[PreviewWidget] rectangle is not finite");
    view.setLayerRect(0, QRectF(0, 0, inf, 10));
    QTest::ignoreMessage(QtWarningMsg, "[PreviewWidget] rectangle is empty");
    view.setLayerRect(0, QRectF(0, 0, 10, 0));
    QTest::ignoreMessage(QtWarningMsg, "[PreviewWidget] layer index out of range: 2");
    view.setLayerRect(2, QRectF(0, 0, 10, 10));
    QTest::ignoreMessage(QtWarningMsg, "[PreviewWidget] layer index out of range: -1");
    view.setLayerText(-1, QStringLiteral("x"));
    QCOMPARE(view.layerRect(0), QRectF(0, 0, 100, 100));

    // Far-away coordinates are clamped and still paint.
    view.setLayerRect(1, QRectF(-1e12, 1e12, 1e15, 5));
    QCOMPARE(view.layerRect(1), QRectF(-1e6, 1e6, 2e6, 5));
    view.resize(160, 90);
    QImage image(160, 90, QImage::Format_ARGB32);
    view.render(&image);
}

void TestLayers::previewPaintsCurrentOnTop()
{
    PreviewWidget view;
    view.setDrawViewHeight(180);
    view.setHighlightColor(QColor(255, 0, 255));
    view.setLayers(fourLayers());
    QImage image(view.size(), QImage::Format_ARGB32);

    view.render(&image);
    QRect const camera1 = view.layerArea(1).toRect();
    // Camera 1's right edge lies under Camera 2 (its bottom-right corner is covered).
    QPoint const covered(camera1.right() - 2, camera1.bottom() - 2);
    QVERIFY(image.pixelColor(covered) != QColor(255, 0, 255));

    view.setCurrentLayer(1);
    view.render(&image);
    // The highlight is drawn over the layers in front of it.
    QCOMPARE(image.pixelColor(covered), QColor(255, 0, 255));
    QCOMPARE(image.pixelColor(camera1.left() + 1, camera1.center().y()), QColor(255, 0, 255));
    // Outside the layers: the background of the crop drawing.
    view.setLayers({{"Small", 0, 0, 100, 100}});
    view.render(&image);
    QCOMPARE(image.pixelColor(300, 170), DrawGraphicsView::BackgroundColor);
}

void TestLayers::previewRowChoosesLayer()
{
    Page<TypePreviewWidget> p;
    QVERIFY(p.start());
    QStringList* log = record(p.row, &p.window);

    QTest::ignoreMessage(QtDebugMsg, "[TypePreviewWidget] no layers to choose from");
    p.row->editValue();
    QVERIFY(log->isEmpty());
    QVERIFY(p.window.hasFocus());

    p.row->preview()->setLayers(fourLayers());
    p.row->editValue();
    QCOMPARE(p.row->getLabelValue().toInt(), 0);
    QCOMPARE(p.row->property("isPreviewEditing").toBool(), true);
    Knob::turn(p.row, 2, 4.0); // one layer per detent, whatever the level
    QCOMPARE(p.row->preview()->currentLayer(), 2);
    Knob::turn(p.row, 5);
    QCOMPARE(p.row->preview()->currentLayer(), 3);
    Knob::turn(p.row, -1);
    Knob::back(p.row);
    QVERIFY(p.window.hasFocus());
    QCOMPARE(p.row->property("isPreviewEditing").toBool(), false);
    QCOMPARE(*log, (QStringList{"started", "value 1", "value 2", "value 3", "value 2", "close", "finished"}));

    p.row->setPreviewHeight(110);
    QCOMPARE(p.row->preview()->size(), QSize(160, 90));
    QTest::ignoreMessage(QtWarningMsg, "[TypePreviewWidget] invalid preview height: 20");
    p.row->setPreviewHeight(20);
    QCOMPARE(p.row->preview()->size(), QSize(160, 90));
    // The title's share is taken away in 64 bits: the lowest int is refused, not wrapped.
    QTest::ignoreMessage(QtWarningMsg, "[TypePreviewWidget] invalid preview height: -2147483648");
    p.row->setPreviewHeight(INT_MIN);
    QCOMPARE(p.row->preview()->size(), QSize(160, 90));
}

QTEST_MAIN(TestLayers)
#include "tst_layers.moc"
