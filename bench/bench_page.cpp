// A setting page as the host builds it each time the user enters a menu: 40 mixed
// rows (text, numeric adjust, tip, arrow) are built, shown, laid out and deleted
// under the default theme. The same page is built from a bare-Qt composite of the
// same visible structure (a frame with an icon area and a hidden button, a title
// label, a value frame holding a label or a spin box, a right button and a 3 px
// under-line), in the same run. It prints both times, the ratio, and the heap each
// shown page keeps (mallinfo2).
#include "benchratio.h"

#include <lcdwidgets.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <cstdio>
#include <functional>
#include <malloc.h>
#include <memory>
#include <string>

using namespace LCD::Widget;

namespace {

constexpr int kRows = 40;
constexpr int kRowHeight = 56;
constexpr int kItemWidth = 768;
constexpr int kFontSize = 20;

QString title(int i) { return QStringLiteral("Setting number %1").arg(i + 1); }

// --- Our rows, set up the way the host's page does it -----------------------

CommonItemType* libraryRow(int i, QWidget* parent)
{
    CommonItemType* row = nullptr;
    switch (i % 4) {
    case 0: {
        auto* text = new TypeItemText(parent);
        text->setLabelValue(QStringLiteral("On"), 0);
        row = text;
        break;
    }
    case 1: {
        auto* number = new TypeIntAdjust(SuffixPercent, QuitKeepValue, parent, 1);
        number->setRange(0, 100);
        number->setLabelValue(50, 0);
        row = number;
        break;
    }
    case 2: {
        auto* tip = new TypeItemTip(parent);
        tip->setLabelValue(QStringLiteral("Applies after a restart"), 0);
        row = tip;
        break;
    }
    default: {
        auto* arrow = new TypeItemArrow(parent);
        arrow->setLabelValue(QStringLiteral("1080p50"), 0);
        row = arrow;
        break;
    }
    }
    // As the gallery's page (the reference host) does it: the title first, then the
    // page's sizes, then the title laid out again once the theme has sized the
    // value widgets.
    row->setItemTitle(title(i));
    row->setItemTitleWidth(kItemWidth);
    row->setItemHeight(kRowHeight);
    row->setContentFontSize(kFontSize);
    row->setFixedHeight(kRowHeight);
    row->ensurePolished();
    row->setItemTitleText(row->itemTitle());
    // The title's rule leaves out the right icon and the row's spacing: where the whole
    // row would be wider than the page, the title gets less.
    if (int const over = row->sizeHint().width() - kItemWidth; over > 0) {
        row->setItemTitleWidth(kItemWidth - over);
        row->setItemTitleText(row->itemTitle());
    }
    return row;
}

// --- The bare composite: the same visible structure in plain Qt -------------

// `themedIcons`: the row's buttons also carry the theme's icons, as the library's
// rows do (the edit mark of a numeric row, the tip mark, the arrow). Qt reads an
// icon's file header each time it computes a style rule with `image: url(...)` (a
// few times per polish), which costs system calls that instruction counts miss.
QWidget* bareRow(int i, QWidget* parent, bool themedIcons = false)
{
    auto* row = new QFrame(parent);
    row->setFixedHeight(kRowHeight);
    auto* column = new QVBoxLayout(row);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* line = new QHBoxLayout;
    line->setContentsMargins(8, 0, 8, 0);
    line->setSpacing(4);

    auto* iconArea = new QWidget(row);
    auto* iconLayout = new QVBoxLayout(iconArea);
    iconLayout->setContentsMargins(0, 0, 0, 0);
    auto* icon = new QPushButton(iconArea);
    icon->hide();
    iconLayout->addWidget(icon);
    iconArea->hide();
    line->addWidget(iconArea);

    auto* name = new QLabel(title(i), row);
    name->setProperty("itemTitleLabel", true);
    QFont f = name->font();
    f.setPixelSize(kFontSize);
    name->setFont(f);
    line->addWidget(name, 1);

    auto* value = new QFrame(row);
    auto* valueLayout = new QHBoxLayout(value);
    valueLayout->setContentsMargins(0, 0, 0, 0);
    if (i % 4 == 1) {
        auto* spin = new QSpinBox(value);
        spin->setRange(0, 100);
        spin->setValue(50);
        spin->setSuffix(QStringLiteral("%"));
        spin->setButtonSymbols(QAbstractSpinBox::NoButtons);
        valueLayout->addWidget(spin);
    } else {
        static char const* const texts[] = {"On", "", "Applies after a restart", "1080p50"};
        auto* label = new QLabel(QString::fromLatin1(texts[i % 4]), value);
        label->setProperty("isValueText", true);
        label->setFont(f);
        valueLayout->addWidget(label);
    }
    line->addWidget(value);

    auto* right = new QPushButton(row);
    if (i % 4 == 0 || i % 4 == 2)
        right->hide();
    line->addWidget(right);
    if (themedIcons) {
        if (i % 4 == 1) {
            right->setObjectName(QStringLiteral("itemRightIconButton"));
            right->setProperty("isIconListEdit", true);
        } else if (i % 4 == 3) {
            right->setProperty("isIconListArrow", true);
        } else if (i % 4 == 2) {
            auto* mark = new QPushButton(value);
            mark->setProperty("isTipItemIcon", true);
            mark->setFixedSize(24, 24);
            valueLayout->insertWidget(0, mark);
        }
    }

    column->addLayout(line);
    auto* underLine = new QLabel(row);
    underLine->setFixedHeight(3);
    column->addWidget(underLine);
    return row;
}

// --- A page: built, shown and laid out, then deleted -------------------------

struct Measure
{
    double heapBytes = 0; // kept by the last shown page
};

Measure libraryMeasure;
Measure bareMeasure;
Measure bareIconsMeasure;

size_t heapInUse()
{
    struct mallinfo2 const info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void runPages(benchmark::State& state, std::function<QWidget*(int, QWidget*)> const& makeRow, Measure& measure)
{
    for (auto _ : state) {
        size_t const before = heapInUse();
        auto page = std::make_unique<QWidget>();
        page->setGeometry(0, 0, 800, kRows * kRowHeight);
        auto* layout = new QVBoxLayout(page.get());
        layout->setContentsMargins(16, 0, 16, 0);
        layout->setSpacing(0);
        for (int i = 0; i < kRows; ++i)
            layout->addWidget(makeRow(i, page.get()));
        page->show();
        QApplication::processEvents();
        measure.heapBytes = double(heapInUse() - before);
        page.reset();
        QApplication::processEvents();
    }
    state.counters["heapKiB"] = measure.heapBytes / 1024.0;
}

void BM_BarePage(benchmark::State& state)
{
    runPages(state, [](int i, QWidget* parent) { return bareRow(i, parent); }, bareMeasure);
}

void BM_BareIconsPage(benchmark::State& state)
{
    runPages(state, [](int i, QWidget* parent) { return bareRow(i, parent, true); }, bareIconsMeasure);
}

void BM_LibraryPage(benchmark::State& state)
{
    runPages(state, [](int i, QWidget* parent) -> QWidget* { return libraryRow(i, parent); }, libraryMeasure);
}

constexpr int kRounds = 5; // the best of five: a shared machine is noisy

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "default.debug=false");
    QApplication app(argc, argv);
    // The theme's images are addressed from the host's working directory (bin/).
    QDir::setCurrent(QCoreApplication::applicationDirPath());
    QFile theme(QStringLiteral("./../share/themes/default/default.qss"));
    if (!theme.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "bench_page: no theme at %s\n", qPrintable(QDir::current().absoluteFilePath(theme.fileName())));
        return 1;
    }
    app.setStyleSheet(QString::fromUtf8(theme.readAll()));

    // --profile=library|bare: just build pages in a loop, for a profiler.
    for (int i = 1; i < argc; ++i) {
        QString const arg = QString::fromLocal8Bit(argv[i]);
        if (!arg.startsWith(QStringLiteral("--profile=")))
            continue;
        bool const bare = arg.endsWith(QStringLiteral("bare")) || arg.endsWith(QStringLiteral("bare-icons"));
        bool const icons = arg.endsWith(QStringLiteral("bare-icons"));
        int const pages = qEnvironmentVariableIntValue("BENCH_PAGES") > 0 ? qEnvironmentVariableIntValue("BENCH_PAGES") : 10;
        for (int n = 0; n < pages; ++n) {
            auto page = std::make_unique<QWidget>();
            auto* layout = new QVBoxLayout(page.get());
            for (int r = 0; r < kRows; ++r)
                layout->addWidget(bare ? bareRow(r, page.get(), icons) : libraryRow(r, page.get()));
            page->show();
            QApplication::processEvents();
        }
        return 0;
    }

    for (int round = 1; round <= kRounds; ++round) {
        benchmark::RegisterBenchmark(("BM_BarePage/round" + std::to_string(round)).c_str(), BM_BarePage)->MinTime(1.0);
        benchmark::RegisterBenchmark(("BM_LibraryPage/round" + std::to_string(round)).c_str(), BM_LibraryPage)
            ->MinTime(1.0);
        benchmark::RegisterBenchmark(("BM_BareIconsPage/round" + std::to_string(round)).c_str(), BM_BareIconsPage)
            ->MinTime(1.0);
    }
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    double const bare = reporter.best("BM_BarePage");
    double const library = reporter.best("BM_LibraryPage");
    if (bare > 0.0 && library > 0.0) {
        std::printf("\na page of %d rows built, shown, laid out and deleted (best of %d rounds):\n", kRows, kRounds);
        std::printf("  bare Qt composite  %8.2f ms   heap kept while shown %7.1f KiB\n", bare / 1e6,
                    bareMeasure.heapBytes / 1024.0);
        std::printf("  library rows       %8.2f ms   heap kept while shown %7.1f KiB\n", library / 1e6,
                    libraryMeasure.heapBytes / 1024.0);
        std::printf("ratio time %.2f (aim: at most 1.3), heap %.2f (aim: at most 1.25)\n", library / bare,
                    libraryMeasure.heapBytes / bareMeasure.heapBytes);
        double const bareIcons = reporter.best("BM_BareIconsPage");
        if (bareIcons > 0.0)
            std::printf("(for reference: the bare composite with the rows' themed icons %.2f ms, ratio %.2f)\n",
                        bareIcons / 1e6, library / bareIcons);
    }
    benchmark::Shutdown();
    return 0;
}
