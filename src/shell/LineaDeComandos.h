// The words that the program was started with, read before the window system takes its own out of them.
//
//     esclavo-modbus view --style fusion      shows the window
//     esclavo-modbus --veiw                   an option that does not exist
#pragma once

#include <span>
#include <string>

enum class Pedido { arrancar, ayuda, version, opcionDesconocida };

struct LineaDeComandos {
    Pedido pedido = Pedido::arrancar;
    std::string opcion;     // the one that does not exist
    std::string texto;      // all words, one blank between two
    std::string plataforma; // value of the window system's option -platform; empty without one
};

// `palabras`: all but the program's name. A word that holds "view" in any case is never an unknown option. Words that
// are no options are accepted and mean nothing.
LineaDeComandos leerLineaDeComandos(std::span<const char* const> palabras);

// What --help prints, and what follows the complaint about an unknown option; ends with a line end.
std::string textoDeUso();
