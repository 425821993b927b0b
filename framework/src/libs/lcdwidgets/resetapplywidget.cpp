#include "resetapplywidget.h"

#include "stylehelper.h"

#include <QDebug>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>

namespace LCD {
namespace Widget {

namespace {

QPushButton* makeButton(QWidget* owner, char const* property, char const* objectName)
{
    auto* button = new QPushButton(owner);
    button->setObjectName(QLatin1String(objectName));
    button->setProperty(property, true);
    return button;
}

QHBoxLayout* bareRow(QWidget* owner)
{
    auto* layout = new QHBoxLayout(owner);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

} // namespace

// ---- ResetApplyWidget --------------------------------------------------------

struct LCDWIDGETS_HIDDEN ResetApplyWidget::Impl
{
    Enum::ResetApplyButtonType type;
    QPointer<QWidget> keyDelegate; // the constructor's `parent`; guarded, it may go away
    QPushButton* reset = nullptr;
    QPushButton* apply = nullptr;
    bool enabled = true;
};

ResetApplyWidget::ResetApplyWidget(Enum::ResetApplyButtonType type, QWidget* parent) : QWidget(nullptr), d(new Impl)
{
    d->type = type;
    d->keyDelegate = parent;
    if (type != Enum::ResetButton && type != Enum::ApplyButton && type != Enum::ResetAndApplyButton)
        qWarning() << "[ResetApplyWidget] unknown button type" << int(type);

    bool const withReset = type & Enum::ResetButton;
    bool const withApply = type & Enum::ApplyButton;

    auto* layout = bareRow(this);
    layout->addStretch();
    if (withReset) {
        d->reset = makeButton(this, "isIconReset", "firstBtn");
        layout->addWidget(d->reset);
    }
    if (withReset && withApply)
        layout->addSpacing(20);
    if (withApply) {
        d->apply = makeButton(this, "isIconApply", "lastBtn");
        layout->addWidget(d->apply);
    }
    layout->addStretch();

    if (d->reset) {
        d->reset->installEventFilter(this);
        connect(d->reset, &QPushButton::clicked, this, &ResetApplyWidget::signalResetBtnClicked);
    }
    if (d->apply) {
        d->apply->installEventFilter(this);
        connect(d->apply, &QPushButton::clicked, this, &ResetApplyWidget::signalApplyBtnClicked);
    }
    retranslateUi();
}

ResetApplyWidget::~ResetApplyWidget() = default;

QPushButton* ResetApplyWidget::getfirstButton() { return d->reset ? d->reset : d->apply; }

QPushButton* ResetApplyWidget::getResetButton() { return d->reset; }

QPushButton* ResetApplyWidget::getApplyButton() { return d->apply; }

void ResetApplyWidget::setEnable(bool enable)
{
    d->enabled = enable;
    if (d->reset)
        d->reset->setEnabled(enable);
    if (d->apply)
        d->apply->setEnabled(enable);
}

bool ResetApplyWidget::getEnable() const { return d->enabled; }

void ResetApplyWidget::polishBtnStyle()
{
    for (QPushButton* button : {d->reset, d->apply}) {
        if (button)
            repolish(button);
    }
    update();
}

void ResetApplyWidget::retranslateUi()
{
    if (d->reset)
        d->reset->setText(tr("Reset"));
    if (d->apply)
        d->apply->setText(tr("Apply"));
}

void ResetApplyWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

bool ResetApplyWidget::handOver(QObject* watched, QEvent* event)
{
    // The page decides where the knob goes next. Without one the key stops here.
    QWidget* delegate = d->keyDelegate.data();
    if (!delegate) {
        qWarning() << "[ResetApplyWidget] key delegate is nullptr";
        return true;
    }
    return static_cast<QObject*>(delegate)->eventFilter(watched, event);
}

bool ResetApplyWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);

    bool const both = d->reset && d->apply;
    int const key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up) {
        if (both) {
            if (watched == d->reset) {
                d->apply->setFocus(Qt::OtherFocusReason);
                return true;
            }
            if (watched != d->apply)
                return true;
        }
        return handOver(watched, event);
    }
    if (key == Qt::Key_Down) {
        if (!both)
            return true;
        if (watched == d->apply) {
            d->reset->setFocus(Qt::OtherFocusReason);
            return true;
        }
        if (watched == d->reset)
            return true;
        return QWidget::eventFilter(watched, event);
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        // The knob's press on a focused button chooses it, as a click does.
        if (watched == d->reset || watched == d->apply)
            static_cast<QPushButton*>(watched)->click();
        return true;
    }
    if (key == Qt::Key_Back) {
        emit signalBackBtnClicked();
        return true;
    }
    // Any other key on the bar does nothing.
    return true;
}

// ---- TypeReset / TypeApply / TypeResetApply ---------------------------------

TypeReset::TypeReset(QWidget* parent) : QWidget(parent)
{
    auto* layout = bareRow(this);
    m_reset = makeButton(this, "isIconReset", "firstBtn");
    layout->addStretch();
    layout->addWidget(m_reset);
    layout->addStretch();
    connect(m_reset, &QPushButton::clicked, this, &TypeReset::signalResetBtnClicked);
    retranslateUi();
}

void TypeReset::retranslateUi() { m_reset->setText(tr("Reset")); }

void TypeReset::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

TypeApply::TypeApply(QWidget* parent) : QWidget(parent)
{
    auto* layout = bareRow(this);
    m_apply = makeButton(this, "isIconApply", "lastBtn");
    layout->addStretch();
    layout->addWidget(m_apply);
    layout->addStretch();
    connect(m_apply, &QPushButton::clicked, this, &TypeApply::signalApplyBtnClicked);
    retranslateUi();
}

void TypeApply::retranslateUi() { m_apply->setText(tr("Apply")); }

void TypeApply::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

TypeResetApply::TypeResetApply(QWidget* parent) : QWidget(parent)
{
    auto* layout = bareRow(this);
    m_reset = makeButton(this, "isIconReset", "firstBtn");
    m_apply = makeButton(this, "isIconApply", "lastBtn");
    layout->addStretch();
    layout->addWidget(m_reset);
    layout->addSpacing(44);
    layout->addWidget(m_apply);
    layout->addStretch();
    connect(m_reset, &QPushButton::clicked, this, &TypeResetApply::signalResetBtnClicked);
    connect(m_apply, &QPushButton::clicked, this, &TypeResetApply::signalApplyBtnClicked);
    retranslateUi();
}

void TypeResetApply::retranslateUi()
{
    m_reset->setText(tr("Reset"));
    m_apply->setText(tr("Apply"));
}

void TypeResetApply::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

} // namespace Widget
} // namespace LCD
