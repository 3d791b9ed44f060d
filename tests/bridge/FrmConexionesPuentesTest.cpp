#include "bridge/FrmConexionesPuentes.h"

#include "VentanaFalsa.h"
#include "platform/window/EventosQt.h"
#include "platform/window/VistaTexto.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSocketNotifier>
#include <QTest>
#include <QTreeWidget>

#include <memory>

namespace {

// The window over a reactor that runs in Qt's event loop, as in the program.
struct Puesto {
    Puesto() {
        QObject::connect(&avisador, &QSocketNotifier::activated, &avisador, [this] { reactor.turn(); });
        ventana->show();
    }

    template <typename Control>
    Control& control(const char* nombre) const {
        auto* hallado = ventana->findChild<Control*>(QLatin1String(nombre));
        if (hallado == nullptr)
            qFatal("no control %s", nombre);
        return *hallado;
    }
    void clic(const char* boton) const { QTest::mouseClick(&control<QPushButton>(boton), Qt::LeftButton); }
    void marcar(const char* casilla) const {
        auto& control_ = control<QCheckBox>(casilla);
        QTest::mouseClick(&control_, Qt::LeftButton, {}, QPoint(8, control_.height() / 2));
    }
    // One tick of the timer, without waiting for it.
    void tic() const { Q_EMIT control<QTimer>("timerVerificarEstado").timeout({}); }
    QTreeWidgetItem& nodo(int puerto) const {
        return *control<QTreeWidget>("TreeView1").topLevelItem(0)->child(0)->child(puerto);
    }
    QColor color(int puerto) const { return nodo(puerto).foreground(0).color(); }
    QString texto(const char* monitor) const { return control<VistaTexto>(monitor).texto(); }
    WinsockState estado(Lado lado) const { return puente.estado(lado); }

    std::unique_ptr<Peer> conectar(Lado lado) const {
        auto cliente = std::make_unique<Peer>(static_cast<std::uint16_t>(puente.puerto(lado)));
        if (!QTest::qWaitFor([&] { return estado(lado) == WinsockState::connected; }, paciencia))
            qWarning("the bridge did not accept");
        return cliente;
    }

    Reactor reactor;
    QSocketNotifier avisador{reactor.descriptor(), QSocketNotifier::Read};
    EventosQt eventos;
    QWidget principal;
    Puente puente{reactor, eventos, static_cast<double>(puertoLibre()), static_cast<double>(puertoLibre())};
    std::unique_ptr<FrmConexionesPuentes> ventana = std::make_unique<FrmConexionesPuentes>(principal, puente);
};

QByteArray recibido(const Peer& cliente, int cuantos) {
    QByteArray todo;
    [[maybe_unused]] const bool llego = QTest::qWaitFor(
        [&] {
            todo += QByteArray::fromStdString(cliente.receive());
            return todo.size() >= cuantos;
        },
        paciencia);
    return todo;
}

} // namespace

class TestFrmConexionesPuentes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void windowIsNotShownByLoadingIt() {
        Reactor reactor;
        EventosQt eventos;
        Puente puente(reactor, eventos);
        QWidget principal;
        const FrmConexionesPuentes ventana(principal, puente);
        QVERIFY(!ventana.isVisible());
        QCOMPARE(ventana.windowTitle(), QStringLiteral("Conexion Puente"));
        QCOMPARE(ventana.objectName(), QStringLiteral("FrmConexionesPuentes"));
        QCOMPARE(puente.puerto(Lado::uno), 500.0);
        QCOMPARE(puente.puerto(Lado::dos), 501.0);
    }

    void windowTakesTheIconOfTheMainWindow() {
        Reactor reactor;
        EventosQt eventos;
        QWidget principal;
        QPixmap dibujo(16, 16);
        dibujo.fill(Qt::red);
        principal.setWindowIcon(dibujo);
        Puente puente(reactor, eventos);
        const FrmConexionesPuentes ventana(principal, puente);
        QCOMPARE(ventana.windowIcon().cacheKey(), principal.windowIcon().cacheKey());
    }

    void treeHoldsTheConnectionAndItsPortsExpanded() {
        Reactor reactor;
        EventosQt eventos;
        Puente puente(reactor, eventos);
        QWidget principal;
        const FrmConexionesPuentes ventana(principal, puente);
        const auto* arbol = ventana.findChild<QTreeWidget*>(QStringLiteral("TreeView1"));
        QCOMPARE(arbol->topLevelItemCount(), 1);
        const QTreeWidgetItem* raiz = arbol->topLevelItem(0);
        QCOMPARE(raiz->text(0), QStringLiteral("CONEXIONES"));
        QCOMPARE(raiz->data(0, Qt::UserRole).toString(), QStringLiteral("N"));
        const QTreeWidgetItem* conexion = raiz->child(0);
        QCOMPARE(conexion->text(0), QStringLiteral("1"));
        QCOMPARE(conexion->data(0, Qt::UserRole).toString(), QStringLiteral("N1"));
        QCOMPARE(conexion->childCount(), 2);
        QCOMPARE(conexion->child(0)->text(0), QStringLiteral("500"));
        QCOMPARE(conexion->child(0)->data(0, Qt::UserRole).toString(), QStringLiteral("N.1.1"));
        QCOMPARE(conexion->child(1)->text(0), QStringLiteral("501"));
        QCOMPARE(conexion->child(1)->data(0, Qt::UserRole).toString(), QStringLiteral("N.1.2"));
        QVERIFY(raiz->isExpanded() && conexion->isExpanded());
    }

    void controlsBearTheirNamesAndCaptions() {
        Puesto p;
        QCOMPARE(p.control<QCheckBox>("chEcho").text(), QStringLiteral("Echo"));
        QCOMPARE(p.control<QCheckBox>("chModbus").text(), QStringLiteral("modbus"));
        QCOMPARE(p.control<QCheckBox>("chStop").text(), QStringLiteral("stop"));
        QCOMPARE(p.control<QPushButton>("Command1").text(), QStringLiteral("borrar"));
        QCOMPARE(p.control<QPushButton>("Command2").text(), QStringLiteral("ocultar"));
        for (const char* monitor : {"txtTramas(0)", "txtTramas2(0)"}) {
            QVERIFY(p.control<QPlainTextEdit>(monitor).isReadOnly());
            QVERIFY(!p.control<QPlainTextEdit>(monitor).accessibleName().isEmpty());
        }
        for (const char* casilla : {"chEcho", "chModbus", "chStop"})
            QVERIFY(!p.control<QCheckBox>(casilla).isChecked());
    }

    void timerTicksEverySecondFromTheStart() {
        Puesto p;
        const auto& reloj = p.control<QTimer>("timerVerificarEstado");
        QCOMPARE(reloj.interval(), 1000);
        QVERIFY(reloj.isActive());
    }

    void coloursFollowTheStatesTickByTick() {
        Puesto p;
        p.tic();
        QCOMPARE(p.color(0), QColor(255, 0, 0));
        QCOMPARE(p.color(1), QColor(255, 0, 0));
        QVERIFY(p.nodo(0).font(0).bold() && p.nodo(1).font(0).bold());
        p.tic();
        QCOMPARE(p.color(0), QColor(0, 0, 128));
        auto cliente = p.conectar(Lado::uno);
        p.tic();
        QCOMPARE(p.color(0), QColor(0, 128, 0));
        QCOMPARE(p.nodo(0).text(1), QStringLiteral("Conectado")); // not by its colour alone
        QCOMPARE(p.color(1), QColor(0, 0, 128));
        cliente.reset();
        QTRY_COMPARE(p.estado(Lado::uno), WinsockState::closing);
        p.tic();
        QCOMPARE(p.color(0), QColor(255, 0, 0));
        p.tic();
        QCOMPARE(p.color(0), QColor(0, 0, 128));
    }

    void portsCanBeReadOnADarkTheme() {
        const QPalette claro = QApplication::palette();
        QApplication::setPalette(QPalette(QColor(40, 40, 40)));
        {
            Puesto p;
            p.tic();
            p.tic();
            QCOMPARE(p.color(0), QColor(0, 0, 128));
            QVERIFY(p.nodo(0).background(0).color().lightness() > 200);
        }
        QApplication::setPalette(claro);
        Puesto p;
        p.tic();
        QCOMPARE(p.nodo(0).background(0).style(), Qt::NoBrush);
    }

    void portListensAgainAtTheTickAfterItsClientHasLeft() {
        Puesto p;
        p.tic();
        p.conectar(Lado::uno).reset();
        QTRY_COMPARE(p.estado(Lado::uno), WinsockState::closing);
        p.tic();
        QCOMPARE(p.estado(Lado::uno), WinsockState::listening);
    }

    void timerTicksByItself() {
        Puesto p;
        QTRY_COMPARE(p.estado(Lado::uno), WinsockState::listening);
    }

    void bytesAreShownAsCharactersOfTheCodePage() {
        Puesto p;
        p.tic();
        const auto c1 = p.conectar(Lado::uno);
        c1->send("AB\rC\x80\xF1");
        QTRY_COMPARE(p.texto("txtTramas(0)"), QStringLiteral("AB\nC€ñ"));
        QCOMPARE(p.texto("txtTramas2(0)"), QString());
    }

    void modbusBoxShowsOneBlockALine() {
        Puesto p;
        p.tic();
        const auto c2 = p.conectar(Lado::dos);
        p.marcar("chModbus");
        QVERIFY(p.control<QCheckBox>("chModbus").isChecked());
        c2->send(std::string_view("\x00\x01\xFF", 3));
        QTRY_COMPARE(p.texto("txtTramas2(0)"), QStringLiteral("[0][1][FF]\n"));
        c2->send("A");
        QTRY_COMPARE(p.texto("txtTramas2(0)"), QStringLiteral("[0][1][FF]\n[41]\n"));
    }

    void echoBoxSendsBackAndStopBoxFreezesTheMonitor() {
        Puesto p;
        p.tic();
        const auto c1 = p.conectar(Lado::uno);
        p.marcar("chEcho");
        p.marcar("chStop");
        c1->send("eco");
        QCOMPARE(recibido(*c1, 3), QByteArray("eco"));
        QCOMPARE(p.texto("txtTramas(0)"), QString());
        p.marcar("chStop");
        c1->send("visto");
        QTRY_COMPARE(p.texto("txtTramas(0)"), QStringLiteral("visto"));
    }

    void borrarEmptiesBothMonitors() {
        Puesto p;
        p.tic();
        const auto c1 = p.conectar(Lado::uno);
        const auto c2 = p.conectar(Lado::dos);
        c1->send("uno");
        c2->send("dos");
        QTRY_COMPARE(p.texto("txtTramas(0)") + p.texto("txtTramas2(0)"), QStringLiteral("unodos"));
        p.clic("Command1");
        QCOMPARE(p.texto("txtTramas(0)") + p.texto("txtTramas2(0)"), QString());
    }

    void ocultarHidesTheWindowAndTheBridgeGoesOn() {
        Puesto p;
        p.tic();
        const auto c1 = p.conectar(Lado::uno);
        const auto c2 = p.conectar(Lado::dos);
        p.clic("Command2");
        QVERIFY(!p.ventana->isVisible());
        c1->send("sigue");
        QCOMPARE(recibido(*c2, 5), QByteArray("sigue"));
        QCOMPARE(p.texto("txtTramas(0)"), QStringLiteral("sigue"));
    }

    void closeBoxHidesItAsOcultarDoes() {
        Puesto p;
        p.tic();
        const auto c1 = p.conectar(Lado::uno);
        p.ventana->close();
        QVERIFY(!p.ventana->isVisible());
        QCOMPARE(p.estado(Lado::uno), WinsockState::connected);
    }

    void refusedPortStaysRedWithoutAMessageAndSaysWhy() {
        Reactor reactor;
        WinsockEvents nadie;
        Winsock ocupante(reactor, nadie);
        QVERIFY(!ocupante.Listen());
        EventosQt eventos;
        Puente puente(reactor, eventos, ocupante.LocalPort(), puertoLibre());
        QWidget principal;
        FrmConexionesPuentes ventana(principal, puente);
        ventana.show();
        auto* reloj = ventana.findChild<QTimer*>(QStringLiteral("timerVerificarEstado"));
        for (int vez = 0; vez < 3; ++vez)
            Q_EMIT reloj->timeout({});
        const auto* puertos = ventana.findChild<QTreeWidget*>()->topLevelItem(0)->child(0);
        const auto* motivos = ventana.findChild<QLabel*>(QStringLiteral("lblMotivos"));
        const QString motivo =
            QStringLiteral(
                "No se puede abrir el puerto %1: ya está ocupado por otro programa o por el puerto de la estación")
                .arg(ocupante.LocalPort());
        QCOMPARE(puertos->child(0)->foreground(0).color(), QColor(255, 0, 0));
        QCOMPARE(puertos->child(0)->toolTip(0), motivo);
        QCOMPARE(puertos->child(1)->toolTip(0), QStringLiteral("Espera a un cliente"));
        QVERIFY(motivos->isVisible());
        QCOMPARE(motivos->text(), motivo);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        ocupante.Close();
        Q_EMIT reloj->timeout({});
        Q_EMIT reloj->timeout({});
        QCOMPARE(puertos->child(0)->foreground(0).color(), QColor(0, 0, 128));
        QCOMPARE(puertos->child(0)->toolTip(0), QStringLiteral("Espera a un cliente"));
        QVERIFY(!motivos->isVisible());
    }

    void bridgeGoesOnWithoutItsWindow() {
        Puesto p;
        p.tic();
        const auto c1 = p.conectar(Lado::uno);
        const auto c2 = p.conectar(Lado::dos);
        p.ventana.reset();
        c1->send("sigue");
        QCOMPARE(recibido(*c2, 5), QByteArray("sigue"));
        p.puente.verificarEstado();
        QCOMPARE(p.estado(Lado::uno), WinsockState::connected);
    }

    void spaceTogglesABoxAndTabWalksThroughTheControls() {
        Puesto p;
        auto& echo = p.control<QCheckBox>("chEcho");
        p.ventana->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(p.ventana.get(), paciencia));
        echo.setFocus();
        QTest::keyClick(&echo, Qt::Key_Space);
        QVERIFY(echo.isChecked());
        QStringList recorrido;
        p.control<QTreeWidget>("TreeView1").setFocus();
        for (int paso = 0; paso < 8; ++paso) {
            recorrido += QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(recorrido,
                 QStringList({QStringLiteral("TreeView1"), QStringLiteral("txtTramas(0)"),
                              QStringLiteral("txtTramas2(0)"), QStringLiteral("chEcho"), QStringLiteral("chModbus"),
                              QStringLiteral("chStop"), QStringLiteral("Command1"), QStringLiteral("Command2")}));
    }

    // A flood with the display on: the window answers all the while, and the text is whole and in order.
    void monitorsShowEverythingOfAFlood() {
        Puesto p;
        p.tic();
        const auto c1 = p.conectar(Lado::uno);
        std::string bloque;
        for (int linea = 0; bloque.size() < 60'000; ++linea)
            bloque += "linea " + std::to_string(linea) + "\r";
        qsizetype esperado = 0;
        std::size_t enviados = bloque.size();
        int bloques = 0;
        QVERIFY(QTest::qWaitFor(
            [&] {
                if (enviados == bloque.size() && bloques < 50) {
                    enviados = 0;
                    ++bloques;
                    esperado += static_cast<qsizetype>(bloque.size());
                }
                enviados += c1->sendSome(bytesOf(std::string_view(bloque).substr(enviados)));
                return bloques == 50 && enviados == bloque.size();
            },
            30000));
        QTRY_COMPARE_WITH_TIMEOUT(p.texto("txtTramas(0)").size(), esperado, 30000);
        QCOMPARE(p.texto("txtTramas(0)"), QString::fromStdString(bloque).replace(u'\r', u'\n').repeated(bloques));
        QTRY_VERIFY_WITH_TIMEOUT(p.control<VistaTexto>("txtTramas(0)").alDia(), 30000);
    }
};

QTEST_MAIN(TestFrmConexionesPuentes)
#include "FrmConexionesPuentesTest.moc"
