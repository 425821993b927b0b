#include "aboutpage.h"

#include "knoblevel.h"
#include "lcdtranslate.h"
#include "stylehelper.h"
#include "typekeyvaluetext.h"

#include <QDebug>
#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <cmath>

namespace LCD {
namespace Widget {

namespace {
char const* const kWho = "[AboutPage]";
constexpr int kDefaultFontSize = 20;
} // namespace

struct LCDWIDGETS_HIDDEN AboutPage::Impl
{
    struct Row
    {
        TypeKeyValueText* item = nullptr;
        QString source;   // the key as given (untranslated for the standard rows)
        bool translated = false;
        QString value;
    };

    QScrollArea* scroll = nullptr;
    QWidget* list = nullptr;
    QVBoxLayout* layout = nullptr;
    QList<Row> rows;
    int current = -1;
    int fontSize = kDefaultFontSize;
    int width = 0;

    bool valid(int index) const { return index >= 0 && index < rows.size(); }
    QString shownKey(Row const& row) const { return row.translated ? lcdTranslate(row.source) : row.source; }
    static QString shownValue(QString const& value) { return value.isEmpty() ? QStringLiteral("-") : value; }
};

AboutPage::AboutPage(QWidget* parent) : QFrame(parent), d(new Impl)
{
    setObjectName(QStringLiteral("aboutPage"));
    setProperty("isAboutPage", true);
    setFocusPolicy(Qt::StrongFocus);

    d->scroll = new QScrollArea(this);
    d->scroll->setObjectName(QStringLiteral("aboutPageScroll"));
    d->scroll->setFrameShape(QFrame::NoFrame);
    d->scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    d->scroll->setFocusPolicy(Qt::NoFocus);
    d->scroll->setWidgetResizable(true);
    d->scroll->verticalScrollBar()->setObjectName(QStringLiteral("aboutPageScrollBar"));
    d->list = new QWidget;
    d->list->setObjectName(QStringLiteral("aboutPageRows"));
    d->layout = new QVBoxLayout(d->list);
    d->layout->setContentsMargins(0, 0, 0, 0);
    d->layout->setSpacing(0);
    d->layout->addStretch();
    d->scroll->setWidget(d->list);
    d->scroll->viewport()->installEventFilter(this);

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(d->scroll);
}

AboutPage::~AboutPage() = default;

void AboutPage::setModel(QString const& model)
{
    setRow(QStringLiteral(QT_TRANSLATE_NOOP("LCD::MenuWidgets", "Model")), true, model, "setModel");
}

void AboutPage::setSoftwareVersion(QString const& version)
{
    setRow(QStringLiteral(QT_TRANSLATE_NOOP("LCD::MenuWidgets", "Software version")), true, version, "setSoftwareVersion");
}

void AboutPage::setHardwareVersion(QString const& version)
{
    setRow(QStringLiteral(QT_TRANSLATE_NOOP("LCD::MenuWidgets", "Hardware version")), true, version, "setHardwareVersion");
}

void AboutPage::setSerialNumber(QString const& serial)
{
    setRow(QStringLiteral(QT_TRANSLATE_NOOP("LCD::MenuWidgets", "Serial number")), true, serial, "setSerialNumber");
}

void AboutPage::setIpAddress(QString const& address)
{
    setRow(QStringLiteral(QT_TRANSLATE_NOOP("LCD::MenuWidgets", "IP address")), true, address, "setIpAddress");
}

void AboutPage::setMacAddress(QString const& address)
{
    setRow(QStringLiteral(QT_TRANSLATE_NOOP("LCD::MenuWidgets", "MAC address")), true, address, "setMacAddress");
}

int AboutPage::setInfo(QString const& key, QString const& value)
{
    if (key.trimmed().isEmpty()) {
        qWarning().noquote() << kWho << "setInfo: empty key refused";
        return -1;
    }
    return setRow(key, false, value, "setInfo");
}

int AboutPage::setRow(QString const& source, bool translated, QString const& value, char const* who)
{
    int index = -1;
    for (int i = 0; i < d->rows.size(); ++i)
        if (d->rows.at(i).source == source) {
            index = i;
            break;
        }
    if (index >= 0) {
        setInfoAt(index, value);
        return index;
    }
    if (d->rows.size() >= kMaxRows) {
        qWarning().noquote() << kWho << QString::fromLatin1(who) + QLatin1Char(':') << "at most" << kMaxRows << "rows";
        return -1;
    }
    Impl::Row row;
    row.source = source;
    row.translated = translated;
    row.value = value;
    row.item = new TypeKeyValueText(d->list);
    row.item->setProperty("isAboutRow", true);
    row.item->setProperty("isAboutCurrent", false);
    row.item->setFocusPolicy(Qt::NoFocus);
    row.item->setContentFontSize(d->fontSize);
    d->layout->insertWidget(d->rows.size(), row.item);
    d->rows.append(row);
    index = d->rows.size() - 1;
    row.item->setKeyValueText(d->shownKey(row), Impl::shownValue(value));
    fitRow(index);
    if (d->current < 0) {
        d->current = 0;
        markCurrent(0, true);
    }
    return index;
}

bool AboutPage::setInfoAt(int index, QString const& value)
{
    if (!d->valid(index)) {
        qWarning().noquote() << kWho << "setInfoAt: no row" << index << QStringLiteral("(%1 rows)").arg(d->rows.size());
        return false;
    }
    Impl::Row& row = d->rows[index];
    if (row.value == value)
        return true;
    row.value = value;
    row.item->setLabelValue(Impl::shownValue(value), 0);
    fitRow(index);
    return true;
}

bool AboutPage::removeInfo(QString const& key)
{
    int const index = indexOf(key);
    if (index < 0) {
        qWarning().noquote() << kWho << "removeInfo: no row" << QStringLiteral("\"%1\"").arg(key);
        return false;
    }
    delete d->rows.takeAt(index).item;
    int const before = d->current;
    if (d->rows.isEmpty())
        d->current = -1;
    else if (index < d->current)
        --d->current;
    else if (index == d->current)
        d->current = qMin(index, d->rows.size() - 1);
    markCurrent(d->current, true);
    if (d->current != before || index == before)
        emit signalCurrentChanged(d->current);
    return true;
}

void AboutPage::clear()
{
    for (Impl::Row const& row : qAsConst(d->rows))
        delete row.item;
    d->rows.clear();
    if (d->current != -1) {
        d->current = -1;
        emit signalCurrentChanged(-1);
    }
}

int AboutPage::count() const { return d->rows.size(); }

int AboutPage::indexOf(QString const& key) const
{
    for (int i = 0; i < d->rows.size(); ++i) {
        Impl::Row const& row = d->rows.at(i);
        if (row.source == key || (row.translated && d->shownKey(row) == key))
            return i;
    }
    return -1;
}

QString AboutPage::key(int index) const { return d->valid(index) ? d->shownKey(d->rows.at(index)) : QString(); }

QString AboutPage::value(int index) const { return d->valid(index) ? d->rows.at(index).value : QString(); }

TypeKeyValueText* AboutPage::item(int index) const { return d->valid(index) ? d->rows.at(index).item : nullptr; }

int AboutPage::currentIndex() const { return d->current; }

void AboutPage::setCurrentIndex(int index)
{
    if (!d->valid(index)) {
        qWarning().noquote() << kWho << "setCurrentIndex: no row" << index
                             << QStringLiteral("(%1 rows)").arg(d->rows.size());
        return;
    }
    if (index == d->current)
        return;
    markCurrent(d->current, false);
    d->current = index;
    markCurrent(index, true);
    d->scroll->ensureWidgetVisible(d->rows.at(index).item, 0, 0);
    emit signalCurrentChanged(index);
}

void AboutPage::markCurrent(int index, bool current)
{
    if (!d->valid(index))
        return;
    TypeKeyValueText* item = d->rows.at(index).item;
    item->setCurrentItem(current);
    setStyleProperty(item, "isAboutCurrent", current);
}

void AboutPage::setContentFontSize(int size)
{
    if (size <= 0 || size > 1024) { // no panel font is larger
        qWarning().noquote() << kWho << "setContentFontSize: size" << size << "refused";
        return;
    }
    d->fontSize = qMin(size, 512);
    for (int i = 0; i < d->rows.size(); ++i) {
        d->rows.at(i).item->setContentFontSize(d->fontSize);
        fitRow(i);
    }
}

int AboutPage::contentFontSize() const { return d->fontSize; }

void AboutPage::fitRow(int index)
{
    TypeKeyValueText* item = d->rows.at(index).item;
    if (d->width > 0)
        item->setItemWidth(d->width);
    int const lines = qMax(1, item->getWidgetRow());
    int const lineHeight = d->fontSize * 7 / 5;
    item->setFixedHeight(qMax(d->fontSize * 14 / 5, lineHeight * lines + d->fontSize));
}

void AboutPage::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
        event->accept();
        if (d->rows.isEmpty())
            return;
        float const level = std::fabs(knobLevel(event));
        int const steps = level >= float(kMaxRows) ? kMaxRows : qMax(1, int(std::lround(level)));
        int const next = event->key() == Qt::Key_Up ? qMax(0, d->current - steps)
                                                     : qMin(d->rows.size() - 1, d->current + steps);
        setCurrentIndex(next);
        return;
    }
    case Qt::Key_Escape:
        event->accept();
        emit signalBack();
        return;
    default:
        QFrame::keyPressEvent(event);
    }
}

bool AboutPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->scroll->viewport() && event->type() == QEvent::Resize) {
        int const width = d->scroll->viewport()->width();
        if (width != d->width) {
            d->width = width;
            for (int i = 0; i < d->rows.size(); ++i)
                fitRow(i);
        }
    }
    return QFrame::eventFilter(watched, event);
}

void AboutPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        for (int i = 0; i < d->rows.size(); ++i) {
            Impl::Row const& row = d->rows.at(i);
            if (row.translated) {
                row.item->setKeyValueText(d->shownKey(row), Impl::shownValue(row.value));
                fitRow(i);
            }
        }
    }
    QFrame::changeEvent(event);
}

} // namespace Widget
} // namespace LCD
