// The Designer plug-in as Designer and QUiLoader use it: the collection loads, every
// widget it offers describes itself (group, tool tip, icon, header, a well-formed
// domXml naming it), is created, and keeps the properties written through its
// meta-object; a form read by QUiLoader keeps the properties it sets.
#include "leakcheck.h"
#include "ui_designerform.h"

#include <lcdwidgets.h>

#include <QFile>
#include <QFileInfo>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QRegularExpression>
#include <QUiLoader>
#include <QXmlStreamReader>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <memory>

using namespace LCD::Widget;

namespace {

QStringList const kGroups = {QStringLiteral("LCD Rows"),        QStringLiteral("LCD Lists"),
                             QStringLiteral("LCD Editors"),     QStringLiteral("LCD Controls"),
                             QStringLiteral("LCD Instruments"), QStringLiteral("LCD Device pages")};

// Qt's own classes: a 'Q' name outside any namespace (ours are in LCD::Widget, or
// are the global labels).
bool isQtClass(QMetaObject const* mo)
{
    QString const name = QString::fromLatin1(mo->className());
    return name.startsWith(QLatin1Char('Q')) && !name.contains(QLatin1String("::"));
}

// The properties declared by the library's classes in `mo`'s ancestry.
QList<QMetaProperty> ownProperties(QMetaObject const* mo)
{
    QList<QMetaProperty> result;
    for (QMetaObject const* m = mo; m && !isQtClass(m); m = m->superClass())
        for (int i = m->propertyOffset(); i < m->propertyCount(); ++i)
            result.prepend(m->property(i));
    return result;
}

// A value other than `v` that the property should take as it is.
QVariant changedValue(QObject const* object, QMetaProperty const& p, QVariant const& v)
{
    QString const key = QString::fromLatin1(object->metaObject()->className()) + QLatin1Char('.') +
                        QString::fromLatin1(p.name());
    // Values the widget checks: an address must be one.
    static QHash<QString, QVariant> const special = {
        {QStringLiteral("LCD::Widget::IPLineEdit.ipText"), QStringLiteral("192.168.1.20")},
        {QStringLiteral("LCD::Widget::IPEdit.ipText"), QStringLiteral("10.0.0.7")},
        {QStringLiteral("LCD::Widget::TypeGraphicWidget.picture"),
         QStringLiteral("./../share/themes/default/images/check_on.png")},
        // A character set keeps each character once.
        {QStringLiteral("LCD::Widget::QMLineEdit.characterSet"), QStringLiteral("0123456789")},
    };
    if (special.contains(key))
        return special.value(key);
    switch (p.userType()) {
    case QMetaType::Bool:
        return !v.toBool();
    case QMetaType::Int:
        return v.toInt() < 0 ? 24 : v.toInt() + 1; // -1: "not set"
    case QMetaType::Double:
        return v.toDouble() + 1.0;
    case QMetaType::QString:
        return v.toString() + QStringLiteral("Edited");
    case QMetaType::QStringList:
        return QStringList{QStringLiteral("X"), QStringLiteral("Y")};
    case QMetaType::QColor:
        return v.value<QColor>() == QColor(Qt::red) ? QColor(Qt::blue) : QColor(Qt::red);
    case QMetaType::QSize: {
        QSize const s = v.toSize();
        return s.isValid() ? s + QSize(10, 10) : QSize(40, 30);
    }
    default:
        return QVariant();
    }
}

// Messages logged while a block runs; Qt's own warnings ("QWidget::setMinimumSize:
// ...") mean that a value reached Qt unchecked.
struct MessageLog
{
    MessageLog()
    {
        s_log = this;
        m_previous = qInstallMessageHandler(&MessageLog::handle);
    }
    ~MessageLog()
    {
        qInstallMessageHandler(m_previous);
        s_log = nullptr;
    }
    QStringList qtWarnings() const
    {
        static QRegularExpression const qtSource(QStringLiteral("^Q[A-Za-z]+::[A-Za-z]+"));
        QStringList result;
        for (QString const& m : messages)
            if (qtSource.match(m).hasMatch())
                result << m;
        return result;
    }
    QStringList messages;

private:
    static void handle(QtMsgType, QMessageLogContext const&, QString const& message)
    {
        if (s_log)
            s_log->messages << message;
    }
    static MessageLog* s_log;
    QtMessageHandler m_previous = nullptr;
};
MessageLog* MessageLog::s_log = nullptr;

// Settings some properties depend on: a z-order needs layers to move among.
void prepare(QWidget* widget)
{
    if (auto* layers = qobject_cast<TypeZOrderItemMore*>(widget))
        layers->setLayerCount(4);
}

} // namespace

class TestDesignerPlugin : public LeakCheckedTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void collectionCoversTheGroups();
    void widgetDescribesItself_data();
    void widgetDescribesItself();
    void widgetKeepsItsProperties_data();
    void widgetKeepsItsProperties();
    void enumPropertiesTakeEveryKey();
    void formKeepsItsProperties();
    void uicFormKeepsItsProperties();

private:
    QDesignerCustomWidgetInterface* widget(QString const& name) const;
    void addWidgetRows();
    void checkForm(QWidget* form);

    QPluginLoader m_loader;
    QList<QDesignerCustomWidgetInterface*> m_widgets;
};

void TestDesignerPlugin::initTestCase()
{
    m_loader.setFileName(QStringLiteral(LCDWIDGETS_DESIGNER_PLUGIN));
    QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(m_loader.instance());
    QVERIFY(collection);
    m_widgets = collection->customWidgets();
    QVERIFY(!m_widgets.isEmpty());
}

QDesignerCustomWidgetInterface* TestDesignerPlugin::widget(QString const& name) const
{
    for (QDesignerCustomWidgetInterface* w : m_widgets)
        if (w->name() == name)
            return w;
    return nullptr;
}

void TestDesignerPlugin::collectionCoversTheGroups()
{
    QSet<QString> names;
    QSet<QString> groups;
    for (QDesignerCustomWidgetInterface* w : m_widgets) {
        QVERIFY2(!names.contains(w->name()), qPrintable(w->name() + QStringLiteral(" offered twice")));
        names.insert(w->name());
        QVERIFY2(kGroups.contains(w->group()), qPrintable(w->name() + QStringLiteral(": ") + w->group()));
        groups.insert(w->group());
    }
    QCOMPARE(groups.size(), kGroups.size());
    // Form widgets only: dialogs are opened by their static helpers, not placed on forms.
    for (QString const& name : names)
        QVERIFY2(!name.contains(QLatin1String("Dialog")) || name.startsWith(QLatin1String("LCD::Widget::Type")),
                 qPrintable(name));
    for (char const* expected : {"LCD::Widget::TypeIntAdjust", "LCD::Widget::TypeItemSwitch",
                                 "LCD::Widget::TypeStringCombox", "LCD::Widget::DashBoardWidget",
                                 "LCD::Widget::NetworkSettings", "RollLabel"})
        QVERIFY2(names.contains(QString::fromLatin1(expected)), expected);
}

void TestDesignerPlugin::addWidgetRows()
{
    QTest::addColumn<QString>("name");
    for (QDesignerCustomWidgetInterface* w : m_widgets)
        QTest::newRow(qPrintable(w->name())) << w->name();
}

void TestDesignerPlugin::widgetDescribesItself_data() { addWidgetRows(); }

void TestDesignerPlugin::widgetDescribesItself()
{
    QFETCH(QString, name);
    QDesignerCustomWidgetInterface* w = widget(name);
    QVERIFY(w);
    QVERIFY(!w->toolTip().isEmpty());
    QVERIFY(!w->whatsThis().isEmpty());
    QVERIFY(!w->icon().isNull());
    QVERIFY(!w->icon().pixmap(QSize(22, 22)).isNull());
    QVERIFY(!w->isContainer());
    // The header a uic-generated form includes is a public header of the library.
    QVERIFY2(!w->includeFile().endsWith(QLatin1String("_p.h")), qPrintable(w->includeFile()));
    QVERIFY2(QFileInfo::exists(QStringLiteral(LCDWIDGETS_HEADER_DIR "/") + w->includeFile()),
             qPrintable(w->includeFile()));

    // domXml: well formed, one widget of this class with a name and a geometry.
    QXmlStreamReader xml(w->domXml());
    int widgets = 0;
    bool geometry = false;
    QStringList properties;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("widget")) {
            ++widgets;
            QCOMPARE(xml.attributes().value(QLatin1String("class")).toString(), name);
            QVERIFY(!xml.attributes().value(QLatin1String("name")).isEmpty());
        } else if (xml.name() == QLatin1String("property")) {
            QString const property = xml.attributes().value(QLatin1String("name")).toString();
            if (property == QLatin1String("geometry"))
                geometry = true;
            else
                properties << property;
        }
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QCOMPARE(widgets, 1);
    QVERIFY(geometry);

    // A created widget is of the class named, and has the properties the domXml sets.
    w->initialize(nullptr);
    QVERIFY(w->isInitialized());
    std::unique_ptr<QWidget> created(w->createWidget(nullptr));
    QVERIFY(created);
    QCOMPARE(QString::fromLatin1(created->metaObject()->className()), name);
    for (QString const& property : properties)
        QVERIFY2(created->metaObject()->indexOfProperty(property.toLatin1().constData()) >= 0,
                 qPrintable(property));
    // Each class declares a property once (Designer would list a second one twice).
    for (QMetaObject const* m = created->metaObject(); m && !isQtClass(m); m = m->superClass()) {
        QSet<QByteArray> declared;
        for (int i = m->propertyOffset(); i < m->propertyCount(); ++i) {
            QByteArray const property = m->property(i).name();
            QVERIFY2(!declared.contains(property), qPrintable(QStringLiteral("%1.%2 declared twice")
                                                                  .arg(QLatin1String(m->className()),
                                                                       QLatin1String(property))));
            declared.insert(property);
        }
    }
}

void TestDesignerPlugin::widgetKeepsItsProperties_data() { addWidgetRows(); }

void TestDesignerPlugin::widgetKeepsItsProperties()
{
    QFETCH(QString, name);
    QDesignerCustomWidgetInterface* w = widget(name);
    QVERIFY(w);
    QWidget parent;
    QWidget* created = w->createWidget(&parent);
    QVERIFY(created);
    QCOMPARE(created->parentWidget(), &parent);
    prepare(created);

    MessageLog log;
    for (QMetaProperty const& p : ownProperties(created->metaObject())) {
        QByteArray const what = name.toLatin1() + '.' + p.name();
        QVERIFY2(p.isReadable(), what.constData());
        QVERIFY2(p.isDesignable(), what.constData());
        QVariant const original = p.read(created);
        QVERIFY2(original.isValid(), what.constData());
        if (!p.isWritable())
            continue;
        // What was read is written back unchanged.
        QVERIFY2(p.write(created, original), what.constData());
        QVERIFY2(p.read(created) == original, what.constData());
        if (p.isEnumType())
            continue; // enumPropertiesTakeEveryKey
        QVariant const changed = changedValue(created, p, original);
        QVERIFY2(changed.isValid(), (what + ": a type the test does not know").constData());
        QVERIFY2(p.write(created, changed), what.constData());
        QVERIFY2(p.read(created) == changed,
                 qPrintable(QStringLiteral("%1: wrote %2, read %3")
                                .arg(QString::fromLatin1(what), changed.toString(), p.read(created).toString())));
        // Designer's empty value (0, "", false, no colour) must be taken safely; then
        // the original goes back, for the properties that depend on this one.
        p.write(created, QVariant(p.userType(), nullptr));
        p.read(created);
        p.write(created, original);
    }
    QVERIFY2(log.qtWarnings().isEmpty(), qPrintable(log.qtWarnings().join(QLatin1Char('\n'))));
}

void TestDesignerPlugin::enumPropertiesTakeEveryKey()
{
    int checked = 0;
    QWidget parent;
    for (QDesignerCustomWidgetInterface* w : m_widgets) {
        QWidget* created = w->createWidget(&parent);
        prepare(created);
        QList<QMetaProperty> const properties = ownProperties(created->metaObject());
        // The other settings before each key: some keys need them (a custom tag needs
        // its colour, which the other kinds drop).
        auto const primeOthers = [&] {
            for (QMetaProperty const& p : properties)
                if (p.isWritable() && !p.isEnumType())
                    p.write(created, changedValue(created, p, p.read(created)));
        };
        for (QMetaProperty const& p : properties) {
            if (!p.isEnumType())
                continue;
            QMetaEnum const e = p.enumerator();
            QVERIFY(e.isValid());
            QVERIFY(e.keyCount() > 1);
            if (!p.isWritable())
                continue;
            // By key, as a .ui file gives it, and read back as the key's value.
            for (int i = 0; i < e.keyCount(); ++i) {
                primeOthers();
                QVERIFY(p.write(created, QString::fromLatin1(e.key(i))));
                QCOMPARE(p.read(created).toInt(), e.value(i));
            }
            ++checked;
        }
    }
    QVERIFY(checked >= 2);
}

void TestDesignerPlugin::formKeepsItsProperties()
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QFileInfo(QStringLiteral(LCDWIDGETS_DESIGNER_PLUGIN)).absolutePath());
    for (char const* cls : {"LCD::Widget::TypeIntAdjust", "LCD::Widget::TypeFrameTag", "LCD::Widget::DashBoardWidget"})
        QVERIFY2(loader.availableWidgets().contains(QString::fromLatin1(cls)), cls);

    QFile file(QStringLiteral(LCDWIDGETS_DESIGNER_FORM));
    QVERIFY(file.open(QIODevice::ReadOnly));
    std::unique_ptr<QWidget> form(loader.load(&file));
    QVERIFY2(form, qPrintable(loader.errorString()));
    checkForm(form.get());
}

// The form compiled by uic sets the properties through the setters named after them.
void TestDesignerPlugin::uicFormKeepsItsProperties()
{
    QWidget form;
    Ui::SettingsForm ui;
    ui.setupUi(&form);
    QCOMPARE(ui.brightness->parentWidget(), &form);
    checkForm(&form);
}

void TestDesignerPlugin::checkForm(QWidget* form)
{
    auto* brightness = form->findChild<TypeIntAdjust*>(QStringLiteral("brightness"));
    QVERIFY(brightness);
    QCOMPARE(brightness->itemTitle(), QStringLiteral("Brightness"));
    QCOMPARE(brightness->contentFontSize(), 24);
    QCOMPARE(brightness->minimum(), -10);
    QCOMPARE(brightness->maximum(), 50);
    QCOMPARE(brightness->singleStep(), 5);
    QCOMPARE(brightness->value(), 42);

    auto* gain = form->findChild<TypeFloatAdjust*>(QStringLiteral("gain"));
    QVERIFY(gain);
    QCOMPARE(gain->decimals(), 2);
    QCOMPARE(gain->maximum(), 4.0);
    QCOMPARE(gain->value(), 1.25);

    auto* tally = form->findChild<TypeItemSwitch*>(QStringLiteral("tally"));
    QVERIFY(tally);
    QCOMPARE(tally->itemTitle(), QStringLiteral("Tally"));
    QVERIFY(tally->getToggle());

    auto* layer = form->findChild<TypeFrameTag*>(QStringLiteral("layer"));
    QVERIFY(layer);
    QCOMPARE(layer->tagText(), QStringLiteral("PVW"));
    QCOMPARE(layer->tagKind(), TypeFrameTag::Preview);

    auto* level = form->findChild<DashBoardWidget*>(QStringLiteral("level"));
    QVERIFY(level);
    QCOMPARE(level->max(), 200.0);
    QCOMPARE(level->value(), 75.0);
    QCOMPARE(level->unit(), QStringLiteral("dB"));
    QCOMPARE(level->arcColor(), QColor(255, 138, 0));
}

QTEST_MAIN(TestDesignerPlugin)
#include "tst_designerplugin.moc"
