#include "typeinputbackupcombox.h"

#include "typestringcombox.h"

#include <QDebug>

namespace LCD {
namespace Widget {

TypeInputBackupCombox::TypeInputBackupCombox(QWidget* parent, bool haveArrow) : TypeItemDoubleCombox(parent, haveArrow)
{
    connect(firstCombox(), &StringComboxBaseType::signalCurrentIndexChanged, this, [this] { syncBackup(); });
    connect(secondCombox(), &StringComboxBaseType::signalCurrentIndexChanged, this,
            &TypeInputBackupCombox::signalBackupIndexChanged);
}

TypeInputBackupCombox::~TypeInputBackupCombox() = default;

void TypeInputBackupCombox::syncBackup()
{
    TypeStringCombox* backup = secondCombox();
    int const input = firstCombox()->currentIndex();
    int const n = backup->count();
    for (int i = 0; i < n; ++i) {
        bool const hide = i == input || m_hidden.value(i, false);
        if (backup->itemData(i, kHiddenRowRole).toBool() != hide)
            backup->setRowHidden(i, hide);
    }
    int const current = backup->currentIndex();
    if (current < 0 || isBackupCandidate(current))
        return;
    int next = -1;
    for (int i = 0; i < n && next < 0; ++i)
        if (isBackupCandidate(i))
            next = i;
    backup->setCurrentIndex(next);
}

bool TypeInputBackupCombox::isBackupCandidate(int index) const
{
    return index >= 0 && index < secondCombox()->count() && index != firstCombox()->currentIndex()
        && !m_hidden.value(index, false);
}

void TypeInputBackupCombox::addItem(QString const& text, QVariant const& userData)
{
    firstCombox()->addItem(text, userData);
    secondCombox()->addItem(text, userData);
    m_hidden.append(false);
    syncBackup();
}

void TypeInputBackupCombox::removeItem(int index)
{
    int const before = count();
    firstCombox()->removeItem(index); // logs a bad index
    if (count() == before)
        return;
    secondCombox()->removeItem(index);
    m_hidden.removeAt(index);
    syncBackup();
}

void TypeInputBackupCombox::insertItem(int index, QString const& text, QVariant const& userData)
{
    int const before = count();
    firstCombox()->insertItem(index, text, userData);
    if (count() == before)
        return;
    secondCombox()->insertItem(index, text, userData);
    m_hidden.insert(index, false);
    syncBackup();
}

void TypeInputBackupCombox::setItemText(int index, QString const& text)
{
    firstCombox()->setItemText(index, text);
    if (index >= 0 && index < count())
        secondCombox()->setItemText(index, text);
}

void TypeInputBackupCombox::updateItems(std::list<std::pair<int, QString>>& items)
{
    firstCombox()->updateItems(items);
    secondCombox()->updateItems(items);
}

void TypeInputBackupCombox::clear()
{
    firstCombox()->clear();
    secondCombox()->clear();
    m_hidden.clear();
}

void TypeInputBackupCombox::setItemData(int index, QVariant value, int role)
{
    if (index < 0 || index >= count()) {
        firstCombox()->setItemData(index, value, role); // logs
        return;
    }
    if (role == kHiddenRowRole) {
        setRowHidden(index, value.toBool());
        return;
    }
    firstCombox()->setItemData(index, value, role);
    secondCombox()->setItemData(index, value, role);
}

void TypeInputBackupCombox::setRowHidden(int index, bool hidden)
{
    if (index < 0 || index >= count()) {
        firstCombox()->setRowHidden(index, hidden); // logs
        return;
    }
    firstCombox()->setRowHidden(index, hidden);
    m_hidden[index] = hidden;
    syncBackup();
}

int TypeInputBackupCombox::backupIndex() const { return secondCombox()->currentIndex(); }
QString TypeInputBackupCombox::backupText() const { return secondCombox()->currentText(); }
QVariant TypeInputBackupCombox::backupData(int role) const { return secondCombox()->currentData(role); }

void TypeInputBackupCombox::setBackupIndex(int index)
{
    if (index != -1 && index >= 0 && index < count() && index == currentIndex()) {
        qDebug() << "[TypeInputBackupCombox] setBackupIndex: the backup can't be the input itself";
        return;
    }
    secondCombox()->setCurrentIndex(index); // logs a bad index
}

void TypeInputBackupCombox::setBackupText(QString const& text)
{
    int const index = findText(text);
    if (index < 0) {
        qDebug() << "[TypeInputBackupCombox] setBackupText: no such input";
        return;
    }
    if (index == currentIndex()) {
        qDebug() << "[TypeInputBackupCombox] setBackupText: the backup can't be the input itself";
        return;
    }
    secondCombox()->setCurrentIndex(index);
}

void TypeInputBackupCombox::setBackupUserData(QVariant const& data)
{
    int const index = findData(data);
    if (index < 0) {
        qDebug() << "[TypeInputBackupCombox] setBackupUserData: no such input";
        return;
    }
    if (index == currentIndex()) {
        qDebug() << "[TypeInputBackupCombox] setBackupUserData: the backup can't be the input itself";
        return;
    }
    secondCombox()->setCurrentIndex(index);
}

} // namespace Widget
} // namespace LCD
