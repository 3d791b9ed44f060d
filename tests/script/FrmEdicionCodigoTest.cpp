// The script editor's window: file, period, saving, errors, find and replace, keys; through real events.

#include "script/FrmEdicionCodigo.h"

#include "CajaDeMensaje.h"
#include "EventosFalsos.h"
#include "EventosPendientes.h"
#include "platform/window/PaginaManual.h"
#include "script/EditorDePrueba.h"

#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTextBlock>

namespace {

constexpr const char* clavePeriodo = "Ejecucion_Codigo_Milisegundos";

vbs::ScriptFailure falloEn(std::uint32_t linea, std::u16string texto) {
    vbs::ScriptFailure fallo;
    fallo.number = 11;
    fallo.description = u"División por cero";
    fallo.line = linea;
    fallo.column = 5;
    fallo.lineText = std::move(texto);
    return fallo;
}

} // namespace

class TestFrmEdicionCodigo : public EditorDePrueba {
    Q_OBJECT

    QLineEdit& periodo() const { return control<QLineEdit>("txtIntervaloDeTiempo"); }
    QString estado() const { return control<QLabel>("lblEstado").text(); }
    QString mensajeBusqueda() const { return control<QLabel>("lblBusqueda").text(); }
    QString seleccionado() const { return txtCodigo().textCursor().selectedText(); }
    void guardar() const { clic("BtnGuardar"); }
    void escribirPeriodo(const QString& texto) const {
        QTest::mouseClick(&periodo(), Qt::LeftButton);
        periodo().selectAll();
        if (texto.isEmpty())
            tecla(Qt::Key_Delete);
        else
            QTest::keyClicks(&periodo(), texto);
    }

private Q_SLOTS:
    void init() { preparar(); }
    void cleanup() { recoger(); }

    // ------------------------------------------------------------------------------------------------ loading

    void withoutAFileTheTextIsEmpty() {
        abrir();
        QCOMPARE(txtCodigo().texto(), QString());
        QVERIFY(!std::filesystem::exists(archivo()));
    }

    void loadsTheFileOfTheProgramWithoutTheEmptyLinesAtItsHead() {
        abrirCon("\r\n\r\na = 1\r\n\r\nb = \"ñ\"");
        QCOMPARE(txtCodigo().toPlainText(), QStringLiteral("a = 1\n\nb = \"ñ\"\n"));
        QVERIFY(frm_->windowTitle().startsWith(QStringLiteral("codigoTrelvano.txt")));
    }

    void loadsTheProjectsScript() {
        escribirArchivo(archivo(), "del programa");
        escribirArchivo(*carpeta_ / "P.ZQP", "");
        escribirArchivo(*carpeta_ / "P.KOVAScrip", "del proyecto");
        config_->valores["RutaProyecto"] = (*carpeta_ / "P.ZQP").string();
        abrir();
        QCOMPARE(txtCodigo().texto(), QStringLiteral("del proyecto\n"));
    }

    void projectWithoutScriptShowsTheProgramsAndSavesItsOwn() {
        escribirArchivo(archivo(), "del programa");
        escribirArchivo(*carpeta_ / "p.zqp", "");
        config_->valores["RutaProyecto"] = (*carpeta_ / "p.zqp").string();
        abrir();
        QCOMPARE(txtCodigo().texto(), QStringLiteral("del programa\n"));
        guardar();
        QCOMPARE(contenidoDe(*carpeta_ / "p.KOVAScrip"), std::string("del programa\r\n\r\n"));
        QCOMPARE(contenidoDe(archivo()), std::string("del programa"));
        QCOMPARE(codigo_->rutaParaLeer(), *carpeta_ / "p.KOVAScrip"); // what the next pass runs
        QVERIFY(frm_->windowTitle().startsWith(QStringLiteral("p.KOVAScrip")));
    }

    void periodIsReadWithDefaultZeroAndWrittenBack() {
        abrir();
        QCOMPARE(periodo().text(), QStringLiteral("0"));
        QCOMPARE(config_->valores[clavePeriodo], std::string("0"));
    }

    void storedPeriodIsShown() {
        config_->valores[clavePeriodo] = "250";
        abrir();
        QCOMPARE(periodo().text(), QStringLiteral("250"));
    }

    void fileThatCannotBeReadIsToldAndTheWindowOpens() {
        std::filesystem::create_directory(archivo());
        CajaDeMensaje caja;
        abrir();
        QTRY_COMPARE(caja.vistas, 1);
        QCOMPARE(caja.icono, QMessageBox::Critical);
        QCOMPARE(txtCodigo().texto(), QString());
        QVERIFY(estado().contains(QStringLiteral("No se pudo leer")));
    }

    // ------------------------------------------------------------------------------------------------- period

    void badPeriodIsToldSetToThousandAndKeepsTheFocus_data() {
        QTest::addColumn<QString>("escrito");
        QTest::addColumn<QString>("mensaje");
        const QString vacio = QStringLiteral("Error en el Intervalo de Tiempo.\r\n"
                                             " Se asgina por defecto 1000 Milisegundos");
        const QString texto = QStringLiteral("Error en el Intervalo de Tiempo.\r\n"
                                             "  Se asgina por defecto 1000 Milisegundos");
        const QString fuera = QStringLiteral("Error en el Intervalo de Tiempo.\r\n"
                                             "Maximo 60000 milisegundos. Minimo 10 milisegundos.\r\n"
                                             "Se asgina por defecto 1000 Milisegundos");
        QTest::newRow("empty") << QString() << vacio;
        QTest::newRow("blanks") << QStringLiteral("   ") << vacio;
        QTest::newRow("letters") << QStringLiteral("abc") << texto;
        QTest::newRow("number and letters") << QStringLiteral("100 ms") << texto;
        QTest::newRow("9") << QStringLiteral("9") << fuera;
        QTest::newRow("9,99") << QStringLiteral("9,99") << fuera;
        QTest::newRow("60001") << QStringLiteral("60001") << fuera;
        QTest::newRow("negative") << QStringLiteral("-100") << fuera;
        QTest::newRow("1e12") << QStringLiteral("1e12") << fuera;
    }
    void badPeriodIsToldSetToThousandAndKeepsTheFocus() {
        QFETCH(QString, escrito);
        config_->valores[clavePeriodo] = "500";
        abrir();
        escribirPeriodo(escrito);
        CajaDeMensaje caja;
        QTest::mouseClick(txtCodigo().viewport(), Qt::LeftButton);
        QTRY_COMPARE(caja.vistas, 1);
        QTEST(caja.texto, "mensaje");
        QCOMPARE(caja.icono, QMessageBox::Critical);
        QCOMPARE(caja.modalidad, Qt::ApplicationModal);
        QTRY_COMPARE(periodo().text(), QStringLiteral("1000"));
        QTRY_VERIFY(periodo().hasFocus());
        QTest::mouseClick(txtCodigo().viewport(), Qt::LeftButton); // 1000 is good
        QTRY_VERIFY(txtCodigo().hasFocus());
        QCOMPARE(caja.vistas, 1);
        QCOMPARE(config_->valores[clavePeriodo], std::string("500")); // nothing is stored before a save
    }

    void goodPeriodsAreAccepted_data() {
        QTest::addColumn<QString>("escrito");
        for (const char* escrito : {"10", "60000", "12,5", " 500 "})
            QTest::newRow(escrito) << QString::fromLatin1(escrito);
    }
    void goodPeriodsAreAccepted() {
        QFETCH(QString, escrito);
        abrir();
        escribirPeriodo(escrito);
        CajaDeMensaje caja;
        tecla(Qt::Key_Tab);
        correrLoPendiente(); // a message would be answered by then
        QVERIFY(!periodo().hasFocus());
        QCOMPARE(caja.vistas, 0);
        QCOMPARE(periodo().text(), escrito);
    }

    void openingTheWindowChecksNothing() {
        CajaDeMensaje caja;
        abrir(); // the period is 0
        QVERIFY(txtCodigo().hasFocus());
        correrLoPendiente();
        QCOMPARE(caja.vistas, 0);
    }

    void saveButtonWithABadPeriodInTheBoxSavesNothing() {
        abrirCon("a = 1");
        escribirPeriodo(QStringLiteral("abc"));
        CajaDeMensaje caja;
        guardar();
        QCOMPARE(caja.vistas, 1);
        QCOMPARE(periodo().text(), QStringLiteral("1000"));
        QCOMPARE(contenidoDe(archivo()), std::string("a = 1"));
        guardar();
        QCOMPARE(config_->valores[clavePeriodo], std::string("1000"));
    }

    void saveKeyInTheBoxChecksThePeriodFirst() {
        abrirCon("a = 1");
        escribirPeriodo(QStringLiteral("5"));
        CajaDeMensaje caja;
        tecla(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(caja.vistas, 1);
        QCOMPARE(contenidoDe(archivo()), std::string("a = 1"));
        QTRY_VERIFY(periodo().hasFocus());
    }

    void exitButtonWithABadPeriodInTheBoxStays() {
        abrir();
        escribirPeriodo(QString());
        CajaDeMensaje caja;
        clic("BtnSalir");
        QCOMPARE(caja.vistas, 1);
        QVERIFY(frm_->isVisible());
        clic("BtnSalir");
        QTRY_VERIFY(!frm_);
    }

    void closeBoxWithABadPeriodInTheBoxClosesWithoutAWord() {
        abrir();
        escribirPeriodo(QStringLiteral("abc"));
        CajaDeMensaje caja;
        frm_->close();
        QTRY_VERIFY(!frm_);
        QCOMPARE(caja.vistas, 0);
    }

    // ------------------------------------------------------------------------------------------------- saving

    void saveWritesTheTextWithCrLfAndOneMore() {
        abrir();
        QTest::keyClicks(&txtCodigo(), QStringLiteral("a = 1"));
        tecla(Qt::Key_Return);
        QTest::keyClicks(&txtCodigo(), QStringLiteral("b = 2"));
        guardar();
        QCOMPARE(contenidoDe(archivo()), std::string("a = 1\r\nb = 2\r\n"));
        QVERIFY(frm_->isVisible());
        QCOMPARE(estado(), QStringLiteral("Guardado."));
    }

    void saveKeepsTheEncodingOfTheFile() {
        abrirCon("a = \"\xF1\"");
        QCOMPARE(txtCodigo().texto(), QStringLiteral("a = \"ñ\"\n"));
        guardar();
        QCOMPARE(contenidoDe(archivo()), std::string("a = \"\xF1\"\r\n\r\n"));
    }

    void savedFileIsLoadedAgainAsItWas() {
        abrir();
        txtCodigo().ponerTexto(QStringLiteral("a = \"\u00A0€\"\n\n  b = 2"));
        guardar();
        frm_->close();
        QTRY_VERIFY(!frm_);
        abrir();
        QCOMPARE(txtCodigo().texto(), QStringLiteral("a = \"\u00A0€\"\n\n  b = 2\n"));
    }

    void newPeriodIsStoredAsItsText() {
        config_->valores[clavePeriodo] = "500";
        abrir();
        escribirPeriodo(QStringLiteral("12,5"));
        guardar();
        QCOMPARE(config_->valores[clavePeriodo], std::string("12,5"));
        QVERIFY(clics_.empty()); // automation is off
    }

    void newPeriodRearmsTheTimerWhileAutomationIsOn() {
        config_->valores[clavePeriodo] = "500";
        abrir();
        chScript_->setChecked(true);
        clics_.clear();
        escribirPeriodo(QStringLiteral("70"));
        guardar();
        QCOMPARE(clics_, std::vector<bool>({false, true}));
        QCOMPARE(config_->valores[clavePeriodo], std::string("70"));
    }

    void rearmingStoresThePeriodThenUnticksAndTicksWithEventsAfterEach() {
        config_->valores[clavePeriodo] = "500";
        chScript_->setChecked(true);
        EventosFalsos eventos;
        frm_ = new FrmEdicionCodigo(*codigo_, *config_, *chScript_, *ejecutor_, eventos, principal_.get());
        frm_->show();
        QStringList orden;
        eventos.alPasarEventos = [&] { orden << QStringLiteral("events"); };
        connect(chScript_, &QCheckBox::toggled, frm_, [&](bool marcada) {
            orden << QString::fromStdString((marcada ? "ticked at " : "unticked at ") + config_->valores[clavePeriodo]);
        });
        escribirPeriodo(QStringLiteral("70"));
        guardar();
        QCOMPARE(orden, (QStringList{"unticked at 70", "events", "ticked at 70", "events"}));
        delete frm_;
    }

    void windowClosedWhileItSavesIsGoneAndAutomationOn_data() {
        QTest::addColumn<bool>("conBoton");
        QTest::newRow("Salir") << true;
        QTest::newRow("close box") << false;
    }
    void windowClosedWhileItSavesIsGoneAndAutomationOn() {
        QFETCH(bool, conBoton);
        config_->valores[clavePeriodo] = "500";
        abrirCon("a = 1");
        chScript_->setChecked(true);
        clics_.clear();
        escribirPeriodo(QStringLiteral("70"));
        // The click that waits in the queue while the save is at work.
        connect(chScript_, &QCheckBox::toggled, frm_, [this, conBoton](bool marcada) {
            if (!marcada)
                QTimer::singleShot(0, frm_, [this, conBoton] { conBoton ? clic("BtnSalir") : void(frm_->close()); });
        });
        bool seFueDurante = false;
        connect(frm_, &QObject::destroyed, chScript_, [&] { seFueDurante = true; });
        guardar();
        QVERIFY(seFueDurante);
        QCOMPARE(contenidoDe(archivo()), std::string("a = 1\r\n\r\n"));
        QCOMPARE(config_->valores[clavePeriodo], std::string("70"));
        QCOMPARE(clics_, std::vector<bool>({false, true}));
        QVERIFY(chScript_->isChecked());
    }

    void windowThatEndsUnderItsPeriodMessageIsNotTouched() {
        abrir();
        escribirPeriodo(QStringLiteral("abc"));
        QTimer vigia;
        connect(&vigia, &QTimer::timeout, this, [this] {
            if (QApplication::activeModalWidget() != nullptr)
                delete frm_;
        });
        vigia.start(5);
        frm_->comprobarPeriodo();
        QVERIFY(!frm_);
    }

    void unchangedPeriodRearmsAndStoresNothing() {
        config_->valores[clavePeriodo] = "500";
        abrir();
        chScript_->setChecked(true);
        clics_.clear();
        for (const char* igual : {"500", "500,0", " 500", "5e2"}) {
            escribirPeriodo(QString::fromLatin1(igual));
            guardar();
        }
        QVERIFY(clics_.empty());
        QVERIFY(config_->escritas.empty());
    }

    void periodThatChangedInTheFileMeanwhileIsComparedAnew() {
        config_->valores[clavePeriodo] = "500";
        abrir();
        config_->valores[clavePeriodo] = "70";
        guardar();
        QCOMPARE(config_->valores[clavePeriodo], std::string("500"));
    }

    void saveThatFailsIsToldAndTheTextStaysUnsaved() {
        // Root may write anywhere, so the folder is taken away.
        abrirCon("a = 1");
        QTest::keyClicks(&txtCodigo(), QStringLiteral("x"));
        std::filesystem::remove_all(carpeta_->ruta());
        CajaDeMensaje caja;
        guardar();
        QCOMPARE(caja.vistas, 1);
        QCOMPARE(caja.icono, QMessageBox::Critical);
        QCOMPARE(caja.texto,
                 QStringLiteral("No se encontró la ruta de acceso: ") + QString::fromStdString(archivo().string()));
        QVERIFY(estado().startsWith(QStringLiteral("No se pudo guardar.")));
        QVERIFY(frm_->windowTitle().startsWith(u'*'));
        QVERIFY(frm_->isVisible());
        std::filesystem::create_directory(carpeta_->ruta());
        guardar();
        QCOMPARE(contenidoDe(archivo()), std::string("xa = 1\r\n\r\n"));
    }

    void fileChangedMeanwhileIsReplacedOnlyAfterAQuestion() {
        abrirCon("a = 1");
        escribirArchivo(archivo(), "b = 2");
        CajaDeMensaje caja(QStringLiteral("&No"));
        guardar();
        QCOMPARE(caja.vistas, 1);
        QVERIFY(caja.texto.contains(QStringLiteral("cambió en el disco")));
        QCOMPARE(contenidoDe(archivo()), std::string("b = 2"));
        QCOMPARE(estado(), QStringLiteral("No se guardó: el archivo cambió en el disco."));
        caja.boton = QStringLiteral("&Sí");
        guardar();
        QCOMPARE(caja.vistas, 2);
        QCOMPARE(contenidoDe(archivo()), std::string("a = 1\r\n\r\n"));
        guardar(); // it is known now
        QCOMPARE(caja.vistas, 2);
    }

    void fileThatCameUpMeanwhileIsNotReplacedUnasked() {
        abrir();
        escribirArchivo(archivo(), "b = 2");
        CajaDeMensaje caja(QStringLiteral("&No"));
        guardar();
        QCOMPARE(caja.vistas, 1);
        QCOMPARE(contenidoDe(archivo()), std::string("b = 2"));
    }

    void fileThatIsGoneOrTheSameIsWrittenWithoutAQuestion() {
        abrirCon("a = 1");
        escribirArchivo(archivo(), "a = 1");
        CajaDeMensaje caja;
        guardar();
        std::filesystem::remove(archivo());
        guardar();
        QCOMPARE(caja.vistas, 0);
        QVERIFY(std::filesystem::exists(archivo()));
    }

    void saveOfATextWithAnErrorTellsBoth() {
        abrir();
        QTest::keyClicks(&txtCodigo(), QStringLiteral("a = "));
        guardar();
        QVERIFY2(estado().startsWith(QStringLiteral("Guardado. Error, línea 1")), qPrintable(estado()));
        QTest::keyClicks(&txtCodigo(), QStringLiteral("1"));
        QTRY_COMPARE(estado(), QString()); // the text is no longer the one that was saved
    }

    void exitClosesWithoutSaving() {
        abrirCon("a = 1");
        QTest::keyClicks(&txtCodigo(), QStringLiteral("x"));
        CajaDeMensaje caja;
        clic("BtnSalir");
        QTRY_VERIFY(!frm_);
        QCOMPARE(caja.vistas, 0);
        QCOMPARE(contenidoDe(archivo()), std::string("a = 1"));
    }

    void starTellsOfChanges() {
        abrirCon("a = 1");
        QVERIFY(!frm_->windowTitle().contains(u'*'));
        QTest::keyClicks(&txtCodigo(), QStringLiteral("x"));
        QVERIFY(frm_->windowTitle().startsWith(u'*'));
        tecla(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!frm_->windowTitle().contains(u'*'));
        QTest::keyClicks(&txtCodigo(), QStringLiteral("y"));
        tecla(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!frm_->windowTitle().contains(u'*'));
        escribirPeriodo(QStringLiteral("77"));
        QVERIFY(frm_->windowTitle().startsWith(u'*'));
        guardar();
        QVERIFY(!frm_->windowTitle().contains(u'*'));
    }

    // ------------------------------------------------------------------------------------------------- errors

    void firstErrorIsUnderlinedAndToldAfterAPause() {
        abrir();
        QTest::keyClicks(&txtCodigo(), QStringLiteral("a = "));
        QCOMPARE(estado(), QString()); // not while one types
        QTRY_VERIFY(estado().startsWith(QStringLiteral("Error, línea 1, columna ")));
        const auto subrayado = [this] {
            const auto marcas = txtCodigo().extraSelections();
            return std::any_of(marcas.begin(), marcas.end(), [](const auto& marca) {
                return marca.format.underlineStyle() == QTextCharFormat::WaveUnderline;
            });
        };
        QVERIFY(subrayado());
        QTest::keyClicks(&txtCodigo(), QStringLiteral("1"));
        QTRY_COMPARE(estado(), QString());
        QVERIFY(!subrayado());
    }

    void textLoadedWithAnErrorIsToldToo() {
        abrirCon("For i = 1 To 2\r\n");
        QTRY_VERIFY(estado().startsWith(QStringLiteral("Error, línea 2")));
    }

    void veryLongTextIsCheckedWhenItIsSaved() {
        abrir();
        txtCodigo().ponerTexto(QStringLiteral("a = 1\n").repeated(200'000) + QStringLiteral("If"));
        QVERIFY(estado().contains(QStringLiteral("se comprueba al guardar")));
        guardar();
        QVERIFY(estado().startsWith(QStringLiteral("Guardado. Error, línea 200001")));
    }

    void failureOfAPassIsToldAndItsLineMarked() {
        abrirCon("a = 1\r\nx = 1 / 0\r\n");
        frm_->mostrarFallo(falloEn(2, u"x = 1 / 0"));
        QCOMPARE(estado(), QStringLiteral("Falló al ejecutar, línea 2, columna 5: División por cero (error 11)"));
        QCOMPARE(lineaMarcada(), 2);
        frm_->mostrarFallo({});
        QCOMPARE(estado(), QString());
        QCOMPARE(lineaMarcada(), 0);
    }

    void lineOfTheFailureIsToldWhereItStandsNow() {
        abrirCon("a = 1\r\nx = 1 / 0\r\n");
        frm_->mostrarFallo(falloEn(2, u"x = 1 / 0"));
        tecla(Qt::Key_Return);
        QCOMPARE(lineaMarcada(), 3);
        QVERIFY2(estado().contains(QStringLiteral("línea 3")), qPrintable(estado()));
        tecla(Qt::Key_F8);
        QCOMPARE(txtCodigo().textCursor().blockNumber(), 2);
    }

    void lineOfTheFailureCountsEmptyLinesAtTheHead() {
        abrir();
        txtCodigo().ponerTexto(QStringLiteral("\n\na = 1\nx = 1 / 0"));
        frm_->mostrarFallo(falloEn(2, u"x = 1 / 0")); // the file is run without them
        QCOMPARE(lineaMarcada(), 4);
        QVERIFY(estado().contains(QStringLiteral("línea 4")));
    }

    void lineThatIsNoLongerThereIsNotMarked() {
        abrirCon("otra cosa\r\n");
        frm_->mostrarFallo(falloEn(1, u"x = 1 / 0"));
        QCOMPARE(lineaMarcada(), 0);
        QVERIFY(estado().startsWith(QStringLiteral("Falló al ejecutar")));
    }

    void f8GoesToTheError() {
        abrirCon("a = 1\r\nx = 1 / 0\r\n");
        frm_->mostrarFallo(falloEn(2, u"x = 1 / 0"));
        tecla(Qt::Key_F8);
        QCOMPARE(txtCodigo().textCursor().blockNumber(), 1);
        QCOMPARE(txtCodigo().textCursor().positionInBlock(), 4);
    }

    void positionOfTheCursorIsShown() {
        abrirCon("abc\r\ndef");
        QCOMPARE(control<QLabel>("lblPosicion").text(), QStringLiteral("Línea 1, columna 1"));
        tecla(Qt::Key_Down);
        tecla(Qt::Key_End);
        QCOMPARE(control<QLabel>("lblPosicion").text(), QStringLiteral("Línea 2, columna 4"));
    }

    // -------------------------------------------------------------------------------------- find and replace

    void findGoesFromOneToTheNextAndRound() {
        abrirCon("uno dos UNO");
        tecla(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(control<QLineEdit>("txtBuscar").hasFocus());
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("uno"));
        tecla(Qt::Key_Return);
        QCOMPARE(seleccionado(), QStringLiteral("uno"));
        tecla(Qt::Key_F3);
        QCOMPARE(seleccionado(), QStringLiteral("UNO"));
        QCOMPARE(mensajeBusqueda(), QString());
        tecla(Qt::Key_F3);
        QCOMPARE(seleccionado(), QStringLiteral("uno"));
        QCOMPARE(mensajeBusqueda(), QStringLiteral("Desde el principio"));
        tecla(Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(seleccionado(), QStringLiteral("UNO"));
        QCOMPARE(mensajeBusqueda(), QStringLiteral("Desde el final"));
        tecla(Qt::Key_Escape);
        QVERIFY(txtCodigo().hasFocus());
        QVERIFY(!control<QWidget>("barraBusqueda").isVisible());
        tecla(Qt::Key_F3); // also with the bar hidden
        QCOMPARE(seleccionado(), QStringLiteral("uno"));
    }

    void closingTheFindBarIsNoLeavingOfThePeriod() {
        abrir(); // the period is 0
        CajaDeMensaje caja;
        tecla(Qt::Key_F, Qt::ControlModifier);
        tecla(Qt::Key_Escape);
        correrLoPendiente(); // a message would be answered by then
        QCOMPARE(caja.vistas, 0);
        QVERIFY(txtCodigo().hasFocus());
    }

    void findTakesWhatIsSelected() {
        abrirCon("uno dos uno");
        tecla(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
        tecla(Qt::Key_Left, Qt::ShiftModifier); // not the blank behind it
        tecla(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(control<QLineEdit>("txtBuscar").text(), QStringLiteral("uno"));
    }

    void findOfWhatIsNotThereSaysSo() {
        abrirCon("uno");
        tecla(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("tres"));
        tecla(Qt::Key_Return);
        QCOMPARE(mensajeBusqueda(), QStringLiteral("No se encuentra"));
    }

    void findMarksEveryOccurrenceInSight() {
        abrirCon("x = 1\r\nuno = 2\r\nuno = 3");
        QWidget& zona = *txtCodigo().viewport();
        const auto cambiados = [&](const QImage& antes) {
            const QImage ahora = zona.grab().toImage();
            int filas = 0;
            for (int y = 0; y < ahora.height(); ++y)
                filas += ahora.copy(0, y, ahora.width(), 1) == antes.copy(0, y, antes.width(), 1) ? 0 : 1;
            return filas;
        };
        tecla(Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(control<QWidget>("barraBusqueda").height() > 20);
        const QImage antes = zona.grab().toImage();
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("uno"));
        const int alto = txtCodigo().fontMetrics().height();
        QVERIFY2(cambiados(antes) >= 2 * alto - 2, qPrintable(QString::number(cambiados(antes))));
        tecla(Qt::Key_Escape);
        const QImage despues = zona.grab().toImage();
        tecla(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(cambiados(despues) >= 2 * alto - 2);
    }

    void findHeedsCaseWhenToldTo() {
        abrirCon("uno UNO");
        tecla(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("UNO"));
        clic("chMayusculas");
        clic("btnSiguiente");
        QCOMPARE(seleccionado(), QStringLiteral("UNO"));
        QCOMPARE(txtCodigo().textCursor().selectionStart(), 4);
    }

    void replaceOneByOneAndAll() {
        abrirCon("a b a b a");
        tecla(Qt::Key_H, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("a"));
        QTest::mouseClick(&control<QLineEdit>("txtReemplazar"), Qt::LeftButton);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("zz"));
        clic("btnReemplazar"); // finds the first
        clic("btnReemplazar");
        QCOMPARE(txtCodigo().texto(), QStringLiteral("zz b a b a\n"));
        clic("btnReemplazarTodo");
        QCOMPARE(txtCodigo().texto(), QStringLiteral("zz b zz b zz\n"));
        QCOMPARE(mensajeBusqueda(), QStringLiteral("2 reemplazos"));
    }

    void openingTheFindBarKeepsTheLineOfTheCursorInSight() {
        abrirCon(QByteArray("a = 1\r\n").repeated(200).toStdString());
        for (int vez = 0; !abajoDelTodo() && vez < 200; ++vez)
            tecla(Qt::Key_Down);
        tecla(Qt::Key_H, Qt::ControlModifier);
        QCOMPARE(txtCodigo().textCursor().blockNumber() > 0, true);
        QTRY_VERIFY(control<QWidget>("barraBusqueda").height() > 20);
        QVERIFY(txtCodigo().cursorALaVista());
    }

    void findBarOpensWithoutItsSecondRow() {
        abrir();
        tecla(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(!control<QLineEdit>("txtReemplazar").isVisible());
        tecla(Qt::Key_H, Qt::ControlModifier);
        QVERIFY(control<QLineEdit>("txtReemplazar").isVisible());
    }

    // --------------------------------------------------------------------------------------------- other keys

    void ctrlGGoesToALineAndNothingWaitsForTheAnswer() {
        abrirCon("uno\r\ndos\r\ntres\r\ncuatro");
        tecla(Qt::Key_Down);
        tecla(Qt::Key_G, Qt::ControlModifier);
        const QPointer<QInputDialog> pregunta = frm_->findChild<QInputDialog*>(QStringLiteral("dlgIrALinea"));
        QVERIFY(pregunta && pregunta->isVisible());
        QCOMPARE(pregunta->intValue(), 2);
        for (const auto* boton : pregunta->findChildren<QAbstractButton*>())
            QVERIFY2(boton->isEnabled(), qPrintable(boton->text()));
        QCOMPARE(pregunta->intMaximum(), txtCodigo().blockCount());
        QCOMPARE(paginaManualDe(pregunta), QStringLiteral("editor.md#las-teclas"));
        auto* numero = pregunta->findChild<QSpinBox*>();
        numero->selectAll();
        QTest::keyClicks(numero, QStringLiteral("3"));
        QTest::keyClick(numero, Qt::Key_Return);
        QCOMPARE(txtCodigo().textCursor().blockNumber(), 2);
        QTRY_VERIFY(!pregunta);
    }

    void editorThatEndsTakesItsQuestionAlong() {
        abrirCon("uno");
        tecla(Qt::Key_G, Qt::ControlModifier);
        const QPointer<QInputDialog> pregunta = frm_->findChild<QInputDialog*>(QStringLiteral("dlgIrALinea"));
        QVERIFY(pregunta);
        frm_->close();
        QTRY_VERIFY(!frm_);
        QVERIFY(!pregunta);
    }

    void f1AsksForThePageOfWhatTheCursorStandsIn() {
        abrirCon("x = 1\r\nmw.escribir 1, 0, x");
        QCOMPARE(paginaManualDe(QApplication::focusWidget()), QStringLiteral("editor.md"));
        tecla(Qt::Key_Down);
        QCOMPARE(paginaManualDe(QApplication::focusWidget()), QStringLiteral("scripts.md#lo-que-ofrece-mw"));
        tecla(Qt::Key_End);
        QCOMPARE(paginaManualDe(QApplication::focusWidget()), QStringLiteral("editor.md"));
    }

    void textCanBeMadeLargerAndSmaller() {
        abrir();
        const int antes = txtCodigo().font().pointSize();
        tecla(Qt::Key_Plus, Qt::ControlModifier);
        QCOMPARE(txtCodigo().font().pointSize(), antes + 1);
        tecla(Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(txtCodigo().font().pointSize(), antes);
    }

    void escapeClosesNothing() {
        abrir();
        tecla(Qt::Key_Escape);
        QVERIFY(frm_->isVisible());
    }

    void windowIsNotModal() {
        abrir();
        QCOMPARE(frm_->windowModality(), Qt::NonModal);
        QVERIFY(frm_->isWindow());
    }

    void tabLeavesThePeriodForTheButtons() {
        config_->valores[clavePeriodo] = "500";
        abrir();
        QTest::mouseClick(&periodo(), Qt::LeftButton);
        QStringList recorrido;
        for (int i = 0; i < 4; ++i) {
            tecla(Qt::Key_Tab);
            recorrido += QApplication::focusWidget()->objectName();
        }
        QCOMPARE(recorrido, QStringList({QStringLiteral("btnBuscar"), QStringLiteral("btnAyuda"),
                                         QStringLiteral("BtnGuardar"), QStringLiteral("BtnSalir")}));
    }

private:
    // The cursor is in the last line that is whole in sight.
    bool abajoDelTodo() const {
        return txtCodigo().cursorRect().bottom() + txtCodigo().fontMetrics().height() >
               txtCodigo().viewport()->height();
    }

    int lineaMarcada() const {
        const auto marcas = txtCodigo().extraSelections();
        for (const auto& marca : marcas)
            if (marca.format.background().color() == txtCodigo().colores().lineaError)
                return marca.cursor.blockNumber() + 1;
        return 0;
    }
};

QTEST_MAIN(TestFrmEdicionCodigo)
#include "FrmEdicionCodigoTest.moc"
