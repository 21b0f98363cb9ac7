#pragma once
// The statements that make a new song library after CreateDatabase: the table, then its
// indexes in the order they are made (index 16 is not used).
#include <QStringList>

namespace sonarium {

QStringList libraryStatements();

}  // namespace sonarium
