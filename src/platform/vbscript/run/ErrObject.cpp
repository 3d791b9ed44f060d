#include "platform/vbscript/run/ErrObject.h"

#include "platform/vbscript/run/Vm.h"
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Library.h"

#include <utility>

namespace vbs {

namespace {

constexpr std::int32_t greatestNumber = 65535; // that a script may raise

} // namespace

std::span<const ErrObject::Member> ErrObject::members() {
    static constexpr Member table[] = {
        {u"Number", &ErrObject::number, readWrite, 0, 0},
        {u"Source", &ErrObject::text<&ErrorState::source>, readWrite, 0, 0},
        {u"Description", &ErrObject::text<&ErrorState::description>, readWrite, 0, 0},
        {u"HelpFile", &ErrObject::text<&ErrorState::helpFile>, readWrite, 0, 0},
        {u"HelpContext", &ErrObject::helpContext, readWrite, 0, 0},
        {u"Clear", &ErrObject::clear, readOnly, 0, 0},
        {u"Raise", &ErrObject::raiseError, readOnly, 0, 5},
    };
    return table;
}

std::int32_t scriptErrorNumber(std::int32_t code) noexcept {
    const auto bits = static_cast<std::uint32_t>(code);
    if ((bits & 0xFFFF0000U) == 0x800A0000U) {
        return static_cast<std::int32_t>(bits & 0xFFFFU);
    }
    switch (bits) {
    case 0x80004001U:
        return 445;
    case 0x80004002U:
        return 430;
    case 0x80020001U:
    case 0x80020003U:
    case 0x80020006U:
        return 438;
    case 0x80020004U:
        return 448;
    case 0x80020005U:
        return 13;
    case 0x80020007U:
        return 446;
    case 0x80020008U:
        return 458;
    case 0x8002000AU:
        return 6;
    case 0x8002000BU:
        return 9;
    case 0x8002000CU:
        return 447;
    case 0x8002000DU:
        return 10;
    case 0x8002000EU:
        return 450;
    case 0x8002000FU:
        return 449;
    case 0x80020012U:
        return 11;
    case 0x8007000EU:
        return 7;
    case 0x80070057U:
        return 5;
    case 0x800401F3U:
    case 0x80040154U:
        return 429;
    default:
        return code;
    }
}

ErrObject::ErrObject(Vm& vm) : vm_(&vm) {
    vm.adopt(*this);
}

ErrObject::~ErrObject() {
    dropContents();
}

void ErrObject::dropContents() noexcept {
    if (vm_ != nullptr) {
        std::exchange(vm_, nullptr)->abandon(*this);
    }
}

ErrorState& ErrObject::state() const {
    if (vm_ == nullptr) {
        raise(ErrorNumber::ObjectRequired);
    }
    return vm_->error;
}

Value ErrObject::number(Context& context, Access access, Arguments arguments) {
    if (access == Access::Let) {
        state().number = scriptErrorNumber(toLong(context, arguments[0]));
    }
    return Value::ofLong(state().number);
}

template <String ErrorState::*part>
Value ErrObject::text(Context& context, Access access, Arguments arguments) {
    String& text = state().*part;
    if (access == Access::Let) {
        text = toString(context, arguments[0]);
    }
    return Value::ofString(text);
}

Value ErrObject::helpContext(Context& context, Access access, Arguments arguments) {
    if (access == Access::Let) {
        state().helpContext = toLong(context, arguments[0]);
    }
    return Value::ofLong(state().helpContext);
}

Value ErrObject::clear(Context& /*context*/, Access /*access*/, Arguments /*arguments*/) {
    state() = {};
    return {};
}

// Raise number [, source [, description [, helpfile [, helpcontext]]]]: what is left out keeps what Err
// holds while it is not cleared.
Value ErrObject::raiseError(Context& context, Access /*access*/, Arguments arguments) {
    const Value* number = optional(arguments, 0);
    if (number == nullptr) {
        raise(ErrorNumber::WrongArgumentCount);
    }
    ScriptError raised;
    raised.number = scriptErrorNumber(toLong(context, *number));
    if (raised.number == 0 || raised.number > greatestNumber) {
        raise(ErrorNumber::InvalidCall);
    }
    const bool kept = state().number != 0;
    const auto text = [&](std::size_t i, const String& present) {
        const Value* given = optional(arguments, i);
        return given != nullptr ? toString(context, *given) : kept ? present : String();
    };
    raised.source = text(1, state().source);
    raised.description = text(2, state().description);
    raised.helpFile = text(3, state().helpFile);
    const Value* helpContext = optional(arguments, 4);
    raised.helpContext = helpContext != nullptr ? toLong(context, *helpContext) : kept ? state().helpContext : 0;
    throw raised;
}

} // namespace vbs
