#include "commonitemtype.h"
#include "inputcheck_p.h"
#include "layoutslot_p.h"

#include "displaytext_p.h"

#include <QDebug>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTextLayout>
#include <QVBoxLayout>
#include <limits>

namespace LCD {
namespace Widget {

namespace {

constexpr char kTitleProperty[] = "itemTitleLabel";

QString captionText(QString text)
{
    text.remove(QStringLiteral("设置"));
    text.remove(QStringLiteral("画面"));
    return text;
}

// Width a widget takes in the dynamic frame: its real width once laid out, its fixed or
// hinted width before that.
int layoutWidth(QWidget const* w)
{
    if (w->testAttribute(Qt::WA_WState_Visible) || w->testAttribute(Qt::WA_Resized))
        return w->width();
    if (w->minimumWidth() == w->maximumWidth())
        return w->minimumWidth();
    return qBound(w->minimumWidth(), w->sizeHint().width(), w->maximumWidth());
}

// A widget width from 64-bit arithmetic: extreme item widths or font sizes can't
// overflow, and Qt never sees a width it would refuse.
int widgetWidth(qint64 w)
{
    return static_cast<int>(qBound<qint64>(0, w, QWIDGETSIZE_MAX));
}

// The title's width: never below twice the font size.
int titleWidth(int itemWidth, int dynamicWidth, int fontSize)
{
    qint64 const f = fontSize;
    return widgetWidth(qMax<qint64>(2 * f, qint64(itemWidth) - dynamicWidth - 2 * f));
}

} // namespace

struct LCDWIDGETS_HIDDEN CommonItemType::Impl
{
    QVBoxLayout* frameLayout = nullptr;
    QHBoxLayout* rowLayout = nullptr;
    QWidget* leftIconArea = nullptr;
    QPushButton* leftIconButton = nullptr;
    RollLabel* leftIconTitle = nullptr;
    RollLabel* titleLabel = nullptr;
    QLabel* secondTitleLabel = nullptr;
    QFrame* dynamicFrame = nullptr;
    QHBoxLayout* dynamicLayout = nullptr;
    QPushButton* rightIconButton = nullptr;
    QLabel* underLine = nullptr;
    QVBoxLayout* titleColumn = nullptr;
    QSpacerItem* leftIconSlot = nullptr;  // holds position 0 until the icon area exists
    QSpacerItem* rightIconSlot = nullptr; // holds position 3 until the right icon exists
    bool rightIconHidden = false;         // the right icon's visibility, built or not

    // The left icon area (button and caption) and the second title are built on
    // first use: most rows never show them. What was set before lives here.
    QString caption;          // the caption's text
    int captionWidth = -1;    // its width, as the title's
    bool fontSizeSet = false; // setContentFontSize() was called: small labels get a sheet
    bool iconsEnabled = true;

    bool editing = false;
    QString itemTitle;
    QString secondTitle;
    bool contentEnabled = true;
    std::function<void()> textChanged;
    bool autoUpdateContent = false;
    int itemWidth = -1;
    int dynamicMaxWidth = -1;
    int contentFontSize = 20;
    int itemHeight = -1;
};

CommonItemType::CommonItemType(QWidget* parent) : QFrame(parent), d(std::make_unique<Impl>())
{
    createWidgets();
}

CommonItemType::~CommonItemType() = default;

void CommonItemType::createWidgets()
{
    d->frameLayout = new QVBoxLayout(this);
    d->frameLayout->setSpacing(0);
    d->frameLayout->setContentsMargins(0, 0, 0, 0);

    d->rowLayout = new QHBoxLayout;
    d->rowLayout->setSpacing(4);
    d->rowLayout->setContentsMargins(8, 0, 8, 0);

    // Position 0: left icon with its caption underneath, built on first use; until
    // then an empty slot keeps the positions of the other parts.
    d->leftIconSlot = addLayoutSlot(d->rowLayout);

    // Position 1: title column (the second title joins it on first use).
    d->titleColumn = new QVBoxLayout;
    d->titleColumn->setContentsMargins(0, 0, 0, 0);
    d->titleColumn->setSpacing(0);
    d->titleLabel = new RollLabel(this);
    d->titleLabel->setProperty(kTitleProperty, true);
    d->titleColumn->addWidget(d->titleLabel);
    d->rowLayout->addLayout(d->titleColumn);

    // Position 2: the subclass's value widgets.
    d->dynamicFrame = new QFrame(this);
    d->dynamicFrame->setObjectName(QStringLiteral("itemDynamicFrame"));
    d->dynamicLayout = new QHBoxLayout(d->dynamicFrame);
    d->dynamicLayout->setContentsMargins(0, 0, 0, 0);
    d->rowLayout->addWidget(d->dynamicFrame);

    // Position 3: right icon. Most rows hide it in their constructor: it is built
    // when first reached, or when the row is polished while it is still wanted.
    d->rightIconSlot = addLayoutSlot(d->rowLayout);

    d->frameLayout->addStretch();
    d->frameLayout->addLayout(d->rowLayout);
    d->frameLayout->addStretch();
    addUnderLine();
}

QString CommonItemType::smallLabelSheet() const
{
    return QStringLiteral("QLabel{font-size: %1px; }").arg(qMax(1, static_cast<int>(d->contentFontSize * 0.6)));
}

void CommonItemType::ensureLeftIcon() const
{
    if (d->leftIconArea)
        return;
    auto* self = const_cast<CommonItemType*>(this);
    d->leftIconArea = new QWidget(self);
    auto* iconColumn = new QVBoxLayout(d->leftIconArea);
    iconColumn->setContentsMargins(0, 0, 0, 0);
    iconColumn->setSpacing(0);
    d->leftIconButton = new QPushButton(d->leftIconArea);
    d->leftIconButton->setObjectName(QStringLiteral("itemLeftIconButton"));
    d->leftIconButton->setFocusPolicy(Qt::NoFocus);
    d->leftIconButton->setEnabled(d->iconsEnabled);
    d->leftIconButton->hide();
    d->leftIconTitle = new RollLabel(d->leftIconArea);
    d->leftIconTitle->setProperty(kTitleProperty, true);
    d->leftIconTitle->setAlignment(Qt::AlignCenter);
    if (d->fontSizeSet)
        d->leftIconTitle->setStyleSheet(smallLabelSheet());
    if (d->captionWidth >= 0) {
        d->leftIconTitle->setWidth(d->captionWidth);
        d->leftIconTitle->setItemName(d->caption);
        d->leftIconTitle->setTextLabel(d->caption, false);
    }
    d->leftIconTitle->hide();
    auto* buttonRow = new QHBoxLayout;
    buttonRow->setContentsMargins(0, 0, 0, 0);
    buttonRow->setAlignment(Qt::AlignHCenter);
    buttonRow->addWidget(d->leftIconButton);
    auto* captionRow = new QHBoxLayout;
    captionRow->setContentsMargins(0, 0, 0, 0);
    captionRow->setAlignment(Qt::AlignHCenter);
    captionRow->addWidget(d->leftIconTitle);
    iconColumn->addStretch();
    iconColumn->addLayout(buttonRow);
    iconColumn->addStretch();
    iconColumn->addLayout(captionRow);
    iconColumn->addStretch();
    d->leftIconArea->hide(); // shown together with its button
    fillLayoutSlot(d->rowLayout, d->leftIconSlot, d->leftIconArea);
}

void CommonItemType::ensureRightIcon() const
{
    if (d->rightIconButton)
        return;
    d->rightIconButton = new QPushButton(const_cast<CommonItemType*>(this));
    d->rightIconButton->setObjectName(QStringLiteral("itemRightIconButton"));
    d->rightIconButton->setFocusPolicy(Qt::NoFocus);
    d->rightIconButton->setEnabled(d->iconsEnabled);
    // As if built with the row: shown with it unless hidden; a row already on screen
    // shows a new child only when told to.
    if (d->rightIconHidden)
        d->rightIconButton->hide();
    else if (isVisible())
        d->rightIconButton->show();
    fillLayoutSlot(d->rowLayout, d->rightIconSlot, d->rightIconButton);
}

bool CommonItemType::event(QEvent* event)
{
    // Polished before its children: a right icon built here is polished with them.
    if (event->type() == QEvent::Polish && !d->rightIconHidden)
        ensureRightIcon();
    return QFrame::event(event);
}

void CommonItemType::ensureSecondTitle() const
{
    if (d->secondTitleLabel)
        return;
    d->secondTitleLabel = new QLabel(const_cast<CommonItemType*>(this));
    d->secondTitleLabel->setProperty(kTitleProperty, true);
    if (d->fontSizeSet)
        d->secondTitleLabel->setStyleSheet(smallLabelSheet());
    d->secondTitleLabel->hide();
    d->titleColumn->addWidget(d->secondTitleLabel);
}

void CommonItemType::setTitleWidth(int width)
{
    d->titleLabel->setWidth(width);
    // The title sits two layouts down: a host that asks for the row's size hint
    // right away (to fit it to its page) must see the new width, not a cached one.
    d->titleColumn->invalidate();
    d->rowLayout->invalidate();
}

// ---------------------------------------------------------------------------
// Virtual operations

int CommonItemType::getWidgetRow()
{
    int dyn = 0;
    calDynamicLayoutWidth(dyn);
    qint64 const f = d->contentFontSize;
    int w = titleWidth(d->itemWidth, dyn, d->contentFontSize);
    if (!d->itemTitle.isEmpty())
        w = widgetWidth(qMax<qint64>(w, 4 * f));
    setTitleWidth(w);
    d->titleLabel->setItemName(d->itemTitle);
    d->titleLabel->setTextLabel(d->itemTitle, false);
    d->dynamicMaxWidth = static_cast<int>(
        qBound<qint64>(std::numeric_limits<int>::min(), qint64(d->itemWidth) - 4 * f, std::numeric_limits<int>::max()));
    return 1;
}

void CommonItemType::setLabelValue(QVariant, int) {}

QVariant CommonItemType::getLabelValue() { return QVariant(); }

void CommonItemType::editValue() {}

void CommonItemType::closeEditValue() { emit signalEditClosed(); }

void CommonItemType::setRange(float, float) {}

void CommonItemType::setRange(int, int) {}

void CommonItemType::setSingleStep(float) {}

void CommonItemType::setRightIconSize(QSize size)
{
    if (!sizeOk("CommonItemType", "setRightIconSize", size))
        return;
    ensureRightIcon();
    d->rightIconButton->setFixedSize(size);
}

void CommonItemType::setLeftIconSize(QSize size)
{
    if (!sizeOk("CommonItemType", "setLeftIconSize", size))
        return;
    ensureLeftIcon();
    d->leftIconButton->setFixedSize(size);
    setLeftIconTitleHide(d->leftIconTitle->isHidden());
}

void CommonItemType::setContentFontSize(int size)
{
    if (!fontSizeOk("CommonItemType", "setContentFontSize", size))
        return;
    d->contentFontSize = size;
    d->fontSizeSet = true;
    QString const sheet = QStringLiteral("QLabel{font-size: %1px; }").arg(size);
    if (d->titleLabel->styleSheet() != sheet)
        d->titleLabel->setStyleSheet(sheet);
    QString const smallSheet = smallLabelSheet();
    for (QLabel* label : {static_cast<QLabel*>(d->leftIconTitle), d->secondTitleLabel}) {
        if (label && label->styleSheet() != smallSheet)
            label->setStyleSheet(smallSheet);
    }
}

void CommonItemType::setItemHeight(int height) { d->itemHeight = height; }

void CommonItemType::setItemTitleWidth(int width)
{
    d->itemWidth = width;
    notifyTextChanged();
    emit signalItemWidthChanged(width);
}

void CommonItemType::setHomeRect(QRect) {}

void CommonItemType::setRollLabel(bool) {}

void CommonItemType::setContentEnabled(bool enabled)
{
    updateContentEnabled(enabled);
    d->contentEnabled = enabled;
}

void CommonItemType::setCurrentItem(bool) {}

// ---------------------------------------------------------------------------
// Title

RollLabel* CommonItemType::getTitleLabel() { return d->titleLabel; }

bool CommonItemType::getLabelRoll() const { return d->titleLabel->getLabelRoll(); }

void CommonItemType::setItemTitle(QString const& text) { setItemTitleRoll(text, false); }

void CommonItemType::setItemTitleText(QString const& text) { setItemTitleRoll(text, getLabelRoll()); }

void CommonItemType::setItemTitleRoll(QString const& text, bool roll)
{
    int dyn = 0;
    // Before the row knows its width the title gets its least width whatever the
    // value widgets take: don't measure them (that would polish them before the
    // host has set their fonts, and every later style change would polish again).
    if (d->itemWidth >= 0 || d->contentFontSize < 0)
        calDynamicLayoutWidth(dyn);
    int const w = titleWidth(d->itemWidth, dyn, d->contentFontSize);

    d->itemTitle = text;
    setTitleWidth(w);
    d->titleLabel->setItemName(text);
    d->titleLabel->setTextLabel(text, roll);

    d->caption = captionText(text);
    d->captionWidth = w;
    if (d->leftIconTitle) {
        d->leftIconTitle->setWidth(w);
        d->leftIconTitle->setItemName(d->caption);
        d->leftIconTitle->setTextLabel(d->caption, false);
    }

    notifyTextChanged();
}

QString CommonItemType::itemTitle() const { return d->itemTitle; }

void CommonItemType::setItemTitleProperty(std::string const& name, QVariant value)
{
    setStyleProperty(d->titleLabel, name.c_str(), value);
}

void CommonItemType::setItemTitlePropertyRoll(std::string const& name, QVariant value)
{
    setItemTitleProperty(name, value);
    d->titleLabel->update();
}

QVariant CommonItemType::getItemTitlePropertyRoll(std::string const& name) const
{
    return d->titleLabel->property(name.c_str());
}

void CommonItemType::setItemTitleStyleSheet(QString const& sheet) { d->titleLabel->setStyleSheet(sheet); }

void CommonItemType::setItemTitleLabelHide(bool hide) { d->titleLabel->setHidden(hide); }

void CommonItemType::setMaximumWidthRoll(int width)
{
    if (!lengthOk("CommonItemType", "setMaximumWidthRoll", width))
        return;
    d->titleLabel->setMaximumWidth(width);
}

void CommonItemType::setRollLabelStretchMax()
{
    for (int i = 0; i < 5; ++i)
        d->rowLayout->setStretch(i, i == 2 ? 1 : 0);
}

// ---------------------------------------------------------------------------
// Second title

void CommonItemType::setItemSecondTitle(QString const& text, int maxWidth)
{
    d->secondTitle = text;
    ensureSecondTitle();
    // maxWidth 0 (or any width below 1) never elides.
    d->secondTitleLabel->setText(elideWithDots(d->secondTitleLabel->fontMetrics(), text, maxWidth));
    notifyTextChanged();
}

QString CommonItemType::itemSecondTitle() const { return d->secondTitle; }

void CommonItemType::setItemSecondTitleProperty(std::string const& name, QVariant value)
{
    ensureSecondTitle();
    setStyleProperty(d->secondTitleLabel, name.c_str(), value);
}

void CommonItemType::setItemSecondTitleStyleSheet(QString const& sheet)
{
    ensureSecondTitle();
    d->secondTitleLabel->setStyleSheet(sheet);
}

void CommonItemType::setItemSecondTitleLabelHide(bool hide)
{
    if (hide && !d->secondTitleLabel)
        return; // not built: hidden already
    ensureSecondTitle();
    d->secondTitleLabel->setHidden(hide);
}

// ---------------------------------------------------------------------------
// Icons

void CommonItemType::setLeftIconButtonHide(bool hide)
{
    if (hide && !d->leftIconArea)
        return; // not built: hidden already
    ensureLeftIcon();
    d->leftIconButton->setHidden(hide);
    // The icon area follows its button: hidden with it, shown again with it.
    d->leftIconArea->setHidden(hide);
}

void CommonItemType::setRightIconButtonHide(bool hide)
{
    d->rightIconHidden = hide;
    if (hide && !d->rightIconButton)
        return; // not built: hidden already
    ensureRightIcon();
    d->rightIconButton->setHidden(hide);
}

void CommonItemType::setLeftIconButtonProperty(std::string const& name, QVariant value)
{
    ensureLeftIcon();
    setStyleProperty(d->leftIconButton, name.c_str(), value);
}

void CommonItemType::setRightIconButtonProperty(std::string const& name, QVariant value)
{
    ensureRightIcon();
    d->rightIconButton->setProperty(name.c_str(), value);
}

void CommonItemType::setLeftIconTitleHide(bool hide)
{
    if (hide && !d->leftIconArea)
        return; // not built: the caption and its area are hidden already
    ensureLeftIcon();
    bool const buttonHidden = d->leftIconButton->isHidden();
    if (hide) {
        d->leftIconTitle->hide();
        if (!buttonHidden) {
            int const w = d->leftIconButton->width();
            d->leftIconArea->setFixedWidth(w);
            d->leftIconTitle->setFixedWidth(w);
            return;
        }
    } else {
        d->leftIconTitle->show();
        if (!buttonHidden) {
            int const w = widgetWidth(qint64(d->itemWidth) - 16);
            d->leftIconArea->setFixedWidth(w);
            d->leftIconTitle->setFixedWidth(w);
            return;
        }
    }
    d->leftIconArea->hide();
}

// ---------------------------------------------------------------------------
// Item-wide settings

bool CommonItemType::getContentEnabled() const { return d->contentEnabled; }

void CommonItemType::updateContentEnabled(bool enabled)
{
    d->iconsEnabled = enabled;
    if (d->leftIconButton)
        d->leftIconButton->setEnabled(enabled);
    if (d->rightIconButton)
        d->rightIconButton->setEnabled(enabled);
    setStyleProperty(d->titleLabel, kTitleProperty, enabled);
    setContentDisabled(!enabled);
}

void CommonItemType::setAutoUpdateContent(bool autoUpdate) { d->autoUpdateContent = autoUpdate; }

bool CommonItemType::getAutoUpdateContent() const { return d->autoUpdateContent; }

int CommonItemType::contentFontSize() const { return d->contentFontSize; }

int CommonItemType::getItemWidth() const { return d->itemWidth; }

int CommonItemType::getDynamicMaxWidth() const { return d->dynamicMaxWidth; }

int CommonItemType::itemHeight() const { return d->itemHeight; }

void CommonItemType::setEdit(bool editing) { d->editing = editing; }

bool CommonItemType::isEditing() { return d->editing; }

void CommonItemType::setTextChangedCB(std::function<void()> const& callback) { d->textChanged = callback; }

// ---------------------------------------------------------------------------
// Geometry helpers

void CommonItemType::calDynamicLayoutWidth(int& width) const
{
    // Summed wide and saturated: the caller's start value may be anything.
    qint64 sum = width;
    for (int i = 0; i < d->dynamicLayout->count(); ++i) {
        QWidget* w = d->dynamicLayout->itemAt(i)->widget();
        if (w && !w->isHidden())
            sum += layoutWidth(w);
    }
    width = static_cast<int>(qBound<qint64>(std::numeric_limits<int>::min(), sum, std::numeric_limits<int>::max()));
}

int CommonItemType::calculateTextLineCount(QString const& text, int width, QFont font) const
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    int lines = 0;
    for (;;) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        ++lines;
    }
    layout.endLayout();
    return lines;
}

bool CommonItemType::isStrContainsChinese(QString text) const
{
    for (QChar const c : text) {
        ushort const u = c.unicode();
        if (u >= 0x4E00 && u <= 0x9FA5)
            return true;
    }
    return false;
}

int CommonItemType::getLabelRow(QLabel* label) const
{
    int const f = d->contentFontSize;
    if (!label || f < 1)
        return 1;
    QFont font;
    font.setPixelSize(f);
    QFontMetrics const fm(font);

    qint64 space = 0;
    if (d->titleLabel->isHidden()) {
        space = d->itemWidth;
    } else if (label == d->titleLabel) {
        int dyn = 0;
        calDynamicLayoutWidth(dyn);
        space = qint64(d->itemWidth) - dyn - 2 * qint64(f);
    } else {
        space = qint64(d->itemWidth) - d->titleLabel->sizeHint().width() - 2 * qint64(f);
    }
    if (space < 1 || fm.height() == 0)
        return 1;
    int const avail = widgetWidth(space);

    QString text = label->text();
    text.remove(QLatin1Char('\n'));

    int lines = 1;
    QString wrapped;
    if (isStrContainsChinese(text)) {
        // Ideographic text breaks between any two characters.
        int const counted = calculateTextLineCount(text, avail, font);
        int remaining = qMax(1, counted);
        QString line;
        for (int i = 0; i < text.size(); ++i) {
            QChar const c = text.at(i);
            if (line.isEmpty() || fm.horizontalAdvance(line + c) <= avail) {
                line += c;
            } else if (remaining > 1) {
                wrapped += line + QLatin1Char('\n');
                --remaining;
                line = QString(c);
            } else {
                // The last line takes the rest as it is (measuring it grows with its length).
                line += text.midRef(i);
                break;
            }
        }
        wrapped += line;
        lines = qMax(1, counted);
    } else {
        // Latin text breaks after the last space that still fits.
        // No character is narrower than a pixel: a line holds at most `avail` of them,
        // and the longest prefix that fits is found by halving (a long text costs
        // O(n log avail) measures, not O(n^2)).
        QStringList out;
        int pos = 0;
        int const n = text.size();
        for (;;) {
            int const left = n - pos;
            if (left <= avail && fm.horizontalAdvance(text.mid(pos)) <= avail)
                break;
            int fit = 1;  // at least one character a line
            int lo = 2;
            int hi = qMin(left, avail);
            while (lo <= hi) {
                int const mid = lo + (hi - lo) / 2;
                if (fm.horizontalAdvance(text.mid(pos, mid)) <= avail) {
                    fit = mid;
                    lo = mid + 1;
                } else {
                    hi = mid - 1;
                }
            }
            // `fit` characters fit; the next one overflows. Break after the last space
            // up to and including that one.
            int const space = text.midRef(pos, fit + 1).lastIndexOf(QLatin1Char(' '));
            int const cut = space >= 0 ? space + 1 : fit;
            out << text.mid(pos, cut);
            pos += cut;
            if (pos >= n)
                break;
        }
        if (pos < n || out.isEmpty())
            out << text.mid(pos);
        wrapped = out.join(QLatin1Char('\n'));
        lines = out.size();
    }
    label->setText(wrapped);
    label->setFixedWidth(avail);
    return qMax(1, lines);
}

void CommonItemType::addUnderLine()
{
    if (d->underLine)
        return;
    d->underLine = new QLabel(this);
    d->underLine->setStyleSheet(QStringLiteral("background-color: rgba(255, 255, 255, 0.1);"));
    d->underLine->setFixedHeight(3);
    d->frameLayout->addWidget(d->underLine);
}

void CommonItemType::removeUnderLine()
{
    if (!d->underLine)
        return;
    d->frameLayout->removeWidget(d->underLine);
    delete d->underLine;
    d->underLine = nullptr;
}

bool CommonItemType::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        int const key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter) {
            emit signalEditFinished();
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

// ---------------------------------------------------------------------------
// For subclasses

QFrame* CommonItemType::dynamicFrame() const { return d->dynamicFrame; }
QHBoxLayout* CommonItemType::dynamicLayout() const { return d->dynamicLayout; }
QHBoxLayout* CommonItemType::rowLayout() const { return d->rowLayout; }
QPushButton* CommonItemType::leftIconButton() const
{
    ensureLeftIcon();
    return d->leftIconButton;
}
QPushButton* CommonItemType::rightIconButton() const
{
    ensureRightIcon();
    return d->rightIconButton;
}
RollLabel* CommonItemType::leftIconTitle() const
{
    ensureLeftIcon();
    return d->leftIconTitle;
}
QLabel* CommonItemType::secondTitleLabel() const
{
    ensureSecondTitle();
    return d->secondTitleLabel;
}
QLabel* CommonItemType::underLine() const { return d->underLine; }

bool CommonItemType::canEdit(QWidget const* editor) const
{
    if (editor && !editor->isHidden() && editor->isEnabled())
        return true;
    qDebug().noquote() << "[item]" << d->itemTitle << ": no editor to edit with";
    return false;
}

void CommonItemType::notifyTextChanged() const
{
    if (d->textChanged)
        d->textChanged();
}

} // namespace Widget
} // namespace LCD
