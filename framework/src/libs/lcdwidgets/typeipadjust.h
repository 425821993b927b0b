// Item row that edits an IPv4 address with the knob through an IPLineEdit.
//
// The knob's press on the page (editValue) starts the edit on the fourth octet,
// stepping its value; the press inside the edit switches between stepping the
// octet and walking to another octet; Escape ends the edit and hands the knob back.
//
// Kinds: 9 shows the edit mark on the right ("isIconListEdit"), 10 hides the right
// icon; other kinds leave the icon button as the theme draws it.
#pragma once

#include "commonitemtype.h"
#include "lcdwidgets_global.h"

#include <memory>

namespace LCD {
namespace Widget {

class IPLineEdit;

class LCDWIDGETS_EXPORT TypeIpAdjust : public CommonItemType
{
    Q_OBJECT
public:
    // kind: 9 or 10, see above. The address starts empty.
    explicit TypeIpAdjust(QWidget* parent = nullptr, int kind = 9);
    ~TypeIpAdjust() override;

    // QVariant(QString): the dotted address.
    QVariant getLabelValue() override;
    // Takes the value's text as an address (refused, with a warning, if it is none).
    void setLabelValue(QVariant value, int mode = 0) override;
    void editValue() override;
    void setContentDisabled(bool disabled) const override;
    // Font size n for the address, and the fixed width 8n for the editor (wider if the
    // font's digits need it: four three-digit octets always show whole).
    void setContentFontSize(int size) override;
    void setItemHeight(int height) override;

    // Whether an octet's text was changed by the user (QLineEdit::isModified() of any field).
    bool isModified() const;
    // setContentDisabled(!enabled).
    void setIpLineEditEnable(bool enabled) const;
    // The address editor (owned by the row).
    IPLineEdit* lineEdit() const;

    // Escape in the editor ends the edit (signalLineEditFinished, then signalEditFinished);
    // the editor's key releases are swallowed.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // The edit ended (the focus is back on the row's parent); signalEditFinished follows.
    void signalLineEditFinished();

private:
    void finishEdit();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
