#include "Host/files/encoding.h"
#include <gtest/gtest.h>

using basic::CodePage;
using host::codePageOf;

namespace {
const auto kWestern = CodePage::windows1252();
}

TEST(Encoding, DetectsUtf8ForEachFile) {
    EXPECT_EQ(codePageOf("plain", kWestern).number(), 1252);
    EXPECT_EQ(codePageOf("Gr\xF6\xDF"
                         "e",
                         kWestern)
                  .number(),
              1252);
    EXPECT_EQ(codePageOf("Größe", kWestern).number(), 65001);
    EXPECT_EQ(codePageOf("impresi\xEF\xBF\xBDn", kWestern).number(), 65001);
    EXPECT_EQ(codePageOf("Größe \xF6", kWestern).number(), 1252);
    EXPECT_EQ(codePageOf("\xEF\xBB\xBFx", kWestern).number(), 65001);
}

TEST(Encoding, TwoByteSequencesDoNotOverrideADoubleBytePage) {
    EXPECT_EQ(codePageOf("\xC3\xA9", CodePage(936)).number(), 936);
    EXPECT_EQ(codePageOf("表", CodePage(932)).number(), 65001);
}
