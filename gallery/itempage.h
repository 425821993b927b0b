// A setting page as the device's host builds it: a vertical list of rows that the
// knob walks through. Down/Up move the current row, the press starts editing it
// (editValue()), and the row's edit signals hand the knob back to the page.
#pragma once

#include <QWidget>
#include <functional>

class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace LCD {
namespace Widget {
class CommonItemType;
}
} // namespace LCD

class ItemPage : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kRowHeight = 56;
    static constexpr int kFontSize = 20;

    explicit ItemPage(QString const& title, QWidget* parent = nullptr);

    QString title() const { return m_title; }
    // Width the page gives its rows.
    int itemWidth() const;
    // The widget rows are created in (their parent and the page's focus holder).
    QWidget* list() const { return m_list; }

    // Adds a row, sized and styled as the host does, and follows its edit signals.
    void addItem(LCD::Widget::CommonItemType* item, int height = kRowHeight);
    // Adds any other widget; a selectable one takes part in the knob walk and is
    // given the focus through `select` (or setFocus()) when it becomes current.
    void addWidget(QWidget* widget, bool selectable = false, std::function<void()> select = {});
    // A small caption between groups of rows.
    void addSection(QString const& caption);
    void addStretch();

    // Makes the list take the knob (the page has just been shown).
    void activate();
    int currentIndex() const { return m_current; }
    int count() const { return m_entries.size(); }
    // The row at `index`, or null for a plain widget or a bad index.
    LCD::Widget::CommonItemType* itemAt(int index) const { return m_entries.value(index).item; }
    void setCurrentIndex(int index);
    bool isEditing() const { return m_editing; }
    // Height the page needs to show every row.
    int contentHeight() const;

    // Called before the page's screenshot; puts it into a telling state.
    std::function<void()> screenshotSetup;
    // More pictures of the page, each after its own setup (file-name suffix, setup).
    QList<QPair<QString, std::function<void()>>> screenshotVariants;
    // Called after the page's screenshot to render more pictures (open dialogs) to
    // DIR/PREFIX-*.png; returns how many were written.
    std::function<int(QString const& dir, QString const& prefix)> extraScreenshots;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void statusMessage(QString const& text);

private:
    struct Entry
    {
        QWidget* widget;
        LCD::Widget::CommonItemType* item; // null for plain widgets
        std::function<void()> select;
    };
    void move(int delta);
    void press();
    void editEnded(QString const& why);
    void markCurrent(int index, bool current);

    QString m_title;
    QScrollArea* m_scroll = nullptr;
    QWidget* m_list = nullptr;
    QVBoxLayout* m_layout = nullptr;
    QList<Entry> m_entries;
    int m_current = -1;
    bool m_editing = false;
};
