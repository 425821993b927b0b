// Lists and pictures: the picture check grid, the paired choice rows (two drop-downs,
// an input with its backup, two menus), the slider list, the knob list with scrolling
// texts and the expandable key/value table. Press a row to work it: Up/Down walk,
// the press flips, chooses or opens, Escape gives the knob back.
#include "gallerycontext.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>

using namespace LCD::Widget;

namespace {

void report(ItemPage* page, QString const& text) { emit page->statusMessage(text); }

// A multiview layout drawn as a small picture: `cells` are the windows, in a 0..1 frame.
QIcon layoutPicture(QList<QRectF> const& cells)
{
    QPixmap pixmap(96, 60);
    pixmap.fill(QColor("#15191e"));
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor("#101317"), 2));
    for (int i = 0; i < cells.size(); ++i) {
        QRectF const& c = cells.at(i);
        QRectF const r(4 + c.x() * 88, 4 + c.y() * 52, c.width() * 88, c.height() * 52);
        p.setBrush(i == 0 ? QColor("#ff8a00") : QColor("#4a5563"));
        p.drawRoundedRect(r, 3, 3);
    }
    return QIcon(pixmap);
}

QList<QRectF> grid(int n)
{
    QList<QRectF> cells;
    for (int y = 0; y < n; ++y)
        for (int x = 0; x < n; ++x)
            cells << QRectF(double(x) / n, double(y) / n, 1.0 / n, 1.0 / n);
    return cells;
}

// Any knob-worked widget that ends its edit with sigCloseEdit(), as a page row: the
// press gives it the knob, its end of edit gives the knob back.
template <typename W>
class ListRow : public CommonItemType
{
public:
    ListRow(QWidget* parent, W* widget) : CommonItemType(parent), w(widget)
    {
        setRightIconButtonHide(true);
        w->setParent(dynamicFrame());
        dynamicLayout()->addWidget(w, 1);
        QObject::connect(w, &W::sigCloseEdit, this, [this] {
            if (parentWidget())
                parentWidget()->setFocus(Qt::OtherFocusReason);
            setEdit(false);
            emit signalCloseEditStatus();
            emit signalEditFinished();
        });
    }
    void editValue() override
    {
        if (!canEdit(w))
            return;
        w->setFocus(Qt::OtherFocusReason);
        setEdit(true);
        emit signalEditStarted();
    }
    void setContentDisabled(bool disabled) const override { w->setDisabled(disabled); }

    W* w;
};

TypeItemMultiPictureCheck* addPictureRows(ItemPage* page)
{
    page->addSection(QObject::tr("Pictures (press, turn, press flips a mark, Esc)"));
    auto* layouts = new TypeItemMultiPictureCheck(page->list());
    layouts->setItemTitle(QObject::tr("Multiview layouts"));
    layouts->setColumns(4);
    layouts->setPictureSize(QSize(72, 45));
    layouts->addPicture(layoutPicture(grid(2)), QStringLiteral("2×2"), 1);
    layouts->addPicture(layoutPicture({QRectF(0, 0, 0.75, 1), QRectF(0.75, 0, 0.25, 1.0 / 3), QRectF(0.75, 1.0 / 3, 0.25, 1.0 / 3),
                                       QRectF(0.75, 2.0 / 3, 0.25, 1.0 / 3)}),
                        QStringLiteral("1+3"), 2);
    layouts->addPicture(layoutPicture({QRectF(0, 0, 1, 1), QRectF(0.62, 0.58, 0.33, 0.35)}), QObject::tr("PiP"), 3);
    layouts->addPicture(layoutPicture({QRectF(0, 0.2, 0.5, 0.6), QRectF(0.5, 0.2, 0.5, 0.6)}), QObject::tr("Side"), 4);
    layouts->addPicture(layoutPicture(grid(3)), QStringLiteral("3×3"), 5);
    layouts->addPicture(layoutPicture(grid(4)), QStringLiteral("4×4"), 6);
    layouts->addPicture(layoutPicture({QRectF(0, 0, 0.5, 0.5), QRectF(0.5, 0, 0.5, 0.5), QRectF(0, 0.5, 1, 0.5)}),
                        QStringLiteral("2+1"), 7);
    layouts->addPicture(layoutPicture({QRectF(0.25, 0, 0.5, 1)}), QObject::tr("Portrait"), 8);
    layouts->setContentFontSize(16);
    layouts->setCurrentValue({1, 3});
    page->addItem(layouts, 190);
    QObject::connect(layouts, &TypeItemMultiPictureCheck::signalPictureCheckChanged, page, [page](int value, bool on) {
        report(page, QObject::tr("Layout %1 %2").arg(value).arg(on ? QObject::tr("checked") : QObject::tr("unchecked")));
    });
    return layouts;
}

TypeInputBackupCombox* addPairRows(ItemPage* page, GalleryContext& context)
{
    page->addSection(QObject::tr("Paired choices (press: first, press: second, Esc ends)"));
    auto* aux = new TypeItemDoubleCombox(page->list());
    aux->setItemTitle(QObject::tr("AUX 1 output"));
    for (QString const& s : {QStringLiteral("PGM"), QStringLiteral("PVW"), QStringLiteral("Input 1"), QStringLiteral("Input 2"),
                             QStringLiteral("Media")})
        aux->addItem(s, s);
    for (QString const& f : {QStringLiteral("1080p50"), QStringLiteral("1080i50"), QStringLiteral("720p50")})
        aux->addSecondItem(f, f);
    aux->setSeparatorText(QStringLiteral("@"));
    aux->setHomeRect(context.homeRect);
    aux->setCurrentIndex(0);
    aux->setSecondCurrentIndex(0);
    page->addItem(aux);

    auto* backup = new TypeInputBackupCombox(page->list());
    backup->setItemTitle(QObject::tr("Program input / backup"));
    for (int i = 1; i <= 6; ++i)
        backup->addItem(QObject::tr("Input %1").arg(i), i);
    backup->setHomeRect(context.homeRect);
    backup->setSeparatorText(QStringLiteral("→"));
    backup->setCurrentIndex(0);
    backup->setBackupIndex(1);
    page->addItem(backup);
    QObject::connect(backup, &TypeInputBackupCombox::signalBackupIndexChanged, page,
                     [page, backup](int) { report(page, QObject::tr("Backup input = %1").arg(backup->backupText())); });

    auto* key = new TypeItemDialogDoubleCombox(page->list(), &context.homeFrame);
    key->setItemTitle(QObject::tr("Key fill / cut"));
    key->setDialogTitles(QObject::tr("Key fill"), QObject::tr("Key cut"));
    for (int i = 1; i <= 4; ++i) {
        key->addItem(QObject::tr("Input %1").arg(i), i);
        key->addSecondItem(QObject::tr("Input %1").arg(i), i);
    }
    key->setSeparatorText(QStringLiteral("/"));
    key->setCurrentIndex(2);
    key->setSecondCurrentIndex(3);
    page->addItem(key);
    return backup;
}

void addListRows(ItemPage* page)
{
    page->addSection(QObject::tr("Scrolling lists (press, turn, press, Esc)"));
    auto* rate = new TypeItemSliderList(page->list());
    rate->setItemTitle(QObject::tr("Transition rate"));
    for (QString const& s : {QObject::tr("Very slow"), QObject::tr("Slow"), QObject::tr("Medium"), QObject::tr("Fast"),
                             QObject::tr("Very fast")})
        rate->addItem(s, s);
    rate->setCurrentIndex(2);
    page->addItem(rate);

    auto* list = new NQListWidget;
    QStringList const names = {QObject::tr("Studio A wide shot from the back of the hall"), QObject::tr("Stage left close-up"),
                               QObject::tr("Presenter desk"),
                               QObject::tr("Audience, balcony camera with the long lens on the tripod"),
                               QObject::tr("Remote feed from the outside broadcast van"), QObject::tr("Media player")};
    list->addItems(names);
    list->setCurrentIndex(0);
    list->setContentFontSize(18);
    auto* listRow = new ListRow<NQListWidget>(page->list(), list);
    listRow->setItemTitle(QObject::tr("Camera notes"));
    page->addItem(listRow, 130);
    QObject::connect(list, &NQListWidget::signalActivated, page,
                     [page, list](int row) { report(page, QObject::tr("Chose %1").arg(list->item(row)->text())); });

    auto* table = new ExpandableTable;
    int const video = table->addGroup(QObject::tr("Video"), true);
    table->addRow(video, QObject::tr("Format"), QStringLiteral("1080p50"));
    table->addRow(video, QObject::tr("Genlock"), QObject::tr("Locked to the external reference on BNC 2"));
    int const audio = table->addGroup(QObject::tr("Audio"));
    table->addRow(audio, QObject::tr("Sample rate"), QStringLiteral("48 kHz"));
    table->addRow(audio, QObject::tr("Follow video"), QObject::tr("On"));
    int const net = table->addGroup(QObject::tr("Network"));
    table->addRow(net, QObject::tr("Address"), QStringLiteral("192.168.1.20"));
    table->addRow(net, QObject::tr("Link"), QObject::tr("1 Gbit/s full duplex"));
    table->setContentFontSize(16);
    table->setCurrent(0);
    auto* tableRow = new ListRow<ExpandableTable>(page->list(), table);
    tableRow->setItemTitle(QObject::tr("Device status"));
    page->addItem(tableRow, 170);
    QObject::connect(table, &ExpandableTable::signalGroupExpanded, page, [page, table](int group, bool open) {
        report(page, QObject::tr("%1 %2").arg(table->groupTitle(group), open ? QObject::tr("opened") : QObject::tr("closed")));
    });
}

} // namespace

ItemPage* buildPicturesPage(GalleryContext& context)
{
    auto* page = new ItemPage(QObject::tr("Lists and pictures"));
    TypeItemMultiPictureCheck* layouts = addPictureRows(page);
    TypeInputBackupCombox* backup = addPairRows(page, context);
    addListRows(page);
    page->addStretch();

    auto sendKey = [](int key) {
        if (QWidget* focus = QApplication::focusWidget()) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("1"));
            QCoreApplication::sendEvent(focus, &press);
        }
    };
    // The picture shows the grid being worked: the knob two pictures on, one more checked.
    page->screenshotSetup = [page, layouts, sendKey] {
        QCoreApplication::processEvents();
        page->activate();
        page->setCurrentIndex(0);
        layouts->editValue();
        sendKey(Qt::Key_Down);
        sendKey(Qt::Key_Return);
        sendKey(Qt::Key_Down);
        sendKey(Qt::Key_Down);
    };
    // A second picture: the backup's list open, without the chosen input.
    page->screenshotVariants.append({QStringLiteral("backup"), [page, backup, sendKey] {
                                         QCoreApplication::processEvents();
                                         page->activate();
                                         page->setCurrentIndex(2);
                                         backup->editValue();
                                         sendKey(Qt::Key_Return);
                                     }});
    return page;
}
