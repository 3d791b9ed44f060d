// The main window from start to shutdown: order, visibility, hiding, ending.

#include "EsperasDelBucle.h"
#include "PrincipalDePrueba.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>

#include <functional>

namespace {

void clic(const PrincipalDePrueba& p, const char* boton) {
    QTest::mouseClick(&p.control<QPushButton>(boton), Qt::LeftButton);
}

// Runs the event loop, does `accion` in it, and returns how often the loop waited for something before it ended; -1
// when it did not end.
int esperasHastaElFin(const std::function<void()>& accion) {
    EsperasDelBucle esperas;
    QTimer::singleShot(0, qApp, [&] {
        accion();
        esperas.veces = 0;
    });
    QTimer limite;
    limite.setSingleShot(true);
    QObject::connect(&limite, &QTimer::timeout, qApp, [] { QCoreApplication::exit(99); });
    limite.start(10000);
    return QApplication::exec() == 0 ? esperas.veces : -1;
}

QMessageBox* cajaAbierta() {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

} // namespace

class TestFrmPrincipalVida : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void windowIsHiddenUntilItIsLoaded() {
        PrincipalDePrueba p;
        QVERIFY(!p.ventana->isVisible());
        QVERIFY(!p.estacion->escucha().escuchando());
    }

    void withoutTheKeyTheWindowShowsAndTheDefaultIsWritten() {
        PrincipalDePrueba p;
        QVERIFY(p.cargar());
        QVERIFY(p.ventana->isVisible());
        QCOMPARE(p.clave("ver"), std::string("1"));
    }

    void hiddenByTheKeyItStartsHiddenAndServes() {
        PrincipalDePrueba p("ver=0\r\n");
        QVERIFY(p.cargar());
        QVERIFY(!p.ventana->isVisible());
        const auto maestro = p.conectarMaestro();
        QCOMPARE(PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::lectura(1), 13).size(), 13);
        QCOMPARE(p.clave("ver"), std::string("0"));
    }

    void folderThatCannotBeWrittenIsToldInTheWindow() {
        PrincipalDePrueba p("", Arranque{.avisoCarpeta = "No se puede escribir en /opt"});
        QVERIFY(p.cargar());
        QCOMPARE(p.control<QLabel>("lblDDEAviso").text(), QStringLiteral("No se puede escribir en /opt"));
        QVERIFY(p.control<QLabel>("lblDDEAviso").isVisible());
    }

    void settingsThatCannotBeKeptAreToldInTheWindowUntilTheyCan() {
        PrincipalDePrueba p;
        QVERIFY(p.cargar());
        QVERIFY(!p.control<QLabel>("lblDDEAviso").isVisible());
        std::filesystem::permissions(p.config.rutaArchivo(), std::filesystem::perms(0444));
        clic(p, "BtnOcultar");
        p.tic(); // it shows itself again, since "ver" is still 1
        QVERIFY(p.control<QLabel>("lblDDEAviso").text().contains(QStringLiteral("Los cambios no se guardan")));
        std::filesystem::permissions(p.config.rutaArchivo(), std::filesystem::perms(0644));
        clic(p, "BtnOcultar");
        p.tic();
        QCOMPARE(p.control<QLabel>("lblDDEAviso").text(), QString());
        QVERIFY(!p.ventana->isVisible());
    }

    void settingsThatCannotBeReadForAMomentMoveNeitherListenerNorWindow() {
        PrincipalDePrueba p;
        QVERIFY(p.cargar());
        clic(p, "BtnOcultar");
        p.tic();
        QVERIFY(!p.ventana->isVisible());
        const QString puerto = p.control<QLabel>("LblPuertoLocal").text();
        std::filesystem::rename(p.config.rutaArchivo(), p.carpeta / "fuera");
        std::filesystem::create_directory(p.config.rutaArchivo());
        p.tic();
        QCOMPARE(p.control<QLabel>("LblPuertoLocal").text(), puerto);
        QVERIFY(p.estacion->escucha().escuchando());
        QVERIFY(!p.ventana->isVisible());
    }

    void windowFitsASmallScreen() {
        PrincipalDePrueba p("", Arranque{.avisoCarpeta = std::string(300, 'x') + " y más"});
        QVERIFY(p.cargar());
        const QSize minimo = p.ventana->minimumSizeHint();
        QVERIFY2(minimo.width() <= 950 && minimo.height() <= 510,
                 qPrintable(QStringLiteral("%1 x %2").arg(minimo.width()).arg(minimo.height())));
    }

    void wordViewShowsTheWindow_data() {
        QTest::addColumn<QString>("linea");
        for (const char* linea : {"view", "VIEW", "--preVIEWer=1", "a b xviewx c"})
            QTest::newRow(linea) << QString::fromLatin1(linea);
    }
    void wordViewShowsTheWindow() {
        QFETCH(QString, linea);
        PrincipalDePrueba p("ver=0\r\n", Arranque{.rutaPrograma = {}, .lineaDeComandos = linea});
        QVERIFY(p.cargar());
        QVERIFY(p.ventana->isVisible());
        QCOMPARE(p.clave("ver"), std::string("1"));
    }

    void otherWordsDoNotShowIt() {
        PrincipalDePrueba p("ver=0\r\n", Arranque{.rutaPrograma = {}, .lineaDeComandos = QStringLiteral("vie w")});
        QVERIFY(p.cargar());
        QVERIFY(!p.ventana->isVisible());
    }

    void ocultarHidesForGood() {
        PrincipalDePrueba p;
        QVERIFY(p.cargar());
        clic(p, "BtnOcultar");
        QVERIFY(!p.ventana->isVisible());
        QCOMPARE(p.clave("ver"), std::string("0"));
        p.tic();
        QVERIFY(!p.ventana->isVisible());
        p.encender();
        QVERIFY(p.cargar());
        QVERIFY(!p.ventana->isVisible());
    }

    void editOfTheFileShowsAndHidesAtTheNextTick() {
        PrincipalDePrueba p;
        QVERIFY(p.cargar());
        const std::string puerto = "PUERTO_VALOR=" + std::to_string(p.puerto) + "\r\n";
        p.escribirConfig(puerto + "ver=no\r\n");
        p.tic();
        QVERIFY(!p.ventana->isVisible());
        p.escribirConfig(puerto + "VER=1\r\n");
        p.tic();
        QVERIFY(p.ventana->isVisible());
    }

    void keyThatVanishesCountsAsShown() {
        PrincipalDePrueba p("ver=0\r\n");
        QVERIFY(p.cargar());
        p.escribirConfig("PUERTO_VALOR=" + std::to_string(p.puerto) + "\r\n");
        p.tic();
        QVERIFY(p.ventana->isVisible());
        QCOMPARE(p.clave("ver"), std::string("1"));
    }

    void tickShowsTheVisibilityByItself() {
        const PrincipalDePrueba p("ver=0\r\n");
        QCOMPARE(p.control<QTimer>("TimerCambioPuerto").interval(), 5000);
        QVERIFY(p.ventana->cargar());
        QVERIFY(p.control<QTimer>("TimerCambioPuerto").isActive());
    }

    void auxiliaryTimerStaysOff() {
        PrincipalDePrueba p;
        QVERIFY(p.cargar());
        const auto& aux = p.control<QTimer>("timerAux");
        QCOMPARE(aux.interval(), 1000);
        QVERIFY(!aux.isActive());
    }

    void scriptBoxFollowsItsKey_data() {
        QTest::addColumn<bool>("marcada");
        QTest::newRow("0") << false;
        QTest::newRow("1") << true;
        QTest::newRow("nada") << false;
        QTest::newRow("1e300") << false;
    }
    void scriptBoxFollowsItsKey() {
        QFETCH(bool, marcada);
        PrincipalDePrueba p(std::string("Codigo_Ejecutar=") + QTest::currentDataTag() + "\r\n");
        QVERIFY(p.cargar());
        QCOMPARE(p.control<QCheckBox>("chScript").isChecked(), marcada);
    }

    void scriptKeyIsWrittenBackWithItsDefault() {
        PrincipalDePrueba p;
        QVERIFY(p.cargar());
        QCOMPARE(p.clave("Codigo_Ejecutar"), std::string("0"));
    }

    void secondInstanceSaysSoAsksTheFirstToShowAndStartsNothing() {
        PrincipalDePrueba p("ver=0\r\n", Arranque{.rutaPrograma = {}, .lineaDeComandos = {}, .instanciaPrevia = true});
        QString titulo;
        QString mensaje;
        QMessageBox::Icon icono = QMessageBox::NoIcon;
        bool sobreTodo = false;
        QTimer vigia;
        connect(&vigia, &QTimer::timeout, this, [&] {
            if (QMessageBox* caja = cajaAbierta()) {
                titulo = caja->windowTitle();
                mensaje = caja->text();
                icono = caja->icon();
                sobreTodo = caja->windowModality() == Qt::ApplicationModal &&
                            caja->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
                QCOMPARE(p.clave("ver"), std::string("0")); // only after it is closed
                QTest::keyClick(caja, Qt::Key_Return);
            }
        });
        vigia.start(5);
        QVERIFY(!p.cargar());
        QCOMPARE(titulo, QStringLiteral("Esclavo Modbus"));
        QCOMPARE(mensaje, QStringLiteral("Programa en ejecucion"));
        QCOMPARE(icono, QMessageBox::Critical);
        QVERIFY(sobreTodo);
        QCOMPARE(p.clave("VER"), std::string("1"));
        QVERIFY(!p.ventana->isVisible());
        QVERIFY(!p.estacion->escucha().escuchando());
        QCOMPARE(p.estacion->esclavos.limite(), -1);
        QVERIFY(p.ventana->findChild<QWidget*>(QStringLiteral("FrmConexionesPuentes")) == nullptr);
    }

    void secondInstanceWithoutAScreenWaitsForNobody() {
        PrincipalDePrueba p(
            "ver=0\r\n",
            Arranque{.rutaPrograma = {}, .lineaDeComandos = {}, .instanciaPrevia = true, .sinPantalla = true});
        QVERIFY(!p.cargar());
        QCOMPARE(p.clave("VER"), std::string("1"));
    }

    void cerrarEsclavoEndsTheProgramAtOnce() {
        PrincipalDePrueba p;
        QVERIFY(p.cargar());
        std::vector<std::unique_ptr<Peer>> maestros;
        for (int i = 0; i < 50; ++i)
            maestros.push_back(p.conectarMaestro());
        const int esperas = esperasHastaElFin([&] { clic(p, "BtnCerrar"); });
        QCOMPARE(esperas, 0);
        QVERIFY(!p.ventana->isVisible());
        QVERIFY(!p.control<QTimer>("TimerCambioPuerto").isActive());
        QCOMPARE(p.clave("ver"), std::string("1")); // nothing is saved
    }

    void closeBoxDoesTheSame() {
        PrincipalDePrueba p;
        QVERIFY(p.cargar());
        const int esperas = esperasHastaElFin([&] { p.ventana->close(); });
        QCOMPARE(esperas, 0);
        QVERIFY(!p.ventana->isVisible());
        QVERIFY(!p.control<QTimer>("TimerCambioPuerto").isActive());
        QCOMPARE(p.clave("ver"), std::string("1"));
    }

    void endingTakesTheSerialWindowAlong_data() {
        QTest::addColumn<bool>("conCierre");
        QTest::newRow("Cerrar Esclavo") << false;
        QTest::newRow("close box") << true;
    }
    void endingTakesTheSerialWindowAlong() {
        QFETCH(bool, conCierre);
        PrincipalDePrueba p;
        QVERIFY(p.cargar());
        clic(p, "btnVerFormularioRS232");
        const auto& serie = p.control<QWidget>("frmRS232");
        QVERIFY(serie.isVisible());
        const int esperas = esperasHastaElFin([&] {
            if (conCierre)
                p.ventana->close();
            else
                clic(p, "BtnCerrar");
        });
        QCOMPARE(esperas, 0);
        QVERIFY(!serie.isVisible());
        QVERIFY(!p.ventana->isVisible());
    }

    // The serial link's keys come when its window is made.
    void startInAnEmptyFolderLeavesEveryKeyWithItsDefault() {
        PrincipalDePrueba p;
        std::filesystem::remove(p.config.rutaArchivo());
        QVERIFY(p.cargar());
        p.control<QCheckBox>("chScript").setChecked(true);
        p.control<QCheckBox>("chScript").setChecked(false);
        clic(p, "btnVerFormularioRS232");
        for (const Clave* clave : claves::todas) {
            if (clave->ajena || clave == &claves::periodoDelEditor || clave == &claves::validez)
                continue; // of other programs; second to read; read with the first frame
            QCOMPARE(p.clave(clave->nombre.data()), std::string(clave->porDefecto));
        }
        QVERIFY(!QString::fromStdString(contenidoDe(p.config.rutaArchivo())).contains(QLatin1String("RutaProyecto")));
    }

    void portInUseIsWrittenBackAsItsDecimalText() {
        PrincipalDePrueba p;
        p.escribirConfig("PUERTO_VALOR= \"" + std::to_string(p.puerto) + ",0\"\r\n");
        QVERIFY(p.cargar());
        QCOMPARE(p.clave("PUERTO_VALOR"), std::to_string(p.puerto));
        std::filesystem::remove(p.config.rutaArchivo());
        p.escribirConfig("ver=1\r\n");
        const std::uint16_t otro = puertoLibre();
        p.escribirConfig("PUERTO_VALOR=" + std::to_string(otro) + "e0\r\n");
        p.tic();
        QCOMPARE(p.clave("PUERTO_VALOR"), std::to_string(otro));
        QCOMPARE(p.control<QLabel>("LblPuertoLocal").text(), QStringLiteral("Puerto: %1").arg(otro));
    }

    void endingWhileAMessageBoxIsOpenClosesItToo() {
        PrincipalDePrueba p;
        QVERIFY(p.cargar());
        auto& grid = p.control<QTableView>("MSFlexGrid(1)");
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(0, 0)).center());
        QTest::keyClick(&grid, Qt::Key_Return);
        auto* mw = p.ventana->findChild<QWidget*>(QStringLiteral("FrmMW"));
        QVERIFY(mw != nullptr);
        mw->findChild<QLineEdit*>(QStringLiteral("TxtPlc"))->clear();
        QTimer vigia;
        connect(&vigia, &QTimer::timeout, this, [&] {
            if (cajaAbierta() != nullptr) {
                vigia.stop();
                p.ventana->apagar();
            }
        });
        vigia.start(5);
        const int esperas = esperasHastaElFin(
            [&] { QTest::mouseClick(mw->findChild<QPushButton*>(QStringLiteral("BtnOk")), Qt::LeftButton); });
        QCOMPARE(esperas, 0);
        QVERIFY(cajaAbierta() == nullptr);
        QVERIFY(!mw->isVisible());
    }

    void endingWhileTheStationComesUpIsNotLost() {
        PrincipalDePrueba p;
        QTimer::singleShot(0, p.ventana.get(), [&] { p.ventana->apagar(); });
        QVERIFY(!p.cargar());
    }

    void endingASecondInstanceByASignalLeavesTheFirstAlone() {
        PrincipalDePrueba p("ver=0\r\n", Arranque{.rutaPrograma = {}, .lineaDeComandos = {}, .instanciaPrevia = true});
        bool cargada = true;
        const int esperas = esperasHastaElFin([&] {
            QTimer::singleShot(0, p.ventana.get(), [&] { p.ventana->apagar(); });
            cargada = p.cargar();
        });
        QCOMPARE(esperas, 0);
        QVERIFY(!cargada);
        QCOMPARE(p.clave("ver"), std::string("0"));
    }
};

QTEST_MAIN(TestFrmPrincipalVida)
#include "FrmPrincipalVidaTest.moc"
