// The script editor while the script runs: its variables, console and times, starting and stopping it, the samples.

#include "CajaDeMensaje.h"
#include "PasoDelTiempo.h"
#include "script/BarraEjecucion.h"
#include "script/EditorDePrueba.h"
#include "script/Ejemplos.h"
#include "script/PanelEjecucion.h"

#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>
#include <QTreeWidget>

using namespace std::chrono_literals;

class TestEditorEnMarcha : public EditorDePrueba {
    Q_OBJECT

    // A pass of that text as the station runs it.
    void pasada(std::string_view texto) {
        escribirArchivo(archivo(), texto);
        ejecutor_->ejecutarScript();
        QCOMPARE(ejecutor_->ultimoError().number, 0);
    }

    // The first of the samples, by keyboard.
    void elegirEjemplo() const {
        QTimer vigia;
        connect(&vigia, &QTimer::timeout, &vigia, [&vigia] {
            if (QWidget* const menu = QApplication::activePopupWidget()) {
                vigia.stop();
                QTest::keyClick(menu, Qt::Key_Down);
                QTest::keyClick(menu, Qt::Key_Return);
            }
        });
        vigia.start(5);
        QTest::keyClick(&control<QPushButton>("btnEjemplos"), Qt::Key_Space);
    }
    static QString primerEjemplo() { return ejemplos().constFirst().texto; }

    QTreeWidget& variables() const { return control<QTreeWidget>("listaVariables"); }
    QStringList fila(int cual) const {
        const QTreeWidgetItem* item = variables().topLevelItem(cual);
        return item == nullptr ? QStringList() : QStringList{item->text(0), item->text(1), item->text(2)};
    }
    QString consola() const { return control<QPlainTextEdit>("txtConsola").toPlainText(); }
    QString tiempos() const { return control<QLabel>("lblTiempos").text(); }

private Q_SLOTS:
    void init() { preparar(); }
    void cleanup() { recoger(); }

    void panelIsShownAndHiddenByKeyAndButton() {
        abrir();
        auto& panel = control<QWidget>("panelEjecucion");
        QVERIFY(!panel.isVisible());
        tecla(Qt::Key_F6);
        QVERIFY(panel.isVisible());
        QVERIFY(txtCodigo().width() > 200 && panel.width() > 100);
        clic("btnPanel");
        QVERIFY(!panel.isVisible());
    }

    void variablesFollowThePasses() {
        abrir();
        tecla(Qt::Key_F6);
        QCOMPARE(variables().topLevelItemCount(), 0);
        pasada("Dim m(4) : nivel = nivel + 5 : Sub s : End Sub");
        QTRY_COMPARE(variables().topLevelItemCount(), 2);
        QCOMPARE(fila(0), (QStringList{"m", "Variant()", "5 elementos"}));
        QCOMPARE(fila(1), (QStringList{"nivel", "Integer", "5"}));
        variables().setCurrentItem(variables().topLevelItem(1));
        pasada("nivel = nivel + 5 : nuevo = 1");
        QTRY_COMPARE(fila(1), (QStringList{"nivel", "Integer", "10"}));
        QCOMPARE(fila(2).value(0), QStringLiteral("nuevo"));
        QCOMPARE(variables().currentItem(), variables().topLevelItem(1)); // the choice stays
    }

    void hiddenPanelFollowsNothing() {
        abrir();
        pasada("nivel = 5");
        PasoDelTiempo(*frm_).pasar(std::chrono::minutes(1));
        QCOMPARE(variables().topLevelItemCount(), 0);
        tecla(Qt::Key_F6); // at once, without waiting
        QCOMPARE(fila(0).value(2), QStringLiteral("5"));
    }

    void manyVariablesAreShownUpToALimit() {
        std::string texto;
        for (int i = 0; i < PanelEjecucion::maximoVariables + 10; ++i)
            texto += "v" + std::to_string(i) + " = 1\r\n";
        abrir();
        pasada(texto);
        tecla(Qt::Key_F6);
        QCOMPARE(variables().topLevelItemCount(), PanelEjecucion::maximoVariables);
        QCOMPARE(control<QLabel>("lblVariables").text(), QStringLiteral("Variables globales: se ven 1000 de 1010"));
    }

    void consoleShowsWhatWasWrittenBeforeAndAfterOpening() {
        pasada("WScript.Echo \"antes\"");
        abrir();
        tecla(Qt::Key_F6);
        QVERIFY(consola().endsWith(QStringLiteral("antes")));
        pasada("WScript.Echo \"nivel\", 5");
        QTRY_VERIFY(consola().endsWith(QStringLiteral("  nivel 5")));
        QCOMPARE(consola().count(u'\n'), 1);
        clic("btnBorrarConsola");
        QCOMPARE(consola(), QString());
        pasada("WScript.Echo 7");
        QTRY_VERIFY(consola().endsWith(QStringLiteral("  7")));
    }

    void consoleDropsItsOldestLinesAndHoldsTheView() {
        abrir();
        tecla(Qt::Key_F6);
        pasada("For i = 1 To 100 : WScript.Echo i : Next");
        QTRY_VERIFY(consola().endsWith(QStringLiteral("  100")));
        auto& caja = control<QPlainTextEdit>("txtConsola");
        caja.verticalScrollBar()->setValue(20);
        QTextCursor elegido(caja.document()->findBlockByNumber(50));
        elegido.select(QTextCursor::LineUnderCursor);
        caja.setTextCursor(elegido);
        const int arriba = caja.verticalScrollBar()->value();
        pasada("WScript.Echo \"nueva\"");
        QTRY_VERIFY(consola().endsWith(QStringLiteral("nueva")));
        QCOMPARE(caja.verticalScrollBar()->value(), arriba);
        QVERIFY(caja.textCursor().selectedText().endsWith(QStringLiteral("  51")));
        pasada("For i = 1 To 20000 : WScript.Echo i : Next");
        QTRY_VERIFY(consola().endsWith(QStringLiteral("  20000")));
        QVERIFY(consola().size() <= static_cast<qsizetype>(ConsolaScript::maximo));
    }

    void scriptWithAWScriptOfItsOwnRunsAsBefore() {
        pasada("WScript.Echo 1");
        pasada("WScript = 5 : WScript = WScript + 1");
        abrir();
        tecla(Qt::Key_F6);
        QCOMPARE(fila(0), (QStringList{"WScript", "Integer", "6"}));
        pasada("Set WScript = CreateObject(\"Scripting.Dictionary\") : WScript.Add 1, 2");
        QTRY_COMPARE(fila(0).value(1), QStringLiteral("Dictionary"));
        pasada("WScript.Echo \"otra vez\"");
        QTRY_VERIFY(consola().endsWith(QStringLiteral("otra vez")));
        QCOMPARE(variables().topLevelItemCount(), 0);
    }

    void timesOfPassesAndOfCompilingAreShown() {
        abrirCon("x = 1");
        QTRY_COMPARE(tiempos(), QStringLiteral("Sin pasadas todavía; compilar: ") + textoDeDuracion(1ms));
        reloj_.porMirada = 30ms;
        pasada("x = 1");
        reloj_.porMirada = 4ms;
        pasada("x = 1");
        QTRY_COMPARE(tiempos(), QStringLiteral("Pasadas: 2, la última %1, la más larga %2; compilar: %3")
                                    .arg(textoDeDuracion(4ms), textoDeDuracion(30ms), textoDeDuracion(1ms)));
    }

    void textIsCompiledTheLaterTheLongerTheLastTimeTook() {
        abrirCon("x = 1");
        PasoDelTiempo tiempo(*frm_);
        reloj_.porMirada = 100ms;
        tecla(Qt::Key_Space);
        tiempo.pasar(300ms);
        QVERIFY(tiempos().endsWith(textoDeDuracion(100ms)));
        reloj_.porMirada = 5ms;
        tecla(Qt::Key_Space);
        tiempo.pasar(999ms);
        QVERIFY(tiempos().endsWith(textoDeDuracion(100ms)));
        tiempo.pasar(1ms);
        QVERIFY(tiempos().endsWith(textoDeDuracion(5ms)));
    }

    void durationsHaveThreeFigures() {
        const QChar coma = QLocale().decimalPoint().front();
        QCOMPARE(textoDeDuracion(850us), QStringLiteral("0") + coma + QStringLiteral("85 ms"));
        QCOMPARE(textoDeDuracion(12'340us), QStringLiteral("12") + coma + QStringLiteral("3 ms"));
        QCOMPARE(textoDeDuracion(123'400us), QStringLiteral("123 ms"));
        QCOMPARE(textoDeDuracion(2'500ms), QStringLiteral("2") + coma + QStringLiteral("50 s"));
    }

    void scriptIsStartedAndStoppedFromHere() {
        abrir();
        tecla(Qt::Key_F5);
        QCOMPARE(clics_, std::vector<bool>{true});
        QVERIFY(control<QCheckBox>("chEjecutar").isChecked());
        auto& casilla = control<QCheckBox>("chEjecutar");
        QTest::mouseClick(&casilla, Qt::LeftButton, {}, QPoint(8, casilla.height() / 2));
        QCOMPARE(clics_, (std::vector<bool>{true, false}));
        chScript_->setChecked(true); // in the main window
        QVERIFY(casilla.isChecked());
    }

    void sampleFillsAnEmptyTextAtOnce() {
        abrir();
        elegirEjemplo();
        QVERIFY(txtCodigo().texto().startsWith(primerEjemplo()));
        QVERIFY(frm_->windowTitle().startsWith(u'*'));
        QVERIFY(!std::filesystem::exists(archivo())); // nothing is saved by it
    }

    void sampleReplacesATextOnlyAfterAQuestion() {
        abrirCon("mio = 1");
        CajaDeMensaje caja;
        caja.boton = QStringLiteral("&No");
        elegirEjemplo();
        QCOMPARE(caja.vistas, 1);
        QCOMPARE(txtCodigo().texto(), QStringLiteral("mio = 1\n"));
        caja.boton = caja.botones.value(0);
        elegirEjemplo();
        QVERIFY(txtCodigo().texto().startsWith(primerEjemplo()));
        QTest::keyClick(&txtCodigo(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(txtCodigo().texto(), QStringLiteral("mio = 1\n"));
    }

    void everySampleIsOfferedAndCompiles() {
        abrir();
        QStringList titulos;
        for (const Ejemplo& ejemplo : ejemplos()) {
            titulos.append(ejemplo.titulo);
            QVERIFY2(motor_->check(ejemplo.texto.toStdU16String()), qPrintable(ejemplo.titulo));
        }
        QCOMPARE(titulos.size(), 7);
        QStringList ofrecidos;
        const auto acciones = control<QMenu>("menuEjemplos").actions();
        for (const QAction* accion : acciones)
            ofrecidos.append(accion->text());
        QCOMPARE(ofrecidos, titulos);
    }

    void shortcutsWorkWhileTheListOfNamesIsOpen() {
        abrir();
        QTest::keyClicks(&txtCodigo(), QStringLiteral("mw.esc"));
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        QTest::keyClick(static_cast<QWidget*>(nullptr), Qt::Key_S, Qt::ControlModifier);
        QTRY_COMPARE(contenidoDe(archivo()), std::string("mw.esc\r\n"));
    }

    void fitsSmallScreensWithThePanelOpen_data() {
        QTest::addColumn<QSize>("pantalla");
        QTest::newRow("1024x700") << QSize(1024, 700);
        QTest::newRow("960x540") << QSize(960, 540);
    }
    void fitsSmallScreensWithThePanelOpen() {
        QFETCH(QSize, pantalla);
        abrirCon("x = 1");
        tecla(Qt::Key_F6);
        tecla(Qt::Key_H, Qt::ControlModifier);
        frm_->resize(pantalla);
        QVERIFY2(frm_->minimumSizeHint().width() <= pantalla.width() && frm_->height() <= pantalla.height(),
                 qPrintable(QStringLiteral("%1x%2").arg(frm_->minimumSizeHint().width()).arg(frm_->height())));
        QVERIFY(txtCodigo().height() > 150);
    }
};

QTEST_MAIN(TestEditorEnMarcha)
#include "EditorEnMarchaTest.moc"
