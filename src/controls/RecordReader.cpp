#include "controls/RecordReader.h"

#include <algorithm>
#include <cstdlib>
#include <exception>

namespace sonarium {

namespace {

// A view that changed under a stale count would put a walk on the wrong record.
class WalkLost : public std::exception {};

}  // namespace

QString fieldText(Field& field) {
    try {
        const QVariant v = field.Value();
        return v.isNull() ? QString() : v.toString();
    } catch (const std::exception&) {
        return {};
    }
}

RecordReader::Place RecordReader::place() const {
    try {
        const int position = records_.AbsolutePosition();
        if (position >= 0) return {Place::Row, position};
        const bool bof = records_.BOF(), eof = records_.EOF_();
        if (bof && eof) return {Place::Empty};
        if (bof) return {Place::Before};
        if (eof) return {Place::After};
        return {Place::Lost};
    } catch (const std::exception&) {
        return {Place::Closed};
    }
}

bool RecordReader::walkable(const Place& from) const {
    return from.kind == Place::Row || from.kind == Place::Before || from.kind == Place::After;
}

void RecordReader::walk(const Place& from, int to, int total) {
    const int viaFirst = to, viaLast = total - 1 - to;
    const int here = from.kind == Place::Row ? std::abs(to - from.row) : total;
    if (here <= viaFirst && here <= viaLast) {
        for (int r = from.row; r < to; ++r) records_.MoveNext();
        for (int r = from.row; r > to; --r) records_.MovePrevious();
    } else if (viaFirst <= viaLast) {
        records_.MoveFirst();
        for (int r = 0; r < to; ++r) records_.MoveNext();
    } else {
        records_.MoveLast();
        for (int r = 0; r < viaLast; ++r) records_.MovePrevious();
    }
    if (records_.AbsolutePosition() != to) throw WalkLost();
}

void RecordReader::restore(const Place& at, const Place& was, int total) {
    switch (was.kind) {
    case Place::Row: walk(at, was.row, total); break;
    case Place::Before: records_.MoveFirst(), records_.MovePrevious(); break;
    case Place::After: records_.MoveLast(), records_.MoveNext(); break;
    default: break;
    }
}

std::optional<int> RecordReader::count() {
    const Place was = place();
    if (was.kind == Place::Empty) return 0;
    if (!walkable(was)) return std::nullopt;
    try {
        records_.MoveLast();
        const int total = records_.AbsolutePosition() + 1;
        restore({Place::Row, total - 1}, was, total);
        return total;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

std::optional<std::vector<QStringList>> RecordReader::read(int first, int n, const std::vector<int>& fields,
                                                           int total) {
    const Place was = place();
    if (was.kind == Place::Empty || first < 0 || first >= total) return std::vector<QStringList>();
    if (!walkable(was)) return std::nullopt;
    n = std::min(n, total - first);
    std::vector<QStringList> rows;
    try {
        walk(was, first, total);
        for (int k = 0; k < n; ++k) {
            if (k > 0) records_.MoveNext();
            QStringList texts;
            for (int f : fields) texts << fieldText(records_.Fields(f));
            rows.push_back(std::move(texts));
        }
        if (records_.AbsolutePosition() != first + n - 1) throw WalkLost();
        restore({Place::Row, first + n - 1}, was, total);
        return rows;
    } catch (const std::exception&) {
        // Back to where the record set stood, as well as the view still allows.
        try {
            const Place now = place();
            if (walkable(now)) restore(now, was, total);
        } catch (const std::exception&) {
        }
        return std::nullopt;
    }
}

bool RecordReader::moveTo(int row, int total) {
    const Place was = place();
    if (row < 0 || row >= total || !walkable(was)) return false;
    try {
        walk(was, row, total);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace sonarium
