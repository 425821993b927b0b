#include "themeimages.h"

namespace themeimages {

void addBarImages(ImageTable&)
{
}

} // namespace themeimages
