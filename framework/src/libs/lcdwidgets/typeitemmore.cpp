#include "typeitemmore.h"
#include "inputcheck_p.h"

#include "displaytext_p.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QMovie>
#include <QPushButton>

namespace LCD {
namespace Widget {

namespace {

constexpr char kLoadingImage[] = "./../share/themes/default/images/icon_picture_loading.gif";
constexpr char kFailedImage[] = "../share/themes/default/images/icon_picture_failed.png";
constexpr int kMarkSide = 24;

char const* stateName(TypeItemMore::LoadingState state)
{
    switch (state) {
    case TypeItemMore::Loading:
        return "loading";
    case TypeItemMore::LoadSucceeded:
        return "succeeded";
    case TypeItemMore::LoadFailed:
        return "failed";
    case TypeItemMore::NotLoading:
        break;
    }
    return "none";
}

QPushButton* makeMark(QWidget* parent, char const* property)
{
    auto* mark = new QPushButton(parent);
    mark->setProperty(property, false);
    mark->setFocusPolicy(Qt::NoFocus);
    mark->setFixedSize(kMarkSide * 2, kMarkSide);
    mark->hide();
    return mark;
}

void runMovie(QMovie* movie)
{
    if (movie->state() == QMovie::Paused)
        movie->setPaused(false);
    else if (movie->state() == QMovie::NotRunning)
        movie->start();
}

} // namespace

struct LCDWIDGETS_HIDDEN TypeItemMore::Impl
{
    QPushButton* pgm = nullptr;
    QPushButton* pvw = nullptr;
    QLabel* loading = nullptr;
    QMovie* movie = nullptr;
    RollLabel* value = nullptr;
    QPushButton* more = nullptr;
    LoadingState state = NotLoading;
};

TypeItemMore::TypeItemMore(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidget();
}

TypeItemMore::~TypeItemMore() = default;

QString TypeItemMore::loadingImage() { return QString::fromLatin1(kLoadingImage); }

void TypeItemMore::createWidget()
{
    d->pgm = makeMark(dynamicFrame(), "isPgmShow");
    d->pvw = makeMark(dynamicFrame(), "isPvwShow");
    d->loading = new QLabel(dynamicFrame());
    d->loading->setProperty("isPicLoading", true);
    d->loading->setProperty("loadingstate", QString::fromLatin1(stateName(NotLoading)));
    d->loading->setFixedSize(kMarkSide, kMarkSide);
    d->loading->setAlignment(Qt::AlignCenter);
    d->loading->hide();
    d->value = new RollLabel(dynamicFrame());
    d->value->setProperty("isValueText", true);
    d->value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->pgm);
    dynamicLayout()->addWidget(d->pvw);
    dynamicLayout()->addWidget(d->loading);
    dynamicLayout()->addWidget(d->value);
    // The "more" mark sits in the value area so that the title leaves room for it.
    d->more = new QPushButton(dynamicFrame());
    d->more->setProperty("isIconListMore", true);
    d->more->setFocusPolicy(Qt::NoFocus);
    d->more->setFixedSize(kMarkSide, kMarkSide);
    dynamicLayout()->addWidget(d->more);
    dynamicLayout()->setSpacing(4);
    setRightIconButtonHide(true);
}

void TypeItemMore::setLabelValue(QVariant value, int mode)
{
    if (mode > 0)
        showPlainText(d->value, value.toString());
    else
        showFittedText(d->value, value.toString(), getItemWidth() / 2, false);
}

QVariant TypeItemMore::getLabelValue() { return d->value->itemName(); }

void TypeItemMore::setContentDisabled(bool disabled) const
{
    d->value->setDisabled(disabled);
    d->pgm->setDisabled(disabled);
    d->pvw->setDisabled(disabled);
    d->loading->setDisabled(disabled);
    d->more->setDisabled(disabled);
}

void TypeItemMore::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeItemMore", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    d->value->setStyleSheet(labelFontSheet(size));
}

void TypeItemMore::setArea(bool programme, bool preview)
{
    setStyleProperty(d->pgm, "isPgmShow", programme);
    setStyleProperty(d->pvw, "isPvwShow", preview);
    d->pgm->setVisible(programme);
    d->pvw->setVisible(preview);
}

bool TypeItemMore::hasArea() const
{
    return d->pgm->property("isPgmShow").toBool() || d->pvw->property("isPvwShow").toBool();
}

void TypeItemMore::setLoadingState(LoadingState state)
{
    if (state < NotLoading || state > LoadFailed) {
        qWarning() << "TypeItemMore::setLoadingState: unknown state" << int(state);
        return;
    }
    d->state = state;
    setStyleProperty(d->loading, "loadingstate", QString::fromLatin1(stateName(state)));
    if (d->movie && state != Loading)
        d->movie->stop();
    switch (state) {
    case Loading:
        if (!d->movie) {
            d->movie = new QMovie(loadingImage(), QByteArray(), this);
            if (!d->movie->isValid())
                qWarning() << "TypeItemMore: cannot load" << loadingImage();
            d->movie->setScaledSize(QSize(kMarkSide, kMarkSide));
        }
        d->loading->setMovie(d->movie);
        if (isVisible())
            runMovie(d->movie);
        d->loading->show();
        break;
    case LoadFailed: {
        QPixmap failed(QString::fromLatin1(kFailedImage));
        if (failed.isNull())
            qWarning() << "TypeItemMore: cannot load" << kFailedImage;
        else if (failed.size() != QSize(kMarkSide, kMarkSide))
            failed = failed.scaled(kMarkSide, kMarkSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        d->loading->setPixmap(failed);
        d->loading->show();
        break;
    }
    case NotLoading:
    case LoadSucceeded:
        d->loading->clear();
        d->loading->hide();
        break;
    }
}

TypeItemMore::LoadingState TypeItemMore::loadingState() const { return d->state; }

QLabel* TypeItemMore::loadingLabel() const { return d->loading; }

QMovie* TypeItemMore::loadingMovie() const { return d->movie; }

QPushButton* TypeItemMore::programmeMark() const { return d->pgm; }

QPushButton* TypeItemMore::previewMark() const { return d->pvw; }

void TypeItemMore::showEvent(QShowEvent* event)
{
    CommonItemType::showEvent(event);
    if (d->movie && d->state == Loading)
        runMovie(d->movie);
}

void TypeItemMore::hideEvent(QHideEvent* event)
{
    CommonItemType::hideEvent(event);
    if (d->movie)
        d->movie->setPaused(true);
}

} // namespace Widget
} // namespace LCD
