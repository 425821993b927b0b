#include "pages.h"

QList<PageInfo> galleryPages()
{
    return {
        {QStringLiteral("items"), buildItemsPage},
        {QStringLiteral("display"), buildDisplayPage},
        {QStringLiteral("numbers"), buildNumbersPage},
        {QStringLiteral("lists"), buildListsPage},
        // Instruments
        {QStringLiteral("instruments"), buildInstrumentsPage},
        // Device pages
        {QStringLiteral("network"), buildNetworkPage},
        {QStringLiteral("switchers"), buildSwitchersPage},
        {QStringLiteral("tbar"), buildTBarPage},
        {QStringLiteral("choices"), buildChoicesPage},
        {QStringLiteral("dialogs"), buildDialogsPage},
        {QStringLiteral("system"), buildSystemPage},
    };
}
