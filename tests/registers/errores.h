// The number of the run-time error that an operation raises, for EXPECT_EQ; 0 when it raises none.
#pragma once

#include "registers/ErrorEjecucion.h"

template <typename Operacion>
int numeroDeError(Operacion operacion) {
    try {
        operacion();
        return 0;
    } catch (const ErrorEjecucion& error) {
        return error.numero();
    }
}
