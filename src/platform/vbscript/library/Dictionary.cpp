#include "platform/vbscript/library/Dictionary.h"

#include "platform/vbscript/value/ArrayEnumerator.h"
#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Convert.h"

namespace vbs {

namespace {

// Keys() and Items() answer an array; Items(0) is its element.
Value wholeOrElement(Context& context, Value list, Arguments arguments) {
    if (arguments.empty()) {
        return list;
    }
    const std::int32_t index = toLong(context, arguments[0]);
    return list.array()->elements()[list.array()->offset({&index, 1})];
}

} // namespace

Dictionary::Dictionary(Context& context) : context_(&context) {
    context.adopt(*this);
}

Dictionary::~Dictionary() {
    if (context_ != nullptr) {
        context_->abandon(*this);
    }
}

std::span<const Dictionary::Member> Dictionary::members() {
    static constexpr Member table[] = {
        {u"Item", &Dictionary::item, readWrite | Access::Set, 1, 1},
        {u"Add", &Dictionary::add, readOnly, 2, 2},
        {u"CompareMode", &Dictionary::compareMode, readWrite, 0, 0},
        {u"Count", &Dictionary::count, readOnly, 0, 0},
        {u"Exists", &Dictionary::exists, readOnly, 1, 1, &Dictionary::existsShort},
        {u"Items", &Dictionary::items, readOnly, 0, 1},
        {u"Key", &Dictionary::key, readWrite, 1, 1},
        {u"Keys", &Dictionary::keys, readOnly, 0, 1},
        {u"Remove", &Dictionary::remove, readOnly, 1, 1},
        {u"RemoveAll", &Dictionary::removeAll, readOnly, 0, 0},
    };
    return table;
}

std::unique_ptr<Enumerator> Dictionary::enumerate(Context& /*context*/) {
    return std::make_unique<ArrayEnumerator>(list(&KeyedTable::Entry::key));
}

void Dictionary::dropContents() noexcept {
    context_ = nullptr;
    table_.clear();
}

Value Dictionary::item(Context& /*context*/, Access access, Arguments arguments) {
    Value& found = table_.findOrAdd(arguments[0].deref());
    if (access == Access::Let || access == Access::Set) {
        found = arguments[1].deref();
        return {};
    }
    return found;
}

Value Dictionary::add(Context& /*context*/, Access /*access*/, Arguments arguments) {
    if (!table_.add(arguments[0].deref(), arguments[1].deref())) {
        raise(ErrorNumber::KeyAlreadyExists);
    }
    return {};
}

// 0 binary, 1 text, above that a locale's own order (text as well). Only an empty dictionary changes it.
Value Dictionary::compareMode(Context& context, Access access, Arguments arguments) {
    if (access != Access::Let) {
        return Value::ofLong(compareMode_);
    }
    const std::int32_t mode = toLong(context, arguments[0]);
    if (mode < 0 || table_.count() > 0) {
        raise(ErrorNumber::InvalidCall);
    }
    compareMode_ = mode;
    table_.setIgnoresCase(mode != 0);
    return {};
}

Value Dictionary::count(Context& /*context*/, Access /*access*/, Arguments /*arguments*/) {
    return Value::ofLong(static_cast<std::int32_t>(table_.count()));
}

Value Dictionary::exists(Context& /*context*/, Access /*access*/, Arguments arguments) {
    return Value::ofBoolean(table_.find(arguments[0].deref()) != nullptr);
}

bool Dictionary::existsShort(Object& self, Value& result, std::span<Value> arguments) noexcept {
    if (arguments.size() != 1 || static_cast<Dictionary&>(self).table_.findPlain(arguments[0].deref()) == nullptr) {
        return false;
    }
    result = Value::ofBoolean(true);
    arguments[0].clear();
    return true;
}

Value Dictionary::items(Context& context, Access /*access*/, Arguments arguments) {
    return wholeOrElement(context, list(&KeyedTable::Entry::item), arguments);
}

// Key(old) = new; there is nothing to read.
Value Dictionary::key(Context& /*context*/, Access access, Arguments arguments) {
    if (access != Access::Let) {
        raise(ErrorNumber::WrongArgumentCount);
    }
    const Value& old = arguments[0].deref();
    const Value& fresh = arguments[1].deref();
    if (table_.find(old) == nullptr) {
        raise(ErrorNumber::ElementNotFound);
    }
    if (table_.find(fresh) != nullptr) {
        raise(ErrorNumber::KeyAlreadyExists);
    }
    table_.rename(old, fresh);
    return {};
}

Value Dictionary::keys(Context& context, Access /*access*/, Arguments arguments) {
    return wholeOrElement(context, list(&KeyedTable::Entry::key), arguments);
}

Value Dictionary::remove(Context& /*context*/, Access /*access*/, Arguments arguments) {
    if (!table_.remove(arguments[0].deref())) {
        raise(ErrorNumber::ElementNotFound);
    }
    return {};
}

Value Dictionary::removeAll(Context& /*context*/, Access /*access*/, Arguments /*arguments*/) {
    table_.clear();
    return {};
}

Value Dictionary::list(Value KeyedTable::Entry::*part) const {
    Value result = Value::ofArray(ArrayBlock::create(table_.count()));
    Value* out = result.array()->elements();
    for (const KeyedTable::Entry& entry : table_.entries()) {
        if (entry.alive) {
            *out++ = entry.*part;
        }
    }
    return result;
}

} // namespace vbs
