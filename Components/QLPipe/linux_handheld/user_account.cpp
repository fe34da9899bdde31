#include "Components/QLPipe/linux_handheld/user_account.h"
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>
#include <vector>

namespace qlpipe {

namespace {

std::string ofAccount(char* passwd::*field) {
    passwd account{};
    passwd* found = nullptr;
    std::vector<char> text(16384);
    if (::getpwuid_r(::geteuid(), &account, text.data(), text.size(), &found) != 0 || !found) return {};
    return found->*field;
}

} // namespace

std::string userName() { return ofAccount(&passwd::pw_name); }

std::string homeFolder() {
    const char* home = std::getenv("HOME");
    return home && *home ? home : ofAccount(&passwd::pw_dir);
}

} // namespace qlpipe
