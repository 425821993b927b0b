#include "customreminderdialog.h"

#include "dialogutil_p.h"
#include "stylehelper.h"

#include <QApplication>
#include <QButtonGroup>
#include <QDebug>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

namespace {
char const* const kWho = "[CustomReminderDialog]";
char const* const kRole = "MyButtonRole";
} // namespace

// Private state: hidden, unlike the exported class it belongs to.
struct __attribute__((visibility("hidden"))) CustomReminderDialog::Impl
{
    QButtonGroup* group = nullptr;
    QList<QFrame*> tiles;
    QFrame* frame = nullptr;
    QHBoxLayout* row = nullptr;
    QRect rect;
    bool zOrder = false;
    float fontSize = 0;
    int width = 0;
    int height = 0;

    struct Tile
    {
        QFrame* frame = nullptr;
        QPushButton* button = nullptr;
        QLabel* caption = nullptr;
    };

    Tile find(int id) const
    {
        for (QFrame* frame : tiles)
            if (frame->property(kRole).toInt() == id) {
                Tile t;
                t.frame = frame;
                t.button = frame->findChild<QPushButton*>();
                t.caption = frame->findChild<QLabel*>();
                return t;
            }
        return {};
    }
    Tile require(int id, char const* function) const
    {
        Tile t = find(id);
        if (!t.frame)
            qWarning().noquote() << kWho << function << QStringLiteral("button(%1) does not exist.").arg(id);
        return t;
    }
    // Captions wrap; a single word wider than the tile is elided with the
    // caption's own metrics so that it never pushes the tile wider.
    static void adjustTextWrap(QLabel* caption)
    {
        caption->setWordWrap(true);
        QFontMetrics const metrics(caption->font());
        QString const full = caption->property("captionText").toString();
        QStringList words = full.split(QLatin1Char(' '));
        for (QString& word : words)
            if (metrics.horizontalAdvance(word) > caption->width())
                word = metrics.elidedText(word, Qt::ElideRight, caption->width());
        caption->setText(words.join(QLatin1Char(' ')));
    }
};

CustomReminderDialog::CustomReminderDialog(QRect rect) : QDialog(nullptr), d(new Impl)
{
    d->rect = DialogUtil::hostRect(rect, kWho);
    d->fontSize = DialogUtil::fontSize(d->rect);
    d->width = DialogUtil::part(d->rect.width(), 11, 16);
    d->height = DialogUtil::part(d->rect.height(), 3, 5);

    setProperty("isReminderDialogBg", true);
    setFixedSize(d->width, d->height);
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);

    auto* outer = new QHBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    outer->setSizeConstraint(QLayout::SetFixedSize);
    d->frame = new QFrame(this);
    d->frame->setObjectName(QStringLiteral("customReminderFrame"));
    d->frame->setContentsMargins(0, 0, 0, 0);
    d->frame->setProperty("isReminderFrameBg", true);
    d->frame->setWindowOpacity(0.9);
    d->frame->setFixedSize(d->width, d->height);
    outer->addWidget(d->frame);

    d->row = new QHBoxLayout(d->frame);
    d->row->setSpacing(d->rect.width() / 32);
    d->row->setSizeConstraint(QLayout::SetFixedSize);

    d->group = new QButtonGroup(this);
    d->group->setExclusive(true);
    connect(d->group, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
            [this](QAbstractButton* button) {
                int const id = button->property(kRole).toInt();
                if (d->zOrder)
                    emit btnPressed(id);
                else
                    done(id);
            });
}

CustomReminderDialog::~CustomReminderDialog() = default;

void CustomReminderDialog::addButton(int id, QString const& text, QString const& iconProperty, bool isDelete)
{
    if (d->find(id).frame) {
        qDebug().noquote() << QStringLiteral("button(%1) has already exist.").arg(id);
        return;
    }
    int const W = d->rect.width();
    int const tileWidth = W / 8;
    int const tileHeight = DialogUtil::part(d->rect.height(), 3, 10);

    auto* tile = new QFrame(d->frame);
    tile->setObjectName(QStringLiteral("customReminderTile"));
    tile->setContentsMargins(0, 0, 0, 0);
    tile->setFixedSize(tileWidth, tileHeight);
    tile->setProperty(kRole, id);

    auto* button = new QPushButton(tile);
    button->setObjectName(QStringLiteral("customReminderTileButton"));
    button->setFixedSize(tileWidth, tileHeight);
    button->setProperty(kRole, id);
    QByteArray const property = iconProperty.toUtf8();
    if (!property.isEmpty())
        button->setProperty(property.constData(), true);
    else
        qWarning().noquote() << kWho << QStringLiteral("addButton(%1): no icon property").arg(id);
    d->group->addButton(button);

    auto* caption = new QLabel(tile);
    caption->setObjectName(QStringLiteral("customReminderCaption"));
    int const captionHeight = tileHeight * 5 / 9;
    caption->setFixedSize(tileWidth, captionHeight);
    caption->setAlignment(Qt::AlignCenter);
    caption->setProperty("isPresetDialogText", true);
    caption->setProperty(kRole, id);
    if (isDelete)
        caption->setProperty("isDeleteLabel", true);
    caption->setAttribute(Qt::WA_TransparentForMouseEvents);
    // The caption lies over the lower part of the tile, under the icon.
    caption->move(0, tileHeight - captionHeight);
    caption->setProperty("captionText", text);
    Impl::adjustTextWrap(caption);
    // The knob keys of a focused tile belong to the dialog.
    button->installEventFilter(this);

    d->tiles << tile;
    d->row->addWidget(tile);
}

void CustomReminderDialog::setLabelText(int id, QString const& text) const
{
    Impl::Tile const t = d->require(id, "setLabelText");
    if (!t.caption)
        return;
    t.caption->setProperty("captionText", text);
    Impl::adjustTextWrap(t.caption);
}

void CustomReminderDialog::setBtnFocus(int id) const
{
    if (QPushButton* button = d->require(id, "setBtnFocus").button)
        button->setFocus(Qt::OtherFocusReason);
}

void CustomReminderDialog::setButtonDisabled(int id, bool disabled)
{
    Impl::Tile const t = d->require(id, "setButtonDisabled");
    if (!t.button)
        return;
    t.button->setDisabled(disabled);
    // The caption follows the button: false dims it in the theme.
    char const* property = t.caption->property("isDeleteLabel").isValid() ? "isDeleteLabel" : "isPresetDialogText";
    setStyleProperty(t.caption, property, !disabled);
}

void CustomReminderDialog::setButtonVisible(int id, bool visible)
{
    Impl::Tile const t = d->require(id, "setButtonVisible");
    if (!t.frame)
        return;
    t.frame->setVisible(visible);
    setButtonDisabled(id, !visible);
    if (isVisible())
        relayoutContentArea();
}

void CustomReminderDialog::setZOrderFlag(bool zOrder) { d->zOrder = zOrder; }

bool CustomReminderDialog::zOrderFlag() const { return d->zOrder; }

QList<int> CustomReminderDialog::buttonIds() const
{
    QList<int> ids;
    for (QFrame* tile : d->tiles)
        ids << tile->property(kRole).toInt();
    return ids;
}

void CustomReminderDialog::relayoutContentArea()
{
    int n = 0;
    for (QFrame* tile : d->tiles)
        n += tile->isVisibleTo(this) ? 1 : 0;
    int const W = d->rect.width();
    qint64 const used = qint64(n) * (W / 8) + qint64(qMax(0, n - 1)) * (W / 32);
    int const margin = int(qBound<qint64>(0, (qint64(d->width) - used) / 2, QWIDGETSIZE_MAX));
    QMargins m = d->row->contentsMargins();
    d->row->setContentsMargins(margin, m.top(), margin, m.bottom());
}

int CustomReminderDialog::exec()
{
    DialogUtil::ExecScope const scope(this, "exec");
    if (scope.refused())
        return QDialog::Rejected;
    move(DialogUtil::centreOn(d->rect, size()));
    int const N = qMax(1, int(DialogUtil::fontPixels(d->fontSize) * 0.8));
    QString const sheet = DialogUtil::fontSheet("QLabel", N);
    for (QFrame* tile : d->tiles)
        if (auto* caption = tile->findChild<QLabel*>())
            caption->setStyleSheet(sheet);
    QPointer<QWidget> previous = QApplication::activeWindow();
    QPointer<CustomReminderDialog> self(this);
    int const result = QDialog::exec();
    if (self && previous && previous != this && previous->isVisible())
        previous->activateWindow();
    qDebug().nospace() << "[dialog] exec finish with " << result;
    return result;
}

int CustomReminderDialog::getCustomReminderDialogWidth() const { return d->width; }

int CustomReminderDialog::getCustomReminderDialogHeight() const { return d->height; }

float CustomReminderDialog::getFontSize() const { return d->fontSize; }

void CustomReminderDialog::showEvent(QShowEvent* event)
{
    for (QFrame* tile : d->tiles)
        if (auto* caption = tile->findChild<QLabel*>())
            Impl::adjustTextWrap(caption);
    relayoutContentArea();
    QString const radius = QString::number(DialogUtil::fontPixels(d->fontSize) * 8 / 14);
    setStyleSheet(QStringLiteral("QDialog{border-radius;") + radius + QStringLiteral("px;}"));
    d->frame->setStyleSheet(QStringLiteral("QFrame{border-radius;") + radius + QStringLiteral("px;}"));
    QDialog::showEvent(event);
}

bool CustomReminderDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && qobject_cast<QPushButton*>(watched)) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Escape:
            keyPressEvent(static_cast<QKeyEvent*>(event));
            return true;
        default:
            break; // the press (Enter, Return) goes to the tile
        }
    }
    return QDialog::eventFilter(watched, event);
}

void CustomReminderDialog::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        focusNextPrevChild(false);
        break;
    case Qt::Key_Down:
        focusNextPrevChild(true);
        break;
    case Qt::Key_Escape:
        emit backSpaceClicked();
        done(-1);
        break;
    default:
        break; // dropped
    }
}

// ---- RoundedCornersDialog ----

RoundedCornersDialog::RoundedCornersDialog(QWidget* parent, Qt::WindowFlags flags) : QDialog(parent, flags) {}

void RoundedCornersDialog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    DialogUtil::setRoundedMask(this, 6.0);
}

} // namespace Widget
} // namespace LCD
