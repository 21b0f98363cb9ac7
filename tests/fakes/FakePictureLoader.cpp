#include "FakePictureLoader.h"

#include "controls/Errors.h"

namespace sonarium {

void FakePictureLoader::add(const QString& file, Picture picture) {
    picture.setSource(file);
    pictures_.insert(file.toUpper(), picture);
}

void FakePictureLoader::add(const QString& file, int width, int height, std::uint32_t argb) {
    add(file, Picture::filled(width, height, argb));
}

void FakePictureLoader::addInvalid(const QString& file) { pictures_.insert(file.toUpper(), Picture()); }

Picture FakePictureLoader::load(const QString& file) {
    record(QStringLiteral("load(%1)").arg(file));
    auto it = pictures_.find(file.toUpper());
    if (it == pictures_.end())
        throw RuntimeError(RuntimeError::FileNotFound, QStringLiteral("File not found: %1").arg(file));
    if (it->isNull())
        throw RuntimeError(RuntimeError::InvalidPicture, QStringLiteral("Invalid picture: %1").arg(file));
    return *it;
}

}  // namespace sonarium
