#include "modbus/Peticiones.h"

#include "modbus/Trama.h"
#include "registers/Palabra.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <exception>

namespace {

constexpr std::uint8_t excepcionDesbordamiento = 1;
constexpr std::uint8_t excepcionFuncion = 2;

void agregarNumero(std::string& texto, int numero) {
    std::array<char, 12> cifras{};
    const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), numero).ptr;
    texto.append(cifras.data(), fin);
}

} // namespace

Peticiones::Peticiones(Esclavos& esclavos, Monitores& monitores, const Reloj& reloj)
    : esclavos_(esclavos), monitores_(monitores), reloj_(reloj) {}

void Peticiones::atender(Bytes llegada, Conexion& conexion) noexcept {
    try {
        recorrer(llegada, conexion);
    } catch (const std::exception&) {
        // A write past the end of a table, memory exhausted: a fault like any other, it ends the arrival silently.
    }
}

void Peticiones::recorrer(Bytes llegada, Conexion& conexion) {
    if (llegada.empty())
        return;
    if (monitores_.verTxRx)
        guardar(conexion, Trafico::Sentido::recibido, llegada);
    contar(llegada, conexion);
    if (llegada.size() <= trama::unidad)
        return;
    // Only the first frame's slave is created; later frames of the arrival are not looked at for it.
    if (const int primero = llegada[trama::unidad]; !esclavos_.existe(primero))
        esclavos_.crearEsclavo(primero, 0, Esclavos::ultimaPorDefecto);

    std::size_t i = 0;
    while (atenderTrama(llegada, i, conexion) == Fin::siguiente) {
        // The high byte of the length is ignored on purpose: a frame longer than 255 is mis-stepped.
        i += trama::previosALongitud + llegada[i + trama::longitudBaja];
        if (i + 1 >= llegada.size())
            return;
        contar(llegada.subspan(i), conexion);
    }
}

// What is counted here and answered nowhere has been left unanswered.
void Peticiones::contar(Bytes resto, Conexion& conexion) {
    ++conexion.peticiones;
    ++contadores_[resto.size() > trama::unidad ? resto[trama::unidad] : std::size_t{numerosDeEsclavo}].peticiones;
}

Contadores Peticiones::total() const {
    Contadores suma;
    for (const Contadores& uno : contadores_)
        suma += uno;
    return suma;
}

Peticiones::Fin Peticiones::atenderTrama(Bytes llegada, std::size_t i, Conexion& conexion) {
    const Bytes resto = llegada.subspan(i);
    if (resto.size() <= trama::funcion)
        return Fin::llegadaTerminada;
    const std::uint8_t funcion = resto[trama::funcion];
    const bool conocida =
        funcion == trama::leerMantenidos || funcion == trama::leerEntrada || funcion == trama::escribirUno;
    if (conocida && resto.size() < trama::longitudPeticion)
        return Fin::llegadaTerminada;

    if (const Rechazo rechazo = examinar(resto); rechazo != Rechazo::ninguno) {
        responderExcepcion(llegada, i, rechazo, conexion);
        return Fin::llegadaTerminada;
    }
    Pagina* pagina = esclavos_.pagina(resto[trama::unidad]);
    if (pagina == nullptr)
        return Fin::llegadaTerminada;
    const Bytes peticion = resto.first(trama::longitudPeticion);
    return funcion == trama::escribirUno ? atenderEscritura(peticion, *pagina, conexion)
                                         : atenderLectura(peticion, *pagina, conexion);
}

Peticiones::Rechazo Peticiones::examinar(Bytes trama) {
    switch (trama[trama::funcion]) {
    case trama::escribirUno:
        return trama::palabra(trama, trama::direccion) >= trama::limiteDireccion ? Rechazo::desbordamiento
                                                                                 : Rechazo::ninguno;
    case trama::leerMantenidos:
    case trama::leerEntrada: {
        const int cantidad = trama::palabra(trama, trama::cantidad);
        const int tope = trama::palabra(trama, trama::direccion) + cantidad;
        return cantidad >= trama::limiteCantidad || tope >= trama::limiteDireccion ? Rechazo::desbordamiento
                                                                                   : Rechazo::ninguno;
    }
    default:
        return Rechazo::funcion;
    }
}

Peticiones::Fin Peticiones::atenderLectura(Bytes peticion, Pagina& pagina, Conexion& conexion) {
    if (!pagina.recibir)
        return Fin::siguiente;
    if (monitores_.verTxRx) {
        trama::separadosPorBlanco(empezarLinea(" ( <-RX- Lectura ) "), peticion);
        terminarLinea(pagina.numero(), ClaseTrama::lectura);
    }
    if (!pagina.responder)
        return Fin::siguiente;

    std::array<std::uint8_t, trama::maxRespuesta> bytes{};
    const std::size_t datos = esclavos_.leerRegistrosComoBytes(
        pagina.numero(), trama::palabra(peticion, trama::direccion), trama::palabra(peticion, trama::cantidad),
        std::span(bytes).subspan(trama::datos));
    const auto respuesta = std::span(bytes).first(trama::datos + datos);
    std::copy_n(peticion.begin(), trama::cuenta, respuesta.begin());
    respuesta[trama::longitudBaja] = static_cast<std::uint8_t>(respuesta.size() - trama::previosALongitud);
    respuesta[trama::cuenta] = static_cast<std::uint8_t>(datos);

    if (monitores_.verTxRx) {
        trama::conBlancoDelante(empezarLinea(" ( -TX-> Lectura ) "), respuesta);
        terminarLinea(pagina.numero(), ClaseTrama::lectura);
    }
    if (!conexion.conectada())
        return Fin::siguiente;
    if (!enviar(conexion, respuesta))
        return Fin::llegadaTerminada;
    ++contadores_[peticion[trama::unidad]].lecturas;
    return Fin::siguiente;
}

Peticiones::Fin Peticiones::atenderEscritura(Bytes peticion, Pagina& pagina, Conexion& conexion) {
    if (!pagina.recibirEscrituras)
        return Fin::siguiente;
    anotarEscritura(peticion, conexion);
    if (monitores_.verTxRx) {
        std::string& linea = empezarLinea(" ( <-RX- Escritura ). IP:");
        linea.append(conexion.direccionRemota());
        trama::conBlancoDelante(linea, peticion);
        terminarLinea(pagina.numero(), ClaseTrama::escritura);
    }
    esclavos_.darValorEsclavoLogico(pagina.numero(), trama::palabra(peticion, trama::direccion),
                                    trama::palabra(peticion, trama::valor), Autor::maestro);
    if (!pagina.responderEscrituras)
        return Fin::siguiente;

    std::array<std::uint8_t, trama::longitudPeticion> respuesta{};
    std::copy(peticion.begin(), peticion.end(), respuesta.begin());
    respuesta[trama::longitudBaja] = 6;
    respuesta[trama::unidad] = 1; // always 1 on purpose, whatever slave was written
    respuesta[trama::funcion] = trama::escribirUno;
    if (monitores_.verTxRx) {
        trama::conBlancoDelante(empezarLinea(" ( -TX-> Escrituras ) "), respuesta);
        terminarLinea(pagina.numero(), ClaseTrama::escritura);
    }
    // Unlike a read answer it is sent without a look at the socket's state, on purpose.
    if (!enviar(conexion, respuesta))
        return Fin::llegadaTerminada;
    ++contadores_[peticion[trama::unidad]].escrituras;
    return Fin::siguiente;
}

void Peticiones::responderExcepcion(Bytes llegada, std::size_t i, Rechazo rechazo, Conexion& conexion) {
    // The copy runs over 6 + L bytes, L from the arrival's first frame, and both its counter and its index include
    // the frame's position, so that for a later frame it starts at 2i. Past the end of the arrival it is a fault.
    const std::size_t copiados = trama::previosALongitud + llegada[trama::longitudBaja];
    if (2 * i + copiados > llegada.size())
        return;
    const Bytes copia = llegada.subspan(2 * i, copiados);

    std::array<std::uint8_t, trama::longitudExcepcion> respuesta{};
    std::copy_n(copia.begin(), trama::previosALongitud, respuesta.begin());
    respuesta[trama::longitudBaja] = 3;
    // Unit and function are not copied on purpose: an exception always carries unit 0 and function 128.
    respuesta[trama::funcion] = 128;
    // The pairing of the codes is the reverse of the protocol's on purpose.
    respuesta[8] = rechazo == Rechazo::funcion ? excepcionFuncion : excepcionDesbordamiento;

    const int esclavo = llegada[i + trama::unidad];
    if (monitores_.verTxRx) {
        if (!esclavos_.existe(esclavo))
            return;
        if (rechazo == Rechazo::funcion) {
            std::string& linea = empezarLinea(" ( <-RX- FUNCION(");
            agregarNumero(linea, llegada[i + trama::funcion]);
            linea.append(") NO SOPORTADA ) ");
        } else {
            empezarLinea(" ( <-RX- DESBORDAMIENTO DE DIRECCI\xD3N ) ");
        }
        trama::conBlancoDetras(linea_, copia);
        terminarLinea(esclavo, ClaseTrama::otra);
    }
    if (!enviar(conexion, respuesta))
        return;
    ++contadores_[llegada[i + trama::unidad]].excepciones;
    if (monitores_.verTxRx) {
        trama::conBlancoDetras(empezarLinea(" ( -TX-> RESPUESTA ) "), respuesta);
        terminarLinea(esclavo, ClaseTrama::otra);
    }
}

void Peticiones::anotarEscritura(Bytes peticion, const Conexion& conexion) {
    std::string& linea = empezarLinea(" Ingreso de Escritura. IP:");
    linea.append(conexion.direccionRemota()).append("\r\nESCLAVO: ");
    agregarNumero(linea, peticion[trama::unidad]);
    linea.append("/ Mw: ");
    agregarNumero(linea, trama::palabra(peticion, trama::direccion));
    linea.append(" Valor:");
    agregarNumero(linea, trama::palabra(peticion, trama::valor));
    linea.append("\r\n");
    monitores_.escrituras().agregar(linea);
}

std::string& Peticiones::empezarLinea(std::string_view titulo) {
    linea_.assign(hora_.texto()).append(titulo);
    return linea_;
}

void Peticiones::terminarLinea(int esclavo, ClaseTrama clase) {
    linea_.append("\r\n");
    monitores_.agregarTrama(esclavo, clase, linea_);
}

bool Peticiones::enviar(Conexion& conexion, Bytes respuesta) {
    if (!conexion.enviar(respuesta))
        return false;
    if (monitores_.verTxRx)
        guardar(conexion, Trafico::Sentido::enviado, respuesta);
    return true;
}

void Peticiones::guardar(Conexion& conexion, Trafico::Sentido sentido, Bytes bytes) {
    if (!monitores_.trafico.conocida(conexion.numero))
        conexion.numero = monitores_.trafico.nuevaConexion(conexion.extremos());
    const auto ahora = std::chrono::duration_cast<std::chrono::microseconds>(reloj_.hora().time_since_epoch());
    monitores_.trafico.anotar(ahora.count(), conexion.numero, sentido, bytes);
}
