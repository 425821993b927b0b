// A value row with a small icon and a progress bar, for jobs that run in the background
// (an export, a firmware download). The value text is cut with "..." at a third of the
// row; the bar takes a quarter of the row and follows the item width. A range of 0, 0
// makes the bar a busy indicator (its "loopType" property is then true).
#pragma once

#include "commonitemtype.h"

class QLabel;
class QProgressBar;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeItemButtom : public CommonItemType
{
    Q_OBJECT
public:
    explicit TypeItemButtom(QWidget* parent = nullptr);
    ~TypeItemButtom() override;

    // mode > 0: shown as it is; otherwise cut with "..." at a third of the row.
    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentEnabled(bool enabled) override;
    void setContentFontSize(int size) override;

    void setLabelIcon(QString image);
    void setIconVisible(bool visible);
    void setProgressBarVisible(bool visible);
    // Refused (with a warning) when minimum > maximum.
    void setProgressBarRange(int minimum, int maximum);
    void setProgressBarValue(int value);
    void setItemData(QVariant data);
    QVariant getUserData() const;

    QLabel* valueLabel() const;
    QLabel* iconLabel() const;
    QProgressBar* progressBar() const;

public slots:
    // Re-sizes the bar and re-cuts the value for the current item width.
    void itemWidthChanged();

private:
    void createWidget();
    void createConnects();
    void showValue();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
