#include "typeitemdialogdoublecombox.h"

#include "typedialogmenu.h"

namespace LCD {
namespace Widget {

TypeItemDialogDoubleCombox::TypeItemDialogDoubleCombox(QWidget* parent, LCD::MainWidgets::IHomeFrame* homeFrame)
    : DoubleComboxBaseType(parent)
    , m_first(new TypeDialogMenu(dynamicFrame(), homeFrame))
    , m_second(new TypeDialogMenu(dynamicFrame(), homeFrame))
{
    m_first->setObjectName(QStringLiteral("firstMenu"));
    m_second->setObjectName(QStringLiteral("secondMenu"));
    setChoices(m_first, m_second);
}

TypeItemDialogDoubleCombox::~TypeItemDialogDoubleCombox() = default;

TypeDialogMenu* TypeItemDialogDoubleCombox::firstMenu() const { return m_first; }
TypeDialogMenu* TypeItemDialogDoubleCombox::secondMenu() const { return m_second; }

void TypeItemDialogDoubleCombox::setDialogTitles(QString const& first, QString const& second)
{
    m_first->setDialogTitle(first);
    m_second->setDialogTitle(second);
}

void TypeItemDialogDoubleCombox::setDlgMenuWidgetHidden(bool hidden)
{
    m_first->setDlgMenuWidgetHidden(hidden);
    m_second->setDlgMenuWidgetHidden(hidden);
}

bool TypeItemDialogDoubleCombox::choiceWentBack(StringComboxBaseType* choice) const
{
    if (auto* menu = qobject_cast<TypeDialogMenu*>(choice))
        if (menu->isKeyBackPressed())
            return true;
    return DoubleComboxBaseType::choiceWentBack(choice);
}

} // namespace Widget
} // namespace LCD
