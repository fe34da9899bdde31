#pragma once
// Standard output carries data, standard error progress and diagnostics.
#include "Apps/fernwick/options/verbosity.h"
#include <string>
#include <string_view>

namespace cli {

enum class Tone { Plain, Error, Warning, Good, Faint };

/// Where this run writes. Colours only on a terminal and without NO_COLOR; a progress bar only on a terminal.
class Console {
public:
    explicit Console(Verbosity verbosity);
    ~Console();
    Console(const Console&) = delete;

    /// Data, as it is.
    void out(std::string_view data);
    /// A line of diagnostics; the progress bar makes room for it.
    void err(std::string_view line, Tone tone = Tone::Plain);
    /// Like err, but silent under --quiet.
    void note(std::string_view line, Tone tone = Tone::Plain);
    /// Like err, but only under --verbose.
    void detail(std::string_view line);

    /// How far a run is, 0 to 100, and what it does. On a terminal one line is redrawn; elsewhere the text is
    /// printed where it changes, and percentages are left to the bar.
    void progress(float percent, std::string_view text);
    void endProgress();

    /// A question at the terminal. `canAsk` first: False when there is nobody to ask.
    bool canAsk() const { return canAsk_; }
    /// The line that was typed, without its end; "" for Return alone or the end of input.
    std::string ask(std::string_view prompt);

    Verbosity verbosity() const { return verbosity_; }
    /// Whether all data reached standard output; False for a full disk or a closed pipe.
    bool flush();

private:
    std::string coloured(std::string_view line, Tone tone) const;
    void clearBar();
    void drawBar(float percent, std::string_view text);

    Verbosity verbosity_;
    bool errIsTerminal_;
    bool colour_;
    bool canAsk_;
    bool barShown_ = false;
    bool outputFailed_ = false;
    std::string lastText_;
};

} // namespace cli
