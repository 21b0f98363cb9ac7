// The info page's background marker, written and read from the file's last line.
#include <gtest/gtest.h>

#include "info/PageMarker.h"

namespace sonarium {
namespace {

TEST(PageMarker, WrittenOnceAfterTheDocumentAndReadFromTheLastLineOnly) {
    // The viewer's default background, 13156270.
    EXPECT_EQ(pageMarkerLine({174, 191, 200}), "{\\bc\\13156270;-bc}\r\n");
    const QByteArray page = "{\\rtf1 Hello\\par}\r\n" + pageMarkerLine({174, 191, 200});
    EXPECT_EQ(pageMarkerColour(lastLineOf(page)), (Color{174, 191, 200}));

    struct Case {
        QByteArray file;
        std::optional<Color> colour;
    };
    const Case cases[] = {
        {"{\\rtf1 x}\r\n{\\bc\\255", Color{255, 0, 0}},           // no closing part
        {"{\\rtf1 x}{\\bc\\65280;-bc}", Color{0, 255, 0}},        // behind the brace, no line end
        {"{\\bc\\255;-bc}\r\n{\\rtf1 x}\r\n", std::nullopt},      // not on the last line
        {"{\\rtf1 x}\n{\\bc\\99999999999;-bc}\n", std::nullopt},  // past a Long
        {"{\\rtf1 x}\r\n{\\bc\\abc;-bc}", Color{0, 0, 0}},        // no digits: 0, black
        {"", std::nullopt},
    };
    for (const Case& c : cases)
        EXPECT_EQ(pageMarkerColour(lastLineOf(c.file)), c.colour) << c.file.toStdString();
}

}  // namespace
}  // namespace sonarium
