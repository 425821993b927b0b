// Umbrella header: every public header of liblcdwidgets.
#pragma once

#include "lcdwidgets_global.h"

// Host interfaces
#include <dov/api.h>
#include <lcd/ihomeframe.h>
#include <lcd/keyboardproxy.h>

#include "pluginentry.h"
#include "lcdconstants.h"
#include "lcdenums.h"
#include "lcdtranslate.h"
#include "knoblevel.h"
#include "stylehelper.h"

#include "rolllabel.h"
#include "ellipsislabel.h"
#include "commonitemtype.h"

// Display items and bars
// (one line per header, kept in the order the classes build on each other)
#include "typeitemtext.h"
#include "typeitemvalue.h"
#include "typekeyvaluetext.h"
#include "typeitemtip.h"
#include "typeitemtick.h"
#include "typeitemarrow.h"
#include "typeitemmore.h"
#include "typemainbutton.h"
#include "typeitemlinewrap.h"
#include "typemultitemtext.h"
#include "typeitembuttom.h"
#include "typeitemedit.h"
#include "bottombuttomframe.h"
#include "resetapplywidget.h"
#include "progressbarctr.h"

// Lists, drop-downs and menus
#include "stringcomboxbasetype.h"
#include "focuscombobox.h"
#include "dropcombobox.h"
#include "typestringcombox.h"
#include "dialogmenuwidget.h"
#include "typedialogmenu.h"

// Value editors
#include "lcdspinbox.h"
#include "typeintadjust.h"
#include "typefloatadjust.h"
#include "typeintadjustslider.h"
#include "nqduallineedit.h"
#include "typedualint.h"
#include "extendspinbox.h"
#include "typespinadjust.h"

// Instruments and drawing
#include "dashboardwidget.h"
#include "dashboardlabel.h"
#include "typeitemdashboard.h"
#include "itemdatainfo.h"
#include "drawgraphicsrectitem.h"
#include "drawgraphicsscene.h"
#include "drawgraphicsview.h"
#include "typedrawcropwidget.h"
// IP address entry and the number pad
#include "iplineedit.h"
#include "ipedit.h"
#include "typeipadjust.h"
#include "numberpad.h"

// Device pages
#include "networksettings.h"
#include "adddevice.h"
#include "switcherselect.h"
#include "typeitemtbarcalibration.h"
// Choice controls: switches, grouped buttons, check boxes and switches, their rows,
// and the effect chooser
#include "switchcontrol.h"
#include "multiwidgetcontrol.h"
#include "multibtncontrol.h"
#include "multicheckboxcontrol.h"
#include "multiswitchwidget.h"
#include "typeitemswitch.h"
#include "multibtnwidget.h"
#include "multipleselectbtn.h"
#include "multibuttoncontrol.h"
#include "typeitemmultibtn.h"
#include "typeitemmulticheckbox.h"
#include "typeitemmultioperbtn.h"
#include "typemultipleselectbtn.h"
#include "effectpicturewidget.h"
// Picture choices, paired combos and scrolling lists
#include "picturecheckwidget.h"
#include "typeitemmultipicturecheck.h"
#include "doublecomboxbasetype.h"
#include "typeitemdoublecombox.h"
#include "typeitemdialogdoublecombox.h"
#include "typeinputbackupcombox.h"
#include "wraplistdelegate.h"
#include "nqlistwidget.h"
#include "typeitemsliderlist.h"
#include "expandabletable.h"
// Dialogs
#include "reminderdialog.h"
#include "minireminderdialog.h"
#include "remindertoastdialog.h"
#include "toastdialog.h"
#include "tipdialog.h"
#include "waitingdialog.h"
#include "blockdialog.h"
#include "customreminderdialog.h"
#include "ndoublelineedit.h"
#include "nsignallineedit.h"
#include "qmlineedit.h"
#include "qdoublelineeditwidget.h"
#include "qsignallineeditwidget.h"
#include "lineeditorwidget.h"
#include "multispinbox.h"
#include "multiplespinbox.h"
#include "typecoloradjust.h"
#include "typeintprogressbar.h"
// Layers, preview and factory test
#include "typezorderitemmore.h"
#include "typeframetag.h"
#include "typegraphicwidget.h"
#include "previewwidget.h"
#include "typepreviewwidget.h"
#include "factorytestleftframe.h"
#include "factorytestrightframe.h"
#include "factorytestframe.h"
#include "textviewdialog.h"
#include "mutilprogressbardialog.h"
#include "lockreminderdialog.h"
#include "lockpanel.h"
#include "aboutpage.h"
