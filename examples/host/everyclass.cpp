// Creates one of every public widget class through the umbrella header, as a check
// that an installed package exports all of them.
#include "everyclass.h"

#include <lcdwidgets.h>

#include <QFrame>
#include <QVBoxLayout>

using namespace LCD::Widget;

int createEveryClass(QWidget* page)
{
    auto* layout = new QVBoxLayout(page);
    auto* frame = new QFrame(page); // the step control lives in a frame
    QList<QWidget*> widgets = {
        new TypeItemText(page),
        new TypeItemTextCenter(page),
        new TypeItemValue(page),
        new TypeItemValueBorder(page),
        new TypeKeyValueText(page),
        new TypeItemTip(page),
        new TypeItemTick(page),
        new TypeItemArrow(page),
        new TypeItemMore(page),
        new TypeMainButton(page),
        new TypeItemNull(page),
        new TypeItemLineWrap(page),
        new TypeMultItemText(page),
        new TypeKeyCheck(page),
        new TypeItemButtom(page),
        new TypeItemEdit(page),
        new TypeReset(page),
        new TypeApply(page),
        new TypeResetApply(page),
        new TypeIntAdjust(SuffixPercent, QuitKeepValue, page, 1),
        new TypeFloatAdjust(SuffixSecond, QuitKeepValue, page, 1),
        new TypeIntAdjustSlider(SuffixNone, QuitKeepValue, Qt::Horizontal, page, 5),
        new TypeDualInt(page),
        new TypeSpinAdjust(page),
        new NQSpinBox(SuffixDegree, QuitKeepValue, 1, page),
        new NQDoubleSpinBox(SuffixNone, QuitKeepValue, page),
        new NQDualLineEdit(page),
        new ExtendSpinBox(frame),
        new ProgressBarCtr(QRect(0, 0, 800, 480), page),
        new RollLabel(page),
        new EllipsisLabel(page),
        // Lists and menus
        new FocusComboBox(page),
        new DropCombobox(true, page),
        new TypeStringCombox(page),
        new TypeDialogMenu(page, nullptr),
        // Choice controls
        new SwitchControl(page),
        new SwitchWidget(page),
        new MultiBtnControl(page),
        new MultiCheckBoxControl(page),
        new MultiSwitchWidget(page),
        new TypeItemSwitch(page),
        new TypeItemMultiSwitch(page),
        new MultiBtnWidget(3, page),
        new MultipleSelectBtn(0, {ItemSelectInfo(QStringLiteral("A"), QIcon(), 1)}, page),
        new MultiButtonControl(page),
        new TypeItemMultiBtn(page),
        new TypeItemMultiCheckBox(page),
        new TypeItemMultiOperBtn(2, page),
        new TypeMultipleSelectBtn(0, {ItemSelectInfo(QStringLiteral("A"), QIcon(), 1)}, page),
        new EffectPictureWidget(frame),
        new TypeItemEffectPicture(page),
        // Instruments and drawing
        new DashBoardWidget(page),
        new DashBoardLabel(QSize(80, 24), page),
        new TypeItemDashBoard(page),
        new DrawGraphicsView(page),
        new TypeDrawCropWidget(page),
        // Address entry and device pages
        new IPLineEdit(page),
        new IPEdit(page),
        new TypeIpAdjust(page),
        new NumberPad(QRect(0, 0, 800, 480), page),
        new NetworkSettings(page),
        new AddDevice(page),
        new SwitcherItem(page),
        new SwitcherSelect(page),
        new TypeItemTBarCalibration(page),
        // Line edits, multi-value editors, colour and progress rows
        new NDoubleLineEdit(page),
        new NSignalLineEdit(page),
        new QMLineEdit(page),
        new QDoubleLineEditWidget(QStringLiteral("Gain"), QStringLiteral("dB"), page),
        new QSignalLineEditWidget(QStringLiteral("Name"), QString(), page),
        new LineEditorWidget(page),
        new MultiSpinBox(page),
        new MultipleSpinBox(page),
        new MultipleSpinBoxItem(QStringLiteral("X"), SuffixNone, page),
        new TypeColorAdjust(page),
        new TypeIntProgressBar(page),
        // Picture choices, paired combos, scrolling lists
        new PictureCheckWidget(page),
        new TypeItemMultiPictureCheck(page),
        new TypeInputBackupCombox(page),
        new TypeItemDoubleCombox(page),
        new TypeItemDialogDoubleCombox(page, nullptr),
        new NQListWidget(page),
        new TypeItemSliderList(page),
        new ExpandableTable(page),
        // System, layers, preview and factory test
        new AboutPage(page),
        new LockPanel(QRect(0, 0, 800, 480), page),
        new TypeZOrderItemMore(page),
        new TypeFrameTag(page),
        new TypeGraphicWidget(page),
        new PreviewWidget(page),
        new TypePreviewWidget(page),
        new FactoryTestFrame(page),
        new FactoryTestLeftFrame(page),
        new FactoryTestRightFrame(page),
    };
    // The bars are created without a parent and placed by the page's layout.
    widgets << new BottomButtomFrame(static_cast<Enum::BottomButtonType>(Enum::BottomOk | Enum::BottomCancel), page)
            << new ResetApplyWidget(Enum::ResetAndApplyButton, page);
    for (QWidget* w : widgets)
        layout->addWidget(w);

    // Dialogs: created over the panel's screen, not shown, deleted again.
    QRect const screen(0, 0, 800, 480);
    QList<QDialog*> const dialogs = {
        new ReminderDialog(ReminderDialog::Question, screen, page),
        new MiniProcessDialog(MiniProcessDialog::Progress, QRect(0, 0, 800, 96), page),
        new ReminderDialogApply(page),
        new ReminderToastDialog(screen, page),
        new ToastDialog(QStringLiteral("toast"), 1000, 2, true, page),
        new TipDialog(QStringLiteral("tip"), page),
        new BlockDialog(QStringLiteral("block"), page),
        new CustomReminderDialog(screen),
        new RoundedCornersDialog(page),
        new DialogMenuWidget(page),
        new MultipleDialog(0, {ItemSelectInfo(QStringLiteral("A"), QIcon(), 1)}, screen, page),
        new TextViewDialog(screen, page),
        new MutilProgressBarDialog(screen, page),
        new LockReminderDialog(screen, page),
    };
    WaitingDialog::instance(screen, page);
    WaitingDialog::deleteInstance();
    qDeleteAll(dialogs);
    return widgets.size(); // the widgets placed on the page
}
