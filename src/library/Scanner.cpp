// The library scanner and the manual add or update of one file.
#include "shell/Form1.h"

namespace sonarium {

void Form1::wireScanner() {}

}  // namespace sonarium
