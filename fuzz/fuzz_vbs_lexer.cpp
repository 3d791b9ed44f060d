// The lexer on any text: it ends, its tokens stand in order within the text, and lines and columns tell where.

#include "platform/text/Utf.h"
#include "platform/vbscript/syntax/Lexer.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

void require(bool met, const char* what) {
    if (met) {
        return;
    }
    std::fprintf(stderr, "violated: %s\n", what);
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using Kind = vbs::Token::Kind;
    const std::u16string text = text::toUtf16(std::string_view(reinterpret_cast<const char*>(data), size));
    vbs::Lexer lexer(text);
    std::size_t end = 0;
    std::uint32_t line = 1;
    for (vbs::Token token = lexer.next(); token.kind != Kind::End; token = lexer.next()) {
        require(token.offset >= end, "tokens do not overlap");
        require(token.length > 0, "a token has a length");
        end = std::size_t{token.offset} + token.length;
        require(end <= text.size(), "a token stands within the text");
        require(token.line >= line, "lines only go up");
        line = token.line;
        require(token.column >= 1 && token.column <= token.offset + 1, "a column counts from the start of its line");
        require((token.kind == Kind::Bad) == (token.error != vbs::ErrorNumber::None), "only a bad token has an error");
        require(token.kind != Kind::Keyword || vbs::wordOf(token.text) == token.word, "a keyword is its word");
    }
    return 0;
}
