// A bridge on two free ports with a window that only records, driven by plain client sockets.
#pragma once

#include "EventosFalsos.h"
#include "bridge/Puente.h"
#include "platform/net/Peer.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

struct VentanaFalsa final : VentanaPuente {
    bool echo() const override { return conEcho; }
    bool modbus() const override { return conModbus; }
    bool stop() const override { return conStop; }
    std::span<std::uint8_t> sitio(Lado) override { return lugar; }
    void mostrar(Lado lado, std::span<const std::uint8_t> bloque, bool hexadecimal) override {
        auto& texto = textos[static_cast<std::size_t>(lado)];
        texto.append(reinterpret_cast<const char*>(bloque.data()), bloque.size());
        if (hexadecimal)
            texto.append(finDeBloque);
    }
    void colorear(Lado lado, ColorPuerto color) override { colores[static_cast<std::size_t>(lado)].push_back(color); }
    void puertoRechazado(Lado lado, const std::error_code& fallo) override {
        fallos[static_cast<std::size_t>(lado)].push_back(fallo);
    }

    static constexpr const char* finDeBloque = "|"; // after a block that is shown as hexadecimal

    std::span<std::uint8_t> lugar; // what is offered for blocks to be read into
    bool conEcho = false;
    bool conModbus = false;
    bool conStop = false;
    std::array<std::string, 2> textos;
    std::array<std::vector<ColorPuerto>, 2> colores;
    std::array<std::vector<std::error_code>, 2> fallos;
};

inline std::uint16_t puertoLibre() {
    Reactor reactor;
    WinsockEvents eventos;
    Winsock socket(reactor, eventos);
    return socket.Listen() ? std::uint16_t{0} : socket.LocalPort();
}

struct Banco {
    static constexpr std::size_t uno = 0;
    static constexpr std::size_t dos = 1;

    // Ends up with both ports listening.
    Banco() {
        puente.mostrarEn(&ventana);
        puente.verificarEstado();
    }

    // A client that the bridge has accepted on that side.
    Peer conectar(Lado lado, int buferDeRecepcion = 0) {
        Peer cliente(static_cast<std::uint16_t>(puente.puerto(lado)), buferDeRecepcion);
        runUntil(reactor, [&] { return puente.estado(lado) == WinsockState::connected; });
        return cliente;
    }

    bool esperar(const std::function<bool()>& condicion) { return runUntil(reactor, condicion); }

    // Everything that reaches the client until there are `cuantos` bytes.
    std::string recibir(const Peer& cliente, std::size_t cuantos) {
        std::string todo;
        runUntil(reactor, [&] {
            todo += cliente.receive();
            return todo.size() >= cuantos;
        });
        return todo;
    }

    bool mostrado(std::size_t lado, std::string_view texto) {
        return esperar([&] { return ventana.textos[lado] == texto; });
    }

    Reactor reactor;
    VentanaFalsa ventana;
    EventosFalsos eventos;
    Puente puente{reactor, eventos, static_cast<double>(puertoLibre()), static_cast<double>(puertoLibre())};
};
