#include "modbus/ArchivoPcap.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t segmento = 1440; // bytes of one TCP segment at most
constexpr std::uint8_t protocoloTcp = 6;
constexpr std::uint8_t vidas = 64;
constexpr std::array<std::uint8_t, 12> prefijoV4{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF};
constexpr std::string_view tarjetaMaestro{"\x02\0\0\0\0\x02", 6};
constexpr std::string_view tarjetaEstacion{"\x02\0\0\0\0\x01", 6};

void poner16(std::string& destino, std::uint32_t n) { // in network order
    destino += static_cast<char>(n >> 8 & 0xFF);
    destino += static_cast<char>(n & 0xFF);
}

void poner32(std::string& destino, std::uint32_t n) {
    poner16(destino, n >> 16);
    poner16(destino, n & 0xFFFF);
}

void ponerBajo32(std::string& destino, std::uint32_t n) { // the file's own numbers: lowest byte first
    for (int i = 0; i < 4; ++i)
        destino += static_cast<char>(n >> (8 * i) & 0xFF);
}

void ponerDireccion(std::string& destino, const ExtremoTcp& extremo, bool v4) {
    const auto desde = extremo.direccion.begin() + (v4 ? prefijoV4.size() : 0);
    destino.append(desde, extremo.direccion.end());
}

bool esV4(const ExtremoTcp& extremo) {
    return std::equal(prefijoV4.begin(), prefijoV4.end(), extremo.direccion.begin());
}

// The sum of 16-bit words that IP and TCP check themselves with.
std::uint16_t suma(std::string_view bytes) {
    std::uint32_t total = 0;
    for (std::size_t i = 0; i < bytes.size(); i += 2) {
        const auto alto = static_cast<std::uint8_t>(bytes[i]);
        const auto bajo = i + 1 < bytes.size() ? static_cast<std::uint8_t>(bytes[i + 1]) : 0;
        total += static_cast<std::uint32_t>(alto << 8 | bajo);
    }
    while (total > 0xFFFF)
        total = (total & 0xFFFF) + (total >> 16);
    return static_cast<std::uint16_t>(~total);
}

void corregir(std::string& bytes, std::size_t donde, std::uint16_t valor) {
    bytes[donde] = static_cast<char>(valor >> 8);
    bytes[donde + 1] = static_cast<char>(valor & 0xFF);
}

struct Envio {
    const ExtremoTcp& de;
    const ExtremoTcp& para;
    std::uint32_t secuencia;
    std::uint32_t acuse;
};

std::string segmentoTcp(const Envio& envio, Bytes datos, bool v4) {
    std::string tcp;
    poner16(tcp, envio.de.puerto);
    poner16(tcp, envio.para.puerto);
    poner32(tcp, envio.secuencia);
    poner32(tcp, envio.acuse);
    poner16(tcp, 0x5018); // five words of header; PSH and ACK
    poner16(tcp, 0xFFFF); // window
    poner32(tcp, 0);      // checksum, urgent pointer
    tcp.append(datos.begin(), datos.end());
    std::string sumado;
    ponerDireccion(sumado, envio.de, v4);
    ponerDireccion(sumado, envio.para, v4);
    poner32(sumado, static_cast<std::uint32_t>(tcp.size()));
    poner32(sumado, protocoloTcp);
    corregir(tcp, 16, suma(sumado + tcp));
    return tcp;
}

std::string paqueteIp(const Envio& envio, Bytes datos, std::uint16_t numero) {
    const bool v4 = esV4(envio.de) && esV4(envio.para);
    const std::string tcp = segmentoTcp(envio, datos, v4);
    const auto largo = static_cast<std::uint32_t>(tcp.size());
    std::string ip;
    if (v4) {
        poner16(ip, 0x4500);
        poner16(ip, 20 + largo);
        poner16(ip, numero);
        poner16(ip, 0x4000); // not to be cut
        poner16(ip, std::uint32_t{vidas} << 8 | protocoloTcp);
        poner16(ip, 0);
    } else {
        poner32(ip, 0x60000000);
        poner16(ip, largo);
        poner16(ip, std::uint32_t{protocoloTcp} << 8 | vidas);
    }
    ponerDireccion(ip, envio.de, v4);
    ponerDireccion(ip, envio.para, v4);
    if (v4)
        corregir(ip, 10, suma(ip));
    return ip + tcp;
}

struct Secuencias {
    std::uint32_t maestro = 1; // of the next byte
    std::uint32_t estacion = 1;
};

class Escritor {
public:
    explicit Escritor(const Trafico& trafico) : trafico_(trafico) {
        ponerBajo32(archivo, 0xA1B2C3D4);
        ponerBajo32(archivo, 2 | 4 << 16); // version 2.4
        ponerBajo32(archivo, 0);
        ponerBajo32(archivo, 0);
        ponerBajo32(archivo, 65535);
        ponerBajo32(archivo, 1); // Ethernet
    }

    void agregar(const Trafico::Paquete& paquete) {
        for (std::size_t desde = 0; desde < paquete.bytes.size(); desde += segmento)
            agregarSegmento(paquete, paquete.bytes.subspan(desde, std::min(segmento, paquete.bytes.size() - desde)));
    }

    std::string archivo;

private:
    void agregarSegmento(const Trafico::Paquete& paquete, Bytes datos) {
        const bool enviado = paquete.sentido == Trafico::Sentido::enviado;
        const ExtremosTcp& extremos = trafico_.extremos(paquete.conexion);
        Secuencias& suyas = secuencias_[paquete.conexion];
        const Envio envio = enviado ? Envio{extremos.estacion, extremos.maestro, suyas.estacion, suyas.maestro}
                                    : Envio{extremos.maestro, extremos.estacion, suyas.maestro, suyas.estacion};
        (enviado ? suyas.estacion : suyas.maestro) += static_cast<std::uint32_t>(datos.size());
        const std::string ip = paqueteIp(envio, datos, ++numero_);
        std::string trama(enviado ? tarjetaMaestro : tarjetaEstacion);
        trama += enviado ? tarjetaEstacion : tarjetaMaestro;
        poner16(trama, (ip[0] & 0xF0) == 0x40 ? 0x0800 : 0x86DD);
        trama += ip;
        ponerBajo32(archivo, static_cast<std::uint32_t>(paquete.cuando / 1000000));
        ponerBajo32(archivo, static_cast<std::uint32_t>(paquete.cuando % 1000000));
        ponerBajo32(archivo, static_cast<std::uint32_t>(trama.size()));
        ponerBajo32(archivo, static_cast<std::uint32_t>(trama.size()));
        archivo += trama;
    }

    const Trafico& trafico_;
    std::map<std::uint32_t, Secuencias> secuencias_; // by connection
    std::uint16_t numero_ = 0;
};

} // namespace

std::string comoPcap(const Trafico& trafico) {
    Escritor escritor(trafico);
    trafico.recorrer([&](const Trafico::Paquete& paquete) { escritor.agregar(paquete); });
    return std::move(escritor.archivo);
}
