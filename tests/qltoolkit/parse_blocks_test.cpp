#include "tests/qltoolkit/ast_dump.h"
#include <gtest/gtest.h>

using qltoolkit::dump::Pair;
using qltoolkit::dump::Parsed;
using qltoolkit::dump::statements;

namespace {

void expectBlocks(std::initializer_list<Pair> pairs) {
    for (const auto& [source, dump] : pairs) EXPECT_EQ(statements(source), dump) << source;
}

} // namespace

TEST(ParseBlocks, BlockIf) {
    expectBlocks(
        {{"If a Then\nx = 1\nEnd If", "(if a {(let x 1)})"},
         {"If a Then ' why\nx = 1\nElse\ny = 2\nEnd If", "(if a {(let x 1)} else {(let y 2)})"},
         {"If a Then\nElseIf b Then\nx = 1\nElseIf c Then\nElse\nEnd If", "(if a {} b {(let x 1)} c {} else {})"},
         {"If a Then\nElseIf b Then x = 1\nElse: y = 2\nEnd If", "(if a {} b {(let x 1)} else {(let y 2)})"},
         {"If a Then\nx = 1\nEndIf", "(if a {(let x 1)})"},
         {"If a Then\nIf b Then\nx = 1\nEnd If\nEnd If", "(if a {(if b {(let x 1)})})"},
         {"If a _\n And b Then\nEnd If", "(if (and a b) {})"}});
}

TEST(ParseBlocks, SingleLineIf) {
    expectBlocks(
        {{"If a Then x = 1", "(if1 a {(let x 1)})"},
         {"If a Then x = 1 Else y = 2", "(if1 a {(let x 1)} else {(let y 2)})"},
         {"If a Then x = 1: y = 2 Else z = 3: w = 4", "(if1 a {(let x 1) (let y 2)} else {(let z 3) (let w 4)})"},
         {"If a Then x = 1: Else y = 2", "(if1 a {(let x 1)} else {(let y 2)})"},
         {"If a Then: x = 1", "(if1 a {(let x 1)})"},
         {"If a Then Else y = 2", "(if1 a {} else {(let y 2)})"},
         {"If a Then x = 1 Else", "(if1 a {(let x 1)} else {})"},
         {"If a Then If b Then x = 1 Else y = 2", "(if1 a {(if1 b {(let x 1)} else {(let y 2)})})"},
         {"If a Then If b Then x Else y Else z", "(if1 a {(if1 b {(do x)} else {(do y)})} else {(do z)})"},
         {"If a Then 10 Else 20\n10 b\n20 c", "(if1 a {(goto 10)} else {(goto 20)}) (line 10) (do b) (line 20) (do c)"},
         {"If a GoTo 10\n10 b", "(if1 a {(goto 10)}) (line 10) (do b)"},
         {"If a Then Exit Sub Else f (x), y", "(if1 a {(exit-sub)} else {(do (call f (paren x) y))})"},
         {"If a Then Print x; Else Print y", "(if1 a {(print Print x;)} else {(print Print y)})"},
         {"If a Then Close Else Close #1", "(if1 a {(close)} else {(close 1)})"},
         {"If a Then For i = 1 To 3: x = i: Next Else y = 1", "(if1 a {(for i 1 3 {(let x i)})} else {(let y 1)})"},
         {"If a Then Do: x: Loop While b Else y", "(if1 a {(loop {(do x)} while b)} else {(do y)})"},
         {"If a Then With b: .c = 1: End With", "(if1 a {(with b {(let (. c) 1)})})"},
         {"If a Then f , 1 Else g", "(if1 a {(do (call f _ 1))} else {(do g)})"},
         {"If a Then Resume Else Return", "(if1 a {(resume 0)} else {(return)})"}});
}

TEST(ParseBlocks, SelectCase) {
    expectBlocks(
        {{"Select Case x\nCase 1\na\nCase 2, 3 To 5, Is > 7\nb\nCase Else\nc\nEnd Select",
          "(select x (case 1 {(do a)}) (case 2 3..5 >7 {(do b)}) (case else {(do c)}))"},
         {"Select Case x\n' nothing\n\nCase \"a\": b: c\nEnd Select", "(select x (case \"a\" {(do b) (do c)}))"},
         {"Select Case x\nCase Is = 1, Is <> 2, Is < 3, Is <= 4, Is >= 5\nEnd Select",
          "(select x (case 1 <>2 <3 <=4 >=5 {}))"},
         {"Select Case x\nEnd Select", "(select x)"},
         {"Select Case x\nDim y\nCase 1\nEnd Select", "(select x {(dim y)} (case 1 {}))"},
         {"Select Case True\nCase a And b\nEnd Select", "(select True (case (and a b) {}))"},
         {"Select Case x: Case 1: a: End Select", "(select x (case 1 {(do a)}))"}});
}

TEST(ParseBlocks, Loops) {
    expectBlocks({{"For i = 1 To 10\nx\nNext", "(for i 1 10 {(do x)})"},
                  {"For i% = a To b Step -2\nNext i%", "(for i% a b (neg 2) {})"},
                  {"For i = 1 To 2\nFor j = 3 To 4\nx\nNext j, i", "(for i 1 2 {(for j 3 4 {(do x)})})"},
                  {"For i = 1 To 2: For j = 1 To 2: For k = 1 To 2\nNext k, j\nNext i",
                   "(for i 1 2 {(for j 1 2 {(for k 1 2 {})})})"},
                  {"For Step = 1 To 2 Step Step\nNext", "(for Step 1 2 Step {})"},
                  {"For Each x In y.z\na\nNext x", "(each x (. y z) {(do a)})"},
                  {"Do\nx\nLoop", "(loop {(do x)})"},
                  {"Do While a\nx\nLoop", "(loop while a {(do x)})"},
                  {"Do Until a\nLoop", "(loop until a {})"},
                  {"Do\nx\nLoop While a", "(loop {(do x)} while a)"},
                  {"Do\nLoop Until a = b", "(loop {} until (= a b))"},
                  {"Do: x: Loop", "(loop {(do x)})"},
                  {"While a\nx\nWend", "(while a {(do x)})"},
                  {"10 For i = 1 To 2\n20 x\n30 Next", "(line 10) (for i 1 2 {(line 20) (do x) (line 30)})"},
                  {"With a.b(1)\n.c = 1\nWith .d\n.e = 2\nEnd With\nEnd With",
                   "(with (call (. a b) 1) {(let (. c) 1) (with (. d) {(let (. e) 2)})})"},
                  {"With New Thing\nEnd With", "(with (new Thing) {})"}});
}

// ---------------------------------------------------------------- invalid blocks

TEST(ParseBlocks, FirstLinesWithErrorsStillOpenTheirBlocks) {
    expectBlocks({{"If a = Then\nx = 1\nElse\ny = 2\nEnd If", "2:8 1800"},
                  {"If a\nx = 1\nEnd If", "2:5 1502"},
                  {"If a b Then\nx = 1\nEnd If", "2:6 1502"},
                  {"If (a Then x = 1", "2:7 1801"},
                  {"If a\nx = 1", "2:5 1502"},
                  {"For i = 1 Two 5\nx\nNext i", "2:11 1523"},
                  {"For i 1 To 5\nNext", "2:7 1522"},
                  {"For Each x On y\nNext", "2:12 1524"},
                  {"Do When a\nLoop", "2:4 1538"},
                  {"While\nWend", "2:6 1800"},
                  {"With\nEnd With", "2:5 1800"},
                  {"Select x\nCase 1\nEnd Select", "2:8 1528"},
                  {"Select Case\nCase 1\nEnd Select", "2:12 1800"},
                  {"Select Case x\nCase\nEnd Select", "3:5 1800"},
                  {"If a Then\nElseIf b\nx = 1\nEnd If", "3:9 1502"}});
}

TEST(ParseBlocks, UnclosedBlocksAreReportedOnceAtTheirBeginning) {
    expectBlocks({{"If a Then\nx = 1", "2:1 1503"},
                  {"For i = 1 To 2\nIf a Then\nNext", "3:1 1503"},
                  {"For i = 1 To 2\nWith a\nIf b Then\nNext", "4:1 1503"},
                  {"Do\nx", "2:1 1515"},
                  {"While a", "2:1 1518"},
                  {"With a", "2:1 1520"},
                  {"Select Case a\nCase 1", "2:1 1507"},
                  {"For i = 1 To 2", "2:1 1512"},
                  {"If a Then\nDo\nEnd If", "3:1 1515"},
                  {"Select Case a\nCase 1\nIf b Then\nCase 2\nEnd Select", "4:1 1503"}});
}

TEST(ParseBlocks, StrayEnds) {
    expectBlocks({{"End If", "2:1 1504"},
                  {"EndIf", "2:1 1504"},
                  {"Else", "2:1 1505"},
                  {"ElseIf a Then", "2:1 1505"},
                  {"End Select", "2:1 1508"},
                  {"Case 1", "2:1 1509"},
                  {"Next i", "2:1 1513"},
                  {"Loop", "2:1 1516"},
                  {"Wend", "2:1 1519"},
                  {"End With", "2:1 1521"},
                  {"If a Then x = 1\nEnd If", "3:1 1504"},
                  {"For i = 1 To 2\nNext i, j", "3:9 1513"},
                  {"For i = 1 To 2\nFor j = 1 To 2\nNext i\nNext j", "4:6 1514 5:6 1514"},
                  {"For i = 1 To 2\nNext 5", "3:6 1300"},
                  {"If a Then\nElse\nElse\nEnd If", "4:1 1506"},
                  {"If a Then\nElse\nElseIf b Then\nEnd If", "4:1 1506"},
                  {"Select Case x\nCase Else\nCase 1\nEnd Select", "4:1 1511"},
                  {"Select Case x\ny = 1\nCase 1\nEnd Select", "3:1 1510"},
                  {"Do While a\nLoop Until b", "3:6 1517"}});
}

TEST(ParseBlocks, ErrorsDoNotAffectOtherStatements) {
    expectBlocks({{"x = 1 +\ny = 2\nz = * 3\nw = 4", "2:8 1800 4:5 1800"},
                  {"x = \"open\ny = (1\nIf a Then\nz = )\nEnd If", "2:5 1101 3:7 1801 5:5 1800"},
                  {"x = 1 1 2 3 4", "2:7 1501"},
                  {"x = 5 ) ( \"a", "2:7 1501"},
                  {"5 = x: y = 1", "2:3 1500"},
                  {"x = \x93text\x94", "2:5 1100"},
                  {"x = ?", "2:5 1100"},
                  {"x = `", "2:5 1100"},
                  {"x = [a", "2:5 1102"}});
}
