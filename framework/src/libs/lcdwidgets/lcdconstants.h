// Protocol item keys naming the host's setting pages and items.
#pragma once

#include <QString>

namespace LCD {
namespace ProtocolImpl {
namespace constants {

// The home menu's advanced settings page.
static const QString ItemKey_HM_ADVANCED = QStringLiteral("hm.advanced");
// The home menu's communication page.
static const QString ItemKey_HM_COMM = QStringLiteral("hm.comm");
// The home menu's preset page.
static const QString ItemKey_HM_PRESET = QStringLiteral("hm.preset");
// The USB player page.
static const QString ItemKey_EM_USBPLAYER = QStringLiteral("em.usbplayer");
// The work-mode page of the advanced settings.
static const QString ItemKey_NM_ADVANCED_WORKMODE = QStringLiteral("nm.advanced.workmode");
// The device work-mode choice of the work-mode page.
static const QString ItemKey_NM_ADVANCED_DEVICEWORKMODE = QStringLiteral("nm.advanced.workmode.deviceworkmode");
// An item of the device work-mode choice.
static const QString ItemKey_NM_ADVANCED_DEVICEWORKMODEITEM = QStringLiteral("nm.advanced.workmode.deviceworkmodeitem");
// The name says NM, the value is a home-menu key: both are what the host expects.
static const QString ItemKey_NM_LANGUAGE = QStringLiteral("hm.language");

} // namespace constants
} // namespace ProtocolImpl
} // namespace LCD
