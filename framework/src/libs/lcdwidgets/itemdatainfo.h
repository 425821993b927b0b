// One rectangle of a crop drawing, as the host hands it over: a label and the
// rectangle in scene units (the picture's pixels).
#pragma once

#include "lcdwidgets_global.h"

#include <string>
#include <utility>
#include <vector>

namespace LCD {
namespace Widget {

struct ItemDataInfo
{
    std::string text; // label drawn in the rectangle (UTF-8)
    int x = 0;        // left edge
    int y = 0;        // top edge
    // Width in scene units.
    int width = 0;
    // Height in scene units.
    int height = 0;

    // Equal when text and rectangle are.
    bool operator==(ItemDataInfo const& o) const
    {
        return text == o.text && x == o.x && y == o.y && width == o.width && height == o.height;
    }
    // Not operator==().
    bool operator!=(ItemDataInfo const& o) const { return !(*this == o); }
};

// The rectangles of a drawing, in order.
using ItemDataInfoArray = std::vector<ItemDataInfo>;
// Crop input: the bool marks a crop rectangle (drawn white, bordered); false marks
// the picture the crop lies on.
using CropRectInfoArray = std::vector<std::pair<bool, ItemDataInfo>>;

// The crop rectangle `crop` brought inside `picture`: its width and height are kept
// within [minimumSize, the picture's], then it is moved (size kept) until it lies
// inside. The text is kept. Computed in 64 bits; a picture without area, or a
// minimum size below 1, leaves the crop as it is.
LCDWIDGETS_EXPORT ItemDataInfo cropRectInside(ItemDataInfo const& crop, ItemDataInfo const& picture,
                                              int minimumSize = 1);

} // namespace Widget
} // namespace LCD
