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
    Q_PROPERTY(QString itemTitle READ itemTitle WRITE setItemTitle)
    Q_PROPERTY(int contentFontSize READ contentFontSize WRITE setContentFontSize)
    Q_PROPERTY(int itemHeight READ itemHeight WRITE setItemHeight)
    Q_PROPERTY(bool contentEnabled READ getContentEnabled WRITE setContentEnabled)
    Q_PROPERTY(bool autoUpdateContent READ getAutoUpdateContent WRITE setAutoUpdateContent)
public:
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
    bool getLabelRoll() const;
    void setItemTitle(QString const& text);
    void setItemTitleText(QString const& text);
    void setItemTitleRoll(QString const& text, bool roll);
    QString itemTitle() const;
    void setItemTitleProperty(std::string const& name, QVariant value);
    void setItemTitlePropertyRoll(std::string const& name, QVariant value);
    QVariant getItemTitlePropertyRoll(std::string const& name) const;
    void setItemTitleStyleSheet(QString const& sheet);
    void setItemTitleLabelHide(bool hide);
    void setMaximumWidthRoll(int width);
    void setRollLabelStretchMax();

    // --- Second title ---
    void setItemSecondTitle(QString const& text, int maxWidth);
    QString itemSecondTitle() const;
    void setItemSecondTitleProperty(std::string const& name, QVariant value);
    void setItemSecondTitleStyleSheet(QString const& sheet);
    void setItemSecondTitleLabelHide(bool hide);

    // --- Icons ---
    void setLeftIconButtonHide(bool hide);
    void setRightIconButtonHide(bool hide);
    void setLeftIconButtonProperty(std::string const& name, QVariant value);
    // Sets the property only: re-polish yourself if it drives the style sheet.
    void setRightIconButtonProperty(std::string const& name, QVariant value);
    void setLeftIconTitleHide(bool hide);

    // --- Item-wide settings ---
    bool getContentEnabled() const;
    void updateContentEnabled(bool enabled);
    void setAutoUpdateContent(bool autoUpdate);
    bool getAutoUpdateContent() const;
    int contentFontSize() const;
    int getItemWidth() const;
    int getDynamicMaxWidth() const;
    int itemHeight() const;
    void setEdit(bool editing);
    bool isEditing();
    void setTextChangedCB(std::function<void()> const& callback);

    // --- Geometry helpers ---
    void calDynamicLayoutWidth(int& width) const;
    int calculateTextLineCount(QString const& text, int width, QFont font) const;
    bool isStrContainsChinese(QString text) const;
    int getLabelRow(QLabel* label) const;
    void addUnderLine();
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
    QHBoxLayout* dynamicLayout() const;
    QHBoxLayout* rowLayout() const;
    QPushButton* leftIconButton() const;
    QPushButton* rightIconButton() const;
    RollLabel* leftIconTitle() const;
    QLabel* secondTitleLabel() const;
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
