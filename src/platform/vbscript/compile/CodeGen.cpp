// Registers, names and emission; expressions, calls, assignments and statements stand in files of their own.
#include "platform/vbscript/compile/CodeGen.h"

#include "platform/vbscript/compile/ConstantFolding.h"
#include "platform/vbscript/compile/Specialize.h"

#include <algorithm>

namespace vbs {

CodeGen::CodeGen(UnitScope& scope, const ProcedureDecl& decl, Procedure& procedure, const ScriptClass* owner)
    : scope_(scope), decl_(decl), procedure_(procedure), owner_(owner) {
    procedure.unit = &scope.unit;
    procedure.name = decl.name;
    procedure.form = decl.kind;
    procedure.dynamicScope = decl.dynamicScope;
    for (const Parameter& parameter : decl.parameters) {
        newLocal(parameter.name, !parameter.byValue);
        procedure.byValue.push_back(parameter.byValue);
        procedure.anyByValue = procedure.anyByValue || parameter.byValue;
    }
    procedure.parameters = static_cast<std::uint16_t>(decl.parameters.size());
}

void CodeGen::addCaptured(LocalName name) {
    newLocal(name.symbol, true);
    locals_[name.symbol].kind = name.kind;
    locals_[name.symbol].fixedArray = name.fixedArray;
    ++procedure_.parameters;
    procedure_.byValue.push_back(false);
}

void CodeGen::generate() {
    layOut();
    prologue();
    block(decl_.body);
    bind(exit_);
    emit(encode(Opcode::Return));
    specialize(procedure_.code, procedure_.constants);
    procedure_.firstTemporary = static_cast<std::uint16_t>(hiddenEnd_);
    procedure_.registers = static_cast<std::uint16_t>(highest_);
    procedure_.plainParameters = procedure_.anyByValue ? UINT16_MAX : procedure_.parameters;
    if (decl_.dynamicScope) {
        for (const Symbol symbol : localOrder_) {
            const Local& local = locals_.at(symbol);
            const auto kind = local.literal != nullptr      ? LocalName::Kind::Constant
                              : local.late != Globals::none ? LocalName::Kind::Late
                                                            : local.kind;
            procedure_.locals.push_back({{symbol, kind}, static_cast<std::uint16_t>(indexOf(local.operand))});
        }
    }
}

std::size_t CodeGen::newLocal(Symbol symbol, bool mayRefer, const Expr* literal) {
    if (nextLocal_ >= maxIndex / 2) {
        refuse(ErrorNumber::ProcedureTooLarge);
    }
    locals_[symbol] = {operandOf(Place::Frame, nextLocal_), mayRefer, literal};
    localOrder_.push_back(symbol);
    return nextLocal_++;
}

// Parameters are in place; then come the result, the variables, the constants and the slots of statements.
void CodeGen::layOut() {
    using PK = ProcedureDecl::Kind;
    const bool isMain = decl_.kind == PK::Main;
    const bool answers =
        decl_.kind == PK::Function || decl_.kind == PK::PropertyGet || (isMain && decl_.name != noSymbol);
    if (answers) {
        procedure_.resultSlot = static_cast<int>(newLocal(decl_.name, false));
    }
    if (!isMain || procedure_.localText) {
        for (const Variable& variable : decl_.variables) {
            if (!locals_.contains(variable.name)) {
                newLocal(variable.name, false);
            }
        }
    }
    if (!isMain) {
        for (const ConstDecl& decl : decl_.constants) {
            const std::size_t index = newLocal(decl.name, false, decl.value);
            localConstants_.emplace_back(decl.value, operandOf(Place::Frame, index));
        }
        addImplicitLocals();
    }
    hidden_ = nextLocal_;
    hiddenEnd_ = hidden_ + decl_.hiddenSlots;
    temporary_ = highest_ = hiddenEnd_;
}

// Undeclared names that the procedure assigns are its own, unless a global of that name is known.
void CodeGen::addImplicitLocals() {
    scope_.at = decl_.at;
    const auto consider = [this](Symbol symbol) {
        if (!locals_.contains(symbol) && !isMember(symbol) && scope_.resolve(symbol).kind == Resolved::Kind::Unknown) {
            newLocal(symbol, false);
            scope_.unit.assumedLocal.push_back(symbol);
        }
    };
    std::for_each(decl_.redimmed.begin(), decl_.redimmed.end(), consider);
    if (scope_.ast.optionExplicit) {
        return;
    }
    std::for_each(decl_.assigned.begin(), decl_.assigned.end(), consider);
    const std::unordered_set<Symbol> called(decl_.called.begin(), decl_.called.end());
    for (const Passed& passed : decl_.passed) {
        const bool toIntrinsic =
            passed.callee != noSymbol && scope_.resolve(passed.callee).kind == Resolved::Kind::Intrinsic;
        const bool known = locals_.contains(passed.name);
        if (!toIntrinsic && !called.contains(passed.name)) {
            consider(passed.name);
        }
        if (!known && locals_.contains(passed.name)) {
            locals_[passed.name].late = scope_.slotOf(passed.name);
        }
    }
}

bool CodeGen::isMember(Symbol symbol) const {
    return owner_ != nullptr && owner_->find(symbol) != nullptr;
}

Resolved CodeGen::resolve(Symbol symbol) {
    Resolved r;
    if (const auto local = locals_.find(symbol); local != locals_.end()) {
        using LK = LocalName::Kind;
        r.literal = local->second.literal;
        r.kind = r.literal != nullptr || local->second.kind == LK::Constant ? Resolved::Kind::Constant
                 : local->second.kind == LK::Callable                       ? Resolved::Kind::Callable
                                                                            : Resolved::Kind::Variable;
        r.operand = r.literal != nullptr ? constantOf(*r.literal) : local->second.operand;
        r.mayRefer = local->second.mayRefer;
        r.late = local->second.late != Globals::none;
        r.slot = local->second.late;
        return r;
    }
    if (owner_ != nullptr) {
        if (const ClassMember* member = owner_->find(symbol); member != nullptr) {
            const bool field = member->field >= 0;
            if (field && static_cast<std::size_t>(member->field) > maxIndex) {
                refuse(ErrorNumber::ProcedureTooLarge);
            }
            r.kind = field ? Resolved::Kind::Variable : Resolved::Kind::OwnMember;
            r.operand = field ? operandOf(Place::Field, static_cast<std::size_t>(member->field)) : Operand{0};
            r.member = member;
            return r;
        }
    }
    return resolveOutside(symbol);
}

// What the name means beyond the procedure and the class around it.
Resolved CodeGen::resolveOutside(Symbol symbol) {
    Resolved r = scope_.resolve(symbol);
    if (r.literal != nullptr) {
        r.operand = constantOf(*r.literal);
    } else if (r.local != nullptr) {
        Value itself;
        itself.type = Type::Procedure;
        itself.pointer = r.local;
        r.operand = constant(std::move(itself));
    } else if (r.kind == Resolved::Kind::Variable && (scope_.isPassed(symbol) || mayBeMade())) {
        r.kind = Resolved::Kind::Unknown;
        r.passed = true;
    }
    return r;
}

bool CodeGen::isOwnResult(Symbol symbol) const {
    return procedure_.resultSlot >= 0 && symbol == decl_.name;
}

// As a callee, the name of the function around is the function, not its result.
Resolved CodeGen::resolveCallee(Symbol symbol) {
    if (isOwnResult(symbol) && decl_.kind != ProcedureDecl::Kind::Main) {
        Resolved r;
        if (owner_ != nullptr) {
            r.kind = Resolved::Kind::OwnMember;
            r.member = owner_->find(symbol);
            return r;
        }
        return resolveOutside(symbol);
    }
    const auto local = locals_.find(symbol);
    if (decl_.kind == ProcedureDecl::Kind::Main && local != locals_.end() &&
        local->second.kind < LocalName::Kind::Constant) {
        // The text of an Eval sees the result of the function that runs it under the function's name.
        const Resolved global = resolveOutside(symbol);
        if (global.kind == Resolved::Kind::Callable) {
            return global;
        }
    }
    return resolve(symbol);
}

// Whether Execute may give the procedure names of its own, which come before those of the whole script.
bool CodeGen::mayBeMade() const noexcept {
    return decl_.dynamicScope && (decl_.kind != ProcedureDecl::Kind::Main || procedure_.localText);
}

// Where the value of a name is that nothing has defined yet. In a procedure that uses Execute it is searched when the
// instruction before its use runs.
Operand CodeGen::unresolved(const Resolved& name, Use use) {
    const bool checked = scope_.ast.optionExplicit;
    if (mayBeMade()) {
        const Operand to = newTemporary();
        emit(encode(Opcode::FindName, to, 0, name.operand, (checked ? 1U : 0U) | (use == Use::Assigned ? 4U : 0U)));
        return to;
    }
    if (checked) {
        emit(encode(Opcode::CheckDefined, 0, 0, name.operand));
    }
    return name.operand;
}

Operand CodeGen::newTemporary() {
    if (temporary_ >= maxIndex) {
        refuse(ErrorNumber::ProcedureTooLarge);
    }
    const Operand o = operandOf(Place::Frame, temporary_++);
    highest_ = std::max(highest_, temporary_);
    return o;
}

Operand CodeGen::newHidden() {
    return operandOf(Place::Frame, hidden_++);
}

Operand CodeGen::constantOf(const Expr& literal) {
    return constant(foldConstant(literal), literal.kind != Expr::Kind::Literal);
}

// `computed`: the script does not write the value as one literal, which counts where it is compared with a text.
Operand CodeGen::constant(Value value, bool computed) {
    const bool text = value.isString();
    const std::uint64_t key = (static_cast<std::uint64_t>(value.type) << 60) ^ static_cast<std::uint64_t>(value.n);
    const bool keyed = !text && (value.type <= Type::Long || value.type == Type::Double);
    // Doubles use their top bits; keep them apart from whole numbers by a key of their own.
    const std::uint64_t numberKey = value.type == Type::Double ? static_cast<std::uint64_t>(value.n) * 3 + 1 : key * 3;
    auto& numbers = computed ? computedConstants_ : numberConstants_;
    std::u16string textKey;
    if (text) {
        textKey = value.text();
        if (const auto found = textConstants_.find(textKey); found != textConstants_.end()) {
            return found->second;
        }
    } else if (keyed) {
        const auto found = numbers.find(numberKey);
        if (found != numbers.end()) {
            const Value& known = procedure_.constants[indexOf(found->second)];
            if (known.type == value.type && known.n == value.n) {
                return found->second;
            }
        }
    }
    const std::size_t index = procedure_.constants.size();
    procedure_.constants.push_back(std::move(value));
    if (computed) {
        procedure_.computed.resize(index + 1);
        procedure_.computed[index] = true;
    }
    if (index > maxIndex) {
        if (index > static_cast<std::size_t>(maxJump)) {
            refuse(ErrorNumber::ProcedureTooLarge);
        }
        const Operand temporary = newTemporary();
        emit(encodeJump(Opcode::LoadConstant, temporary, 0, static_cast<std::int32_t>(index)));
        return temporary;
    }
    const Operand o = operandOf(Place::Constant, index);
    if (text) {
        textConstants_[textKey] = o;
    } else if (keyed) {
        numbers[numberKey] = o;
    }
    return o;
}

Operand CodeGen::textConstant(Symbol symbol) {
    return constant(Value::ofString(std::u16string_view(scope_.symbols.name(symbol))));
}

// A place of its own, while there are any; then places with the same name share one.
std::uint16_t CodeGen::site(Symbol symbol) {
    const std::size_t index = procedure_.sites.size();
    if (index > 0xffff) {
        const auto known = sites_.find(symbol);
        return known != sites_.end() ? known->second : (refuse(ErrorNumber::ProcedureTooLarge), std::uint16_t{0});
    }
    MemberSite fresh;
    fresh.symbol = symbol;
    procedure_.sites.push_back(fresh);
    return sites_[symbol] = static_cast<std::uint16_t>(index);
}

std::uint16_t CodeGen::selfCall(const Procedure* procedure) {
    const auto [entry, added] =
        selfCalls_.try_emplace(procedure, static_cast<std::uint16_t>(procedure_.selfCalls.size()));
    if (added) {
        if (procedure_.selfCalls.size() > 0xffff) {
            refuse(ErrorNumber::ProcedureTooLarge);
        }
        procedure_.selfCalls.push_back(procedure);
    }
    return entry->second;
}

void CodeGen::refuse(ErrorNumber number) const {
    throw CompileError{number, procedure_.marks.empty() ? decl_.at : procedure_.marks.back().at};
}

void CodeGen::emitCall(Opcode op, Operand to, Operand b, Operand c, std::size_t count, Store store) {
    if (count > maxPacked) {
        emit(encodeJump(Opcode::Wide, 0, 0, static_cast<std::int32_t>(count)));
    }
    emit(encode(op, to, b, c, packed(count > maxPacked ? 0 : count, store)));
}

std::size_t CodeGen::emit(Instruction instruction) {
    procedure_.code.push_back(instruction);
    return procedure_.code.size() - 1;
}

std::size_t CodeGen::emitJump(Opcode op, Operand a, Operand b, Label& label) {
    label.push_back(emit(encodeJump(op, a, b, 0)));
    return label.back();
}

void CodeGen::emitJumpTo(Opcode op, Operand a, Operand b, std::size_t target) {
    patch(emit(encodeJump(op, a, b, 0)), target);
}

void CodeGen::bind(Label& label) {
    for (const std::size_t at : label) {
        patch(at, procedure_.code.size());
    }
    label.clear();
}

void CodeGen::patch(std::size_t at, std::size_t target) {
    const auto jump = static_cast<std::int64_t>(target) - static_cast<std::int64_t>(at) - 1;
    if (jump > maxJump || jump < -maxJump) {
        refuse(ErrorNumber::ProcedureTooLarge);
    }
    Instruction& instruction = procedure_.code[at];
    instruction =
        (instruction & 0xffffffffffU) | (static_cast<Instruction>(static_cast<std::uint64_t>(jump) & 0xffffffU) << 40);
}

void CodeGen::beginMark(Position at) {
    const auto here = static_cast<std::uint32_t>(procedure_.code.size());
    procedure_.marks.push_back({here, here, at});
    scope_.at = at;
    markOpen_ = true;
}

// After an error in what was emitted since beginMark, Resume Next goes on here.
void CodeGen::endMark() {
    if (markOpen_) {
        procedure_.marks.back().resume = static_cast<std::uint32_t>(procedure_.code.size());
        markOpen_ = false;
    }
}

void CodeGen::raiseAtRun(ErrorNumber number, Symbol detail) {
    const Operand text = detail != noSymbol ? textConstant(detail) : Operand{0};
    emit(encode(Opcode::Raise, 0, text, static_cast<Operand>(number), detail != noSymbol ? 1 : 0));
}

// Moves a finished value to where it is wanted.
void CodeGen::deliver(Operand from, Operand to, Store store) {
    emit(encode(store == Store::Let ? Opcode::Let : store == Store::Set ? Opcode::SetObject : Opcode::Move, to, from));
}

void CodeGen::prologue() {
    for (const auto& [literal, operand] : localConstants_) {
        if (decl_.dynamicScope) { // for Execute; code of this text holds the literal
            emit(encode(Opcode::Move, operand, constantOf(*literal)));
        }
    }
}

} // namespace vbs
