#pragma once
// The drawings, in strokes as in Apps/workbench/base/icon_table.h. Letters would depend on the machine's fonts.
#include <string_view>

/// A picture's number, by which the add-in loads it, its subject and a badge in the lower right corner with the action.
struct CommandDrawing {
    int number;
    std::string_view subject, badge = {};
};

inline constexpr std::string_view
    kSheet = "ink M 7.5 14.5 L 3.5 14.5 3.5 1.5 9.5 1.5 12.5 4.5 12.5 8 M 9.5 1.5 L 9.5 4.5 12.5 4.5",
    kCylinder = "AMBER R 1.5 3.5 8 7 AMBER E 5.5 11 4 1.5 ink M 1.5 3.5 L 1.5 11 3 12.3 6 12.5 M 9.5 3.5 L 9.5 8 "
                "M 1.5 7 L 3 8.3 8 8.3 9.5 7 AMBER E 5.5 3.5 4 2 ink E 5.5 3.5 4 2",
    kLetter = "ink M 1.5 11.5 L 5.5 1.5 9.5 11.5 M 3 8 L 8 8",
    kPicture = "GREEN M 2 8.5 L 5 5 7.5 7 9.5 5.5 13 8.5 Z AMBER E 10.5 3.5 1.1 1.1 ink R 1.5 1.5 12 7",
    kFilm = "BLUE R 5.5 3.5 4 3 ink R 1.5 1.5 12 7 M 4 1.5 L 4 8.5 M 11 1.5 L 11 8.5 M 1.5 5 L 4 5 M 11 5 L 13.5 5",
    kInto = "green M 8 12.5 L 15 12.5 M 12.5 10 L 15 12.5 12.5 15",
    kSeen = "blue M 7.5 12.5 L 9.5 10.5 13 10.5 15 12.5 13 14.5 9.5 14.5 Z BLUE E 11.3 12.5 1.2 1.2";

inline constexpr CommandDrawing kCommandDrawings[] = {
    {101, "RED E 8 8 6.5 6.5 paper M 5.5 5.5 L 10.5 10.5 M 10.5 5.5 L 5.5 10.5"},
    {102, "AMBER M 8 1.5 L 15 14.5 1 14.5 Z paper M 8 6 L 8 10 PAPER E 8 12.3 0.8 0.8"},
    {108, "ink M 3.5 2 L 3.5 14 M 8 2 L 8 14 M 12.5 2 L 12.5 14 GREEN R 1.5 8.5 4 3 ink R 1.5 8.5 4 3 "
          "BLUE R 6 3.5 4 3 ink R 6 3.5 4 3 AMBER R 10.5 9.5 4 3 ink R 10.5 9.5 4 3"},
    {109, kSheet, "green M 8.5 12 L 10.8 14.5 15 9.5"},
    {110, "ink R 7.5 1.5 7 13 BLUE R 9 3.5 4 6 ink M 10 12 L 12 12 amber M 1 8 L 6 8 M 3.5 5.5 L 6 8 3.5 10.5"},
    {111, "BLUE R 2.5 1.5 11 13 ink R 2.5 1.5 11 13 paper M 4.5 2 L 4.5 14 M 7 6 L 7 4.5 8 3.5 10 3.5 11 4.5 11 6 "
          "9 7.5 9 9 PAPER E 9 11.3 0.9 0.9"},
    {112, "amber R 4.5 5 4 3 blue E 6.5 6.5 5 5 ink M 10.3 10.3 L 14.5 14.5"},
    {113, kCylinder, kInto},
    {114, kLetter, kInto},
    {115, kLetter, kSeen},
    {116, kPicture, kInto},
    {117, kPicture, kSeen},
    {118, kFilm, kInto},
    {119, kFilm, kSeen},
    {120, "green M 13.5 6.5 L 12.3 4.5 10.3 3 8 2.5 5.7 3 3.7 4.5 2.7 6 M 13.5 2.5 L 13.5 6.5 9.5 6.5 "
          "blue M 2.5 9.5 L 3.7 11.5 5.7 13 8 13.5 10.3 13 12.3 11.5 13.3 10 M 2.5 13.5 L 2.5 9.5 6.5 9.5"},
    {121, kCylinder, kSeen},
    {122, "AMBER M 2 13 L 4 8 8 8 8 13 Z ink M 1.5 13.5 L 1.5 3.5 6 3.5 7.5 5.5 13 5.5 13 7.5 M 1.5 13.5 L 4 7.5 8 7.5 "
          "M 1.5 13.5 L 8 13.5 "
          "BLUE R 10 9.5 4 4 ink R 9.5 7.5 5 8"},
    {123, kSheet, "GREEN M 9 9.5 L 15 12.5 9 15.5 Z"},
    {124, "AMBER M 1.5 13 L 1.5 3.5 6.5 3.5 8 5.5 14.5 5.5 14.5 13 Z "
          "ink M 1.5 13.5 L 1.5 3.5 6.5 3.5 8 5.5 14.5 5.5 14.5 13.5 Z M 1.5 7.5 L 14.5 7.5"},
};
