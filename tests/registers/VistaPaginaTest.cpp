#include "registers/VistaPagina.h"

#include "PasoDelTiempo.h"
#include "platform/grid/MSFlexGrid.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLocale>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <chrono>
#include <memory>

using namespace std::chrono_literals;

class TestVistaPagina : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<Esclavos> esclavos_;
    std::unique_ptr<VistaPagina> vista_;
    int pinturas_ = 0;

    Pagina& pagina() { return *esclavos_->pagina(2); }

    template <typename Control>
    Control* control(const char* nombre) {
        return vista_->findChild<Control*>(QStringLiteral("%1(2)").arg(QLatin1String(nombre)));
    }
    MSFlexGrid& grid() { return *control<MSFlexGrid>("MSFlexGrid"); }
    QString celda(int fila, int columna) { return grid().TextMatrix(fila, columna); }
    QString sugerencia(int direccion) {
        return grid().model()->index(direccion / 10, direccion % 10).data(Qt::ToolTipRole).toString();
    }

    void pulsar(const char* nombre) {
        auto* casilla = control<QCheckBox>(nombre);
        QTest::mouseClick(casilla, Qt::LeftButton, {}, QPoint(8, casilla->height() / 2));
    }

    bool eventFilter(QObject* objeto, QEvent* evento) override {
        pinturas_ += evento->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(objeto, evento);
    }

private Q_SLOTS:
    void init() {
        QLocale::setDefault(QLocale::c());
        vista_.reset();
        esclavos_ = std::make_unique<Esclavos>();
        esclavos_->crearEsclavo(2, 0, 99);
        vista_ = std::make_unique<VistaPagina>(*esclavos_, pagina(), new QPlainTextEdit);
        vista_->resize(800, 600);
        vista_->show();
        QVERIFY(QTest::qWaitForWindowExposed(vista_.get(), paciencia));
        pinturas_ = 0;
        grid().viewport()->installEventFilter(this);
    }

    void noFormatCutsItsTexts() {
        for (int a = 0; a < 100; ++a)
            esclavos_->escribir(2, a, a % 2 == 0 ? 32896 : 65535);
        for (const NombreFormato& formato : formatosRegistro) {
            vista_->ponerFormato(formato.formato);
            for (int columna = 1; columna <= 10; ++columna) {
                const int ancho = grid().fontMetrics().horizontalAdvance(celda(1, columna));
                QVERIFY2(grid().columnWidth(columna - 1) > ancho + 6, formato.titulo.data());
            }
        }
        vista_->ponerFormato(FormatoRegistro::decimal);
        QTRY_VERIFY(!grid().horizontalScrollBar()->isVisible());
    }

    void theSevenControlsBearTheirNames() {
        QVERIFY(control<MSFlexGrid>("MSFlexGrid") != nullptr);
        QVERIFY(control<QPlainTextEdit>("txtTramas") != nullptr);
        QCOMPARE(control<QGroupBox>("FrameControles")->title(), QStringLiteral("Controles de #2"));
        QCOMPARE(control<QCheckBox>("ChRecibir")->text(), QStringLiteral("Recibir Lecturas"));
        QCOMPARE(control<QCheckBox>("ChResponder")->text(), QStringLiteral("Responder Lecturas"));
        QCOMPARE(control<QCheckBox>("ChRecibirEscrituras")->text(), QStringLiteral("Recibir Escrituras"));
        QCOMPARE(control<QCheckBox>("ChResponderEscrituras")->text(), QStringLiteral("Responder Escrituras"));
    }

    void aNewPageHasEveryBoxChecked() {
        for (const char* nombre : {"ChRecibir", "ChResponder", "ChRecibirEscrituras", "ChResponderEscrituras"})
            QVERIFY(control<QCheckBox>(nombre)->isChecked());
    }

    void headingsAreLaidOut() {
        QCOMPARE(celda(0, 0), QStringLiteral("MW - PLC 2"));
        QCOMPARE(celda(0, 1), QStringLiteral("+0"));
        QCOMPARE(celda(0, 10), QStringLiteral("+9"));
        QCOMPARE(grid().Cols(), 11);
    }

    void lastAddress99EndsWithRowsHeaded0To90AndZeros() {
        QCOMPARE(grid().Rows(), 11);
        for (int fila = 1; fila <= 10; ++fila)
            QCOMPARE(celda(fila, 0), QString::number((fila - 1) * 10));
        QCOMPARE(celda(1, 1), QStringLiteral("0"));
        QCOMPARE(celda(10, 10), QStringLiteral("0"));
    }

    void aGridBeginsWithSevenRowsAndAppendsTwoForRegister75() {
        esclavos_->crearEsclavo(3, 0, 0);
        Pagina& corta = *esclavos_->pagina(3);
        const VistaPagina vista(*esclavos_, corta, new QPlainTextEdit);
        auto* rejilla = vista.findChild<MSFlexGrid*>();
        QCOMPARE(rejilla->Rows(), 7);
        QCOMPARE(rejilla->TextMatrix(6, 0), QStringLiteral("50"));
        esclavos_->ampliarTablaMW(3, 75, 0);
        esclavos_->escribir(3, 75, 4321);
        QCOMPARE(rejilla->Rows(), 9);
        QCOMPARE(rejilla->TextMatrix(7, 0), QStringLiteral("60"));
        QCOMPARE(rejilla->TextMatrix(8, 0), QStringLiteral("70"));
        QCOMPARE(rejilla->TextMatrix(8, 6), QStringLiteral("4321"));
        QTRY_COMPARE(rejilla->model()->rowCount(), 8);
    }

    void aWriteIsSeenInTheCellAtOnce() {
        esclavos_->escribir(2, 13, 777);
        QCOMPARE(celda(2, 4), QStringLiteral("777"));
    }

    void aFractionShowsTheDecimalSignOfTheLocale() {
        esclavos_->escribir(2, 5, 12.5);
        QCOMPARE(celda(1, 6), QStringLiteral("12.5"));
        QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
        QCOMPARE(celda(1, 6), QStringLiteral("12,5"));
        esclavos_->escribir(2, 5, 1.0 / 15);
        QCOMPARE(celda(1, 6), QStringLiteral("6,66666666666667E-02"));
    }

    void cellsBeyondTheTableAreBlank() {
        esclavos_->ampliarTablaMW(2, 100, 3);
        QCOMPARE(celda(11, 4), QStringLiteral("0"));
        QCOMPARE(celda(11, 5), QString());
        QCOMPARE(sugerencia(104), QString());
    }

    void tooltipShowsUnsignedSignedHexadecimalAndBits() {
        esclavos_->escribir(2, 23, 65534);
        QCOMPARE(sugerencia(23), QStringLiteral("Registro: 23\nSin signo: 65534\nCon signo: -2\nHexadecimal: FFFE\n"
                                                "Bits: 1111 1111 1111 1110"));
        QCOMPARE(sugerencia(24), QStringLiteral("Registro: 24\nSin signo: 0\nCon signo: 0\nHexadecimal: 0000\n"
                                                "Bits: 0000 0000 0000 0000\n"
                                                "Con el siguiente, 32 bits: 0 (al revés 0)\n"
                                                "Con el siguiente, coma flotante: 0 (al revés 0)"));
    }

    void doubleClickTellsSlaveAddressAndText() {
        esclavos_->escribir(2, 20, 55);
        QSignalSpy espia(vista_.get(), &VistaPagina::celdaActivada);
        const QPoint centro = grid().visualRect(grid().model()->index(2, 0)).center(); // row 3, column 1
        QTest::mouseDClick(grid().viewport(), Qt::LeftButton, {}, centro);
        QCOMPARE(espia.count(), 1);
        QCOMPARE(espia.at(0), (QVariantList{2, 20, QStringLiteral("55")}));
    }

    void uncheckingRecibirLecturasUnchecksResponderLecturas() {
        pulsar("ChRecibir");
        QVERIFY(!pagina().recibir);
        QVERIFY(!pagina().responder);
        QVERIFY(!control<QCheckBox>("ChResponder")->isChecked());
        QVERIFY(pagina().recibirEscrituras && pagina().responderEscrituras);
    }

    void uncheckingRecibirEscriturasLeavesResponderEscrituras() {
        pulsar("ChRecibirEscrituras");
        QVERIFY(!pagina().recibirEscrituras);
        QVERIFY(!control<QCheckBox>("ChRecibirEscrituras")->isChecked());
        QVERIFY(pagina().responderEscrituras);
        QVERIFY(control<QCheckBox>("ChResponderEscrituras")->isChecked());
    }

    void checkingARecibirBoxNeverChecksTheMatchingResponderBox() {
        pulsar("ChResponderEscrituras");
        pulsar("ChRecibir");
        pulsar("ChRecibirEscrituras");
        pulsar("ChRecibir");
        pulsar("ChRecibirEscrituras");
        QVERIFY(pagina().recibir && pagina().recibirEscrituras);
        QVERIFY(!pagina().responder && !pagina().responderEscrituras);
    }

    void responderAloneTouchesNothingElse() {
        pulsar("ChResponder");
        QVERIFY(!pagina().responder);
        QVERIFY(pagina().recibir);
    }

    void theInterlockHoldsWhenTheProgramUnchecks() {
        control<QCheckBox>("ChRecibir")->setChecked(false);
        QVERIFY(!pagina().recibir && !pagina().responder);
    }

    void aWriteRepaintsTheVisiblePage() {
        PasoDelTiempo tiempo(*vista_);
        tiempo.pasar(1s);
        pinturas_ = 0;
        esclavos_->escribir(2, 0, 1);
        tiempo.pasar(17ms);
        QVERIFY(pinturas_ > 0);
        QVERIFY(!pagina().marcada());
    }

    void aStreamOfWritesRepaintsAtMost60TimesASecond() {
        PasoDelTiempo tiempo(*vista_);
        tiempo.pasar(1s);
        pinturas_ = 0;
        for (int i = 1; i <= 1000; ++i) {
            esclavos_->escribir(2, 0, i);
            tiempo.pasar(1ms);
        }
        QVERIFY2(pinturas_ >= 50 && pinturas_ <= 60, qPrintable(QString::number(pinturas_)));
    }

    void theLastOfManyWritesIsPaintedAndThenNothingIs() {
        PasoDelTiempo tiempo(*vista_);
        for (int i = 1; i <= 5; ++i) {
            esclavos_->escribir(2, 0, i);
            tiempo.pasar(1ms);
        }
        tiempo.pasar(20ms);
        QVERIFY(!pagina().marcada());
        pinturas_ = 0;
        tiempo.pasar(1min);
        QCOMPARE(pinturas_, 0);
        for (const QTimer* uno : vista_->findChildren<QTimer*>())
            QVERIFY(!uno->isActive());
    }

    void aPageHiddenWhileItRestsStaysMarkedUntilItIsShown() {
        esclavos_->escribir(2, 0, 1);
        PasoDelTiempo tiempo(*vista_);
        tiempo.pasar(1ms);
        esclavos_->escribir(2, 0, 2);
        vista_->hide();
        tiempo.pasar(1min);
        QVERIFY(pagina().marcada());
        vista_->show();
        QVERIFY(!pagina().marcada());
    }

    void newRowsAreThereAtOnceWhetherThePageIsSeenOrNot() {
        esclavos_->ampliarTablaMW(2, 200, 9);
        QCOMPARE(grid().model()->rowCount(), 21);
        vista_->hide();
        esclavos_->ampliarTablaMW(2, 400, 9);
        QCOMPARE(grid().model()->rowCount(), 41);
        vista_->show();
        QVERIFY(!pagina().marcada());
    }

    void rowsComeOneByOneWithoutATurnOfTheEventLoop() {
        vista_->hide();
        for (int fila = 10; fila < 2000; ++fila) {
            esclavos_->ampliarTablaMW(2, fila * 10, 0);
            QCOMPARE(grid().model()->rowCount(), fila + 1);
        }
    }

    void registerZeroStandsInTheFirstCellWithAValueOfItsOwn() {
        esclavos_->escribir(2, 0, 4711);
        esclavos_->escribir(2, 1, 11);
        esclavos_->escribir(2, 10, 12);
        QCOMPARE(celda(1, 1), QStringLiteral("4711"));
        QCOMPARE(celda(1, 2), QStringLiteral("11"));
        QCOMPARE(celda(2, 1), QStringLiteral("12"));
    }

    void aFractionalAddressIsShownInTheRowOfTheUnroundedOne() {
        esclavos_->escribir(2, 0, 100);
        esclavos_->escribir(2, 10, 110);
        esclavos_->escribir(2, 9.5, 5); // register 10, row of 9, column of 10
        QCOMPARE(esclavos_->leer(2, 10), 5.0);
        QCOMPARE(esclavos_->leer(2, 0), 100.0);
        QCOMPARE(celda(1, 1), QStringLiteral("5"));
        QCOMPARE(celda(2, 1), QStringLiteral("110"));
        esclavos_->escribir(2, 0, 101);
        esclavos_->escribir(2, 10, 6);
        QCOMPARE(celda(1, 1), QStringLiteral("101"));
        QCOMPARE(celda(2, 1), QStringLiteral("6"));
        esclavos_->escribir(2, 5.4, 54);
        esclavos_->escribir(2, 10.5, 55); // rounds to 10, whose row it is
        QCOMPARE(celda(1, 6), QStringLiteral("54"));
        QCOMPARE(celda(2, 1), QStringLiteral("55"));
        esclavos_->escribir(2, -0.5, 3);
        QCOMPARE(celda(1, 1), QStringLiteral("3"));
    }

    void a65661RegisterTableShowsItsLastRegister() {
        esclavos_->ampliarTablaMW(2, 65535, 125);
        esclavos_->escribir(2, 65660, 7);
        QCOMPARE(grid().Rows(), 6568);
        QTRY_COMPARE(grid().model()->rowCount(), 6567);
        QCOMPARE(celda(6567, 0), QStringLiteral("65660"));
        QCOMPARE(celda(6567, 1), QStringLiteral("7"));
        grid().setFocus();
        QTest::keyClick(&grid(), Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(grid().Row(), 6567);
    }

    void theFrameStaysReadableInANarrowWindow() {
        for (const int ancho : {1200, 420, 220}) {
            vista_->resize(ancho, 700);
            QTest::qWait(0);
            for (const char* nombre : {"ChRecibir", "ChResponder", "ChRecibirEscrituras", "ChResponderEscrituras"}) {
                const auto* casilla = control<QCheckBox>(nombre);
                QVERIFY(casilla->width() >= casilla->sizeHint().width());
                QVERIFY(casilla->height() >= casilla->sizeHint().height());
                QVERIFY(casilla->parentWidget()->rect().contains(casilla->geometry()));
            }
        }
    }

    void theViewCanGoBeforeItsPage() {
        vista_.reset();
        esclavos_->escribir(2, 0, 1);
        QVERIFY(pagina().marcada());
    }
};

QTEST_MAIN(TestVistaPagina)
#include "VistaPaginaTest.moc"
