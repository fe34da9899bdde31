// Free space in words.
#include "Apps/fernwick/devices/my_devices.h"
#include <gtest/gtest.h>

namespace {

TEST(SizeWords, AreBytesBelowOneKilobyte) {
    EXPECT_EQ(cli::sizeWords(0), "0 bytes");
    EXPECT_EQ(cli::sizeWords(1023), "1023 bytes");
}

TEST(SizeWords, HaveTheLargestUnitThatIsReached) {
    EXPECT_EQ(cli::sizeWords(1024), "1.0 KB");
    EXPECT_EQ(cli::sizeWords(1536), "1.5 KB");
    EXPECT_EQ(cli::sizeWords(std::int64_t{8} << 20), "8.0 MB");
    EXPECT_EQ(cli::sizeWords(std::int64_t{3} << 30), "3.0 GB");
    EXPECT_EQ(cli::sizeWords(std::int64_t{5000} << 40), "5000.0 TB");
}

TEST(SizeWords, AreEmptyForAnUnknownSize) { EXPECT_EQ(cli::sizeWords(-1), ""); }

} // namespace
