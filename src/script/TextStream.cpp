#include "script/TextStream.h"

#include "platform/text/Utf.h"
#include "platform/vbscript/Object.h"

#include <istream>
#include <iterator>
#include <ostream>

namespace {

constexpr int endOfInput = std::char_traits<char>::eof();

vbs::Value textValue(std::string_view utf8) {
    return vbs::Value::ofString(std::u16string_view(text::toUtf16(utf8)));
}

std::string utf8Of(vbs::Context& context, const vbs::Value& v) {
    return text::toUtf8(vbs::toString(context, v).view());
}

std::int32_t countOf(vbs::Context& context, const vbs::Value& v) {
    const std::int32_t count = vbs::toLong(context, v);
    if (count < 0) {
        vbs::raise(vbs::ErrorNumber::InvalidCall);
    }
    return count;
}

} // namespace

std::optional<std::string> nextLine(std::istream& in) {
    std::string line;
    if (!std::getline(in, line)) {
        return std::nullopt;
    }
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    return line;
}

std::span<const InputStream::Member> InputStream::members() {
    static constexpr Member table[] = {
        {u"Read", &InputStream::read, vbs::readOnly, 1, 1},
        {u"ReadLine", &InputStream::readLine, vbs::readOnly, 0, 0},
        {u"ReadAll", &InputStream::readAll, vbs::readOnly, 0, 0},
        {u"SkipLine", &InputStream::skipLine, vbs::readOnly, 0, 0},
        {u"AtEndOfLine", &InputStream::atEndOfLine, vbs::readOnly, 0, 0},
        {u"AtEndOfStream", &InputStream::atEndOfStream, vbs::readOnly, 0, 0},
    };
    return table;
}

int InputStream::peek() {
    out_.flush();
    return in_.peek();
}

void InputStream::requireMore() {
    if (peek() == endOfInput) {
        throw vbs::ScriptError{.number = 62,
                               .description = vbs::String(u"Se ha sobrepasado el final de la entrada"),
                               .source = {},
                               .helpFile = {}};
    }
}

// So many characters, or what is left.
vbs::Value InputStream::read(vbs::Context& context, vbs::Access /*access*/, vbs::Arguments arguments) {
    const std::int32_t count = countOf(context, arguments[0]);
    requireMore();
    const auto continues = [this] { return (static_cast<unsigned>(in_.peek()) & 0xC0U) == 0x80; };
    std::string bytes;
    for (std::int32_t i = 0; i < count && in_.peek() != endOfInput; ++i) {
        do {
            bytes.push_back(static_cast<char>(in_.get()));
        } while (in_.peek() != endOfInput && continues());
    }
    return textValue(bytes);
}

vbs::Value InputStream::readLine(vbs::Context& /*context*/, vbs::Access /*access*/, vbs::Arguments /*arguments*/) {
    requireMore();
    return textValue(nextLine(in_).value_or(""));
}

vbs::Value InputStream::readAll(vbs::Context& /*context*/, vbs::Access /*access*/, vbs::Arguments /*arguments*/) {
    requireMore();
    return textValue(std::string(std::istreambuf_iterator<char>(in_), {}));
}

vbs::Value InputStream::skipLine(vbs::Context& /*context*/, vbs::Access /*access*/, vbs::Arguments /*arguments*/) {
    requireMore();
    nextLine(in_);
    return {};
}

vbs::Value InputStream::atEndOfLine(vbs::Context& /*context*/, vbs::Access /*access*/, vbs::Arguments /*arguments*/) {
    const int next = peek();
    return vbs::Value::ofBoolean(next == '\n' || next == '\r' || next == endOfInput);
}

vbs::Value InputStream::atEndOfStream(vbs::Context& /*context*/, vbs::Access /*access*/, vbs::Arguments /*arguments*/) {
    return vbs::Value::ofBoolean(peek() == endOfInput);
}

std::span<const OutputStream::Member> OutputStream::members() {
    static constexpr Member table[] = {
        {u"Write", &OutputStream::write, vbs::readOnly, 1, 1},
        {u"WriteLine", &OutputStream::writeLine, vbs::readOnly, 0, 1},
        {u"WriteBlankLines", &OutputStream::writeBlankLines, vbs::readOnly, 1, 1},
    };
    return table;
}

vbs::Value OutputStream::write(vbs::Context& context, vbs::Access /*access*/, vbs::Arguments arguments) {
    out_ << utf8Of(context, arguments[0]);
    return {};
}

vbs::Value OutputStream::writeLine(vbs::Context& context, vbs::Access /*access*/, vbs::Arguments arguments) {
    out_ << (arguments.empty() ? std::string() : utf8Of(context, arguments[0])) << '\n';
    return {};
}

vbs::Value OutputStream::writeBlankLines(vbs::Context& context, vbs::Access /*access*/, vbs::Arguments arguments) {
    for (std::int32_t left = countOf(context, arguments[0]); left > 0; --left) {
        context.spend(10);
        out_ << '\n';
    }
    return {};
}
