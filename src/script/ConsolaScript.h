// The console of the station's script: "WScript" with Echo alone, and the last lines that were written with it.
//
//     WScript.Echo "nivel", nivel      ' 10:32:05  nivel 512
//
// Echo never waits and never fails: what has no text is told by its type. The oldest lines give way to new ones.
#pragma once

#include "platform/vbscript/Object.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

class ConsolaScript final : public vbs::NativeObject<ConsolaScript> {
public:
    static constexpr std::size_t maximo = 60'000;     // UTF-16 code units of all lines, a line's end counted as one
    static constexpr std::size_t maximoLinea = 4'000; // what is longer is cut off

    static std::span<const Member> members();
    std::u16string_view typeName() const override { return u"Object"; }

    // The lines that are still there, with the time of day before them and without their ends.
    const std::deque<std::u16string>& lineas() const { return lineas_; }
    // How many lines were there and are gone, since the object was made.
    std::uint64_t idas() const { return idas_; }
    void borrar();

private:
    vbs::Value echo(vbs::Context& context, vbs::Access access, vbs::Arguments argumentos);
    void escribir(std::u16string linea);
    void quitarPrimera();

    std::deque<std::u16string> lineas_;
    std::uint64_t idas_ = 0;
    std::size_t tamano_ = 0;
};

// What a script makes of the name WScript.
enum class UsoDeWScript {
    Ninguno,  // it does not stand in the text
    Miembros, // only what follows a dot is used: WScript.Echo
    Propio,   // the script may have a variable or procedure of that name
};
UsoDeWScript usoDeWScript(std::u16string_view texto);
