#pragma once
// Makes the code of a program: procedures while they are bound, and at the end the whole.
#include "Components/Image/code/code_image.h"
#include "Components/QLToolkit/code/module_code.h"
#include "Components/QLToolkit/names/code_sink.h"
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace qltoolkit {

/// A public Sub without parameters of a standard module.
struct EntryPoint {
    std::string module, name;
    std::uint32_t number; ///< of the procedure
};

/// What an image has besides the code of the modules.
struct ImageParts {
    /// The procedure that begins, by its name in a standard module, such as "Main". The image has no start without it.
    std::string start;
    std::uint32_t codePage;
    std::vector<image::Resource> resources = {};
};

class CodeGenerator : public CodeSink {
public:
    CodeGenerator();
    ~CodeGenerator() override;

    void declared(Program& program) override;
    ModuleCodeSink& module(std::size_t index) override;

    /// The code of all modules, after checkProgram reported no errors.
    [[nodiscard]] image::CodeImage link(const ImageParts& parts);
    /// In the order of the modules and their procedures, after the same.
    [[nodiscard]] std::vector<EntryPoint> entryPoints() const;

private:
    struct Work;
    std::unique_ptr<Work> work_;
};

} // namespace qltoolkit
