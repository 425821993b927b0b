#include "dashboardlabel.h"

#include <QDebug>
#include <QLabel>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN DashBoardLabel::Impl
{
    QLabel* value = nullptr;
    QLabel* unit = nullptr;
};

DashBoardLabel::DashBoardLabel(QSize size, QWidget* parent) : QWidget(parent), d(std::make_unique<Impl>())
{
    resize(size.expandedTo(QSize(0, 0)).boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    d->value = new QLabel(this);
    d->value->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    d->value->setProperty("isDashBoardValue", true);
    d->unit = new QLabel(this);
    d->unit->setAlignment(Qt::AlignBottom | Qt::AlignHCenter);
    d->unit->setProperty("isDashBoardUnit", true);
    layout->addWidget(d->value);
    layout->addStretch();
    layout->addWidget(d->unit);
}

DashBoardLabel::~DashBoardLabel() = default;

void DashBoardLabel::setContentFontSize(int size)
{
    // Past kMaxFontSize the derived sizes overflow and no dial could show the text.
    if (size < 1 || size > kMaxFontSize) {
        qWarning() << "[DashBoardLabel] setContentFontSize: size refused:" << size;
        return;
    }
    QFont valueFont = d->value->font();
    valueFont.setPixelSize(size);
    d->value->setFont(valueFont);
    QFont unitFont = d->unit->font();
    unitFont.setPixelSize(qMax(1, size * 3 / 5));
    d->unit->setFont(unitFont);
}

QString DashBoardLabel::valueText() const { return d->value->text(); }

QString DashBoardLabel::unitText() const { return d->unit->text(); }

void DashBoardLabel::slotDrawValueChanged(QString value, QString unit)
{
    if (d->value->text() != value)
        d->value->setText(value);
    if (d->unit->text() != unit)
        d->unit->setText(unit);
}

} // namespace Widget
} // namespace LCD
