// The serial port control: one port that is opened, read and told about by an event. It never sends.
//
// Port number n is the device that a symbolic link `com<n>` in the given folder points to; without such a link it is
// /dev/ttyS(n-1). One character is one byte of the ANSI code page. A device that vanishes while the port is open
// closes the port and is reported once. Faults of the properties are raised as ErrorMSComm.
//
//     MSComm comm(folder);
//     comm.setCommPort(1);
//     comm.setSettings("9600,N,8,1");
//     comm.setRThreshold(1);
//     connect(&comm, &MSComm::OnComm, [&] { use(comm.Input()); });
//     comm.setPortOpen(true);
#pragma once

#include <QObject>
#include <QSerialPort>
#include <QString>
#include <QTimer>

#include <stdexcept>
#include <string>
#include <string_view>

// A property that could not be set or read; the numbers are those that scripts know serial faults by, what() is
// Spanish UTF-8.
class ErrorMSComm : public std::runtime_error {
public:
    static constexpr int valorNoValido = 380;
    static constexpr int puertoEstaAbierto = 8000; // the operation needs a closed port
    static constexpr int numeroDePuertoNoValido = 8002;
    static constexpr int puertoYaAbierto = 8005;
    static constexpr int ajusteNoAdmitido = 8007; // by the device
    static constexpr int dispositivoNoDisponible = 8010;
    static constexpr int puertoEstaCerrado = 8018; // the operation needs an open port

    ErrorMSComm(int numero, const std::string& texto) : std::runtime_error(texto), numero_(numero) {}
    int numero() const { return numero_; }

private:
    int numero_;
};

// Speed, parity, data bits and stop bits as the Settings text gives them.
struct AjustesMSComm {
    qint32 baudios = 9600; // bits a second
    QSerialPort::Parity paridad = QSerialPort::NoParity;
    QSerialPort::DataBits bitsDatos = QSerialPort::Data8;
    QSerialPort::StopBits bitsParada = QSerialPort::OneStop;

    // From "9600,N,8,1": speed 50 to 12,000,000, a parity letter in any case, data bits 5 to 8, stop bits 1, 1.5 or 2.
    // Raises valorNoValido.
    static AjustesMSComm deTexto(std::string_view texto);
    std::string texto() const;
};

class MSComm : public QObject {
    Q_OBJECT

public:
    // After so many bytes an event fetches no more from the driver, so that a device that never pauses does not hold
    // the thread; what is left raises the next event at once. About what the driver itself holds for a line.
    static constexpr qint64 maximoEvento = 4096; // bytes

    explicit MSComm(QString carpeta, QObject* parent = nullptr);

    // From 1. Another number while the port is open raises puertoEstaAbierto.
    void setCommPort(int numero);
    int CommPort() const { return numero_; }

    // The device of the port number, whether it exists or not.
    QString dispositivo() const;

    // Kept for the next opening and applied at once to an open port. After an error the former settings stand.
    void setSettings(std::string_view texto);
    std::string Settings() const { return ajustes_.texto(); }

    // How many characters one Input takes; 0 takes everything that is waiting.
    void setInputLen(int caracteres);
    int InputLen() const { return inputLen_; }

    // OnComm is raised when so many characters wait; 0 never raises it.
    void setRThreshold(int caracteres);
    int RThreshold() const { return rThreshold_; }

    // Kept alone: the control never sends.
    void setSThreshold(int caracteres);
    int SThreshold() const { return sThreshold_; }

    void setPortOpen(bool abierto);
    bool PortOpen() const { return puerto_.isOpen() && !perdido_; }

    // The characters waiting, taken out of the driver's buffer too; empty without any. Raises puertoEstaCerrado.
    std::string Input();

Q_SIGNALS:
    // Characters have arrived. Slots must not throw.
    void OnComm();

    // The device vanished and the port is closed by now. Once for each opening at most.
    void perdido(const QString& causa);

private:
    void abrir();
    bool aplicar(const AjustesMSComm& ajustes);
    bool hayEnElControlador() const;
    void alLeer();
    void alFallar(QSerialPort::SerialPortError error);
    void cerrarPerdido();

    QString carpeta_;
    QSerialPort puerto_;
    AjustesMSComm ajustes_;
    int numero_ = 1;
    int inputLen_ = 0;
    int rThreshold_ = 0;
    int sThreshold_ = 0;
    qint64 restanEnEvento_ = 0; // bytes that the current event may still fetch from the driver
    QTimer cierre_{this};       // closes a lost port at the next turn of the event loop
    bool perdido_ = false;      // the device failed; the port closes as soon as its own call has returned
};
