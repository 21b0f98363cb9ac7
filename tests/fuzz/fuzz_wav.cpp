// Arbitrary bytes as the WAV of an encoding job: the encoder either refuses the job, leaving no
// file behind, or encodes what the file holds to an MP3 and finishes once.
#include <QFile>
#include <condition_variable>
#include <mutex>
#include <vector>

#include "Fuzz.h"
#include "engine/encoder/LameEncoder.h"

namespace {

using namespace sonarium;

// Runs posted calls on the fuzzing thread while it waits; there are no timers here.
class PostedCalls : public EventLoop {
public:
    std::int64_t now() const override { return 0; }
    QDateTime wallClock() const override { return {}; }
    void post(Task fn) override {
        std::lock_guard lock(mutex_);
        calls_.push_back(std::move(fn));
        posted_.notify_one();
    }
    TimerId startTimer(int, Task, bool) override { return 0; }
    void stopTimer(TimerId) override {}
    void doEvents() override {}
    void waitUntil(const std::function<bool()>& done) override {
        while (!done()) {
            std::unique_lock lock(mutex_);
            posted_.wait(lock, [&] { return !calls_.empty(); });
            std::vector<Task> calls;
            calls.swap(calls_);
            lock.unlock();
            for (Task& call : calls) call();
        }
    }

private:
    std::mutex mutex_;
    std::condition_variable posted_;
    std::vector<Task> calls_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static PostedCalls loop;
    static LameEncoder encoder{loop};
    const QString wav = fuzz::scratchFile(data, size), mp3 = wav + QStringLiteral(".mp3");
    QFile::remove(mp3);
    if (encoder.OpenFiles(wav, mp3) != 0) {
        FUZZ_CHECK(!QFile::exists(mp3));
        return 0;
    }
    FUZZ_CHECK(encoder.EncodeTotal() > 0);
    int finished = 0;
    std::int32_t last = 0;
    encoder.onEncodeProgress = [&](std::int32_t done) {
        FUZZ_CHECK(done > last && done <= encoder.EncodeTotal());
        last = done;
    };
    encoder.onEncodeFinished = [&] { ++finished; };
    encoder.StartEncoding();
    loop.waitUntil([&] { return finished == 1; });
    FUZZ_CHECK(QFile::exists(mp3));
    QFile::remove(mp3);
    return 0;
}
