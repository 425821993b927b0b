// Host plug-in API as seen from a plug-in library.
//
// The host hands a pointer to its API object to pluginit(); the library keeps it
// in the function-local static returned by dov::api::get().
#pragma once

#include <atomic>

namespace dov {

// The host's plug-in API. Only the object lookup (the fourth operation) is used
// by the widget library; the rest belongs to the host.
class IHostApi
{
public:
    // The host API's version.
    virtual int version() const = 0;
    // Registers `object` under `name` for other plug-ins; false when refused by the host.
    virtual bool registerObject(char const* name, void* object) = 0;
    // Removes the object registered under `name`.
    virtual void unregisterObject(char const* name) = 0;
    // Returns the host object registered under `name`, or nullptr.
    virtual void* findObject(char const* name) = 0;

protected:
    ~IHostApi() = default;
};

// The host API handle: the API pointer followed by two reserved words, all zero
// until pluginit() runs.
struct api
{
    // The host's API, null until pluginit() runs.
    IHostApi* host = nullptr;
    // Reserved by the host; zero.
    void* reserved[2] = {nullptr, nullptr};

    // Thread-safe function-local static; get() before pluginit() yields a null host.
    __attribute__((visibility("default"))) static api& get();

    // Convenience lookup: nullptr when no API was given or nothing is registered.
    static void* object(char const* name)
    {
        IHostApi* h = get().host;
        return h ? h->findObject(name) : nullptr;
    }
};

} // namespace dov
