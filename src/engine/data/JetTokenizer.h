#pragma once
// Splits a statement of the Jet dialect into tokens: words, [bracketed names], literals in
// double or single quotes (a doubled quote inside stands for one quote), numbers and operators.
// A quote that does not close, a bracket that does not close or a character the dialect does
// not have fails with the dialect's own syntax error, so nothing of the text can slip through
// unparsed.
#include <QString>
#include <vector>

namespace sonarium {

struct JetToken {
    enum Kind { Word, Name, Text, Number, Symbol };
    Kind kind;
    QString text;  // Word as written, Name without brackets, Text unquoted, Symbol like "<="

    // A word of the dialect, whatever its case.
    bool is(const char* keyword) const {
        return kind == Word && text.compare(QLatin1String(keyword), Qt::CaseInsensitive) == 0;
    }
    bool isSymbol(const char* symbol) const { return kind == Symbol && text == QLatin1String(symbol); }
};

// Throws RuntimeError (a syntax error naming `statement`) on text that is not made of tokens.
std::vector<JetToken> tokenizeJet(const QString& statement);

}  // namespace sonarium
