#include "themeimages.h"

namespace themeimages {

void addEditorImages(ImageTable&)
{
}

} // namespace themeimages
