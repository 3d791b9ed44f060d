#include "Modelo.h"

#include <algorithm>
#include <cstdio>
#include <sstream>

namespace modelo {

namespace {

using Datos = std::vector<std::uint8_t>;

int byte(const Datos& datos, std::size_t i) {
    if (i >= datos.size())
        throw Falla{9};
    return datos[i];
}

std::string texto(double numero) {
    if (numero == std::floor(numero))
        return std::to_string(static_cast<long>(numero));
    char cifras[32];
    std::snprintf(cifras, sizeof cifras, "%.15g", numero);
    std::replace(cifras, cifras + sizeof cifras, ',', '.'); // whatever the locale says
    return cifras;
}

std::string respuestaComoTexto(const Datos& respuesta) {
    std::string R;
    for (const int b : respuesta)
        R += " " + texto(b);
    return R;
}

Datos partir(const std::string& piezas) {
    Datos bytes;
    std::istringstream entrada(piezas);
    std::string pieza;
    while (std::getline(entrada, pieza, ';'))
        bytes.push_back(static_cast<std::uint8_t>(std::stoi(pieza)));
    return bytes;
}

constexpr std::size_t maximoTexto = 60000;

} // namespace

long entero(double x) {
    const double redondo = std::nearbyint(x);
    if (!(std::abs(redondo) <= 2147483647.0 || redondo == -2147483648.0))
        throw Falla{6};
    return static_cast<long>(redondo);
}

void Socket::SendData(const Datos& datos) {
    if (enviosBuenos == 0)
        throw Falla{};
    --enviosBuenos;
    enviadas.push_back(datos);
}

// ---- The store ----

void Estacion::crearEsclavo(double n, double primera, double ultima) {
    const int numero = static_cast<int>(entero(n));
    if (numero < 0)
        throw Falla{9};
    if (n > Esclavos.limite())
        Esclavos.redimensionar(n);

    const std::string rotulo = "#" + texto(numero);
    bool hayPestana = false;
    for (const std::string& pestana : pestanas)
        hayPestana = hayPestana || pestana == rotulo;
    if (!hayPestana)
        pestanas.push_back(rotulo);

    const std::string marca = "$" + texto(numero) + "$";
    if (lista.find(marca) != std::string::npos)
        return;
    casillas[numero] = Casillas{};
    txtTramas[numero] = "";
    MSFlexGrid[numero] = Grilla{};
    lista += marca;
    prepararGrilla(numero);
    EsclavoMW& nuevo = Esclavos(numero);
    nuevo.referencia = true;
    nuevo.primero.redimensionar(0);
    nuevo.Valores.redimensionar(0);
    darValorEsclavoLogico(numero, 0, 0);
    ampliarTablaMW(numero, primera, ultima);
}

void Estacion::prepararGrilla(int n) {
    MSFlexGrid[n].columna0 = {0, 10, 20, 30, 40, 50};
    casillas[n].ChResponder = true;
    casillas[n].ChRecibir = true;
    casillas[n].ChResponderEscrituras = true;
    casillas[n].ChResponderEscrituras = true;
}

void Estacion::agregarFilasMW(int esclavo, double cantidad) {
    std::vector<int>& columna0 = MSFlexGrid[esclavo].columna0;
    const int ultimo = columna0.back();
    for (int k = 1; k <= cantidad; ++k)
        columna0.push_back(ultimo + 10 * k);
}

void Estacion::ampliarTablaMW(double esclavo, double direccion, double margen) {
    EsclavoMW& registro = Esclavos(esclavo);
    if (!registro.referencia)
        throw Falla{9};
    const double anterior = registro.Valores.limite();
    if (!(direccion + margen >= anterior))
        return;
    registro.primero.redimensionar(direccion + margen);
    registro.Valores.redimensionar(direccion + margen);
    for (int a = static_cast<int>(anterior) + 1; a <= registro.Valores.limite(); ++a) {
        registro.primero(a) = a;
        darValorEsclavoLogico(esclavo, a, 0);
    }
}

void Estacion::darValorEsclavoLogico(double esclavo, double direccion, double valor) {
    if (valor < 0 || valor > 65535)
        return;
    Esclavos(esclavo).Valores(direccion) = valor;

    const int numero = static_cast<int>(entero(esclavo));
    Grilla& grilla = MSFlexGrid.at(numero);
    const int fila = static_cast<int>(direccion / 10) + 1;
    const int columna = static_cast<int>(entero(direccion) % 10) + 1;
    const int filas = static_cast<int>(grilla.columna0.size()) + 1;
    if (fila > filas - 1)
        agregarFilasMW(numero, direccion / 10 - (filas - 2));
    grilla.TextMatrix[{fila, columna}] = texto(valor);
}

double Estacion::leer(double sclavo, double direccion) {
    if (sclavo > Esclavos.limite() || !Esclavos(sclavo).referencia) {
        crearEsclavo(sclavo, 0, 99);
        return 0;
    }
    if (direccion > Esclavos(sclavo).Valores.limite()) {
        ampliarTablaMW(sclavo, direccion, 10);
        return 0;
    }
    return Esclavos(sclavo).Valores(direccion);
}

Datos Estacion::leerRegistrosComoBytes(double esclavo, double inicio, double cantidad) {
    if (esclavo > Esclavos.limite())
        crearEsclavo(esclavo, 0, 99);
    else if (inicio + cantidad >= Esclavos(esclavo).Valores.limite())
        ampliarTablaMW(esclavo, inicio - cantidad, 2 * cantidad);

    std::string piezas;
    int tomados = 0;
    for (int a = static_cast<int>(inicio); a <= Esclavos(esclavo).Valores.limite() && tomados < cantidad; ++a) {
        if (Esclavos(esclavo).primero(a) != inicio + tomados)
            continue;
        const double valor = Esclavos(esclavo).Valores(a);
        piezas += texto(std::floor(valor / 256)) + ";" + texto(static_cast<double>(entero(valor) % 256)) + ";";
        ++tomados;
    }
    return partir(piezas);
}

// ---- The requests ----

void Estacion::llegada(const Datos& datos, Socket& k) {
    try {
        recorrer(datos, k);
    } catch (const Falla&) {
        // Silently: what was done stays done.
    }
}

void Estacion::recorrer(const Datos& datos, Socket& k) {
    std::size_t i = 0;
    const int u = byte(datos, i + 6);
    if (u > Esclavos.limite() || lista.find("$" + texto(u) + "$") == std::string::npos)
        crearEsclavo(u, 0, 99);

    while (i + 1 < datos.size()) {
        const double f = byte(datos, i + 7);
        bool funcionDesconocida = false;
        bool demasiados = false;
        bool desbordada = false;
        if (f != 3 && f != 4 && f != 6)
            funcionDesconocida = true;
        if (f == 6) {
            const double direccion = byte(datos, i + 8) * 256 + byte(datos, i + 9);
            if (direccion >= 655536)
                desbordada = true;
        }
        if (f == 3 || f == 4) {
            const double cantidad = byte(datos, i + 10) * 256 + byte(datos, i + 11);
            if (cantidad >= 127)
                demasiados = true;
            const double direccion = byte(datos, i + 8) * 256 + byte(datos, i + 9);
            if (direccion + cantidad >= 655536)
                desbordada = true;
        }
        if (funcionDesconocida || demasiados || desbordada) {
            excepcion(datos, i, f, funcionDesconocida, k);
            return;
        }
        std::string T = texto(byte(datos, i));
        for (std::size_t n = 1; n <= 8; ++n)
            T += " " + texto(byte(datos, i + n));
        if (f == 6)
            escritura(datos, i, T, k);
        else
            lectura(datos, i, T, k);
        i = i + 6 + static_cast<std::size_t>(byte(datos, i + 5));
    }
}

void Estacion::escritura(const Datos& datos, std::size_t i, std::string T, Socket& k) {
    const double s = byte(datos, i + 6);
    for (std::size_t n = 9; n <= 11; ++n)
        T += " " + texto(byte(datos, i + n));
    const double direccion = byte(datos, i + 8) * 256 + byte(datos, i + 9);
    const double valor = byte(datos, i + 10) * 256 + byte(datos, i + 11);
    Datos respuesta(12);
    for (std::size_t n = 0; n <= 4; ++n)
        respuesta[n] = datos[i + n];
    respuesta[5] = 6;
    respuesta[6] = 1;
    respuesta[7] = 6;

    if (!casillasDe(s).ChRecibirEscrituras)
        return;
    agregarEscrituras(hora + " Ingreso de Escritura. IP:" + k.RemoteHostIP + "\r\n" + "ESCLAVO: " + texto(s) +
                      "/ Mw: " + texto(direccion) + " Valor:" + texto(valor) + "\r\n");
    if (ChRxTx)
        agregarTramas(s, hora + " ( <-RX- Escritura ). IP:" + k.RemoteHostIP + " " + T + "\r\n");
    darValorEsclavoLogico(s, direccion, valor);
    for (std::size_t n = 8; n <= 11; ++n)
        respuesta[n] = datos[i + n];
    if (!casillasDe(s).ChResponderEscrituras)
        return;
    if (ChRxTx)
        agregarTramas(s, hora + " ( -TX-> Escrituras ) " + respuestaComoTexto(respuesta) + "\r\n");
    k.SendData(respuesta);
}

void Estacion::lectura(const Datos& datos, std::size_t i, std::string T, Socket& k) {
    const double s = byte(datos, i + 6);
    if (!casillasDe(s).ChRecibir)
        return;
    for (std::size_t n = 9; n <= 11; ++n)
        T += " " + texto(byte(datos, i + n));
    if (ChRxTx)
        agregarTramas(s, hora + " ( <-RX- Lectura ) " + T + "\r\n");
    if (!casillasDe(s).ChResponder)
        return;
    const double direccion = byte(datos, i + 8) * 256 + byte(datos, i + 9);
    const double cantidad = byte(datos, i + 10) * 256 + byte(datos, i + 11);
    const Datos registros = leerRegistrosComoBytes(s, direccion, cantidad);

    std::string piezas;
    for (std::size_t n = 0; n <= 7; ++n)
        piezas += texto(byte(datos, i + n)) + ";";
    piezas += "0;";
    for (const int b : registros)
        piezas += texto(b) + ";";
    Datos respuesta = partir(piezas);
    respuesta[5] = static_cast<std::uint8_t>(respuesta.size() - 6);
    respuesta[8] = static_cast<std::uint8_t>(respuesta.size() - 9);
    if (ChRxTx)
        agregarTramas(s, hora + " ( -TX-> Lectura ) " + respuestaComoTexto(respuesta) + "\r\n");
    if (k.State == 7)
        k.SendData(respuesta);
}

void Estacion::excepcion(const Datos& datos, std::size_t i, double f, bool funcionDesconocida, Socket& k) {
    const double s = byte(datos, i + 6);
    Datos E(9, 0);
    std::string T;
    const auto L = static_cast<std::size_t>(byte(datos, 5));
    std::size_t copiados = 0;
    for (std::size_t j = i; j <= i + 5 + L; ++j) {
        const int b = byte(datos, j + i);
        if (copiados < 6)
            E[copiados++] = static_cast<std::uint8_t>(b);
        T += texto(b) + " ";
    }
    E[5] = 3;
    E[7] = static_cast<std::uint8_t>(E[7] + 128);
    E[8] = funcionDesconocida ? 2 : 1;
    if (ChRxTx) {
        if (funcionDesconocida)
            agregarTramas(s, hora + " ( <-RX- FUNCION(" + texto(f) + ") NO SOPORTADA ) " + T + "\r\n");
        else
            agregarTramas(s, hora + " ( <-RX- DESBORDAMIENTO DE DIRECCI\xD3N ) " + T + "\r\n");
    }
    k.SendData(E);
    if (ChRxTx) {
        T = "";
        for (const int b : E)
            T += texto(b) + " ";
        agregarTramas(s, hora + " ( -TX-> RESPUESTA ) " + T + "\r\n");
    }
}

// ---- The control arrays: an element that was never loaded is a fault ----

Casillas& Estacion::casillasDe(double s) {
    const auto elemento = casillas.find(static_cast<int>(s));
    if (elemento == casillas.end())
        throw Falla{};
    return elemento->second;
}

void Estacion::agregarTramas(double s, const std::string& linea) {
    const auto elemento = txtTramas.find(static_cast<int>(s));
    if (elemento == txtTramas.end())
        throw Falla{};
    elemento->second += linea;
    if (elemento->second.size() > maximoTexto)
        elemento->second = "";
}

void Estacion::agregarEscrituras(const std::string& linea) {
    txtEscrituras += linea;
    if (txtEscrituras.size() > maximoTexto)
        txtEscrituras = "";
}

} // namespace modelo
