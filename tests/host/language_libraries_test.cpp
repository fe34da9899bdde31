// What the host knows of libraries that are not registered.
#include "Host/model/references/language_libraries.h"
#include <gmock/gmock.h>

TEST(LanguageLibraries, AreDescribedAsInTheReferencesDialog) {
    const auto& [vba, vbrun, vb] = host::kLanguageLibraries;
    EXPECT_EQ(vba.description, "Visual Basic For Applications");
    EXPECT_EQ(vbrun.description, "Visual Basic runtime objects and procedures");
    EXPECT_EQ(vb.description, "Visual Basic objects and procedures");
    EXPECT_EQ(vbrun.file, "MSVBVM60.DLL\\3");
    EXPECT_EQ(vb.file, "VB6.OLB");
}
