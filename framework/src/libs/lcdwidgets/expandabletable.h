// A key and value table in groups (such as a device's status: "Video", "Audio",
// "Network", each with its rows); a group opens and closes with the knob's press.
// Values wrap over several lines when long (WrapListDelegate on the value column).
//
// Keys: Up/Down move the current line (a group title or a row of an open group) by
// one, no wrap; Enter/Return on a group title opens or closes it
// (signalGroupExpanded(group, expanded)), on a row emits signalRowActivated(group,
// row); Escape emits sigCloseEdit(). Every move emits signalCurrentChanged(group,
// row), with row -1 for a group title.
//
// Bad input is refused with a debug message and changes nothing (reads give an empty
// text, -1 or false):
//   "[ExpandableTable] <function>: no group N (count M)"
//   "[ExpandableTable] <function>: no row R in group N (count M)"
//   "[ExpandableTable] setContentFontSize: font size must be positive, got N"
//
// Theme: the table has "isExpandableTable" = true; group titles are drawn bold and
// spanning both columns.
#pragma once

#include "lcdwidgets_global.h"

#include <QTreeWidget>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT ExpandableTable : public QTreeWidget
{
    Q_OBJECT
public:
    // An empty two-column table without header; values wrap (margins 4 px and 2 px).
    explicit ExpandableTable(QWidget* parent = nullptr);
    ~ExpandableTable() override;

    // Appends a group (closed unless `expanded`); returns its index.
    int addGroup(QString const& title, bool expanded = false);
    // Appends a key and value row to a group; returns its index in the group, or -1.
    int addRow(int group, QString const& key, QString const& value);
    // Removes a group and its rows (a bad index is logged).
    void removeGroup(int group);
    // Removes every group.
    void clearGroups();
    // Number of groups.
    int groupCount() const;
    // Number of rows of a group; -1 (and logged) for a bad group.
    int rowCount(int group) const;
    // A group's title; empty for a bad group.
    QString groupTitle(int group) const;
    // Renames a group (a bad index is logged).
    void setGroupTitle(int group, QString const& title);
    // A row's key; empty for a bad group or row.
    QString key(int group, int row) const;
    // A row's value; empty for a bad group or row.
    QString value(int group, int row) const;
    // Sets a row's value (bad indexes are logged).
    void setValue(int group, int row, QString const& value);
    // Opens or closes a group; a change emits signalGroupExpanded().
    void setGroupExpanded(int group, bool expanded);
    // Whether a group is open; false for a bad group.
    bool isGroupExpanded(int group) const;
    // The current line: (group, row), row -1 for a group title; (-1, -1) for none.
    int currentGroup() const;
    // The current line's row in its group; -1 on a group title or with no current line.
    int currentRowInGroup() const;
    // Makes a group title (row -1) or a row current, opening its group and scrolling it
    // into view; a change emits signalCurrentChanged(). Bad indexes are logged.
    void setCurrent(int group, int row = -1);
    // Pixel size of the text, 1..512; another size is refused (see above).
    void setContentFontSize(int size);
    // Width of the key column in pixels (the value column takes the rest).
    void setKeyColumnWidth(int width);

signals:
    // A group opened or closed (by the knob or setGroupExpanded()).
    void signalGroupExpanded(int group, bool expanded);
    // Enter/Return on a row.
    void signalRowActivated(int group, int row);
    // The current line changed: its group and row (-1 for a title).
    void signalCurrentChanged(int group, int row);
    // Escape: the table gives the knob back.
    void sigCloseEdit();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
