// The status bar: what it shows of real masters and scripts, where it fits, and that it rests while hidden.

#include "shell/BarraEstado.h"

#include "PrincipalDePrueba.h"
#include "RelojDePrueba.h"

#include <QAccessible>
#include <QCheckBox>
#include <QHelpEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QToolTip>

using namespace std::chrono_literals;

namespace {

// A request for a function that is not served (answer: 9 bytes).
QByteArray funcionDesconocida() {
    return {"\0\1\0\0\0\6\1\20\0\0\0\1", 12};
}

class EstacionVisible : public PrincipalDePrueba {
public:
    explicit EstacionVisible(const QSize& medida = {1600, 800}, const Reloj& reloj = relojDelSistema())
        : PrincipalDePrueba("", {}, reloj) {
        if (!cargar())
            qFatal("no start");
        ventana->resize(medida);
    }

    QLabel& campo(const char* nombre) const { return control<QLabel>(nombre); }
    bool muestra(const char* nombre, const QString& texto) const {
        return QTest::qWaitFor([&] { return campo(nombre).text() == texto; }, paciencia);
    }
    QPushButton& error() const { return control<QPushButton>("BtnErrorScript"); }
    QTimer& reloj() const { return control<QTimer>("relojEstado"); }

    void script(const std::string& texto) const { escribirArchivo(carpeta / "codigoTrelvano.txt", texto); }
    void pasada() const { ventana->ejecucion_timers(1); }
    // Ticked, but only the test's own passes run.
    void ejecutarAMano() const {
        control<QCheckBox>("chScript").setChecked(true);
        control<QTimer>("timerScript").stop();
    }
};

} // namespace

class TestBarraEstado : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void countsMastersAndHowRequestsEnded() {
        const EstacionVisible e;
        QVERIFY(e.muestra("lblMaestros", QStringLiteral("Maestros: 0")));
        const auto uno = e.conectarMaestro();
        const auto otro = e.conectarMaestro();
        QCOMPARE(EstacionVisible::pedir(*uno, EstacionVisible::lectura(1), 13).size(), 13);
        QCOMPARE(EstacionVisible::pedir(*uno, EstacionVisible::lectura(2), 13).size(), 13);
        QCOMPARE(EstacionVisible::pedir(*otro, EstacionVisible::escritura(1, 3, 7), 12).size(), 12);
        QCOMPARE(EstacionVisible::pedir(*otro, funcionDesconocida(), 9).size(), 9);
        e.control<QCheckBox>("ChRecibir(1)").setChecked(false);
        otro->send(EstacionVisible::lectura(1).toStdString());
        QVERIFY(e.muestra("lblMaestros", QStringLiteral("Maestros: 2")));
        QVERIFY(e.muestra("lblLecturas", QStringLiteral("Lecturas: 2")));
        QVERIFY(e.muestra("lblEscrituras", QStringLiteral("Escrituras: 1")));
        QVERIFY(e.muestra("lblExcepciones", QStringLiteral("Excepciones: 1")));
        QVERIFY(e.muestra("lblSinRespuesta", QStringLiteral("Sin respuesta: 1")));
        uno->close();
        QVERIFY(e.muestra("lblMaestros", QStringLiteral("Maestros: 1")));
    }

    void tellsRequestsASecondWhileTheyComeAndZeroAfterwards() {
        const EstacionVisible e;
        const auto maestro = e.conectarMaestro();
        const auto ritmo = [&] { return e.campo("lblRitmo").text().split(u' ').first().toInt(); };
        QVERIFY(e.campo("lblRitmo").text().endsWith(QStringLiteral(" peticiones/s")));
        QVERIFY(QTest::qWaitFor(
            [&] {
                EstacionVisible::pedir(*maestro, EstacionVisible::lectura(1), 13);
                return ritmo() > 0;
            },
            paciencia));
        QVERIFY(QTest::qWaitFor([&] { return ritmo() == 0; }, paciencia));
    }

    void rateIsTheRequestsOfTheTimeSinceTheLastLook() {
        RelojDePrueba hora;
        const EstacionVisible e({1600, 800}, hora);
        const auto maestro = e.conectarMaestro();
        EstacionVisible::pedir(*maestro, EstacionVisible::lectura(1), 13);
        hora.pasar(1min);
        e.control<QWidget>("BarraEstado").hide();
        e.control<QWidget>("BarraEstado").show(); // looks now; what came before does not count
        e.reloj().stop();
        QCOMPARE(e.campo("lblRitmo").text(), QStringLiteral("0 peticiones/s"));
        for (int i = 0; i < 20; ++i)
            EstacionVisible::pedir(*maestro, EstacionVisible::lectura(1), 13);
        hora.pasar(250ms);
        Q_EMIT e.reloj().timeout({});
        QCOMPARE(e.campo("lblRitmo").text(), QStringLiteral("80 peticiones/s"));
        hora.pasar(500ms);
        Q_EMIT e.reloj().timeout({});
        QCOMPARE(e.campo("lblRitmo").text(), QStringLiteral("0 peticiones/s"));
    }

    void tellsForHowLongTheStationRunsWhateverIsDoneToTheWallClock() {
        RelojDePrueba hora;
        const EstacionVisible e({1600, 800}, hora);
        e.reloj().stop();
        QCOMPARE(e.campo("lblEnMarcha").text(), QStringLiteral("En marcha: 00:00:00"));
        hora.pasar(3h + 5s);
        hora.cambiarHora(-2h);
        Q_EMIT e.reloj().timeout({});
        QCOMPARE(e.campo("lblEnMarcha").text(), QStringLiteral("En marcha: 03:00:05"));
        hora.pasar(48h);
        Q_EMIT e.reloj().timeout({});
        QCOMPARE(e.campo("lblEnMarcha").text(), QStringLiteral("En marcha: 2 d 03:00:05"));
    }

    void tellsPassesAndTheirTimes() {
        const EstacionVisible e;
        QVERIFY(e.muestra("lblPasadas", QStringLiteral("Pasadas: 0")));
        e.ejecutarAMano();
        e.script("x = 1");
        e.pasada();
        e.pasada();
        QVERIFY(QTest::qWaitFor(
            [&] {
                return QRegularExpression(
                           QStringLiteral("^Pasadas: 2 \\(\\d+([.,]\\d+)? [mµ]?s; máx\\. \\d+([.,]\\d+)? [mµ]?s\\)$"))
                    .match(e.campo("lblPasadas").text())
                    .hasMatch();
            },
            paciencia));
        QVERIFY(!e.error().isVisible());
    }

    void clickOnTheErrorOpensTheEditorAtItsLine() {
        const EstacionVisible e;
        e.ejecutarAMano();
        e.script("x = 1\r\ny = 2\r\nz = x / 0\r\n");
        e.pasada();
        QVERIFY(QTest::qWaitFor([&] { return e.error().isVisible(); }, paciencia));
        QVERIFY2(e.error().text().startsWith(QStringLiteral("Error, línea 3, columna ")), qPrintable(e.error().text()));
        QVERIFY(e.error().toolTip().contains(QStringLiteral("falló")));
        QTest::mouseClick(&e.error(), Qt::LeftButton);
        auto* editor = e.ventana->findChild<QPlainTextEdit*>(QStringLiteral("txtCodigo"));
        QVERIFY(editor != nullptr && editor->isVisible());
        QCOMPARE(editor->textCursor().block().text(), QStringLiteral("z = x / 0"));
        QVERIFY(editor->hasFocus() || editor->window()->focusWidget() == editor);
    }

    void lineOfTheErrorIsThatOfTheOpenEditor() {
        const EstacionVisible e;
        e.ejecutarAMano();
        e.script("z = 1 / 0\r\n");
        e.pasada();
        QVERIFY(
            QTest::qWaitFor([&] { return e.error().text().startsWith(QStringLiteral("Error, línea 1")); }, paciencia));
        QTest::mouseClick(&e.error(), Qt::LeftButton);
        auto* editor = e.ventana->findChild<QPlainTextEdit*>(QStringLiteral("txtCodigo"));
        editor->setPlainText(QStringLiteral("\n\nz = 1 / 0")); // the empty lines are not run
        QVERIFY(
            QTest::qWaitFor([&] { return e.error().text().startsWith(QStringLiteral("Error, línea 3")); }, paciencia));
        QVERIFY(e.error().toolTip().replace(QChar::Nbsp, u' ').contains(QStringLiteral("línea 3")));
        e.pasada();
        auto& casilla = e.control<QCheckBox>("chScript");
        QHelpEvent senalar(QEvent::ToolTip, QPoint(3, 3), casilla.mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(&casilla, &senalar);
        QVERIFY2(casilla.toolTip().contains(QStringLiteral("línea 3")), qPrintable(casilla.toolTip()));
    }

    void anErrorThatIsPastIsStillThereAndSaysSo() {
        const EstacionVisible e;
        e.ejecutarAMano();
        e.script("y = 1\r\nz = y / 0\r\n");
        e.pasada();
        e.script("y = 1\r\nz = y / 2\r\n");
        e.pasada();
        QVERIFY(QTest::qWaitFor([&] { return e.error().text().startsWith(QStringLiteral("Último error, línea 2")); },
                                paciencia));
        QTest::keyClick(&e.error(), Qt::Key_Space);
        auto* editor = e.ventana->findChild<QPlainTextEdit*>(QStringLiteral("txtCodigo"));
        QVERIFY(editor != nullptr);
        QCOMPARE(editor->textCursor().block().text(), QStringLiteral("z = y / 2"));
    }

    void uptimeGoesOn() {
        const EstacionVisible e;
        const QString antes = e.campo("lblEnMarcha").text();
        QVERIFY2(QRegularExpression(QStringLiteral("^En marcha: \\d\\d:\\d\\d:\\d\\d$")).match(antes).hasMatch(),
                 qPrintable(antes));
        QVERIFY(QTest::qWaitFor([&] { return e.campo("lblEnMarcha").text() != antes; }, paciencia));
    }

    void noTimerRunsWhileTheWindowIsHidden() {
        const EstacionVisible e;
        QVERIFY(e.reloj().isActive());
        QCOMPARE(e.reloj().interval(), 500);
        QTest::mouseClick(&e.control<QPushButton>("BtnOcultar"), Qt::LeftButton);
        QVERIFY(!e.reloj().isActive());
        e.ventana->show();
        QVERIFY(e.reloj().isActive());
    }

    void fitsSmallScreensAndLeavesOutTheFieldsOfLeastWeight_data() {
        QTest::addColumn<QSize>("medida");
        QTest::newRow("1024x700") << QSize(1024, 700);
        QTest::newRow("960x540") << QSize(960, 540);
    }
    void fitsSmallScreensAndLeavesOutTheFieldsOfLeastWeight() {
        QFETCH(const QSize, medida);
        const EstacionVisible e(medida);
        QVERIFY2(e.ventana->minimumSizeHint().width() <= medida.width() &&
                     e.ventana->minimumSizeHint().height() <= medida.height(),
                 qPrintable(QStringLiteral("needs %1 rows").arg(e.ventana->minimumSizeHint().height())));
        e.ejecutarAMano();
        e.script("Err.Raise 1001, \"prueba\", \"Un texto de error que es mucho más largo de lo que cabe en la barra, "
                 "& con un signo que no es de teclado\"\r\n");
        e.pasada();
        QVERIFY(QTest::qWaitFor([&] { return e.error().isVisible(); }, paciencia));
        const auto& barra = e.control<QWidget>("BarraEstado");
        QVERIFY(e.campo("lblMaestros").isVisible() && e.campo("lblRitmo").isVisible());
        bool visible = true;
        int derecha = 0;
        for (const char* nombre : {"lblMaestros", "lblRitmo", "lblLecturas", "lblEscrituras", "lblExcepciones",
                                   "lblSinRespuesta", "lblPasadas", "lblEnMarcha"}) {
            const QLabel& campo = e.campo(nombre);
            QVERIFY2(visible || !campo.isVisible(), nombre); // none behind one that was left out
            visible = campo.isVisible();
            if (!visible)
                continue;
            QVERIFY2(campo.x() >= derecha && campo.width() >= campo.sizeHint().width(), nombre);
            derecha = campo.geometry().right();
        }
        QVERIFY(!visible); // at least one has made room for the error
        QVERIFY(e.error().x() > derecha);
        QVERIFY(e.error().geometry().right() <= barra.rect().right());
        QVERIFY(e.error().text().endsWith(u'…'));
        QVERIFY(e.error().accessibleName().contains(QStringLiteral("signo que no es de teclado")));
    }

    void wideWindowShowsAll() {
        const EstacionVisible e({1600, 800});
        QVERIFY(e.campo("lblEnMarcha").isVisible());
    }

    void everyFieldHasATooltipAndAnAccessibleName() {
        const EstacionVisible e;
        const auto campos = e.control<QWidget>("BarraEstado").findChildren<QLabel*>();
        QCOMPARE(campos.size(), 8);
        for (QLabel* campo : campos) {
            QVERIFY2(!campo->toolTip().isEmpty() && !campo->objectName().isEmpty(), qPrintable(campo->text()));
            QCOMPARE(QAccessible::queryAccessibleInterface(campo)->text(QAccessible::Name), campo->text());
        }
    }
};

QTEST_MAIN(TestBarraEstado)
#include "BarraEstadoTest.moc"
