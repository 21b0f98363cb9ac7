#include "engine/data/JetTokenizer.h"

#include "engine/data/DataErrors.h"

namespace sonarium {

namespace {

bool isWordStart(QChar c) { return c.isLetter() || c == u'_'; }
bool isWordPart(QChar c) { return c.isLetterOrNumber() || c == u'_'; }
bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

// The literal that opens at `i` with `quote`; `i` ends after its closing quote.
QString readLiteral(const QString& s, qsizetype& i, QChar quote) {
    QString value;
    for (++i; i < s.size(); ++i) {
        if (s[i] != quote) {
            value += s[i];
        } else if (i + 1 < s.size() && s[i + 1] == quote) {
            value += quote;
            ++i;
        } else {
            ++i;
            return value;
        }
    }
    throw dataerrors::syntaxInString(s);
}

QString readNumber(const QString& s, qsizetype& i) {
    const qsizetype start = i;
    while (i < s.size() && isDigit(s[i])) ++i;
    if (i + 1 < s.size() && s[i] == u'.' && isDigit(s[i + 1])) {
        ++i;
        while (i < s.size() && isDigit(s[i])) ++i;
    }
    if (i < s.size() && (s[i] == u'e' || s[i] == u'E')) {
        qsizetype j = i + 1;
        if (j < s.size() && (s[j] == u'+' || s[j] == u'-')) ++j;
        if (j < s.size() && isDigit(s[j])) {
            i = j;
            while (i < s.size() && isDigit(s[i])) ++i;
        }
    }
    if (i < s.size() && isWordPart(s[i])) throw dataerrors::syntax(s);  // "12abc"
    return s.mid(start, i - start);
}

}  // namespace

std::vector<JetToken> tokenizeJet(const QString& s) {
    std::vector<JetToken> tokens;
    qsizetype i = 0;
    while (i < s.size()) {
        const QChar c = s[i];
        if (c.isSpace()) {
            ++i;
        } else if (c == u'[') {
            const qsizetype close = s.indexOf(u']', i + 1);
            const qsizetype nextOpen = s.indexOf(u'[', i + 1);
            if (close < 0 || (nextOpen >= 0 && nextOpen < close) || close == i + 1)
                throw dataerrors::badBracketing(s.mid(i, close < 0 ? -1 : close - i + 1));
            tokens.push_back({JetToken::Name, s.mid(i + 1, close - i - 1)});
            i = close + 1;
        } else if (c == u'"' || c == u'\'') {
            tokens.push_back({JetToken::Text, readLiteral(s, i, c)});
        } else if (isDigit(c) || (c == u'.' && i + 1 < s.size() && isDigit(s[i + 1]))) {
            tokens.push_back({JetToken::Number, readNumber(s, i)});
        } else if (isWordStart(c)) {
            const qsizetype start = i;
            while (i < s.size() && isWordPart(s[i])) ++i;
            tokens.push_back({JetToken::Word, s.mid(start, i - start)});
        } else {
            const QString two = s.mid(i, 2);
            if (two == u"<>" || two == u"<=" || two == u">=") {
                tokens.push_back({JetToken::Symbol, two});
                i += 2;
            } else if (QStringView(u"=<>+-*/&(),.;").contains(c)) {
                tokens.push_back({JetToken::Symbol, QString(c)});
                ++i;
            } else {
                throw dataerrors::syntax(s);
            }
        }
    }
    return tokens;
}

}  // namespace sonarium
