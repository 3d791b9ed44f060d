#include "platform/window/LugarVentanas.h"

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include <map>

class TestLugarVentanas : public QObject {
    Q_OBJECT

    std::map<QString, QString> guardado_;
    LugarVentanas lugar_{[this](const QString& ventana) { return guardado_[ventana]; },
                         [this](const QString& ventana, const QString& lugar) { guardado_[ventana] = lugar; }};

    static QRect pantalla() { return QGuiApplication::primaryScreen()->availableGeometry(); }

private Q_SLOTS:
    void init() {
        guardado_.clear();
        qApp->installEventFilter(&lugar_);
    }
    void cleanup() { qApp->removeEventFilter(&lugar_); }

    void placeIsMovedAndCutIntoTheScreen() {
        const QRect disponible(0, 30, 1024, 670);
        QCOMPARE(dentroDe(disponible, QRect(10, 40, 300, 200)), QRect(10, 40, 300, 200));
        QCOMPARE(dentroDe(disponible, QRect(-50, 0, 1180, 760)), disponible);
        QCOMPARE(dentroDe(disponible, QRect(5000, 5000, 300, 200)), QRect(724, 500, 300, 200));
    }

    void windowLargerThanTheScreenOpensInsideIt() {
        QWidget ventana;
        ventana.resize(5000, 4000);
        ventana.show();
        // with room for a frame on every side
        QVERIFY(ventana.width() < pantalla().width());
        QVERIFY(ventana.height() < pantalla().height());
    }

    void windowComesBackWhereItWasLeft() {
        guardado_[QStringLiteral("FrmX")] = QStringLiteral("60,70,320,240");
        QWidget ventana;
        ventana.setObjectName(QStringLiteral("FrmX"));
        ventana.show();
        QCOMPARE(ventana.geometry(), QRect(60, 70, 320, 240));
    }

    void placeOfAScreenThatIsGoneIsCorrected_data() {
        QTest::addColumn<QString>("guardado");
        for (const char* texto : {"9000,9000,320,240", "-4000,-10,320,240", "0,0,90000,90000"})
            QTest::newRow(texto) << QString::fromLatin1(texto);
    }
    void placeOfAScreenThatIsGoneIsCorrected() {
        QFETCH(QString, guardado);
        guardado_[QStringLiteral("FrmX")] = guardado;
        QWidget ventana;
        ventana.setObjectName(QStringLiteral("FrmX"));
        ventana.show();
        QVERIFY(pantalla().contains(ventana.geometry()));
    }

    void junkIsNoPlace_data() {
        QTest::addColumn<QString>("guardado");
        for (const char* texto : {"", "1,2,3", "a,b,c,d", "1,2,-3,4", "1,2,0,0", "99999999999,1,1,1",
                                  "-2147483648,1,50,50", "1,2,2147483647,4"})
            QTest::newRow(texto) << QString::fromLatin1(texto);
    }
    void junkIsNoPlace() {
        QFETCH(QString, guardado);
        guardado_[QStringLiteral("FrmX")] = guardado;
        QWidget ventana;
        ventana.setObjectName(QStringLiteral("FrmX"));
        ventana.resize(320, 240);
        ventana.show();
        QCOMPARE(ventana.size(), QSize(320, 240));
    }

    void onlyWhatTheOperatorChangesIsKept() {
        QWidget ventana;
        ventana.setObjectName(QStringLiteral("FrmX"));
        ventana.resize(320, 240);
        ventana.show();
        QTRY_VERIFY(ventana.property("lugarConocido").isValid());
        QVERIFY(guardado_[QStringLiteral("FrmX")].isEmpty());
        ventana.setGeometry(50, 60, 400, 300);
        QTRY_COMPARE(guardado_[QStringLiteral("FrmX")], QStringLiteral("50,60,400,300"));
    }
};

QTEST_MAIN(TestLugarVentanas)
#include "LugarVentanasTest.moc"
