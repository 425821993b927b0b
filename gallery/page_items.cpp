// Item rows: icons and captions, second titles, elided and rolling titles, Latin
// and Chinese text, a disabled row, and one row that edits a number with the knob.
#include "gallerycontext.h"
#include "galleryhost.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

using namespace LCD::Widget;

namespace {

// A row whose value widget is a plain label; the simplest host-side item.
class InfoRow : public CommonItemType
{
public:
    explicit InfoRow(QWidget* parent, QString const& value = QString()) : CommonItemType(parent)
    {
        setRightIconButtonHide(true);
        m_value = new QLabel(value, dynamicFrame());
        m_value->setProperty("galleryValue", true);
        m_value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        dynamicLayout()->addStretch();
        dynamicLayout()->addWidget(m_value);
    }
    void setContentDisabled(bool disabled) const override { m_value->setDisabled(disabled); }

protected:
    QLabel* m_value;
};

// A home-screen tile: only the icon and its caption.
class TileRow : public CommonItemType
{
public:
    explicit TileRow(QWidget* parent) : CommonItemType(parent)
    {
        setRightIconButtonHide(true);
        dynamicFrame()->hide();
    }
    void setContentDisabled(bool) const override {}
};

// A row that edits an integer with the knob: the press gives the editor the focus,
// Up/Down change the value by the level, Escape or the press ends the edit.
class KnobRow : public InfoRow
{
public:
    explicit KnobRow(QWidget* parent) : InfoRow(parent, QStringLiteral("50"))
    {
        m_value->setFocusPolicy(Qt::StrongFocus);
        m_value->installEventFilter(this);
    }
    void editValue() override
    {
        m_value->setFocus(Qt::OtherFocusReason);
        setStyleProperty(m_value, "galleryEditing", true);
        emit signalEditStarted();
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_value && event->type() == QEvent::KeyPress) {
            auto* key = static_cast<QKeyEvent*>(event);
            if (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down) {
                float const level = knobLevel(key);
                int const step = qAbs(level - 1.0f) < 1e-6f ? 1 : qMax(1, static_cast<int>(100 * level));
                m_number = qBound(0, m_number + (key->key() == Qt::Key_Up ? step : -step), 100);
                m_value->setText(QString::number(m_number));
                emit signalValueChanged(m_number);
                return true;
            }
            if (key->key() == Qt::Key_Escape || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
                setStyleProperty(m_value, "galleryEditing", false);
                parentWidget()->setFocus(Qt::OtherFocusReason);
                emit signalCloseEditStatus();
            }
        }
        return CommonItemType::eventFilter(watched, event);
    }

private:
    int m_number = 50;
};

InfoRow* iconRow(ItemPage* page, QString const& icon, QString const& title, QString const& value)
{
    auto* row = new InfoRow(page->list(), value);
    row->setLeftIconButtonHide(false);
    row->setLeftIconButtonProperty(icon.toStdString(), true);
    row->setLeftIconSize(QSize(32, 32));
    row->setItemTitle(title);
    return row;
}

} // namespace

ItemPage* buildItemsPage(GalleryContext&)
{
    auto* page = new ItemPage(QObject::tr("Item rows"));

    page->addItem(iconRow(page, QStringLiteral("isIconNetwork"), QStringLiteral("Network"), QStringLiteral("192.168.1.20")));
    page->addItem(iconRow(page, QStringLiteral("isIconDisplay"), QStringLiteral("画面设置"), QStringLiteral("1080p59.94")));

    auto* second = iconRow(page, QStringLiteral("isIconAudio"), QStringLiteral("Audio"), QStringLiteral("-12 dB"));
    second->setItemSecondTitleLabelHide(false);
    second->setItemSecondTitle(QStringLiteral("Follows the program bus and the monitor outputs"), 260);
    page->addItem(second, 64);

    auto* rolling = new InfoRow(page->list(), QStringLiteral("On"));
    rolling->setItemTitleRoll(QStringLiteral("Rolling title: a setting name longer than its row scrolls "
                                             "from right to left, seamlessly, for as long as it is shown"),
                              true);
    page->addItem(rolling);

    auto* elided = new InfoRow(page->list(), QStringLiteral("Auto"));
    elided->setItemTitle(QStringLiteral("Elided title: a setting name longer than its row is cut on the "
                                        "right with an ellipsis instead"));
    page->addItem(elided);

    auto* chinese = new InfoRow(page->list(), QStringLiteral("中文"));
    chinese->setItemTitleRoll(QStringLiteral("语言与区域设置：界面语言、时区、日期格式、键盘布局和数字格式都在这里调整"), true);
    page->addItem(chinese);

    auto* knob = new KnobRow(page->list());
    knob->setItemTitle(QStringLiteral("Knob demo (press, turn, Esc)"));
    page->addItem(knob);

    auto* disabled = iconRow(page, QStringLiteral("isIconSystem"), QStringLiteral("Factory reset (locked)"), QStringLiteral("Locked"));
    page->addItem(disabled);
    disabled->setContentEnabled(false);

    // Tiles: the icon with its caption underneath, as on the home screen. The caption
    // is the title without the words that every setting page would repeat.
    page->addSection(QObject::tr("Icon tiles with captions"));
    auto* tiles = new QWidget(page->list());
    auto* tilesLayout = new QHBoxLayout(tiles);
    tilesLayout->setContentsMargins(0, 4, 0, 4);
    tilesLayout->setSpacing(12);
    struct Tile
    {
        char const* icon;
        char const* title;
    };
    for (Tile const& t : {Tile{"isIconNetwork", "网络设置"}, Tile{"isIconDisplay", "输出画面"},
                          Tile{"isIconAudio", "Audio"}, Tile{"isIconSystem", "System"}}) {
        auto* tile = new TileRow(tiles);
        tile->setItemTitleWidth(150);
        tile->setContentFontSize(ItemPage::kFontSize);
        tile->setItemTitleLabelHide(true);
        tile->setLeftIconButtonHide(false);
        tile->setLeftIconButtonProperty(t.icon, true);
        tile->setLeftIconSize(QSize(48, 48));
        tile->setItemTitle(QString::fromUtf8(t.title));
        tile->setLeftIconTitleHide(false);
        tile->removeUnderLine();
        tile->setFixedSize(150, 96);
        tile->setProperty("galleryTile", true);
        tilesLayout->addWidget(tile);
    }
    tilesLayout->addStretch();
    page->addWidget(tiles);

    page->addStretch();
    return page;
}
