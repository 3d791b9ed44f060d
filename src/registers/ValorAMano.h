// A value that the operator writes by hand, in the dialog or by pasting: what fits, and the way into the store.
#pragma once

#include "registers/Esclavos.h"

constexpr double valorMinimo = -32768;
constexpr double valorMaximo = 65535;
constexpr const char* valorFueraDeRango = "Valor fuera de rango, se admiten valores entre -32768 y 65535";

constexpr bool cabeAMano(double valor) {
    return valor >= valorMinimo && valor <= valorMaximo;
}

// Up to 32767 the value is signed. Raises indiceFueraDeIntervalo for a register that does not exist.
inline void escribirAMano(Esclavos& esclavos, double esclavo, double direccion, double valor) {
    constexpr double mayorConSigno = 32767;
    if (valor <= mayorConSigno)
        esclavos.escribir_C2(esclavo, direccion, valor, Autor::mano);
    else
        esclavos.escribir(esclavo, direccion, valor, Autor::mano);
}
