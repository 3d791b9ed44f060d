// A script value in a few words, for people: its type and what is in it. Runs nothing of the script.
#pragma once

#include "platform/vbscript/Object.h"

#include <cstddef>
#include <string>

struct ResumenValor {
    static constexpr std::size_t maximo = 200; // code units of `valor`; what is cut off ends in "…"

    std::u16string tipo;  // as TypeName tells it
    std::u16string valor; // in one line; of arrays and dictionaries how many elements, of other objects nothing
    bool operator==(const ResumenValor&) const = default;
};

ResumenValor resumirValor(vbs::Context& context, const vbs::Value& valor);
