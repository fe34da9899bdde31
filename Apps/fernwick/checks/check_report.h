#pragma once
// What was found in source files, for reports.
#include "Apps/fernwick/checks/project_check.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/output/console.h"
#include "Apps/fernwick/output/report.h"
#include <cstdint>
#include <set>
#include <string>
#include <tuple>

namespace cli {

struct CheckTotals {
    std::size_t files = 0, errors = 0;
    std::uint64_t lines = 0;
    int status = kGood;
};

/// Reports what was found in each file, and counts it. A file of several projects is reported once.
class CheckReport {
public:
    CheckReport(const Options& options, Console& console, Report& report)
        : options_(options), console_(console), report_(report) {}

    /// `isNamed`: the command line names the file. Without its source, messages have no end column.
    void add(const std::string& path, qltoolkit::CheckResult result, bool isNamed, const qltoolkit::SourceText* source);
    /// A resource file that is as it should be is not mentioned.
    void add(const apps::CheckedProject& project, CheckedFiles files);
    [[nodiscard]] const CheckTotals& totals() const { return totals_; }

private:
    void print(Message message);

    const Options& options_;
    Console& console_;
    Report& report_;
    CheckTotals totals_;
    std::set<std::string> files_;
    std::set<std::tuple<std::string, std::uint32_t, std::uint32_t, int>> reported_;
};

} // namespace cli
