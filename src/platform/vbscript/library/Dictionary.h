// Scripting.Dictionary: items under keys of any type but arrays, in order of insertion (see KeyedTable for which keys
// are the same). Reading a key that is missing adds it with an Empty item, as scripts expect.
#pragma once

#include "platform/vbscript/value/KeyedTable.h"
#include "platform/vbscript/value/Memory.h"
#include "platform/vbscript/value/Object.h"

namespace vbs {

class Dictionary final : public NativeObject<Dictionary> {
public:
    explicit Dictionary(Context& context);
    ~Dictionary() override;

    static std::span<const Member> members();
    std::u16string_view typeName() const override { return u"Dictionary"; }
    Value* itemPlace(const Value& argument) noexcept override { return table_.findPlain(argument); }
    std::unique_ptr<Enumerator> enumerate(Context& context) override; // the keys there are now
    void dropContents() noexcept override;

private:
    static bool existsShort(Object& self, Value& result, std::span<Value> arguments) noexcept;
    Value item(Context& context, Access access, Arguments arguments);
    Value add(Context& context, Access access, Arguments arguments);
    Value compareMode(Context& context, Access access, Arguments arguments);
    Value count(Context& context, Access access, Arguments arguments);
    Value exists(Context& context, Access access, Arguments arguments);
    Value items(Context& context, Access access, Arguments arguments);
    Value key(Context& context, Access access, Arguments arguments);
    Value keys(Context& context, Access access, Arguments arguments);
    Value remove(Context& context, Access access, Arguments arguments);
    Value removeAll(Context& context, Access access, Arguments arguments);

    // The keys or the items as an array.
    Value list(Value KeyedTable::Entry::*part) const;

    MemoryCharge charge_{sizeof(Dictionary)};
    Context* context_; // null once the engine has gone
    KeyedTable table_;
    std::int32_t compareMode_ = 0;
};

} // namespace vbs
