// Factory test: the whole test page as one row. Press to work it: turn to choose a
// test, press to start it. Keys: press Up, Down, the knob's press and Esc. Knob: turn
// five detents each way. Colours and patterns: turn or press through the fills, then
// choose Pass or Fail and press. T-bar: move it to both ends with [ and ]. Esc on the
// list leaves the page.
#include "gallerycontext.h"
#include "itempage.h"
#include "pagerow.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QCoreApplication>
#include <QKeyEvent>

using namespace LCD::Widget;

ItemPage* buildFactoryTestPage(GalleryContext&)
{
    auto* page = new ItemPage(QObject::tr("Factory test"));
    page->addSection(QObject::tr("Factory test (press to work it, Esc on the list to leave)"));
    auto* frame = new FactoryTestFrame;
    frame->setFixedHeight(330);
    auto* row = new PageRow(frame, QObject::tr("Factory test"), page->list());
    page->addItem(row, 330);

    QObject::connect(frame, &FactoryTestFrame::signalTestFinished, page, [page](int test, int result) {
        QString const verdict = result == int(FactoryTestResult::Passed) ? QObject::tr("passed")
                              : result == int(FactoryTestResult::Failed) ? QObject::tr("failed")
                                                                          : QObject::tr("left without a verdict");
        emit page->statusMessage(QObject::tr("%1 %2").arg(factoryTestName(test), verdict));
    });
    QObject::connect(frame->leftFrame(), &FactoryTestLeftFrame::signalSummaryChanged, page,
                     [page, frame](int, int, int) { emit page->statusMessage(frame->leftFrame()->summaryText()); });

    // The picture shows two results and the knob test half done.
    page->screenshotSetup = [page, frame] {
        QCoreApplication::processEvents();
        page->activate();
        page->setCurrentIndex(0);
        frame->leftFrame()->resetResults();
        frame->leftFrame()->setResult(int(FactoryTestItem::Keys), FactoryTestResult::Passed);
        frame->leftFrame()->setResult(int(FactoryTestItem::ScreenColours), FactoryTestResult::Failed);
        frame->startTest(int(FactoryTestItem::Knob));
        for (int i = 0; i < 3; ++i) {
            QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, QStringLiteral("1"));
            QCoreApplication::sendEvent(frame->rightFrame(), &up);
        }
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QStringLiteral("2.5"));
        QCoreApplication::sendEvent(frame->rightFrame(), &down);
    };
    page->screenshotVariants.append({QStringLiteral("patterns"), [frame] {
                                         frame->rightFrame()->finishTest(FactoryTestResult::NotTested);
                                         frame->startTest(int(FactoryTestItem::ScreenPatterns));
                                         QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, QStringLiteral("1"));
                                         QCoreApplication::sendEvent(frame->rightFrame(), &up);
                                         QCoreApplication::sendEvent(frame->rightFrame(), &up);
                                     }});
    page->addStretch();
    return page;
}
