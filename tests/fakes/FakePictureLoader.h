#pragma once
// Pictures by file name, registered by the test; any other name fails as a missing file.
// Names are matched without regard to case, as the program finds its files. Every load is
// logged as "load(<name>)", successful or not, so tests can assert the order of the tries.
#include <QHash>

#include "CallLog.h"
#include "controls/Errors.h"
#include "controls/Picture.h"

namespace sonarium {

class FakePictureLoader : public PictureLoader, public CallLog {
public:
    // The picture that loading `file` gives; its source becomes `file`.
    void add(const QString& file, Picture picture) {
        picture.setSource(file);
        pictures_.insert(file.toUpper(), picture);
    }
    // A plain picture of that size in pixels.
    void add(const QString& file, int width, int height, std::uint32_t argb = 0xFF808080u) {
        add(file, Picture::filled(width, height, argb));
    }
    // A file that exists but is no picture: loading it fails as an invalid picture.
    void addInvalid(const QString& file) { pictures_.insert(file.toUpper(), Picture()); }

    Picture load(const QString& file) override {
        record("load", file);
        auto it = pictures_.find(file.toUpper());
        if (it == pictures_.end())
            throw RuntimeError(RuntimeError::FileNotFound, QStringLiteral("File not found: %1").arg(file));
        if (it->isNull())
            throw RuntimeError(RuntimeError::InvalidPicture, QStringLiteral("Invalid picture: %1").arg(file));
        return *it;
    }

private:
    QHash<QString, Picture> pictures_;  // by upper-case name; a null picture: not an image
};

}  // namespace sonarium
