#include "script/OperacionesMW.h"

namespace {

constexpr OperacionMW operaciones[] = {
    {"mw.leer(esclavo, dirección [, bit])",
     "El valor del registro, de 0 a 65535; con <i>bit</i> (0 a 15), ese bit: 0 o 1. Si el esclavo o el registro no "
     "existen, los crea y devuelve 0.",
     "nivel = mw.leer(1, 10)\nmarcha = mw.leer(1, 0, 3)"},
    {"mw.escribir esclavo, dirección, valor",
     "Escribe un valor de 0 a 65535; uno fuera de ese intervalo no cambia nada. Si el esclavo o el registro no "
     "existen, error 9.",
     "mw.escribir 1, 10, 1500"},
    {"mw.escribir_C2 esclavo, dirección, valor", "Escribe un valor con signo, de -32768 a 32767, en complemento a dos.",
     "mw.escribir_C2 1, 11, -25"},
    {"mw.escribir_bit esclavo, dirección, bit, valor",
     "Pone un bit (0 a 15) del registro a 1 o a 0 y deja los demás como están.", "mw.escribir_bit 1, 0, 3, 1"},
    {"mw.SINGLEINT(número)", "El número en complemento a dos: si es negativo, le suma 65536.",
     "palabra = mw.SINGLEINT(-2)   ' 65534"},
    {"mw.NBit(palabra, bit)", "Un bit de una palabra: 0 o 1.", "If mw.NBit(estado, 7) = 1 Then parar = True"},
    {"mw.SetearBIT_YDevolverPalabra(palabra, bit, valor)",
     "La palabra con ese bit a 1 (valor 1) o a 0 (otro valor); no escribe ningún registro.",
     "estado = mw.SetearBIT_YDevolverPalabra(estado, 2, 1)"},
    {"mw.darValorEsclavoLogico esclavo, dirección, valor", "Lo mismo que mw.escribir.",
     "mw.darValorEsclavoLogico 1, 10, 0"},
    {"mw.ejecucion_timers número", "Con 1 pide una pasada del script; dentro de una pasada no hace nada.",
     "mw.ejecucion_timers 1"},
};

} // namespace

std::string_view OperacionMW::nombre() const {
    const std::string_view tras = std::string_view(firma).substr(3); // behind "mw."
    return tras.substr(0, tras.find_first_of(" ("));
}

std::span<const OperacionMW> operacionesMW() {
    return operaciones;
}
