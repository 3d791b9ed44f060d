// One line of a text and what ends it: CR LF, LF or CR, mixed at will; the last line may lack an end.
//
//     for (std::string_view resto = texto; !resto.empty();) { const LineaTexto linea = tomarLinea(resto); ... }
#pragma once

#include <string_view>

struct LineaTexto {
    std::string_view contenido; // without the line end
    std::string_view fin;       // "\r\n", "\n", "\r", or empty at the end of the text
};

// Takes the first line off `resto`, which must not be empty. The views look into the caller's text.
LineaTexto tomarLinea(std::string_view& resto);

// The text without the blanks and tabs around it.
std::string_view sinBlancos(std::string_view texto);
