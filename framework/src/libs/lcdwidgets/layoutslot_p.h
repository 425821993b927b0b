// Parts that most rows never show are built on first use; until then an empty,
// zero-sized spacer holds their place in the layout (it takes neither room nor
// spacing, as a hidden widget does).
#pragma once

#include <QBoxLayout>
#include <QSpacerItem>

namespace LCD {
namespace Widget {

inline QSpacerItem* addLayoutSlot(QBoxLayout* layout)
{
    auto* slot = new QSpacerItem(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed);
    layout->addItem(slot);
    return slot;
}

// Puts `widget` where `slot` stands, with the slot's stretch, and deletes the slot.
inline void fillLayoutSlot(QBoxLayout* layout, QSpacerItem*& slot, QWidget* widget)
{
    int const index = layout->indexOf(slot);
    int const stretch = layout->stretch(index);
    layout->removeItem(slot);
    delete slot;
    slot = nullptr;
    layout->insertWidget(index, widget, stretch);
}

} // namespace Widget
} // namespace LCD
