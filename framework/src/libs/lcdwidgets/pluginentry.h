// Plug-in entry points resolved by the host when it loads liblcdwidgets.so.
#pragma once

#include "lcdwidgets_global.h"

extern "C" {

// Plug-in information record: five pointer-sized fields.
struct pluginfo_record
{
    char const* interfaceVersion; // "0.1"
    void* componentTable;         // &lcdwidgetsplugin_dov_componentInfoTable, never filled
    char const* name;             // "lcdwidgets"
    char const* version;          // "0.1.0"
    char const* description;      // JSON
};

// Stores the host API pointer where dov::api::get() finds it. Called once by the host.
LCDWIDGETS_EXPORT void pluginit(void* api);

// The address of the library's information record (the same on every call).
LCDWIDGETS_EXPORT void* pluginfo();

} // extern "C"
