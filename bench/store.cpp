// The register store and the request handler without sockets: memory of full tables, growth, creation, one request.
// Each row is a ratio to the plainest thing that does the same, measured in turns with it in this run.
#include "modbus/Peticiones.h"
#include "registers/Esclavos.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

using Milisegundos = std::chrono::duration<double, std::milli>;

constexpr int esclavosLlenos = 256;
constexpr double ultimaDireccion = 65535;
constexpr double registrosLlenos = esclavosLlenos * (ultimaDireccion + 1);

double memoriaResidente() {
    std::ifstream statm("/proc/self/statm");
    double total = 0;
    double residente = 0;
    statm >> total >> residente;
    return residente * static_cast<double>(sysconf(_SC_PAGESIZE));
}

// Bytes by which the process grows while `llenar` fills a store, in a process of its own.
double crecimiento(const std::function<void(Esclavos&)>& llenar) {
    std::array<int, 2> tubo{};
    if (pipe(tubo.data()) != 0)
        return -1;
    double bytes = -1;
    const pid_t hijo = fork();
    if (hijo == 0) {
        Esclavos esclavos;
        const double antes = memoriaResidente();
        llenar(esclavos);
        bytes = memoriaResidente() - antes;
        _exit(write(tubo[1], &bytes, sizeof bytes) == sizeof bytes ? 0 : 1);
    }
    close(tubo[1]);
    if (read(tubo[0], &bytes, sizeof bytes) != sizeof bytes)
        bytes = -1;
    close(tubo[0]);
    waitpid(hijo, nullptr, 0);
    return bytes;
}

void filaMemoria(const char* nombre, const std::function<void(Esclavos&)>& llenar) {
    const double bytes = crecimiento(llenar);
    std::printf("%-62s %6.2f  objective <= 1.5   (%.0f MB)\n", nombre, bytes / (8 * registrosLlenos), bytes / 1e6);
}

// Fastest of many runs, each of the two in turn.
std::pair<double, double> enTurnos(const std::function<void()>& una, const std::function<void()>& otra,
                                   int vueltas = 50) {
    const auto medir = [](const std::function<void()>& f) {
        const auto desde = std::chrono::steady_clock::now();
        f();
        return Milisegundos(std::chrono::steady_clock::now() - desde).count();
    };
    std::pair mejor{1e9, 1e9};
    for (int vuelta = 0; vuelta < vueltas; ++vuelta) {
        mejor.first = std::min(mejor.first, medir(una));
        mejor.second = std::min(mejor.second, medir(otra));
    }
    return mejor;
}

void filaTiempo(const char* nombre, std::pair<double, double> milisegundos) {
    std::printf("%-62s %6.2f  (%.3f ms beside %.3f ms)\n", nombre, milisegundos.first / milisegundos.second,
                milisegundos.first, milisegundos.second);
}

void usar(const void* datos) {
    asm volatile("" : : "r"(datos) : "memory"); // keeps what was computed from being optimised away
}

// ---- Growth and creation ----

void crecerTabla() {
    Esclavos esclavos;
    std::array<std::uint8_t, 252> datos{};
    esclavos.crearEsclavo(0, 0, 99);
    esclavos.leerRegistrosComoBytes(0, ultimaDireccion, 126, datos);
    usar(esclavos.valores(0).data());
}

void crecerVector() {
    std::vector<double> valores(100);
    valores.resize(65662);
    usar(valores.data());
}

template <int registros>
void crearEsclavos() {
    Esclavos esclavos;
    for (int n = 0; n < esclavosLlenos; ++n)
        esclavos.crearEsclavo(n, 0, registros - 1);
    usar(&esclavos);
}

template <int registros>
void crearVectores() {
    std::vector<std::vector<double>> tablas;
    for (int n = 0; n < esclavosLlenos; ++n) {
        tablas.resize(static_cast<std::size_t>(n) + 1);
        tablas.back().resize(registros);
    }
    usar(tablas.data());
}

// ---- One request ----

class Maestro final : public Conexion {
public:
    bool conectada() const override { return true; }
    std::string_view direccionRemota() const override { return "192.168.0.10"; }
    bool enviar(std::span<const std::uint8_t> respuesta) override {
        usar(respuesta.data());
        return true;
    }
};

class RelojParado final : public Reloj {
public:
    Instante instante() const override { return {}; }
    Hora hora() const override { return {}; }
    std::time_t segundo() const override { return 0; }
};

constexpr int peticionesPorVuelta = 20000;

class Lector {
public:
    explicit Lector(bool verTxRx) { monitores_.verTxRx = verTxRx; }

    void leerDiez() {
        constexpr std::array<std::uint8_t, 12> lectura{0, 1, 0, 0, 0, 6, 1, 3, 0, 0, 0, 10};
        for (int k = 0; k < peticionesPorVuelta; ++k)
            peticiones_.atender(lectura, maestro_);
    }

private:
    Esclavos esclavos_;
    Monitores monitores_;
    RelojParado reloj_;
    Maestro maestro_;
    Peticiones peticiones_{esclavos_, monitores_, reloj_};
};

void filaPeticion() {
    Lector callado(false);
    Lector hablador(true);
    const auto [sin, con] = enTurnos([&] { callado.leerDiez(); }, [&] { hablador.leerDiez(); });
    std::printf("%-62s %6.2f  (%.0f ns without, %.0f ns with)\n", "read of 10 with \"Ver TX/RX\" beside without",
                con / sin, sin * 1e6 / peticionesPorVuelta, con * 1e6 / peticionesPorVuelta);
}

} // namespace

int main() {
    filaMemoria("memory of 256 full slaves, made whole, beside 8 bytes a register", [](Esclavos& esclavos) {
        for (int n = 0; n < esclavosLlenos; ++n)
            esclavos.crearEsclavo(n, 0, ultimaDireccion);
    });
    filaMemoria("the same grown by reads upwards", [](Esclavos& esclavos) {
        for (int n = 0; n < esclavosLlenos; ++n)
            for (int a = 0; a < ultimaDireccion; a += 10)
                esclavos.leer(n, a);
    });
    filaTiempo("growth of a table to 65,661 beside a vector's", enTurnos(crecerTabla, crecerVector));
    filaTiempo("creation of 256 slaves of 100 beside vectors", enTurnos(crearEsclavos<100>, crearVectores<100>));
    filaTiempo("creation of 256 slaves of 65,536 beside vectors",
               enTurnos(crearEsclavos<65536>, crearVectores<65536>, 5));
    filaPeticion();
    return 0;
}
