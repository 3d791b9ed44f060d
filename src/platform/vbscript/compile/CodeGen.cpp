// Registers, names and emission; expressions, calls, assignments and statements stand in files of their own.
#include "platform/vbscript/compile/CodeGen.h"

#include "platform/vbscript/compile/ConstantFolding.h"
#include "platform/vbscript/compile/Specialize.h"

#include <algorithm>

namespace vbs {

CodeGen::CodeGen(UnitScope& scope, const ProcedureDecl& decl, Procedure& procedure, const ScriptClass* owner)
    : m_scope(scope), m_decl(decl), m_procedure(procedure), m_owner(owner) {
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
    m_locals[name.symbol].kind = name.kind;
    m_locals[name.symbol].fixedArray = name.fixedArray;
    ++m_procedure.parameters;
    m_procedure.byValue.push_back(false);
}

void CodeGen::generate() {
    layOut();
    prologue();
    block(m_decl.body);
    bind(m_exit);
    emit(encode(Opcode::Return));
    specialize(m_procedure.code, m_procedure.constants);
    m_procedure.firstTemporary = static_cast<std::uint16_t>(m_hiddenEnd);
    m_procedure.registers = static_cast<std::uint16_t>(m_highest);
    m_procedure.plainParameters = m_procedure.anyByValue ? UINT16_MAX : m_procedure.parameters;
    if (m_decl.dynamicScope) {
        for (const Symbol symbol : m_localOrder) {
            const Local& local = m_locals.at(symbol);
            const auto kind = local.literal != nullptr      ? LocalName::Kind::Constant
                              : local.late != Globals::none ? LocalName::Kind::Late
                                                            : local.kind;
            m_procedure.locals.push_back({{symbol, kind}, static_cast<std::uint16_t>(indexOf(local.operand))});
        }
    }
}

std::size_t CodeGen::newLocal(Symbol symbol, bool mayRefer, const Expr* literal) {
    if (m_nextLocal >= maxIndex / 2) {
        refuse(ErrorNumber::ProcedureTooLarge);
    }
    m_locals[symbol] = {operandOf(Place::Frame, m_nextLocal), mayRefer, literal};
    m_localOrder.push_back(symbol);
    return m_nextLocal++;
}

// Parameters are in place; then come the result, the variables, the constants and the slots of statements.
void CodeGen::layOut() {
    using PK = ProcedureDecl::Kind;
    const bool isMain = m_decl.kind == PK::Main;
    const bool answers =
        m_decl.kind == PK::Function || m_decl.kind == PK::PropertyGet || (isMain && m_decl.name != noSymbol);
    if (answers) {
        m_procedure.resultSlot = static_cast<int>(newLocal(m_decl.name, false));
    }
    if (!isMain || m_procedure.localText) {
        for (const Variable& variable : m_decl.variables) {
            if (!m_locals.contains(variable.name)) {
                newLocal(variable.name, false);
            }
        }
    }
    if (!isMain) {
        for (const ConstDecl& decl : m_decl.constants) {
            const std::size_t index = newLocal(decl.name, false, decl.value);
            m_localConstants.emplace_back(decl.value, operandOf(Place::Frame, index));
        }
        addImplicitLocals();
    }
    m_hidden = m_nextLocal;
    m_hiddenEnd = m_hidden + m_decl.hiddenSlots;
    m_temporary = m_highest = m_hiddenEnd;
}

// Undeclared names that the procedure assigns are its own, unless a global of that name is known.
void CodeGen::addImplicitLocals() {
    m_scope.at = m_decl.at;
    const auto consider = [this](Symbol symbol) {
        if (!m_locals.contains(symbol) && !isMember(symbol) &&
            m_scope.resolve(symbol).kind == Resolved::Kind::Unknown) {
            newLocal(symbol, false);
            m_scope.unit.assumedLocal.push_back(symbol);
        }
    };
    std::for_each(m_decl.redimmed.begin(), m_decl.redimmed.end(), consider);
    if (m_scope.ast.optionExplicit) {
        return;
    }
    std::for_each(m_decl.assigned.begin(), m_decl.assigned.end(), consider);
    const std::unordered_set<Symbol> called(m_decl.called.begin(), m_decl.called.end());
    for (const Passed& passed : m_decl.passed) {
        const bool toIntrinsic =
            passed.callee != noSymbol && m_scope.resolve(passed.callee).kind == Resolved::Kind::Intrinsic;
        const bool known = m_locals.contains(passed.name);
        if (!toIntrinsic && !called.contains(passed.name)) {
            consider(passed.name);
        }
        if (!known && m_locals.contains(passed.name)) {
            m_locals[passed.name].late = m_scope.slotOf(passed.name);
        }
    }
}

bool CodeGen::isMember(Symbol symbol) const {
    return m_owner != nullptr && m_owner->find(symbol) != nullptr;
}

Resolved CodeGen::resolve(Symbol symbol) {
    Resolved r;
    if (const auto local = m_locals.find(symbol); local != m_locals.end()) {
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
    if (m_owner != nullptr) {
        if (const ClassMember* member = m_owner->find(symbol); member != nullptr) {
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
    Resolved r = m_scope.resolve(symbol);
    if (r.literal != nullptr) {
        r.operand = constantOf(*r.literal);
    } else if (r.local != nullptr) {
        Value itself;
        itself.type = Type::Procedure;
        itself.pointer = r.local;
        r.operand = constant(std::move(itself));
    } else if (r.kind == Resolved::Kind::Variable && m_scope.isPassed(symbol)) {
        r.kind = Resolved::Kind::Unknown;
        r.passed = true;
    }
    return r;
}

bool CodeGen::isOwnResult(Symbol symbol) const {
    return m_procedure.resultSlot >= 0 && symbol == m_decl.name;
}

// As a callee, the name of the function around is the function, not its result.
Resolved CodeGen::resolveCallee(Symbol symbol) {
    if (isOwnResult(symbol) && m_decl.kind != ProcedureDecl::Kind::Main) {
        Resolved r;
        if (m_owner != nullptr) {
            r.kind = Resolved::Kind::OwnMember;
            r.member = m_owner->find(symbol);
            return r;
        }
        return resolveOutside(symbol);
    }
    const auto local = m_locals.find(symbol);
    if (m_decl.kind == ProcedureDecl::Kind::Main && local != m_locals.end() &&
        local->second.kind < LocalName::Kind::Constant) {
        // The text of an Eval sees the result of the function that runs it under the function's name.
        const Resolved global = resolveOutside(symbol);
        if (global.kind == Resolved::Kind::Callable) {
            return global;
        }
    }
    return resolve(symbol);
}

// Where the value of a name is that nothing has defined yet. In a procedure that uses Execute it is searched when the
// instruction before its use runs.
Operand CodeGen::unresolved(const Resolved& name, Use use) {
    const bool checked = m_scope.ast.optionExplicit;
    if (m_decl.dynamicScope && (m_decl.kind != ProcedureDecl::Kind::Main || m_procedure.localText)) {
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
    if (m_temporary >= maxIndex) {
        refuse(ErrorNumber::ProcedureTooLarge);
    }
    const Operand o = operandOf(Place::Frame, m_temporary++);
    m_highest = std::max(m_highest, m_temporary);
    return o;
}

Operand CodeGen::newHidden() {
    return operandOf(Place::Frame, m_hidden++);
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
    auto& numbers = computed ? m_computedConstants : m_numberConstants;
    std::u16string textKey;
    if (text) {
        textKey = value.text();
        if (const auto found = m_textConstants.find(textKey); found != m_textConstants.end()) {
            return found->second;
        }
    } else if (keyed) {
        const auto found = numbers.find(numberKey);
        if (found != numbers.end()) {
            const Value& known = m_procedure.constants[indexOf(found->second)];
            if (known.type == value.type && known.n == value.n) {
                return found->second;
            }
        }
    }
    const std::size_t index = m_procedure.constants.size();
    m_procedure.constants.push_back(std::move(value));
    if (computed) {
        m_procedure.computed.resize(index + 1);
        m_procedure.computed[index] = true;
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
        m_textConstants[textKey] = o;
    } else if (keyed) {
        numbers[numberKey] = o;
    }
    return o;
}

Operand CodeGen::textConstant(Symbol symbol) {
    return constant(Value::ofString(std::u16string_view(m_scope.symbols.name(symbol))));
}

// A place of its own, while there are any; then places with the same name share one.
std::uint16_t CodeGen::site(Symbol symbol) {
    const std::size_t index = m_procedure.sites.size();
    if (index > 0xffff) {
        const auto known = m_sites.find(symbol);
        return known != m_sites.end() ? known->second : (refuse(ErrorNumber::ProcedureTooLarge), std::uint16_t{0});
    }
    MemberSite fresh;
    fresh.symbol = symbol;
    m_procedure.sites.push_back(fresh);
    return m_sites[symbol] = static_cast<std::uint16_t>(index);
}

std::uint16_t CodeGen::selfCall(const Procedure* procedure) {
    const auto [entry, added] =
        m_selfCalls.try_emplace(procedure, static_cast<std::uint16_t>(m_procedure.selfCalls.size()));
    if (added) {
        if (m_procedure.selfCalls.size() > 0xffff) {
            refuse(ErrorNumber::ProcedureTooLarge);
        }
        m_procedure.selfCalls.push_back(procedure);
    }
    return entry->second;
}

void CodeGen::refuse(ErrorNumber number) const {
    throw CompileError{number, m_procedure.marks.empty() ? m_decl.at : m_procedure.marks.back().at};
}

void CodeGen::emitCall(Opcode op, Operand to, Operand b, Operand c, std::size_t count, Store store) {
    if (count > maxPacked) {
        emit(encodeJump(Opcode::Wide, 0, 0, static_cast<std::int32_t>(count)));
    }
    emit(encode(op, to, b, c, packed(count > maxPacked ? 0 : count, store)));
}

std::size_t CodeGen::emit(Instruction instruction) {
    m_procedure.code.push_back(instruction);
    return m_procedure.code.size() - 1;
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
        patch(at, m_procedure.code.size());
    }
    label.clear();
}

void CodeGen::patch(std::size_t at, std::size_t target) {
    const auto jump = static_cast<std::int64_t>(target) - static_cast<std::int64_t>(at) - 1;
    if (jump > maxJump || jump < -maxJump) {
        refuse(ErrorNumber::ProcedureTooLarge);
    }
    Instruction& instruction = m_procedure.code[at];
    instruction =
        (instruction & 0xffffffffffU) | (static_cast<Instruction>(static_cast<std::uint64_t>(jump) & 0xffffffU) << 40);
}

void CodeGen::beginMark(Position at) {
    const auto here = static_cast<std::uint32_t>(m_procedure.code.size());
    m_procedure.marks.push_back({here, here, at});
    m_scope.at = at;
    m_markOpen = true;
}

// After an error in what was emitted since beginMark, Resume Next goes on here.
void CodeGen::endMark() {
    if (m_markOpen) {
        m_procedure.marks.back().resume = static_cast<std::uint32_t>(m_procedure.code.size());
        m_markOpen = false;
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
    for (const auto& [literal, operand] : m_localConstants) {
        if (m_decl.dynamicScope) { // for Execute; code of this text holds the literal
            emit(encode(Opcode::Move, operand, constantOf(*literal)));
        }
    }
}

} // namespace vbs
