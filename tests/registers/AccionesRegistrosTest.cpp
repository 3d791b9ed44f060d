#include "registers/AccionesRegistros.h"

#include "CajaDeMensaje.h"
#include "PasoDelTiempo.h"
#include "RelojDePrueba.h"
#include "platform/grid/MSFlexGrid.h"
#include "registers/FrmGrafica.h"
#include "registers/Pegado.h"
#include "registers/VistaPagina.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <chrono>
#include <memory>

using namespace std::chrono_literals;

class TestAccionesRegistros : public QObject {
    Q_OBJECT

private:
    RelojDePrueba reloj_;
    std::unique_ptr<Esclavos> esclavos_;
    std::unique_ptr<Anotaciones> anotaciones_;
    std::unique_ptr<QWidget> ventana_;
    VistaPagina* vista_ = nullptr;
    AccionesRegistros* acciones_ = nullptr;
    int pinturas_ = 0;

    MSFlexGrid& grid() { return *vista_->findChild<MSFlexGrid*>(); }
    QString celda(int direccion) { return grid().TextMatrix(direccion / 10 + 1, direccion % 10 + 1); }
    QString sugerencia(int direccion) {
        return grid().model()->index(direccion / 10, direccion % 10).data(Qt::ToolTipRole).toString();
    }
    QAction* formato(FormatoRegistro cual) {
        QMenu menu;
        acciones_->agregarA(menu);
        for (QAction* accion : menu.actions())
            if (accion->menu() != nullptr)
                for (QAction* uno : accion->menu()->actions())
                    if (uno->data().toInt() == static_cast<int>(cual))
                        return uno;
        return nullptr;
    }
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        pinturas_ += evento->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(objeto, evento);
    }
    // Clock and timers of the window.
    void pasar(std::chrono::milliseconds cuanto) {
        reloj_.pasar(cuanto);
        PasoDelTiempo(*ventana_).pasar(cuanto);
    }
    QString mensajeDeUnaCaja() {
        QMessageBox* caja = nullptr;
        if (!QTest::qWaitFor([&] { return (caja = ventana_->findChild<QMessageBox*>()) != nullptr; }, paciencia))
            return QStringLiteral("(ninguna)");
        const QString texto = caja->text();
        caja->close();
        return texto;
    }
    void escribirDestino(const QString& texto) {
        QTest::keyClick(&grid(), Qt::Key_G, Qt::ControlModifier);
        QInputDialog* dialogo = nullptr;
        QVERIFY(
            QTest::qWaitFor([&] { return (dialogo = ventana_->findChild<QInputDialog*>()) != nullptr; }, paciencia));
        auto* caja = dialogo->findChild<QLineEdit*>();
        QTest::keyClicks(caja, texto);
        QTest::keyClick(caja, Qt::Key_Return);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private Q_SLOTS:
    void init() {
        QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
        esclavos_ = std::make_unique<Esclavos>();
        esclavos_->crearEsclavo(2, 0, 99);
        anotaciones_ = std::make_unique<Anotaciones>(reloj_);
        anotaciones_->etiquetas.leer("2;5;Nivel;%;sonda norte\n");
        esclavos_->observarCambios(&anotaciones_->cambios);
        ventana_ = std::make_unique<QWidget>();
        auto* caja = new QVBoxLayout(ventana_.get());
        vista_ = new VistaPagina(*esclavos_, *esclavos_->pagina(2), new QPlainTextEdit, nullptr, anotaciones_.get());
        caja->addWidget(vista_);
        acciones_ = new AccionesRegistros(*esclavos_, *anotaciones_, *ventana_);
        acciones_->seguir(*vista_);
        acciones_->ponerPagina(vista_);
        ventana_->resize(900, 700);
        ventana_->show();
        QVERIFY(QTest::qWaitForWindowActive(ventana_.get(), paciencia));
        vista_->irA(0);
    }
    void cleanup() { ventana_.reset(); }

    void aPageShowsItsRegistersInTheChosenFormat() {
        esclavos_->escribir(2, 0, 65535);
        formato(FormatoRegistro::hexadecimal)->trigger();
        QCOMPARE(celda(0), QStringLiteral("FFFF"));
        formato(FormatoRegistro::conSigno)->trigger();
        QCOMPARE(celda(0), QStringLiteral("-1"));
        formato(FormatoRegistro::decimal)->trigger();
        QCOMPARE(celda(0), QStringLiteral("65535"));
    }

    void aDoubleClickHandsOverTheDecimalValueInAnyFormat() {
        esclavos_->escribir(2, 0, 255);
        formato(FormatoRegistro::hexadecimal)->trigger();
        QSignalSpy activada(vista_, &VistaPagina::celdaActivada);
        QTest::keyClick(&grid(), Qt::Key_F2);
        QCOMPARE(activada.first().at(2).toString(), QStringLiteral("255"));
    }

    void theTooltipHasNameFormatsAndWriter() {
        esclavos_->darValorEsclavoLogico(2, 5, 65535, Autor::maestro);
        const QString texto = sugerencia(5);
        for (const char* parte : {"Nombre: Nivel", "Unidad: %", "Nota: sonda norte", "Registro: 5", "Sin signo: 65535",
                                  "Con signo: -1", "Hexadecimal: FFFF", "Última escritura: un maestro, "})
            QVERIFY2(texto.contains(QString::fromUtf8(parte)), qPrintable(texto));
        QVERIFY(sugerencia(4).contains(QStringLiteral("32 bits: 65535 (al revés -65536)")));
    }

    void aChangedCellIsColouredForItsWriterAndFadesOut() {
        const auto fondo = [this] { return vista_->grab().toImage(); };
        pasar(1min);
        const QImage antes = fondo();
        esclavos_->darValorEsclavoLogico(2, 33, 0, Autor::maestro); // same value: no change, no colour
        pasar(1s);
        QCOMPARE(fondo(), antes);
        esclavos_->darValorEsclavoLogico(2, 33, 1, Autor::maestro);
        esclavos_->darValorEsclavoLogico(2, 33, 0, Autor::maestro);
        const QImage recien = fondo();
        QVERIFY(recien != antes);
        pasar(2900ms);
        const QImage casi = fondo();
        QVERIFY(casi != antes && casi != recien);
        pasar(100ms);
        QCOMPARE(fondo(), antes);
    }

    void aColourIsRepaintedUntilItIsGoneAndThenNoMore() {
        pasar(1min);
        esclavos_->darValorEsclavoLogico(2, 33, 1, Autor::maestro);
        PasoDelTiempo tiempo(*ventana_);
        grid().viewport()->installEventFilter(this);
        int veces = 0;
        int ultima = 0; // ms after the change
        for (int ms = 20; ms <= 10'000; ms += 20) {
            pinturas_ = 0;
            reloj_.pasar(20ms);
            tiempo.pasar(20ms);
            veces += pinturas_;
            ultima = pinturas_ > 0 ? ms : ultima;
        }
        QVERIFY2(veces >= 20 && veces <= 40, qPrintable(QString::number(veces)));
        QVERIFY2(ultima >= Anotaciones::tiempoResaltado && ultima < 4000, qPrintable(QString::number(ultima)));
    }

    void coloursCanBeSwitchedOff() {
        const QImage antes = vista_->grab().toImage();
        anotaciones_->resaltarCambios = false;
        esclavos_->escribir(2, 33, 1);
        esclavos_->escribir(2, 33, 0);
        pasar(1s);
        QCOMPARE(vista_->grab().toImage(), antes);
    }

    void ctrlGGoesToAnAddressASlaveAndAddressOrAName() {
        QSignalSpy destino(acciones_, &AccionesRegistros::destinoElegido);
        escribirDestino(QStringLiteral("77"));
        QCOMPARE(destino.takeFirst(), (QVariantList{2, 77}));
        escribirDestino(QStringLiteral("2:13"));
        QCOMPARE(destino.takeFirst(), (QVariantList{2, 13}));
        escribirDestino(QStringLiteral("nivel"));
        QCOMPARE(destino.takeFirst(), (QVariantList{2, 5}));
    }

    void ctrlGTellsOfARegisterThatDoesNotExist() {
        QSignalSpy destino(acciones_, &AccionesRegistros::destinoElegido);
        escribirDestino(QStringLiteral("7:13"));
        QCOMPARE(mensajeDeUnaCaja(), QStringLiteral("La MW 13 del PLC 7 no existe"));
        escribirDestino(QStringLiteral("bomba"));
        QCOMPARE(mensajeDeUnaCaja(), QStringLiteral("«bomba» no es una dirección ni un nombre"));
        QCOMPARE(destino.count(), 0);
    }

    void shiftAndArrowsSelectFromTheRegisterGoneTo() {
        vista_->irA(3);
        QTest::keyClick(&grid(), Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(vista_->seleccion(), (std::vector<int>{3, 4}));
        for (const int lugar : {70, 49}) {
            vista_->irA(lugar);
            QCOMPARE(vista_->seleccion(), std::vector<int>{lugar});
            QTest::keyClick(&grid(), Qt::Key_Left, Qt::ShiftModifier);
            QTest::keyClick(&grid(), Qt::Key_Down, Qt::ShiftModifier);
        }
        QCOMPARE(vista_->seleccion(), (std::vector<int>{48, 49, 58, 59}));
    }

    void menusCopyPasteAndWriteTheRegisterInFront() {
        const auto entrada = [](const QMenu& menu, const char* texto) {
            for (QAction* accion : menu.actions())
                if (accion->text().remove(u'&').section(u'\t', 0, 0) == QString::fromUtf8(texto))
                    return accion;
            return static_cast<QAction*>(nullptr);
        };
        QMenu menu;
        acciones_->agregarA(menu);
        esclavos_->escribir(2, 0, 321);
        entrada(menu, "Copiar")->trigger();
        vista_->irA(11);
        entrada(menu, "Pegar")->trigger();
        QCOMPARE(esclavos_->leer(2, 11), 321.0);
        QSignalSpy activada(vista_, &VistaPagina::celdaActivada);
        entrada(menu, "Escribir a mano…")->trigger();
        QCOMPARE(activada.first().at(1).toInt(), 11);
    }

    void ctrlVPastesRowsOfNumbers() {
        QGuiApplication::clipboard()->setText(QStringLiteral("1\t-1\t12,5\r\n\t7\r\n"));
        vista_->irA(3);
        QTest::keyClick(&grid(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(celda(3), QStringLiteral("1"));
        QCOMPARE(celda(4), QStringLiteral("65535"));
        QCOMPARE(celda(5), QStringLiteral("12,5"));
        QCOMPARE(celda(13), QStringLiteral("0"));
        QCOMPARE(celda(14), QStringLiteral("7"));
        QCOMPARE(anotaciones_->cambios.ultima(2, 4)->autor, Autor::mano);
    }

    void whatCannotBePastedIsToldAndNothingIsWritten_data() {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QString>("mensaje");
        QTest::newRow("empty") << ""
                               << "El portapapeles no tiene números";
        QTest::newRow("blanks") << " \t \n\t"
                                << "El portapapeles no tiene números";
        QTest::newRow("overlong number") << QStringLiteral("0").repeated(5000) + QStringLiteral("70000")
                                         << QStringLiteral("0").repeated(40) +
                                                QStringLiteral(
                                                    ": Valor fuera de rango, se admiten valores entre -32768 y 65535");
        QTest::newRow("no number") << "5\tabc"
                                   << "«abc» no es un número";
        QTest::newRow("too large") << "5\t65536"
                                   << "65536: Valor fuera de rango, se admiten valores entre -32768 y 65535";
        QTest::newRow("too wide") << "1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11"
                                  << "Lo que se pega no cabe: la cuadrícula tiene diez columnas";
        QTest::newRow("beyond the table") << QStringLiteral("5\n").repeated(11) << "La MW 100 del PLC 2 no existe";
    }
    void whatCannotBePastedIsToldAndNothingIsWritten() {
        QFETCH(QString, texto);
        QFETCH(QString, mensaje);
        QCOMPARE(pegarRegistros(*esclavos_, 2, 0, texto), mensaje);
        QCOMPARE(celda(0), QStringLiteral("0"));
    }

    void aChartShowsTheSelectedRegistersAndForgetsThemWhenClosed() {
        esclavos_->escribir(2, 5, 40);
        vista_->irA(5);
        grid().selectionModel()->select(grid().model()->index(0, 6), QItemSelectionModel::Select);
        QTest::keyClick(&grid(), Qt::Key_R, Qt::ControlModifier);
        auto* grafica = ventana_->findChild<FrmGrafica*>();
        QVERIFY(grafica != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(grafica, paciencia));
        QCOMPARE(grafica->lineas().size(), std::size_t{2});
        QCOMPARE(grafica->lineas()[0].titulo, QStringLiteral("Nivel (2:5)"));
        QCOMPARE(grafica->lineas()[1].titulo, QStringLiteral("2:6"));
        pasar(30ms);
        esclavos_->escribir(2, 5, 50);
        QCOMPARE(*grafica->lineas()[0].historia.valorEn(anotaciones_->cambios.hora()), 50.0);
        const QString csv = grafica->comoCsv();
        QVERIFY2(csv.startsWith(QStringLiteral("fecha;hora;\"Nivel (2:5)\";\"2:6\"\r\n")), qPrintable(csv));
        QVERIFY2(csv.contains(QStringLiteral(";40;0\r\n")) && csv.contains(QStringLiteral(";50;0\r\n")),
                 qPrintable(csv));
        grafica->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(ventana_->findChild<FrmGrafica*>() == nullptr);
        esclavos_->escribir(2, 5, 60); // would reach a dead window
    }

    void thePauseHoldsTheChartAndClicksPlaceItsCursor() {
        const FrmGrafica::Registro uno{2, 5};
        FrmGrafica grafica(*esclavos_, *anotaciones_, {&uno, 1});
        grafica.setAttribute(Qt::WA_DeleteOnClose, false);
        grafica.show();
        QVERIFY(QTest::qWaitForWindowExposed(&grafica, paciencia));
        auto* vista = grafica.findChild<VistaGrafica*>();
        auto* pausa = grafica.findChild<QCheckBox*>(QStringLiteral("chPausa"));
        QTest::mouseClick(pausa, Qt::LeftButton, {}, QPoint(8, pausa->height() / 2));
        QVERIFY(vista->pausada());
        const auto fin = vista->fin();
        pasar(20s);
        QCOMPARE(vista->fin(), fin);
        QTest::mouseClick(vista, Qt::LeftButton, {}, QPoint(vista->width() / 2, vista->height() / 2));
        QVERIFY(vista->cursor() && *vista->cursor() < fin && *vista->cursor() > fin - vista->ventana());
        QTest::keyClick(vista, Qt::Key_Escape);
        QVERIFY(!vista->cursor());
        auto* tiempo = grafica.findChild<QComboBox*>(QStringLiteral("cmbTiempo"));
        QTest::keyClick(tiempo, Qt::Key_End);
        QCOMPARE(vista->ventana(), std::int64_t{3'600'000});
    }

    void moreRegistersThanAChartDrawsAreToldAndNotCutSilently() {
        grid().selectAll();
        QTest::keyClick(&grid(), Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(mensajeDeUnaCaja(), QStringLiteral("Hay 100 registros seleccionados: una gráfica dibuja hasta ocho"));
        QVERIFY(ventana_->findChild<FrmGrafica*>() == nullptr);
    }

    void aChartWithoutASelectionIsToldHowToMakeOne() {
        grid().clearSelection();
        QTest::keyClick(&grid(), Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(mensajeDeUnaCaja(), QStringLiteral("Seleccione en la cuadrícula hasta ocho registros"));
    }
};

QTEST_MAIN(TestAccionesRegistros)
#include "AccionesRegistrosTest.moc"
