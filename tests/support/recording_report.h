#pragma once
// Records error reports instead of showing them.
#include "Add-in/core/procedure.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace test {

class RecordingReport : public fernwick::ErrorReport {
public:
    /// "location [number]"
    std::vector<std::string> seen;
    int injected = 0;

    /// An error that leaves a trapped procedure: a statement is not wrapped.
    ~RecordingReport() override { EXPECT_EQ(escapes_, "") << "errors left these procedures"; }
    void Error_ShowAddInError(const std::string& location, const basic::RuntimeError& error) override {
        seen.push_back(location + " [" + std::to_string(error.Number) + "]");
        if (error.Number == 50000) ++injected;
    }
    void escaped(std::string_view location) noexcept override { escapes_ += std::string(location) + " "; }

private:
    std::string escapes_;
};

} // namespace test
