#pragma once
// The drawings of the icons, on a grid of 16 by 16. A row is a list of strokes: a colour of icon_colours.h (in capitals it
// fills), then M x y, L x y (further points), Z (closes), R x y w h (rectangle), E x y rx ry (ellipse),
// T x y size letter.
#include <array>
#include <string_view>

namespace workbench {

struct IconDrawing {
    std::string_view name, strokes;
};

inline constexpr std::array kIconTable{
    // ---- commands ----
    IconDrawing{"New", "ink M 3.5 1.5 L 9.5 1.5 12.5 4.5 12.5 14.5 3.5 14.5 Z M 9.5 1.5 L 9.5 4.5 12.5 4.5"},
    IconDrawing{"Open", "AMBER M 1.5 13 L 1.5 3.5 6 3.5 7.5 5.5 13 5.5 13 7.5 15 7.5 12.5 13 Z "
                        "ink M 1.5 13.5 L 1.5 3.5 6 3.5 7.5 5.5 13 5.5 13 7.5 M 1.5 13.5 L 4 7.5 15 7.5 12.5 13.5 Z"},
    IconDrawing{"Save", "BLUE R 2 2 12 12 ink R 2 2 12 12 R 5 2 6 4 R 4 9 8 5"},
    IconDrawing{"SaveAs", "BLUE R 1.5 1.5 10 10 ink R 1.5 1.5 10 10 R 4 1.5 5 3 amber M 8 14 L 14 8"},
    IconDrawing{"Remove",
                "ink M 2 4.5 L 14 4.5 M 6 4 L 6 2 10 2 10 4 M 3.5 5 L 4.5 14.5 11.5 14.5 12.5 5 M 8 7 L 8 12"},
    IconDrawing{"Exit", "ink M 8 2 L 2.5 2 2.5 14 8 14 red M 6 8 L 14 8 M 11 5 L 14 8 11 11"},
    IconDrawing{"Undo", "blue M 5 2.5 L 2 5.5 5 8.5 M 2 5.5 L 9 5.5 12 7 13 9.5 12 12 9 13.5 5 13.5"},
    IconDrawing{"Redo", "blue M 11 2.5 L 14 5.5 11 8.5 M 14 5.5 L 7 5.5 4 7 3 9.5 4 12 7 13.5 11 13.5"},
    IconDrawing{"Cut", "ink M 4 1.5 L 10.5 11 M 12 1.5 L 5.5 11 blue E 4 12.5 2 2 E 12 12.5 2 2"},
    IconDrawing{"Copy", "ink R 2 1.5 8 10 blue R 6 5 8 9.5"},
    IconDrawing{"Paste", "ink R 2.5 3 9 11.5 R 5 1.5 4 2.5 blue R 7 7 7 8"},
    IconDrawing{"CutLine", "ink M 2 3 L 14 3 M 2 13 L 14 13 red M 2 8 L 14 8 M 6 5.5 L 10 10.5"},
    IconDrawing{"SelectAll", "BLUE R 3 3 10 10 ink R 1.5 1.5 13 13 M 4 6 L 12 6 M 4 10 L 12 10"},
    IconDrawing{"Delete", "red M 3 3 L 13 13 M 13 3 L 3 13"},
    IconDrawing{"Duplicate", "ink R 1.5 1.5 8 8 BLUE R 6.5 6.5 8 8 ink R 6.5 6.5 8 8"},
    IconDrawing{"AlignLefts", "ink M 2 1.5 L 2 14.5 BLUE R 3.5 3 10 4 R 3.5 9 6 4"},
    IconDrawing{"AlignCentres", "ink M 8 1.5 L 8 14.5 BLUE R 3 3 10 4 R 5 9 6 4"},
    IconDrawing{"AlignRights", "ink M 14 1.5 L 14 14.5 BLUE R 2.5 3 10 4 R 6.5 9 6 4"},
    IconDrawing{"AlignTops", "ink M 1.5 2 L 14.5 2 BLUE R 3 3.5 4 10 R 9 3.5 4 6"},
    IconDrawing{"AlignMiddles", "ink M 1.5 8 L 14.5 8 BLUE R 3 3 4 10 R 9 5 4 6"},
    IconDrawing{"AlignBottoms", "ink M 1.5 14 L 14.5 14 BLUE R 3 2.5 4 10 R 9 6.5 4 6"},
    IconDrawing{"AlignToGrid", "ink M 1.5 4 L 14.5 4 M 4 1.5 L 4 14.5 BLUE R 5 5 8 8"},
    IconDrawing{"SameWidth", "BLUE R 3 2 10 4 R 3 10 10 4 ink M 3 8 L 13 8 M 5 6.5 L 3 8 5 9.5 M 11 6.5 L 13 8 11 9.5"},
    IconDrawing{"SameHeight",
                "BLUE R 2 3 4 10 R 10 3 4 10 ink M 8 3 L 8 13 M 6.5 5 L 8 3 9.5 5 M 6.5 11 L 8 13 9.5 11"},
    IconDrawing{"SameSize", "BLUE R 1.5 1.5 6 6 R 8.5 8.5 6 6 ink M 9 2 L 14 2 14 7 M 2 9 L 2 14 7 14"},
    IconDrawing{"SizeToGrid", "ink M 1.5 13 L 14.5 13 M 13 1.5 L 13 14.5 BLUE R 3 3 9 9"},
    IconDrawing{"EqualSpaceAcross", "BLUE R 1 4 3 8 R 6.5 4 3 8 R 12 4 3 8 ink M 4 14 L 6.5 14 M 9.5 14 L 12 14"},
    IconDrawing{"MoreSpaceAcross", "BLUE R 1 4 3 8 R 12 4 3 8 green M 5 8 L 11 8 M 8 5 L 8 11"},
    IconDrawing{"LessSpaceAcross", "BLUE R 1 4 3 8 R 12 4 3 8 red M 5 8 L 11 8"},
    IconDrawing{"NoSpaceAcross", "BLUE R 3 4 4.5 8 R 8.5 4 4.5 8 red M 8 1.5 L 8 14.5"},
    IconDrawing{"EqualSpaceDown", "BLUE R 4 1 8 3 R 4 6.5 8 3 R 4 12 8 3 ink M 14 4 L 14 6.5 M 14 9.5 L 14 12"},
    IconDrawing{"MoreSpaceDown", "BLUE R 4 1 8 3 R 4 12 8 3 green M 8 5 L 8 11 M 5 8 L 11 8"},
    IconDrawing{"LessSpaceDown", "BLUE R 4 1 8 3 R 4 12 8 3 red M 5 8 L 11 8"},
    IconDrawing{"NoSpaceDown", "BLUE R 4 3 8 4.5 R 4 8.5 8 4.5 red M 1.5 8 L 14.5 8"},
    IconDrawing{"CentreAcross", "ink R 1.5 2.5 13 11 BLUE R 6 5 4 6 ink M 3 8 L 5 8 M 11 8 L 13 8"},
    IconDrawing{"CentreDown", "ink R 1.5 1.5 13 13 BLUE R 5 6 6 4 ink M 8 3 L 8 5 M 8 11 L 8 13"},
    IconDrawing{"ToFront", "ink R 1.5 1.5 8 8 R 6.5 6.5 8 8 AMBER R 4 4 8 8 ink R 4 4 8 8"},
    IconDrawing{"ToBack", "AMBER R 4 4 8 8 BLUE R 1.5 1.5 7 7 R 7.5 7.5 7 7 ink R 1.5 1.5 7 7 R 7.5 7.5 7 7"},
    IconDrawing{"TabOrder", "ink R 1.5 1.5 7 6 R 7.5 8.5 7 6 blue T 3 0 7 1 T 9 7 7 2"},
    IconDrawing{"Lock", "AMBER R 3 7 10 7.5 ink R 3 7 10 7.5 M 5 7 L 5 4 6.5 2 9.5 2 11 4 11 7"},
    IconDrawing{"Find", "blue E 6.5 6.5 4.5 4.5 ink M 10 10 L 14.5 14.5"},
    IconDrawing{"ZoomIn", "blue E 6.5 6.5 4.5 4.5 ink M 10 10 L 14.5 14.5 green M 4 6.5 L 9 6.5 M 6.5 4 L 6.5 9"},
    IconDrawing{"ZoomOut", "blue E 6.5 6.5 4.5 4.5 ink M 10 10 L 14.5 14.5 green M 4 6.5 L 9 6.5"},
    IconDrawing{"ZoomWindow",
                "blue E 6.5 6.5 4.5 4.5 ink M 10 10 L 14.5 14.5 green M 4.5 5 L 8.5 5 L 8.5 8 L 4.5 8 L 4.5 5"},
    IconDrawing{"ZoomReset", "blue E 6.5 6.5 4.5 4.5 ink M 10 10 L 14.5 14.5 green M 5 5.5 L 8 5.5 M 5 7.5 L 8 7.5"},
    IconDrawing{"FindNext", "blue E 6 6 4 4 ink M 9 9 L 11 11 green M 8 14 L 14 14 M 12 12 L 14 14 12 15.5"},
    IconDrawing{"FindPrevious", "blue E 6 6 4 4 ink M 9 9 L 11 11 green M 14 14 L 8 14 M 10 12 L 8 14 10 15.5"},
    IconDrawing{"Replace", "ink T 0 0 9 a T 8 6 9 b green M 3 10 L 3 13 7 13"},
    IconDrawing{"Indent", "ink M 7 3 L 14 3 M 7 8 L 14 8 M 7 13 L 14 13 blue M 1.5 8 L 5 8 M 3 6 L 5 8 3 10"},
    IconDrawing{"Outdent", "ink M 7 3 L 14 3 M 7 8 L 14 8 M 7 13 L 14 13 blue M 5 8 L 1.5 8 M 3.5 6 L 1.5 8 3.5 10"},
    IconDrawing{"Comment", "ink M 6 4 L 14 4 M 6 8 L 14 8 M 6 12 L 14 12 green M 3 2 L 2.5 6 M 3 9 L 2.5 13"},
    IconDrawing{"Uncomment", "ink M 6 4 L 14 4 M 6 8 L 14 8 M 6 12 L 14 12 red M 1.5 3 L 4.5 6 M 4.5 3 L 1.5 6"},
    IconDrawing{"Down", "ink M 3 3 L 13 3 blue M 8 6 L 8 14 M 4.5 10.5 L 8 14 11.5 10.5"},
    IconDrawing{"Up", "ink M 3 13 L 13 13 blue M 8 10 L 8 2 M 4.5 5.5 L 8 2 11.5 5.5"},
    IconDrawing{"GoTo", "ink M 9 3 L 14 3 M 9 8 L 14 8 M 9 13 L 14 13 green M 2 8 L 6.5 8 M 4.5 6 L 6.5 8 4.5 10"},
    IconDrawing{"Code", "ink M 5 4 L 1.5 8 5 12 M 11 4 L 14.5 8 11 12 blue M 9 3 L 7 13"},
    IconDrawing{"Form", "BLUE R 1.5 2.5 13 3 ink R 1.5 2.5 13 11 M 1.5 5.5 L 14.5 5.5 R 4 8 5 3"},
    IconDrawing{"Definition",
                "ink R 2 2 9 12 M 4 5 L 9 5 M 4 8 L 9 8 blue M 8 11 L 14.5 11 M 12 8.5 L 14.5 11 12 13.5"},
    IconDrawing{"Back", "blue M 14 8 L 2 8 M 6 4 L 2 8 6 12"},
    IconDrawing{"Explorer", "ink M 3 2 L 3 13 8 13 M 3 7.5 L 8 7.5 AMBER R 1 1 5 3 BLUE R 8 6 6 3 BLUE R 8 11.5 6 3"},
    IconDrawing{"Properties", "ink R 1.5 2 13 12 M 7 2 L 7 14 M 1.5 6 L 14.5 6 M 1.5 10 L 14.5 10 BLUE R 2 2.5 4.5 3"},
    IconDrawing{"Toolbox", "AMBER R 1.5 6 13 8 ink R 1.5 6 13 8 M 5.5 6 L 5.5 3 10.5 3 10.5 6 M 1.5 9.5 L 14.5 9.5"},
    IconDrawing{"Messages", "ink R 1.5 2.5 13 11 M 6 6 L 12.5 6 M 6 10 L 12.5 10 RED E 4 6 1 1 AMBER E 4 10 1 1"},
    IconDrawing{"Theme", "ink E 8 8 6 6 INK M 8 2 L 12 3.5 14 8 12 12.5 8 14 Z"},
    IconDrawing{"Module", "ink R 2.5 1.5 11 13 amber M 5.5 5.5 L 10.5 5.5 M 5.5 8.5 L 10.5 8.5 M 5.5 11.5 L 8.5 11.5"},
    IconDrawing{"Class", "GREEN M 8 1.5 L 14 4.5 8 7.5 2 4.5 Z "
                         "ink M 8 1.5 L 14 4.5 14 11.5 8 14.5 2 11.5 2 4.5 Z M 2 4.5 L 8 7.5 14 4.5 M 8 7.5 L 8 14.5"},
    IconDrawing{"AddFile",
                "ink M 2.5 1.5 L 8 1.5 11 4.5 11 8 M 2.5 1.5 L 2.5 14.5 7 14.5 green M 12 9 L 12 15 M 9 12 L 15 12"},
    IconDrawing{"StartUp", "ink M 3.5 1.5 L 3.5 14.5 GREEN M 3.5 2 L 13 5 3.5 8.5 Z"},
    IconDrawing{"Start", "GREEN M 3 1.5 L 14 8 3 14.5 Z"},
    IconDrawing{"Convert", "BLUE R 2.5 3 3 4 ink R 1.5 1.5 5 9 BLUE R 10.5 6.5 3 4 ink R 9.5 5 5 9 "
                           "green M 2.5 13.5 L 7 13.5 M 5 11.5 L 7 13.5 5 15.5"},
    IconDrawing{"Options",
                "ink M 1.5 4 L 14.5 4 M 1.5 8 L 14.5 8 M 1.5 12 L 14.5 12 BLUE E 5 4 1.8 1.8 BLUE E 11 8 1.8 1.8 "
                "BLUE E 6.5 12 1.8 1.8"},
    IconDrawing{"Help", "blue E 8 8 6.5 6.5 ink T 4.5 2 10 ?"},
    IconDrawing{"About", "blue E 8 8 6.5 6.5 INK E 8 4.5 0.6 0.6 ink M 8 7 L 8 12"},
    IconDrawing{"NextWindow", "ink R 1.5 2.5 9 7 blue M 5 13 L 13 13 M 10.5 10.5 L 13 13 10.5 15.5"},
    IconDrawing{"PreviousWindow", "ink R 5.5 2.5 9 7 blue M 11 13 L 3 13 M 5.5 10.5 L 3 13 5.5 15.5"},
    IconDrawing{"Close", "ink R 1.5 2.5 13 11 red M 5 5 L 11 11 M 11 5 L 5 11"},
    IconDrawing{"CloseAll", "ink R 1.5 1.5 9 9 R 5 5 9.5 9.5 red M 7.5 7.5 L 12 12 M 12 7.5 L 7.5 12"},
    IconDrawing{"Recent", "ink E 8 8 6.5 6.5 blue M 8 4 L 8 8 11 10"},
    // ---- projects and components, besides those of commands ----
    IconDrawing{"Project", "BLUE R 2 8.5 7 3 ink M 1.5 13.5 L 1.5 5.5 9.5 5.5 9.5 13.5 Z M 1.5 8.5 L 9.5 8.5 "
                           "M 4.5 5.5 L 4.5 2.5 14.5 2.5 14.5 10.5 9.5 10.5 GREEN R 5 3 9 1.5"},
    IconDrawing{"Folder", "AMBER M 1.5 13 L 1.5 3.5 6.5 3.5 8 5.5 14.5 5.5 14.5 13 Z "
                          "ink M 1.5 13.5 L 1.5 3.5 6.5 3.5 8 5.5 14.5 5.5 14.5 13.5 Z"},
    IconDrawing{"MDIForm", "BLUE R 1.5 1.5 13 3 ink R 1.5 1.5 13 13 M 1.5 4.5 L 14.5 4.5 R 3.5 6.5 5 4 R 7 9 5.5 4"},
    IconDrawing{"PropertyPage",
                "BLUE R 1.5 2.5 6 3 ink M 1.5 13.5 L 1.5 2.5 7.5 2.5 7.5 5.5 14.5 5.5 14.5 13.5 Z amber M 4 8 L 12 8 "
                "M 4 11 L 9 11"},
    IconDrawing{"UserDocument", "ink M 3.5 1.5 L 9.5 1.5 12.5 4.5 12.5 14.5 3.5 14.5 Z M 9.5 1.5 L 9.5 4.5 12.5 4.5 "
                                "amber M 8 7 L 10.5 9.5 8 12 5.5 9.5 Z"},
    IconDrawing{"Designer", "AMBER M 1.5 11 L 1.5 14.5 14.5 14.5 Z ink M 1.5 1.5 L 1.5 14.5 14.5 14.5 Z "
                            "M 4.5 8.5 L 4.5 11.5 7.5 11.5 Z"},
    // ---- controls ----
    IconDrawing{"Pointer", "INK M 4 1.5 L 4 12 6.5 9.8 8.5 14.5 10.5 13.5 8.5 9 12 9 Z"},
    IconDrawing{"Label", "ink T 2.5 0 13 A"},
    IconDrawing{"TextBox", "ink R 1.5 3.5 13 9 T 3 2 9 a blue M 10 5 L 10 11"},
    IconDrawing{"CommandButton", "BLUE R 1.5 4.5 13 7 ink R 1.5 4.5 13 7 M 5 8 L 11 8"},
    IconDrawing{"CheckBox", "ink R 2.5 2.5 11 11 green M 5 8 L 7.5 10.5 11.5 5"},
    IconDrawing{"OptionButton", "ink E 8 8 6 6 BLUE E 8 8 2.6 2.6"},
    IconDrawing{"Frame", "ink M 5 4 L 2 4 2 14 14 14 14 4 11 4 blue T 5 0 7 x"},
    IconDrawing{"ListBox", "ink R 2.5 1.5 11 13 BLUE R 3.5 4.5 9 3 ink M 5 11 L 11 11"},
    IconDrawing{"ComboBox", "ink R 1.5 4.5 13 7 M 10 4.5 L 10 11.5 BLUE M 11 7 L 14 7 12.5 9.5 Z"},
    IconDrawing{"PictureBox", "BLUE R 2 2.5 12 6 GREEN M 2 13 L 6 7 9 10.5 11 8.5 14 13 Z ink R 1.5 2.5 13 11"},
    IconDrawing{"Image", "amber E 11 5.5 1.5 1.5 green M 2 13 L 6 7 9 10.5 11 8.5 14 13 ink R 1.5 2.5 13 11"},
    IconDrawing{"Shape", "AMBER E 10 10 4.5 4.5 ink E 10 10 4.5 4.5 R 1.5 1.5 8 8"},
    IconDrawing{"Line", "ink M 2 13 L 14 3"},
    IconDrawing{
        "HScrollBar",
        "ink R 1.5 5.5 13 5 BLUE M 2.5 8 L 4.5 6.5 4.5 9.5 Z BLUE M 13.5 8 L 11.5 6.5 11.5 9.5 Z ink R 6.5 5.5 3 5"},
    IconDrawing{
        "VScrollBar",
        "ink R 5.5 1.5 5 13 BLUE M 8 2.5 L 6.5 4.5 9.5 4.5 Z BLUE M 8 13.5 L 6.5 11.5 9.5 11.5 Z ink R 5.5 6.5 5 3"},
    IconDrawing{"Timer", "ink E 8 9 5.5 5.5 M 6 1.5 L 10 1.5 M 8 1.5 L 8 3.5 blue M 8 6 L 8 9 10.5 10.5"},
    IconDrawing{"Alarm", "AMBER M 3.5 11.5 L 5 9.5 5 5.5 8 2.5 11 5.5 11 9.5 12.5 11.5 Z ink M 3 12 L 5 9.5 5 5.5 8 "
                         "2.5 11 5.5 11 9.5 13 12 Z M 7 14.5 L 9 14.5"},
    IconDrawing{"Database",
                "AMBER R 3 4 10 9 ink E 8 4 5 2 M 3 4 L 3 12 5 13.5 11 13.5 13 12 13 4 M 3 8 L 5 9.5 11 9.5 13 8"},
    IconDrawing{"FileStore",
                "AMBER R 1.5 5 13 8 ink M 1.5 13.5 L 1.5 3.5 6 3.5 7.5 5.5 14.5 5.5 14.5 13.5 Z blue R 5 8 6 3"},
    IconDrawing{"Grid", "BLUE R 1.5 2.5 13 3.5 ink R 1.5 2.5 13 11 M 1.5 6 L 14.5 6 M 1.5 9.5 L 14.5 9.5 M 6 2.5 L 6 "
                        "13.5 M 10 2.5 L 10 13.5"},
    IconDrawing{"Infrared", "RED E 3 8 2 2 ink M 7 5 L 8.5 8 7 11 M 10 3.5 L 12 8 10 12.5 M 13 2 L 15 8 13 14"},
    IconDrawing{"Ink", "blue M 2 14 L 4 9 12 1.5 14.5 4 7 12 Z ink M 4 9 L 7 12"},
    IconDrawing{"Menu", "BLUE R 1.5 1.5 13 3 ink R 1.5 1.5 13 3 R 1.5 4.5 8 10 M 3.5 8 L 7.5 8 M 3.5 11 L 7.5 11"},
    IconDrawing{"Movie", "ink R 1.5 2.5 13 11 M 4 2.5 L 4 13.5 M 12 2.5 L 12 13.5 GREEN M 6.5 5.5 L 10.5 8 6.5 10.5 Z"},
    IconDrawing{"Network", "blue E 8 8 6.5 6.5 ink E 8 8 3 6.5 M 1.5 8 L 14.5 8"},
    IconDrawing{"Serial", "ink M 2 4.5 L 14 4.5 12 11.5 4 11.5 Z BLUE E 5.5 7 0.7 0.7 BLUE E 8 7 0.7 0.7 BLUE E 10.5 7 "
                          "0.7 0.7 ink M 8 11.5 L 8 15"},
    IconDrawing{
        "Sound",
        "ink M 2 6 L 4.5 6 8 2.5 8 13.5 4.5 10 2 10 Z blue M 10.5 5.5 L 12 8 10.5 10.5 M 12.5 3.5 L 14.5 8 12.5 12.5"},
    IconDrawing{"TabStrip",
                "BLUE R 1.5 2.5 5 4 ink M 1.5 13.5 L 1.5 2.5 6.5 2.5 6.5 6 14.5 6 14.5 13.5 Z M 6.5 3.5 L 11 3.5 11 6"},
    IconDrawing{"DriveListBox", "ink R 1.5 5.5 13 6 GREEN E 12 8.5 1 1 ink M 4 8.5 L 8 8.5"},
    IconDrawing{
        "DirListBox",
        "AMBER R 2 4 8 5 ink M 1.5 9.5 L 1.5 3 5 3 6 4.5 10.5 4.5 10.5 9.5 Z M 6 9.5 L 6 13 9 13 R 9.5 11.5 5 3"},
    IconDrawing{"FileListBox", "ink R 1.5 1.5 8 10 R 5 4.5 9 10 blue M 7 8 L 12 8 M 7 11 L 12 11"},
    IconDrawing{"Data", "ink R 0.5 5.5 15 5 BLUE M 2 8 L 5 6.5 5 9.5 Z BLUE M 14 8 L 11 6.5 11 9.5 Z"},
    IconDrawing{"ListView", "BLUE R 1.5 1.5 13 3 ink R 1.5 1.5 13 13 M 8 1.5 L 8 14.5 M 3.5 7.5 L 6 7.5 M 3.5 11 L 6 "
                            "11 M 10 7.5 L 12.5 7.5"},
    IconDrawing{"TreeView",
                "ink R 1.5 1.5 4 4 M 3.5 5.5 L 3.5 13 8 13 M 3.5 8.5 L 8 8.5 blue R 8 6.5 6 3.5 R 8 11.5 6 3.5"},
    IconDrawing{"Toolbar", "ink R 0.5 4.5 15 7 BLUE R 2.5 6.5 3 3 GREEN R 7 6.5 3 3 AMBER R 11.5 6.5 2.5 3"},
    IconDrawing{"StatusBar", "ink R 1.5 2.5 13 11 BLUE R 2 10 12 3 ink M 1.5 10 L 14.5 10 M 9 10 L 9 13.5"},
    IconDrawing{"ProgressBar", "ink R 0.5 5.5 15 5 GREEN R 1 6 8.5 4"},
    IconDrawing{"Slider", "ink M 1.5 8 L 14.5 8 M 3 11.5 L 3 13 M 8 11.5 L 8 13 M 13 11.5 L 13 13 BLUE R 8.5 4.5 3 7"},
    IconDrawing{"ImageList", "ink R 1.5 1.5 9 9 R 3.5 3.5 9 9 BLUE R 5.5 5.5 9 9 ink R 5.5 5.5 9 9"},
    IconDrawing{"DTPicker", "RED R 1.5 2.5 13 3 ink R 1.5 2.5 13 12 M 1.5 5.5 L 14.5 5.5 T 3.5 5 9 7"},
    IconDrawing{"UpDown", "ink R 4.5 1.5 7 13 M 4.5 8 L 11.5 8 BLUE M 8 3.5 L 10 6 6 6 Z BLUE M 8 12.5 L 10 10 6 10 Z"},
    IconDrawing{"MaskEdBox", "ink R 0.5 4.5 15 7 blue T 1.5 2 9 # T 8 2 9 #"},
    IconDrawing{"RichTextBox", "ink R 1.5 1.5 13 13 red T 3 0 9 a blue M 9 5 L 13 5 M 3.5 9 L 12.5 9 M 3.5 12 L 10 12"},
    IconDrawing{"CommonDialog", "BLUE R 1.5 2.5 13 3 ink R 1.5 2.5 13 11 R 9 10 4 2"},
    IconDrawing{"UserControl", "ink R 2.5 2.5 11 11 amber M 8 5 L 11 8 8 11 5 8 Z"},
    IconDrawing{"Control", "ink R 1.5 3.5 13 9 amber E 8 8 2 2"},
};

} // namespace workbench
