#include "Apps/fernwick/output/console.h"
#include "Basic/printable.h"
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fmt/format.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace cli {

namespace {

constexpr int kBarCells = 20;

/// 80 if the terminal does not report its width, as new pseudo-terminals do not.
size_t terminalWidth() {
    winsize size{};
    if (ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) return size.ws_col;
    return 80;
}

/// Returns as many whole UTF-8 characters as fit into `cells`.
std::string_view cutToCells(std::string_view text, size_t cells) {
    size_t at = 0;
    for (; at < text.size() && cells > 0; --cells) {
        ++at;
        while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80) ++at;
    }
    return text.substr(0, at);
}

/// Ignores write errors: diagnostics that cannot be written must not end the run.
void toError(std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stderr);
    std::fflush(stderr);
}

const char* colourOf(Tone tone) {
    switch (tone) {
    case Tone::Error: return "31";
    case Tone::Warning: return "33";
    case Tone::Good: return "32";
    case Tone::Faint: return "2";
    case Tone::Plain: break;
    }
    return "";
}

} // namespace

Console::Console(Verbosity verbosity, ColorUse colour)
    : verbosity_(verbosity), terminal_(terminalFor(colour, terminalFacts())) {}

Console::~Console() { endProgress(); }

void Console::out(std::string_view text) { data(basic::printable(text, "\n\t")); }

void Console::data(std::string_view data) {
    hasData_ = hasData_ || !data.empty();
    if (std::fwrite(data.data(), 1, data.size(), stdout) != data.size()) outputFailed_ = true;
}

bool Console::flush() {
    if (std::fflush(stdout) != 0) outputFailed_ = true;
    return !outputFailed_;
}

std::string Console::coloured(std::string_view line, Tone tone) const {
    if (!terminal_.colour || tone == Tone::Plain) return std::string(line);
    return fmt::format("\033[{}m{}\033[0m", colourOf(tone), line);
}

void Console::err(std::string_view line, Tone tone) { errLines(basic::printable(line), tone); }

void Console::errLines(std::string_view text, Tone tone) {
    clearBar();
    toError(coloured(basic::printable(text, "\n"), tone) + "\n");
}

void Console::note(std::string_view line, Tone tone) {
    if (verbosity_ != Verbosity::Quiet) err(line, tone);
}

void Console::detail(std::string_view line) {
    if (verbosity_ != Verbosity::Verbose) return;
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin_;
    err(fmt::format("[{:.3f} s] {}", passed.count(), line), Tone::Faint);
}

void Console::progress(float percent, std::string_view status) {
    if (verbosity_ == Verbosity::Quiet) return;
    const auto text = basic::printable(status);
    const bool isPercentage = text.ends_with("% completed"); // the bar shows it
    const bool isNew = !text.empty() && !isPercentage && text != lastText_;
    if (isNew) lastText_ = text;
    if (verbosity_ == Verbosity::Verbose) {
        if (isNew) detail(lastText_);
    } else if (terminal_.progressBar) {
        drawBar(percent, lastText_);
    } else if (isNew) {
        toError(lastText_ + "\n");
    }
}

void Console::drawBar(float percent, std::string_view text) {
    const int done = std::clamp(int(std::lround(percent / 100 * kBarCells)), 0, kBarCells);
    const std::string bar = fmt::format("[{}{}] {:3.0f}% ", std::string(size_t(done), '#'),
                                        std::string(size_t(kBarCells - done), '.'), percent);
    const size_t room = terminalWidth() - 1;
    toError(fmt::format("\r{}{}\033[K", bar, cutToCells(text, room > bar.size() ? room - bar.size() : 0)));
    barShown_ = true;
}

void Console::clearBar() {
    if (barShown_) toError("\r\033[K");
    barShown_ = false;
}

void Console::endProgress() {
    clearBar();
    lastText_.clear();
}

void Console::prompt(std::string_view text) {
    clearBar();
    toError(basic::printable(text, "\n"));
}

} // namespace cli
