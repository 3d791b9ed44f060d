#include "platform/vbscript/library/RegExp.h"

#include "platform/vbscript/library/RegExpMatches.h"
#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Convert.h"

#include <algorithm>
#include <vector>

namespace vbs {

namespace {

using Place = RegExpProgram::Place;

Value cut(const String& text, const Place& place) {
    return Value::ofString(text.view().substr(place.from, place.length));
}

// The texts of the groups of the last match; Empty for one that took no part.
Value groupTexts(const RegExpProgram& program, const String& text) {
    Value list = Value::ofArray(ArrayBlock::create(static_cast<std::size_t>(program.groups())));
    for (int i = 1; i <= program.groups(); ++i) {
        if (const auto place = program.group(i)) {
            list.array()->elements()[i - 1] = cut(text, *place);
        }
    }
    return list;
}

int digitAt(std::u16string_view text, std::size_t i) noexcept {
    return i < text.size() && text[i] >= u'0' && text[i] <= u'9' ? text[i] - u'0' : -1;
}

// Appends what a "$" at `at` in the replacement stands for and answers how many characters it took: $$ $& $` $' and
// $1 to $99, as far as there are so many groups. Any other "$" stands for itself.
std::size_t appendReference(String& out, std::u16string_view by, std::size_t at, const String& text,
                            const RegExpProgram& program) {
    const Place whole = *program.group(0);
    const char16_t sign = at + 1 < by.size() ? by[at + 1] : u'\0';
    switch (sign) {
    case u'$':
        out.append(u"$");
        return 2;
    case u'&':
        out.append(text.view().substr(whole.from, whole.length));
        return 2;
    case u'`':
        out.append(text.view().substr(0, whole.from));
        return 2;
    case u'\'':
        out.append(text.view().substr(whole.from + whole.length));
        return 2;
    default:
        break;
    }
    const int first = digitAt(by, at + 1);
    const int second = digitAt(by, at + 2);
    const bool both = first >= 0 && second >= 0 && first * 10 + second >= 1 && first * 10 + second <= program.groups();
    const int number = both ? first * 10 + second : first;
    if (number < 1 || number > program.groups()) {
        out.append(u"$");
        return 1;
    }
    if (const auto place = program.group(number)) {
        out.append(text.view().substr(place->from, place->length));
    }
    return both ? 3 : 2;
}

void appendExpanded(String& out, std::u16string_view by, const String& text, const RegExpProgram& program) {
    for (std::size_t i = 0; i < by.size();) {
        const std::size_t dollar = std::min(by.find(u'$', i), by.size());
        out.append(by.substr(i, dollar - i));
        i = dollar < by.size() ? dollar + appendReference(out, by, dollar, text, program) : dollar;
    }
}

// Calls a procedure with the match, its groups, its place and the whole text; what it answers is put in.
String computed(Context& context, const Value& procedure, const String& text, const RegExpProgram& program) {
    const Place whole = *program.group(0);
    const Value groups = groupTexts(program, text);
    std::vector<Value> arguments{cut(text, whole)};
    arguments.insert(arguments.end(), groups.array()->elements(), groups.array()->elements() + program.groups());
    arguments.push_back(Value::ofLong(static_cast<std::int32_t>(whole.from)));
    arguments.push_back(Value::ofString(text));
    return toString(context, context.call(procedure, arguments));
}

// A match given as replacement is its text; any other object is a procedure.
bool isProcedure(const Value& v) {
    return v.isObject() && v.object() != nullptr && dynamic_cast<const Match*>(v.object()) == nullptr;
}

// A Boolean is written as its number.
String replacementText(Context& context, const Value& by) {
    return by.type == Type::Boolean ? wholeText(by.n) : toString(context, by);
}

} // namespace

std::span<const RegExp::Member> RegExp::members() {
    static constexpr Member table[] = {
        {{}, nullptr, readOnly},
        {u"Pattern", &RegExp::pattern, readWrite},
        {u"Global", &RegExp::global, readWrite},
        {u"IgnoreCase", &RegExp::ignoreCase, readWrite},
        {u"Multiline", &RegExp::multiline, readWrite},
        {u"Test", &RegExp::test, readOnly, 1, 1},
        {u"Execute", &RegExp::execute, readOnly, 1, 1},
        {u"Replace", &RegExp::replace, readOnly, 2, 2},
    };
    return table;
}

Value RegExp::pattern(Context& context, Access access, Arguments arguments) {
    if (access != Access::Let) {
        return Value::ofString(pattern_);
    }
    pattern_ = toString(context, arguments[0]);
    program_.reset();
    return {};
}

Value RegExp::flag(Context& context, Access access, Arguments arguments, bool& value) {
    if (access != Access::Let) {
        return Value::ofBoolean(value);
    }
    value = toBoolean(context, arguments[0]);
    return {};
}

Value RegExp::global(Context& context, Access access, Arguments arguments) {
    return flag(context, access, arguments, global_);
}

Value RegExp::ignoreCase(Context& context, Access access, Arguments arguments) {
    if (access == Access::Let) {
        program_.reset();
    }
    return flag(context, access, arguments, ignoreCase_);
}

Value RegExp::multiline(Context& context, Access access, Arguments arguments) {
    if (access == Access::Let) {
        program_.reset();
    }
    return flag(context, access, arguments, multiline_);
}

const std::shared_ptr<RegExpProgram>& RegExp::program() {
    if (program_ == nullptr) {
        program_ = std::make_shared<RegExpProgram>(pattern_.view(), ignoreCase_, multiline_);
    }
    return program_;
}

// Calls function(program) for the first match, or for each one if Global is set. After an empty match the search goes
// on one character further. What function calls may change this very object without effect on the search.
template <class Function>
void RegExp::eachMatch(Context& context, const String& text, Function function) {
    const std::shared_ptr<RegExpProgram> running = program();
    const bool all = global_;
    std::size_t from = 0;
    while (from <= text.size() && running->match(context, text.view(), from)) {
        const Place whole = *running->group(0);
        function(*running);
        if (!all) {
            break;
        }
        context.poll();
        from = whole.from + std::max<std::size_t>(whole.length, 1);
    }
}

Value RegExp::test(Context& context, Access /*access*/, Arguments arguments) {
    const String text = toString(context, arguments[0]);
    return Value::ofBoolean(program()->match(context, text.view(), 0));
}

Value RegExp::execute(Context& context, Access /*access*/, Arguments arguments) {
    const String text = toString(context, arguments[0]);
    std::vector<Value> matches;
    eachMatch(context, text, [&](const RegExpProgram& found) {
        const Place whole = *found.group(0);
        matches.push_back(
            makeObject<Match>(cut(text, whole), static_cast<std::int32_t>(whole.from), groupTexts(found, text))
                .value());
    });
    Value array = Value::ofArray(ArrayBlock::create(matches.size()));
    std::move(matches.begin(), matches.end(), array.array()->elements());
    return makeObject<ValueList>(std::u16string_view(u"IMatchCollection2"), array).value();
}

Value RegExp::replace(Context& context, Access /*access*/, Arguments arguments) {
    const String text = toString(context, arguments[0]);
    const Value by = arguments[1].deref();
    const bool calls = isProcedure(by);
    const String byText = calls ? String() : replacementText(context, by);
    String out;
    std::size_t copied = 0;
    eachMatch(context, text, [&](const RegExpProgram& found) {
        const Place whole = *found.group(0);
        out.append(text.view().substr(copied, whole.from - copied));
        if (calls) {
            out.append(computed(context, by, text, found).view());
        } else {
            appendExpanded(out, byText.view(), text, found);
        }
        copied = whole.from + whole.length;
    });
    if (copied == 0 && out.empty()) {
        return Value::ofString(text);
    }
    out.append(text.view().substr(copied));
    return Value::ofString(std::move(out));
}

} // namespace vbs
