#include "platform/serial/MSComm.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <optional>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <utility>

namespace {

template <typename Valor>
struct Opcion {
    std::string_view texto;
    Valor valor;
};

constexpr std::array paridades{
    Opcion<QSerialPort::Parity>{"N", QSerialPort::NoParity}, Opcion<QSerialPort::Parity>{"E", QSerialPort::EvenParity},
    Opcion<QSerialPort::Parity>{"O", QSerialPort::OddParity}, Opcion<QSerialPort::Parity>{"M", QSerialPort::MarkParity},
    Opcion<QSerialPort::Parity>{"S", QSerialPort::SpaceParity}};

constexpr std::array bitsDeDatos{
    Opcion<QSerialPort::DataBits>{"5", QSerialPort::Data5}, Opcion<QSerialPort::DataBits>{"6", QSerialPort::Data6},
    Opcion<QSerialPort::DataBits>{"7", QSerialPort::Data7}, Opcion<QSerialPort::DataBits>{"8", QSerialPort::Data8}};

constexpr std::array bitsDeParada{Opcion<QSerialPort::StopBits>{"1", QSerialPort::OneStop},
                                  Opcion<QSerialPort::StopBits>{"1.5", QSerialPort::OneAndHalfStop},
                                  Opcion<QSerialPort::StopBits>{"2", QSerialPort::TwoStop}};

constexpr qint32 menorVelocidad = 50;
constexpr qint32 mayorVelocidad = 12'000'000;

template <typename Tabla>
auto valorDe(const Tabla& tabla, std::string_view texto) -> std::optional<decltype(tabla[0].valor)> {
    for (const auto& opcion : tabla)
        if (opcion.texto == texto)
            return opcion.valor;
    return std::nullopt;
}

template <typename Tabla, typename Valor>
std::string textoDe(const Tabla& tabla, Valor valor) {
    const auto opcion = std::find_if(tabla.begin(), tabla.end(), [valor](const auto& o) { return o.valor == valor; });
    return std::string(opcion->texto);
}

std::optional<qint32> velocidad(std::string_view texto) {
    qint32 baudios = 0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), baudios);
    if (error != std::errc{} || fin != texto.data() + texto.size() || baudios < menorVelocidad ||
        baudios > mayorVelocidad)
        return std::nullopt;
    return baudios;
}

[[noreturn]] void valorNoValido(std::string_view propiedad, std::string_view valor) {
    throw ErrorMSComm(ErrorMSComm::valorNoValido,
                      "Valor de propiedad no válido: " + std::string(propiedad) + " = " + std::string(valor));
}

void exigirNoNegativo(std::string_view propiedad, int valor) {
    if (valor < 0)
        valorNoValido(propiedad, std::to_string(valor));
}

// A pseudo-terminal has no line: the kernel keeps it at eight bits without parity whatever is asked for.
bool esPseudoterminal(int descriptor) {
    constexpr unsigned primerMayor = 136; // major numbers of /dev/pts, eight of them
    struct stat estado = {};
    return ::fstat(descriptor, &estado) == 0 && S_ISCHR(estado.st_mode) && major(estado.st_rdev) >= primerMayor &&
           major(estado.st_rdev) < primerMayor + 8;
}

std::string causa(QSerialPort::SerialPortError error, const QString& texto) {
    switch (error) {
    case QSerialPort::DeviceNotFoundError:
        return "no existe";
    case QSerialPort::PermissionError:
        return "sin permiso, o en uso por otro programa";
    default:
        return texto.toStdString();
    }
}

} // namespace

AjustesMSComm AjustesMSComm::deTexto(std::string_view texto) {
    const QStringList campos =
        QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size())).toUpper().split(u',');
    std::array<std::string, 4> partes;
    if (campos.size() != static_cast<qsizetype>(partes.size()))
        valorNoValido("Settings", texto);
    std::transform(campos.begin(), campos.end(), partes.begin(),
                   [](const QString& campo) { return campo.trimmed().toStdString(); });
    const auto baudios = velocidad(partes[0]);
    const auto paridad = valorDe(paridades, partes[1]);
    const auto bitsDatos = valorDe(bitsDeDatos, partes[2]);
    const auto bitsParada = valorDe(bitsDeParada, partes[3]);
    if (!baudios || !paridad || !bitsDatos || !bitsParada)
        valorNoValido("Settings", texto);
    return {*baudios, *paridad, *bitsDatos, *bitsParada};
}

std::string AjustesMSComm::texto() const {
    return std::to_string(baudios) + "," + textoDe(paridades, paridad) + "," + textoDe(bitsDeDatos, bitsDatos) + "," +
           textoDe(bitsDeParada, bitsParada);
}

MSComm::MSComm(QString carpeta, QObject* parent) : QObject(parent), carpeta_(std::move(carpeta)) {
    connect(&puerto_, &QSerialPort::readyRead, this, &MSComm::alLeer);
    connect(&puerto_, &QSerialPort::errorOccurred, this, &MSComm::alFallar);
    cierre_.setSingleShot(true);
    connect(&cierre_, &QTimer::timeout, this, &MSComm::cerrarPerdido);
}

void MSComm::setCommPort(int numero) {
    if (numero < 1)
        throw ErrorMSComm(ErrorMSComm::numeroDePuertoNoValido, "Número de puerto no válido: " + std::to_string(numero));
    if (PortOpen() && numero != numero_)
        throw ErrorMSComm(ErrorMSComm::puertoEstaAbierto, "Operación no válida mientras el puerto está abierto");
    numero_ = numero;
}

QString MSComm::dispositivo() const {
    const QFileInfo enlace(QDir(carpeta_), QStringLiteral("com%1").arg(numero_));
    if (!enlace.isSymLink())
        return QStringLiteral("/dev/ttyS%1").arg(numero_ - 1);
    const QString real = enlace.canonicalFilePath();
    return real.isEmpty() ? enlace.symLinkTarget() : real;
}

void MSComm::setSettings(std::string_view texto) {
    const AjustesMSComm nuevos = AjustesMSComm::deTexto(texto);
    if (PortOpen() && !aplicar(nuevos)) {
        aplicar(ajustes_);
        throw ErrorMSComm(ErrorMSComm::ajusteNoAdmitido,
                          dispositivo().toStdString() + " no admite los ajustes " + nuevos.texto());
    }
    ajustes_ = nuevos;
}

void MSComm::setInputLen(int caracteres) {
    exigirNoNegativo("InputLen", caracteres);
    inputLen_ = caracteres;
}

void MSComm::setRThreshold(int caracteres) {
    exigirNoNegativo("RThreshold", caracteres);
    rThreshold_ = caracteres;
}

void MSComm::setSThreshold(int caracteres) {
    exigirNoNegativo("SThreshold", caracteres);
    sThreshold_ = caracteres;
}

void MSComm::setPortOpen(bool abierto) {
    if (abierto == PortOpen())
        throw abierto ? ErrorMSComm(ErrorMSComm::puertoYaAbierto, "El puerto ya está abierto")
                      : ErrorMSComm(ErrorMSComm::puertoEstaCerrado, "El puerto no está abierto");
    puerto_.close(); // a lost device may not have closed yet
    perdido_ = false;
    if (abierto)
        abrir();
}

void MSComm::abrir() {
    const QString nombre = dispositivo();
    puerto_.setPortName(nombre);
    // Opened with the settings that every device takes: a pseudo-terminal that refuses others would not open at all.
    puerto_.setDataBits(QSerialPort::Data8);
    puerto_.setParity(QSerialPort::NoParity);
    puerto_.setStopBits(QSerialPort::OneStop);
    puerto_.setBaudRate(QSerialPort::Baud9600);
    if (!puerto_.open(QIODevice::ReadOnly))
        throw ErrorMSComm(ErrorMSComm::dispositivoNoDisponible, "No se puede abrir " + nombre.toStdString() + ": " +
                                                                    causa(puerto_.error(), puerto_.errorString()));
    if (!aplicar(ajustes_)) {
        puerto_.close();
        throw ErrorMSComm(ErrorMSComm::ajusteNoAdmitido, nombre.toStdString() + " no admite los ajustes " + Settings());
    }
}

bool MSComm::aplicar(const AjustesMSComm& ajustes) {
    const bool velocidadPuesta = puerto_.setBaudRate(ajustes.baudios);
    const bool formatoPuesto = puerto_.setDataBits(ajustes.bitsDatos) && puerto_.setParity(ajustes.paridad) &&
                               puerto_.setStopBits(ajustes.bitsParada);
    puerto_.clearError();
    return (velocidadPuesta && formatoPuesto) || esPseudoterminal(puerto_.handle());
}

bool MSComm::hayEnElControlador() const {
    int esperan = 0;
    return ::ioctl(puerto_.handle(), FIONREAD, &esperan) == 0 && esperan > 0;
}

std::string MSComm::Input() {
    if (!puerto_.isOpen())
        throw ErrorMSComm(ErrorMSComm::puertoEstaCerrado, "El puerto no está abierto");
    while (puerto_.bytesAvailable() < restanEnEvento_ && hayEnElControlador() && puerto_.waitForReadyRead(0)) {
    }
    const qint64 hay = puerto_.bytesAvailable();
    const qint64 cuantos = inputLen_ == 0 ? hay : std::min<qint64>(hay, inputLen_);
    restanEnEvento_ -= cuantos;
    return puerto_.read(cuantos).toStdString();
}

void MSComm::alLeer() {
    if (rThreshold_ == 0 || puerto_.bytesAvailable() < rThreshold_)
        return;
    restanEnEvento_ = maximoEvento;
    Q_EMIT OnComm();
    restanEnEvento_ = 0;
}

// The library reports the failing read again at every turn of the event loop, so the first report closes the port,
// though not within the port's own call.
void MSComm::alFallar(QSerialPort::SerialPortError error) {
    const bool desaparecido = error == QSerialPort::ResourceError || error == QSerialPort::ReadError ||
                              error == QSerialPort::PermissionError || error == QSerialPort::UnknownError;
    if (!desaparecido || perdido_ || !puerto_.isOpen())
        return;
    perdido_ = true;
    cierre_.start();
}

void MSComm::cerrarPerdido() {
    if (!perdido_)
        return;
    puerto_.close();
    perdido_ = false;
    Q_EMIT perdido(puerto_.portName() + QStringLiteral(": el dispositivo ha desaparecido"));
}
