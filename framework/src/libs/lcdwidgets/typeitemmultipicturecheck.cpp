#include "typeitemmultipicturecheck.h"
#include "inputcheck_p.h"

#include "picturecheckwidget.h"
#include "spinrow_p.h"

#include <QDebug>
#include <QHBoxLayout>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN TypeItemMultiPictureCheck::Impl
{
    PictureCheckWidget* grid = nullptr;
    bool editing = false;
};

TypeItemMultiPictureCheck::TypeItemMultiPictureCheck(QWidget* parent)
    : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setRightIconButtonHide(true);
    d->grid = new PictureCheckWidget(dynamicFrame());
    d->grid->setObjectName(QStringLiteral("PictureCheckWidget"));
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->grid);
    connect(d->grid, &PictureCheckWidget::signalValueChanged, this, [this](int value, bool checked) {
        emit signalPictureCheckChanged(value, checked);
        QVariantList values;
        for (int v : d->grid->checkedValues())
            values.append(v);
        emit signalValueChanged(values);
    });
    connect(d->grid, &PictureCheckWidget::signalCloseEditStatus, this, [this] {
        bool const was = d->editing;
        d->editing = false;
        setEdit(false);
        returnFocusToParent(this);
        emit signalCloseEditStatus();
        if (was)
            emit signalEditFinished();
    });
}

TypeItemMultiPictureCheck::~TypeItemMultiPictureCheck() = default;

void TypeItemMultiPictureCheck::addPicture(QIcon const& picture, QString const& caption, int value)
{
    d->grid->addPicture(picture, caption, value);
}

void TypeItemMultiPictureCheck::addPicture(QString const& file, QString const& caption, int value)
{
    d->grid->addPicture(file, caption, value);
}

void TypeItemMultiPictureCheck::removePicture(int value) { d->grid->removePicture(value); }
void TypeItemMultiPictureCheck::clear() { d->grid->clear(); }
int TypeItemMultiPictureCheck::count() const { return d->grid->count(); }
void TypeItemMultiPictureCheck::setColumns(int columns) { d->grid->setColumns(columns); }
void TypeItemMultiPictureCheck::setPictureSize(QSize size) { d->grid->setPictureSize(size); }
void TypeItemMultiPictureCheck::setChecked(int value, bool checked) { d->grid->setChecked(value, checked); }
void TypeItemMultiPictureCheck::setCurrentValue(QVector<int> const& values) { d->grid->setCheckedValues(values); }
bool TypeItemMultiPictureCheck::isChecked(int value) const { return d->grid->isChecked(value); }
QVector<int> TypeItemMultiPictureCheck::getCurrentValue() const { return d->grid->checkedValues(); }

void TypeItemMultiPictureCheck::editValue()
{
    if (!canEdit(d->grid))
        return;
    if (d->grid->count() == 0) {
        qDebug().noquote() << QStringLiteral("[TypeItemMultiPictureCheck] %1: no pictures to choose from").arg(itemTitle());
        return;
    }
    d->grid->setFocus(Qt::OtherFocusReason);
    d->editing = true;
    setEdit(true);
    emit signalEditStarted();
}

void TypeItemMultiPictureCheck::closeEditValue()
{
    if (d->editing) {
        d->editing = false;
        setEdit(false);
        returnFocusToParent(this);
    }
    CommonItemType::closeEditValue();
}

void TypeItemMultiPictureCheck::setContentFontSize(int size)
{
    if (size < 1) {
        qDebug() << "[TypeItemMultiPictureCheck] setContentFontSize: font size must be positive, got" << size;
        return;
    }
    if (!fontSizeOk("TypeItemMultiPictureCheck", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    d->grid->setContentFontSize(size);
}

void TypeItemMultiPictureCheck::setContentDisabled(bool disabled) const { d->grid->setContentDisabled(disabled); }

int TypeItemMultiPictureCheck::getWidgetRow() { return qMax(1, d->grid->rowCount()); }

PictureCheckWidget* TypeItemMultiPictureCheck::pictureCheckWidget() const { return d->grid; }

} // namespace Widget
} // namespace LCD
