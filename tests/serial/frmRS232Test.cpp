// The window over real pseudo-terminals: opening, receiving, the silence and state timers, faults and losses.
#include "serial/frmRS232.h"

#include "EntornoFalso.h"
#include "EventosPendientes.h"
#include "RelojDePrueba.h"
#include "TiempoDeProcesador.h"
#include "platform/serial/ParSerie.h"
#include "platform/window/VistaTexto.h"

#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <sys/ioctl.h>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

using Valores = std::map<std::string, std::string, std::less<>>; // by stored key

// A station with a device on COM port 1 and the window of the serial link.
struct Estacion {
    explicit Estacion(const Valores& ajustes = {}) {
        configuracion.valores = ajustes;
        ventana = std::make_unique<frmRS232>(par.carpeta(), configuracion, log, motor, reloj);
    }

    template <typename Control>
    Control* control(const char* nombre) {
        return ventana->findChild<Control*>(QString::fromLatin1(nombre));
    }

    QString texto(const char* nombre) { return control<VistaTexto>(nombre)->texto(); }
    QString estado() { return control<QLabel>("lblEstado")->text(); }
    // The text of a notice; empty when it is not shown.
    QString aviso(const char* nombre) {
        const auto* rotulo = control<QLabel>(nombre);
        return rotulo->isHidden() ? QString() : rotulo->text();
    }
    QColor color() { return control<QLabel>("lblEstado")->palette().color(QPalette::Window); }
    void pulsar(const char* boton) { QTest::mouseClick(control<QPushButton>(boton), Qt::LeftButton); }

    // The timer ticks at once instead of after its whole interval.
    void adelantar(const char* temporizador) { control<QTimer>(temporizador)->setInterval(1); }

    RelojDePrueba reloj;
    ParSerie par;
    AjustesFalsos configuracion;
    LogFalso log;
    MotorFalso motor;
    std::unique_ptr<frmRS232> ventana;
};

const std::string asignaciones123 = "AA =24\r\nMM =05\r\nDD = 17\r\nID = 123\n\r\nVALIDEZ = 2\r\n";

} // namespace

class TestFrmRS232 : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void freshConfigurationOpensPortOneAndWritesTheKeys() {
        Estacion estacion;
        QCOMPARE(estacion.control<QLineEdit>("txtConfigRS232")->text(), QStringLiteral("Com: 1 / 9600,N,8,1"));
        QCOMPARE(estacion.control<MSComm>("MSComm")->PortOpen(), true);
        QVERIFY(estacion.log.lineas.empty());
        QCOMPARE(estacion.configuracion.leidas,
                 (std::vector<std::string>{"RS232_NomCOM", "RS232_Baudios", "RS232_Paridad", "RS232_DataBits",
                                           "RS232_StopBit", "Caracter_Fin_TRAMA_1", "Caracter_Fin_TRAMA_2"}));
    }

    void missingPortIsLoggedOnceAndShownClosed() {
        Estacion estacion(Valores{{"RS232_NomCOM", "3000"}});
        QCOMPARE(estacion.log.lineas.size(), std::size_t{1});
        QCOMPARE(QByteArray::fromStdString(estacion.log.lineas[0]),
                 QByteArray("RS232>SetearConfig: Com:3000/9600,N,8,1>PortOpen>"
                            "No se puede abrir /dev/ttyS2999: no existe"));
        QCOMPARE(estacion.estado(), QStringLiteral("CLOSE"));
        QCOMPARE(estacion.color(), QColor(255, 0, 0));
        QCOMPARE(estacion.control<QLineEdit>("txtConfigRS232")->text(), QStringLiteral("Com: 3000 / 9600,N,8,1"));
    }

    void lettersAsPortNumberFailThatStepAloneAndTheNextOnesFollow() {
        Estacion estacion(Valores{{"RS232_NomCOM", "COM3"}});
        QCOMPARE(estacion.log.lineas,
                 std::vector<std::string>{"RS232>SetearConfig: Com:COM3/9600,N,8,1>CommPort>No coinciden los tipos"});
        QCOMPARE(estacion.estado(), QStringLiteral("OPEN"));
        QCOMPARE(estacion.control<QLineEdit>("txtConfigRS232")->text(), QStringLiteral("Com: COM3 / 9600,N,8,1"));
    }

    void badSettingsFailThatStepAloneAndTheFormerAreShown() {
        Estacion estacion(Valores{{"RS232_Baudios", "999999999"}, {"RS232_Paridad", "E"}});
        QCOMPARE(estacion.log.lineas,
                 std::vector<std::string>{"RS232>SetearConfig: Com:1/999999999,E,8,1>Settings>"
                                          "Valor de propiedad no válido: Settings = 999999999,E,8,1"});
        QCOMPARE(estacion.control<QLineEdit>("txtConfigRS232")->text(), QStringLiteral("Com: 1 / 9600,N,8,1"));
        QCOMPARE(estacion.estado(), QStringLiteral("OPEN"));
    }

    void eachFailingStepIsLoggedOnce() {
        Estacion estacion(Valores{{"RS232_NomCOM", "-1"}, {"RS232_StopBit", "uno"}});
        QCOMPARE(estacion.log.lineas.size(), std::size_t{2});
    }

    void pressingAbrirPuertoOnAnOpenPortIsOnlyLogged() {
        Estacion estacion;
        estacion.pulsar("BtnAbrirPuerto");
        QCOMPARE(estacion.log.lineas,
                 std::vector<std::string>{"RS232>SetearConfig: Com:1/9600,N,8,1>PortOpen>El puerto ya está abierto"});
        QCOMPARE(estacion.estado(), QStringLiteral("OPEN"));
        estacion.par.enviar("x");
        QTRY_COMPARE(estacion.texto("TxtInputCom"), QStringLiteral("x"));
    }

    void wrongEndCharacterIsLoggedAndTheWindowGoesOn() {
        Estacion estacion(Valores{{"Caracter_Fin_TRAMA_1", "300"}, {"Caracter_Fin_TRAMA_2", "fin"}});
        QCOMPARE(estacion.log.lineas.size(), std::size_t{2});
        estacion.par.enviar("240517123\n\r");
        QTRY_COMPARE(estacion.motor.textos, std::vector<std::string>{asignaciones123});
    }

    void openPortIsShownGreen() {
        Estacion estacion;
        QCOMPARE(estacion.estado(), QStringLiteral("OPEN"));
        QCOMPARE(estacion.color(), QColor(0, 255, 0));
    }

    void stateTimerFollowsThePort() {
        Estacion estacion;
        QCOMPARE(estacion.control<QTimer>("timerEstado")->interval(), 5000);
        QVERIFY(estacion.control<QTimer>("timerEstado")->isActive());
        estacion.control<MSComm>("MSComm")->setPortOpen(false);
        QCOMPARE(estacion.estado(), QStringLiteral("OPEN"));
        estacion.adelantar("timerEstado");
        QTRY_COMPARE(estacion.estado(), QStringLiteral("CLOSE"));
        QCOMPARE(estacion.color(), QColor(255, 0, 0));
    }

    void readingReachesTheEngineAndTheLists() {
        Estacion estacion;
        estacion.par.enviar("240517123\n\r");
        QTRY_COMPARE(estacion.motor.textos, std::vector<std::string>{asignaciones123});
        QTRY_COMPARE(estacion.texto("txtTramas"), QStringLiteral("240517123\n\n"));
        QCOMPARE(estacion.texto("TxtInputCom"), QStringLiteral("240517123\n\n"));
        QVERIFY(estacion.log.lineas.empty());
    }

    void hiddenWindowReceivesAllTheSame() {
        Estacion estacion;
        estacion.ventana->show();
        estacion.pulsar("BtnOcultar");
        QVERIFY(estacion.ventana->isHidden());
        estacion.par.enviar("240517123\n\r");
        QTRY_COMPARE(estacion.motor.textos.size(), std::size_t{1});
        estacion.ventana->show();
        estacion.ventana->close();
        QVERIFY(estacion.control<MSComm>("MSComm")->PortOpen());
    }

    void everyByteIsShownAsItsAnsiCharacter() {
        Estacion estacion;
        estacion.par.enviar("a\xF1o \x80");
        QTRY_COMPARE(estacion.texto("TxtInputCom"), QStringLiteral("año €"));
    }

    void allBytesPassThroughWithoutHarm() {
        Estacion estacion;
        for (int vez = 0; vez < 3; ++vez) {
            std::string todos;
            for (int codigo = 255; codigo >= 0; --codigo)
                todos += static_cast<char>(codigo);
            estacion.par.enviar(todos);
        }
        QTRY_VERIFY(estacion.texto("TxtInputCom").count(QStringLiteral("cba")) == 3);
    }

    void silenceTimerRunsFromTheEndOfAnEvent() {
        Estacion estacion;
        auto* silencio = estacion.control<QTimer>("timerLimpiarBuffer");
        QCOMPARE(silencio->interval(), 3000);
        QVERIFY(!silencio->isActive());
        estacion.par.enviar("media");
        QTRY_VERIFY(silencio->isActive());
    }

    void halfAFrameIsGoneAfterTheNextSilentTick() {
        Estacion estacion;
        auto* silencio = estacion.control<QTimer>("timerLimpiarBuffer");
        estacion.par.enviar("media");
        QTRY_VERIFY(silencio->isActive());
        QSignalSpy tics(silencio, &QTimer::timeout);
        estacion.adelantar("timerLimpiarBuffer");
        QTRY_VERIFY(tics.count() > 0);
        QVERIFY(silencio->isActive()); // stays on after clearing
        estacion.par.enviar("240517123\n\r");
        QTRY_COMPARE(estacion.motor.textos, std::vector<std::string>{asignaciones123});
    }

    void leftOverEndCharacterShiftsTheNextReading() {
        Estacion estacion;
        estacion.par.enviar("240517123\n\r");
        QTRY_COMPARE(estacion.motor.textos.size(), std::size_t{1});
        estacion.par.enviar("240518456\n\r");
        QTRY_COMPARE(estacion.motor.textos.size(), std::size_t{2});
        QVERIFY(estacion.motor.textos[1].starts_with("AA =\r2\r\nMM =40\r\n"));
    }

    void refusedReadingIsLoggedAndToldWithTimeAndCause() {
        Estacion estacion;
        estacion.motor.rechaza = "mal";
        estacion.par.enviar("240517mal\n\r");
        QTRY_COMPARE(estacion.log.lineas,
                     std::vector<std::string>{"RS232>OnComm: Com:1/9600,N,8,1>240517mal<10>>Error de sintaxis"});
        QTRY_COMPARE(estacion.aviso("lblRechazo"),
                     QStringLiteral("12:34:56 Lectura rechazada «240517mal<10>»: Error de sintaxis"));
        QCOMPARE(estacion.texto("txtTramas"), QString());
        QVERIFY(estacion.control<QTimer>("timerLimpiarBuffer")->isActive());
    }

    // A reading may open a box, in which events run.
    void silenceIsNotCountedWhileAReadingIsInterpreted() {
        Estacion estacion;
        auto* silencio = estacion.control<QTimer>("timerLimpiarBuffer");
        estacion.par.enviar("240517123\n\r");
        QTRY_VERIFY(silencio->isActive());
        bool contaba = true;
        estacion.motor.mientras = [&] { contaba = silencio->isActive(); };
        estacion.par.enviar("240517123\n\r");
        QTRY_COMPARE(estacion.motor.textos.size(), std::size_t{2});
        QVERIFY(!contaba);
        QVERIFY(silencio->isActive());
    }

    // The whole way back: refused, silent, good.
    void readingAfterARefusedOneAndAPauseIsGood() {
        Estacion estacion;
        estacion.motor.rechaza = "mal";
        estacion.par.enviar("240517mal\n\r");
        auto* silencio = estacion.control<QTimer>("timerLimpiarBuffer");
        QTRY_VERIFY(silencio->isActive());
        QSignalSpy tics(silencio, &QTimer::timeout);
        estacion.adelantar("timerLimpiarBuffer");
        QTRY_VERIFY(tics.count() > 0);
        estacion.par.enviar("240517123\n\r");
        QTRY_COMPARE(estacion.motor.textos, std::vector<std::string>{asignaciones123});
        QTRY_COMPARE(estacion.texto("txtTramas"), QStringLiteral("240517123\n\n"));
    }

    void readingRefusedAgainAndAgainIsCountedAndLoggedRarely() {
        Estacion estacion;
        estacion.motor.rechaza = "ID";
        for (int vez = 1; vez <= 20; ++vez) {
            estacion.par.enviar("240517123\n\r");
            const QString cuenta = vez > 1 ? QStringLiteral("(%1 veces)").arg(vez) : QStringLiteral("sintaxis");
            QTRY_VERIFY(estacion.aviso("lblRechazo").endsWith(cuenta));
        }
        QCOMPARE(estacion.log.lineas.size(), std::size_t{2}); // the first and the tenth
        estacion.reloj.pasar(24h + 4s);
        estacion.par.enviar("240517123\n\r");
        QTRY_COMPARE(estacion.log.lineas.size(), std::size_t{3}); // each day's log tells of it
        QTRY_VERIFY(estacion.aviso("lblRechazo").startsWith(QStringLiteral("12:35:00 Lectura")));
        QVERIFY(estacion.aviso("lblRechazo").endsWith(QStringLiteral("sintaxis")));
    }

    void longReadingOfNoiseIsToldByItsLegibleBeginning() {
        Estacion estacion;
        estacion.motor.rechaza = "ID";
        estacion.par.enviar(std::string("<b>\x01\xF1") + std::string(500, 'x') + "\n\r");
        QTRY_VERIFY(
            estacion.aviso("lblRechazo").contains(QStringLiteral("«<b><1>ñ") + QString(55, u'x') + QChar(0x2026)));
    }

    void pressingAbrirPuertoTakesTheRefusedReadingAway() {
        Estacion estacion;
        estacion.motor.rechaza = "ID";
        estacion.par.enviar("240517123\n\r");
        QTRY_VERIFY(!estacion.aviso("lblRechazo").isEmpty());
        estacion.pulsar("BtnAbrirPuerto");
        QCOMPARE(estacion.aviso("lblRechazo"), QString());
    }

    void validityThatIsNoNumberIsTold() {
        Estacion estacion(Valores{{"RS232_Cant_Intervalos_Validez", "dos"}});
        estacion.par.enviar("240517123\n\r");
        QTRY_VERIFY(estacion.aviso("lblRechazo").endsWith(QStringLiteral("»: No coinciden los tipos")));
        QCOMPARE(estacion.log.lineas.size(), std::size_t{1});
        QVERIFY(estacion.motor.textos.empty());
    }

    // The box of the debug switch opens while the window is being made, and characters arrive in it.
    void charactersThatArriveWhileTheWindowIsMadeAreTakenAfterwards() {
        const ParSerie par;
        AjustesFalsos configuracion;
        configuracion.valores["Caracter_Fin_TRAMA_1"] = "300"; // is logged, with the port open by then
        LogFalso log;
        MotorFalso motor;
        log.alEscribir = [&] {
            const int linea = ::open(qPrintable(par.dispositivo()), O_RDONLY | O_NOCTTY | O_NONBLOCK);
            par.enviar("240517123\n\r");
            pollfd llegada{linea, POLLIN, 0};
            QCOMPARE(::poll(&llegada, 1, 10'000), 1); // here: nobody reads before the event loop runs
            int esperan = 1;
            QVERIFY(
                QTest::qWaitFor([&] { return ::ioctl(linea, FIONREAD, &esperan) == 0 && esperan == 0; }, paciencia));
            ::close(linea);
        };
        const frmRS232 ventana(par.carpeta(), configuracion, log, motor);
        QCOMPARE(log.lineas.size(), std::size_t{1});
        QTRY_COMPARE(motor.textos, std::vector<std::string>{asignaciones123});
    }

    void closedPortTellsWhy() {
        Estacion estacion(Valores{{"RS232_NomCOM", "3000"}});
        QCOMPARE(estacion.aviso("lblCausaCierre"),
                 QStringLiteral("12:34:56 No se puede abrir /dev/ttyS2999: no existe"));
        QFile::link(estacion.par.dispositivo(), estacion.par.carpeta() + QStringLiteral("/com3000"));
        estacion.pulsar("BtnAbrirPuerto");
        QCOMPARE(estacion.estado(), QStringLiteral("OPEN"));
        QCOMPARE(estacion.aviso("lblCausaCierre"), QString());
    }

    void vanishedDeviceIsLoggedOnceShownClosedAndOpenedAgainByTheButton() {
        Estacion estacion;
        estacion.par.desconectar();
        QTRY_COMPARE(estacion.estado(), QStringLiteral("CLOSE"));
        correrLoPendiente();
        QCOMPARE(estacion.log.lineas.size(), std::size_t{1});
        QVERIFY(estacion.log.lineas[0].ends_with("el dispositivo ha desaparecido"));
        QVERIFY(estacion.aviso("lblCausaCierre").endsWith(QStringLiteral("el dispositivo ha desaparecido")));
        estacion.par.conectar();
        estacion.pulsar("BtnAbrirPuerto");
        QCOMPARE(estacion.estado(), QStringLiteral("OPEN"));
        QCOMPARE(estacion.aviso("lblCausaCierre"), QString());
        estacion.par.enviar("240517123\n\r");
        QTRY_COMPARE(estacion.motor.textos.size(), std::size_t{1});
        QCOMPARE(estacion.log.lineas.size(), std::size_t{1});
    }

    void everyControlHasANameForAssistiveTools() {
        Estacion estacion;
        for (const char* nombre : {"TxtInputCom", "txtConfigRS232", "txtTramas", "lblEstado", "lblCausaCierre",
                                   "lblRechazo", "BtnAbrirPuerto", "BtnOcultar"})
            QVERIFY2(!estacion.control<QWidget>(nombre)->accessibleName().isEmpty(), nombre);
    }

    void tabWalksThroughTheControlsInOrder() {
        Estacion estacion;
        estacion.ventana->show();
        QVERIFY(QTest::qWaitForWindowActive(estacion.ventana.get(), paciencia));
        estacion.control<QLineEdit>("txtConfigRS232")->setFocus();
        for (const char* siguiente : {"BtnAbrirPuerto", "BtnOcultar", "TxtInputCom", "txtTramas"}) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget()->objectName(), QString::fromLatin1(siguiente));
        }
    }

    // 100 MB without an end mark: the events go on and the window answers meanwhile.
    void hundredMegabytesWithoutEndMarkLeaveTheWindowUsable() {
        Estacion estacion;
        estacion.ventana->show();
        constexpr std::size_t total = 100'000'000;
        std::thread aparato([&] {
            for (std::size_t enviados = 0; enviados < total; enviados += 1'000'000)
                estacion.par.enviar(std::string(1'000'000, 'x'));
        });
        auto* vista = estacion.control<VistaTexto>("TxtInputCom");
        std::int64_t masLarga = 0;
        const QDeadlineTimer plazo(100'000);
        while (vista->bytes().size() < total && !plazo.hasExpired()) {
            const std::int64_t antes = msDeProcesador();
            QCoreApplication::processEvents(QEventLoop::AllEvents);
            masLarga = std::max(masLarga, msDeProcesador() - antes);
        }
        aparato.join();
        QCOMPARE(vista->bytes().size(), total);
        QVERIFY2(masLarga < 1000, qPrintable(QString::number(masLarga)));
        QVERIFY(estacion.log.lineas.empty());
    }

    void deviceBehindSocatIsReadFromEndToEnd() {
        const QTemporaryDir carpeta;
        QProcess socat;
        socat.start(
            QStringLiteral("socat"),
            {QStringLiteral("-"), QStringLiteral("PTY,rawer,link=%1").arg(carpeta.filePath(QStringLiteral("com1")))});
        QVERIFY(socat.waitForStarted());
        QTRY_VERIFY(QFileInfo(carpeta.filePath(QStringLiteral("com1"))).isSymLink());
        AjustesFalsos configuracion;
        LogFalso log;
        MotorFalso motor;
        {
            const frmRS232 ventana(carpeta.path(), configuracion, log, motor);
            socat.write("240517123\n\r");
            QTRY_COMPARE(motor.textos, std::vector<std::string>{asignaciones123});
            socat.closeWriteChannel();
            socat.terminate();
            QTRY_COMPARE(log.lineas.size(), std::size_t{1});
            QCOMPARE(ventana.findChild<QLabel*>(QStringLiteral("lblEstado"))->text(), QStringLiteral("CLOSE"));
        }
        QTRY_COMPARE(socat.state(), QProcess::NotRunning);
    }
};

QTEST_MAIN(TestFrmRS232)
#include "frmRS232Test.moc"
