#include "engine/data/JetTranslator.h"

#include <QHash>
#include <initializer_list>

#include "engine/data/DataErrors.h"
#include "engine/data/JetTokenizer.h"

namespace sonarium {

namespace {

// Words of the dialect that keep their meaning in SQLite; a few are spelled differently there.
const QHash<QString, QString>& keywords() {
    static const QHash<QString, QString> map = [] {
        QHash<QString, QString> m;
        for (const char* w :
             {"SELECT", "DISTINCT", "FROM",   "WHERE",  "ORDER",   "BY",      "ASC",    "DESC",
              "AND",    "OR",       "NOT",    "LIKE",   "IS",      "NULL",    "IN",     "BETWEEN",
              "AS",     "INSERT",   "INTO",   "VALUES", "UPDATE",  "SET",     "DELETE", "CREATE",
              "TABLE",  "INDEX",    "UNIQUE", "ON",     "WITH",    "PRIMARY", "KEY",    "CONSTRAINT",
              "DROP",   "GROUP",    "HAVING", "JOIN",   "INNER",   "LEFT",    "RIGHT",  "OUTER",
              "UNION",  "ALL",      "EXISTS", "IGNORE", "DISALLOW"})
            m.insert(QString::fromLatin1(w), QString::fromLatin1(w));
        m.insert(QStringLiteral("TRUE"), QStringLiteral("-1"));  // the dialect's True is -1
        m.insert(QStringLiteral("FALSE"), QStringLiteral("0"));
        m.insert(QStringLiteral("MOD"), QStringLiteral("%"));
        return m;
    }();
    return map;
}

// Functions of the dialect that SQLite has under another or the same name.
const QHash<QString, QString>& functions() {
    static const QHash<QString, QString> map = {
        {"COUNT", "count"}, {"SUM", "sum"},     {"MIN", "min"},     {"MAX", "max"},
        {"AVG", "avg"},     {"UCASE", "upper"}, {"LCASE", "lower"}, {"LEN", "length"},
        {"TRIM", "trim"},   {"LTRIM", "ltrim"}, {"RTRIM", "rtrim"},
    };
    return map;
}

class Translation {
public:
    explicit Translation(const QString& statement) : statement_(statement), tokens_(tokenizeJet(statement)) {
        // One statement, with at most one closing semicolon: nothing may follow it.
        for (size_t i = 0; i < tokens_.size(); ++i) {
            if (!tokens_[i].isSymbol(";")) continue;
            if (i + 1 != tokens_.size()) throw dataerrors::textAfterEnd();
            tokens_.pop_back();
        }
    }

    bool atEnd() const { return pos_ >= tokens_.size(); }
    size_t count() const { return tokens_.size(); }
    bool peekIs(const char* keyword, size_t ahead = 0) const {
        return pos_ + ahead < tokens_.size() && tokens_[pos_ + ahead].is(keyword);
    }
    bool accept(const char* keyword) {
        if (!peekIs(keyword)) return false;
        ++pos_;
        return true;
    }
    bool peekSymbol(const char* symbol) const { return !atEnd() && tokens_[pos_].isSymbol(symbol); }
    bool acceptSymbol(const char* symbol) {
        if (!peekSymbol(symbol)) return false;
        ++pos_;
        return true;
    }
    void expect(const char* keyword) {
        if (!accept(keyword)) throw dataerrors::syntax(statement_);
    }
    void expectSymbol(const char* symbol) {
        if (!acceptSymbol(symbol)) throw dataerrors::syntax(statement_);
    }
    void expectEnd() const {
        if (!atEnd()) throw dataerrors::syntax(statement_);
    }

    // A table, column or index name: bracketed, or a bare word that is not a keyword.
    QString name() {
        if (!atEnd()) {
            const JetToken& t = tokens_[pos_];
            if (t.kind == JetToken::Name ||
                (t.kind == JetToken::Word && !keywords().contains(t.text.toUpper()))) {
                ++pos_;
                return t.text;
            }
        }
        throw dataerrors::syntax(statement_);
    }

    int number() {
        if (atEnd() || tokens_[pos_].kind != JetToken::Number) throw dataerrors::syntaxInFieldDefinition();
        bool ok = false;
        const int n = tokens_[pos_++].text.toInt(&ok);
        if (!ok) throw dataerrors::syntaxInFieldDefinition();
        return n;
    }

    // The tokens up to a stop word or stop symbol outside parentheses (or the end), rebuilt.
    QString expression(std::initializer_list<const char*> stopWords = {},
                       std::initializer_list<const char*> stopSymbols = {}) {
        QStringList out;
        int depth = 0;
        for (; !atEnd(); ++pos_) {
            const JetToken& t = tokens_[pos_];
            if (depth == 0 && stops(t, stopWords, stopSymbols)) break;
            if (t.isSymbol("(")) ++depth;
            if (t.isSymbol(")")) --depth;
            // "Insert Into T (a, b)": a name before a parenthesis there is the table, not a call.
            const bool call = pos_ + 1 < tokens_.size() && tokens_[pos_ + 1].isSymbol("(") &&
                              !(pos_ > 0 && tokens_[pos_ - 1].is("INTO"));
            out << rebuild(t, call);
        }
        if (out.isEmpty()) throw dataerrors::syntax(statement_);
        return out.join(u' ');
    }

private:
    static bool stops(const JetToken& t, std::initializer_list<const char*> words,
                      std::initializer_list<const char*> symbols) {
        for (const char* w : words)
            if (t.is(w)) return true;
        for (const char* s : symbols)
            if (t.isSymbol(s)) return true;
        return false;
    }

    QString rebuild(const JetToken& t, bool call) const {
        switch (t.kind) {
        case JetToken::Name: return sqlIdentifier(t.text);
        case JetToken::Text: return sqlText(t.text);
        case JetToken::Number: return t.text;
        case JetToken::Symbol: return t.isSymbol("&") ? QStringLiteral("||") : t.text;
        case JetToken::Word: break;
        }
        const QString upper = t.text.toUpper();
        if (call && functions().contains(upper)) return functions().value(upper);
        if (keywords().contains(upper)) return keywords().value(upper);
        if (call) throw dataerrors::undefinedFunction(t.text);
        return sqlIdentifier(t.text);
    }

    QString statement_;
    std::vector<JetToken> tokens_;
    size_t pos_ = 0;
};

struct ColumnType {
    QString sql;
    int width = 0;  // text only
};

// The column type of a Create Table: text keeps its width in the declared type, where the
// record set reads it back, and compares without regard to case.
ColumnType columnType(Translation& t) {
    auto word = [&](std::initializer_list<const char*> names) {
        for (const char* n : names)
            if (t.accept(n)) return true;
        return false;
    };
    if (word({"TEXT", "CHAR", "VARCHAR"})) {
        int width = 255;  // the dialect's width of a Text without one
        if (t.acceptSymbol("(")) {
            width = t.number();
            t.expectSymbol(")");
        }
        if (width < 1 || width > 255) throw dataerrors::syntaxInFieldDefinition();
        return {QStringLiteral("TEXT(%1) COLLATE NOCASE").arg(width), width};
    }
    if (word({"MEMO", "LONGTEXT"})) return {QStringLiteral("TEXT COLLATE NOCASE")};
    if (word({"LONG", "INTEGER", "SHORT", "BYTE", "COUNTER", "BIT"})) return {QStringLiteral("INTEGER")};
    if (word({"DOUBLE", "SINGLE", "CURRENCY"})) return {QStringLiteral("REAL")};
    if (word({"DATETIME"})) return {QStringLiteral("NUMERIC")};
    throw dataerrors::syntaxInFieldDefinition();
}

// Two triggers that refuse a row, inserted or changed, for which `condition` holds, with the
// dialect's own message: SQLite cannot add such rules to a table after it is made, and this
// way they hold for every program that writes the file.
QStringList guards(const QString& name, const QString& table, const QStringList& columns,
                   const QString& condition, const char* message) {
    QStringList names;
    for (const QString& c : columns) names << sqlIdentifier(c);
    const QString body = QStringLiteral(" FOR EACH ROW WHEN %1 BEGIN SELECT RAISE(ABORT, %2); END")
                             .arg(condition, sqlText(QString::fromLatin1(message)));
    return {QStringLiteral("CREATE TRIGGER %1 BEFORE INSERT ON %2")
                    .arg(sqlIdentifier(name + QStringLiteral(" on insert")), sqlIdentifier(table)) +
                body,
            QStringLiteral("CREATE TRIGGER %1 BEFORE UPDATE OF %2 ON %3")
                    .arg(sqlIdentifier(name + QStringLiteral(" on update")), names.join(u','),
                         sqlIdentifier(table)) +
                body};
}

// The table, and the rule that no text is wider than its column.
QStringList createTable(Translation& t) {
    t.expect("CREATE");
    t.expect("TABLE");
    const QString table = t.name();
    t.expectSymbol("(");
    QStringList columns, texts, tooWide;
    do {
        QString column;
        if (t.peekIs("CONSTRAINT")) {
            column = t.expression({}, {",", ")"});
        } else {
            const QString name = t.name();
            const ColumnType type = columnType(t);
            column = sqlIdentifier(name) + u' ' + type.sql;
            if (type.width > 0) {
                texts << name;
                tooWide << QStringLiteral("length(NEW.%1) > %2").arg(sqlIdentifier(name)).arg(type.width);
            }
            // NOT NULL, PRIMARY KEY and the like may follow the type.
            if (!t.peekSymbol(",") && !t.peekSymbol(")")) column += u' ' + t.expression({}, {",", ")"});
        }
        columns << column;
    } while (t.acceptSymbol(","));
    t.expectSymbol(")");
    t.expectEnd();
    QStringList out{
        QStringLiteral("CREATE TABLE %1 (%2)").arg(sqlIdentifier(table), columns.join(QStringLiteral(", ")))};
    if (!texts.isEmpty())
        out << guards(table + QStringLiteral(" widths"), table, texts, tooWide.join(QStringLiteral(" OR ")),
                      dataerrors::kFieldTooSmallText);
    return out;
}

QStringList createIndex(Translation& t) {
    t.expect("CREATE");
    bool unique = t.accept("UNIQUE");
    t.expect("INDEX");
    const QString index = t.name();
    t.expect("ON");
    const QString table = t.name();
    t.expectSymbol("(");
    QStringList columns, terms;
    do {
        columns << t.name();
        QString term = sqlIdentifier(columns.last());
        if (t.accept("ASC")) term += QStringLiteral(" ASC");
        if (t.accept("DESC")) term += QStringLiteral(" DESC");
        terms << term;
    } while (t.acceptSymbol(","));
    t.expectSymbol(")");
    bool notNull = false;
    if (t.accept("WITH")) {
        do {
            if (t.accept("PRIMARY")) {
                unique = notNull = true;
            } else if (t.accept("DISALLOW")) {
                t.expect("NULL");
                notNull = true;
            } else {
                t.expect("IGNORE");  // SQLite keeps nulls in an index; no result differs
                t.expect("NULL");
            }
        } while (!t.atEnd());
    }
    t.expectEnd();
    QStringList out{QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)")
                        .arg(unique ? QStringLiteral("UNIQUE ") : QString(), sqlIdentifier(index),
                             sqlIdentifier(table), terms.join(QStringLiteral(", ")))};
    if (notNull) {
        QStringList isNull;
        for (const QString& c : columns) isNull << QStringLiteral("NEW.%1 IS NULL").arg(sqlIdentifier(c));
        out << guards(index + QStringLiteral(" not null"), table, columns,
                      isNull.join(QStringLiteral(" OR ")), dataerrors::kNullKeyText);
    }
    return out;
}

QString deleteRows(Translation& t) {
    t.expect("DELETE");
    // "Delete * From", "Delete T.* From" and "Delete From" all mean the rows of the table.
    if (!t.acceptSymbol("*") && !t.peekIs("FROM")) {
        t.name();
        t.expectSymbol(".");
        t.expectSymbol("*");
    }
    t.expect("FROM");
    return QStringLiteral("DELETE FROM ") + t.expression();
}

}  // namespace

QString sqlIdentifier(const QString& name) {
    QString quoted = name;
    return u'"' + quoted.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QString sqlText(const QString& value) {
    QString quoted = value;
    return u'\'' + quoted.replace(u'\'', QStringLiteral("''")) + u'\'';
}

SelectQuery translateRecordSource(const QString& source) {
    Translation t(source);
    SelectQuery q;
    if (t.count() == 1 && !t.peekIs("SELECT")) {
        q.table = t.name();
        return q;
    }
    t.expect("SELECT");
    if (!t.acceptSymbol("*")) {
        do q.columns << t.name();
        while (t.acceptSymbol(","));
    }
    t.expect("FROM");
    q.table = t.name();
    if (t.accept("WHERE")) q.where = t.expression({"ORDER"});
    if (t.accept("ORDER")) {
        t.expect("BY");
        q.orderBy = t.expression();
    }
    if (!t.atEnd()) throw dataerrors::syntaxInFrom();
    return q;
}

QStringList translateStatement(const QString& statement) {
    Translation t(statement);
    if (t.peekIs("SELECT")) throw dataerrors::selectNotExecutable();
    if (t.peekIs("DELETE")) return {deleteRows(t)};
    if (t.peekIs("CREATE") && t.peekIs("TABLE", 1)) return createTable(t);
    if (t.peekIs("CREATE")) return createIndex(t);
    if (t.peekIs("INSERT") || t.peekIs("UPDATE") || t.peekIs("DROP")) return {t.expression()};
    throw dataerrors::notAStatement();
}

QString translateCriteria(const QString& criteria) {
    Translation t(criteria);
    QString expr = t.expression();
    t.expectEnd();
    return expr;
}

}  // namespace sonarium
