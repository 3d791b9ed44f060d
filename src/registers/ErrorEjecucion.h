// What goes wrong while a script or the operator works on the registers.
#pragma once

#include <stdexcept>

// A run-time error of a store operation or a conversion. The numbers are those that a script sees in Err.Number.
class ErrorEjecucion : public std::runtime_error {
public:
    static constexpr int argumentoNoValido = 5;
    static constexpr int desbordamiento = 6;
    static constexpr int memoriaAgotada = 7;
    static constexpr int indiceFueraDeIntervalo = 9;
    static constexpr int tiposNoCoinciden = 13;

    explicit ErrorEjecucion(int numero);
    int numero() const { return numero_; }

private:
    int numero_;
};
