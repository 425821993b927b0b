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
    void setBtnFocus(int id) const;
    void setButtonDisabled(int id, bool disabled);
    // A hidden tile is also disabled; the row is centred again when shown.
    void setButtonVisible(int id, bool visible);
    void setZOrderFlag(bool zOrder);
    bool zOrderFlag() const;
    // The ids of the tiles, in insertion order.
    QList<int> buttonIds() const;

    int exec() override;
    int getCustomReminderDialogWidth() const;
    int getCustomReminderDialogHeight() const;
    float getFontSize() const;

signals:
    void btnPressed(int id);
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
    explicit RoundedCornersDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());

protected:
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace Widget
} // namespace LCD
