#include "factorytestrightframe.h"

#include "knoblevel.h"
#include "lcdtranslate.h"
#include "stylehelper.h"

#include <dov/api.h>
#include <lcd/keyboardproxy.h>

#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>
#include <array>

namespace LCD {
namespace Widget {

namespace {
constexpr int kTBarPollMs = 50;
const std::array<QColor, 5> kColours = {QColor(255, 0, 0), QColor(0, 255, 0), QColor(0, 0, 255),
                                        QColor(255, 255, 255), QColor(0, 0, 0)};
constexpr int kPatterns = 4; // grey ramp, checkerboard, colour bars, grid

QString keyName(int key)
{
    switch (key) {
    case Qt::Key_Up: return QStringLiteral("\u2191");
    case Qt::Key_Down: return QStringLiteral("\u2193");
    case Qt::Key_Return: return lcdTranslate(QStringLiteral("Press"));
    case Qt::Key_Enter: return lcdTranslate(QStringLiteral("Enter"));
    case Qt::Key_Escape: return lcdTranslate(QStringLiteral("Back"));
    default: return QKeySequence(key).toString();
    }
}

void paintPattern(QPainter& p, QRect const& r, int pattern)
{
    int const cell = qMax(8, r.height() / 12);
    switch (pattern) {
    case 0: { // grey ramp in 16 steps
        for (int i = 0; i < 16; ++i) {
            int const x0 = r.x() + r.width() * i / 16, x1 = r.x() + r.width() * (i + 1) / 16;
            p.fillRect(QRect(x0, r.y(), x1 - x0, r.height()), QColor::fromRgb(i * 17, i * 17, i * 17));
        }
        break;
    }
    case 1: { // checkerboard
        p.fillRect(r, Qt::black);
        for (int y = 0; y * cell < r.height(); ++y)
            for (int x = (y % 2); x * cell < r.width(); x += 2)
                p.fillRect(r.x() + x * cell, r.y() + y * cell, cell, cell, Qt::white);
        break;
    }
    case 2: { // colour bars
        static const QColor bars[8] = {Qt::white, Qt::yellow, Qt::cyan, Qt::green,
                                       Qt::magenta, Qt::red, Qt::blue, Qt::black};
        for (int i = 0; i < 8; ++i) {
            int const x0 = r.x() + r.width() * i / 8, x1 = r.x() + r.width() * (i + 1) / 8;
            p.fillRect(QRect(x0, r.y(), x1 - x0, r.height()), bars[i]);
        }
        break;
    }
    default: { // grid with a border, for geometry and dead pixels
        p.fillRect(r, Qt::black);
        p.setPen(QPen(Qt::white, 1));
        for (int x = r.x(); x < r.right(); x += cell)
            p.drawLine(x, r.y(), x, r.bottom());
        for (int y = r.y(); y < r.bottom(); y += cell)
            p.drawLine(r.x(), y, r.right(), y);
        p.drawRect(r.adjusted(0, 0, -1, -1));
        break;
    }
    }
}
} // namespace

struct LCDWIDGETS_HIDDEN FactoryTestRightFrame::Impl
{
    QLabel* title = nullptr;
    QLabel* body = nullptr;
    QLabel* hint = nullptr;
    QWidget* verdictRow = nullptr;
    QLabel* pass = nullptr;
    QLabel* fail = nullptr;
    QTimer* poll = nullptr;
    KeyboardProxy* keyboard = nullptr;
    int test = -1;
    QVector<int> expected{Qt::Key_Up, Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape};
    QVector<int> seen;
    int knobTarget = 5;
    int up = 0;
    int down = 0;
    float lastLevel = 1.0f;
    int low = 50;
    int high = 950;
    int tbar = -1;
    int tbarMin = -1;
    int tbarMax = -1;
    bool haveReading = false;
    int fill = 0;
    bool lastSeen = false;
    bool full = false;
    bool verdict = false;
    bool verdictPass = true;
};

FactoryTestRightFrame::FactoryTestRightFrame(QWidget* parent) : QFrame(parent), d(std::make_unique<Impl>())
{
    setObjectName(QStringLiteral("factoryTestRightFrame"));
    setFocusPolicy(Qt::StrongFocus);
    setProperty("isFactoryTestFill", false);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 8, 12, 8);
    column->setSpacing(8);
    d->title = new QLabel(this);
    d->title->setProperty("isFactoryTestTitle", true);
    d->body = new QLabel(this);
    d->body->setProperty("isFactoryTestBody", true);
    d->body->setWordWrap(true);
    d->body->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    d->hint = new QLabel(this);
    d->hint->setProperty("isFactoryTestHint", true);
    d->hint->setWordWrap(true);
    d->verdictRow = new QWidget(this);
    auto* verdictLayout = new QHBoxLayout(d->verdictRow);
    verdictLayout->setContentsMargins(0, 0, 0, 0);
    d->pass = new QLabel(d->verdictRow);
    d->fail = new QLabel(d->verdictRow);
    for (QLabel* l : {d->pass, d->fail}) {
        l->setProperty("isFactoryTestVerdict", true);
        l->setProperty("isFactoryTestChosen", false);
        l->setAlignment(Qt::AlignCenter);
        verdictLayout->addWidget(l);
    }
    d->verdictRow->hide();
    column->addWidget(d->title);
    column->addWidget(d->body, 1);
    column->addWidget(d->verdictRow);
    column->addWidget(d->hint);
    d->poll = new QTimer(this);
    d->poll->setInterval(kTBarPollMs);
    connect(d->poll, &QTimer::timeout, this, &FactoryTestRightFrame::pollTBar);
    refresh();
}

FactoryTestRightFrame::~FactoryTestRightFrame() = default;

void FactoryTestRightFrame::startTest(int test)
{
    if (test < 0 || test >= kFactoryTestCount) {
        qWarning() << "[FactoryTestRightFrame] test index out of range:" << test;
        return;
    }
    d->poll->stop();
    if (d->test >= 0) {
        // The running test is dropped: it ends without a verdict.
        int const dropped = d->test;
        d->test = -1;
        emit signalTestFinished(dropped, int(FactoryTestResult::NotTested));
    }
    d->test = test;
    d->seen.clear();
    d->up = d->down = 0;
    d->lastLevel = 1.0f;
    d->tbar = d->tbarMin = d->tbarMax = -1;
    d->haveReading = false;
    d->fill = 0;
    d->verdict = false;
    d->verdictPass = true;
    if (test == int(FactoryTestItem::TBar)) {
        d->keyboard = dov::api::get().host ? static_cast<KeyboardProxy*>(dov::api::object(
                                                 KeyboardProxy::constants::OBJ_KEYBOARD_EVENT_NAME))
                                           : nullptr;
        readTBar();
        if (d->keyboard)
            d->poll->start();
    }
    bool const fills = test == int(FactoryTestItem::ScreenColours) || test == int(FactoryTestItem::ScreenPatterns);
    setFill(fills);
    refresh();
}

void FactoryTestRightFrame::finishTest(FactoryTestResult result)
{
    if (d->test < 0)
        return;
    int const test = d->test;
    d->test = -1;
    d->poll->stop();
    d->verdict = false;
    setFill(false);
    refresh();
    emit signalTestFinished(test, int(result));
}

int FactoryTestRightFrame::runningTest() const { return d->test; }

void FactoryTestRightFrame::setExpectedKeys(QVector<int> const& keys)
{
    if (keys.isEmpty()) {
        qWarning() << "[FactoryTestRightFrame] no keys to test";
        return;
    }
    d->expected = keys;
    refresh();
}

QVector<int> FactoryTestRightFrame::expectedKeys() const { return d->expected; }
QVector<int> FactoryTestRightFrame::seenKeys() const { return d->seen; }

void FactoryTestRightFrame::setKnobTarget(int detents)
{
    if (detents < 1 || detents > 1000) {
        qWarning() << "[FactoryTestRightFrame] invalid knob target:" << detents;
        return;
    }
    d->knobTarget = detents;
    refresh();
}

int FactoryTestRightFrame::knobTarget() const { return d->knobTarget; }
int FactoryTestRightFrame::knobUpCount() const { return d->up; }
int FactoryTestRightFrame::knobDownCount() const { return d->down; }

void FactoryTestRightFrame::setTBarRange(int low, int high)
{
    if (low >= high) {
        qWarning() << "[FactoryTestRightFrame] invalid T-bar range:" << low << high;
        return;
    }
    d->low = low;
    d->high = high;
    refresh();
}

int FactoryTestRightFrame::readTBar()
{
    if (!d->keyboard) {
        qWarning() << "_pKeyBoard is nullptr";
        return -1;
    }
    int const value = d->keyboard->tbarRead().second;
    d->tbar = value;
    d->tbarMin = d->haveReading ? qMin(d->tbarMin, value) : value;
    d->tbarMax = d->haveReading ? qMax(d->tbarMax, value) : value;
    d->haveReading = true;
    return value;
}

int FactoryTestRightFrame::tbarMinimum() const { return d->tbarMin; }
int FactoryTestRightFrame::tbarMaximum() const { return d->tbarMax; }
int FactoryTestRightFrame::fillIndex() const { return d->fill; }

int FactoryTestRightFrame::fillCount() const
{
    if (d->test == int(FactoryTestItem::ScreenColours))
        return int(kColours.size());
    return d->test == int(FactoryTestItem::ScreenPatterns) ? kPatterns : 0;
}

QColor FactoryTestRightFrame::fillColor() const
{
    return d->full && d->test == int(FactoryTestItem::ScreenColours) ? kColours[d->fill] : QColor();
}

bool FactoryTestRightFrame::isFullScreen() const { return d->full; }
bool FactoryTestRightFrame::isAskingVerdict() const { return d->verdict; }
QString FactoryTestRightFrame::bodyText() const { return d->body->text(); }

void FactoryTestRightFrame::setFill(bool full)
{
    if (full == d->full)
        return;
    d->full = full;
    d->title->setVisible(!full);
    d->body->setVisible(!full);
    d->hint->setVisible(!full);
    setStyleProperty(this, "isFactoryTestFill", full);
    emit signalFullScreen(full);
}

void FactoryTestRightFrame::pollTBar()
{
    if (d->test != int(FactoryTestItem::TBar))
        return;
    int const before = d->tbar;
    readTBar();
    if (d->haveReading && d->tbarMin <= d->low && d->tbarMax >= d->high) {
        finishTest(FactoryTestResult::Passed);
        return;
    }
    if (d->tbar != before)
        refresh();
}

void FactoryTestRightFrame::refresh()
{
    int const t = d->test;
    d->title->setText(t < 0 ? lcdTranslate(QStringLiteral("Factory test")) : factoryTestName(t));
    QString body, hint;
    switch (t) {
    case int(FactoryTestItem::Keys): {
        QStringList parts;
        for (int k : d->expected)
            parts << (d->seen.contains(k) ? QStringLiteral("[%1 \u2713]") : QStringLiteral("[%1]")).arg(keyName(k));
        body = parts.join(QLatin1Char(' '));
        hint = lcdTranslate(QStringLiteral("Press every key once"));
        break;
    }
    case int(FactoryTestItem::Knob):
        body = lcdTranslate(QStringLiteral("Up: %1 / %3\nDown: %2 / %3\nLevel: %4"))
                   .arg(d->up)
                   .arg(d->down)
                   .arg(d->knobTarget)
                   .arg(double(d->lastLevel), 0, 'g', 4);
        hint = lcdTranslate(QStringLiteral("Turn the knob both ways"));
        break;
    case int(FactoryTestItem::ScreenColours):
    case int(FactoryTestItem::ScreenPatterns):
        hint = lcdTranslate(QStringLiteral("Turn to choose, press to confirm"));
        break;
    case int(FactoryTestItem::TBar):
        body = d->keyboard ? lcdTranslate(QStringLiteral("T-bar: %1\nLowest: %2 (<= %4)\nHighest: %3 (>= %5)"))
                                 .arg(d->tbar)
                                 .arg(d->tbarMin)
                                 .arg(d->tbarMax)
                                 .arg(d->low)
                                 .arg(d->high)
                           : lcdTranslate(QStringLiteral("No T-bar reading"));
        hint = lcdTranslate(QStringLiteral("Move the T-bar to both ends"));
        break;
    default:
        hint = lcdTranslate(QStringLiteral("Choose a test and press"));
        break;
    }
    d->body->setText(body);
    d->hint->setText(hint);
    d->verdictRow->setVisible(d->verdict);
    if (d->verdict) {
        d->pass->setText(lcdTranslate(QStringLiteral("Pass")));
        d->fail->setText(lcdTranslate(QStringLiteral("Fail")));
        setStyleProperty(d->pass, "isFactoryTestChosen", d->verdictPass);
        setStyleProperty(d->fail, "isFactoryTestChosen", !d->verdictPass);
    }
}

void FactoryTestRightFrame::stepFill(int delta)
{
    int const next = qBound(0, d->fill + delta, fillCount() - 1);
    if (next != d->fill) {
        d->fill = next;
        update();
    }
}

void FactoryTestRightFrame::keyPressEvent(QKeyEvent* event)
{
    int const key = event->key();
    int const t = d->test;
    if (t < 0) {
        event->ignore();
        return;
    }
    if (d->verdict) {
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            d->verdictPass = !d->verdictPass;
            refresh();
        } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            finishTest(d->verdictPass ? FactoryTestResult::Passed : FactoryTestResult::Failed);
        } else if (key == Qt::Key_Escape) {
            finishTest(FactoryTestResult::NotTested);
        }
        return;
    }
    switch (t) {
    case int(FactoryTestItem::Keys): {
        bool const expected = d->expected.contains(key);
        if (key == Qt::Key_Escape && (!expected || d->seen.contains(key))) {
            finishTest(FactoryTestResult::Failed);
            return;
        }
        if (expected && !d->seen.contains(key)) {
            d->seen.append(key);
            if (d->seen.size() == d->expected.size()) {
                finishTest(FactoryTestResult::Passed);
                return;
            }
            refresh();
        } else if (!expected) {
            event->ignore();
        }
        return;
    }
    case int(FactoryTestItem::Knob):
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            (key == Qt::Key_Up ? d->up : d->down) += 1;
            d->lastLevel = knobLevel(event);
            if (d->up >= d->knobTarget && d->down >= d->knobTarget)
                finishTest(FactoryTestResult::Passed);
            else
                refresh();
        } else if (key == Qt::Key_Escape) {
            finishTest(FactoryTestResult::Failed);
        } else {
            event->ignore();
        }
        return;
    case int(FactoryTestItem::ScreenColours):
    case int(FactoryTestItem::ScreenPatterns):
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            stepFill(key == Qt::Key_Up ? 1 : -1);
        } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            if (d->fill + 1 < fillCount()) {
                stepFill(1);
            } else {
                d->verdict = true;
                d->verdictPass = true;
                setFill(false);
                refresh();
            }
        } else if (key == Qt::Key_Escape) {
            finishTest(FactoryTestResult::NotTested);
        } else {
            event->ignore();
        }
        return;
    case int(FactoryTestItem::TBar):
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            pollTBar();
        } else if (key == Qt::Key_Escape) {
            bool const done = d->haveReading && d->tbarMin <= d->low && d->tbarMax >= d->high;
            finishTest(done ? FactoryTestResult::Passed : FactoryTestResult::Failed);
        } else if (key != Qt::Key_Up && key != Qt::Key_Down) {
            event->ignore();
        }
        return;
    default:
        event->ignore();
    }
}

void FactoryTestRightFrame::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    QFrame::changeEvent(event);
}

void FactoryTestRightFrame::paintEvent(QPaintEvent* event)
{
    if (!d->full) {
        QFrame::paintEvent(event);
        return;
    }
    QPainter p(this);
    if (d->test == int(FactoryTestItem::ScreenColours))
        p.fillRect(rect(), kColours[d->fill]);
    else
        paintPattern(p, rect(), d->fill);
}

} // namespace Widget
} // namespace LCD
