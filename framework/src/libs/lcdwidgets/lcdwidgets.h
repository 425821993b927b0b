// Umbrella header: every public header of liblcdwidgets.
#pragma once

#include "lcdwidgets_global.h"

// Host interfaces
#include <dov/api.h>
#include <lcd/ihomeframe.h>
#include <lcd/keyboardproxy.h>

#include "pluginentry.h"
#include "lcdconstants.h"
#include "lcdenums.h"
#include "lcdtranslate.h"
#include "knoblevel.h"
#include "stylehelper.h"

#include "rolllabel.h"
#include "ellipsislabel.h"
#include "commonitemtype.h"

// Display items and bars
// (one line per header, kept in the order the classes build on each other)

// Value editors
