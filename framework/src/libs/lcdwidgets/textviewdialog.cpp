#include "textviewdialog.h"

#include "dialogutil_p.h"
#include "knoblevel.h"

#include <QApplication>
#include <QDebug>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QScrollBar>
#include <QTextEdit>
#include <QVBoxLayout>
#include <atomic>
#include <cmath>

namespace LCD {
namespace Widget {

namespace {
char const* const kWho = "[TextViewDialog]";
}

struct LCDWIDGETS_HIDDEN TextViewDialog::Impl
{
    QRect rect;
    float fontSize = 0;
    int width = 0;
    int height = 0;
    QFrame* frame = nullptr;
    QLabel* title = nullptr;
    QLabel* line = nullptr;
    QTextEdit* view = nullptr;
    QScrollBar* bar = nullptr;
    std::atomic<int> executing{0};
};

TextViewDialog::TextViewDialog(QRect rect, QWidget* parent) : QDialog(nullptr), d(new Impl)
{
    d->rect = DialogUtil::hostRect(rect, kWho);
    d->fontSize = DialogUtil::fontSize(d->rect);
    d->width = DialogUtil::part(d->rect.width(), 3, 4);
    d->height = DialogUtil::part(d->rect.height(), 4, 5);
    int const N = DialogUtil::fontPixels(d->fontSize);

    d->frame = DialogUtil::buildFramedWindow(this, QSize(d->width, d->height), QStringLiteral("textViewFrame"));

    d->title = DialogUtil::buildTitle(d->frame, QStringLiteral("textViewTitle"), N);
    d->line = new QLabel(d->frame);
    d->line->setProperty("isLineLabel", true);
    d->line->setFixedHeight(qMax(1, N / 14));
    d->line->hide();

    d->view = new QTextEdit(d->frame);
    d->view->setObjectName(QStringLiteral("textViewText"));
    d->view->setReadOnly(true);
    d->view->setUndoRedoEnabled(false);
    d->view->setTextInteractionFlags(Qt::NoTextInteraction);
    d->view->setLineWrapMode(QTextEdit::WidgetWidth);
    d->view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    d->view->setProperty("scrollableTextView", "textView");
    d->view->setStyleSheet(DialogUtil::fontSheet("QTextEdit", N));
    d->view->setFocusPolicy(Qt::StrongFocus);
    d->view->installEventFilter(this);
    d->bar = d->view->verticalScrollBar();

    auto* layout = DialogUtil::buildColumn(d->frame, d->rect, N);
    layout->addWidget(d->title);
    layout->addWidget(d->line);
    layout->addWidget(d->view, 1);

    // Not the parent's child: a parent that goes away ends a running dialog.
    DialogUtil::closeWithParent(this, parent, kWho);
    d->view->setFocus(Qt::OtherFocusReason);
}

TextViewDialog::~TextViewDialog() = default;

int TextViewDialog::showText(QWidget* parent, QString const& title, QString const& text, QRect rect)
{
    if (text.isEmpty()) {
        qWarning().noquote() << kWho << "showText: text is empty: nothing shown";
        return QDialog::Rejected;
    }
    QPointer<TextViewDialog> dialog = new TextViewDialog(rect, parent);
    dialog->setTitle(title);
    dialog->setText(text);
    int const result = dialog->exec();
    delete dialog.data();
    return result;
}

void TextViewDialog::setTitle(QString const& title)
{
    d->title->setText(title);
    d->title->setVisible(!title.isEmpty());
    d->line->setVisible(!title.isEmpty());
}

QString TextViewDialog::title() const { return d->title->text(); }

void TextViewDialog::setText(QString const& text)
{
    if (text.size() > maxTextLength()) {
        qWarning().noquote() << kWho << "setText: text of" << text.size() << "characters cut to" << maxTextLength();
        d->view->setPlainText(text.left(maxTextLength()));
    } else {
        d->view->setPlainText(text);
    }
    d->bar->setValue(0);
}

QString TextViewDialog::text() const { return d->view->toPlainText(); }

int TextViewDialog::scrollValue() const { return d->bar->value(); }

int TextViewDialog::scrollMaximum() const { return d->bar->maximum(); }

int TextViewDialog::lineStep() const { return qMax(1, d->view->fontMetrics().lineSpacing()); }

int TextViewDialog::getTextViewDialogWidth() const { return d->width; }

int TextViewDialog::getTextViewDialogHeight() const { return d->height; }

float TextViewDialog::getFontSize() const { return d->fontSize; }

bool TextViewDialog::isExec() const { return d->executing.load() != 0; }

int TextViewDialog::exec()
{
    return DialogUtil::execModal(this, &d->executing);
}

bool TextViewDialog::handleKey(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
        int const step = lineStep();
        int const page = qMax(1, d->view->viewport()->height() / step);
        float const level = std::fabs(knobLevel(event));
        int const lines = level >= float(page) ? page : qMax(1, int(std::lround(level)));
        qint64 const delta = qint64(lines) * step * (event->key() == Qt::Key_Up ? -1 : 1);
        d->bar->setValue(int(qBound<qint64>(d->bar->minimum(), d->bar->value() + delta, d->bar->maximum())));
        return true;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
        accept();
        return true;
    case Qt::Key_Escape:
        reject();
        return true;
    default:
        return true; // read-only: nothing else to do
    }
}

bool TextViewDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->view && event->type() == QEvent::KeyPress && handleKey(static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void TextViewDialog::keyPressEvent(QKeyEvent* event)
{
    if (handleKey(event))
        event->accept();
    else
        QDialog::keyPressEvent(event);
}

void TextViewDialog::showEvent(QShowEvent* event)
{
    QPoint const pos = DialogUtil::centreOn(d->rect, size());
    setGeometry(QRect(pos, size()));
    qDebug().nospace() << "TextViewDialog pos x:" << pos.x() << ";y:" << pos.y();
    QDialog::showEvent(event);
    d->view->setFocus(Qt::OtherFocusReason);
}

} // namespace Widget
} // namespace LCD
