#include "platform/window/Eventos.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

class TestEventos : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pendingEventsRun() {
        bool corrio = false;
        QTimer::singleShot(0, this, [&corrio] { corrio = true; });
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
        int nivel = 0;
        int mayor = 0;
        // Each handler starts the next one and lets it run inside itself.
        std::function<void()> manejador = [&] {
            mayor = qMax(mayor, ++nivel);
            QMetaObject::invokeMethod(this, manejador, Qt::QueuedConnection);
            QElapsedTimer espera;
            espera.start();
            while (espera.elapsed() < 3)
                eventos.dejarPasarEventos();
            --nivel;
        };
        QMetaObject::invokeMethod(this, manejador, Qt::QueuedConnection);
        eventos.dejarPasarEventos();
        QCOMPARE(mayor, Eventos::maxNivel);
        manejador = [] {};
        QTest::qWait(0);
    }
};

QTEST_MAIN(TestEventos)
#include "Eventos_test.moc"
