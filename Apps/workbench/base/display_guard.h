#pragma once

namespace workbench {

/// While it lives, a missing display ends the process with a sentence and exit status 3. Qt would abort, which looks
/// like a crash and leaves a core file.
class DisplayGuard {
public:
    DisplayGuard();
    ~DisplayGuard();
    DisplayGuard(const DisplayGuard&) = delete;
};

} // namespace workbench
