#include "platform/serial/MSComm.h"

#include "EventosPendientes.h"
#include "ParSerie.h"

#include <QAbstractEventDispatcher>
#include <QDeadlineTimer>
#include <QSignalSpy>
#include <QTest>

#include <fcntl.h>
#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

namespace {

// The number of the error that the operation raises.
std::optional<int> numeroDeError(const std::function<void()>& operacion) {
    try {
        operacion();
        return std::nullopt;
    } catch (const ErrorMSComm& error) {
        return error.numero();
    }
}

void abrir(MSComm& comm) {
    comm.setRThreshold(1);
    comm.setPortOpen(true);
}

} // namespace

class TestMSComm : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void portNumberIsTheDeviceOfTheLink() {
        const ParSerie par(7);
        MSComm comm(par.carpeta());
        comm.setCommPort(7);
        QCOMPARE(comm.dispositivo(), par.dispositivo());
    }

    void portNumberWithoutLinkIsTheOnBoardPort() {
        const QTemporaryDir carpeta;
        MSComm comm(carpeta.path());
        comm.setCommPort(3);
        QCOMPARE(comm.dispositivo(), QStringLiteral("/dev/ttyS2"));
    }

    void linkToAMissingDeviceNamesThatDevice() {
        const QTemporaryDir carpeta;
        QFile::link(QStringLiteral("/dev/no-existe"), carpeta.filePath(QStringLiteral("com1")));
        MSComm comm(carpeta.path());
        QCOMPARE(comm.dispositivo(), QStringLiteral("/dev/no-existe"));
        QCOMPARE(numeroDeError([&] { comm.setPortOpen(true); }), ErrorMSComm::dispositivoNoDisponible);
        QVERIFY(!comm.PortOpen());
    }

    void linkToSomethingThatIsNoPortIsRefused() {
        const QTemporaryDir carpeta;
        QFile::link(QStringLiteral("/dev/null"), carpeta.filePath(QStringLiteral("com1")));
        MSComm comm(carpeta.path());
        QCOMPARE(numeroDeError([&] { comm.setPortOpen(true); }), ErrorMSComm::dispositivoNoDisponible);
    }

    void portNumberBelowOneIsRefused() {
        MSComm comm(QString{});
        QCOMPARE(numeroDeError([&] { comm.setCommPort(0); }), ErrorMSComm::numeroDePuertoNoValido);
        QCOMPARE(numeroDeError([&] { comm.setCommPort(-3); }), ErrorMSComm::numeroDePuertoNoValido);
        QCOMPARE(comm.CommPort(), 1);
    }

    void portNumberOfAnOpenPortStays() {
        const ParSerie par;
        MSComm comm(par.carpeta());
        abrir(comm);
        QCOMPARE(numeroDeError([&] { comm.setCommPort(2); }), ErrorMSComm::puertoEstaAbierto);
        QCOMPARE(numeroDeError([&] { comm.setCommPort(1); }), std::nullopt);
        QCOMPARE(comm.CommPort(), 1);
    }

    void settingsAreReadBack_data() {
        QTest::addColumn<QByteArray>("puestos");
        QTest::addColumn<QByteArray>("leidos");
        QTest::newRow("default") << QByteArray("9600,N,8,1") << QByteArray("9600,N,8,1");
        QTest::newRow("even") << QByteArray("115200,E,7,2") << QByteArray("115200,E,7,2");
        QTest::newRow("small letter and blanks") << QByteArray(" 300, o ,5, 1.5") << QByteArray("300,O,5,1.5");
        QTest::newRow("slowest") << QByteArray("50,M,6,1") << QByteArray("50,M,6,1");
        QTest::newRow("fastest") << QByteArray("12000000,S,8,1") << QByteArray("12000000,S,8,1");
    }

    void settingsAreReadBack() {
        QFETCH(const QByteArray, puestos);
        QFETCH(const QByteArray, leidos);
        MSComm comm(QString{});
        comm.setSettings(puestos.toStdString());
        QCOMPARE(QByteArray::fromStdString(comm.Settings()), leidos);
    }

    void badSettingsAreRefusedAndTheFormerStay_data() {
        QTest::addColumn<QByteArray>("puestos");
        for (const char* malos : {"",
                                  "9600",
                                  "9600,N,8",
                                  "9600,N,8,1,1",
                                  "abc,N,8,1",
                                  "0,N,8,1",
                                  "-9600,N,8,1",
                                  "49,N,8,1",
                                  "12000001,N,8,1",
                                  "99999999999999999999,N,8,1",
                                  "9600.5,N,8,1",
                                  "9600,X,8,1",
                                  "9600,NN,8,1",
                                  "9600,,8,1",
                                  "9600,N,4,1",
                                  "9600,N,9,1",
                                  "9600,N,ocho,1",
                                  "9600,N,8,3",
                                  "9600,N,8,",
                                  "9600,N,8,1\xFF",
                                  "9600;N;8;1"})
            QTest::newRow(*malos == '\0' ? "empty" : malos) << QByteArray(malos);
    }

    void badSettingsAreRefusedAndTheFormerStay() {
        QFETCH(const QByteArray, puestos);
        MSComm comm(QString{});
        comm.setSettings("2400,E,7,2");
        QCOMPARE(numeroDeError([&] { comm.setSettings(puestos.toStdString()); }), ErrorMSComm::valorNoValido);
        QCOMPARE(QByteArray::fromStdString(comm.Settings()), QByteArray("2400,E,7,2"));
    }

    // A pseudo-terminal stays at eight bits without parity, and an unusual speed means nothing to it.
    void pseudoTerminalOpensWithAnySettings() {
        for (const char* ajustes : {"9600,E,7,2", "12345,N,8,1", "50,S,5,1.5", "12000000,O,6,1"}) {
            const ParSerie par;
            MSComm comm(par.carpeta());
            comm.setSettings(ajustes);
            QCOMPARE(numeroDeError([&] { abrir(comm); }), std::nullopt);
            QCOMPARE(QByteArray::fromStdString(comm.Settings()), QByteArray(ajustes));
            QSignalSpy llegada(&comm, &MSComm::OnComm);
            par.enviar("x");
            QVERIFY(llegada.wait(paciencia));
            QCOMPARE(comm.Input(), std::string("x"));
        }
    }

    void settingsOfAnOpenPortAreApplied() {
        const ParSerie par;
        MSComm comm(par.carpeta());
        abrir(comm);
        comm.setSettings("19200,N,8,1");
        QVERIFY(comm.PortOpen());
        const int descriptor = ::open(qPrintable(par.dispositivo()), O_RDONLY | O_NOCTTY | O_NONBLOCK);
        termios estado = {};
        if (descriptor >= 0) { // root may look at an exclusive port
            QCOMPARE(::tcgetattr(descriptor, &estado), 0);
            QCOMPARE(::cfgetispeed(&estado), speed_t{B19200});
            ::close(descriptor);
        }
    }

    void openingAnOpenPortIsRefused() {
        const ParSerie par;
        MSComm comm(par.carpeta());
        abrir(comm);
        QCOMPARE(numeroDeError([&] { comm.setPortOpen(true); }), ErrorMSComm::puertoYaAbierto);
        QVERIFY(comm.PortOpen());
    }

    void closedPortIsNeitherClosedNorReadAgain() {
        const ParSerie par;
        MSComm comm(par.carpeta());
        QCOMPARE(numeroDeError([&] { comm.setPortOpen(false); }), ErrorMSComm::puertoEstaCerrado);
        QCOMPARE(numeroDeError([&] { comm.Input(); }), ErrorMSComm::puertoEstaCerrado);
    }

    void portTakenByAnotherControlIsRefused() {
        const ParSerie par;
        MSComm primero(par.carpeta());
        MSComm segundo(par.carpeta());
        abrir(primero);
        QCOMPARE(numeroDeError([&] { abrir(segundo); }), ErrorMSComm::dispositivoNoDisponible);
        primero.setPortOpen(false);
        QCOMPARE(numeroDeError([&] { abrir(segundo); }), std::nullopt);
    }

    void negativeThresholdsAndLengthsAreRefused() {
        MSComm comm(QString{});
        QCOMPARE(numeroDeError([&] { comm.setInputLen(-1); }), ErrorMSComm::valorNoValido);
        QCOMPARE(numeroDeError([&] { comm.setRThreshold(-1); }), ErrorMSComm::valorNoValido);
        QCOMPARE(numeroDeError([&] { comm.setSThreshold(-1); }), ErrorMSComm::valorNoValido);
    }

    void everyByteArrivesAsItIs() {
        const ParSerie par;
        MSComm comm(par.carpeta());
        std::string enviado;
        for (int codigo = 0; codigo < 256; ++codigo)
            enviado += static_cast<char>(codigo);
        std::string recibido;
        connect(&comm, &MSComm::OnComm, &comm, [&] { recibido += comm.Input(); });
        abrir(comm);
        par.enviar(enviado);
        QTRY_COMPARE(recibido.size(), enviado.size());
        QCOMPARE(recibido, enviado);
    }

    void inputTakesWhatArrivedDuringTheEvent() {
        const ParSerie par;
        MSComm comm(par.carpeta());
        std::vector<std::string> entradas;
        connect(&comm, &MSComm::OnComm, &comm, [&] {
            entradas.push_back(comm.Input());
            par.enviar("dos");
            const QDeadlineTimer plazo(5000); // the kernel hands it over in its own time
            std::string segunda;
            while (segunda.empty() && !plazo.hasExpired())
                segunda = comm.Input();
            entradas.push_back(segunda);
            comm.setRThreshold(0);
        });
        abrir(comm);
        par.enviar("uno");
        QTRY_COMPARE(entradas, (std::vector<std::string>{"uno", "dos"}));
    }

    void inputLengthLimitsOneInput() {
        const ParSerie par;
        MSComm comm(par.carpeta());
        comm.setInputLen(2);
        std::vector<std::string> entradas;
        connect(&comm, &MSComm::OnComm, &comm, [&] {
            for (std::string entrada = comm.Input(); !entrada.empty(); entrada = comm.Input())
                entradas.push_back(entrada);
        });
        abrir(comm);
        par.enviar("12345");
        QTRY_COMPARE(entradas, (std::vector<std::string>{"12", "34", "5"}));
    }

    void thresholdHoldsTheEventBack() {
        const ParSerie par;
        MSComm comm(par.carpeta());
        abrir(comm);
        comm.setRThreshold(4);
        std::string recibido;
        connect(&comm, &MSComm::OnComm, &comm, [&] { recibido = comm.Input(); });
        par.entregar("123");
        QTRY_COMPARE(par.sinLeer(), 0);
        correrLoPendiente();
        QVERIFY(recibido.empty());
        par.enviar("4");
        QTRY_COMPARE(recibido, std::string("1234"));
    }

    void thresholdZeroRaisesNoEvent() {
        const ParSerie par;
        MSComm comm(par.carpeta());
        comm.setPortOpen(true);
        QSignalSpy llegada(&comm, &MSComm::OnComm);
        par.entregar("x");
        QTRY_COMPARE(par.sinLeer(), 0);
        correrLoPendiente();
        QCOMPARE(llegada.count(), 0);
    }

    // A device that never pauses fills event after event, none of which goes on for ever.
    void eventHandsOutABoundedAmount() {
        const ParSerie par;
        MSComm comm(par.carpeta());
        constexpr std::size_t total = 2'000'000;
        std::size_t recibido = 0;
        std::size_t mayorEvento = 0;
        connect(&comm, &MSComm::OnComm, &comm, [&] {
            std::size_t evento = 0;
            for (std::string entrada = comm.Input(); !entrada.empty(); entrada = comm.Input())
                evento += entrada.size();
            recibido += evento;
            mayorEvento = std::max(mayorEvento, evento);
        });
        abrir(comm);
        std::thread aparato([&] { par.enviar(std::string(total, 'x')); });
        QTRY_COMPARE_WITH_TIMEOUT(recibido, total, 20000);
        aparato.join();
        constexpr std::size_t unaLectura = 32768; // the most that the library reads at once
        QVERIFY2(mayorEvento < std::size_t{MSComm::maximoEvento} + unaLectura,
                 qPrintable(QString::number(mayorEvento)));
    }

    void vanishedDeviceClosesThePortOnceAndCostsNothingAfter() {
        ParSerie par;
        MSComm comm(par.carpeta());
        abrir(comm);
        QSignalSpy perdido(&comm, &MSComm::perdido);
        par.desconectar();
        QVERIFY(perdido.wait(paciencia));
        QVERIFY(!comm.PortOpen());
        correrLoPendiente();
        QVERIFY(!QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)); // nothing goes on
        for (const QTimer* uno : comm.findChildren<QTimer*>())
            QVERIFY(!uno->isActive());
        QCOMPARE(perdido.count(), 1);
    }

    void deviceThatVanishesDuringTheEventIsReportedOnce() {
        ParSerie par;
        MSComm comm(par.carpeta());
        connect(&comm, &MSComm::OnComm, &comm, [&] {
            comm.Input();
            par.desconectar();
            QCOMPARE(comm.Input(), std::string());
        });
        QSignalSpy perdido(&comm, &MSComm::perdido);
        abrir(comm);
        par.enviar("x");
        QVERIFY(perdido.wait(paciencia));
        QVERIFY(!comm.PortOpen());
        QCOMPARE(perdido.count(), 1);
    }

    void deviceThatIsBackOpensAgain() {
        ParSerie par;
        MSComm comm(par.carpeta());
        std::string recibido;
        connect(&comm, &MSComm::OnComm, &comm, [&] { recibido += comm.Input(); });
        QSignalSpy perdido(&comm, &MSComm::perdido);
        for (int vez = 1; vez <= 3; ++vez) {
            abrir(comm);
            par.desconectar();
            QVERIFY(perdido.wait(paciencia));
            QCOMPARE(perdido.count(), vez);
            par.conectar();
        }
        abrir(comm);
        par.enviar("otra vez");
        QTRY_COMPARE(recibido, std::string("otra vez"));
    }

    void operatorWhoClosesThePortHearsOfNoLoss() {
        ParSerie par;
        MSComm comm(par.carpeta());
        abrir(comm);
        QSignalSpy perdido(&comm, &MSComm::perdido);
        comm.setPortOpen(false);
        par.desconectar();
        correrLoPendiente();
        QCOMPARE(perdido.count(), 0);
    }
};

QTEST_GUILESS_MAIN(TestMSComm)
#include "MSCommTest.moc"
