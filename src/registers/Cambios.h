// Who wrote which register last, and when: what the grid's colours, its tooltips and the chart are made from.
//
// It remembers in a table of fixed size, one place for each register number modulo that size; a register that shares
// its place with a later one is forgotten. So a write costs a few stores and never memory, however many registers
// there are. Times are milliseconds since 1970.
//
//     Cambios cambios(reloj);
//     esclavos.observarCambios(&cambios);
//     cambios.ultima(1, 5)->autor;      // Autor::maestro
#pragma once

#include "platform/clock/Reloj.h"
#include "registers/Autor.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

// Told of every accepted write, changed value or not.
class ObservadorCambios {
public:
    virtual void registroEscrito(int esclavo, int direccion, double antes, double ahora, Autor autor) = 0;

protected:
    ~ObservadorCambios() = default;
};

struct Escritura {
    std::int64_t escrito = 0;   // when it was written last
    std::int64_t cambiado = 0;  // when its value changed last, 0: not since it is remembered
    std::int32_t direccion = 0; // from 0
    std::int16_t esclavo = -1;
    Autor autor = Autor::nadie;
};

class Cambios final : public ObservadorCambios {
public:
    static constexpr std::size_t lugares = 1 << 16;

    explicit Cambios(const Reloj& reloj) : reloj_(reloj) {} // borrowed

    void registroEscrito(int esclavo, int direccion, double antes, double ahora, Autor autor) override;

    // The last write of a register, empty when there was none or it is forgotten.
    std::optional<Escritura> ultima(int esclavo, int direccion) const;

    // Milliseconds since the register's value changed, empty when it has not or is forgotten.
    std::optional<std::int64_t> desdeElCambio(int esclavo, int direccion) const;

    // Told of every write from then on, until it is detached; borrowed.
    void agregar(ObservadorCambios* observador);
    void quitar(ObservadorCambios* observador);

    std::int64_t hora() const {
        return std::chrono::duration_cast<std::chrono::milliseconds>(reloj_.hora().time_since_epoch()).count();
    }

private:
    // Neighbours of a slave never share a place, nor do the first registers of neighbouring slaves.
    static std::size_t lugar(int esclavo, int direccion) {
        return (static_cast<std::size_t>(esclavo) * 4099 + static_cast<std::size_t>(direccion)) % lugares;
    }

    const Reloj& reloj_;
    std::vector<Escritura> escrituras_; // empty until the first write
    std::vector<ObservadorCambios*> observadores_;
};
