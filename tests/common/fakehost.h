// A host API for tests: an object registry and a keyboard proxy whose T-bar the test
// moves. The host API is process-wide: a HostScope puts its own in place for one test
// and takes it away again.
#pragma once

#include <dov/api.h>
#include <lcd/keyboardproxy.h>

#include <map>
#include <string>
#include <utility>

class FakeProxy : public LCD::KeyboardProxy
{
public:
    std::pair<int, int> tbarRead() override
    {
        ++reads;
        return {-7, position};
    }
    int position = 0;
    int reads = 0;
};

class FakeHost : public dov::IHostApi
{
public:
    int version() const override { return 1; }
    bool registerObject(char const* name, void* object) override
    {
        objects[name] = object;
        return true;
    }
    void unregisterObject(char const* name) override { objects.erase(name); }
    void* findObject(char const* name) override
    {
        auto it = objects.find(name);
        return it == objects.end() ? nullptr : it->second;
    }
    std::map<std::string, void*> objects;
};

struct HostScope
{
    FakeHost host;
    FakeProxy proxy;
    // withProxy: the proxy is registered under its name; position: the T-bar's start.
    explicit HostScope(bool withProxy, int position = 0)
    {
        proxy.position = position;
        if (withProxy)
            host.registerObject(LCD::KeyboardProxy::constants::OBJ_KEYBOARD_EVENT_NAME, &proxy);
        dov::api::get().host = &host;
    }
    ~HostScope() { dov::api::get().host = nullptr; }
};
