#pragma once
// Reads the head of a form or class file.
#include "Host/files/form_file.h"
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace host {

inline constexpr std::string_view kVersionWord = "VERSION", kAttributeWord = "Attribute";

class FormReader {
public:
    FormReader(FormFile& file, std::string_view text) : file_(file), rest_(text) {}

    void read();

private:
    struct Open {
        std::shared_ptr<FormBlock> block;
        std::size_t line;
    };

    std::string_view peek() const;
    std::string_view take();
    void problem(std::size_t line, std::string text);
    void readBefore();
    void begin();
    void readBlock();
    void readInside(std::string_view line);
    void enter(FormBlock::Kind kind, std::string_view line);
    bool endsTooDeep(std::string_view line);
    void endObject(std::string_view line);
    void endProperties(std::string_view line);
    void leave();
    void readBetween();

    FormFile& file_;
    std::string_view rest_;
    std::size_t line_ = 0; // of the line taken last
    std::vector<Open> open_;
    std::size_t tooDeep_ = 0;
};

} // namespace host
