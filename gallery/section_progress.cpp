#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

void addProgressSection(ItemPage* page, GalleryContext&)
{
    page->addSection(QObject::tr("The progress bar arrives here."));
}
