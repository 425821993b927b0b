#include "pages.h"

QList<PageInfo> galleryPages()
{
    return {
        {QStringLiteral("items"), buildItemsPage},
        {QStringLiteral("display"), buildDisplayPage},
        {QStringLiteral("numbers"), buildNumbersPage},
        {QStringLiteral("editors"), buildEditorsPage},
        {QStringLiteral("lists"), buildListsPage},
        // Instruments
        {QStringLiteral("instruments"), buildInstrumentsPage},
        // Device pages
        {QStringLiteral("network"), buildNetworkPage},
        {QStringLiteral("switchers"), buildSwitchersPage},
        {QStringLiteral("tbar"), buildTBarPage},
        {QStringLiteral("layers"), buildLayersPage},
        {QStringLiteral("factorytest"), buildFactoryTestPage},
        {QStringLiteral("choices"), buildChoicesPage},
        {QStringLiteral("pictures"), buildPicturesPage},
        {QStringLiteral("dialogs"), buildDialogsPage},
        {QStringLiteral("system"), buildSystemPage},
    };
}
