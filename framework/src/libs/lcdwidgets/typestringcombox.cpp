#include "typestringcombox.h"
#include "sheet_p.h"
#include "inputcheck_p.h"

#include "dropcombobox.h"
#include "spinrow_p.h"
#include "stylehelper.h"

#include <QPointer>
#include <QAbstractItemView>
#include <QDebug>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace LCD {
namespace Widget {

namespace {

void logBadIndex(char const* function, int index, int count)
{
    qDebug().nospace() << "[TypeStringCombox] " << function << ": index " << index << " out of range (" << count
                       << " entries)";
}

} // namespace

struct LCDWIDGETS_HIDDEN TypeStringCombox::Impl
{
    TypeStringCombox* q = nullptr;
    DropCombobox* combo = nullptr;
    QLabel* preLabel = nullptr;
    QLabel* lastLabel = nullptr;
    bool editable = true;     // setEditable: may the knob open the list
    bool lineEditable = false; // setComboboxEditable: may the text be typed
    bool editing = false;     // a list opened by editValue() is open
    bool placingCursor = false; // the row itself puts the list's cursor: no live report
    bool standardUsed = false;  // the combo's standard popup has been made
    QPoint homeFramePoint;
    bool hasHomeFramePoint = false;
    QRect homeRect;

    explicit Impl(TypeStringCombox* owner) : q(owner) {}

    void createWidget(bool haveArrow);
    bool isCanShowPopup() const
    {
        if (!combo)
            return false;
        if (combo->visibleCount() > 1)
            return true;
        return q->getAutoUpdateContent();
    }
    bool valid(int index) const { return index >= 0 && index < combo->count(); }
    // The list the combo opens with its current home rectangle and entries.
    QAbstractItemView* activeList() const
    {
        if (combo->usesCustomPopup() || !standardUsed)
            return combo->getCustomListView();
        return combo->view();
    }
    QString labelSheet() const { return QStringLiteral("QLabel{font-size:%1px;}").arg(q->contentFontSize()); }
    void applyLabelFont(QLabel* label) const
    {
        if (label->isHidden())
            return; // applied when it is shown
        QString const sheet = labelSheet();
        applyStyleSheet(label, sheet);
    }
    void endEdit(bool back);
    // The title gets the room the value widgets leave.
    void relayoutTitle()
    {
        // Measured as the theme draws them (paddings, font sizes).
        for (QLabel* label : {preLabel, lastLabel}) {
            if (!label->isHidden())
                label->ensurePolished();
        }
        if (!q->itemTitle().isEmpty())
            q->setItemTitleText(q->itemTitle());
    }
    void watchCursor(QAbstractItemView* view);
    void applyHomeRect()
    {
        QRect r = homeRect;
        if (hasHomeFramePoint && r.isValid())
            r.moveTopLeft(homeFramePoint);
        combo->setHomeRect(r);
    }
};

void TypeStringCombox::Impl::createWidget(bool haveArrow)
{
    q->setRightIconButtonHide(true);
    preLabel = new QLabel(q->dynamicFrame());
    preLabel->setProperty("defPreValueText", true);
    preLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    preLabel->hide();

    combo = new DropCombobox(haveArrow, q->dynamicFrame());
    combo->setProperty("isComboboxText", true);
    combo->setLineEditAlign(Qt::AlignRight | Qt::AlignVCenter);

    lastLabel = new QLabel(q->dynamicFrame());
    lastLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    lastLabel->hide();

    // No spacing: the row's title takes exactly the room the widgets' own widths
    // leave; the labels carry their gaps as margins.
    preLabel->setContentsMargins(0, 0, 6, 0);
    lastLabel->setContentsMargins(6, 0, 0, 0);
    QHBoxLayout* layout = q->dynamicLayout();
    layout->setSpacing(0);
    layout->addStretch();
    layout->addWidget(preLabel);
    layout->addWidget(combo);
    layout->addWidget(lastLabel);

    combo->installEventFilter(q);
    combo->lineEdit()->installEventFilter(q);
    watchCursor(combo->getCustomListView());
    QObject::connect(combo, &DropCombobox::signalStandardViewCreated, q,
                     [this](QAbstractItemView* view) { watchCursor(view); });

    QObject::connect(combo, &DropCombobox::eidtFinished, q, &TypeStringCombox::slotComBoxActivated);
    QObject::connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), q,
                     &TypeStringCombox::slotComBoxIndexChanged);
    QObject::connect(combo, &DropCombobox::signalWidthChanged, q, [this] { relayoutTitle(); });
    QObject::connect(combo, &DropCombobox::sigCloseEdit, q, [this] {
        if (editing)
            endEdit(true);
    });
}

void TypeStringCombox::Impl::watchCursor(QAbstractItemView* view)
{
    if (!view || !view->selectionModel())
        return;
    QObject::connect(view->selectionModel(), &QItemSelectionModel::currentChanged, q,
                     [this](QModelIndex const& current) {
                         if (!current.isValid() || placingCursor)
                             return;
                         emit q->signalSelectedIndexChanged(current.row());
                         emit q->signalSelectedChanged(current.data(Qt::DisplayRole).toString());
                     });
}

void TypeStringCombox::Impl::endEdit(bool back)
{
    editing = false;
    q->setEdit(false);
    returnFocusToParent(q);
    if (back)
        emit q->signalCloseEditStatus();
    emit q->signalEditFinished();
}

TypeStringCombox::TypeStringCombox(QWidget* parent, bool haveArrow)
    : StringComboxBaseType(parent), d(std::make_unique<Impl>(this))
{
    d->createWidget(haveArrow);
}

TypeStringCombox::~TypeStringCombox() = default;

// ---------------------------------------------------------------------------
// List interface

void TypeStringCombox::addItem(QString const& text, QVariant const& userData) { d->combo->addItem(text, userData); }

void TypeStringCombox::addItem(QIcon const& icon, QString const& text, QVariant const& userData)
{
    d->combo->addItem(icon, text, userData);
}

void TypeStringCombox::addItem(QIcon const& icon, int const& value) { d->combo->addItem(icon, QString(), value); }

void TypeStringCombox::removeItem(int index)
{
    if (!d->valid(index)) {
        logBadIndex("removeItem", index, count());
        return;
    }
    d->combo->removeItem(index);
}

void TypeStringCombox::insertItem(int index, QString const& text, QVariant const& userData)
{
    if (index < 0 || index > count()) {
        logBadIndex("insertItem", index, count());
        return;
    }
    d->combo->insertItem(index, text, userData);
}

int TypeStringCombox::currentIndex() const { return d->combo->currentIndex(); }

QString TypeStringCombox::currentText() const { return d->combo->currentText(); }

QVariant TypeStringCombox::currentData(int role) const { return d->combo->currentData(role); }

void TypeStringCombox::setCurrentIndex(int index)
{
    if (index != -1 && !d->valid(index)) {
        logBadIndex("setCurrentIndex", index, count());
        return;
    }
    d->combo->setCurrentIndex(index);
}

void TypeStringCombox::setCurrentUserData(QVariant data)
{
    int const index = d->combo->findData(data);
    if (index < 0) {
        qDebug() << "[TypeStringCombox] setCurrentUserData: no entry holds" << data;
        return;
    }
    d->combo->setCurrentIndex(index);
}

void TypeStringCombox::setCurrentText(QString text)
{
    int const index = d->combo->findText(text);
    if (index < 0) {
        qDebug() << "[TypeStringCombox] setCurrentText: no entry" << text;
        return;
    }
    d->combo->setCurrentIndex(index);
}

void TypeStringCombox::setItemText(int index, QString const& text)
{
    if (!d->valid(index)) {
        logBadIndex("setItemText", index, count());
        return;
    }
    d->combo->setItemText(index, text);
}

QString TypeStringCombox::itemText(int index) const
{
    if (!d->valid(index)) {
        logBadIndex("itemText", index, count());
        return QString();
    }
    return d->combo->itemText(index);
}

void TypeStringCombox::updateItems(std::list<std::pair<int, QString>>& items)
{
    for (auto const& item : items)
        setItemText(item.first, item.second);
}

void TypeStringCombox::clear() { d->combo->clear(); }

int TypeStringCombox::count() const { return d->combo->count(); }

int TypeStringCombox::findText(QString const& text) const { return d->combo->findText(text); }

int TypeStringCombox::findData(QVariant const& data, int role) const { return d->combo->findData(data, role); }

QVariant TypeStringCombox::itemData(int index, int role) const
{
    if (!d->valid(index)) {
        logBadIndex("itemData", index, count());
        return QVariant();
    }
    return d->combo->itemData(index, role);
}

void TypeStringCombox::setItemData(int index, QVariant value, int role)
{
    if (!d->valid(index)) {
        logBadIndex("setItemData", index, count());
        return;
    }
    d->combo->setItemData(index, value, role);
}

void TypeStringCombox::setRowHidden(int index, bool hidden)
{
    if (!d->valid(index)) {
        logBadIndex("setRowHidden", index, count());
        return;
    }
    d->combo->setItemData(index, hidden, kHiddenRowRole);
    if (auto* list = d->combo->getCustomListView(); list->isVisible())
        list->setRowHidden(index, hidden);
    if (d->combo->isPopupVisible()) {
        if (auto* view = qobject_cast<QListView*>(d->combo->view()))
            view->setRowHidden(index, hidden);
    }
}

void TypeStringCombox::setHomeFramePoint(QPoint point)
{
    d->homeFramePoint = point;
    d->hasHomeFramePoint = true;
    d->applyHomeRect();
}

void TypeStringCombox::setEditable(bool editable) { d->editable = editable; }

// ---------------------------------------------------------------------------
// Editing

void TypeStringCombox::editValue()
{
    if (!d->editable) {
        qDebug().noquote() << "[TypeStringCombox]" << itemTitle() << ": the choice is fixed";
        return;
    }
    if (d->combo->isPopupVisible() || d->combo->isCustomPopupVisible())
        return;
    QPointer<TypeStringCombox> const self(this);
    showPopup(false);
    if (!self)
        return;
    if (d->combo->isPopupVisible() || d->combo->isCustomPopupVisible()) {
        d->editing = true;
        setEdit(true);
        emit signalEditStarted();
    }
}

void TypeStringCombox::closeEditValue()
{
    d->editing = false;
    setEdit(false);
    hidePopup();
    CommonItemType::closeEditValue();
}

void TypeStringCombox::showPopup(bool quiet)
{
    if (!d->isCanShowPopup()) {
        qDebug().noquote() << "[TypeStringCombox]" << itemTitle() << ": nothing to choose from";
        return;
    }
    if (d->combo->currentIndex() < 0)
        setRowSelected(0);
    if (d->combo->isNeedShowCombox() && !d->combo->isHidden()) {
        initComboBoxWidth();
        d->combo->update();
    }
    QAbstractItemView* list = d->activeList();
    if (!list) {
        qWarning("listView_ is nullptr");
        return;
    }
    d->placingCursor = true;
    // The drop-down lets pending events run while it opens: a timer may delete this row.
    QPointer<TypeStringCombox> const self(this);
    d->combo->showPopup();
    if (!self)
        return;
    if (!d->combo->usesCustomPopup())
        d->standardUsed = true;
    list = d->activeList();

    int const current = d->combo->currentIndex() < 0 ? 0 : d->combo->currentIndex();
    QModelIndex const index = d->combo->model()->index(current, d->combo->modelColumn(), d->combo->rootModelIndex());
    if (index.isValid() && list->selectionModel())
        list->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    d->placingCursor = false;
    if (!quiet) {
        emit signalValueChanged(currentData(Qt::UserRole));
        emit signalShowPop();
    }
}

void TypeStringCombox::hidePopup() { d->combo->hidePopup(); }

int TypeStringCombox::visableCount() const { return d->combo->visibleCount(); }

int TypeStringCombox::curSelectedRow() const
{
    QAbstractItemView* list = d->activeList();
    return list ? list->currentIndex().row() : -1;
}

void TypeStringCombox::setRowSelected(int row)
{
    if (!d->valid(row)) {
        logBadIndex("setRowSelected", row, count());
        return;
    }
    QModelIndex const index = d->combo->model()->index(row, d->combo->modelColumn(), d->combo->rootModelIndex());
    QScopedValueRollback<bool> quiet(d->placingCursor, true);
    QAbstractItemView* standard = d->standardUsed ? d->combo->view() : nullptr;
    for (QAbstractItemView* list : {static_cast<QAbstractItemView*>(d->combo->getCustomListView()), standard}) {
        if (list && list->selectionModel())
            list->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    }
}

// ---------------------------------------------------------------------------
// Row settings

void TypeStringCombox::setContentDisabled(bool disabled) const
{
    d->combo->setDisabled(disabled);
    d->preLabel->setDisabled(disabled);
    d->lastLabel->setDisabled(disabled);
    for (QWidget* w : {static_cast<QWidget*>(d->combo), static_cast<QWidget*>(d->preLabel),
                       static_cast<QWidget*>(d->lastLabel)}) {
        if (w->property("Gray").toBool() != disabled)
            setStyleProperty(w, "Gray", disabled);
    }
}

void TypeStringCombox::setRightIconSize(QSize size)
{
    if (size.width() < 0 || size.height() < 0) {
        qDebug() << "[TypeStringCombox] setRightIconSize: negative size refused:" << size;
        return;
    }
    if (!sizeOk("TypeStringCombox", "setRightIconSize", size))
        return;
    CommonItemType::setRightIconSize(size);
    d->combo->setArrowSize(size);
}

void TypeStringCombox::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeStringCombox", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    int const f = contentFontSize();
    if (f > 0)
        d->combo->setFontSize(f);
    d->applyLabelFont(d->preLabel);
    d->applyLabelFont(d->lastLabel);
    initComboBoxWidth();
}

void TypeStringCombox::setItemHeight(int height)
{
    CommonItemType::setItemHeight(height);
    int const h = itemHeight();
    if (h > 0)
        d->combo->setHeight(static_cast<int>(qint64(h) * 5 / 7));  // wide: any height is safe
}

void TypeStringCombox::setHomeRect(QRect rect)
{
    CommonItemType::setHomeRect(rect);
    d->homeRect = rect;
    d->applyHomeRect();
}

void TypeStringCombox::setCurrentItem(bool current)
{
    CommonItemType::setCurrentItem(current);
    d->combo->setCurrentItem(current);
}

void TypeStringCombox::setComboBoxVisible(bool visible)
{
    d->combo->setVisible(visible);
    d->relayoutTitle();
}

void TypeStringCombox::setIconSize(QSize size)
{
    if (size.width() < 0 || size.height() < 0) {
        qDebug() << "[TypeStringCombox] setIconSize: negative size refused:" << size;
        return;
    }
    if (!sizeOk("TypeStringCombox", "setIconSize", size))
        return;
    d->combo->setIconSize(size);
}

void TypeStringCombox::setComboboxEditable(bool editable)
{
    d->lineEditable = editable;
    updateComboboxEditable();
}

void TypeStringCombox::updateComboboxEditable()
{
    QLineEdit* edit = d->combo->lineEdit();
    if (!edit)
        return;
    edit->setReadOnly(!d->lineEditable);
    d->combo->setLineEditAlign(Qt::AlignRight | Qt::AlignVCenter);
    if (contentFontSize() > 0)
        d->combo->setFontSize(contentFontSize());
}

void TypeStringCombox::initComboBoxWidth()
{
    // The value may take half the row, the title keeps the rest.
    int limit = getItemWidth() / 2;
    int const dynamicMax = getDynamicMaxWidth();
    if (dynamicMax > 0 && (limit <= 0 || dynamicMax < limit))
        limit = dynamicMax;
    d->combo->setComboBoxWidthLimit(qMax(0, limit));
}

void TypeStringCombox::setIsNeedShowCombox(bool show) { d->combo->setIsNeedShowCombox(show); }

DropCombobox* TypeStringCombox::comboBox() const { return d->combo; }

// ---------------------------------------------------------------------------
// Labels around the value

void TypeStringCombox::setPreValueLabelHidden(bool hidden)
{
    d->preLabel->setHidden(hidden);
    d->applyLabelFont(d->preLabel);
    d->relayoutTitle();
}

void TypeStringCombox::setPreValueLabelText(QString text)
{
    d->preLabel->setText(text);
    if (!d->preLabel->isHidden())
        d->relayoutTitle();
}

void TypeStringCombox::setPreValueLabelProperty(char const* name, QVariant const& value)
{
    if (!name || !*name) {
        qDebug() << "[TypeStringCombox] setPreValueLabelProperty: no property name";
        return;
    }
    setStyleProperty(d->preLabel, name, value);
}

void TypeStringCombox::setPreValueLabelUserdata(QVariant data) { d->preLabel->setProperty("userdata", data); }

QVariant TypeStringCombox::getPreValueLabelUserdata() const { return d->preLabel->property("userdata"); }

void TypeStringCombox::setPreValueLabelObjectName(QString name) { d->preLabel->setObjectName(name); }

QString TypeStringCombox::getPreValueLabelObjectName() const { return d->preLabel->objectName(); }

QLabel* TypeStringCombox::getLastLabel() { return d->lastLabel; }

void TypeStringCombox::setLastValueLabelHidden(bool hidden)
{
    d->lastLabel->setHidden(hidden);
    d->applyLabelFont(d->lastLabel);
    d->relayoutTitle();
}

void TypeStringCombox::setLastValueLabelProperty(char const* name, QVariant const& value)
{
    if (!name || !*name) {
        qDebug() << "[TypeStringCombox] setLastValueLabelProperty: no property name";
        return;
    }
    setStyleProperty(d->lastLabel, name, value);
}

// ---------------------------------------------------------------------------
// Slots and keys

void TypeStringCombox::slotComBoxActivated(int index)
{
    emit signalActivated(index);
    if (d->editing)
        d->endEdit(false);
}

void TypeStringCombox::slotComBoxIndexChanged(int index)
{
    emit signalCurrentIndexChanged(index);
    emit signalCurrentTextChanged(d->combo->itemText(index));
    emit signalValueChanged(d->combo->itemData(index, Qt::UserRole));
    notifyTextChanged();
}

bool TypeStringCombox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        int const key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape) {
            bool const wasEditing = d->editing;
            d->editing = false;
            if (!d->combo->isHidden())
                d->combo->hidePopup();
            if (wasEditing)
                returnFocusToParent(this);
            emit signalEditFinished();
            return true;
        }
        if (key == Qt::Key_Enter) {
            d->editing = false;
            emit signalEditFinished();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Widget
} // namespace LCD
