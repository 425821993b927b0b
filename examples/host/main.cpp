// A host in a few lines: hand the library a host API, read its record, show a page.
#include "everyclass.h"

#include <lcdwidgets.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <cstdio>
#include <map>
#include <string>

namespace {

class Keyboard : public LCD::KeyboardProxy
{
public:
    std::pair<int, int> tbarRead() override { return {0, 0}; }
};

class HostApi : public dov::IHostApi
{
public:
    int version() const override { return 1; }
    bool registerObject(char const* name, void* object) override { return objects.emplace(name, object).second; }
    void unregisterObject(char const* name) override { objects.erase(name); }
    void* findObject(char const* name) override
    {
        auto it = objects.find(name);
        return it == objects.end() ? nullptr : it->second;
    }
    std::map<std::string, void*> objects;
};

struct Record
{
    char const* interfaceVersion;
    void* components;
    char const* name;
    char const* version;
    char const* description;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    // With a file name: render the page to it instead of running the event loop.
    QString const output = argc > 1 ? QFileInfo(QString::fromLocal8Bit(argv[1])).absoluteFilePath() : QString();
    static HostApi api;
    static Keyboard keyboard;
    api.registerObject(LCD::KeyboardProxy::constants::OBJ_KEYBOARD_EVENT_NAME, &keyboard);

#ifdef LCDWIDGETS_DATA_DIR
    // The default theme: its images are addressed as ./../share/themes/default/images/...,
    // so the host runs from the prefix's bin/ folder.
    QDir::setCurrent(QStringLiteral(LCDWIDGETS_DATA_DIR "/../bin"));
    QFile theme(QStringLiteral("./../share/themes/default/default.qss"));
    if (theme.open(QIODevice::ReadOnly))
        app.setStyleSheet(QString::fromUtf8(theme.readAll()) + QStringLiteral("QWidget#page { background: #101317; }"));
#endif
    pluginit(&api);
    auto const* record = static_cast<Record const*>(pluginfo());
    std::printf("%s %s\n", record->name, record->version);

    // A settings page: rows sized by the host, values set by the host.
    QWidget page;
    page.setObjectName(QStringLiteral("page"));
    auto* layout = new QVBoxLayout(&page);
    auto* format = new LCD::Widget::TypeItemText(&page);
    auto* brightness = new LCD::Widget::TypeIntAdjust(LCD::Widget::SuffixPercent, LCD::Widget::QuitKeepValue, &page, 1);
    for (LCD::Widget::CommonItemType* row : {static_cast<LCD::Widget::CommonItemType*>(format),
                                            static_cast<LCD::Widget::CommonItemType*>(brightness)}) {
        row->setItemTitleWidth(600);
        row->setItemHeight(56);
        row->setContentFontSize(20);
        layout->addWidget(row);
    }
    format->setItemTitle(QStringLiteral("Output format"));
    format->setLabelValue(QStringLiteral("1080p50"), 1);
    brightness->setRange(0, 100);
    brightness->setLabelValue(75, 0);
    brightness->setItemTitle(QStringLiteral("Brightness"));
    QObject::connect(brightness, &LCD::Widget::CommonItemType::signalValueChanged,
                     [](QVariant const& v) { std::printf("brightness %d\n", v.toInt()); });
    page.resize(600, 140);
    page.show();

    if (!output.isEmpty()) {
        // Render the page instead of running the event loop, after one knob detent.
        QApplication::setActiveWindow(&page);
        brightness->editValue(); // the row's spin box takes the knob
        QKeyEvent turn(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, QStringLiteral("1"));
        if (QWidget* editor = QApplication::focusWidget())
            QApplication::sendEvent(editor, &turn);
        bool const saved = page.grab().save(output);
        std::printf("row %s\n", saved ? "rendered" : "not rendered");
        QWidget all;
        std::printf("created %d widget classes\n", createEveryClass(&all));
        return saved ? 0 : 1;
    }
    return app.exec();
}
