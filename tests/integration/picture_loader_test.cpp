// The Qt picture loader on small files written here: palette and true-colour bitmaps and PNG
// to exact ARGB pixels, the format read from the contents, and the two failures the program
// tells apart (no such file, not a picture). How a name in another case is found is the file
// names' unit test's.
#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

#include "QtPrinters.h"
#include "controls/Errors.h"
#include "engine/QtPictureLoader.h"
#include "fixtures/Files.h"

namespace sonarium {
namespace {

constexpr std::uint32_t kRed = 0xFFFF0000u, kGreen = 0xFF00FF00u, kBlue = 0xFF0000FFu, kWhite = 0xFFFFFFFFu;

// A 4 x 3 picture: top row red, green, blue, white; the rest white.
QImage sample() {
    QImage img(4, 3, QImage::Format_RGB32);
    img.fill(kWhite);
    img.setPixel(0, 0, kRed);
    img.setPixel(1, 0, kGreen);
    img.setPixel(2, 0, kBlue);
    return img;
}

class PictureLoaderTest : public ::testing::Test {
protected:
    QString path(const QString& name) const { return dir.filePath(name); }
    void writeBytes(const QString& name, const QByteArray& bytes) {
        ASSERT_TRUE(fixtures::writeFile(path(name), bytes));
    }
    // The error number and text of a load that must fail.
    std::pair<int, QString> failure(const QString& file) {
        try {
            loader.load(file);
        } catch (const RuntimeError& e) {
            return {e.number(), e.text()};
        }
        ADD_FAILURE() << "loading " << file.toStdString() << " did not fail";
        return {0, {}};
    }

    QTemporaryDir dir;
    QtPictureLoader loader;
};

TEST_F(PictureLoaderTest, LoadsEachFormatByItsContentsWithExactPixelsAsArgb) {
    struct Case {
        const char* name;
        const char* format;
        QImage image;
    };
    const Case cases[] = {
        {"true.BMP", "BMP", sample()},
        {"palette.bmp", "BMP", sample().convertToFormat(QImage::Format_Indexed8)},
        {"Photo.png", "PNG", sample()},
        {"Cover.BMP", "PNG", sample()},  // a PNG named like a bitmap, as users rename files
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ASSERT_TRUE(c.image.save(path(c.name), c.format));
        Picture p = loader.load(path(c.name));
        ASSERT_EQ(p.width(), 4);
        ASSERT_EQ(p.height(), 3);
        EXPECT_EQ(p.pixel(0, 0), kRed);
        EXPECT_EQ(p.pixel(1, 0), kGreen);
        EXPECT_EQ(p.pixel(2, 0), kBlue);
        EXPECT_EQ(p.pixel(3, 2), kWhite);
        EXPECT_EQ(p.source(), path(c.name));
    }

    // JPEG is one of the formats taken; its lossy decoding is Qt's (as GIF's is).
    ASSERT_TRUE(sample().save(path("photo.JPG"), "JPEG"));
    EXPECT_EQ(loader.load(path("photo.JPG")).height(), 3);
}

TEST_F(PictureLoaderTest, MissingFilesAndNonPicturesFailWithTheirOwnNumbers) {
    auto [missing, missingText] = failure(path("nothing.jpg"));
    EXPECT_EQ(missing, RuntimeError::FileNotFound);
    EXPECT_TRUE(missingText.contains("nothing.jpg")) << missingText.toStdString();

    writeBytes("notes.gif", "These are lyrics, not a picture.\r\n");
    auto [text, textMessage] = failure(path("notes.gif"));
    EXPECT_EQ(text, RuntimeError::InvalidPicture);
    EXPECT_TRUE(textMessage.contains("notes.gif")) << textMessage.toStdString();

    // A bitmap cut short after its headers, which Qt would fill with black.
    ASSERT_TRUE(sample().save(path("whole.bmp"), "BMP"));
    writeBytes("cut.bmp", fixtures::fileBytes(path("whole.bmp")).left(60));
    EXPECT_EQ(failure(path("cut.bmp")).first, RuntimeError::InvalidPicture);
}

}  // namespace
}  // namespace sonarium
