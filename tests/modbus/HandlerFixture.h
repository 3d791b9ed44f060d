// A station with slave 1 (registers 0..99), "Ver TX/RX" checked, and one connected master.
#pragma once

#include "dobles.h"

#include <gtest/gtest.h>

class Handler : public testing::Test {
protected:
    Handler() {
        esclavos.crearEsclavo(1, 0, 99);
        monitores.verTxRx = true;
    }

    void atender(const Bytes& llegada) { peticiones.atender(llegada, conexion); }

    double registro(int esclavo, std::size_t direccion) const { return esclavos.valores(esclavo)[direccion]; }
    std::string tramas(int esclavo) { return std::string(monitores.tramas(esclavo).texto()); }
    std::string escrituras() { return std::string(monitores.escrituras().texto()); }

    // Nothing was answered, shown or stored in slave 1.
    void esperarSilencio(const std::string& caso = "") {
        EXPECT_TRUE(conexion.enviadas.empty()) << caso;
        EXPECT_EQ(tramas(1), "") << caso;
        EXPECT_EQ(escrituras(), "") << caso;
        for (const double valor : esclavos.valores(1))
            ASSERT_EQ(valor, 0) << caso;
    }

    Esclavos esclavos;
    Monitores monitores;
    RelojDePrueba reloj;
    ConexionFalsa conexion;
    Peticiones peticiones{esclavos, monitores, reloj};
};
