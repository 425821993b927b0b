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
    Q_PROPERTY(int contentFontSize READ contentFontSize WRITE setContentFontSize)
public:
    // Layout constants at the reference font size 16.
    static constexpr int kReferenceFontSize = 16;
    static constexpr int kPreviewHeight = 40;
    static constexpr int kPreviewWidth = 64;
    static constexpr int kVerticalSpacing = 16;
    static constexpr int kGridWidth = 360;
    static constexpr int kRowHeight = 24;
    static constexpr int kColumns = 9;
    static constexpr int kButtonWidth = 40;

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
    void setContentFontSize(int size);
    int contentFontSize() const;
    void setContentDisabled(bool disabled) const;
    // Checks the current choice's button, unchecks the others, and plays its preview.
    void resetBtnCheckStatus();
    // The knob's focus step (no wrap); the preview follows the focus, and
    // signalSelectedChanged(key) names the newly focused choice.
    void setUpDownPressed(bool up);

    // The buttons in creation (key) order, the preview label and the file it plays.
    QList<QPushButton*> buttons() const;
    QWidget* previewLabel() const;
    QWidget* buttonFrame() const;
    QString previewFile() const;
    QMovie* movie() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void signalValueChanged(QVariant value);
    void signalSelectedChanged(QVariant value);
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
    explicit TypeItemEffectPicture(QWidget* parent = nullptr);
    ~TypeItemEffectPicture() override;

    void setPictureData(QString const& name, QString const& previewFile, QMap<int, QPair<QString, QString>> const& choices);
    void setCurrentValue(int key);
    int getCurrentValue() const;
    void setCurrentUserData(QVariant data) const;
    void setContentFontSize(int size) override;
    void setContentDisabled(bool disabled) const override;
    // Rows of text the chooser takes: 1 (it is as tall as its preview and grid).
    int getWidgetRow() override;
    void editValue() override;

    EffectPictureWidget* effectPictureWidget() const;

signals:
    void signalEffectPictureValueChanged(QVariant value);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
