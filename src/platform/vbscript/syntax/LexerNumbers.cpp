// Numbers, decimal and with a radix.
#include "platform/text/Numbers.h"
#include "platform/vbscript/syntax/Lexer.h"

#include <cmath>
#include <string>

namespace vbs {

namespace {

int digitOf(char16_t c) noexcept {
    return isDigit(c) ? c - u'0' : c >= u'a' && c <= u'f' ? c - u'a' + 10 : c >= u'A' && c <= u'F' ? c - u'A' + 10 : 99;
}

} // namespace

void Lexer::scanDecimal(Token& token) {
    const std::size_t start = position_;
    bool whole = true;
    while (isDigit(at(0))) {
        ++position_;
    }
    if (at(0) == u'.') {
        whole = false;
        ++position_;
        while (isDigit(at(0))) {
            ++position_;
        }
    }
    if (at(0) == u'e' || at(0) == u'E') {
        const std::size_t sign = at(1) == u'+' || at(1) == u'-' ? 1 : 0;
        if (isDigit(at(1 + sign))) {
            whole = false;
            position_ += 1 + sign;
            while (isDigit(at(0))) {
                ++position_;
            }
        }
    }
    const std::u16string_view written = text_.substr(start, position_ - start);
    token.kind = Token::Kind::Number;
    constexpr std::size_t shortNumber = 9; // digits that any Long has room for
    if (whole && written.size() <= shortNumber) {
        std::int64_t n = 0;
        for (const char16_t digit : written) {
            n = n * 10 + (digit - u'0');
        }
        token.value = Value::ofWhole(n);
        return;
    }
    const double number = text::readPlainNumber(std::string(written.begin(), written.end()));
    token.value =
        whole && number <= 2147483647.0 ? Value::ofWhole(static_cast<std::int64_t>(number)) : Value::ofDouble(number);
    if (std::isinf(number)) {
        bad(token, ErrorNumber::InvalidNumber);
    }
}

// &Hff, &O77, &77, of 16 bits where they are enough; with a closing & of 32 bits, and the value tells the type. False
// if the & is an operator.
bool Lexer::scanRadix(Token& token) {
    const char16_t letter = toUpper(at(1));
    const bool hex = letter == u'H' && digitOf(at(2)) < 16;
    const bool lettered = hex || (letter == u'O' && digitOf(at(2)) < 8);
    if (!lettered && (afterOperand_ || digitOf(at(1)) >= 8)) {
        return false;
    }
    const std::size_t first = lettered ? 2 : 1;
    const int radix = hex ? 16 : 8;
    std::size_t ahead = first;
    std::uint64_t bits = 0;
    bool fits = true;
    for (; digitOf(at(ahead)) < radix; ++ahead) {
        bits = bits * static_cast<std::uint64_t>(radix) + static_cast<std::uint64_t>(digitOf(at(ahead)));
        fits = fits && bits <= 0xFFFFFFFFU;
        bits &= 0xFFFFFFFFFFU;
    }
    if (afterOperand_ && isNamePart(at(ahead))) {
        return false; // text &hello
    }
    const bool longMark = at(ahead) == u'&';
    position_ += ahead + (longMark ? 1 : 0);
    token.kind = Token::Kind::Number;
    if (isDigit(at(0)) && !longMark) {
        bad(token, ErrorNumber::SyntaxError); // &38
    } else if (!fits) {
        bad(token, ErrorNumber::InvalidNumber);
    } else if (longMark) {
        token.value = Value::ofWhole(static_cast<std::int32_t>(static_cast<std::uint32_t>(bits)));
    } else if (bits > 0xFFFF) {
        token.value = Value::ofLong(static_cast<std::int32_t>(static_cast<std::uint32_t>(bits)));
    } else if (bits == 0x8000) {
        token.value = Value::ofLong(-32768); // its magnitude does not fit an Integer
    } else {
        token.value = Value::ofInteger(static_cast<std::int16_t>(bits));
    }
    return true;
}

} // namespace vbs
