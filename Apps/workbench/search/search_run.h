#pragma once
// A search that runs in pieces while the user works on.
#include "Apps/workbench/code/code_finder.h"
#include <QElapsedTimer>
#include <QTimer>

namespace workbench {

/// A line with matches.
struct Match {
    CodePlace place; ///< of the first match in the line
    QString text;
    bool isDeclaration = false;
};

class SearchRun {
public:
    struct Callbacks {
        /// Some matches, and how many of how many modules were searched.
        std::function<void(std::vector<Match> found, int searched, int all)> found;
        std::function<void()> ended;
    };
    explicit SearchRun(Callbacks callbacks);

    /// Ends a search that is still running.
    void start(CodePattern pattern, std::vector<Stretch> where);
    void stop();
    bool isRunning() const { return turn_.isActive(); }

private:
    void search();

    Callbacks callbacks_;
    CodePattern pattern_{{}, {}};
    std::vector<Stretch> where_;
    std::size_t next_ = 0;
    QTimer turn_;
};

} // namespace workbench
