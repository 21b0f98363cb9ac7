// The library's record count, shown under the grid.
#include "controls/Errors.h"
#include "shell/Form1.h"

namespace sonarium {

// The count of a record set is of the records visited, so the count walks to the last one; the
// current record then goes back to the first. In an empty view the moves fail and 0 shows.
void Form1::UpdateRecordCount() {
    Recordset& records = C.data.recordset();
    tryStep([&] { records.MoveLast(); });
    tryStep([&] { RecordTotal = records.RecordCount(); });
    tryStep([&] { lblRecords.setCaption(QString::number(RecordTotal)); });
    tryStep([&] { records.MoveFirst(); });
}

}  // namespace sonarium
