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
    explicit ExpandableTable(QWidget* parent = nullptr);
    ~ExpandableTable() override;

    // Appends a group (closed unless `expanded`); returns its index.
    int addGroup(QString const& title, bool expanded = false);
    // Appends a key and value row to a group; returns its index in the group, or -1.
    int addRow(int group, QString const& key, QString const& value);
    void removeGroup(int group);
    void clearGroups();
    int groupCount() const;
    int rowCount(int group) const;
    QString groupTitle(int group) const;
    void setGroupTitle(int group, QString const& title);
    QString key(int group, int row) const;
    QString value(int group, int row) const;
    void setValue(int group, int row, QString const& value);
    void setGroupExpanded(int group, bool expanded);
    bool isGroupExpanded(int group) const;
    // The current line: (group, row), row -1 for a group title; (-1, -1) for none.
    int currentGroup() const;
    int currentRowInGroup() const;
    void setCurrent(int group, int row = -1);
    void setContentFontSize(int size);
    // Width of the key column in pixels (the value column takes the rest).
    void setKeyColumnWidth(int width);

signals:
    void signalGroupExpanded(int group, bool expanded);
    void signalRowActivated(int group, int row);
    void signalCurrentChanged(int group, int row);
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
