#pragma once
// One run of the player (a Play or PlayRange until its end): a worker thread that decodes
// frames first..last and sends them to an output, taking pause, seek and stop commands from
// the UI thread between frames.
//
// Threading: the UI thread makes the run, calls its commands and destroys it (which stops and
// joins the worker). The worker uses the decoder, the output and the settings it was given,
// and reaches the program only through the two report callbacks, which post to the event
// loop. It calls reports.end exactly once, as its last act, however the run ends.
#include <QString>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

#include "engine/player/Mp3Decoder.h"
#include "engine/player/RunOutput.h"

namespace sonarium {

struct RunReports {
    // After frame `frame` has gone to the output; `epoch` is the one the run was given, or
    // that of the last seek it applied.
    std::function<void(std::int32_t frame, std::uint64_t epoch)> frame;
    std::function<void()> end;
};

struct RunPlan {
    Mp3Decoder* decoder = nullptr;  // lent to the worker until the run is destroyed
    std::unique_ptr<RunOutput> output;
    std::int32_t first = 0, last = -1;  // inclusive; last < first plays nothing
    const std::atomic<int>* notifyInterval = nullptr;
    std::uint64_t epoch = 0;
    RunReports reports;
};

class PlayerRun {
public:
    explicit PlayerRun(RunPlan plan);
    ~PlayerRun();  // stops and joins
    PlayerRun(const PlayerRun&) = delete;
    PlayerRun& operator=(const PlayerRun&) = delete;

    void setPaused(bool paused);
    void requestStop();
    // Applied before the next frame; a frame past the run's last ends it.
    void requestSeek(std::int32_t frame, std::uint64_t epoch);

    bool paused() const;
    bool stopRequested() const;
    // The worker has reported the end (or is about to).
    bool finished() const { return finished_.load(std::memory_order_acquire); }

private:
    struct Seek {
        std::int32_t frame;
        std::uint64_t epoch;
    };
    // What the worker takes at each frame; blocks while paused.
    struct Commands {
        bool stop = false;
        std::optional<Seek> seek;
    };
    Commands takeCommands();
    void work();
    bool playFrames();  // true when the run reached its end, false when stopped

    RunPlan plan_;
    mutable std::mutex mutex_;
    std::condition_variable wake_;
    bool paused_ = false, stop_ = false;
    std::optional<Seek> seek_;
    std::atomic<bool> finished_{false};
    std::thread thread_;  // last: starts once everything above is ready
};

}  // namespace sonarium
