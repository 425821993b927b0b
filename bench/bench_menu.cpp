// A menu choice end to end: a TypeDialogMenu of 200 entries is opened (the knob's
// press on its row), turned 50 detents and committed with Return, which closes it and
// hands the knob back to the page. The same keys go to a bare QListWidget of the same
// 200 entries in a QDialog of the same size, shown and activated the same way and
// accepted on Return, in the same run. The ratio of the two times is printed.
//
// Each turn goes towards the middle of the list (Down from the first half, Up from the
// second), so that both sides walk 50 rows every time and never stick at an end.
#include "benchratio.h"

#include <lcdwidgets.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QListWidget>
#include <QVBoxLayout>
#include <cstdio>
#include <string>

using namespace LCD::Widget;

namespace {

constexpr int kEntries = 200;
constexpr int kDetents = 50;
constexpr int kStart = 75;
// The menu's size over an 800 x 480 home frame.
QSize const kMenuSize(550, 432);

class HomeFrame : public LCD::MainWidgets::IHomeFrame
{
public:
    QSize size() const override { return QSize(800, 480); }
};

struct Panel
{
    QWidget window;
    HomeFrame frame;
    TypeDialogMenu* row = nullptr;
    QDialog bareDialog;
    QListWidget* bareList = nullptr;

    Panel()
    {
        window.setGeometry(0, 0, 800, 480);
        window.setFocusPolicy(Qt::StrongFocus);
        auto* layout = new QVBoxLayout(&window);
        row = new TypeDialogMenu(&window, &frame);
        row->setItemTitleWidth(768);
        row->setItemHeight(56);
        row->setContentFontSize(20);
        row->setItemTitle(QStringLiteral("Source"));
        row->setDialogTitle(QStringLiteral("Source"));
        for (int i = 0; i < kEntries; ++i)
            row->addItem(QStringLiteral("Input %1").arg(i + 1), i);
        row->setCurrentIndex(kStart);
        layout->addWidget(row);

        bareDialog.setModal(true);
        bareDialog.setFixedSize(kMenuSize);
        auto* bareLayout = new QVBoxLayout(&bareDialog);
        bareList = new QListWidget(&bareDialog);
        for (int i = 0; i < kEntries; ++i) {
            auto* item = new QListWidgetItem(QStringLiteral("Input %1").arg(i + 1), bareList);
            item->setData(Qt::UserRole, i);
            item->setTextAlignment(Qt::AlignCenter);
        }
        bareList->setCurrentRow(kStart);
        bareLayout->addWidget(bareList);
        QObject::connect(bareList, &QListWidget::itemActivated, &bareDialog, &QDialog::accept);

        window.show();
        QApplication::setActiveWindow(&window);
        window.setFocus();
        QApplication::processEvents();
    }

    void backToPage()
    {
        if (QApplication::activeWindow() != &window)
            QApplication::setActiveWindow(&window);
        window.setFocus();
    }
};

Panel* panel = nullptr;

void key(QWidget* target, int code)
{
    QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, QStringLiteral("1"));
    QApplication::sendEvent(target, &press);
    QKeyEvent release(QEvent::KeyRelease, code, Qt::NoModifier, QStringLiteral("1"));
    QApplication::sendEvent(target, &release);
}

void turnAndCommit(QWidget* target, bool down)
{
    for (int i = 0; i < kDetents; ++i)
        key(target, down ? Qt::Key_Down : Qt::Key_Up);
    key(target, Qt::Key_Return);
}

void BM_QListWidgetDialog(benchmark::State& state)
{
    for (auto _ : state) {
        bool const down = panel->bareList->currentRow() < kEntries / 2;
        panel->bareDialog.show();
        QApplication::setActiveWindow(&panel->bareDialog);
        panel->bareList->setFocus(Qt::OtherFocusReason);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        turnAndCommit(panel->bareList, down);
        if (panel->bareDialog.isVisible())
            state.SkipWithError("the bare dialog did not close");
        panel->backToPage();
    }
    state.counters["row"] = panel->bareList->currentRow();
}

void BM_TypeDialogMenu(benchmark::State& state)
{
    for (auto _ : state) {
        bool const down = panel->row->currentIndex() < kEntries / 2;
        panel->row->editValue();
        QWidget* list = QApplication::focusWidget();
        if (!list || !panel->row->menuDialog()->isVisible()) {
            state.SkipWithError("the menu did not open");
            break;
        }
        turnAndCommit(list, down);
        if (panel->row->menuDialog()->isVisible())
            state.SkipWithError("the menu did not close");
        panel->backToPage();
    }
    state.counters["row"] = panel->row->currentIndex();
}

constexpr int kRounds = 3;

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "default.debug=false");
    QApplication app(argc, argv);
    Panel thePanel;
    panel = &thePanel;

    for (int round = 1; round <= kRounds; ++round) {
        benchmark::RegisterBenchmark(("BM_QListWidgetDialog/round" + std::to_string(round)).c_str(),
                                     BM_QListWidgetDialog)
            ->MinTime(0.5);
        benchmark::RegisterBenchmark(("BM_TypeDialogMenu/round" + std::to_string(round)).c_str(), BM_TypeDialogMenu)
            ->MinTime(0.5);
    }
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    double const bare = reporter.best("BM_QListWidgetDialog");
    double const menu = reporter.best("BM_TypeDialogMenu");
    if (bare > 0.0 && menu > 0.0) {
        std::printf("\nopen a menu of %d entries, %d detents, commit (best of %d rounds):\n", kEntries, kDetents,
                    kRounds);
        std::printf("  QListWidget in a QDialog  %9.0f us\n  TypeDialogMenu            %9.0f us\n", bare / 1000.0,
                    menu / 1000.0);
        std::printf("ratio TypeDialogMenu / QListWidget dialog = %.2f (aim: at most 1.5)\n", menu / bare);
    }
    benchmark::Shutdown();
    return 0;
}
