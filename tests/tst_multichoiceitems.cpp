// The multi-choice rows: the button row's list interface and the signal order of a
// choice, the check-box row's edit state, the operation and selection rows' hand-back
// of the knob.
#include <lcdwidgets.h>

#include "hostwindow.h"
#include "leakcheck.h"
#include "knob.h"

#include <QAbstractButton>
#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>
#include <climits>
#include <memory>

using namespace LCD::Widget;

namespace {

std::unique_ptr<QWidget> activeHost() { return HostWindow::activeHost(QSize(760, 100), HostWindow::CanFocus); }

QAbstractButton* buttonAt(MultiWidgetControl* c, int i)
{
    return qobject_cast<QAbstractButton*>(c->widgetList().at(i).second);
}

TypeItemMultiBtn* formatRow(QWidget* parent)
{
    auto* row = new TypeItemMultiBtn(parent);
    row->setItemTitle(QStringLiteral("Format"));
    row->setBtnText({{"1080p", 1080}, {"720p", 720}, {"4K", 2160}});
    return row;
}

} // namespace

class TestMultiChoiceItems : public LeakCheckedTest
{
    Q_OBJECT

private slots:
    void buttonRowListInterface()
    {
        std::unique_ptr<TypeItemMultiBtn> row(formatRow(nullptr));
        StringComboxBaseType* list = row.get(); // used through the common interface
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->findText(QStringLiteral("720p")), 0);
        QCOMPARE(list->findText(QStringLiteral("nothing")), 0);
        QCOMPARE(list->itemText(1), QString());
        list->setItemText(1, QStringLiteral("x"));
        list->setItemData(1, QVariant(5));
        QCOMPARE(list->itemData(1).toInt(), 720);
        QCOMPARE(list->findData(2160), 2);
        QCOMPARE(list->currentIndex(), 0); // none current yet
        QVERIFY(!list->currentData().isValid());

        QSignalSpy index(list, &StringComboxBaseType::signalCurrentIndexChanged);
        QSignalSpy value(row.get(), &TypeItemMultiBtn::signalMultiBtnValueChanged);
        list->setCurrentIndex(2);
        QCOMPARE(list->currentText(), QStringLiteral("4K"));
        QCOMPARE(list->currentData().toInt(), 2160);
        row->setCurrentData(720);
        QCOMPARE(list->currentIndex(), 1);
        list->setCurrentText(QStringLiteral("1080p"));
        QCOMPARE(list->currentIndex(), 0);
        list->setCurrentUserData(QVariant(2160));
        QCOMPARE(list->currentIndex(), 2);
        QCOMPARE(index.size(), 0);
        QCOMPARE(value.size(), 0);

        list->insertItem(0, QStringLiteral("576i"), 576);
        QCOMPARE(list->currentIndex(), 3); // the choice moved with its button
        std::list<std::pair<int, QString>> names{{576, QStringLiteral("SD")}};
        list->updateItems(names);
        list->setCurrentIndex(0);
        QCOMPARE(list->currentText(), QStringLiteral("SD"));
        list->removeItem(0);
        QCOMPARE(list->count(), 3);
        QTest::ignoreMessage(QtDebugMsg, "the index is bigger than _widList!");
        list->removeItem(3);
        list->clear();
        QCOMPARE(list->count(), 0);
        QCOMPARE(list->currentText(), QString());
    }

    void choosingEmitsInOrderAndHandsTheKnobBack()
    {
        auto host = activeHost();
        TypeItemMultiBtn* row = formatRow(host.get());
        row->setContentFontSize(16);
        row->setCurrentIndex(1);
        row->show();
        QCOMPARE(row->multiBtnControl()->maximumHeight(), 24);

        QStringList order;
        connect(row, &TypeItemMultiBtn::signalMultiBtnValueChanged, this, [&order](QVariant v) { order << "value " + v.toString(); });
        connect(row, &StringComboxBaseType::signalCurrentTextChanged, this, [&order](QString t) { order << "text " + t; });
        connect(row, &StringComboxBaseType::signalCurrentIndexChanged, this, [&order](int i) { order << QString("index %1").arg(i); });
        connect(row, &CommonItemType::signalCloseEditStatus, this, [&order] { order << "close"; });
        connect(row, &CommonItemType::signalEditFinished, this, [&order] { order << "finished"; });
        QSignalSpy started(row, &CommonItemType::signalEditStarted);

        row->editValue();
        QCOMPARE(started.size(), 1);
        QCOMPARE(QApplication::focusWidget(), buttonAt(row->multiBtnControl(), 1)); // the choice, focused
        QVERIFY(!buttonAt(row->multiBtnControl(), 1)->isChecked());
        Knob::turn(row, -1);
        QTest::ignoreMessage(QtDebugMsg, "MultiBtnControl index changed: 2");
        QTest::ignoreMessage(QtDebugMsg, "MultiBtnControl text changed: 4K");
        Knob::press(row);
        QCOMPARE(order, QStringList({"value 2160", "text 4K", "index 2", "close", "finished"}));
        QCOMPARE(QApplication::focusWidget(), host.get());
        QCOMPARE(row->currentIndex(), 2);

        // Escape: the choice stays, only the edit ends.
        order.clear();
        row->editValue();
        Knob::turn(row, 2);
        Knob::back(row);
        QCOMPARE(order, QStringList({"close", "finished"}));
        QCOMPARE(row->currentIndex(), 2);
        QVERIFY(buttonAt(row->multiBtnControl(), 2)->isChecked());
        QCOMPARE(QApplication::focusWidget(), host.get());
    }

    void disabledRowDoesNotEdit()
    {
        auto host = activeHost();
        TypeItemMultiBtn* row = formatRow(host.get());
        row->show();
        row->setContentDisabled(true);
        QSignalSpy started(row, &CommonItemType::signalEditStarted);
        QTest::ignoreMessage(QtDebugMsg, "[item] Format : no editor to edit with");
        row->editValue();
        QCOMPARE(started.size(), 0);
    }

    void checkBoxRowEditState()
    {
        auto host = activeHost();
        auto* row = new TypeItemMultiCheckBox(host.get());
        row->setCheckBoxData({{"Mic", 1}, {"Line", 2}});
        row->setContentFontSize(18);
        row->setCurrentValue({2});
        row->show();
        QCOMPARE(row->checkBoxControl()->objectName(), QStringLiteral("MultiCheckBoxControl"));
        QCOMPARE(row->getCheckStatus(2), int(Qt::Checked));
        QSignalSpy value(row, &TypeItemMultiCheckBox::signalMultiCheckBoxValueChanged);
        QStringList order;
        connect(row, &TypeItemMultiCheckBox::signalMultiCheckBoxCloseEditStatus, this, [&order] { order << "checkbox close"; });
        connect(row, &CommonItemType::signalCloseEditStatus, this, [&order] { order << "close"; });

        row->editValue();
        QVERIFY(row->isEditing());
        QCOMPARE(QApplication::focusWidget(), buttonAt(row->checkBoxControl(), 0));
        Knob::key(row, Qt::Key_Enter);
        QCOMPARE(value.size(), 1);
        QCOMPARE(value.at(0), QVariantList({1, true}));
        QCOMPARE(row->getCurrentValue(), QVector<int>({1, 2}));
        Knob::back(row);
        QVERIFY(!row->isEditing());
        QCOMPARE(order, QStringList({"checkbox close", "close"}));
        QCOMPARE(QApplication::focusWidget(), host.get());
        row->setRightIconSize(QSize(10, 10));
        QCOMPARE(buttonAt(row->checkBoxControl(), 1)->iconSize(), QSize(10, 10));
    }

    void operationRow()
    {
        auto host = activeHost();
        auto* row = new TypeItemMultiOperBtn(2, host.get());
        QVector<QPair<QString, int>> data{{"Save", 1}, {"Load", 2}};
        row->setBtnText(data);
        row->setContentFontSize(16);
        row->show();
        QCOMPARE(row->btnWidget()->button(0)->styleSheet(), QStringLiteral("QPushButton{font-size:16px; }"));
        QSignalSpy value(row, &TypeItemMultiOperBtn::signalMultiOperBtnValueChanged);
        QSignalSpy closed(row, &CommonItemType::signalCloseEditStatus);
        row->editValue();
        Knob::turn(row, -1);
        QTest::ignoreMessage(QtDebugMsg, "signalValueChanged: 2");
        Knob::press(row);
        QCOMPARE(value.size(), 1);
        QCOMPARE(value.at(0).at(0), QVariant(2));
        Knob::back(row);
        QCOMPARE(closed.size(), 1);
        QCOMPARE(QApplication::focusWidget(), host.get());

        TypeItemMultiOperBtn empty(0);
        QSignalSpy started(&empty, &CommonItemType::signalEditStarted);
        QTest::ignoreMessage(QtDebugMsg, "TypeItemMultiOperBtn: no button to edit with");
        empty.editValue();
        QCOMPARE(started.size(), 0);
    }

    void selectionRow()
    {
        auto host = activeHost();
        std::vector<ItemSelectInfo> infos{{"Cam 1", QIcon(), 1}, {"Cam 2", QIcon(), 2}, {"Cam 3", QIcon(), 3}};
        auto* row = new TypeMultipleSelectBtn(2, 10, infos, Qt::ToolButtonTextOnly, host.get());
        row->setContentFontSize(48);
        row->show();
        QVERIFY(row->getTitleLabel()->isHidden());
        QVERIFY(row->selectBtn()->button(0)->styleSheet().contains(QStringLiteral("min-height: 64px;")));
        QSignalSpy clicked(row, &TypeMultipleSelectBtn::signalBtnClicked);
        QSignalSpy closed(row, &CommonItemType::signalEditClosed);
        row->editValue();
        QCOMPARE(QApplication::focusWidget(), row->selectBtn()->button(2)); // the remembered button
        Knob::turn(row, 1);
        Knob::press(row);
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(clicked.at(0).at(0), QVariant(2));
        Knob::back(row);
        QCOMPARE(closed.size(), 1);
        QCOMPARE(QApplication::focusWidget(), host.get());
    }

    // A size the row's control refuses never reaches the row base (whose title style
    // sheet would pass it on to QFont).
    void refusedFontSizesStayWithTheRow()
    {
        auto refuses = [](CommonItemType&& row, int size, char const* message) {
            row.setContentFontSize(20);
            QTest::ignoreMessage(QtDebugMsg, message);
            row.setContentFontSize(size);
            QCOMPARE(row.contentFontSize(), 20);
        };
        refuses(TypeItemMultiBtn(), 0, "MultiBtnControl::setContentFontSize: invalid font size 0");
        refuses(TypeItemMultiCheckBox(), -5, "MultiCheckBoxControl::setFontSize: invalid font size -5");
        refuses(TypeItemMultiOperBtn(2), 0, "MultiBtnWidget::setFontSize: invalid font size 0");
        refuses(TypeMultipleSelectBtn(0, {{QStringLiteral("A"), QIcon(), 1}}), 100000, "Invalid button size: 100000");
        refuses(TypeItemMultiSwitch(), 0, "MultiSwitchWidget::setContentFontSize: invalid font size 0");
        refuses(TypeItemEffectPicture(), 0, "EffectPictureWidget::setContentFontSize: invalid font size 0");
    }

    // A spacing past any panel would overflow the layout's sums (and hang it).
    void hugeSpacingIsRefused()
    {
        auto host = std::make_unique<QWidget>();
        auto* row = new MultiBtnControl(host.get());
        row->setBtnData(QVector<QPair<QString, int>>{{"A", 0}, {"B", 1}, {"C", 2}});
        row->setSpacing(6);
        QTest::ignoreMessage(QtDebugMsg, "MultiWidgetControl::setSpacing: invalid spacing 2147483647");
        row->setSpacing(INT_MAX);
        QCOMPARE(row->layout()->spacing(), 6);
        host->show();
        QVERIFY(QTest::qWaitForWindowExposed(host.get()));
    }
};

QTEST_MAIN(TestMultiChoiceItems)
#include "tst_multichoiceitems.moc"
