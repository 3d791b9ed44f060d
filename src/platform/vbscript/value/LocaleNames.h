// The short names that SetLocale takes beside numbers ("es", "en-us").
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vbs {

// Number of a locale by its short name, in any case; nothing for a name that is none.
std::optional<std::int32_t> localeNumber(std::u16string_view name) noexcept;

// The other way round: the first name of a number; empty for a number that has none.
std::u16string_view localeName(std::int32_t number) noexcept;

} // namespace vbs
