// The editor's documents: a page put into a QTextDocument reads back the same, with the formats
// Qt shows and the document's default font where a run names none.
#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextCursor>

#include "QtPrinters.h"
#include "ui/views/RichTextConvert.h"
#include "unit/info/StyleTable.h"

namespace sonarium {

TEST(RichTextConvert, APageFillsATextDocumentAndReadsBackTheSame) {
    QTextDocument text;
    text.setDefaultFont(QFont("DejaVu Sans", 9));
    for (const RichDocument& doc : styleTable()) {
        fillTextDocument(doc, text);
        EXPECT_EQ(text.toRawText(), QString(doc.plainText()).replace(u'\n', QChar::ParagraphSeparator));
        EXPECT_TRUE(fromTextDocument(text) == doc) << text.toHtml().toStdString();
    }
    fillTextDocument(styleTable()[1], text);
    const QTextBlock centred = text.begin();
    EXPECT_EQ(centred.blockFormat().alignment(), Qt::AlignHCenter);
    const QTextCharFormat big = centred.begin().fragment().charFormat();
    EXPECT_EQ(big.font().families(), QStringList{"Times New Roman"});
    EXPECT_EQ(big.font().pointSizeF(), 14.5);
    EXPECT_EQ(QTextCursor(centred.next()).charFormat().font().family(), "DejaVu Sans");
}

}  // namespace sonarium
