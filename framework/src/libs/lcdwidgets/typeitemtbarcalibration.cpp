#include "typeitemtbarcalibration.h"

#include "lcdtranslate.h"
#include "stylehelper.h"
#include "textkeys_p.h"

#include <dov/api.h>
#include <lcd/keyboardproxy.h>

#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

namespace {
constexpr int kSteps = 6;
constexpr char kOperProperty[] = "isTBarCorrectOperLabel";

enum class Button { Start, Next, Done };

QString buttonText(Button b)
{
    switch (b) {
    case Button::Next: return keyedText(QStringLiteral("TBarCorrectOperNext"), QStringLiteral("Next"));
    case Button::Done: return keyedText(QStringLiteral("TBarCorrectOperDone"), QStringLiteral("Done"));
    case Button::Start: break;
    }
    return keyedText(QStringLiteral("TBarCorrectOperStart"), QStringLiteral("Start"));
}

QString stepText(int step)
{
    QString const action = step % 2 == 1 ? lcdTranslate(QStringLiteral("Push T-Bar to Top"))
                                         : lcdTranslate(QStringLiteral("Push T-Bar to Bottom"));
    return QStringLiteral("%1.%2").arg(step).arg(action);
}
} // namespace

// Internal: hidden although its enclosing class is exported.
struct LCDWIDGETS_HIDDEN TypeItemTBarCalibration::Impl
{
    QLabel* header = nullptr;
    std::vector<QLabel*> steps;
    QPushButton* button = nullptr;
    std::vector<int> readings;
    int step = 0;
    KeyboardProxy* keyboard = nullptr;
    Button shown = Button::Start;
};

TypeItemTBarCalibration::TypeItemTBarCalibration(QWidget* parent)
    : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidget();
}

TypeItemTBarCalibration::~TypeItemTBarCalibration() = default;

void TypeItemTBarCalibration::createWidget()
{
    setRightIconButtonHide(true);
    setItemTitleLabelHide(true);
    installEventFilter(this);

    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);

    d->header = new QLabel(dynamicFrame());
    d->header->setProperty("isTBarCorrectStepLabel", true);
    auto* headerRow = new QHBoxLayout;
    headerRow->addWidget(d->header, 0, Qt::AlignLeft | Qt::AlignVCenter);
    headerRow->addStretch();
    column->addLayout(headerRow);

    for (int i = 0; i < kSteps; ++i) {
        auto* label = new QLabel(dynamicFrame());
        label->setProperty(kOperProperty, QStringLiteral("Normal"));
        auto* row = new QHBoxLayout;
        row->addWidget(label);
        row->addStretch();
        column->addLayout(row);
        d->steps.push_back(label);
    }

    d->button = new QPushButton(dynamicFrame());
    d->button->setProperty("isIconApply", true);
    d->button->setFocusPolicy(Qt::StrongFocus);
    auto* buttonRow = new QHBoxLayout;
    buttonRow->addWidget(d->button);
    buttonRow->addStretch();
    column->addLayout(buttonRow);

    dynamicLayout()->addLayout(column);
    d->button->installEventFilter(this);
    connect(d->button, &QPushButton::clicked, this, &TypeItemTBarCalibration::slotBtnClicked);

    if (dov::api::get().host)
        d->keyboard = static_cast<KeyboardProxy*>(dov::api::object(KeyboardProxy::constants::OBJ_KEYBOARD_EVENT_NAME));

    initCalibration();
}

void TypeItemTBarCalibration::initCalibration()
{
    d->header->setText(keyedText(QStringLiteral("TBarCorrectOperSteps"), QStringLiteral("Calibration steps:")));
    for (int i = 0; i < kSteps; ++i)
        d->steps[i]->setText(stepText(i + 1));
    d->button->setText(buttonText(d->shown));
}

void TypeItemTBarCalibration::retranslateUi() { initCalibration(); }

void TypeItemTBarCalibration::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    CommonItemType::changeEvent(event);
}

int TypeItemTBarCalibration::getWidgetRow() { return kSteps + 2; }

void TypeItemTBarCalibration::editValue()
{
    if (!canEdit(d->button))
        return;
    d->button->setFocus(Qt::OtherFocusReason);
    CommonItemType::editValue();
    emit signalEditStarted();
}

void TypeItemTBarCalibration::setContentDisabled(bool disabled) const
{
    d->header->setDisabled(disabled);
    for (QLabel* l : d->steps)
        l->setDisabled(disabled);
    d->button->setDisabled(disabled);
}

void TypeItemTBarCalibration::setContentFontSize(int size)
{
    if (size < 1 || size > kMaxFontSize) {
        qWarning().noquote() << "[TypeItemTBarCalibration] setContentFontSize: size" << size << "refused";
        return;
    }
    CommonItemType::setContentFontSize(size);
    // Step texts a little smaller than the header and the button.
    int const small = qMax(1, size * 9 / 10);
    d->header->setStyleSheet(QStringLiteral("QLabel{font-size:%1px;}").arg(size));
    QString const stepSheet = QStringLiteral("QLabel{font-size:%1px;}").arg(small);
    for (QLabel* l : d->steps)
        l->setStyleSheet(stepSheet);
    d->button->setStyleSheet(QStringLiteral("QPushButton{font-size:%1px;}").arg(size));
}

int TypeItemTBarCalibration::getTBarValue()
{
    if (!d->keyboard) {
        qWarning() << "_pKeyBoard is nullptr";
        return -1;
    }
    int const value = d->keyboard->tbarRead().second;
    qWarning() << "_pKeyBoard->tbarRead().second" << value;
    return value;
}

std::vector<int> TypeItemTBarCalibration::getCalibrationValue() { return d->readings; }

int TypeItemTBarCalibration::currentStep() const { return d->step; }

QPushButton* TypeItemTBarCalibration::actionButton() const { return d->button; }

QLabel* TypeItemTBarCalibration::stepLabel(int step) const
{
    return step >= 1 && step <= kSteps ? d->steps[step - 1] : nullptr;
}

void TypeItemTBarCalibration::refreshLabelProperty()
{
    for (int i = 0; i < kSteps; ++i) {
        QString const value = i + 1 == d->step ? QStringLiteral("Oper") : QStringLiteral("Normal");
        if (d->steps[i]->property(kOperProperty).toString() != value)
            setStyleProperty(d->steps[i], kOperProperty, value);
    }
}

void TypeItemTBarCalibration::finishRun()
{
    d->shown = Button::Start;
    d->button->setText(buttonText(d->shown));
    emit signalTBarCalibrationEnd();
    d->step = 0;
    refreshLabelProperty();
}

void TypeItemTBarCalibration::slotBtnClicked()
{
    int const s = d->step;
    if (s == 0) {
        d->shown = Button::Next;
        d->button->setText(buttonText(d->shown));
        d->readings.clear();
        d->step = 1;
        refreshLabelProperty();
        emit signalTBarCalibrationBegin();
        return;
    }
    if (s <= kSteps) {
        if (s == kSteps - 1) {
            d->shown = Button::Done;
            d->button->setText(buttonText(d->shown));
        }
        d->readings.push_back(getTBarValue());
        d->step = s + 1;
        if (int(d->readings.size()) >= kSteps)
            finishRun();
        else
            refreshLabelProperty();
        return;
    }
    if (int(d->readings.size()) >= kSteps)
        finishRun();
    else
        refreshLabelProperty();
}

bool TypeItemTBarCalibration::eventFilter(QObject* watched, QEvent* event)
{
    if ((watched == this || watched == d->button) && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (d->button->isEnabled())
                d->button->click();
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
            return true; // the row keeps the knob during a run
        case Qt::Key_Escape: {
            d->button->clearFocus();
            d->shown = Button::Start;
            d->button->setText(buttonText(d->shown));
            d->step = 0;
            refreshLabelProperty();
            if (parentWidget())
                parentWidget()->setFocus(Qt::OtherFocusReason);
            emit signalTBarCalibrationBack();
            emit signalCloseEditStatus();
            break;
        }
        default:
            break;
        }
    }
    return CommonItemType::eventFilter(watched, event);
}

} // namespace Widget
} // namespace LCD
