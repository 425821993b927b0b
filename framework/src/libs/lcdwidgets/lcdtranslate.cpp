#include "lcdtranslate.h"

#include <lcdfwtranslatemanager.h>
#include <selvik/trans/translate.h>

namespace LCD {
namespace Widget {

QString lcdTranslate(QString const& source)
{
    static QString const context = QStringLiteral("LCD::MenuWidgets");
    static QString const group = QStringLiteral("Global");
    return selvik::trans::translate(LCDFWTranslateManager::instance()->translator(), context, group, source);
}

} // namespace Widget
} // namespace LCD
