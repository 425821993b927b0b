// Base of every test object: counts the live widgets before each test function and
// fails the function when some are still alive after it (after the function's
// deleteLater()s have run). A top-level window or a dialog left behind is a leak the
// leak sanitizer never reports, because Qt still holds it in its widget list.
//
// Derive the test class from LeakCheckedTest instead of QObject. A test class with an
// init() or cleanup() of its own calls startLeakCheck() first in its init() and
// endLeakCheck() last in its cleanup().
#pragma once

#include <QApplication>
#include <QObject>
#include <QHash>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <QtTest>

class LeakCheckedTest : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    void startLeakCheck()
    {
        flushDeferredDeletes();
        m_before.clear();
        for (QWidget* w : QApplication::allWidgets())
            m_before.insert(w, w);
        m_checking = true;
    }

    void endLeakCheck()
    {
        if (!m_checking)
            return;
        m_checking = false;
        flushDeferredDeletes();
        QStringList left;
        for (QWidget* w : QApplication::allWidgets()) {
            if (wasAlive(w) || isQtInternal(w))
                continue;
            // Report the top of each new tree only: its children go with it.
            if (w->parentWidget() && !wasAlive(w->parentWidget()) && !isQtInternal(w->parentWidget()))
                continue;
            left << QStringLiteral("%1 \"%2\"%3")
                        .arg(QString::fromLatin1(w->metaObject()->className()), w->objectName(),
                             w->isVisible() ? QStringLiteral(" (visible)") : QString());
        }
        // A function that failed already may have returned early; its leftovers are not news.
        if (!left.isEmpty() && !QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("widgets left alive by the test: %1").arg(left.join(QStringLiteral(", ")))));
    }

protected slots:
    void init() { startLeakCheck(); }
    void cleanup() { endLeakCheck(); }

private:
    // Alive before the function, and not a new widget that took a deleted one's address.
    bool wasAlive(QWidget* w) const { return m_before.value(w) == w; }

    static void flushDeferredDeletes()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // Widgets Qt makes for itself and keeps (the desktop) or deletes on its own timer
    // (the tool tip).
    static bool isQtInternal(QWidget* w)
    {
        QByteArray const cls = w->metaObject()->className();
        return cls == "QDesktopWidget" || cls == "QDesktopScreenWidget" || cls == "QTipLabel";
    }

    QHash<QWidget*, QPointer<QWidget>> m_before;
    bool m_checking = false;
};
