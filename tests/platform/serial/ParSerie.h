// A serial device for tests: one end of a pseudo-terminal pair, the other of which a link `com<n>` in a temporary
// folder points to.
#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <chrono>
#include <fcntl.h>
#include <pty.h>
#include <stdexcept>
#include <string_view>
#include <sys/ioctl.h>
#include <termios.h>
#include <thread>
#include <unistd.h>

class ParSerie {
public:
    explicit ParSerie(int puerto = 1) : puerto_(puerto) { conectar(); }
    ~ParSerie() { desconectar(); }
    ParSerie(const ParSerie&) = delete;
    ParSerie& operator=(const ParSerie&) = delete;

    // The folder with the link.
    QString carpeta() const { return carpeta_.path(); }
    QString dispositivo() const { return dispositivo_; }
    QString enlace() const { return carpeta_.filePath(QStringLiteral("com%1").arg(puerto_)); }

    // What the device sends; at most about 4000 bytes may wait unread.
    void enviar(std::string_view bytes) const {
        while (!bytes.empty()) {
            const ssize_t escritos = ::write(maestro_, bytes.data(), bytes.size());
            if (escritos <= 0)
                throw std::runtime_error("the pseudo-terminal takes nothing");
            bytes.remove_prefix(static_cast<std::size_t>(escritos));
        }
    }

    // Sends and waits until the bytes are in the open port's buffer, where the pair brings them some time after the
    // write. The buffer has to be empty before, and nobody may read it meanwhile.
    void entregar(std::string_view bytes) const {
        const auto limite = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        enviar(bytes);
        while (sinLeer() != static_cast<int>(bytes.size())) {
            if (std::chrono::steady_clock::now() > limite)
                throw std::runtime_error("the pseudo-terminal delivers nothing");
            std::this_thread::yield();
        }
    }

    // How many bytes wait in the open port's buffer, or -1 when the device is gone.
    int sinLeer() const {
        const int esclavo = ::open(dispositivo_.toLocal8Bit().constData(), O_RDONLY | O_NOCTTY | O_NONBLOCK);
        int esperan = -1;
        if (::ioctl(esclavo, FIONREAD, &esperan) != 0)
            esperan = -1;
        ::close(esclavo);
        return esperan;
    }

    // Pulls the cable.
    void desconectar() {
        if (maestro_ >= 0)
            ::close(maestro_);
        maestro_ = -1;
        QFile::remove(enlace());
    }

    // Plugs the device in, perhaps under another name, and sets the link.
    void conectar() {
        int esclavo = -1;
        char nombre[64] = {};
        termios crudo = {};
        ::cfmakeraw(&crudo);
        if (::openpty(&maestro_, &esclavo, nombre, &crudo, nullptr) != 0)
            throw std::runtime_error("no pseudo-terminal");
        ::close(esclavo);
        dispositivo_ = QString::fromLocal8Bit(nombre);
        QFile::link(dispositivo_, enlace());
    }

private:
    QTemporaryDir carpeta_;
    QString dispositivo_;
    int puerto_;
    int maestro_ = -1;
};
