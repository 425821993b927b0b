// A row that leads to a sub-page: the arrow on the right, up to two value texts in front
// of it (index 0 nearer the title, index 1 nearer the arrow, each cut with "..." at a
// third of the row) and an optional small tag (such as "NEW") before the values.
#pragma once

#include "commonitemtype.h"

class QLabel;
class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeItemArrow : public CommonItemType
{
    Q_OBJECT
public:
    // Number of value labels: the indexes are 0 and 1.
    static constexpr int kValueLabelCount = 2;

    // A row with two empty value labels ("isValueText") and the arrow button
    // ("isIconListArrow", 24 x 24) in its value area; the row's right icon is hidden. The
    // tag is built with its first text.
    explicit TypeItemArrow(QWidget* parent = nullptr);
    ~TypeItemArrow() override;

    // Value label 0.
    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;
    // Shows `value` as text on value label `index`, cut with "..." at a third of the item
    // width (not cut while the row has no width). Another index is refused with the warning
    // "TypeItemArrow::setLabelText invalid label index <index>".
    void setLabelText(int index, QVariant value) const;
    // The text last given to value label `index`, uncut. Another index gives an empty
    // string and the warning "TypeItemArrow::labelText invalid label index <index>".
    QString labelText(int index) const;
    // Hides (true) or shows (false) value label `index`. Another index is refused with the
    // warning "TypeItemArrow::setValueLabelHidden invalid label index <index>".
    void setValueLabelHidden(int index, bool hidden) const;
    // Sets the dynamic property `name` on value label `index` and re-polishes it. A null
    // `name` is ignored; another index is refused with the warning
    // "TypeItemArrow::setLabelProperty invalid label index <index>".
    void setLabelProperty(int index, char const* name, QVariant const& value);
    // An empty text hides the tag.
    void setTagLabelText(QString text) const;

    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // Value label `index`. Another index gives null and the warning
    // "TypeItemArrow::valueLabel invalid label index <index>".
    QLabel* valueLabel(int index) const;
    // The tag label ("isArrowTag"); the first call builds it, hidden and empty.
    QLabel* tagLabel() const;
    // The arrow button.
    QPushButton* arrowButton() const;

private:
    void createWidget();
    void ensureTag() const;
    bool checkIndex(int index, char const* function) const;

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
