// The end signals: at once, and then from the event loop.

#include "shell/SenalesTermino.h"

#include <QTest>

#include <csignal>

class TestSenalesTermino : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void signalActsAtOnceAndThenInTheEventLoop_data() {
        QTest::addColumn<int>("senal");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
    }
    void signalActsAtOnceAndThenInTheEventLoop() {
        QFETCH(int, senal);
        int enElActo = 0;
        int enElBucle = 0;
        const SenalesTermino senales([&] { ++enElActo; }, [&] { ++enElBucle; });
        QCOMPARE(std::raise(senal), 0);
        QCOMPARE(enElActo, 1);
        QCOMPARE(enElBucle, 0);
        QTRY_COMPARE(enElBucle, 1);
    }

    void signalsHeldBackComeWhenThereIsSomebodyToTakeThem() {
        SenalesTermino::retener();
        QCOMPARE(std::raise(SIGTERM), 0);
        int enElActo = 0;
        int enElBucle = 0;
        const SenalesTermino senales([&] { ++enElActo; }, [&] { ++enElBucle; });
        QCOMPARE(enElActo, 1);
        QTRY_COMPARE(enElBucle, 1);
    }

    void manySignalsMakeOneTurnOfTheEventLoop() {
        int enElActo = 0;
        int enElBucle = 0;
        const SenalesTermino senales([&] { ++enElActo; }, [&] { ++enElBucle; });
        for (int i = 0; i < 100000; ++i)
            std::raise(SIGTERM); // more than the pipe holds
        QCOMPARE(enElActo, 100000);
        QTRY_COMPARE(enElBucle, 1);
        QTest::qWait(0);
        QCOMPARE(enElBucle, 1);
    }
};

QTEST_MAIN(TestSenalesTermino)
#include "SenalesTerminoTest.moc"
