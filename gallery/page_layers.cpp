// Layers: the 16:9 preview of four layer windows, the layer rows that move a layer in
// the z-order, the current layer's position, tally/source tags and pictures.
// Preview: press, turn to choose the current layer, Esc. Layer row: press, turn to move
// the layer forward (Up) or back (Down), press again for its settings, Esc. The X row
// moves the current layer across the picture: the preview follows live.
#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QCoreApplication>
#include <memory>
#include <vector>

using namespace LCD::Widget;

namespace {

struct LayersModel
{
    TypePreviewWidget* preview = nullptr;
    std::vector<TypeZOrderItemMore*> rows; // one per layer, in the order of their names
    TypeIntAdjust* x = nullptr;

    PreviewWidget* view() const { return preview->preview(); }
    int layerOf(TypeZOrderItemMore* row) const { return row->zOrder() - 1; }

    // Every row shows its layer's place in the preview's drawing order.
    void syncRows()
    {
        for (TypeZOrderItemMore* row : rows)
            for (int i = 0; i < view()->layerCount(); ++i)
                if (view()->layerText(i) == row->itemTitle()) {
                    row->blockSignals(true);
                    row->setZOrder(i + 1);
                    row->blockSignals(false);
                }
    }
    void syncX()
    {
        int const current = view()->currentLayer();
        if (current < 0)
            return;
        x->blockSignals(true);
        x->setLabelValue(int(view()->layerRect(current).x()), 0);
        x->blockSignals(false);
    }
};

} // namespace

ItemPage* buildLayersPage(GalleryContext& context)
{
    auto* page = new ItemPage(QObject::tr("Layers"));
    auto model = std::make_shared<LayersModel>();

    page->addSection(QObject::tr("Layer preview (press, turn to choose the current layer)"));
    model->preview = new TypePreviewWidget(page->list());
    page->addItem(model->preview, 200);
    model->preview->setPreviewHeight(200);
    model->view()->setLayers({{"Background", 0, 0, 1920, 1080},
                              {"Camera 1", 120, 140, 960, 540},
                              {"Camera 2", 840, 420, 960, 540},
                              {"Logo", 1580, 60, 280, 160}});
    model->view()->setCurrentLayer(1);

    page->addSection(QObject::tr("Layers (press, turn to move, press again for settings)"));
    for (int i = model->view()->layerCount() - 1; i >= 0; --i) {
        auto* row = new TypeZOrderItemMore(page->list());
        row->setItemTitle(model->view()->layerText(i));
        row->setLayerCount(model->view()->layerCount());
        row->setZOrder(i + 1);
        page->addItem(row);
        model->rows.push_back(row);
        QObject::connect(row, &TypeZOrderItemMore::signalEditStarted, page, [model, row] {
            model->view()->setCurrentLayer(model->layerOf(row));
            model->syncX();
        });
        QObject::connect(row, &TypeZOrderItemMore::signalZOrderChanged, page, [model, page, row](int from, int to) {
            model->view()->moveLayer(from - 1, to - 1);
            model->syncRows();
            emit page->statusMessage(QObject::tr("%1: layer %2 of %3")
                                         .arg(row->itemTitle())
                                         .arg(to)
                                         .arg(row->layerCount()));
        });
        QObject::connect(row, &TypeZOrderItemMore::signalSettingsRequested, page, [page, row] {
            emit page->statusMessage(QObject::tr("Settings of %1").arg(row->itemTitle()));
        });
    }

    model->x = new TypeIntAdjust(SuffixNone, QuitKeepValue, page->list(), 1);
    model->x->setItemTitle(QObject::tr("Current layer X"));
    model->x->setRange(-960, 1920);
    model->x->setSingleStep(20);
    page->addItem(model->x);
    model->syncX();
    QObject::connect(model->x, &CommonItemType::signalValueChanged, page, [model](QVariant const& v) {
        int const current = model->view()->currentLayer();
        if (current < 0)
            return;
        QRectF r = model->view()->layerRect(current);
        r.moveLeft(v.toInt());
        model->view()->setLayerRect(current, r);
    });
    QObject::connect(model->preview, &TypePreviewWidget::signalCurrentLayerChanged, page, [model, page](int index) {
        model->syncX();
        emit page->statusMessage(QObject::tr("Current layer: %1").arg(model->view()->layerText(index)));
    });

    page->addSection(QObject::tr("Tags"));
    struct TagRow
    {
        char const* title;
        char const* tag;
        TypeFrameTag::Kind kind;
    };
    for (TagRow const& t : {TagRow{"Camera 1", "PGM", TypeFrameTag::Program},
                            TagRow{"Camera 2", "PVW", TypeFrameTag::Preview},
                            TagRow{"Media player", "MP1", TypeFrameTag::Source}}) {
        auto* row = new TypeFrameTag(page->list());
        row->setItemTitle(QObject::tr(t.title));
        page->addItem(row);
        row->setTag(QString::fromLatin1(t.tag), t.kind);
    }
    auto* custom = new TypeFrameTag(page->list());
    custom->setItemTitle(QObject::tr("Replay"));
    page->addItem(custom);
    custom->setTagColor(QColor(80, 160, 255));
    custom->setTagText(QStringLiteral("REPLAY"));

    page->addSection(QObject::tr("Pictures"));
    auto* picture = new TypeGraphicWidget(page->list());
    picture->setItemTitle(QObject::tr("Wipe preview"));
    page->addItem(picture, 72);
    picture->setPictureHeight(60);
    picture->setPicture(context.imageDir + QStringLiteral("effect_wipe_right.png"));
    auto* missing = new TypeGraphicWidget(page->list());
    missing->setItemTitle(QObject::tr("Missing picture"));
    page->addItem(missing, 72);
    missing->setPictureHeight(60);
    {
        // The gallery shows the refusal on purpose; keep its warning out of the log.
        QtMessageHandler const previous = qInstallMessageHandler([](QtMsgType, QMessageLogContext const&, QString const&) {});
        missing->setPicture(context.imageDir + QStringLiteral("no_such_picture.png"));
        qInstallMessageHandler(previous);
    }

    page->screenshotSetup = [page, model] {
        QCoreApplication::processEvents();
        page->activate();
        page->setCurrentIndex(0);
    };
    page->addStretch();
    return page;
}
