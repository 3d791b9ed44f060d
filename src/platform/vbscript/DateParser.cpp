// Text as date (declared in Dates.h): cuts the text into numbers, words and signs, then reads date and time from them.
#include "platform/vbscript/Dates.h"
#include "platform/vbscript/Errors.h"

#include <array>
#include <vector>

namespace vbs {

namespace {

struct Piece {
    enum Kind { Number, Word, Sign } kind;
    int number = 0;
    std::size_t digits = 0;
    std::u16string_view text;
};

bool isLetter(char16_t c) noexcept {
    return toLower(c) != toUpper(c) || c == u'.';
}

bool cut(std::u16string_view text, std::vector<Piece>& pieces) {
    for (std::size_t i = 0; i < text.size();) {
        const char16_t c = text[i];
        const std::size_t start = i;
        if (c == u' ' || c == u'\t' || c == 0xA0) {
            ++i;
        } else if (c >= u'0' && c <= u'9') {
            int n = 0;
            for (; i < text.size() && text[i] >= u'0' && text[i] <= u'9'; ++i) {
                if (i - start >= 8) {
                    return false;
                }
                n = n * 10 + (text[i] - u'0');
            }
            pieces.push_back({Piece::Number, n, i - start, text.substr(start, i - start)});
        } else if (c == u'/' || c == u'-' || c == u':' || c == u',' ||
                   (c == u'.' && i + 1 < text.size() && text[i + 1] >= u'0' && text[i + 1] <= u'9')) {
            pieces.push_back({Piece::Sign, c, 0, text.substr(i, 1)});
            ++i;
        } else if (isLetter(c)) {
            while (i < text.size() && isLetter(text[i])) {
                ++i;
            }
            pieces.push_back({Piece::Word, 0, 0, text.substr(start, i - start)});
        } else {
            return false;
        }
    }
    return !pieces.empty();
}

class DateReader {
public:
    DateReader(std::vector<Piece> pieces, const Locale& locale) : m_pieces(std::move(pieces)), m_locale(locale) {}

    std::optional<double> read() {
        for (m_at = 0; m_at < m_pieces.size();) {
            const bool good = startsTime() ? readTime() : readDatePiece();
            if (!good) {
                return std::nullopt;
            }
        }
        std::optional<double> days = 0.0;
        if (!m_numbers.empty() || m_month > 0) {
            days = buildDate();
        }
        if (!days || (!m_hasTime && m_numbers.empty())) {
            return std::nullopt;
        }
        return joinDate(*days, m_time);
    }

private:
    bool isSign(std::size_t i, char16_t sign) const {
        return i < m_pieces.size() && m_pieces[i].kind == Piece::Sign && m_pieces[i].number == sign;
    }
    bool isNumber(std::size_t i) const { return i < m_pieces.size() && m_pieces[i].kind == Piece::Number; }
    // 'A' or 'P' for the half-day words, else 0.
    char16_t halfDay(std::size_t i) const {
        if (i >= m_pieces.size() || m_pieces[i].kind != Piece::Word) {
            return 0;
        }
        std::u16string word;
        for (const char16_t c : m_pieces[i].text) {
            if (c != u'.') {
                word.push_back(toUpper(c));
            }
        }
        return word == u"AM" || word == u"A" ? u'A' : word == u"PM" || word == u"P" ? u'P' : u'\0';
    }
    bool startsTime() const {
        return isNumber(m_at) && !m_hasTime && (isSign(m_at + 1, u':') || halfDay(m_at + 1) != 0);
    }

    bool readTime() {
        std::array<int, 3> part{};
        std::size_t count = 0;
        do {
            if (!isNumber(m_at) || count == 3) {
                return false;
            }
            part[count++] = m_pieces[m_at++].number;
        } while (isSign(m_at, u':') && ++m_at > 0);
        if (const char16_t half = halfDay(m_at); half != 0) {
            ++m_at;
            if (part[0] > 12 && half == u'A') {
                return false;
            }
            if (part[0] < 12 && half == u'P') {
                part[0] += 12;
            } else if (part[0] == 12 && half == u'A') {
                part[0] = 0;
            }
        }
        m_hasTime = true;
        m_time = timeSerial(part[0], part[1], part[2]);
        return part[0] < 24 && part[1] < 60 && part[2] < 60;
    }

    bool readDatePiece() {
        const Piece& piece = m_pieces[m_at];
        if (piece.kind == Piece::Number) {
            m_numbers.push_back(piece);
            ++m_at;
            return m_numbers.size() <= 3;
        }
        if (piece.kind == Piece::Sign) {
            ++m_at;
            const bool separates = !m_numbers.empty() || m_month > 0;
            return separates && piece.number != u':' && m_at < m_pieces.size() && m_pieces[m_at].kind != Piece::Sign;
        }
        ++m_at;
        return readWord(piece.text);
    }

    bool readWord(std::u16string_view word) {
        if (word.ends_with(u'.')) {
            word.remove_suffix(1);
        }
        if (equalNoCase(word, u"de")) {
            return true;
        }
        for (const Locale* names : {&m_locale, builtinLocale(1033)}) {
            for (std::size_t i = 0; i < 12; ++i) {
                if (equalNoCase(word, names->months[i]) || equalNoCase(word, names->shortMonths[i])) {
                    if (m_month != 0) {
                        return false;
                    }
                    m_month = static_cast<int>(i) + 1;
                    m_monthFirst = m_numbers.empty();
                    return true;
                }
            }
            for (std::size_t i = 0; i < 7; ++i) {
                if (equalNoCase(word, names->weekdays[i]) || equalNoCase(word, names->shortWeekdays[i])) {
                    return true;
                }
            }
        }
        return false;
    }

    static int fullYear(const Piece& piece) noexcept {
        return piece.digits > 2 ? piece.number : piece.number < 30 ? piece.number + 2000 : piece.number + 1900;
    }

    static std::optional<double> checked(int year, int month, int day) {
        if (month < 1 || month > 12 || year < 100 || year > 9999 || day < 1 || day > daysInMonth(year, month)) {
            return std::nullopt;
        }
        return dateSerial(year, month, day);
    }

    std::optional<double> buildDate() const { return m_month > 0 ? withMonthName() : numbersOnly(); }

    std::optional<double> withMonthName() const {
        if (m_numbers.empty() || m_numbers.size() > 2) {
            return std::nullopt;
        }
        const Piece& first = m_numbers[0];
        if (m_numbers.size() == 1) {
            if (first.digits > 2 || first.number > 31) {
                return checked(fullYear(first), m_month, 1);
            }
            return std::nullopt; // day and month alone need the present year, which is not known here
        }
        const Piece& second = m_numbers[1];
        if (first.digits > 2 || first.number > 31) {
            return checked(fullYear(first), m_month, second.number);
        }
        return checked(fullYear(second), m_month, first.number);
    }

    std::optional<double> numbersOnly() const {
        if (m_numbers.size() != 3) {
            return std::nullopt;
        }
        const Piece& a = m_numbers[0];
        const Piece& b = m_numbers[1];
        const Piece& c = m_numbers[2];
        if (a.digits > 2) {
            return checked(a.number, b.number, c.number);
        }
        switch (m_locale.dateOrder) {
        case DateOrder::YearMonthDay:
            if (c.digits <= 2) {
                return checked(fullYear(a), b.number, c.number);
            }
            [[fallthrough]];
        case DateOrder::DayMonthYear: {
            const auto date = checked(fullYear(c), b.number, a.number);
            return date ? date : checked(fullYear(c), a.number, b.number);
        }
        default: {
            const auto date = checked(fullYear(c), a.number, b.number);
            return date ? date : checked(fullYear(c), b.number, a.number);
        }
        }
    }

    std::vector<Piece> m_pieces;
    const Locale& m_locale;
    std::size_t m_at = 0;
    std::vector<Piece> m_numbers;
    int m_month = 0;
    bool m_monthFirst = false;
    bool m_hasTime = false;
    double m_time = 0.0;
};

} // namespace

std::optional<double> parseDate(std::u16string_view text, const Locale& locale) {
    std::vector<Piece> pieces;
    if (!cut(text, pieces)) {
        return std::nullopt;
    }
    return DateReader(std::move(pieces), locale).read();
}

} // namespace vbs
