// How the lines of a script open and close blocks, for automatic indentation.
//
//     efectoDeLinea(u"If a = 1 Then").abre == 1      efectoDeLinea(u"Next").cierra == 1
//     efectoDeLinea(u"Else") closes one block and opens another
// A Select opens two blocks, itself and its cases: a Case closes and opens the inner one, End Select closes both.
#pragma once

#include <string_view>

struct EfectoLinea {
    int cierra = 0; // blocks opened above this line that end with it
    int abre = 0;   // blocks that are open after it and were not before
};

// The line by itself, without its end. A block that opens and closes within the line has no effect.
EfectoLinea efectoDeLinea(std::u16string_view linea);
