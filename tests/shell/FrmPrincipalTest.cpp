// The main window's controls, keys and looks.

#include "PrincipalDePrueba.h"

#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTableView>
#include <QTreeWidget>

class TestFrmPrincipal : public QObject {
    Q_OBJECT

    std::unique_ptr<PrincipalDePrueba> p_;

    FrmPrincipal& ventana() const { return *p_->ventana; }
    template <typename Control>
    Control& control(const char* nombre) const {
        return p_->control<Control>(nombre);
    }
    QTabBar& pestanas() const { return control<QTabBar>("TabStrip1"); }
    QPlainTextEdit& texto(const char* nombre) const { return control<QPlainTextEdit>(nombre); }
    void clic(const char* boton) const { QTest::mouseClick(&control<QPushButton>(boton), Qt::LeftButton); }
    void marcar(const char* casilla) const {
        auto& caja = control<QCheckBox>(casilla);
        QTest::mouseClick(&caja, Qt::LeftButton, {}, QPoint(8, caja.height() / 2));
    }
    QWidget* txrx() const { return ventana().findChild<QWidget*>(QStringLiteral("FrmTxRx")); }

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<PrincipalDePrueba>();
        QVERIFY(p_->cargar());
        ventana().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&ventana(), paciencia));
    }

    void cleanup() { p_.reset(); }

    void captionIsTheProgramsName() {
        QCOMPARE(ventana().objectName(), QStringLiteral("FrmPrincipal"));
        QCOMPARE(ventana().windowTitle(), QStringLiteral("Trelvano"));
    }

    void buttonsBearTheirNamesAndCaptions_data() {
        QTest::addColumn<QString>("texto");
        QTest::newRow("Command2") << QStringLiteral("Puentes");
        QTest::newRow("BtnBorrarTextosRXTX") << QStringLiteral("Borrar Tx/Rx");
        QTest::newRow("Command1") << QStringLiteral("About");
        QTest::newRow("BtnCerrar") << QStringLiteral("Cerrar Esclavo");
        QTest::newRow("BtnOcultar") << QStringLiteral("Ocultar");
        QTest::newRow("BtnEdicionCodigo") << QStringLiteral("Editar");
        QTest::newRow("BtnBorrar") << QStringLiteral("Borrar Escrituras");
        QTest::newRow("btnVerFormularioRS232") << QStringLiteral("RS232");
    }
    void buttonsBearTheirNamesAndCaptions() {
        QFETCH(QString, texto);
        const auto& boton = control<QPushButton>(QTest::currentDataTag());
        QCOMPARE(boton.text(), texto);
        QVERIFY(boton.isVisible());
        QVERIFY(boton.width() >= boton.fontMetrics().horizontalAdvance(texto));
    }

    void checkBoxesBearTheirNamesAndCaptions_data() {
        QTest::addColumn<QString>("texto");
        QTest::newRow("ChRxTx") << QStringLiteral("Ver TX/RX");
        QTest::newRow("chScript") << QStringLiteral("Ejecutar");
        QTest::newRow("ChRecibir(1)") << QStringLiteral("Recibir Lecturas");
        QTest::newRow("ChResponder(1)") << QStringLiteral("Responder Lecturas");
        QTest::newRow("ChRecibirEscrituras(1)") << QStringLiteral("Recibir Escrituras");
        QTest::newRow("ChResponderEscrituras(1)") << QStringLiteral("Responder Escrituras");
    }
    void checkBoxesBearTheirNamesAndCaptions() {
        QFETCH(QString, texto);
        const auto& casilla = control<QCheckBox>(QTest::currentDataTag());
        QCOMPARE(casilla.text(), texto);
        QVERIFY(casilla.isVisible());
        QVERIFY(casilla.width() >= casilla.sizeHint().width());
    }

    void labelsBearTheirNamesAndCaptions_data() {
        QTest::addColumn<QString>("texto");
        QTest::newRow("lblBaseDeTiempo") << QStringLiteral("Tiempo:");
        QTest::newRow("Label1") << QStringLiteral("Escrituras:");
        QTest::newRow("Label2") << QStringLiteral("Codigo Script");
        QTest::newRow("Label3") << QStringLiteral("Conexiones");
        QTest::newRow("Label4") << QString();
        QTest::newRow("lblDDEAviso") << QString();
    }
    void labelsBearTheirNamesAndCaptions() {
        QFETCH(QString, texto);
        QCOMPARE(control<QLabel>(QTest::currentDataTag()).text(), texto);
    }

    void otherControlsAreOfTheirKinds() {
        QVERIFY(control<QPlainTextEdit>("txtEscrituras").isReadOnly());
        QVERIFY(control<QPlainTextEdit>("txtTramas(11)").isReadOnly());
        QVERIFY(control<QTableView>("MSFlexGrid(1)").isVisible());
        QVERIFY(control<QGroupBox>("FrameControles(1)").isVisible());
        const auto& lista = control<QTreeWidget>("ListView1");
        QCOMPARE(lista.columnCount(), 2);
        QCOMPARE(lista.headerItem()->text(0), QStringLiteral("IP"));
        QCOMPARE(lista.headerItem()->text(1), QStringLiteral("ESTADO"));
    }

    void twelveTabsAndTheSecondInFront() {
        QCOMPARE(pestanas().count(), 12);
        for (int n = 0; n < 12; ++n) {
            QCOMPARE(pestanas().tabText(n), QStringLiteral("#%1").arg(n));
            QCOMPARE(pestanas().tabData(n).toString(), QStringLiteral("T%1").arg(n));
        }
        QCOMPARE(pestanas().currentIndex(), 1);
        QVERIFY(control<QTableView>("MSFlexGrid(1)").isVisible());
        QVERIFY(!control<QTableView>("MSFlexGrid(0)").isVisible());
    }

    void everyTableHoldsFiveHundredRegisters() {
        for (int n = 0; n < 12; ++n)
            QCOMPARE(p_->estacion->esclavos.limite(), 11);
        for (int n = 0; n < 12; ++n)
            QCOMPARE(p_->estacion->esclavos.valores(n).size(), std::size_t{500});
    }

    void clickOnATabShowsItsPage() {
        QTest::mouseClick(&pestanas(), Qt::LeftButton, {}, pestanas().tabRect(3).center());
        QVERIFY(control<QTableView>("MSFlexGrid(3)").isVisible());
        QVERIFY(!control<QTableView>("MSFlexGrid(1)").isVisible());
    }

    void slaveThatAMasterBringsIntoBeingGetsATabAndThePageInFrontStays() {
        const auto maestro = p_->conectarMaestro();
        QCOMPARE(PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::lectura(77), 13).size(), 13);
        QCOMPARE(pestanas().count(), 13);
        QCOMPARE(pestanas().tabText(12), QStringLiteral("#77"));
        QVERIFY(control<QTableView>("MSFlexGrid(1)").isVisible());
        pestanas().setCurrentIndex(12);
        QVERIFY(control<QTableView>("MSFlexGrid(77)").isVisible());
    }

    void controlTabChangesTheSlaveWhereverTheFocusIs_data() {
        QTest::addColumn<QString>("control");
        for (const char* nombre :
             {"TabStrip1", "MSFlexGrid(1)", "ChRecibir(1)", "txtTramas(1)", "ListView1", "txtEscrituras", "BtnCerrar"})
            QTest::newRow(nombre) << QString::fromLatin1(nombre);
    }
    void controlTabChangesTheSlaveWhereverTheFocusIs() {
        auto& conFoco = control<QWidget>(QTest::currentDataTag());
        conFoco.setFocus();
        QTest::keyClick(&conFoco, Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(pestanas().currentIndex(), 2);
        QVERIFY(control<QTableView>("MSFlexGrid(2)").isVisible());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(pestanas().currentIndex(), 1);
    }

    void controlTabGoesRoundAtBothEnds() {
        pestanas().setCurrentIndex(11);
        QTest::keyClick(&ventana(), Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(pestanas().currentIndex(), 0);
        QTest::keyClick(&ventana(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(pestanas().currentIndex(), 11);
    }

    void tabWalksFromTheTabsThroughThePageToTheButtons() {
        pestanas().setFocus();
        QStringList recorrido;
        for (int paso = 0; paso < 40; ++paso) {
            recorrido += QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            if (QApplication::focusWidget() == &pestanas())
                break;
        }
        const QStringList esperado{QStringLiteral("TabStrip1"),
                                   QStringLiteral("MSFlexGrid(1)"),
                                   QStringLiteral("ChRecibir(1)"),
                                   QStringLiteral("ChResponder(1)"),
                                   QStringLiteral("ChRecibirEscrituras(1)"),
                                   QStringLiteral("ChResponderEscrituras(1)"),
                                   QStringLiteral("txtTramas(1)"),
                                   QStringLiteral("ListView1"),
                                   QStringLiteral("BtnBorrar"),
                                   QStringLiteral("txtEscrituras"),
                                   QStringLiteral("chScript"),
                                   QStringLiteral("BtnEdicionCodigo"),
                                   QStringLiteral("ChRxTx"),
                                   QStringLiteral("BtnBorrarTextosRXTX"),
                                   QStringLiteral("Command2"),
                                   QStringLiteral("btnVerFormularioRS232"),
                                   QStringLiteral("Command1"),
                                   QStringLiteral("BtnOcultar"),
                                   QStringLiteral("BtnCerrar")};
        QVERIFY2(recorrido == esperado, qPrintable(recorrido.join(QLatin1Char(' '))));
    }

    void tabOrderHoldsForASlaveThatCameLater() {
        const auto maestro = p_->conectarMaestro();
        PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::lectura(50), 13);
        pestanas().setCurrentIndex(12);
        pestanas().setFocus();
        QTest::keyClick(&pestanas(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("MSFlexGrid(50)"));
        auto& ultimo = control<QWidget>("txtTramas(50)");
        ultimo.setFocus();
        QTest::keyClick(&ultimo, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("ListView1"));
    }

    void borrarEscriturasEmptiesTheWritesMonitorAlone() {
        marcar("ChRxTx");
        const auto maestro = p_->conectarMaestro();
        PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::escritura(1, 4, 99), 12);
        QTRY_VERIFY(texto("txtEscrituras").toPlainText().contains(QStringLiteral("ESCLAVO: 1/ Mw: 4 Valor:99")));
        QTRY_VERIFY(!texto("txtTramas(1)").toPlainText().isEmpty());
        clic("BtnBorrar");
        QTRY_COMPARE(texto("txtEscrituras").toPlainText(), QString());
        QVERIFY(!texto("txtTramas(1)").toPlainText().isEmpty());
    }

    void borrarTxRxEmptiesTheFramesOfAllSlavesAlone() {
        marcar("ChRxTx");
        const auto maestro = p_->conectarMaestro();
        PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::lectura(2), 13);
        PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::escritura(1, 4, 99), 12);
        auto& todas = *txrx()->findChild<QPlainTextEdit*>(QStringLiteral("Text1"));
        QTRY_VERIFY(!texto("txtTramas(1)").toPlainText().isEmpty() && !texto("txtTramas(2)").toPlainText().isEmpty() &&
                    !todas.toPlainText().isEmpty());
        clic("BtnBorrarTextosRXTX");
        QTRY_VERIFY(texto("txtTramas(1)").toPlainText().isEmpty() && texto("txtTramas(2)").toPlainText().isEmpty() &&
                    todas.toPlainText().isEmpty());
        QVERIFY(!texto("txtEscrituras").toPlainText().isEmpty());
    }

    void verTxRxShowsItsWindowWithoutTakingTheFocus() {
        QVERIFY(txrx() == nullptr);
        control<QWidget>("ChRxTx").setFocus();
        QTest::keyClick(&control<QWidget>("ChRxTx"), Qt::Key_Space);
        QVERIFY(txrx() != nullptr && txrx()->isVisible());
        QCOMPARE(txrx()->windowTitle(), QStringLiteral("TxRx"));
        QVERIFY(QTest::qWaitForWindowExposed(txrx(), paciencia));
        QCOMPARE(QApplication::activeWindow(), &ventana());
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("ChRxTx"));
        marcar("ChRxTx");
        QVERIFY(!txrx()->isVisible());
    }

    void closingTheTxRxWindowChangesNothingElse() {
        marcar("ChRxTx");
        txrx()->close();
        QVERIFY(control<QCheckBox>("ChRxTx").isChecked());
        const auto maestro = p_->conectarMaestro();
        PrincipalDePrueba::pedir(*maestro, PrincipalDePrueba::lectura(1), 13);
        QTRY_VERIFY(texto("txtTramas(1)").toPlainText().contains(QStringLiteral(" ( -TX-> Lectura ) ")));
        QVERIFY(!txrx()->isVisible());
        marcar("ChRxTx");
        marcar("ChRxTx");
        QVERIFY(txrx()->isVisible());
        QTRY_VERIFY(txrx()->findChild<QPlainTextEdit*>()->toPlainText().contains(QStringLiteral("Lectura")));
    }

    void connectionListHasARowForEverySocketEverUsed() {
        auto& lista = control<QTreeWidget>("ListView1");
        QCOMPARE(lista.topLevelItemCount(), 0);
        auto uno = p_->conectarMaestro();
        auto dos = p_->conectarMaestro();
        QTRY_COMPARE(lista.topLevelItemCount(), 2);
        p_->tic();
        for (int fila = 0; fila < 2; ++fila) {
            QCOMPARE(lista.topLevelItem(fila)->text(0), QStringLiteral("127.0.0.1"));
            QCOMPARE(lista.topLevelItem(fila)->text(1), QStringLiteral("Conectado"));
            QVERIFY(lista.topLevelItem(fila)->font(0).bold());
        }
        uno.reset();
        dos.reset();
        QTRY_VERIFY((p_->tic(), lista.topLevelItem(0)->text(1) == QStringLiteral("NO CONECTADO Y LIBRE") &&
                                    lista.topLevelItem(1)->text(1) == QStringLiteral("NO CONECTADO Y LIBRE")));
        QCOMPARE(lista.topLevelItemCount(), 2);
    }

    void portLabelIsGreenWhileListening() {
        const auto& etiqueta = control<QLabel>("LblPuertoLocal");
        QCOMPARE(etiqueta.text(), QStringLiteral("Puerto: %1").arg(p_->puerto));
        QCOMPARE(etiqueta.palette().color(QPalette::WindowText), QColor(0, 128, 0));
        QVERIFY(!control<QLabel>("lblDDEAviso").isVisible());
    }

    void portThatIsTakenTurnsTheLabelRedAndTheNoticeSaysWhyUntilItIsFree() {
        Reactor reactor;
        WinsockEvents nadie;
        Winsock ocupante(reactor, nadie);
        QVERIFY(!ocupante.Listen());
        p_->escribirConfig("PUERTO_VALOR=" + std::to_string(ocupante.LocalPort()) + "\r\n");
        p_->tic();
        const auto& etiqueta = control<QLabel>("LblPuertoLocal");
        const auto& aviso = control<QLabel>("lblDDEAviso");
        QCOMPARE(etiqueta.palette().color(QPalette::WindowText), QColor(255, 0, 0));
        QVERIFY(aviso.isVisible());
        QVERIFY(aviso.text().contains(QStringLiteral("ocupado")));
        ocupante.Close();
        p_->tic();
        QCOMPARE(etiqueta.palette().color(QPalette::WindowText), QColor(0, 128, 0));
        QVERIFY(!aviso.isVisible());
    }

    void portThatIsNoPortTurnsTheLabelRed_data() {
        QTest::addColumn<QString>("valor");
        for (const char* valor : {"texto", "0", "70000", "-1", "1e9"})
            QTest::newRow(valor) << QString::fromLatin1(valor);
    }
    void portThatIsNoPortTurnsTheLabelRed() {
        p_->escribirConfig(std::string("PUERTO_VALOR=") + QTest::currentDataTag() + "\r\n");
        p_->tic();
        QCOMPARE(control<QLabel>("LblPuertoLocal").palette().color(QPalette::WindowText), QColor(255, 0, 0));
        QVERIFY(control<QLabel>("lblDDEAviso").text().contains(QStringLiteral("no es válido")));
    }

    void aboutShowsItsTextsAndTheIcon() {
        clic("Command1");
        auto* about = ventana().findChild<QWidget*>(QStringLiteral("FrmAbout"));
        QVERIFY(about != nullptr && about->isVisible());
        QVERIFY(!about->isModal());
        QCOMPARE(about->windowTitle(), QStringLiteral("Trelvano - About"));
        QCOMPARE(about->findChild<QLabel*>(QStringLiteral("Label_ControlDeVercion"))->text(),
                 QStringLiteral("Pendra 3.1.9"));
        QCOMPARE(about->findChild<QLabel*>(QStringLiteral("LblDesc"))->text(),
                 QStringLiteral("Estación esclava Modbus TCP"));
        QTest::keyClick(about, Qt::Key_Escape);
        QVERIFY(!about->isVisible());
        clic("Command1");
        QVERIFY(about->isVisible());
    }

    void smallWindowsBearTheIconOfTheMainWindow() {
        QPixmap dibujo(16, 16);
        dibujo.fill(Qt::red);
        ventana().setWindowIcon(dibujo);
        marcar("ChRxTx");
        clic("Command1");
        auto* about = ventana().findChild<QWidget*>(QStringLiteral("FrmAbout"));
        QCOMPARE(txrx()->windowIcon().cacheKey(), ventana().windowIcon().cacheKey());
        QCOMPARE(about->windowIcon().cacheKey(), ventana().windowIcon().cacheKey());
        const QImage imagen = about->findChild<QLabel*>(QStringLiteral("Image1"))->pixmap().toImage();
        QCOMPARE(imagen.pixelColor(imagen.rect().center()), QColor(Qt::red));
    }

    void puentesShowsTheBridgeThatWasLoadedHidden() {
        auto* puentes = ventana().findChild<QWidget*>(QStringLiteral("FrmConexionesPuentes"));
        QVERIFY(puentes != nullptr && !puentes->isVisible());
        clic("Command2");
        QVERIFY(puentes->isVisible() && !puentes->isModal());
        QTRY_COMPARE(QApplication::activeWindow(), puentes);
        puentes->hide();
        clic("Command2");
        QVERIFY(puentes->isVisible());
    }

    void doubleClickOnACellOpensItForWritingWithTheHelpTopic() {
        control<QTabBar>("TabStrip1").setCurrentIndex(2);
        auto& grid = control<QTableView>("MSFlexGrid(2)");
        const QPoint celda = grid.visualRect(grid.model()->index(2, 4)).center();
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, celda);
        QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, celda);
        auto* mw = ventana().findChild<QWidget*>(QStringLiteral("FrmMW"));
        QVERIFY(mw != nullptr && mw->isVisible());
        QCOMPARE(mw->findChild<QLineEdit*>(QStringLiteral("TxtPlc"))->text(), QStringLiteral("2"));
        QCOMPARE(mw->findChild<QLineEdit*>(QStringLiteral("TxtDireccion"))->text(), QStringLiteral("24"));
        QCOMPARE(mw->property("HelpContextID").toInt(), 420);
        for (const QWidget* uno : mw->findChildren<QWidget*>())
            QCOMPARE(uno->property("HelpContextID").toInt(), 420);
    }

    void helpTopicIsOnTheWindowsAndOnEveryControl() {
        marcar("ChRxTx");
        clic("Command1");
        const auto* about = ventana().findChild<QWidget*>(QStringLiteral("FrmAbout"));
        for (const QWidget* formulario :
             {static_cast<const QWidget*>(&ventana()), about, static_cast<const QWidget*>(txrx())}) {
            QCOMPARE(formulario->property("HelpContextID").toInt(), 420);
            for (const QWidget* uno : formulario->findChildren<QWidget*>())
                if (!uno->objectName().isEmpty() && uno->window() == formulario)
                    QVERIFY2(uno->property("HelpContextID").toInt() == 420, qPrintable(uno->objectName()));
        }
        const auto* puentes = ventana().findChild<QWidget*>(QStringLiteral("FrmConexionesPuentes"));
        QVERIFY(!puentes->property("HelpContextID").isValid());
    }

    void tabsGridAndMonitorGrowWithTheWindowAndTheFrameKeepsItsHeight() {
        const auto medidas = [&] {
            return std::array{pestanas().width(), control<QWidget>("MSFlexGrid(1)").width(),
                              control<QWidget>("MSFlexGrid(1)").height(), control<QWidget>("txtTramas(1)").width(),
                              control<QWidget>("txtTramas(1)").height()};
        };
        ventana().resize(1200, 780);
        QTest::qWait(0);
        const auto antes = medidas();
        const int marco = control<QWidget>("FrameControles(1)").height();
        ventana().resize(1600, 1180);
        QTest::qWait(0);
        const auto despues = medidas();
        for (std::size_t i = 0; i < antes.size(); ++i)
            QVERIFY2(despues[i] > antes[i], qPrintable(QString::number(i)));
        QCOMPARE(control<QWidget>("FrameControles(1)").height(), marco);
    }

    void windowFitsASmallScreen() {
        const QSize minimo = ventana().minimumSizeHint();
        QVERIFY2(minimo.width() <= 1024 && minimo.height() <= 700,
                 qPrintable(QStringLiteral("%1 x %2").arg(minimo.width()).arg(minimo.height())));
        ventana().resize(1024, 700);
        QTest::qWait(0);
        QCOMPARE(ventana().size(), QSize(1024, 700));
        for (const QPushButton* boton : ventana().findChildren<QPushButton*>())
            if (boton->window() == &ventana())
                QVERIFY2(boton->width() >= boton->fontMetrics().horizontalAdvance(boton->text()) + 8,
                         qPrintable(boton->objectName()));
        for (const QCheckBox* casilla : ventana().findChildren<QCheckBox*>())
            if (casilla->isVisible())
                QVERIFY2(casilla->width() >= casilla->sizeHint().width(), qPrintable(casilla->objectName()));
    }

    void everyControlHasAnAccessibleName() {
        for (QWidget* uno : ventana().findChildren<QWidget*>()) {
            if (uno->window() != &ventana() || !uno->isVisible() || uno->focusPolicy() == Qt::NoFocus ||
                uno->objectName().isEmpty() || uno->objectName().startsWith(QStringLiteral("qt_")))
                continue;
            QAccessibleInterface* accesible = QAccessible::queryAccessibleInterface(uno);
            QVERIFY2(accesible != nullptr && !accesible->text(QAccessible::Name).isEmpty(),
                     qPrintable(uno->objectName()));
        }
    }

    void darkPaletteReachesEveryControl() {
        const QPalette claro = QApplication::palette();
        QPalette oscuro(QColor(40, 40, 40));
        oscuro.setColor(QPalette::Base, QColor(25, 25, 25));
        QApplication::setPalette(oscuro);
        QTest::qWait(0);
        for (const QWidget* uno : ventana().findChildren<QWidget*>()) {
            if (uno->objectName() == QStringLiteral("LblPuertoLocal"))
                continue; // its colours tell a state and have a light ground of their own
            QVERIFY2(uno->palette().color(QPalette::Window).lightness() < 128, qPrintable(uno->objectName()));
            QVERIFY2(uno->palette().color(QPalette::Base).lightness() < 128, qPrintable(uno->objectName()));
            QVERIFY2(uno->styleSheet().isEmpty(), qPrintable(uno->objectName()));
        }
        QApplication::setPalette(claro);
    }

    void portLabelCanBeReadOnADarkTheme() {
        const QPalette claro = QApplication::palette();
        QApplication::setPalette(QPalette(QColor(40, 40, 40)));
        p_->tic();
        const auto& etiqueta = control<QLabel>("LblPuertoLocal");
        QCOMPARE(etiqueta.palette().color(QPalette::WindowText), QColor(0, 128, 0));
        QVERIFY(etiqueta.autoFillBackground());
        QVERIFY(etiqueta.palette().color(QPalette::Window).lightness() > 200);
        QApplication::setPalette(claro);
        p_->tic();
        QVERIFY(!etiqueta.autoFillBackground());
    }
};

QTEST_MAIN(TestFrmPrincipal)
#include "FrmPrincipalTest.moc"
