// A reminder-style dialog whose content is a row of large tiles, each a button with
// an icon (chosen by a dynamic property the theme styles) and a caption under it,
// identified by an id chosen by the caller.
//
//   CustomReminderDialog dialog(homeRect);
//   dialog.addButton(1, tr("Save"), "isIconTileSave", false);
//   dialog.addButton(2, tr("Delete"), "isIconTileDelete", true);
//   int id = dialog.exec(); // the pressed tile's id, -1 after Escape
//
// In z-order mode (setZOrderFlag(true)) a press only emits btnPressed(id) and the
// dialog stays open. Up/Down move between the tiles, Escape closes; other keys
// are dropped. Sizes follow the host rectangle (W × H): 11·W/16 × 3·H/5, tiles
// W/8 × 3·H/10 with W/32 between them, the visible ones centred.
#pragma once

#include "lcdwidgets_global.h"

#include <QDialog>
#include <QRect>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT CustomReminderDialog : public QDialog
{
    Q_OBJECT
public:
    // A top-level dialog; an empty `rect` is logged and replaced by 800x480.
    explicit CustomReminderDialog(QRect rect);
    ~CustomReminderDialog() override;

    // Adds a tile; an id already used keeps the first tile (and is logged).
    // `iconProperty` is set to true on the tile's button; `isDelete` marks the
    // caption as that of a destructive action.
    void addButton(int id, QString const& text, QString const& iconProperty, bool isDelete = false);
    // The calls below log and refuse an id without a tile.
    void setLabelText(int id, QString const& text) const;
    // Focuses the tile; an unknown id is logged:
    // "[CustomReminderDialog] setBtnFocus button(<id>) does not exist."
    void setBtnFocus(int id) const;
    // Disables or enables the tile; its caption is dimmed with it (theme property
    // "isDeleteLabel" or "isPresetDialogText" = !disabled).
    void setButtonDisabled(int id, bool disabled);
    // A hidden tile is also disabled; the row is centred again when shown.
    void setButtonVisible(int id, bool visible);
    // true: a press emits btnPressed(id) and the dialog stays open; false (default): a press
    // closes the dialog with the tile's id.
    void setZOrderFlag(bool zOrder);
    // See setZOrderFlag().
    bool zOrderFlag() const;
    // The ids of the tiles, in insertion order.
    QList<int> buttonIds() const;

    // Runs the dialog modally, centred on the host rectangle: the pressed tile's id, or -1
    // after Escape; the result is logged ("[dialog] exec finish with <result>", debug).
    // A second run while one is under way is refused
    // ("[CustomReminderDialog] exec: already running, refused") and answers Rejected (0).
    int exec() override;
    // The dialog's width in px (11/16 of the host's width).
    int getCustomReminderDialogWidth() const;
    // The dialog's height in px (3/5 of the host's height).
    int getCustomReminderDialogHeight() const;
    // The text size in px derived from the host rectangle (its width / 37.5); captions use
    // 4/5 of it.
    float getFontSize() const;

signals:
    // In z-order mode: a tile was pressed.
    void btnPressed(int id);
    // Escape closed the dialog (emitted before it closes with -1).
    void backSpaceClicked();

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void relayoutContentArea();

    struct Impl;
    std::unique_ptr<Impl> d;
};

// A plain dialog with rounded corners (radius 6).
class LCDWIDGETS_EXPORT RoundedCornersDialog : public QDialog
{
    Q_OBJECT
public:
    // A QDialog masked to its rectangle with 6 px corners on every resize.
    explicit RoundedCornersDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());

protected:
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace Widget
} // namespace LCD
