#pragma once
// The built-in pictures of the library's column buttons, shown until a skin brings its own:
// a sunken square for a plain column, a raised one with a sort mark for the column that orders
// the grid, a blue one with a funnel for the filtered column, and the small menu arrow.
#include "controls/Picture.h"

namespace sonarium {

Picture indentPicture();
Picture orderPicture();
Picture filterPicture();
Picture dropArrowPicture();

}  // namespace sonarium
