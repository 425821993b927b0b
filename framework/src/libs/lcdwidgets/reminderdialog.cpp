#include "reminderdialog.h"

#include "dialogutil_p.h"
#include "progressbarctr.h"
#include "reminderbuttons_p.h"
#include "stylehelper.h"

#include <QApplication>
#include <QDebug>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLayout>
#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QSpacerItem>
#include <QTextEdit>
#include <QTimer>
#include <QVBoxLayout>
#include <atomic>

namespace LCD {
namespace Widget {

namespace {

char const* const kWho = "[ReminderDialog]";

char const* iconName(ReminderDialog::DialogType type)
{
    switch (type) {
    case ReminderDialog::Information:
        return "information";
    case ReminderDialog::Question:
        return "question";
    case ReminderDialog::Warning:
        return "warning";
    case ReminderDialog::Prosper:
        return "prosper";
    case ReminderDialog::Error:
        return "error";
    default:
        return nullptr;
    }
}

bool validType(int type) { return type >= ReminderDialog::Information && type <= ReminderDialog::Progress; }

int runHelper(char const* helper, QWidget* parent, QString const& text, QRect rect, ReminderDialog::DialogType type,
              std::function<void(ReminderDialog*)> const& addButtons)
{
    return runReminder<ReminderDialog>(kWho, helper, parent, text, rect, type, addButtons);
}

} // namespace

// Private state: hidden, unlike the exported class it belongs to.
struct __attribute__((visibility("hidden"))) ReminderDialog::Impl
{
    QTextEdit* textView = nullptr;
    QScrollBar* scrollBar = nullptr;
    bool scrollBarShown = false;
    QLabel* iconLabel = nullptr;
    QLabel* lineLabel = nullptr;
    ProgressBarCtr* progressBar = nullptr;
    QHBoxLayout* iconRow = nullptr;
    QHBoxLayout* textRow = nullptr;
    QHBoxLayout* buttonRow = nullptr;
    QHBoxLayout* progressRow = nullptr;
    QVBoxLayout* frameLayout = nullptr;
    std::unique_ptr<ReminderButtons> buttons;
    DialogType type = Information;
    QPointer<QWidget> parent;
    std::atomic<int> executing{0};
    QFrame* frame = nullptr;
    bool textFocusedOnce = false;
    int showTime = 2000; // kept for the host; nothing reads it
    QTimer* closeTimer = nullptr;
    QRect rect;
    float fontSize = 0;
    int width = 0;
    int height = 0;
};

ReminderDialog::ReminderDialog(DialogType type, QRect rect, QWidget* parent) : QDialog(nullptr), d(new Impl)
{
    d->rect = DialogUtil::hostRect(rect, kWho);
    if (!validType(type)) {
        qWarning().noquote() << kWho << "unknown dialog type" << int(type) << "taken as information";
        type = Information;
    }
    d->type = type;
    d->parent = parent;
    d->fontSize = DialogUtil::fontSize(d->rect);
    d->width = DialogUtil::part(d->rect.width(), 11, 16);
    d->height = DialogUtil::part(d->rect.height(), 3, 5);
    d->buttons = std::make_unique<ReminderButtons>(this, d->rect.width(), d->fontSize);
    createWidget();
    createConnects();
    // The dialog is not the parent's child: a parent that goes away ends it.
    DialogUtil::closeWithParent(this, parent, kWho);
}

ReminderDialog::~ReminderDialog() = default;

void ReminderDialog::createWidget()
{
    int const W = d->rect.width();
    int const H = d->rect.height();
    float const F = d->fontSize;

    setFixedSize(d->width, d->height);
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setProperty("isReminderDialogBg", true);
    move((W - d->width) / 2, (H - d->height) / 2);

    d->frame = new QFrame(this);
    d->frame->setObjectName(QStringLiteral("reminderFrame"));
    d->frame->setContentsMargins(0, 0, 0, 0);
    d->frame->setFixedSize(d->width, d->height);
    d->frame->setProperty("isReminderFrameBg", true);
    auto* outer = new QHBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(d->frame, 0, Qt::AlignCenter);

    d->textView = new QTextEdit(d->frame);
    d->textView->setObjectName(QStringLiteral("reminderText"));
    d->textView->setReadOnly(true);
    d->textView->setLineWrapMode(QTextEdit::WidgetWidth);
    d->textView->setProperty("scrollableTextView", "nofocus");
    d->textView->setFixedWidth(d->width * 4 / 5);
    d->textView->setFixedHeight(d->height * 4 / 5);
    d->textView->setAlignment(Qt::AlignCenter);
    d->textView->setFocusPolicy(Qt::NoFocus);
    d->scrollBar = d->textView->verticalScrollBar();

    d->iconLabel = new QLabel(d->frame);
    d->iconLabel->setObjectName(QStringLiteral("reminderIcon"));
    d->iconLabel->setProperty("isReminderIcon", "question");
    d->lineLabel = new QLabel(d->frame);
    d->lineLabel->setObjectName(QStringLiteral("reminderLine"));
    d->lineLabel->setProperty("isLineLabel", true);
    d->lineLabel->setFixedSize(d->width, int(F / 14));
    d->progressBar = new ProgressBarCtr(d->rect, d->frame);
    d->progressBar->hide();

    auto row = [](QWidget* w) {
        auto* layout = new QHBoxLayout;
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addStretch();
        if (w)
            layout->addWidget(w);
        layout->addStretch();
        return layout;
    };
    d->iconRow = row(d->iconLabel);
    d->textRow = row(d->textView);
    d->progressRow = row(d->progressBar);
    d->buttonRow = row(d->buttons->box());

    int const margin = H / 20;
    d->frameLayout = new QVBoxLayout(d->frame);
    d->frameLayout->setContentsMargins(0, margin, 0, int(margin * 0.6));
    d->frameLayout->setSpacing(0);
    d->frameLayout->addLayout(d->iconRow);
    d->frameLayout->addSpacing(H / 40);
    d->frameLayout->addLayout(d->textRow);
    d->frameLayout->addLayout(d->progressRow);
    // The wide gap above the line gives way first when the text needs the room.
    d->frameLayout->addSpacerItem(new QSpacerItem(0, qMax(0, W / 5 - margin), QSizePolicy::Minimum, QSizePolicy::Maximum));
    d->frameLayout->addWidget(d->lineLabel);
    d->frameLayout->addSpacing(int(margin * 0.4));
    d->frameLayout->addLayout(d->buttonRow);
    d->frameLayout->addStretch();

    d->closeTimer = new QTimer(this);
    d->closeTimer->setSingleShot(false);
    setFocus(Qt::OtherFocusReason);
}

void ReminderDialog::createConnects()
{
    connect(d->buttons->box(), &QDialogButtonBox::clicked, this, &ReminderDialog::slot_buttonClicked);
    connect(d->scrollBar, &QScrollBar::rangeChanged, this, &ReminderDialog::slotScrollbarRangeChanged);
    connect(this, &ReminderDialog::signalDetectScrollbar, this, &ReminderDialog::slotDetectScrollbar,
            Qt::QueuedConnection);
    connect(d->scrollBar, &QScrollBar::valueChanged, this, [this](int value) {
        if (value == d->scrollBar->maximum())
            if (QPushButton* last = d->buttons->last())
                last->setFocus(Qt::OtherFocusReason);
    });
    connect(d->closeTimer, &QTimer::timeout, this, [this] {
        close();
        d->closeTimer->stop();
    });
}

// ---- Static helpers ----

int ReminderDialog::information(QWidget* parent, QString const& text, QRect rect, QDialogButtonBox::ButtonRole role)
{
    return runHelper("information", parent, text, rect, Information, [role](ReminderDialog* dialog) { addOkButton(dialog, role); });
}

int ReminderDialog::prosper(QWidget* parent, QString const& text, QRect rect, QDialogButtonBox::ButtonRole role)
{
    return runHelper("prosper", parent, text, rect, Prosper, [role](ReminderDialog* dialog) { addOkButton(dialog, role); });
}

int ReminderDialog::question(QWidget* parent, QString const& text, QRect rect, QDialogButtonBox::ButtonRole)
{
    return runHelper("question", parent, text, rect, Question, [](ReminderDialog* dialog) {
        dialog->addButton(QDialogButtonBox::YesRole);
        QPushButton* cancel = dialog->addButton(QDialogButtonBox::NoRole);
        dialog->setDefaultButton(cancel);
        dialog->setButtonBoxLayoutDirection(Qt::RightToLeft);
    });
}

int ReminderDialog::warning(QWidget* parent, QString const& text, QRect rect, QDialogButtonBox::ButtonRole role)
{
    if (role != QDialogButtonBox::ActionRole && role != QDialogButtonBox::YesRole)
        return QDialogButtonBox::NoRole;
    return runHelper("warning", parent, text, rect, Warning,
                     [role](ReminderDialog* dialog) { dialog->setDefaultButton(dialog->addButton(role)); });
}

int ReminderDialog::error(QWidget* parent, QString const& text, QRect rect, QDialogButtonBox::ButtonRole role)
{
    return runHelper("error", parent, text, rect, Error, [role](ReminderDialog* dialog) {
        QPushButton* ok = dialog->addButton(QDialogButtonBox::YesRole);
        if (role == QDialogButtonBox::YesRole)
            dialog->setDefaultButton(ok);
    });
}

ReminderDialog* ReminderDialog::ongoing(QWidget* parent, QString const& text, QRect rect, QDialogButtonBox::ButtonRole)
{
    auto* dialog = new ReminderDialog(Ongoing, rect, parent);
    dialog->setIcon(Ongoing);
    dialog->setText(text);
    return dialog;
}

ReminderDialog* ReminderDialog::progress(QWidget* parent, QString const& text, QRect rect, QDialogButtonBox::ButtonRole,
                                         bool cancel)
{
    auto* dialog = new ReminderDialog(Progress, rect, parent);
    dialog->setIcon(Progress);
    if (cancel)
        dialog->setDefaultButton(dialog->addButton(QDialogButtonBox::NoRole));
    else
        dialog->setLineHidden(true);
    dialog->setText(text);
    return dialog;
}

// ---- Buttons ----

QPushButton* ReminderDialog::addButton(QDialogButtonBox::ButtonRole role)
{
    return d->buttons->add(role, d->width, "[ReminderDialog]");
}

QPushButton* ReminderDialog::button(QDialogButtonBox::ButtonRole role) const { return d->buttons->button(role); }

void ReminderDialog::setDefaultButton(QPushButton* button) { d->buttons->setDefault(button); }

void ReminderDialog::setButtonBoxLayoutDirection(Qt::LayoutDirection direction)
{
    d->buttons->box()->setLayoutDirection(direction);
}

int ReminderDialog::clickedButtonRole() const { return d->buttons->roleOf(d->buttons->clicked()); }

int ReminderDialog::buttonRole(QPushButton* button) const { return d->buttons->roleOf(button); }

// ---- Content ----

void ReminderDialog::setText(QString const& text)
{
    d->textView->setPlainText(text);
    if (!d->scrollBar->isVisibleTo(d->textView)) {
        d->textView->selectAll();
        d->textView->setAlignment(Qt::AlignCenter);
        QTextCursor cursor = d->textView->textCursor();
        cursor.clearSelection();
        d->textView->setTextCursor(cursor);
        if (QPushButton* last = d->buttons->last())
            last->setFocus(Qt::OtherFocusReason);
    }
}

QString ReminderDialog::text() const { return d->textView->toPlainText(); }

void ReminderDialog::setIcon(DialogType type)
{
    if (!validType(type)) {
        qWarning().noquote() << kWho << "setIcon: unknown dialog type" << int(type);
        return;
    }
    if (char const* name = iconName(type))
        d->iconLabel->setProperty("isReminderIcon", name);
    d->progressBar->setVisible(type == Progress);
    d->iconLabel->setVisible(type != Ongoing && type != Progress);
    repolish(d->iconLabel);
    update();
}

void ReminderDialog::setProgressValue(int value) { d->progressBar->setCurrentValue(value); }

void ReminderDialog::setProgressText(QString const& text) { d->progressBar->setProgressText(text); }

void ReminderDialog::setProgressFocus() { d->progressBar->setFocus(Qt::OtherFocusReason); }

void ReminderDialog::setDialogSize(QSize size)
{
    if (size.width() < 0 || size.height() < 0) {
        qWarning().noquote() << kWho << "setDialogSize: negative size refused" << size;
        return;
    }
    // No dialog is larger than the host's screen (nor could one be painted).
    size = size.boundedTo(d->rect.size());
    d->width = size.width();
    d->height = size.height();
    setFixedSize(size);
    d->frame->setFixedSize(size);
    d->textView->setFixedWidth(size.width() * 4 / 5);
    d->buttons->updateWidths(d->width);
}

void ReminderDialog::setDialogShowTimer(int const& ms)
{
    d->progressBar->hide();
    d->buttons->box()->hide();
    d->closeTimer->start(qMax(0, ms));
}

void ReminderDialog::setLineHidden(bool hidden) { d->lineLabel->setHidden(hidden); }

ReminderDialog::DialogType ReminderDialog::getDialogType() const { return d->type; }

int ReminderDialog::getLineWidth() const { return DialogUtil::part(d->rect.width(), 5, 8); }

int ReminderDialog::getReminderDialogWidth() const { return d->width; }

int ReminderDialog::getReminderDialogHeight() const { return d->height; }

float ReminderDialog::getFontSize() const { return d->fontSize; }

bool ReminderDialog::isExec() const { return d->executing.load() != 0; }

bool ReminderDialog::hasScrollBar() const { return d->scrollBarShown; }

int ReminderDialog::exec()
{
    return DialogUtil::execModal(this, &d->executing);
}

// ---- Slots ----

void ReminderDialog::slot_buttonClicked(QAbstractButton* button) { d->buttons->click(button); }

void ReminderDialog::slotScrollbarRangeChanged(int, int) { emit signalDetectScrollbar(); }

void ReminderDialog::slotDetectScrollbar()
{
    if (d->scrollBar->isVisibleTo(d->textView)) {
        d->scrollBarShown = true;
        d->textView->setFocusPolicy(Qt::WheelFocus);
        if (!d->textFocusedOnce) {
            d->textFocusedOnce = true;
            d->textView->setFocus(Qt::OtherFocusReason);
        }
    } else {
        d->scrollBarShown = false;
        if (!d->textView->document()->isEmpty()) {
            d->textView->setFocusPolicy(Qt::NoFocus);
            if (QPushButton* last = d->buttons->last())
                last->setFocus(Qt::OtherFocusReason);
        }
    }
}

void ReminderDialog::slotResetPushBtnClicked() const {}

void ReminderDialog::slotApplyPushBtnClicked() const {}

// ---- Events ----

bool ReminderDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (d->buttons->filterKey(watched, event, d->type == Progress, d->textView, d->scrollBarShown && d->scrollBar->isVisible()))
        return true;
    return QDialog::eventFilter(watched, event);
}

void ReminderDialog::keyPressEvent(QKeyEvent* event)
{
    if (!ReminderButtons::swallowBack(event, d->type == Progress))
        QDialog::keyPressEvent(event);
}

void ReminderDialog::showEvent(QShowEvent* event)
{
    int const N = DialogUtil::fontPixels(d->fontSize);
    QPoint const pos = DialogUtil::centreOn(d->rect, size());
    setGeometry(QRect(pos, size()));
    qDebug().nospace() << "ReminderDialog pos x:" << pos.x() << ";y:" << pos.y();

    d->textView->setStyleSheet(DialogUtil::fontSheet("QTextEdit", N));
    d->buttons->setFontPixels(N);
    d->iconLabel->setFixedSize(2 * N, 2 * N);
    d->progressBar->setFontSize(N);
    // The bar's own height rule (2.5 × the font) leaves its bar row no room at the
    // dialogs' font sizes: give it what its layout needs.
    if (QLayout* layout = d->progressBar->layout())
        d->progressBar->setFixedHeight(qMax(d->progressBar->height(), layout->minimumSize().height()));
    fitTextHeight();
    // "border-radius;" as the host's theme expects it.
    QString const radius = QString::number(N * 8 / 14);
    setStyleSheet(QStringLiteral("QDialog{border-radius;") + radius + QStringLiteral("px;}"));
    d->frame->setStyleSheet(QStringLiteral("QFrame{border-radius;") + radius + QStringLiteral("px;}"));
    if (!d->buttons->anyVisible())
        setFocus(Qt::OtherFocusReason);
    QDialog::showEvent(event);
}

void ReminderDialog::fitTextHeight()
{
    // The text view is at most 4/5 of the dialog's height; it takes what the icon,
    // the progress bar, the line and the buttons leave of the frame.
    int const N = DialogUtil::fontPixels(d->fontSize);
    int const H = d->rect.height();
    int const margin = H / 20;
    QMargins const m = d->frameLayout->contentsMargins();
    qint64 used = qint64(m.top()) + m.bottom() + H / 40 + int(margin * 0.4);
    if (!d->iconLabel->isHidden())
        used += 2 * N;
    if (!d->progressBar->isHidden())
        used += d->progressBar->height();
    if (!d->lineLabel->isHidden())
        used += d->lineLabel->height();
    if (!d->buttons->box()->isHidden() && !d->buttons->box()->buttons().isEmpty())
        used += N + N * 10 / 14;
    int const room = int(qBound<qint64>(0, qint64(d->height) - used, QWIDGETSIZE_MAX));
    d->textView->setFixedHeight(qMin(room, d->height * 4 / 5));
}

void ReminderDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        d->buttons->retranslate();
    QDialog::changeEvent(event);
}

// ---- ReminderDialogApply ----

// Private state: hidden, unlike the exported class it belongs to.
struct __attribute__((visibility("hidden"))) ReminderDialogApply::Impl
{
    QFrame* frame = nullptr;
    QLabel* text = nullptr;
    QLabel* icon = nullptr;
    QPushButton* apply = nullptr;
    QString textValue;
    QString iconPath;
};

int ReminderDialogApply::exec()
{
    DialogUtil::ExecScope const scope(this, "exec");
    if (scope.refused())
        return QDialog::Rejected;
    return QDialog::exec();
}

ReminderDialogApply::ReminderDialogApply(QWidget* parent) : QDialog(parent), d(new Impl)
{
    setFixedSize(800, 480);
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setProperty("isReminderDialogBg", true);

    d->frame = new QFrame(this);
    d->frame->setObjectName(QStringLiteral("reminderApplyFrame"));
    d->frame->setFixedSize(544, 288);
    d->frame->setProperty("isReminderFrameBg", true);
    d->frame->setWindowOpacity(1.0);
    auto gap = [](int height) { return new QSpacerItem(0, height, QSizePolicy::Minimum, QSizePolicy::Maximum); };
    auto* outer = new QHBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(d->frame, 0, Qt::AlignCenter);

    d->text = new QLabel(d->frame);
    d->text->setProperty("isLockPanelText", true);
    d->text->setAlignment(Qt::AlignCenter);
    d->icon = new QLabel(d->frame);
    d->icon->setFixedSize(160, 160);
    d->apply = new QPushButton(tr("Apply"), d->frame);
    d->apply->setProperty("isIconApply", true);

    auto row = [](QWidget* w) {
        auto* layout = new QHBoxLayout;
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addStretch();
        layout->addWidget(w);
        layout->addStretch();
        return layout;
    };
    auto* layout = new QVBoxLayout(d->frame);
    layout->setSpacing(0);
    // The gaps give way where the frame is too small for all of them.
    layout->addSpacerItem(gap(50));
    layout->addLayout(row(d->icon));
    layout->addSpacerItem(gap(80));
    layout->addLayout(row(d->text));
    layout->addSpacerItem(gap(164));
    layout->addLayout(row(d->apply));
    layout->addStretch();

    connect(d->apply, &QPushButton::clicked, this, &ReminderDialogApply::signalPushBtnClicked);
}

ReminderDialogApply::~ReminderDialogApply() = default;

void ReminderDialogApply::setText(QString const& text)
{
    d->textValue = text;
    d->text->setText(text);
}

void ReminderDialogApply::setIconPath(QString const& path)
{
    d->iconPath = path;
    QPixmap pixmap;
    if (!path.isEmpty() && !pixmap.load(path))
        qWarning().noquote() << "[ReminderDialogApply] cannot load icon" << path;
    d->icon->setPixmap(pixmap.isNull() ? pixmap : pixmap.scaled(160, 160, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

QPushButton* ReminderDialogApply::applyButton() const { return d->apply; }

void ReminderDialogApply::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        d->apply->setText(tr("Apply"));
    QDialog::changeEvent(event);
}

} // namespace Widget
} // namespace LCD
