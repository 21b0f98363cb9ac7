// The library's part of start-up: genres, the default database, the first view of the grid.
#include "shell/Form1.h"

namespace sonarium {

// These land with the library work; until then the grid stays empty.
void Form1::MakeDatabase(const QString&) {}

void Form1::UpdateRecordCount() {}

void Form1::imgButon_Click(int) {}

}  // namespace sonarium
