// Names of registers, read from "etiquetas.csv" beside the configuration file.
//
// A line a register: slave, address, name, unit, note; separated by semicolons, commas or tabs (what the first line
// with a separator uses), texts in quotes where they hold one. Empty lines, lines that begin with "#" and a heading as
// the first line are passed over. A bad line is told with its number, and the rest is used.
//
//     esclavo;direccion;nombre;unidad;nota
//     1;120;Nivel del tanque;%;sonda norte
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct Etiqueta {
    std::string nombre; // UTF-8, as are the others
    std::string unidad;
    std::string nota;
};

class Etiquetas {
public:
    using Registro = std::pair<int, int>; // slave and address, from 0

    // Replaces everything by what the text (UTF-8) holds. Answers what is wrong with it in Spanish, a text a bad line.
    std::vector<std::string> leer(std::string_view texto);

    // Null for a register without a name.
    const Etiqueta* de(int esclavo, int direccion) const;

    const std::map<Registro, Etiqueta>& todas() const { return etiquetas_; }

private:
    std::map<Registro, Etiqueta> etiquetas_;
};
