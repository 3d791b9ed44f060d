#include "shell/LineaDeComandos.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct OpcionQt {
    std::string_view nombre; // without its one or two dashes
    bool conValor;           // in the same word behind "=", or in the next one
};

// What the window system takes out of the command line.
constexpr std::array opcionesQt{OpcionQt{"platform", true},        OpcionQt{"platformpluginpath", true},
                                OpcionQt{"platformtheme", true},   OpcionQt{"plugin", true},
                                OpcionQt{"qwindowgeometry", true}, OpcionQt{"geometry", true},
                                OpcionQt{"qwindowicon", true},     OpcionQt{"icon", true},
                                OpcionQt{"qwindowtitle", true},    OpcionQt{"title", true},
                                OpcionQt{"display", true},         OpcionQt{"session", true},
                                OpcionQt{"style", true},           OpcionQt{"stylesheet", true},
                                OpcionQt{"reverse", false},        OpcionQt{"widgetcount", false}};

char minuscula(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool pideVentana(std::string_view palabra) {
    constexpr std::string_view view = "view";
    return std::search(palabra.begin(), palabra.end(), view.begin(), view.end(),
                       [](char a, char b) { return minuscula(a) == b; }) != palabra.end();
}

const OpcionQt* opcionQt(std::string_view palabra) {
    palabra.remove_prefix(palabra.starts_with("--") ? 2 : 1);
    const std::string_view nombre = palabra.substr(0, palabra.find('='));
    const auto hallada = std::find_if(opcionesQt.begin(), opcionesQt.end(),
                                      [nombre](const OpcionQt& opcion) { return opcion.nombre == nombre; });
    return hallada != opcionesQt.end() ? &*hallada : nullptr;
}

} // namespace

LineaDeComandos leerLineaDeComandos(std::span<const char* const> palabras) {
    LineaDeComandos linea;
    for (const char* const palabra : palabras)
        linea.texto.append(linea.texto.empty() ? "" : " ").append(palabra);
    for (std::size_t i = 0; i < palabras.size() && linea.pedido == Pedido::arrancar; ++i) {
        const std::string_view palabra = palabras[i];
        if (!palabra.starts_with('-') || palabra == "-" || palabra == "--")
            continue;
        if (palabra == "--help" || palabra == "-h") {
            linea.pedido = Pedido::ayuda;
        } else if (palabra == "--version") {
            linea.pedido = Pedido::version;
        } else if (const OpcionQt* const opcion = opcionQt(palabra)) {
            const bool enLaSiguiente = opcion->conValor && palabra.find('=') == std::string_view::npos;
            if (!enLaSiguiente || i + 1 == palabras.size())
                continue;
            ++i;
            if (opcion->nombre == "platform")
                linea.plataforma = palabras[i];
        } else if (!pideVentana(palabra)) {
            linea.pedido = Pedido::opcionDesconocida;
            linea.opcion = palabra;
        }
    }
    return linea;
}

std::string textoDeUso() {
    return "Uso: esclavo-modbus [view] [opciones]\n"
           "\n"
           "Estación esclava Modbus TCP. Los ajustes están en el archivo Sis_Config.ini.\n"
           "\n"
           "  view         muestra la ventana aunque esté oculta; vale cualquier palabra que contenga \"view\"\n"
           "  -h, --help   muestra esta ayuda y termina\n"
           "  --version    muestra la versión y termina\n"
           "\n"
           "Las opciones de Qt (-platform, -style, -display, ...) también valen.\n";
}
