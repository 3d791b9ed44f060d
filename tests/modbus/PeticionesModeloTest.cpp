// The request handler and its store beside a naive model of both, over random arrivals, writes of fractions, check
// boxes, failing sends and sockets that are not connected: whatever can be seen must be equal.
#include "Generador.h"
#include "Modelo.h"
#include "dobles.h"
#include "platform/text/Numbers.h"
#include "registers/ErrorEjecucion.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

constexpr std::uint64_t semilla = 20240611;
constexpr int sesiones = 110;
constexpr int llegadasPorSesion = 2000;

// A station and its model, both fed with the same things.
class Pareja {
public:
    explicit Pareja(Generador& azar) : azar_(azar) {
        for (int n = 0; n <= 11; n += 1 + azar_.hasta(3)) {
            esclavos_.crearEsclavo(n, 0, 499);
            modelo_.crearEsclavo(n, 0, 499);
        }
        if (azar_.unoDe(2)) {
            esclavos_.crearEsclavo(50, 0, 99);
            modelo_.crearEsclavo(50, 0, 99);
        }
    }

    void turno() {
        cambiarCasillas();
        if (azar_.unoDe(20))
            operarComoScript();
        llegar();
    }

    const std::vector<std::uint8_t>& ultimaLlegada() const { return llegada_; }

    // What can be compared at every turn.
    void comparar() {
        ASSERT_EQ(conexion_.enviadas, socket_.enviadas);
        compararFinal(monitores_.escrituras().texto(), modelo_.txtEscrituras);
        ASSERT_EQ(esclavos_.limite(), static_cast<int>(modelo_.Esclavos.limite()));
        for (int n = 0; n <= esclavos_.limite(); ++n) {
            const bool existe = modelo_.Esclavos(n).referencia;
            ASSERT_EQ(esclavos_.existe(n), existe) << "slave " << n;
            if (!existe)
                continue;
            ASSERT_EQ(static_cast<double>(esclavos_.valores(n).size()) - 1, modelo_.Esclavos(n).Valores.limite());
            ASSERT_EQ(esclavos_.pagina(n)->filas(), static_cast<int>(modelo_.MSFlexGrid[n].columna0.size()) + 1);
            compararFinal(monitores_.tramas(n).texto(), modelo_.txtTramas[n]);
        }
    }

    // The whole texts, every register, and that the model's grid shows the same number in the cell of each.
    void compararTodo() {
        ASSERT_EQ(monitores_.escrituras().texto(), modelo_.txtEscrituras);
        for (int n = 0; n <= esclavos_.limite(); ++n) {
            ASSERT_EQ(monitores_.tramas(n).texto(), modelo_.txtTramas[n]) << n;
            const auto valores = esclavos_.valores(n);
            for (std::size_t a = 0; a < valores.size(); ++a) {
                ASSERT_EQ(valores[a], modelo_.Esclavos(n).Valores(static_cast<double>(a))) << n << " " << a;
                const std::pair celda{static_cast<int>(a / 10) + 1, static_cast<int>(a % 10) + 1};
                ASSERT_EQ(text::writeNumber(valores[a]), modelo_.MSFlexGrid[n].TextMatrix[celda]) << n << " " << a;
            }
        }
    }

private:
    // The length and what the last arrivals added: the texts are long, and equal up to there.
    static void compararFinal(std::string_view texto, std::string_view delModelo) {
        constexpr std::size_t final = 4000;
        ASSERT_EQ(texto.size(), delModelo.size());
        const std::size_t desde = texto.size() - std::min(texto.size(), final);
        ASSERT_EQ(texto.substr(desde), delModelo.substr(desde));
    }

    void cambiarCasillas() {
        if (azar_.unoDe(50))
            monitores_.verTxRx = modelo_.ChRxTx = !modelo_.ChRxTx;
        const int n = azar_.unidad();
        if (!esclavos_.existe(n) || !azar_.unoDe(10))
            return;
        Pagina& pagina = *esclavos_.pagina(n);
        modelo::Casillas& casillas = modelo_.casillas[n];
        pagina.recibir = casillas.ChRecibir = !azar_.unoDe(8);
        pagina.responder = casillas.ChResponder = !azar_.unoDe(8);
        pagina.recibirEscrituras = casillas.ChRecibirEscrituras = !azar_.unoDe(8);
        pagina.responderEscrituras = casillas.ChResponderEscrituras = !azar_.unoDe(8);
    }

    void operarComoScript() {
        const int s = azar_.unidad();
        const int a = azar_.direccion();
        if (azar_.unoDe(3)) {
            EXPECT_EQ(esclavos_.leer(s, a), modelo_.leer(s, a));
            return;
        }
        const double valor = azar_.hasta(66000) - 200 + azar_.hasta(4) / 4.0;
        EXPECT_EQ(error([&] { esclavos_.escribir(s, a, valor); }),
                  error([&] { modelo_.darValorEsclavoLogico(s, a, valor); }));
    }

    void llegar() {
        llegada_ = azar_.llegada();
        conexion_ = {};
        socket_ = {};
        conexion_.remota = socket_.RemoteHostIP = azar_.unoDe(2) ? "127.0.0.1" : "192.168.100.200";
        conexion_.enviosBuenos = socket_.enviosBuenos = azar_.unoDe(30) ? azar_.hasta(2) : -1;
        socket_.State = azar_.unoDe(30) ? 8 : 7;
        conexion_.abierta = socket_.State == 7;
        ++segundos_;
        std::array<char, 16> hora{};
        std::snprintf(hora.data(), hora.size(), "%02d:%02d:%02d", segundos_ / 3600 % 24, segundos_ / 60 % 60,
                      segundos_ % 60);
        modelo_.hora = hora.data();
        reloj_.pasar(1s);

        peticiones_.atender(llegada_, conexion_);
        modelo_.llegada(llegada_, socket_);
    }

    template <typename Operacion>
    static int error(Operacion operacion) {
        try {
            operacion();
            return 0;
        } catch (const ErrorEjecucion& e) {
            return e.numero();
        } catch (const modelo::Falla& f) {
            return f.numero;
        }
    }

    Generador& azar_;
    int segundos_ = (12 * 60 + 34) * 60 + 56;
    std::vector<std::uint8_t> llegada_;
    Esclavos esclavos_;
    Monitores monitores_;
    RelojDePrueba reloj_;
    ConexionFalsa conexion_;
    Peticiones peticiones_{esclavos_, monitores_, reloj_};
    modelo::Estacion modelo_;
    modelo::Socket socket_;
};

TEST(HandlerBesideModel, nothingTellsThemApartOver220000Arrivals) {
    Generador azar(semilla);
    for (int sesion = 0; sesion < sesiones; ++sesion) {
        Pareja pareja(azar);
        for (int k = 0; k < llegadasPorSesion; ++k) {
            pareja.turno();
            pareja.comparar();
            ASSERT_FALSE(HasFailure()) << "start value " << semilla << ", session " << sesion << ", arrival " << k
                                       << ": " << testing::PrintToString(pareja.ultimaLlegada());
        }
        pareja.compararTodo();
        ASSERT_FALSE(HasFailure()) << "start value " << semilla << ", after session " << sesion;
    }
}

} // namespace
