// Damaged forms are drawn as far as they can be read.
#include "Apps/workbench/designer/form_painter.h"
#include "Apps/workbench/designer/form_reader.h"
#include "Host/model/host.h"
#include "tests/support/sample_project.h"
#include "tests/support/test_host.h"
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace {

const std::string kWholeForm =
    "VERSION 5.00\r\nBegin VB.Form frmMain \r\n   BackColor       =   &H000000FF&\r\n   Caption         =   "
    "\"Whole\"\r\n"
    "   ClientHeight    =   1500\r\n   ClientLeft      =   60\r\n   ClientTop       =   345\r\n"
    "   ClientWidth     =   3000\r\n   Picture         =   \"frmMain.frx\":0000\r\n   ScaleHeight     =   1500\r\n"
    "   ScaleWidth      =   3000\r\n   Begin VB.Frame fraOne \r\n      Caption         =   \"One\"\r\n"
    "      Height          =   600\r\n      Left            =   150\r\n      Top             =   150\r\n"
    "      Width           =   1200\r\n      Begin VB.Label lblIn \r\n         Caption         =   \"In\"\r\n"
    "         BeginProperty Font \r\n            Name            =   \"Arial\"\r\n            Size            =   "
    "9.75\r\n"
    "            Weight          =   700\r\n         EndProperty\r\n         Height          =   300\r\n"
    "         Left            =   150\r\n         Top             =   210\r\n         Width           =   600\r\n"
    "      End\r\n   End\r\n   Begin VB.ListBox lstAll \r\n      Height          =   600\r\n      Left            =   "
    "1500\r\n"
    "      List            =   \"frmMain.frx\":000C\r\n      Top             =   150\r\n      Width           =   "
    "1200\r\n"
    "   End\r\n   Begin VB.HScrollBar scrOne \r\n      Height          =   255\r\n      Left            =   150\r\n"
    "      Max             =   10\r\n      Min             =   10\r\n      Top             =   900\r\n"
    "      Width           =   1200\r\n   End\r\n   Begin TavletsCtl.QLGrid grdOne \r\n      Height          =   "
    "600\r\n"
    "      Left            =   1500\r\n      Top             =   800\r\n      Width           =   1200\r\n"
    "      Rows            =   3\r\n   End\r\n   Begin VB.Line linOne \r\n      X1              =   0\r\n"
    "      X2              =   3000\r\n      Y1              =   0\r\n      Y2              =   1500\r\n   End\r\n"
    "   Begin VB.Menu mnuOne \r\n      Caption         =   \"&One\"\r\n   End\r\nEnd\r\nAttribute VB_Name = "
    "\"frmMain\"\r\n";

/// Reads and draws a form with this text; a null picture if the text is not a form.
QImage drawn(const std::string& text, const std::string& resources = {}) {
    test::TestHost host;
    if (!resources.empty()) host.folder.write("frmMain.frx", resources);
    const auto project = host.open(test::SampleProject().member("Form=frmMain.frm", "frmMain.frm", text));
    if (project->VBComponents()->Count() == 0) return {};
    QImage image;
    (void)basic::attempt([&] {
        const auto form = workbench::pictureOfForm(*project->VBComponents()->Item(1));
        constexpr double kMost = 2000; // the size of the image at most
        image = QImage(wholeSize(form).boundedTo({kMost, kMost}).toSize().expandedTo({1, 1}), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintForm(painter, form);
    });
    return image;
}

std::string with(const std::string& from, const std::string& to) {
    auto text = kWholeForm;
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

} // namespace

TEST(DamagedForms, AnIntactFormIsDrawn) {
    const auto image = drawn(kWholeForm);
    EXPECT_EQ(image.size(), QSize(208, 146)); // its frame of 4 and 23 pixels, a menu bar of 19
    EXPECT_EQ(image.pixelColor(100, 140), QColor(255, 0, 0));
}

TEST(DamagedForms, ATruncatedFormIsDrawnUpToItsEnd) {
    for (std::size_t length = 0; length < kWholeForm.size(); length += 7) {
        const auto image = drawn(kWholeForm.substr(0, length));
        const auto begun = kWholeForm.find("ClientWidth     =   3000");
        EXPECT_TRUE(length < begun + 24 || !image.isNull()) << length;
    }
}

TEST(DamagedForms, TheRestIsDrawnBesideInvalidValues) {
    for (const std::string value :
         {"", "\"\"", "\"text", "-1", "0", "1e30", "-99999999", "99999999999999999999", "&H", "&HFFFFFFFF&",
          "&H80000099&", "nonsense", "{DEL}", "$\"frmMain.frx\":FFFFFFFF", "\"frmMain.frx\":ZZ", "1,5", "nan", "inf"}) {
        for (const std::string key :
             {"BackColor", "ClientHeight", "ClientWidth", "Height", "Left", "Width", "Max", "Rows", "X2", "Caption",
              "Picture", "List", "Size", "Name", "Weight", "ScaleWidth"}) {
            const auto line = kWholeForm.find(key + " ");
            const auto end = kWholeForm.find("\r\n", line);
            auto text = kWholeForm;
            text.replace(line, end - line, key + " = " + value);
            EXPECT_FALSE(drawn(text).isNull()) << key << " = " << value;
        }
    }
}

TEST(DamagedForms, UnclosedBlocksAreDrawn) {
    EXPECT_FALSE(drawn(with("   End\r\n", "")).isNull());
    EXPECT_FALSE(drawn(with("EndProperty\r\n", "")).isNull());
    EXPECT_FALSE(drawn(with("Begin VB.", "Begin ")).isNull());
    EXPECT_FALSE(drawn(with("VB.Label lblIn", "VB.Label")).isNull());
    EXPECT_FALSE(drawn(with(" fraOne", " lstAll")).isNull());
    EXPECT_TRUE(drawn(with("Begin", "Bgin")).isNull());
}

TEST(DamagedForms, OutdatedResourcesAreLeftOut) {
    const std::string picture("\x0c\0\0\0lt\0\0\x04\0\0\0BM12", 16);
    for (const auto& bytes :
         {std::string("x"), picture, picture.substr(0, 14), std::string(64, '\xff'), std::string(64, '\0')})
        EXPECT_FALSE(drawn(kWholeForm, bytes).isNull());
}

TEST(DamagedForms, DeepNestingIsDrawn) {
    std::string begins, ends;
    for (int i = 0; i < 150; ++i) {
        begins += "Begin VB.PictureBox pic" + std::to_string(i) + " \r\nHeight = 900\r\nWidth = 900\r\n";
        ends += "End\r\n";
    }
    EXPECT_FALSE(drawn(with("   Begin VB.Menu", begins + ends + "   Begin VB.Menu")).isNull());
}
