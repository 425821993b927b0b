// Item rows, editors, labels, spin boxes, lists and menus, pictures, progress bars
// and the list delegates, built as a host builds them on a page.
#include "factories.h"

#include <lcdwidgets.h>

#include <QApplication>
#include <QDialog>
#include <QListWidget>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <cfloat>
#include <climits>
#include <cmath>

using namespace LCD::Widget;

namespace Monkey {

namespace {

#define ACT(T, label, ...) act<T>(QStringLiteral(label), [](T * w, Rng & r) { (void)w; (void)r; __VA_ARGS__; })

// ---- Hostile values not in Rng ----

float hostileFloat(Rng& r)
{
    switch (r.between(0, 8)) {
    case 0: return std::numeric_limits<float>::quiet_NaN();
    case 1: return std::numeric_limits<float>::infinity();
    case 2: return -std::numeric_limits<float>::infinity();
    case 3: return FLT_MAX;
    case 4: return -FLT_MAX;
    case 5: return 0.0f;
    case 6: return 1e9f;
    default: return float(r.real(-100.0, 300.0));
    }
}

QSize hostileQSize(Rng& r) { return QSize(r.hostileSize(), r.hostileSize()); }

QRect hostileRect(Rng& r)
{
    auto side = [&r] {
        int const s = r.hostileSize();
        return s == INT_MIN ? -5000 : s;
    };
    return QRect(r.between(-100, 0), r.between(-100, 0), side(), side());
}

QPoint hostilePoint(Rng& r) { return QPoint(r.between(-100000, 100000), r.between(-100000, 100000)); }

QVariant hostileVariant(Rng& r)
{
    switch (r.between(0, 8)) {
    case 0: return QVariant();
    case 1: return r.hostileInt();
    case 2: return r.hostileDouble();
    case 3: return r.hostileText();
    case 4: return hostileQSize(r);
    case 5: return r.coin();
    case 6: return QStringList{r.hostileText(), r.hostileText()};
    case 7: return r.hostileColor();
    default: return QStringLiteral("%1").arg(r.between(-10, 300));
    }
}

// A short text (list entries: a list of 100 000-character entries is not what hosts hold).
QString entryText(Rng& r)
{
    return r.chance(0.15) ? r.hostileText().left(500) : QStringLiteral("Entry %1").arg(r.between(0, 40));
}

// ---- Building ----

template <class T>
std::function<QWidget*(QWidget*)> child()
{
    return [](QWidget* page) -> QWidget* { return new T(page); };
}

void append(std::vector<Action>& to, std::vector<Action> const& from) { to.insert(to.end(), from.begin(), from.end()); }

// The warnings of the classes a widget is made of, by their prefix "[Class]" or "Class:".
QStringList own(QStringList const& classes)
{
    QStringList out;
    for (QString const& c : classes)
        out << QStringLiteral("^\\[%1\\]").arg(c) << QStringLiteral("^-?%1(::|:)").arg(c);
    return out;
}

// The setters every row shares (CommonItemType's public interface).
std::vector<Action> rowActions()
{
    using C = CommonItemType;
    return {
        ACT(C, "setLabelValue", w->setLabelValue(hostileVariant(r), r.between(-1, 3))),
        ACT(C, "setLabelValue(int)", w->setLabelValue(r.hostileInt(), 0)),
        ACT(C, "getLabelValue", w->getLabelValue()),
        ACT(C, "setRange(int)", w->setRange(r.hostileInt(), r.hostileInt())),
        ACT(C, "setRange(float)", w->setRange(hostileFloat(r), hostileFloat(r))),
        ACT(C, "setSingleStep", w->setSingleStep(hostileFloat(r))),
        ACT(C, "setRightIconSize", w->setRightIconSize(hostileQSize(r))),
        ACT(C, "setLeftIconSize", w->setLeftIconSize(hostileQSize(r))),
        ACT(C, "setContentFontSize", w->setContentFontSize(r.hostileSize())),
        ACT(C, "setItemHeight", w->setItemHeight(r.hostileSize())),
        ACT(C, "setItemTitleWidth", w->setItemTitleWidth(r.hostileSize())),
        ACT(C, "setHomeRect", w->setHomeRect(hostileRect(r))),
        ACT(C, "setRollLabel", w->setRollLabel(r.coin())),
        ACT(C, "setContentEnabled", w->setContentEnabled(r.coin())),
        ACT(C, "setContentDisabled", w->setContentDisabled(r.coin())),
        ACT(C, "setCurrentItem", w->setCurrentItem(r.coin())),
        ACT(C, "setItemTitle", w->setItemTitle(r.hostileText())),
        ACT(C, "setItemTitleText", w->setItemTitleText(r.hostileText())),
        ACT(C, "setItemTitleRoll", w->setItemTitleRoll(r.hostileText(), r.coin())),
        ACT(C, "setItemSecondTitle", w->setItemSecondTitle(r.hostileText(), r.hostileSize())),
        ACT(C, "setMaximumWidthRoll", w->setMaximumWidthRoll(r.hostileSize())),
        ACT(C, "setRollLabelStretchMax", w->setRollLabelStretchMax()),
        ACT(C, "setItemTitleLabelHide", w->setItemTitleLabelHide(r.coin())),
        ACT(C, "setItemSecondTitleLabelHide", w->setItemSecondTitleLabelHide(r.coin())),
        ACT(C, "setLeftIconButtonHide", w->setLeftIconButtonHide(r.coin())),
        ACT(C, "setRightIconButtonHide", w->setRightIconButtonHide(r.coin())),
        ACT(C, "setLeftIconTitleHide", w->setLeftIconTitleHide(r.coin())),
        ACT(C, "setItemTitleProperty", w->setItemTitleProperty("state", hostileVariant(r))),
        ACT(C, "setItemTitlePropertyRoll", w->setItemTitlePropertyRoll("state", hostileVariant(r))),
        ACT(C, "setLeftIconButtonProperty", w->setLeftIconButtonProperty("state", hostileVariant(r))),
        ACT(C, "setRightIconButtonProperty", w->setRightIconButtonProperty("state", hostileVariant(r))),
        ACT(C, "setItemSecondTitleProperty", w->setItemSecondTitleProperty("state", hostileVariant(r))),
        ACT(C, "editValue", w->editValue()),
        ACT(C, "editValue", w->editValue()),
        ACT(C, "closeEditValue", w->closeEditValue()),
        ACT(C, "updateContentEnabled", w->updateContentEnabled(r.coin())),
        ACT(C, "setAutoUpdateContent", w->setAutoUpdateContent(r.coin())),
        ACT(C, "setEdit", w->setEdit(r.coin())),
        ACT(C, "addUnderLine", w->addUnderLine()),
        ACT(C, "removeUnderLine", w->removeUnderLine()),
        ACT(C, "getWidgetRow", w->getWidgetRow()),
        ACT(C, "calculateTextLineCount", w->calculateTextLineCount(r.hostileText(), r.hostileSize(), w->font())),
        ACT(C, "calDynamicLayoutWidth", int width = r.hostileSize(); w->calDynamicLayoutWidth(width)),
    };
}

// The list interface every choice row shares.
std::vector<Action> listActions()
{
    using L = StringComboxBaseType;
    auto index = [](L* w, Rng& r) { return r.hostileIndex(w->count()); };
    return {
        ACT(L, "addItem", w->addItem(entryText(r), hostileVariant(r))),
        ACT(L, "addItem", w->addItem(entryText(r), r.between(0, 20))),
        ACT(L, "addItem", w->addItem(entryText(r))),
        act<L>(QStringLiteral("removeItem"), [index](L* w, Rng& r) { w->removeItem(index(w, r)); }),
        act<L>(QStringLiteral("insertItem"), [index](L* w, Rng& r) { w->insertItem(index(w, r), entryText(r), r.between(0, 20)); }),
        act<L>(QStringLiteral("setCurrentIndex"), [index](L* w, Rng& r) { w->setCurrentIndex(index(w, r)); }),
        act<L>(QStringLiteral("setCurrentIndex"), [index](L* w, Rng& r) { w->setCurrentIndex(index(w, r)); }),
        ACT(L, "setCurrentUserData", w->setCurrentUserData(r.coin() ? QVariant(r.between(-1, 20)) : hostileVariant(r))),
        ACT(L, "setCurrentText", w->setCurrentText(r.coin() ? entryText(r) : r.hostileText())),
        act<L>(QStringLiteral("setItemText"), [index](L* w, Rng& r) { w->setItemText(index(w, r), entryText(r)); }),
        act<L>(QStringLiteral("itemText/itemData"), [index](L* w, Rng& r) { w->itemText(index(w, r)); w->itemData(index(w, r), r.between(-1, 300)); }),
        act<L>(QStringLiteral("updateItems"), [index](L* w, Rng& r) {
            std::list<std::pair<int, QString>> items;
            for (int i = r.between(0, 4); i > 0; --i)
                items.emplace_back(index(w, r), entryText(r));
            w->updateItems(items);
        }),
        ACT(L, "clear", if (r.chance(0.3)) w->clear()),
        act<L>(QStringLiteral("setItemData"), [index](L* w, Rng& r) { w->setItemData(index(w, r), hostileVariant(r), r.coin() ? int(Qt::UserRole) : r.between(-1, 300)); }),
        act<L>(QStringLiteral("setRowHidden"), [index](L* w, Rng& r) { w->setRowHidden(index(w, r), r.coin()); }),
        ACT(L, "setHomeFramePoint", w->setHomeFramePoint(hostilePoint(r))),
        ACT(L, "setEditable", w->setEditable(r.chance(0.8))),
        ACT(L, "setDlgMenuWidgetHidden", w->setDlgMenuWidgetHidden(r.coin())),
        ACT(L, "findText/findData", w->findText(r.hostileText()); w->findData(hostileVariant(r), r.between(-1, 300))),
        ACT(L, "currentIndex/Text/Data", w->currentIndex(); w->currentText(); w->currentData(r.between(-1, 300))),
    };
}

QStringList const kRowWarnings = own({QStringLiteral("CommonItemType"), QStringLiteral("RollLabel")});

ClassEntry row(QString name, std::function<QWidget*(QWidget*)> create, std::vector<Action> specific,
               QStringList allowed = {})
{
    ClassEntry e{std::move(name), std::move(create), rowActions(), kRowWarnings + allowed};
    append(e.actions, specific);
    e.allowedWarnings << own({e.name});
    return e;
}

ClassEntry listRow(QString name, std::function<QWidget*(QWidget*)> create, std::vector<Action> specific,
                   QStringList allowed = {})
{
    ClassEntry e = row(std::move(name), std::move(create), listActions(),
                       allowed + own({QStringLiteral("StringComboxBaseType"), QStringLiteral("DropCombobox"),
                                      QStringLiteral("DialogMenuWidget"), QStringLiteral("TypeDialogMenu"),
                                      QStringLiteral("TypeStringCombox"), QStringLiteral("ListWidgetDelegate")}));
    append(e.actions, specific);
    return e;
}

ClassEntry plain(QString name, std::function<QWidget*(QWidget*)> create, std::vector<Action> actions,
                 QStringList allowed = {})
{
    ClassEntry e{std::move(name), std::move(create), std::move(actions), allowed};
    e.allowedWarnings << own({e.name});
    return e;
}

template <class T>
void fill(T* list, int n)
{
    for (int i = 0; i < n; ++i)
        list->addItem(QStringLiteral("Entry %1").arg(i), i);
}

// A concrete row, as a host derives its own rows from the base.
class HostRow : public CommonItemType
{
public:
    using CommonItemType::CommonItemType;
    void setContentDisabled(bool) const override {}
};

// The spin box's suffixes and quit strategies at random.
SuffixType suffix(Rng& r) { return SuffixType(r.between(0, 3)); }

} // namespace

void addRowClasses(std::vector<ClassEntry>& out)
{
    // ---- The row base and the list interfaces ----
    out.push_back(row(QStringLiteral("CommonItemType"), [](QWidget* page) -> QWidget* {
        auto* w = new HostRow(page);
        w->setItemTitle(QStringLiteral("Host row"));
        return w;
    }, {}));

    out.push_back(listRow(QStringLiteral("StringComboxBaseType"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeStringCombox(page);
        w->setItemTitle(QStringLiteral("Format"));
        fill(w, 5);
        return w;
    }, {}));

    // ---- Text and display rows ----
    out.push_back(row(QStringLiteral("TypeItemText"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemText(page);
        w->setItemTitle(QStringLiteral("Model"));
        w->setLabelValue(QStringLiteral("Switcher 8"), 0);
        return w;
    }, {
        ACT(TypeItemText, "setRollValue", w->setRollValue(hostileVariant(r))),
        ACT(TypeItemText, "setValueLabelFeed", w->setValueLabelFeed(r.coin())),
        ACT(TypeItemText, "setLabelStyle", w->setLabelStyle()),
        ACT(TypeItemText, "setValueLabelSize", w->setValueLabelSize(hostileQSize(r))),
        ACT(TypeItemText, "setIconButtonHide", w->setIconButtonHide(r.coin())),
        ACT(TypeItemText, "setIconButtonProperty", w->setIconButtonProperty("state", hostileVariant(r))),
        ACT(TypeItemText, "setIconButtonSize", w->setIconButtonSize(hostileQSize(r))),
        ACT(TypeItemText, "rightDistanceCorrection", w->rightDistanceCorrection(r.hostileSize())),
    }));

    out.push_back(row(QStringLiteral("TypeItemTextCenter"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemTextCenter(page);
        w->setLabelValue(QStringLiteral("Centred"), 0);
        return w;
    }, {
        ACT(TypeItemTextCenter, "setRollValue", w->setRollValue(hostileVariant(r))),
        ACT(TypeItemTextCenter, "setValueLabelFeed", w->setValueLabelFeed(r.coin())),
        ACT(TypeItemTextCenter, "setLabelStyle", w->setLabelStyle()),
        ACT(TypeItemTextCenter, "setValueLabelSize", w->setValueLabelSize(hostileQSize(r))),
    }));

    out.push_back(row(QStringLiteral("TypeItemValue"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemValue(page, 0);
        w->setItemTitle(QStringLiteral("Input"));
        w->setLabelValue(QStringLiteral("HDMI 1"), 0);
        return w;
    }, {
        ACT(TypeItemValue, "setRollLabelText", w->setRollLabelText(r.hostileText(), r.coin())),
        ACT(TypeItemValue, "setLeftImageHidden", w->setLeftImageHidden(r.coin() ? QString() : QStringLiteral("/no/such.png"), r.coin())),
        ACT(TypeItemValue, "setRightImageHidden", w->setRightImageHidden(r.coin() ? QString() : QStringLiteral("/no/such.png"), r.coin())),
        ACT(TypeItemValue, "setLabelIcon", w->setLabelIcon(r.coin() ? QString() : QStringLiteral("/no/such.png"))),
        ACT(TypeItemValue, "setIconVisible", w->setIconVisible(r.coin())),
        ACT(TypeItemValue, "setItemData", w->setItemData(hostileVariant(r))),
        ACT(TypeItemValue, "setItemValueProperty", w->setItemValueProperty("state", hostileVariant(r))),
        ACT(TypeItemValue, "setValueLabelHidden", w->setValueLabelHidden()),
    }));

    out.push_back(row(QStringLiteral("TypeItemValueBorder"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemValueBorder(page);
        w->setLabelValue(QStringLiteral("1080p50"), 0);
        return w;
    }, {}));

    out.push_back(row(QStringLiteral("TypeKeyValueText"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeKeyValueText(page);
        w->setKeyValueText(QStringLiteral("Serial"), QStringLiteral("A1B2C3"));
        return w;
    }, {
        ACT(TypeKeyValueText, "setKeyValueText", w->setKeyValueText(r.hostileText(), r.hostileText())),
        ACT(TypeKeyValueText, "setItemTitles", w->setItemTitles(r.hostileText())),
        ACT(TypeKeyValueText, "setItemWidth", w->setItemWidth(r.hostileSize())),
        ACT(TypeKeyValueText, "setValueLabelSize", w->setValueLabelSize(hostileQSize(r))),
        ACT(TypeKeyValueText, "getItemValueRow", w->getItemValueRow()),
    }));

    out.push_back(row(QStringLiteral("TypeItemArrow"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemArrow(page);
        w->setItemTitle(QStringLiteral("Audio"));
        return w;
    }, {
        ACT(TypeItemArrow, "setLabelText", w->setLabelText(r.between(-2, 4), hostileVariant(r))),
        ACT(TypeItemArrow, "labelText", w->labelText(r.hostileIndex(3))),
        ACT(TypeItemArrow, "setValueLabelHidden", w->setValueLabelHidden(r.hostileIndex(3), r.coin())),
        ACT(TypeItemArrow, "setLabelProperty", w->setLabelProperty(r.hostileIndex(3), "state", hostileVariant(r))),
        ACT(TypeItemArrow, "setTagLabelText", w->setTagLabelText(r.hostileText())),
        ACT(TypeItemArrow, "valueLabel", w->valueLabel(r.hostileIndex(3))),
    }));

    out.push_back(row(QStringLiteral("TypeItemButtom"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemButtom(page);
        w->setItemTitle(QStringLiteral("Update"));
        return w;
    }, {
        ACT(TypeItemButtom, "setLabelIcon", w->setLabelIcon(r.coin() ? QString() : QStringLiteral("/no/such.png"))),
        ACT(TypeItemButtom, "setIconVisible", w->setIconVisible(r.coin())),
        ACT(TypeItemButtom, "setProgressBarVisible", w->setProgressBarVisible(r.coin())),
        ACT(TypeItemButtom, "setProgressBarRange", w->setProgressBarRange(r.hostileInt(), r.hostileInt())),
        ACT(TypeItemButtom, "setProgressBarValue", w->setProgressBarValue(r.hostileInt())),
        ACT(TypeItemButtom, "setItemData", w->setItemData(hostileVariant(r))),
        ACT(TypeItemButtom, "itemWidthChanged", w->itemWidthChanged()),
    }));

    out.push_back(row(QStringLiteral("TypeItemLineWrap"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemLineWrap(page, 2);
        w->setLabelText(0, QStringLiteral("first"));
        return w;
    }, {
        ACT(TypeItemLineWrap, "setLabelText", w->setLabelText(r.hostileIndex(2), hostileVariant(r))),
        ACT(TypeItemLineWrap, "labelText", w->labelText(r.hostileIndex(2))),
        ACT(TypeItemLineWrap, "setLabelVisible", w->setLabelVisible(r.hostileIndex(2), r.coin())),
        ACT(TypeItemLineWrap, "setLabelProperty", w->setLabelProperty(r.hostileIndex(2), "state", hostileVariant(r))),
        ACT(TypeItemLineWrap, "getTextMaxWidth", w->getTextMaxWidth(hostileVariant(r))),
        ACT(TypeItemLineWrap, "getItemHeight", w->getItemHeight()),
        ACT(TypeItemLineWrap, "label", w->label(r.hostileIndex(2))),
    }));

    out.push_back(row(QStringLiteral("TypeItemMore"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemMore(page);
        w->setItemTitle(QStringLiteral("Layers"));
        return w;
    }, {
        ACT(TypeItemMore, "setArea", w->setArea(r.coin(), r.coin())),
        ACT(TypeItemMore, "setLoadingState", w->setLoadingState(TypeItemMore::LoadingState(r.between(-1, 4)))),
        ACT(TypeItemMore, "setLoadingState", w->setLoadingState(TypeItemMore::LoadingState(r.between(0, 3)))),
    }));

    out.push_back(row(QStringLiteral("TypeItemTick"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemTick(page);
        w->setItemTitle(QStringLiteral("Chosen"));
        return w;
    }, {ACT(TypeItemTick, "setTickLabelHidden", w->setTickLabelHidden(r.coin()))}));

    out.push_back(row(QStringLiteral("TypeItemTip"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemTip(page);
        w->setLabelValue(QStringLiteral("A tip that may wrap over more than one line of the row"), 0);
        return w;
    }, {
        ACT(TypeItemTip, "setIconHidden", w->setIconHidden(r.coin())),
        ACT(TypeItemTip, "setTextLabelWidth", w->setTextLabelWidth(r.hostileSize())),
    }, {QStringLiteral("^Invalid font size:")}));

    out.push_back(row(QStringLiteral("TypeMainButton"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeMainButton(page);
        w->setItemTitle(QStringLiteral("Settings"));
        return w;
    }, {}));

    out.push_back(row(QStringLiteral("TypeItemNull"), [](QWidget* page) -> QWidget* { return new TypeItemNull(page); },
                      {ACT(TypeItemNull, "setItemData", w->setItemData(hostileVariant(r)))}));

    out.push_back(row(QStringLiteral("TypeMultItemText"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeMultItemText(page);
        w->setLabelText(0, QStringLiteral("one"));
        w->setLabelText(1, QStringLiteral("two"));
        return w;
    }, {
        ACT(TypeMultItemText, "setLabelText", w->setLabelText(r.hostileIndex(3), hostileVariant(r))),
        ACT(TypeMultItemText, "getLabelText", w->getLabelText(r.hostileIndex(3))),
        ACT(TypeMultItemText, "setLabelProperty", w->setLabelProperty(r.hostileIndex(3), "state", hostileVariant(r))),
        ACT(TypeMultItemText, "setLabelWidth", w->setLabelWidth(r.hostileSize())),
        ACT(TypeMultItemText, "calTextSize", w->calTextSize(r.hostileText(), r.hostileSize())),
        ACT(TypeMultItemText, "label", w->label(r.hostileIndex(3))),
    }, {QStringLiteral("^Invalid font size:")}));

    out.push_back(row(QStringLiteral("TypeKeyCheck"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeKeyCheck(page);
        w->setLabelText(0, QStringLiteral("Key 1"));
        return w;
    }, {
        ACT(TypeKeyCheck, "setLabelText", w->setLabelText(r.hostileIndex(3), hostileVariant(r))),
        ACT(TypeKeyCheck, "setLabelProperty", w->setLabelProperty(r.hostileIndex(3), hostileVariant(r))),
        ACT(TypeKeyCheck, "label", w->label(r.hostileIndex(3))),
    }, own({QStringLiteral("TypeMultItemText")}) << QStringLiteral("^Invalid font size:")));

    // ---- Numeric rows ----
    QStringList const spin = own({QStringLiteral("NQSpinBox"), QStringLiteral("NQDoubleSpinBox"),
                                  QStringLiteral("knobspin"), QStringLiteral("spinrow")});
    out.push_back(row(QStringLiteral("TypeIntAdjust"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeIntAdjust(SuffixNone, QuitKeepValue, page);
        w->setItemTitle(QStringLiteral("Volume"));
        w->setRange(0, 100);
        w->setLabelValue(50, 0);
        return w;
    }, {
        ACT(TypeIntAdjust, "setRangeMin", w->setRangeMin(r.hostileInt())),
        ACT(TypeIntAdjust, "setRangeMax", w->setRangeMax(r.hostileInt())),
        ACT(TypeIntAdjust, "setSpinBoxShow", w->setSpinBoxShow(r.coin())),
        ACT(TypeIntAdjust, "setLabelText", w->setLabelText(r.hostileText())),
        ACT(TypeIntAdjust, "setSuffixType", w->setSuffixType(SuffixType(r.between(-1, 4)))),
        ACT(TypeIntAdjust, "setRoundOff", w->setRoundOff(r.coin())),
        ACT(TypeIntAdjust, "setSpinBoxWidth", w->setSpinBoxWidth()),
    }, spin));

    out.push_back(row(QStringLiteral("TypeIntAdjustSlider"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeIntAdjustSlider(SuffixPercent, QuitOnEnter, Qt::Horizontal, page);
        w->setItemTitle(QStringLiteral("Gain"));
        w->setRange(0, 100);
        return w;
    }, {
        ACT(TypeIntAdjustSlider, "setRangeMin", w->setRangeMin(r.hostileInt())),
        ACT(TypeIntAdjustSlider, "setRangeMax", w->setRangeMax(r.hostileInt())),
        ACT(TypeIntAdjustSlider, "setSuffixType", w->setSuffixType(SuffixType(r.between(-1, 4)))),
        ACT(TypeIntAdjustSlider, "setRoundOff", w->setRoundOff(r.coin())),
        ACT(TypeIntAdjustSlider, "setSpinBoxWidth", w->setSpinBoxWidth()),
    }, spin));

    out.push_back(row(QStringLiteral("TypeFloatAdjust"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeFloatAdjust(SuffixSecond, QuitOnFocusOut, page);
        w->setItemTitle(QStringLiteral("Duration"));
        w->setRange(0.0f, 10.0f);
        return w;
    }, {ACT(TypeFloatAdjust, "setDecimals", w->setDecimals(r.hostileInt()))}, spin));

    out.push_back(row(QStringLiteral("TypeSpinAdjust"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeSpinAdjust(page);
        w->setItemTitle(QStringLiteral("Position"));
        w->setLeftSpinContent(QStringLiteral("X 10"));
        w->setRightSpinContent(QStringLiteral("Y 20"));
        return w;
    }, {
        ACT(TypeSpinAdjust, "setLeftSpinContent", w->setLeftSpinContent(r.hostileText())),
        ACT(TypeSpinAdjust, "setRightSpinContent", w->setRightSpinContent(r.hostileText())),
        ACT(TypeSpinAdjust, "slotUpdateItemWidth", w->slotUpdateItemWidth(r.hostileSize())),
    }, own({QStringLiteral("ExtendSpinBox")})));

    out.push_back(row(QStringLiteral("TypeIntProgressBar"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeIntProgressBar(page);
        w->setItemTitle(QStringLiteral("Level"));
        w->setRange(0, 100);
        w->setValue(30);
        return w;
    }, {
        ACT(TypeIntProgressBar, "setValue", w->setValue(r.hostileInt())),
        ACT(TypeIntProgressBar, "setBarWidth", w->setBarWidth(r.hostileSize())),
        ACT(TypeIntProgressBar, "percent/text", w->percent(); w->text()),
    }));

    out.push_back(row(QStringLiteral("TypeColorAdjust"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeColorAdjust(page);
        w->setItemTitle(QStringLiteral("Colour"));
        w->setColor(QColor(200, 40, 40));
        return w;
    }, {ACT(TypeColorAdjust, "setColor", w->setColor(r.hostileColor()))}, spin));

    out.push_back(row(QStringLiteral("TypeDualInt"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeDualInt(page);
        w->setItemTitle(QStringLiteral("Size"));
        w->setLabelValue(QSize(1920, 1080), 0);
        return w;
    }, {ACT(TypeDualInt, "setLabelValue(text)", w->setLabelValue(QStringLiteral("%1x%2").arg(r.hostileInt()).arg(r.hostileInt()), 0))},
        own({QStringLiteral("NQDualLineEdit")})));

    out.push_back(row(QStringLiteral("MultiSpinBox"), [](QWidget* page) -> QWidget* {
        auto* w = new MultiSpinBox(QStringList{QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("W")}, page);
        w->setItemTitle(QStringLiteral("Window"));
        return w;
    }, {
        ACT(MultiSpinBox, "setCaptions", QStringList c; for (int i = r.between(0, 5); i > 0; --i) c << r.hostileText().left(40); w->setCaptions(c)),
        ACT(MultiSpinBox, "setFieldRange", w->setFieldRange(r.hostileIndex(w->count()), r.hostileInt(), r.hostileInt())),
        ACT(MultiSpinBox, "setFieldSingleStep", w->setFieldSingleStep(r.hostileIndex(w->count()), r.hostileInt())),
        ACT(MultiSpinBox, "setValue", w->setValue(r.hostileIndex(w->count()), r.hostileInt())),
        ACT(MultiSpinBox, "value", w->value(r.hostileIndex(w->count()))),
        ACT(MultiSpinBox, "spinBox", w->spinBox(r.hostileIndex(w->count()))),
    }, spin));

    out.push_back(row(QStringLiteral("MultipleSpinBox"), [](QWidget* page) -> QWidget* {
        auto* w = new MultipleSpinBox(page);
        w->setItemTitle(QStringLiteral("Crop"));
        w->addItem(QStringLiteral("Left"), 0, 100, 1, 10);
        w->addItem(QStringLiteral("Right"), 0, 100, 5, 20, SuffixPercent);
        return w;
    }, {
        ACT(MultipleSpinBox, "addItem", if (w->count() < 8) w->addItem(r.hostileText().left(40), r.hostileInt(), r.hostileInt(), r.hostileInt(), r.hostileInt(), suffix(r))),
        ACT(MultipleSpinBox, "clear", if (r.chance(0.2)) w->clear()),
        ACT(MultipleSpinBox, "setValue", w->setValue(r.hostileIndex(w->count()), r.hostileInt())),
        ACT(MultipleSpinBox, "value", w->value(r.hostileIndex(w->count()))),
        ACT(MultipleSpinBox, "item", w->item(r.hostileIndex(w->count()))),
    }, spin + own({QStringLiteral("MultipleSpinBoxItem")})));

    out.push_back(plain(QStringLiteral("MultipleSpinBoxItem"), [](QWidget* page) -> QWidget* {
        auto* w = new MultipleSpinBoxItem(QStringLiteral("Top"), SuffixNone, page);
        w->setRange(0, 50);
        return w;
    }, {
        ACT(MultipleSpinBoxItem, "setTitle", w->setTitle(r.hostileText())),
        ACT(MultipleSpinBoxItem, "setRange", w->setRange(r.hostileInt(), r.hostileInt())),
        ACT(MultipleSpinBoxItem, "setSingleStep", w->setSingleStep(r.hostileInt())),
        ACT(MultipleSpinBoxItem, "setValue", w->setValue(r.hostileInt())),
        ACT(MultipleSpinBoxItem, "setCurrent", w->setCurrent(r.coin())),
        ACT(MultipleSpinBoxItem, "setFontSize", w->setFontSize(r.hostileSize())),
    }, spin + own({QStringLiteral("MultipleSpinBox")})));

    out.push_back(plain(QStringLiteral("NQSpinBox"), [](QWidget* page) -> QWidget* {
        auto* w = new NQSpinBox(SuffixPercent, QuitOnFocusOut, 1, page);
        w->setRange(0, 100);
        return w;
    }, {
        ACT(NQSpinBox, "setRange", w->setRange(r.hostileInt(), r.hostileInt())),
        ACT(NQSpinBox, "setSingleStep", w->setSingleStep(r.hostileInt())),
        ACT(NQSpinBox, "setValueByManual", w->setValueByManual(r.hostileInt())),
        ACT(NQSpinBox, "setSuffixType", w->setSuffixType(SuffixType(r.between(-1, 4)))),
        ACT(NQSpinBox, "setRoundOff", w->setRoundOff(r.coin())),
        ACT(NQSpinBox, "getStep", w->getStep(hostileFloat(r))),
        ACT(NQSpinBox, "stepFor", NQSpinBox::stepFor(hostileFloat(r), r.hostileInt(), r.hostileInt(), r.hostileInt())),
        ACT(NQSpinBox, "calRoundOff", w->calRoundOff(r.hostileInt())),
        ACT(NQSpinBox, "setSelection", w->setSelection()),
        ACT(NQSpinBox, "unSelection", w->unSelection()),
    }, spin));

    out.push_back(plain(QStringLiteral("NQDoubleSpinBox"), [](QWidget* page) -> QWidget* {
        auto* w = new NQDoubleSpinBox(SuffixSecond, QuitOnEnter, page);
        w->setRange(0.0, 10.0);
        return w;
    }, {
        ACT(NQDoubleSpinBox, "setRange", w->setRange(r.hostileDouble(), r.hostileDouble())),
        ACT(NQDoubleSpinBox, "setSingleStep", w->setSingleStep(r.hostileDouble())),
        ACT(NQDoubleSpinBox, "setDecimals", w->setDecimals(r.between(-3, 20))),
        ACT(NQDoubleSpinBox, "setValueByManual", w->setValueByManual(r.hostileDouble())),
        ACT(NQDoubleSpinBox, "getStep", w->getStep(hostileFloat(r))),
        ACT(NQDoubleSpinBox, "stepFor", NQDoubleSpinBox::stepFor(hostileFloat(r), r.hostileDouble(), r.hostileDouble(), r.hostileDouble())),
        ACT(NQDoubleSpinBox, "setSelection", w->setSelection()),
    }, spin));

    out.push_back(plain(QStringLiteral("ExtendSpinBox"), [](QWidget* page) -> QWidget* {
        auto* w = new ExtendSpinBox(static_cast<QFrame*>(nullptr));
        w->setParent(page);
        w->setDisplayText(QStringLiteral("12"));
        return w;
    }, {
        ACT(ExtendSpinBox, "setCtrlSelect", w->setCtrlSelect(r.coin())),
        ACT(ExtendSpinBox, "setFocusBlueBg", w->setFocusBlueBg(r.coin())),
        ACT(ExtendSpinBox, "setLeftButtonPressed", w->setLeftButtonPressed(r.coin())),
        ACT(ExtendSpinBox, "setRightButtonPressed", w->setRightButtonPressed(r.coin())),
        ACT(ExtendSpinBox, "setDisplayText", w->setDisplayText(r.hostileText())),
        ACT(ExtendSpinBox, "resetWidth", w->resetWidth(r.hostileSize())),
        ACT(ExtendSpinBox, "resetIconSize", w->resetIconSize(hostileQSize(r))),
        ACT(ExtendSpinBox, "setContentFontSize", w->setContentFontSize(r.hostileSize())),
        ACT(ExtendSpinBox, "slotLeftButtonPressed", w->slotLeftButtonPressed()),
        ACT(ExtendSpinBox, "slotRightButtonReleased", w->slotRightButtonReleased()),
    }));

    // ---- Editors ----
    QStringList const edits = own({QStringLiteral("QMLineEdit"), QStringLiteral("NSignalLineEdit"),
                                   QStringLiteral("NDoubleLineEdit"), QStringLiteral("NQDualLineEdit")});
    out.push_back(row(QStringLiteral("TypeItemEdit"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemEdit(page);
        w->setItemTitle(QStringLiteral("Name"));
        w->setLabelValue(QStringLiteral("Studio A"), 0);
        return w;
    }, {
        ACT(TypeItemEdit, "setPasswordMode", w->setPasswordMode(r.coin())),
        ACT(TypeItemEdit, "setPlaceholderText", w->setPlaceholderText(r.hostileText())),
        ACT(TypeItemEdit, "setValueLabelSize", w->setValueLabelSize(hostileQSize(r))),
        ACT(TypeItemEdit, "setIconButtonSize", w->setIconButtonSize(hostileQSize(r))),
    }, edits));

    out.push_back(row(QStringLiteral("LineEditorWidget"), [](QWidget* page) -> QWidget* {
        static int n = 0;
        auto* w = new LineEditorWidget(page, (n++ % 2) ? LineEditorWidget::PadText : LineEditorWidget::KnobText);
        w->setItemTitle(QStringLiteral("Label"));
        return w;
    }, {
        ACT(LineEditorWidget, "setTextMaxLength", w->setTextMaxLength(r.hostileInt())),
        ACT(LineEditorWidget, "setCharacterSet", w->setCharacterSet(r.coin() ? QString() : r.hostileText().left(100))),
        ACT(LineEditorWidget, "setPlaceholder", w->setPlaceholder(r.hostileText())),
        ACT(LineEditorWidget, "setUnit", w->setUnit(r.hostileText())),
        ACT(LineEditorWidget, "setEditorWidth", w->setEditorWidth(r.hostileSize())),
    }, edits));

    out.push_back(plain(QStringLiteral("QMLineEdit"), [](QWidget* page) -> QWidget* { return new QMLineEdit(page); }, {
        ACT(QMLineEdit, "setCharacterSet", w->setCharacterSet(r.coin() ? QString() : r.hostileText().left(100))),
        ACT(QMLineEdit, "setTextMaxLength", w->setTextMaxLength(r.hostileInt())),
        ACT(QMLineEdit, "setValueText", w->setValueText(r.hostileText())),
        ACT(QMLineEdit, "finishEdit", w->finishEdit()),
    }));

    out.push_back(plain(QStringLiteral("NSignalLineEdit"), [](QWidget* page) -> QWidget* { return new NSignalLineEdit(page); }, {
        ACT(NSignalLineEdit, "setEditOnFocus", w->setEditOnFocus(r.coin())),
        ACT(NSignalLineEdit, "setTextMaxLength", w->setTextMaxLength(r.hostileInt())),
        ACT(NSignalLineEdit, "setText", w->setText(r.hostileText())),
        ACT(NSignalLineEdit, "startEdit", w->startEdit()),
        ACT(NSignalLineEdit, "finishEdit", w->finishEdit()),
    }));

    out.push_back(plain(QStringLiteral("NDoubleLineEdit"), [](QWidget* page) -> QWidget* {
        auto* w = new NDoubleLineEdit(page);
        w->setRange(0.0, 100.0);
        return w;
    }, {
        ACT(NDoubleLineEdit, "setRange", w->setRange(r.hostileDouble(), r.hostileDouble())),
        ACT(NDoubleLineEdit, "setDecimals", w->setDecimals(r.hostileInt())),
        ACT(NDoubleLineEdit, "setSingleStep", w->setSingleStep(r.hostileDouble())),
        ACT(NDoubleLineEdit, "setValue", w->setValue(r.hostileDouble())),
        ACT(NDoubleLineEdit, "stepFor", w->stepFor(hostileFloat(r))),
        ACT(NDoubleLineEdit, "finishEdit", w->finishEdit()),
    }));

    out.push_back(plain(QStringLiteral("NQDualLineEdit"), [](QWidget* page) -> QWidget* { return new NQDualLineEdit(page); }, {
        ACT(NQDualLineEdit, "setText", w->setText(r.hostileText())),
        ACT(NQDualLineEdit, "setValue", w->setValue(QSize(r.hostileInt(), r.hostileInt()))),
        ACT(NQDualLineEdit, "setRange", w->setRange(r.hostileInt(), r.hostileInt())),
        ACT(NQDualLineEdit, "setFieldRange", w->setFieldRange(r.between(-2, 3), r.hostileInt(), r.hostileInt())),
        ACT(NQDualLineEdit, "setSingleStep", w->setSingleStep(r.hostileInt())),
        ACT(NQDualLineEdit, "setSeparator", w->setSeparator(r.hostileText())),
    }));

    out.push_back(plain(QStringLiteral("QDoubleLineEditWidget"), [](QWidget* page) -> QWidget* {
        auto* w = new QDoubleLineEditWidget(QStringLiteral("Gamma"), QStringLiteral("x"), page);
        w->setRange(0.1, 4.0);
        return w;
    }, {
        ACT(QDoubleLineEditWidget, "setTitle", w->setTitle(r.hostileText())),
        ACT(QDoubleLineEditWidget, "setUnit", w->setUnit(r.hostileText())),
        ACT(QDoubleLineEditWidget, "setRange", w->setRange(r.hostileDouble(), r.hostileDouble())),
        ACT(QDoubleLineEditWidget, "setDecimals", w->setDecimals(r.hostileInt())),
        ACT(QDoubleLineEditWidget, "setSingleStep", w->setSingleStep(r.hostileDouble())),
        ACT(QDoubleLineEditWidget, "setValue", w->setValue(r.hostileDouble())),
        ACT(QDoubleLineEditWidget, "startEdit", w->startEdit()),
    }, own({QStringLiteral("NDoubleLineEdit")})));

    out.push_back(plain(QStringLiteral("QSignalLineEditWidget"), [](QWidget* page) -> QWidget* {
        return new QSignalLineEditWidget(QStringLiteral("Host"), QString(), page);
    }, {
        ACT(QSignalLineEditWidget, "setTitle", w->setTitle(r.hostileText())),
        ACT(QSignalLineEditWidget, "setUnit", w->setUnit(r.hostileText())),
        ACT(QSignalLineEditWidget, "setText", w->setText(r.hostileText())),
        ACT(QSignalLineEditWidget, "startEdit", w->startEdit()),
    }, own({QStringLiteral("NSignalLineEdit")})));

    // ---- Labels ----
    out.push_back(plain(QStringLiteral("RollLabel"), [](QWidget* page) -> QWidget* {
        auto* w = new RollLabel(page);
        w->setTextLabel(QStringLiteral("A long title that rolls when it does not fit"), true);
        return w;
    }, {
        ACT(RollLabel, "setWidth", w->setWidth(r.hostileSize())),
        ACT(RollLabel, "setItemName", w->setItemName(r.hostileText())),
        ACT(RollLabel, "setTextLabel", w->setTextLabel(r.hostileText(), r.coin())),
        ACT(RollLabel, "setCalTextLabel", w->setCalTextLabel(r.hostileText(), r.hostileSize(), r.coin())),
        ACT(RollLabel, "setspeed", w->setspeed(r.hostileInt(), r.hostileInt())),
        ACT(RollLabel, "setPixmapLabel", w->setPixmapLabel(r.coin() ? QPixmap() : QPixmap(8, 8))),
        ACT(RollLabel, "upateLabelRollingState", w->upateLabelRollingState()),
        ACT(RollLabel, "updateText", w->updateText()),
    }));

    out.push_back(plain(QStringLiteral("EllipsisLabel"), [](QWidget* page) -> QWidget* {
        auto* w = new EllipsisLabel(page);
        w->setText(QStringLiteral("A label that is cut with an ellipsis"));
        return w;
    }, {
        ACT(EllipsisLabel, "setText", w->setText(r.hostileText())),
        ACT(EllipsisLabel, "updateElidedText", w->updateElidedText(r.hostileSize())),
    }));

    // ---- Frames of buttons ----
    out.push_back(plain(QStringLiteral("BottomButtomFrame"), [](QWidget* page) -> QWidget* {
        static int n = 0;
        int const types[] = {1, 3, 2 | 4, 8 | 16, 31, 0, 64};
        auto* w = new BottomButtomFrame(Enum::BottomButtonType(types[n++ % 7]), page);
        return w;
    }, {
        ACT(BottomButtomFrame, "button", w->button(Enum::BottomButtonType(r.pick<int>({-1, 0, 1, 2, 4, 8, 16, 32, 64})))),
        ACT(BottomButtomFrame, "retranslateUi", w->retranslateUi()),
    }));

    out.push_back(plain(QStringLiteral("ResetApplyWidget"), [](QWidget* page) -> QWidget* {
        static int n = 0;
        return new ResetApplyWidget(Enum::ResetApplyButtonType(n++ % 5), page);
    }, {
        ACT(ResetApplyWidget, "setEnable", w->setEnable(r.coin())),
        ACT(ResetApplyWidget, "polishBtnStyle", w->polishBtnStyle()),
        ACT(ResetApplyWidget, "retranslateUi", w->retranslateUi()),
        ACT(ResetApplyWidget, "buttons", w->getfirstButton(); w->getResetButton(); w->getApplyButton()),
    }));
    out.push_back(plain(QStringLiteral("TypeReset"), child<TypeReset>(), {ACT(TypeReset, "retranslateUi", w->retranslateUi())}));
    out.push_back(plain(QStringLiteral("TypeApply"), child<TypeApply>(), {ACT(TypeApply, "retranslateUi", w->retranslateUi())}));
    out.push_back(plain(QStringLiteral("TypeResetApply"), child<TypeResetApply>(), {ACT(TypeResetApply, "retranslateUi", w->retranslateUi())}));

    // ---- Progress ----
    out.push_back(plain(QStringLiteral("ProgressBarCtr"), [](QWidget* page) -> QWidget* {
        auto* w = new ProgressBarCtr(QRect(0, 0, 800, 480), page);
        w->setCount(3);
        return w;
    }, {
        ACT(ProgressBarCtr, "setCount", w->setCount(r.hostileInt())),
        ACT(ProgressBarCtr, "setCurrentValue", w->setCurrentValue(r.hostileDouble())),
        ACT(ProgressBarCtr, "setCurrentValue", w->setCurrentValue(r.real(0.0, 400.0))),
        ACT(ProgressBarCtr, "setFinish", w->setFinish()),
        ACT(ProgressBarCtr, "setError", w->setError()),
        ACT(ProgressBarCtr, "setError(text)", w->setError(r.hostileText())),
        ACT(ProgressBarCtr, "setInfo", w->setInfo(r.hostileText())),
        ACT(ProgressBarCtr, "Clear", w->Clear()),
        ACT(ProgressBarCtr, "setProgressText", w->setProgressText(r.hostileText())),
        ACT(ProgressBarCtr, "setFontSize", w->setFontSize(r.hostileSize())),
        ACT(ProgressBarCtr, "setProcessShow", w->setProcessShow(r.coin())),
        ACT(ProgressBarCtr, "setValueLabelVisable", w->setValueLabelVisable(r.coin())),
        ACT(ProgressBarCtr, "setSpecialValue", w->setSpecialValue(r.hostileDouble())),
        ACT(ProgressBarCtr, "setSpecialProcess", w->setSpecialProcess(r.hostileDouble())),
        ACT(ProgressBarCtr, "setProcess", w->setProcess(r.hostileDouble())),
    }));

    // ---- Lists and menus ----
    out.push_back(listRow(QStringLiteral("TypeStringCombox"), [](QWidget* page) -> QWidget* {
        static int n = 0;
        auto* w = new TypeStringCombox(page, n++ % 2 == 0);
        w->setItemTitle(QStringLiteral("Resolution"));
        fill(w, 6);
        return w;
    }, {
        ACT(TypeStringCombox, "addItem(icon)", w->addItem(QIcon(), entryText(r), r.between(0, 20))),
        ACT(TypeStringCombox, "addItem(icon,value)", w->addItem(QIcon(), r.hostileInt())),
        ACT(TypeStringCombox, "showPopup", w->showPopup(r.coin())),
        ACT(TypeStringCombox, "hidePopup", w->hidePopup()),
        ACT(TypeStringCombox, "setRowSelected", w->setRowSelected(r.hostileIndex(w->count()))),
        ACT(TypeStringCombox, "setComboBoxVisible", w->setComboBoxVisible(r.coin())),
        ACT(TypeStringCombox, "setIconSize", w->setIconSize(hostileQSize(r))),
        ACT(TypeStringCombox, "setComboboxEditable", w->setComboboxEditable(r.coin())),
        ACT(TypeStringCombox, "updateComboboxEditable", w->updateComboboxEditable()),
        ACT(TypeStringCombox, "initComboBoxWidth", w->initComboBoxWidth()),
        ACT(TypeStringCombox, "setIsNeedShowCombox", w->setIsNeedShowCombox(r.coin())),
        ACT(TypeStringCombox, "setPreValueLabelHidden", w->setPreValueLabelHidden(r.coin())),
        ACT(TypeStringCombox, "setPreValueLabelText", w->setPreValueLabelText(r.hostileText())),
        ACT(TypeStringCombox, "setPreValueLabelProperty", w->setPreValueLabelProperty(r.coin() ? "" : "state", hostileVariant(r))),
        ACT(TypeStringCombox, "setPreValueLabelUserdata", w->setPreValueLabelUserdata(hostileVariant(r))),
        ACT(TypeStringCombox, "setPreValueLabelObjectName", w->setPreValueLabelObjectName(r.hostileText())),
        ACT(TypeStringCombox, "setLastValueLabelHidden", w->setLastValueLabelHidden(r.coin())),
        ACT(TypeStringCombox, "setLastValueLabelProperty", w->setLastValueLabelProperty(r.coin() ? "" : "state", hostileVariant(r))),
    }));

    out.push_back(listRow(QStringLiteral("TypeDialogMenu"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeDialogMenu(page, dynamic_cast<LCD::MainWidgets::IHomeFrame*>(page));
        w->setItemTitle(QStringLiteral("Transition"));
        fill(w, 7);
        return w;
    }, {
        ACT(TypeDialogMenu, "setDialogTitle", w->setDialogTitle(r.hostileText())),
        ACT(TypeDialogMenu, "setTextLabelProperty", w->setTextLabelProperty(r.coin() ? QString() : QStringLiteral("state"))),
        ACT(TypeDialogMenu, "slotSelectedIndexChanged", w->slotSelectedIndexChanged(r.hostileIndex(w->count()))),
        ACT(TypeDialogMenu, "slotCurrentIndexChanged", w->slotCurrentIndexChanged(r.hostileIndex(w->count()))),
        ACT(TypeDialogMenu, "slotCurrentChanged", w->slotCurrentChanged(r.hostileText())),
        ACT(TypeDialogMenu, "slotSelectedChanged", w->slotSelectedChanged(r.hostileText())),
    }));

    out.push_back(listRow(QStringLiteral("TypeItemSliderList"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemSliderList(page);
        w->setItemTitle(QStringLiteral("Pattern"));
        fill(w, 5);
        return w;
    }, {}));

    QStringList const doubles = own({QStringLiteral("DoubleComboxBaseType")});
    auto doubleActions = [] {
        return std::vector<Action>{
            ACT(DoubleComboxBaseType, "addSecondItem", w->addSecondItem(entryText(r), r.between(0, 20))),
            ACT(DoubleComboxBaseType, "setSecondCurrentIndex", w->setSecondCurrentIndex(r.hostileIndex(w->secondCount()))),
            ACT(DoubleComboxBaseType, "setSecondCurrentText", w->setSecondCurrentText(entryText(r))),
            ACT(DoubleComboxBaseType, "setSeparatorText", w->setSeparatorText(r.hostileText())),
            ACT(DoubleComboxBaseType, "second*", w->secondCurrentIndex(); w->secondCurrentText(); w->secondCurrentData(r.between(-1, 300))),
        };
    };
    out.push_back(listRow(QStringLiteral("DoubleComboxBaseType"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemDoubleCombox(page);
        fill(w, 4);
        for (int i = 0; i < 3; ++i)
            w->addSecondItem(QStringLiteral("Second %1").arg(i), i);
        return w;
    }, doubleActions(), doubles));
    out.push_back(listRow(QStringLiteral("TypeItemDoubleCombox"), [](QWidget* page) -> QWidget* {
        static int n = 0;
        auto* w = new TypeItemDoubleCombox(page, n++ % 2 == 0);
        w->setItemTitle(QStringLiteral("Audio pair"));
        fill(w, 4);
        for (int i = 0; i < 3; ++i)
            w->addSecondItem(QStringLiteral("Second %1").arg(i), i);
        return w;
    }, doubleActions(), doubles));
    out.push_back(listRow(QStringLiteral("TypeItemDialogDoubleCombox"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemDialogDoubleCombox(page, dynamic_cast<LCD::MainWidgets::IHomeFrame*>(page));
        w->setItemTitle(QStringLiteral("Key"));
        fill(w, 4);
        for (int i = 0; i < 3; ++i)
            w->addSecondItem(QStringLiteral("Second %1").arg(i), i);
        return w;
    }, [&] {
        auto a = doubleActions();
        a.push_back(ACT(TypeItemDialogDoubleCombox, "setDialogTitles", w->setDialogTitles(r.hostileText(), r.hostileText())));
        return a;
    }(), doubles));
    out.push_back(listRow(QStringLiteral("TypeInputBackupCombox"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeInputBackupCombox(page);
        w->setItemTitle(QStringLiteral("Input / backup"));
        fill(w, 5);
        return w;
    }, [&] {
        auto a = doubleActions();
        append(a, {
            ACT(TypeInputBackupCombox, "setBackupIndex", w->setBackupIndex(r.hostileIndex(w->count()))),
            ACT(TypeInputBackupCombox, "setBackupText", w->setBackupText(entryText(r))),
            ACT(TypeInputBackupCombox, "setBackupUserData", w->setBackupUserData(r.coin() ? QVariant(r.between(-1, 10)) : hostileVariant(r))),
            ACT(TypeInputBackupCombox, "isBackupCandidate", w->isBackupCandidate(r.hostileIndex(w->count()))),
        });
        return a;
    }(), doubles + own({QStringLiteral("TypeItemDoubleCombox")})));

    out.push_back(plain(QStringLiteral("DropCombobox"), [](QWidget* page) -> QWidget* {
        static int n = 0;
        auto* w = new DropCombobox(n++ % 2 == 0, page);
        fill(w, 6);
        w->setHomeRect(QRect(0, 0, 800, 480));
        return w;
    }, {
        ACT(DropCombobox, "addItem", w->addItem(entryText(r), r.between(0, 20))),
        ACT(DropCombobox, "clear", if (r.chance(0.2)) w->clear()),
        ACT(DropCombobox, "setCurrentIndex", w->setCurrentIndex(r.between(-1, w->count()))),
        ACT(DropCombobox, "setFontSize", w->setFontSize(r.hostileSize())),
        ACT(DropCombobox, "setHeight", w->setHeight(r.hostileSize())),
        ACT(DropCombobox, "setHomeRect", w->setHomeRect(hostileRect(r))),
        ACT(DropCombobox, "setLineEditAlign", w->setLineEditAlign(r.coin() ? Qt::AlignCenter : Qt::AlignLeft)),
        ACT(DropCombobox, "setComboxAutomaticCal", w->setComboxAutomaticCal(r.coin())),
        ACT(DropCombobox, "setIsNeedShowCombox", w->setIsNeedShowCombox(r.coin())),
        ACT(DropCombobox, "setCurrentItem", w->setCurrentItem(r.coin())),
        ACT(DropCombobox, "setArrowSize", w->setArrowSize(hostileQSize(r))),
        ACT(DropCombobox, "setComboBoxWidthLimit", w->setComboBoxWidthLimit(r.hostileSize())),
        ACT(DropCombobox, "setComboBoxMaxWidth", w->setComboBoxMaxWidth()),
        ACT(DropCombobox, "showPopup", w->showPopup()),
        ACT(DropCombobox, "hidePopup", w->hidePopup()),
        ACT(DropCombobox, "slotCloseEdit", w->slotCloseEdit()),
        ACT(DropCombobox, "slotIndexChanged", w->slotIndexChanged(r.hostileIndex(w->count()))),
        ACT(DropCombobox, "isRowHidden", w->isRowHidden(r.hostileIndex(w->count()))),
    }));

    out.push_back(plain(QStringLiteral("FocusComboBox"), [](QWidget* page) -> QWidget* {
        auto* w = new FocusComboBox(page);
        fill(w, 4);
        return w;
    }, {
        ACT(FocusComboBox, "addItem", w->addItem(entryText(r))),
        ACT(FocusComboBox, "setCurrentIndex", w->setCurrentIndex(r.between(-1, w->count()))),
        ACT(FocusComboBox, "showPopup", w->showPopup()),
        ACT(FocusComboBox, "hidePopup", w->hidePopup()),
    }));

    out.push_back(plain(QStringLiteral("CustomListView"), [](QWidget* page) -> QWidget* {
        auto* w = new CustomListView(page);
        auto* model = new QStandardItemModel(w);
        for (int i = 0; i < 8; ++i)
            model->appendRow(new QStandardItem(i % 3 ? QStringLiteral("Entry %1").arg(i)
                                                     : QStringLiteral("A very long entry whose text scrolls along %1").arg(i)));
        w->setModel(model);
        return w;
    }, {
        ACT(CustomListView, "setCurrentIndex", w->setCurrentIndex(w->model()->index(r.between(-1, 9), 0))),
        ACT(CustomListView, "addRow", static_cast<QStandardItemModel*>(w->model())->appendRow(new QStandardItem(r.hostileText().left(2000)))),
        ACT(CustomListView, "removeRow", w->model()->removeRow(r.between(-1, w->model()->rowCount()))),
    }));

    out.push_back(plain(QStringLiteral("ScrollingTextDelegate"), [](QWidget* page) -> QWidget* {
        auto* w = new CustomListView(page);
        auto* model = new QStandardItemModel(w);
        for (int i = 0; i < 6; ++i)
            model->appendRow(new QStandardItem(QStringLiteral("A long entry that has to scroll to be read, number %1").arg(i)));
        w->setModel(model);
        return w;
    }, {
        ACT(CustomListView, "setScrollingRow", w->scrollingDelegate()->setScrollingRow(r.hostileIndex(w->model()->rowCount()))),
        ACT(CustomListView, "advance", for (int i = r.between(1, 50); i > 0; --i) w->scrollingDelegate()->advance()),
        ACT(CustomListView, "reset", w->scrollingDelegate()->reset()),
        ACT(CustomListView, "setItemText", w->model()->setData(w->model()->index(r.between(0, 5), 0), r.hostileText().left(3000))),
    }));

    out.push_back(plain(QStringLiteral("ListWidgetDelegate"), [](QWidget* page) -> QWidget* {
        auto* w = new QListWidget(page);
        w->setItemDelegate(new ListWidgetDelegate(w));
        for (int i = 0; i < 6; ++i)
            w->addItem(QStringLiteral("Entry %1").arg(i));
        return w;
    }, {
        ACT(QListWidget, "setFontPixelSize", static_cast<ListWidgetDelegate*>(w->itemDelegate())->setFontPixelSize(r.hostileSize())),
        ACT(QListWidget, "setSelectedColor", static_cast<ListWidgetDelegate*>(w->itemDelegate())->setSelectedColor(r.hostileColor())),
        ACT(QListWidget, "setNormalColor", static_cast<ListWidgetDelegate*>(w->itemDelegate())->setNormalColor(r.hostileColor())),
        ACT(QListWidget, "addItem", w->addItem(r.hostileText().left(2000))),
        ACT(QListWidget, "setCurrentRow", w->setCurrentRow(r.between(-1, w->count()))),
    }));

    out.push_back(plain(QStringLiteral("WrapListDelegate"), [](QWidget* page) -> QWidget* {
        auto* w = new QListWidget(page);
        w->setItemDelegate(new WrapListDelegate(w));
        w->setWordWrap(true);
        for (int i = 0; i < 5; ++i)
            w->addItem(QStringLiteral("An entry long enough to wrap over two or three lines of the list, number %1").arg(i));
        return w;
    }, {
        ACT(QListWidget, "setTextMargins", static_cast<WrapListDelegate*>(w->itemDelegate())->setTextMargins(r.hostileSize(), r.hostileSize())),
        ACT(QListWidget, "setMaximumLines", static_cast<WrapListDelegate*>(w->itemDelegate())->setMaximumLines(r.hostileInt())),
        ACT(QListWidget, "lineCount", static_cast<WrapListDelegate*>(w->itemDelegate())->lineCount(r.hostileText().left(3000), w->font(), r.hostileSize())),
        ACT(QListWidget, "addItem", w->addItem(r.hostileText().left(3000))),
        ACT(QListWidget, "doItemsLayout", w->doItemsLayout()),
    }));

    out.push_back(plain(QStringLiteral("NQListWidget"), [](QWidget* page) -> QWidget* {
        auto* w = new NQListWidget(page);
        for (int i = 0; i < 8; ++i)
            w->addItem(i % 3 ? QStringLiteral("Entry %1").arg(i) : QStringLiteral("A long entry that does not fit the list's width %1").arg(i));
        return w;
    }, {
        ACT(NQListWidget, "setCurrentIndex", w->setCurrentIndex(r.hostileIndex(w->count()))),
        ACT(NQListWidget, "setContentFontSize", w->setContentFontSize(r.hostileSize())),
        ACT(NQListWidget, "setWrapText", w->setWrapText(r.coin())),
        ACT(NQListWidget, "setScrollInterval", w->setScrollInterval(r.hostileInt())),
        ACT(NQListWidget, "addItem", w->addItem(r.hostileText().left(2000))),
        ACT(NQListWidget, "clear", if (r.chance(0.2)) w->clear()),
    }, own({QStringLiteral("WrapListDelegate"), QStringLiteral("ScrollingTextDelegate")})));

    out.push_back(plain(QStringLiteral("DialogMenuWidget"), [](QWidget* page) -> QWidget* {
        auto* w = new DialogMenuWidget(page);
        QVector<DialogMenuWidget::Entry> items;
        for (int i = 0; i < 9; ++i)
            items.append({QStringLiteral("Choice %1").arg(i), {{int(Qt::UserRole), i}}});
        w->setListItems(items);
        w->setDialogMenuTitle(QStringLiteral("Transition"));
        w->show();
        return w;
    }, {
        ACT(DialogMenuWidget, "exec", if (!QApplication::activeModalWidget()) w->exec()),
        ACT(DialogMenuWidget, "setListItems", QVector<DialogMenuWidget::Entry> items;
            for (int i = r.between(0, 12); i > 0; --i) items.append({entryText(r), {{int(Qt::UserRole), r.between(0, 20)}}});
            w->setListItems(items)),
        ACT(DialogMenuWidget, "updateItemDatas", QVector<DialogMenuWidget::Entry> items;
            for (int i = r.between(0, 12); i > 0; --i) items.append({entryText(r), {{r.between(-1, 300), hostileVariant(r)}}});
            w->updateItemDatas(items)),
        ACT(DialogMenuWidget, "setCurrentIndex", w->setCurrentIndex(r.hostileIndex(w->count()))),
        ACT(DialogMenuWidget, "updateCurrentIndex", w->updateCurrentIndex(r.hostileIndex(w->count()), r.coin())),
        ACT(DialogMenuWidget, "getItemData/Text", w->getItemData(r.hostileIndex(w->count()), r.between(-1, 300)); w->getItemText(r.hostileIndex(w->count()))),
        ACT(DialogMenuWidget, "setItemData", w->setItemData(r.hostileIndex(w->count()), hostileVariant(r), r.between(-1, 300))),
        ACT(DialogMenuWidget, "setItemText", w->setItemText(r.hostileIndex(w->count()), entryText(r))),
        ACT(DialogMenuWidget, "setCurrentText", w->setCurrentText(entryText(r))),
        ACT(DialogMenuWidget, "setCurrentData", w->setCurrentData(hostileVariant(r))),
        ACT(DialogMenuWidget, "setRowHidden", w->setRowHidden(r.hostileIndex(w->count()), r.coin())),
        ACT(DialogMenuWidget, "clear", if (r.chance(0.2)) w->clear()),
        ACT(DialogMenuWidget, "setDialogMenuTitle", w->setDialogMenuTitle(r.hostileText())),
        ACT(DialogMenuWidget, "setMenuWidgetHeight", w->setMenuWidgetHeight(r.hostileSize())),
        ACT(DialogMenuWidget, "updateItemHeight", w->updateItemHeight(r.hostileSize(), r.hostileSize())),
        ACT(DialogMenuWidget, "setFlow", w->setFlow(r.coin() ? QListView::LeftToRight : QListView::TopToBottom)),
        ACT(DialogMenuWidget, "setContentFontSize", w->setContentFontSize(r.hostileSize())),
        ACT(DialogMenuWidget, "setItemTextColor", w->setItemTextColor(r.hostileColor())),
        ACT(DialogMenuWidget, "setItemTextFont", QFont f; f.setPixelSize(r.between(1, 60)); w->setItemTextFont(f)),
    }, own({QStringLiteral("ListWidgetDelegate")})));

    out.push_back(plain(QStringLiteral("ExpandableTable"), [](QWidget* page) -> QWidget* {
        auto* w = new ExpandableTable(page);
        for (int g = 0; g < 3; ++g) {
            int const group = w->addGroup(QStringLiteral("Group %1").arg(g), g == 0);
            for (int i = 0; i < 3; ++i)
                w->addRow(group, QStringLiteral("Key %1").arg(i), QStringLiteral("Value %1").arg(i));
        }
        return w;
    }, {
        ACT(ExpandableTable, "addGroup", if (w->groupCount() < 20) w->addGroup(r.hostileText().left(300), r.coin())),
        ACT(ExpandableTable, "addRow", w->addRow(r.hostileIndex(w->groupCount()), r.hostileText().left(300), r.hostileText().left(300))),
        ACT(ExpandableTable, "removeGroup", w->removeGroup(r.hostileIndex(w->groupCount()))),
        ACT(ExpandableTable, "clearGroups", if (r.chance(0.2)) w->clearGroups()),
        ACT(ExpandableTable, "rowCount/groupTitle", w->rowCount(r.hostileIndex(w->groupCount())); w->groupTitle(r.hostileIndex(w->groupCount()))),
        ACT(ExpandableTable, "setGroupTitle", w->setGroupTitle(r.hostileIndex(w->groupCount()), r.hostileText())),
        ACT(ExpandableTable, "key/value", w->key(r.hostileIndex(w->groupCount()), r.hostileIndex(3)); w->value(r.hostileIndex(w->groupCount()), r.hostileIndex(3))),
        ACT(ExpandableTable, "setValue", w->setValue(r.hostileIndex(w->groupCount()), r.hostileIndex(3), r.hostileText())),
        ACT(ExpandableTable, "setGroupExpanded", w->setGroupExpanded(r.hostileIndex(w->groupCount()), r.coin())),
        ACT(ExpandableTable, "setCurrent", w->setCurrent(r.hostileIndex(w->groupCount()), r.between(-2, 4))),
        ACT(ExpandableTable, "setContentFontSize", w->setContentFontSize(r.hostileSize())),
        ACT(ExpandableTable, "setKeyColumnWidth", w->setKeyColumnWidth(r.hostileSize())),
    }));

    // ---- Pictures ----
    out.push_back(plain(QStringLiteral("PictureCheckWidget"), [](QWidget* page) -> QWidget* {
        auto* w = new PictureCheckWidget(page);
        for (int i = 0; i < 6; ++i) {
            QPixmap pm(32, 20);
            pm.fill(QColor::fromHsv(i * 50, 200, 200));
            w->addPicture(QIcon(pm), QStringLiteral("Pic %1").arg(i), i);
        }
        return w;
    }, {
        ACT(PictureCheckWidget, "addPicture", if (w->count() < 30) w->addPicture(QIcon(), r.hostileText().left(300), r.between(-2, 40))),
        ACT(PictureCheckWidget, "addPicture(file)", if (w->count() < 30) w->addPicture(r.coin() ? QString() : QStringLiteral("/no/such.png"), entryText(r), r.hostileInt())),
        ACT(PictureCheckWidget, "removePicture", w->removePicture(r.between(-2, 40))),
        ACT(PictureCheckWidget, "clear", if (r.chance(0.2)) w->clear()),
        ACT(PictureCheckWidget, "setCaption", w->setCaption(r.between(-2, 40), r.hostileText())),
        ACT(PictureCheckWidget, "setColumns", w->setColumns(r.hostileInt())),
        ACT(PictureCheckWidget, "setPictureSize", w->setPictureSize(hostileQSize(r))),
        ACT(PictureCheckWidget, "setContentFontSize", w->setContentFontSize(r.hostileSize())),
        ACT(PictureCheckWidget, "setChecked", w->setChecked(r.between(-2, 40), r.coin())),
        ACT(PictureCheckWidget, "setCheckedValues", QVector<int> v; for (int i = r.between(0, 8); i > 0; --i) v << r.between(-2, 40); w->setCheckedValues(v)),
    }));

    out.push_back(row(QStringLiteral("TypeItemMultiPictureCheck"), [](QWidget* page) -> QWidget* {
        auto* w = new TypeItemMultiPictureCheck(page);
        w->setItemTitle(QStringLiteral("Patterns"));
        for (int i = 0; i < 5; ++i) {
            QPixmap pm(32, 20);
            pm.fill(QColor::fromHsv(i * 60, 180, 220));
            w->addPicture(QIcon(pm), QStringLiteral("P%1").arg(i), i);
        }
        return w;
    }, {
        ACT(TypeItemMultiPictureCheck, "addPicture", if (w->count() < 30) w->addPicture(QIcon(), r.hostileText().left(300), r.between(-2, 40))),
        ACT(TypeItemMultiPictureCheck, "addPicture(file)", if (w->count() < 30) w->addPicture(QStringLiteral("/no/such.png"), entryText(r), r.hostileInt())),
        ACT(TypeItemMultiPictureCheck, "removePicture", w->removePicture(r.between(-2, 40))),
        ACT(TypeItemMultiPictureCheck, "clear", if (r.chance(0.2)) w->clear()),
        ACT(TypeItemMultiPictureCheck, "setColumns", w->setColumns(r.hostileInt())),
        ACT(TypeItemMultiPictureCheck, "setPictureSize", w->setPictureSize(hostileQSize(r))),
        ACT(TypeItemMultiPictureCheck, "setChecked", w->setChecked(r.between(-2, 40), r.coin())),
        ACT(TypeItemMultiPictureCheck, "setCurrentValue", QVector<int> v; for (int i = r.between(0, 8); i > 0; --i) v << r.between(-2, 40); w->setCurrentValue(v)),
    }, own({QStringLiteral("PictureCheckWidget")})));
}

} // namespace Monkey
