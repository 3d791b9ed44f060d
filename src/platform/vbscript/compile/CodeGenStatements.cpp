// Code for statements.
#include "platform/vbscript/compile/CodeGen.h"

#include <algorithm>

namespace vbs {

void CodeGen::block(const Block& statements) {
    for (const Stmt* s : statements) {
        statement(*s);
    }
}

void CodeGen::statement(const Stmt& s) {
    const std::size_t temporaries = temporary_;
    beginMark(s.at);
    switch (s.kind) {
    case Stmt::Kind::Assign:
        assign(s.target, s.value, Store::Let);
        break;
    case Stmt::Kind::Set:
        assign(s.target, s.value, Store::Set);
        break;
    case Stmt::Kind::Call:
        callTo(s.target, 0, Store::Discard);
        break;
    case Stmt::Kind::If:
        ifStatement(s);
        break;
    case Stmt::Kind::Select:
        selectStatement(s);
        break;
    case Stmt::Kind::For:
        forStatement(s);
        break;
    case Stmt::Kind::ForEach:
        forEachStatement(s);
        break;
    case Stmt::Kind::While:
        whileStatement(s);
        break;
    case Stmt::Kind::Do:
        doStatement(s);
        break;
    case Stmt::Kind::With:
        withStatement(s);
        break;
    case Stmt::Kind::Exit:
        exitStatement(s);
        break;
    case Stmt::Kind::ReDim:
        reDimStatement(s);
        break;
    case Stmt::Kind::Erase:
        eraseStatement(s);
        break;
    case Stmt::Kind::OnErrorResumeNext:
        emit(encode(Opcode::OnError, 1));
        break;
    case Stmt::Kind::OnErrorGoTo0:
        emit(encode(Opcode::OnError, 0));
        break;
    case Stmt::Kind::Dim:
        dimStatement(s);
        break;
    case Stmt::Kind::Const:
        break;
    }
    endMark();
    temporary_ = temporaries;
}

void CodeGen::dimStatement(const Stmt& s) {
    for (std::size_t i = s.first; i < s.first + s.count; ++i) {
        const Variable& variable = decl_.variables[i];
        if (variable.array) {
            procedure_.shapes.push_back(variable.sizes);
            const auto shape = static_cast<Operand>(procedure_.shapes.size() - 1);
            emit(encode(Opcode::MakeArray, resolve(variable.name).operand, 0, shape));
        }
    }
}

void CodeGen::ifStatement(const Stmt& s) {
    Label end;
    for (std::size_t i = 0; i < s.branches.size(); ++i) {
        const IfBranch& branch = s.branches[i];
        if (i > 0) {
            beginMark(branch.at);
        }
        Label next;
        jumpUnless(branch.condition, next);
        endMark();
        block(branch.body);
        if (i + 1 < s.branches.size() || s.hasOtherwise) {
            emitJump(Opcode::Jump, 0, 0, end);
        }
        bind(next);
    }
    block(s.otherwise);
    bind(end);
}

void CodeGen::selectStatement(const Stmt& s) {
    const std::size_t hidden = hidden_;
    const Operand value = newHidden();
    if (decl_.resumesNext) {
        emit(encode(Opcode::Clear, value));
    }
    exprTo(s.value, value, Store::Let);
    const std::size_t header = procedure_.marks.size() - 1;
    endMark();
    Label end;
    for (const CaseBranch& branch : s.cases) {
        beginMark(branch.at);
        const std::size_t mark = procedure_.marks.size() - 1;
        Label body;
        for (const Expr* candidate : branch.values) {
            const std::size_t temporaries = temporary_;
            emitJump(Opcode::JumpEqual, value, expr(candidate), body);
            temporary_ = temporaries;
        }
        Label next;
        emitJump(Opcode::Jump, 0, 0, next);
        bind(body);
        endMark();
        procedure_.marks[mark].resume = static_cast<std::uint32_t>(procedure_.code.size());
        if (&branch == &s.cases.front()) {
            procedure_.marks[header].resume = static_cast<std::uint32_t>(procedure_.code.size());
        }
        block(branch.body);
        emitJump(Opcode::Jump, 0, 0, end);
        bind(next);
    }
    block(s.otherwise);
    bind(end);
    emit(encode(Opcode::Clear, value));
    hidden_ = hidden;
}

// The variable that a loop assigns. What cannot be assigned fails here, and `instead` takes its place.
Operand CodeGen::counterOf(Symbol symbol, Operand instead) {
    const Resolved r = resolve(symbol);
    if (r.kind == Resolved::Kind::Unknown) {
        return unresolved(r, Use::Assigned);
    }
    if (r.kind != Resolved::Kind::Variable || isFixedArray(symbol)) {
        raiseAtRun(r.kind == Resolved::Kind::Variable ? ErrorNumber::TypeMismatch : ErrorNumber::IllegalAssignment,
                   symbol);
        return instead;
    }
    return r.operand;
}

// The search for a loop's variable in a temporary, which an error in the body may have given up.
void CodeGen::searchAgain(Symbol symbol, Operand variable) {
    if (isTemporary(variable)) {
        emit(encode(Opcode::FindName, variable, 0, resolve(symbol).operand, scope_.ast.optionExplicit ? 1 : 0));
    }
}

void CodeGen::forStatement(const Stmt& s) {
    const std::size_t hiddenMark = hidden_;
    const Operand limit = newHidden();
    const Operand step = newHidden();
    const Operand start = newHidden();
    if (decl_.resumesNext) {
        emit(encode(Opcode::Clear, step)); // Next after a failed header finds a loop that was never set up
    }
    const Operand variable = counterOf(s.target->symbol, start);
    exprTo(s.value, start, Store::Let);
    exprTo(s.limit, limit, Store::Let);
    if (s.step != nullptr) {
        exprTo(s.step, step, Store::Let);
    } else {
        emit(encode(Opcode::Move, step, constant(Value::ofInteger(1))));
    }
    Label exit;
    emitJump(Opcode::ForPrepare, variable, limit, exit);
    endMark();
    exitFor_.push_back(&exit);
    const std::size_t body = procedure_.code.size();
    block(s.body);
    exitFor_.pop_back();
    beginMark(s.closing);
    searchAgain(s.target->symbol, variable);
    const bool byOne = s.step == nullptr && !decl_.resumesNext; // the step is sure to be there
    emitJumpTo(byOne ? Opcode::ForNext : Opcode::ForLoop, variable, limit, body);
    endMark();
    bind(exit);
    hidden_ = hiddenMark;
}

void CodeGen::forEachStatement(const Stmt& s) {
    const std::size_t hiddenMark = hidden_;
    const Operand iterator = newHidden();
    if (decl_.resumesNext) {
        emit(encode(Opcode::Clear, iterator)); // Next after a failed header leaves at once
    }
    const Operand variable = counterOf(s.target->symbol, iterator);
    const std::size_t temporaries = temporary_;
    const Operand collection = expr(s.value);
    emit(encode(Opcode::EachPrepare, iterator, collection));
    temporary_ = temporaries; // above a variable that is searched
    Label next;
    emitJump(Opcode::Jump, 0, 0, next);
    endMark();
    Label exit;
    exitFor_.push_back(&exit);
    const std::size_t body = procedure_.code.size();
    block(s.body);
    exitFor_.pop_back();
    bind(next);
    beginMark(s.closing);
    searchAgain(s.target->symbol, variable);
    emitJumpTo(Opcode::EachNext, variable, iterator, body);
    endMark();
    bind(exit);
    emit(encode(Opcode::Clear, iterator));
    hidden_ = hiddenMark;
}

// The test stands below the body; after an error in it, Resume Next goes on inside the loop.
void CodeGen::whileStatement(const Stmt& s) {
    Label test;
    emitJump(Opcode::Jump, 0, 0, test);
    endMark();
    const std::size_t body = procedure_.code.size();
    block(s.body);
    bind(test);
    beginMark(s.at);
    jumpIfTo(s.value, body);
    endMark();
    procedure_.marks.back().resume = static_cast<std::uint32_t>(body);
}

void CodeGen::doStatement(const Stmt& s) {
    Label test;
    Label exit;
    const bool before = s.test == LoopTest::WhileBefore || s.test == LoopTest::UntilBefore;
    if (before) {
        emitJump(Opcode::Jump, 0, 0, test);
    }
    endMark();
    exitDo_.push_back(&exit);
    const std::size_t body = procedure_.code.size();
    block(s.body);
    exitDo_.pop_back();
    bind(test);
    beginMark(before ? s.at : s.closing);
    if (s.test == LoopTest::None) {
        emitJumpTo(Opcode::Back, 0, 0, body);
    } else if (s.test == LoopTest::WhileBefore || s.test == LoopTest::WhileAfter) {
        jumpIfTo(s.value, body);
    } else {
        jumpUnlessTo(s.value, body);
    }
    endMark();
    if (before) {
        procedure_.marks.back().resume = static_cast<std::uint32_t>(body);
    }
    bind(exit);
}

void CodeGen::withStatement(const Stmt& s) {
    const std::size_t hiddenMark = hidden_;
    const Operand object = newHidden();
    if (decl_.resumesNext) {
        emit(encode(Opcode::Clear, object));
    }
    exprTo(s.value, object, Store::Set);
    endMark();
    withs_.push_back(object);
    block(s.body);
    withs_.pop_back();
    emit(encode(Opcode::Clear, object));
    hidden_ = hiddenMark;
}

void CodeGen::exitStatement(const Stmt& s) {
    if (s.exit == ExitKind::Do) {
        emitJump(Opcode::Jump, 0, 0, *exitDo_.back());
    } else if (s.exit == ExitKind::For) {
        emitJump(Opcode::Jump, 0, 0, *exitFor_.back());
    } else {
        emit(encode(Opcode::ClearError));
        emitJump(Opcode::Jump, 0, 0, exit_);
    }
}

void CodeGen::reDimStatement(const Stmt& s) {
    const Opcode op = s.preserve ? Opcode::ReDimPreserve : Opcode::ReDim;
    for (const Expr* target : s.targets) {
        const std::size_t temporaries = temporary_;
        const auto variable = target->a->kind == Expr::Kind::Name ? resolve(target->a->symbol) : Resolved{};
        const bool named = target->a->kind == Expr::Kind::Name;
        if (named && variable.kind != Resolved::Kind::Variable && variable.kind != Resolved::Kind::Unknown) {
            raiseAtRun(ErrorNumber::IllegalAssignment, target->a->symbol);
        } else if (named) {
            const Operand array = variable.kind == Resolved::Kind::Unknown ? unresolved(variable) : variable.operand;
            const Operand first = contiguous(target->args);
            emit(encode(op, array, first, 0, packed(target->args.size(), Store::Raw)));
        } else {
            const Operand copy = newTemporary();
            exprTo(target->a, copy, Store::Raw);
            const Operand first = contiguous(target->args);
            emit(encode(op, copy, first, 0, packed(target->args.size(), Store::Raw)));
            putBack(target->a, copy);
        }
        temporary_ = temporaries;
    }
}

// A member or an element that was taken out and changed returns to its place.
void CodeGen::putBack(const Expr* target, Operand copy) {
    if (target->kind == Expr::Kind::Member) {
        const Operand object = target->a != nullptr ? expr(target->a) : withObject();
        emit(encode(Opcode::SetMember, object, copy, site(target->symbol),
                    packed(isTemporary(object) ? 1 : 0, Store::Let)));
    } else {
        const Road road = roadTo(target);
        const Operand indexes = indexesOf(road);
        storeDeep(road, indexes, copy, Store::Let);
    }
}

// Whether the expression is an element of a variable, however deep.
bool CodeGen::isElement(const Expr* e) {
    const Expr* base = e;
    while (base->kind == Expr::Kind::Call && !base->args.empty()) {
        base = base->a;
    }
    if (base == e || base->kind != Expr::Kind::Name) {
        return false;
    }
    const Resolved::Kind kind = resolve(base->symbol).kind;
    return kind == Resolved::Kind::Variable || kind == Resolved::Kind::Unknown;
}

void CodeGen::eraseStatement(const Stmt& s) {
    for (const Expr* target : s.targets) {
        const std::size_t temporaries = temporary_;
        const ClassMember* own = ownMember(target);
        const bool field = own != nullptr && own->field >= 0;
        const bool unknown =
            target->kind == Expr::Kind::Name && resolve(target->symbol).kind == Resolved::Kind::Unknown;
        const Operand array = field     ? operandOf(Place::Field, static_cast<std::size_t>(own->field))
                              : unknown ? unresolved(resolve(target->symbol))
                                        : expr(target);
        emit(encode(Opcode::Erase, array));
        if (!field && (target->kind == Expr::Kind::Member || isElement(target))) {
            putBack(target, array);
        } else if (isTemporary(array)) {
            emit(encode(Opcode::Clear, array));
        }
        temporary_ = temporaries;
    }
}

} // namespace vbs
