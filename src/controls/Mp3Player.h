#pragma once
// The MP3 player component: plays a file to the sound device or decodes it into a WAV file,
// reports frames and the end of the stream, and reads and writes the ID3v1 tag.
// Notifications arrive on the UI thread, through the event loop.
#include <QString>
#include <cstdint>
#include <functional>

namespace sonarium {

class Mp3Player {
public:
    virtual ~Mp3Player() = default;

    // 0 = opened, anything else = failed. A non-empty wav makes the later Play decode into it.
    virtual std::int16_t Open(const QString& file, const QString& wav) = 0;
    // Harmless when nothing is open.
    virtual void Close() = 0;
    // Starts from the start, or resumes after Pause. Returns at once.
    virtual void Play() = 0;
    // Plays the frames from start to end, then ends as Play does.
    virtual void PlayRange(std::int32_t startFrame, std::int32_t endFrame) = 0;
    virtual void Pause() = 0;
    // Stops; StreamEnd follows, possibly after Stop has returned.
    virtual void Stop() = 0;
    virtual std::int16_t SeekFrame(std::int32_t frame) = 0;
    // 0 to 100 each.
    virtual std::int16_t SetVolume(std::int16_t left, std::int16_t right) = 0;
    // 100 normal, lower faster, higher slower; pitch is kept.
    virtual std::int16_t SetSpeed(std::int16_t speed) = 0;
    virtual void setNotifyInterval(std::int16_t frames) = 0;

    virtual std::int32_t FrameCount() = 0;
    virtual float Length() = 0;  // seconds
    virtual std::int32_t BitRate() = 0;
    virtual std::int32_t Frequency() = 0;
    virtual std::int16_t ChannelMode() = 0;  // 0 stereo, 3 mono

    virtual QString TagTitle() = 0;
    virtual QString TagArtist() = 0;
    virtual QString TagAlbum() = 0;
    virtual QString TagComment() = 0;
    virtual std::int16_t TagYear() = 0;
    virtual std::int16_t TagGenre() = 0;
    virtual QString GenreName(std::int16_t genre) = 0;

    virtual void SetTagTitle(const QString& v) = 0;
    virtual void SetTagArtist(const QString& v) = 0;
    virtual void SetTagAlbum(const QString& v) = 0;
    virtual void SetTagComment(const QString& v) = 0;
    virtual void SetTagYear(std::int16_t v) = 0;
    virtual void SetTagGenre(std::int16_t v) = 0;
    // Writes the fields set since the last Open into that file; called after Close.
    virtual void WriteTag() = 0;

    // Events, run on the UI thread.
    std::function<void(std::int32_t frame)> onFrameNotify;
    std::function<void()> onStreamEnd;
};

}  // namespace sonarium
