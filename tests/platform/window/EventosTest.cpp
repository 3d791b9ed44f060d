#include "platform/window/Eventos.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

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
        QElapsedTimer espera;
        espera.start();
        while (espera.elapsed() < 3)
            eventos_.dejarPasarEventos();
        --nivel;
    }

private:
    Eventos& eventos_;
};

} // namespace

class TestEventos : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pendingEventsRun() {
        bool corrio = false;
        QTimer reloj;
        connect(&reloj, &QTimer::timeout, this, [&corrio] { corrio = true; });
        reloj.start(0);
        Eventos eventos;
        eventos.dejarPasarEventos();
        QVERIFY(corrio);
    }

    void nothingPendingIsNoWait() {
        Eventos eventos;
        QElapsedTimer reloj;
        reloj.start();
        eventos.dejarPasarEventos();
        QVERIFY(reloj.elapsed() < 1000);
    }

    void calledAgainWithinAMillisecondItReturnsAtOnce() {
        int turnos = 0;
        QTimer reloj;
        connect(&reloj, &QTimer::timeout, this, [&turnos] { ++turnos; });
        reloj.start(0);
        Eventos eventos;
        QElapsedTimer transcurrido;
        transcurrido.start();
        for (int i = 0; i < 100'000; ++i)
            eventos.dejarPasarEventos();
        QVERIFY(turnos >= 1);
        QVERIFY(turnos <= transcurrido.elapsed() + 2);
    }

    void itCanBeCalledByAHandlerThatItStarted() {
        Eventos eventos;
        int nivel = 0;
        int mayor = 0;
        QTimer reloj;
        connect(&reloj, &QTimer::timeout, this, [&] {
            mayor = qMax(mayor, ++nivel);
            QElapsedTimer espera;
            espera.start();
            while (espera.elapsed() < 3)
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
        Eventos eventos;
        Apilador apilador(eventos);
        apilador.llamar();
        eventos.dejarPasarEventos();
        QCOMPARE(apilador.mayor, Eventos::maxNivel);
        QCOMPARE(apilador.nivel, 0);
    }
};

QTEST_MAIN(TestEventos)
#include "EventosTest.moc"
