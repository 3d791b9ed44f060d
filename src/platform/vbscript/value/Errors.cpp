#include "platform/vbscript/value/Errors.h"

#include <algorithm>
#include <array>

namespace vbs {

namespace {

struct Entry {
    ErrorNumber number;
    const char16_t* text;
};

using enum ErrorNumber;

// In ascending order of number.
constexpr Entry entries[] = {
    {ReturnWithoutGosub, u"Return sin GoSub"},
    {InvalidCall, u"Argumento o llamada a procedimiento no válidos"},
    {Overflow, u"Desbordamiento"},
    {OutOfMemory, u"Memoria agotada"},
    {OutOfRange, u"El subíndice está fuera del intervalo"},
    {ArrayLocked, u"La matriz es fija o está bloqueada temporalmente"},
    {DivisionByZero, u"División por cero"},
    {TypeMismatch, u"No coinciden los tipos"},
    {OutOfStringSpace, u"Espacio de cadenas agotado"},
    {CannotContinue, u"No se puede realizar la operación solicitada"},
    {OutOfStack, u"Espacio de pila agotado"},
    {ProcedureNotDefined, u"Procedimiento Sub o Function no definido"},
    {InternalError, u"Error interno"},
    {BadFileName, u"Nombre o número de archivo incorrecto"},
    {FileNotFound, u"No se encontró el archivo"},
    {ObjectNotSet, u"Variable de objeto no establecida"},
    {ForNotInitialized, u"Bucle For no inicializado"},
    {InvalidNull, u"Uso no válido de Null"},
    {ObjectRequired, u"Se requiere un objeto"},
    {CannotCreateObject, u"El componente ActiveX no puede crear el objeto"},
    {NoAutomation, u"La clase no acepta Automatización"},
    {AutomationNameNotFound, u"No se encontró el nombre de archivo o de clase durante la operación de Automatización"},
    {MemberNotFound, u"El objeto no acepta esta propiedad o método"},
    {ActionNotSupported, u"El objeto no acepta esta acción"},
    {NamedArguments, u"El objeto no acepta argumentos con nombre"},
    {LocaleNotSupported, u"El objeto no acepta la configuración regional actual"},
    {NamedArgumentNotFound, u"No se encontró el argumento con nombre"},
    {ArgumentNotOptional, u"Argumento no opcional"},
    {WrongArgumentCount, u"Número de argumentos erróneo o asignación de propiedad no válida"},
    {NotACollection, u"El objeto no es una colección"},
    {InvalidOrdinal, u"Número ordinal no válido"},
    {FunctionNotInDll, u"No se encontró la función DLL especificada"},
    {KeyAlreadyExists, u"Esta clave ya está asociada a un elemento de esta colección"},
    {VariableTypeNotSupported, u"La variable usa un tipo de Automatización no aceptado por VBScript"},
    {EventsNotSupported, u"El objeto o clase no acepta el conjunto de eventos"},
    {ServerNotAvailable, u"El servidor remoto no existe o no está disponible"},
    {VariableUndefined, u"La variable no está definida"},
    {IllegalAssignment, u"Asignación no válida"},
    {UnsafeObject, u"El objeto no es seguro para la ejecución de secuencias de comandos"},
    {UnsafeInitialization, u"El objeto no es seguro para la inicialización"},
    {UnsafeCreation, u"El objeto no es seguro para la creación"},
    {InvalidReference, u"Referencia no válida o no calificada"},
    {ClassUndefined, u"La clase no está definida"},
    {ExceptionOccurred, u"Se produjo una excepción"},
    {OutOfMemoryCompiling, u"Memoria agotada"},
    {SyntaxError, u"Error de sintaxis"},
    {ExpectedColon, u"Se esperaba ':'"},
    {ExpectedLeftParenthesis, u"Se esperaba '('"},
    {ExpectedRightParenthesis, u"Se esperaba ')'"},
    {ExpectedRightBracket, u"Se esperaba ']'"},
    {ExpectedIdentifier, u"Se esperaba un identificador"},
    {ExpectedEqual, u"Se esperaba '='"},
    {ExpectedIf, u"Se esperaba 'If'"},
    {ExpectedTo, u"Se esperaba 'To'"},
    {ExpectedEnd, u"Se esperaba 'End'"},
    {ExpectedFunction, u"Se esperaba 'Function'"},
    {ExpectedSub, u"Se esperaba 'Sub'"},
    {ExpectedThen, u"Se esperaba 'Then'"},
    {ExpectedWend, u"Se esperaba 'Wend'"},
    {ExpectedLoop, u"Se esperaba 'Loop'"},
    {ExpectedNext, u"Se esperaba 'Next'"},
    {ExpectedCase, u"Se esperaba 'Case'"},
    {ExpectedSelect, u"Se esperaba 'Select'"},
    {ExpectedExpression, u"Se esperaba una expresión"},
    {ExpectedStatement, u"Se esperaba una instrucción"},
    {ExpectedEndOfStatement, u"Se esperaba el fin de la instrucción"},
    {ExpectedInteger, u"Se esperaba una constante entera"},
    {ExpectedWhileOrUntil, u"Se esperaba 'While' o 'Until'"},
    {ExpectedWhileUntilOrEnd, u"Se esperaba 'While', 'Until' o el fin de la instrucción"},
    {ExpectedWith, u"Se esperaba 'With'"},
    {IdentifierTooLong, u"El identificador es demasiado largo"},
    {InvalidNumber, u"Número no válido"},
    {InvalidCharacter, u"Carácter no válido"},
    {UnterminatedString, u"Constante de cadena sin terminar"},
    {UnterminatedComment, u"Comentario sin terminar"},
    {InvalidMe, u"Uso no válido de la palabra clave 'Me'"},
    {LoopWithoutDo, u"'loop' sin 'do'"},
    {InvalidExit, u"Instrucción 'exit' no válida"},
    {InvalidForVariable, u"Variable de control de bucle 'for' no válida"},
    {NameRedefined, u"Nombre redefinido"},
    {FirstOnLine, u"Debe ser la primera instrucción de la línea"},
    {NonByvalArgument, u"No se puede asignar a un argumento que no sea ByVal"},
    {ParenthesesInSub, u"No se pueden usar paréntesis al llamar a un Sub"},
    {ExpectedLiteral, u"Se esperaba una constante literal"},
    {ExpectedIn, u"Se esperaba 'In'"},
    {ExpectedClass, u"Se esperaba 'Class'"},
    {DefinedInsideClass, u"Debe definirse dentro de una clase"},
    {ExpectedLetSetGet, u"Se esperaba Let, Set o Get en la declaración de la propiedad"},
    {ExpectedProperty, u"Se esperaba 'Property'"},
    {InconsistentArguments, u"El número de argumentos debe coincidir en todas las partes de la propiedad"},
    {MultipleDefaults, u"No puede haber más de una propiedad o método predeterminado en una clase"},
    {ClassEventArguments, u"Class_Initialize o Class_Terminate no tienen argumentos"},
    {PropertyArguments, u"Property Set o Let debe tener al menos un argumento"},
    {UnexpectedNext, u"'Next' inesperado"},
    {DefaultMustBePublic, u"'Default' debe especificar también 'Public'"},
    {DefaultOnlyOnGet, u"'Default' sólo puede especificarse en Property Get"},
    {NestedTooDeep, u"Hay demasiados niveles anidados"},
    {TooManyArguments, u"Hay demasiados argumentos o dimensiones"},
    {TooManyNames, u"Hay demasiados nombres globales"},
    {ProcedureTooLarge, u"El procedimiento es demasiado grande"},
    {RegexSyntax, u"Error de sintaxis en la expresión regular"},
    {RegexQuantifier, u"Cuantificador inesperado"},
    {RegexBracket, u"Se esperaba ']' en la expresión regular"},
    {RegexParenthesis, u"Se esperaba ')' en la expresión regular"},
    {RegexRange, u"Intervalo no válido en el conjunto de caracteres"},
    {TimedOut, u"Se agotó el tiempo de ejecución de la secuencia de comandos"},
    {Stopped, u"La secuencia de comandos se detuvo"},
    {ElementNotFound, u"No se encontró el elemento"},
};

const Entry* find(std::int32_t number) noexcept {
    const auto* found =
        std::lower_bound(std::begin(entries), std::end(entries), number,
                         [](const Entry& e, std::int32_t n) { return static_cast<std::int32_t>(e.number) < n; });
    return found != std::end(entries) && static_cast<std::int32_t>(found->number) == number ? found : nullptr;
}

std::u16string_view textOf(std::int32_t number) noexcept {
    const Entry* entry = find(number);
    return entry != nullptr ? entry->text : u"Error desconocido en tiempo de ejecución";
}

} // namespace

bool hasErrorText(std::int32_t number) noexcept {
    return find(number) != nullptr;
}

String errorText(std::int32_t number) {
    return String(textOf(number));
}

String errorSource(std::int32_t number) {
    const bool compiling = number >= 1001 && number < 2000;
    return String(std::u16string_view(compiling ? u"Error de compilación de VBScript"
                                                : u"Error en tiempo de ejecución de VBScript"));
}

std::u16string shownDescription(const ScriptError& error) {
    std::u16string text(error.description.empty() ? textOf(error.number) : error.description.view());
    if (!error.detail.empty()) {
        text.append(u": '").append(error.detail.view()).append(u"'");
    }
    return text;
}

void raise(ErrorNumber number) {
    throw ScriptError{.number = static_cast<std::int32_t>(number), .description = {}, .source = {}, .helpFile = {}};
}

void raise(ErrorNumber number, std::u16string_view detail) {
    throw ScriptError{.number = static_cast<std::int32_t>(number),
                      .description = {},
                      .source = {},
                      .helpFile = {},
                      .detail = String(detail)};
}

} // namespace vbs
