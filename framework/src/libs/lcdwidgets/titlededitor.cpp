#include "titlededitor_p.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVariant>

namespace LCD {
namespace Widget {

void buildTitledEditor(QFrame* frame, QWidget* editor, QLabel*& title, QLabel*& unit)
{
    frame->setProperty("isLineEditWidget", true);
    title = new QLabel(frame);
    title->setProperty("isLineEditTitle", true);
    unit = new QLabel(frame);
    unit->setProperty("isLineEditUnit", true);
    unit->hide();
    editor->setParent(frame);
    auto* layout = new QHBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(title, 1);
    layout->addWidget(editor);
    layout->addWidget(unit);
    frame->setFocusProxy(editor);
}

void handFocusBack(QWidget* editor)
{
    if (!editor->hasFocus())
        return;
    QWidget* target = editor->parentWidget();
    while (target && target->focusProxy())
        target = target->parentWidget();
    if (target)
        target->setFocus(Qt::OtherFocusReason);
    else
        editor->clearFocus();
}

void setUnitText(QLabel* unit, QString const& text)
{
    unit->setText(text);
    unit->setVisible(!text.isEmpty());
}

bool isEditingKey(int key)
{
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        return true;
    default:
        return false;
    }
}

} // namespace Widget
} // namespace LCD
