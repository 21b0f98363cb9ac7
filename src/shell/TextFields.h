#pragma once
// The one reader and writer of the program's small text files (settings, mixer, tone, song
// sets, karaoke timings, skin colours and layouts).
//
// Writing: one value a line, lines ended by CR LF; a number as sign (blank or minus), digits
// and one trailing blank (" 35 ", "-2 "); a string bare, never quoted. Files are written to a
// temporary name and renamed into place, so a crash cannot leave one half made.
//
// Reading: field by field. Leading blanks are skipped; a field ends at a comma or at the end of
// the line (a number also at a blank); a field that opens with a double quote runs to the
// closing quote. Callers test atEnd() before each read, and a field not read keeps its value.
// Nothing is quoted on writing, so a comma in a stored string splits it on reading; the formats
// keep that asymmetry.
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <cstdint>

namespace sonarium {

// The leading decimal number of a text (blanks skipped, sign, digits, point, exponent);
// 0 when there is none. "128 kHz" gives 128, "44.1 kHz" 44.1, "abc" 0.
double leadingNumber(const QString& text);
// Round to the nearest whole number, an exact half to the even neighbour.
double roundHalfEven(double v);
// Conversions to the 16- and 32-bit integers of the formats: rounded, RuntimeError(Overflow)
// when out of range.
std::int16_t toInt16(double v);
std::int32_t toInt32(double v);
// The form a number takes on a line of its own: " 35 ", "-2 ", " 3.3 ".
QString numberText(double v);

class TextFieldWriter {
public:
    void writeNumber(double v) { lines_ << numberText(v); }
    void writeString(const QString& s) { lines_ << s; }
    // The file's bytes: UTF-8, every line closed by CR LF.
    QByteArray bytes() const;
    // Replaces the file whole; RuntimeError when it cannot be written.
    void save(const QString& file) const;

private:
    QStringList lines_;
};

class TextFieldReader {
public:
    explicit TextFieldReader(const QByteArray& bytes);
    // RuntimeError(FileNotFound) when the file can't be opened.
    static TextFieldReader open(const QString& file);

    bool atEnd() const { return pos_ >= text_.size(); }
    // A string field. Reading at the end fails with RuntimeError(InputPastEnd).
    QString readString();
    // A number field by the leading-number rule; an empty field reads as 0.
    double readNumber();
    std::int16_t readInt16() { return toInt16(readNumber()); }
    std::int32_t readInt32() { return toInt32(readNumber()); }

private:
    void skipBlanks();
    void skipPastDelimiter();
    bool atLineEnd() const;
    void takeLineEnd();
    void requireData() const;

    QString text_;
    qsizetype pos_ = 0;
};

}  // namespace sonarium
