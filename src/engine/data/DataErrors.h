#pragma once
// The failures of the song database, with the numbers and wording the library has always
// shown, so that a message box or a skipped statement reads the same whatever engine is below.
// Each function builds the error; the caller throws it.
#include <QString>

#include "controls/Errors.h"

namespace sonarium::dataerrors {

RuntimeError updateWithoutEdit();  // a field written or Update called outside AddNew/Edit
RuntimeError noCurrentRecord();
RuntimeError duplicateKey();
RuntimeError nullKey();
RuntimeError fieldTooSmall();  // a value wider than its column
RuntimeError recordDeleted();
RuntimeError itemNotFound();  // a field name or number the record set does not have
RuntimeError fileNotFound(const QString& file);
RuntimeError notADatabase(const QString& file);
RuntimeError damaged(const QString& file);
RuntimeError cannotOpen(const QString& file, const QString& why);
RuntimeError noSuchTable(const QString& name);
RuntimeError readOnly();
RuntimeError alreadyExists(const QString& file);
RuntimeError selectNotExecutable();
RuntimeError closed();  // the database was closed under the record set
RuntimeError locked();
RuntimeError diskFull();
RuntimeError syntax(const QString& statement);
RuntimeError syntaxInString(const QString& statement);
RuntimeError syntaxInFrom();
RuntimeError syntaxInFieldDefinition();
RuntimeError notAStatement();
RuntimeError textAfterEnd();
RuntimeError badBracketing(const QString& name);
RuntimeError unknownField(const QString& name);
RuntimeError undefinedFunction(const QString& name);
RuntimeError invalidPattern();
RuntimeError engine(const QString& text);  // anything else, in the engine's own words

// The texts that the database itself raises (from triggers, from the pattern matcher), so that
// the message it returns can be told apart and turned back into the numbered error.
extern const char* const kNullKeyText;
extern const char* const kFieldTooSmallText;
extern const char* const kInvalidPatternText;

}  // namespace sonarium::dataerrors
