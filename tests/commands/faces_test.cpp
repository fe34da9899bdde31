// Pictures on buttons.
#include "Add-in/commands/mapped_bitmap.h"
#include "Host/model/bars/bars.h"
#include "Host/system/file_system.h"
#include "Host/system/resources.h"
#include "commands_world.h"
#include "tests/support/errors.h"
#include "tests/support/test_host.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Faces : public testing::Test, protected test::CommandsWorld {
protected:
    Faces() { pasteboard.isRecorded = true; }
    test::Ref<test::TracedItem> button =
        std::make_shared<test::TracedItem>(trace, office::msoControlButton, 1, std::weak_ptr<test::TracedBar>());
};

TEST_F(Faces, UseTheClipboardAndLeaveItEmpty) {
    EXPECT_TRUE(images.PlaceImageOnButton(button, 109));
    EXPECT_THAT(trace.effects, ElementsAre("clipboard cleared", "clipboard image/bmp", "?: face", "clipboard cleared"));
    EXPECT_THAT(pasteboard.contents, IsEmpty());
}

TEST_F(Faces, HaveTheMenusColourForTheMask) {
    const test::TestHost host{nullptr, &pasteboard};
    const auto real = host.ide->CommandBars()->Item("File")->Controls()->Add();
    images.PlaceImageOnButton(real, 109);
    const auto face = basic::cast<host::BarControl>(real)->face();
    EXPECT_EQ(face.substr(54, 3), "\xC8\xD0\xD4"); // blue, green, red
}

TEST_F(Faces, EachFailureIsIgnored) {
    for (int failing = 1;; ++failing) {
        trace.calls = 0;
        trace.failing = failing;
        EXPECT_TRUE(images.PlaceImageOnButton(button, 109));
        trace.failing = 0;
        if (trace.calls < failing) break;
    }
    EXPECT_TRUE(images.PlaceImageOnButton(nullptr, 109));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(Faces, WithoutAPictureNothingIsPutOnTheClipboard) {
    fernwick::Platform bare{user,       loop,  registry, files,   processes, classes,   environment,
                            pasteboard, shell, screen,   windows, clock,     resources, platform.app};
    EXPECT_TRUE(fernwick::modImageManagement{bare}.PlaceImageOnButton(button, 109));
    EXPECT_THAT(trace.effects, ElementsAre("clipboard cleared", "?: face", "clipboard cleared"));
}

TEST_F(Faces, OfTheHostComeFromItsClipboardOnly) {
    test::TestHost host{nullptr, &pasteboard}, without;
    const auto add = [](test::TestHost& h) { return h.ide->CommandBars()->Item("File")->Controls()->Add(); };
    EXPECT_EQ(test::errorOf([&] { add(host)->PasteFace(); }), 5);
    EXPECT_EQ(test::errorOf([&] { add(without)->PasteFace(); }), 5);
    const auto popup = host.ide->CommandBars()->FindControl(30004);
    EXPECT_EQ(test::errorOf([&] { popup->PasteFace(); }), 438);
    EXPECT_EQ(test::errorOf([&] { popup->Style(office::msoButtonIcon); }), 438);
}

TEST(MappedBitmap, ChangesOnlyTheMaskColour) {
    auto bmp = test::OnePixel{}.LoadBitmap(1);
    EXPECT_EQ(fernwick::mappedBitmap(bmp, fernwick::RGB(192, 192, 192), fernwick::RGB(1, 2, 3)).substr(54, 3),
              "\3\2\1");
    EXPECT_EQ(fernwick::mappedBitmap(bmp, fernwick::RGB(192, 192, 193), fernwick::RGB(1, 2, 3)), bmp);
}

TEST(MappedBitmap, RefusesOtherData) {
    const auto refused = [](std::string bmp) {
        return test::errorOf([&] { fernwick::mappedBitmap(bmp, 0, 1); }) == basic::kInvalidPicture;
    };
    const auto with = [](std::size_t at, char byte) {
        auto bmp = test::OnePixel{}.LoadBitmap(1);
        bmp[at] = byte;
        return bmp;
    };
    EXPECT_TRUE(refused(""));
    EXPECT_TRUE(refused(with(0, 'P')));
    EXPECT_TRUE(refused(with(28, 8)));   // bits a pixel
    EXPECT_TRUE(refused(with(30, 1)));   // compressed
    EXPECT_TRUE(refused(with(18, 2)));   // wider than its pixels
    EXPECT_TRUE(refused(with(21, 127))); // too wide
    EXPECT_TRUE(refused(with(25, -1)));
    EXPECT_TRUE(refused(with(10, 10))); // pixels in the header
    EXPECT_FALSE(refused(with(18, 1)));
}

class ShippedPictures : public testing::TestWithParam<int> {
protected:
    host::FileSystem files;
    host::Resources resources{files, FERNWICK_SOURCE_DIR "/installation"};
};

TEST_P(ShippedPictures, AreSixteenBySixteenOnTheMask) {
    const auto bmp = resources.LoadBitmap(GetParam());
    const auto mapped = fernwick::mappedBitmap(bmp, fernwick::RGB(192, 192, 192), fernwick::RGB(1, 2, 3));
    EXPECT_EQ(bmp.size(), 54U + 16 * 16 * 3);
    EXPECT_EQ(bmp[18], 16);
    EXPECT_EQ(bmp[22], 16);
    EXPECT_NE(mapped, bmp);
    const std::string_view pixels = std::string_view(bmp).substr(54);
    int drawn = 0;
    for (std::size_t at = 0; at < pixels.size(); at += 3) drawn += pixels.substr(at, 3) != "\xC0\xC0\xC0";
    EXPECT_GE(drawn, 40);
}

INSTANTIATE_TEST_SUITE_P(OfEachNumber, ShippedPictures,
                         testing::Values(101, 102, 108, 109, 110, 111, 112, 113, 114, 115, 116, 117, 118, 119, 120, 121,
                                         122, 123, 124));

TEST(Pictures, AreAllDifferent) {
    host::FileSystem files;
    host::Resources resources{files, FERNWICK_SOURCE_DIR "/installation"};
    std::set<std::string> all{resources.LoadBitmap(101), resources.LoadBitmap(102)};
    for (int id = 108; id <= 124; ++id) all.insert(resources.LoadBitmap(id));
    EXPECT_EQ(all.size(), 19U);
}

TEST(Pictures, AreMissingForAnUnknownNumberOrWithoutAnInstallation) {
    host::FileSystem files;
    const auto load = [&](const std::string& root, int id) {
        return test::errorOf([&] { host::Resources(files, root).LoadBitmap(id); });
    };
    EXPECT_EQ(load(FERNWICK_SOURCE_DIR "/installation", 100), basic::kFileNotFound);
    EXPECT_EQ(load("", 109), basic::kFileNotFound);
    EXPECT_NE(load("/nowhere", 109), 0);
}

} // namespace
