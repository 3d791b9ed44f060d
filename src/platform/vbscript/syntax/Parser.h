// Text to tree: recursive descent with one token of look-ahead; a statement that begins like `S (2)` is read again once
// when it turns out that the bracket belongs to the first argument. Grammar productions stand above the functions.
#pragma once

#include "platform/vbscript/syntax/Ast.h"
#include "platform/vbscript/syntax/Lexer.h"

#include <initializer_list>
#include <memory>
#include <optional>
#include <string_view>

namespace vbs {

class Parser {
public:
    // A date literal without a year means `thisYear`.
    Parser(std::u16string_view text, SymbolTable& symbols, int thisYear);

    // Throws CompileError, or ScriptError when memory runs out.
    std::unique_ptr<Ast> parse();
    // The text as one expression (Eval): the tree is a Function that assigns it to `result`.
    std::unique_ptr<Ast> parseExpression(Symbol result);

private:
    using Kind = Token::Kind;
    using Sign = Token::Sign;

    // How far source may nest before it is refused (error 1001), so that no input exhausts the stack.
    static constexpr int maxNesting = 220;
    static constexpr int maxHeight = 10000; // of rows of operators
    static constexpr int maxChain = 1000;   // of members and brackets

    struct Nesting {
        explicit Nesting(Parser& parser);
        ~Nesting() { --parser_.nesting_; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;
        Parser& parser_;
    };
    // Slots that a statement needs for its own bookkeeping while its body runs.
    struct Hidden {
        Hidden(Parser& parser, std::uint32_t slots);
        ~Hidden() { parser_.hidden_ -= slots_; }
        Hidden(const Hidden&) = delete;
        Hidden& operator=(const Hidden&) = delete;
        Parser& parser_;
        std::uint32_t slots_;
    };

    // The variable of a For loop while its body is read; error 1040 if an outer loop counts with it.
    struct Counter {
        Counter(Parser& parser, const Expr& variable);
        ~Counter() { parser_.counters_.pop_back(); }
        Counter(const Counter&) = delete;
        Counter& operator=(const Counter&) = delete;
        Parser& parser_;
    };

    // What is open around a procedure counts for nothing while its body is read; it is back when that ends, with an
    // error as well.
    struct Inside {
        Inside(Parser& parser, ProcedureDecl& procedure);
        ~Inside();
        Inside(const Inside&) = delete;
        Inside& operator=(const Inside&) = delete;
        Parser& parser_;
        ProcedureDecl* outer_;
        std::uint32_t hidden_;
        int doLoops_;
        int forLoops_;
        int withs_;
        std::vector<Symbol> counters_;
    };

    // A place to read again from, and what was called there.
    struct Bracket {
        Lexer lexer;
        Token token;
        Expr* callee;
    };

    // tokens
    void advance();
    [[noreturn]] void fail(ErrorNumber error) const;
    [[noreturn]] static void fail(ErrorNumber error, Position at);
    Position here() const noexcept { return {token_.line, token_.column}; }
    bool is(Word word) const noexcept { return token_.kind == Kind::Keyword && token_.word == word; }
    bool is(Sign sign) const noexcept { return token_.kind == Kind::Operator && token_.sign == sign; }
    bool isName() const noexcept { return isName(token_); }
    static bool isName(const Token& token) noexcept;
    bool isEndOfLine() const noexcept { return token_.kind == Kind::NewLine || token_.kind == Kind::End; }
    bool isEndOfStatement() const noexcept;
    bool accept(Word word);
    bool accept(Sign sign);
    Token peek() const;
    bool nextIs(std::initializer_list<Word> words) const;
    bool nextIsName() const;
    void expect(Word word, ErrorNumber error);
    void expect(Sign sign, ErrorNumber error);
    Symbol takeName();
    void endStatement();
    void skipSeparators();

    // expressions
    Expr* parseExpr() { return parseBinary(1); }
    Expr* parseBinary(int least);
    Expr* parseUnary();
    Expr* parseSigned();
    Expr* parsePrimary();
    Expr* parseAtom();
    Expr* parsePostfix(Expr* e);
    std::vector<Expr*> parseArguments();
    Expr* literal(Value value);
    Expr* unary(Expr::Kind kind, Position at, Expr* operand);
    Expr* binary(BinaryOp op, Position at, Expr* left, Expr* right);
    Expr* call(Expr* callee, std::vector<Expr*> arguments, Position at);
    Expr* member(Expr* object, Position at);
    Expr* me(Position at);
    Expr* nameExpr(Position at);
    static Expr* grouped(Expr* e) noexcept;
    static void setHeight(Expr& e);

    // statements
    void parseBlock(Block& block);
    void parseItem(Block& block);
    bool startsBlockEnd() const noexcept;
    Stmt* parseStatement();
    Stmt* parseKeywordStatement();
    Stmt* parseAssignOrCall();
    Expr* parseStatementHead(bool& complete);
    bool startsOperand() const noexcept;
    Expr* wholeCall(Expr* callee, std::vector<Expr*> arguments, Position at);
    Stmt* finishCall(Expr* callee, Position at);
    Stmt* parseSet();
    Stmt* parseCall();
    Stmt* parseIf();
    void parseCondition(Stmt& statement, Position at);
    void parseBranches(Stmt& statement, void (Parser::*body)(Block&));
    void parseLineStatements(Block& block);
    Stmt* parseSelect();
    Stmt* parseFor();
    Stmt* parseForEach(Position at);
    Stmt* parseWhile();
    Stmt* parseDo();
    Stmt* parseWith();
    Stmt* parseExit();
    Stmt* parseReDim();
    Stmt* parseErase();
    Stmt* parseOnError();
    void noteAssigned(const Expr* target);
    void noteObject(const Expr* target);

    // declarations
    void parseTopLevel();
    bool parseDeclaration(Block& block);
    Stmt* parseDim(bool isPrivate);
    Stmt* parseConst();
    Expr* parseLiteral();
    void parseVariables(std::vector<Variable>& into, bool isPrivate);
    Variable parseVariable(bool isPrivate);
    void parseModified(Block& block);
    ProcedureDecl* parseProcedure(bool isPrivate, bool isDefault);
    void parseParameters(ProcedureDecl& procedure);
    void parseProcedureBody(ProcedureDecl& procedure, Word ending);
    void parseClass();
    bool isOnlyName() const;
    void parseClassMember(ClassDecl& decl);
    void checkClassMember(const ClassDecl& decl, const ProcedureDecl& procedure) const;
    static void checkShared(const ProcedureDecl& one, const ProcedureDecl& other);
    void declare(Symbol name, Position at);

    Lexer lexer_;
    SymbolTable& symbols_;
    std::unique_ptr<Ast> ast_ = std::make_unique<Ast>();
    Token token_;
    ProcedureDecl* procedure_ = nullptr; // the one whose body is being read
    int nesting_ = 0;
    std::uint32_t hidden_ = 0;
    int doLoops_ = 0;
    int forLoops_ = 0;
    int withs_ = 0;
    std::vector<Symbol> counters_;
    Symbol execute_;
    Symbol executeGlobal_;
    Symbol eval_;
    Symbol getRef_;
};

} // namespace vbs
