// Test host for the editor tests: a page that holds rows or editors, takes the focus
// back after edits and records the keys that reach it; a recorder of a row's
// protocol signals; and a watch that fails a test on any Qt warning about bad
// geometry, fonts, colours or connections (the library must check its input
// before it reaches Qt).
#pragma once

#include <lcdwidgets.h>

#include <QApplication>
#include <QKeyEvent>
#include <QStringList>
#include <QVBoxLayout>
#include <QtTest>

namespace EditorTest {

class Page : public QWidget
{
public:
    // `size`: the page's size (an invalid one: what its layout makes it);
    // `atOrigin`: placed at the screen's top left, where the host's frame is.
    explicit Page(QSize size = QSize(800, 400), bool atOrigin = false)
    {
        setFocusPolicy(Qt::StrongFocus);
        new QVBoxLayout(this);
        if (atOrigin)
            setGeometry(QRect(QPoint(0, 0), size));
        else if (size.isValid())
            resize(size);
    }
    template <typename W>
    W* add(W* w)
    {
        layout()->addWidget(w);
        if constexpr (std::is_base_of<LCD::Widget::CommonItemType, W>::value) {
            w->setItemTitleWidth(768);
            w->setItemHeight(56);
            w->setContentFontSize(20);
            w->setItemTitle(QStringLiteral("Value"));
        }
        return w;
    }
    bool start()
    {
        show();
        QApplication::setActiveWindow(this);
        if (!QTest::qWaitForWindowActive(this))
            return false;
        setFocus();
        return hasFocus();
    }
    QList<int> pressed;
    int released = 0;

protected:
    void keyPressEvent(QKeyEvent* e) override { pressed << e->key(); }
    void keyReleaseEvent(QKeyEvent*) override { ++released; }
};

struct Recorder
{
    QStringList log;
    explicit Recorder(LCD::Widget::CommonItemType* row)
    {
        using LCD::Widget::CommonItemType;
        QObject::connect(row, &CommonItemType::signalEditStarted, [this] { log << "started"; });
        QObject::connect(row, &CommonItemType::signalValueChanged, [this](QVariant v) {
            QString text = v.toString();
            if (v.type() == QVariant::List) {
                QStringList parts;
                for (QVariant const& x : v.toList())
                    parts << x.toString();
                text = parts.join(',');
            } else if (v.type() == QVariant::Color) {
                text = v.value<QColor>().name();
            }
            log << QStringLiteral("value:%1").arg(text);
        });
        QObject::connect(row, &CommonItemType::signalSpinBoxValueChanged,
                         [this](int i, QVariant v) { log << QStringLiteral("field%1:%2").arg(i).arg(v.toInt()); });
        QObject::connect(row, &CommonItemType::signalCloseEditStatus, [this] { log << "close"; });
        QObject::connect(row, &CommonItemType::signalEditFinished, [this] { log << "finished"; });
    }
};

// Counts Qt's own complaints; chained in front of the test framework's handler so
// that QTest::ignoreMessage keeps working.
struct QtWarningWatch
{
    static int& count()
    {
        static int n = 0;
        return n;
    }
    static QtMessageHandler& previous()
    {
        static QtMessageHandler h = nullptr;
        return h;
    }
    static void handler(QtMsgType type, QMessageLogContext const& context, QString const& message)
    {
        static QStringList const prefixes = {QStringLiteral("QWidget::"), QStringLiteral("QFont::"),
                                             QStringLiteral("QColor::"),  QStringLiteral("QObject::"),
                                             QStringLiteral("QLayout::"), QStringLiteral("QProgressBar"),
                                             QStringLiteral("QAbstractSpinBox")};
        if (type == QtWarningMsg) {
            for (QString const& p : prefixes)
                if (message.startsWith(p))
                    ++count();
        }
        if (previous())
            previous()(type, context, message);
    }
    static void install() { previous() = qInstallMessageHandler(handler); }
};

} // namespace EditorTest
