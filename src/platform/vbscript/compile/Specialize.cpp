#include "platform/vbscript/compile/Specialize.h"

#include <array>
#include <optional>

namespace vbs {

namespace {

struct Forms {
    Opcode local;
    Opcode small;
    Opcode self;
};

// The forms of every opcode; one without forms stands for itself.
constexpr auto forms = [] {
    std::array<Forms, 256> of{};
    for (std::size_t i = 0; i < of.size(); ++i) {
        of[i] = {static_cast<Opcode>(i), static_cast<Opcode>(i), static_cast<Opcode>(i)};
    }
#define VBS_LOCAL(name) of[static_cast<std::size_t>(Opcode::name)].local = Opcode::name##Local;
#define VBS_SMALL(name) of[static_cast<std::size_t>(Opcode::name)].small = Opcode::name##Small;
#define VBS_SELF(name) of[static_cast<std::size_t>(Opcode::name)].self = Opcode::name##Self;
    VBS_LOCAL_FORMS(VBS_LOCAL)
    VBS_SMALL_FORMS(VBS_SMALL)
    VBS_SELF_FORMS(VBS_SELF)
#undef VBS_LOCAL
#undef VBS_SMALL
#undef VBS_SELF
    return of;
}();

constexpr bool jumps(Opcode op) noexcept {
    switch (op) {
#define VBS_JUMP(name) case Opcode::name:
        VBS_JUMPS_ON(VBS_JUMP)
#undef VBS_JUMP
    case Opcode::JumpIf:
    case Opcode::JumpUnless:
    case Opcode::JumpIs:
    case Opcode::JumpBoth:
    case Opcode::UnlessIs:
    case Opcode::UnlessBoth:
    case Opcode::ForLoop:
    case Opcode::ForNext:
        return true;
    default:
        return false;
    }
}

constexpr int operandsOf(Opcode op) noexcept {
    switch (op) {
    case Opcode::JumpIf:
    case Opcode::JumpUnless:
        return 1;
    case Opcode::Move:
    case Opcode::Let:
    case Opcode::GetMember:
    case Opcode::SetMember:
        return 2;
    default:
        return jumps(op) ? 2 : 3;
    }
}

constexpr Operand operandAt(Instruction i, int which) noexcept {
    return static_cast<Operand>(i >> (8 + 16 * which));
}

bool inFrame(Instruction i, int count) noexcept {
    for (int which = 0; which < count; ++which) {
        if (placeOf(operandAt(i, which)) != Place::Frame) {
            return false;
        }
    }
    return true;
}

constexpr Instruction withOpcode(Instruction i, Opcode op) noexcept {
    return (i & ~Instruction{0xff}) | static_cast<Instruction>(op);
}

std::optional<std::uint8_t> smallNumber(Operand o, std::span<const Value> constants) noexcept {
    if (placeOf(o) != Place::Constant) {
        return {};
    }
    const Value& v = constants[indexOf(o)];
    if (v.type != Type::Integer || v.n < INT8_MIN || v.n > INT8_MAX) {
        return {};
    }
    return static_cast<std::uint8_t>(v.n);
}

bool isNothing(Operand o, std::span<const Value> constants) noexcept {
    return placeOf(o) == Place::Constant && constants[indexOf(o)].isObject();
}

Instruction smallForm(Instruction i, Opcode general, Opcode form, std::uint8_t number) noexcept {
    if (!jumps(general)) {
        return (withOpcode(i, form) & ~(Instruction{0xff} << 56)) | (Instruction{number} << 56);
    }
    const std::int64_t jump = static_cast<std::int64_t>(i) >> 40;
    if (jump < INT16_MIN || jump > INT16_MAX) {
        return i;
    }
    return (withOpcode(i, form) & 0xff'ffff'ffffU) | (Instruction{number} << 40) |
           (static_cast<Instruction>(static_cast<std::uint16_t>(jump)) << 48);
}

} // namespace

void specialize(std::span<Instruction> code, std::span<const Value> constants) noexcept {
    for (std::size_t at = 0; at < code.size(); ++at) {
        Instruction& i = code[at];
        const auto op = static_cast<Opcode>(i & 0xff);
        const Forms& form = forms[static_cast<std::size_t>(op)];
        const bool twoWords = hasSecondWord(op);
        if ((op == Opcode::JumpIs || op == Opcode::UnlessIs) && isNothing(operandAt(i, 1), constants)) {
            i = withOpcode(i, op == Opcode::JumpIs ? Opcode::JumpNothing : Opcode::UnlessNothing);
        }
        const int count = operandsOf(op);
        if (form.local != op && inFrame(i, count)) {
            const bool all = !twoWords || placeOf(static_cast<Operand>(code[at + 1])) == Place::Frame;
            i = all ? withOpcode(i, form.local) : i;
        } else if (form.small != op && inFrame(i, count - 1)) {
            const std::optional<std::uint8_t> number = smallNumber(operandAt(i, count - 1), constants);
            const bool self = form.self != op && operandAt(i, 0) == operandAt(i, 1);
            i = number ? smallForm(i, op, self ? form.self : form.small, *number) : i;
        }
        at += twoWords ? 1 : 0;
    }
}

} // namespace vbs
