#include "typedialogmenu.h"
#include "sheet_p.h"
#include "inputcheck_p.h"

#include "dialogmenuwidget.h"
#include "ellipsislabel.h"
#include "spinrow_p.h"
#include "stylehelper.h"

#include <QPointer>
#include <QApplication>
#include <QDebug>
#include <QHBoxLayout>
#include <QListWidget>
#include <QMap>
#include <QVector>

namespace LCD {
namespace Widget {

namespace {

constexpr char kBadNameIndex[] = "the index is bigger than _itemNameVec!";
constexpr char kBadKvIndex[] = "the index is bigger than _kvItemVec!";
constexpr char kTextExists[] = "the text has been exist!";

} // namespace

struct LCDWIDGETS_HIDDEN TypeDialogMenu::Impl
{
    TypeDialogMenu* q = nullptr;
    LCD::MainWidgets::IHomeFrame* homeFrame = nullptr;
    EllipsisLabel* valueLabel = nullptr;
    DialogMenuWidget* dialog = nullptr;
    QVector<QString> itemNameVec;
    QMap<QString, QMap<int, QVariant>> itemData;
    QPoint homeFramePoint;
    int shownRows = 0; // rows the menu had at its last rebuild
    QString labelFull; // the label's text before eliding

    Impl(TypeDialogMenu* owner, LCD::MainWidgets::IHomeFrame* frame) : q(owner), homeFrame(frame) {}

    void createWidgets();
    void setLabelText(QString const& text);
    void updateDialogWidget();
    void resizeMenuDialogPos();
    bool isHidden(QString const& text) const
    {
        QVariant const v = itemData.value(text).value(kHiddenRowRole);
        return v.isValid() && v.toBool();
    }
};

void TypeDialogMenu::Impl::createWidgets()
{
    valueLabel = new EllipsisLabel(q->dynamicFrame());
    valueLabel->setProperty("isComboboxLabel", true);
    valueLabel->setContentsMargins(8, 0, 8, 0);
    valueLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    dialog = new DialogMenuWidget(nullptr);
    dialog->setDialogMenuTitle(QString());
    dialog->setProperty("isMenuDialogBg", true);
    dialog->setWindowFlags(dialog->windowFlags() | Qt::FramelessWindowHint);
    dialog->hide();

    QHBoxLayout* layout = q->dynamicLayout();
    layout->setContentsMargins(0, 6, 0, 6);
    layout->addStretch();
    layout->addWidget(valueLabel);

    QObject::connect(dialog, &DialogMenuWidget::signalSelectedChanged, q, &TypeDialogMenu::slotSelectedChanged);
    QObject::connect(dialog, &DialogMenuWidget::signalSelectedIndexChanged, q,
                     &TypeDialogMenu::slotSelectedIndexChanged);
    QObject::connect(dialog, &DialogMenuWidget::signalCurrentChanged, q, &TypeDialogMenu::slotCurrentChanged);
    QObject::connect(dialog, &DialogMenuWidget::signalCurrentIndexChanged, q, &TypeDialogMenu::slotCurrentIndexChanged);
    QObject::connect(dialog, &DialogMenuWidget::signalEditFinished, q, [this] {
        if (dialog->isVisible())
            dialog->hide();
        q->setEdit(false);
        returnFocusFromWindow(q, dialog);
        emit q->signalEditFinished();
    });
}

void TypeDialogMenu::Impl::setLabelText(QString const& text)
{
    if (text.isEmpty())
        qWarning("-TypeDialogMenu::Impl::setLabelText is empty");
    labelFull = text;
    valueLabel->setText(text);
    valueLabel->updateElidedText(q->getDynamicMaxWidth());
}

void TypeDialogMenu::Impl::updateDialogWidget()
{
    QVector<DialogMenuWidget::Entry> entries;
    entries.reserve(itemNameVec.size());
    for (QString const& text : qAsConst(itemNameVec))
        entries.append({text, itemData.value(text)});
    int const rows = itemNameVec.size();
    // Hidden rows are kept by index in the menu: index them anew, and forget rows
    // that are gone.
    for (int i = rows; i < shownRows; ++i)
        dialog->setRowHidden(i, false);
    for (int i = 0; i < rows; ++i)
        dialog->setRowHidden(i, isHidden(itemNameVec.at(i)));
    shownRows = rows;
    dialog->setListItems(entries);
}

void TypeDialogMenu::Impl::resizeMenuDialogPos()
{
    if (!homeFrame)
        return;
    QSize const frame = homeFrame->size();
    qint64 const w = qint64(frame.width()) * 11 / 16;
    qint64 const h = qint64(frame.height()) * 9 / 10;
    if (w <= 0 || h <= 0 || w > QWIDGETSIZE_MAX || h > QWIDGETSIZE_MAX) {
        qDebug() << "[TypeDialogMenu] home frame size unusable:" << frame;
        return;
    }
    dialog->setMenuWidgetHeight(int(h));
    dialog->setFixedSize(int(w), int(h));
    dialog->updateItemHeight(int(h), int(w));
    qint64 const x = homeFramePoint.x() + (frame.width() - w) / 2;
    qint64 const y = homeFramePoint.y() + (frame.height() - h) / 2;
    dialog->move(int(qBound<qint64>(-QWIDGETSIZE_MAX, x, QWIDGETSIZE_MAX)),
                 int(qBound<qint64>(-QWIDGETSIZE_MAX, y, QWIDGETSIZE_MAX)));
}

TypeDialogMenu::TypeDialogMenu(QWidget* parent, LCD::MainWidgets::IHomeFrame* homeFrame)
    : StringComboxBaseType(parent), d(std::make_unique<Impl>(this, homeFrame))
{
    d->createWidgets();
    setRightIconButtonHide(true);
}

TypeDialogMenu::~TypeDialogMenu()
{
    // The menu has no parent: it goes with its row, quietly.
    d->dialog->disconnect(this);
    delete d->dialog;
    d->dialog = nullptr;
}

// ---------------------------------------------------------------------------
// List interface

void TypeDialogMenu::addItem(QString const& text, QVariant const& userData)
{
    if (d->itemNameVec.contains(text)) {
        qDebug(kTextExists);
    } else {
        d->itemNameVec.append(text);
        d->itemData[text].insert(Qt::UserRole, userData);
    }
    d->updateDialogWidget();
    if (d->itemNameVec.size() == 1 && d->labelFull.isEmpty())
        d->setLabelText(text);
}

void TypeDialogMenu::removeItem(int index)
{
    if (index < 0 || index >= d->itemNameVec.size()) {
        qDebug(kBadNameIndex);
        return;
    }
    d->itemData.remove(d->itemNameVec.takeAt(index));
    d->updateDialogWidget();
}

void TypeDialogMenu::insertItem(int index, QString const& text, QVariant const& userData)
{
    if (index < 0 || index > d->itemNameVec.size()) {
        qDebug(kBadNameIndex);
        return;
    }
    if (d->itemNameVec.contains(text)) {
        qDebug(kTextExists);
        return;
    }
    d->itemNameVec.insert(index, text);
    d->itemData[text].insert(Qt::UserRole, userData);
    d->updateDialogWidget();
}

int TypeDialogMenu::currentIndex() const { return d->itemNameVec.isEmpty() ? -1 : d->dialog->getCurrentIndex(); }

QString TypeDialogMenu::currentText() const { return d->dialog->getCurrentText(); }

QVariant TypeDialogMenu::currentData(int role) const { return d->dialog->getCurrentData(role); }

void TypeDialogMenu::setCurrentIndex(int index) { d->dialog->setCurrentIndex(index); }

void TypeDialogMenu::setCurrentUserData(QVariant data) { d->dialog->setCurrentData(data); }

void TypeDialogMenu::setCurrentText(QString text) { d->dialog->setCurrentText(text); }

void TypeDialogMenu::setItemText(int index, QString const& text)
{
    if (index < 0 || index >= d->itemNameVec.size()) {
        qDebug(kBadKvIndex);
        return;
    }
    QString const old = d->itemNameVec.at(index);
    if (old == text)
        return;
    if (d->itemNameVec.contains(text)) {
        qDebug(kTextExists);
        return;
    }
    d->itemNameVec[index] = text;
    d->itemData.insert(text, d->itemData.take(old));
    d->updateDialogWidget();
    if (index == d->dialog->getCurrentIndex())
        d->setLabelText(text);
}

QString TypeDialogMenu::itemText(int index) const
{
    if (index < 0 || index >= d->itemNameVec.size()) {
        qDebug(kBadNameIndex);
        return QString();
    }
    return d->itemNameVec.at(index);
}

void TypeDialogMenu::updateItems(std::list<std::pair<int, QString>>& items)
{
    bool changed = false;
    for (auto const& item : items) {
        int const index = item.first;
        if (index < 0 || index >= d->itemNameVec.size()) {
            qDebug(kBadKvIndex);
            continue;
        }
        QString const old = d->itemNameVec.at(index);
        if (old == item.second)
            continue;
        if (d->itemNameVec.contains(item.second)) {
            qDebug(kTextExists);
            continue;
        }
        d->itemNameVec[index] = item.second;
        d->itemData.insert(item.second, d->itemData.take(old));
        changed = true;
    }
    if (!changed)
        return;
    d->updateDialogWidget();
    int const current = d->dialog->getCurrentIndex();
    if (current >= 0 && current < d->itemNameVec.size())
        d->setLabelText(d->itemNameVec.at(current));
}

void TypeDialogMenu::clear()
{
    d->itemNameVec.clear();
    d->itemData.clear();
    d->dialog->clear();
    d->shownRows = 0;
    d->labelFull.clear();
    d->valueLabel->clear();
    d->valueLabel->updateElidedText(getDynamicMaxWidth());
}

int TypeDialogMenu::count() const { return d->itemNameVec.size(); }

int TypeDialogMenu::findText(QString const& text) const { return d->itemNameVec.indexOf(text); }

int TypeDialogMenu::findData(QVariant const& data, int role) const
{
    for (int i = 0; i < d->itemNameVec.size(); ++i) {
        if (d->itemData.value(d->itemNameVec.at(i)).value(role) == data)
            return i;
    }
    return -1;
}

QVariant TypeDialogMenu::itemData(int index, int role) const
{
    if (index < 0 || index >= d->itemNameVec.size()) {
        qDebug(kBadNameIndex);
        return QVariant();
    }
    return d->itemData.value(d->itemNameVec.at(index)).value(role);
}

void TypeDialogMenu::setItemData(int index, QVariant value, int role)
{
    if (index < 0 || index >= d->itemNameVec.size()) {
        qDebug().nospace() << "setItemData" << ": index is bigger than vec size!";
        return;
    }
    d->itemData[d->itemNameVec.at(index)].insert(role, value);
    d->updateDialogWidget();
}

void TypeDialogMenu::setRowHidden(int index, bool hidden)
{
    if (index < 0 || index >= d->itemNameVec.size()) {
        qDebug(kBadNameIndex);
        return;
    }
    d->itemData[d->itemNameVec.at(index)].insert(kHiddenRowRole, hidden);
    d->dialog->setRowHidden(index, hidden);
}

void TypeDialogMenu::setHomeFramePoint(QPoint point)
{
    d->homeFramePoint = point;
    if (d->dialog->isVisible())
        d->resizeMenuDialogPos();
}

void TypeDialogMenu::setEditable(bool) {}

void TypeDialogMenu::setDlgMenuWidgetHidden(bool hidden)
{
    if (!hidden)
        d->resizeMenuDialogPos();
    d->dialog->setHidden(hidden);
}

// ---------------------------------------------------------------------------
// Row operations

void TypeDialogMenu::editValue()
{
    if (d->dialog->isVisible())
        return;
    if (d->dialog->visibleCount() < 2) {
        qDebug().noquote() << "[TypeDialogMenu]" << itemTitle() << ": nothing to choose from";
        return;
    }
    d->resizeMenuDialogPos();
    d->dialog->setFocus(Qt::OtherFocusReason);
    d->dialog->show();
    d->dialog->activateWindow();
    // Without a window manager a new window is not activated for us: the knob must
    // reach the menu at once.
    if (QApplication::activeWindow() != d->dialog)
        QApplication::setActiveWindow(d->dialog);
    d->dialog->listWidget()->setFocus(Qt::OtherFocusReason);
    // Take the window system's late report of the activation now, while the menu is
    // shown: taken after it has closed it would make a hidden window the active one.
    // Timers may run here too: one of them may delete this row.
    QPointer<TypeDialogMenu> const self(this);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!self)
        return;
    setEdit(true);
    emit signalEditStarted();
}

void TypeDialogMenu::closeEditValue()
{
    if (d->dialog->isVisible()) {
        d->dialog->hide();
        returnFocusFromWindow(this, d->dialog);
    }
    setEdit(false);
    CommonItemType::closeEditValue();
}

void TypeDialogMenu::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeDialogMenu", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    int const f = contentFontSize();
    if (f <= 0)
        return;
    QFont font = d->valueLabel->font();
    font.setPixelSize(f);
    d->valueLabel->setFont(font);
    d->dialog->setContentFontSize(f);
    QString const sheet = QStringLiteral("font-size:%1px; border-radius:%2px;").arg(f).arg(itemHeight() / 9);
    applyStyleSheet(d->dialog->listWidget(), sheet);
    d->valueLabel->setText(labelText());
    d->valueLabel->updateElidedText(getDynamicMaxWidth());
}

void TypeDialogMenu::setContentDisabled(bool disabled) const { d->valueLabel->setDisabled(disabled); }

void TypeDialogMenu::setDialogTitle(QString const& title) { d->dialog->setDialogMenuTitle(title); }

void TypeDialogMenu::setTextLabelProperty(QString const& name)
{
    if (name.isEmpty()) {
        qDebug() << "[TypeDialogMenu] setTextLabelProperty: no property name";
        return;
    }
    setStyleProperty(d->valueLabel, name.toUtf8().constData(), true);
}

bool TypeDialogMenu::isKeyBackPressed() const { return d->dialog->isKeyBackPressed(); }

DialogMenuWidget* TypeDialogMenu::menuDialog() const { return d->dialog; }

QString TypeDialogMenu::labelText() const { return d->labelFull; }

// ---------------------------------------------------------------------------
// From the menu

void TypeDialogMenu::slotSelectedChanged(QString text) { emit signalSelectedChanged(text); }

void TypeDialogMenu::slotSelectedIndexChanged(int index) { emit signalSelectedIndexChanged(index); }

void TypeDialogMenu::slotCurrentChanged(QString text)
{
    d->setLabelText(text);
    emit signalCurrentTextChanged(text);
}

void TypeDialogMenu::slotCurrentIndexChanged(int index)
{
    if (index < 0 || index >= d->itemNameVec.size()) {
        qDebug(kBadKvIndex);
        return;
    }
    d->setLabelText(d->itemNameVec.at(index));
    emit signalCurrentIndexChanged(index);
}

} // namespace Widget
} // namespace LCD
