// The gallery's side of the plug-in contract: a host API with an object registry
// and a keyboard proxy whose T-bar the user moves from the keyboard.
#pragma once

#include <dov/api.h>
#include <lcd/keyboardproxy.h>

#include <QLibrary>
#include <QString>
#include <map>
#include <string>

class GalleryKeyboardProxy : public LCD::KeyboardProxy
{
public:
    std::pair<int, int> tbarRead() override { return {0, m_position}; }
    int position() const { return m_position; }
    // Moves the T-bar by `delta`, kept within 0..1000.
    void move(int delta);

private:
    int m_position = 0;
};

class GalleryHostApi : public dov::IHostApi
{
public:
    GalleryHostApi();
    virtual ~GalleryHostApi() = default;

    int version() const override { return 1; }
    bool registerObject(char const* name, void* object) override;
    void unregisterObject(char const* name) override;
    void* findObject(char const* name) override;

    GalleryKeyboardProxy& keyboard() { return m_keyboard; }

private:
    std::map<std::string, void*> m_objects;
    GalleryKeyboardProxy m_keyboard;
};

// Loads liblcdwidgets the way the device's host does and runs its entry points.
class PluginLoader
{
public:
    // Looks for the library next to the executable's ../lib first.
    bool load(dov::IHostApi* api);
    QString errorString() const { return m_error; }
    QString name() const { return m_name; }
    QString version() const { return m_version; }
    QString interfaceVersion() const { return m_interface; }
    QString description() const { return m_description; }

private:
    QLibrary m_library;
    QString m_error, m_name, m_version, m_interface, m_description;
};
