#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

ItemPage* buildNumbersPage(GalleryContext&)
{
    auto* page = new ItemPage(QObject::tr("Numbers"));
    page->addSection(QObject::tr("Numeric rows arrive here."));
    page->addStretch();
    return page;
}
