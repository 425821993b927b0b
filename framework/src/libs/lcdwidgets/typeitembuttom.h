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
    // An empty value, icon hidden, the bar shown at 0..100 with its percentage; no right icon.
    explicit TypeItemButtom(QWidget* parent = nullptr);
    ~TypeItemButtom() override;

    // mode > 0: shown as it is; otherwise cut with "..." at a third of the row.
    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentEnabled(bool enabled) override;
    void setContentFontSize(int size) override;

    // The small icon (an image file, scaled to fit); a file that does not load is logged
    // ("TypeItemButtom: cannot load image" and the file) and clears the icon.
    void setLabelIcon(QString image);
    // Shows or hides the icon (hidden by default).
    void setIconVisible(bool visible);
    // Shows or hides the progress bar.
    void setProgressBarVisible(bool visible);
    // Refused (with a warning) when minimum > maximum.
    void setProgressBarRange(int minimum, int maximum);
    // The bar's value (QProgressBar's rules: outside the range ignored).
    void setProgressBarValue(int value);
    // The row's user data (kept for the host).
    void setItemData(QVariant data);
    // The row's user data (invalid by default).
    QVariant getUserData() const;

    // The value label (owned by the row).
    QLabel* valueLabel() const;
    // The icon label (owned by the row).
    QLabel* iconLabel() const;
    // The progress bar (owned by the row).
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
