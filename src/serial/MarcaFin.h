// The end mark of a frame: two characters of the ANSI code page, searched for without regard to case.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

class MarcaFin {
public:
    // By default line feed, carriage return: in that order.
    explicit MarcaFin(unsigned char primero = 10, unsigned char segundo = 13);

    std::string_view texto() const { return texto_; }

    // Where the mark first stands at or after `desde` (from 0); std::string_view::npos when nowhere.
    std::size_t buscar(std::string_view ansi, std::size_t desde = 0) const;

private:
    std::string texto_;
    std::array<bool, 256> esPrimero_{}; // by code, in either case
    std::array<bool, 256> esSegundo_{};
};
