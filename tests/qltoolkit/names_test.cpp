// How names are found and what types follow, beyond the messages themselves.
#include "tests/qltoolkit/checked_program.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using test::CheckedProgram;
using test::messagesOf;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Names, AreCheckedInTheFilesBesideAFaultyOne) {
    const auto messages = test::CheckedProgram{}
                              .add("Module1.bas", "Option Explicit\nPublic Function Half(ByVal n)\n  n = n +\n"
                                                  "  GoTo Nowhere\nEnd Function\n")
                              .add("Customer.cls", "Public Name As String = 1\n")
                              .add("Module2.bas", "Option Explicit\nSub Go(c As Customer)\n  Dim n As Long\n"
                                                  "  n = Half(n) + c.Name\n  GoTo Nowhere\nEnd Sub\n")
                              .messages();
    ASSERT_EQ(messages.size(), 3u);
    EXPECT_TRUE(messages[0].starts_with("Module1.bas:3:")) << messages[0];
    EXPECT_TRUE(messages[1].starts_with("Customer.cls:1:")) << messages[1];
    EXPECT_EQ(messages[2], "Module2.bas:5:8 2006");
}

TEST(Names, AVariableHasOneNameWithAndWithoutItsTypeCharacter) {
    EXPECT_THAT(messagesOf("Option Explicit\nSub A()\nDim s$, n%\ns = \"\": s$ = s\nn% = n\nEnd Sub"), IsEmpty());
}

TEST(Names, DefTypeGivesTypesByFirstLetters) {
    EXPECT_THAT(
        messagesOf("DefObj O\nDefLng A-C\nSub A()\nDim bean, other\nSet bean = Nothing\nSet other = Nothing\nEnd Sub"),
        ElementsAre("5:5 2105"));
}

TEST(Names, TheNearestDeclarationCounts) {
    // the parameter, the module's own name, the public name of another module, the library
    EXPECT_THAT(CheckedProgram{}
                    .add("M1.bas", "Public Len As Object\nPublic Mid As Object\n")
                    .add("M2.bas", "Private Mid As Long\nSub A(Left As Object)\nSet Left = Nothing\nSet Len = Nothing\n"
                                   "Set Mid = Nothing\nRight \"a\", 1\nEnd Sub\n")
                    .messages(),
                ElementsAre("M2.bas:5:5 2105"));
}

TEST(Names, AFormHasTheNamesOfItsControlsAndOfItsClass) {
    CheckedProgram program;
    program.controls = "   Begin VB.TextBox Text1 \n   End\n   Begin VB.Label Lines \n      Index = 0\n   End\n";
    program.add("Form1.frm", "Option Explicit\nSub A()\nCaption = Text1\nText1.Text = Caption\nMe.Text1 = \"a\"\n"
                             "Lines(0).Caption = \"\"\nLines(0) = Lines.Count\nHide\nText1.Gone = 1\nEnd Sub\n");
    program.add("M1.bas", "Sub B()\nForm1.Text1 = \"\"\nForm1.Show\nDim f As New Form1\nf.Gone\nEnd Sub\n");
    EXPECT_THAT(program.messages(), ElementsAre("Form1.frm:9:7 2002", "M1.bas:5:3 2002"));
}

TEST(Names, FunctionsAreFoundThroughPropertiesOfAForm) {
    EXPECT_THAT(
        CheckedProgram{}.add("Form1.frm", "Sub A()\nCaption = Left(Caption, 1)\nLeft = Left + 1\nEnd Sub\n").messages(),
        IsEmpty());
}

TEST(Names, AFunctionsNameIsItsResultAndCallsIt) {
    EXPECT_THAT(messagesOf("Function F(n As Long) As Long\nF = F + F(n - 1)\nF = F()\nEnd Function\n"
                           "Function G() As Long()\nReDim G(3)\nG(1) = 2\nEnd Function"),
                ElementsAre("3:5 2200"));
}

TEST(Names, MembersOfEnumerationsNeedNoQualifier) {
    EXPECT_THAT(
        CheckedProgram{}
            .add("Class1.cls", "Public Enum Shade\nLight = 1\nDark\nEnd Enum\nPrivate Enum Own\nHidden\nEnd Enum\n"
                               "Sub A()\nDim x\nx = Own.Hidden + Shade.Dark\nx = Shade.Gone\nEnd Sub\n")
            .add("M1.bas", "Option Explicit\nSub A()\nDim x As Shade\nx = Dark + Shade.Light\nx = Hidden\nEnd Sub\n")
            .messages(),
        ElementsAre("Class1.cls:11:11 2002", "M1.bas:5:5 2000"));
}

TEST(Names, LibrariesModulesAndTheProjectQualify) {
    EXPECT_THAT(
        messagesOf("Public Total\nSub A()\nTotal = VBA.Left(\"a\", 1) & VBA.Strings.Mid$(\"a\", 1)\n"
                   "Module1.Total = Project1.Module1.Total\nProject1.Total = VBA.vbCrLf & Strings.Gone\nEnd Sub"),
        ElementsAre("5:39 2002"));
}

TEST(Names, PrivateMembersAreNotReachedThroughAnObject) {
    EXPECT_THAT(
        CheckedProgram{}.add("Class1.cls", "Private x\nPublic y\nSub A()\nMe.y = x\nMe.x = y\nEnd Sub\n").messages(),
        ElementsAre("5:4 2002"));
}

TEST(Names, AVariableOfAClassIsCalledLikeAProperty) {
    EXPECT_THAT(CheckedProgram{}
                    .add("Picture1.cls", "Public Width As Long\nSub A()\nWidth = Width() + 1\nEnd Sub\n")
                    .add("M1.bas", "Type Box\nWidth As Long\nEnd Type\nSub B(p As Picture1, b As Box)\n"
                                   "b.Width = p.Width() - 1\nb.Width = b.Width() + p.Width(1)\nEnd Sub\n")
                    .messages(),
                ElementsAre("Picture1.cls:3:9 2106", "M1.bas:6:13 2106", "M1.bas:6:25 2106"));
}

TEST(Names, AFunctionIsNotAPropertyThatCannotBeMeant) {
    EXPECT_THAT(CheckedProgram{}
                    .add("Class1.cls", "Property Get Left() As Single\nEnd Property\nProperty Get Mid() As String\n"
                                       "End Property\nProperty Get Own() As Long\nEnd Property\nSub A(s As String)\n"
                                       "s = Left$(s, 1) & UCase$(s)\ns = Left(s, 1) & Left\ns = Mid$ & Mid$(s, 1)\n"
                                       "s = Own(1)\nEnd Sub\n")
                    .messages(),
                ElementsAre("11:5 2201"));
}

TEST(Names, ALibraryThatIsDescribedInPartMayHaveMoreConstants) {
    language::Library library = language::readLibrary("Library Part\nClass Thing open\n  Sub Work()\n");
    CheckedProgram program;
    program.options.libraries.push_back(&library);
    EXPECT_THAT(
        program.add("M1.bas", "Sub A()\nx = Part.kMore\nx = Part.Kind.kOne\nx = VBA.kMore\nEnd Sub\n").messages(),
        ElementsAre("4:9 2002"));
}

TEST(Names, SeveralModulesMayDeclareTheSameFunction) {
    const std::string declare = "Public Declare Function Far Lib \"x\" (ByVal a As Long) As Long\n";
    EXPECT_THAT(CheckedProgram{}
                    .add("M1.bas", declare + "Public Near\n")
                    .add("M2.bas", declare + "Public Near\n")
                    .add("M3.bas", "Sub A()\nNear = Far(1)\nNear = Far(1, 2)\nEnd Sub\n")
                    .messages(),
                ElementsAre("M3.bas:2:1 2004", "M3.bas:3:1 2004", "M3.bas:3:8 2201"));
}

TEST(Names, TheValueOfAnObjectIsPassedWhereAVariableCouldBe) {
    EXPECT_THAT(CheckedProgram{}
                    .add("Class1.cls", "Public Box As TextBox\nPublic Other As Class1\n"
                                       "Sub B(s As String)\nB Box\nB Other\nEnd Sub\n")
                    .messages(),
                ElementsAre("5:3 2101"));
}

TEST(Names, AnObjectOfAnOpenClassMayHaveADefaultMember) {
    language::Library library = language::readLibrary("Library Part\nClass Thing open\n  Sub Work()\n");
    CheckedProgram program;
    program.options.libraries.push_back(&library);
    EXPECT_THAT(program.add("M1.bas", "Public t As Thing\nSub B(d As Date)\nB t\nEnd Sub\n").messages(), IsEmpty());
}

TEST(Names, AFormsBorderMayBeChangedAtRunTime) {
    EXPECT_THAT(CheckedProgram{}.add("Form1.frm", "Sub A()\nMe.BorderStyle = 0\nMe.hDC = 0\nEnd Sub\n").messages(),
                ElementsAre("3:4 2301"));
}

TEST(Names, APropertyLetTakesNothing) {
    EXPECT_THAT(CheckedProgram{}
                    .add("Class1.cls", "Property Let Mark(ByVal c As Class1)\nEnd Property\n"
                                       "Property Get Mark() As Class1\nEnd Property\n"
                                       "Property Get Kept() As Class1\nEnd Property\nPublic Field As Class1\n")
                    .add("Form1.frm", "Sub A(c As Class1)\nMe.MouseIcon = Nothing\nc.Mark = Nothing\nc.Mark = c\n"
                                      "c.Mark = 5\nc.Field = Nothing\nEnd Sub\n")
                    .messages(),
                ElementsAre("Form1.frm:5:3 2110", "Form1.frm:6:11 2111"));
}

TEST(Names, ReDimDeclaresWhatTheProjectDoesNotHave) {
    EXPECT_THAT(
        messagesOf("Option Explicit\nSub A()\nReDim list(3) As Long\nlist(1) = 2\nReDim Asc(2)\nAsc(1) = 3\nEnd Sub"),
        IsEmpty());
}

TEST(Names, AVariableMayHaveTheNameOfItsClass) {
    EXPECT_THAT(CheckedProgram{}
                    .add("Info.cls", "Public Size As Long\n")
                    .add("M1.bas", "Public Info As New Info\n")
                    .add("M2.bas", "Sub A()\nInfo.Size = 1\nInfo.Gone = 2\nEnd Sub\n")
                    .messages(),
                ElementsAre("M2.bas:3:6 2002"));
}

TEST(Names, ANameIsReportedOnceInAProcedure) {
    EXPECT_THAT(messagesOf("Option Explicit\nSub A()\nx = 1\nx = x + 1\nEnd Sub\nSub B()\nx = 2\nEnd Sub"),
                ElementsAre("3:1 2000", "7:1 2000"));
}

TEST(Names, TheDrawingMethodsTakeTheirOwnWords) {
    EXPECT_THAT(CheckedProgram{}
                    .add("Form1.frm",
                         "Option Explicit\nSub A()\nLine (1, 2)-(3, 4), vbRed, BF\nCircle (1, 2), 3\nPSet (x, 1)\n"
                         "Print 1; Tab(5); \"a\"\nDebug.Print 1, 2\nEnd Sub\n")
                    .messages(),
                ElementsAre("5:7 2000"));
}

TEST(Names, DefaultMembersComeFromAttributes) {
    const std::string list = "Public Property Get Item(i As Long) As String\nEnd Property\n"
                             "Public Property Let Item(i As Long, v As String)\nEnd Property\n";
    const std::string user = "Sub A(c As List)\nc(1) = c(2) & c!a\nEnd Sub\n";
    EXPECT_THAT(
        CheckedProgram{}.add("List.cls", list + "Attribute Item.VB_UserMemId = 0\n").add("M1.bas", user).messages(),
        IsEmpty());
    EXPECT_THAT(CheckedProgram{}.add("List.cls", list).add("M1.bas", user).messages(),
                ElementsAre("M1.bas:2:1 2201", "M1.bas:2:8 2201"));
}

TEST(Names, ConstantsAreEvaluatedInAnyOrder) {
    EXPECT_THAT(messagesOf("Const a = b * 2\nConst b = c + 1\nPrivate Enum E\nx = a\ny\nEnd Enum\nConst c = 3\n"
                           "Dim list(a To y) As String * b\nDim wrong(y To a)"),
                ElementsAre("9:16 2602"));
}

TEST(Names, LongChainsNeedNoDeepStack) {
    std::string sum = "Const a = 1", members = "Sub A(o As Object)\no", enumeration = "Enum E\n";
    for (int i = 0; i < 20000; ++i) {
        sum += i % 20 == 19 ? " + _\n1" : " + 1";
        members += ".b";
        enumeration += "m" + std::to_string(i) + "\n";
    }
    EXPECT_THAT(messagesOf(members + "\nEnd Sub"), IsEmpty());
    EXPECT_THAT(messagesOf("Const last = m19999\n" + enumeration + "End Enum"), IsEmpty());
}

TEST(Names, MessagesDoNotDependOnTheNumberOfThreads) {
    const auto messages = [](unsigned threads) {
        CheckedProgram program;
        program.options.threads = threads;
        program.options.isIncomplete = true;
        for (int i = 0; i < 50; ++i)
            program.add("M" + std::to_string(i) + ".bas",
                        "Sub A()\nDim n As Long\nn = Missing" + std::to_string(i % 7) + "\nn.x = 1\nEnd Sub\n");
        return program.messages();
    };
    const auto one = messages(1);
    EXPECT_EQ(one.size(), 57U);
    for (const unsigned threads : {2U, 8U}) EXPECT_EQ(messages(threads), one);
}

TEST(Names, AFileWithTooManyErrorsIsLeft) {
    std::string code = "Option Explicit\n";
    for (int i = 0; i < 600; ++i) code += "Sub A" + std::to_string(i) + "()\nx = 1\nEnd Sub\n";
    const auto messages = messagesOf(code);
    EXPECT_EQ(messages.size(), 501U);
    EXPECT_TRUE(messages.back().ends_with(" 1009"));
}

TEST(Names, AFileReportsOnceThatItHasTooManyErrors) {
    CheckedProgram program;
    program.options.isIncomplete = true;
    std::string code = "Sub A()\nx = 1\ny = 2\nEnd Sub\n";
    for (int i = 0; i < 600; ++i) code += "Sub B" + std::to_string(i) + "()\nDim z\nDim z\nEnd Sub\n";
    const auto messages = program.add("Module1.bas", code).messages();
    EXPECT_EQ(std::count_if(messages.begin(), messages.end(), [](auto& each) { return each.ends_with(" 1009"); }), 1);
}

TEST(Names, CodeIsNotCheckedAgainstDeclarationsThatWereLeft) {
    std::string code;
    for (int i = 0; i < 600; ++i) code += "Dim v" + std::to_string(i) + " As Missing\n";
    const auto messages = CheckedProgram{}
                              .add("M1.bas", code + "Function F()\nEnd Function\nProperty Let P(x)\nEnd Property")
                              .add("M2.bas", "Sub A()\nDim x\nx = F\nP = 1\nx = Missing(1)\nEnd Sub")
                              .messages();
    EXPECT_EQ(messages.size(), 501U);
}

TEST(Names, ADefaultMemberOfItsOwnClassTakesNoArguments) {
    EXPECT_THAT(CheckedProgram{}
                    .add("Class1.cls", "Property Get Own() As Class1\nAttribute Own.VB_UserMemId = 0\nEnd Property\n")
                    .add("M1.bas", "Sub A(c As Class1)\nDim x\nx = c(1)\nc(2) = x\nEnd Sub")
                    .messages(),
                ElementsAre("M1.bas:3:5 2201", "M1.bas:4:1 2201"));
}

TEST(Names, RecordsMayBeNestedDeeply) {
    const auto nested = [](int depth, const std::string& last) {
        std::string code;
        for (int i = 0; i < depth; ++i)
            code += "Type T" + std::to_string(i) + "\na As T" + std::to_string(i + 1) + "\nb As T" +
                    std::to_string(i + 1) + "\nEnd Type\n";
        return code + "Type T" + std::to_string(depth) + "\nx As " + last + "\nEnd Type";
    };
    EXPECT_THAT(messagesOf(nested(100, "String * 0")), IsEmpty());
    EXPECT_THAT(messagesOf(nested(15, "Byte")), IsEmpty());
    EXPECT_THAT(messagesOf(nested(16, "Byte")), ElementsAre("1:1 2604"));
}

TEST(Names, OneRecordThatContainsItselfGivesOneMessage) {
    EXPECT_THAT(messagesOf("Type A\nb As B\nEnd Type\nType B\nb As B\nn As Long\nEnd Type"), ElementsAre("4:1 2504"));
    EXPECT_THAT(messagesOf("Type A\nb As B\nEnd Type\nType B\na(3) As A\nEnd Type\nType C\nc() As C\nEnd Type"),
                ElementsAre("1:1 2504", "4:1 2504"));
}

TEST(Names, AMemberOfAnEnumerationDoesNotFollowItself) {
    EXPECT_THAT(messagesOf("Enum E\na = b\nb\nEnd Enum"), ElementsAre("3:1 2504"));
    EXPECT_THAT(messagesOf("Enum E\na = d\nb\nc\nd = 5\nEnd Enum"), IsEmpty());
}

TEST(Names, AConstantHasItsTypeWhereItIsUsedBeforeItsDeclaration) {
    EXPECT_THAT(CheckedProgram{}
                    .add("M1.bas", "Const a As Byte = b * 200\nConst c As Byte = d * 100")
                    .add("M2.bas", "Public Const b As Integer = 1.2\nPublic Const d As Byte = 300")
                    .messages(),
                ElementsAre("M2.bas:2:26 2103"));
}

TEST(Names, AStringTakesAnArrayOfBytes) {
    EXPECT_THAT(
        messagesOf("Sub A(ByVal t As String)\nDim s As String, b() As Byte, n() As Integer\ns = b\nb = s\nA b\ns = n\n"
                   "End Sub"),
        ElementsAre("6:5 2100"));
}

TEST(Names, AnArrayOfControlsIsAnObject) {
    CheckedProgram program;
    program.controls = "   Begin VB.TextBox Lines \n      Index = 0\n   End\n";
    program.add(
        "Form1.frm",
        "Sub A(o As Object, v As Variant)\nSet o = Lines\nSet v = Lines\nA Lines, Lines\nB Lines\n"
        "Dim t As TextBox\nSet t = Lines\nIf o Is Lines Then Set o = Nothing\nEnd Sub\nSub B(t As TextBox)\nEnd Sub");
    EXPECT_THAT(program.messages(), ElementsAre("5:3 2100", "7:9 2105"));
}

TEST(Names, AParamArrayHoldsVariantsWhateverItsFirstLetter) {
    EXPECT_THAT(
        messagesOf("DefInt A-Z\nSub A(ParamArray p())\nEnd Sub\nSub B(s As String, v As Variant)\nA s, v\nEnd Sub"),
        IsEmpty());
}

TEST(Names, TheControlsOfAFormAreItsDefaultMember) {
    CheckedProgram program;
    program.controls = "   Begin VB.TextBox Text1 \n   End\n";
    program.add("Form1.frm",
                "Sub A(f As Form)\nMe(\"Text1\") = 1\nf(0).Text = Me!Text1\nMe!Text1 = f!Text1.Text\nEnd Sub");
    EXPECT_THAT(program.messages(), IsEmpty());
}

TEST(Names, FriendProceduresBelongToNoInterface) {
    EXPECT_THAT(
        CheckedProgram{}
            .add("Class1.cls", "Friend Sub Own()\nEnd Sub\nFriend Property Let P(x)\nEnd Property\nSub Go()\nEnd Sub")
            .add("Class2.cls", "Implements Class1\nPrivate Sub Class1_Go()\nEnd Sub")
            .messages(),
        IsEmpty());
}

TEST(Names, AMemberOfAnInterfaceIsImplementedAsItIsDeclared) {
    const auto messagesFor = [](const std::string& member, const std::string& own) {
        return CheckedProgram{}
            .add("IShape.cls", "Public " + member)
            .add("Class1.cls", "Implements IShape\n" + own)
            .messages();
    };
    const std::string get = "Property Get IShape_Size() As Long\nEnd Property\n";
    const std::string let = "Property Let IShape_Size(ByVal RHS As Long)\nEnd Property\n";
    EXPECT_THAT(messagesFor("Size As Long", get + let), IsEmpty());
    EXPECT_THAT(messagesFor("Size As Long", get), ElementsAre("Class1.cls:1:12 2500"));
    EXPECT_THAT(messagesFor("Size As Long", let), ElementsAre("Class1.cls:1:12 2500"));
    EXPECT_THAT(messagesFor("Size As Integer", get + let), ElementsAre("Class1.cls:2:14 2502", "Class1.cls:4:14 2502"));
    EXPECT_THAT(messagesFor("Size As Object", get + let), ElementsAre("Class1.cls:1:12 2500", "Class1.cls:2:14 2502"));
    EXPECT_THAT(messagesFor("Size As Long", get + "Property Let IShape_Size(RHS As Long)\nEnd Property\n"),
                ElementsAre("Class1.cls:4:14 2502"));
    EXPECT_THAT(messagesFor("Size As Long", "Function IShape_Size() As Long\nEnd Function\n"),
                ElementsAre("Class1.cls:2:10 2502"));
    EXPECT_THAT(messagesFor("Property Let Size(RHS As Long)\nEnd Property\n", let),
                ElementsAre("Class1.cls:2:14 2502"));
    EXPECT_THAT(messagesFor("Sub Go(ByVal x As Long)\nEnd Sub\n", "Sub IShape_Go(x As Long)\nEnd Sub\n"),
                ElementsAre("Class1.cls:2:5 2502"));
    EXPECT_THAT(messagesFor("Sub Go(x As IShape)\nEnd Sub\n", "Sub IShape_Go(x As Class1)\nEnd Sub\n"),
                ElementsAre("Class1.cls:2:5 2502"));
}

TEST(Names, TheLengthOfATextMayBeAConstantOfTheProcedure) {
    EXPECT_THAT(messagesOf("Sub A()\nConst Loc = 5\nDim s As String * Loc, n\nDim t As String * n\nReDim u(3) As "
                           "String * Loc\nEnd Sub"),
                ElementsAre("4:19 2102"));
}

TEST(Names, AVariableForAnyFormHasTheMembersOfEveryForm) {
    CheckedProgram program;
    program.add("Form1.frm",
                "Public Total As Long\nSub A(f As Form)\nf.Total = 1\nf.Caption = f.Name\nMe.Gone = 1\nEnd Sub");
    EXPECT_THAT(program.messages(), ElementsAre("5:4 2002"));
}

TEST(Names, ConstantsMayBeQualifiedWithTheProjectAndTheModule) {
    EXPECT_THAT(
        messagesOf("Public Enum E\nx = 1\nEnd Enum\nConst a = Project1.Module1.b, b = VBA.Constants.vbCr\n"
                   "Const c = Project1.Module1.E.x + Project1.E.x + Module1.E.x\nConst d = Project1.Module1.Gone.x"),
        ElementsAre("6:33 2102"));
}

TEST(Names, PicturesAreLoadedInTheSizesAndColoursOfTheLanguage) {
    EXPECT_THAT(
        messagesOf(
            "Option Explicit\nSub A(p As StdPicture)\nSet p = LoadPicture(\"a.ico\", vbLPCustom, vbLPColor, 32, 32)\n"
            "Set p = LoadPicture(\"a.ico\", vbLPLarge, vbLPDefault)\nEnd Sub"),
        IsEmpty());
}

TEST(Names, AClassMayReturnItsEnumeratorByItsInterface) {
    EXPECT_THAT(CheckedProgram{}
                    .add("Class1.cls", "Dim all As Collection\nFunction NewEnum() As IEnumVARIANT\n"
                                       "Set NewEnum = all.[_NewEnum]\nEnd Function\n"
                                       "Function Own() As stdole.IEnumVARIANT\nEnd Function\n")
                    .messages(),
                IsEmpty());
}

TEST(Names, ForEachGoesThroughWhatLateObjectsAndFormsList) {
    CheckedProgram program;
    program.add("Form1.frm", "Sub A(o As Object)\nDim v\nFor Each v In Me\nNext\nFor Each v In o\nNext\n"
                             "For Each v In Controls\nNext\nFor Each v In Form1\nNext\nEnd Sub\n");
    EXPECT_THAT(program.messages(), IsEmpty());
}

TEST(Names, AVariantIsPassedByReferenceToADeclare) {
    EXPECT_THAT(messagesOf("Private Declare Sub Swap Lib \"a\" (n As Long)\nSub A()\nDim v\nSwap v\nEnd Sub"),
                IsEmpty());
    EXPECT_THAT(messagesOf("Sub Swap(n As Long)\nEnd Sub\nSub A()\nDim v\nSwap v\nEnd Sub"), ElementsAre("5:6 2101"));
}

TEST(Names, LSetBetweenTypesTakesOnlyPlainBytes) {
    const std::string types =
        "Private Type Plain\nN As Integer: T As String * 2: A(3) As Byte\nEnd Type\n"
        "Private Type Outer\nInner As Plain\nEnd Type\nPrivate Type Text\nT As String\nEnd Type\n"
        "Private Type Dynamic\nInner As Plain: A() As Byte\nEnd Type\nPrivate Type Any1\nV As Variant\nEnd Type\n"
        "Sub A()\nDim p As Plain, o As Outer, t As Text, d As Dynamic, v As Any1, same As Text, s$\n";
    EXPECT_THAT(messagesOf(types + "LSet p = o\nLSet o = p\nLSet t = same\nEnd Sub"), IsEmpty());
    for (const std::string line : {"LSet p = t", "LSet d = p", "LSet v = o", "LSet p = s", "RSet p = o", "LSet s = p"})
        EXPECT_THAT(messagesOf(types + line + "\nEnd Sub"), ElementsAre("18:10 2100")) << line;
}

TEST(Names, AVariantThatAFunctionReturnsMayBeAnArray) {
    const std::string sum = "Sub Sum(n() As Long)\nEnd Sub\nFunction Both()\nEnd Function\n";
    EXPECT_THAT(messagesOf(sum + "Sub A()\nSum Both()\nEnd Sub"), IsEmpty());
    EXPECT_THAT(messagesOf(sum + "Sub A()\nDim v\nSum v\nEnd Sub"), ElementsAre("7:5 2100"));
}

TEST(Names, TheModulesOwnNameIsNotAmbiguous) {
    EXPECT_THAT(CheckedProgram{}
                    .add("M1.bas", "Public Rate\n")
                    .add("M2.bas", "Public Rate\nSub A()\nRate = 1\nEnd Sub\n")
                    .add("M3.bas", "Sub B()\nRate = 1\nEnd Sub\n")
                    .messages(),
                ElementsAre("M3.bas:2:1 2004"));
    const std::string rates = "Public Enum Rates\nLow\nEnd Enum\n";
    EXPECT_THAT(CheckedProgram{}
                    .add("M1.bas", "Public Enum Levels\nLow\nEnd Enum\n")
                    .add("M2.bas", rates + "Sub A()\nDebug.Print Low\nEnd Sub\n")
                    .messages(),
                IsEmpty());
}
