// Numbers: the numeric rows worked with the knob. Press to edit, turn slowly with
// Up/Down (one single step), fast with PageUp/PageDown (a share of the range),
// leave with Escape (the value stays) or Enter.
#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QCoreApplication>
#include <QStringList>
#include <memory>

using namespace LCD::Widget;

namespace {

TypeIntAdjust* intRow(ItemPage* page, QString const& title, SuffixType suffix, int variant, int minimum, int maximum,
                      int step, int value)
{
    auto* row = new TypeIntAdjust(suffix, QuitKeepValue, page->list(), variant);
    row->setRange(minimum, maximum);
    row->setSingleStep(step);
    row->setLabelValue(value);
    row->setItemTitle(title);
    page->addItem(row);
    return row;
}

TypeFloatAdjust* floatRow(ItemPage* page, QString const& title, SuffixType suffix, int variant, float minimum,
                          float maximum, int decimals, float step, double value)
{
    auto* row = new TypeFloatAdjust(suffix, QuitKeepValue, page->list(), variant);
    row->setDecimals(decimals);
    row->setRange(minimum, maximum);
    row->setSingleStep(step);
    row->setLabelValue(value);
    row->setItemTitle(title);
    page->addItem(row);
    return row;
}

// The step-control row has no value of its own: the page plays the host, answering
// each step with the next text.
void addTransitionRow(ItemPage* page)
{
    auto* row = new TypeSpinAdjust(page->list());
    row->setItemTitleWidth(page->itemWidth());
    row->setItemHeight(ItemPage::kRowHeight);
    row->setContentFontSize(ItemPage::kFontSize);
    row->setFixedHeight(ItemPage::kRowHeight);
    row->getWidgetRow();

    static QStringList const kinds = {QObject::tr("Mix"), QObject::tr("Wipe"), QObject::tr("Dip"), QObject::tr("Push")};
    auto kind = std::make_shared<int>(1);
    auto tenths = std::make_shared<int>(10);
    auto showDuration = [row, tenths] {
        row->setRightSpinContent(QStringLiteral("%1 s").arg(*tenths / 10.0, 0, 'f', 1));
    };
    row->setLeftSpinContent(kinds.at(*kind));
    showDuration();
    QObject::connect(row, &TypeSpinAdjust::signalLeftSpinValueChanged, row, [row, kind](bool up) {
        *kind = (*kind + (up ? 1 : kinds.size() - 1)) % kinds.size();
        row->setLeftSpinContent(kinds.at(*kind));
    });
    QObject::connect(row, &TypeSpinAdjust::signalRightSpinValueChanged, row, [tenths, showDuration](bool up) {
        *tenths = qBound(1, *tenths + (up ? 1 : -1), 100);
        showDuration();
    });
    QObject::connect(row, &CommonItemType::signalCloseEditStatus, page,
                     [page] { page->list()->setFocus(Qt::OtherFocusReason); });
    page->addWidget(row, true, [row] { row->setFocus(Qt::OtherFocusReason); });
}

} // namespace

ItemPage* buildNumbersPage(GalleryContext& context)
{
    auto* page = new ItemPage(QObject::tr("Numbers"));

    page->addSection(QObject::tr("Whole numbers"));
    intRow(page, QObject::tr("Brightness"), SuffixPercent, 1, 0, 100, 1, 75);
    TypeIntAdjust* rotation = intRow(page, QObject::tr("Rotation"), SuffixDegree, 1, -180, 180, 1, -45);
    intRow(page, QObject::tr("Still duration"), SuffixSecond, 3, 1, 600, 1, 10);
    intRow(page, QObject::tr("Audio delay, ms (steps of 10)"), SuffixNone, 2, -500, 500, 10, 40);
    TypeIntAdjust* locked = intRow(page, QObject::tr("Genlock phase (locked)"), SuffixDegree, 1, 0, 359, 1, 90);
    locked->setContentEnabled(false);
    TypeIntAdjust* automatic = intRow(page, QObject::tr("Frame delay"), SuffixNone, 1, 0, 10, 1, 0);
    automatic->setLabelText(QObject::tr("Auto"));
    automatic->setSpinBoxShow(false);

    page->addSection(QObject::tr("Decimals"));
    floatRow(page, QObject::tr("Key gain"), SuffixNone, 0, 0.0f, 10.0f, 1, 0.1f, 2.5);
    floatRow(page, QObject::tr("Fade time"), SuffixSecond, 0, 0.0f, 10.0f, 1, 0.1f, 1.5);
    floatRow(page, QObject::tr("Gamma"), SuffixNone, 14, -2.0f, 4.0f, 2, 0.05f, 2.2);

    page->addSection(QObject::tr("With a slider"));
    auto* volume = new TypeIntAdjustSlider(SuffixPercent, QuitKeepValue, Qt::Horizontal, page->list(), 5);
    volume->setRange(0, 100);
    volume->setLabelValue(60);
    volume->setItemTitle(QObject::tr("Volume"));
    page->addItem(volume);
    auto* pan = new TypeIntAdjustSlider(SuffixNone, QuitKeepValue, Qt::Horizontal, page->list(), 5);
    pan->setRange(-50, 50);
    pan->setLabelValue(-20);
    pan->setItemTitle(QObject::tr("Pan"));
    page->addItem(pan);

    page->addSection(QObject::tr("Two values (press for the second one)"));
    auto* aspect = new TypeDualInt(page->list());
    aspect->editor()->setSeparator(QStringLiteral(":"));
    aspect->setRange(1, 99);
    aspect->setLabelValue(QVariant(QSize(16, 9)));
    aspect->setItemTitle(QObject::tr("Aspect ratio"));
    page->addItem(aspect);
    auto* grid = new TypeDualInt(page->list());
    grid->setRange(1, 4);
    grid->setLabelValue(QStringLiteral("3x3"));
    grid->setItemTitle(QObject::tr("Multiview grid"));
    page->addItem(grid);

    page->addSection(QObject::tr("Step controls (Up/Down choose, press to work, Esc)"));
    addTransitionRow(page);

    // The picture shows an edit in progress: the rotation box with its focus frame,
    // the digits of a negative value selected.
    page->screenshotSetup = [page, rotation] {
        // Let edits left open on other pages wind up first (they end on a queued call
        // and hand the focus back to their own page).
        QCoreApplication::processEvents();
        page->activate();
        page->setCurrentIndex(1);
        rotation->editValue();
    };

    addProgressSection(page, context);
    page->addStretch();
    return page;
}
