#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

ItemPage* buildNumbersPage(GalleryContext& context)
{
    auto* page = new ItemPage(QObject::tr("Numbers"));
    page->addSection(QObject::tr("Numeric rows arrive here."));
    addProgressSection(page, context);
    page->addStretch();
    return page;
}
