#pragma once
// What a test's world was asked to do, and the one call of it that is to fail.
#include "Basic/runtime_error.h"
#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace test {

constexpr int kInjected = 50000;

class Trace {
public:
    /// The calls that did something, in their order.
    std::vector<std::string> effects;
    /// From 1: this call fails; 0 for none.
    int failing = 0;
    /// Calls so far.
    int calls = 0;

    void read() {
        if (++calls == failing) throw basic::RuntimeError(kInjected, "injected");
    }
    void effect(std::string what) { effectOf("", std::move(what)); }
    /// The same; the observer sees whose effect it is.
    void effectOf(const std::string& whose, std::string what) {
        read();
        effects.push_back(std::move(what));
        if (observer) observer(whose + effects.back());
    }
    std::function<void(const std::string& effect)> observer;
};

/// What a run did not do of what another did.
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
