// Choices: switches, rows of buttons, check boxes and switches, operation and
// selection pads, a spinner-like value chooser and the effect chooser. Press a row to
// work it: Up/Down walk its choices, the press chooses (or flips, or works the
// focused button; a check box flips on the keypad's Enter), Escape gives the knob back.
#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMovie>
#include <QPushButton>

using namespace LCD::Widget;

namespace {

QIcon themeIcon(GalleryContext const& context, QString const& file) { return QIcon(context.imageDir + file); }

void report(ItemPage* page, QString const& text) { emit page->statusMessage(text); }

// The value chooser has no row of its own: this one hands it the knob on the press and
// takes the knob back when the chooser ends the edit.
class ChooserRow : public CommonItemType
{
public:
    explicit ChooserRow(QWidget* parent) : CommonItemType(parent)
    {
        setRightIconButtonHide(true);
        chooser = new MultiButtonControl(dynamicFrame());
        dynamicLayout()->addStretch();
        dynamicLayout()->addWidget(chooser);
        connect(chooser, &MultiButtonControl::signalValueChanged, this, &CommonItemType::signalValueChanged);
        connect(chooser, &MultiButtonControl::signalEditFinished, this, [this] {
            if (parentWidget())
                parentWidget()->setFocus(Qt::OtherFocusReason);
            emit signalEditFinished();
        });
    }
    void editValue() override
    {
        chooser->setFocus(Qt::TabFocusReason);
        emit signalEditStarted();
    }
    void setContentDisabled(bool disabled) const override { chooser->setDisabled(disabled); }

    MultiButtonControl* chooser = nullptr;
};

void addSwitchRows(ItemPage* page)
{
    page->addSection(QObject::tr("Switches (press flips)"));
    auto* tally = new TypeItemSwitch(page->list());
    tally->setItemTitle(QObject::tr("Tally light"));
    tally->setToggle(true);
    page->addItem(tally);

    auto* genlock = new TypeItemSwitch(page->list());
    genlock->setItemTitle(QObject::tr("Genlock"));
    genlock->setLabelText(QObject::tr("External"));
    genlock->setSwitchColor(QStringLiteral("#28c850"));
    page->addItem(genlock);

    auto* locked = new TypeItemSwitch(page->list());
    locked->setItemTitle(QObject::tr("Remote control (locked)"));
    locked->setToggle(true);
    page->addItem(locked);
    locked->setContentEnabled(false);

    auto* outputs = new TypeItemMultiSwitch(page->list());
    QVector<QPair<QString, int>> outs{{QObject::tr("PGM out"), 1}, {QObject::tr("PVW out"), 2}, {QObject::tr("AUX out"), 3}};
    outputs->setTextData(outs);
    outputs->setCurrentValue(1, 1);
    page->addItem(outputs);
    QObject::connect(outputs, &TypeItemMultiSwitch::signalMultiSwitchValueChanged, page,
                     [page](int value, int on) { report(page, QObject::tr("Output %1 %2").arg(value).arg(on ? "on" : "off")); });

    auto* mute = new TypeItemMultiSwitch(page->list());
    QVector<QPair<QString, int>> one{{QObject::tr("Mute all audio"), 9}};
    mute->setTextData(one);
    page->addItem(mute);
}

void addButtonRows(ItemPage* page, GalleryContext& context)
{
    page->addSection(QObject::tr("One of several"));
    auto* format = new TypeItemMultiBtn(page->list());
    format->setItemTitle(QObject::tr("Output format"));
    format->setBtnText({{"720p", 720}, {"1080i", 1081}, {"1080p", 1080}, {"2160p", 2160}});
    format->setCurrentData(1080);
    page->addItem(format);
    QObject::connect(format, &TypeItemMultiBtn::signalMultiBtnValueChanged, page,
                     [page, format](QVariant const&) { report(page, QObject::tr("Output format = %1").arg(format->currentText())); });

    auto* monitor = new TypeItemMultiBtn(page->list());
    monitor->setItemTitle(QObject::tr("Monitor shows"));
    monitor->setBtnIcon({{themeIcon(context, "icon_display.png"), {QObject::tr("Multiview"), 1}},
                         {themeIcon(context, "icon_audio.png"), {QObject::tr("Audio meters"), 2}},
                         {themeIcon(context, "icon_network.png"), {QObject::tr("Network"), 3}}});
    monitor->setCurrentIndex(0);
    page->addItem(monitor);
    QObject::connect(monitor, &TypeItemMultiBtn::signalMultiBtnValueChanged, page,
                     [page, monitor](QVariant const&) { report(page, QObject::tr("Monitor shows %1").arg(monitor->currentText())); });

    auto* mixer = new TypeItemMultiBtn(page->list());
    mixer->setItemTitle(QObject::tr("Audio follow video (locked)"));
    mixer->setBtnText({{QObject::tr("Off"), 0}, {QObject::tr("On"), 1}});
    mixer->setCurrentIndex(1);
    page->addItem(mixer);
    mixer->setContentEnabled(false);

    auto* frameRate = new ChooserRow(page->list());
    frameRate->setItemTitle(QObject::tr("Frame rate (turn to change)"));
    QVector<QPair<QString, int>> rates{{"24", 24}, {"25", 25}, {"30", 30}, {"50", 50}, {"60", 60}};
    frameRate->chooser->setBtnText(rates);
    frameRate->chooser->setCurrentData(50);
    page->addItem(frameRate);

    page->addSection(QObject::tr("Any number (keypad Enter flips)"));
    auto* sources = new TypeItemMultiCheckBox(page->list());
    sources->setItemTitle(QObject::tr("Audio sources"));
    sources->setCheckBoxData({{QObject::tr("Mic 1"), 1}, {QObject::tr("Mic 2"), 2}, {QObject::tr("Line"), 3}, {"HDMI", 4}});
    sources->setContentFontSize(ItemPage::kFontSize);
    sources->setCurrentValue({1, 4});
    sources->setCheckStatus(3, false, true);
    page->addItem(sources);
    QObject::connect(sources, &TypeItemMultiCheckBox::signalMultiCheckBoxValueChanged, page,
                     [page](int value, bool on) { report(page, QObject::tr("Source %1 %2").arg(value).arg(on ? "on" : "off")); });
}

void addPadRows(ItemPage* page, GalleryContext& context)
{
    page->addSection(QObject::tr("Operation and selection pads"));
    auto* preset = new TypeItemMultiOperBtn(3, page->list());
    preset->setItemTitle(QObject::tr("Preset"));
    QVector<QPair<QString, int>> ops{{QObject::tr("Save"), 1}, {QObject::tr("Recall"), 2}, {QObject::tr("Clear"), 3}};
    preset->setBtnText(ops);
    page->addItem(preset, 64);
    QObject::connect(preset, &TypeItemMultiOperBtn::signalMultiOperBtnValueChanged, page,
                     [page](QVariant const& v) { report(page, QObject::tr("Preset operation %1").arg(v.toInt())); });

    std::vector<ItemSelectInfo> infos{{QObject::tr("Display"), themeIcon(context, "icon_display.png"), 1},
                                      {QObject::tr("Audio"), themeIcon(context, "icon_audio.png"), 2},
                                      {QObject::tr("Network"), themeIcon(context, "icon_network.png"), 3},
                                      {QObject::tr("System"), themeIcon(context, "icon_system.png"), 4}};
    auto* menu = new TypeMultipleSelectBtn(0, 12, infos, Qt::ToolButtonTextBesideIcon, page->list());
    page->addItem(menu, 64);
    menu->setContentFontSize(30);
    QObject::connect(menu, &TypeMultipleSelectBtn::signalBtnClicked, page,
                     [page](QVariant const& v) { report(page, QObject::tr("Open settings page %1").arg(v.toInt())); });
}

TypeItemEffectPicture* addEffectRow(ItemPage* page, GalleryContext& context)
{
    page->addSection(QObject::tr("Transition effect (the preview follows the knob)"));
    QStringList const effects = {"mix", "dip", "wipe_left", "wipe_right", "wipe_up", "wipe_down",
                                 "box", "circle", "diamond", "split", "push", "clock"};
    QMap<int, QPair<QString, QString>> choices;
    for (int i = 0; i < effects.size(); ++i)
        choices.insert(i, qMakePair(effects.at(i), context.imageDir + QStringLiteral("effect_%1.gif").arg(effects.at(i))));
    auto* effect = new TypeItemEffectPicture(page->list());
    effect->setItemTitle(QObject::tr("Transition effect"));
    effect->setPictureData(QObject::tr("Transitions"), choices.value(0).second, choices);
    effect->setCurrentValue(7);
    page->addItem(effect, 170);
    QObject::connect(effect, &TypeItemEffectPicture::signalEffectPictureValueChanged, page,
                     [page, effects](QVariant const& v) { report(page, QObject::tr("Effect = %1").arg(effects.value(v.toInt()))); });
    return effect;
}

} // namespace

ItemPage* buildChoicesPage(GalleryContext& context)
{
    auto* page = new ItemPage(QObject::tr("Choices"));
    addSwitchRows(page);
    addButtonRows(page, context);
    addPadRows(page, context);
    TypeItemEffectPicture* effect = addEffectRow(page, context);
    page->addStretch();

    // The picture shows the output format being chosen and the effect chooser with
    // its preview under way.
    page->screenshotSetup = [page, effect] {
        QCoreApplication::processEvents();
        page->activate();
        effect->effectPictureWidget()->movie()->jumpToFrame(9);
        effect->effectPictureWidget()->movie()->setPaused(true);
        page->setCurrentIndex(5);
        page->itemAt(5)->editValue();
        QWidget* focus = QApplication::focusWidget();
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        if (focus)
            QApplication::sendEvent(focus, &down);
    };
    return page;
}
