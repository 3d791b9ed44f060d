// The receive buffer and the cutting of frames out of it.
//
// A frame is taken up to and including the FIRST character of its end mark, and the whole mark is then put after it;
// the mark's second character stays at the head of the buffer and begins the next frame. Deliberate:
//
//     buffer "AB" LF CR, mark LF CR   ->   frame text "AB" LF LF CR, buffer CR
//
// Gathering and cutting take time linear in what is received, however long no end mark comes.
#pragma once

#include "serial/MarcaFin.h"

#include <cstdint>
#include <string>
#include <string_view>

class CortadorTramas {
public:
    explicit CortadorTramas(const MarcaFin& marca) : marca_(marca) {}

    void agregar(std::string_view trozo);

    // Takes every frame that the buffer holds and appends it to `trama`.
    void cortar(std::string& trama);

    // Forgets what has not become a frame, and gives its memory back.
    void vaciar();

    // Characters received and not yet taken.
    std::string_view buffer() const { return buffer_; }

    // Counts the changes of the buffer: the same number, the same contents.
    std::uint64_t version() const { return version_; }

private:
    MarcaFin marca_;
    std::string buffer_;
    std::size_t buscado_ = 0; // no mark starts before this position
    std::uint64_t version_ = 0;
};
