// The widgets offered to Designer, by group. A new form widget of the library gets
// its entry here.
#include "lcdwidgetsdesigner.h"

#include <lcdwidgets.h>

namespace lcddesigner {

using namespace LCD::Widget;

namespace {

char const kRows[] = "LCD Rows";
char const kLists[] = "LCD Lists";
char const kEditors[] = "LCD Editors";
char const kControls[] = "LCD Controls";
char const kInstruments[] = "LCD Instruments";
char const kPages[] = "LCD Device pages";

// The panel's sizes: a setting row, a page, and the smaller parts in between.
QSize const kRow(700, 60);
QSize const kPage(800, 480);
QSize const kBar(800, 70);
QSize const kField(240, 44);
QSize const kGroup(460, 56);
QSize const kList(320, 240);

// A new row shows a title, so that it can be told apart on the form.
char const kTitle[] = "  <property name=\"itemTitle\"><string>Title</string></property>\n";

template <class W>
std::function<QWidget*(QWidget*)> plain()
{
    return [](QWidget* parent) { return new W(parent); };
}

// Widgets whose constructor takes a QFrame parent.
template <class W>
std::function<QWidget*(QWidget*)> framed()
{
    return [](QWidget* parent) {
        auto* w = new W(nullptr);
        w->setParent(parent);
        return w;
    };
}

// Two buttons to choose from, so that a new selection row shows something.
std::vector<ItemSelectInfo> sampleChoices()
{
    return {ItemSelectInfo(QStringLiteral("A"), QIcon(), 0), ItemSelectInfo(QStringLiteral("B"), QIcon(), 1)};
}

std::vector<WidgetEntry> makeEntries()
{
    QRect const panel(QPoint(0, 0), kPage);
    return {
        // ---- Item framework: rows, labels and bars ----
        {"LCD::Widget::TypeItemText", kRows, "typeitemtext.h", "Row with a title and a value text", kRow,
         plain<TypeItemText>(), kTitle},
        {"LCD::Widget::TypeItemTextCenter", kRows, "typeitemtext.h", "Row with a centred value text", kRow,
         plain<TypeItemTextCenter>(), kTitle},
        {"LCD::Widget::TypeItemValue", kRows, "typeitemvalue.h", "Row with a title and a value label", kRow,
         plain<TypeItemValue>(), kTitle},
        {"LCD::Widget::TypeItemValueBorder", kRows, "typeitemvalue.h", "Row with a framed value label", kRow,
         plain<TypeItemValueBorder>(), kTitle},
        {"LCD::Widget::TypeKeyValueText", kRows, "typekeyvaluetext.h", "Key and value text row", kRow,
         plain<TypeKeyValueText>(), kTitle},
        {"LCD::Widget::TypeItemTip", kRows, "typeitemtip.h", "Row with a tip text and icon", kRow,
         plain<TypeItemTip>(), kTitle},
        {"LCD::Widget::TypeItemTick", kRows, "typeitemtick.h", "Row with a tick mark (one choice of a list)", kRow,
         plain<TypeItemTick>(), kTitle},
        {"LCD::Widget::TypeItemArrow", kRows, "typeitemarrow.h", "Row that leads to a sub-page (arrow)", kRow,
         plain<TypeItemArrow>(), kTitle},
        {"LCD::Widget::TypeItemMore", kRows, "typeitemmore.h", "Row with more settings behind it", kRow,
         plain<TypeItemMore>(), kTitle},
        {"LCD::Widget::TypeMainButton", kRows, "typemainbutton.h", "Main menu button row", kRow,
         plain<TypeMainButton>(), kTitle},
        {"LCD::Widget::TypeItemNull", kRows, "typemainbutton.h", "Empty row (a spacer among rows)", kRow,
         plain<TypeItemNull>()},
        {"LCD::Widget::TypeItemLineWrap", kRows, "typeitemlinewrap.h", "Row with wrapping text lines", kRow,
         plain<TypeItemLineWrap>(), kTitle},
        {"LCD::Widget::TypeMultItemText", kRows, "typemultitemtext.h", "Row with several text columns", kRow,
         plain<TypeMultItemText>(), kTitle},
        {"LCD::Widget::TypeKeyCheck", kRows, "typemultitemtext.h", "Key test row with check marks", kRow,
         plain<TypeKeyCheck>(), kTitle},
        {"LCD::Widget::TypeItemButtom", kRows, "typeitembuttom.h", "Row with a value, an icon and a progress bar",
         kRow, plain<TypeItemButtom>(), kTitle},
        {"LCD::Widget::TypeItemEdit", kRows, "typeitemedit.h", "Row with a text field", kRow,
         plain<TypeItemEdit>(), kTitle},
        {"RollLabel", kRows, "rolllabel.h", "Label that scrolls a text too long for it", QSize(200, 30),
         plain<RollLabel>()},
        {"EllipsisLabel", kRows, "ellipsislabel.h", "Label that elides a text too long for it", QSize(200, 30),
         plain<EllipsisLabel>()},
        {"LCD::Widget::BottomButtomFrame", kRows, "bottombuttomframe.h", "Bottom bar with OK and Cancel", kBar,
         [](QWidget* parent) {
             return new BottomButtomFrame(Enum::BottomButtonType(Enum::BottomOk | Enum::BottomCancel), parent);
         }},
        {"LCD::Widget::ResetApplyWidget", kRows, "resetapplywidget.h", "Reset and Apply bar", kBar,
         [](QWidget* parent) { return new ResetApplyWidget(Enum::ResetAndApplyButton, parent); }},
        {"LCD::Widget::TypeReset", kRows, "resetapplywidget.h", "Reset button row", kBar, plain<TypeReset>()},
        {"LCD::Widget::TypeApply", kRows, "resetapplywidget.h", "Apply button row", kBar, plain<TypeApply>()},
        {"LCD::Widget::TypeResetApply", kRows, "resetapplywidget.h", "Reset and Apply buttons row", kBar,
         plain<TypeResetApply>()},

        // ---- Lists, drop-downs and menus ----
        {"LCD::Widget::TypeStringCombox", kLists, "typestringcombox.h", "Row choosing one string in a drop-down",
         kRow, plain<TypeStringCombox>(), kTitle},
        {"LCD::Widget::TypeDialogMenu", kLists, "typedialogmenu.h", "Row choosing one string in a menu dialog",
         kRow, plain<TypeDialogMenu>(), kTitle},
        {"LCD::Widget::TypeItemSliderList", kLists, "typeitemsliderlist.h", "Row choosing one string on a slider",
         kRow, plain<TypeItemSliderList>(), kTitle},
        {"LCD::Widget::TypeItemDoubleCombox", kLists, "typeitemdoublecombox.h", "Row choosing a pair of strings",
         kRow, plain<TypeItemDoubleCombox>(), kTitle},
        {"LCD::Widget::TypeItemDialogDoubleCombox", kLists, "typeitemdialogdoublecombox.h",
         "Row choosing a pair of strings in menu dialogs", kRow, plain<TypeItemDialogDoubleCombox>(), kTitle},
        {"LCD::Widget::TypeInputBackupCombox", kLists, "typeinputbackupcombox.h",
         "Row choosing an input and its backup", kRow, plain<TypeInputBackupCombox>(), kTitle},
        {"LCD::Widget::DropCombobox", kLists, "dropcombobox.h", "Knob drop-down with its own popup list", kField,
         plain<DropCombobox>()},
        {"LCD::Widget::FocusComboBox", kLists, "focuscombobox.h", "Combo box that shows where the focus is",
         kField, plain<FocusComboBox>()},
        {"LCD::Widget::CustomListView", kLists, "dropcombobox.h", "The drop-down's popup list", kList,
         plain<CustomListView>()},
        {"LCD::Widget::NQListWidget", kLists, "nqlistwidget.h", "Knob list with scrolling long texts", kList,
         plain<NQListWidget>()},
        {"LCD::Widget::ExpandableTable", kLists, "expandabletable.h", "Key and value table in groups that open",
         kList, plain<ExpandableTable>()},

        // ---- Value editors ----
        {"LCD::Widget::TypeIntAdjust", kEditors, "typeintadjust.h", "Row setting an integer with the knob", kRow,
         plain<TypeIntAdjust>(),
         "  <property name=\"itemTitle\"><string>Title</string></property>\n"
         "  <property name=\"maximum\"><number>100</number></property>\n"},
        {"LCD::Widget::TypeFloatAdjust", kEditors, "typefloatadjust.h", "Row setting a decimal with the knob", kRow,
         plain<TypeFloatAdjust>(),
         "  <property name=\"itemTitle\"><string>Title</string></property>\n"
         "  <property name=\"maximum\"><double>1.0</double></property>\n"},
        {"LCD::Widget::TypeIntAdjustSlider", kEditors, "typeintadjustslider.h",
         "Row setting an integer with the knob and a slider", kRow,
         plain<TypeIntAdjustSlider>(),
         "  <property name=\"itemTitle\"><string>Title</string></property>\n"
         "  <property name=\"maximum\"><number>100</number></property>\n"},
        {"LCD::Widget::TypeDualInt", kEditors, "typedualint.h", "Row setting two integers (a size)", kRow,
         plain<TypeDualInt>(), kTitle},
        {"LCD::Widget::TypeSpinAdjust", kEditors, "typespinadjust.h", "Row with two arrow spin fields", kRow,
         plain<TypeSpinAdjust>(), kTitle},
        {"LCD::Widget::TypeIpAdjust", kEditors, "typeipadjust.h", "Row setting an IPv4 address", kRow,
         plain<TypeIpAdjust>(), kTitle},
        {"LCD::Widget::TypeColorAdjust", kEditors, "typecoloradjust.h", "Row setting a colour's channels", kRow,
         plain<TypeColorAdjust>(), kTitle},
        {"LCD::Widget::TypeIntProgressBar", kEditors, "typeintprogressbar.h", "Row showing a progress bar", kRow,
         plain<TypeIntProgressBar>(), kTitle},
        {"LCD::Widget::LineEditorWidget", kEditors, "lineeditorwidget.h", "Row editing a text with the knob", kRow,
         plain<LineEditorWidget>(), kTitle},
        {"LCD::Widget::MultiSpinBox", kEditors, "multispinbox.h", "Row setting several integers", kRow,
         plain<MultiSpinBox>(), kTitle},
        {"LCD::Widget::MultipleSpinBox", kEditors, "multiplespinbox.h", "Row of titled integer fields", kRow,
         plain<MultipleSpinBox>(), kTitle},
        {"LCD::Widget::MultipleSpinBoxItem", kEditors, "multiplespinbox.h", "One titled integer field",
         QSize(200, 56), [](QWidget* parent) { return new MultipleSpinBoxItem(QStringLiteral("Value"), SuffixNone, parent); }},
        {"LCD::Widget::NQSpinBox", kEditors, "lcdspinbox.h", "Knob spin box for integers", QSize(120, 40),
         plain<NQSpinBox>()},
        {"LCD::Widget::NQDoubleSpinBox", kEditors, "lcdspinbox.h", "Knob spin box for decimals", QSize(120, 40),
         plain<NQDoubleSpinBox>()},
        {"LCD::Widget::NQDualLineEdit", kEditors, "nqduallineedit.h", "Two integer fields (width x height)",
         QSize(200, 40), plain<NQDualLineEdit>()},
        {"LCD::Widget::ExtendSpinBox", kEditors, "extendspinbox.h", "Text between two arrow buttons", kField,
         framed<ExtendSpinBox>()},
        {"LCD::Widget::IPLineEdit", kEditors, "iplineedit.h", "IPv4 address field set with the knob",
         QSize(320, 44), plain<IPLineEdit>()},
        {"LCD::Widget::IPEdit", kEditors, "ipedit.h", "IPv4 address in four typed fields", QSize(320, 44),
         plain<IPEdit>()},
        {"LCD::Widget::NumberPad", kEditors, "numberpad.h", "Number pad for an IPv4 address", QSize(460, 480),
         [panel](QWidget* parent) { return new NumberPad(panel, parent); }},
        {"LCD::Widget::ProgressBarCtr", kEditors, "progressbarctr.h", "Progress bar with its texts", QSize(600, 100),
         [panel](QWidget* parent) { return new ProgressBarCtr(panel, parent); }},
        {"LCD::Widget::NDoubleLineEdit", kEditors, "ndoublelineedit.h", "Decimal field set with the knob",
         QSize(160, 40), plain<NDoubleLineEdit>()},
        {"LCD::Widget::NSignalLineEdit", kEditors, "nsignallineedit.h", "Text field that reports its edits",
         QSize(200, 40), plain<NSignalLineEdit>()},
        {"LCD::Widget::QMLineEdit", kEditors, "qmlineedit.h", "Text field spelled with the knob", QSize(200, 40),
         plain<QMLineEdit>()},
        {"LCD::Widget::QDoubleLineEditWidget", kEditors, "qdoublelineeditwidget.h",
         "Titled decimal field with a unit", QSize(400, 50), [](QWidget* parent) { return new QDoubleLineEditWidget(QStringLiteral("Value"), QString(), parent); }},
        {"LCD::Widget::QSignalLineEditWidget", kEditors, "qsignallineeditwidget.h",
         "Titled text field with a unit", QSize(400, 50), [](QWidget* parent) { return new QSignalLineEditWidget(QStringLiteral("Text"), QString(), parent); }},

        // ---- Choice controls ----
        {"LCD::Widget::TypeItemSwitch", kControls, "typeitemswitch.h", "Row with an on/off switch", kRow,
         plain<TypeItemSwitch>(), kTitle},
        {"LCD::Widget::TypeItemMultiSwitch", kControls, "typeitemswitch.h", "Row with several switches", kRow,
         plain<TypeItemMultiSwitch>(), kTitle},
        {"LCD::Widget::TypeItemMultiBtn", kControls, "typeitemmultibtn.h", "Row choosing one of several buttons",
         kRow, plain<TypeItemMultiBtn>(), kTitle},
        {"LCD::Widget::TypeItemMultiCheckBox", kControls, "typeitemmulticheckbox.h", "Row with several check boxes",
         kRow, plain<TypeItemMultiCheckBox>(), kTitle},
        {"LCD::Widget::TypeItemMultiOperBtn", kControls, "typeitemmultioperbtn.h", "Row of action buttons", kRow,
         [](QWidget* parent) { return new TypeItemMultiOperBtn(2, parent); }, kTitle},
        {"LCD::Widget::TypeMultipleSelectBtn", kControls, "typemultipleselectbtn.h",
         "Row choosing one of several picture buttons", kRow,
         [](QWidget* parent) { return new TypeMultipleSelectBtn(0, sampleChoices(), parent); }, kTitle},
        {"LCD::Widget::TypeItemMultiPictureCheck", kControls, "typeitemmultipicturecheck.h",
         "Row with several picture check boxes", QSize(700, 160), plain<TypeItemMultiPictureCheck>(), kTitle},
        {"LCD::Widget::TypeItemEffectPicture", kControls, "effectpicturewidget.h",
         "Row choosing an effect with a preview", QSize(700, 300), plain<TypeItemEffectPicture>(), kTitle},
        {"LCD::Widget::SwitchControl", kControls, "switchcontrol.h", "Painted on/off switch", QSize(60, 30),
         plain<SwitchControl>()},
        {"LCD::Widget::SwitchWidget", kControls, "switchcontrol.h", "Switch with a label", QSize(200, 40),
         plain<SwitchWidget>()},
        {"LCD::Widget::MultiBtnControl", kControls, "multibtncontrol.h", "Group of buttons walked by the knob",
         kGroup, plain<MultiBtnControl>()},
        {"LCD::Widget::MultiCheckBoxControl", kControls, "multicheckboxcontrol.h",
         "Group of check boxes walked by the knob", kGroup, plain<MultiCheckBoxControl>()},
        {"LCD::Widget::MultiSwitchWidget", kControls, "multiswitchwidget.h", "Group of switches walked by the knob",
         kGroup, plain<MultiSwitchWidget>()},
        {"LCD::Widget::MultiBtnWidget", kControls, "multibtnwidget.h", "Row of action buttons", kGroup,
         [](QWidget* parent) { return new MultiBtnWidget(2, parent); }},
        {"LCD::Widget::MultiButtonControl", kControls, "multibuttoncontrol.h", "Button stepping through values",
         kGroup, plain<MultiButtonControl>()},
        {"LCD::Widget::MultipleSelectBtn", kControls, "multipleselectbtn.h", "Picture buttons choosing one value",
         kGroup, [](QWidget* parent) { return new MultipleSelectBtn(0, sampleChoices(), parent); }},
        {"LCD::Widget::PictureCheckWidget", kControls, "picturecheckwidget.h", "Grid of picture check boxes",
         QSize(460, 160), plain<PictureCheckWidget>()},
        {"LCD::Widget::EffectPictureWidget", kControls, "effectpicturewidget.h", "Effect choice with a preview",
         QSize(600, 300), framed<EffectPictureWidget>()},

        // ---- Instruments and drawing ----
        {"LCD::Widget::DashBoardWidget", kInstruments, "dashboardwidget.h", "Dial gauge", QSize(240, 240),
         plain<DashBoardWidget>()},
        {"LCD::Widget::DashBoardLabel", kInstruments, "dashboardlabel.h", "Dial gauge with its value and unit",
         QSize(240, 280), [](QWidget* parent) { return new DashBoardLabel(QSize(240, 240), parent); }},
        {"LCD::Widget::TypeItemDashBoard", kInstruments, "typeitemdashboard.h", "Row of dial gauges",
         QSize(700, 300), plain<TypeItemDashBoard>(), kTitle},
        {"LCD::Widget::DrawGraphicsView", kInstruments, "drawgraphicsview.h", "Crop drawing surface",
         QSize(480, 270), plain<DrawGraphicsView>()},
        {"LCD::Widget::TypeDrawCropWidget", kInstruments, "typedrawcropwidget.h", "Row with the crop drawing",
         QSize(700, 300), plain<TypeDrawCropWidget>(), kTitle},
        {"LCD::Widget::FactoryTestFrame", kInstruments, "factorytestframe.h", "Factory test page", kPage,
         plain<FactoryTestFrame>()},
        {"LCD::Widget::FactoryTestLeftFrame", kInstruments, "factorytestleftframe.h", "Factory test list",
         QSize(300, 480), plain<FactoryTestLeftFrame>()},
        {"LCD::Widget::FactoryTestRightFrame", kInstruments, "factorytestrightframe.h", "Factory test area",
         QSize(500, 480), plain<FactoryTestRightFrame>()},

        // ---- Device pages ----
        {"LCD::Widget::SwitcherSelect", kPages, "switcherselect.h", "Switcher selection page", kPage,
         plain<SwitcherSelect>()},
        {"LCD::Widget::SwitcherItem", kPages, "switcherselect.h", "One switcher of the selection page",
         QSize(700, 80), plain<SwitcherItem>()},
        {"LCD::Widget::AddDevice", kPages, "adddevice.h", "Page adding a switcher by its address", kPage,
         plain<AddDevice>()},
        {"LCD::Widget::NetworkSettings", kPages, "networksettings.h", "Network settings page", kPage,
         plain<NetworkSettings>()},
        {"LCD::Widget::AboutPage", kPages, "aboutpage.h", "About page (model, versions, addresses)", kPage,
         plain<AboutPage>()},
        {"LCD::Widget::TypeItemTBarCalibration", kPages, "typeitemtbarcalibration.h", "T-bar calibration row",
         QSize(700, 200), plain<TypeItemTBarCalibration>(), kTitle},
        {"LCD::Widget::TypeZOrderItemMore", kPages, "typezorderitemmore.h", "Layer row with its z-order", kRow,
         plain<TypeZOrderItemMore>(), kTitle},
        {"LCD::Widget::TypeFrameTag", kPages, "typeframetag.h", "Row with a programme/preview tag", kRow,
         plain<TypeFrameTag>(), kTitle},
        {"LCD::Widget::TypeGraphicWidget", kPages, "typegraphicwidget.h", "Row showing a picture", QSize(700, 200),
         plain<TypeGraphicWidget>(), kTitle},
        {"LCD::Widget::TypePreviewWidget", kPages, "typepreviewwidget.h", "Row with the layer preview",
         QSize(700, 300), plain<TypePreviewWidget>(), kTitle},
        {"LCD::Widget::PreviewWidget", kPages, "previewwidget.h", "Layer preview canvas", QSize(480, 270),
         plain<PreviewWidget>()},
    };
}

} // namespace

std::vector<WidgetEntry> const& widgetEntries()
{
    static std::vector<WidgetEntry> const entries = makeEntries();
    return entries;
}

} // namespace lcddesigner
