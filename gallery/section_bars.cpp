#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

using namespace LCD::Widget;

namespace {

// Reports a bar's clicks in the gallery's footer.
template <typename Sender, typename Signal>
void tell(ItemPage* page, Sender* sender, Signal signal, QString const& text)
{
    QObject::connect(sender, signal, page, [page, text] { emit page->statusMessage(text); });
}

void selectable(ItemPage* page, QWidget* widget, QPushButton* focus)
{
    page->addWidget(widget, true, [focus] { focus->setFocus(Qt::OtherFocusReason); });
}

} // namespace

void addBarSection(ItemPage* page, GalleryContext&)
{
    page->addSection(QObject::tr("Reset and apply rows"));
    auto* resetRow = new TypeReset;
    resetRow->setFixedHeight(ItemPage::kRowHeight + 8);
    selectable(page, resetRow, resetRow->resetButton());
    tell(page, resetRow, &TypeReset::signalResetBtnClicked, QObject::tr("Reset clicked"));

    auto* applyRow = new TypeApply;
    applyRow->setFixedHeight(ItemPage::kRowHeight + 8);
    selectable(page, applyRow, applyRow->applyButton());
    tell(page, applyRow, &TypeApply::signalApplyBtnClicked, QObject::tr("Apply clicked"));

    auto* bothRow = new TypeResetApply;
    bothRow->setFixedHeight(ItemPage::kRowHeight + 8);
    selectable(page, bothRow, bothRow->resetButton());
    tell(page, bothRow, &TypeResetApply::signalResetBtnClicked, QObject::tr("Reset clicked"));
    tell(page, bothRow, &TypeResetApply::signalApplyBtnClicked, QObject::tr("Apply clicked"));

    page->addSection(QObject::tr("Bottom bars"));
    auto* bottom = new BottomButtomFrame(
        static_cast<Enum::BottomButtonType>(Enum::BottomCancel | Enum::BottomPreStep | Enum::BottomExport | Enum::BottomOk), page);
    bottom->setFixedHeight(ItemPage::kRowHeight + 8);
    bottom->setContentsMargins(0, 0, 8, 0);
    selectable(page, bottom, bottom->button(Enum::BottomOk));
    tell(page, bottom, &BottomButtomFrame::signalOkBtnClicked, QObject::tr("Ok clicked"));
    tell(page, bottom, &BottomButtomFrame::signalCancelBtnClicked, QObject::tr("Cancel clicked"));
    tell(page, bottom, &BottomButtomFrame::signalPreStepBtnClicked, QObject::tr("Previous step clicked"));
    tell(page, bottom, &BottomButtomFrame::signalExportBtnClicked, QObject::tr("Export clicked"));

    auto* update = new BottomButtomFrame(static_cast<Enum::BottomButtonType>(Enum::BottomCancel | Enum::BottomUpdate), page);
    update->setFixedHeight(ItemPage::kRowHeight + 8);
    update->setContentsMargins(0, 0, 8, 0);
    selectable(page, update, update->button(Enum::BottomUpdate));
    tell(page, update, &BottomButtomFrame::signalUpdateBtnClicked, QObject::tr("Update clicked"));
    tell(page, update, &BottomButtomFrame::signalCancelBtnClicked, QObject::tr("Cancel clicked"));

    // The reset/apply bar steers the knob itself and hands Up on Apply back to the
    // page, so it is the last stop of the walk.
    page->addSection(QObject::tr("Reset/apply bar (Up: Reset to Apply, then back to the page)"));
    auto* bar = new ResetApplyWidget(Enum::ResetAndApplyButton, page);
    bar->setFixedHeight(ItemPage::kRowHeight + 8);
    selectable(page, bar, bar->getfirstButton());
    tell(page, bar, &ResetApplyWidget::signalResetBtnClicked, QObject::tr("Reset clicked"));
    tell(page, bar, &ResetApplyWidget::signalApplyBtnClicked, QObject::tr("Apply clicked"));

    // Screenshot: the knob walked into the bar and turned once (focus on Apply).
    // Another section's picture set-up, if any, keeps the focus.
    std::function<void()> const previous = page->screenshotSetup;
    page->screenshotSetup = [page, bar, previous] {
        if (previous) {
            previous();
            return;
        }
        for (int i = 0; i < 1000; ++i) {
            page->setCurrentIndex(i);
            if (page->currentIndex() != i || bar->isAncestorOf(QApplication::focusWidget()))
                break;
        }
        QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, QStringLiteral("1"));
        if (QWidget* focus = QApplication::focusWidget(); focus && bar->isAncestorOf(focus))
            QApplication::sendEvent(focus, &up);
    };
}
