#include "controls/StreamEndRule.h"

namespace sonarium {

StreamEndRule::Token StreamEndRule::issue(bool fromRun) {
    pending_[++last_] = Pending{generation_, fromRun};
    return last_;
}

void StreamEndRule::opened() {
    ++generation_;
    for (const auto& [token, p] : pending_)
        if (p.fromRun) owed_ = true;
    pending_.clear();
    fresh_ = true;
}

StreamEndRule::Token StreamEndRule::runStarted() {
    fresh_ = false;
    owed_ = false;
    return issue(true);
}

void StreamEndRule::runSilenced(Token run) {
    if (pending_.erase(run)) owed_ = true;
}

StreamEndRule::Token StreamEndRule::stopWithoutRun() {
    if (fresh_) {
        fresh_ = false;
        return issue(false);
    }
    if (owed_) {
        owed_ = false;
        return issue(true);
    }
    return 0;
}

bool StreamEndRule::deliver(Token token) {
    auto it = pending_.find(token);
    if (it == pending_.end()) return false;
    const bool current = it->second.generation == generation_;
    pending_.erase(it);
    if (current) owed_ = false;
    return current;
}

}  // namespace sonarium
