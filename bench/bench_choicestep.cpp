// One knob detent through a row of choices: a Key_Down/Key_Up press sent to the
// focused child of a MultiBtnControl (six buttons) and of an EffectPictureWidget
// (twelve effects; each step starts the focused effect's preview), against a bare
// row of six QPushButtons whose event filter moves the focus the same way.
#include "benchpanel.h"

#include <lcdwidgets.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>
#include <cstdio>

using namespace LCD::Widget;

namespace {

constexpr int kButtons = 6;

// The plain way: buttons in a list, an event filter that focuses the neighbour.
class BareRow : public QWidget
{
public:
    QList<QPushButton*> buttons;
    explicit BareRow(QWidget* parent) : QWidget(parent)
    {
        auto* layout = new QHBoxLayout(this);
        for (int i = 0; i < kButtons; ++i) {
            auto* b = new QPushButton(QStringLiteral("Choice %1").arg(i), this);
            b->setCheckable(true);
            b->installEventFilter(this);
            layout->addWidget(b);
            buttons << b;
        }
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        int const i = buttons.indexOf(static_cast<QPushButton*>(watched));
        int const key = static_cast<QKeyEvent*>(event)->key();
        int const j = key == Qt::Key_Up ? i - 1 : i + 1;
        if (j >= 0 && j < buttons.size())
            buttons.at(j)->setFocus(Qt::OtherFocusReason);
        return true;
    }
};

QString imageDir()
{
    // Run from the build tree (bin/../share) or from a build folder inside the sources.
    for (QString const& dir : {QStringLiteral("/../share/themes/default/images/"),
                               QStringLiteral("/../../share/themes/default/images/")}) {
        QString const path = QCoreApplication::applicationDirPath() + dir;
        if (QFile::exists(path + QStringLiteral("effect_mix.gif")))
            return QDir::cleanPath(path) + QLatin1Char('/');
    }
    return QString();
}

struct Panel
{
    QWidget window;
    BareRow* bare = nullptr;
    MultiBtnControl* buttons = nullptr;
    EffectPictureWidget* effects = nullptr;
    EffectPictureWidget* stillEffects = nullptr;

    Panel()
    {
        auto* layout = new QVBoxLayout(&window);
        bare = new BareRow(&window);
        buttons = new MultiBtnControl(&window);
        for (int i = 0; i < kButtons; ++i)
            buttons->addBtnData(QStringLiteral("Choice %1").arg(i), i);
        buttons->setContentFontSize(20);
        buttons->setCurrentIndex(2);

        QString const dir = imageDir();
        QStringList const names = {"mix", "dip", "wipe_left", "wipe_right", "wipe_up", "wipe_down",
                                   "box", "circle", "diamond", "split", "push", "clock"};
        QMap<int, QPair<QString, QString>> moving;
        QMap<int, QPair<QString, QString>> still;
        for (int i = 0; i < names.size(); ++i) {
            moving.insert(i, qMakePair(names.at(i), dir + QStringLiteral("effect_%1.gif").arg(names.at(i))));
            still.insert(i, qMakePair(names.at(i), dir + QStringLiteral("effect_mix.gif")));
        }
        effects = new EffectPictureWidget;
        effects->setParent(&window);
        effects->setPictureData(QString(), moving.value(0).second, moving);
        effects->setCurrentValue(5);
        stillEffects = new EffectPictureWidget;
        stillEffects->setParent(&window);
        stillEffects->setPictureData(QString(), still.value(0).second, still);
        stillEffects->setCurrentValue(5);

        layout->addWidget(bare);
        layout->addWidget(buttons);
        layout->addWidget(effects);
        layout->addWidget(stillEffects);
        Bench::showActive(window);
    }
};

Panel* panel = nullptr;

void runDetents(benchmark::State& state, QWidget* focusFirst)
{
    focusFirst->setFocus(Qt::TabFocusReason);
    Bench::runDetents(state);
}

void BM_BareButtons(benchmark::State& state) { runDetents(state, panel->bare->buttons.at(2)); }
void BM_MultiBtnControl(benchmark::State& state) { runDetents(state, panel->buttons); }
void BM_EffectPicture(benchmark::State& state) { runDetents(state, panel->effects); }
void BM_EffectPictureSamePreview(benchmark::State& state) { runDetents(state, panel->stillEffects); }

} // namespace

BENCHMARK(BM_BareButtons)->MinTime(0.5);
BENCHMARK(BM_MultiBtnControl)->MinTime(0.5);
BENCHMARK(BM_EffectPicture)->MinTime(0.5);
BENCHMARK(BM_EffectPictureSamePreview)->MinTime(0.5);

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "default.debug=false");
    QApplication app(argc, argv);
    if (imageDir().isEmpty())
        std::fprintf(stderr, "theme images not found: the effect previews are missing\n");
    Panel thePanel;
    panel = &thePanel;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
