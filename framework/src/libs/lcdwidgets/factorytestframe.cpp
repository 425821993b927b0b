#include "factorytestframe.h"

#include <QDebug>
#include <QHBoxLayout>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN FactoryTestFrame::Impl
{
    FactoryTestLeftFrame* left = nullptr;
    FactoryTestRightFrame* right = nullptr;
};

FactoryTestFrame::FactoryTestFrame(QWidget* parent) : QFrame(parent), d(std::make_unique<Impl>())
{
    setObjectName(QStringLiteral("factoryTestFrame"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    d->left = new FactoryTestLeftFrame(this);
    d->right = new FactoryTestRightFrame(this);
    row->addWidget(d->left, 1);
    row->addWidget(d->right, 2);
    setFocusProxy(d->left);

    connect(d->left, &FactoryTestLeftFrame::signalTestChosen, this, &FactoryTestFrame::startTest);
    connect(d->left, &FactoryTestLeftFrame::signalSummaryChanged, this, &FactoryTestFrame::signalSummaryChanged);
    connect(d->right, &FactoryTestRightFrame::signalFullScreen, this, [this](bool full) {
        d->left->setVisible(!full);
        if (full && d->right->hasFocus() == false && hasFocus())
            d->right->setFocus(Qt::OtherFocusReason);
    });
    connect(d->right, &FactoryTestRightFrame::signalTestFinished, this, [this](int test, int result) {
        bool const hadFocus = d->right->hasFocus();
        if (result != int(FactoryTestResult::NotTested))
            d->left->setResult(test, FactoryTestResult(result));
        if (hadFocus)
            d->left->setFocus(Qt::OtherFocusReason);
        emit signalTestFinished(test, result);
    });
}

FactoryTestFrame::~FactoryTestFrame() = default;

FactoryTestLeftFrame* FactoryTestFrame::leftFrame() const { return d->left; }
FactoryTestRightFrame* FactoryTestFrame::rightFrame() const { return d->right; }

void FactoryTestFrame::startTest(int test)
{
    if (test < 0 || test >= kFactoryTestCount) {
        qWarning() << "[FactoryTestFrame] test index out of range:" << test;
        return;
    }
    d->left->setCurrentTest(test);
    bool const hadFocus = d->left->hasFocus() || d->right->hasFocus();
    d->right->startTest(test);
    if (hadFocus)
        d->right->setFocus(Qt::OtherFocusReason);
    emit signalTestStarted(test);
}

bool FactoryTestFrame::isTestRunning() const { return d->right->runningTest() >= 0; }

FactoryTestResult FactoryTestFrame::result(int test) const { return d->left->result(test); }

void FactoryTestFrame::resetResults() { d->left->resetResults(); }

} // namespace Widget
} // namespace LCD
