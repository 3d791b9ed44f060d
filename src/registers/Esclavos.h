// The register store: for every slave number a table of registers, addressed from 0.
//
// Slaves come into being when they are first used and are never removed; tables only grow; nothing is saved. The
// public operations are the ones a script calls as members of "mw". Slave numbers, addresses and values are doubles
// and become whole indices by rounding to the nearest, halves to even. Errors are ErrorEjecucion.
//
//     Esclavos esclavos;
//     esclavos.leer(7, 0);            // 0, and slave 7 now exists with registers 0..99
//     esclavos.escribir(7, 5, 1234);
#pragma once

#include "registers/Autor.h"
#include "registers/Pagina.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

// One slave number. A record without a page is a slave that does not exist.
struct EsclavoMW {
    std::vector<double> Valores;    // index = register address; every value lies in 0..65535, fractions are kept
    std::unique_ptr<Pagina> pagina; // empty: never created

    // Highest address of the table, -1 before it has its first element. The companion array that holds in each
    // element its own address is kept as this bound alone.
    int limite() const { return static_cast<int>(Valores.size()) - 1; }
};

// Told of each slave that comes into being, so that a window can build its tab and controls.
class ObservadorEsclavos {
public:
    virtual void esclavoCreado(Pagina& pagina) = 0;

protected:
    ~ObservadorEsclavos() = default;
};

class ObservadorCambios;

class Esclavos {
public:
    // Ceilings that keep a runaway script from taking the machine's memory; beyond them: memoriaAgotada.
    static constexpr int maxNumero = 32767;
    static constexpr int maxPaginas = 2048;
    static constexpr std::size_t maxRegistros = std::size_t{1} << 26; // of all tables together

    // A slave that nobody asked for by range gets registers 0..99.
    static constexpr double ultimaPorDefecto = 99;

    // Borrowed; null detaches.
    void observar(ObservadorEsclavos* observador) { observador_ = observador; }

    // Told of every accepted write. Borrowed; null detaches: then it costs nothing.
    void observarCambios(ObservadorCambios* observador) { cambios_ = observador; }

    // The core write, the only place where a register changes. A value below 0 or above 65535 is dropped silently.
    // Creates and grows nothing: a missing slave or an address beyond its table raises indiceFueraDeIntervalo.
    void darValorEsclavoLogico(double esclavo, double direccion, double valor, Autor autor = Autor::script);

    void escribir(double sclavo, double direccion, double valor, Autor autor = Autor::script) {
        darValorEsclavoLogico(sclavo, direccion, valor, autor);
    }

    // Writes a signed value: -32768..-1 are stored as 32768..65535.
    void escribir_C2(double sclavo, double direccion, double valor, Autor autor = Autor::script);

    // Sets or clears one bit. Does nothing when the bit value is not 0..1 or the bit is negative; there is no upper
    // check of the bit: setting bit 16 or more yields a word that the core write drops.
    void escribir_bit(double sclavo, double direccion, double bit, double valorBit);

    // The register's value, or its bit `numBit` (0 or 1) when numBit is above -1. A missing slave is created and a
    // table that is too short grows to direccion + 10; either way the answer is 0 that time.
    double leer(double sclavo, double direccion, double numBit = -1);

    // Creates the slave with registers 0..(primera + ultima), unless it exists: then nothing happens.
    void crearEsclavo(double numero, double primera, double ultima);

    // Grows the table to the bound direccion + margen if that is at or above the present one. New registers are 0.
    void ampliarTablaMW(double esclavo, double direccion, double margen);

    // The block read behind a read answer: up to `cantidad` registers from `inicio`, each high byte first. The table
    // is grown first when it is too short. Returns the bytes written, at most destino.size() and 2 * cantidad.
    std::size_t leerRegistrosComoBytes(double esclavo, double inicio, double cantidad, std::span<std::uint8_t> destino);

    bool existe(int numero) const { return pagina(numero) != nullptr; }
    int limite() const { return static_cast<int>(registros_.size()) - 1; } // highest slave number allocated, or -1

    // Null for a slave that does not exist.
    Pagina* pagina(int numero) const {
        return numero >= 0 && numero <= limite() ? registros_[static_cast<std::size_t>(numero)].pagina.get() : nullptr;
    }

    // The register's value, or null when slave or register does not exist. Valid as valores() is.
    const double* valorSiExiste(std::int64_t esclavo, std::int64_t direccion) const {
        if (esclavo < 0 || static_cast<std::size_t>(esclavo) >= registros_.size())
            return nullptr;
        const EsclavoMW& registro = registros_[static_cast<std::size_t>(esclavo)];
        const bool existe = registro.pagina != nullptr && direccion >= 0 &&
                            static_cast<std::size_t>(direccion) < registro.Valores.size();
        return existe ? &registro.Valores[static_cast<std::size_t>(direccion)] : nullptr;
    }

    // Writes as escribir() does if slave and register exist and the value is one that a register holds; else false, and
    // nothing has changed.
    bool escribirSiExiste(std::int64_t esclavo, std::int64_t direccion, double valor);

    // The registers of a slave, empty for one that does not exist. Valid until the next operation that may grow it.
    std::span<const double> valores(int numero) const;

private:
    double guardar(EsclavoMW& destino, std::size_t direccion, double valor, Autor autor); // answers the old value
    EsclavoMW& registro(double esclavo); // raises indiceFueraDeIntervalo
    void ampliar(EsclavoMW& registro, double nuevoLimite);

    std::vector<EsclavoMW> registros_;
    std::size_t totalRegistros_ = 0;
    int paginas_ = 0;
    ObservadorEsclavos* observador_ = nullptr;
    ObservadorCambios* cambios_ = nullptr;
};
