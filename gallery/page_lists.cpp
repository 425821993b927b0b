// Lists and menus: drop-down rows (a short list in the combo's own popup, a long one
// in the panel's list whose long texts scroll), menu rows opening the knob menu (one
// with entries hidden for this model, one with a single choice that never opens),
// and the plain combo that keeps the knob inside its open popup.
#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

using namespace LCD::Widget;

namespace {

TypeStringCombox* comboRow(ItemPage* page, GalleryContext& context, QString const& title, QStringList const& entries,
                           int current)
{
    auto* row = new TypeStringCombox(page->list());
    row->setItemTitle(title);
    for (int i = 0; i < entries.size(); ++i)
        row->addItem(entries.at(i), i);
    row->setHomeRect(context.homeRect);
    row->setCurrentIndex(current);
    page->addItem(row);
    return row;
}

TypeDialogMenu* menuRow(ItemPage* page, GalleryContext& context, QString const& title, QStringList const& entries,
                        int current)
{
    auto* row = new TypeDialogMenu(page->list(), &context.homeFrame);
    row->setItemTitle(title);
    row->setDialogTitle(title);
    for (int i = 0; i < entries.size(); ++i)
        row->addItem(entries.at(i), i);
    row->setCurrentIndex(current);
    page->addItem(row);
    return row;
}

// The plain combo of the network page, as a host lays it out: a caption and the
// combo. With its popup closed the knob walks the page (the page takes Up/Down from
// it); with the popup open the knob stays inside.
QWidget* focusComboRow(ItemPage* page)
{
    auto* holder = new QFrame(page->list());
    holder->setFixedHeight(ItemPage::kRowHeight);
    auto* layout = new QHBoxLayout(holder);
    layout->setContentsMargins(16, 8, 16, 8);
    auto* caption = new QLabel(QObject::tr("Address mode (plain combo)"), holder);
    caption->setProperty("itemTitleLabel", true);
    auto* combo = new FocusComboBox(holder);
    combo->setObjectName(QStringLiteral("galleryFocusCombo"));
    combo->addItems({QObject::tr("Manual"), QObject::tr("DHCP")});
    combo->setMinimumWidth(160);
    layout->addWidget(caption);
    layout->addStretch();
    layout->addWidget(combo);

    struct Hand : QObject
    {
        FocusComboBox* combo;
        ItemPage* page;
        Hand(FocusComboBox* c, ItemPage* p) : QObject(c), combo(c), page(p) {}
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() != QEvent::KeyPress)
                return false;
            int const key = static_cast<QKeyEvent*>(event)->key();
            if ((key == Qt::Key_Up || key == Qt::Key_Down) && !combo->view()->isVisible()) {
                // Closed: the page's knob walk goes on.
                page->list()->setFocus(Qt::OtherFocusReason);
                QKeyEvent turn(QEvent::KeyPress, key, Qt::NoModifier, static_cast<QKeyEvent*>(event)->text());
                QCoreApplication::sendEvent(page->list(), &turn);
                return true;
            }
            if (key == Qt::Key_Escape && !combo->view()->isVisible()) {
                page->list()->setFocus(Qt::OtherFocusReason);
                return true;
            }
            return false;
        }
    };
    combo->installEventFilter(new Hand(combo, page));
    page->addWidget(holder, true, [combo] { combo->setFocus(Qt::OtherFocusReason); });
    return holder;
}

QStringList longSources()
{
    QStringList const places = {QObject::tr("Studio A wide shot from the back of the hall"),
                                QObject::tr("Stage left close-up"),
                                QObject::tr("Presenter desk"),
                                QObject::tr("Audience, balcony camera with the long lens"),
                                QObject::tr("Remote feed from the outside broadcast van"),
                                QObject::tr("Media player"),
                                QObject::tr("Graphics fill"),
                                QObject::tr("Graphics key")};
    QStringList sources;
    for (int i = 0; i < 40; ++i)
        sources << QObject::tr("Input %1 - %2").arg(i + 1).arg(places.at(i % places.size()));
    return sources;
}

} // namespace

ItemPage* buildListsPage(GalleryContext& context)
{
    auto* page = new ItemPage(QObject::tr("Lists and menus"));

    page->addSection(QObject::tr("Drop-downs (press to open, turn, press to choose, Esc)"));
    comboRow(page, context, QObject::tr("Output format"),
             {QStringLiteral("1080p50"), QStringLiteral("1080i50"), QStringLiteral("720p50")}, 0);
    TypeStringCombox* sources = comboRow(page, context, QObject::tr("Program source"), longSources(), 3);
    TypeStringCombox* rate = comboRow(page, context, QObject::tr("Frame rate"),
                                      {QStringLiteral("23.98"), QStringLiteral("25"), QStringLiteral("29.97"),
                                       QStringLiteral("50"), QStringLiteral("59.94")},
                                      1);
    rate->setPreValueLabelText(QObject::tr("Rate"));
    rate->setPreValueLabelHidden(false);
    rate->getLastLabel()->setText(QStringLiteral("fps"));
    rate->setLastValueLabelHidden(false);

    page->addSection(QObject::tr("Menus (press to open, turn, press to choose, Esc restores)"));
    menuRow(page, context, QObject::tr("Transition"),
            {QObject::tr("Cut"), QObject::tr("Mix"), QObject::tr("Dip"), QObject::tr("Wipe"), QObject::tr("Push"),
             QObject::tr("Squeeze"), QObject::tr("Stinger"), QObject::tr("DVE")},
            1);
    QStringList aux;
    for (int i = 1; i <= 20; ++i)
        aux << QObject::tr("Aux %1").arg(i);
    TypeDialogMenu* auxRow = menuRow(page, context, QObject::tr("Aux output (13-16 not on this model)"), aux, 4);
    for (int i = 12; i < 16; ++i)
        auxRow->setRowHidden(i, true);
    TypeDialogMenu* single = menuRow(page, context, QObject::tr("Reference (one choice)"), {QObject::tr("Internal")}, 0);
    Q_UNUSED(single);

    page->addSection(QObject::tr("Plain combo"));
    focusComboRow(page);

    // The picture shows the menu open over the page, its cursor two rows on.
    page->screenshotSetup = [page, auxRow] {
        QCoreApplication::processEvents();
        page->activate();
        page->setCurrentIndex(4);
        auxRow->editValue();
        QWidget* focus = QApplication::focusWidget();
        if (focus)
            for (int i = 0; i < 2; ++i) {
                QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QStringLiteral("1"));
                QCoreApplication::sendEvent(focus, &down);
            }
    };
    // A second picture: the long list open, its current row's text scrolling.
    page->screenshotVariants.append({QStringLiteral("popup"), [page, sources] {
                                         QCoreApplication::processEvents();
                                         page->activate();
                                         page->setCurrentIndex(1);
                                         sources->editValue();
                                     }});
    page->addStretch();
    return page;
}
