// The gallery's pages, one builder per page file.
#pragma once

#include <QList>
#include <QString>
#include <functional>

class ItemPage;
struct GalleryContext;

struct PageInfo
{
    QString id;    // file-name part of the page's screenshot
    std::function<ItemPage*(GalleryContext&)> build;
};

// Every page, in the order the gallery shows them.
QList<PageInfo> galleryPages();

ItemPage* buildItemsPage(GalleryContext& context);
ItemPage* buildDisplayPage(GalleryContext& context);
ItemPage* buildNumbersPage(GalleryContext& context);
ItemPage* buildEditorsPage(GalleryContext& context); // line edits, multi-value, colour and progress rows
ItemPage* buildListsPage(GalleryContext& context);
// Instruments: dials and the crop drawing
ItemPage* buildInstrumentsPage(GalleryContext& context);
// Device pages
ItemPage* buildNetworkPage(GalleryContext& context);
ItemPage* buildSwitchersPage(GalleryContext& context);
ItemPage* buildTBarPage(GalleryContext& context);
ItemPage* buildLayersPage(GalleryContext& context);      // layer rows, preview, tags, pictures
ItemPage* buildFactoryTestPage(GalleryContext& context); // the factory test page
ItemPage* buildChoicesPage(GalleryContext& context); // switches, button rows, effect chooser
ItemPage* buildDialogsPage(GalleryContext& context); // dialogs (page_dialogs.cpp)
ItemPage* buildPicturesPage(GalleryContext& context); // picture checks, paired choices, scrolling lists
ItemPage* buildSystemPage(GalleryContext& context);  // text view, multi-progress, panel lock, about page

// Sections that other pages include.
void addBarSection(ItemPage* page, GalleryContext& context);      // bottom and reset/apply bars (Display page)
void addProgressSection(ItemPage* page, GalleryContext& context); // progress bar (Numbers page)
