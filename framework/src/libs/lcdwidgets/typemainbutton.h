// Rows without a value widget.
//
// TypeMainButton: an entry of a main menu: the title and the row's own left and right
// icons (for instance a large icon and an arrow); nothing is greyed. The icons' widths
// are taken off the width the page gives, so that the title leaves room for them
// (getItemWidth() and signalItemWidthChanged() report the width left for the title).
//
// TypeItemNull: a heading or plain text line in the "about" style, carrying user data
// for the page; nothing to edit and nothing to grey.
#pragma once

#include "commonitemtype.h"

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeMainButton : public CommonItemType
{
    Q_OBJECT
public:
    // A menu entry with its left and right icon buttons shown.
    explicit TypeMainButton(QWidget* parent = nullptr);
    ~TypeMainButton() override;

    void setContentDisabled(bool disabled) const override;
    void setItemTitleWidth(int width) override;
    void setLeftIconSize(QSize size) override;
    void setRightIconSize(QSize size) override;

private:
    void createWidget();
    void fitTitle();

    struct Impl;
    std::unique_ptr<Impl> d;
};

class LCDWIDGETS_EXPORT TypeItemNull : public CommonItemType
{
    Q_OBJECT
public:
    // A title only.
    explicit TypeItemNull(QWidget* parent = nullptr);
    ~TypeItemNull() override;

    void setContentDisabled(bool disabled) const override;
    // The row's user data, kept for the page.
    void setItemData(QVariant data);
    // The row's user data (invalid by default).
    QVariant getUserData() const;

private:
    void createWidget();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
