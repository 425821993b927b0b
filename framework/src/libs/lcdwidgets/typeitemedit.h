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
    explicit TypeItemEdit(QWidget* parent = nullptr);
    ~TypeItemEdit() override;

    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;
    void editValue() override;
    void closeEditValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;
    void setItemTitleWidth(int width) override;

    void setPasswordMode(bool password);
    void setPlaceholderText(QString const& text);
    void setValueLabelSize(QSize size);
    void setIconButtonSize(QSize size);

    QLineEdit* lineEdit() const;
    QPushButton* editButton() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
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
