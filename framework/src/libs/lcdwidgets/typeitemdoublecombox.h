// Two drop-down combos in one row, such as a source and its format. The row is the
// first combo for the list interface (fill and read it by index, text or data as any
// string choice row); firstCombox()/secondCombox() give both TypeStringCombox rows.
// Keys, signals and messages: see DoubleComboxBaseType and TypeStringCombox.
#pragma once

#include "doublecomboxbasetype.h"

namespace LCD {
namespace Widget {

class TypeStringCombox;

class LCDWIDGETS_EXPORT TypeItemDoubleCombox : public DoubleComboxBaseType
{
    Q_OBJECT
public:
    // Two empty combos ("firstCombox", "secondCombox"); haveArrow: their drop-down arrows.
    explicit TypeItemDoubleCombox(QWidget* parent = nullptr, bool haveArrow = true);
    ~TypeItemDoubleCombox() override;

    // The first combo row (owned by this row).
    TypeStringCombox* firstCombox() const;
    // The second combo row (owned by this row).
    TypeStringCombox* secondCombox() const;

private:
    TypeStringCombox* m_first;
    TypeStringCombox* m_second;
};

} // namespace Widget
} // namespace LCD
