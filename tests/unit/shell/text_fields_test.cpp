// The one reader and writer of the program's text files, against hand-made files.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "integration/fixtures/ErrorNumber.h"
#include "integration/fixtures/Files.h"
#include "shell/TextFields.h"

using namespace sonarium;

TEST(TextFieldWriter, NumbersCarrySignStringsStandBareAndSaveReplacesTheWholeFile) {
    TextFieldWriter w;
    for (double n : {35.0, -2.0, 0.5}) w.writeNumber(n);
    w.writeString("C:/Music, Live/");
    EXPECT_EQ(w.bytes(), QByteArray(" 35 \r\n-2 \r\n .5 \r\nC:/Music, Live/\r\n"));

    QTemporaryDir dir;
    const QString file = dir.filePath("Mixer.dat");
    w.save(file);
    TextFieldWriter shorter;
    shorter.writeNumber(1);
    shorter.save(file);
    EXPECT_EQ(fixtures::fileBytes(file), QByteArray(" 1 \r\n"));
    EXPECT_THROW(shorter.save(dir.filePath("missing/Config.dat")), RuntimeError);
}

TEST(TextFieldReader, FieldsEndAtCommaOrLineEndAndQuotedFieldsRunToTheirQuote) {
    TextFieldReader r(QByteArray("  Label one, 12,  \"a, quoted\" junk ,last\r\n\r\n  tail  \n-7 8,\"x\"\r"));
    EXPECT_EQ(r.readString(), "Label one");
    EXPECT_EQ(r.readNumber(), 12);
    EXPECT_EQ(r.readString(), "a, quoted");  // what follows the quote up to the comma is passed over
    EXPECT_EQ(r.readString(), "last");
    EXPECT_EQ(r.readString(), "");        // an empty line reads as an empty string
    EXPECT_EQ(r.readString(), "tail  ");  // leading blanks skipped, trailing ones kept
    EXPECT_EQ(r.readNumber(), -7);        // a number also ends at a blank
    EXPECT_EQ(r.readNumber(), 8);
    EXPECT_EQ(r.readString(), "x");
    EXPECT_TRUE(r.atEnd());
    EXPECT_THROW(r.readString(), RuntimeError);
    EXPECT_EQ(TextFieldReader(QByteArray("Caf\xe9\r\n")).readString(), QString::fromLatin1("Caf\xe9"))
        << "bytes that are no UTF-8 still read";
}

TEST(TextFieldReader, NumbersFollowTheLeadingNumberRule) {
    TextFieldReader r(QByteArray("128 kHz\r\n 1.5 \r\n 2.5 \r\n 99999 \r\n"));
    EXPECT_EQ(r.readNumber(), 128);  // ends at the blank: "kHz" is the next field
    EXPECT_EQ(r.readString(), "kHz");
    EXPECT_EQ(r.readInt16(), 2);  // 1.5 rounds to the even 2
    EXPECT_EQ(r.readInt16(), 2);  // 2.5 too
    EXPECT_EQ(errorOf([&] { r.readInt16(); }), RuntimeError::Overflow) << "99999 fits no 16-bit field";

    for (auto [text, number] :
         {std::pair{"abc", 0.0}, {"  -12abc", -12.0}, {".5", 0.5}, {"1e3x", 1000.0}, {"1e", 1.0}})
        EXPECT_EQ(leadingNumber(text), number) << text;
}
