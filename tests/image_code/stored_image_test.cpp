// An image that is stored in the sources, as a seed of the fuzz targets and for the tests of the command line.
#include "Components/Image/image.h"
#include "tests/image_code/verify_world.h"
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace {

using namespace code_parts;

image::Image storedImage() {
    image::Image image;
    image.compilerVersion = "1";
    image.projectName = "Stored";
    image.startup = "Sub Main";
    Program program;
    auto& variables = program.code.procedures[program.main].variables;
    variables = {{kLong}, {kLong}, {kText, true}, {kVariant}, {kObject}};
    const auto hello = program.text("Hello\x1B \"World\"");
    program.runs({encodeWide(Op::LoadShort, 0, 1),                                                      //
                  encode(Op::LoadText, 2), hello,                                                       //
                  encode(Op::CallNative, 2, 0, 2), 0,                                                   //
                  encodeArgument(Pass::Take, 2) | std::uint32_t(encodeArgument(Pass::Number, 0)) << 16, //
                  encode(Op::ForLong, 0, 1, 1), std::uint32_t(-5)});
    program.code.procedures[program.main].lines = {{0, 4}, {1, 5}, {6, 6}, {8, 8}};
    image.code = program.code;
    return image;
}

const std::string kStored = FERNWICK_SOURCE_DIR "/fuzz/corpus/image_code/program.qlx";

} // namespace

TEST(StoredImage, HasTheSameBytesOnEveryMachine) {
    const auto bytes = image::encode(storedImage());
    if (std::getenv("FERNWICK_APPROVE")) std::ofstream(kStored, std::ios::binary) << bytes;
    std::ostringstream found;
    found << std::ifstream(kStored, std::ios::binary).rdbuf();
    EXPECT_TRUE(found.str() == bytes) << kStored << " is out of date: set FERNWICK_APPROVE=1";
    EXPECT_FALSE(image::verify(storedImage().code));
}
