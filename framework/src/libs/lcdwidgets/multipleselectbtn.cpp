#include "multipleselectbtn.h"

#include "dialogutil_p.h"

#include <QApplication>
#include <QDebug>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QToolButton>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

namespace {

constexpr char kMarkValue[] = "MarkValue";

QString const kDefaultSheet = QStringLiteral(
    "QToolButton{background-color: transparent;font-size: 16px;color: rgba(0,140,242,1);icon-size:24px 24px;"
    "min-height: 65px;max-height: 65px;min-width: 64px;max-width: 64px;}"
    "QToolButton:focus {border: 2px solid rgb(255,255,255);}");
QString const kPanelSheet = QStringLiteral(
    "QToolButton{background-color: rgba(255,255,255,20);border-radius: 4px;font-size: 16px;color: rgba(0,140,242,1);}"
    "QToolButton:focus {border: 2px solid rgb(255,255,255);}");
QString const kSizedSheet = QStringLiteral(
    "QToolButton {    background-color: transparent;    font-size: %1px;    color: %2;    min-height: %3px;    "
    "max-height: %4px;    min-width: %5px;    max-width: %6px;}QToolButton:focus {    border: %7px solid "
    "rgb(255,255,255);}");
constexpr int kDefaultSpacing = 8;

} // namespace

struct MultipleSelectBtn::Impl
{
    QVector<QToolButton*> buttons;
    int index = 0;
};

MultipleSelectBtn::MultipleSelectBtn(int index, std::vector<ItemSelectInfo> const& infos, QWidget* parent)
    : QWidget(parent), d(std::make_unique<Impl>())
{
    d->index = index;
    setStyleSheet(kDefaultSheet);
    build(infos, Qt::ToolButtonTextUnderIcon, kDefaultSpacing);
}

MultipleSelectBtn::MultipleSelectBtn(int index, int spacing, std::vector<ItemSelectInfo> const& infos,
                                     Qt::ToolButtonStyle style, QWidget* parent)
    : QWidget(parent), d(std::make_unique<Impl>())
{
    d->index = index;
    setStyleSheet(kPanelSheet);
    build(infos, style, qMax(0, spacing));
}

MultipleSelectBtn::~MultipleSelectBtn()
{
    // The focus leaves this row while its QWidget part is taken down: the slot must not
    // run on the half-destroyed row.
    if (qApp)
        disconnect(qApp, &QApplication::focusChanged, this, nullptr);
}

void MultipleSelectBtn::build(std::vector<ItemSelectInfo> const& infos, Qt::ToolButtonStyle style, int spacing)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    for (ItemSelectInfo const& info : infos) {
        auto* button = new QToolButton(this);
        button->setToolButtonStyle(style);
        button->setText(info.text);
        button->setIcon(info.icon);
        button->setProperty(kMarkValue, info.value);
        button->setFocusPolicy(Qt::StrongFocus);
        button->installEventFilter(this);
        connect(button, &QToolButton::clicked, this, [this, button] {
            d->index = qMax(0, d->buttons.indexOf(button));
            emit signalSelectBtnClicked(button->property(kMarkValue));
        });
        layout->addWidget(button);
        d->buttons.append(button);
    }
    layout->addStretch();
    int const last = d->buttons.size() - 1;
    if (d->index < 0 || d->index > last) {
        if (last >= 0)
            qDebug().noquote().nospace() << "MultipleSelectBtn: focus index " << d->index << " out of range, using 0";
        d->index = 0;
    }
    connect(qApp, &QApplication::focusChanged, this, &MultipleSelectBtn::slotFocusChanged);
}

void MultipleSelectBtn::setBtnText(int index, QString text)
{
    if (QToolButton* b = button(index)) {
        b->setText(text);
        return;
    }
    qDebug().noquote().nospace() << "MultipleSelectBtn::setBtnText: invalid index " << index;
}

void MultipleSelectBtn::setBtnSize(int n)
{
    // Below 3 the buttons would have no height (the style takes 0 for "unset"); far
    // beyond any panel's fonts the sizes overflow.
    if (n < kMinButtonSize || n > kMaxButtonSize) {
        qDebug() << "Invalid button size:" << n;
        return;
    }
    int const side = (n / 3) * 4;
    int const fontPx = static_cast<int>(0.8 * n);
    QFont f = font();
    if (fontPx > 0)
        f.setPixelSize(fontPx);
    QFontMetrics const fm(f);
    for (QToolButton* b : qAsConst(d->buttons)) {
        // Square buttons for an icon (with or without its text under it); buttons that
        // show their text beside the icon, or alone, are as wide as the text needs.
        qint64 width = side;
        Qt::ToolButtonStyle const style = b->toolButtonStyle();
        if (style == Qt::ToolButtonTextBesideIcon || style == Qt::ToolButtonTextOnly) {
            qint64 const icon = style == Qt::ToolButtonTextOnly ? 0 : qint64(fontPx) + n / 4;
            width = qMax<qint64>(side, icon + fm.horizontalAdvance(b->text()) + n / 2);
        }
        // The icon as tall as the text.
        if (fontPx > 0)
            b->setIconSize(QSize(fontPx, fontPx));
        width = qMin<qint64>(width, QWIDGETSIZE_MAX);
        b->setStyleSheet(kSizedSheet.arg(fontPx)
                             .arg(QStringLiteral("rgba(0,140,242,1)"))
                             .arg(side)
                             .arg(side)
                             .arg(width)
                             .arg(width)
                             .arg(n / 16));
    }
}

int MultipleSelectBtn::getIndex(QToolButton* button) const { return d->buttons.indexOf(button); }

int MultipleSelectBtn::count() const { return d->buttons.size(); }

int MultipleSelectBtn::currentIndex() const { return d->index; }

QToolButton* MultipleSelectBtn::button(int index) const { return d->buttons.value(index, nullptr); }

void MultipleSelectBtn::focusButton(int index)
{
    if (QToolButton* b = button(index))
        b->setFocus(Qt::OtherFocusReason);
}

bool MultipleSelectBtn::eventFilter(QObject* watched, QEvent* event)
{
    auto* b = qobject_cast<QToolButton*>(watched);
    if (!b || !d->buttons.contains(b))
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::FocusIn:
        // The focus always lands on the remembered button.
        if (b != button(d->index))
            focusButton(d->index);
        break;
    case QEvent::KeyPress: {
        int const last = d->buttons.size() - 1;
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
            if (d->index > 0) {
                button(d->index)->clearFocus();
                --d->index;
                focusButton(d->index);
            }
            return true;
        case Qt::Key_Down:
            if (d->index < last) {
                button(d->index)->clearFocus();
                ++d->index;
                focusButton(d->index);
            }
            return true;
        case Qt::Key_Escape:
            emit signalEditFinished();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (QToolButton* current = button(d->index))
                emit signalSelectBtnClicked(current->property(kMarkValue));
            return true;
        default:
            break;
        }
        break;
    }
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void MultipleSelectBtn::slotFocusChanged(QWidget*, QWidget* now)
{
    if (now == this)
        focusButton(d->index);
}

// ---------------------------------------------------------------------------

struct MultipleDialog::Impl
{
    MultipleSelectBtn* group = nullptr;
    QRect rect;
};

MultipleDialog::MultipleDialog(int index, std::vector<ItemSelectInfo> const& infos, QRect rect, QWidget* parent)
    : QDialog(parent), d(std::make_unique<Impl>())
{
    d->rect = rect;
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint | Qt::Dialog);
    setAttribute(Qt::WA_TranslucentBackground, false);
    setProperty("isMultipleDialog", true);
    setModal(true);

    d->group = new MultipleSelectBtn(index, infos, this);
    auto* layout = new QVBoxLayout(this);
    layout->addStretch();
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(d->group);
    row->addStretch();
    layout->addLayout(row);
    layout->addStretch();

    int const w = getReminderDialogWidth();
    int const h = getReminderDialogHeight();
    if (w > 0 && h > 0)
        setFixedSize(w, h);

    connect(d->group, &MultipleSelectBtn::signalSelectBtnClicked, this, [this](QVariant const& value) {
        emit signalSelectBtnClicked(value);
        accept();
    });
    connect(d->group, &MultipleSelectBtn::signalEditFinished, this, &MultipleDialog::reject);
}

MultipleDialog::~MultipleDialog() = default;

void MultipleDialog::setBtnText(int index, QString text) { d->group->setBtnText(index, std::move(text)); }

int MultipleDialog::getIndex(QToolButton* button) const { return d->group->getIndex(button); }

int MultipleDialog::getReminderDialogWidth() const
{
    return static_cast<int>(qBound<qint64>(0, qint64(d->rect.width()) * 3 / 5, QWIDGETSIZE_MAX));
}

int MultipleDialog::getReminderDialogHeight() const
{
    return static_cast<int>(qBound<qint64>(0, qint64(d->rect.height()) * 2 / 5, QWIDGETSIZE_MAX));
}

MultipleSelectBtn* MultipleDialog::selectBtn() const { return d->group; }

int MultipleDialog::exec()
{
    DialogUtil::ExecScope const scope(this, "exec");
    if (scope.refused())
        return QDialog::Rejected;
    int const result = QDialog::exec();
    qDebug().noquote().nospace() << "[dialog] exec finish with " << result;
    return result;
}

void MultipleDialog::reject()
{
    emit signalEditFinished();
    QDialog::reject();
}

void MultipleDialog::slotFocusChanged(QWidget* old, QWidget* now) { d->group->slotFocusChanged(old, now); }

void MultipleDialog::focusInEvent(QFocusEvent* event)
{
    QDialog::focusInEvent(event);
    d->group->setFocus(Qt::OtherFocusReason);
}

void MultipleDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (d->rect.isValid())
        move(d->rect.center() - rect().center());
    d->group->setFocus(Qt::OtherFocusReason);
}

} // namespace Widget
} // namespace LCD
