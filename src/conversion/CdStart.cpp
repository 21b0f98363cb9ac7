// The CD reader's part of start-up.
#include "shell/Form1.h"

namespace sonarium {

void Form1::InitCD() { C.cd.InitCD(); }

void Form1::SelectDrive(int drive) { C.cd.SelectDrive(std::int16_t(drive)); }

}  // namespace sonarium
