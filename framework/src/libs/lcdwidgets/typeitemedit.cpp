#include "typeitemedit.h"
#include "inputcheck_p.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN TypeItemEdit::Impl
{
    QLineEdit* edit = nullptr;
    QPushButton* button = nullptr;
    bool fixedEditSize = false;
};

TypeItemEdit::TypeItemEdit(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidget();
    createConnects();
}

TypeItemEdit::~TypeItemEdit() = default;

void TypeItemEdit::createWidget()
{
    setRightIconButtonHide(true);
    d->edit = new QLineEdit(dynamicFrame());
    d->edit->setObjectName(QStringLiteral("itemEditField"));
    d->edit->setFocusPolicy(Qt::ClickFocus);
    d->edit->setContextMenuPolicy(Qt::NoContextMenu);
    d->edit->installEventFilter(this);
    d->button = new QPushButton(dynamicFrame());
    d->button->setProperty("isIconPwdBtn", true);
    d->button->setFocusPolicy(Qt::NoFocus);
    d->button->setFixedSize(32, 32);
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->edit);
    dynamicLayout()->addWidget(d->button);
}

void TypeItemEdit::createConnects()
{
    connect(d->button, &QPushButton::clicked, this, &TypeItemEdit::signalEditBtnClicked);
    connect(d->edit, &QLineEdit::textEdited, this, [this](QString const& text) { emit signalValueChanged(text); });
}

void TypeItemEdit::setLabelValue(QVariant value, int) { d->edit->setText(value.toString()); }

QVariant TypeItemEdit::getLabelValue() { return d->edit->text(); }

void TypeItemEdit::editValue()
{
    if (isEditing() || !canEdit(d->edit))
        return;
    setEdit(true);
    d->edit->setFocusPolicy(Qt::StrongFocus);
    d->edit->setFocus(Qt::OtherFocusReason);
    d->edit->end(false);
    emit signalEditStarted();
}

void TypeItemEdit::finishEdit()
{
    if (!isEditing())
        return;
    setEdit(false);
    d->edit->setFocusPolicy(Qt::ClickFocus);
    if (d->edit->hasFocus() && parentWidget())
        parentWidget()->setFocus(Qt::OtherFocusReason);
    emit signalCloseEditStatus();
    emit signalEditFinished();
}

void TypeItemEdit::closeEditValue()
{
    finishEdit();
    CommonItemType::closeEditValue();
}

void TypeItemEdit::setContentDisabled(bool disabled) const
{
    d->edit->setDisabled(disabled);
    d->button->setDisabled(disabled);
}

void TypeItemEdit::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeItemEdit", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    d->edit->setStyleSheet(QStringLiteral("QLineEdit{font-size: ") + QString::number(size) + QStringLiteral("px; }"));
}

void TypeItemEdit::setItemTitleWidth(int width)
{
    CommonItemType::setItemTitleWidth(width);
    if (!d->fixedEditSize)
        d->edit->setFixedWidth(int(qBound<qint64>(0, (9 * qint64(width)) / 20, QWIDGETSIZE_MAX)));
}

void TypeItemEdit::setPasswordMode(bool password)
{
    d->edit->setEchoMode(password ? QLineEdit::Password : QLineEdit::Normal);
}

void TypeItemEdit::setPlaceholderText(QString const& text) { d->edit->setPlaceholderText(text); }

void TypeItemEdit::setValueLabelSize(QSize size)
{
    if (!sizeOk("TypeItemEdit", "setValueLabelSize", size))
        return;
    d->fixedEditSize = true;
    d->edit->setFixedSize(size);
}

void TypeItemEdit::setIconButtonSize(QSize size)
{
    if (!sizeOk("TypeItemEdit", "setIconButtonSize", size))
        return;
    d->button->setFixedSize(size);
}

QLineEdit* TypeItemEdit::lineEdit() const { return d->edit; }

QPushButton* TypeItemEdit::editButton() const { return d->button; }

bool TypeItemEdit::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != d->edit)
        return CommonItemType::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        switch (key->key()) {
        case Qt::Key_Up:
            d->edit->cursorForward(false);
            return true;
        case Qt::Key_Down:
            d->edit->cursorBackward(false);
            return true;
        case Qt::Key_Escape:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            finishEdit();
            return true;
        default:
            return false;
        }
    }
    case QEvent::FocusOut:
        // Leaving the field (a click elsewhere, a dialog) ends the edit too, once the
        // focus has settled: a row torn down with its page reports nothing, and a focus
        // that comes straight back keeps the edit.
        if (isEditing())
            QMetaObject::invokeMethod(
                this,
                [this] {
                    if (isEditing() && !d->edit->hasFocus())
                        finishEdit();
                },
                Qt::QueuedConnection);
        return false;
    default:
        return false;
    }
}

void TypeItemEdit::focusInEvent(QFocusEvent* event)
{
    CommonItemType::focusInEvent(event);
    if (isEditing())
        d->edit->setFocus(event->reason());
}

} // namespace Widget
} // namespace LCD
