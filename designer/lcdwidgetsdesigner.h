// The Designer plug-in: one collection offering every form widget of the library.
#pragma once

#include <QObject>
#include <QSize>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <functional>
#include <vector>

namespace lcddesigner {

// One widget offered to Designer.
struct WidgetEntry
{
    char const* className; // fully qualified, as .ui files name it
    char const* group;
    char const* header;
    char const* toolTip;
    QSize size;                               // default geometry of a new instance
    std::function<QWidget*(QWidget*)> create; // with the defaults a form starts from
    char const* properties = "";              // <property> elements of a new instance
};

// Every widget the plug-in offers, in widget box order.
std::vector<WidgetEntry> const& widgetEntries();

// The widget box icon of a group.
QIcon groupIcon(QString const& group);

class WidgetInterface : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)
public:
    WidgetInterface(WidgetEntry const& entry, QObject* parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface* core) override;
    QString domXml() const override;

private:
    WidgetEntry const& m_entry;
    bool m_initialized = false;
};

class WidgetCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
public:
    explicit WidgetCollection(QObject* parent = nullptr);

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

private:
    QList<QDesignerCustomWidgetInterface*> m_widgets;
};

} // namespace lcddesigner
