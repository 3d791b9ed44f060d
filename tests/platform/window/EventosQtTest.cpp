#include "platform/window/EventosQt.h"

#include "EsperasDelBucle.h"
#include "RelojDePrueba.h"

#include <QEventLoop>
#include <QTest>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

// A handler that calls itself through the event queue and lets the call run inside itself.
class Apilador : public QObject {
public:
    explicit Apilador(Eventos& eventos) : eventos_(eventos) {}

    void llamar() { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

    int nivel = 0;
    int mayor = 0; // level reached

protected:
    void customEvent(QEvent* /*evento*/) override {
        mayor = qMax(mayor, ++nivel);
        llamar();
        for (int vez = 0; vez < 3; ++vez)
            eventos_.dejarPasarEventos();
        --nivel;
    }

private:
    Eventos& eventos_;
};

} // namespace

class TestEventosQt : public QObject {
    Q_OBJECT

    RelojDePrueba deprisa; // each call finds its pause over

    void initTestCase() { deprisa.porMirada = EventosQt::pausa; }

    void pendingEventsRun() {
        bool corrio = false;
        QTimer reloj;
        connect(&reloj, &QTimer::timeout, this, [&corrio] { corrio = true; });
        reloj.start(0);
        EventosQt eventos;
        eventos.dejarPasarEventos();
        QVERIFY(corrio);
    }

    void nothingPendingIsNoWait() {
        EventosQt eventos;
        const EsperasDelBucle esperas;
        eventos.dejarPasarEventos();
        QCOMPARE(esperas.veces, 0);
    }

    void calledAgainWithinAMillisecondItReturnsAtOnce() {
        int turnos = 0;
        QTimer reloj;
        connect(&reloj, &QTimer::timeout, this, [&turnos] { ++turnos; });
        reloj.start(0);
        RelojDePrueba hora;
        EventosQt eventos(hora);
        for (int i = 0; i < 100; ++i)
            eventos.dejarPasarEventos();
        QCOMPARE(turnos, 1);
        hora.pasar(EventosQt::pausa);
        for (int i = 0; i < 100; ++i)
            eventos.dejarPasarEventos();
        QCOMPARE(turnos, 2);
    }

    void insideItIsNotTheBottom() {
        EventosQt eventos;
        bool dentro = true;
        QTimer::singleShot(0, this, [&] { dentro = eventos.enElFondo(); });
        QVERIFY(eventos.enElFondo());
        eventos.dejarPasarEventos();
        QVERIFY(!dentro);
        QVERIFY(eventos.enElFondo());
    }

    void theLoopOfABoxThatWaitsInsideItIsABottomAgain() {
        EventosQt eventos;
        bool enLaCaja = false;
        bool despues = true;
        QTimer::singleShot(0, this, [&] {
            QEventLoop caja;
            QTimer::singleShot(0, &caja, [&] {
                enLaCaja = eventos.enElFondo();
                caja.quit();
            });
            caja.exec();
            despues = eventos.enElFondo();
        });
        eventos.dejarPasarEventos();
        QVERIFY(enLaCaja);
        QVERIFY(!despues);
    }

    void insideABoxTooItIsNotTheBottom() {
        EventosQt eventos;
        bool dentro = true;
        QEventLoop caja;
        QTimer::singleShot(0, &caja, [&] {
            QTimer::singleShot(0, &caja, [&] {
                dentro = eventos.enElFondo();
                caja.quit();
            });
            eventos.dejarPasarEventos();
        });
        caja.exec();
        QVERIFY(!dentro);
    }

    void itCanBeCalledByAHandlerThatItStarted() {
        EventosQt eventos(deprisa);
        int nivel = 0;
        int mayor = 0;
        QTimer reloj;
        connect(&reloj, &QTimer::timeout, this, [&] {
            mayor = qMax(mayor, ++nivel);
            for (int vez = 0; vez < 3; ++vez)
                eventos.dejarPasarEventos();
            --nivel;
        });
        QTimer otro;
        connect(&otro, &QTimer::timeout, this, [&eventos] { eventos.dejarPasarEventos(); });
        reloj.start(0);
        otro.start(0);
        eventos.dejarPasarEventos();
        QVERIFY(mayor >= 1);
        QCOMPARE(nivel, 0);
    }

    void handlersDoNotPileUp() {
        EventosQt eventos(deprisa);
        Apilador apilador(eventos);
        apilador.llamar();
        eventos.dejarPasarEventos();
        QCOMPARE(apilador.mayor, EventosQt::maxNivel);
        QCOMPARE(apilador.nivel, 0);
    }
};

QTEST_MAIN(TestEventosQt)
#include "EventosQtTest.moc"
