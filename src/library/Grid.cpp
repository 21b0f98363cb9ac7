// The library's grid: order, filter, search, cell edits and the delete commands.
#include "shell/Form1.h"

namespace sonarium {

void Form1::wireGrid() {}

void Form1::AlignButtons() {}

}  // namespace sonarium
