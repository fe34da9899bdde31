#include "Basic/error_numbers.h"
#include <charconv>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace {

/// The documented errors: a number, a blank and the text in each line.
std::map<int, std::string> documented() {
    std::map<int, std::string> texts;
    std::ifstream file(FERNWICK_SOURCE_DIR "/tests/basic/error_descriptions.txt");
    for (std::string line; std::getline(file, line);) {
        int number = 0;
        const auto read = std::from_chars(line.data(), line.data() + line.size(), number);
        texts[number] = read.ptr + 1;
    }
    return texts;
}

} // namespace

TEST(ErrorNumbers, HaveTheirStandardTexts) {
    const auto texts = documented();
    ASSERT_EQ(texts.size(), 145u);
    for (int number = 0; number <= 32767; ++number) {
        const auto text = texts.find(number);
        EXPECT_EQ(basic::standardDescription(number),
                  text == texts.end() ? "Application-defined or object-defined error" : text->second)
            << number;
    }
}

TEST(ErrorNumbers, OthersAreApplicationDefined) {
    for (const int number : {-2147221504, -1, 65535})
        EXPECT_EQ(basic::standardDescription(number), "Application-defined or object-defined error") << number;
}
