// Working the gallery's rows again and again adds no widgets: a popup, menu or dialog
// that a row builds for an edit is deleted after it, or kept and used again; it never
// piles up for as long as the page lives (the per-function leak check cannot see
// that: the page deletes its children at the end).
#include "gallerytest.h"
#include "knob.h"
#include "leakcheck.h"

#include <commonitemtype.h>
#include <waitingdialog.h>

#include <QDialog>
#include <QPointer>
#include <QtTest>

class TestGalleryGrowth : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void editsLeaveNoWidgetsBehind();
};

namespace {

void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

// Every row of every page: made current, pressed, turned both ways, left.
void workEveryRow(GalleryWindow& window)
{
    for (int p = 0; p < window.pageCount(); ++p) {
        window.showPage(p);
        ItemPage* page = window.page(p);
        for (int i = 0; i < page->count(); ++i) {
            page->setCurrentIndex(i);
            LCD::Widget::CommonItemType* item = page->itemAt(i);
            if (item && !item->getContentEnabled())
                continue;
            if (item)
                page->list()->setFocus();
            QWidget* focus = QApplication::focusWidget() ? QApplication::focusWidget() : page->list();
            Knob::press(focus);
            Knob::turn(QApplication::focusWidget() ? QApplication::focusWidget() : page->list(), 1);
            Knob::turn(QApplication::focusWidget() ? QApplication::focusWidget() : page->list(), -1, 0.05);
            Knob::back(QApplication::focusWidget() ? QApplication::focusWidget() : page->list());
            settle();
            window.closeOtherWindows();
            window.activateWindow();
            page->list()->setFocus();
        }
    }
    settle();
}

QMap<QString, int> census()
{
    QMap<QString, int> count;
    for (QWidget* w : QApplication::allWidgets())
        ++count[QString::fromLatin1(w->metaObject()->className())];
    return count;
}

} // namespace

void TestGalleryGrowth::editsLeaveNoWidgetsBehind()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    Gallery gallery;
    GalleryWindow& window = gallery.window;
    QVERIFY(gallery.show());

    // Modal dialogs opened by a press are worked shut: Escape, or by force for the
    // ones the user cannot close.
    QTimer closer;
    int modals = 0;
    QObject::connect(&closer, &QTimer::timeout, [&modals] {
        QPointer<QWidget> modal = QApplication::activeModalWidget();
        if (!modal || !modal->isVisible())
            return;
        ++modals;
        Knob::back(modal);
        if (modal && modal->isVisible())
            forceClose(modal);
    });
    closer.start(5);

    // The first round builds what is built once and kept; self-closing notices go by
    // themselves before each count.
    auto quietCensus = [] {
        QTest::qWait(2600);
        settle();
        return census();
    };
    workEveryRow(window);
    QMap<QString, int> const first = quietCensus();
    QVERIFY2(modals >= 15, qPrintable(QString::number(modals))); // the dialogs page, the menus
    workEveryRow(window);
    QMap<QString, int> const second = quietCensus();
    closer.stop();

    QStringList grown;
    for (auto it = second.cbegin(); it != second.cend(); ++it)
        if (it.value() > first.value(it.key()))
            grown << QStringLiteral("%1 %2 -> %3").arg(it.key()).arg(first.value(it.key())).arg(it.value());
    QVERIFY2(grown.isEmpty(), qPrintable(grown.join(QStringLiteral(", "))));
    window.closeOtherWindows();
    LCD::Widget::WaitingDialog::deleteInstance();
}

QTEST_MAIN(TestGalleryGrowth)
#include "tst_gallerygrowth.moc"
