// Base of every item row: an optional left icon with a caption, a title (with an
// optional second title), the subclass's value widgets in the dynamic frame, an
// optional right icon and a thin under-line.
//
// Edit protocol: the page calls editValue() on its current row; the row's editor
// takes the keys and the row reports signalValueChanged() live; Escape (or the
// editor's own end of edit) returns the focus to the page and the row emits
// signalCloseEditStatus() and/or signalEditFinished(). closeEditValue() is the
// page's way to leave editing.
#pragma once

#include "lcdwidgets_global.h"
#include "rolllabel.h"
#include "stylehelper.h"

#include <QFrame>
#include <QVariant>
#include <functional>
#include <memory>
#include <string>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT CommonItemType : public QFrame
{
    Q_OBJECT
    // The title (itemTitle(); setItemTitle() sets it without scrolling).
    Q_PROPERTY(QString itemTitle READ itemTitle WRITE setItemTitle)
    // Pixel size of the title, 1..512, default 20 (contentFontSize(), setContentFontSize()).
    Q_PROPERTY(int contentFontSize READ contentFontSize WRITE setContentFontSize)
    // The row's height as the page gives it, -1 until set (itemHeight(), setItemHeight()).
    Q_PROPERTY(int itemHeight READ itemHeight WRITE setItemHeight)
    // Whether the row is enabled, default true (getContentEnabled(), setContentEnabled()).
    Q_PROPERTY(bool contentEnabled READ getContentEnabled WRITE setContentEnabled)
    // A flag kept for the host, default false (getAutoUpdateContent(), setAutoUpdateContent()).
    Q_PROPERTY(bool autoUpdateContent READ getAutoUpdateContent WRITE setAutoUpdateContent)
public:
    // Builds the row: an empty title, an empty value area and the under-line. The left icon
    // area, the second title and the right icon are built on first use (a right icon not
    // hidden by then is built when the row is polished).
    explicit CommonItemType(QWidget* parent = nullptr);
    ~CommonItemType() override;

    // --- Operations subclasses refine (order matters to the host) ---
    virtual int getWidgetRow();
    virtual void setLabelValue(QVariant value, int mode);
    virtual QVariant getLabelValue();
    virtual void editValue();
    virtual void closeEditValue();
    virtual void setRange(float minimum, float maximum);
    virtual void setRange(int minimum, int maximum);
    virtual void setSingleStep(float step);
    virtual void setContentDisabled(bool disabled) const = 0;
    virtual void setRightIconSize(QSize size);
    virtual void setLeftIconSize(QSize size);
    virtual void setContentFontSize(int size);
    virtual void setItemHeight(int height);
    virtual void setItemTitleWidth(int width);
    virtual void setHomeRect(QRect rect);
    virtual void setRollLabel(bool roll);
    virtual void setContentEnabled(bool enabled);
    virtual void setCurrentItem(bool current);

    // --- Title ---
    RollLabel* getTitleLabel();
    // Whether the title scrolls when it does not fit: the `roll` of the last
    // setItemTitleRoll() (false after setItemTitle() and getWidgetRow()).
    bool getLabelRoll() const;
    void setItemTitle(QString const& text);
    void setItemTitleText(QString const& text);
    void setItemTitleRoll(QString const& text, bool roll);
    QString itemTitle() const;
    // Sets the dynamic property `name` on the title label and re-polishes it, so that the
    // theme's selectors on that property apply.
    void setItemTitleProperty(std::string const& name, QVariant value);
    // As setItemTitleProperty(), then repaints the title (a scrolling title shows the new
    // look at once).
    void setItemTitlePropertyRoll(std::string const& name, QVariant value);
    // The title label's property `name`; an invalid QVariant when it is not set.
    QVariant getItemTitlePropertyRoll(std::string const& name) const;
    // Gives the title label its own style sheet, replacing the font-size sheet of
    // setContentFontSize() (the next setContentFontSize() replaces it in turn).
    void setItemTitleStyleSheet(QString const& sheet);
    // Hides (true) or shows (false) the title label.
    void setItemTitleLabelHide(bool hide);
    // The title label's maximum width in pixels, 0..QWIDGETSIZE_MAX; other widths are
    // refused with the warning "[CommonItemType] setMaximumWidthRoll: length <width> refused".
    void setMaximumWidthRoll(int width);
    // Gives the value area (layout position 2) all the row's spare width: its stretch
    // becomes 1, every other position's 0.
    void setRollLabelStretchMax();

    // --- Second title ---
    void setItemSecondTitle(QString const& text, int maxWidth);
    // The second title as last given to setItemSecondTitle(), uncut; empty until then.
    QString itemSecondTitle() const;
    // Sets the dynamic property `name` on the second title label (built, hidden, on first
    // use) and re-polishes it.
    void setItemSecondTitleProperty(std::string const& name, QVariant value);
    // Gives the second title label (built, hidden, on first use) its own style sheet; the
    // next setContentFontSize() replaces it with its small-label sheet.
    void setItemSecondTitleStyleSheet(QString const& sheet);
    // Shows (false) or hides (true) the second title. Showing builds the label on first use
    // (empty when no second title was set); hiding one never built does nothing.
    void setItemSecondTitleLabelHide(bool hide);

    // --- Icons ---
    // Shows (false) or hides (true) the left icon together with its area; the caption under
    // it keeps its own visibility (setLeftIconTitleHide()). Showing builds the area on first
    // use; hiding an area never built does nothing.
    void setLeftIconButtonHide(bool hide);
    // Shows (false) or hides (true) the right icon, shown by default. Hiding it before it is
    // built does nothing but remember it (it is then built only when reached); showing it
    // builds it on first use.
    void setRightIconButtonHide(bool hide);
    // Sets the dynamic property `name` on the left icon button (building the left icon area,
    // hidden, on first use) and re-polishes it, so that the theme's selectors on that
    // property apply.
    void setLeftIconButtonProperty(std::string const& name, QVariant value);
    // Sets the property only: re-polish yourself if it drives the style sheet.
    void setRightIconButtonProperty(std::string const& name, QVariant value);
    void setLeftIconTitleHide(bool hide);

    // --- Item-wide settings ---
    // The flag setContentEnabled() stored (default true); updateContentEnabled() leaves it
    // alone.
    bool getContentEnabled() const;
    void updateContentEnabled(bool enabled);
    // Stores a flag for the host (default false); the row itself does not act on it.
    void setAutoUpdateContent(bool autoUpdate);
    // The flag setAutoUpdateContent() stored (default false).
    bool getAutoUpdateContent() const;
    // The content font size in pixels: the last size setContentFontSize() took (default 20).
    int contentFontSize() const;
    // The width the page gave the row with setItemTitleWidth(); -1 until then.
    int getItemWidth() const;
    // The widest the value area may be: the item width less four times the content font
    // size, as the base getWidgetRow() last computed it (negative for a narrow row); -1
    // until then.
    int getDynamicMaxWidth() const;
    // The height setItemHeight() stored; -1 until set.
    int itemHeight() const;
    // Marks the row as editing (true) or not; only the flag changes. Rows that track their
    // own edit use it.
    void setEdit(bool editing);
    // The flag setEdit() last set (false at first).
    bool isEditing();
    // A function run whenever the title, the second title or the item width is set
    // (setItemTitleRoll() and its variants, setItemSecondTitle(), setItemTitleWidth());
    // an empty function removes it.
    void setTextChangedCB(std::function<void()> const& callback);

    // --- Geometry helpers ---
    // Adds to `width` the widths of the value area's widgets that are not hidden (their real
    // width once laid out, their fixed or hinted width before), summed in 64 bits and
    // saturated at the int limits. Start from 0 for the value area's width alone.
    void calDynamicLayoutWidth(int& width) const;
    // The number of lines `text` takes when laid out in `font` at `width` pixels a line
    // (QTextLayout's breaking: at word boundaries where it can).
    int calculateTextLineCount(QString const& text, int width, QFont font) const;
    // Whether `text` holds a CJK unified ideograph (U+4E00..U+9FA5).
    bool isStrContainsChinese(QString text) const;
    int getLabelRow(QLabel* label) const;
    // Adds the line under the row (3 px high, white at 10 % opacity) when it has none;
    // every row has one from the start.
    void addUnderLine();
    // Removes and deletes the line under the row (underLine() is then null); nothing when
    // there is none.
    void removeUnderLine();

    // Escape, Return and Enter on a watched editor end the edit (signalEditFinished).
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void signalValueChanged(QVariant value);
    void signalCloseEditStatus();
    void signalEditStarted();
    void signalEditClosed();
    void signalEditFinished();
    void signalOnlyChangeEditStatus(bool editing);
    void signalItemWidthChanged(int width);
    void signalSpinBoxValueChanged(int index, QVariant value);

protected:
    // Parts of the row for subclasses (the left icon's and the second title's parts
    // are built when first asked for; so is the right icon of a row that hides it
    // before it is polished).
    QFrame* dynamicFrame() const;
    // The value area's layout, where subclasses put their value widgets.
    QHBoxLayout* dynamicLayout() const;
    // The row's layout: position 0 the left icon area, 1 the title column, 2 the value
    // area, 3 the right icon.
    QHBoxLayout* rowLayout() const;
    // The left icon button; the first call builds the left icon area (hidden).
    QPushButton* leftIconButton() const;
    // The right icon button; the first call builds it (shown with the row unless
    // setRightIconButtonHide(true) came first).
    QPushButton* rightIconButton() const;
    // The caption under the left icon; the first call builds the left icon area (hidden).
    RollLabel* leftIconTitle() const;
    // The second title label; the first call builds it (hidden).
    QLabel* secondTitleLabel() const;
    // The line under the row; null after removeUnderLine().
    QLabel* underLine() const;
    // Whether `editor` can take the knob for an edit: it exists, is not hidden and is
    // enabled. An edit that can't start must not be announced (the page would wait
    // for its end forever).
    bool canEdit(QWidget const* editor) const;
    // Runs the text-changed callback, if any.
    void notifyTextChanged() const;
    // A row whose right icon was never hidden builds it when it is polished.
    bool event(QEvent* event) override;

private:
    void createWidgets();
    // The parts most rows never show, built when first reached.
    void ensureLeftIcon() const;
    void ensureSecondTitle() const;
    void ensureRightIcon() const;
    void setTitleWidth(int width);
    QString smallLabelSheet() const;

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
