// The plug-in contract: the information record, the host API handle before and
// after pluginit, the lookup of the keyboard proxy, and translation through the
// host's catalogue.
#include "fakehost.h"
#include "leakcheck.h"

#include <dov/api.h>
#include <lcd/keyboardproxy.h>
#include <lcdfwtranslatemanager.h>
#include <lcdwidgets.h>

#include <QLibrary>
#include <QSignalSpy>
#include <QtTest>
#include <cstring>
#include <map>
#include <string>

namespace {

struct Record
{
    char const* interfaceVersion;
    void* componentTable;
    char const* name;
    char const* version;
    char const* description;
};

// A widget that re-translates on a language change, as pages do.
class Page : public QWidget
{
public:
    QString text = LCD::Widget::lcdTranslate(QStringLiteral("Reset"));
    int changes = 0;

protected:
    void changeEvent(QEvent* e) override
    {
        if (e->type() == QEvent::LanguageChange) {
            ++changes;
            text = LCD::Widget::lcdTranslate(QStringLiteral("Reset"));
        }
        QWidget::changeEvent(e);
    }
};

} // namespace

class TestPlugin : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void recordThroughQLibrary();
    void hostApiBeforeAndAfterPluginit();
    void constants();
    void translationRoundTrip();
};

void TestPlugin::recordThroughQLibrary()
{
    QLibrary lib(QStringLiteral(LCDWIDGETS_LIBRARY_FILE));
    QVERIFY2(lib.load(), qPrintable(lib.errorString()));
    auto info = reinterpret_cast<void* (*)()>(lib.resolve("pluginfo"));
    auto init = reinterpret_cast<void (*)(void*)>(lib.resolve("pluginit"));
    QVERIFY(info);
    QVERIFY(init);

    auto const* record = static_cast<Record const*>(info());
    QCOMPARE(info(), static_cast<void*>(const_cast<Record*>(record))); // same record every call
    QCOMPARE(sizeof(Record), 5 * sizeof(void*));
    QCOMPARE(QByteArray(record->interfaceVersion), QByteArray("0.1"));
    QCOMPARE(QByteArray(record->name), QByteArray("lcdwidgets"));
    QCOMPARE(QByteArray(record->version), QByteArray("0.1.0"));
    QCOMPARE(QByteArray(record->description), QByteArray("{\"desc\":\"lcdwidgets info!\",\"end\":0 }"));
    QVERIFY(record->componentTable != nullptr);
    QCOMPARE(*static_cast<void**>(record->componentTable), nullptr);
}

void TestPlugin::hostApiBeforeAndAfterPluginit()
{
    // Before pluginit: a null API, no proxy.
    dov::api& handle = dov::api::get();
    QCOMPARE(handle.host, nullptr);
    QCOMPARE(handle.reserved[0], nullptr);
    QCOMPARE(handle.reserved[1], nullptr);
    QCOMPARE(dov::api::object(LCD::KeyboardProxy::constants::OBJ_KEYBOARD_EVENT_NAME), nullptr);

    FakeHost host;
    FakeProxy proxy;
    proxy.position = 512;
    host.registerObject(LCD::KeyboardProxy::constants::OBJ_KEYBOARD_EVENT_NAME, &proxy);
    pluginit(&host);
    QCOMPARE(&dov::api::get(), &handle);
    QCOMPARE(handle.host, static_cast<dov::IHostApi*>(&host));

    void* found = dov::api::object("lcdKeyboardEvent");
    QCOMPARE(found, static_cast<void*>(&proxy));
    QCOMPARE(static_cast<LCD::KeyboardProxy*>(found)->tbarRead().second, 512);
    QCOMPARE(dov::api::object("noSuchObject"), nullptr);

    pluginit(nullptr);
    QCOMPARE(dov::api::get().host, nullptr);
}

void TestPlugin::constants()
{
    using LCD::KeyboardProxy;
    QCOMPARE(KeyboardProxy::longScreenPNG.size(), size_t(5));
    QCOMPARE(KeyboardProxy::longScreenPNG.at(KeyboardProxy::eAreaModuleType(3)),
             std::string("./../share/themes/default/images/preset_bg.png"));
    QCOMPARE(KeyboardProxy::CodeUp, std::string("\u2191"));
    QCOMPARE(LCD::ProtocolImpl::constants::ItemKey_NM_LANGUAGE, QStringLiteral("hm.language"));
    QCOMPARE(LCD::ProtocolImpl::constants::ItemKey_NM_ADVANCED_DEVICEWORKMODEITEM,
             QStringLiteral("nm.advanced.workmode.deviceworkmodeitem"));
    // Every image the proxy names is in the theme (the tests run from bin/).
    for (auto const& entry : KeyboardProxy::longScreenPNG)
        QVERIFY2(QFile::exists(QString::fromStdString(entry.second)), entry.second.c_str());
    QVERIFY(QFile::exists(QString::fromStdString(KeyboardProxy::backupAndGlobalImage)));
}

void TestPlugin::translationRoundTrip()
{
    LCDFWTranslateManager* manager = LCDFWTranslateManager::instance();
    Page page;
    QCOMPARE(page.text, QStringLiteral("Reset")); // no catalogue: the source text

    QVERIFY(!manager->setLanguage(QStringLiteral("/nonexistent/catalogue.qm")));
    QVERIFY(manager->setLanguage(QStringLiteral(LCDWIDGETS_TEST_DATA "/lcdwidgets_test_zh.qm")));
    QCoreApplication::processEvents();
    QVERIFY(page.changes >= 1);
    QCOMPARE(page.text, QStringLiteral("重置"));
    QCOMPARE(LCD::Widget::lcdTranslate(QStringLiteral("Apply")), QStringLiteral("应用"));
    QCOMPARE(LCD::Widget::lcdTranslate(QStringLiteral("Unknown text")), QStringLiteral("Unknown text"));
    // The context matters: the same source under another context is another text.
    QCOMPARE(selvik::trans::translate(manager->translator(), QStringLiteral("Other"), QString(), QStringLiteral("Reset")),
             QStringLiteral("复位"));
    // The catalogue also serves tr().
    QCOMPARE(QCoreApplication::translate("LCD::MenuWidgets", "Apply"), QStringLiteral("应用"));

    manager->resetLanguage();
    QCoreApplication::processEvents();
    QCOMPARE(page.text, QStringLiteral("Reset"));
}

QTEST_MAIN(TestPlugin)
#include "tst_plugin.moc"
