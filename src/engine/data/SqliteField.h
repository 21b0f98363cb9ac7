#pragma once
// One field of the record set, by its number; it asks the record set for everything, so a
// Field& stays valid across moves and reopenings of the record set.
#include "controls/DataControl.h"

namespace sonarium {

class SqliteRecordset;

class SqliteField : public Field {
public:
    SqliteField(SqliteRecordset& records, int column) : records_(records), column_(column) {}
    QVariant Value() const override;
    void setValue(const QVariant& v) override;
    QString Name() const override;
    int Size() const override;

private:
    SqliteRecordset& records_;
    int column_;
};

}  // namespace sonarium
