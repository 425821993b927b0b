#include "effectpicturewidget.h"
#include "sheet_p.h"

#include "choicekeys_p.h"
#include "spinrow_p.h"

#include <QDebug>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMovie>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

namespace {

constexpr char kPictureProperty[] = "EffectPictureWidget";

// value * n / 16 in 64 bits, kept to a valid widget size.
int scaled(int value, int n)
{
    return static_cast<int>(qBound<qint64>(0, qint64(value) * n / EffectPictureWidget::kReferenceFontSize, QWIDGETSIZE_MAX));
}

// The grid never squeezes its rows below the buttons' height: rows that don't fit the
// frame (more than two) lie below it, outside the frame, rather than crushed into it.
class OverflowGrid : public QGridLayout
{
public:
    using QGridLayout::QGridLayout;
    void setGeometry(QRect const& rect) override
    {
        QRect r = rect;
        r.setHeight(qMax(rect.height(), minimumSize().height()));
        QGridLayout::setGeometry(r);
    }
};

} // namespace

struct EffectPictureWidget::Impl
{
    QVBoxLayout* layout = nullptr;
    QLabel* preview = nullptr;
    QMovie* movie = nullptr;
    QFrame* frame = nullptr;
    QGridLayout* grid = nullptr;
    QList<QPushButton*> buttons;
    QMap<int, QPair<QString, QString>> choices;
    QPointer<QPushButton> current;
    int currentKey = -1;
    int fontSize = EffectPictureWidget::kReferenceFontSize;
    QString name;
};

EffectPictureWidget::EffectPictureWidget(QFrame* parent) : QFrame(parent), d(std::make_unique<Impl>())
{
    d->preview = new QLabel(this);
    d->preview->setObjectName(QStringLiteral("effectPreview"));
    d->preview->setFixedSize(kPreviewWidth, kPreviewHeight);
    d->movie = new QMovie(this);
    d->movie->setCacheMode(QMovie::CacheAll);

    d->frame = new QFrame(this);
    d->frame->setProperty("multiButtonFrame", QStringLiteral("normal"));
    d->grid = new OverflowGrid(d->frame);
    d->grid->setContentsMargins(0, 0, 0, 0);
    d->grid->setSpacing(0);

    d->layout = new QVBoxLayout(this);
    d->layout->setContentsMargins(0, 0, 0, 0);
    d->layout->setSpacing(kVerticalSpacing);
    d->layout->addStretch();
    auto* previewRow = new QHBoxLayout;
    previewRow->addStretch();
    previewRow->addWidget(d->preview);
    previewRow->addStretch();
    d->layout->addLayout(previewRow);
    auto* frameRow = new QHBoxLayout;
    frameRow->addStretch();
    frameRow->addWidget(d->frame);
    frameRow->addStretch();
    d->layout->addLayout(frameRow);
    d->layout->addStretch();

    setContentFontSize(d->fontSize);
}

EffectPictureWidget::~EffectPictureWidget()
{
    // The movie's timer must not fire into a half-destroyed widget.
    d->movie->stop();
}

void EffectPictureWidget::setPictureData(QString const& name, QString const& previewFile,
                                         QMap<int, QPair<QString, QString>> const& choices)
{
    d->name = name;
    d->preview->setAccessibleName(name);
    d->preview->setToolTip(name);
    if (choices != d->choices)
        d->choices = choices;
    d->movie->stop();
    d->movie->setFileName(QString()); // restart even with the same file
    playPreview(previewFile);

    for (QPushButton* b : qAsConst(d->buttons)) {
        d->grid->removeWidget(b);
        b->hide();
        b->deleteLater();
    }
    d->buttons.clear();
    d->current = nullptr;

    int row = 0;
    int column = 0;
    int const side = scaled(kRowHeight, d->fontSize);
    for (auto it = d->choices.cbegin(); it != d->choices.cend(); ++it) {
        auto* button = new QPushButton(d->frame);
        button->setCheckable(true);
        button->setProperty("isMultiBtnChecked", true);
        button->setFocusPolicy(Qt::StrongFocus);
        auto* picture = new QLabel(button);
        picture->setProperty(kPictureProperty, it.value().first);
        picture->setFixedSize(side, side);
        picture->setAttribute(Qt::WA_TransparentForMouseEvents);
        auto* box = new QHBoxLayout(button);
        box->setContentsMargins(0, 0, 0, 0);
        box->addStretch();
        box->addWidget(picture);
        box->addStretch();
        setChoiceData(button, kChoiceValueId, it.key());
        button->installEventFilter(this);
        connect(button, &QPushButton::clicked, this, [this, button] { choose(button); });
        d->grid->addWidget(button, row, column);
        if (isVisible())
            button->show();
        d->buttons.append(button);
        if (++column == kColumns) {
            column = 0;
            ++row;
        }
        if (it.key() == d->currentKey)
            d->current = button;
    }
    setContentFontSize(d->fontSize);
    resetBtnCheckStatus();
}

void EffectPictureWidget::setCurrentValue(int key)
{
    for (QPushButton* b : qAsConst(d->buttons)) {
        if (choiceData(b, kChoiceValueId).toInt() == key) {
            d->current = b;
            d->currentKey = key;
            resetBtnCheckStatus();
            return;
        }
    }
    qDebug().noquote().nospace() << "[EffectPictureWidget] no choice with key " << key;
}

int EffectPictureWidget::getCurrentValue() const { return d->current ? d->currentKey : -1; }

void EffectPictureWidget::setCurrentUserData(QVariant data) const
{
    int const key = data.toInt();
    for (QPushButton* b : qAsConst(d->buttons)) {
        if (choiceData(b, kChoiceValueId).toInt() == key) {
            setChoiceData(b, kChoiceValueId, data);
            return;
        }
    }
    qDebug().noquote().nospace() << "[EffectPictureWidget] no choice with key " << key;
}

void EffectPictureWidget::setContentFontSize(int size)
{
    // Beyond kMaxFontSize the preview's frames alone would take gigabytes.
    if (size < 1 || size > kMaxFontSize) {
        qDebug().noquote().nospace() << "EffectPictureWidget::setContentFontSize: invalid font size " << size;
        return;
    }
    d->fontSize = size;
    int const rowHeight = scaled(kRowHeight, size);
    int const gridWidth = scaled(kGridWidth, size);
    int const buttonWidth = scaled(kButtonWidth, size);
    d->grid->setRowMinimumHeight(0, rowHeight);
    // Nine columns of buttons make up the grid's width.
    for (int c = 0; c < kColumns; ++c)
        d->grid->setColumnMinimumWidth(c, buttonWidth);
    d->layout->setSpacing(scaled(kVerticalSpacing, size));

    QSize const preview(scaled(kPreviewWidth, size), scaled(kPreviewHeight, size));
    d->preview->setFixedSize(preview);
    d->movie->setScaledSize(preview);

    d->frame->setFixedSize(gridWidth, static_cast<int>(qMin<qint64>(2 * qint64(rowHeight), QWIDGETSIZE_MAX)));
    d->frame->setStyleSheet(QStringLiteral("QFrame{border-radius:%1px;}").arg(scaled(4, size)));

    QString const sheet = QStringLiteral("QPushButton{font-size:%1px;border-radius:%2px;}").arg(size).arg(size / 4);
    for (QPushButton* b : qAsConst(d->buttons)) {
        b->setFixedSize(buttonWidth, rowHeight);
        applyStyleSheet(b, sheet);
        if (auto* picture = b->findChild<QLabel*>())
            picture->setFixedSize(rowHeight, rowHeight);
    }
}

int EffectPictureWidget::contentFontSize() const { return d->fontSize; }

void EffectPictureWidget::setContentDisabled(bool disabled) const
{
    d->frame->setDisabled(disabled);
    for (QPushButton* b : qAsConst(d->buttons))
        b->setDisabled(disabled);
}

void EffectPictureWidget::resetBtnCheckStatus()
{
    for (QPushButton* b : qAsConst(d->buttons))
        b->setChecked(b == d->current);
    if (d->current)
        previewFor(d->current);
}

void EffectPictureWidget::setUpDownPressed(bool up)
{
    QList<QPushButton*> const& list = d->buttons;
    int const i = stepChoiceFocus(list.size(), [&list](int k) { return list.at(k); }, up);
    if (i < 0)
        return;
    previewFor(list.at(i));
    emit signalSelectedChanged(choiceData(list.at(i), kChoiceValueId));
}

QList<QPushButton*> EffectPictureWidget::buttons() const { return d->buttons; }

QWidget* EffectPictureWidget::previewLabel() const { return d->preview; }

QWidget* EffectPictureWidget::buttonFrame() const { return d->frame; }

QString EffectPictureWidget::previewFile() const { return d->movie->fileName(); }

QMovie* EffectPictureWidget::movie() const { return d->movie; }

void EffectPictureWidget::previewFor(QPushButton* button)
{
    int const key = choiceData(button, kChoiceValueId).toInt();
    auto const it = d->choices.constFind(key);
    if (it == d->choices.cend())
        return;
    if (it.value().second != d->movie->fileName())
        playPreview(it.value().second);
}

void EffectPictureWidget::playPreview(QString const& file)
{
    d->movie->stop();
    d->movie->setFileName(file);
    if (file.isEmpty() || !QFileInfo::exists(file) || !d->movie->isValid()) {
        if (!file.isEmpty())
            qWarning().noquote().nospace() << "[EffectPictureWidget] preview not found: " << file;
        d->preview->clear();
        return;
    }
    if (d->preview->movie() != d->movie)
        d->preview->setMovie(d->movie);
    d->movie->start();
}

void EffectPictureWidget::choose(QPushButton* button)
{
    bool const was = button->blockSignals(true);
    button->setChecked(true);
    button->blockSignals(was);
    d->current = button;
    int const key = choiceData(button, kChoiceValueId).toInt();
    d->currentKey = key;
    resetBtnCheckStatus();
    QPointer<EffectPictureWidget> const self(this);
    emit signalValueChanged(QVariant(key));
    if (self)
        emit signalCloseEditStatus();
}

bool EffectPictureWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
            setUpDownPressed(true);
            return true;
        case Qt::Key_Down:
            setUpDownPressed(false);
            return true;
        case Qt::Key_Escape:
            resetBtnCheckStatus();
            emit signalCloseEditStatus();
            return true;
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}

void EffectPictureWidget::focusInEvent(QFocusEvent* event)
{
    QFrame::focusInEvent(event);
    for (QPushButton* b : qAsConst(d->buttons)) {
        if (!b->isChecked())
            continue;
        b->style()->unpolish(b);
        b->setChecked(false);
        b->style()->polish(b);
        b->update();
        b->setFocus(Qt::OtherFocusReason);
        return;
    }
    QList<QPushButton*> const& list = d->buttons;
    int const first = firstChoice(list.size(), [&list](int k) { return list.at(k); });
    if (first >= 0) {
        list.at(first)->setFocus(Qt::OtherFocusReason);
        previewFor(list.at(first));
    }
}

void EffectPictureWidget::keyPressEvent(QKeyEvent* event)
{
    // Keys for the chooser itself (no button to focus), and the press on a button.
    switch (event->key()) {
    case Qt::Key_Escape:
        resetBtnCheckStatus();
        emit signalCloseEditStatus();
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        QList<QPushButton*> const& list = d->buttons;
        int const i = focusedChoice(list.size(), [&list](int k) { return list.at(k); });
        if (i >= 0)
            list.at(i)->click();
        break;
    }
    default:
        QFrame::keyPressEvent(event);
        return;
    }
    event->accept();
}

// ---------------------------------------------------------------------------

struct TypeItemEffectPicture::Impl
{
    EffectPictureWidget* chooser = nullptr;
};

TypeItemEffectPicture::TypeItemEffectPicture(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setItemTitleLabelHide(true);
    setRightIconButtonHide(true);
    d->chooser = new EffectPictureWidget(dynamicFrame());
    dynamicLayout()->addWidget(d->chooser);
    connect(d->chooser, &EffectPictureWidget::signalValueChanged, this,
            &TypeItemEffectPicture::signalEffectPictureValueChanged);
    connect(d->chooser, &EffectPictureWidget::signalCloseEditStatus, this, [this] {
        returnFocusToParent(this);
        emit signalCloseEditStatus();
        emit signalEditFinished();
    });
}

TypeItemEffectPicture::~TypeItemEffectPicture() = default;

void TypeItemEffectPicture::setPictureData(QString const& name, QString const& previewFile,
                                           QMap<int, QPair<QString, QString>> const& choices)
{
    d->chooser->setPictureData(name, previewFile, choices);
}

void TypeItemEffectPicture::setCurrentValue(int key) { d->chooser->setCurrentValue(key); }

int TypeItemEffectPicture::getCurrentValue() const { return d->chooser->getCurrentValue(); }

void TypeItemEffectPicture::setCurrentUserData(QVariant data) const { d->chooser->setCurrentUserData(std::move(data)); }

void TypeItemEffectPicture::setContentFontSize(int size)
{
    // The chooser refuses (and logs) a size it cannot take; the row follows it.
    d->chooser->setContentFontSize(size);
    if (size >= 1 && size <= EffectPictureWidget::kMaxFontSize)
        CommonItemType::setContentFontSize(size);
}

void TypeItemEffectPicture::setContentDisabled(bool disabled) const { d->chooser->setContentDisabled(disabled); }

int TypeItemEffectPicture::getWidgetRow()
{
    CommonItemType::getWidgetRow();
    return 1;
}

void TypeItemEffectPicture::editValue()
{
    if (!canEdit(d->chooser) || d->chooser->buttons().isEmpty())
        return;
    d->chooser->setFocus(Qt::TabFocusReason);
    CommonItemType::editValue();
    emit signalEditStarted();
}

EffectPictureWidget* TypeItemEffectPicture::effectPictureWidget() const { return d->chooser; }

} // namespace Widget
} // namespace LCD
