// Script automation in the main window: check box, period, timer, colours, passes, endless loops.

#include "CajaDeMensaje.h"
#include "EsperasDelBucle.h"
#include "EventosPendientes.h"
#include "PrincipalDePrueba.h"
#include "RelojDePrueba.h"

#include <QCheckBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>

#include <functional>
#include <optional>

using namespace std::chrono_literals;

namespace {

constexpr QRgb verde = 0xFF00FF00;
constexpr QRgb rojo = 0xFFFF0000;
constexpr const char* claveEjecutar = "Codigo_Ejecutar";
constexpr const char* clavePeriodo = "Ejecucion_Codigo_Milisegundos";

class EstacionConScript : public PrincipalDePrueba {
public:
    explicit EstacionConScript(const std::string& masConfiguracion = "", std::chrono::milliseconds limite = 50s,
                               const Reloj& reloj = relojDelSistema())
        : PrincipalDePrueba(masConfiguracion, arranque(limite), reloj) {}

    static Arranque arranque(std::chrono::milliseconds limite) {
        Arranque a;
        a.limiteScript = limite;
        return a;
    }

    void script(const std::string& texto) const { escribirArchivo(carpeta / "codigoTrelvano.txt", texto); }
    QCheckBox& chScript() const { return control<QCheckBox>("chScript"); }
    QTimer* timer() const { return ventana->findChild<QTimer*>(QStringLiteral("timerScript")); }
    QString etiqueta() const { return control<QLabel>("lblBaseDeTiempo").text(); }
    QRgb color() const { return chScript().palette().color(QPalette::Window).rgb(); }
    double registro(int esclavo, int direccion) const {
        return estacion->esclavos.valores(esclavo)[static_cast<std::size_t>(direccion)];
    }
    void clic() const { QTest::mouseClick(&chScript(), Qt::LeftButton, {}, QPoint(8, chScript().height() / 2)); }
    void pasada() const { ventana->ejecucion_timers(1); }
};

// Passes run when the test asks for them.
const std::string sinPasadasPropias = "Ejecucion_Codigo_Milisegundos=3600000\r\n";

// Does something once, as soon as the control of that name is being painted.
class AlPintar : public QObject {
public:
    AlPintar(const char* nombre, std::function<void(QWidget&)> accion) : nombre_(nombre), accion_(std::move(accion)) {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() == QEvent::Paint && accion_ && objeto->objectName() == QLatin1String(nombre_))
            QMetaObject::invokeMethod(
                this,
                [accion = std::exchange(accion_, nullptr), barra = qobject_cast<QWidget*>(objeto)] { accion(*barra); },
                Qt::QueuedConnection);
        return false;
    }

private:
    const char* nombre_;
    std::function<void(QWidget&)> accion_;
};

// Does something once, as soon as a box waits for an answer.
class AlVerCaja {
public:
    explicit AlVerCaja(std::function<void(QWidget&)> accion) : accion_(std::move(accion)) {
        QObject::connect(&vigia_, &QTimer::timeout, &vigia_, [this] {
            if (QWidget* const caja = QApplication::activeModalWidget()) {
                vigia_.stop();
                accion_(*caja);
            }
        });
        vigia_.start(5);
    }

private:
    std::function<void(QWidget&)> accion_;
    QTimer vigia_;
};

} // namespace

class TestFrmPrincipalScript : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startWithTheKeyOnArmsTheTimerAndShowsThePeriod() {
        EstacionConScript e("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=250\r\n");
        QVERIFY(e.cargar());
        QVERIFY(e.chScript().isChecked());
        QVERIFY(e.timer()->isActive());
        QCOMPARE(e.timer()->interval(), 250);
        QCOMPARE(e.etiqueta(), QStringLiteral("Intervalo: 250 Milisegundos"));
    }

    void outcomeIsSeenBehindTheBox() {
        EstacionConScript e("Codigo_Ejecutar=1\r\n");
        QVERIFY(e.cargar());
        const auto fondo = [&] { return e.chScript().grab().toImage().pixel(1, 1); };
        e.script("x = 1");
        e.pasada();
        QCOMPARE(fondo(), verde);
        e.script("x = 1 / 0");
        e.pasada();
        QCOMPARE(fondo(), rojo);
    }

    void boxTellsTheErrorWithItsPlaceAndTime() {
        RelojDePrueba reloj;
        EstacionConScript e("Codigo_Ejecutar=1\r\n" + sinPasadasPropias, 50s, reloj);
        QVERIFY(e.cargar());
        reloj.pasar(3min);
        e.script("x = 1\r\nx = 1 / 0");
        e.pasada();
        reloj.pasar(1min);
        QCOMPARE(e.chScript().toolTip(),
                 QStringLiteral("Con error a las 12:37:56, línea 2, columna 1: División por cero (error 11)"));
        QCOMPARE(e.chScript().accessibleDescription(), e.chScript().toolTip());
        e.script("x = y(");
        e.pasada();
        QVERIFY(e.chScript().toolTip().contains(QStringLiteral("línea 1")));
    }

    void boxTellsPassesAndTheirTimeToWhoPointsAtIt() {
        EstacionConScript e("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=60000\r\n");
        QVERIFY(e.cargar());
        e.script("x = 1");
        for (int vez = 0; vez < 3; ++vez)
            e.pasada();
        QHelpEvent senalar(QEvent::ToolTip, QPoint(3, 3), e.chScript().mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(&e.chScript(), &senalar);
        QVERIFY2(e.chScript().toolTip().startsWith(QStringLiteral("Sin errores. Pasadas: 3; la última duró ")),
                 qPrintable(e.chScript().toolTip()));
    }

    void startWithTheKeyOffLeavesTimerLabelAndPeriodAlone() {
        EstacionConScript e;
        QVERIFY(e.cargar());
        QVERIFY(!e.timer()->isActive());
        QCOMPARE(e.etiqueta(), QStringLiteral("Tiempo:"));
        QCOMPARE(e.clave(clavePeriodo), std::string("?"));
    }

    void firstClickStoresTheDefaultPeriod() {
        EstacionConScript e;
        QVERIFY(e.cargar());
        e.clic();
        QCOMPARE(e.clave(claveEjecutar), std::string("1"));
        QCOMPARE(e.clave(clavePeriodo), std::string("500"));
        QCOMPARE(e.timer()->interval(), 500);
        QVERIFY(e.timer()->isActive());
        QCOMPARE(e.etiqueta(), QStringLiteral("Intervalo: 500 Milisegundos"));
    }

    void secondClickDisarmsAndStillShowsThePeriod() {
        EstacionConScript e;
        QVERIFY(e.cargar());
        e.clic();
        e.clic();
        QCOMPARE(e.clave(claveEjecutar), std::string("0"));
        QVERIFY(!e.timer()->isActive());
        QCOMPARE(e.etiqueta(), QStringLiteral("Intervalo: 500 Milisegundos"));
    }

    void clickByKeyAndByProgramIsTheSameClick() {
        EstacionConScript e;
        QVERIFY(e.cargar());
        QTest::keyClick(&e.chScript(), Qt::Key_Space);
        QVERIFY(e.timer()->isActive());
        e.chScript().setChecked(false);
        QCOMPARE(e.clave(claveEjecutar), std::string("0"));
        QVERIFY(!e.timer()->isActive());
    }

    void periodOfTheFileIsRoundedHalvesToEven_data() {
        QTest::addColumn<int>("ms");
        QTest::newRow("12,5") << 12;
        QTest::newRow("13,5") << 14;
        QTest::newRow("99,4") << 99;
        QTest::newRow("10") << 10;
        QTest::newRow("60000") << 60000;
        QTest::newRow("2147483647") << 2147483647;
        // Too short to leave time for anything else: the shortest that the editor admits.
        QTest::newRow("0") << 10;
        QTest::newRow("-5") << 10;
        QTest::newRow("-2147483648") << 10;
    }
    void periodOfTheFileIsRoundedHalvesToEven() {
        QFETCH(int, ms);
        EstacionConScript e(std::string("Ejecucion_Codigo_Milisegundos=") + QTest::currentDataTag() + "\r\n");
        QVERIFY(e.cargar());
        e.clic();
        QCOMPARE(e.timer()->interval(), ms);
        QCOMPARE(e.etiqueta(),
                 QStringLiteral("Intervalo: %1 Milisegundos").arg(QLatin1String(QTest::currentDataTag())));
    }

    void periodThatIsNoPeriodIsToldAndLeavesTheTimer_data() {
        QTest::addColumn<QString>("mensaje");
        QTest::newRow("abc") << QStringLiteral("No coinciden los tipos");
        QTest::newRow("12 ms") << QStringLiteral("No coinciden los tipos");
        QTest::newRow("1e12") << QStringLiteral("Desbordamiento");
        QTest::newRow("2147483648") << QStringLiteral("Desbordamiento");
    }
    void periodThatIsNoPeriodIsToldAndLeavesTheTimer() {
        QFETCH(QString, mensaje);
        EstacionConScript e("Ejecucion_Codigo_Milisegundos=70\r\nCodigo_Ejecutar=1\r\n");
        QVERIFY(e.cargar());
        e.clic(); // off
        e.clic(); // on, 70 ms
        e.escribirConfig(std::string("Ejecucion_Codigo_Milisegundos=") + QTest::currentDataTag() + "\r\n");
        CajaDeMensaje caja;
        e.chScript().blockSignals(true);
        e.chScript().setChecked(false);
        e.chScript().blockSignals(false);
        e.clic(); // on again
        QTRY_COMPARE(caja.vistas, 1);
        QCOMPARE(caja.texto, mensaje);
        QCOMPARE(caja.icono, QMessageBox::Critical);
        QVERIFY(e.timer()->isActive());
        QCOMPARE(e.timer()->interval(), 70);
        QCOMPARE(e.etiqueta(), QStringLiteral("Intervalo: 70 Milisegundos"));
        QCOMPARE(e.clave(claveEjecutar), std::string("1"));
    }

    void badPeriodAtTheStartDoesNotKeepTheStationFromServing() {
        EstacionConScript e("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=nada\r\n");
        QVERIFY(e.cargar()); // although nobody answers the message yet
        QVERIFY(!e.timer()->isActive());
        const auto maestro = e.conectarMaestro();
        QCOMPARE(PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::lectura(1), 13).size(), 13);
        CajaDeMensaje caja;
        QTRY_COMPARE(caja.texto, QStringLiteral("No coinciden los tipos"));
    }

    void scriptThatWaitsForAnAnswerDoesNotKeepTheStationFromComingUp() {
        EstacionConScript e("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=10\r\n");
        e.script("MsgBox \"a\"\r\nmw.escribir 11, 499, 1");
        QVERIFY(e.cargar());
        QVERIFY(e.estacion->escucha().escuchando());
        CajaDeMensaje caja;
        QTRY_COMPARE(e.registro(11, 499), 1.0);
        e.clic();
    }

    void timerRunsPassesThatWriteRegistersAndTurnTheBoxGreen() {
        EstacionConScript e("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=10\r\n");
        e.script("mw.escribir 1, 7, mw.leer(1, 7) + 1");
        QVERIFY(e.cargar());
        QTRY_VERIFY(e.registro(1, 7) >= 3);
        QCOMPARE(e.color(), verde);
        QCOMPARE(e.chScript().palette().color(QPalette::WindowText), QColor(Qt::black));
        QVERIFY(e.chScript().autoFillBackground());
    }

    void syntaxErrorIsRedOnEveryPassUntilTheFileIsMended() {
        EstacionConScript e("Codigo_Ejecutar=1\r\n");
        QVERIFY(e.cargar());
        e.script("Si esto es basic");
        e.pasada();
        QCOMPARE(e.color(), rojo);
        e.pasada();
        QCOMPARE(e.color(), rojo);
        e.script("a = 1");
        e.pasada();
        QCOMPARE(e.color(), verde);
    }

    void runTimeErrorIsRedAndShowsNoMessage() {
        EstacionConScript e("Codigo_Ejecutar=1\r\n");
        QVERIFY(e.cargar());
        CajaDeMensaje caja;
        e.script("mw.escribir 1, 0, 5\r\nmw.escribir 99, 0, 1"); // no slave 99
        e.pasada();
        QCOMPARE(e.color(), rojo);
        QCOMPARE(e.registro(1, 0), 5.0);
        correrLoPendiente();
        QCOMPARE(caja.vistas, 0);
    }

    void missingScriptFileIsGreen() {
        EstacionConScript e("Codigo_Ejecutar=1\r\n");
        QVERIFY(e.cargar());
        e.pasada();
        QCOMPARE(e.color(), verde);
    }

    void uncheckedBoxRunsNothingAndIsGreen() {
        EstacionConScript e;
        QVERIFY(e.cargar());
        e.script("mw.escribir 1, 0, 5");
        e.pasada();
        QCOMPARE(e.registro(1, 0), 0.0);
        QCOMPARE(e.color(), verde);
    }

    void otherTimerNumbersDoNothing() {
        EstacionConScript e("Codigo_Ejecutar=1\r\n");
        QVERIFY(e.cargar());
        e.script("mw.escribir 1, 0, 5");
        for (const double num : {2.0, 0.0, -1.0, 1.0000001})
            e.ventana->ejecucion_timers(num);
        QCOMPARE(e.registro(1, 0), 0.0);
        e.ventana->ejecucion_timers(1);
        QCOMPARE(e.registro(1, 0), 5.0);
    }

    void masterSeesWhatTheScriptWrote() {
        EstacionConScript e("Codigo_Ejecutar=1\r\n");
        QVERIFY(e.cargar());
        e.script("mw.escribir 1, 0, 258\r\nmw.escribir 1, 1, 772");
        e.pasada();
        const auto maestro = e.conectarMaestro();
        const QByteArray respuesta = PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::lectura(1), 13);
        QCOMPARE(respuesta.mid(9), QByteArray("\1\2\3\4"));
    }

    void scriptSeesWhatAMasterWrote() {
        EstacionConScript e("Codigo_Ejecutar=1\r\n");
        QVERIFY(e.cargar());
        const auto maestro = e.conectarMaestro();
        QCOMPARE(PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::escritura(1, 4, 42), 12).size(), 12);
        e.script("mw.escribir 1, 5, mw.leer(1, 4) * 2");
        e.pasada();
        QCOMPARE(e.registro(1, 5), 84.0);
    }

    void uncheckingDuringAPassLetsItFinishAndIsTheLast() {
        EstacionConScript e("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=10\r\n");
        e.script("mw.escribir 1, 0, 1\r\nMsgBox \"a\"\r\nmw.escribir 1, 1, mw.leer(1, 1) + 1");
        QVERIFY(e.cargar());
        const AlVerCaja desmarcar([&](QWidget& caja) {
            e.chScript().setChecked(false);
            QTest::keyClick(&caja, Qt::Key_Return);
        });
        QTRY_COMPARE(e.registro(1, 1), 1.0);
        QCOMPARE(e.registro(1, 0), 1.0);
        QVERIFY(!e.timer()->isActive());
        QVERIFY(!e.control<QTimer>("timerAplazada").isActive());
        correrLoPendiente();
        QCOMPARE(e.registro(1, 1), 1.0);
    }

    void passesDoNotPileUpOverAMessageBoxAndTheStationGoesOnServing() {
        EstacionConScript e("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=10\r\n");
        e.script("n = n + 1\r\nmw.escribir 1, 0, n\r\nIf n = 1 Then MsgBox \"a\", 4, \"b\"\r\nmw.escribir 1, 1, n");
        QVERIFY(e.cargar());
        QByteArray mientras;
        QStringList botones;
        double enLaCaja = 0;
        const AlVerCaja atender([&](QWidget& caja) {
            const auto maestro = e.conectarMaestro();
            mientras = PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::lectura(1), 13).mid(9);
            for (const auto* boton : caja.findChildren<QPushButton*>())
                botones += boton->text();
            for (int periodo = 0; periodo < 3; ++periodo)
                Q_EMIT e.timer()->timeout({});
            correrLoPendiente();
            enLaCaja = e.registro(1, 0);
            QTest::keyClick(&caja, Qt::Key_Return);
        });
        QTRY_VERIFY(e.registro(1, 1) >= 2);
        QCOMPARE(mientras, QByteArray("\0\1\0\0", 4));
        QCOMPARE(enLaCaja, 1.0);
        QCOMPARE(botones.size(), 2);
    }

    // A pass is due while a master is being accepted and the accept lets events pass.
    void newMastersAreServedWhileTheBoxOfAScriptIsOpen() {
        EstacionConScript e("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=10\r\n");
        e.script("mw.escribir 1, 0, 7\r\nMsgBox \"a\"");
        QVERIFY(e.cargar());
        while (e.timer()->remainingTime() > 0) {
        }
        const auto primero = e.conectarMaestro();
        int servidos = 0;
        const AlVerCaja atender([&](QWidget& caja) {
            for (int i = 0; i < 5; ++i) {
                const auto maestro = e.conectarMaestro();
                if (PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::lectura(1), 13).mid(9, 2) ==
                    QByteArray("\0\7", 2))
                    ++servidos;
            }
            e.chScript().setChecked(false);
            QTest::keyClick(&caja, Qt::Key_Return);
        });
        QTRY_COMPARE(e.color(), verde);
        QCOMPARE(servidos, 5);
    }

    void afterABoxTheOperatorHasTimeToUntickHoweverShortThePeriod() {
        RelojDePrueba reloj;
        EstacionConScript e("Codigo_Ejecutar=1\r\n" + sinPasadasPropias, 50s, reloj);
        e.script("MsgBox \"a\"");
        QVERIFY(e.cargar());
        CajaDeMensaje caja;
        const auto alVencer = [&] { // how many boxes there have been when the timer has fired once more
            Q_EMIT e.timer()->timeout({});
            return caja.vistas;
        };
        QCOMPARE(alVencer(), 1);
        QCOMPARE(alVencer(), 1);
        reloj.pasar(999ms);
        QCOMPARE(alVencer(), 1);
        reloj.pasar(1ms);
        QCOMPARE(alVencer(), 2);
    }

    void afterAnInputBoxTheOperatorHasThatTimeToo() {
        RelojDePrueba reloj;
        EstacionConScript e("Codigo_Ejecutar=1\r\n" + sinPasadasPropias, 50s, reloj);
        e.script("x = InputBox(\"valor\")");
        QVERIFY(e.cargar());
        const AlVerCaja contestar([](QWidget& caja) { QTest::keyClick(&caja, Qt::Key_Return); });
        const Pasadas& pasadas = e.estacion->script().pasadas();
        Q_EMIT e.timer()->timeout({});
        e.script("a = 1");
        Q_EMIT e.timer()->timeout({});
        QCOMPARE(pasadas.cuantas, 1U);
        reloj.pasar(1s);
        Q_EMIT e.timer()->timeout({});
        QCOMPARE(pasadas.cuantas, 2U);
    }

    // The period would be over by the end of the pass.
    void slowPassWaitsAWholePeriodBeforeTheNext() {
        EstacionConScript e("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=200\r\n");
        QVERIFY(e.cargar());
        e.script("mw.escribir 1, 0, 1\r\nt = Timer\r\nDo While Timer - t < 0.3\r\nLoop");
        std::optional<int> faltan; // ms to the next pass, at the end of the slow one
        connect(e.timer(), &QTimer::timeout, &e.chScript(), [&] {
            if (!faltan && e.registro(1, 0) == 1)
                faltan = e.timer()->remainingTime();
        });
        QTRY_VERIFY(faltan.has_value());
        QVERIFY(*faltan > 100);
        QVERIFY(!e.control<QTimer>("timerAplazada").isActive());
        const auto maestro = e.conectarMaestro();
        QCOMPARE(PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::lectura(1), 13).size(), 13);
    }

    void endlessLoopIsStoppedAtTheTimeOutRedAndTheStationServesAgain() {
        RelojDePrueba reloj;
        reloj.porMirada = 1ms;
        EstacionConScript e("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=50\r\n", 200ms, reloj);
        e.script("mw.escribir 1, 0, 9\r\nOn Error Resume Next\r\nDo\r\nLoop");
        QVERIFY(e.cargar());
        QTRY_COMPARE(e.color(), rojo);
        QVERIFY(e.estacion->script().pasadas().ultima >= 200ms);
        QVERIFY(e.estacion->script().pasadas().ultima < 210ms);
        const auto maestro = e.conectarMaestro();
        QCOMPARE(PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::lectura(1), 13).mid(9),
                 QByteArray("\0\x9\0\0", 4));
        e.script("mw.escribir 1, 0, 8");
        QTRY_COMPARE(e.color(), verde);
        QCOMPARE(e.registro(1, 0), 8.0);
    }

    // What a master asks meanwhile waits, so that it sees the pass as one step.
    void scriptThatDoesNotEndShowsItsBarAndPararEndsThePassWithAnErrorOfItsOwn() {
        RelojDePrueba reloj;
        reloj.porMirada = 1ms;
        EstacionConScript e(sinPasadasPropias, 50s, reloj);
        e.script("mw.escribir 1, 0, 9\r\nOn Error Resume Next\r\nDo\r\nLoop");
        QVERIFY(e.cargar());
        const auto maestro = e.conectarMaestro();
        e.chScript().setChecked(true);
        Reloj::Instante comienzo;
        Reloj::Instante::duration primera{};
        QByteArray entretanto;
        QString dicho;
        const AlPintar vigia("BarraScript", [&](QWidget& barra) {
            primera = reloj.instante() - comienzo;
            maestro->send(PrincipalDePrueba::lectura(1).toStdString());
            entretanto = QByteArray::fromStdString(maestro->receive());
            dicho = barra.findChild<QLabel*>()->text();
            QTest::mouseClick(barra.findChild<QPushButton*>(QStringLiteral("BtnPararScript")), Qt::LeftButton);
        });
        comienzo = reloj.instante();
        e.pasada();
        QVERIFY(primera >= 500ms);
        QCOMPARE(entretanto, QByteArray());
        QVERIFY(dicho.startsWith(QStringLiteral("El script lleva ")));
        QCOMPARE(e.color(), rojo);
        QVERIFY(e.chScript().toolTip().contains(QStringLiteral("La secuencia de comandos se detuvo")));
        QVERIFY(e.ventana->findChild<QWidget*>(QStringLiteral("BarraScript")) == nullptr);
        QCOMPARE(PrincipalDePrueba::recibir(*maestro, 13).mid(9), QByteArray("\0\x9\0\0", 4));
    }

    // From "Parar" to the box "Ejecutar" it is a long way for the mouse, and a script that runs again takes no click
    // there.
    void afterPararTheOperatorHasFiveSecondsToUntick() {
        RelojDePrueba reloj;
        reloj.porMirada = 1ms;
        EstacionConScript e("Codigo_Ejecutar=1\r\n" + sinPasadasPropias, 50s, reloj);
        e.script("Do\r\nLoop");
        QVERIFY(e.cargar());
        const AlPintar parar("BarraScript", [](QWidget& barra) {
            QTest::mouseClick(barra.findChild<QPushButton*>(QStringLiteral("BtnPararScript")), Qt::LeftButton);
        });
        const auto alVencer = [&] { // how many passes there have been when the timer has fired once more
            Q_EMIT e.timer()->timeout({});
            return e.estacion->script().pasadas().cuantas;
        };
        QCOMPARE(alVencer(), 1U);
        e.script("a = 1");
        QCOMPARE(alVencer(), 1U);
        reloj.pasar(4900ms);
        QCOMPARE(alVencer(), 1U);
        reloj.pasar(100ms);
        QCOMPARE(alVencer(), 2U);
    }

    void noPassRunsBeforeTheStationIsUp() {
        const EstacionConScript e("Codigo_Ejecutar=1\r\n" + sinPasadasPropias);
        AutomatizacionScript& script = e.estacion->script();
        script.iniciar();
        QVERIFY(e.timer()->isActive());
        Q_EMIT e.timer()->timeout({});
        QCOMPARE(script.pasadas().cuantas, 0U);
        script.empezarPasadas();
        Q_EMIT e.timer()->timeout({});
        QCOMPARE(script.pasadas().cuantas, 1U);
    }

    void untickingShowsThePeriodOfTheFileAsTickingDoes() {
        EstacionConScript e("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=250\r\n");
        QVERIFY(e.cargar());
        e.escribirConfig("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=40000\r\n");
        e.clic();
        QVERIFY(!e.chScript().isChecked());
        QVERIFY(!e.timer()->isActive());
        QCOMPARE(e.etiqueta(), QStringLiteral("Intervalo: 40000 Milisegundos"));
    }

    void timeOutOfTheProgramIsFiftySeconds() { QCOMPARE(Arranque().limiteScript, std::chrono::milliseconds(50000)); }

    void endingStopsAScriptThatWaitsInAMessageBox() {
        EstacionConScript e("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=10\r\n");
        e.script("MsgBox \"a\"\r\nmw.escribir 1, 0, 1\r\nDo\r\nLoop");
        QVERIFY(e.cargar());
        EsperasDelBucle esperas;
        const AlVerCaja apagar([&](QWidget&) {
            esperas.veces = 0;
            e.ventana->apagar();
        });
        QCOMPARE(QApplication::exec(), 0);
        QCOMPARE(esperas.veces, 0);
        QVERIFY(e.chScript().toolTip().contains(QStringLiteral("La secuencia de comandos se detuvo"))); // not: its time
    }

    void inputBoxAsksAndAnswersTheScript() {
        EstacionConScript e("Codigo_Ejecutar=1\r\n");
        QVERIFY(e.cargar());
        e.script("x = InputBox(\"valor\", \"titulo\", \"3\")\r\nmw.escribir 1, 0, CInt(x)");
        QString titulo;
        const AlVerCaja contestar([&](QWidget& caja) {
            titulo = caja.windowTitle();
            QTest::keyClicks(caja.findChild<QLineEdit*>(), QStringLiteral("77"));
            QTest::keyClick(&caja, Qt::Key_Return);
        });
        e.pasada();
        QCOMPARE(titulo, QStringLiteral("titulo"));
        QCOMPARE(e.registro(1, 0), 77.0);
    }

    void withoutAScreenMessagesWaitForNobody() {
        Arranque arranque;
        arranque.sinPantalla = true;
        PrincipalDePrueba p("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=nada\r\n", arranque);
        escribirArchivo(
            p.carpeta / "codigoTrelvano.txt",
            "a = MsgBox(\"x\", 4)\r\nmw.escribir 1, 0, a\r\nmw.escribir 1, 1, InputBox(\"v\", \"t\", \"5\")");
        QVERIFY(p.cargar());
        p.ventana->ejecucion_timers(1);
        QCOMPARE(p.estacion->esclavos.valores(1)[0], 6.0); // the box has "Sí" and "No"
        QCOMPARE(p.estacion->esclavos.valores(1)[1], 5.0);
    }

    void editButtonOpensTheEditorOnceWithTheHelpTopicOfAll() {
        EstacionConScript e;
        e.script("a = 1");
        QVERIFY(e.cargar());
        const auto abrir = [&] { QTest::mouseClick(&e.control<QPushButton>("BtnEdicionCodigo"), Qt::LeftButton); };
        abrir();
        QPointer<QWidget> editor = e.ventana->findChild<QWidget*>(QStringLiteral("FrmEdicionCodigo"));
        QVERIFY(editor && editor->isVisible() && editor->isWindow());
        QCOMPARE(editor->windowModality(), Qt::NonModal);
        QCOMPARE(editor->property("HelpContextID").toInt(), 420);
        QCOMPARE(editor->findChild<QWidget*>(QStringLiteral("txtCodigo"))->property("HelpContextID").toInt(), 420);
        abrir();
        QCOMPARE(e.ventana->findChildren<QWidget*>(QStringLiteral("FrmEdicionCodigo")).size(), 1);
        QTest::mouseClick(editor->findChild<QPushButton*>(QStringLiteral("BtnSalir")), Qt::LeftButton);
        QTRY_VERIFY(!editor);
        abrir();
        QVERIFY(e.ventana->findChild<QWidget*>(QStringLiteral("FrmEdicionCodigo")) != nullptr);
    }

    void editorTellsTheErrorOfTheLastPassAndForgetsItAfterAGoodOne() {
        EstacionConScript e("Codigo_Ejecutar=1\r\n");
        e.script("a = 0\r\nx = 1 / a");
        QVERIFY(e.cargar());
        e.pasada();
        QTest::mouseClick(&e.control<QPushButton>("BtnEdicionCodigo"), Qt::LeftButton);
        const auto& estado = e.control<QLabel>("lblEstado");
        QCOMPARE(estado.text(), QStringLiteral("Falló al ejecutar, línea 2, columna 1: División por cero (error 11)"));
        e.script("a = 0\r\nx = 1");
        e.pasada();
        QCOMPARE(estado.text(), QString());
        e.script("Error de sintaxis");
        e.pasada();
        QVERIFY(estado.text().startsWith(QStringLiteral("Falló al ejecutar, línea 1")));
    }

    void periodSavedInTheEditorRearmsTheTimer() {
        EstacionConScript e("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=300\r\n");
        QVERIFY(e.cargar());
        QTest::mouseClick(&e.control<QPushButton>("BtnEdicionCodigo"), Qt::LeftButton);
        auto& periodo = e.control<QLineEdit>("txtIntervaloDeTiempo");
        QCOMPARE(periodo.text(), QStringLiteral("300"));
        periodo.setFocus();
        periodo.selectAll();
        QTest::keyClicks(&periodo, QStringLiteral("70"));
        QTest::mouseClick(&e.control<QPushButton>("BtnGuardar"), Qt::LeftButton);
        QCOMPARE(e.timer()->interval(), 70);
        QVERIFY(e.timer()->isActive());
        QVERIFY(e.chScript().isChecked());
        QCOMPARE(e.etiqueta(), QStringLiteral("Intervalo: 70 Milisegundos"));
        QCOMPARE(e.clave(clavePeriodo), std::string("70"));
    }

    void textSavedInTheEditorRunsOnTheNextPass() {
        EstacionConScript e("Codigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=10\r\n");
        QVERIFY(e.cargar());
        QTest::mouseClick(&e.control<QPushButton>("BtnEdicionCodigo"), Qt::LeftButton);
        QTest::keyClicks(&e.control<QPlainTextEdit>("txtCodigo"), QStringLiteral("mw.escribir 1, 3, 33"));
        QTest::mouseClick(&e.control<QPushButton>("BtnGuardar"), Qt::LeftButton);
        QTRY_COMPARE(e.registro(1, 3), 33.0);
    }

    void auxiliaryTimerIsDormantWhateverTheBoxSays() {
        EstacionConScript e("Codigo_Ejecutar=1\r\n");
        QVERIFY(e.cargar());
        e.clic();
        e.clic();
        QVERIFY(!e.control<QTimer>("timerAux").isActive());
    }
};

QTEST_MAIN(TestFrmPrincipalScript)
#include "FrmPrincipalScriptTest.moc"
