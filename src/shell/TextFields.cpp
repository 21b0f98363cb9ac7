#include "shell/TextFields.h"

#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>
#include <cfenv>
#include <cmath>
#include <limits>

#include "controls/Errors.h"
#include "controls/FileNames.h"

namespace sonarium {

double leadingNumber(const QString& text) {
    qsizetype i = 0, n = text.size();
    while (i < n && (text[i] == u' ' || text[i] == u'\t')) ++i;
    qsizetype start = i;
    if (i < n && (text[i] == u'-' || text[i] == u'+')) ++i;
    qsizetype digits = 0;
    while (i < n && text[i].isDigit() && text[i].unicode() < 128) ++i, ++digits;
    if (i < n && text[i] == u'.') {
        ++i;
        while (i < n && text[i].isDigit() && text[i].unicode() < 128) ++i, ++digits;
    }
    if (digits == 0) return 0;
    qsizetype end = i;
    if (i < n && (text[i] == u'E' || text[i] == u'e' || text[i] == u'D' || text[i] == u'd')) {
        qsizetype j = i + 1;
        if (j < n && (text[j] == u'-' || text[j] == u'+')) ++j;
        qsizetype expDigits = 0;
        while (j < n && text[j].isDigit() && text[j].unicode() < 128) ++j, ++expDigits;
        if (expDigits) end = j;
    }
    QString number = text.mid(start, end - start);
    number.replace(u'D', u'E').replace(u'd', u'e');
    bool ok = false;
    double v = number.toDouble(&ok);
    return ok && std::isfinite(v) ? v : 0;
}

double roundHalfEven(double v) {
    const int old = std::fegetround();
    std::fesetround(FE_TONEAREST);
    double r = std::nearbyint(v);
    std::fesetround(old);
    return r;
}

template <typename T>
static T toInteger(double v) {
    double r = roundHalfEven(v);
    if (!(r >= double(std::numeric_limits<T>::min()) && r <= double(std::numeric_limits<T>::max())))
        throw RuntimeError(RuntimeError::Overflow, QStringLiteral("Overflow"));
    return T(r);
}

std::int16_t toInt16(double v) { return toInteger<std::int16_t>(v); }
std::int32_t toInt32(double v) { return toInteger<std::int32_t>(v); }

QString numberText(double v) {
    QString digits;
    double a = std::fabs(v);
    if (a == std::floor(a) && a < 1e15) {
        digits = QString::number(qint64(a));
    } else {
        digits = QString::number(a, 'g', 15);
        if (digits.startsWith(QLatin1String("0."))) digits.remove(0, 1);  // " .5 ", as printed
    }
    return (v < 0 ? QStringLiteral("-") : QStringLiteral(" ")) + digits + u' ';
}

QByteArray TextFieldWriter::bytes() const {
    QByteArray out;
    for (const QString& line : lines_) {
        out += line.toUtf8();
        out += "\r\n";
    }
    return out;
}

void TextFieldWriter::save(const QString& file) const {
    QSaveFile f(resolveFileName(file));
    if (!f.open(QIODevice::WriteOnly))
        throw RuntimeError(RuntimeError::PathFileAccess,
                           QStringLiteral("Path/File access error: %1").arg(file));
    f.write(bytes());
    if (!f.commit())
        throw RuntimeError(RuntimeError::PathFileAccess,
                           QStringLiteral("Path/File access error: %1").arg(file));
}

TextFieldReader::TextFieldReader(const QByteArray& bytes) {
    // Files are UTF-8; one written by another tool in a single-byte code page still reads.
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    text_ = utf8(bytes);
    if (utf8.hasError()) text_ = QString::fromLatin1(bytes);
}

TextFieldReader TextFieldReader::open(const QString& file) {
    QFile f(resolveFileName(file));
    if (!f.open(QIODevice::ReadOnly))
        throw RuntimeError(RuntimeError::FileNotFound, QStringLiteral("File not found: %1").arg(file));
    return TextFieldReader(f.readAll());
}

bool TextFieldReader::atLineEnd() const {
    return pos_ >= text_.size() || text_[pos_] == u'\r' || text_[pos_] == u'\n';
}

void TextFieldReader::takeLineEnd() {
    if (pos_ < text_.size() && text_[pos_] == u'\r') ++pos_;
    if (pos_ < text_.size() && text_[pos_] == u'\n') ++pos_;
}

void TextFieldReader::skipBlanks() {
    while (pos_ < text_.size() && (text_[pos_] == u' ' || text_[pos_] == u'\t')) ++pos_;
}

// After a field: blanks, then one comma or one line end is taken. Anything else stays and
// starts the next field.
void TextFieldReader::skipPastDelimiter() {
    skipBlanks();
    if (pos_ < text_.size() && text_[pos_] == u',')
        ++pos_;
    else
        takeLineEnd();
}

void TextFieldReader::requireData() const {
    if (atEnd()) throw RuntimeError(RuntimeError::InputPastEnd, QStringLiteral("Input past end of file"));
}

QString TextFieldReader::readString() {
    requireData();
    skipBlanks();
    QString field;
    if (pos_ < text_.size() && text_[pos_] == u'"') {
        qsizetype close = text_.indexOf(u'"', pos_ + 1);
        if (close < 0) close = text_.size();
        field = text_.mid(pos_ + 1, close - pos_ - 1);
        pos_ = std::min(close + 1, text_.size());
        // What stands between the closing quote and the delimiter is passed over.
        while (!atLineEnd() && text_[pos_] != u',') ++pos_;
        if (pos_ < text_.size() && text_[pos_] == u',')
            ++pos_;
        else
            takeLineEnd();
        return field;
    }
    qsizetype start = pos_;
    while (!atLineEnd() && text_[pos_] != u',') ++pos_;
    field = text_.mid(start, pos_ - start);
    if (pos_ < text_.size() && text_[pos_] == u',')
        ++pos_;
    else
        takeLineEnd();
    return field;
}

double TextFieldReader::readNumber() {
    requireData();
    skipBlanks();
    QString field;
    if (pos_ < text_.size() && text_[pos_] == u'"') {
        field = readString();
        return leadingNumber(field);
    }
    qsizetype start = pos_;
    while (!atLineEnd() && text_[pos_] != u',' && text_[pos_] != u' ' && text_[pos_] != u'\t') ++pos_;
    field = text_.mid(start, pos_ - start);
    skipPastDelimiter();
    return leadingNumber(field);
}

}  // namespace sonarium
