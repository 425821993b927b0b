#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QHBoxLayout>

using namespace LCD::Widget;

namespace {

// A progress bar as a progress dialog shows it, indented like the rows' titles.
ProgressBarCtr* addBar(ItemPage* page, GalleryContext& context, QString const& info)
{
    auto* holder = new QWidget;
    auto* layout = new QHBoxLayout(holder);
    layout->setContentsMargins(16, 6, 16, 10);
    auto* bar = new ProgressBarCtr(context.homeRect, holder);
    bar->setProgressText(info);
    layout->addWidget(bar);
    layout->addStretch();
    page->addWidget(holder);
    return bar;
}

} // namespace

void addProgressSection(ItemPage* page, GalleryContext& context)
{
    page->addSection(QObject::tr("Progress bars"));

    // Second of three files, half way through it.
    ProgressBarCtr* running = addBar(page, context, QObject::tr("Copying media (3 files)"));
    running->setCount(3);
    running->setCurrentValue(150);

    ProgressBarCtr* done = addBar(page, context, QObject::tr("Firmware upgrade"));
    done->setCurrentValue(100);

    ProgressBarCtr* failed = addBar(page, context, QObject::tr("Exporting logs"));
    failed->setCurrentValue(35);
    failed->setError();

    ProgressBarCtr* waiting = addBar(page, context, QObject::tr("Restarting the switcher"));
    waiting->setInfo(QObject::tr("Waiting"));
}
