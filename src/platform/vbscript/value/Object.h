// What a script sees as an object. Host objects ("mw", "WScript"), the built-in ones (Dictionary, RegExp, Err) and
// instances of script classes all derive from Object. A member name is resolved to a number once and remembered by the
// machine for every object of the same shape.
//
// Host objects are easiest written with NativeObject<T> below: a table of names and member functions.
#pragma once

#include "platform/vbscript/value/Errors.h"
#include "platform/vbscript/value/Value.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

namespace vbs {

class Context;
class Object;

// A member's way for the arguments that it usually gets: false, and nothing has changed, if these are others, so that
// invoke() has to do it. Arguments may be anything; a road that goes with texts, arrays or objects clears them. The
// result is copied by its two words alone (no text, array or object). Never raises, runs no code of the script and ends
// no object.
using ShortRoad = bool (*)(Object& self, Value& result, std::span<Value> arguments) noexcept;

// How a member is used. With Let and Set the last argument is the value assigned.
enum class Access : std::uint8_t { Get = 1, Call = 2, Let = 4, Set = 8 };

// Hands out the elements of a collection, one a call.
class Enumerator {
public:
    virtual ~Enumerator() = default;
    // False at the end; else the next element is in `element`.
    virtual bool next(Context& context, Value& element) = 0;
};

class Object : public Counted {
public:
    static constexpr int defaultMember = 0; // the number of the default member where there is one
    static constexpr int noMember = -1;

    Object() noexcept { references = 0; } // the first Value that holds it makes it 1
    virtual ~Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    // What TypeName answers.
    virtual std::u16string_view typeName() const = 0;

    // Number of the member of that name (compared without regard to case), or noMember.
    virtual int resolve(std::u16string_view name) = 0;

    // Uses a member; `member` comes from resolve() or is defaultMember. The arguments belong to the caller; one that
    // was left out isMissing(), one given by reference is a Reference (see Value::deref) and may be written through.
    // Raises 438 (no such member or access) or 450 (wrong number of arguments).
    virtual Value invoke(Context& context, int member, Access access, Arguments arguments) = 0;

    // The short road of a member that is read or called, or null. Only asked of an object with a shape.
    virtual ShortRoad shortRoad(int /*member*/) const noexcept { return nullptr; }

    // The place of what the default member answers to one argument, a number or text, or null if invoke() has to do it.
    // Runs no code of the script. The place holds until the object is used again.
    virtual Value* itemPlace(const Value& /*argument*/) noexcept { return nullptr; }

    // For For Each; the default raises 451.
    virtual std::unique_ptr<Enumerator> enumerate(Context& context);

    // Lets go of everything the object refers to; the engine calls it at its end to break cycles.
    virtual void dropContents() noexcept {}

    // Objects with the same shape resolve every name alike, so the machine may remember the numbers. 0: it may not.
    std::uintptr_t shape = 0;

    // What the machine treats in a way of its own.
    enum class Role : std::uint8_t { Native, Instance, ProcedureReference, Iterator };
    Role role = Role::Native;
    // True for an object that writes through by-reference arguments; the others get plain values.
    bool takesReferences = false;

    // Of an object without references: deletes it unless it postpones its end.
    static void end(Object* object) noexcept;

    Object* nextDead = nullptr; // in a list of those whose last reference is gone

    // Neighbours among the objects that an engine has adopted (see Context::adopt).
    Object* adoptedBefore = nullptr;
    Object* adoptedAfter = nullptr;

protected:
    // Asked when the last reference goes. True: whoever answers has taken a reference and drops it in its own time (an
    // object of a script class waits so for its Class_Terminate). Runs no code of the script.
    virtual bool postponesEnd() noexcept { return false; }
};

inline Object* Value::object() const noexcept {
    return static_cast<Object*>(counted);
}

inline Value Value::ofObject(Object* object) noexcept {
    Value v;
    v.type = Type::Object;
    v.counted = object;
    v.retain();
    return v;
}

// An object whose members stand in a table:
//
//   class Counter : public NativeObject<Counter> {
//   public:
//       static std::span<const Member> members();      // in the .cpp: a static constexpr table
//       std::u16string_view typeName() const override { return u"Counter"; }
//   private:
//       Value value(Context&, Access, Arguments);
//   };
//   { u"Value", &Counter::value, Access::Get | Access::Let, 0, 0 }
//
// The number of arguments is checked before the function is called (the value of a Let or Set does not count).
// The entry at index 0 is the default member; begin the table with an entry without a name if there is none.
struct AccessSet {
    std::uint8_t bits;
    // One access stands for the set of it alone, as in tables. NOLINTNEXTLINE(google-explicit-constructor)
    constexpr AccessSet(Access a) noexcept : bits(static_cast<std::uint8_t>(a)) {}
    constexpr explicit AccessSet(unsigned b) noexcept : bits(static_cast<std::uint8_t>(b)) {}
    constexpr bool contains(Access a) const noexcept { return (bits & static_cast<std::uint8_t>(a)) != 0; }
};
constexpr AccessSet operator|(AccessSet a, AccessSet b) noexcept {
    return AccessSet(unsigned{a.bits} | b.bits);
}
constexpr AccessSet operator|(Access a, Access b) noexcept {
    return AccessSet(a) | AccessSet(b);
}
inline constexpr AccessSet readOnly = Access::Get | Access::Call;
inline constexpr AccessSet readWrite = readOnly | Access::Let;

template <class T>
class NativeObject : public Object {
public:
    struct Member {
        std::u16string_view name;
        Value (T::*function)(Context&, Access, Arguments);
        AccessSet accesses;
        std::uint8_t least = 0;
        std::uint8_t most = 0;
        ShortRoad shortRoad = nullptr;
    };

    NativeObject() noexcept : table_(T::members()) { shape = reinterpret_cast<std::uintptr_t>(table_.data()); }

    int resolve(std::u16string_view name) override {
        for (std::size_t i = 0; i < table_.size(); ++i) {
            if (!table_[i].name.empty() && equalNoCase(table_[i].name, name)) {
                return static_cast<int>(i);
            }
        }
        return noMember;
    }

    ShortRoad shortRoad(int member) const noexcept override {
        return table_[static_cast<std::size_t>(member)].shortRoad;
    }

    Value invoke(Context& context, int member, Access access, Arguments arguments) override {
        const auto index = static_cast<std::size_t>(member);
        if (index >= table_.size() || table_[index].function == nullptr || !table_[index].accesses.contains(access)) {
            raise(ErrorNumber::MemberNotFound);
        }
        const Member& entry = table_[index];
        const std::size_t given = arguments.size() - (access == Access::Let || access == Access::Set ? 1 : 0);
        if (given < entry.least || given > entry.most) {
            raise(ErrorNumber::WrongArgumentCount);
        }
        return (static_cast<T*>(this)->*entry.function)(context, access, arguments);
    }

private:
    const std::span<const Member> table_;
};

// A counted pointer for C++ code that keeps an object.
template <class T>
class Ref {
public:
    Ref() noexcept = default;
    explicit Ref(T* object) noexcept : value_(Value::ofObject(object)) {}
    T* get() const noexcept { return static_cast<T*>(value_.isObject() ? value_.object() : nullptr); }
    T* operator->() const noexcept { return get(); }
    T& operator*() const noexcept { return *get(); }
    explicit operator bool() const noexcept { return get() != nullptr; }
    const Value& value() const noexcept { return value_; }

private:
    Value value_ = Value::nothing();
};

template <class T, class... Parameters>
Ref<T> makeObject(Parameters&&... parameters) {
    // The object counts its references itself, which the analyzer does not see. NOLINTNEXTLINE(*NewDeleteLeaks)
    return Ref<T>(new T(std::forward<Parameters>(parameters)...));
}

} // namespace vbs
