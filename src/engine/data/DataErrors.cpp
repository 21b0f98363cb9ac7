#include "engine/data/DataErrors.h"

namespace sonarium::dataerrors {

const char* const kNullKeyText = "Index or primary key cannot contain a Null value.";
const char* const kInvalidPatternText = "Invalid pattern string.";
const char* const kFieldTooSmallText =
    "The field is too small to accept the amount of data you attempted to add. Try inserting or pasting less "
    "data.";

namespace {
RuntimeError error(int number, const QString& text) { return RuntimeError(number, text); }
}  // namespace

RuntimeError updateWithoutEdit() {
    return error(3020, QStringLiteral("Update or CancelUpdate without AddNew or Edit."));
}
RuntimeError noCurrentRecord() { return error(3021, QStringLiteral("No current record.")); }
RuntimeError duplicateKey() {
    return error(3022, QStringLiteral("The changes you requested to the table were not successful because "
                                      "they would create duplicate values in the index, primary key, or "
                                      "relationship. Change the data in the field or fields that contain "
                                      "duplicate data, remove the index, or redefine the index to permit "
                                      "duplicate entries and try again."));
}
RuntimeError nullKey() { return error(3058, QString::fromLatin1(kNullKeyText)); }
RuntimeError fieldTooSmall() { return error(3163, QString::fromLatin1(kFieldTooSmallText)); }
RuntimeError recordDeleted() { return error(3167, QStringLiteral("Record is deleted.")); }
RuntimeError itemNotFound() { return error(3265, QStringLiteral("Item not found in this collection.")); }
RuntimeError fileNotFound(const QString& file) {
    return error(3024, QStringLiteral("Could not find file '%1'.").arg(file));
}
RuntimeError notADatabase(const QString& file) {
    return error(3343, QStringLiteral("Unrecognized database format '%1'.").arg(file));
}
RuntimeError damaged(const QString& file) {
    return error(3049, QStringLiteral("Cannot open database '%1'. The file is damaged; it has been left as "
                                      "it is.")
                           .arg(file));
}
RuntimeError cannotOpen(const QString& file, const QString& why) {
    return error(3051, QStringLiteral("The database engine cannot open the file '%1' (%2).").arg(file, why));
}
RuntimeError noSuchTable(const QString& name) {
    return error(3078, QStringLiteral("The database engine cannot find the input table or query '%1'. Make "
                                      "sure it exists and that its name is spelled correctly.")
                           .arg(name));
}
RuntimeError readOnly() {
    return error(3027, QStringLiteral("Cannot update. Database or object is read-only."));
}
RuntimeError alreadyExists(const QString& file) {
    return error(3204, QStringLiteral("Database '%1' already exists.").arg(file));
}
RuntimeError selectNotExecutable() { return error(3065, QStringLiteral("Cannot execute a select query.")); }
RuntimeError closed() { return error(3420, QStringLiteral("Object invalid or no longer set.")); }
RuntimeError locked() {
    return error(3260, QStringLiteral("Couldn't update; the database is locked by another program."));
}
RuntimeError diskFull() { return error(RuntimeError::DiskFull, QStringLiteral("Disk full.")); }
RuntimeError syntax(const QString& statement) {
    return error(3075,
                 QStringLiteral("Syntax error (missing operator) in query expression '%1'.").arg(statement));
}
RuntimeError syntaxInString(const QString& statement) {
    return error(3075, QStringLiteral("Syntax error in string in query expression '%1'.").arg(statement));
}
RuntimeError syntaxInFrom() { return error(3131, QStringLiteral("Syntax error in FROM clause.")); }
RuntimeError syntaxInFieldDefinition() {
    return error(3292, QStringLiteral("Syntax error in field definition."));
}
RuntimeError notAStatement() {
    return error(3129, QStringLiteral("Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', "
                                      "'SELECT', or 'UPDATE'."));
}
RuntimeError textAfterEnd() {
    return error(3142, QStringLiteral("Characters found after end of SQL statement."));
}
RuntimeError badBracketing(const QString& name) {
    return error(3126, QStringLiteral("Invalid bracketing of name '%1'.").arg(name));
}
RuntimeError unknownField(const QString& name) {
    return error(3070, QStringLiteral("The database engine does not recognize '%1' as a valid field name or "
                                      "expression.")
                           .arg(name));
}
RuntimeError undefinedFunction(const QString& name) {
    return error(3085, QStringLiteral("Undefined function '%1' in expression.").arg(name));
}
RuntimeError invalidPattern() { return error(93, QString::fromLatin1(kInvalidPatternText)); }
RuntimeError engine(const QString& text) { return error(RuntimeError::ComponentFailed, text); }

}  // namespace sonarium::dataerrors
