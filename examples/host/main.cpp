// A host in a few lines: hand the library a host API, read its record, show a row.
#include <lcdwidgets.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
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

// A host-side row: a title and a value text.
class ValueRow : public LCD::Widget::CommonItemType
{
public:
    ValueRow(QString const& title, QString const& value)
    {
        setRightIconButtonHide(true);
        m_value = new QLabel(value, dynamicFrame());
        dynamicLayout()->addStretch();
        dynamicLayout()->addWidget(m_value);
        setItemTitleWidth(600);
        setItemTitle(title);
    }
    void setContentDisabled(bool disabled) const override { m_value->setDisabled(disabled); }

private:
    QLabel* m_value;
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
    static HostApi api;
    static Keyboard keyboard;
    api.registerObject(LCD::KeyboardProxy::constants::OBJ_KEYBOARD_EVENT_NAME, &keyboard);

    pluginit(&api);
    auto const* record = static_cast<Record const*>(pluginfo());
    std::printf("%s %s\n", record->name, record->version);

    ValueRow row(QStringLiteral("Output format"), QStringLiteral("1080p50"));
    row.resize(600, 56);
    row.show();
    if (argc > 1) {
        // Render the row instead of running the event loop.
        bool const saved = row.grab().save(QString::fromLocal8Bit(argv[1]));
        std::printf("row %s\n", saved ? "rendered" : "not rendered");
        return saved ? 0 : 1;
    }
    return app.exec();
}
