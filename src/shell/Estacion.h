// The station behind its windows: settings, register store, monitors, sockets, script engine and serial link.
//
// Its parts stand in the order in which they are built; each borrows only from those above it, so they end in the
// opposite order. The main window is made after it and goes before it.
//
//     Estacion estacion(carpetaPrograma(), Arranque{.rutaPrograma = rutaEjecutable().string()});
//     FrmPrincipal principal(estacion);
#pragma once

#include "bridge/Puente.h"
#include "modbus/Escucha.h"
#include "modbus/Monitores.h"
#include "modbus/Peticiones.h"
#include "platform/clock/Reloj.h"
#include "platform/net/Reactor.h"
#include "platform/window/EventosQt.h"
#include "registers/Anotaciones.h"
#include "registers/Esclavos.h"
#include "script/AutomatizacionScript.h"
#include "shell/ArchivoEtiquetas.h"
#include "shell/EnlaceSerie.h"
#include "shell/Modulo_Config.h"

#include <QSocketNotifier>
#include <QString>

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

// What the program was started with.
struct Arranque {
    std::string rutaPrograma = {}; // the executable's real path
    QString lineaDeComandos = {};  // the arguments as one text
    std::string avisoCarpeta = {}; // what the operator must know about the folder of the settings
    bool instanciaPrevia = false;  // another copy of the same executable is running
    bool sinPantalla = false;      // nobody sees the windows
    bool depurar = false;          // show every logged error in a message box
    std::chrono::milliseconds limiteScript = AutomatizacionScript::tiempoLimite; // of one script pass
};

// Where the station shows its listener and its connections: the main window.
class VentanaEstacion {
public:
    virtual void mostrarPuerto(const std::string& texto) = 0; // caption of LblPuertoLocal
    virtual void mostrarEscuchando(bool escuchando) = 0;      // its colour
    virtual void mostrarAviso(const std::string& texto) = 0;  // lblDDEAviso; empty: nothing to say
    virtual void agregarFila() = 0;                           // an empty row at the end of ListView1
    virtual void mostrarFila(std::size_t fila, const std::string& ip, const std::string& estado) = 0; // row from 0

protected:
    ~VentanaEstacion() = default;
};

class Estacion final : private EntornoEscucha {
public:
    // `carpeta` holds the configuration file, the script and the logs; the clock is borrowed. Opens no port and reads
    // no key yet.
    Estacion(const std::filesystem::path& carpeta, Arranque arranque, const Reloj& reloj = relojDelSistema());

    // The station shows itself in this window from now on; script automation and serial link, which work with its
    // controls, come into being. One window at a time.
    void abrirVentana(VentanaEstacion& ventana, const AutomatizacionScript::Ventana& controles);

    // To be called before the controls of that window go. Listener and connections stay as they are.
    void cerrarVentana();

    // Listens on the configured port unless it does so already, and brings the connection list and the registers' names
    // up to date.
    void comprobarPuerto();

    const Escucha& escucha() const { return escucha_; }
    const Peticiones& peticiones() const { return peticiones_; }
    // Begins to count the requests anew, of every slave and every connection.
    void ponerPeticionesACero();
    AutomatizacionScript& script() { return *script_; }  // while a window is open
    EnlaceSerie& enlaceSerie() { return *enlaceSerie_; } // while a window is open

    const Reloj& reloj;
    const Reloj::Instante inicio = reloj.instante();
    const Arranque arranque;
    Modulo_Config config;
    Esclavos esclavos;
    Anotaciones anotaciones{reloj};
    Monitores monitores;
    EventosQt eventos{reloj};
    Reactor reactor{reloj};
    Puente puente{reactor, eventos};

private:
    // EntornoEscucha
    double leerPuerto() override;
    void guardarPuerto(double puerto) override;
    void mostrarPuerto(const std::string& texto) override;
    void mostrarEscuchando(bool escuchando) override;
    bool esDelPuente(double puerto) const override;
    void avisar(const std::string& motivo) override;
    void anunciar(const std::string& texto) override;
    void agregarFila() override;
    void mostrarFila(std::size_t fila, const std::string& ip, const std::string& estado) override;

    void decir(std::string& aviso, const std::string& texto);

    Peticiones peticiones_{esclavos, monitores, reloj};
    VentanaEstacion* ventana_ = nullptr; // borrowed; null: what there is to show is dropped
    Escucha escucha_;
    QSocketNotifier avisador_;           // wakes the event loop for the reactor's sockets
    std::optional<double> ultimoPuerto_; // read from a file that could be read
    std::string avisoCarpeta_;
    std::string avisoConfig_; // the configuration file cannot be read or written
    std::string avisoPuerto_;
    std::string avisoEtiquetas_;
    ArchivoEtiquetas archivoEtiquetas_;
    std::unique_ptr<AutomatizacionScript> script_;
    std::unique_ptr<EnlaceSerie> enlaceSerie_;
};
