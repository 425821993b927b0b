// Display rows: texts and values, list marks, information lines, self-check lines,
// jobs with progress and a text field. The knob walks every row; the press chooses a
// tick row, reports a value row's data, clicks a bordered row and edits the text fields.
#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QPushButton>

using namespace LCD::Widget;

namespace {

// Index of the next row in the page's knob walk.
int g_rowCount = 0;

// Values are cut against the item width: hosts give the width before the values.
template <typename Row>
Row* makeRow(ItemPage* page, Row* row)
{
    row->setItemTitleWidth(page->itemWidth());
    row->setItemHeight(ItemPage::kRowHeight);
    row->setContentFontSize(ItemPage::kFontSize);
    row->ensurePolished();
    return row;
}

void addRow(ItemPage* page, CommonItemType* row)
{
    page->addItem(row);
    ++g_rowCount;
}

// Rows whose height follows their wrapped text.
void fitRows(CommonItemType* row, int rows)
{
    row->setFixedHeight(qMax(ItemPage::kRowHeight, 18 + 28 * qMax(1, rows)));
}

void addTextRows(ItemPage* page, GalleryContext& context)
{
    page->addSection(QObject::tr("Texts and values"));

    auto* format = makeRow(page, new TypeItemText(page->list()));
    format->setItemTitle(QStringLiteral("Output format"));
    format->setLabelValue(QStringLiteral("1080p59.94"), 0);
    addRow(page, format);

    auto* address = makeRow(page, new TypeItemText(page->list()));
    address->setItemTitle(QStringLiteral("Control address"));
    address->setIconButtonProperty("isIconNetwork", true);
    address->setIconButtonHide(false);
    address->setLabelValue(QStringLiteral("192.168.10.42"), 1);
    addRow(page, address);

    auto* source = makeRow(page, new TypeItemText(page->list()));
    source->setItemTitle(QStringLiteral("Program source"));
    source->setLabelValue(QStringLiteral("Camera 3 - Main stage wide shot, left balcony, 4K downscaled to 1080p"), 0);
    addRow(page, source);

    auto* ticker = makeRow(page, new TypeItemText(page->list()));
    ticker->setItemTitle(QStringLiteral("Lower third"));
    ticker->setRollValue(QStringLiteral("Breaking: the keynote starts in five minutes in hall B - please take your seats"));
    addRow(page, ticker);

    auto* emphasis = makeRow(page, new TypeItemText(page->list()));
    emphasis->setItemTitle(QStringLiteral("Tally"));
    emphasis->setLabelStyle();
    emphasis->setLabelValue(QStringLiteral("On air"), 1);
    addRow(page, emphasis);

    auto* centre = makeRow(page, new TypeItemTextCenter(page->list()));
    centre->setItemTitle(QStringLiteral("Frame rate"));
    centre->setLabelValue(QStringLiteral("59.94 fps"), 1);
    addRow(page, centre);

    auto* still = makeRow(page, new TypeItemValue(page->list(), 300));
    still->setItemTitle(QStringLiteral("Still 4"));
    still->setItemData(4);
    still->setLabelValue(QStringLiteral("Sponsor loop - autumn campaign, version 3 (final)"), 0);
    still->setRightImageHidden(context.imageDir + QStringLiteral("icon_pgm_mark.png"), false);
    addRow(page, still);

    auto* border = makeRow(page, new TypeItemValueBorder(page->list()));
    border->setItemTitle(QStringLiteral("Audio follows video"));
    border->setLabelValue(QStringLiteral("All inputs"), 1);
    addRow(page, border);
    QObject::connect(border, &TypeItemValueBorder::signalClicked, page,
                     [page] { emit page->statusMessage(QObject::tr("Audio follows video: clicked")); });
}

void addListRows(ItemPage* page, GalleryContext&)
{
    page->addSection(QObject::tr("Choices and sub-pages"));

    QList<TypeItemTick*> ticks;
    for (QString const& name : {QStringLiteral("Mix"), QStringLiteral("Wipe"), QStringLiteral("Dip to colour")}) {
        auto* tick = makeRow(page, new TypeItemTick(page->list()));
        tick->setItemTitle(name);
        addRow(page, tick);
        ticks << tick;
    }
    ticks.first()->setTickLabelHidden(false);
    for (TypeItemTick* tick : ticks)
        QObject::connect(tick, &CommonItemType::signalValueChanged, page, [tick, ticks] {
            for (TypeItemTick* other : ticks)
                if (other != tick)
                    other->setTickLabelHidden(true);
        });

    auto* arrow = makeRow(page, new TypeItemArrow(page->list()));
    arrow->setItemTitle(QStringLiteral("Transition"));
    arrow->setTagLabelText(QStringLiteral("NEW"));
    arrow->setLabelText(0, QStringLiteral("Wipe"));
    arrow->setLabelText(1, QStringLiteral("1.0 s"));
    addRow(page, arrow);

    auto* loading = makeRow(page, new TypeItemMore(page->list()));
    loading->setItemTitle(QStringLiteral("Media pool 1"));
    loading->setLabelValue(QStringLiteral("opening_titles.png"), 0);
    loading->setArea(true, false);
    loading->setLoadingState(TypeItemMore::Loading);
    addRow(page, loading);

    auto* failed = makeRow(page, new TypeItemMore(page->list()));
    failed->setItemTitle(QStringLiteral("Media pool 2"));
    failed->setLabelValue(QStringLiteral("logo_bug.png"), 0);
    failed->setArea(false, true);
    failed->setLoadingState(TypeItemMore::LoadFailed);
    addRow(page, failed);

    auto* main = makeRow(page, new TypeMainButton(page->list()));
    main->setLeftIconButtonHide(false);
    main->setLeftIconButtonProperty("isIconSystem", true);
    main->setLeftIconSize(QSize(32, 32));
    main->setRightIconButtonProperty("isIconArrow", true);
    main->setRightIconButtonHide(false);
    main->setRightIconSize(QSize(24, 24));
    main->setItemTitle(QStringLiteral("System settings"));
    addRow(page, main);
}

void addInformationRows(ItemPage* page, GalleryContext&)
{
    page->addSection(QObject::tr("Information"));

    auto* heading = makeRow(page, new TypeItemNull(page->list()));
    heading->setItemTitle(QStringLiteral("About this device"));
    heading->setItemData(QStringLiteral("about"));
    addRow(page, heading);

    auto* serial = makeRow(page, new TypeKeyValueText(page->list()));
    serial->setKeyValueText(QStringLiteral("Serial number"), QStringLiteral("2301-7788-0042"));
    addRow(page, serial);
    fitRows(serial, serial->getWidgetRow());

    auto* licence = makeRow(page, new TypeKeyValueText(page->list()));
    licence->setKeyValueText(QStringLiteral("Licences"),
                             QStringLiteral("Streaming encoder, multiview with sixteen windows, chroma keyer "
                                            "pro, macro recorder, remote control over the network"));
    addRow(page, licence);
    fitRows(licence, licence->getWidgetRow());

    auto* outputs = makeRow(page, new TypeItemLineWrap(page->list(), 2));
    outputs->setItemTitle(QStringLiteral("Outputs"));
    outputs->setLabelText(0, QStringLiteral("SDI 1-2: program, clean feed"));
    outputs->setLabelText(1, QStringLiteral("HDMI 1: multiview with audio meters and tally borders"));
    addRow(page, outputs);
    outputs->setItemTitleText(outputs->itemTitle());
    outputs->setFixedHeight(outputs->getItemHeight());

    auto* tip = makeRow(page, new TypeItemTip(page->list()));
    tip->setLabelValue(QStringLiteral("Changes to the output format restart the video engine: the program "
                                      "output is black for about two seconds."),
                       0);
    addRow(page, tip);
    fitRows(tip, tip->getWidgetRow());
}

void addCheckRows(ItemPage* page, GalleryContext&)
{
    page->addSection(QObject::tr("Self-check"));

    struct Line
    {
        char const* a;
        char const* b;
        char const* c;
    };
    for (Line const& line : {Line{"Fan 1", "3120 rpm", "Normal"}, Line{"Power supply B", "11.7 V", "Low"}}) {
        auto* multi = makeRow(page, new TypeMultItemText(page->list()));
        multi->setItemTitleLabelHide(true);
        multi->setLabelText(0, QString::fromUtf8(line.a));
        multi->setLabelText(1, QString::fromUtf8(line.b));
        multi->setLabelText(2, QString::fromUtf8(line.c));
        multi->setLabelWidth(page->itemWidth() - 40);
        addRow(page, multi);
    }

    auto* pass = makeRow(page, new TypeKeyCheck(page->list()));
    pass->setItemTitle(QStringLiteral("Genlock"));
    pass->setLabelText(0, QStringLiteral("Locked, tri-level"));
    pass->setLabelText(1, QStringLiteral("Pass"));
    pass->setLabelProperty(1, QStringLiteral("pass"));
    addRow(page, pass);

    auto* fail = makeRow(page, new TypeKeyCheck(page->list()));
    fail->setItemTitle(QStringLiteral("Reference input"));
    fail->setLabelText(0, QStringLiteral("No signal"));
    fail->setLabelText(1, QStringLiteral("Fail"));
    fail->setLabelProperty(1, QStringLiteral("fail"));
    addRow(page, fail);
}

int addJobRows(ItemPage* page, GalleryContext& context)
{
    page->addSection(QObject::tr("Jobs and text fields"));

    auto* export_ = makeRow(page, new TypeItemButtom(page->list()));
    export_->setItemTitle(QStringLiteral("Export recording"));
    export_->setLabelIcon(context.imageDir + QStringLiteral("icon_display.png"));
    export_->setIconVisible(true);
    export_->setLabelValue(QStringLiteral("USB drive"), 0);
    export_->setProgressBarRange(0, 100);
    export_->setProgressBarValue(42);
    addRow(page, export_);

    auto* download = makeRow(page, new TypeItemButtom(page->list()));
    download->setItemTitle(QStringLiteral("Firmware download"));
    download->setLabelValue(QStringLiteral("Connecting..."), 1);
    download->setProgressBarRange(0, 0);
    addRow(page, download);

    auto* name = makeRow(page, new TypeItemEdit(page->list()));
    name->setItemTitle(QStringLiteral("Device name"));
    name->setPlaceholderText(QStringLiteral("Name"));
    name->setLabelValue(QStringLiteral("Studio B switcher"), 0);
    addRow(page, name);
    int const editRow = g_rowCount - 1;

    auto* password = makeRow(page, new TypeItemEdit(page->list()));
    password->setItemTitle(QStringLiteral("Stream key"));
    password->setPasswordMode(true);
    password->setLabelValue(QStringLiteral("live_8f3a-22c1-9d0e"), 0);
    addRow(page, password);

    for (TypeItemEdit* edit : {name, password})
        QObject::connect(edit, &TypeItemEdit::signalEditBtnClicked, page, [page, edit] {
            emit page->statusMessage(QObject::tr("%1: keyboard requested").arg(edit->itemTitle()));
        });

    page->screenshotSetup = [page, name, editRow] {
        // Show the field with its focus frame, as while typing.
        page->setCurrentIndex(editRow);
        name->editValue();
    };
    return editRow;
}

} // namespace

ItemPage* buildDisplayPage(GalleryContext& context)
{
    auto* page = new ItemPage(QObject::tr("Display"));
    g_rowCount = 0;
    addTextRows(page, context);
    addListRows(page, context);
    addInformationRows(page, context);
    addCheckRows(page, context);
    addJobRows(page, context);
    addBarSection(page, context);
    page->addStretch();
    return page;
}
