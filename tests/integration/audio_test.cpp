// The output path on generated signals: the tone shelves' response measured through the real
// processor at two rates, the limiter at full boost, the volume curve, the per-tick peak and the
// speed stage's tempo and its ends. The null sink's pace and the fall-back of a device lost
// mid-song are played through the player (player_test.cpp).
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>
#include <random>
#include <thread>
#include <vector>

#include "engine/audio/SoundProcessor.h"
#include "engine/player/SpeedStage.h"

namespace sonarium {
namespace {

constexpr int kBlock = 441;  // frames per process() call, as a decoder hands them over

// Stereo sine, the same on both channels.
std::vector<float> sine(double freq, double amplitude, int rate, double seconds) {
    const int frames = static_cast<int>(seconds * rate);
    std::vector<float> out(static_cast<std::size_t>(frames) * 2);
    for (std::size_t i = 0; i < static_cast<std::size_t>(frames); ++i)
        out[2 * i] = out[2 * i + 1] =
            static_cast<float>(amplitude * std::sin(2 * std::numbers::pi * freq * i / rate));
    return out;
}

// Full-scale stereo noise.
std::vector<float> noise(unsigned seed, int frames) {
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> uniform(-1.0f, 1.0f);
    std::vector<float> s(frames * 2UL);
    for (float& x : s) x = uniform(random);
    return s;
}

// The processor on tone settings and a peak level of its own.
struct Chain {
    explicit Chain(int bass = 50, int treble = 50) {
        tone.bass = bass;
        tone.treble = treble;
    }
    ToneSettings tone;
    PeakLevel peak;
    SoundProcessor p{tone, peak};
};

void processInBlocks(SoundProcessor& p, std::vector<float>& samples, int rate) {
    const int frames = static_cast<int>(samples.size() / 2);
    for (int at = 0; at < frames; at += kBlock)
        p.process(samples.data() + 2L * at, std::min(kBlock, frames - at), 2, rate);
}

// RMS of the left channel over the last `frames` frames.
double tailRms(const std::vector<float>& s, int frames) {
    double sum = 0;
    for (std::size_t i = s.size() / 2 - frames; i < s.size() / 2; ++i) sum += double(s[2 * i]) * s[2 * i];
    return std::sqrt(sum / frames);
}

// Gain in dB of a tone setting at one frequency: 0.4 s of sine, measured over its last 0.2 s,
// which holds whole periods of every frequency used here.
double toneGainDb(int rate, int bass, int treble, double freq) {
    Chain c(bass, treble);
    auto s = sine(freq, 0.1, rate, 0.4);
    processInBlocks(c.p, s, rate);
    return 20 * std::log10(tailRms(s, rate / 5) / (0.1 / std::sqrt(2.0)));
}

TEST(ToneShelves, CutAndBoostAboutTwelveDecibelsEachOnItsOwnSideAndFlatIsBitExact) {
    struct Case {
        int bass, treble;
        double freq, db;
    };
    const Case cases[] = {
        {0, 50, 50, -12}, {100, 50, 50, 12},   {50, 0, 10000, -12}, {50, 100, 10000, 12},
        {0, 0, 1000, 0},  {100, 100, 1000, 0}, {100, 50, 10000, 0}, {50, 100, 50, 0},
    };
    for (int rate : {44100, 48000})
        for (const Case& c : cases)
            EXPECT_NEAR(toneGainDb(rate, c.bass, c.treble, c.freq), c.db, c.db != 0 ? 1.5 : 0.5)
                << rate << " Hz, bass " << c.bass << " treble " << c.treble << " at " << c.freq;
    // Linear in dB: three quarters of the way is half the boost.
    EXPECT_NEAR(toneGainDb(44100, 75, 50, 50), toneGainDb(44100, 100, 50, 50) / 2, 0.5);

    // Flat passes noise untouched, full scale included, also after a quiet passage through a
    // boost (nothing near full scale, so the limiter stays out of it).
    std::vector<float> input = noise(7, 4410);
    input[10] = 1.0f;
    input[11] = -1.0f;
    Chain c(0, 100);
    auto quiet = sine(1000, 0.05, 44100, 0.05);
    processInBlocks(c.p, quiet, 44100);
    c.tone.treble = c.tone.bass = 50;
    auto out = input;
    processInBlocks(c.p, out, 44100);
    EXPECT_EQ(0, std::memcmp(out.data(), input.data(), input.size() * sizeof(float)));
}

// Share of a steady sine's power that is not the sine itself, over whole periods at the end.
double distortion(const std::vector<float>& s, double freq, int rate, int frames) {
    double sn = 0, cs = 0, total = 0;
    const std::size_t first = s.size() / 2 - frames;
    for (std::size_t i = first; i < s.size() / 2; ++i) {
        const double y = s[2 * i], w = 2 * std::numbers::pi * freq * double(i) / rate;
        sn += y * std::sin(w);
        cs += y * std::cos(w);
        total += y * y;
    }
    const double fundamental = 2 * (sn * sn + cs * cs) / frames;
    return 1 - fundamental / total;
}

TEST(Limiter, FullBoostOfFullScaleStaysInRangeWithoutFlattenedTops) {
    Chain c(100, 100);
    auto wave = sine(50, 1.0, 44100, 0.4);
    processInBlocks(c.p, wave, 44100);
    const auto [lowest, highest] = std::minmax_element(wave.begin(), wave.end());
    EXPECT_GE(*lowest, -1.0f);
    EXPECT_LE(*highest, 1.0f);
    EXPECT_GT(*highest, 0.9f) << "the limiter should fit the wave, not crush it";
    // Cutting the tops off a wave boosted about 4 times would leave over 10% here.
    EXPECT_LT(distortion(wave, 50, 44100, 44100 / 5), 0.001);

    // Full-scale noise at the other rate: every transient at once.
    auto s = noise(3, 48000);
    processInBlocks(c.p, s, 48000);
    for (float x : s) ASSERT_TRUE(x >= -1.0f && x <= 1.0f) << x;
}

TEST(Volume, SquareLawPerSideClampedAndMonoTakesTheLeft) {
    Chain c;
    const auto run = [&](int left, int right) {
        c.p.setVolume(left, right);
        float frame[2] = {0.5f, 0.5f};
        c.p.process(frame, 1, 2, 44100);
        return std::pair{frame[0], frame[1]};
    };
    EXPECT_EQ(run(50, 100), std::pair(0.125f, 0.5f));
    EXPECT_EQ(run(150, -5), std::pair(0.5f, 0.0f));
    c.p.setVolume(50, 0);
    float mono[1] = {0.5f};
    c.p.process(mono, 1, 1, 44100);
    EXPECT_EQ(mono[0], 0.125f);
}

TEST(Peak, EachReadingIsTheMaximumSinceTheLastOneInFullScaleUnits) {
    Chain c;
    PeakLevel& peak = c.peak;
    float a[4] = {0.1f, -0.5f, 0.25f, 0.0f}, b[4] = {0.25f, 0.0f, 0.0f, -0.125f};
    c.p.process(a, 2, 2, 44100);
    c.p.process(b, 2, 2, 44100);
    EXPECT_EQ(peak.takeReading(), 16384);  // the negative sample of the first block
    c.p.process(b, 2, 2, 44100);
    EXPECT_EQ(peak.takeReading(), 8192);  // the reading started again
    peak.offer(3.0f);
    EXPECT_EQ(peak.takeReading(), PeakLevel::Maximum);

    // Players on their own threads: the largest offer wins whatever the interleaving.
    std::vector<std::thread> players;
    players.reserve(4);
    for (int t = 0; t < 4; ++t)
        players.emplace_back([&, t] {
            for (int i = 0; i < 2000; ++i) peak.offer(float(i % 100 + t * 100) / 1000.0f);
        });
    for (auto& th : players) th.join();
    EXPECT_EQ(peak.takeReading(), std::lround(0.399f * 32768));
}

// What the speed stage makes of 2 s of sine at one speed value, fed as the player feeds it.
std::vector<float> atSpeed(int speed) {
    const auto in = sine(440, 0.5, 44100, 2);
    SpeedStage stage(44100, 2);
    std::vector<float> out;
    for (int at = 0; at < 88200; at += kBlock) {
        stage.setSpeed(speed);
        stage.process(in.data() + 2L * at, kBlock, out);
    }
    stage.finish(out);
    return out;
}

TEST(SpeedStage, TempoFollowsTheSpeedAndHoldsAtTheEndsWhateverTheValue) {
    EXPECT_TRUE(atSpeed(100) == sine(440, 0.5, 44100, 2)) << "normal speed passes samples untouched";
    const auto fastest = atSpeed(50), slowest = atSpeed(200);
    EXPECT_NEAR(double(fastest.size()), 88200.0, 88200 * 0.02) << "twice as fast";
    EXPECT_NEAR(double(slowest.size()), 352800.0, 352800 * 0.02) << "half as fast";
    EXPECT_NEAR(double(atSpeed(80).size()), 176400 / 1.25, 176400 * 0.02);
    // Past the ends (the buttons have no limits): the extreme tempo, never normal speed.
    for (int speed : {45, -32768}) EXPECT_TRUE(atSpeed(speed) == fastest) << speed;
    for (int speed : {205, 32767}) EXPECT_TRUE(atSpeed(speed) == slowest) << speed;
}

}  // namespace
}  // namespace sonarium
