// A number as the decimal digits that a person sees (15 of a Double, 7 of a Single, all of a Currency), so that it can
// be rounded the way a person would: half away from zero.
#pragma once

#include "platform/vbscript/value/Context.h"

#include <string>

namespace vbs {

struct DecimalText {
    bool negative = false;
    std::string whole = "0"; // no leading zeros
    std::string fraction;

    void timesHundred();
    // Exactly `places` digits of fraction; a number that rounds to zero loses its sign.
    void round(int places);
};

// Raises 13 for what is no number, 94 for Null.
DecimalText decimalText(Context& context, const Value& v);

} // namespace vbs
