#pragma once
// All messages of the compiler in one table. Numbers are stable, texts may be improved.
// To add a message: a name and number here, a row in messages.cpp, and a test that triggers it.
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace qltoolkit {

enum class Severity : std::uint8_t { Warning, Error };

/// Numbers by subject. 1000: files, 1100: characters, 1200: conditional compilation, 1300: declarations,
/// 1500: statements, 1800: expressions, 1900: whole projects. 2000 to 2998 are reserved for names, types and code
/// generation. Numbers from 2999 do not belong to the compiler.
enum class Message : std::uint16_t {
    FileMissing = 1000,
    FileUnreadable = 1001,
    FileIsFolder = 1002,
    FileTooLarge = 1003,
    FileBinary = 1004,
    FileNotVb = 1005,
    FileKindUnknown = 1006,
    HeaderUnclosed = 1007,
    HeaderMissing = 1008,
    TooManyErrors = 1009,
    HeaderTooDeep = 1010,

    InvalidCharacter = 1100,
    StringUnclosed = 1101,
    BracketUnclosed = 1102,
    TooManyContinuations = 1103,
    NumberTooLarge = 1104,
    DateInvalid = 1105,
    NameTooLong = 1106,

    ConditionWithoutIf = 1200,
    IfDirectiveUnclosed = 1201,
    DirectiveUnknown = 1202,
    ConditionInvalid = 1203,
    ConditionAfterElse = 1204,
    DirectiveThenMissing = 1205,

    NameExpected = 1300,
    NameReserved = 1301,
    TypeExpected = 1302,
    AsExpected = 1303,
    DeclarationExpected = 1304,
    OutsideProcedure = 1305,
    InsideProcedure = 1306,
    OptionUnknown = 1307,
    OptionBaseInvalid = 1308,
    DefTypeRange = 1309,
    DeclareLibExpected = 1310,
    StringExpected = 1311,
    ConstantValueExpected = 1312,
    EndTypeMissing = 1313,
    EndEnumMissing = 1314,
    EndProcedureMissing = 1315,
    EndWithoutProcedure = 1317,
    PropertyKindExpected = 1318,
    ParameterAfterParamArray = 1319,
    ParameterNotOptional = 1320,
    ParamArrayNotArray = 1321,
    ParamArrayQualified = 1322,
    DefaultWithoutOptional = 1323,
    AnyOutsideDeclare = 1324,
    WithEventsArray = 1325,
    NewNotAllowed = 1326,
    FixedLengthNotString = 1327,
    SuffixAndType = 1328,
    TypeMembersMissing = 1329,
    AttributeInvalid = 1330,
    OrdinalAliasInvalid = 1331,
    EventParameter = 1332,
    EndProcedureOther = 1333,

    StatementExpected = 1500,
    EndOfStatementExpected = 1501,
    ThenExpected = 1502,
    IfUnclosed = 1503,
    EndIfWithoutIf = 1504,
    ElseWithoutIf = 1505,
    ElseAfterElse = 1506,
    SelectUnclosed = 1507,
    EndSelectWithoutSelect = 1508,
    CaseWithoutSelect = 1509,
    CaseExpected = 1510,
    CaseAfterElse = 1511,
    ForUnclosed = 1512,
    NextWithoutFor = 1513,
    NextWrongVariable = 1514,
    DoUnclosed = 1515,
    LoopWithoutDo = 1516,
    LoopTwoConditions = 1517,
    WhileUnclosed = 1518,
    WendWithoutWhile = 1519,
    WithUnclosed = 1520,
    EndWithWithoutWith = 1521,
    EqualsExpected = 1522,
    ToExpected = 1523,
    InExpected = 1524,
    LabelExpected = 1525,
    GoToExpected = 1526,
    ExitKindExpected = 1527,
    CaseWordExpected = 1528,
    BlocksTooDeep = 1529,
    FileModeExpected = 1530,
    ForModeUnknown = 1531,
    FileNumberExpected = 1532,
    CommaExpected = 1533,
    ReDimTarget = 1534,
    CallParentheses = 1535,
    NotAssignable = 1536,
    MidArguments = 1537,
    LoopConditionExpected = 1538,
    CallTargetExpected = 1539,

    ExpressionExpected = 1800,
    ParenthesisExpected = 1801,
    MemberNameExpected = 1802,
    IsExpected = 1803,
    ExpressionTooDeep = 1804,
    PositionalAfterNamed = 1805,
    CoordinatesExpected = 1806,

    ModuleNameTwice = 1900,
    StartupMissing = 1901,
    LibraryMissing = 1902,
    ImageNotWritten = 1903,
};

/// One row of the table. A text has at most one placeholder in braces, such as "{found}".
struct MessageInfo {
    Message message;
    Severity severity;
    std::string_view text;
    std::string_view meaning;
    std::string_view example;
    std::string_view remedy;
};

/// Returns all rows by ascending number.
[[nodiscard]] std::span<const MessageInfo> allMessages();
[[nodiscard]] const MessageInfo& messageInfo(Message);
/// Returns the text with its placeholder replaced by `detail`.
[[nodiscard]] std::string messageText(Message, std::string_view detail);

} // namespace qltoolkit
