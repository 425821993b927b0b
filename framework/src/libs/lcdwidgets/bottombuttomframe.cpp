#include "bottombuttomframe.h"

#include <QDebug>
#include <QEvent>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <iterator>

namespace LCD {
namespace Widget {

namespace {

constexpr int kAllFlags = Enum::BottomOk | Enum::BottomCancel | Enum::BottomPreStep | Enum::BottomExport | Enum::BottomUpdate;

// One button kind: its flag, its style property and its object name.
struct ButtonKind
{
    Enum::BottomButtonType flag;
    char const* property;
    char const* objectName;
};

// Layout order, left to right. The update button shares the OK button's look.
constexpr ButtonKind kKinds[] = {
    {Enum::BottomCancel, "isBottomCancelBtn", "bottomCancelBtn"},
    {Enum::BottomPreStep, "isBottomPreStepBtn", "bottomPreStepBtn"},
    {Enum::BottomExport, "isBottomExportBtn", "bottomExportBtn"},
    {Enum::BottomOk, "isBottomOkBtn", "bottomOkBtn"},
    {Enum::BottomUpdate, "isBottomOkBtn", "bottomUpdateBtn"},
};

int slotOf(Enum::BottomButtonType flag)
{
    for (int i = 0; i < int(std::size(kKinds)); ++i)
        if (kKinds[i].flag == flag)
            return i;
    return -1;
}

} // namespace

struct LCDWIDGETS_HIDDEN BottomButtomFrame::Impl
{
    QPointer<QWidget> storedParent;
    QPushButton* buttons[std::size(kKinds)] = {};
};

BottomButtomFrame::BottomButtomFrame(Enum::BottomButtonType type, QWidget* parent) : QFrame(nullptr), d(new Impl)
{
    d->storedParent = parent;
    int const flags = int(type);
    if (flags & ~kAllFlags)
        qDebug() << "[BottomButtomFrame] unknown button flags ignored:" << (flags & ~kAllFlags);

    setProperty("isCenterBottomFrame", true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(16);
    layout->addStretch();

    for (int i = 0; i < int(std::size(kKinds)); ++i) {
        ButtonKind const& kind = kKinds[i];
        if (!(flags & kind.flag))
            continue;
        auto* button = new QPushButton(this);
        button->setObjectName(QLatin1String(kind.objectName));
        button->setProperty(kind.property, true);
        layout->addWidget(button);
        d->buttons[i] = button;
    }

    auto connectButton = [this](Enum::BottomButtonType flag, void (BottomButtomFrame::*sig)()) {
        if (QPushButton* b = button(flag))
            connect(b, &QPushButton::clicked, this, sig);
    };
    connectButton(Enum::BottomOk, &BottomButtomFrame::signalOkBtnClicked);
    connectButton(Enum::BottomCancel, &BottomButtomFrame::signalCancelBtnClicked);
    connectButton(Enum::BottomPreStep, &BottomButtomFrame::signalPreStepBtnClicked);
    connectButton(Enum::BottomExport, &BottomButtomFrame::signalExportBtnClicked);
    connectButton(Enum::BottomUpdate, &BottomButtomFrame::signalUpdateBtnClicked);

    retranslateUi();
}

BottomButtomFrame::~BottomButtomFrame() = default;

QPushButton* BottomButtomFrame::button(Enum::BottomButtonType flag) const
{
    int const slot = slotOf(flag);
    return slot < 0 ? nullptr : d->buttons[slot];
}

QWidget* BottomButtomFrame::storedParent() const { return d->storedParent; }

void BottomButtomFrame::retranslateUi()
{
    if (QPushButton* b = button(Enum::BottomOk))
        b->setText(tr("Ok"));
    if (QPushButton* b = button(Enum::BottomCancel))
        b->setText(tr("Cancel"));
    if (QPushButton* b = button(Enum::BottomPreStep))
        b->setText(tr("Previous step"));
    if (QPushButton* b = button(Enum::BottomExport))
        b->setText(tr("Export"));
    if (QPushButton* b = button(Enum::BottomUpdate))
        b->setText(tr("Update"));
}

void BottomButtomFrame::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QFrame::changeEvent(event);
}

} // namespace Widget
} // namespace LCD
