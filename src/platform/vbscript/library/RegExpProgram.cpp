#include "platform/vbscript/library/RegExpProgram.h"

#include "platform/vbscript/library/RegExpSyntax.h"
#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Errors.h"

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

namespace vbs {

namespace {

constexpr std::uint32_t mostSteps = 10'000'000;
constexpr std::size_t usualWork = 200;        // of a match, in turns of a loop
constexpr std::uint32_t mostHeap = 64 * 1024; // KiB

template <auto function>
struct Freeing {
    template <class T>
    void operator()(T* p) const noexcept {
        function(p);
    }
};

PCRE2_SPTR16 units(std::u16string_view text) noexcept {
    return reinterpret_cast<PCRE2_SPTR16>(text.data());
}

} // namespace

struct RegExpProgram::Library {
    std::unique_ptr<pcre2_code_16, Freeing<pcre2_code_free_16>> code;
    std::unique_ptr<pcre2_match_data_16, Freeing<pcre2_match_data_free_16>> places;
    std::unique_ptr<pcre2_match_context_16, Freeing<pcre2_match_context_free_16>> limits;
};

RegExpProgram::RegExpProgram(std::u16string_view pattern, bool ignoreCase, bool multiline)
    : library_(std::make_unique<Library>()) {
    // The library folds letters beyond ASCII only by their Unicode properties, which slow down the rest.
    const bool unicode = ignoreCase && namesBeyondAscii(pattern);
    const TranslatedPattern translated = translatePattern(pattern, multiline, unicode);
    const std::uint32_t options = PCRE2_DOLLAR_ENDONLY | PCRE2_MATCH_UNSET_BACKREF | PCRE2_NEVER_UTF |
                                  (ignoreCase ? PCRE2_CASELESS : 0) | (unicode ? PCRE2_UCP : 0);
    int error = 0;
    PCRE2_SIZE where = 0;
    library_->code.reset(
        pcre2_compile_16(units(translated.text), translated.text.size(), options, &error, &where, nullptr));
    if (library_->code == nullptr) {
        raise(error == PCRE2_ERROR_HEAP_FAILED ? ErrorNumber::OutOfMemory : ErrorNumber::RegexSyntax);
    }
    library_->places.reset(pcre2_match_data_create_from_pattern_16(library_->code.get(), nullptr));
    library_->limits.reset(pcre2_match_context_create_16(nullptr));
    if (library_->places == nullptr || library_->limits == nullptr) {
        raise(ErrorNumber::OutOfMemory);
    }
    pcre2_set_match_limit_16(library_->limits.get(), mostSteps);
    pcre2_set_heap_limit_16(library_->limits.get(), mostHeap);
    groups_ = translated.groups;
}

RegExpProgram::~RegExpProgram() = default;

bool RegExpProgram::match(Context& context, std::u16string_view subject, std::size_t from) {
    context.spend(usualWork);
    const int result = pcre2_match_16(library_->code.get(), units(subject), subject.size(), from, 0,
                                      library_->places.get(), library_->limits.get());
    if (result >= 0) {
        return true;
    }
    switch (result) {
    case PCRE2_ERROR_NOMATCH:
        return false;
    case PCRE2_ERROR_MATCHLIMIT:
    case PCRE2_ERROR_DEPTHLIMIT:
        context.spend(mostSteps);
        raise(ErrorNumber::OutOfStack);
    case PCRE2_ERROR_HEAPLIMIT:
    case PCRE2_ERROR_NOMEMORY:
        raise(ErrorNumber::OutOfMemory);
    default:
        raise(ErrorNumber::InternalError);
    }
}

std::optional<RegExpProgram::Place> RegExpProgram::group(int number) const noexcept {
    const PCRE2_SIZE* bounds = pcre2_get_ovector_pointer_16(library_->places.get());
    const auto i = static_cast<std::size_t>(number) * 2;
    if (bounds[i] == PCRE2_UNSET) {
        return std::nullopt;
    }
    return Place{bounds[i], bounds[i + 1] - bounds[i]};
}

} // namespace vbs
