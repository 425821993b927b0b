#include "lcdwidgetsdesigner.h"

#include <QHash>
#include <QIcon>
#include <QWidget>

namespace lcddesigner {

namespace {

// Object name of a new instance: the class name without its namespaces, first letter
// in lower case ("LCD::Widget::TypeItemText" -> "typeItemText").
QString objectNameFor(QString const& className)
{
    QString name = className.mid(className.lastIndexOf(QLatin1Char(':')) + 1);
    if (!name.isEmpty())
        name[0] = name[0].toLower();
    return name;
}

QString xmlEscaped(QString const& text) { return text.toHtmlEscaped(); }

} // namespace

QIcon groupIcon(QString const& group)
{
    static QHash<QString, QIcon> icons;
    auto it = icons.find(group);
    if (it == icons.end()) {
        // "LCD Device pages" -> ":/lcdwidgets/designer/device_pages.png"
        QString file = group.mid(4).toLower().replace(QLatin1Char(' '), QLatin1Char('_'));
        it = icons.insert(group, QIcon(QStringLiteral(":/lcdwidgets/designer/%1.png").arg(file)));
    }
    return *it;
}

WidgetInterface::WidgetInterface(WidgetEntry const& entry, QObject* parent) : QObject(parent), m_entry(entry) {}

QString WidgetInterface::name() const { return QString::fromLatin1(m_entry.className); }

QString WidgetInterface::group() const { return QString::fromLatin1(m_entry.group); }

QString WidgetInterface::toolTip() const { return QString::fromUtf8(m_entry.toolTip); }

QString WidgetInterface::whatsThis() const { return toolTip(); }

QString WidgetInterface::includeFile() const { return QString::fromLatin1(m_entry.header); }

QIcon WidgetInterface::icon() const { return groupIcon(group()); }

bool WidgetInterface::isContainer() const { return false; }

QWidget* WidgetInterface::createWidget(QWidget* parent)
{
    QWidget* widget = m_entry.create(parent);
    // The bars keep their parent for the focus only: on a form they are its children.
    if (widget && widget->parentWidget() != parent)
        widget->setParent(parent);
    return widget;
}

bool WidgetInterface::isInitialized() const { return m_initialized; }

void WidgetInterface::initialize(QDesignerFormEditorInterface*) { m_initialized = true; }

QString WidgetInterface::domXml() const
{
    QString const cls = xmlEscaped(name());
    return QStringLiteral("<ui language=\"c++\">\n"
                          " <widget class=\"%1\" name=\"%2\">\n"
                          "  <property name=\"geometry\">\n"
                          "   <rect><x>0</x><y>0</y><width>%3</width><height>%4</height></rect>\n"
                          "  </property>\n"
                          "%5"
                          " </widget>\n"
                          "</ui>\n")
        .arg(cls, objectNameFor(name()))
        .arg(m_entry.size.width())
        .arg(m_entry.size.height())
        .arg(QString::fromUtf8(m_entry.properties));
}

WidgetCollection::WidgetCollection(QObject* parent) : QObject(parent)
{
    for (WidgetEntry const& entry : widgetEntries())
        m_widgets.append(new WidgetInterface(entry, this));
}

QList<QDesignerCustomWidgetInterface*> WidgetCollection::customWidgets() const { return m_widgets; }

} // namespace lcddesigner
