// Declarations: variables, constants, procedures and classes.
#include "platform/vbscript/syntax/Parser.h"

#include <algorithm>
#include <utility>

namespace vbs {

namespace {

constexpr std::size_t maxParameters = 1000;

} // namespace

// text: [Option Explicit] { declaration | statement }
void Parser::parseTopLevel() {
    skipSeparators();
    if (is(Word::Option)) {
        advance();
        expect(Word::Explicit, ErrorNumber::SyntaxError);
        ast_->optionExplicit = true;
        endStatement();
        skipSeparators();
    }
    for (; token_.kind != Kind::End; skipSeparators()) {
        if (startsBlockEnd()) {
            fail(is(Word::Loop)   ? ErrorNumber::LoopWithoutDo
                 : is(Word::Next) ? ErrorNumber::UnexpectedNext
                                  : ErrorNumber::ExpectedStatement);
        }
        parseItem(ast_->main.body);
    }
}

bool Parser::parseDeclaration(Block& block) {
    if (is(Word::Sub) || is(Word::Function)) {
        ast_->procedures.push_back(parseProcedure(false, false));
    } else if (is(Word::Class)) {
        parseClass();
    } else if (is(Word::Public) || is(Word::Private)) {
        parseModified(block);
    } else if (is(Word::Property) && nextIs({Word::Get, Word::Let, Word::Set})) {
        fail(ErrorNumber::DefinedInsideClass);
    } else {
        return false;
    }
    return true;
}

// Public|Private (Sub ... | Function ... | Const ... | variables)
void Parser::parseModified(Block& block) {
    const bool isPrivate = is(Word::Private);
    advance();
    if (is(Word::Default) && !isOnlyName()) {
        fail(ErrorNumber::DefinedInsideClass);
    }
    if (is(Word::Sub) || is(Word::Function)) {
        ast_->procedures.push_back(parseProcedure(isPrivate, false));
        return;
    }
    block.push_back(accept(Word::Const) ? parseConst() : parseDim(isPrivate));
    endStatement();
}

void Parser::declare(Symbol name, Position at) {
    const auto named = [name](const Parameter& parameter) { return parameter.name == name; };
    const bool parameter = std::any_of(procedure_->parameters.begin(), procedure_->parameters.end(), named);
    if (parameter || !procedure_->declared.insert(name).second) {
        fail(ErrorNumber::NameRedefined, at);
    }
}

// name [( [integer {, integer}] )]
Variable Parser::parseVariable(bool isPrivate) {
    Variable variable;
    variable.at = here();
    variable.isPrivate = isPrivate;
    variable.name = takeName();
    if (!accept(Sign::Open)) {
        return variable;
    }
    variable.array = true;
    if (accept(Sign::Close)) {
        return variable;
    }
    do {
        const bool whole = token_.kind == Kind::Number && token_.value.isWhole();
        if (!whole || token_.value.n < 0) {
            fail(ErrorNumber::ExpectedInteger);
        }
        if (token_.value.n == 0x7fffffff || variable.sizes.size() == 60) {
            fail(ErrorNumber::TooManyArguments);
        }
        variable.sizes.push_back(static_cast<std::int32_t>(token_.value.n) + 1);
        advance();
    } while (accept(Sign::Comma));
    expect(Sign::Close, ErrorNumber::ExpectedRightParenthesis);
    return variable;
}

void Parser::parseVariables(std::vector<Variable>& into, bool isPrivate) {
    do {
        into.push_back(parseVariable(isPrivate));
    } while (accept(Sign::Comma));
}

// Dim variable {, variable}; the names are hoisted to the procedure around
Stmt* Parser::parseDim(bool isPrivate) {
    Stmt* statement = ast_->stmt(Stmt::Kind::Dim, here());
    statement->first = procedure_->variables.size();
    do {
        const Variable variable = parseVariable(isPrivate);
        declare(variable.name, variable.at);
        procedure_->variables.push_back(variable);
    } while (accept(Sign::Comma));
    statement->count = procedure_->variables.size() - statement->first;
    return statement;
}

// Const name = [sign] literal {, name = [sign] literal}; hoisted
Stmt* Parser::parseConst() {
    Stmt* statement = ast_->stmt(Stmt::Kind::Const, here());
    do {
        ConstDecl decl;
        decl.at = here();
        decl.name = takeName();
        expect(Sign::Equal, ErrorNumber::ExpectedEqual);
        decl.value = parseLiteral();
        declare(decl.name, decl.at);
        procedure_->constants.push_back(decl);
    } while (accept(Sign::Comma));
    return statement;
}

// [-|+] literal
Expr* Parser::parseLiteral() {
    const Position at = here();
    const bool negative = is(Sign::Minus);
    if (negative || is(Sign::Plus)) {
        advance();
    }
    Expr* value = parseAtom();
    if (value->kind != Expr::Kind::Literal) {
        fail(ErrorNumber::ExpectedLiteral, at);
    }
    return negative ? unary(Expr::Kind::Negate, at, value) : value;
}

// Sub|Function|Property Get|Let|Set name [( parameters )] block End Sub|Function|Property
ProcedureDecl* Parser::parseProcedure(bool isPrivate, bool isDefault) {
    ProcedureDecl* procedure = ast_->procedure();
    procedure->isPrivate = isPrivate;
    procedure->isDefault = isDefault;
    const Word ending = token_.word;
    advance();
    if (ending == Word::Property) {
        procedure->kind = is(Word::Get)   ? ProcedureDecl::Kind::PropertyGet
                          : is(Word::Let) ? ProcedureDecl::Kind::PropertyLet
                                          : ProcedureDecl::Kind::PropertySet;
        if (!is(Word::Get) && !is(Word::Let) && !is(Word::Set)) {
            fail(ErrorNumber::ExpectedLetSetGet);
        }
        advance();
    } else {
        procedure->kind = ending == Word::Sub ? ProcedureDecl::Kind::Sub : ProcedureDecl::Kind::Function;
    }
    procedure->at = here();
    procedure->name = takeName();
    parseParameters(*procedure);
    if (token_.kind == Kind::Identifier && equalNoCase(token_.text, u"as") && nextIsName()) {
        fail(ErrorNumber::ExpectedEndOfStatement); // no type is ever declared
    }
    const bool assigns =
        procedure->kind == ProcedureDecl::Kind::PropertyLet || procedure->kind == ProcedureDecl::Kind::PropertySet;
    if (assigns && procedure->parameters.empty()) {
        fail(ErrorNumber::PropertyArguments, procedure->at);
    }
    parseProcedureBody(*procedure, ending);
    return procedure;
}

// ( [ByVal|ByRef] name [()] {, ...} )
void Parser::parseParameters(ProcedureDecl& procedure) {
    if (!accept(Sign::Open) || accept(Sign::Close)) {
        return;
    }
    do {
        Parameter parameter;
        parameter.byValue = is(Word::ByVal);
        if (is(Word::ByVal) || is(Word::ByRef)) {
            advance();
        }
        const Position at = here();
        parameter.name = takeName();
        if (accept(Sign::Open)) {
            expect(Sign::Close, ErrorNumber::ExpectedRightParenthesis);
        }
        for (const Parameter& other : procedure.parameters) {
            if (other.name == parameter.name) {
                fail(ErrorNumber::NameRedefined, at);
            }
        }
        procedure.parameters.push_back(parameter);
        if (procedure.parameters.size() > maxParameters) {
            fail(ErrorNumber::TooManyArguments);
        }
    } while (accept(Sign::Comma));
    expect(Sign::Close, ErrorNumber::ExpectedRightParenthesis);
}

Parser::Inside::Inside(Parser& parser, ProcedureDecl& procedure)
    : parser_(parser), outer_(std::exchange(parser.procedure_, &procedure)), hidden_(std::exchange(parser.hidden_, 0)),
      doLoops_(std::exchange(parser.doLoops_, 0)), forLoops_(std::exchange(parser.forLoops_, 0)),
      withs_(std::exchange(parser.withs_, 0)), counters_(std::exchange(parser.counters_, {})) {}

Parser::Inside::~Inside() {
    parser_.procedure_ = outer_;
    parser_.hidden_ = hidden_;
    parser_.doLoops_ = doLoops_;
    parser_.forLoops_ = forLoops_;
    parser_.withs_ = withs_;
    parser_.counters_ = std::move(counters_);
}

void Parser::parseProcedureBody(ProcedureDecl& procedure, Word ending) {
    const Inside inside(*this, procedure);
    parseBlock(procedure.body);
    if (!is(Word::End)) {
        fail(is(Word::Loop)   ? ErrorNumber::LoopWithoutDo
             : is(Word::Next) ? ErrorNumber::UnexpectedNext
                              : ErrorNumber::ExpectedEnd);
    }
    advance();
    expect(ending, ending == Word::Sub        ? ErrorNumber::ExpectedSub
                   : ending == Word::Function ? ErrorNumber::ExpectedFunction
                                              : ErrorNumber::ExpectedProperty);
}

// Class name { member } End Class
void Parser::parseClass() {
    ClassDecl* decl = ast_->classDecl();
    advance();
    decl->at = here();
    decl->name = takeName();
    endStatement();
    for (skipSeparators(); !is(Word::End); skipSeparators()) {
        if (token_.kind == Kind::End) {
            fail(ErrorNumber::ExpectedEnd);
        }
        parseClassMember(*decl);
    }
    advance();
    expect(Word::Class, ErrorNumber::ExpectedClass);
    ast_->classes.push_back(decl);
}

// Whether the word here is the name of a variable that is declared, not a word of the grammar.
bool Parser::isOnlyName() const {
    const Token next = peek();
    return next.kind == Token::Kind::Colon || next.kind == Token::Kind::NewLine || next.kind == Token::Kind::Comment ||
           next.kind == Token::Kind::End || next.sign == Token::Sign::Comma || next.sign == Token::Sign::Open;
}

// [Public|Private] [Default] (Sub|Function|Property ... | variables)   or   Dim variables
void Parser::parseClassMember(ClassDecl& decl) {
    const bool isPrivate = is(Word::Private);
    const bool modified = isPrivate || is(Word::Public);
    if (modified) {
        advance();
    }
    const bool isDefault = is(Word::Default) && !(modified && isOnlyName());
    if (isDefault) {
        if (!modified || isPrivate) {
            fail(ErrorNumber::DefaultMustBePublic);
        }
        advance();
    }
    if (is(Word::Sub) || is(Word::Function) || (is(Word::Property) && (isDefault || !modified || !isOnlyName()))) {
        ProcedureDecl* procedure = parseProcedure(isPrivate, isDefault);
        checkClassMember(decl, *procedure);
        decl.members.push_back(procedure);
        decl.memberNames.emplace(procedure->name, procedure);
        decl.hasDefault = decl.hasDefault || isDefault;
        ast_->valuesRunCode = ast_->valuesRunCode || isDefault;
        return;
    }
    if (isDefault) {
        fail(ErrorNumber::SyntaxError);
    }
    if (!modified && !accept(Word::Dim)) {
        fail(ErrorNumber::ExpectedEnd);
    }
    const std::size_t known = decl.fields.size();
    parseVariables(decl.fields, isPrivate);
    for (std::size_t i = known; i < decl.fields.size(); ++i) {
        const Symbol name = decl.fields[i].name;
        if (!decl.fieldNames.insert(name).second || decl.memberNames.contains(name)) {
            fail(ErrorNumber::NameRedefined, decl.fields[i].at);
        }
    }
    endStatement();
}

// Two members of one name: Get, Let and Set of a property, which agree on the indexes, or a Sub or Function that is
// called beside a Let or Set that is assigned.
void Parser::checkShared(const ProcedureDecl& one, const ProcedureDecl& other) {
    using PK = ProcedureDecl::Kind;
    const auto assigned = [](const ProcedureDecl& p) { return p.kind == PK::PropertyLet || p.kind == PK::PropertySet; };
    const auto called = [](const ProcedureDecl& p) { return p.kind == PK::Sub || p.kind == PK::Function; };
    if (called(one) || called(other)) {
        if (!assigned(one) && !assigned(other)) {
            fail(ErrorNumber::NameRedefined, other.at);
        }
        return;
    }
    if (one.kind == other.kind) {
        fail(ErrorNumber::NameRedefined, other.at);
    }
    const auto indexes = [](const ProcedureDecl& p) {
        return p.parameters.size() - (p.kind == PK::PropertyGet ? 0 : 1);
    };
    if (indexes(one) != indexes(other)) {
        fail(ErrorNumber::InconsistentArguments, other.at);
    }
}

void Parser::checkClassMember(const ClassDecl& decl, const ProcedureDecl& procedure) const {
    using PK = ProcedureDecl::Kind;
    if (procedure.isDefault && (procedure.kind == PK::PropertyLet || procedure.kind == PK::PropertySet)) {
        fail(ErrorNumber::DefaultOnlyOnGet, procedure.at);
    }
    const std::u16string& name = symbols_.folded(procedure.name);
    if ((name == u"class_initialize" || name == u"class_terminate") && !procedure.parameters.empty()) {
        fail(ErrorNumber::ClassEventArguments, procedure.at);
    }
    if (procedure.isDefault && decl.hasDefault) {
        fail(ErrorNumber::MultipleDefaults, procedure.at);
    }
    const auto [first, last] = decl.memberNames.equal_range(procedure.name);
    for (auto it = first; it != last; ++it) {
        checkShared(*it->second, procedure);
    }
    if (decl.fieldNames.contains(procedure.name)) {
        fail(ErrorNumber::NameRedefined, procedure.at);
    }
}

} // namespace vbs
