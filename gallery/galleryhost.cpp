#include "galleryhost.h"

#include <QCoreApplication>
#include <QDir>

void GalleryKeyboardProxy::move(int delta)
{
    m_position = qBound(0, m_position + delta, 1000);
}

GalleryHostApi::GalleryHostApi()
{
    registerObject(LCD::KeyboardProxy::constants::OBJ_KEYBOARD_EVENT_NAME, &m_keyboard);
}

bool GalleryHostApi::registerObject(char const* name, void* object)
{
    if (!name || !object)
        return false;
    m_objects[name] = object;
    return true;
}

void GalleryHostApi::unregisterObject(char const* name)
{
    if (name)
        m_objects.erase(name);
}

void* GalleryHostApi::findObject(char const* name)
{
    if (!name)
        return nullptr;
    auto it = m_objects.find(name);
    return it == m_objects.end() ? nullptr : it->second;
}

namespace {
// Layout of the library's information record.
struct PluginInfo
{
    char const* interfaceVersion;
    void* componentTable;
    char const* name;
    char const* version;
    char const* description;
};
using PluginInit = void (*)(void*);
using PluginInfoFn = void* (*)();
} // namespace

bool PluginLoader::load(dov::IHostApi* api)
{
    QString const local = QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../lib/liblcdwidgets.so"));
    m_library.setFileName(QFile::exists(local) ? local : QStringLiteral("lcdwidgets"));
    if (!m_library.load()) {
        m_error = m_library.errorString();
        return false;
    }
    auto init = reinterpret_cast<PluginInit>(m_library.resolve("pluginit"));
    auto info = reinterpret_cast<PluginInfoFn>(m_library.resolve("pluginfo"));
    if (!init || !info) {
        m_error = QStringLiteral("entry points pluginit/pluginfo not found");
        return false;
    }
    init(api);
    auto const* record = static_cast<PluginInfo const*>(info());
    m_interface = QString::fromUtf8(record->interfaceVersion);
    m_name = QString::fromUtf8(record->name);
    m_version = QString::fromUtf8(record->version);
    m_description = QString::fromUtf8(record->description);
    return true;
}
