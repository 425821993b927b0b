// Texts named by a translation key ("NumberPadOk", "TBarCorrectOperStart", ...):
// the host's catalogue gives the words; without a catalogue entry the English text
// stands in, never the bare key. Not installed, not exported.
#pragma once

#include "lcdtranslate.h"

#include <QString>

namespace LCD {
namespace Widget {

inline QString keyedText(QString const& key, QString const& english)
{
    QString const t = lcdTranslate(key);
    return t == key ? english : t;
}

} // namespace Widget
} // namespace LCD
