#pragma once
// When a player raises StreamEnd. The program's transport waits for StreamEnd after every Stop
// of a song it believes is playing, so the rule must never leave it waiting, and never end a
// song it has just started with a StreamEnd that belonged to the one before:
// - A run (Play, PlayRange) that runs out or is stopped ends with one StreamEnd.
// - Stop on a file that is open but was never started (a song loaded and standing silent)
//   ends it with one StreamEnd too. Stop with nothing to end raises nothing.
// - Close ends a live run without a StreamEnd; a StreamEnd already on its way is still
//   delivered after a Close.
// - Opening a file drops every StreamEnd not yet delivered.
// - A run whose StreamEnd was lost that way (closed while live, or dropped by an Open) is owed
//   one: the next Stop that finds nothing to end pays it, so a song taken away from the
//   player (a scan during play) can still be stopped. Starting a run or delivering a
//   StreamEnd settles the debt.
// Used on the UI thread only; real and fake players share it, so tests see the same rule.
#include <cstdint>
#include <map>

namespace sonarium {

class StreamEndRule {
public:
    using Token = std::uint64_t;  // 0 = none

    // A file was opened.
    void opened();
    // A file was closed while no run was live.
    void closed() { fresh_ = false; }
    // A run starts; its StreamEnd will carry the token returned.
    Token runStarted();
    // Close or Open ended a live run: its StreamEnd will not be delivered.
    void runSilenced(Token run);
    // Stop found no live run: the token of a StreamEnd to raise at once, or 0.
    Token stopWithoutRun();
    // A StreamEnd arrives: true when it reaches the program.
    bool deliver(Token token);

private:
    struct Pending {
        std::uint64_t generation;
        bool fromRun;
    };
    Token issue(bool fromRun);

    std::map<Token, Pending> pending_;  // started or raised, not yet delivered
    std::uint64_t generation_ = 0;
    Token last_ = 0;
    bool fresh_ = false;  // opened, not yet started or stopped
    bool owed_ = false;
};

}  // namespace sonarium
