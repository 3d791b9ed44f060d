#include "registers/Esclavos.h"

#include "platform/system/Memoria.h"
#include "registers/Cambios.h"
#include "registers/ErrorEjecucion.h"
#include "registers/Palabra.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

// What tables and pages leave to the rest of the program: they grow as masters and scripts ask, while a window that
// finds no memory for its next text or picture ends the program.
constexpr std::size_t reservaMemoria = std::size_t{24} * 1024 * 1024; // bytes

void exigirMemoria(std::size_t bytes) {
    if (!hayMemoria(reservaMemoria + bytes))
        throw ErrorEjecucion(ErrorEjecucion::memoriaAgotada);
}

std::size_t indice(double x, int limite) {
    const std::int32_t entero = entero32(x);
    if (entero < 0 || entero > limite)
        throw ErrorEjecucion(ErrorEjecucion::indiceFueraDeIntervalo);
    return static_cast<std::size_t>(entero);
}

// Which cell (numbered as its register) shows a write of register `i` at `direccion`: the row follows from the address
// as it was given, the column from the rounded one. So 9.5, which is register 10, is shown where register 0 stands.
int celdaDe(double direccion, int i) {
    const int porFila = Pagina::registrosPorFila;
    return i % porFila == 0 && direccion < i ? std::max(0, i - porFila) : i;
}

// High byte first. The high byte is the integer part of value / 256, the low byte the rounded value modulo 256.
void comoBytes(double valor, std::uint8_t* destino) {
    const auto truncado = static_cast<std::uint32_t>(valor);
    destino[0] = static_cast<std::uint8_t>(truncado >> 8);
    destino[1] = static_cast<std::uint8_t>(truncado == valor ? truncado : static_cast<std::uint32_t>(entero32(valor)));
}

} // namespace

EsclavoMW& Esclavos::registro(double esclavo) {
    return registros_[indice(esclavo, limite())];
}

std::span<const double> Esclavos::valores(int numero) const {
    if (!existe(numero))
        return {};
    return registros_[static_cast<std::size_t>(numero)].Valores;
}

double Esclavos::guardar(EsclavoMW& destino, std::size_t direccion, double valor, Autor autor) {
    const double anterior = std::exchange(destino.Valores[direccion], valor);
    if (cambios_ != nullptr)
        cambios_->registroEscrito(destino.pagina->numero(), static_cast<int>(direccion), anterior, valor, autor);
    return anterior;
}

void Esclavos::darValorEsclavoLogico(double esclavo, double direccion, double valor, Autor autor) {
    if (!(valor >= 0 && valor <= 65535))
        return;
    EsclavoMW& destino = registro(esclavo);
    const std::size_t i = indice(direccion, destino.limite());
    const double anterior = guardar(destino, i, valor, autor);
    const int celda = celdaDe(direccion, static_cast<int>(i));
    if (celda == static_cast<int>(i))
        destino.pagina->mostrarEnSuCelda(celda);
    else
        destino.pagina->mostrarEnOtraCelda(static_cast<int>(i), anterior, celda, valor);
}

bool Esclavos::escribirSiExiste(std::int64_t esclavo, std::int64_t direccion, double valor) {
    const double* const actual = valorSiExiste(esclavo, direccion);
    if (actual == nullptr || !(valor >= 0 && valor <= 65535))
        return false;
    EsclavoMW& destino = registros_[static_cast<std::size_t>(esclavo)];
    guardar(destino, static_cast<std::size_t>(direccion), valor, Autor::script);
    destino.pagina->mostrarEnSuCelda(static_cast<int>(direccion));
    return true;
}

void Esclavos::escribir_C2(double sclavo, double direccion, double valor, Autor autor) {
    darValorEsclavoLogico(sclavo, direccion, SINGLEINT(valor), autor);
}

void Esclavos::escribir_bit(double sclavo, double direccion, double bit, double valorBit) {
    if (valorBit < 0 || valorBit > 1 || bit < 0)
        return;
    const double palabra = leer(sclavo, direccion, -1);
    darValorEsclavoLogico(sclavo, direccion, SetearBIT_YDevolverPalabra(palabra, entero16(bit), entero16(valorBit)));
}

double Esclavos::leer(double sclavo, double direccion, double numBit) {
    double resultado = 0;
    if (sclavo > limite() || registro(sclavo).pagina == nullptr) {
        crearEsclavo(sclavo, 0, ultimaPorDefecto);
    } else {
        const EsclavoMW& origen = registro(sclavo);
        if (direccion > origen.limite())
            ampliarTablaMW(sclavo, direccion, 10);
        else
            resultado = origen.Valores[indice(direccion, origen.limite())];
    }
    return numBit > -1 ? NBit(resultado, entero16(numBit)) : resultado;
}

void Esclavos::crearEsclavo(double numero, double primera, double ultima) {
    const std::int32_t n = entero32(numero);
    if (n < 0)
        throw ErrorEjecucion(ErrorEjecucion::indiceFueraDeIntervalo);
    if (existe(n))
        return;
    if (n > maxNumero || paginas_ >= maxPaginas)
        throw ErrorEjecucion(ErrorEjecucion::memoriaAgotada);
    exigirMemoria(0);
    if (n > limite())
        registros_.resize(static_cast<std::size_t>(n) + 1);
    EsclavoMW& nuevo = registros_[static_cast<std::size_t>(n)];
    ampliar(nuevo, std::max(0.0, primera + ultima));
    nuevo.pagina = std::make_unique<Pagina>(n);
    ++paginas_;
    nuevo.pagina->mostrar(nuevo.limite());
    if (observador_ != nullptr)
        observador_->esclavoCreado(*nuevo.pagina);
}

void Esclavos::ampliarTablaMW(double esclavo, double direccion, double margen) {
    EsclavoMW& destino = registro(esclavo);
    if (destino.pagina == nullptr)
        throw ErrorEjecucion(ErrorEjecucion::indiceFueraDeIntervalo);
    const double nuevoLimite = direccion + margen;
    if (nuevoLimite >= destino.limite()) {
        ampliar(destino, nuevoLimite);
        destino.pagina->mostrar(destino.limite());
    }
}

// Grows by a quarter at least, so that a script that walks upwards copies each register a few times only; an eighth
// of slack on average keeps the memory of full tables near 8 bytes a register.
void Esclavos::ampliar(EsclavoMW& registro, double nuevoLimite) {
    const auto cantidad = static_cast<std::size_t>(entero32(nuevoLimite)) + 1;
    auto& valores = registro.Valores;
    if (cantidad <= valores.size())
        return;
    if (totalRegistros_ + cantidad - valores.size() > maxRegistros)
        throw ErrorEjecucion(ErrorEjecucion::memoriaAgotada);
    if (cantidad > valores.capacity()) {
        const std::size_t capacidad = std::max(cantidad, valores.size() + valores.size() / 4);
        exigirMemoria(capacidad * sizeof(double));
        valores.reserve(capacidad);
    }
    totalRegistros_ += cantidad - valores.size();
    valores.resize(cantidad, 0.0);
}

std::size_t Esclavos::leerRegistrosComoBytes(double esclavo, double inicio, double cantidad,
                                             std::span<std::uint8_t> destino) {
    if (esclavo > limite())
        crearEsclavo(esclavo, 0, ultimaPorDefecto);
    else if (inicio + cantidad >= registro(esclavo).limite())
        ampliarTablaMW(esclavo, inicio - cantidad, 2 * cantidad);

    const auto& valores = registro(esclavo).Valores;
    const std::size_t primero = indice(inicio, std::numeric_limits<int>::max());
    const auto tope = std::min(valores.size(), primero + static_cast<std::size_t>(std::max(0, entero32(cantidad))));
    std::size_t bytes = 0;
    for (std::size_t i = primero; i < tope && bytes + 2 <= destino.size(); ++i, bytes += 2)
        comoBytes(valores[i], &destino[bytes]);
    return bytes;
}
