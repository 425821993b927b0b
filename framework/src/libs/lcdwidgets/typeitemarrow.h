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
    static constexpr int kValueLabelCount = 2;

    explicit TypeItemArrow(QWidget* parent = nullptr);
    ~TypeItemArrow() override;

    // Value label 0.
    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;
    void setLabelText(int index, QVariant value) const;
    QString labelText(int index) const;
    void setValueLabelHidden(int index, bool hidden) const;
    void setLabelProperty(int index, char const* name, QVariant const& value);
    // An empty text hides the tag.
    void setTagLabelText(QString text) const;

    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    QLabel* valueLabel(int index) const;
    QLabel* tagLabel() const;
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
