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
    // Pictures a row (at least 1).
    Q_PROPERTY(int columns READ columns WRITE setColumns)
    // Size of each picture in px.
    Q_PROPERTY(QSize pictureSize READ pictureSize WRITE setPictureSize)
    // Caption font's pixel size.
    Q_PROPERTY(int contentFontSize READ contentFontSize WRITE setContentFontSize)
public:
    // Pictures a row by default.
    static constexpr int kDefaultColumns = 4;
    // Caption font's pixel size by default.
    static constexpr int kDefaultFontSize = 20;

    // An empty grid: 4 columns, pictures of 64 × 40 px, captions at 20 px.
    explicit PictureCheckWidget(QWidget* parent = nullptr);
    ~PictureCheckWidget() override;

    // Appends a picture (unchecked). Values must be unique.
    void addPicture(QIcon const& picture, QString const& caption, int value);
    // The same from an image file.
    void addPicture(QString const& file, QString const& caption, int value);
    // Removes the picture with that value (an unknown value is logged); a focus it had
    // goes to the grid. No signal.
    void removePicture(int value);
    // Removes every picture, without signals.
    void clear();
    // Number of pictures.
    int count() const;
    // Whether a picture carries the value.
    bool contains(int value) const;
    // The caption of the picture with that value (empty: icon only); unknown value logged.
    void setCaption(int value, QString const& caption);
    // The caption of the picture with that value; empty (and logged) for an unknown value.
    QString caption(int value) const;

    // Pictures a row (default 4).
    void setColumns(int columns);
    // Pictures a row.
    int columns() const;
    // Rows the grid has now.
    int rowCount() const;
    // Size of each picture (default 64 x 40).
    void setPictureSize(QSize size);
    // Size of each picture in px.
    QSize pictureSize() const;
    // Caption font's pixel size (default 20).
    void setContentFontSize(int size);
    // Caption font's pixel size.
    int contentFontSize() const;
    // Disables (or enables) the grid and every picture.
    void setContentDisabled(bool disabled);

    // Silent setters (no signal).
    void setChecked(int value, bool checked);
    // Exactly the listed values checked; unknown values are logged and skipped.
    void setCheckedValues(QVector<int> const& values);
    // Whether the picture with that value is checked; false for an unknown value.
    bool isChecked(int value) const;
    // Checked values in display order.
    QVector<int> checkedValues() const;

    // Value of the picture that has the focus; -1 when none has.
    int focusedValue() const;
    // The pictures in display order.
    QList<QAbstractButton*> buttons() const;

    // The pictures' keys as described above.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // The user flipped a picture: its value and new state.
    void signalValueChanged(int value, bool checked);
    // The focus moved to the picture with that value.
    void signalSelectedChanged(int value);
    // Escape ended the edit.
    void signalCloseEditStatus();

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
