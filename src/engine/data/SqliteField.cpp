#include "engine/data/SqliteField.h"

#include "engine/data/SqliteRecordset.h"

namespace sonarium {

QVariant SqliteField::Value() const { return records_.fieldValue(column_); }
void SqliteField::setValue(const QVariant& v) { records_.setFieldValue(column_, v); }
QString SqliteField::Name() const { return records_.column(column_).name; }
int SqliteField::Size() const { return records_.column(column_).width; }

}  // namespace sonarium
