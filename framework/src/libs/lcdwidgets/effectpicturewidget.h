// A chooser of transition effects: an animated preview above a grid of small picture
// buttons (9 a row), one button a choice.
//
// Turning the knob over the buttons plays the preview of the focused choice; the press
// (Enter/Return, or a click) chooses it and emits signalValueChanged(key) and then
// signalCloseEditStatus(); Escape brings back both the check mark and the preview of
// the committed choice and emits signalCloseEditStatus(). As in MultiBtnControl, the
// committed choice shows as focused (not checked) while the user browses.
//
// Each button shows the theme's picture for its picture key (a QLabel with the dynamic
// property "EffectPictureWidget" set to the key). Sizes are given for the font size 16
// and scale with the content font size n as value * n / 16.
#pragma once

#include "commonitemtype.h"

#include <QFrame>
#include <QMap>
#include <QPair>
#include <QVariant>
#include <memory>

class QMovie;
class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT EffectPictureWidget : public QFrame
{
    Q_OBJECT
    // The font size n the sizes are scaled for (n / 16).
    Q_PROPERTY(int contentFontSize READ contentFontSize WRITE setContentFontSize)
public:
    // Layout constants at the reference font size 16.
    static constexpr int kReferenceFontSize = 16;
    // Height of the preview in px.
    static constexpr int kPreviewHeight = 40;
    // Width of the preview in px.
    static constexpr int kPreviewWidth = 64;
    // Space between the preview and the grid in px.
    static constexpr int kVerticalSpacing = 16;
    // Width of the grid of buttons in px.
    static constexpr int kGridWidth = 360;
    // Height of a row of buttons in px.
    static constexpr int kRowHeight = 24;
    // Buttons a row.
    static constexpr int kColumns = 9;
    // Width of a button in px.
    static constexpr int kButtonWidth = 40;

    // No choices; the preview sized for the reference font size.
    explicit EffectPictureWidget(QFrame* parent = nullptr);
    ~EffectPictureWidget() override;

    // `name` names the set of effects (the preview's accessible name and tool tip);
    // `previewFile` is the animation shown first; `choices` maps each key to its
    // (picture key, preview file). One button a choice, in key order.
    void setPictureData(QString const& name, QString const& previewFile, QMap<int, QPair<QString, QString>> const& choices);
    // The choice with that key becomes current (silently); an unknown key is refused.
    void setCurrentValue(int key);
    // The current choice's key; -1 while there is none.
    int getCurrentValue() const;
    // Stores `data` as the user data of the button whose key it names.
    void setCurrentUserData(QVariant data) const;
    // Sizes for the font size n (n < 1 or n > kMaxFontSize is refused).
    static constexpr int kMaxFontSize = 512;
    // Refused sizes are logged: "EffectPictureWidget::setContentFontSize: invalid font size <n>".
    void setContentFontSize(int size);
    // The font size the sizes are scaled for.
    int contentFontSize() const;
    // Disables (or enables) the grid and every button.
    void setContentDisabled(bool disabled) const;
    // Checks the current choice's button, unchecks the others, and plays its preview.
    void resetBtnCheckStatus();
    // The knob's focus step (no wrap); the preview follows the focus, and
    // signalSelectedChanged(key) names the newly focused choice.
    void setUpDownPressed(bool up);

    // The buttons in creation (key) order, the preview label and the file it plays.
    QList<QPushButton*> buttons() const;
    // The label that plays the preview.
    QWidget* previewLabel() const;
    // The frame that holds the grid of buttons.
    QWidget* buttonFrame() const;
    // The file the preview plays now.
    QString previewFile() const;
    // The preview's animation (owned by the chooser).
    QMovie* movie() const;

    // The buttons' keys: Up/Down move the focus (setUpDownPressed()); Escape returns to the
    // committed choice and emits signalCloseEditStatus().
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // A choice was made (press or click): its key, QVariant(int).
    void signalValueChanged(QVariant value);
    // The focus moved to another choice: its key.
    void signalSelectedChanged(QVariant value);
    // The edit ended (after a choice, or on Escape).
    void signalCloseEditStatus();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void choose(QPushButton* button);
    void playPreview(QString const& file);
    void previewFor(QPushButton* button);

    struct Impl;
    std::unique_ptr<Impl> d;
};

// A row holding one effect chooser (no title, no right icon).
class LCDWIDGETS_EXPORT TypeItemEffectPicture : public CommonItemType
{
    Q_OBJECT
public:
    // An empty chooser.
    explicit TypeItemEffectPicture(QWidget* parent = nullptr);
    ~TypeItemEffectPicture() override;

    // EffectPictureWidget::setPictureData().
    void setPictureData(QString const& name, QString const& previewFile, QMap<int, QPair<QString, QString>> const& choices);
    // The choice with that key becomes current, silently (unknown keys refused).
    void setCurrentValue(int key);
    // The current choice's key; -1 while there is none.
    int getCurrentValue() const;
    // EffectPictureWidget::setCurrentUserData().
    void setCurrentUserData(QVariant data) const;
    void setContentFontSize(int size) override;
    void setContentDisabled(bool disabled) const override;
    // Rows of text the chooser takes: 1 (it is as tall as its preview and grid).
    int getWidgetRow() override;
    void editValue() override;

    // The chooser (owned by the row).
    EffectPictureWidget* effectPictureWidget() const;

signals:
    // A choice was made: its key (then signalCloseEditStatus() and signalEditFinished()).
    void signalEffectPictureValueChanged(QVariant value);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
