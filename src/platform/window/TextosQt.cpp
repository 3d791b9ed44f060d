#include "platform/window/TextosQt.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct Texto {
    std::string_view original;
    const char* traducido;
};

constexpr std::array textos{
    // buttons
    Texto{"OK", "Aceptar"},
    Texto{"&OK", "&Aceptar"},
    Texto{"Cancel", "Cancelar"},
    Texto{"&Cancel", "&Cancelar"},
    Texto{"Close", "Cerrar"},
    Texto{"&Close", "&Cerrar"},
    Texto{"&Yes", "&Sí"},
    Texto{"&No", "&No"},
    // text boxes
    Texto{"&Undo", "&Deshacer"},
    Texto{"&Redo", "&Rehacer"},
    Texto{"Cu&t", "Cor&tar"},
    Texto{"&Copy", "&Copiar"},
    Texto{"Copy &Link Location", "Copiar &dirección del enlace"},
    Texto{"&Paste", "&Pegar"},
    Texto{"Delete", "Eliminar"},
    Texto{"Select All", "Seleccionar todo"},
    Texto{"Insert Unicode control character", "Insertar carácter de control Unicode"},
    // scroll bars
    Texto{"Scroll here", "Desplazar hasta aquí"},
    Texto{"Left edge", "Borde izquierdo"},
    Texto{"Right edge", "Borde derecho"},
    Texto{"Top", "Principio"},
    Texto{"Bottom", "Final"},
    Texto{"Page left", "Página a la izquierda"},
    Texto{"Page right", "Página a la derecha"},
    Texto{"Page up", "Página arriba"},
    Texto{"Page down", "Página abajo"},
    Texto{"Scroll left", "Desplazar a la izquierda"},
    Texto{"Scroll right", "Desplazar a la derecha"},
    Texto{"Scroll up", "Desplazar arriba"},
    Texto{"Scroll down", "Desplazar abajo"},
};

} // namespace

QString TextosQt::translate(const char* /*contexto*/, const char* original, const char* /*aclaracion*/,
                            int /*cantidad*/) const {
    const auto hallado = std::find_if(textos.begin(), textos.end(),
                                      [original](const Texto& texto) { return texto.original == original; });
    return hallado != textos.end() ? QString::fromUtf8(hallado->traducido) : QString();
}
