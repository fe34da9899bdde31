// Which pictures the properties of a form take, recognised by their first bytes.
#include "Apps/workbench/properties/picture_formats.h"
#include <gtest/gtest.h>

namespace {

const std::string
    kBitmapFile = "BM",
    kGifFile = "GIF89a", kJpegFile = "\xff\xd8\xff\xe0", kIconFile("\0\0\1\0", 4),
    kCursorFile("\0\0\2\0", 4), kPlaceableMetafile = "\xd7\xcd\xc6\x9a", kWindowsMetafile("\1\0\x09\0", 4),
    kEnhancedMetafile = std::string("\1\0\0\0", 4) + std::string(36, 'x') + " EMF", kPngFile = "\x89PNG\r\n";

std::string refusalOf(const char* property, const std::string& image) {
    return workbench::refusalOfPicture(property, "a.x", image).toStdString();
}

} // namespace

TEST(PictureFormats, HaveTheirNames) {
    for (const auto& [image, name] : {std::pair(std::string(), "(None)"),
                                      {kBitmapFile, "(Bitmap)"},
                                      {kGifFile, "(Bitmap)"},
                                      {kJpegFile, "(Bitmap)"},
                                      {kIconFile, "(Icon)"},
                                      {kCursorFile, "(Icon)"},
                                      {kPlaceableMetafile, "(Metafile)"},
                                      {kWindowsMetafile, "(Metafile)"},
                                      {kEnhancedMetafile, "(Metafile)"},
                                      {kPngFile, "(Bitmap)"}})
        EXPECT_EQ(workbench::shownPicture(image).toStdString(), name);
}

TEST(PictureFormats, APictureMayHaveEachFormatOfForms) {
    for (const auto& image : {kBitmapFile, kGifFile, kJpegFile, kIconFile, kCursorFile, kPlaceableMetafile,
                              kWindowsMetafile, kEnhancedMetafile})
        EXPECT_EQ(refusalOf("Picture", image), "");
    const auto shortened = kEnhancedMetafile.substr(0, kEnhancedMetafile.size() - 4);
    for (const auto& image : {kPngFile, shortened, std::string()})
        EXPECT_EQ(refusalOf("Picture", image),
                  "a.x: a form cannot store a picture of this format. Choose a bitmap (.bmp, .dib), a GIF, a JPEG, "
                  "a metafile (.wmf, .emf), an icon (.ico) or a cursor (.cur).");
}

TEST(PictureFormats, IconsAndPointersNeedTheirOwn) {
    EXPECT_EQ(refusalOf("Icon", kIconFile), "");
    for (const auto& image : {kBitmapFile, kCursorFile, kWindowsMetafile})
        EXPECT_EQ(refusalOf("Icon", image), "a.x: the icon of a form must be an icon file (.ico).");
    for (const char* pointer : {"MouseIcon", "DragIcon"}) {
        EXPECT_EQ(refusalOf(pointer, kIconFile), "");
        EXPECT_EQ(refusalOf(pointer, kCursorFile), "");
        for (const auto& image : {kBitmapFile, kWindowsMetafile})
            EXPECT_EQ(refusalOf(pointer, image), "a.x: a pointer must be an icon (.ico) or a cursor (.cur).");
    }
}

TEST(PictureFormats, AreOfferedByTheFileDialog) {
    for (const auto& [property, filter] :
         {std::pair("Icon", "Icons (*.ico);;All files (*)"),
          {"MouseIcon", "Icons and cursors (*.ico *.cur);;All files (*)"},
          {"DragIcon", "Icons and cursors (*.ico *.cur);;All files (*)"},
          {"Picture", "Pictures (*.bmp *.dib *.gif *.jpg *.jpeg *.wmf *.emf *.ico *.cur);;All files (*)"}})
        EXPECT_EQ(workbench::pictureFilter(property).toStdString(), filter);
}
