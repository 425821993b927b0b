// Item row holding a pair of integers (a QSize) edited with the knob in an
// NQDualLineEdit: the press moves from the first value to the second and then ends
// the edit, Escape ends it at once.
#pragma once

#include "commonitemtype.h"
#include "lcdwidgets_global.h"

#include <memory>

namespace LCD {
namespace Widget {

class NQDualLineEdit;

class LCDWIDGETS_EXPORT TypeDualInt : public CommonItemType
{
    Q_OBJECT
public:
    // The editor is 70 px wide at the right of the row; each change is reported as
    // signalValueChanged(QVariant(QSize)).
    explicit TypeDualInt(QWidget* parent = nullptr);
    ~TypeDualInt() override;

    // A QSize, or a text holding two integers ("1920x1080").
    void setLabelValue(QVariant value, int mode = 0) override;
    QVariant getLabelValue() override;
    void editValue() override;
    // Range of both values.
    void setRange(int minimum, int maximum) override;
    void setSingleStep(float step) override;
    void setContentDisabled(bool disabled) const override;

    // The pair's editor (owned by the row).
    NQDualLineEdit* editor() const;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
