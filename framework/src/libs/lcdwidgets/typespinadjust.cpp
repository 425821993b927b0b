#include "typespinadjust.h"
#include "inputcheck_p.h"

#include "extendspinbox.h"

#include <QApplication>
#include <QColor>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

namespace LCD {
namespace Widget {

namespace {
// Share of the row width each control takes.
constexpr double kBoxWidthShare = 0.4722222222222222;
} // namespace

struct LCDWIDGETS_HIDDEN TypeSpinAdjust::Impl
{
    ExtendSpinBox* left = nullptr;
    ExtendSpinBox* right = nullptr;
};

TypeSpinAdjust::TypeSpinAdjust(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    rowLayout()->setSpacing(0);
    rowLayout()->setContentsMargins(0, 0, 0, 0);
    setLeftIconButtonHide(true);
    setRightIconButtonHide(true);

    d->left = new ExtendSpinBox(dynamicFrame());
    d->right = new ExtendSpinBox(dynamicFrame());
    dynamicLayout()->addWidget(d->left);
    dynamicLayout()->addWidget(d->right);
    dynamicLayout()->addStretch();

    // A control hands the knob back to its parent: let that be the row.
    dynamicFrame()->setFocusProxy(this);
    setFocusPolicy(Qt::StrongFocus);
    installEventFilter(this);

    connect(d->left, &ExtendSpinBox::signalValueChanged, this, &TypeSpinAdjust::signalLeftSpinValueChanged);
    connect(d->right, &ExtendSpinBox::signalValueChanged, this, &TypeSpinAdjust::signalRightSpinValueChanged);
    connect(d->left, &ExtendSpinBox::signalChangedFinished, this, &TypeSpinAdjust::signalLeftChangedFinished);
    connect(d->right, &ExtendSpinBox::signalChangedFinished, this, &TypeSpinAdjust::signalRightChangedFinished);
    connect(this, &CommonItemType::signalItemWidthChanged, this, &TypeSpinAdjust::slotUpdateItemWidth);
}

TypeSpinAdjust::~TypeSpinAdjust() = default;

int TypeSpinAdjust::getWidgetRow()
{
    getTitleLabel()->setWidth(0);
    return 1;
}

void TypeSpinAdjust::setLabelValue(QVariant, int) {}

QVariant TypeSpinAdjust::getLabelValue() { return QVariant(QColor()); }

void TypeSpinAdjust::editValue() {}

void TypeSpinAdjust::setContentDisabled(bool) const {}

void TypeSpinAdjust::setLeftIconSize(QSize size)
{
    if (!sizeOk("TypeSpinAdjust", "setLeftIconSize", size))
        return;
    CommonItemType::setLeftIconSize(size);
    d->left->resetIconSize(size);
    d->right->resetIconSize(size);
}

void TypeSpinAdjust::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeSpinAdjust", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    QString const sheet = QStringLiteral("QFrame{border-radius:%1px;}").arg(itemHeight() / 9);
    for (ExtendSpinBox* box : {d->left, d->right}) {
        box->setStyleSheet(sheet);
        box->setContentFontSize(size);
    }
}

void TypeSpinAdjust::setLeftSpinContent(QString const& text) { d->left->setDisplayText(text); }

void TypeSpinAdjust::setRightSpinContent(QString const& text) { d->right->setDisplayText(text); }

ExtendSpinBox* TypeSpinAdjust::leftSpinBox() const { return d->left; }

ExtendSpinBox* TypeSpinAdjust::rightSpinBox() const { return d->right; }

void TypeSpinAdjust::slotUpdateItemWidth(int width)
{
    // The share is the whole control's width; its text takes what the buttons leave.
    int const w = qMax(0, static_cast<int>(width * kBoxWidthShare));
    if (!lengthOk("TypeSpinAdjust", "slotUpdateItemWidth", w))
        return;
    d->left->setFixedWidth(w);
    d->right->setFixedWidth(w);
}

bool TypeSpinAdjust::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != this)
        return CommonItemType::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::FocusIn:
        if (!d->left->isCtrlSelected() && !d->right->isCtrlSelected())
            d->left->setCtrlSelect(true);
        break;
    case QEvent::FocusOut: {
        // Leaving the row for another one drops the selection; working a control keeps it.
        QWidget* focus = QApplication::focusWidget();
        if (!focus || !isAncestorOf(focus)) {
            d->left->setCtrlSelect(false);
            d->right->setCtrlSelect(false);
        }
        break;
    }
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        switch (key->key()) {
        case Qt::Key_Up:
            if (!d->left->isCtrlSelected())
                d->left->setCtrlSelect(true);
            if (d->right->isCtrlSelected()) {
                d->right->setCtrlSelect(false);
                return true;
            }
            break;
        case Qt::Key_Down:
            if (d->left->isCtrlSelected())
                d->left->setCtrlSelect(false);
            if (!d->right->isCtrlSelected()) {
                d->right->setCtrlSelect(true);
                return true;
            }
            break;
        case Qt::Key_Escape:
            d->left->setCtrlSelect(false);
            d->right->setCtrlSelect(false);
            if (QWidget* parent = parentWidget())
                parent->setFocus(Qt::OtherFocusReason);
            else
                clearFocus();
            emit signalCloseEditStatus();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter: {
            ExtendSpinBox* box = d->left->isCtrlSelected() ? d->left : (d->right->isCtrlSelected() ? d->right : nullptr);
            if (box) {
                box->setFocus(Qt::OtherFocusReason);
                box->setFocusBlueBg(true);
            }
            return true;
        }
        default:
            break;
        }
        break;
    }
    case QEvent::KeyRelease:
        return true; // releases never reach the page
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Widget
} // namespace LCD
