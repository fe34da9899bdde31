// Compiled projects as bytes.
#include "Apps/fernwick/checks/stored_program.h"
#include <gtest/gtest.h>

using namespace cli;

namespace {

/// A program with one procedure, which takes so many parameters, and an entry that names the procedure of this number.
StoredProgram programWithEntry(std::uint32_t number, std::uint32_t parameters = 0) {
    StoredProgram program;
    program.results.resize(1);
    program.entries.push_back({"TestShop", "TestTotal", number});
    program.code.texts = {"TestShop", "TestTotal"};
    program.code.modules.push_back({0, 0, image::kNone});
    auto& procedure = program.code.procedures.emplace_back();
    procedure.name = 1;
    procedure.parameters = parameters;
    return program;
}

} // namespace

TEST(StoredProgram, IsReadAsItWasWritten) {
    const auto read = storedProgramOf(bytesOf(programWithEntry(0)));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->entries.at(0).name, "TestTotal");
    EXPECT_EQ(read->code, programWithEntry(0).code);
}

TEST(StoredProgram, HasOnlyEntriesThatCanStart) {
    EXPECT_FALSE(storedProgramOf(bytesOf(programWithEntry(1))));
    EXPECT_FALSE(storedProgramOf(bytesOf(programWithEntry(0, 1))));
}

TEST(StoredProgram, IsNotReadFromOtherBytes) {
    const auto bytes = bytesOf(programWithEntry(0));
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(storedProgramOf(std::string_view(bytes).substr(0, length))) << length;
}
