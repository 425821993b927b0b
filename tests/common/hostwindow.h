// Host windows for the tests: a shown, active top-level window as the host's page
// is, so that focus moves as on the panel; and one that holds a single row.
#pragma once

#include <QApplication>
#include <QVBoxLayout>
#include <QWidget>
#include <QtTest>
#include <memory>

namespace HostWindow {

// How the window takes part in the focus: not at all, as a page that can take the
// focus back, or as one that has it from the start.
enum Focus { NoFocus, CanFocus, HasFocus };

inline std::unique_ptr<QWidget> activeHost(QSize size, Focus focus)
{
    auto host = std::make_unique<QWidget>();
    if (focus != NoFocus)
        host->setFocusPolicy(Qt::StrongFocus);
    host->resize(size);
    host->show();
    QApplication::setActiveWindow(host.get());
    if (!QTest::qWaitForWindowActive(host.get()))
        qWarning("host window not active");
    if (focus == HasFocus)
        host->setFocus();
    return host;
}

// A window holding one row (title width `titleWidth`, font size 20), of `size` or
// of what its layout makes it.
template <typename Row>
struct RowPage
{
    QWidget window;
    Row* row = nullptr;
    explicit RowPage(int titleWidth, QSize size = QSize())
    {
        window.setFocusPolicy(Qt::StrongFocus);
        auto* l = new QVBoxLayout(&window);
        row = new Row(&window);
        row->setItemTitleWidth(titleWidth);
        row->setContentFontSize(20);
        l->addWidget(row);
        if (size.isValid())
            window.resize(size);
    }
    bool start()
    {
        window.show();
        QApplication::setActiveWindow(&window);
        if (!QTest::qWaitForWindowActive(&window))
            return false;
        window.setFocus();
        return true;
    }
};

} // namespace HostWindow
