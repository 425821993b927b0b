#include "focuscombobox.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>

namespace LCD {
namespace Widget {

FocusComboBox::FocusComboBox(QWidget* parent) : QComboBox(parent)
{
    // The popup takes the keyboard while it is open; the panel driver still addresses
    // the combo, so the combo watches the application's events.
    if (qApp)
        qApp->installEventFilter(this);
}

FocusComboBox::~FocusComboBox() = default;

bool FocusComboBox::popupVisible() const { return view() && view()->isVisible(); }

bool FocusComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == this && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && popupVisible()) {
        hidePopup();
        event->accept();
        return true;
    }
    return QComboBox::eventFilter(watched, event);
}

void FocusComboBox::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (popupVisible()) {
            int const row = view()->currentIndex().row();
            if (row >= 0 && row < count())
                setCurrentIndex(row);
            hidePopup();
        } else {
            showPopup();
        }
        event->accept();
        return;
    case Qt::Key_Up:
    case Qt::Key_Down: {
        bool const down = event->key() == Qt::Key_Down;
        if (!popupVisible()) {
            focusNextPrevChild(down);
            event->accept();
            return;
        }
        QAbstractItemView* v = view();
        int const current = v->currentIndex().row();
        int row = current < 0 ? 0 : current + (down ? 1 : -1);
        row = qBound(0, row, qMax(0, count() - 1));
        QModelIndex const index = model()->index(row, modelColumn(), rootModelIndex());
        if (index.isValid()) {
            v->setCurrentIndex(index);
            v->scrollTo(index);
        }
        event->accept();
        return;
    }
    default:
        QComboBox::keyPressEvent(event);
    }
}

} // namespace Widget
} // namespace LCD
