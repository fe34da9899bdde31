#pragma once
#include <exception>
#include <string>

namespace cli {

/// Ends a command with a message and an exit status.
class Refusal : public std::exception {
public:
    Refusal(int status, std::string text) : status_(status), text_(std::move(text)) {}
    const char* what() const noexcept override { return text_.c_str(); }
    int status() const { return status_; }

private:
    int status_;
    std::string text_;
};

} // namespace cli
