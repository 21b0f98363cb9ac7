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

// A 4 x 3 picture: top row red, green, blue, white; the rest white.
QImage sample() {
    QImage img(4, 3, QImage::Format_RGB32);
    img.fill(Qt::white);
    img.setPixel(0, 0, qRgb(255, 0, 0));
    img.setPixel(1, 0, qRgb(0, 255, 0));
    img.setPixel(2, 0, qRgb(0, 0, 255));
    return img;
}

class PictureLoaderTest : public ::testing::Test {
protected:
    QString path(const QString& name) const { return dir.filePath(name); }
    // The error number of a load that must fail; its text names the file.
    int failure(const QString& name) {
        try {
            loader.load(path(name));
        } catch (const RuntimeError& e) {
            EXPECT_TRUE(e.text().contains(name)) << e.text().toStdString();
            return e.number();
        }
        ADD_FAILURE() << "loading " << name.toStdString() << " did not fail";
        return 0;
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
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < 4; ++x) EXPECT_EQ(p.pixel(x, y), sample().pixel(x, y)) << x << ", " << y;
        EXPECT_EQ(p.source(), path(c.name));
    }

    // JPEG is one of the formats taken; its lossy decoding is Qt's (as GIF's is).
    ASSERT_TRUE(sample().save(path("photo.JPG"), "JPEG"));
    EXPECT_EQ(loader.load(path("photo.JPG")).height(), 3);
}

TEST_F(PictureLoaderTest, MissingFilesAndNonPicturesFailWithTheirOwnNumbers) {
    EXPECT_EQ(failure("nothing.jpg"), RuntimeError::FileNotFound);
    ASSERT_TRUE(fixtures::writeFile(path("notes.gif"), "These are lyrics, not a picture.\r\n"));
    EXPECT_EQ(failure("notes.gif"), RuntimeError::InvalidPicture);

    // A bitmap cut short after its headers, which Qt would fill with black.
    ASSERT_TRUE(sample().save(path("whole.bmp"), "BMP"));
    ASSERT_TRUE(fixtures::writeFile(path("cut.bmp"), fixtures::fileBytes(path("whole.bmp")).left(60)));
    EXPECT_EQ(failure("cut.bmp"), RuntimeError::InvalidPicture);
}

}  // namespace
}  // namespace sonarium
