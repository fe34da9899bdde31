#pragma once
// Loads images, verifies and runs them.
#include "Apps/tamarik/headless/arguments.h"
#include "Components/Tamarik/machine/machine.h"
#include "Components/Tamarik/natives/natives.h"
#include <cstdio>
#include <memory>
#include <string>

namespace headless {

class ImageRun {
public:
    explicit ImageRun(const Arguments& arguments);

    /// Runs one image. What it prints goes to standard output; why it cannot run or has failed, and what it prints as an error,
    /// to `errors`.
    [[nodiscard]] int run(const std::string& path, std::FILE* errors);

private:
    [[nodiscard]] tamarik::MachineOptions options(std::FILE* errors) const;
    [[nodiscard]] int runProgram(std::shared_ptr<const tamarik::Program> program, std::FILE* errors) const;

    const Arguments& arguments_;
    tamarik::Natives natives_;
};

} // namespace headless
