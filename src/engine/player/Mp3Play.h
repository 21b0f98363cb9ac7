#pragma once
// The real MP3 player: libmpg123 decoding on a worker thread, to the sound device or into a
// WAV file, and the ID3v1 tag of the open file.
//
// Threading contract
// - The UI thread calls every method, and owns the decoder while no run exists, the cached
//   file details, the tag editor and the epoch counter.
// - Each run (Play or PlayRange until its end) has one worker thread (PlayerRun). While the
//   run exists the worker alone uses the decoder and the output; the UI thread reads only the
//   details cached at Open, and talks to the worker through the run's commands (pause, seek,
//   stop) and the atomics of speed and notify interval. SoundProcessor::setVolume is safe
//   from any thread.
// - Open learns the details from the file's headers alone; libmpg123 opens the file (and its
//   handle is made, once per player) on the worker, when the run's first seek or decode needs
//   it. Only a file whose frames must be counted has libmpg123 open it at Open, on the UI
//   thread, after Close has joined any run.
// - The worker never touches the program: it posts FrameNotify and StreamEnd through
//   EventLoop::post, and the posted calls run here on the UI thread.
// - Stale notifications: every FrameNotify carries the epoch of its run, which moves on at
//   each run start, Stop, seek during a run, Close and Open; one whose epoch is no longer
//   current is dropped on delivery. When StreamEnd is raised and delivered follows
//   StreamEndRule (controls/StreamEndRule.h), the rule the fake player keeps too.
// - Close, Open and the destructor stop a run and join its worker (at most one frame's
//   write away); Stop does not wait, so StreamEnd may come after Stop has returned.
// - Whatever is posted after the player is destroyed is dropped on delivery.
#include <atomic>
#include <memory>

#include "controls/EventLoop.h"
#include "controls/Mp3Player.h"
#include "controls/StreamEndRule.h"
#include "engine/audio/SoundProcessor.h"
#include "engine/id3/Id3v1Editor.h"
#include "engine/player/DeviceOutput.h"
#include "engine/player/Mp3Decoder.h"
#include "engine/player/PlayerRun.h"

namespace sonarium {

class Mp3Play : public Mp3Player {
public:
    Mp3Play(EventLoop& loop, SinkFactory sinks, ToneSettings& tone, PeakLevel& peak);
    ~Mp3Play() override;

    std::int16_t Open(const QString& file, const QString& wav) override;
    void Close() override;
    void Play() override;
    void PlayRange(std::int32_t startFrame, std::int32_t endFrame) override;
    void Pause() override;
    void Stop() override;
    std::int16_t SeekFrame(std::int32_t frame) override;
    std::int16_t SetVolume(std::int16_t left, std::int16_t right) override;
    std::int16_t SetSpeed(std::int16_t speed) override;
    void setNotifyInterval(std::int16_t frames) override;

    std::int32_t FrameCount() override { return info().frames; }
    float Length() override { return static_cast<float>(info().seconds()); }
    std::int32_t BitRate() override { return info().bitRate; }
    std::int32_t Frequency() override { return info().rate; }
    std::int16_t ChannelMode() override { return static_cast<std::int16_t>(info().channelMode); }

    QString TagTitle() override { return tags_.tag().title; }
    QString TagArtist() override { return tags_.tag().artist; }
    QString TagAlbum() override { return tags_.tag().album; }
    QString TagComment() override { return tags_.tag().comment; }
    std::int16_t TagYear() override { return static_cast<std::int16_t>(tags_.tag().year); }
    std::int16_t TagGenre() override { return static_cast<std::int16_t>(tags_.tag().genre); }
    QString GenreName(std::int16_t genre) override;

    void SetTagTitle(const QString& v) override { tags_.changes().title = v; }
    void SetTagArtist(const QString& v) override { tags_.changes().artist = v; }
    void SetTagAlbum(const QString& v) override { tags_.changes().album = v; }
    void SetTagComment(const QString& v) override { tags_.changes().comment = v; }
    void SetTagYear(std::int16_t v) override { tags_.changes().year = v; }
    void SetTagGenre(std::int16_t v) override { tags_.changes().genre = v; }
    void WriteTag() override { tags_.writeTag(); }

private:
    const Mp3Info& info() const { return decoder_.info(); }
    // A run that is playing or paused, and not yet told to stop or ended by itself.
    bool runLive() const;
    void startRun(std::int32_t first, std::int32_t last);
    RunReports makeReports(StreamEndRule::Token token);
    void raiseStreamEnd(StreamEndRule::Token token);

    EventLoop& loop_;
    SinkFactory sinks_;
    SoundProcessor processor_;
    std::atomic<int> speed_{100};
    std::atomic<int> notifyInterval_{32};

    Mp3Decoder decoder_;
    QString wav_;
    Id3v1Editor tags_;
    std::int32_t startFrame_ = 0;  // where the next Play starts when no run exists
    std::uint64_t epoch_ = 0;
    StreamEndRule ends_;
    StreamEndRule::Token runToken_ = 0;
    std::unique_ptr<PlayerRun> run_;
    std::shared_ptr<int> alive_ = std::make_shared<int>(0);
};

}  // namespace sonarium
