#include "Host/files/library_reference.h"
#include <gtest/gtest.h>

using host::formatReference;
using host::LibraryReference;
using host::parseObjectLine;
using host::parseReferenceLine;
using RefKind = LibraryReference::Kind;

TEST(LibraryReference, ReadsATypeLibraryWithHexadecimalVersion) {
    const auto text = "*\\G{00020905-0000-0000-c000-000000000046}#2e.1A#0#..\\Lib\\thing.dll#Thing library";
    const auto reference = parseReferenceLine(text);
    EXPECT_EQ(reference.kind, RefKind::TypeLibrary);
    EXPECT_EQ(reference.guid, "{00020905-0000-0000-C000-000000000046}");
    EXPECT_EQ(reference.major, 0x2eu);
    EXPECT_EQ(reference.minor, 0x1au);
    EXPECT_EQ(reference.path, "..\\Lib\\thing.dll");
    EXPECT_EQ(reference.description, "Thing library");
    EXPECT_EQ(formatReference(reference),
              "*\\G{00020905-0000-0000-C000-000000000046}#2e.1a#0#..\\Lib\\thing.dll#Thing library");
}

TEST(LibraryReference, ReadsAnEmptyDescriptionAndSurroundingBlanks) {
    const auto reference = parseReferenceLine(" *\\g{00020905-0000-0000-C000-000000000046}#1.0#409#a.tlb# ");
    EXPECT_EQ(reference.kind, RefKind::TypeLibrary);
    EXPECT_EQ(reference.lcid, "409");
    EXPECT_EQ(reference.description, "");
}

TEST(LibraryReference, ReadsAReferenceToAProject) {
    const auto reference = parseReferenceLine("*\\A..\\Other\\Other.vbp");
    EXPECT_EQ(reference.kind, RefKind::Project);
    EXPECT_EQ(reference.path, "..\\Other\\Other.vbp");
    EXPECT_EQ(formatReference(reference), "*\\A..\\Other\\Other.vbp");
}

TEST(LibraryReference, ReadsTheThreeFormsOfAnObjectLine) {
    const auto control = parseObjectLine("{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0; MSCOMCTL.OCX");
    EXPECT_EQ(control.kind, RefKind::Control);
    EXPECT_EQ(control.path, "MSCOMCTL.OCX");
    EXPECT_EQ(control.major, 2u);
    EXPECT_EQ(formatReference(control), "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0; MSCOMCTL.OCX");
    EXPECT_EQ(parseObjectLine("*\\AMyControl.vbp").kind, RefKind::ControlProject);
    const auto ole = parseObjectLine("Some.Document.8; SOMEAPP.EXE");
    EXPECT_EQ(ole.kind, RefKind::OleObject);
    EXPECT_EQ(ole.progId, "Some.Document.8");
    EXPECT_EQ(formatReference(ole), "Some.Document.8; SOMEAPP.EXE");
}

TEST(LibraryReference, KeepsWhatItDoesNotUnderstand) {
    for (const auto* text :
         {"", "*\\G", "*\\Gnonsense#1.0#0#a#b", "*\\G{00020905-0000-0000-C000-000000000046}#x.y#0#a#b",
          "*\\G{00020905-0000-0000-C000-000000000046}#100000000.0#0#a#b", "whatever"}) {
        const auto reference = parseReferenceLine(text);
        EXPECT_EQ(reference.kind, RefKind::Unknown) << text;
        EXPECT_EQ(formatReference(reference), text);
    }
    EXPECT_EQ(parseObjectLine("").kind, RefKind::Unknown);
    EXPECT_EQ(parseObjectLine("{nonsense}#1.0#0; a.ocx").kind, RefKind::Unknown);
}

TEST(LibraryReference, NormalizesGuids) {
    EXPECT_EQ(host::normalGuid("00020905-0000-0000-c000-000000000046"), "{00020905-0000-0000-C000-000000000046}");
    EXPECT_EQ(host::normalGuid("{00020905-0000-0000-c000-00000000004}"), "");
    EXPECT_EQ(host::normalGuid("{00020905-0000-0000-c000-00000000004g}"), "");
}
