// A second, deliberately naive telling of the station's request handling and of its store, against which the real one
// is compared. It follows the described steps one by one with arrays that check every index, builds every text by
// concatenation, and shares no code with the station.
#pragma once

#include <cmath>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace modelo {

// A run-time fault: it ends the handling of an arrival.
struct Falla {
    int numero = 0; // 6 overflow, 9 index outside; 0 any other
};

// Rounds to the nearest, halves to even; what fits no 32-bit integer overflows.
long entero(double x);

template <typename T>
class Arreglo {
public:
    T& operator()(double i) { return elementos_.at(posicion(i)); }
    const T& operator()(double i) const { return elementos_.at(posicion(i)); }
    double limite() const { return static_cast<double>(elementos_.size()) - 1; }
    void redimensionar(double limite) { elementos_.resize(static_cast<std::size_t>(entero(limite)) + 1); }

private:
    std::size_t posicion(double i) const {
        const long k = entero(i);
        if (k < 0 || k >= static_cast<long>(elementos_.size()))
            throw Falla{9};
        return static_cast<std::size_t>(k);
    }

    std::vector<T> elementos_;
};

struct Casillas {
    bool ChRecibir = false;
    bool ChResponder = false;
    bool ChRecibirEscrituras = true; // as the template has it: the set-up of a page does not touch this box
    bool ChResponderEscrituras = false;
};

struct Grilla {
    std::vector<int> columna0; // the row headings, from row 1
    std::map<std::pair<int, int>, std::string> TextMatrix;
};

struct EsclavoMW {
    Arreglo<double> primero; // each element holds its own address
    Arreglo<double> Valores;
    bool referencia = false; // false: a slave that does not exist
};

// What a socket does for the model: keeps the answers, fails after some of them, knows its state.
struct Socket {
    int State = 7;
    int enviosBuenos = -1;
    std::string RemoteHostIP;
    std::vector<std::vector<std::uint8_t>> enviadas;

    void SendData(const std::vector<std::uint8_t>& datos);
};

class Estacion {
public:
    bool ChRxTx = false;
    std::string hora;

    Arreglo<EsclavoMW> Esclavos;
    std::string lista; // "$1$$7$": the created slaves
    std::vector<std::string> pestanas;
    std::map<int, Casillas> casillas;
    std::map<int, Grilla> MSFlexGrid;
    std::map<int, std::string> txtTramas;
    std::string txtEscrituras;

    // The data-arrival event: whatever fault occurs ends it silently.
    void llegada(const std::vector<std::uint8_t>& datos, Socket& k);

    void crearEsclavo(double n, double primera, double ultima);
    void darValorEsclavoLogico(double esclavo, double direccion, double valor);
    double leer(double sclavo, double direccion);

private:
    void recorrer(const std::vector<std::uint8_t>& datos, Socket& k);
    void escritura(const std::vector<std::uint8_t>& datos, std::size_t i, std::string T, Socket& k);
    void lectura(const std::vector<std::uint8_t>& datos, std::size_t i, std::string T, Socket& k);
    void excepcion(const std::vector<std::uint8_t>& datos, std::size_t i, double f, bool funcionDesconocida, Socket& k);

    void ampliarTablaMW(double esclavo, double direccion, double margen);
    void agregarFilasMW(int esclavo, double cantidad);
    void prepararGrilla(int n);
    std::vector<std::uint8_t> leerRegistrosComoBytes(double esclavo, double inicio, double cantidad);

    Casillas& casillasDe(double s);
    void agregarTramas(double s, const std::string& linea);
    void agregarEscrituras(const std::string& linea);
};

} // namespace modelo
