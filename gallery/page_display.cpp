#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

ItemPage* buildDisplayPage(GalleryContext& context)
{
    auto* page = new ItemPage(QObject::tr("Display"));
    page->addSection(QObject::tr("Display items arrive here."));
    addBarSection(page, context);
    page->addStretch();
    return page;
}
