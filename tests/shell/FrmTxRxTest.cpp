// The TX/RX window: hexadecimal, filters, search under full load, and the traffic as a file that tshark reads.

#include "CajaDeMensaje.h"
#include "PrincipalDePrueba.h"
#include "TiempoDeProcesador.h"
#include "platform/window/BarraBusqueda.h"
#include "platform/window/VistaTexto.h"

#include <QCheckBox>
#include <QDateTime>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolButton>

#include <arpa/inet.h>
#include <atomic>
#include <netinet/in.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace {

// A master that asks as fast as it is answered, in a thread of its own: reads of slave 1, every tenth a write to 3.
class MaestroApresurado {
public:
    explicit MaestroApresurado(std::uint16_t puerto) : hilo_([this, puerto] { correr(puerto); }) {}
    ~MaestroApresurado() {
        basta_ = true;
        hilo_.join();
    }
    std::atomic<int> hechas = 0;

private:
    void correr(std::uint16_t puerto) {
        const int conexion = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in lugar{};
        lugar.sin_family = AF_INET;
        lugar.sin_port = htons(puerto);
        lugar.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        const timeval espera{5, 0};
        setsockopt(conexion, SOL_SOCKET, SO_RCVTIMEO, &espera, sizeof espera);
        if (connect(conexion, reinterpret_cast<const sockaddr*>(&lugar), sizeof lugar) == 0)
            while (!basta_ && pedir(conexion, hechas % 10 == 9))
                ++hechas;
        close(conexion);
    }
    static bool pedir(int conexion, bool escribir) {
        const unsigned char lectura[12] = {0, 1, 0, 0, 0, 6, 1, 3, 0, 0, 0, 10};
        const unsigned char escritura[12] = {0, 1, 0, 0, 0, 6, 3, 6, 0, 4, 4, 210};
        unsigned char respuesta[29];
        const ssize_t largo = escribir ? 12 : 29;
        return send(conexion, escribir ? escritura : lectura, 12, MSG_NOSIGNAL) == 12 &&
               recv(conexion, respuesta, static_cast<std::size_t>(largo), MSG_WAITALL) == largo;
    }

    std::atomic<bool> basta_ = false;
    std::thread hilo_;
};

} // namespace

class TestFrmTxRx : public QObject {
    Q_OBJECT

    std::unique_ptr<PrincipalDePrueba> p_;

    QWidget& txrx() const { return p_->control<QWidget>("FrmTxRx"); }
    template <typename Control>
    Control& control(const char* nombre) const {
        return *txrx().findChild<Control*>(QLatin1String(nombre));
    }
    QString texto() const {
        control<VistaTexto>("Text1").ponerAlDia();
        return control<VistaTexto>("Text1").texto();
    }
    QStringList lineas() const { return texto().split(u'\n', Qt::SkipEmptyParts); }

    // Three requests of two masters: a read of slave 2, a write to 3, a function not served of 4.
    void pedirDeTodo(const Peer& maestro) const {
        QCOMPARE(PrincipalDePrueba::pedir(maestro, PrincipalDePrueba::lectura(2), 13).size(), 13);
        QCOMPARE(PrincipalDePrueba::pedir(maestro, PrincipalDePrueba::escritura(3, 4, 42), 12).size(), 12);
        QByteArray otra = PrincipalDePrueba::lectura(4);
        otra[7] = 16;
        QCOMPARE(PrincipalDePrueba::pedir(maestro, otra, 9).size(), 9);
    }

    // "Guardar tráfico…" into a file of that folder.
    QString guardar(const QTemporaryDir& carpeta) const {
        QTest::mouseClick(&control<QPushButton>("btnGuardarTrafico"), Qt::LeftButton);
        auto* dialogo = txrx().findChild<QFileDialog*>();
        if (dialogo == nullptr)
            return {};
        const QString archivo = carpeta.filePath(QStringLiteral("modbus.pcap"));
        dialogo->findChild<QLineEdit*>()->setText(archivo);
        QMetaObject::invokeMethod(dialogo, "accept");
        return archivo;
    }

    // The fields of each packet as tshark tells them, a line a packet; checksums and sequence numbers checked.
    QStringList tshark(const QString& archivo, const QStringList& campos) const {
        QStringList argumentos{"-r", archivo,
                               "-d", QStringLiteral("tcp.port==%1,mbtcp").arg(p_->puerto),
                               "-o", "tcp.check_checksum:TRUE",
                               "-o", "ip.check_checksum:TRUE",
                               "-T", "fields",
                               "-E", "separator=;"};
        for (const QString& campo : campos)
            argumentos << "-e" << campo;
        QProcess programa;
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        entorno.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
        programa.setProcessEnvironment(entorno);
        programa.start(QStringLiteral("tshark"), argumentos);
        if (!programa.waitForFinished(60000) || programa.exitCode() != 0)
            qWarning("tshark: %s", programa.readAllStandardError().constData());
        return QString::fromUtf8(programa.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    }

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<PrincipalDePrueba>();
        QVERIFY(p_->cargar());
        p_->control<QCheckBox>("ChRxTx").click();
    }
    void cleanup() { p_.reset(); }

    void showsEverythingAsItIsAtFirst() {
        const auto maestro = p_->conectarMaestro();
        pedirDeTodo(*maestro);
        QTRY_COMPARE(lineas().size(), 6);
        QVERIFY(lineas()[0].endsWith(QLatin1String(" ( <-RX- Lectura ) 0 1 0 0 0 6 2 3 0 0 0 2")));
    }

    void theMonitorsKeysWorkWhereverTheFocusIs() {
        QTest::keyClick(&control<QCheckBox>("chHexadecimal"), Qt::Key_P, Qt::ControlModifier);
        QVERIFY(control<VistaTexto>("Text1").pausada());
        QTest::keyClick(&control<QPushButton>("btnGuardarTrafico"), Qt::Key_P, Qt::ControlModifier);
        QVERIFY(!control<VistaTexto>("Text1").pausada());
        QTest::keyClick(&control<QCheckBox>("chOtras"), Qt::Key_F, Qt::ControlModifier);
        auto* const barra = control<VistaTexto>("Text1").findChild<BarraBusqueda*>();
        QVERIFY(barra != nullptr && barra->isVisible());
    }

    void showsBytesInHexadecimalAndBack() {
        const auto maestro = p_->conectarMaestro();
        pedirDeTodo(*maestro);
        QTRY_COMPARE(lineas().size(), 6);
        const QString antes = texto();
        control<QCheckBox>("chHexadecimal").click();
        QVERIFY(lineas()[2].endsWith(QLatin1String("00 01 00 00 00 06 03 06 00 04 00 2A")));
        pedirDeTodo(*maestro);
        QTRY_COMPARE(lineas().size(), 12);
        QVERIFY(lineas()[8].endsWith(QLatin1String("00 01 00 00 00 06 03 06 00 04 00 2A")));
        control<QCheckBox>("chHexadecimal").click();
        QVERIFY(texto().startsWith(antes));
    }

    void filtersByKind_data() {
        QTest::addColumn<QString>("casilla");
        QTest::addColumn<QString>("falta");
        QTest::newRow("reads") << "chLecturas"
                               << "Lectura )";
        QTest::newRow("writes") << "chEscrituras"
                                << "Escritura";
        QTest::newRow("others") << "chOtras"
                                << "RESPUESTA";
    }
    void filtersByKind() {
        QFETCH(QString, casilla);
        QFETCH(QString, falta);
        const auto maestro = p_->conectarMaestro();
        pedirDeTodo(*maestro);
        QTRY_COMPARE(lineas().size(), 6);
        QVERIFY(texto().contains(falta));
        control<QCheckBox>(casilla.toLatin1().constData()).click();
        QCOMPARE(lineas().size(), 4);
        QVERIFY(!texto().contains(falta));
    }

    // The answer to a write bears unit 1, that of an exception 0: they go with their requests.
    void filtersBySlaveWithTheAnswers() {
        const auto maestro = p_->conectarMaestro();
        pedirDeTodo(*maestro);
        QTRY_COMPARE(lineas().size(), 6);
        auto& esclavos = control<QLineEdit>("txtEsclavos");
        esclavos.setText(QStringLiteral("3"));
        QCOMPARE(lineas().size(), 2);
        QVERIFY(lineas()[1].contains(QLatin1String("-TX-> Escrituras")));
        esclavos.setText(QStringLiteral("2,4"));
        QCOMPARE(lineas().size(), 4);
        esclavos.setText(QStringLiteral("2,4-"));
        QVERIFY(control<QLabel>("lblFiltro").isVisible());
        QCOMPARE(lineas().size(), 4); // as it was
        esclavos.clear();
        QVERIFY(!control<QLabel>("lblFiltro").isVisible());
        QCOMPARE(lineas().size(), 6);
    }

    void filterAndSearchWorkAtFullLoad() {
        const MaestroApresurado maestro(p_->puerto);
        QTRY_VERIFY(maestro.hechas > 500);
        txrx().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&txrx(), paciencia));
        auto& vista = control<VistaTexto>("Text1");
        auto& esclavos = control<QLineEdit>("txtEsclavos");
        esclavos.setFocus();
        std::int64_t peor = 0;
        for (const char tecla : {'3', ',', ' ', '9'}) {
            const std::int64_t antes = msDeProcesador();
            QTest::keyClick(&esclavos, tecla);
            QCoreApplication::processEvents();
            peor = std::max(peor, msDeProcesador() - antes);
        }
        qInfo("the slowest key took %lld ms of processor time at full load", static_cast<long long>(peor));
        QVERIFY(peor < 1000);
        const int antes = maestro.hechas;
        QTRY_VERIFY(maestro.hechas > antes + 500);
        QTRY_VERIFY(vista.texto().contains(QLatin1String("Escritura")));
        for (const QString& linea : vista.texto().split(u'\n', Qt::SkipEmptyParts))
            QVERIFY2(linea.contains(QLatin1String("Escritura")), qPrintable(linea));
        vista.setFocus();
        QTest::keyClick(&vista, Qt::Key_F, Qt::ControlModifier);
        auto& patron = control<QLineEdit>("txtBuscar");
        QTest::keyClicks(&patron, QStringLiteral("-tx-> escrituras"));
        QTest::keyClick(&patron, Qt::Key_Return);
        QTRY_COMPARE(vista.seleccion(), QStringLiteral("-TX-> Escrituras"));
        const int luego = maestro.hechas;
        QTRY_VERIFY(maestro.hechas > luego + 500);
        QCOMPARE(vista.seleccion(), QStringLiteral("-TX-> Escrituras")); // it survives what comes
    }

    void savesTheTrafficAsACaptureThatTsharkReads() {
        const auto maestro = p_->conectarMaestro();
        const auto segundo = p_->conectarMaestro();
        const auto antes = QDateTime::currentMSecsSinceEpoch();
        pedirDeTodo(*maestro);
        pedirDeTodo(*segundo);
        const QTemporaryDir carpeta;
        const QString archivo = guardar(carpeta);
        QTRY_VERIFY(QFile::exists(archivo));
        const QStringList paquetes =
            tshark(archivo, {"ip.src", "tcp.srcport", "tcp.dstport", "tcp.seq", "tcp.ack", "mbtcp.trans_id",
                             "mbtcp.unit_id", "modbus.func_code", "tcp.checksum.status", "ip.checksum.status",
                             "tcp.analysis.flags", "_ws.malformed"});
        QCOMPARE(paquetes.size(), 12);
        const QString m = QString::number(maestro->localPort());
        const QString e = QString::number(p_->puerto);
        const QStringList esperados{
            "127.0.0.1;" + m + ";" + e + ";1;1;1;2;3;1;1;;", "127.0.0.1;" + e + ";" + m + ";1;13;1;2;3;1;1;;",
            "127.0.0.1;" + m + ";" + e + ";13;14;1;3;6;1;1;;", "127.0.0.1;" + e + ";" + m + ";14;25;1;1;6;1;1;;",
            "127.0.0.1;" + m + ";" + e + ";25;26;1;4;16;1;1;;"};
        for (int i = 0; i < esperados.size(); ++i)
            QCOMPARE(paquetes[i], esperados[i]);
        QVERIFY(paquetes[6].startsWith("127.0.0.1;" + QString::number(segundo->localPort()) + ";" + e + ";1;1;"));
        for (const QString& hora : tshark(archivo, {"frame.time_epoch"})) {
            const qint64 cuando = static_cast<qint64>(hora.toDouble() * 1000);
            QVERIFY2(cuando >= antes - 1 && cuando <= QDateTime::currentMSecsSinceEpoch() + 1, qPrintable(hora));
        }
    }

    void savesTheTrafficOfAnIPv6MasterToo() {
        const int conexion = socket(AF_INET6, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in6 lugar{};
        lugar.sin6_family = AF_INET6;
        lugar.sin6_port = htons(p_->puerto);
        lugar.sin6_addr = in6addr_loopback;
        if (conexion < 0 || ::connect(conexion, reinterpret_cast<const sockaddr*>(&lugar), sizeof lugar) != 0) {
            close(conexion);
            QSKIP("no IPv6 on this machine");
        }
        const QByteArray pedido = PrincipalDePrueba::lectura(2);
        QCOMPARE(send(conexion, pedido.constData(), static_cast<std::size_t>(pedido.size()), MSG_NOSIGNAL),
                 static_cast<ssize_t>(pedido.size()));
        QTRY_COMPARE(lineas().size(), 2);
        close(conexion);
        const QTemporaryDir carpeta;
        const QString archivo = guardar(carpeta);
        QTRY_VERIFY(QFile::exists(archivo));
        const QStringList paquetes =
            tshark(archivo, {"ipv6.src", "ipv6.dst", "modbus.func_code", "tcp.checksum.status", "tcp.analysis.flags"});
        QCOMPARE(paquetes, QStringList({"::1;::1;3;1;", "::1;::1;3;1;"}));
    }

    void withoutTrafficItSaysSo() {
        CajaDeMensaje caja;
        QTest::mouseClick(&control<QPushButton>("btnGuardarTrafico"), Qt::LeftButton);
        QTRY_COMPARE(caja.vistas, 1);
    }
};

QTEST_MAIN(TestFrmTxRx)
#include "FrmTxRxTest.moc"
