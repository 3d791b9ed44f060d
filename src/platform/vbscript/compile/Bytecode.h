// The machine's instructions.
//
// A procedure runs in a frame of registers: parameters, the result (of a Function or Property Get), local variables,
// slots that statements keep for themselves, and temporaries. An operand names a value anywhere: its low two bits tell
// where (frame, globals, constants, fields of Me), the rest is the index. So `total = total + price * 2` with a global,
// a field and a constant is two instructions.
//
// Every temporary is used up by the one instruction that reads it: the instruction gives up what the temporary held.
//
// An instruction is 64 bits: code (8), A (16), B (16), then either C (16) and X (8), or a signed jump J (24) that
// counts from the instruction after it. X holds a number of arguments (low 6 bits) and a Store (high 2 bits). A few
// instructions take a second word D.
#pragma once

#include <cstdint>

namespace vbs {

using Instruction = std::uint64_t;
using Operand = std::uint16_t;

enum class Place : std::uint16_t { Frame = 0, Global = 1, Constant = 2, Field = 3 };
inline constexpr std::size_t maxIndex = 16383;

constexpr Operand operandOf(Place place, std::size_t index) noexcept {
    return static_cast<Operand>((index << 2) | static_cast<std::size_t>(place));
}
constexpr Place placeOf(Operand o) noexcept {
    return static_cast<Place>(o & 3);
}
constexpr std::size_t indexOf(Operand o) noexcept {
    return o >> 2;
}

// What happens to a value on its way into A: Raw keeps it as it is, Let takes the default member of an object, Set
// wants an object, Discard drops it.
enum class Store : std::uint8_t { Raw = 0, Let = 1, Set = 2, Discard = 3 };

inline constexpr Operand arraysOnly = 1;

// name, operands and effect
#define VBS_OPCODES(OP)                                                                                                \
    OP(Move)         /* A = B, as it is */                                                                             \
    OP(Copy)         /* A = B, as it is, and B stays even if it is a temporary */                                      \
    OP(Let)          /* A = B; of an object its default member */                                                      \
    OP(SetObject)    /* A = B, which must be an object */                                                              \
    OP(StoreLet)     /* the variable that A stands for = B, as Let */                                                  \
    OP(StoreSet)     /* the variable that A stands for = B, as SetObject */                                            \
    OP(Reference)    /* A = reference to variable B */                                                                 \
    OP(LoadConstant) /* A = constant J */                                                                              \
    OP(Clear)        /* A = Empty */                                                                                   \
    OP(Add)          /* A = B op C */                                                                                  \
    OP(Subtract)                                                                                                       \
    OP(Multiply)                                                                                                       \
    OP(Divide)                                                                                                         \
    OP(IntegerDivide)                                                                                                  \
    OP(Modulo)                                                                                                         \
    OP(Power)                                                                                                          \
    OP(Concatenate)                                                                                                    \
    OP(And)                                                                                                            \
    OP(Or)                                                                                                             \
    OP(Xor)                                                                                                            \
    OP(Eqv)                                                                                                            \
    OP(Imp)                                                                                                            \
    OP(Equal)                                                                                                          \
    OP(NotEqual)                                                                                                       \
    OP(Less)                                                                                                           \
    OP(Greater)                                                                                                        \
    OP(LessEqual)                                                                                                      \
    OP(GreaterEqual)                                                                                                   \
    OP(Is)                                                                                                             \
    OP(Negate) /* A = op B */                                                                                          \
    OP(Not)                                                                                                            \
    OP(Join)       /* A = texts B, B+1 ... (X of them) in a row */                                                     \
    OP(Append)     /* A = A & texts B, B+1 ... (X of them) */                                                          \
    OP(Settle)     /* values A, A+1 ... (X of them) become what & makes of them */                                     \
    OP(Jump)       /* J */                                                                                             \
    OP(JumpIf)     /* A: J */                                                                                          \
    OP(JumpUnless) /* A: J */                                                                                          \
    OP(JumpEqual)  /* A op B: J */                                                                                     \
    OP(JumpNotEqual)                                                                                                   \
    OP(JumpLess)                                                                                                       \
    OP(JumpGreater)                                                                                                    \
    OP(JumpLessEqual)                                                                                                  \
    OP(JumpGreaterEqual)                                                                                               \
    OP(JumpIs)                                                                                                         \
    OP(JumpBoth)    /* A And B: J */                                                                                   \
    OP(UnlessEqual) /* not (A op B), Null included: J */                                                               \
    OP(UnlessNotEqual)                                                                                                 \
    OP(UnlessLess)                                                                                                     \
    OP(UnlessGreater)                                                                                                  \
    OP(UnlessLessEqual)                                                                                                \
    OP(UnlessGreaterEqual)                                                                                             \
    OP(UnlessIs)                                                                                                       \
    OP(UnlessBoth)                                                                                                     \
    OP(JumpNothing) /* A Is B, which is the constant Nothing: J */                                                     \
    OP(UnlessNothing)                                                                                                  \
    OP(JumpByValue)    /* A: J, unless it holds code of a script, which takes its arguments by reference; */           \
                       /* B = arraysOnly: J if it holds an array */                                                    \
    OP(Back)           /* J, at the end of a loop: polls */                                                            \
    OP(ForPrepare)     /* A variable, B limit, B+1 step, B+2 start; J past the loop if it does not run */              \
    OP(ForLoop)        /* A variable, B limit, B+1 step; J to the body while it runs */                                \
    OP(ForNext)        /* the same for a step of 1 */                                                                  \
    OP(EachPrepare)    /* A = iterator over B */                                                                       \
    OP(EachNext)       /* A = next element of iterator B and J to the body, if there is one */                         \
    OP(Index)          /* A = B(C) */                                                                                  \
    OP(Index2)         /* A = B(C, D) */                                                                               \
    OP(IndexN)         /* A = B(C, C+1 ... X of them) */                                                               \
    OP(SetIndex)       /* A(B) = C */                                                                                  \
    OP(SetIndex2)      /* A(B, C) = D */                                                                               \
    OP(SetIndexN)      /* A(B, B+1 ... X of them) = C; to Discard: the way home of an element that went by */          \
                       /* reference, unless C+1, what it was, is still the same; so with SetDeep */                    \
    OP(SetDeep)        /* A(B, B+1 ...)(...) ... = C; shape D tells how many indexes each level has */                 \
    OP(Wide)           /* the call that follows has J arguments, more than its X can tell */                           \
    OP(Call)           /* A = C(B, B+1 ... X of them): procedure, array or object */                                   \
    OP(CallSelf)       /* A = own procedure C(B ... X of them) on Me */                                                \
    OP(CallIntrinsic1) /* A = intrinsic C(B) */                                                                        \
    OP(CallIntrinsic)  /* A = intrinsic C(B, B+1 ... X of them) */                                                     \
    OP(GetMember)      /* A = B.site C; X: 1 if B is temporary */                                                      \
    OP(CallMember)     /* A = B.site C(D, D+1 ... X of them) */                                                        \
    OP(SetMember)      /* A.site C = B; X: 1 if A is temporary */                                                      \
    OP(SetMemberN)     /* A.site C(B ... X of them) = the value after them */                                          \
    OP(GetName)        /* A = C, a name that may be variable or function */                                            \
    OP(CheckDefined)   /* error 500 if nothing has defined global C */                                                 \
    OP(FindName)       /* A = reference to what global name C is in this call; X & 1: error 500 if it is nothing, */   \
                       /* X & 4: error 501 if it is no variable; X = 2: the reference is to B if it is nothing, */     \
                       /* and of what is no variable A gets the value */                                               \
    OP(New)            /* A = new object of class C */                                                                 \
    OP(NewNamed)       /* A = new object of the built-in class whose name is constant C */                             \
    OP(Me)             /* A = Me */                                                                                    \
    OP(ReDim)          /* A gets the upper bounds B, B+1 ... (X of them) */                                            \
    OP(ReDimPreserve)                                                                                                  \
    OP(Erase)     /* A */                                                                                              \
    OP(MakeArray) /* A = array of shape C, unless it is one already */                                                 \
    OP(Execute)   /* A = result of running text B; X: 0 Execute, 1 ExecuteGlobal, 2 Eval */                            \
    OP(GetRef)    /* A = reference to the procedure whose name is B */                                                 \
    OP(OnError)   /* A = 1: resume next, 0: stop */                                                                    \
    OP(ClearError)                                                                                                     \
    OP(Raise) /* error number C, detail constant B if X = 1 */                                                         \
    OP(Return)

// The commonest operands have forms of their own, which specialize() picks when a procedure is complete. Local: every
// operand is a register of the frame. Small: the last operand is a whole constant of -128 to 127, the others are
// registers of the frame; the number also stands in X, or, where the instruction jumps, in the low 8 bits of J (which
// then has 16 bits above them). Self: a small form whose result goes where its first operand is. The operands stay as
// they are, so the long roads need not know.
#define VBS_LOCAL_FORMS(OP)                                                                                            \
    OP(Move)                                                                                                           \
    OP(Let)                                                                                                            \
    OP(Add)                                                                                                            \
    OP(Subtract)                                                                                                       \
    OP(Multiply)                                                                                                       \
    OP(Divide)                                                                                                         \
    OP(IntegerDivide)                                                                                                  \
    OP(Modulo)                                                                                                         \
    OP(And)                                                                                                            \
    OP(Or)                                                                                                             \
    OP(Xor)                                                                                                            \
    OP(Equal)                                                                                                          \
    OP(NotEqual)                                                                                                       \
    OP(Less)                                                                                                           \
    OP(Greater)                                                                                                        \
    OP(LessEqual)                                                                                                      \
    OP(GreaterEqual)                                                                                                   \
    OP(Index)                                                                                                          \
    OP(Index2)                                                                                                         \
    OP(SetIndex)                                                                                                       \
    OP(SetIndex2)                                                                                                      \
    OP(JumpIf)                                                                                                         \
    OP(JumpUnless) OP(JumpBoth) OP(UnlessBoth) OP(ForLoop) OP(ForNext) OP(GetMember) OP(SetMember) VBS_JUMPS_ON(OP)
#define VBS_SMALL_FORMS(OP) OP(Add) OP(Subtract) OP(Multiply) OP(IntegerDivide) OP(Modulo) OP(And) VBS_JUMPS_ON(OP)
#define VBS_SELF_FORMS(OP) OP(Add) OP(Subtract)
#define VBS_JUMPS_ON(OP)                                                                                               \
    OP(JumpEqual)                                                                                                      \
    OP(JumpNotEqual)                                                                                                   \
    OP(JumpLess)                                                                                                       \
    OP(JumpGreater)                                                                                                    \
    OP(JumpLessEqual)                                                                                                  \
    OP(JumpGreaterEqual)                                                                                               \
    OP(UnlessEqual) OP(UnlessNotEqual) OP(UnlessLess) OP(UnlessGreater) OP(UnlessLessEqual) OP(UnlessGreaterEqual)

enum class Opcode : std::uint8_t {
#define VBS_OPCODE(name) name,
#define VBS_LOCAL(name) name##Local,
#define VBS_SMALL(name) name##Small,
#define VBS_SELF(name) name##Self,
    VBS_OPCODES(VBS_OPCODE) VBS_LOCAL_FORMS(VBS_LOCAL) VBS_SMALL_FORMS(VBS_SMALL) VBS_SELF_FORMS(VBS_SELF)
#undef VBS_OPCODE
#undef VBS_LOCAL
#undef VBS_SMALL
#undef VBS_SELF
};

// The opcode that a form was picked for.
constexpr Opcode generalForm(Opcode op) noexcept {
    switch (op) {
#define VBS_LOCAL(name)                                                                                                \
    case Opcode::name##Local:                                                                                          \
        return Opcode::name;
#define VBS_SMALL(name)                                                                                                \
    case Opcode::name##Small:                                                                                          \
        return Opcode::name;
#define VBS_SELF(name)                                                                                                 \
    case Opcode::name##Self:                                                                                           \
        return Opcode::name;
        VBS_LOCAL_FORMS(VBS_LOCAL)
        VBS_SMALL_FORMS(VBS_SMALL)
        VBS_SELF_FORMS(VBS_SELF)
#undef VBS_LOCAL
#undef VBS_SMALL
#undef VBS_SELF
    default:
        return op;
    }
}

constexpr bool hasSecondWord(Opcode op) noexcept {
    return op == Opcode::Index2 || op == Opcode::SetIndex2 || op == Opcode::SetDeep || op == Opcode::CallMember;
}

constexpr Instruction encode(Opcode op, Operand a = 0, Operand b = 0, Operand c = 0, std::uint8_t x = 0) noexcept {
    return static_cast<Instruction>(op) | (static_cast<Instruction>(a) << 8) | (static_cast<Instruction>(b) << 24) |
           (static_cast<Instruction>(c) << 40) | (static_cast<Instruction>(x) << 56);
}
constexpr Instruction encodeJump(Opcode op, Operand a, Operand b, std::int32_t jump) noexcept {
    return static_cast<Instruction>(op) | (static_cast<Instruction>(a) << 8) | (static_cast<Instruction>(b) << 24) |
           (static_cast<Instruction>(static_cast<std::uint32_t>(jump) & 0xffffffU) << 40);
}
inline constexpr std::int32_t maxJump = 0x7fffff;

// The most arguments that X can tell.
inline constexpr std::size_t maxPacked = 62;

constexpr std::uint8_t packed(std::size_t count, Store store) noexcept {
    return static_cast<std::uint8_t>(count | (static_cast<std::size_t>(store) << 6));
}

} // namespace vbs
