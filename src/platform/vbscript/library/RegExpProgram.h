// A compiled regular expression and the places of its last match. The only file that knows the matching library.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

namespace vbs {

class Context;

class RegExpProgram {
public:
    // Raises 5017 to 5021 for a bad pattern.
    RegExpProgram(std::u16string_view pattern, bool ignoreCase, bool multiline);
    ~RegExpProgram();
    RegExpProgram(const RegExpProgram&) = delete;
    RegExpProgram& operator=(const RegExpProgram&) = delete;

    int groups() const noexcept { return groups_; }

    // Looks for the first match at or after `from` (code units). Raises 28 when it takes more steps than any sensible
    // pattern does, 7 when it takes too much memory.
    bool match(Context& context, std::u16string_view subject, std::size_t from);

    struct Place {
        std::size_t from;
        std::size_t length;
    };
    // Place of a group in the last match (0 is the whole), or nothing if the group took no part in it.
    std::optional<Place> group(int number) const noexcept;

private:
    struct Library;
    std::unique_ptr<Library> library_;
    int groups_ = 0;
};

} // namespace vbs
