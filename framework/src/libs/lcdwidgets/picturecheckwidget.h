// A grid of pictures with captions, each with its own check mark: the multi-choice
// cousin of the effect chooser (EffectPictureWidget). Any number of pictures can be
// checked; each picture carries an int value.
//
// Keys (while a picture has the focus): Up/Down move the focus to the previous/next
// picture in reading order, one picture a detent whatever the knob's level, no wrap;
// Enter or Return flips the focused picture's check mark and emits
// signalValueChanged(value, checked); Escape emits signalCloseEditStatus() (the marks
// stay as they are). Focus entering the grid goes to the first picture. A mouse click
// flips a picture the same way. Moving the focus emits signalSelectedChanged(value).
//
// Bad input is refused with a debug message and changes nothing:
//   "[PictureCheckWidget] addPicture: value N exists already"
//   "[PictureCheckWidget] addPicture: no picture in FILE" (the entry is still added,
//      caption only, so that a missing theme file does not lose the choice)
//   "[PictureCheckWidget] <function>: no picture with value N"
//   "[PictureCheckWidget] setColumns: columns must be at least 1, got N"
//   "[PictureCheckWidget] setPictureSize: invalid size WxH"
//   "[PictureCheckWidget] setContentFontSize: font size must be positive, got N"
//
// Theme: every picture is a QToolButton with the dynamic property "isPictureCheck" =
// true (checked/focus/disabled states through the sheet's pseudo-states); the check
// mark is painted in the sheet's selection colours (selection-background-color,
// selection-color) in the picture's top-right corner.
#pragma once

#include "lcdwidgets_global.h"

#include <QFrame>
#include <QIcon>
#include <QVector>
#include <memory>

class QAbstractButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT PictureCheckWidget : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int columns READ columns WRITE setColumns)
    Q_PROPERTY(QSize pictureSize READ pictureSize WRITE setPictureSize)
    Q_PROPERTY(int contentFontSize READ contentFontSize WRITE setContentFontSize)
public:
    static constexpr int kDefaultColumns = 4;
    static constexpr int kDefaultFontSize = 20;

    explicit PictureCheckWidget(QWidget* parent = nullptr);
    ~PictureCheckWidget() override;

    // Appends a picture (unchecked). Values must be unique.
    void addPicture(QIcon const& picture, QString const& caption, int value);
    // The same from an image file.
    void addPicture(QString const& file, QString const& caption, int value);
    void removePicture(int value);
    void clear();
    int count() const;
    // Whether a picture carries the value.
    bool contains(int value) const;
    void setCaption(int value, QString const& caption);
    QString caption(int value) const;

    // Pictures a row (default 4).
    void setColumns(int columns);
    int columns() const;
    // Rows the grid has now.
    int rowCount() const;
    // Size of each picture (default 64 x 40).
    void setPictureSize(QSize size);
    QSize pictureSize() const;
    // Caption font's pixel size (default 20).
    void setContentFontSize(int size);
    int contentFontSize() const;
    void setContentDisabled(bool disabled);

    // Silent setters (no signal).
    void setChecked(int value, bool checked);
    // Exactly the listed values checked; unknown values are logged and skipped.
    void setCheckedValues(QVector<int> const& values);
    bool isChecked(int value) const;
    // Checked values in display order.
    QVector<int> checkedValues() const;

    // Value of the picture that has the focus; -1 when none has.
    int focusedValue() const;
    // The pictures in display order.
    QList<QAbstractButton*> buttons() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void signalValueChanged(int value, bool checked);
    void signalSelectedChanged(int value);
    void signalCloseEditStatus();

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
