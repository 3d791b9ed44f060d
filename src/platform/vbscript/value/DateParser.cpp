// Text as date (declared in Dates.h): cuts the text into numbers, words and signs, reads the time wherever it stands,
// and makes a date of the numbers that are left, in the first order that gives a valid one.
#include "platform/vbscript/value/Dates.h"

#include <array>
#include <vector>

namespace vbs {

namespace {

struct Piece {
    enum Kind { Number, Word, Sign } kind;
    int number = 0; // of a Sign: the sign
    std::size_t digits = 0;
    std::u16string_view text;
    char16_t before = 0; // the sign between this number and the one before it, or 0
};

bool isDigit(char16_t c) noexcept {
    return c >= u'0' && c <= u'9';
}

bool isLetter(char16_t c) noexcept {
    return toLower(c) != toUpper(c) || c == u'.';
}

// Where the point is the decimal sign it separates dates only if the locale's own are written with it.
bool pointSeparates(const Locale& locale) noexcept {
    return locale.decimal != u'.' || locale.shortDate.find(u'.') != std::u16string::npos;
}

bool isSign(std::u16string_view text, std::size_t i, const Locale& locale) noexcept {
    const char16_t c = text[i];
    return c == u'/' || c == u'-' || c == u':' || c == u',' ||
           (c == u'.' && i + 1 < text.size() && isDigit(text[i + 1]) && pointSeparates(locale));
}

std::optional<Piece> numberAt(std::u16string_view text, std::size_t start) {
    int n = 0;
    std::size_t i = start;
    for (; i < text.size() && isDigit(text[i]); ++i) {
        n = n * 10 + (text[i] - u'0');
        if (i - start >= 4) {
            return std::nullopt; // no part of a date has five digits
        }
    }
    return Piece{Piece::Number, n, i - start, text.substr(start, i - start)};
}

bool cut(std::u16string_view text, const Locale& locale, std::vector<Piece>& pieces) {
    for (std::size_t i = 0; i < text.size();) {
        const char16_t c = text[i];
        if (c == u' ' || c == u'\t' || c == 0xA0) {
            ++i;
        } else if (isDigit(c)) {
            const auto number = numberAt(text, i);
            if (!number) {
                return false;
            }
            pieces.push_back(*number);
            i += number->digits;
        } else if (isSign(text, i, locale)) {
            pieces.push_back({Piece::Sign, c, 0, text.substr(i, 1)});
            ++i;
        } else if (isLetter(c)) {
            const std::size_t start = i;
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
    DateReader(std::vector<Piece> pieces, const Locale& locale, int thisYear)
        : m_pieces(std::move(pieces)), m_locale(locale), m_thisYear(thisYear) {}

    std::optional<double> read() {
        while (m_at < m_pieces.size()) {
            if (!(startsTime() ? readTime() : readDatePiece())) {
                return std::nullopt;
            }
        }
        if (m_numbers.empty()) {
            return m_hasTime && m_month == 0 ? std::optional(m_time) : std::nullopt;
        }
        const auto days = m_month > 0 ? withMonthName() : numbersOnly();
        return days ? std::optional(joinDate(*days, m_time)) : std::nullopt;
    }

private:
    bool signAt(std::size_t i, char16_t sign) const {
        return i < m_pieces.size() && m_pieces[i].kind == Piece::Sign && m_pieces[i].number == sign;
    }
    bool numberStands(std::size_t i) const { return i < m_pieces.size() && m_pieces[i].kind == Piece::Number; }

    // 'A' or 'P' for the half-day words, else 0.
    char16_t halfDay(std::size_t i) const {
        if (i >= m_pieces.size() || m_pieces[i].kind != Piece::Word) {
            return 0;
        }
        if (!m_locale.am.empty() && equalNoCase(m_pieces[i].text, m_locale.am)) {
            return u'A';
        }
        if (!m_locale.pm.empty() && equalNoCase(m_pieces[i].text, m_locale.pm)) {
            return u'P';
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
        return numberStands(m_at) && !m_hasTime && (signAt(m_at + 1, u':') || halfDay(m_at + 1) != 0);
    }

    // hour[:minute[:second]] [AM|PM]
    bool readTime() {
        std::array<int, 3> part{};
        std::size_t count = 0;
        do {
            if (!numberStands(m_at) || count == part.size()) {
                return false;
            }
            part[count++] = m_pieces[m_at++].number;
        } while (signAt(m_at, u':') && ++m_at > 0);
        if (const char16_t half = halfDay(m_at); half != 0) {
            ++m_at;
            if (part[0] > 12 && half == u'A') {
                return false;
            }
            part[0] = part[0] % 12 + (half == u'P' || part[0] > 12 ? 12 : 0);
        }
        m_hasTime = true;
        m_time = timeSerial(part[0], part[1], part[2]);
        return part[0] < 24 && part[1] < 60 && part[2] < 60;
    }

    bool readDatePiece() {
        const Piece& piece = m_pieces[m_at++];
        switch (piece.kind) {
        case Piece::Number:
            m_numbers.push_back(piece);
            m_numbers.back().before = std::exchange(m_lastSign, u'\0');
            return m_numbers.size() <= 3;
        case Piece::Sign:
            m_lastSign = static_cast<char16_t>(piece.number);
            return (m_anyWord || !m_numbers.empty()) && piece.number != u':' && m_at < m_pieces.size() &&
                   m_pieces[m_at].kind != Piece::Sign;
        default:
            m_lastSign = 0;
            m_anyWord = true;
            return readWord(piece.text);
        }
    }

    bool readWord(std::u16string_view word) {
        if (word.ends_with(u'.')) {
            word.remove_suffix(1);
        }
        for (const Locale* names : {&m_locale, builtinLocale(1033)}) {
            for (std::size_t i = 0; i < names->months.size(); ++i) {
                if (equalNoCase(word, names->months[i]) || equalNoCase(word, names->shortMonths[i])) {
                    const bool first = m_month == 0;
                    m_month = static_cast<int>(i) + 1;
                    return first;
                }
            }
            for (std::size_t i = 0; i < names->weekdays.size(); ++i) {
                if (equalNoCase(word, names->weekdays[i]) || equalNoCase(word, names->shortWeekdays[i])) {
                    return true;
                }
            }
        }
        return equalNoCase(word, u"de"); // 31 de enero de 2020
    }

    static int yearOf(const Piece& piece) noexcept { return piece.digits > 2 ? piece.number : fullYear(piece.number); }

    static bool looksLikeYear(const Piece& piece) noexcept { return piece.digits > 2 || piece.number > 31; }

    static std::optional<double> checked(int year, int month, int day) {
        if (month < 1 || month > 12 || year < 100 || year > 9999 || day < 1 || day > daysInMonth(year, month)) {
            return std::nullopt;
        }
        return dateSerial(year, month, day);
    }

    static std::optional<double> checked(const Piece& year, const Piece& month, const Piece& day) {
        return checked(yearOf(year), month.number, day.number);
    }

    std::optional<double> withMonthName() const {
        if (m_numbers.size() > 2) {
            return std::nullopt;
        }
        const Piece& a = m_numbers[0];
        if (m_numbers.size() == 1) {
            return looksLikeYear(a) ? checked(yearOf(a), m_month, 1) : checked(m_thisYear, m_month, a.number);
        }
        const Piece& b = m_numbers[1];
        return looksLikeYear(a) ? checked(yearOf(a), m_month, b.number) : checked(yearOf(b), m_month, a.number);
    }

    std::optional<double> numbersOnly() const {
        if (m_anyWord && m_numbers.size() < 3) {
            return std::nullopt;
        }
        for (std::size_t i = 1; i < m_numbers.size(); ++i) {
            if (m_numbers[i].before == u',') {
                return std::nullopt; // 1,5 is a number
            }
        }
        return m_numbers.size() == 3 ? threeNumbers() : m_numbers.size() == 2 ? twoNumbers() : std::nullopt;
    }

    std::optional<double> threeNumbers() const {
        const Piece& a = m_numbers[0];
        const Piece& b = m_numbers[1];
        const Piece& c = m_numbers[2];
        if (a.digits > 2) {
            const auto date = checked(a, b, c);
            return date ? date : checked(a, c, b);
        }
        const auto yearFirst = c.digits > 2 ? std::nullopt : checked(a, b, c);
        const auto dayFirst = checked(c, b, a);
        const auto monthFirst = checked(c, a, b);
        switch (m_locale.dateOrder) {
        case DateOrder::YearMonthDay:
            return yearFirst ? yearFirst : monthFirst ? monthFirst : dayFirst;
        case DateOrder::DayMonthYear:
            return dayFirst ? dayFirst : monthFirst ? monthFirst : yearFirst;
        default:
            return monthFirst ? monthFirst : dayFirst ? dayFirst : yearFirst;
        }
    }

    // Day and month of this year, or else month and year.
    std::optional<double> twoNumbers() const {
        const Piece& a = m_numbers[0];
        const Piece& b = m_numbers[1];
        const bool point = b.before == u'.' && m_locale.shortDate.find(u'.') != std::u16string::npos;
        if (b.before != u'/' && b.before != u'-' && !point) {
            return std::nullopt;
        }
        const auto dayFirst = looksLikeYear(b) ? std::nullopt : checked(m_thisYear, b.number, a.number);
        const auto monthFirst = looksLikeYear(b) ? std::nullopt : checked(m_thisYear, a.number, b.number);
        const bool prefersDay = m_locale.dateOrder == DateOrder::DayMonthYear;
        if (dayFirst || monthFirst) {
            return prefersDay ? (dayFirst ? dayFirst : monthFirst) : (monthFirst ? monthFirst : dayFirst);
        }
        return looksLikeYear(a) ? checked(yearOf(a), b.number, 1) : checked(yearOf(b), a.number, 1);
    }

    std::vector<Piece> m_pieces;
    const Locale& m_locale;
    int m_thisYear;
    std::size_t m_at = 0;
    std::vector<Piece> m_numbers;
    char16_t m_lastSign = 0;
    int m_month = 0;
    bool m_anyWord = false;
    bool m_hasTime = false;
    double m_time = 0.0;
};

} // namespace

std::optional<double> parseDate(std::u16string_view text, const Locale& locale, int thisYear) {
    std::vector<Piece> pieces;
    if (!cut(text, locale, pieces)) {
        return std::nullopt;
    }
    return DateReader(std::move(pieces), locale, thisYear).read();
}

} // namespace vbs
