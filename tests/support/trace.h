#pragma once
// Records the calls of a test's world, and makes one of them fail.
#include "Basic/runtime_error.h"
#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace test {

constexpr int kInjected = 50000;

class Trace {
public:
    /// Calls that changed something, in order.
    std::vector<std::string> effects;
    /// Number, from 1, of the call that fails; 0 for none.
    int failing = 0;
    /// Number of calls so far.
    int calls = 0;

    void read() {
        if (++calls == failing) throw basic::RuntimeError(kInjected, "injected");
    }
    void effect(std::string what) { effectOf("", std::move(what)); }
    /// The same; the observer also receives the owner of the effect.
    void effectOf(const std::string& whose, std::string what) {
        read();
        effects.push_back(std::move(what));
        if (observer) observer(whose + effects.back());
    }
    std::function<void(const std::string& effect)> observer;
};

/// Returns the effects of one run that are missing in another.
inline std::vector<std::string> lost(const std::vector<std::string>& before, std::vector<std::string> now) {
    std::vector<std::string> missing;
    for (const auto& effect : before)
        if (const auto at = std::find(now.begin(), now.end(), effect); at != now.end())
            now.erase(at);
        else
            missing.push_back(effect);
    return missing;
}

} // namespace test
