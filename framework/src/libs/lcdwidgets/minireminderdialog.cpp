#include "minireminderdialog.h"

#include "dialogutil_p.h"
#include "progressbarctr.h"
#include "reminderbuttons_p.h"
#include "stylehelper.h"

#include <QApplication>
#include <QDebug>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <atomic>

namespace LCD {
namespace Widget {

namespace {
char const* const kWho = "[MiniProcessDialog]";
bool validType(int type) { return type >= MiniProcessDialog::Information && type <= MiniProcessDialog::Progress; }
} // namespace

// Private state: hidden, unlike the exported class it belongs to.
struct __attribute__((visibility("hidden"))) MiniProcessDialog::Impl
{
    QLabel* iconLabel = nullptr;
    ProgressBarCtr* progressBar = nullptr;
    QFrame* frame = nullptr;
    std::unique_ptr<ReminderButtons> buttons;
    DialogType type = Information;
    VerticalPosition position = Bottom;
    QPointer<QWidget> parent;
    std::atomic<int> executing{0};
    QTimer* closeTimer = nullptr;
    QRect rect;
    QString text;
    float fontSize = 0;
};

MiniProcessDialog::MiniProcessDialog(DialogType type, QRect rect, QWidget* parent, VerticalPosition position)
    : QDialog(nullptr), d(new Impl)
{
    d->rect = DialogUtil::hostRect(rect, kWho);
    if (!validType(type)) {
        qWarning().noquote() << kWho << "unknown dialog type" << int(type) << "taken as information";
        type = Information;
    }
    d->type = type;
    d->position = position;
    d->parent = parent;
    d->fontSize = DialogUtil::fontSize(d->rect);

    QRect screen(0, 0, DialogUtil::kFallbackWidth, DialogUtil::kFallbackHeight);
    if (QScreen* primary = QGuiApplication::primaryScreen())
        screen = primary->geometry();
    qDebug().nospace() << "primaryScreen :" << screen.width() << ";y:" << screen.height();
    setFixedSize(screen.size());
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setProperty("isReminderDialogBg", true);

    // The box and the icon are not part of the band: the box stays where the
    // dialog puts it (its buttons still take the knob), the icon is not shown.
    d->buttons = std::make_unique<ReminderButtons>(this, d->rect.width(), d->fontSize);
    d->iconLabel = new QLabel(this);
    d->iconLabel->hide();

    d->frame = new QFrame(this);
    d->frame->setObjectName(QStringLiteral("miniProcessFrame"));
    d->frame->setContentsMargins(0, 0, 0, 0);
    d->frame->setProperty("isReminderFrameBg", true);
    d->frame->setFixedSize(screen.width(), qMin(screen.height(), d->rect.height()));
    d->progressBar = new ProgressBarCtr(d->rect, d->frame);
    d->progressBar->hide();

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    outer->addStretch();
    outer->addWidget(d->frame);
    auto* inner = new QVBoxLayout(d->frame);
    inner->setContentsMargins(0, 0, 0, 0);
    inner->addStretch();
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(d->progressBar);
    row->addStretch();
    inner->addLayout(row);
    inner->addStretch();

    d->closeTimer = new QTimer(this);
    connect(d->closeTimer, &QTimer::timeout, this, [this] {
        close();
        d->closeTimer->stop();
    });
    connect(d->buttons->box(), &QDialogButtonBox::clicked, this, &MiniProcessDialog::slot_buttonClicked);
    DialogUtil::closeWithParent(this, parent, nullptr);
    setFocus(Qt::OtherFocusReason);
}

MiniProcessDialog::~MiniProcessDialog() = default;

int MiniProcessDialog::prosper(QWidget* parent, QString const& text, QRect rect, QDialogButtonBox::ButtonRole role)
{
    return runReminder<MiniProcessDialog>(kWho, "prosper", parent, text, rect, Prosper,
                                          [role](MiniProcessDialog* dialog) { addOkButton(dialog, role); });
}

MiniProcessDialog* MiniProcessDialog::ongoing(QWidget* parent, QString const& text, QRect rect,
                                              QDialogButtonBox::ButtonRole, VerticalPosition position)
{
    auto* dialog = new MiniProcessDialog(Ongoing, rect, parent, position);
    dialog->setIcon(Ongoing);
    dialog->setText(text);
    return dialog;
}

MiniProcessDialog* MiniProcessDialog::progress(QWidget* parent, QString const& text, QRect rect,
                                               VerticalPosition position, QDialogButtonBox::ButtonRole, bool cancel)
{
    auto* dialog = new MiniProcessDialog(Progress, rect, parent, position);
    dialog->setIcon(Progress);
    if (cancel)
        dialog->setDefaultButton(dialog->addButton(QDialogButtonBox::NoRole));
    dialog->setText(text);
    return dialog;
}

QPushButton* MiniProcessDialog::addButton(QDialogButtonBox::ButtonRole role)
{
    return d->buttons->add(role, width(), kWho);
}

QPushButton* MiniProcessDialog::button(QDialogButtonBox::ButtonRole role) const { return d->buttons->button(role); }

void MiniProcessDialog::setDefaultButton(QPushButton* button) { d->buttons->setDefault(button); }

void MiniProcessDialog::setButtonBoxLayoutDirection(Qt::LayoutDirection direction)
{
    d->buttons->box()->setLayoutDirection(direction);
}

int MiniProcessDialog::clickedButtonRole() const { return d->buttons->roleOf(d->buttons->clicked()); }

int MiniProcessDialog::buttonRole(QPushButton* button) const { return d->buttons->roleOf(button); }

void MiniProcessDialog::setText(QString const& text)
{
    d->text = text;
    if (QPushButton* last = d->buttons->last())
        last->setFocus(Qt::OtherFocusReason);
}

QString MiniProcessDialog::text() const { return d->text; }

void MiniProcessDialog::setIcon(DialogType type)
{
    if (!validType(type)) {
        qWarning().noquote() << kWho << "setIcon: unknown dialog type" << int(type);
        return;
    }
    static char const* const names[] = {"information", "question", "warning", "prosper", "error"};
    if (type <= Error)
        d->iconLabel->setProperty("isReminderIcon", names[type]);
    d->progressBar->setVisible(type == Progress);
    repolish(d->iconLabel);
    update();
}

void MiniProcessDialog::setProgressValue(int value) { d->progressBar->setCurrentValue(value); }

void MiniProcessDialog::setProgressText(QString const& text) { d->progressBar->setProgressText(text); }

void MiniProcessDialog::setProgressFocus() { d->progressBar->setFocus(Qt::OtherFocusReason); }

void MiniProcessDialog::setDialogSize(QSize size)
{
    if (size.width() < 0 || size.height() < 0) {
        qWarning().noquote() << kWho << "setDialogSize: negative size refused" << size;
        return;
    }
    // No dialog is larger than the host's screen (nor could one be painted).
    QScreen const* screen = QGuiApplication::primaryScreen();
    setFixedSize(size.boundedTo(screen ? d->rect.size().expandedTo(screen->size()) : d->rect.size()));
}

void MiniProcessDialog::setDialogShowTimer(int const& ms)
{
    d->progressBar->hide();
    d->buttons->box()->hide();
    d->closeTimer->start(qMax(0, ms));
}

void MiniProcessDialog::setLineHidden(bool) {}

MiniProcessDialog::DialogType MiniProcessDialog::getDialogType() const { return d->type; }

MiniProcessDialog::VerticalPosition MiniProcessDialog::verticalPosition() const { return d->position; }

int MiniProcessDialog::getLineWidth() const { return DialogUtil::part(d->rect.width(), 5, 8); }

int MiniProcessDialog::getReminderDialogWidth() const { return width(); }

int MiniProcessDialog::getReminderDialogHeight() const { return height(); }

float MiniProcessDialog::getFontSize() const { return d->fontSize; }

bool MiniProcessDialog::isExec() const { return d->executing.load() != 0; }

int MiniProcessDialog::exec()
{
    return DialogUtil::execModal(this, &d->executing);
}

void MiniProcessDialog::slot_buttonClicked(QAbstractButton* button) { d->buttons->click(button); }

bool MiniProcessDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (d->buttons->filterKey(watched, event, d->type == Progress, nullptr, false))
        return true;
    return QDialog::eventFilter(watched, event);
}

void MiniProcessDialog::keyPressEvent(QKeyEvent* event)
{
    if (!ReminderButtons::swallowBack(event, d->type == Progress))
        QDialog::keyPressEvent(event);
}

void MiniProcessDialog::showEvent(QShowEvent* event)
{
    int const N = DialogUtil::fontPixels(d->fontSize);
    d->buttons->setFontPixels(N);
    d->iconLabel->setFixedSize(2 * N, 2 * N);
    d->progressBar->setFontSize(N);
    QString const radius = QString::number(N * 8 / 14);
    setStyleSheet(QStringLiteral("QDialog{border-radius;") + radius + QStringLiteral("px;}"));
    if (!d->buttons->anyVisible())
        setFocus(Qt::OtherFocusReason);
    QDialog::showEvent(event);
}

void MiniProcessDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        d->buttons->retranslate();
    QDialog::changeEvent(event);
}

} // namespace Widget
} // namespace LCD
