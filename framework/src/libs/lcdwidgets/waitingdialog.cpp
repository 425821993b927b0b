#include "waitingdialog.h"

#include "dialogutil_p.h"
#include "stylehelper.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMovie>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

WaitingDialog* WaitingDialog::s_instance = nullptr;

namespace {
char const* const kWho = "[WaitingDialog]";
QString const kLoadingImage = QStringLiteral("./../share/themes/default/images/icon_loading.gif");
} // namespace

// Private state: hidden, unlike the exported class it belongs to.
struct __attribute__((visibility("hidden"))) WaitingDialog::Impl
{
    WaitingDialog* q = nullptr;
    QRect rect;
    bool altHeld = false;
    std::unique_ptr<QTimer> timer; // no Qt parent
    QPixmap indicator;
    int angle = 0;
    int angleDelta = 30;
    QLabel* text = nullptr;
    QPushButton* funButton = nullptr;
    QFrame* funFrame = nullptr;
    QLabel* image = nullptr;
    QMovie* movie = nullptr;
    QFrame* frame = nullptr;
    bool funVisible = false;
    bool parentChanged = false;
    IndicatorSize indicatorSize = Large;
    float fontSize = 0;

    int W() const { return rect.width(); }
    int H() const { return rect.height(); }
    QSize waitingSize() const { return QSize(DialogUtil::part(W(), 5, 8), DialogUtil::part(H(), 1, 2)); }
    // With the function button the body frame is 3·H/5 tall; the dialog takes the
    // same height so that the frame is not cut off.
    QSize detailedSize() const { return QSize(DialogUtil::part(W(), 11, 16), DialogUtil::part(H(), 3, 5)); }

    void colour(TooltipLevel level)
    {
        QColor c = Qt::white;
        if (level == Yellow)
            c = Qt::yellow;
        else if (level == Red)
            c = Qt::red;
        QPalette p = text->palette();
        for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            p.setColor(group, QPalette::WindowText, c);
        text->setPalette(p);
    }
};

WaitingDialog* WaitingDialog::instance(QRect rect, QWidget* parent, Qt::WindowFlags flags)
{
    if (!s_instance)
        s_instance = new WaitingDialog(rect, parent, flags);
    return s_instance;
}

void WaitingDialog::deleteInstance()
{
    delete s_instance; // the destructor clears the pointer
    s_instance = nullptr;
}

WaitingDialog* WaitingDialog::existingInstance() { return s_instance; }

WaitingDialog::WaitingDialog(QRect rect, QWidget* parent, Qt::WindowFlags flags) : QDialog(parent, flags), d(new Impl)
{
    d->q = this;
    d->rect = DialogUtil::hostRect(rect, kWho);
    d->fontSize = DialogUtil::fontSize(d->rect);
    int const W = d->W();
    int const H = d->H();

    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setProperty("isReminderDialogBg", true);
    setModal(true);
    QSize const size = d->waitingSize();
    setFixedSize(size);

    d->timer = std::make_unique<QTimer>();
    QObject::connect(d->timer.get(), &QTimer::timeout, this, &WaitingDialog::step);

    d->frame = new QFrame(this);
    d->frame->setObjectName(QStringLiteral("waitingFrame"));
    d->frame->setContentsMargins(0, 0, 0, 0);
    d->frame->setProperty("isWaitingDialogFrameBg", true);
    d->frame->setFixedSize(size);

    d->image = new QLabel(d->frame);
    d->image->setObjectName(QStringLiteral("waitingImage"));
    d->image->setAlignment(Qt::AlignCenter);
    d->image->setFixedSize(W / 8, W / 8);
    d->movie = new QMovie(kLoadingImage, QByteArray(), this);
    d->image->setMovie(d->movie);

    d->text = new QLabel(d->frame);
    d->text->setObjectName(QStringLiteral("waitingText"));
    d->text->setProperty("isLockPanelText", true);
    d->text->setAlignment(Qt::AlignCenter);
    d->text->setWordWrap(true);
    d->text->setFixedWidth(size.width() * 4 / 5);
    d->colour(White);

    d->funFrame = new QFrame(d->frame);
    d->funFrame->setProperty("isCanelFrame", true);
    d->funButton = new QPushButton(d->funFrame);
    d->funButton->setObjectName(QStringLiteral("waitingFunButton"));
    d->funButton->setProperty("isIconReset", true);
    d->funButton->hide();
    auto* funRow = new QHBoxLayout(d->funFrame);
    funRow->setContentsMargins(W / 32, 0, W / 32, 0);
    funRow->addStretch();
    funRow->addWidget(d->funButton);
    funRow->addStretch();
    connect(d->funButton, &QPushButton::clicked, this, &WaitingDialog::slotFunButtonClicked);

    auto* layout = new QVBoxLayout(d->frame);
    layout->setContentsMargins(W / 32, H / 20, W / 32, H / 20);
    layout->setSpacing(0);
    auto* imageRow = new QHBoxLayout;
    imageRow->addStretch();
    imageRow->addWidget(d->image);
    imageRow->addStretch();
    layout->addLayout(imageRow);
    layout->addSpacing(H / 20);
    auto* textRow = new QHBoxLayout;
    textRow->addStretch();
    textRow->addWidget(d->text);
    textRow->addStretch();
    layout->addLayout(textRow);
    layout->addStretch();
    layout->addWidget(d->funFrame);

    placeFrame();
    d->movie->start();
    installEventFilter(this);
    if (parent)
        parent->installEventFilter(this);
}

WaitingDialog::~WaitingDialog()
{
    if (s_instance == this)
        s_instance = nullptr;
}

void WaitingDialog::placeFrame()
{
    d->frame->move((width() - d->frame->width()) / 2, (height() - d->frame->height()) / 2);
}

void WaitingDialog::recentre() { move(DialogUtil::centreOn(d->rect, size())); }

void WaitingDialog::showWaitingDialog(QString const& text, QRect rect, TooltipLevel level)
{
    if (rect.width() > 0 && rect.height() > 0)
        d->rect = rect;
    else
        qWarning().noquote() << kWho << "showWaitingDialog: host rectangle is empty, keeping" << d->rect;
    d->fontSize = DialogUtil::fontSize(d->rect);
    int const W = d->W();
    QSize const size = d->funVisible ? d->detailedSize() : d->waitingSize();
    setFixedSize(size);
    recentre();
    d->frame->setFixedSize(d->funVisible ? QSize(size.width(), DialogUtil::part(d->H(), 3, 5)) : size);
    placeFrame();
    d->text->setFixedWidth(size.width() * 4 / 5);

    qDebug() << "show waitingdialog start";
    QWidget* modal = QApplication::activeModalWidget();
    if (modal && modal != this)
        return;
    qDebug() << "show waitingdialog";
    setFunButtonVisible(false);
    if (level < White || level > Red) {
        qWarning().noquote() << kWho << "showWaitingDialog: unknown text level" << int(level);
        level = White;
    }
    d->colour(level);
    d->text->clear();

    int const N = DialogUtil::fontPixels(d->fontSize);
    d->text->setStyleSheet(DialogUtil::fontSheet("QLabel", N));
    int const imageSide = qMax(1, W / 10);
    d->movie->setScaledSize(QSize(imageSide, imageSide));
    d->image->setFixedSize(imageSide, imageSide);

    if (!text.isEmpty())
        setInformativeText(text, White);
    if (isHidden()) {
        qDebug() << "show";
        show();
    }
}

void WaitingDialog::hideWaitingDialog()
{
    qDebug() << "hide waitingdialog";
    d->text->clear();
    update();
    if (d->funFrame->isVisible())
        setFunButtonVisible(false);
    if (isHidden()) {
        qWarning() << "Fail to hide waitingdialog: isHidden() == true";
    } else {
        qDebug() << "hide";
        hide();
        emit hideDialog();
    }
    setProperty("WindowStateShow", false);
}

void WaitingDialog::setInformativeText(QString const& text, TooltipLevel level)
{
    if (level < White || level > Red) {
        qWarning().noquote() << kWho << "setInformativeText: unknown text level" << int(level);
        level = White;
    }
    d->colour(level);
    d->text->setText(text);
}

QString WaitingDialog::informativeText() const { return d->text->text(); }

void WaitingDialog::setFunButtonStatus(bool visible, QString const& text, int functionCode)
{
    setFunButtonVisible(visible);
    setButtonText(text);
    setButtonProperty(functionCode);
}

void WaitingDialog::setFunButtonVisible(bool visible)
{
    if (visible == d->funVisible)
        return;
    d->funVisible = visible;
    int const W = d->W();
    int const H = d->H();
    if (visible) {
        d->funButton->show();
        d->funButton->setEnabled(true);
        d->funButton->setFocus(Qt::OtherFocusReason);
        d->funButton->setProperty("isIconReset", true);
        setFixedSize(d->detailedSize());
        setStyleProperty(d->text, "isLockPanelText", "detail");
        d->frame->setProperty("isReminderFrameBg", true);
        d->frame->setProperty("isWaitingDialogFrameBg", false);
        d->frame->setFixedSize(DialogUtil::part(W, 11, 16), DialogUtil::part(H, 3, 5));
    } else {
        d->funButton->hide();
        setFixedSize(d->waitingSize());
        setStyleProperty(d->text, "isLockPanelText", true);
        d->frame->setProperty("isWaitingDialogFrameBg", true);
        d->frame->setProperty("isReminderFrameBg", false);
        d->frame->setFixedSize(d->waitingSize());
    }
    d->text->setFixedWidth(width() * 4 / 5);
    placeFrame();
    recentre();
    repolish(this);
    repolish(d->frame);
    updateGeometry();
    update();
}

bool WaitingDialog::isFunButtonVisible() const { return d->funVisible; }

void WaitingDialog::setButtonText(QString const& text) { d->funButton->setText(text); }

void WaitingDialog::setButtonProperty(int functionCode) { d->funButton->setProperty("userData", functionCode); }

void WaitingDialog::setFunButtonEnable(bool enable) { d->funButton->setEnabled(enable); }

void WaitingDialog::attachToWidget(QWidget* widget)
{
    if (QWidget* old = parentWidget())
        old->removeEventFilter(this);
    bool const shown = isVisible();
    setParent(widget, windowFlags());
    recentre();
    if (widget)
        widget->installEventFilter(this);
    if (shown)
        show();
    raise();
}

void WaitingDialog::setParentChanged(bool changed) { d->parentChanged = changed; }

void WaitingDialog::setIndicatorSize(IndicatorSize size)
{
    if (size < Small || size > Large) {
        qWarning().noquote() << kWho << "setIndicatorSize: unknown size" << int(size);
        return;
    }
    d->indicatorSize = size;
}

WaitingDialog::IndicatorSize WaitingDialog::indicatorSize() const { return d->indicatorSize; }

int WaitingDialog::getFontSize() const { return DialogUtil::fontPixels(d->fontSize); }

QRect WaitingDialog::hostRect() const { return d->rect; }

void WaitingDialog::step()
{
    d->angle = (d->angle + d->angleDelta) % 360;
    update();
}

int WaitingDialog::angle() const { return d->angle; }

QSize WaitingDialog::sizeHint() const
{
    qreal const ratio = d->indicator.devicePixelRatio() > 0 ? d->indicator.devicePixelRatio() : 1.0;
    return (QSizeF(d->indicator.size()) / ratio).toSize();
}

void WaitingDialog::slotFunButtonClicked()
{
    d->funButton->setEnabled(false); // against a second press before the host reacts
    emit signalFunButtonClicked(d->funButton->property("userData").toInt());
}

bool WaitingDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != this) {
        if (watched == parentWidget() && event->type() == QEvent::Resize)
            recentre();
        return QDialog::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::Close:
        qDebug() << "ignore event";
        event->ignore();
        return true;
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt)
            d->altHeld = true;
        break;
    case QEvent::KeyRelease:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt)
            d->altHeld = false;
        break;
    default:
        break;
    }
    return QDialog::eventFilter(watched, event);
}

void WaitingDialog::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Enter:
    case Qt::Key_Escape: // only the host hides the panel
    case Qt::Key_Back:
        event->accept();
        return;
    case Qt::Key_Alt:
        d->altHeld = true;
        return;
    default:
        QDialog::keyPressEvent(event);
    }
}

void WaitingDialog::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Alt)
        d->altHeld = false;
    QDialog::keyReleaseEvent(event);
}

void WaitingDialog::closeEvent(QCloseEvent* event) { event->ignore(); }

void WaitingDialog::showEvent(QShowEvent* event)
{
    qDebug() << "showEvent";
    QDialog::showEvent(event);
    d->movie->start();
    raise();
    activateWindow();
}

void WaitingDialog::hideEvent(QHideEvent* event)
{
    d->movie->stop();
    QDialog::hideEvent(event);
}

void WaitingDialog::resizeEvent(QResizeEvent* event)
{
    qDebug() << "[resizeEvent]" << "------start WaitingDialog";
    QDialog::resizeEvent(event);
    DialogUtil::setRoundedMask(this, 6.0);
}

} // namespace Widget
} // namespace LCD
