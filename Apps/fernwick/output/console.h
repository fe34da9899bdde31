#pragma once
// Data goes to standard output, progress and diagnostics to standard error.
#include "Apps/fernwick/options/verbosity.h"
#include "Apps/fernwick/output/terminal.h"
#include <chrono>
#include <string>
#include <string_view>

namespace cli {

enum class Tone { Plain, Error, Warning, Good, Faint };

class Console {
public:
    explicit Console(Verbosity verbosity, ColorUse colour = ColorUse::Auto);
    ~Console();
    Console(const Console&) = delete;

    /// Writes text of whole lines. Like all text here, it goes through basic::printable, because names and values of
    /// foreign files could otherwise control the terminal.
    void out(std::string_view text);
    /// Writes data unchanged.
    void data(std::string_view data);
    /// Writes a line of diagnostics, replacing the progress bar.
    void err(std::string_view line, Tone tone = Tone::Plain);
    /// Like err, for a text of several lines.
    void errLines(std::string_view text, Tone tone);
    /// Like err, but silent under --quiet.
    void note(std::string_view line, Tone tone = Tone::Plain);
    /// Like err, but only under --verbose and after the time since the start.
    void detail(std::string_view line);

    /// Shows progress from 0 to 100 with a text, which may be a percentage, too. Without a progress bar, prints the
    /// text when it changes, but no percentages; under --verbose with the time.
    void progress(float percent, std::string_view text);
    void endProgress();

    /// Whether a question reaches a user.
    bool canAsk() const { return terminal_.questions; }
    /// Writes the beginning of a line that the user completes.
    void prompt(std::string_view text);

    Verbosity verbosity() const { return verbosity_; }
    /// Whether data was written.
    bool hasData() const { return hasData_; }
    /// Returns whether all data was written; false for a full disk or a closed pipe.
    bool flush();

private:
    std::string coloured(std::string_view line, Tone tone) const;
    void clearBar();
    void drawBar(float percent, std::string_view text);

    Verbosity verbosity_;
    Terminal terminal_;
    std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
    bool hasData_ = false;
    bool barShown_ = false;
    bool outputFailed_ = false;
    std::string lastText_;
};

} // namespace cli
