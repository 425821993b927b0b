// A whole device page shown as one row of a gallery page: the knob's press hands the
// knob to the device page (editValue), and Escape that the device page does not use
// itself (its own editors take the first one) gives it back. `back`, if set, is
// asked first: returning true keeps the knob in the page (e.g. to close a sub-page).
#pragma once

#include <commonitemtype.h>

#include <functional>

class PageRow : public LCD::Widget::CommonItemType
{
    Q_OBJECT
public:
    PageRow(QWidget* page, QString const& title, QWidget* parent);

    void editValue() override;
    void setContentDisabled(bool disabled) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    QWidget* page() const { return m_page; }
    std::function<void()> enter;
    std::function<bool()> back;

private:
    QWidget* m_page;
    bool m_editing = false;
};
