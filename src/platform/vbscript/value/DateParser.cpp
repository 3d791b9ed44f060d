// Text as date (declared in Dates.h): cuts the text into numbers, words and signs, reads the time wherever it stands,
// and makes a date of the numbers that are left, in the first order that gives a valid one.
#include "platform/vbscript/value/Dates.h"
#include "platform/vbscript/value/Work.h"

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
    constexpr std::size_t mostPieces = 32; // no date has so many
    for (std::size_t i = 0; i < text.size();) {
        const char16_t c = text[i];
        if (pieces.size() == mostPieces) {
            return false;
        }
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
        : pieces_(std::move(pieces)), locale_(locale), thisYear_(thisYear) {}

    std::optional<double> read() {
        while (at_ < pieces_.size()) {
            if (!(startsTime() ? readTime() : readDatePiece())) {
                return std::nullopt;
            }
        }
        if (numbers_.empty()) {
            return hasTime_ && month_ == 0 ? std::optional(time_) : std::nullopt;
        }
        const auto days = month_ > 0 ? withMonthName() : numbersOnly();
        return days ? std::optional(joinDate(*days, time_)) : std::nullopt;
    }

private:
    bool signAt(std::size_t i, char16_t sign) const {
        return i < pieces_.size() && pieces_[i].kind == Piece::Sign && pieces_[i].number == sign;
    }
    bool numberStands(std::size_t i) const { return i < pieces_.size() && pieces_[i].kind == Piece::Number; }

    // 'A' or 'P' for the half-day words, else 0.
    char16_t halfDay(std::size_t i) const {
        if (i >= pieces_.size() || pieces_[i].kind != Piece::Word) {
            return 0;
        }
        if (!locale_.am.empty() && equalNoCase(pieces_[i].text, locale_.am)) {
            return u'A';
        }
        if (!locale_.pm.empty() && equalNoCase(pieces_[i].text, locale_.pm)) {
            return u'P';
        }
        std::u16string word;
        for (const char16_t c : pieces_[i].text) {
            if (c != u'.') {
                word.push_back(toUpper(c));
            }
        }
        return word == u"AM" || word == u"A" ? u'A' : word == u"PM" || word == u"P" ? u'P' : u'\0';
    }

    bool startsTime() const {
        return numberStands(at_) && !hasTime_ && (signAt(at_ + 1, u':') || halfDay(at_ + 1) != 0);
    }

    // hour[:minute[:second]] [AM|PM]
    bool readTime() {
        std::array<int, 3> part{};
        std::size_t count = 0;
        do {
            if (!numberStands(at_) || count == part.size()) {
                return false;
            }
            part[count++] = pieces_[at_++].number;
        } while (signAt(at_, u':') && ++at_ > 0);
        if (const char16_t half = halfDay(at_); half != 0) {
            ++at_;
            if (part[0] > 12 && half == u'A') {
                return false;
            }
            part[0] = part[0] % 12 + (half == u'P' || part[0] > 12 ? 12 : 0);
        }
        hasTime_ = true;
        time_ = timeSerial(part[0], part[1], part[2]);
        return part[0] < 24 && part[1] < 60 && part[2] < 60;
    }

    bool readDatePiece() {
        const Piece& piece = pieces_[at_++];
        switch (piece.kind) {
        case Piece::Number:
            numbers_.push_back(piece);
            numbers_.back().before = std::exchange(lastSign_, u'\0');
            return numbers_.size() <= 3;
        case Piece::Sign:
            lastSign_ = static_cast<char16_t>(piece.number);
            return (anyWord_ || !numbers_.empty()) && piece.number != u':' && at_ < pieces_.size() &&
                   pieces_[at_].kind != Piece::Sign;
        default:
            lastSign_ = 0;
            anyWord_ = true;
            return readWord(piece.text);
        }
    }

    bool readWord(std::u16string_view word) {
        if (word.ends_with(u'.')) {
            word.remove_suffix(1);
        }
        for (const Locale* names : {&locale_, builtinLocale(1033)}) {
            for (std::size_t i = 0; i < names->months.size(); ++i) {
                if (equalNoCase(word, names->months[i]) || equalNoCase(word, names->shortMonths[i])) {
                    const bool first = month_ == 0;
                    month_ = static_cast<int>(i) + 1;
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
        if (numbers_.size() > 2) {
            return std::nullopt;
        }
        const Piece& a = numbers_[0];
        if (numbers_.size() == 1) {
            const auto dayOfThisYear = looksLikeYear(a) ? std::nullopt : checked(thisYear_, month_, a.number);
            return dayOfThisYear ? dayOfThisYear : checked(yearOf(a), month_, 1);
        }
        const Piece& b = numbers_[1];
        const auto dayFirst = looksLikeYear(a) ? std::nullopt : checked(yearOf(b), month_, a.number);
        return dayFirst ? dayFirst : checked(yearOf(a), month_, b.number);
    }

    std::optional<double> numbersOnly() const {
        if (anyWord_ && numbers_.size() < 3) {
            return std::nullopt;
        }
        for (std::size_t i = 1; i < numbers_.size(); ++i) {
            if (numbers_[i].before == u',') {
                return std::nullopt; // 1,5 is a number
            }
        }
        return numbers_.size() == 3 ? threeNumbers() : numbers_.size() == 2 ? twoNumbers() : std::nullopt;
    }

    std::optional<double> threeNumbers() const {
        const Piece& a = numbers_[0];
        const Piece& b = numbers_[1];
        const Piece& c = numbers_[2];
        if (a.digits > 2) {
            const auto date = checked(a, b, c);
            return date ? date : checked(a, c, b);
        }
        const auto yearFirst = c.digits > 2 ? std::nullopt : checked(a, b, c);
        const auto dayFirst = checked(c, b, a);
        const auto monthFirst = checked(c, a, b);
        switch (locale_.dateOrder) {
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
        const Piece& a = numbers_[0];
        const Piece& b = numbers_[1];
        const bool point = b.before == u'.' && locale_.shortDate.find(u'.') != std::u16string::npos;
        if (b.before != u'/' && b.before != u'-' && !point) {
            return std::nullopt;
        }
        const auto dayFirst = looksLikeYear(b) ? std::nullopt : checked(thisYear_, b.number, a.number);
        const auto monthFirst = looksLikeYear(b) ? std::nullopt : checked(thisYear_, a.number, b.number);
        const bool prefersDay = locale_.dateOrder == DateOrder::DayMonthYear;
        if (dayFirst || monthFirst) {
            return prefersDay ? (dayFirst ? dayFirst : monthFirst) : (monthFirst ? monthFirst : dayFirst);
        }
        return looksLikeYear(a) ? checked(yearOf(a), b.number, 1) : checked(yearOf(b), a.number, 1);
    }

    std::vector<Piece> pieces_;
    const Locale& locale_;
    int thisYear_;
    std::size_t at_ = 0;
    std::vector<Piece> numbers_;
    char16_t lastSign_ = 0;
    int month_ = 0;
    bool anyWord_ = false;
    bool hasTime_ = false;
    double time_ = 0.0;
};

} // namespace

std::optional<double> parseDate(std::u16string_view text, const Locale& locale, int thisYear) {
    chargeWalk(text.size() * sizeof(char16_t));
    std::vector<Piece> pieces;
    if (!cut(text, locale, pieces)) {
        return std::nullopt;
    }
    return DateReader(std::move(pieces), locale, thisYear).read();
}

} // namespace vbs
