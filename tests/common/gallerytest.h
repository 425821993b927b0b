// The gallery as the tests work it: its host, the context the pages use and the
// window with every page; pages found by their id; modal dialogs the user cannot
// close ended by force.
#pragma once

#include "gallerycontext.h"
#include "galleryhost.h"
#include "gallerywindow.h"
#include "itempage.h"

#include <waitingdialog.h>

#include <QDialog>
#include <QtTest>

struct Gallery
{
    GalleryHostApi host;
    GalleryContext context;
    GalleryWindow window;

    // `homeRect`: the pages get the window's rectangle as their home frame (the
    // dialogs size themselves from it); otherwise none.
    explicit Gallery(bool homeRect = true) : context(makeContext(&host, homeRect)), window(context, QStringLiteral("lcdwidgets 0.1.0")) {}

    // Shows the window; false when it is never exposed.
    bool show()
    {
        window.show();
        return QTest::qWaitForWindowExposed(&window);
    }

    // Position of the page `id`; -1 when there is none.
    int pageIndex(QString const& id) const
    {
        for (int p = 0; p < window.pageCount(); ++p)
            if (window.pageId(p) == id)
                return p;
        return -1;
    }

    // Shows the page `id` (activated when `activate`); null when there is none.
    ItemPage* openPage(QString const& id, bool activate = true)
    {
        int const index = pageIndex(id);
        if (index < 0)
            return nullptr;
        window.showPage(index);
        ItemPage* page = window.page(index);
        if (activate)
            page->activate();
        return page;
    }

private:
    static GalleryContext makeContext(GalleryHostApi* host, bool homeRect)
    {
        GalleryContext context;
        context.host = host;
        if (homeRect)
            context.homeRect = QRect(0, 0, GalleryWindow::kWidth, GalleryWindow::kHeight);
        return context;
    }
};

// Ends a modal widget that Escape left open (progress, waiting, block): the waiting
// panel is hidden, a dialog ends with -1, anything else is hidden.
inline void forceClose(QWidget* modal)
{
    if (auto* waiting = qobject_cast<LCD::Widget::WaitingDialog*>(modal))
        waiting->hideWaitingDialog();
    else if (auto* dialog = qobject_cast<QDialog*>(modal))
        dialog->done(-1);
    else
        modal->hide();
}
