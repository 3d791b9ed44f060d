// From the device to a master: the serial link inside the whole station, over a pseudo-terminal pair.

#include "PrincipalDePrueba.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace {

// The device's end of a pseudo-terminal whose other end the link com1 of the folder names.
class Dispositivo {
public:
    explicit Dispositivo(const std::filesystem::path& carpeta) : extremo_(posix_openpt(O_RDWR | O_NOCTTY)) {
        if (extremo_ < 0 || grantpt(extremo_) != 0 || unlockpt(extremo_) != 0)
            qFatal("no pseudo-terminal");
        std::filesystem::create_symlink(ptsname(extremo_), carpeta / "com1");
    }
    ~Dispositivo() { ::close(extremo_); }
    Dispositivo(const Dispositivo&) = delete;
    Dispositivo& operator=(const Dispositivo&) = delete;

    void enviar(const std::string& texto) const {
        QCOMPARE(::write(extremo_, texto.data(), texto.size()), static_cast<ssize_t>(texto.size()));
    }

private:
    int extremo_;
};

// What mbpoll reads from the first five registers of slave 1.
QString leerConMbpoll(std::uint16_t puerto) {
    QProcess maestro;
    maestro.start(QStringLiteral("mbpoll"),
                  {QStringLiteral("-m"), QStringLiteral("tcp"), QStringLiteral("-p"), QString::number(puerto),
                   QStringLiteral("-1"), QStringLiteral("-0"), QStringLiteral("-a"), QStringLiteral("1"),
                   QStringLiteral("-r"), QStringLiteral("0"), QStringLiteral("-c"), QStringLiteral("5"),
                   QStringLiteral("127.0.0.1")});
    if (!QTest::qWaitFor([&] { return maestro.state() == QProcess::NotRunning; }, paciencia))
        qFatal("mbpoll does not end");
    return QString::fromLatin1(maestro.readAllStandardOutput());
}

// Passes run when the test asks for them.
const std::string sinPasadasPropias = "Ejecucion_Codigo_Milisegundos=3600000\r\n";

std::string archivosDeLog(const std::filesystem::path& carpeta) {
    std::string todo;
    for (const auto& archivo : std::filesystem::directory_iterator(carpeta / "LOGS_Trelvano"))
        todo += contenidoDe(archivo.path());
    return todo;
}

} // namespace

class EnlaceSerieTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readingReachesAMasterThroughTheScript() {
        PrincipalDePrueba estacion("Ejecucion_Codigo_Milisegundos=20\r\n");
        const Dispositivo dispositivo(estacion.carpeta.ruta());
        escribirArchivo(estacion.carpeta.ruta() / "codigoTrelvano.txt", "If VALIDEZ > 0 Then\r\n"
                                                                        "  mw.escribir 1, 0, AA\r\n"
                                                                        "  mw.escribir 1, 1, MM\r\n"
                                                                        "  mw.escribir 1, 2, DD\r\n"
                                                                        "  mw.escribir 1, 3, ID\r\n"
                                                                        "  mw.escribir 1, 4, VALIDEZ\r\n"
                                                                        "End If\r\n");
        QVERIFY(estacion.cargar());
        QTest::mouseClick(&estacion.control<QPushButton>("btnVerFormularioRS232"), Qt::LeftButton);
        auto& formulario = estacion.control<QWidget>("frmRS232");
        QVERIFY(formulario.isVisible());
        QCOMPARE(formulario.findChild<QLineEdit*>(QStringLiteral("txtConfigRS232"))->text(),
                 QStringLiteral("Com: 1 / 9600,N,8,1"));
        estacion.control<QCheckBox>("chScript").setChecked(true);

        dispositivo.enviar("240517123\n\r");
        const QRegularExpression leido(
            QStringLiteral(R"(\[0\]:\s+24\s+\[1\]:\s+5\s+\[2\]:\s+17\s+\[3\]:\s+123\s+\[4\]:\s+2\s)"));
        QVERIFY(QTest::qWaitFor([&] { return leerConMbpoll(estacion.puerto).contains(leido); }, 20'000));
    }

    void missingPortGoesToTheLogAndTheWindowShowsClosed() {
        PrincipalDePrueba estacion("RS232_NomCOM=250\r\n");
        QVERIFY(estacion.cargar());
        QTest::mouseClick(&estacion.control<QPushButton>("btnVerFormularioRS232"), Qt::LeftButton);
        auto* estado = estacion.control<QWidget>("frmRS232").findChild<QLabel*>(QStringLiteral("lblEstado"));
        QTRY_COMPARE(estado->text(), QStringLiteral("CLOSE"));
        const std::string log = archivosDeLog(estacion.carpeta.ruta());
        QVERIFY(log.starts_with("Log: "));
        QVERIFY(log.find(",RS232>SetearConfig: Com:250/9600,N,8,1>") != std::string::npos);
    }

    void readingThatTheEngineRejectsGoesToTheLogAndTheStationGoesOn() {
        PrincipalDePrueba estacion;
        const Dispositivo dispositivo(estacion.carpeta.ruta());
        QVERIFY(estacion.cargar());
        QTest::mouseClick(&estacion.control<QPushButton>("btnVerFormularioRS232"), Qt::LeftButton);
        dispositivo.enviar("no es una lectura\n\r");
        QVERIFY(QTest::qWaitFor(
            [&] {
                return std::filesystem::exists(estacion.carpeta.ruta() / "LOGS_Trelvano") &&
                       archivosDeLog(estacion.carpeta.ruta()).find("error 1") != std::string::npos;
            },
            paciencia));
        const auto maestro = estacion.conectarMaestro();
        QCOMPARE(PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::lectura(1), 13).size(), 13);
    }

    // With an end mark of two kinds of blank, so that the character which is left over spoils nothing.
    void laterOfTwoReadingsWinsInTheEngine() {
        PrincipalDePrueba estacion("Caracter_Fin_TRAMA_1=9\r\nCaracter_Fin_TRAMA_2=32\r\n" + sinPasadasPropias);
        const Dispositivo dispositivo(estacion.carpeta.ruta());
        escribirArchivo(estacion.carpeta.ruta() / "codigoTrelvano.txt", "mw.escribir 1, 3, ID\r\n");
        QVERIFY(estacion.cargar());
        QTest::mouseClick(&estacion.control<QPushButton>("btnVerFormularioRS232"), Qt::LeftButton);
        auto* tramas = estacion.control<QWidget>("frmRS232").findChild<QPlainTextEdit*>(QStringLiteral("txtTramas"));
        dispositivo.enviar("240517123\t 240517456\t ");
        QTRY_COMPARE(tramas->toPlainText(), QStringLiteral("240517123\t\n 240517456\t\n"));
        estacion.control<QCheckBox>("chScript").setChecked(true);
        estacion.ventana->ejecutarScript();
        QCOMPARE(estacion.estacion->esclavos.valores(1)[3], 7456.0); // shifted by the blank before it
    }

    void validityIsReadFromTheFileForEveryReading() {
        PrincipalDePrueba estacion("Caracter_Fin_TRAMA_1=9\r\nCaracter_Fin_TRAMA_2=32\r\n" + sinPasadasPropias);
        const Dispositivo dispositivo(estacion.carpeta.ruta());
        escribirArchivo(estacion.carpeta.ruta() / "codigoTrelvano.txt", "mw.escribir 1, 4, VALIDEZ\r\n");
        QVERIFY(estacion.cargar());
        QTest::mouseClick(&estacion.control<QPushButton>("btnVerFormularioRS232"), Qt::LeftButton);
        auto* tramas = estacion.control<QWidget>("frmRS232").findChild<QPlainTextEdit*>(QStringLiteral("txtTramas"));
        estacion.control<QCheckBox>("chScript").setChecked(true);
        const auto validezDespuesDe = [&](const std::string& lectura) {
            dispositivo.enviar(lectura + "\t ");
            if (!QTest::qWaitFor([&] { return tramas->toPlainText().contains(QString::fromStdString(lectura)); },
                                 paciencia))
                qWarning("no reading");
            estacion.ventana->ejecutarScript();
            return estacion.estacion->esclavos.valores(1)[4];
        };
        QCOMPARE(validezDespuesDe("240517123"), 2.0);
        QCOMPARE(estacion.clave("RS232_Cant_Intervalos_Validez"), std::string("2"));
        estacion.config.escribirConfiguracion(claves::validez, "7,5");
        QCOMPARE(validezDespuesDe("240517456"), 7.5);
    }

    // The reading comes while a script waits in its box: it is interpreted at once, and its error is not the script's.
    void readingInsideABoxIsInterpretedAtOnceAndItsErrorColoursNoPass() {
        PrincipalDePrueba estacion(sinPasadasPropias);
        const Dispositivo dispositivo(estacion.carpeta.ruta());
        escribirArchivo(estacion.carpeta.ruta() / "codigoTrelvano.txt", "MsgBox \"a\"\r\nmw.escribir 1, 3, ID\r\n");
        QVERIFY(estacion.cargar());
        QTest::mouseClick(&estacion.control<QPushButton>("btnVerFormularioRS232"), Qt::LeftButton);
        auto& formulario = estacion.control<QWidget>("frmRS232");
        auto* tramas = formulario.findChild<QPlainTextEdit*>(QStringLiteral("txtTramas"));
        auto* rechazo = formulario.findChild<QLabel*>(QStringLiteral("lblRechazo"));
        auto& chScript = estacion.control<QCheckBox>("chScript");
        chScript.setChecked(true);

        bool buena = false;
        bool mala = false;
        QTimer reloj;
        connect(&reloj, &QTimer::timeout, &reloj, [&] {
            auto* caja = QApplication::activeModalWidget();
            if (caja == nullptr)
                return;
            reloj.stop();
            dispositivo.enviar("240517123\n\r");
            buena =
                QTest::qWaitFor([&] { return tramas->toPlainText().contains(QStringLiteral("240517123")); }, paciencia);
            dispositivo.enviar("no es una lectura\n\r");
            mala = QTest::qWaitFor([&] { return rechazo->text().contains(QStringLiteral("no es una lectura")); },
                                   paciencia);
            QTest::keyClick(caja, Qt::Key_Return);
        });
        reloj.start(5);
        estacion.ventana->ejecutarScript();
        QVERIFY(buena);
        QVERIFY(mala);
        QCOMPARE(chScript.palette().color(QPalette::Window), QColor(0, 255, 0));
        QCOMPARE(estacion.estacion->esclavos.valores(1)[3], 123.0);
    }

    void hiddenFormGoesOnReceiving() {
        PrincipalDePrueba estacion;
        const Dispositivo dispositivo(estacion.carpeta.ruta());
        QVERIFY(estacion.cargar());
        QTest::mouseClick(&estacion.control<QPushButton>("btnVerFormularioRS232"), Qt::LeftButton);
        auto& formulario = estacion.control<QWidget>("frmRS232");
        QTest::mouseClick(formulario.findChild<QPushButton*>(QStringLiteral("BtnOcultar")), Qt::LeftButton);
        QVERIFY(!formulario.isVisible());
        dispositivo.enviar("240517123\n\r");
        QTest::mouseClick(&estacion.control<QPushButton>("btnVerFormularioRS232"), Qt::LeftButton);
        auto* tramas = formulario.findChild<QPlainTextEdit*>(QStringLiteral("txtTramas"));
        QTRY_VERIFY(tramas->toPlainText().contains(QStringLiteral("240517123")));
    }
};

QTEST_MAIN(EnlaceSerieTest)
#include "EnlaceSerieTest.moc"
