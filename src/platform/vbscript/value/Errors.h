// The numbers and Spanish texts of compile-time and run-time errors, and the exception by which native code raises one.
// A builtin calls raise(ErrorNumber::TypeMismatch); the machine turns it into the script's Err.
#pragma once

#include "platform/vbscript/value/String.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vbs {

enum class ErrorNumber : std::int32_t {
    None = 0,
    ReturnWithoutGosub = 3,
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    OutOfRange = 9,
    ArrayLocked = 10,
    DivisionByZero = 11,
    TypeMismatch = 13,
    OutOfStringSpace = 14,
    CannotContinue = 17,
    OutOfStack = 28,
    ProcedureNotDefined = 35,
    InternalError = 51,
    BadFileName = 52,
    FileNotFound = 53,
    ObjectNotSet = 91,
    ForNotInitialized = 92,
    InvalidNull = 94,
    ObjectRequired = 424,
    CannotCreateObject = 429,
    NoAutomation = 430,
    AutomationNameNotFound = 432,
    MemberNotFound = 438,
    ActionNotSupported = 445,
    NamedArguments = 446,
    LocaleNotSupported = 447,
    NamedArgumentNotFound = 448,
    ArgumentNotOptional = 449,
    WrongArgumentCount = 450,
    NotACollection = 451,
    InvalidOrdinal = 452,
    FunctionNotInDll = 453,
    KeyAlreadyExists = 457,
    VariableTypeNotSupported = 458,
    EventsNotSupported = 459,
    ServerNotAvailable = 462,
    VariableUndefined = 500,
    IllegalAssignment = 501,
    UnsafeObject = 502,
    UnsafeInitialization = 503,
    UnsafeCreation = 504,
    InvalidReference = 505,
    ClassUndefined = 506,
    ExceptionOccurred = 507,
    TimedOut = 32765,
    Stopped = 32766,
    ElementNotFound = 32811,
    // compile time; those from 1900 are this engine's own limits
    NestedTooDeep = 1901,
    TooManyArguments = 1902,
    TooManyNames = 1903,
    ProcedureTooLarge = 1904,
    OutOfMemoryCompiling = 1001,
    SyntaxError = 1002,
    ExpectedColon = 1003,
    ExpectedLeftParenthesis = 1005,
    ExpectedRightParenthesis = 1006,
    ExpectedRightBracket = 1007,
    ExpectedIdentifier = 1010,
    ExpectedEqual = 1011,
    ExpectedIf = 1012,
    ExpectedTo = 1013,
    ExpectedEnd = 1014,
    ExpectedFunction = 1015,
    ExpectedSub = 1016,
    ExpectedThen = 1017,
    ExpectedWend = 1018,
    ExpectedLoop = 1019,
    ExpectedNext = 1020,
    ExpectedCase = 1021,
    ExpectedSelect = 1022,
    ExpectedExpression = 1023,
    ExpectedStatement = 1024,
    ExpectedEndOfStatement = 1025,
    ExpectedInteger = 1026,
    ExpectedWhileOrUntil = 1027,
    ExpectedWhileUntilOrEnd = 1028,
    ExpectedWith = 1029,
    IdentifierTooLong = 1030,
    InvalidNumber = 1031,
    InvalidCharacter = 1032,
    UnterminatedString = 1033,
    UnterminatedComment = 1034,
    InvalidMe = 1037,
    LoopWithoutDo = 1038,
    InvalidExit = 1039,
    InvalidForVariable = 1040,
    NameRedefined = 1041,
    FirstOnLine = 1042,
    NonByvalArgument = 1043,
    ParenthesesInSub = 1044,
    ExpectedLiteral = 1045,
    ExpectedIn = 1046,
    ExpectedClass = 1047,
    DefinedInsideClass = 1048,
    ExpectedLetSetGet = 1049,
    ExpectedProperty = 1050,
    InconsistentArguments = 1051,
    MultipleDefaults = 1052,
    ClassEventArguments = 1053,
    PropertyArguments = 1054,
    UnexpectedNext = 1055,
    DefaultMustBePublic = 1057,
    DefaultOnlyOnGet = 1058,
    // regular expressions
    RegexSyntax = 5017,
    RegexQuantifier = 5018,
    RegexBracket = 5019,
    RegexParenthesis = 5020,
    RegexRange = 5021,
};

// Standard Spanish text of a number; the general text for numbers that have none.
String errorText(std::int32_t number);

// What Err.Source says of an error that the engine itself raises.
String errorSource(std::int32_t number);

// True for the numbers that have a text of their own.
bool hasErrorText(std::int32_t number) noexcept;

// What native code throws to raise an error in the script. Empty texts mean: the standard ones of the number.
struct ScriptError {
    std::int32_t number = 0;
    String description;
    String source;
    String helpFile;
    std::int32_t helpContext = 0;
    std::uint32_t line = 0; // of the statement that failed, from 1; 0 while it is not known
    std::uint32_t column = 0;
    String detail{}; // the name at fault, if there is one; not part of what the script sees
};

// The description with the name at fault behind it, for people to read.
std::u16string shownDescription(const ScriptError& error);

[[noreturn]] void raise(ErrorNumber number);
// `detail`: the name at fault.
[[noreturn]] void raise(ErrorNumber number, std::u16string_view detail);

} // namespace vbs
