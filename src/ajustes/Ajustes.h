// The station's settings as its parts use them: read and written by key. Texts are UTF-8.
//
// The keys stand in one table, Claves.h; where they are kept is the implementer's.
//
//     const std::optional<double> puerto = ajustes.leerNumero(claves::puerto);
#pragma once

#include <optional>
#include <string>
#include <string_view>

// A row of the table.
struct Clave {
    std::string_view nombre = {};      // found in the file without regard to case
    std::string_view porDefecto = {};  // what a reader gets where the file has no such key
    std::string_view significado = {}; // for the operator, in Spanish and Markdown
    std::string_view cuandoVale = {};  // when a change of the file takes effect, likewise
    std::string_view lector = {};      // who reads it: a file of src, without its ending
    std::string_view seccion = "Trelvano";
    bool ajena = false; // belongs to other programs: read, never written
};

class Ajustes {
public:
    // The value of the key. Equal to its default, or missing, it is written back, unless the key is `ajena`.
    virtual std::string leerConfiguracion(const Clave& clave) = 0;

    virtual void escribirConfiguracion(const Clave& clave, std::string_view valor) = 0;

    // Of the numbers in the file and of those that the operator types.
    virtual char16_t signoDecimal() const = 0;

    // leerConfiguracion as a number; nothing when the text is not numeric (a type mismatch to its reader).
    std::optional<double> leerNumero(const Clave& clave);

    // The number in the form that leerNumero reads.
    void escribirNumero(const Clave& clave, double numero);

protected:
    ~Ajustes() = default;
};
