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
    Parser(std::u16string_view text, SymbolTable& symbols);

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
        ~Nesting() { --m_parser.m_nesting; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;
        Parser& m_parser;
    };
    // Slots that a statement needs for its own bookkeeping while its body runs.
    struct Hidden {
        Hidden(Parser& parser, std::uint32_t slots);
        ~Hidden() { m_parser.m_hidden -= m_slots; }
        Hidden(const Hidden&) = delete;
        Hidden& operator=(const Hidden&) = delete;
        Parser& m_parser;
        std::uint32_t m_slots;
    };

    // The variable of a For loop while its body is read; error 1040 if an outer loop counts with it.
    struct Counter {
        Counter(Parser& parser, const Expr& variable);
        ~Counter() { m_parser.m_counters.pop_back(); }
        Counter(const Counter&) = delete;
        Counter& operator=(const Counter&) = delete;
        Parser& m_parser;
    };

    // What is open around a procedure counts for nothing while its body is read; it is back when that ends, with an
    // error as well.
    struct Inside {
        Inside(Parser& parser, ProcedureDecl& procedure);
        ~Inside();
        Inside(const Inside&) = delete;
        Inside& operator=(const Inside&) = delete;
        Parser& m_parser;
        ProcedureDecl* m_outer;
        std::uint32_t m_hidden;
        int m_doLoops;
        int m_forLoops;
        int m_withs;
        std::vector<Symbol> m_counters;
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
    Position here() const noexcept { return {m_token.line, m_token.column}; }
    bool is(Word word) const noexcept { return m_token.kind == Kind::Keyword && m_token.word == word; }
    bool is(Sign sign) const noexcept { return m_token.kind == Kind::Operator && m_token.sign == sign; }
    bool isName() const noexcept { return isName(m_token); }
    static bool isName(const Token& token) noexcept;
    bool isEndOfLine() const noexcept { return m_token.kind == Kind::NewLine || m_token.kind == Kind::End; }
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
    void parseClassMember(ClassDecl& decl);
    void checkClassMember(const ClassDecl& decl, const ProcedureDecl& procedure) const;
    static void checkShared(const ProcedureDecl& one, const ProcedureDecl& other);
    void declare(Symbol name, Position at);

    Lexer m_lexer;
    SymbolTable& m_symbols;
    std::unique_ptr<Ast> m_ast = std::make_unique<Ast>();
    Token m_token;
    ProcedureDecl* m_procedure = nullptr; // the one whose body is being read
    int m_nesting = 0;
    std::uint32_t m_hidden = 0;
    int m_doLoops = 0;
    int m_forLoops = 0;
    int m_withs = 0;
    std::vector<Symbol> m_counters;
    Symbol m_execute;
    Symbol m_eval;
};

} // namespace vbs
