// The operator & (declared in Operators.h).
#include "platform/vbscript/value/Convert.h"
#include "platform/vbscript/value/Operators.h"

#include <vector>

namespace vbs {

namespace {

// Texts with an odd number of bytes join byte by byte.
Value joinedBytes(const String& text, const String& tail) {
    std::vector<std::uint8_t> bytes(text.bytes().begin(), text.bytes().end());
    bytes.insert(bytes.end(), tail.bytes().begin(), tail.bytes().end());
    return Value::ofString(String::fromBytes(bytes));
}

// The text of both, one after the other; Null counts as no text unless both are. A text joined to nothing is shared.
Value joinedTexts(Context& context, const Value& left, const Value& right) {
    if (left.isNull() && right.isNull()) {
        return Value::null();
    }
    if (left.hasOddByte() || right.hasOddByte()) {
        const String text = left.isNull() ? String() : toString(context, left);
        return joinedBytes(text, right.isNull() ? String() : toString(context, right));
    }
    const Value nothing = Value::ofString(String());
    const TextArgument text(context, left.isNull() ? nothing : left);
    const TextArgument tail(context, right.isNull() ? nothing : right);
    if (text.size() == 0 && right.isString()) {
        return right;
    }
    if (tail.size() == 0 && left.isString()) {
        return left;
    }
    String joined = String::uninitialized(text.size() + tail.size());
    if (!joined.empty()) {
        char16_t* out = joined.mutableData();
        std::char_traits<char16_t>::copy(out, text.view().data(), text.size());
        std::char_traits<char16_t>::copy(out + text.size(), tail.view().data(), tail.size());
    }
    return Value::ofString(std::move(joined));
}

} // namespace

Value concatenate(Context& context, const Value& a, const Value& b) {
    const Value& left = a.deref();
    const Value& right = b.deref();
    if (left.isObject() || right.isObject()) {
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the default member of the first may change it
        const Value second = right;
        const Value first = withoutObject(context, left);
        return joinedTexts(context, first, withoutObject(context, second));
    }
    return joinedTexts(context, left, right);
}

} // namespace vbs
