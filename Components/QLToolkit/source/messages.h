#pragma once
// All messages of the compiler in one table. Numbers are stable, texts may be improved.
// To add a message: a name and number here, a row in message_table.cpp, and a test that triggers it.
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace qltoolkit {

enum class Severity : std::uint8_t { Warning, Error };

/// Numbers by subject. 1000: files, 1100: characters, 1200: conditional compilation, 1300: declarations,
/// 1500: statements, 1800: expressions, 1900: whole projects, 2000: names, 2100: types and values, 2200: arguments,
/// 2300: properties, 2400: jumps, 2500: classes, 2600: arrays, 2800: forms and devices, 2900: doubtful code. 2700:
/// code. Numbers from 2999 do not belong to the compiler.
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

    VariableNotDefined = 2000,
    ProcedureNotDefined = 2001,
    MemberNotFound = 2002,
    TypeNotDefined = 2003,
    AmbiguousName = 2004,
    DuplicateDeclaration = 2005,
    LabelNotDefined = 2006,
    DuplicateLabel = 2007,
    ExpectedNotModule = 2008,
    InvalidMe = 2009,
    UnqualifiedReference = 2010,
    ExpectedTypeNotProject = 2011,
    VariableRequired = 2012,
    ExpectedProcedure = 2013,

    TypeMismatch = 2100,
    ByRefMismatch = 2101,
    ConstantRequired = 2102,
    ConstantOverflow = 2103,
    ConstantDivisionByZero = 2104,
    ObjectRequired = 2105,
    ExpectedArray = 2106,
    AssignToArray = 2107,
    AssignToConstant = 2108,
    ExpectedFunction = 2109,
    InvalidUseOfProperty = 2110,
    InvalidUseOfObject = 2111,
    InvalidQualifier = 2112,
    RecordToVariant = 2113,
    ForEachVariable = 2114,
    ForVariableInUse = 2115,
    ForEachRecords = 2116,
    CallResultNotAssignable = 2117,
    TypeCharacterMismatch = 2118,
    ForEachOperand = 2119,

    ArgumentMissing = 2200,
    ArgumentCount = 2201,
    NamedArgumentUnknown = 2202,
    NamedArgumentTwice = 2203,
    DimensionCount = 2204,
    InvalidAddressOf = 2205,
    NamedWithParamArray = 2206,

    PropertyInconsistent = 2300,
    ReadOnlyProperty = 2301,
    WriteOnlyProperty = 2302,

    ExitDoOutside = 2400,
    ExitForOutside = 2401,
    ExitWrongProcedure = 2402,

    InterfaceMemberMissing = 2500,
    EventNotFound = 2501,
    HandlerMismatch = 2502,
    NoEvents = 2503,
    CircularReference = 2504,
    BadInterface = 2505,
    PrivateTypeExposed = 2506,
    InvalidNew = 2507,
    PublicMemberNotAllowed = 2508,

    AlreadyDimensioned = 2600,
    EmptyRange = 2602,
    TooManyDimensions = 2603,
    StaticDataTooLarge = 2604,

    ProcedureTooLarge = 2700,

    ControlClassUnknown = 2800,
    PropertyUnknown = 2801,
    HandlerOfUnknownEvent = 2802,
    NotOnDevices = 2803,
    FormTooLarge = 2804,

    ImplicitVariable = 2900,
    UnusedVariable = 2901,
    ResultNeverSet = 2902,
    OnlyLastTyped = 2903,
    ArgumentInParentheses = 2904,
    UnknownLibraryName = 2905,
    Unreachable = 2906,
    ProductOverflows = 2907,
    ComparisonWithNull = 2908,
    ConstantFails = 2909,
    IgnoredIsNoWarning = 2910,
    NothingIgnored = 2911,
};

/// One row of the table. A text has at most one placeholder in braces, such as "{found}".
struct MessageInfo {
    Message message;
    Severity severity;
    std::string_view text;
    std::string_view meaning;
    std::string_view example;
    std::string_view remedy;
    /// A warning that is reported only on request.
    bool isOptional = false;
};

/// Returns all rows by ascending number.
[[nodiscard]] std::span<const MessageInfo> allMessages();
[[nodiscard]] const MessageInfo& messageInfo(Message);
/// Returns the text with its placeholder replaced by `detail`.
[[nodiscard]] std::string messageText(Message, std::string_view detail);

} // namespace qltoolkit
