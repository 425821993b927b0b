#include "pages.h"

QList<PageInfo> galleryPages()
{
    return {
        {QStringLiteral("items"), buildItemsPage},
        {QStringLiteral("display"), buildDisplayPage},
        {QStringLiteral("numbers"), buildNumbersPage},
        {QStringLiteral("dialogs"), buildDialogsPage},
    };
}
