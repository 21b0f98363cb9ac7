// Pages written by another program: enscript's RTF of highlighted C source, made at test time,
// loads with its text, its line breaks, a Latin-1 letter and the styles of its highlighting.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "QtPrinters.h"
#include "fixtures/Files.h"
#include "fixtures/ToolRunner.h"
#include "info/rtf/RtfReader.h"

namespace sonarium {

TEST(RtfFromOtherPrograms, EnscriptHighlightedSourceLoadsWithItsTextAndStyles) {
    QTemporaryDir dir;
    const QString source = dir.filePath("page.c"), rtf = dir.filePath("page.rtf");
    ASSERT_TRUE(fixtures::writeFile(source, "int main() {\n  return 0; /* caf\xe9 */\n}\n"));
    ASSERT_EQ(fixtures::runTool({"enscript", "--quiet", "--language=rtf", "--highlight=c", "--color",
                                 "--output=" + rtf, source}),
              0);
    const RichDocument doc = readRtf(fixtures::fileBytes(rtf));
    EXPECT_EQ(doc.plainText(), QStringLiteral(u"int main() {\u2028  return 0; /* caf\u00e9 */\u2028}\u2028"));

    auto formatOf = [&doc](const QString& text) {
        for (const TextRun& r : doc.paragraphs.front().runs) {
            if (r.text == text) return r.format;
        }
        ADD_FAILURE() << "no run " << text.toStdString();
        return CharFormat{};
    };
    const CharFormat type = formatOf("int"), name = formatOf("main"),
                     comment = formatOf(QStringLiteral(u"/* caf\u00e9 */"));
    EXPECT_TRUE(type.bold && !type.italic && type.color && name.bold && name.color &&
                name.color != type.color);
    EXPECT_TRUE(comment.italic && !comment.bold && comment.color && comment.color != type.color);
    EXPECT_EQ(formatOf(" "), CharFormat{});
}

}  // namespace sonarium
