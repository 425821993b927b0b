// Editors: text and number line edits, several values in one row, a list of value
// editors, a colour and a progress row, all worked with the knob. Press to edit,
// Up/Down to turn, press again to move on (to the next character, field or item),
// Escape to leave; the value reached stays.
#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QHBoxLayout>

using namespace LCD::Widget;

namespace {

// A titled editor widget hosted as one row of the page, as a host would do it: the
// press starts the widget's edit, its end gives the knob back to the page.
class HostedRow : public CommonItemType
{
public:
    HostedRow(QWidget* parent, QWidget* widget, std::function<void()> start)
        : CommonItemType(parent), m_widget(widget), m_start(std::move(start))
    {
        rightIconButton()->hide();
        setItemTitleLabelHide(true);
        widget->setParent(dynamicFrame());
        dynamicLayout()->addWidget(widget, 1);
    }
    void editValue() override
    {
        if (!canEdit(m_widget))
            return;
        m_start();
    }
    void ended()
    {
        QWidget* focus = QApplication::focusWidget();
        if (parentWidget() && (!focus || isAncestorOf(focus)))
            parentWidget()->setFocus(Qt::OtherFocusReason);
        emit signalCloseEditStatus();
        emit signalEditFinished();
    }
    void setContentDisabled(bool disabled) const override { m_widget->setDisabled(disabled); }

private:
    QWidget* m_widget;
    std::function<void()> m_start;
};

HostedRow* hostDouble(ItemPage* page, QDoubleLineEditWidget* widget, QString const& title)
{
    auto* row = new HostedRow(page->list(), widget, [widget] { widget->startEdit(); });
    row->setItemTitle(title); // the page's status line names the row
    QObject::connect(widget, &QDoubleLineEditWidget::signalEditStarted, row, [row] { emit row->signalEditStarted(); });
    QObject::connect(widget, &QDoubleLineEditWidget::signalValueChanged, row,
                     [row](double v) { emit row->signalValueChanged(QVariant(v)); });
    QObject::connect(widget, &QDoubleLineEditWidget::signalEditFinished, row, [row] { row->ended(); });
    page->addItem(row);
    return row;
}

HostedRow* hostSignal(ItemPage* page, QSignalLineEditWidget* widget, QString const& title)
{
    auto* row = new HostedRow(page->list(), widget, [widget] { widget->startEdit(); });
    row->setItemTitle(title);
    QObject::connect(widget, &QSignalLineEditWidget::signalEditStarted, row, [row] { emit row->signalEditStarted(); });
    QObject::connect(widget, &QSignalLineEditWidget::signalTextEdited, row,
                     [row](QString const& t) { emit row->signalValueChanged(QVariant(t)); });
    QObject::connect(widget, &QSignalLineEditWidget::signalEditFinished, row, [row] { row->ended(); });
    page->addItem(row);
    return row;
}

} // namespace

ItemPage* buildEditorsPage(GalleryContext&)
{
    auto* page = new ItemPage(QObject::tr("Editors"));

    page->addSection(QObject::tr("Text (turn to pick each character, press to move on)"));
    auto* name = new LineEditorWidget(page->list());
    name->setItemTitle(QObject::tr("Device name"));
    name->setTextMaxLength(12);
    name->setLabelValue(QStringLiteral("Studio A"));
    page->addItem(name);
    auto* port = new LineEditorWidget(page->list(), LineEditorWidget::PadText);
    port->setItemTitle(QObject::tr("Control port (number pad: type digits)"));
    port->setTextMaxLength(5);
    port->setLabelValue(QStringLiteral("9990"));
    page->addItem(port);

    page->addSection(QObject::tr("Numbers in line edits"));
    auto* gain = new QDoubleLineEditWidget(QObject::tr("Audio gain"), QStringLiteral("dB"));
    gain->setRange(-60.0, 12.0);
    gain->setDecimals(1);
    gain->setSingleStep(0.5);
    gain->setValue(-6.0);
    gain->editor()->setFixedWidth(110);
    hostDouble(page, gain, QObject::tr("Audio gain"));
    auto* frameRate = new QDoubleLineEditWidget(QObject::tr("Frame rate"), QStringLiteral("fps"));
    frameRate->setRange(23.98, 60.0);
    frameRate->setDecimals(2);
    frameRate->setSingleStep(0.01);
    frameRate->setValue(29.97);
    frameRate->editor()->setFixedWidth(110);
    hostDouble(page, frameRate, QObject::tr("Frame rate"));
    auto* tally = new QSignalLineEditWidget(QObject::tr("Tally address (pad)"), QString());
    tally->setText(QStringLiteral("12"));
    tally->editor()->setFixedWidth(110);
    hostSignal(page, tally, QObject::tr("Tally address"));

    page->addSection(QObject::tr("Several values (press moves to the next field)"));
    auto* window = new MultiSpinBox(page->list());
    window->setItemTitle(QObject::tr("PiP window"));
    window->setFieldRange(0, 0, 1920);
    window->setFieldRange(1, 0, 1080);
    window->setFieldRange(2, 16, 1920);
    window->setFieldRange(3, 9, 1080);
    window->setLabelValue(QVariantList{1280, 40, 600, 338});
    page->addItem(window);
    auto* crop = new MultiSpinBox(QStringList{QStringLiteral("L"), QStringLiteral("R"), QStringLiteral("T"),
                                              QStringLiteral("B")},
                                  page->list());
    crop->setItemTitle(QObject::tr("Crop, %"));
    crop->setRange(0, 50);
    crop->setLabelValue(QStringLiteral("5, 5, 0, 10"));
    page->addItem(crop);
    auto* balance = new MultipleSpinBox(page->list());
    balance->setItemTitle(QObject::tr("White balance"));
    balance->addItem(QObject::tr("Red gain"), 0, 200, 1, 104, SuffixPercent);
    balance->addItem(QObject::tr("Green gain"), 0, 200, 1, 100, SuffixPercent);
    balance->addItem(QObject::tr("Blue gain"), 0, 200, 1, 96, SuffixPercent);
    page->addItem(balance, 3 * 38 + 8);

    page->addSection(QObject::tr("Colour and progress"));
    auto* colour = new TypeColorAdjust(page->list());
    colour->setItemTitle(QObject::tr("Matte colour"));
    colour->setLabelValue(QStringLiteral("#ff8a00"));
    page->addItem(colour);
    auto* recorded = new TypeIntAdjust(SuffixPercent, QuitKeepValue, page->list(), 1);
    recorded->setItemTitle(QObject::tr("Disk used (drives the bar below)"));
    recorded->setRange(0, 100);
    recorded->setLabelValue(42);
    page->addItem(recorded);
    auto* disk = new TypeIntProgressBar(page->list());
    disk->setItemTitle(QObject::tr("Recording disk"));
    disk->setValue(42);
    page->addItem(disk);
    QObject::connect(recorded, &CommonItemType::signalValueChanged, disk,
                     [disk](QVariant const& v) { disk->setValue(v.toInt()); });

    // The picture shows the window row with its second field being edited.
    page->screenshotSetup = [page, window] {
        QCoreApplication::processEvents();
        page->activate();
        page->setCurrentIndex(5);
        window->editValue();
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(QApplication::focusWidget(), &press);
    };
    page->screenshotVariants.append({QStringLiteral("list"), [page, balance] {
                                         QCoreApplication::processEvents();
                                         page->activate();
                                         page->setCurrentIndex(7);
                                         balance->editValue();
                                         QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
                                         QApplication::sendEvent(balance, &down);
                                     }});
    page->addStretch();
    return page;
}
