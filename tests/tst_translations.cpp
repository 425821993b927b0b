// The library's texts and its zh_CN catalogue: every text the library passes to a
// translation call (in every context it uses) has a finished translation that keeps
// the text's place markers, the catalogue holds nothing the library no longer says,
// and switching the language turns representative widgets to Chinese and back live.
#include <lcdfwtranslatemanager.h>
#include <lcdwidgets.h>

#include "leakcheck.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QtTest>
#include <map>
#include <set>

using namespace LCD::Widget;

namespace {

QString const kLibraryContext = QStringLiteral("LCD::MenuWidgets");
QString const kGroup = QStringLiteral("Global");
QString const kCatalogue = QStringLiteral(LCDWIDGETS_TS_DIR "/lcdwidgets_zh_CN.ts");
QString const kBuiltCatalogue = QStringLiteral(LCDWIDGETS_QM_DIR "/lcdwidgets_zh_CN.qm");

// A text of the library: its translation context and English source.
struct Text
{
    QString context;
    QString source;
    QString where; // file:line of its first use
    bool operator<(Text const& o) const { return std::tie(context, source) < std::tie(o.context, o.source); }
};

QString describe(QString const& context, QString const& source)
{
    QString s = source;
    s.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return QStringLiteral("[%1] \"%2\"").arg(context, s);
}

// ---- Reading the sources ------------------------------------------------------------

// The source with its comments blanked (string literals kept, line numbers kept).
QString withoutComments(QString const& code)
{
    QString out = code;
    int i = 0;
    int const n = code.size();
    while (i < n) {
        QChar const c = code.at(i);
        if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            for (++i; i < n && code.at(i) != c; ++i)
                if (code.at(i) == QLatin1Char('\\'))
                    ++i;
            ++i;
        } else if (code.midRef(i, 2) == QLatin1String("//")) {
            for (; i < n && code.at(i) != QLatin1Char('\n'); ++i)
                out[i] = QLatin1Char(' ');
        } else if (code.midRef(i, 2) == QLatin1String("/*")) {
            int const end = code.indexOf(QLatin1String("*/"), i + 2);
            int const stop = end < 0 ? n : end + 2;
            for (; i < stop; ++i)
                if (code.at(i) != QLatin1Char('\n'))
                    out[i] = QLatin1Char(' ');
        } else {
            ++i;
        }
    }
    return out;
}

// Reads the C++ string literal (and any literals adjacent to it) starting at `pos`,
// which must point at a double quote. Returns false when there is none.
bool readLiteral(QString const& code, int pos, QString* text)
{
    text->clear();
    bool any = false;
    for (;;) {
        while (pos < code.size() && code.at(pos).isSpace())
            ++pos;
        if (pos >= code.size() || code.at(pos) != QLatin1Char('"'))
            return any;
        any = true;
        for (++pos; pos < code.size() && code.at(pos) != QLatin1Char('"'); ++pos) {
            QChar c = code.at(pos);
            if (c == QLatin1Char('\\') && pos + 1 < code.size()) {
                QChar const e = code.at(++pos);
                if (e == QLatin1Char('n'))
                    c = QLatin1Char('\n');
                else if (e == QLatin1Char('t'))
                    c = QLatin1Char('\t');
                else if (e == QLatin1Char('u') && pos + 4 < code.size()) {
                    c = QChar(code.mid(pos + 1, 4).toUShort(nullptr, 16));
                    pos += 4;
                } else
                    c = e;
            }
            text->append(c);
        }
        ++pos;
    }
}

// The class whose member function holds `pos` (the last definition "X::f(" that
// begins a line before it), qualified with the library's namespace.
QString enclosingClass(QString const& code, int pos, bool inNamespace)
{
    static QRegularExpression const definition(QStringLiteral("^(?=\\S)[^\\n;]*?\\b(\\w+)::(?:(\\w+)::)?~?\\w+\\s*\\("),
                                               QRegularExpression::MultilineOption);
    QString cls;
    auto it = definition.globalMatch(code.left(pos));
    while (it.hasNext()) {
        QRegularExpressionMatch const m = it.next();
        cls = m.captured(2).isEmpty() ? m.captured(1) : m.captured(1) + QLatin1String("::") + m.captured(2);
    }
    if (cls.isEmpty())
        return QString();
    return inNamespace ? QLatin1String("LCD::Widget::") + cls : cls;
}

int lineOf(QString const& code, int pos) { return code.leftRef(pos).count(QLatin1Char('\n')) + 1; }

struct Scan
{
    std::set<Text> texts;
    QStringList problems;      // calls the scan cannot follow
    QStringList indirectCalls; // file: calls whose text comes from elsewhere
};

void scanCode(QString const& fileName, QString const& raw, Scan* scan)
{
    QString const code = withoutComments(raw);
    bool const inNamespace = code.contains(QLatin1String("namespace Widget"));
    auto add = [&](QString const& context, QString const& source, int pos) {
        scan->texts.insert({context, source, QStringLiteral("%1:%2").arg(fileName).arg(lineOf(code, pos))});
    };

    // lcdTranslate(QStringLiteral("...")) and keyedText(QStringLiteral("key"), ...): the library's context.
    static QRegularExpression const library(QStringLiteral(
        "\\b(lcdTranslate|keyedText)\\(\\s*(QStringLiteral\\(|QLatin1String\\(|QString::fromLatin1\\(|QString::fromUtf8\\()?\\s*"));
    for (auto it = library.globalMatch(code); it.hasNext();) {
        QRegularExpressionMatch const m = it.next();
        QString text;
        if (readLiteral(code, m.capturedEnd(), &text))
            add(kLibraryContext, text, m.capturedStart());
        else
            scan->indirectCalls << QStringLiteral("%1:%2").arg(fileName).arg(lineOf(code, m.capturedStart()));
    }
    // tr("..."): the context of the class it is called in.
    static QRegularExpression const trCall(QStringLiteral("\\btr\\(\\s*"));
    for (auto it = trCall.globalMatch(code); it.hasNext();) {
        QRegularExpressionMatch const m = it.next();
        QString text;
        if (!readLiteral(code, m.capturedEnd(), &text)) {
            scan->indirectCalls << QStringLiteral("%1:%2").arg(fileName).arg(lineOf(code, m.capturedStart()));
            continue;
        }
        QString const context = enclosingClass(code, m.capturedStart(), inNamespace);
        if (context.isEmpty())
            scan->problems << QStringLiteral("%1:%2: tr() outside a member function")
                                  .arg(fileName)
                                  .arg(lineOf(code, m.capturedStart()));
        else
            add(context, text, m.capturedStart());
    }
    // QT_TRANSLATE_NOOP("context", "...") and QCoreApplication::translate("context", "...").
    static QRegularExpression const marked(QStringLiteral("\\b(QT_TRANSLATE_NOOP|translate)\\(\\s*(?=\")"));
    for (auto it = marked.globalMatch(code); it.hasNext();) {
        QRegularExpressionMatch const m = it.next();
        int pos = m.capturedEnd();
        QString context;
        readLiteral(code, pos, &context);
        pos = code.indexOf(QLatin1Char(','), pos + context.size() + 1);
        QString text;
        if (pos > 0 && readLiteral(code, pos + 1, &text))
            add(context, text, m.capturedStart());
        else
            scan->problems << QStringLiteral("%1:%2: unreadable %3").arg(fileName).arg(lineOf(code, m.capturedStart())).arg(m.captured(1));
    }
}

// Texts of a Designer form: its <string>s, in the context of the form's class.
void scanForm(QString const& fileName, QByteArray const& xml, Scan* scan)
{
    QXmlStreamReader reader(xml);
    QString context;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("class") && context.isEmpty()) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("string")) {
            bool const notr = reader.attributes().value(QLatin1String("notr")) == QLatin1String("true");
            int const line = int(reader.lineNumber());
            QString const text = reader.readElementText();
            if (!notr && !text.isEmpty())
                scan->texts.insert({context, text, QStringLiteral("%1:%2").arg(fileName).arg(line)});
        }
    }
    if (reader.hasError())
        scan->problems << QStringLiteral("%1: %2").arg(fileName, reader.errorString());
}

Scan scanLibrary()
{
    Scan scan;
    QDir const dir(QStringLiteral(LCDWIDGETS_SOURCE_DIR));
    QStringList const files = dir.entryList({QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.ui")},
                                            QDir::Files, QDir::Name);
    for (QString const& name : files) {
        QFile file(dir.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            scan.problems << QStringLiteral("cannot read %1").arg(name);
            continue;
        }
        QByteArray const bytes = file.readAll();
        if (name.endsWith(QLatin1String(".ui")))
            scanForm(name, bytes, &scan);
        else
            scanCode(name, QString::fromUtf8(bytes), &scan);
    }
    return scan;
}

// ---- Reading the catalogue ------------------------------------------------------------

struct Entry
{
    QString context;
    QString source;
    QString comment;
    QString translation;
    QString type; // "", "unfinished", "obsolete", "vanished"
    int line = 0;
};

QList<Entry> readCatalogue(QString const& path, QString* error)
{
    QList<Entry> entries;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read %1").arg(path);
        return entries;
    }
    QXmlStreamReader reader(&file);
    QString context;
    Entry entry;
    while (!reader.atEnd()) {
        QXmlStreamReader::TokenType const token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            if (reader.name() == QLatin1String("name"))
                context = reader.readElementText();
            else if (reader.name() == QLatin1String("message"))
                entry = Entry{context, {}, {}, {}, {}, int(reader.lineNumber())};
            else if (reader.name() == QLatin1String("source"))
                entry.source = reader.readElementText();
            else if (reader.name() == QLatin1String("comment"))
                entry.comment = reader.readElementText();
            else if (reader.name() == QLatin1String("translation")) {
                entry.type = reader.attributes().value(QLatin1String("type")).toString();
                entry.translation = reader.readElementText(QXmlStreamReader::IncludeChildElements);
            }
        } else if (token == QXmlStreamReader::EndElement && reader.name() == QLatin1String("message")) {
            entries << entry;
        }
    }
    if (reader.hasError())
        *error = QStringLiteral("%1:%2: %3").arg(path).arg(reader.lineNumber()).arg(reader.errorString());
    return entries;
}

// The place markers (%1, %2, ...) of a text, sorted.
QStringList markers(QString const& text)
{
    static QRegularExpression const marker(QStringLiteral("%\\d+"));
    QStringList list;
    for (auto it = marker.globalMatch(text); it.hasNext();)
        list << it.next().captured();
    list.sort();
    return list;
}

// lcdTranslate() looks its text up with the group "Global" and then without; tr() only without.
bool serves(Entry const& e, Text const& t)
{
    if (e.context != t.context || e.source != t.source)
        return false;
    return e.comment.isEmpty() || (t.context == kLibraryContext && e.comment == kGroup);
}

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

} // namespace

class TestTranslations : public LeakCheckedTest
{
    Q_OBJECT

private slots:
    void scanFindsEveryKindOfCall();
    void everyTextHasAFinishedTranslation();
    void catalogueHoldsNoStaleOrUnfinishedEntries();
    void languageSwitchesLiveAndBack();
    void widgetsMadeInChineseStartInChinese();
    void hostTextsAreLeftAlone();
};

void TestTranslations::scanFindsEveryKindOfCall()
{
    Scan const scan = scanLibrary();
    QVERIFY2(scan.problems.isEmpty(), qPrintable(scan.problems.join(QLatin1Char('\n'))));
    auto has = [&](QString const& context, QString const& source) {
        return scan.texts.count({context, source, {}}) == 1;
    };
    // One text of each kind of call the library makes.
    QVERIFY(has(kLibraryContext, QStringLiteral("Invalid IP address")));          // lcdTranslate
    QVERIFY(has(kLibraryContext, QStringLiteral("Select\nSwitcher")));            // an escaped newline
    QVERIFY(has(kLibraryContext, QStringLiteral("TBarCorrectOperStart")));        // a keyed text
    QVERIFY(has(kLibraryContext, QStringLiteral("Subnet Mask")));                 // marked, shown later
    QVERIFY(has(QStringLiteral("LCD::Widget::ProgressBarCtr"), QStringLiteral("Succeed"))); // tr()
    QVERIFY(has(QStringLiteral("LCD::Widget::TypeReset"), QStringLiteral("Reset")));
    QVERIFY(has(QStringLiteral("LCD::Widget::NumberPad"), QStringLiteral("IP Address:"))); // the form
    // Comments are not code: a usage example in a header is not a library text.
    QVERIFY(!has(QStringLiteral("LCD::Widget::AboutPage"), QStringLiteral("Uptime")));
    QVERIFY2(scan.texts.size() >= 70, qPrintable(QString::number(scan.texts.size())));

    // A text handed to a translation call through a variable escapes the scan unless
    // the file marks its texts with QT_TRANSLATE_NOOP where they are written.
    QStringList unmarked;
    for (QString const& call : scan.indirectCalls) {
        QString const file = call.section(QLatin1Char(':'), 0, 0);
        // The translation calls themselves: their callers give the literals.
        if (file == QLatin1String("textkeys_p.h") || file.startsWith(QLatin1String("lcdtranslate.")))
            continue;
        QFile f(QStringLiteral(LCDWIDGETS_SOURCE_DIR "/") + file);
        QVERIFY(f.open(QIODevice::ReadOnly));
        if (!f.readAll().contains("QT_TRANSLATE_NOOP"))
            unmarked << call;
    }
    QVERIFY2(unmarked.isEmpty(), qPrintable(QStringLiteral("translation calls on unmarked texts: ") +
                                            unmarked.join(QStringLiteral(", "))));
}

void TestTranslations::everyTextHasAFinishedTranslation()
{
    Scan const scan = scanLibrary();
    QString error;
    QList<Entry> const entries = readCatalogue(kCatalogue, &error);
    QVERIFY2(error.isEmpty(), qPrintable(error));

    QStringList missing;
    for (Text const& t : scan.texts) {
        auto const it = std::find_if(entries.begin(), entries.end(), [&](Entry const& e) {
            return serves(e, t) && e.type.isEmpty() && !e.translation.isEmpty();
        });
        if (it == entries.end()) {
            missing << QStringLiteral("%1 (%2)").arg(describe(t.context, t.source), t.where);
        } else if (markers(it->translation) != markers(t.source)) {
            missing << QStringLiteral("%1: the translation \"%2\" changes the place markers")
                           .arg(describe(t.context, t.source), it->translation);
        }
    }
    QVERIFY2(missing.isEmpty(), qPrintable(QStringLiteral("%1 text(s) without a finished zh_CN translation:\n  %2")
                                               .arg(missing.size())
                                               .arg(missing.join(QStringLiteral("\n  ")))));
}

void TestTranslations::catalogueHoldsNoStaleOrUnfinishedEntries()
{
    Scan const scan = scanLibrary();
    QString error;
    QList<Entry> const entries = readCatalogue(kCatalogue, &error);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    QVERIFY(!entries.isEmpty());

    QStringList stale;
    std::set<std::pair<QString, QString>> seen;
    for (Entry const& e : entries) {
        QString const what = QStringLiteral("%1 (line %2)").arg(describe(e.context, e.source)).arg(e.line);
        if (!e.type.isEmpty())
            stale << QStringLiteral("%1 is %2").arg(what, e.type);
        else if (e.translation.trimmed().isEmpty())
            stale << QStringLiteral("%1 has an empty translation").arg(what);
        bool const used = std::any_of(scan.texts.begin(), scan.texts.end(), [&](Text const& t) { return serves(e, t); });
        if (!used)
            stale << QStringLiteral("%1 is no longer a library text").arg(what);
        if (!seen.insert({e.context + QLatin1Char('\x1f') + e.comment, e.source}).second)
            stale << QStringLiteral("%1 is there twice").arg(what);
    }
    QVERIFY2(stale.isEmpty(), qPrintable(QStringLiteral("stale catalogue entries:\n  ") + stale.join(QStringLiteral("\n  "))));
}

void TestTranslations::languageSwitchesLiveAndBack()
{
    QRect const panel(0, 0, 800, 480);
    ReminderDialog dialog(ReminderDialog::Question, panel);
    QPushButton* ok = dialog.addButton(QDialogButtonBox::YesRole);
    QPushButton* cancel = dialog.addButton(QDialogButtonBox::NoRole);
    QWidget page;
    auto* seconds = new TypeIntAdjust(SuffixSecond, QuitKeepValue, &page);
    seconds->setRange(0, 10);
    seconds->setLabelValue(QVariant(3));
    auto* box = seconds->findChild<NQSpinBox*>();
    QVERIFY(box);
    auto* bar = new ResetApplyWidget(Enum::ResetAndApplyButton, nullptr);
    bar->setParent(&page);
    auto* progress = new ProgressBarCtr(panel, &page);
    progress->setFinish();
    auto* tbar = new TypeItemTBarCalibration(&page);
    auto* about = new AboutPage(&page);
    about->setModel(QStringLiteral("VS-840"));
    auto* network = new NetworkSettings(&page);

    QCOMPARE(ok->text(), QStringLiteral("OK"));
    QCOMPARE(box->text(), QStringLiteral("3s"));

    LCDFWTranslateManager* manager = LCDFWTranslateManager::instance();
    QVERIFY2(manager->setLanguage(kBuiltCatalogue), qPrintable(kBuiltCatalogue));
    settle();
    QCOMPARE(ok->text(), QStringLiteral("确定"));
    QCOMPARE(cancel->text(), QStringLiteral("取消"));
    QCOMPARE(box->text(), QStringLiteral("3秒"));
    QCOMPARE(box->value(), 3);
    QCOMPARE(bar->getResetButton()->text(), QStringLiteral("重置"));
    QCOMPARE(bar->getApplyButton()->text(), QStringLiteral("应用"));
    QCOMPARE(progress->valueText(), QStringLiteral("成功"));
    QCOMPARE(tbar->actionButton()->text(), QStringLiteral("开始"));
    QCOMPARE(about->key(0), QStringLiteral("型号"));
    QCOMPARE(network->applyButton()->text(), QStringLiteral("应用"));
    QCOMPARE(network->resetButton()->text(), QStringLiteral("恢复默认"));

    manager->resetLanguage();
    settle();
    QCOMPARE(ok->text(), QStringLiteral("OK"));
    QCOMPARE(cancel->text(), QStringLiteral("Cancel"));
    QCOMPARE(box->text(), QStringLiteral("3s"));
    QCOMPARE(bar->getResetButton()->text(), QStringLiteral("Reset"));
    QCOMPARE(progress->valueText(), QStringLiteral("Succeed"));
    QCOMPARE(tbar->actionButton()->text(), QStringLiteral("Start"));
    QCOMPARE(about->key(0), QStringLiteral("Model"));
    QCOMPARE(network->resetButton()->text(), QStringLiteral("Restore Defaults"));
}

void TestTranslations::widgetsMadeInChineseStartInChinese()
{
    LCDFWTranslateManager* manager = LCDFWTranslateManager::instance();
    QVERIFY(manager->setLanguage(kBuiltCatalogue));
    settle();
    {
        BottomButtomFrame frame(Enum::BottomButtonType(Enum::BottomOk | Enum::BottomCancel), nullptr);
        QCOMPARE(frame.button(Enum::BottomOk)->text(), QStringLiteral("确定"));
        QCOMPARE(frame.button(Enum::BottomCancel)->text(), QStringLiteral("取消"));
        ReminderDialog dialog(ReminderDialog::Warning, QRect(0, 0, 800, 480));
        QCOMPARE(dialog.addButton(QDialogButtonBox::ActionRole)->text(), QStringLiteral("详情"));
        NQDoubleSpinBox box(SuffixSecond);
        QCOMPARE(box.suffix(), QStringLiteral("秒"));
    }
    manager->resetLanguage();
    settle();
}

void TestTranslations::hostTextsAreLeftAlone()
{
    QWidget page;
    auto* about = new AboutPage(&page);
    // A key the host gives is the host's text: shown as given in every language, even
    // when it happens to be one of the library's own words.
    about->setInfo(QStringLiteral("Gateway"), QStringLiteral("192.168.0.1"));
    auto* row = new TypeIntAdjust(SuffixNone, QuitKeepValue, &page);
    row->setItemTitle(QStringLiteral("Apply"));
    auto* progress = new ProgressBarCtr(QRect(0, 0, 800, 480), &page);
    progress->setError(QStringLiteral("Cancel"));

    LCDFWTranslateManager* manager = LCDFWTranslateManager::instance();
    QVERIFY(manager->setLanguage(kBuiltCatalogue));
    settle();
    QCOMPARE(about->key(0), QStringLiteral("Gateway"));
    QCOMPARE(row->itemTitle(), QStringLiteral("Apply"));
    QCOMPARE(progress->valueText(), QStringLiteral("Cancel"));
    manager->resetLanguage();
    settle();
    QCOMPARE(about->key(0), QStringLiteral("Gateway"));
}

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
