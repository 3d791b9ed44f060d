// A real relay of a gigabyte in random block sizes, past a reader that is slow at times. Every byte is compared with
// the one that was sent, and both ends' checksums must agree.

#include "VentanaFalsa.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <poll.h>
#include <random>
#include <sys/socket.h>
#include <thread>

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t volumen = 64'000'000;
#else
constexpr std::size_t volumen = 1'000'000'000;
#endif
constexpr std::size_t tramoLento = 8'000'000;  // bytes that the reader takes in small bites
constexpr std::size_t largoPatron = 1'000'003; // a prime: a block lost, doubled or moved does not fit the pattern again

const std::string& patron() {
    static const std::string bytes = [] {
        std::mt19937_64 azar(7);
        std::string texto(largoPatron, '\0');
        std::generate(texto.begin(), texto.end(), [&] { return static_cast<char>(azar()); });
        return texto;
    }();
    return bytes;
}

std::string_view enPosicion(std::size_t posicion, std::size_t maximo) {
    const std::size_t desde = posicion % largoPatron;
    return std::string_view(patron()).substr(desde, std::min({maximo, largoPatron - desde, volumen - posicion}));
}

// Adler-like, cheap enough for a gigabyte: the order of the bytes counts.
class Suma {
public:
    void agregar(std::string_view bytes) {
        for (const char c : bytes)
            valor_ = valor_ * 31 + static_cast<unsigned char>(c);
    }
    std::uint64_t valor() const { return valor_; }

private:
    std::uint64_t valor_ = 1;
};

struct Extremo {
    explicit Extremo(double puerto) : cliente(static_cast<std::uint16_t>(puerto)) {}

    void enviarTodo() {
        std::mt19937 azar(11);
        std::uniform_int_distribution<std::size_t> tamano(1, 200'000);
        for (std::size_t enviados = 0; enviados < volumen;) {
            const std::string_view bloque = enPosicion(enviados, tamano(azar));
            cliente.send(bloque);
            suma.agregar(bloque);
            enviados += bloque.size();
        }
        cliente.halfClose();
    }

    // Reads until the end of the stream is due. A part of the way it takes small bites with rests between.
    void recibirTodo() {
        std::mt19937 azar(13);
        auto ultimo = std::chrono::steady_clock::now();
        while (recibidos < volumen && !distinto) {
            const bool lento = recibidos > volumen / 4 && recibidos < volumen / 4 + tramoLento;
            const std::string bloque = cliente.receive(lento ? 1 + azar() % 20'000 : 1 << 20);
            if (bloque.empty() || lento)
                std::this_thread::sleep_for(std::chrono::microseconds(lento ? 500 : 50));
            comparar(bloque);
            const auto ahora = std::chrono::steady_clock::now();
            if (!bloque.empty())
                ultimo = ahora;
            // What the bridge has handed to the system may still be on its way.
            else if (cliente.ended() || (yaNoLlegaMas && ahora - ultimo > std::chrono::seconds(20)))
                return;
        }
    }

    void comparar(std::string_view bloque) {
        suma.agregar(bloque);
        while (!bloque.empty() && !distinto) {
            const std::string_view esperado = enPosicion(recibidos, bloque.size());
            distinto = esperado.empty() || bloque.substr(0, esperado.size()) != esperado;
            recibidos += esperado.size();
            bloque.remove_prefix(esperado.size());
        }
    }

    Peer cliente;
    Suma suma;
    std::size_t recibidos = 0;
    bool distinto = false;
    std::atomic<bool> yaNoLlegaMas = false;
};

} // namespace

TEST(PuenteVolumen, aGigabyteArrivesWholeAndInOrderInBoundedMemory) {
    Banco b;
    b.ventana.conStop = true;
    Extremo emisor(b.puente.puerto(Lado::uno));
    Extremo receptor(b.puente.puerto(Lado::dos));
    ASSERT_TRUE(b.esperar([&] {
        return b.puente.estado(Lado::uno) == WinsockState::connected &&
               b.puente.estado(Lado::dos) == WinsockState::connected;
    }));

    std::thread envio([&] { emisor.enviarTodo(); });
    std::thread recepcion([&] { receptor.recibirTodo(); });
    std::size_t masPendiente = 0;
    const auto limite = std::chrono::steady_clock::now() + std::chrono::seconds(500);
    const auto quedan = [&] {
        return b.puente.estado(Lado::uno) == WinsockState::connected || b.puente.pendiente(Lado::dos) > 0;
    };
    while (quedan() && std::chrono::steady_clock::now() < limite) {
        pollfd vigilado{b.reactor.descriptor(), POLLIN, 0};
        poll(&vigilado, 1, 100);
        b.reactor.turn();
        masPendiente = std::max(masPendiente, b.puente.pendiente(Lado::dos));
    }
    receptor.yaNoLlegaMas = true;
    envio.join();
    recepcion.join();

    EXPECT_FALSE(receptor.distinto);
    EXPECT_EQ(receptor.recibidos, volumen);
    EXPECT_EQ(receptor.suma.valor(), emisor.suma.valor());
    EXPECT_LE(masPendiente, Puente::maxPendiente + Reactor::receiveSize);
    EXPECT_GT(masPendiente, 0U); // the slow reader did hold the sender
}
