#include "Apps/workbench/search/search_run.h"
#include "Apps/workbench/code/code_text.h"
#include "Basic/runtime_error.h"

namespace workbench {

namespace {

/// The matches of a module; none if it was removed meanwhile.
std::vector<Match> matchesOf(const CodePattern& pattern, const Stretch& stretch) {
    std::vector<Match> found;
    (void)basic::attempt([&] {
        const auto text = codeOf(*stretch.component->CodeModule());
        if (!pattern.mayOccurIn(text)) return;
        const auto lines = text.split('\n');
        for (const auto& place : hitsOf(pattern, stretch, lines))
            if (found.empty() || found.back().place.line != place.line) found.push_back({place, lines[place.line]});
    });
    return found;
}

} // namespace

SearchRun::SearchRun(Callbacks callbacks) : callbacks_(std::move(callbacks)) {
    turn_.setInterval(0);
    QObject::connect(&turn_, &QTimer::timeout, &turn_, [this] { search(); });
}

void SearchRun::start(CodePattern pattern, std::vector<Stretch> where) {
    pattern_ = std::move(pattern);
    where_ = std::move(where);
    next_ = 0;
    turn_.start();
}

void SearchRun::stop() {
    turn_.stop();
    where_.clear();
}

/// Searches for so short a time that the window stays responsive.
void SearchRun::search() {
    constexpr int kMilliseconds = 20;
    QElapsedTimer time;
    time.start();
    std::vector<Match> found;
    while (next_ < where_.size() && time.elapsed() < kMilliseconds)
        for (auto& match : matchesOf(pattern_, where_[next_++])) found.push_back(std::move(match));
    const bool isEnd = next_ == where_.size();
    callbacks_.found(std::move(found), int(next_), int(where_.size()));
    if (!isEnd || !isRunning()) return;
    stop();
    callbacks_.ended();
}

} // namespace workbench
