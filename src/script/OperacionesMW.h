// The operations of "mw" as they are told to who writes scripts.
#pragma once

#include <span>
#include <string_view>

struct OperacionMW {
    const char* firma;   // "mw.escribir esclavo, dirección, valor"
    const char* efecto;  // HTML
    const char* ejemplo; // lines of a script

    // "escribir"
    std::string_view nombre() const;
};

// All of them; texts in UTF-8.
std::span<const OperacionMW> operacionesMW();
