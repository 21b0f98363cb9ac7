#pragma once
// Pictures by file name, registered by the test; any other name fails as a missing file.
// Names are matched without regard to case, as the program finds its files. Every load is
// logged as "load(<name>)", successful or not, so tests can assert the order of the tries.
#include <QHash>

#include "CallLog.h"
#include "controls/Picture.h"

namespace sonarium {

class FakePictureLoader : public PictureLoader, public CallLog {
public:
    // The picture that loading `file` gives; its source becomes `file`.
    void add(const QString& file, Picture picture);
    // A plain picture of that size in pixels.
    void add(const QString& file, int width, int height, std::uint32_t argb = 0xFF808080u);
    // A file that exists but is no picture: loading it fails as an invalid picture.
    void addInvalid(const QString& file);

    Picture load(const QString& file) override;

private:
    QHash<QString, Picture> pictures_;  // by upper-case name; a null picture: not an image
};

}  // namespace sonarium
