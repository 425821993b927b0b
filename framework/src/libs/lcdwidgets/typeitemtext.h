// Rows that show a title and a value text.
//
// TypeItemText: the value sits right-aligned in the row, optionally with an icon in
// front of it. setLabelValue() with mode 0 cuts a long value at two thirds of the item
// width, mode 1 shows it as it is; setRollValue() scrolls a value that does not fit.
//
// TypeItemTextCenter: the same row with the value centred in the right half of the row
// (a two-column look for read-outs); the value greys with the row when it is disabled.
#pragma once

#include "commonitemtype.h"

#include <QFont>

class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeItemText : public CommonItemType
{
    Q_OBJECT
public:
    explicit TypeItemText(QWidget* parent = nullptr);
    ~TypeItemText() override;

    // mode > 0: plain text; otherwise elided at two thirds of the item width.
    void setLabelValue(QVariant value, int mode) override;
    // Same width rule, but a value that does not fit scrolls.
    void setRollValue(QVariant value);
    QVariant getLabelValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    void setValueLabelFeed(bool wrap);
    void setLabelStyle();
    QFont valueLabelFont() const;
    // Height = the value's maximum height, width = its minimum width.
    void setValueLabelSize(QSize size);
    void setIconButtonHide(bool hide);
    void setIconButtonProperty(std::string const& name, QVariant value);
    void setIconButtonSize(QSize size);
    // Adds a fixed spacer of `width` after the value. Only the very first call in the
    // process, on whichever text row makes it, has an effect.
    void rightDistanceCorrection(int width);

    RollLabel* valueLabel() const;
    QPushButton* iconButton() const;

signals:
    void signalClicked(bool checked);

private:
    void createWidget();
    void ensureIconButton() const;
    void createConnects();

    struct Impl;
    std::unique_ptr<Impl> d;
};

class LCDWIDGETS_EXPORT TypeItemTextCenter : public CommonItemType
{
    Q_OBJECT
public:
    explicit TypeItemTextCenter(QWidget* parent = nullptr);
    ~TypeItemTextCenter() override;

    void setLabelValue(QVariant value, int mode) override;
    void setRollValue(QVariant value);
    QVariant getLabelValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;
    void setContentEnabled(bool enabled) override;
    // The value column takes the right half of the row.
    void setItemTitleWidth(int width) override;

    void setValueLabelFeed(bool wrap);
    void setLabelStyle();
    QFont valueLabelFont() const;
    void setValueLabelSize(QSize size);

    RollLabel* valueLabel() const;

private:
    void createWidget();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
