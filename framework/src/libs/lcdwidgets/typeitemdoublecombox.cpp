#include "typeitemdoublecombox.h"

#include "typestringcombox.h"

namespace LCD {
namespace Widget {

TypeItemDoubleCombox::TypeItemDoubleCombox(QWidget* parent, bool haveArrow)
    : DoubleComboxBaseType(parent)
    , m_first(new TypeStringCombox(dynamicFrame(), haveArrow))
    , m_second(new TypeStringCombox(dynamicFrame(), haveArrow))
{
    m_first->setObjectName(QStringLiteral("firstCombox"));
    m_second->setObjectName(QStringLiteral("secondCombox"));
    setChoices(m_first, m_second);
}

TypeItemDoubleCombox::~TypeItemDoubleCombox() = default;

TypeStringCombox* TypeItemDoubleCombox::firstCombox() const { return m_first; }
TypeStringCombox* TypeItemDoubleCombox::secondCombox() const { return m_second; }

} // namespace Widget
} // namespace LCD
