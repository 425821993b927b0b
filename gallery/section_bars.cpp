#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

void addBarSection(ItemPage* page, GalleryContext&)
{
    page->addSection(QObject::tr("Bars arrive here."));
}
