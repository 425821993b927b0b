#include "tipdialog.h"

#include "dialogutil_p.h"

#include "lcdtranslate.h"

#include <QDebug>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

// Private state: hidden, unlike the exported class it belongs to.
class __attribute__((visibility("hidden"))) TipDialog::Impl : public QObject
{
public:
    TipDialog* dialog = nullptr;
    QWidget* body = nullptr;
    QLabel* text = nullptr;
    QWidget* line = nullptr;
    QPushButton* cancel = nullptr;
    QPushButton* ok = nullptr;
    bool result = false;
    bool autoDelete = true;
    bool cancelVisible = true;
    bool okVisible = true;

    void onBtnClicked()
    {
        result = sender() == ok;
        dialog->close();
    }
    void updateLine() { line->setVisible(cancelVisible || okVisible); }
    void retranslate()
    {
        cancel->setText(lcdTranslate(QStringLiteral("Cancel")));
        ok->setText(lcdTranslate(QStringLiteral("OK")));
    }
};

TipDialog::TipDialog(QString const& text, QWidget* parent) : QDialog(parent), d(new Impl)
{
    d->dialog = this;
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setFixedWidth(520);
    setMinimumHeight(240);

    d->body = new QWidget(this);
    d->body->setObjectName(QStringLiteral("tipBody"));
    d->body->setProperty("style", "miniDialog");
    d->body->setAttribute(Qt::WA_StyledBackground);
    d->text = new QLabel(d->body);
    d->text->setObjectName(QStringLiteral("tipText"));
    d->text->setProperty("fontSize", "XL");
    d->text->setAlignment(Qt::AlignCenter);
    d->text->setWordWrap(true);
    d->text->setTextFormat(Qt::PlainText);
    d->line = new QWidget(d->body);
    d->line->setProperty("background", "white_30");
    d->line->setAttribute(Qt::WA_StyledBackground);
    d->line->setFixedHeight(1);

    d->cancel = new QPushButton(d->body);
    d->cancel->setObjectName(QStringLiteral("tipCancelButton"));
    d->cancel->setFixedSize(128, 54);
    d->cancel->setProperty("style", "assist");
    d->ok = new QPushButton(d->body);
    d->ok->setObjectName(QStringLiteral("tipOkButton"));
    d->ok->setFixedSize(128, 54);
    d->ok->setProperty("style", "general");
    d->retranslate();

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(16);
    buttons->setContentsMargins(32, 12, 32, 12);
    buttons->addWidget(d->cancel);
    buttons->addStretch();
    buttons->addWidget(d->ok);
    auto* bodyLayout = new QVBoxLayout(d->body);
    bodyLayout->setSpacing(0);
    bodyLayout->setContentsMargins(0, 24, 0, 0);
    bodyLayout->addWidget(d->text, 1);
    bodyLayout->addWidget(d->line);
    bodyLayout->addLayout(buttons);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->body);

    connect(d->cancel, &QPushButton::clicked, d.get(), &Impl::onBtnClicked);
    connect(d->ok, &QPushButton::clicked, d.get(), &Impl::onBtnClicked);
    setTipText(text);
}

TipDialog::~TipDialog() = default;

bool TipDialog::createTipDialog(QString const& text, QWidget* parent)
{
    if (text.isEmpty()) {
        qWarning() << "[TipDialog] createTipDialog: text is empty: nothing shown";
        return false;
    }
    auto* tip = new TipDialog(QString(), parent);
    tip->setTipText(text);
    return tip->run();
}

void TipDialog::setTipText(QString const& text) { d->text->setText(text); }

QString TipDialog::tipText() const { return d->text->text(); }

void TipDialog::setAutoDelete(bool autoDelete) { d->autoDelete = autoDelete; }

void TipDialog::setCancelBtnVisible(bool visible)
{
    d->cancelVisible = visible;
    d->cancel->setVisible(visible);
    d->updateLine();
}

void TipDialog::setOkBtnVisible(bool visible)
{
    d->okVisible = visible;
    d->ok->setVisible(visible);
    d->updateLine();
}

void TipDialog::setBtnNoFocus()
{
    d->cancel->setFocusPolicy(Qt::NoFocus);
    d->ok->setFocusPolicy(Qt::NoFocus);
}

int TipDialog::getVisibleButtonCount() const { return int(d->cancelVisible) + int(d->okVisible); }

QPushButton* TipDialog::cancelButton() const { return d->cancel; }

QPushButton* TipDialog::okButton() const { return d->ok; }

bool TipDialog::run()
{
    DialogUtil::ExecScope const scope(this, "run");
    if (scope.refused())
        return false;
    QPointer<TipDialog> self(this);
    QDialog::exec();
    if (!self)
        return false; // deleted while it ran (its parent went away)
    bool const result = d->result;
    if (d->autoDelete)
        deleteLater();
    return result;
}

bool TipDialog::result() const { return d->result; }

void TipDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (QWidget* parent = parentWidget())
        move(parent->rect().center() - QPoint(width() / 2, height() / 2));
}

void TipDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    QDialog::keyPressEvent(event);
}

void TipDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        d->retranslate();
    QDialog::changeEvent(event);
}

} // namespace Widget
} // namespace LCD
