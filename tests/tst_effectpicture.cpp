// The effect chooser: the grid's geometry with the reference numbers and scaled, the
// row break after nine choices, the preview following the knob, Escape restoring the
// check mark and the preview, the choice's signals, bad input and teardown while the
// preview plays. The theme's own effect pictures and previews are used.
#include <lcdwidgets.h>

#include "hostwindow.h"
#include "leakcheck.h"
#include "knob.h"

#include <QGridLayout>
#include <QLabel>
#include <QMovie>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>
#include <memory>

using namespace LCD::Widget;

namespace {

QString const kImages = QStringLiteral("./../share/themes/default/images/");

QStringList const kEffects = {"mix", "dip", "wipe_left", "wipe_right", "wipe_up", "wipe_down",
                              "box", "circle", "diamond", "split", "push", "clock"};

QString previewOf(QString const& effect) { return kImages + QStringLiteral("effect_%1.gif").arg(effect); }

// Keys 10, 20, ... for the first `n` effects (cycled).
QMap<int, QPair<QString, QString>> choices(int n)
{
    QMap<int, QPair<QString, QString>> map;
    for (int i = 0; i < n; ++i) {
        QString const e = kEffects.at(i % kEffects.size());
        map.insert(10 * (i + 1), qMakePair(e, previewOf(e)));
    }
    return map;
}

std::unique_ptr<QWidget> activeHost() { return HostWindow::activeHost(QSize(800, 300), HostWindow::CanFocus); }

QList<bool> checks(EffectPictureWidget const* w)
{
    QList<bool> list;
    for (QPushButton* b : w->buttons())
        list << b->isChecked();
    return list;
}

} // namespace

class TestEffectPicture : public LeakCheckedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(QFile::exists(previewOf("mix")), "theme images not found from the working directory"); }

    void geometryAtTheReferenceSize()
    {
        EffectPictureWidget w;
        w.setPictureData(QStringLiteral("Transitions"), previewOf("mix"), choices(12));
        QCOMPARE(w.contentFontSize(), 16);
        QCOMPARE(w.previewLabel()->size(), QSize(64, 40));
        QCOMPARE(w.movie()->scaledSize(), QSize(64, 40));
        QCOMPARE(w.buttonFrame()->minimumSize(), QSize(360, 48));
        QCOMPARE(w.buttonFrame()->maximumSize(), QSize(360, 48));
        QCOMPARE(w.buttonFrame()->property("multiButtonFrame").toString(), QStringLiteral("normal"));
        QCOMPARE(w.layout()->spacing(), 16);
        QCOMPARE(w.buttons().size(), 12);
        QPushButton* b = w.buttons().at(0);
        QCOMPARE(b->minimumSize(), QSize(40, 24));
        QCOMPARE(b->styleSheet(), QStringLiteral("QPushButton{font-size:16px;border-radius:4px;}"));
        auto* picture = b->findChild<QLabel*>();
        QVERIFY(picture);
        QCOMPARE(picture->property("EffectPictureWidget").toString(), QStringLiteral("mix"));
        QCOMPARE(picture->minimumSize(), QSize(24, 24));
        QVERIFY(b->isCheckable());
        QCOMPARE(b->property("isMultiBtnChecked").toBool(), true);
    }

    void geometryScalesWithTheFontSize()
    {
        EffectPictureWidget w;
        w.setPictureData(QString(), previewOf("mix"), choices(3));
        w.setContentFontSize(32);
        QCOMPARE(w.previewLabel()->size(), QSize(128, 80));
        QCOMPARE(w.buttonFrame()->maximumSize(), QSize(720, 96));
        QCOMPARE(w.buttons().at(2)->maximumSize(), QSize(80, 48));
        QCOMPARE(w.buttons().at(2)->findChild<QLabel*>()->maximumSize(), QSize(48, 48));
        QCOMPARE(w.layout()->spacing(), 32);
        QCOMPARE(w.buttonFrame()->styleSheet(), QStringLiteral("QFrame{border-radius:8px;}"));
        w.setContentFontSize(20); // value * 20 / 16
        QCOMPARE(w.previewLabel()->size(), QSize(80, 50));
        QCOMPARE(w.buttonFrame()->maximumSize(), QSize(450, 60));
        QCOMPARE(w.buttons().at(0)->maximumSize(), QSize(50, 30));
        // Rebuilding keeps the font size.
        w.setPictureData(QString(), previewOf("mix"), choices(4));
        QCOMPARE(w.buttons().at(3)->maximumSize(), QSize(50, 30));
        QTest::ignoreMessage(QtDebugMsg, "EffectPictureWidget::setContentFontSize: invalid font size 0");
        w.setContentFontSize(0);
        QCOMPARE(w.contentFontSize(), 20);
        // A size whose preview frames could not be allocated is refused as well.
        QTest::ignoreMessage(QtDebugMsg, "EffectPictureWidget::setContentFontSize: invalid font size 100000");
        w.setContentFontSize(100000);
        QCOMPARE(w.contentFontSize(), 20);
        QCOMPARE(w.previewLabel()->size(), QSize(80, 50));
    }

    void nineColumnsThenANewRow()
    {
        auto host = activeHost();
        auto* w = new EffectPictureWidget;
        w->setParent(host.get());
        w->setPictureData(QString(), previewOf("mix"), choices(19));
        w->resize(400, 200);
        w->show();
        auto* grid = qobject_cast<QGridLayout*>(w->buttonFrame()->layout());
        QVERIFY(grid);
        auto position = [grid](QWidget* b) {
            int r, c, rs, cs;
            grid->getItemPosition(grid->indexOf(b), &r, &c, &rs, &cs);
            return QPoint(c, r);
        };
        QCOMPARE(position(w->buttons().at(8)), QPoint(8, 0));
        QCOMPARE(position(w->buttons().at(9)), QPoint(0, 1)); // the tenth starts the second row
        QCOMPARE(position(w->buttons().at(18)), QPoint(0, 2));
        QTRY_VERIFY(w->buttons().at(8)->geometry().right() < 360); // nine fit the frame's width
        QCOMPARE(w->buttons().at(9)->y(), 24);
        QVERIFY(w->buttons().at(18)->y() >= w->buttonFrame()->height()); // the third row is outside
    }

    void previewFollowsTheKnobAndEscapeRestores()
    {
        auto host = activeHost();
        auto* w = new EffectPictureWidget;
        w->setParent(host.get());
        w->setPictureData(QStringLiteral("Transitions"), previewOf("mix"), choices(12));
        w->setCurrentValue(20); // dip
        w->show();
        QCOMPARE(w->getCurrentValue(), 20);
        QCOMPARE(w->previewFile(), previewOf("dip"));
        QCOMPARE(w->movie()->state(), QMovie::Running);
        QSignalSpy value(w, &EffectPictureWidget::signalValueChanged);
        QSignalSpy closed(w, &EffectPictureWidget::signalCloseEditStatus);
        QSignalSpy selected(w, &EffectPictureWidget::signalSelectedChanged);

        w->setFocus(Qt::TabFocusReason);
        QCOMPARE(QApplication::focusWidget(), w->buttons().at(1)); // the choice, focused not checked
        QCOMPARE(checks(w).count(true), 0);
        Knob::turn(w, -2);
        QCOMPARE(QApplication::focusWidget(), w->buttons().at(3));
        QCOMPARE(w->previewFile(), previewOf("wipe_right"));
        QCOMPARE(w->movie()->state(), QMovie::Running);
        QCOMPARE(selected.size(), 2);
        QCOMPARE(selected.at(1).at(0).toInt(), 40);
        Knob::turn(w, 5);
        QCOMPARE(QApplication::focusWidget(), w->buttons().at(0)); // no wrap
        QCOMPARE(w->previewFile(), previewOf("mix"));

        Knob::back(w);
        QCOMPARE(closed.size(), 1);
        QCOMPARE(value.size(), 0);
        QCOMPARE(w->previewFile(), previewOf("dip"));
        QVERIFY(w->buttons().at(1)->isChecked());
        QCOMPARE(checks(w).count(true), 1);
    }

    void pressChooses()
    {
        auto host = activeHost();
        auto* item = new TypeItemEffectPicture(host.get());
        item->setPictureData(QString(), previewOf("mix"), choices(12));
        item->setCurrentValue(10);
        item->show();
        QVERIFY(item->getTitleLabel()->isHidden());
        QCOMPARE(item->getWidgetRow(), 1);
        QStringList order;
        connect(item, &TypeItemEffectPicture::signalEffectPictureValueChanged, this,
                [&order](QVariant v) { order << "value " + v.toString(); });
        connect(item, &CommonItemType::signalCloseEditStatus, this, [&order] { order << "close"; });
        connect(item, &CommonItemType::signalEditFinished, this, [&order] { order << "finished"; });
        item->editValue();
        EffectPictureWidget* w = item->effectPictureWidget();
        QCOMPARE(QApplication::focusWidget(), w->buttons().at(0));
        Knob::turn(item, -9, 4.0);
        QCOMPARE(QApplication::focusWidget(), w->buttons().at(9)); // down into the second row
        Knob::press(item);
        QCOMPARE(order, QStringList({"value 100", "close", "finished"}));
        QCOMPARE(item->getCurrentValue(), 100);
        QVERIFY(w->buttons().at(9)->isChecked());
        QCOMPARE(checks(w).count(true), 1);
        QCOMPARE(w->previewFile(), previewOf("split"));
        QCOMPARE(QApplication::focusWidget(), host.get());
    }

    void badInputIsRefused()
    {
        EffectPictureWidget w;
        QTest::ignoreMessage(QtWarningMsg, "[EffectPictureWidget] preview not found: nowhere.gif");
        w.setPictureData(QString(), QStringLiteral("nowhere.gif"), {});
        QCOMPARE(w.movie()->state(), QMovie::NotRunning);
        QCOMPARE(w.buttons().size(), 0);
        QCOMPARE(w.getCurrentValue(), -1);
        QTest::ignoreMessage(QtDebugMsg, "[EffectPictureWidget] no choice with key 5");
        w.setCurrentValue(5);
        w.resetBtnCheckStatus();
        w.setUpDownPressed(true);

        // A choice whose preview is missing: logged when it comes under the knob.
        QMap<int, QPair<QString, QString>> map = choices(2);
        map[30] = qMakePair(QStringLiteral("mix"), QStringLiteral("missing.gif"));
        w.setPictureData(QString(), previewOf("mix"), map);
        QTest::ignoreMessage(QtWarningMsg, "[EffectPictureWidget] preview not found: missing.gif");
        w.setCurrentValue(30);
        QCOMPARE(w.movie()->state(), QMovie::NotRunning);
        QTest::ignoreMessage(QtDebugMsg, "[EffectPictureWidget] no choice with key 99");
        w.setCurrentUserData(QVariant(99));
    }

    void destroyedWhileThePreviewPlays()
    {
        auto host = activeHost();
        QPointer<EffectPictureWidget> w = new EffectPictureWidget;
        w->setParent(host.get());
        w->setPictureData(QString(), previewOf("circle"), choices(3));
        w->show();
        QCOMPARE(w->movie()->state(), QMovie::Running);
        QTest::qWait(100);
        delete w;
        QTest::qWait(200); // a frame timer left behind would touch freed memory (ASan)
        QVERIFY(w.isNull());
    }
};

QTEST_MAIN(TestEffectPicture)
#include "tst_effectpicture.moc"
