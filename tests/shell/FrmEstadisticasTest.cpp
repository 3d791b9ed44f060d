// The statistics window: real masters and slaves in its tables, copied as text, set to zero, at rest when closed.

#include "shell/FrmEstadisticas.h"

#include "PrincipalDePrueba.h"
#include "RelojDePrueba.h"

#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTreeWidget>

using namespace std::chrono_literals;

namespace {

class EstacionConEstadisticas : public PrincipalDePrueba {
public:
    explicit EstacionConEstadisticas(const Reloj& reloj) : PrincipalDePrueba("", {}, reloj) {
        if (!cargar())
            qFatal("no start");
    }

    FrmEstadisticas& abrir() const {
        ventana->activateWindow();
        if (!QTest::qWaitForWindowActive(ventana.get(), paciencia))
            qFatal("the window cannot be activated");
        QTest::keyClick(ventana.get(), Qt::Key_I, Qt::ControlModifier);
        auto* hallada = ventana->findChild<FrmEstadisticas*>();
        if (hallada == nullptr)
            qFatal("Ctrl+I opens nothing");
        return *hallada;
    }
    QStringList fila(const char* lista, int numero) const {
        const auto& tabla = control<QTreeWidget>(lista);
        QStringList celdas;
        if (const QTreeWidgetItem* const fila = tabla.topLevelItem(numero))
            for (int columna = 0; columna < tabla.columnCount(); ++columna)
                celdas << fila->text(columna);
        return celdas;
    }
    int filas(const char* lista) const { return control<QTreeWidget>(lista).topLevelItemCount(); }
};

} // namespace

class TestFrmEstadisticas : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        reloj_ = {};
        p_ = std::make_unique<EstacionConEstadisticas>(reloj_);
        maestro_ = p_->conectarMaestro();
    }
    void cleanup() {
        maestro_.reset();
        p_.reset();
    }

    void showsEachMasterAndEachSlaveThatWasAsked() {
        leer(3);
        leer(3);
        reloj_.pasar(65s);
        QCOMPARE(PrincipalDePrueba::pedir(*maestro_, PrincipalDePrueba::escritura(7, 0, 1), 12).size(), 12);
        reloj_.pasar(10min);
        p_->abrir();
        QCOMPARE(p_->filas("listaMaestros"), 1);
        const QStringList maestro = p_->fila("listaMaestros", 0);
        QCOMPARE(maestro[0], QStringLiteral("127.0.0.1"));
        QCOMPARE(maestro[1], QString::number(maestro_->localPort()));
        QCOMPARE(maestro[2], QStringLiteral("15/01/2026 12:34:56"));
        QCOMPARE(maestro[3], QStringLiteral("3"));
        QCOMPARE(maestro[4], QStringLiteral("12:36:01"));
        QCOMPARE(p_->filas("listaEsclavos"), 3);
        QCOMPARE(p_->fila("listaEsclavos", 0), QStringList({"#3", "2", "0", "0", "0"}));
        QCOMPARE(p_->fila("listaEsclavos", 1), QStringList({"#7", "0", "1", "0", "0"}));
        QCOMPARE(p_->fila("listaEsclavos", 2), QStringList({"Todos", "2", "1", "0", "0"}));
    }

    void followsWhileItIsOpen() {
        p_->abrir();
        QCOMPARE(p_->fila("listaEsclavos", 0), QStringList({"Todos", "0", "0", "0", "0"}));
        leer(1);
        QVERIFY(
            QTest::qWaitFor([&] { return p_->fila("listaEsclavos", 0).value(1) == QStringLiteral("1"); }, paciencia));
        const auto otro = p_->conectarMaestro();
        QVERIFY(QTest::qWaitFor([&] { return p_->filas("listaMaestros") == 2; }, paciencia));
        QCOMPARE(p_->fila("listaMaestros", 1)[4], QString()); // it has asked for nothing yet
        maestro_->close();
        QVERIFY(QTest::qWaitFor([&] { return p_->filas("listaMaestros") == 1; }, paciencia));
        QCOMPARE(p_->fila("listaMaestros", 0)[1], QString::number(otro->localPort()));
    }

    void copiesBothTablesAsTabSeparatedText() {
        leer(3);
        FrmEstadisticas& ventana = p_->abrir();
        QTest::mouseClick(&p_->control<QPushButton>("BtnCopiar"), Qt::LeftButton);
        const QString texto = QGuiApplication::clipboard()->text();
        QCOMPARE(texto, ventana.texto());
        const QStringList lineas = texto.split(u'\n');
        QCOMPARE(lineas[0], QStringLiteral("Maestros"));
        QCOMPARE(lineas[1], QStringLiteral("IP\tPuerto\tConectado desde\tPeticiones\tÚltima petición"));
        QVERIFY(lineas[2].startsWith(QStringLiteral("127.0.0.1\t%1\t").arg(maestro_->localPort())));
        QCOMPARE(lineas.mid(4).join(u'\n'),
                 QStringLiteral("Esclavos\nEsclavo\tLecturas\tEscrituras\tExcepciones\tSin respuesta\n"
                                "#3\t1\t0\t0\t0\nTodos\t1\t0\t0\t0\n"));
    }

    void setToZeroEverythingCountsAnew() {
        leer(3);
        p_->abrir();
        QTest::mouseClick(&p_->control<QPushButton>("BtnPonerACero"), Qt::LeftButton);
        QCOMPARE(p_->filas("listaEsclavos"), 1);
        QCOMPARE(p_->fila("listaEsclavos", 0), QStringList({"Todos", "0", "0", "0", "0"}));
        QCOMPARE(p_->fila("listaMaestros", 0)[3], QStringLiteral("0"));
        QVERIFY(QTest::qWaitFor(
            [&] { return p_->control<QLabel>("lblLecturas").text() == QStringLiteral("Lecturas: 0"); }, paciencia));
        leer(3);
        QVERIFY(QTest::qWaitFor([&] { return p_->fila("listaMaestros", 0)[3] == QStringLiteral("1"); }, paciencia));
    }

    void closedItRestsAndOpensAgain() {
        FrmEstadisticas& ventana = p_->abrir();
        const auto& reloj = p_->control<QTimer>("relojEstadisticas");
        QVERIFY(reloj.isActive());
        QCOMPARE(reloj.interval(), 500);
        QVERIFY(QTest::qWaitForWindowActive(&ventana, paciencia));
        QTest::keyClick(&ventana, Qt::Key_Escape);
        QVERIFY(!ventana.isVisible());
        QVERIFY(!reloj.isActive());
        QCOMPARE(&p_->abrir(), &ventana);
        QVERIFY(ventana.isVisible() && reloj.isActive());
        QVERIFY(!ventana.isModal());
        QTest::mouseClick(&p_->control<QPushButton>("BtnSalir"), Qt::LeftButton);
        QVERIFY(!ventana.isVisible());
    }

    void theMenuOpensItToo() {
        auto* menu = p_->ventana->findChild<QMenuBar*>(QStringLiteral("menuPrincipal"));
        QVERIFY(menu != nullptr);
        QAction* ver = nullptr;
        for (QAction* uno : menu->actions())
            if (uno->text() == QStringLiteral("&Ver"))
                ver = uno;
        QVERIFY(ver != nullptr);
        p_->ventana->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(p_->ventana.get(), paciencia));
        QTest::keyClick(p_->ventana.get(), Qt::Key_V, Qt::AltModifier);
        QVERIFY(QTest::qWaitFor([&] { return ver->menu()->isVisible(); }, paciencia));
        QTest::keyClick(ver->menu(), Qt::Key_E);
        auto* hallada = p_->ventana->findChild<FrmEstadisticas*>();
        QVERIFY(hallada != nullptr && hallada->isVisible());
    }

private:
    void leer(char esclavo) {
        QCOMPARE(PrincipalDePrueba::pedir(*maestro_, PrincipalDePrueba::lectura(esclavo), 13).size(), 13);
    }

    RelojDePrueba reloj_;
    std::unique_ptr<EstacionConEstadisticas> p_;
    std::unique_ptr<Peer> maestro_;
};

QTEST_MAIN(TestFrmEstadisticas)
#include "FrmEstadisticasTest.moc"
