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
    };
    // The bars are created without a parent and placed by the page's layout.
    widgets << new BottomButtomFrame(static_cast<Enum::BottomButtonType>(Enum::BottomOk | Enum::BottomCancel), page)
            << new ResetApplyWidget(Enum::ResetAndApplyButton, page);
    for (QWidget* w : widgets)
        layout->addWidget(w);
    return widgets.size();
}
