// A script value: a type and eight bytes of payload. Numbers, dates and Booleans live in the value itself; texts,
// arrays and objects are shared by reference count. Copying an array value shares the block, and whoever writes first
// copies (so arrays behave as values); an object dies with its last reference.
//
// The numbers of Type are chosen for the machine's fast paths: Integer and Long are 0 and 1, so that (a | b) <= 1 tells
// "both whole" in one test, and everything from String upwards owns a share of something.
#pragma once

#include "platform/vbscript/value/String.h"

#include <cstdint>
#include <span>
#include <utility>

namespace vbs {

class Object;
class ArrayBlock;
struct Value;

enum class Type : std::uint64_t {
    Integer = 0,
    Long = 1,
    Double = 2,
    Single = 3,
    Currency = 4,
    Date = 5,
    Boolean = 6,
    Byte = 7,
    Empty = 8,
    Null = 9,
    Error = 10,     // internal numbers only: an argument that was left out
    Undefined = 11, // internal: a global name that nothing has defined yet
    Procedure = 12, // internal: a global name that is a procedure, class or intrinsic
    Reference = 13, // internal: a by-reference argument; the payload is the variable
    String = 14,
    Object = 15, // a null pointer is Nothing
    Array = 16,
};

using Arguments = std::span<Value>;

struct Value {
    Type type = Type::Empty;
    union {
        std::int64_t n = 0;  // Integer, Long, Byte; Boolean as 0 or -1; Currency in ten-thousandths
        double d;            // Double, Date (days since 1899-12-30), Single (already rounded to float)
        Counted* counted;    // String (null is the empty text), Object, Array
        Value* target;       // Reference
        const void* pointer; // Procedure
    };

    Value() noexcept {}
    Value(Type t, std::int64_t payload) noexcept : type(t), n(payload) {}
    Value(const Value& other) noexcept : type(other.type), n(other.n) {
        if (isCounted()) {
            retain();
        }
    }
    Value(Value&& other) noexcept : type(other.type), n(other.n) { other.type = Type::Empty; }
    ~Value() {
        if (isCounted()) {
            release();
        }
    }
    Value& operator=(const Value& other) noexcept {
        if (other.isCounted()) {
            other.retain();
        }
        const Value old(type, n, Raw{});
        type = other.type;
        n = other.n;
        return *this;
    }
    Value& operator=(Value&& other) noexcept {
        const Value old(type, n, Raw{});
        type = other.type;
        n = other.n;
        if (&other != this) {
            other.type = Type::Empty;
        }
        return *this;
    }

    static Value empty() noexcept { return {}; }
    static Value null() noexcept { return {Type::Null, 0}; }
    static Value nothing() noexcept { return {Type::Object, 0}; }
    static Value missing() noexcept { return {Type::Error, missingArgument}; }
    static Value ofBoolean(bool b) noexcept { return {Type::Boolean, b ? -1 : 0}; }
    static Value ofByte(std::uint8_t b) noexcept { return {Type::Byte, b}; }
    static Value ofInteger(std::int16_t i) noexcept { return {Type::Integer, i}; }
    static Value ofLong(std::int32_t i) noexcept { return {Type::Long, i}; }
    // Integer if it fits in 16 bits, else Long, else Double.
    static Value ofWhole(std::int64_t i) noexcept;
    static Value ofDouble(double x) noexcept { return ofReal(Type::Double, x); }
    static Value ofSingle(double x) noexcept { return ofReal(Type::Single, static_cast<float>(x)); }
    static Value ofDate(double days) noexcept { return ofReal(Type::Date, days); }
    static Value ofCurrency(std::int64_t tenThousandths) noexcept { return {Type::Currency, tenThousandths}; }
    static Value ofString(String s) noexcept {
        Value v;
        v.type = Type::String;
        v.counted = s.detach();
        return v;
    }
    static Value ofString(std::u16string_view text) { return ofString(String(text)); }
    static Value ofObject(Object* object) noexcept;   // shares it
    static Value ofArray(ArrayBlock* array) noexcept; // takes over the caller's reference

    bool isCounted() const noexcept { return type >= Type::String; }
    bool isString() const noexcept { return type == Type::String; }
    bool isObject() const noexcept { return type == Type::Object; }
    bool isArray() const noexcept { return type == Type::Array; }
    bool isNull() const noexcept { return type == Type::Null; }
    bool isEmpty() const noexcept { return type == Type::Empty; }
    bool isMissing() const noexcept { return type == Type::Error && n == missingArgument; }
    bool isWhole() const noexcept { return type <= Type::Long; } // Integer or Long

    // The variable behind a by-reference argument, or this value itself.
    const Value& deref() const noexcept { return type == Type::Reference ? *target : *this; }
    Value& deref() noexcept { return type == Type::Reference ? *target : *this; }

    // Only for the type named.
    StringBlock* stringBlock() const noexcept { return static_cast<StringBlock*>(counted); }
    std::u16string_view text() const noexcept {
        return counted != nullptr ? std::u16string_view(stringBlock()->text(), stringBlock()->length)
                                  : std::u16string_view();
    }
    String string() const noexcept; // shares
    // A text with half a character at its end (see String::fromBytes); any type may be asked.
    bool hasOddByte() const noexcept { return isString() && counted != nullptr && stringBlock()->oddByte != 0; }
    Object* object() const noexcept;    // defined in Object.h
    ArrayBlock* array() const noexcept; // defined in Array.h

    // Makes the value Empty and gives up what it held.
    void clear() noexcept {
        if (isCounted()) {
            const Value old(type, n, Raw{});
            type = Type::Empty;
        } else {
            type = Type::Empty;
        }
    }

    static constexpr std::int64_t missingArgument = 0x80020004;

private:
    struct Raw {};
    Value(Type t, std::int64_t payload, Raw) noexcept : type(t), n(payload) {}
    static Value ofReal(Type t, double x) noexcept {
        Value v;
        v.type = t;
        v.d = x;
        return v;
    }
    void retain() const noexcept {
        if (counted != nullptr) {
            ++counted->references;
        }
    }
    void release() noexcept {
        if (counted != nullptr && --counted->references == 0) {
            destroy();
        }
    }
    void destroy() noexcept;
};

static_assert(sizeof(Value) == 16);

} // namespace vbs
