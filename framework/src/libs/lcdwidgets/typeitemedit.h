// A text field row (a device name, a password) with an edit button beside the field.
//
// The knob's press on the row (editValue()) puts the field into editing: it takes the
// keys, typed text is reported live through signalValueChanged(QString), knob turns move
// the text cursor (Up forwards, Down backwards) and Enter, Return or Escape end the edit:
// the focus goes back to the page, then signalCloseEditStatus() and signalEditFinished()
// follow (as when the page closes the edit or the field loses the focus). The edit
// button emits signalEditBtnClicked() so that the host can open its own keyboard. In
// password mode the text is masked.
#pragma once

#include "commonitemtype.h"

class QLineEdit;
class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeItemEdit : public CommonItemType
{
    Q_OBJECT
public:
    // An empty field (object name "itemEditField") and a 32×32 px edit button
    // ("isIconPwdBtn"); no right icon.
    explicit TypeItemEdit(QWidget* parent = nullptr);
    ~TypeItemEdit() override;

    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;
    void editValue() override;
    void closeEditValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;
    void setItemTitleWidth(int width) override;

    // Masks the text (QLineEdit::Password) or shows it.
    void setPasswordMode(bool password);
    // Text shown in grey while the field is empty.
    void setPlaceholderText(QString const& text);
    // Fixes the field's size in px (then kept); a negative or too large size is refused
    // ("[TypeItemEdit] setValueLabelSize: size <w>x<h> refused").
    void setValueLabelSize(QSize size);
    // Fixes the edit button's size in px (default 32×32); bad sizes refused like above.
    void setIconButtonSize(QSize size);

    // The text field (owned by the row).
    QLineEdit* lineEdit() const;
    // The edit button (owned by the row).
    QPushButton* editButton() const;

    // The field's keys while editing: Up/Down move the cursor, Enter, Return and Escape
    // end the edit; a focus lost ends it once the focus has settled elsewhere.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // The edit button was clicked (the host opens its keyboard).
    void signalEditBtnClicked();

protected:
    // A focus that reaches the row while it edits goes on to the field.
    void focusInEvent(QFocusEvent* event) override;

private:
    void createWidget();
    void createConnects();
    void finishEdit();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
