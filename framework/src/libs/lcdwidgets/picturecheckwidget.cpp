#include "picturecheckwidget.h"
#include "inputcheck_p.h"

#include "choicekeys_p.h"

#include <QDebug>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolButton>

namespace LCD {
namespace Widget {

namespace {

// A picture with its caption below and, when checked, a round check mark in its
// top-right corner.
class PictureCheckButton : public QToolButton
{
public:
    using QToolButton::QToolButton;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QToolButton::paintEvent(event);
        if (!isChecked())
            return;
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        int const side = qBound(10, height() / 4, 28);
        QRectF const mark(width() - side - 4, 4, side, side);
        p.setPen(Qt::NoPen);
        p.setBrush(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Highlight));
        p.drawEllipse(mark);
        QPen pen(palette().color(QPalette::HighlightedText), qMax(2.0, side / 7.0));
        pen.setCapStyle(Qt::RoundCap);
        pen.setJoinStyle(Qt::RoundJoin);
        p.setPen(pen);
        QPainterPath tick;
        tick.moveTo(mark.left() + side * 0.27, mark.top() + side * 0.52);
        tick.lineTo(mark.left() + side * 0.44, mark.top() + side * 0.70);
        tick.lineTo(mark.left() + side * 0.74, mark.top() + side * 0.34);
        p.setBrush(Qt::NoBrush);
        p.drawPath(tick);
    }
};

} // namespace

struct LCDWIDGETS_HIDDEN PictureCheckWidget::Impl
{
    PictureCheckWidget* q;
    QGridLayout* grid = nullptr;
    QList<QToolButton*> buttons;
    int columns = kDefaultColumns;
    QSize pictureSize{64, 40};
    int fontSize = kDefaultFontSize;

    explicit Impl(PictureCheckWidget* owner) : q(owner) {}

    int indexOf(int value) const
    {
        for (int i = 0; i < buttons.size(); ++i)
            if (choiceData(buttons[i], kChoiceValueId).toInt() == value)
                return i;
        return -1;
    }
    QToolButton* find(char const* function, int value) const
    {
        int const i = indexOf(value);
        if (i < 0) {
            qDebug().noquote() << QStringLiteral("[PictureCheckWidget] %1: no picture with value %2").arg(function).arg(value);
            return nullptr;
        }
        return buttons[i];
    }
    void relayout()
    {
        for (QToolButton* b : buttons)
            grid->removeWidget(b);
        for (int i = 0; i < buttons.size(); ++i)
            grid->addWidget(buttons[i], i / columns, i % columns);
    }
    void applySize(QToolButton* b) const
    {
        b->setIconSize(pictureSize);
        QFont f = b->font();
        f.setPixelSize(fontSize);
        b->setFont(f);
    }
    void flip(QToolButton* b)
    {
        if (!b || !b->isEnabled())
            return;
        b->click(); // toggles and reports through clicked()
    }
};

PictureCheckWidget::PictureCheckWidget(QWidget* parent) : QFrame(parent), d(std::make_unique<Impl>(this))
{
    setProperty("isPictureCheckFrame", true);
    setFocusPolicy(Qt::StrongFocus);
    d->grid = new QGridLayout(this);
    d->grid->setContentsMargins(0, 0, 0, 0);
    d->grid->setSpacing(8);
}

PictureCheckWidget::~PictureCheckWidget() = default;

void PictureCheckWidget::addPicture(QIcon const& picture, QString const& caption, int value)
{
    if (d->indexOf(value) >= 0) {
        qDebug().noquote() << "[PictureCheckWidget] addPicture: value" << value << "exists already";
        return;
    }
    auto* b = new PictureCheckButton(this);
    b->setProperty("isPictureCheck", true);
    b->setCheckable(true);
    b->setToolButtonStyle(caption.isEmpty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextUnderIcon);
    b->setIcon(picture);
    b->setText(caption);
    b->setFocusPolicy(Qt::StrongFocus);
    d->applySize(b);
    setChoiceData(b, kChoiceValueId, value);
    b->installEventFilter(this);
    connect(b, &QToolButton::clicked, this, [this, b](bool checked) {
        emit signalValueChanged(choiceData(b, kChoiceValueId).toInt(), checked);
    });
    d->buttons.append(b);
    d->grid->addWidget(b, (d->buttons.size() - 1) / d->columns, (d->buttons.size() - 1) % d->columns);
    b->setEnabled(isEnabled());
}

void PictureCheckWidget::addPicture(QString const& file, QString const& caption, int value)
{
    QIcon icon;
    QPixmap const pixmap(file);
    if (pixmap.isNull())
        qDebug().noquote() << "[PictureCheckWidget] addPicture: no picture in" << file;
    else
        icon = QIcon(pixmap);
    addPicture(icon, caption, value);
}

void PictureCheckWidget::removePicture(int value)
{
    QToolButton* b = d->find("removePicture", value);
    if (!b)
        return;
    bool const hadFocus = b->hasFocus();
    d->buttons.removeOne(b);
    d->grid->removeWidget(b);
    b->hide();
    b->deleteLater();
    d->relayout();
    if (hadFocus) {
        int const first = firstChoice(d->buttons.size(), [this](int i) { return d->buttons[i]; });
        if (first >= 0)
            d->buttons[first]->setFocus(Qt::OtherFocusReason);
        else
            setFocus(Qt::OtherFocusReason);
    }
}

void PictureCheckWidget::clear()
{
    bool const hadFocus = hasFocus() || isAncestorOf(focusWidget());
    for (QToolButton* b : d->buttons) {
        d->grid->removeWidget(b);
        b->hide();
        b->deleteLater();
    }
    d->buttons.clear();
    if (hadFocus)
        setFocus(Qt::OtherFocusReason);
}

int PictureCheckWidget::count() const { return d->buttons.size(); }

bool PictureCheckWidget::contains(int value) const { return d->indexOf(value) >= 0; }

void PictureCheckWidget::setCaption(int value, QString const& caption)
{
    if (QToolButton* b = d->find("setCaption", value)) {
        b->setText(caption);
        b->setToolButtonStyle(caption.isEmpty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextUnderIcon);
    }
}

QString PictureCheckWidget::caption(int value) const
{
    QToolButton* b = d->find("caption", value);
    return b ? b->text() : QString();
}

void PictureCheckWidget::setColumns(int columns)
{
    if (columns < 1) {
        qDebug().noquote() << "[PictureCheckWidget] setColumns: columns must be at least 1, got" << columns;
        return;
    }
    if (columns == d->columns)
        return;
    d->columns = columns;
    d->relayout();
}

int PictureCheckWidget::columns() const { return d->columns; }

int PictureCheckWidget::rowCount() const { return (d->buttons.size() + d->columns - 1) / d->columns; }

void PictureCheckWidget::setPictureSize(QSize size)
{
    if (!size.isValid() || size.isEmpty() || size.width() > QWIDGETSIZE_MAX || size.height() > QWIDGETSIZE_MAX) {
        qDebug().noquote() << QStringLiteral("[PictureCheckWidget] setPictureSize: invalid size %1x%2")
                                  .arg(size.width())
                                  .arg(size.height());
        return;
    }
    if (!sizeOk("PictureCheckWidget", "setPictureSize", size))
        return;
    d->pictureSize = size;
    for (QToolButton* b : d->buttons)
        d->applySize(b);
}

QSize PictureCheckWidget::pictureSize() const { return d->pictureSize; }

void PictureCheckWidget::setContentFontSize(int size)
{
    if (size < 1) {
        qDebug().noquote() << "[PictureCheckWidget] setContentFontSize: font size must be positive, got" << size;
        return;
    }
    if (!fontSizeOk("PictureCheckWidget", "setContentFontSize", size))
        return;
    d->fontSize = size;
    d->grid->setSpacing(qMax(2, size / 3));
    for (QToolButton* b : d->buttons)
        d->applySize(b);
}

int PictureCheckWidget::contentFontSize() const { return d->fontSize; }

void PictureCheckWidget::setContentDisabled(bool disabled)
{
    setDisabled(disabled);
    for (QToolButton* b : d->buttons)
        b->setDisabled(disabled);
}

void PictureCheckWidget::setChecked(int value, bool checked)
{
    if (QToolButton* b = d->find("setChecked", value))
        b->setChecked(checked);
}

void PictureCheckWidget::setCheckedValues(QVector<int> const& values)
{
    for (int v : values)
        if (d->indexOf(v) < 0)
            qDebug().noquote() << "[PictureCheckWidget] setCheckedValues: no picture with value" << v;
    for (QToolButton* b : d->buttons)
        b->setChecked(values.contains(choiceData(b, kChoiceValueId).toInt()));
}

bool PictureCheckWidget::isChecked(int value) const
{
    int const i = d->indexOf(value);
    return i >= 0 && d->buttons[i]->isChecked();
}

QVector<int> PictureCheckWidget::checkedValues() const
{
    QVector<int> out;
    for (QToolButton* b : d->buttons)
        if (b->isChecked())
            out.append(choiceData(b, kChoiceValueId).toInt());
    return out;
}

int PictureCheckWidget::focusedValue() const
{
    int const i = focusedChoice(d->buttons.size(), [this](int k) { return d->buttons[k]; });
    return i < 0 ? -1 : choiceData(d->buttons[i], kChoiceValueId).toInt();
}

QList<QAbstractButton*> PictureCheckWidget::buttons() const
{
    QList<QAbstractButton*> out;
    out.reserve(d->buttons.size());
    for (QToolButton* b : d->buttons)
        out.append(b);
    return out;
}

void PictureCheckWidget::focusInEvent(QFocusEvent* event)
{
    QFrame::focusInEvent(event);
    int const first = firstChoice(d->buttons.size(), [this](int i) { return d->buttons[i]; });
    if (first >= 0) {
        d->buttons[first]->setFocus(Qt::OtherFocusReason);
        emit signalSelectedChanged(choiceData(d->buttons[first], kChoiceValueId).toInt());
    }
}

bool PictureCheckWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    auto* b = qobject_cast<QToolButton*>(watched);
    if (!b || !d->buttons.contains(b))
        return QFrame::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
        bool const up = static_cast<QKeyEvent*>(event)->key() == Qt::Key_Up;
        int const now = stepChoiceFocus(d->buttons.size(), [this](int i) { return d->buttons[i]; }, up);
        if (now >= 0)
            emit signalSelectedChanged(choiceData(d->buttons[now], kChoiceValueId).toInt());
        return true;
    }
    case Qt::Key_Enter:
    case Qt::Key_Return:
        d->flip(b);
        return true;
    case Qt::Key_Escape:
        emit signalCloseEditStatus();
        return true;
    default:
        return QFrame::eventFilter(watched, event);
    }
}

} // namespace Widget
} // namespace LCD
