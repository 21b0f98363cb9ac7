#include "info/RichTextBox.h"

#include <QFile>
#include <QSaveFile>
#include <algorithm>

#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "info/rtf/RtfReader.h"
#include "info/rtf/RtfWriter.h"

namespace sonarium {

namespace {
RuntimeError invalidValue() {
    return RuntimeError(RuntimeError::InvalidPropertyValue, QStringLiteral("Invalid property value"));
}
}  // namespace

void RichTextBox::setDocument(RichDocument doc) {
    doc_ = std::move(doc);
    changeDocument();
}

void RichTextBox::changeDocument() {
    doc_.normalise();
    const int length = int(Text().size());
    selStart_ = std::min(selStart_, length);
    selLength_ = std::min(selLength_, length - selStart_);
    ++version_;
    notify();
}

void RichTextBox::setFileName(const QString& file) {
    if (file.isEmpty())
        set(fileName_, file);
    else
        LoadFile(file);
}

void RichTextBox::LoadFile(const QString& file) {
    QFile f(resolveFileName(file));
    if (file.isEmpty() || !f.open(QIODevice::ReadOnly))
        throw RuntimeError(RuntimeError::FileNotFound, QStringLiteral("File not found: %1").arg(file));
    const QByteArray bytes = f.read(kMaxRtfBytes);
    selStart_ = selLength_ = 0;
    fileName_ = file;
    setDocument(readRtf(bytes));
}

void RichTextBox::SaveFile(const QString& file, const QByteArray& trailer) const {
    QSaveFile f(resolveFileName(file));
    const QByteArray bytes = writeRtf(doc_) + trailer;
    if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size() || !f.commit())
        throw RuntimeError(RuntimeError::PathFileAccess,
                           QStringLiteral("Path/File access error: %1").arg(file));
}

void RichTextBox::setTextRTF(const QByteArray& rtf) { setDocument(readRtf(rtf)); }

void RichTextBox::setSelStart(int start) {
    if (start < 0) throw invalidValue();
    selStart_ = std::min(start, int(Text().size()));
    selLength_ = 0;
    notify();
}

void RichTextBox::setSelLength(int length) {
    if (length < 0) throw invalidValue();
    selLength_ = std::min(length, int(Text().size()) - selStart_);
    notify();
}

void RichTextBox::select(int start, int length) {
    const int size = int(Text().size());
    selStart_ = std::clamp(start, 0, size);
    selLength_ = std::clamp(length, 0, size - selStart_);
}

// Splits the runs at the selection's ends and changes the format of those inside it.
template <typename Change>
void RichTextBox::formatSelection(const Change& change) {
    change(typing_);
    if (selLength_ == 0) return notify();
    const int from = selStart_, to = selStart_ + selLength_;
    int pos = 0;
    for (Paragraph& p : doc_.paragraphs) {
        QList<TextRun> runs;
        for (const TextRun& r : std::as_const(p.runs)) {
            const int start = pos, end = pos + int(r.text.size());
            pos = end;
            const int a = std::clamp(from, start, end), b = std::clamp(to, start, end);
            if (a >= b) {
                runs.append(r);
                continue;
            }
            if (a > start) runs.append({r.text.left(a - start), r.format});
            TextRun inside{r.text.mid(a - start, b - a), r.format};
            change(inside.format);
            runs.append(inside);
            if (b < end) runs.append({r.text.mid(b - start), r.format});
        }
        p.runs = runs;
        ++pos;  // the paragraph's end
    }
    changeDocument();
}

void RichTextBox::setSelBold(bool on) {
    formatSelection([on](CharFormat& f) { f.bold = on; });
}
void RichTextBox::setSelItalic(bool on) {
    formatSelection([on](CharFormat& f) { f.italic = on; });
}
void RichTextBox::setSelUnderline(bool on) {
    formatSelection([on](CharFormat& f) { f.underline = on; });
}
void RichTextBox::setSelColor(Color c) {
    formatSelection([c](CharFormat& f) { f.color = c; });
}
void RichTextBox::setSelFontName(const QString& font) {
    formatSelection([&font](CharFormat& f) { f.font = font; });
}
void RichTextBox::setSelFontSize(double points) {
    if (points <= 0 || points > 1638) throw invalidValue();
    formatSelection([points](CharFormat& f) { f.pointSize = points; });
}

// Every paragraph from the caret's to the selection's end.
void RichTextBox::setSelAlignment(int alignment) {
    if (alignment < 0 || alignment > 2) throw invalidValue();
    int start = 0;
    for (Paragraph& p : doc_.paragraphs) {
        const int end = start + int(p.text().size());
        if (end >= selStart_ && start <= selStart_ + selLength_) p.alignment = ParagraphAlignment(alignment);
        start = end + 1;
    }
    changeDocument();
}

}  // namespace sonarium
