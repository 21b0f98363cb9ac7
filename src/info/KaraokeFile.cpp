#include "info/KaraokeFile.h"

#include "controls/Errors.h"
#include "shell/TextFields.h"

namespace sonarium {

QByteArray karaokeFileBytes(const KaraokePoints& points) {
    QByteArray bytes;
    for (std::size_t i = 1; i <= std::size_t(points.count) && i < points.frames.size(); ++i)
        bytes += (numberText(points.frames[i]) + u',' + numberText(points.offsets[i]) + u',').toUtf8();
    return bytes;
}

KaraokePoints readKaraokeFile(const QByteArray& bytes) {
    KaraokePoints points;
    TextFieldReader in(bytes);
    auto read = [&](std::int32_t& into) {
        try {
            into = in.readInt32();
        } catch (const RuntimeError&) {
            into = 0;  // a number past a Long's range
        }
    };
    while (!in.atEnd() && points.count < MaxKaraokePoints) {
        const auto i = std::size_t(points.count);
        read(points.frames[i]);
        if (!in.atEnd()) read(points.offsets[i]);
        ++points.count;
        points.frames.resize(i + 2);
        points.offsets.resize(i + 2);
    }
    return points;
}

}  // namespace sonarium
