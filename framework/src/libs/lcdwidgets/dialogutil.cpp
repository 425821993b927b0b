#include "dialogutil_p.h"

#include <QApplication>
#include <QBitmap>
#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>
#include <QPointer>
#include <QDebug>
#include <QPainter>
#include <QWidget>

namespace LCD {
namespace Widget {
namespace DialogUtil {

QRect hostRect(QRect const& rect, char const* who)
{
    if (rect.width() > kMaxHostSide || rect.height() > kMaxHostSide) {
        // No screen is that large: a window sized from it could not even be painted.
        qWarning().noquote() << who << "host rectangle is larger than any screen, using 800x480";
        return QRect(0, 0, kFallbackWidth, kFallbackHeight);
    }
    if (rect.width() > 0 && rect.height() > 0)
        return rect;
    qWarning().noquote() << who << "host rectangle is empty, using 800x480";
    return QRect(0, 0, kFallbackWidth, kFallbackHeight);
}

int part(qint64 v, qint64 num, qint64 den)
{
    if (den == 0)
        return 0;
    return int(qBound<qint64>(0, v * num / den, QWIDGETSIZE_MAX));
}

int fontPixels(float fontSize)
{
    if (!(fontSize >= 1.0f)) // also NaN
        return 1;
    if (fontSize >= 4096.0f)
        return 4096;
    return int(fontSize);
}

QPoint centreOn(QRect const& host, QSize const& size)
{
    qint64 const x = qint64(host.x()) + host.width() / 2 - size.width() / 2;
    qint64 const y = qint64(host.y()) + host.height() / 2 - size.height() / 2;
    return QPoint(int(qBound<qint64>(-QWIDGETSIZE_MAX, x, QWIDGETSIZE_MAX)),
                  int(qBound<qint64>(-QWIDGETSIZE_MAX, y, QWIDGETSIZE_MAX)));
}

QString fontSheet(char const* type, int px)
{
    return QLatin1String(type) + QStringLiteral("{font-size: ") + QString::number(px) + QStringLiteral("px; }");
}

void setRoundedMask(QWidget* widget, qreal radius)
{
    if (!widget || widget->width() <= 0 || widget->height() <= 0)
        return;
    QBitmap mask(widget->size());
    mask.fill(Qt::color0);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(QRectF(QPointF(0, 0), QSizeF(widget->size())), radius, radius);
    painter.end();
    widget->setMask(mask);
}

QFrame* buildFramedWindow(QDialog* dialog, QSize size, QString const& frameName, char const* frameProperty)
{
    dialog->setFixedSize(size);
    dialog->setWindowFlags(dialog->windowFlags() | Qt::FramelessWindowHint);
    dialog->setAttribute(Qt::WA_TranslucentBackground);
    dialog->setProperty("isReminderDialogBg", true);
    auto* frame = new QFrame(dialog);
    frame->setObjectName(frameName);
    frame->setProperty(frameProperty, true);
    frame->setFixedSize(size);
    auto* outer = new QVBoxLayout(dialog);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(frame);
    return frame;
}

QLabel* buildTitle(QFrame* frame, QString const& objectName, int px)
{
    auto* title = new QLabel(frame);
    title->setObjectName(objectName);
    title->setProperty("isTextViewTitle", true);
    title->setAlignment(Qt::AlignCenter);
    title->setStyleSheet(fontSheet("QLabel", px));
    title->hide();
    return title;
}

QVBoxLayout* buildColumn(QFrame* frame, QRect const& host, int px)
{
    int const margin = part(host.height(), 1, 24);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(px, margin, px, margin);
    layout->setSpacing(margin / 2);
    return layout;
}

void closeWithParent(QDialog* dialog, QObject* parent, char const* who)
{
    if (!parent)
        return;
    QObject::connect(parent, &QObject::destroyed, dialog, [dialog, who] {
        if (!dialog->isVisible())
            return;
        if (who)
            qDebug().noquote() << who << "parent destroyed: closing";
        dialog->done(-1);
    });
}

namespace {
char const* const kRunningProperty = "lcdModalRunning";
}

ExecScope::ExecScope(QDialog* dialog, char const* what) : m_dialog(dialog)
{
    if (dialog->property(kRunningProperty).toBool()) {
        QString const name = QString::fromLatin1(dialog->metaObject()->className()).section(QStringLiteral("::"), -1);
        qWarning().noquote() << QStringLiteral("[%1] %2: already running, refused").arg(name, QLatin1String(what));
        m_refused = true;
        return;
    }
    dialog->setProperty(kRunningProperty, true);
}

ExecScope::~ExecScope()
{
    if (!m_refused && m_dialog)
        m_dialog->setProperty(kRunningProperty, false);
}

int execModal(QDialog* dialog, std::atomic<int>* executing)
{
    ExecScope const scope(dialog, "exec");
    if (scope.refused())
        return QDialog::Rejected;
    QPointer<QDialog> self(dialog);
    // The dialog is a window of its own: give the knob back to the window that had
    // it (another box, the host's page) when it closes.
    QPointer<QWidget> previous = QApplication::activeWindow();
    executing->store(1);
    int const result = dialog->QDialog::exec();
    if (previous && previous.data() != static_cast<QWidget*>(dialog) && previous->isVisible())
        previous->activateWindow();
    qDebug().nospace() << "[dialog] exec finish with " << result;
    if (self)
        executing->store(0);
    return result;
}

} // namespace DialogUtil
} // namespace Widget
} // namespace LCD
