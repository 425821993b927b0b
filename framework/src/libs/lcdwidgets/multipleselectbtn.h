// A row of selectable tool buttons described by ItemSelectInfo records, and the same
// selection offered in a dialog.
//
// The row remembers the focused button: whenever the focus comes into the row it lands
// on that button. Up/Down move it (no wrap), the knob's press (Enter/Return) or a click
// reports the button's value ("MarkValue" property) with signalSelectBtnClicked(), and
// Escape ends the edit with signalEditFinished().
#pragma once

#include "lcdwidgets_global.h"

#include <QDialog>
#include <QIcon>
#include <QRect>
#include <QVariant>
#include <QWidget>
#include <memory>
#include <vector>

class QToolButton;

namespace LCD {
namespace Widget {

// One selectable button.
struct LCDWIDGETS_EXPORT ItemSelectInfo
{
    // The button's text.
    QString text;
    // The button's icon.
    QIcon icon;
    // Reported when the button is chosen; kept as the button's "MarkValue" property.
    QVariant value;

    ItemSelectInfo() = default;
    // A button with text `t`, icon `i` and value `v`.
    ItemSelectInfo(QString t, QIcon i, QVariant v) : text(std::move(t)), icon(std::move(i)), value(std::move(v)) {}
};

class LCDWIDGETS_EXPORT MultipleSelectBtn : public QWidget
{
    Q_OBJECT
public:
    // Buttons with their text under the icon, 64 x 65; `index` is the button the focus
    // starts on (clamped to the buttons).
    MultipleSelectBtn(int index, std::vector<ItemSelectInfo> const& infos, QWidget* parent = nullptr);
    // Buttons on a light rounded background in the given tool button style, `spacing`
    // pixels apart (a negative spacing counts as 0).
    MultipleSelectBtn(int index, int spacing, std::vector<ItemSelectInfo> const& infos, Qt::ToolButtonStyle style,
                      QWidget* parent = nullptr);
    ~MultipleSelectBtn() override;

    // The text of one button; a bad index is refused.
    void setBtnText(int index, QString text);
    // Sizes the buttons for n: font 0.8 n, height (n / 3) * 4, focus frame n / 16; icon
    // buttons are square, buttons showing their text beside the icon (or alone) as wide
    // as the text needs. n below kMinButtonSize or above kMaxButtonSize is
    // refused ("Invalid button size:").
    static constexpr int kMinButtonSize = 3;
    // Largest n setBtnSize() takes.
    static constexpr int kMaxButtonSize = 1024;
    // See above (n in px).
    void setBtnSize(int n);
    // Position of `button`; -1 when it is not one of this row's.
    int getIndex(QToolButton* button) const;
    // Number of buttons.
    int count() const;
    // The remembered (focused) button's position.
    int currentIndex() const;
    // The button at `index`; null for a bad index.
    QToolButton* button(int index) const;

    // The buttons' focus and keys as described above (Up/Down, Enter/Return, Escape).
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    // When the focus comes to the row itself, the remembered button takes it.
    void slotFocusChanged(QWidget* old, QWidget* now);

signals:
    // A button was chosen (press or click): its value.
    void signalSelectBtnClicked(QVariant value);
    // Escape ended the edit.
    void signalEditFinished();

private:
    void build(std::vector<ItemSelectInfo> const& infos, Qt::ToolButtonStyle style, int spacing);
    void focusButton(int index);

    struct Impl;
    std::unique_ptr<Impl> d;
};

// The selection of MultipleSelectBtn in a frameless modal dialog sized from the host's
// rectangle. Choosing a button emits signalSelectBtnClicked() and accepts the dialog;
// Escape emits signalEditFinished() and rejects it.
class LCDWIDGETS_EXPORT MultipleDialog : public QDialog
{
    Q_OBJECT
public:
    // A modal, frameless dialog ("isMultipleDialog") with the buttons of `infos`, the focus
    // starting on `index`; rect: the host rectangle it is sized from.
    MultipleDialog(int index, std::vector<ItemSelectInfo> const& infos, QRect rect, QWidget* parent = nullptr);
    ~MultipleDialog() override;

    // MultipleSelectBtn::setBtnText(): a bad index is logged
    // ("MultipleSelectBtn::setBtnText: invalid index <index>").
    void setBtnText(int index, QString text);
    // Position of `button`; -1 when it is not one of the dialog's.
    int getIndex(QToolButton* button) const;
    // Three fifths of the host rectangle's width, two fifths of its height.
    int getReminderDialogWidth() const;
    // The dialog's height in px.
    int getReminderDialogHeight() const;
    // The row of buttons (owned by the dialog).
    MultipleSelectBtn* selectBtn() const;

    // Logs "[dialog] exec finish with " and the result.
    int exec() override;
    // Every way out without a choice (Escape included) emits signalEditFinished().
    void reject() override;

public slots:
    // MultipleSelectBtn::slotFocusChanged() of the row.
    void slotFocusChanged(QWidget* old, QWidget* now);

signals:
    // A button was chosen: its value (the dialog then accepts).
    void signalSelectBtnClicked(QVariant value);
    // The dialog was left without a choice (rejected).
    void signalEditFinished();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
