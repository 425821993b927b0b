// The gallery's Dialogs page, worked with the knob: every row opens its dialog on
// the press, and the page has the knob again once the dialog is gone.
#include "leakcheck.h"
#include "gallerytest.h"
#include "knob.h"
#include "modal.h"

#include <toastdialog.h>
#include <waitingdialog.h>

#include <QtTest>

class TestGalleryDialogs : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void everyRowOpensItsDialog();
};

void TestGalleryDialogs::everyRowOpensItsDialog()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    Gallery gallery;
    GalleryWindow& window = gallery.window;
    QVERIFY(gallery.show());
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    ItemPage* page = gallery.openPage(QStringLiteral("dialogs"), false);
    QVERIFY(page);
    QVERIFY(page->count() >= 15);

    // Whatever modal comes up is noted and closed: with Escape first, by force for
    // the ones the user cannot close (progress, waiting, block).
    QStringList opened;
    QTimer watcher;
    QObject::connect(&watcher, &QTimer::timeout, [&opened] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || !modal->isVisible())
            return;
        opened << QString::fromLatin1(modal->metaObject()->className());
        Modal::key(modal, Qt::Key_Escape);
        if (modal->isVisible())
            forceClose(modal);
    });
    watcher.start(5);
    Modal::Guard guard(60000);

    QStringList const expected = {"ReminderDialog", "ReminderDialog", "ReminderDialog", "ReminderDialog",
                                  "ReminderDialog", "ReminderDialog", "ReminderDialog", "ReminderDialog",
                                  "MiniProcessDialog", "ReminderDialogApply", "ReminderToastDialog", "ToastDialog",
                                  "TipDialog", "WaitingDialog", "WaitingDialog", "BlockDialog", "CustomReminderDialog"};
    QCOMPARE(page->count(), expected.size());
    page->setCurrentIndex(0);
    for (int i = 0; i < page->count(); ++i) {
        if (i > 0)
            Knob::turn(QApplication::focusWidget(), -1); // Down to the next row
        QCOMPARE(page->currentIndex(), i);
        opened.clear();
        Knob::press(QApplication::focusWidget());
        QString const kind = QLatin1String("LCD::Widget::") + expected.at(i);
        if (expected.at(i) == QLatin1String("ToastDialog")) {
            // Not modal: it shows over the window and goes by itself.
            QList<LCD::Widget::ToastDialog*> toasts = window.findChildren<LCD::Widget::ToastDialog*>();
            QCOMPARE(toasts.size(), 1);
            QVERIFY(toasts.first()->isVisible());
            QTRY_VERIFY_WITH_TIMEOUT(window.findChildren<LCD::Widget::ToastDialog*>().isEmpty(), 4000);
        } else {
            QTRY_VERIFY2(opened.contains(kind), qPrintable(QStringLiteral("row %1: %2").arg(i).arg(opened.join(','))));
            QTRY_VERIFY(!QApplication::activeModalWidget());
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        // The page has the knob again.
        QTRY_VERIFY2(QApplication::focusWidget() && page->isAncestorOf(QApplication::focusWidget()),
                     qPrintable(QStringLiteral("row %1").arg(i)));
    }
    QVERIFY(!guard.fired());
    LCD::Widget::WaitingDialog::deleteInstance();
}

QTEST_MAIN(TestGalleryDialogs)
#include "tst_gallerydialogs.moc"
