// Protocol item keys naming the host's setting pages and items.
#pragma once

#include <QString>

namespace LCD {
namespace ProtocolImpl {
namespace constants {

static const QString ItemKey_HM_ADVANCED = QStringLiteral("hm.advanced");
static const QString ItemKey_HM_COMM = QStringLiteral("hm.comm");
static const QString ItemKey_HM_PRESET = QStringLiteral("hm.preset");
static const QString ItemKey_EM_USBPLAYER = QStringLiteral("em.usbplayer");
static const QString ItemKey_NM_ADVANCED_WORKMODE = QStringLiteral("nm.advanced.workmode");
static const QString ItemKey_NM_ADVANCED_DEVICEWORKMODE = QStringLiteral("nm.advanced.workmode.deviceworkmode");
static const QString ItemKey_NM_ADVANCED_DEVICEWORKMODEITEM = QStringLiteral("nm.advanced.workmode.deviceworkmodeitem");
// The name says NM, the value is a home-menu key: both are what the host expects.
static const QString ItemKey_NM_LANGUAGE = QStringLiteral("hm.language");

} // namespace constants
} // namespace ProtocolImpl
} // namespace LCD
