// The picture check grid and its row: the knob walk through the pictures (reading
// order, no wrap, disabled pictures stepped over), the press flipping marks with the
// signals in order, the row's edit protocol, and refused input.
#include <lcdwidgets.h>

#include "hostwindow.h"
#include "leakcheck.h"
#include "knob.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QSignalSpy>
#include <QtTest>
#include <memory>

using namespace LCD::Widget;

namespace {

std::unique_ptr<QWidget> activeHost() { return HostWindow::activeHost(QSize(760, 300), HostWindow::HasFocus); }

QIcon swatch(QColor c)
{
    QPixmap p(16, 10);
    p.fill(c);
    return QIcon(p);
}

TypeItemMultiPictureCheck* layoutsRow(QWidget* parent, int n)
{
    auto* row = new TypeItemMultiPictureCheck(parent);
    row->setItemTitle(QStringLiteral("Layouts"));
    row->setColumns(4);
    for (int i = 0; i < n; ++i)
        row->addPicture(swatch(Qt::red), QStringLiteral("L%1").arg(i), 10 + i);
    return row;
}

} // namespace

class TestPictureChecks : public LeakCheckedTest
{
    Q_OBJECT

private slots:
    void knobWalksAndFlips()
    {
        auto host = activeHost();
        TypeItemMultiPictureCheck* row = layoutsRow(host.get(), 6);
        PictureCheckWidget* grid = row->pictureCheckWidget();
        grid->buttons().at(2)->setEnabled(false); // stepped over by the knob
        row->setCurrentValue({11});

        QSignalSpy started(row, &CommonItemType::signalEditStarted);
        row->editValue();
        QCOMPARE(started.size(), 1);
        QVERIFY(row->isEditing());
        QCOMPARE(grid->focusedValue(), 10); // focus enters on the first picture

        Knob::turn(grid, 1); // Up on the first: nothing (no wrap)
        QCOMPARE(grid->focusedValue(), 10);
        Knob::turn(grid, -1, 40); // Down, fast: still one picture a detent
        QCOMPARE(grid->focusedValue(), 11);
        Knob::turn(grid, -1);
        QCOMPARE(grid->focusedValue(), 13); // 12 is disabled
        Knob::turn(grid, -5);
        QCOMPARE(grid->focusedValue(), 15); // stops on the last
        Knob::turn(grid, 1);
        QCOMPARE(grid->focusedValue(), 14);

        QStringList order;
        connect(row, &TypeItemMultiPictureCheck::signalPictureCheckChanged, this,
                [&order](int v, bool on) { order << QStringLiteral("check:%1:%2").arg(v).arg(on); });
        connect(row, &CommonItemType::signalValueChanged, this, [&order](QVariant const& v) {
            QStringList s;
            for (QVariant const& x : v.toList())
                s << x.toString();
            order << QStringLiteral("value:") + s.join(',');
        });
        connect(row, &CommonItemType::signalCloseEditStatus, this, [&order] { order << "close"; });
        connect(row, &CommonItemType::signalEditFinished, this, [&order] { order << "finished"; });

        Knob::press(grid); // Return flips
        Knob::turn(grid, 2); // back to 11 (over the disabled 12)
        QCOMPARE(grid->focusedValue(), 11);
        Knob::press(grid, true); // keypad Enter flips too
        QCOMPARE(order, QStringList({"check:14:1", "value:11,14", "check:11:0", "value:14"}));
        QCOMPARE(row->getCurrentValue(), QVector<int>({14}));
        order.clear();

        Knob::back(grid);
        QCOMPARE(order, QStringList({"close", "finished"}));
        QCOMPARE(QApplication::focusWidget(), host.get());
        QVERIFY(!row->isEditing());
        QCOMPARE(row->getCurrentValue(), QVector<int>({14})); // Escape keeps the marks
    }

    void gridLayoutFollowsColumns()
    {
        PictureCheckWidget grid;
        for (int i = 0; i < 7; ++i)
            grid.addPicture(swatch(Qt::blue), QString(), i);
        QCOMPARE(grid.rowCount(), 2);
        grid.setColumns(3);
        QCOMPARE(grid.rowCount(), 3);
        auto* layout = qobject_cast<QGridLayout*>(grid.layout());
        QVERIFY(layout);
        int r = -1, c = -1, rs = 0, cs = 0;
        layout->getItemPosition(layout->indexOf(grid.buttons().at(6)), &r, &c, &rs, &cs);
        QCOMPARE(QPoint(c, r), QPoint(0, 2));
        grid.removePicture(0);
        layout->getItemPosition(layout->indexOf(grid.buttons().at(0)), &r, &c, &rs, &cs);
        QCOMPARE(QPoint(c, r), QPoint(0, 0)); // the rest moves up
        QCOMPARE(grid.rowCount(), 2);
        QCOMPARE(grid.buttons().at(0)->property("isPictureCheck"), QVariant(true));
    }

    void badInputIsRefused()
    {
        PictureCheckWidget grid;
        grid.addPicture(swatch(Qt::green), QStringLiteral("A"), 1);
        grid.setChecked(1, true);
        QTest::ignoreMessage(QtDebugMsg, "[PictureCheckWidget] addPicture: value 1 exists already");
        grid.addPicture(swatch(Qt::green), QStringLiteral("B"), 1);
        QCOMPARE(grid.count(), 1);
        QCOMPARE(grid.caption(1), QStringLiteral("A"));
        QTest::ignoreMessage(QtDebugMsg, "[PictureCheckWidget] setChecked: no picture with value 7");
        grid.setChecked(7, true);
        QTest::ignoreMessage(QtDebugMsg, "[PictureCheckWidget] removePicture: no picture with value 7");
        grid.removePicture(7);
        QTest::ignoreMessage(QtDebugMsg, "[PictureCheckWidget] setCheckedValues: no picture with value 9");
        grid.setCheckedValues({9});
        QVERIFY(!grid.isChecked(1)); // the known ones are still set exactly
        QVERIFY(!grid.isChecked(9));
        QTest::ignoreMessage(QtDebugMsg, "[PictureCheckWidget] setColumns: columns must be at least 1, got 0");
        grid.setColumns(0);
        QCOMPARE(grid.columns(), PictureCheckWidget::kDefaultColumns);
        QTest::ignoreMessage(QtDebugMsg, "[PictureCheckWidget] setPictureSize: invalid size -1x20");
        grid.setPictureSize(QSize(-1, 20));
        QCOMPARE(grid.pictureSize(), QSize(64, 40));
        QTest::ignoreMessage(QtDebugMsg, "[PictureCheckWidget] setContentFontSize: font size must be positive, got 0");
        grid.setContentFontSize(0);
        QCOMPARE(grid.contentFontSize(), PictureCheckWidget::kDefaultFontSize);
        QTest::ignoreMessage(QtDebugMsg, "[PictureCheckWidget] addPicture: no picture in /nonexistent/x.png");
        grid.addPicture(QStringLiteral("/nonexistent/x.png"), QStringLiteral("Lost"), 2);
        QCOMPARE(grid.count(), 2); // kept, caption only
        QCOMPARE(grid.caption(2), QStringLiteral("Lost"));
    }

    void emptyOrDisabledRowDoesNotEdit()
    {
        auto host = activeHost();
        auto* empty = new TypeItemMultiPictureCheck(host.get());
        QSignalSpy started(empty, &CommonItemType::signalEditStarted);
        QTest::ignoreMessage(QtDebugMsg, "[TypeItemMultiPictureCheck] Pictures: no pictures to choose from");
        empty->setItemTitle(QStringLiteral("Pictures"));
        empty->editValue();
        TypeItemMultiPictureCheck* off = layoutsRow(host.get(), 2);
        off->setContentDisabled(true);
        QSignalSpy started2(off, &CommonItemType::signalEditStarted);
        QTest::ignoreMessage(QtDebugMsg, "[item] Layouts : no editor to edit with");
        off->editValue();
        QCOMPARE(started.size() + started2.size(), 0);
        QCOMPARE(QApplication::focusWidget(), host.get());
        QTest::ignoreMessage(QtDebugMsg, "[TypeItemMultiPictureCheck] setContentFontSize: font size must be positive, got -4");
        off->setContentFontSize(-4);
        QCOMPARE(off->pictureCheckWidget()->contentFontSize(), PictureCheckWidget::kDefaultFontSize);
    }

    void removingTheFocusedPictureKeepsTheKnob()
    {
        auto host = activeHost();
        TypeItemMultiPictureCheck* row = layoutsRow(host.get(), 3);
        row->editValue();
        Knob::turn(row->pictureCheckWidget(), -1);
        QCOMPARE(row->pictureCheckWidget()->focusedValue(), 11);
        row->removePicture(11);
        QCOMPARE(row->pictureCheckWidget()->focusedValue(), 10);
        row->clear();
        QCOMPARE(row->count(), 0);
        QVERIFY(QApplication::focusWidget() == row->pictureCheckWidget());
        QSignalSpy finished(row, &CommonItemType::signalEditFinished);
        row->closeEditValue();
        QCOMPARE(QApplication::focusWidget(), host.get());
    }
};

QTEST_MAIN(TestPictureChecks)
#include "tst_picturechecks.moc"
