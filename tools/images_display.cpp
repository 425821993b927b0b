#include "themeimages.h"

namespace themeimages {

void addDisplayImages(ImageTable&)
{
}

} // namespace themeimages
