// Two menu choices in one row: each value opens its own knob menu (a
// DialogMenuWidget over the host's home frame), the first and then the second. The
// row is the first menu for the list interface; firstMenu()/secondMenu() give both
// TypeDialogMenu rows. Escape in a menu restores that menu's previous choice (as in
// TypeDialogMenu) and ends the whole edit. Keys, signals and messages: see
// DoubleComboxBaseType and TypeDialogMenu.
#pragma once

#include "doublecomboxbasetype.h"

#include <lcd/ihomeframe.h>

namespace LCD {
namespace Widget {

class TypeDialogMenu;

class LCDWIDGETS_EXPORT TypeItemDialogDoubleCombox : public DoubleComboxBaseType
{
    Q_OBJECT
public:
    // Two empty menus ("firstMenu", "secondMenu") placed over `homeFrame` (may be null).
    explicit TypeItemDialogDoubleCombox(QWidget* parent = nullptr, LCD::MainWidgets::IHomeFrame* homeFrame = nullptr);
    ~TypeItemDialogDoubleCombox() override;

    // The first menu row (owned by this row).
    TypeDialogMenu* firstMenu() const;
    // The second menu row (owned by this row).
    TypeDialogMenu* secondMenu() const;
    // The menus' titles.
    void setDialogTitles(QString const& first, QString const& second);
    void setDlgMenuWidgetHidden(bool hidden) override;

protected:
    bool choiceWentBack(StringComboxBaseType* choice) const override;

private:
    TypeDialogMenu* m_first;
    TypeDialogMenu* m_second;
};

} // namespace Widget
} // namespace LCD
