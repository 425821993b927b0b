#include "pluginentry.h"

#include <dov/api.h>

extern "C" {

// Components are not registered through the table: it stays zero.
void* lcdwidgetsplugin_dov_componentInfoTable = nullptr;

static pluginfo_record pluginfo_pinfo = {
    "0.1",
    &lcdwidgetsplugin_dov_componentInfoTable,
    "lcdwidgets",
    "0.1.0",
    "{\"desc\":\"lcdwidgets info!\",\"end\":0 }",
};

void pluginit(void* api)
{
    dov::api::get().host = static_cast<dov::IHostApi*>(api);
}

void* pluginfo()
{
    return &pluginfo_pinfo;
}

} // extern "C"

namespace dov {

api& api::get()
{
    static api handle;
    return handle;
}

} // namespace dov
