#pragma once
// One run at a time for the commands that write a project.
#include <string>

namespace cli {

class Console;

/// Holds the lock of a project during its lifetime. The lock file is in the user's state folder, named after the
/// project's path, so that folders of projects stay clean and may be read-only. The system releases the lock when the
/// process ends. Where no lock file can be made, the run continues without a lock.
class ProjectLock {
public:
    /// Waits until another run releases the lock, after a note. Without `wait` Refusal 1 if it is taken. A program
    /// that a run starts, such as a compile step, has the lock of that run.
    ProjectLock(const std::string& project, bool wait, Console& console);
    ProjectLock(const ProjectLock&) = delete;
    ProjectLock& operator=(const ProjectLock&) = delete;
    ~ProjectLock();

private:
    bool take();

    std::string path_;
    int descriptor_ = -1;
};

} // namespace cli
