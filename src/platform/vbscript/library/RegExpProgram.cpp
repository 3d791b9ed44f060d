#include "platform/vbscript/library/RegExpProgram.h"

#include "platform/vbscript/library/RegExpSyntax.h"
#include "platform/vbscript/value/Context.h"
#include "platform/vbscript/value/Errors.h"

#include <exception>
#include <string>
#include <utility>

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

namespace vbs {

namespace {

constexpr std::uint32_t mostSteps = 10'000'000;
constexpr std::size_t oneLook = 10'000;       // in turns of a loop: enough for a look at the clock
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

// Looks at the clock while the library matches. No exception may pass through it.
struct Watch {
    Context& context;
    unsigned calls = 0;
    std::exception_ptr interruption;
};

int look(pcre2_callout_block_16* /*block*/, void* watch) {
    constexpr unsigned callsALook = 64;
    auto& [context, calls, interruption] = *static_cast<Watch*>(watch);
    if (++calls % callsALook != 0) {
        return 0;
    }
    try {
        context.spend(oneLook);
        return 0;
    } catch (...) {
        interruption = std::current_exception();
        return PCRE2_ERROR_CALLOUT;
    }
}

} // namespace

struct RegExpProgram::Library {
    using Code = std::unique_ptr<pcre2_code_16, Freeing<pcre2_code_free_16>>;
    Code code;
    Code watched; // the same for long texts, or null: calls out now and then, as every place may cost a walk to the end
    std::unique_ptr<pcre2_match_data_16, Freeing<pcre2_match_data_free_16>> places;
    std::unique_ptr<pcre2_match_context_16, Freeing<pcre2_match_context_free_16>> limits;
    std::u16string pattern;
    std::uint32_t options = 0;

    Code compiled(std::uint32_t more) const {
        int error = 0;
        PCRE2_SIZE where = 0;
        Code made(pcre2_compile_16(units(pattern), pattern.size(), options | more, &error, &where, nullptr));
        if (made == nullptr) {
            raise(error == PCRE2_ERROR_HEAP_FAILED ? ErrorNumber::OutOfMemory : ErrorNumber::RegexSyntax);
        }
        return made;
    }
};

RegExpProgram::RegExpProgram(std::u16string_view pattern, bool ignoreCase, bool multiline)
    : library_(std::make_unique<Library>()) {
    // The library folds letters beyond ASCII only by their Unicode properties, which slow down the rest.
    const bool unicode = ignoreCase && namesBeyondAscii(pattern);
    TranslatedPattern translated = translatePattern(pattern, multiline, unicode);
    library_->pattern = std::move(translated.text);
    library_->options = PCRE2_DOLLAR_ENDONLY | PCRE2_MATCH_UNSET_BACKREF | PCRE2_NEVER_UTF |
                        (ignoreCase ? PCRE2_CASELESS : 0) | (unicode ? PCRE2_UCP : 0);
    library_->code = library_->compiled(0);
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
    constexpr std::size_t longText = 4096;
    context.spend(oneLook); // a short text takes no longer than its steps
    const bool isLong = subject.size() >= longText;
    if (isLong && library_->watched == nullptr) {
        library_->watched = library_->compiled(PCRE2_AUTO_CALLOUT);
    }
    const pcre2_code_16* const program = (isLong ? library_->watched : library_->code).get();
    Watch watch{context, 0, nullptr};
    pcre2_set_callout_16(library_->limits.get(), isLong ? look : nullptr, &watch);
    const int result = pcre2_match_16(program, units(subject), subject.size(), from, 0, library_->places.get(),
                                      library_->limits.get());
    if (watch.interruption != nullptr) {
        std::rethrow_exception(watch.interruption);
    }
    if (result >= 0) {
        return true;
    }
    switch (result) {
    case PCRE2_ERROR_NOMATCH:
        return false;
    case PCRE2_ERROR_MATCHLIMIT:
    case PCRE2_ERROR_DEPTHLIMIT:
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
