// The monkey's entries for the dialogs: each is opened as the host opens it (exec()
// from the event loop, show(), or a static helper), so that the monkey's keys reach
// its modal loop and the dialog may be destroyed while the loop runs.
#include "factories.h"
#include "factories_devices_common_p.h"

#include <blockdialog.h>
#include <customreminderdialog.h>
#include <minireminderdialog.h>
#include <reminderdialog.h>
#include <remindertoastdialog.h>
#include <tipdialog.h>
#include <toastdialog.h>
#include <waitingdialog.h>

#include <QPushButton>
#include <QRegularExpression>

using namespace LCD::Widget;

namespace Monkey {
namespace Devices {

namespace {

QDialogButtonBox::ButtonRole hostileRole(Rng& r)
{
    // The roles are an enum with InvalidRole = -1 ... NRoles.
    return QDialogButtonBox::ButtonRole(r.between(-1, int(QDialogButtonBox::NRoles)));
}

// A holder on the page for the static helpers: the helper's dialog runs with the
// holder as its parent, and goes when the monkey destroys the holder.
QWidget* holder(QWidget* page, char const* name)
{
    auto* h = new QWidget(page);
    h->setObjectName(QString::fromLatin1(name));
    addToPage(page, h);
    return h;
}

// --- ReminderDialog ---

template <class T>
void addReminderLikeActions(std::vector<Action>& a)
{
    a.push_back(act<T>("addButton", [](T* w, Rng& r) {
        if (w->template findChildren<QPushButton*>().size() < 12)
            w->addButton(hostileRole(r));
    }));
    a.push_back(act<T>("button", [](T* w, Rng& r) { w->button(hostileRole(r)); }));
    a.push_back(act<T>("setDefaultButton", [](T* w, Rng& r) {
        w->setDefaultButton(r.coin() ? nullptr : w->button(hostileRole(r)));
    }));
    a.push_back(act<T>("setButtonBoxLayoutDirection", [](T* w, Rng& r) {
        w->setButtonBoxLayoutDirection(r.coin() ? Qt::LeftToRight : Qt::RightToLeft);
    }));
    a.push_back(act<T>("buttonRole", [](T* w, Rng& r) { w->buttonRole(r.coin() ? nullptr : w->button(hostileRole(r))); }));
    a.push_back(act<T>("setText", [](T* w, Rng& r) { w->setText(dialogText(r)); }));
    a.push_back(act<T>("setIcon", [](T* w, Rng& r) { w->setIcon(typename T::DialogType(r.between(0, 7))); }));
    a.push_back(act<T>("setProgressValue", [](T* w, Rng& r) { w->setProgressValue(r.hostileInt()); }));
    a.push_back(act<T>("setProgressText", [](T* w, Rng& r) { w->setProgressText(r.hostileText()); }));
    a.push_back(act<T>("setProgressFocus", [](T* w, Rng&) { w->setProgressFocus(); }));
    a.push_back(act<T>("setDialogSize", [](T* w, Rng& r) { w->setDialogSize(hostileQSize(r)); }));
    a.push_back(act<T>("setDialogShowTimer", [](T* w, Rng& r) { w->setDialogShowTimer(r.hostileInt()); }));
    a.push_back(act<T>("setLineHidden", [](T* w, Rng& r) { w->setLineHidden(r.coin()); }));
    a.push_back(act<T>("slot_buttonClicked", [](T* w, Rng& r) {
        if (r.chance(0.3))
            w->slot_buttonClicked(r.coin() ? nullptr : w->button(hostileRole(r)));
    }));
    a.push_back(act<T>("exec", [](T* w, Rng&) {
        if (!w->isVisible())
            execLater(w);
    }));
    a.push_back(act<T>("show", [](T* w, Rng&) { w->show(); }));
}

QStringList reminderWarnings(QString const& who)
{
    QString const w = QRegularExpression::escape(who);
    return dialogWarnings(who) + QStringList{
        "^" + w + " unknown dialog type -?\\d+ taken as information$",
        "^" + w + " setIcon: unknown dialog type -?\\d+$",
        "^" + w + " setDialogSize: negative size refused QSize\\(-?\\d+, -?\\d+\\)$",
        "^" + w + " addButton: unknown button role -?\\d+$",
        "^" + w + " (information|prosper|question|warning|error|ongoing|progress):? ?text is empty: nothing shown$",
        "^" + w + " prosper text is empty: nothing shown$",
    };
}

ClassEntry reminderDialog()
{
    using T = ReminderDialog;
    ClassEntry e{"ReminderDialog", [](QWidget* page) {
                     static int round = 0;
                     auto* w = new T(T::DialogType(round % 7), round % 5 == 4 ? QRect() : screenRect(), page);
                     ++round;
                     w->setText(QStringLiteral("Delete the macro?"));
                     w->addButton(QDialogButtonBox::YesRole);
                     w->addButton(QDialogButtonBox::NoRole);
                     execLater(w);
                     return w;
                 }};
    addReminderLikeActions<T>(e.actions);
    e.actions.push_back(act<T>("slotScrollbarRangeChanged", [](T* w, Rng& r) { w->slotScrollbarRangeChanged(r.hostileInt(), r.hostileInt()); }));
    e.actions.push_back(act<T>("slotDetectScrollbar", [](T* w, Rng&) { w->slotDetectScrollbar(); }));
    e.actions.push_back(act<T>("slotResetPushBtnClicked", [](T* w, Rng&) { w->slotResetPushBtnClicked(); }));
    e.actions.push_back(act<T>("slotApplyPushBtnClicked", [](T* w, Rng&) { w->slotApplyPushBtnClicked(); }));
    e.allowedWarnings = reminderWarnings("[ReminderDialog]") << "^ReminderDialog pos x:-?\\d+;y:-?\\d+$";
    return e;
}

// The static helpers, each run with a holder on the page as its parent.
ClassEntry reminderDialogHelpers()
{
    ClassEntry e{"ReminderDialog::helpers", [](QWidget* page) {
                     QWidget* h = holder(page, "reminderHelpers");
                     later(h, [h] { ReminderDialog::question(h, QStringLiteral("Save the show?"), screenRect()); });
                     return h;
                 }};
    auto run = [](QString name, std::function<void(QWidget*, QString const&, QRect, QDialogButtonBox::ButtonRole)> f) {
        return Action{name, [f](QWidget* h, Rng& r) {
                          QString const text = r.chance(0.2) ? QString() : dialogText(r);
                          QRect const rect = hostileRect(r);
                          auto const role = hostileRole(r);
                          later(h, [f, h, text, rect, role] { f(h, text, rect, role); });
                      }};
    };
    e.actions = {
        run("information", [](QWidget* h, QString const& t, QRect rc, QDialogButtonBox::ButtonRole ro) { ReminderDialog::information(h, t, rc, ro); }),
        run("prosper", [](QWidget* h, QString const& t, QRect rc, QDialogButtonBox::ButtonRole ro) { ReminderDialog::prosper(h, t, rc, ro); }),
        run("question", [](QWidget* h, QString const& t, QRect rc, QDialogButtonBox::ButtonRole ro) { ReminderDialog::question(h, t, rc, ro); }),
        run("warning", [](QWidget* h, QString const& t, QRect rc, QDialogButtonBox::ButtonRole ro) { ReminderDialog::warning(h, t, rc, ro); }),
        run("error", [](QWidget* h, QString const& t, QRect rc, QDialogButtonBox::ButtonRole ro) { ReminderDialog::error(h, t, rc, ro); }),
        // ongoing() and progress() hand the shown dialog to the host, which deletes it
        // when its work ends: here when the holder goes.
        Action{"ongoing", [](QWidget* h, Rng& r) {
                   ReminderDialog* d = ReminderDialog::ongoing(h, r.chance(0.2) ? QString() : QStringLiteral("Saving"), hostileRect(r), hostileRole(r));
                   if (d)
                       QObject::connect(h, &QObject::destroyed, d, &QObject::deleteLater);
               }},
        Action{"progress", [](QWidget* h, Rng& r) {
                   ReminderDialog* d = ReminderDialog::progress(h, r.chance(0.2) ? QString() : QStringLiteral("Updating"), hostileRect(r),
                                                                hostileRole(r), r.coin());
                   if (d) {
                       QObject::connect(h, &QObject::destroyed, d, &QObject::deleteLater);
                       d->setProgressValue(r.hostileInt());
                   }
               }},
    };
    e.allowedWarnings = reminderWarnings("[ReminderDialog]") << "^ReminderDialog pos x:-?\\d+;y:-?\\d+$";
    return e;
}

ClassEntry reminderDialogApply()
{
    using T = ReminderDialogApply;
    ClassEntry e{"ReminderDialogApply", [](QWidget* page) {
                     auto* w = new T(nullptr);
                     Q_UNUSED(page);
                     w->setText(QStringLiteral("Apply the new network settings?"));
                     execLater(w);
                     return w;
                 }};
    e.actions = {
        act<T>("setText", [](T* w, Rng& r) { w->setText(r.hostileText()); }),
        act<T>("setIconPath", [](T* w, Rng& r) {
            w->setIconPath(r.coin() ? QStringLiteral("./../share/themes/default/images/check_on.png") : r.hostileText().left(300));
        }),
        act<T>("exec", [](T* w, Rng&) {
            execLater(w);
        }),
    };
    e.allowedWarnings = QStringList{"^\\[ReminderDialogApply\\] cannot load icon", "^\\[ReminderDialogApply\\] exec: already running, refused$"};
    return e;
}

ClassEntry miniProcessDialog()
{
    using T = MiniProcessDialog;
    ClassEntry e{"MiniProcessDialog", [](QWidget* page) {
                     static int round = 0;
                     auto* w = new T(T::DialogType(round % 7), round % 4 == 3 ? QRect() : screenRect(), page,
                                     T::VerticalPosition(round % 3));
                     ++round;
                     w->setText(QStringLiteral("Copying clips"));
                     execLater(w);
                     return w;
                 }};
    addReminderLikeActions<T>(e.actions);
    e.actions.push_back(Action{"prosper", [](QWidget* w, Rng& r) {
                                   QString const text = r.chance(0.2) ? QString() : r.hostileText().left(500);
                                   QRect const rect = hostileRect(r);
                                   later(w, [w, text, rect] { MiniProcessDialog::prosper(w, text, rect); });
                               }});
    e.actions.push_back(Action{"ongoing", [](QWidget* w, Rng& r) {
                                   auto* d = MiniProcessDialog::ongoing(w, r.chance(0.2) ? QString() : QStringLiteral("Busy"), hostileRect(r),
                                                                        hostileRole(r), MiniProcessDialog::VerticalPosition(r.between(0, 3)));
                                   if (d)
                                       QObject::connect(w, &QObject::destroyed, d, &QObject::deleteLater);
                               }});
    e.actions.push_back(Action{"progress", [](QWidget* w, Rng& r) {
                                   auto* d = MiniProcessDialog::progress(w, r.chance(0.2) ? QString() : QStringLiteral("Copy"), hostileRect(r),
                                                                         MiniProcessDialog::VerticalPosition(r.between(0, 3)), hostileRole(r), r.coin());
                                   if (d)
                                       QObject::connect(w, &QObject::destroyed, d, &QObject::deleteLater);
                               }});
    e.allowedWarnings = reminderWarnings("[MiniProcessDialog]") << "^primaryScreen :\\d+;y:\\d+$";
    return e;
}

ClassEntry reminderToastDialog()
{
    using T = ReminderToastDialog;
    ClassEntry e{"ReminderToastDialog", [](QWidget* page) {
                     static int round = 0;
                     auto* w = new T(roundRect(round), page);
                     w->setDialogText(QStringLiteral("Saved"));
                     w->setDialgTipsTime(300);
                     execLater(w);
                     return w;
                 }};
    e.actions = {
        act<T>("setDialogText", [](T* w, Rng& r) { w->setDialogText(r.hostileText()); }),
        act<T>("setDialgTipsTime", [](T* w, Rng& r) { w->setDialgTipsTime(r.chance(0.5) ? r.between(0, 500) : r.hostileInt()); }),
        act<T>("setDialgIcon", [](T* w, Rng& r) { w->setDialgIcon(Enum::DialogType(r.between(0, 7))); }),
        act<T>("setBStartTimer", [](T* w, Rng& r) { w->setBStartTimer(r.coin()); }),
        act<T>("setDialogSize", [](T* w, Rng& r) { w->setDialogSize(hostileQSize(r)); }),
        act<T>("slotCloseDialog", [](T* w, Rng& r) {
            if (r.chance(0.3))
                w->slotCloseDialog();
        }),
        act<T>("exec", [](T* w, Rng&) {
            execLater(w);
        }),
        Action{"helpers", [](QWidget* w, Rng& r) {
                   QString const text = r.chance(0.2) ? QString() : r.hostileText().left(500);
                   QRect const rect = hostileRect(r);
                   int const ms = r.chance(0.7) ? r.between(0, 300) : r.hostileInt();
                   int const which = r.between(0, 3);
                   later(w, [w, text, rect, ms, which] {
                       switch (which) {
                       case 0:
                           ReminderToastDialog::information(w, text, rect, ms);
                           break;
                       case 1:
                           ReminderToastDialog::warning(w, text, rect, ms);
                           break;
                       case 2:
                           ReminderToastDialog::error(w, text, rect, ms);
                           break;
                       default:
                           ReminderToastDialog::prosper(w, text, rect, ms);
                       }
                   });
               }},
    };
    e.allowedWarnings = dialogWarnings("[ReminderToastDialog]") + QStringList{
        "^\\[ReminderToastDialog\\] (information|warning|error|prosper):? ?text is empty: nothing shown$",
        "^\\[ReminderToastDialog\\] setDialgIcon: unknown dialog type -?\\d+$",
        "^\\[ReminderToastDialog\\] setDialogSize: negative size refused QSize\\(-?\\d+, -?\\d+\\)$",
        "^\\[ReminderToastDialog\\] setDialgTipsTime: ",
        "^setBStartTimer (true|false)$",
        "^timeout close:? ?(true|false)?$",
        "^showEvent: -?\\d+$",
        "^ReminderToastDialog pos x:-?\\d+;y:-?\\d+$"};
    return e;
}

ClassEntry toastDialog()
{
    using T = ToastDialog;
    ClassEntry e{"ToastDialog", [](QWidget* page) {
                     static int round = 0;
                     ++round;
                     // The toast deletes itself when it closes; the monkey rebuilds it.
                     T* w = ToastDialog::createToastDialog(QStringLiteral("Clip saved"), round % 3 ? 400u : 0u, round % 4, round % 5 == 0, page);
                     return w;
                 }};
    e.actions = {
        act<T>("setToastText", [](T* w, Rng& r) { w->setToastText(r.hostileText()); }),
        act<T>("setPermanent", [](T* w, Rng& r) { w->setPermanent(r.coin()); }),
        act<T>("setPopupType", [](T* w, Rng& r) { w->setPopupType(r.hostileInt()); }),
        Action{"createToastDialog", [](QWidget* w, Rng& r) {
                   // Toasts of the host's own: they close themselves (or go with the parent).
                   ToastDialog::createToastDialog(r.chance(0.2) ? QString() : r.hostileText().left(500),
                                                  unsigned(r.between(0, 300)), r.hostileInt(), false, w);
               }},
    };
    e.allowedWarnings = QStringList{"^\\[ToastDialog\\] createToastDialog: text is empty: nothing shown$",
                         "^\\[ToastDialog\\] setPopupType: unknown popup type -?\\d+$"};
    return e;
}

ClassEntry tipDialog()
{
    using T = TipDialog;
    ClassEntry e{"TipDialog", [](QWidget* page) {
                     auto* w = new T(QStringLiteral("Restart the panel now?"), page);
                     execLater(w, &T::run);
                     return w;
                 }};
    e.actions = {
        act<T>("setTipText", [](T* w, Rng& r) { w->setTipText(r.hostileText()); }),
        act<T>("setAutoDelete", [](T* w, Rng& r) { w->setAutoDelete(r.coin()); }),
        act<T>("setCancelBtnVisible", [](T* w, Rng& r) { w->setCancelBtnVisible(r.coin()); }),
        act<T>("setOkBtnVisible", [](T* w, Rng& r) { w->setOkBtnVisible(r.coin()); }),
        act<T>("setBtnNoFocus", [](T* w, Rng&) { w->setBtnNoFocus(); }),
        act<T>("run", [](T* w, Rng&) {
            execLater(w, &T::run);
        }),
        Action{"createTipDialog", [](QWidget* w, Rng& r) {
                   QString const text = r.chance(0.2) ? QString() : r.hostileText().left(500);
                   later(w, [w, text] { TipDialog::createTipDialog(text, w); });
               }},
    };
    e.allowedWarnings = QStringList{"^\\[TipDialog\\] createTipDialog: text is empty: nothing shown$",
                                    "^\\[TipDialog\\] run: already running, refused$",
                         "^\\[dialog\\] exec finish with -?\\d+$"};
    return e;
}

// The waiting dialog is one per process: the monkey works a holder on the page, whose
// destruction deletes the dialog, and the actions reach the dialog through instance().
ClassEntry waitingDialog()
{
    ClassEntry e{"WaitingDialog", [](QWidget* page) {
                     QWidget* h = holder(page, "waitingHolder");
                     WaitingDialog* w = WaitingDialog::instance(screenRect(), page);
                     w->showWaitingDialog(QStringLiteral("Loading the show"), screenRect());
                     QObject::connect(h, &QObject::destroyed, [] { WaitingDialog::deleteInstance(); });
                     return h;
                 }};
    auto on = [](QString name, std::function<void(WaitingDialog*, Rng&)> f) {
        return Action{name, [f](QWidget*, Rng& r) {
                          if (WaitingDialog* w = WaitingDialog::existingInstance())
                              f(w, r);
                      }};
    };
    using L = WaitingDialog::TooltipLevel;
    e.actions = {
        on("showWaitingDialog", [](WaitingDialog* w, Rng& r) { w->showWaitingDialog(dialogText(r), hostileRect(r), L(r.between(0, 3))); }),
        on("hideWaitingDialog", [](WaitingDialog* w, Rng&) { w->hideWaitingDialog(); }),
        on("setInformativeText", [](WaitingDialog* w, Rng& r) { w->setInformativeText(dialogText(r), L(r.between(0, 3))); }),
        on("setFunButtonStatus", [](WaitingDialog* w, Rng& r) { w->setFunButtonStatus(r.coin(), dialogText(r), r.hostileInt()); }),
        on("setFunButtonVisible", [](WaitingDialog* w, Rng& r) { w->setFunButtonVisible(r.coin()); }),
        on("setButtonText", [](WaitingDialog* w, Rng& r) { w->setButtonText(dialogText(r)); }),
        on("setButtonProperty", [](WaitingDialog* w, Rng& r) { w->setButtonProperty(r.hostileInt()); }),
        on("setFunButtonEnable", [](WaitingDialog* w, Rng& r) { w->setFunButtonEnable(r.coin()); }),
        Action{"attachToWidget", [](QWidget* h, Rng& r) {
                   if (WaitingDialog* w = WaitingDialog::existingInstance())
                       w->attachToWidget(r.coin() ? nullptr : h);
               }},
        on("setParentChanged", [](WaitingDialog* w, Rng& r) { w->setParentChanged(r.coin()); }),
        on("setIndicatorSize", [](WaitingDialog* w, Rng& r) { w->setIndicatorSize(WaitingDialog::IndicatorSize(r.between(0, 3))); }),
        on("step", [](WaitingDialog* w, Rng&) { w->step(); }),
        on("close", [](WaitingDialog* w, Rng&) { w->close(); }),
        on("reject", [](WaitingDialog* w, Rng&) { w->reject(); }),
        Action{"instance", [](QWidget* h, Rng& r) { WaitingDialog::instance(hostileRect(r), r.coin() ? h : nullptr); }},
    };
    e.allowedWarnings = QStringList{"^\\[WaitingDialog\\] showWaitingDialog: host rectangle is empty, keeping QRect\\(",
                         "^\\[WaitingDialog\\] (showWaitingDialog|setInformativeText): unknown text level -?\\d+$",
                         "^\\[WaitingDialog\\] setIndicatorSize: unknown size -?\\d+$",
                         "^\\[WaitingDialog\\] host rectangle is (empty|larger than any screen), using 800x480$",
                         "^Fail to hide waitingdialog: isHidden\\(\\) == true$",
                         "^show waitingdialog( start)?$", "^hide waitingdialog$", "^show$", "^hide$", "^ignore event$",
                         "^showEvent$", "^\\[resizeEvent\\] ------start WaitingDialog$"};
    return e;
}

ClassEntry blockDialog()
{
    using T = BlockDialog;
    ClassEntry e{"BlockDialog", [](QWidget* page) {
                     auto* w = new T(QStringLiteral("Please wait"), page);
                     w->setEffectDurationMs(300);
                     execLater(w, &T::run);
                     return w;
                 }};
    e.actions = {
        act<T>("setText", [](T* w, Rng& r) { w->setText(r.hostileText()); }),
        act<T>("setProgressBarVisible", [](T* w, Rng& r) { w->setProgressBarVisible(r.coin()); }),
        act<T>("setProgressRange", [](T* w, Rng& r) { w->setProgressRange(r.hostileInt(), r.hostileInt()); }),
        act<T>("setEffectDurationMs", [](T* w, Rng& r) { w->setEffectDurationMs(r.chance(0.5) ? r.between(0, 500) : r.hostileInt()); }),
        act<T>("setAutoDelete", [](T* w, Rng& r) { w->setAutoDelete(r.coin()); }),
        act<T>("setWinIsShow", [](T* w, Rng& r) { w->setWinIsShow(r.coin()); }),
        act<T>("progressValue", [](T* w, Rng& r) { w->progressBar()->setValue(r.hostileInt()); }),
        act<T>("run", [](T* w, Rng&) {
            execLater(w, &T::run);
        }),
        act<T>("hide", [](T* w, Rng&) { w->hide(); }),
        Action{"createBlockDialog", [](QWidget* w, Rng& r) {
                   QString const text = r.chance(0.3) ? QString() : r.hostileText().left(300);
                   later(w, [w, text] { BlockDialog::createBlockDialog(text, w); });
               }},
    };
    e.allowedWarnings = QStringList{"^\\[BlockDialog\\] createBlockDialog: text is empty: nothing shown$",
                         "^\\[BlockDialog\\] setProgressRange: minimum -?\\d+ above maximum -?\\d+$",
                         "^\\[BlockDialog\\] setEffectDurationMs: ", "^\\[BlockDialog\\] run: already running, refused$", "^\\[dialog\\] exec finish with -?\\d+$"};
    return e;
}

ClassEntry twelveSegmentBar()
{
    using T = TwelveSegmentVerticalProgressBar;
    ClassEntry e = pageEntry<T>("TwelveSegmentVerticalProgressBar", [](T* w) {
        w->setRange(0, 100);
        w->setValue(40);
    });
    e.actions = {
        act<T>("setRange", [](T* w, Rng& r) { w->setRange(r.hostileInt(), r.hostileInt()); }),
        act<T>("setValue", [](T* w, Rng& r) { w->setValue(r.hostileInt()); }),
        act<T>("setOrientation", [](T* w, Rng& r) { w->setOrientation(r.coin() ? Qt::Vertical : Qt::Horizontal); }),
        act<T>("reset", [](T* w, Rng&) { w->reset(); }),
    };
    return e;
}

ClassEntry customReminderDialog()
{
    using T = CustomReminderDialog;
    ClassEntry e{"CustomReminderDialog", [](QWidget*) {
                     static int round = 0;
                     auto* w = new T(round++ % 4 == 3 ? QRect() : screenRect());
                     w->addButton(1, QStringLiteral("Copy"), QStringLiteral("isCopyIcon"));
                     w->addButton(2, QStringLiteral("Paste"), QStringLiteral("isPasteIcon"));
                     w->addButton(3, QStringLiteral("Delete"), QStringLiteral("isDeleteIcon"), true);
                     execLater(w);
                     return w;
                 }};
    e.actions = {
        act<T>("addButton", [](T* w, Rng& r) {
            if (w->buttonIds().size() < 16)
                w->addButton(r.chance(0.5) ? r.between(0, 6) : r.hostileInt(), r.hostileText().left(300),
                             r.coin() ? QStringLiteral("isCopyIcon") : r.hostileText().left(50), r.coin());
        }),
        act<T>("setLabelText", [](T* w, Rng& r) { w->setLabelText(r.chance(0.5) ? r.between(0, 6) : r.hostileInt(), r.hostileText()); }),
        act<T>("setBtnFocus", [](T* w, Rng& r) { w->setBtnFocus(r.chance(0.5) ? r.between(0, 6) : r.hostileInt()); }),
        act<T>("setButtonDisabled", [](T* w, Rng& r) { w->setButtonDisabled(r.chance(0.5) ? r.between(0, 6) : r.hostileInt(), r.coin()); }),
        act<T>("setButtonVisible", [](T* w, Rng& r) { w->setButtonVisible(r.chance(0.5) ? r.between(0, 6) : r.hostileInt(), r.coin()); }),
        act<T>("setZOrderFlag", [](T* w, Rng& r) { w->setZOrderFlag(r.coin()); }),
        act<T>("exec", [](T* w, Rng&) {
            execLater(w);
        }),
    };
    e.allowedWarnings = dialogWarnings("[CustomReminderDialog]") + QStringList{
        "^\\[CustomReminderDialog\\] \\w+:? ?button\\(-?\\d+\\) does not exist\\.$",
        "^button\\(-?\\d+\\) has already exist\\.$",
        "^\\[CustomReminderDialog\\] addButton\\(-?\\d+\\): no icon property$"};
    return e;
}

ClassEntry roundedCornersDialog()
{
    using T = RoundedCornersDialog;
    ClassEntry e{"RoundedCornersDialog", [](QWidget*) {
                     auto* w = new T(nullptr);
                     w->resize(300, 200);
                     w->show();
                     return w;
                 }};
    e.actions = {
        act<T>("resize", [](T* w, Rng& r) { w->resize(qBound(0, r.hostileSize(), 4000), qBound(0, r.hostileSize(), 4000)); }),
        act<T>("show", [](T* w, Rng&) { w->show(); }),
        act<T>("exec", [](T* w, Rng&) {
            execLater(w);
        }),
        act<T>("reject", [](T* w, Rng&) { w->reject(); }),
    };
    return e;
}

} // namespace

void addDialogClasses(std::vector<ClassEntry>& out)
{
    out.push_back(reminderDialog());
    out.push_back(reminderDialogHelpers());
    out.push_back(reminderDialogApply());
    out.push_back(miniProcessDialog());
    out.push_back(reminderToastDialog());
    out.push_back(toastDialog());
    out.push_back(tipDialog());
    out.push_back(waitingDialog());
    out.push_back(blockDialog());
    out.push_back(twelveSegmentBar());
    out.push_back(customReminderDialog());
    out.push_back(roundedCornersDialog());
}

} // namespace Devices
} // namespace Monkey
