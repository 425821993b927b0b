// Instruments: four dials in one row and the crop drawing. On the dial row the press
// starts choosing (Up/Down pick a dial), a second press gives the knob to the dial
// (Down raises, Up lowers, PageUp/PageDown turn fast), Escape hands it back and a
// second Escape leaves the row. The crop rectangle is moved and sized with the four
// rows under the drawing; it never leaves the picture.
#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QCoreApplication>
#include <memory>

using namespace LCD::Widget;

namespace {

constexpr int kPictureWidth = 1920;
constexpr int kPictureHeight = 1080;
constexpr int kMinimumCrop = 64;

DashBoardData dial(int min, int max, double startAngle, double endAngle, int major, int minor, double step,
                   int fraction, QString const& unit, QString const& text)
{
    DashBoardData data;
    data.min = min;
    data.max = max;
    data.startAngle = startAngle;
    data.endAngle = endAngle;
    data.scaleMajor = major;
    data.scaleMinor = minor;
    data.step = step;
    data.fraction = fraction;
    data.unit = unit;
    data.text = text;
    return data;
}

TypeItemDashBoard* addDials(ItemPage* page)
{
    page->addSection(QObject::tr("Dials (press, Up/Down choose, press again to turn, Esc)"));
    auto* row = new TypeItemDashBoard(page->list());
    row->setItemTitle(QObject::tr("Dials"));
    QMap<int, DashBoardData> dials;
    dials.insert(0, dial(-60, 12, -50, 230, 6, 4, 1.0, 0, QStringLiteral("dB"), QObject::tr("Audio level")));
    dials.insert(1, dial(0, 100, -50, 230, 10, 5, 1.0, 0, QStringLiteral("%"), QObject::tr("T-bar")));
    dials.insert(2, dial(20, 80, -30, 210, 6, 5, 0.5, 1, QStringLiteral("°C"), QObject::tr("Temperature")));
    dials.insert(3, dial(0, 5000, 0, 180, 5, 4, 50.0, 0, QStringLiteral("rpm"), QObject::tr("Fan")));
    row->setListItems(dials);
    row->setItemSize(QSize(168, 168));

    // Scale and pointer colours tell the dials apart; the arc shows the knob's state.
    struct Colours
    {
        QColor scale, pointer;
    };
    Colours const colours[] = {{QColor(4, 168, 173), QColor(4, 181, 200)},
                               {QColor(120, 190, 80), QColor(150, 220, 100)},
                               {QColor(230, 160, 40), QColor(255, 190, 70)},
                               {QColor(190, 120, 220), QColor(215, 150, 240)}};
    for (int key = 0; key < 4; ++key) {
        DashBoardWidget* d = row->dashBoard(key);
        d->setScaleColor(colours[key].scale);
        d->setPointerColor(colours[key].pointer);
    }
    row->setCurrentValue(0, -18);
    row->setCurrentValue(1, 65);
    row->setCurrentValue(2, 42.5);
    row->setCurrentValue(3, 2400);

    page->addItem(row, 212);
    QObject::connect(row, &TypeItemDashBoard::signalDashBoardValueChanged, page, [page, row](int key, QVariant v) {
        DashBoardWidget* d = row->dashBoard(key);
        emit page->statusMessage(QObject::tr("%1 = %2 %3").arg(d->text(), v.toString(), d->unit()));
    });
    return row;
}

// The crop drawing and its four rows: each row's range follows the others so that
// the knob stops at the picture's edges.
struct CropEditor
{
    TypeDrawCropWidget* drawing = nullptr;
    TypeIntAdjust* left = nullptr;
    TypeIntAdjust* top = nullptr;
    TypeIntAdjust* width = nullptr;
    TypeIntAdjust* height = nullptr;
    ItemDataInfo picture{"", 0, 0, kPictureWidth, kPictureHeight};

    ItemDataInfo crop() const
    {
        ItemDataInfo c{"", left->getLabelValue().toInt(), top->getLabelValue().toInt(),
                       width->getLabelValue().toInt(), height->getLabelValue().toInt()};
        return cropRectInside(c, picture, kMinimumCrop);
    }

    void apply(ItemDataInfo const& c)
    {
        left->setRangeMax(picture.width - c.width);
        top->setRangeMax(picture.height - c.height);
        width->setRangeMax(picture.width - c.x);
        height->setRangeMax(picture.height - c.y);
        left->setLabelValue(c.x);
        top->setLabelValue(c.y);
        width->setLabelValue(c.width);
        height->setLabelValue(c.height);
        drawing->setCropRectInfo({{false, picture}, {true, c}});
    }
};

TypeIntAdjust* cropRow(ItemPage* page, QString const& title, int minimum, int maximum)
{
    auto* row = new TypeIntAdjust(SuffixNone, QuitKeepValue, page->list(), 1);
    row->setRange(minimum, maximum);
    row->setSingleStep(8);
    row->setItemTitle(title);
    page->addItem(row);
    return row;
}

void addCrop(ItemPage* page)
{
    page->addSection(QObject::tr("Layout template"));
    auto* layout = new TypeDrawCropWidget(page->list());
    layout->setItemTitle(QObject::tr("Layout template"));
    layout->setItemInfo({{"PGM", 0, 0, kPictureWidth, kPictureHeight},
                         {"PiP 1", 1200, 90, 640, 360},
                         {"PiP 2", 1200, 630, 640, 360},
                         {"Logo", 80, 60, 320, 180}});
    page->addItem(layout, 140);
    layout->setCropViewHeight(140);

    page->addSection(QObject::tr("Crop (press the drawing, then turn the rows below)"));
    auto editor = std::make_shared<CropEditor>();
    editor->drawing = new TypeDrawCropWidget(page->list());
    editor->drawing->setItemTitle(QObject::tr("Crop drawing"));
    page->addItem(editor->drawing, 200);
    editor->drawing->setCropViewHeight(200);
    int const drawingIndex = page->count() - 1;

    editor->left = cropRow(page, QObject::tr("Crop left"), 0, kPictureWidth - kMinimumCrop);
    editor->top = cropRow(page, QObject::tr("Crop top"), 0, kPictureHeight - kMinimumCrop);
    editor->width = cropRow(page, QObject::tr("Crop width"), kMinimumCrop, kPictureWidth);
    editor->height = cropRow(page, QObject::tr("Crop height"), kMinimumCrop, kPictureHeight);
    editor->apply({"", 240, 160, 1280, 720});

    for (TypeIntAdjust* row : {editor->left, editor->top, editor->width, editor->height}) {
        QObject::connect(row, &CommonItemType::signalValueChanged, page, [page, editor](QVariant const&) {
            ItemDataInfo const c = editor->crop();
            editor->apply(c);
            emit page->statusMessage(
                QObject::tr("Crop %1, %2  %3 x %4").arg(c.x).arg(c.y).arg(c.width).arg(c.height));
        });
    }
    QObject::connect(editor->drawing, &TypeDrawCropWidget::signalClicked, page, [page, drawingIndex] {
        page->setCurrentIndex(drawingIndex + 1);
        emit page->statusMessage(QObject::tr("Crop: turn the rows below"));
    });
}

} // namespace

ItemPage* buildInstrumentsPage(GalleryContext&)
{
    auto* page = new ItemPage(QObject::tr("Instruments"));
    TypeItemDashBoard* dials = addDials(page);
    addCrop(page);
    page->addStretch();

    // The picture shows a dial being turned: the T-bar dial has the knob.
    page->screenshotSetup = [page, dials] {
        QCoreApplication::processEvents();
        page->activate();
        page->setCurrentIndex(0);
        dials->editValue();
        dials->setCurrentSelected(dials->dashBoard(1));
        dials->dashBoard(1)->setFocus(Qt::OtherFocusReason);
    };
    return page;
}
