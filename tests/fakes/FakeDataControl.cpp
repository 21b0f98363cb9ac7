#include "FakeDataControl.h"

#include <QRegularExpression>
#include <optional>

#include "controls/Errors.h"

namespace sonarium {

namespace {

struct Column {
    const char* name;
    int size;  // 0 for a memo
};
// The SongData table, in field-number order.
constexpr Column kColumns[] = {
    {"Path", 80},     {"File", 50},     {"Song Title", 30}, {"Artist", 30},      {"Album", 30},
    {"Comment", 30},  {"Genre", 30},    {"Duration", 8},    {"Year", 4},         {"Tempo", 30},
    {"Lyricist", 30}, {"Composer", 30}, {"Key", 20},        {"Web Address", 40}, {"E-Mail", 30},
    {"Info", 0},      {"Path\\File", 100}};
constexpr int kColumnCount = int(std::size(kColumns));
constexpr int kKey = kColumnCount - 1;

[[noreturn]] void fail(int number, const char* text) {
    throw RuntimeError(number, QString::fromLatin1(text));
}

int columnIndex(const QString& name) {
    QString bare = name.trimmed();
    if (bare.startsWith(u'[') && bare.endsWith(u']')) bare = bare.mid(1, bare.size() - 2);
    for (int i = 0; i < kColumnCount; ++i)
        if (bare.compare(QLatin1String(kColumns[i].name), Qt::CaseInsensitive) == 0) return i;
    fail(3265, "Item not found in this collection.");
}

}  // namespace

class FakeDataControl::LoggingDatabase : public Database {
public:
    explicit LoggingDatabase(FakeDataControl& owner) : owner_(owner) {}
    void Execute(const QString& statement) override {
        owner_.record(QStringLiteral("Execute(%1)").arg(statement));
        owner_.statements_ << statement;
    }
    void Close() override { owner_.record(QStringLiteral("Close")); }

private:
    FakeDataControl& owner_;
};

class FakeDataControl::Records : public Recordset {
public:
    explicit Records(FakeDataControl& owner) : owner_(owner) {
        for (int i = 0; i < kColumnCount; ++i) fields_.emplace_back(*this, i);
    }

    std::vector<QVariantMap> rows;

    // Reopening shows the first row, as the engine does: one row visited.
    void reopen() {
        editing_ = Editing::None;
        pos_ = rows.empty() ? -1 : 0;
        atEnd_ = rows.empty();
        visited_ = rows.empty() ? 0 : 1;
    }

    std::int32_t RecordCount() override { return visited_; }
    std::int32_t AbsolutePosition() override { return current() ? pos_ : -1; }
    bool BOF() override { return rows.empty() || pos_ < 0; }
    bool EOF_() override { return rows.empty() || atEnd_; }
    void MoveFirst() override { moveTo(0); }
    void MoveLast() override { moveTo(int(rows.size()) - 1); }
    void MoveNext() override {
        if (EOF_()) fail(3021, "No current record.");
        if (pos_ + 1 >= int(rows.size())) {
            pos_ = int(rows.size()), atEnd_ = true;
            return;
        }
        moveTo(pos_ + 1);
    }
    void MovePrevious() override {
        if (BOF()) fail(3021, "No current record.");
        if (pos_ == 0) {
            pos_ = -1;
            return;
        }
        moveTo(pos_ - 1);
    }
    void AddNew() override {
        owner_.record(QStringLiteral("AddNew"));
        editing_ = Editing::New;
        buffer_.clear();
    }
    void Edit() override {
        owner_.record(QStringLiteral("Edit"));
        if (!current()) fail(3021, "No current record.");
        editing_ = Editing::Existing;
        buffer_ = rows[pos_];
    }
    void Update() override;
    void CancelUpdate() override { editing_ = Editing::None; }
    void Delete() override {
        owner_.record(QStringLiteral("Delete"));
        if (!current()) fail(3021, "No current record.");
        rows.erase(rows.begin() + pos_);
        visited_ = std::max(visited_ - 1, 0);
        deleted_ = true;  // no current row until the next move
    }
    void FindFirst(const QString& criteria) override;
    bool NoMatch() override { return noMatch_; }
    int FieldCount() override { return kColumnCount; }
    Field& Fields(int number) override {
        if (number < 0 || number >= kColumnCount) fail(3265, "Item not found in this collection.");
        return fields_[number];
    }
    Field& Fields(const QString& name) override { return fields_[columnIndex(name)]; }

private:
    enum class Editing { None, New, Existing };
    class OneField : public Field {
    public:
        OneField(Records& rs, int column) : rs_(rs), column_(column) {}
        QVariant Value() const override { return rs_.value(column_); }
        void setValue(const QVariant& v) override { rs_.setValue(column_, v); }
        QString Name() const override { return QLatin1String(kColumns[column_].name); }
        int Size() const override { return kColumns[column_].size; }

    private:
        Records& rs_;
        int column_;
    };

    bool current() const { return !deleted_ && pos_ >= 0 && pos_ < int(rows.size()); }
    void moveTo(int row) {
        if (row < 0 || row >= int(rows.size())) fail(3021, "No current record.");
        pos_ = row, atEnd_ = false, deleted_ = false;
        visited_ = std::max(visited_, row + 1);
    }
    QVariant value(int column) const {
        QString name = QLatin1String(kColumns[column].name);
        if (editing_ != Editing::None) return buffer_.value(name);
        if (!current()) fail(3021, "No current record.");
        return rows[pos_].value(name);
    }
    void setValue(int column, const QVariant& v) {
        if (editing_ == Editing::None) fail(3020, "Update or CancelUpdate without AddNew or Edit.");
        buffer_.insert(QLatin1String(kColumns[column].name), v);
    }

    FakeDataControl& owner_;
    std::vector<OneField> fields_;
    QVariantMap buffer_;
    Editing editing_ = Editing::None;
    int pos_ = -1;
    int visited_ = 0;
    bool atEnd_ = true, deleted_ = false, noMatch_ = false;
};

void FakeDataControl::Records::Update() {
    owner_.record(QStringLiteral("Update"));
    if (editing_ == Editing::None) fail(3020, "Update or CancelUpdate without AddNew or Edit.");
    for (int i = 0; i < kColumnCount; ++i) {
        QVariant v = buffer_.value(QLatin1String(kColumns[i].name));
        if (kColumns[i].size > 0 && !v.isNull() && v.toString().size() > kColumns[i].size)
            fail(3163, "The field is too small to accept the amount of data you attempted to add. "
                       "Try inserting or pasting less data.");
    }
    QString key = buffer_.value(QLatin1String(kColumns[kKey].name)).toString();
    if (key.isEmpty()) fail(3058, "Index or primary key cannot contain a Null value.");
    for (int i = 0; i < int(rows.size()); ++i)
        if ((editing_ == Editing::New || i != pos_) &&
            rows[i].value(QLatin1String(kColumns[kKey].name)).toString() == key)
            fail(3022, "The changes you requested to the table were not successful because they "
                       "would create duplicate values in the index, primary key, or relationship.");
    if (editing_ == Editing::New) {
        rows.push_back(buffer_);
        ++visited_;
    } else {
        rows[pos_] = buffer_;
    }
    editing_ = Editing::None;
}

void FakeDataControl::Records::FindFirst(const QString& criteria) {
    owner_.record(QStringLiteral("FindFirst(%1)").arg(criteria));
    static const QRegularExpression equality(QStringLiteral(R"(^\s*(\[[^\]]+\]|[\w-]+)\s*=\s*'(.*)'\s*$)"));
    auto m = equality.match(criteria);
    if (!m.hasMatch())
        throw RuntimeError(RuntimeError::ComponentFailed,
                           QStringLiteral("The fake data control cannot search for: %1").arg(criteria));
    QString name = QLatin1String(kColumns[columnIndex(m.captured(1))].name);
    for (int i = 0; i < int(rows.size()); ++i) {
        if (rows[i].value(name).toString().compare(m.captured(2), Qt::CaseInsensitive) == 0) {
            noMatch_ = false;
            moveTo(i);
            return;
        }
    }
    noMatch_ = true;
}

FakeDataControl::FakeDataControl()
    : records_(std::make_unique<Records>(*this)), database_(std::make_unique<LoggingDatabase>(*this)) {}

FakeDataControl::~FakeDataControl() = default;

void FakeDataControl::addRecord(const QVariantMap& values) {
    for (auto it = values.begin(); it != values.end(); ++it) columnIndex(it.key());  // known names only
    records_->rows.push_back(values);
}

const std::vector<QVariantMap>& FakeDataControl::records() const { return records_->rows; }

QStringList FakeDataControl::statements() const { return statements_; }

void FakeDataControl::setDatabaseName(const QString& file) {
    record(QStringLiteral("DatabaseName=%1").arg(file));
    databaseName_ = file;
}

void FakeDataControl::setConnect(const QString& connect) {
    record(QStringLiteral("Connect=%1").arg(connect));
    connect_ = connect;
}

void FakeDataControl::setRecordSource(const QString& source) {
    record(QStringLiteral("RecordSource=%1").arg(source));
    recordSource_ = source;
}

void FakeDataControl::Refresh() {
    record(QStringLiteral("Refresh"));
    if (!refreshError_.isEmpty()) throw RuntimeError(RuntimeError::ComponentFailed, refreshError_);
    records_->reopen();
}

Database& FakeDataControl::database() { return *database_; }

Recordset& FakeDataControl::recordset() { return *records_; }

std::unique_ptr<Database> FakeDataControl::CreateDatabase(const QString& file, const QString& locale) {
    record(QStringLiteral("CreateDatabase(%1,%2)").arg(file, locale));
    return std::make_unique<LoggingDatabase>(*this);
}

}  // namespace sonarium
