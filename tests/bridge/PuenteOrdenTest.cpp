// The order in which a block leaves: this program's send() notes whom it sends to.
#include "VentanaFalsa.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/syscall.h>

namespace {

std::vector<std::uint16_t>* enviosAnotados = nullptr; // local port of each send

std::uint16_t puertoLocal(int descriptor) {
    sockaddr_in propia{};
    socklen_t largo = sizeof propia;
    getsockname(descriptor, reinterpret_cast<sockaddr*>(&propia), &largo);
    return ntohs(propia.sin_port);
}

} // namespace

extern "C" ssize_t send(int descriptor, const void* datos, size_t largo, int opciones) {
    if (enviosAnotados != nullptr)
        enviosAnotados->push_back(puertoLocal(descriptor));
    return syscall(SYS_sendto, descriptor, datos, largo, opciones, nullptr, 0);
}

TEST(PuenteOrden, echoLeavesBeforeTheRelayedBlock) {
    Banco b;
    b.ventana.conEcho = true;
    const Peer c1 = b.conectar(Lado::uno);
    const Peer c2 = b.conectar(Lado::dos);
    c1.send("hola");
    std::vector<std::uint16_t> envios;
    enviosAnotados = &envios;
    EXPECT_EQ(b.recibir(c2, 4), "hola");
    EXPECT_EQ(b.recibir(c1, 4), "hola");
    enviosAnotados = nullptr;
    EXPECT_EQ(envios, (std::vector{static_cast<std::uint16_t>(b.puente.puerto(Lado::uno)),
                                   static_cast<std::uint16_t>(b.puente.puerto(Lado::dos))}));
}
