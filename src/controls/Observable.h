#pragma once
// Models tell their views that something changed; a view then reads the model again.
#include <functional>
#include <map>

namespace sonarium {

class Observable {
public:
    using Listener = std::function<void()>;
    Observable() = default;
    Observable(const Observable&) = delete;
    Observable& operator=(const Observable&) = delete;
    virtual ~Observable() = default;

    int subscribe(Listener l) {
        listeners_[++lastId_] = std::move(l);
        return lastId_;
    }
    void unsubscribe(int id) { listeners_.erase(id); }

protected:
    void changed() {
        // A listener may unsubscribe while we notify: walk a copy of the ids.
        std::map<int, Listener> copy = listeners_;
        for (auto& [id, l] : copy)
            if (listeners_.count(id)) l();
    }

private:
    std::map<int, Listener> listeners_;
    int lastId_ = 0;
};

}  // namespace sonarium
