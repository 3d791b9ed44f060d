// The words and brackets of a script that belong together: If, Then, ElseIf, Else and End If; For and Next; "(" and
// ")".
//
//     parejasEn(u"For i = 1 To 2\nNext", 1)   gives the places of "For" and "Next"
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

struct Tramo {
    std::size_t inicio = 0; // UTF-16 code units from the start of the text
    std::size_t largo = 0;
    bool operator==(const Tramo&) const = default;
};

// Whether there may be something to look for at that column (from 0) of a line: a cheap question before the dear one.
bool puedeTenerPareja(std::u16string_view linea, std::size_t columna);

// All that belongs together with the word or bracket that the place touches, in the order of the text; empty where
// there is none or its partner is missing.
std::vector<Tramo> parejasEn(std::u16string_view texto, std::size_t lugar);
