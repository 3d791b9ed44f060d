// A serial device for tests: one end of a pseudo-terminal pair, the other of which a link `com<n>` in a temporary
// folder points to.
#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <fcntl.h>
#include <pty.h>
#include <stdexcept>
#include <string_view>
#include <sys/ioctl.h>
#include <termios.h>
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

    // Whether what the device has sent is out of the driver's buffer.
    bool leido() const {
        const int esclavo = ::open(dispositivo_.toLocal8Bit().constData(), O_RDONLY | O_NOCTTY | O_NONBLOCK);
        int esperan = -1;
        const bool sabido = ::ioctl(esclavo, FIONREAD, &esperan) == 0;
        ::close(esclavo);
        return sabido && esperan == 0;
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
