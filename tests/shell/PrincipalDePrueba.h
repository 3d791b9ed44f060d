// The main window as the program makes it, in a folder and on a port of its own.
#pragma once

#include "CarpetaTemporal.h"
#include "ajustes/Claves.h"
#include "platform/locale/SystemLocale.h"
#include "platform/net/Peer.h"
#include "shell/Estacion.h"
#include "shell/FrmPrincipal.h"
#include "shell/Modulo_modINI.h"

#include <QApplication>
#include <QTest>

#include <memory>

inline std::uint16_t puertoLibre() {
    Reactor reactor;
    WinsockEvents eventos;
    Winsock socket(reactor, eventos);
    return socket.Listen() ? std::uint16_t{0} : socket.LocalPort();
}

class PrincipalDePrueba {
public:
    // The clock is borrowed.
    explicit PrincipalDePrueba(const std::string& masConfiguracion = "", Arranque arranque = {},
                               const Reloj& reloj = relojDelSistema())
        : puerto(puertoLibre()), config(carpeta.ruta()), reloj_(reloj) {
        escribirConfig("PUERTO_VALOR=" + std::to_string(puerto) + "\r\n" + masConfiguracion);
        encender(std::move(arranque));
    }

    // A new start of the program; what ran before ends.
    void encender(Arranque arranque = {}) {
        useSystemLocale();
        ventana.reset();
        estacion = std::make_unique<Estacion>(carpeta.ruta(), std::move(arranque), reloj_);
        ventana = std::make_unique<FrmPrincipal>(*estacion);
    }

    // Brings the station up; false as FrmPrincipal::cargar() says.
    bool cargar() { return ventana->cargar(); }

    void escribirConfig(const std::string& claves) const {
        escribirArchivo(config.rutaArchivo(), "[Trelvano]\r\n" + claves);
    }
    // What the file holds, "?" without the key.
    std::string clave(const char* nombre) const {
        return sGetINI(config.rutaArchivo(), claves::ver.seccion, nombre, "?");
    }

    template <typename Control>
    Control& control(const char* nombre) const {
        auto* hallado = ventana->findChild<Control*>(QLatin1String(nombre));
        if (hallado == nullptr)
            qFatal("no control %s", nombre);
        return *hallado;
    }

    // One tick of the five-second timer, without waiting for it.
    void tic() const { Q_EMIT control<QTimer>("TimerCambioPuerto").timeout({}); }

    // A master that the station has accepted.
    std::unique_ptr<Peer> conectarMaestro() const { return std::make_unique<Peer>(puerto); }

    // Sends a request and waits for the whole answer.
    static QByteArray pedir(const Peer& maestro, const QByteArray& pedido, int cuantos) {
        maestro.send(pedido.toStdString());
        return recibir(maestro, cuantos);
    }
    static QByteArray recibir(const Peer& maestro, int cuantos) {
        QByteArray respuesta;
        [[maybe_unused]] const bool llego = QTest::qWaitFor(
            [&] {
                respuesta += QByteArray::fromStdString(maestro.receive());
                return respuesta.size() >= cuantos;
            },
            paciencia);
        return respuesta;
    }

    // Read of two registers from 0 of a slave (answer: 13 bytes), and a write of one (answer: 12 bytes).
    static QByteArray lectura(char esclavo) {
        return QByteArray("\0\1\0\0\0\6", 6) + esclavo + QByteArray("\3\0\0\0\2", 5);
    }
    static QByteArray escritura(char esclavo, char direccion, char valor) {
        return QByteArray("\0\1\0\0\0\6", 6) + esclavo + QByteArray("\6\0", 2) + direccion + '\0' + valor;
    }

    CarpetaTemporal carpeta;
    std::uint16_t puerto;
    Modulo_Config config;
    std::unique_ptr<Estacion> estacion;
    std::unique_ptr<FrmPrincipal> ventana;

private:
    const Reloj& reloj_;
};
