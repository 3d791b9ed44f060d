#include "platform/window/VistaTexto.h"

#include "CajaDeMensaje.h"
#include "TiempoDeProcesador.h"
#include "platform/window/GuardadoTexto.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

namespace {

std::string lineas(int cuantas) {
    std::string texto;
    for (int i = 0; i < cuantas; ++i)
        texto += "linea " + std::to_string(i) + "\r\n";
    return texto;
}

void mostrarEnPantalla(VistaTexto& vista) {
    vista.resize(400, 200);
    vista.show();
    QVERIFY(QTest::qWaitForWindowExposed(&vista, paciencia));
}

} // namespace

class TestVistaTexto : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void appendedTextIsShownSoonAfter() {
        VistaTexto vista;
        vista.agregar("hola");
        QVERIFY(!vista.alDia());
        QTRY_COMPARE(vista.toPlainText(), QStringLiteral("hola"));
        QTRY_VERIFY(vista.alDia());
    }

    void textIsGivenBackBeforeItIsShown() {
        VistaTexto vista;
        vista.agregar("a\r");
        vista.ponerAlDia();
        vista.agregar("\nb");
        QCOMPARE(vista.texto(), QStringLiteral("a\nb"));
        QCOMPARE(vista.property("plainText").toString(), QStringLiteral("a\nb"));
    }

    void everyKindOfLineEndEndsALine() {
        VistaTexto vista;
        vista.agregar("a\r\nb\nc\rd\n\re");
        vista.ponerAlDia();
        QCOMPARE(vista.toPlainText(), QStringLiteral("a\nb\nc\nd\n\ne"));
    }

    void lineEndCutInTwoIsOneLineEnd() {
        VistaTexto vista;
        vista.agregar("a\r");
        vista.ponerAlDia();
        vista.agregar("\nb");
        vista.ponerAlDia();
        QCOMPARE(vista.toPlainText(), QStringLiteral("a\nb"));
    }

    void copyingAPartCopiesThatPart() {
        VistaTexto vista;
        vista.agregar("uno\r\ndos\r\ntres");
        vista.ponerAlDia();
        QTextCursor cursor = vista.textCursor();
        cursor.setPosition(2);
        cursor.setPosition(6, QTextCursor::KeepAnchor);
        vista.setTextCursor(cursor);
        QTest::keySequence(&vista, QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("o\ndo"));
    }

    void selectionUpToTheEndDoesNotGrow() {
        VistaTexto vista;
        vista.agregar("uno");
        vista.ponerAlDia();
        QTest::keySequence(&vista, QKeySequence::SelectAll);
        vista.agregar("dos");
        vista.ponerAlDia();
        QCOMPARE(vista.textCursor().selectedText(), QStringLiteral("uno"));
    }

    void textThatArrivesIsNotSelected() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        for (int vez = 0; vez < 3; ++vez) {
            vista.agregar("uno\r\n");
            vista.ponerAlDia();
            QVERIFY(!vista.textCursor().hasSelection());
        }
    }

    void caretAtTheEndLeavesTheNewTextUnselected() {
        VistaTexto vista;
        vista.agregar("uno");
        vista.ponerAlDia();
        vista.moveCursor(QTextCursor::End);
        vista.agregar("dos");
        vista.ponerAlDia();
        QVERIFY(!vista.textCursor().hasSelection());
    }

    void boxFollowsTheEnd() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar(lineas(500));
        vista.ponerAlDia();
        QVERIFY(vista.verticalScrollBar()->maximum() > 0);
        QCOMPARE(vista.verticalScrollBar()->value(), vista.verticalScrollBar()->maximum());
    }

    void boxStaysWhereTheOperatorLooks() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar(lineas(500));
        vista.ponerAlDia();
        vista.verticalScrollBar()->setValue(100);
        vista.agregar(lineas(500));
        vista.ponerAlDia();
        QCOMPARE(vista.verticalScrollBar()->value(), 100);
    }

    void clearedBoxStartsOver() {
        VistaTexto vista;
        vista.agregar("a\r");
        vista.ponerAlDia();
        vista.agregar("pendiente");
        vista.borrar();
        QVERIFY(vista.alDia());
        vista.agregar("\nb");
        vista.ponerAlDia();
        QCOMPARE(vista.toPlainText(), QStringLiteral("\nb"));
    }

    void scrollingBackToTheEndFollowsAgain() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar(lineas(500));
        vista.ponerAlDia();
        vista.verticalScrollBar()->setValue(0);
        QVERIFY(!vista.sigueElFinal());
        vista.verticalScrollBar()->setValue(vista.verticalScrollBar()->maximum());
        vista.agregar(lineas(500));
        vista.ponerAlDia();
        QCOMPARE(vista.verticalScrollBar()->value(), vista.verticalScrollBar()->maximum());
    }

    void boxThatWasHiddenAtItsEndFollowsItWhenShownAgain() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar(lineas(500));
        vista.ponerAlDia();
        vista.hide();
        vista.agregar("mientras\r\n");
        mostrarEnPantalla(vista);
        QVERIFY(vista.sigueElFinal());
        QCOMPARE(vista.verticalScrollBar()->value(), vista.verticalScrollBar()->maximum());
    }

    void documentHoldsAnOrdinaryTextWhole() {
        VistaTexto vista;
        const std::string texto(VistaTexto::maximoEspejo - 10, 'x');
        vista.agregar(texto);
        vista.agregar("\r\nfin");
        QTRY_COMPARE(vista.toPlainText(), QString::fromStdString(texto) + QStringLiteral("\nfin"));
    }

    void documentOfALargeTextHoldsTheRowsOnTheScreen() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar(lineas(20'000));
        vista.ponerAlDia();
        QVERIFY(vista.toPlainText().endsWith(QStringLiteral("linea 19999\n")));
        QVERIFY(vista.toPlainText().size() < 2000);
        QTest::keyClick(&vista, Qt::Key_Home, Qt::ControlModifier);
        QTRY_VERIFY(vista.toPlainText().startsWith(QStringLiteral("linea 0\n")));
        QCOMPARE(vista.property("plainText").toString().count(u'\n'), 20'000);
    }

    void keysMoveTheCaretAndSelect() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar("uno\r\ndos\r\ntres");
        vista.ponerAlDia();
        QTest::keyClick(&vista, Qt::Key_Home, Qt::ControlModifier);
        QTest::keyClick(&vista, Qt::Key_Right);
        QTest::keyClick(&vista, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(vista.seleccion(), QStringLiteral("no\nd"));
        QCOMPARE(vista.textCursor().selectedText(), QStringLiteral("no\u2029d"));
        QTest::keyClick(&vista, Qt::Key_End, Qt::ShiftModifier | Qt::ControlModifier);
        QCOMPARE(vista.seleccion(), QStringLiteral("no\ndos\ntres"));
        QTest::keyClick(&vista, Qt::Key_Escape);
        QVERIFY(!vista.haySeleccion());
    }

    void mouseSelectsFromPressToReleaseAndADoubleClickAWord() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar("uno dos\r\ntres cuatro");
        vista.ponerAlDia();
        const int letra = vista.fontMetrics().horizontalAdvance(u'0');
        const int fila = vista.fontMetrics().height();
        const auto punto = [&](int columna, int n) { return QPoint(4 + columna * letra, 4 + n * fila + fila / 2); };
        QTest::mousePress(vista.viewport(), Qt::LeftButton, {}, punto(4, 0));
        QTest::mouseMove(vista.viewport(), punto(4, 1));
        QTest::mouseRelease(vista.viewport(), Qt::LeftButton, {}, punto(4, 1));
        QCOMPARE(vista.seleccion(), QStringLiteral("dos\ntres"));
        QTest::mouseDClick(vista.viewport(), Qt::LeftButton, {}, punto(7, 1));
        QCOMPARE(vista.seleccion(), QStringLiteral("cuatro"));
    }

    void selectionIsKeptAndCopiedWhileTextPoursIn() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar("uno\r\ndos\r\n");
        vista.ponerAlDia();
        QTest::keySequence(&vista, QKeySequence::SelectAll);
        for (int vez = 0; vez < 50; ++vez) {
            vista.agregar(lineas(1000));
            QCoreApplication::processEvents();
        }
        QTest::keySequence(&vista, QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("uno\ndos\n"));
    }

    void pauseFreezesWhatIsShownAndItsEndShowsAll() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar("antes");
        QTest::keyClick(&vista, Qt::Key_P, Qt::ControlModifier);
        QVERIFY(vista.pausada());
        vista.agregar(" despues");
        QTest::keySequence(&vista, QKeySequence::SelectAll);
        QTest::keySequence(&vista, QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("antes"));
        vista.ponerAlDia();
        QCOMPARE(vista.toPlainText(), QStringLiteral("antes"));
        QTest::keyClick(&vista, Qt::Key_P, Qt::ControlModifier);
        QTRY_COMPARE(vista.toPlainText(), QStringLiteral("antes despues"));
    }

    void clearingEmptiesAPausedBox() {
        VistaTexto vista;
        vista.agregar("antes");
        vista.pausar(true);
        vista.borrar();
        QCOMPARE(vista.texto(), QString());
        vista.pausar(false);
        vista.agregar("x");
        QTRY_COMPARE(vista.toPlainText(), QStringLiteral("x"));
    }

    void searchHeedsCaseWhenToldTo() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar("dos DOS");
        vista.ponerAlDia();
        QTest::keyClick(&vista, Qt::Key_F, Qt::ControlModifier);
        auto* patron = vista.findChild<QLineEdit*>(QStringLiteral("txtBuscar"));
        QTest::keyClicks(patron, QStringLiteral("DOS"));
        QTest::mouseClick(vista.findChild<QToolButton*>(QStringLiteral("chMayusculas")), Qt::LeftButton);
        QTest::keyClick(patron, Qt::Key_Return);
        QCOMPARE(vista.seleccion(), QStringLiteral("DOS"));
    }

    void theSearchBarHidesNoRowAndF3GoesOnWithoutIt() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar("dos\rdos\r");
        vista.ponerAlDia();
        const int alto = vista.viewport()->height();
        QTest::keyClick(&vista, Qt::Key_F3); // nothing to look for yet
        auto* patron = vista.findChild<QLineEdit*>(QStringLiteral("txtBuscar"));
        QVERIFY(patron != nullptr && patron->isVisible());
        const QWidget* const barra = patron->parentWidget();
        QVERIFY(vista.viewport()->geometry().bottom() < barra->geometry().top());
        QVERIFY(barra->geometry().bottom() < vista.height());
        QTest::keyClicks(patron, QStringLiteral("dos"));
        QTest::keyClick(patron, Qt::Key_Escape);
        QCOMPARE(vista.viewport()->height(), alto);
        for (const int esperada : {0, 4, 0}) {
            QTest::keyClick(&vista, Qt::Key_F3);
            QCOMPARE(vista.textCursor().selectionStart(), esperada);
        }
        QTest::keyClick(&vista, Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(vista.textCursor().selectionStart(), 4);
    }

    void buttonsBesideTheTextSearchAndPause() {
        VistaTexto vista;
        vista.setAccessibleName(QStringLiteral("Tramas"));
        mostrarEnPantalla(vista);
        const auto boton = [&](const char* nombre) { return vista.findChild<QToolButton*>(QLatin1String(nombre)); };
        for (const char* nombre : {"btnBuscarTexto", "btnGuardarTexto", "btnPausarTexto"}) {
            QVERIFY(boton(nombre)->isVisible());
            QVERIFY2(boton(nombre)->toolTip().contains(QLatin1String("Ctrl+")), nombre);
            QVERIFY2(boton(nombre)->accessibleName().endsWith(QLatin1String(": Tramas")), nombre);
            QVERIFY(!vista.viewport()->geometry().intersects(boton(nombre)->parentWidget()->geometry()));
        }
        QTest::mouseClick(boton("btnPausarTexto"), Qt::LeftButton);
        QVERIFY(vista.pausada());
        QTest::keyClick(&vista, Qt::Key_P, Qt::ControlModifier);
        QVERIFY(!vista.pausada());
        QVERIFY(!boton("btnPausarTexto")->isChecked());
        QTest::mouseClick(boton("btnBuscarTexto"), Qt::LeftButton);
        QVERIFY(vista.findChild<QLineEdit*>(QStringLiteral("txtBuscar"))->isVisible());
    }

    void barShowsWhereTheCaretLedTo() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        for (int i = 100; i < 400; ++i)
            vista.agregar("linea " + std::to_string(i) + "\r");
        vista.ponerAlDia();
        QScrollBar& barra = *vista.verticalScrollBar();
        QTest::keyClick(&vista, Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(barra.value(), 0);
        for (int i = 0; i < 150; ++i)
            QTest::keyClick(&vista, Qt::Key_Down);
        QVERIFY2(barra.value() > barra.maximum() / 3, qPrintable(QString::number(barra.value())));
        QTest::keyClick(&vista, Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(barra.value(), barra.maximum());
    }

    void searchSelectsTheNextOccurrenceRoundTheEnd() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar("uno DOS tres dos");
        vista.ponerAlDia();
        QTest::keyClick(&vista, Qt::Key_F, Qt::ControlModifier);
        auto* patron = vista.findChild<QLineEdit*>(QStringLiteral("txtBuscar"));
        QVERIFY(patron != nullptr && patron->isVisible());
        QTRY_VERIFY(patron->hasFocus());
        QTest::keyClicks(patron, QStringLiteral("dos"));
        const auto posicion = [&] { return vista.textCursor().selectionStart(); };
        for (const int esperada : {4, 13, 4}) {
            QTest::keyClick(patron, Qt::Key_Return);
            QCOMPARE(vista.seleccion().toLower(), QStringLiteral("dos"));
            QCOMPARE(posicion(), esperada);
        }
        QTest::keyClick(patron, Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(posicion(), 13);
        QTest::mouseClick(vista.findChild<QToolButton*>(QStringLiteral("btnAnterior")), Qt::LeftButton);
        QCOMPARE(posicion(), 4);
        QTest::keyClicks(patron, QStringLiteral("x"));
        QTest::keyClick(patron, Qt::Key_Return);
        QCOMPARE(vista.findChild<QLabel*>(QStringLiteral("lblBusqueda"))->text(), QStringLiteral("No se encuentra"));
        QTest::keyClick(patron, Qt::Key_Escape);
        QVERIFY(!patron->isVisible());
        QVERIFY(vista.hasFocus());
    }

    void everyOccurrenceOnTheScreenIsMarked() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar("aaa bbb aaa\r\nbbb");
        vista.ponerAlDia();
        const auto marcas = [&] {
            const QImage imagen = vista.viewport()->grab().toImage();
            const QRgb color = qRgb(255, 213, 79);
            const int letra = vista.fontMetrics().horizontalAdvance(u'0');
            int cuantas = 0;
            for (int fila = 0; fila < 2; ++fila)
                for (int columna = 0; columna < 11; ++columna)
                    cuantas +=
                        imagen.pixel(4 + columna * letra + letra / 2, 4 + fila * vista.fontMetrics().height()) == color;
            return cuantas;
        };
        QCOMPARE(marcas(), 0);
        vista.resaltar(QStringLiteral("BBB"));
        QCOMPARE(marcas(), 6);
        vista.resaltar(QString());
        QCOMPARE(marcas(), 0);
    }

    void savedFileHoldsTheTextOfThatMoment() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        const QTemporaryDir carpeta;
        const QString ruta = carpeta.filePath(QStringLiteral("monitor.txt"));
        vista.agregar("a\xF1o\r\n");
        vista.agregar(lineas(100'000));
        QTest::keyClick(&vista, Qt::Key_S, Qt::ControlModifier);
        auto* dialogo = vista.findChild<QFileDialog*>();
        QVERIFY(dialogo != nullptr);
        QVERIFY(dialogo->testOption(QFileDialog::DontUseNativeDialog)); // its texts are Spanish on every desktop
        QVERIFY(dialogo->selectedFiles().value(0).endsWith(QStringLiteral("/texto.txt")));
        const auto* lugares = dialogo->findChild<QListView*>(QStringLiteral("sidebar"));
        QVERIFY(lugares != nullptr);
        QVERIFY(lugares->minimumWidth() >= lugares->sizeHintForColumn(0)); // however small the dialog gets
        vista.agregar("tarde");
        dialogo->selectFile(ruta);
        static_cast<QDialog*>(dialogo)->accept();
        QTRY_VERIFY(QFile::exists(ruta));
        QFile archivo(ruta);
        QVERIFY(archivo.open(QIODevice::ReadOnly));
        QCOMPARE(archivo.readAll(), QByteArray("a\xC3\xB1o\r\n") + QByteArray::fromStdString(lineas(100'000)));
    }

    void unfinishedSaveLeavesTheOldFileWhenTheBoxGoes() {
        const QTemporaryDir carpeta;
        const QString ruta = carpeta.filePath(QStringLiteral("monitor.txt"));
        {
            QFile antiguo(ruta);
            QVERIFY(antiguo.open(QIODevice::WriteOnly));
            antiguo.write("antiguo");
        }
        {
            VistaTexto vista;
            vista.agregar(std::string(50'000'000, 'x'));
            new GuardadoTexto(vista, vista.bytes(), ruta);
            QCoreApplication::processEvents();
        }
        QFile archivo(ruta);
        QVERIFY(archivo.open(QIODevice::ReadOnly));
        QCOMPARE(archivo.readAll(), QByteArray("antiguo"));
        QCOMPARE(QDir(carpeta.path()).entryList(QDir::Files).size(), 1);
    }

    void fileThatCannotBeWrittenIsTold() {
        VistaTexto vista;
        vista.agregar("x");
        auto* guardado = new GuardadoTexto(vista, vista.bytes(), QStringLiteral("/no/existe/monitor.txt"));
        CajaDeMensaje caja;
        QSignalSpy fin(guardado, &GuardadoTexto::terminado);
        QTRY_COMPARE(caja.vistas, 1);
        QVERIFY(caja.texto.startsWith(QStringLiteral("No se pudo guardar /no/existe/monitor.txt: ")));
        QCOMPARE(fin.count(), 1);
    }

    // A hundred million bytes, with lines and without: painting, scrolling and searching stay short.
    void hugeTextScrollsAndIsSearchedWithoutAPause() {
        for (const bool conLineas : {true, false}) {
            VistaTexto vista;
            mostrarEnPantalla(vista);
            std::string bloque(1'000'000, 'x');
            for (std::size_t i = 79; conLineas && i < bloque.size(); i += 80)
                bloque[i] = '\r';
            for (int i = 0; i < 100; ++i)
                vista.agregar(bloque);
            vista.agregar("aguja");
            vista.ponerAlDia();
            std::int64_t masLarga = 0;
            const auto medir = [&](const auto& hacer) {
                const std::int64_t antes = msDeProcesador();
                hacer();
                QCoreApplication::processEvents();
                masLarga = std::max(masLarga, msDeProcesador() - antes);
            };
            for (int paso = 0; paso <= 20; ++paso)
                medir([&] { vista.verticalScrollBar()->setValue(vista.verticalScrollBar()->maximum() / 20 * paso); });
            for (int paso = 0; paso < 20; ++paso)
                medir([&] { QTest::keyClick(&vista, Qt::Key_PageUp); });
            medir([&] { QTest::keyClick(&vista, Qt::Key_Home, Qt::ControlModifier); });
            QSignalSpy fin(&vista, &VistaTexto::busquedaTerminada);
            medir([&] { vista.buscar(QStringLiteral("AGUJA"), true); });
            while (fin.isEmpty())
                medir([] {});
            QCOMPARE(vista.seleccion(), QStringLiteral("aguja"));
            medir([&] { vista.resize(300, 150); });
            QVERIFY2(masLarga <= 50, qPrintable(QString::number(masLarga)));
        }
    }

    // Whatever the backlog, a turn of the event loop stays short.
    void greatBacklogIsShownWithoutHoldingTheThread() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar(std::string(4'000'000, 'x'));
        vista.agregar(lineas(100'000));
        std::int64_t masLarga = 0;
        while (!vista.alDia()) {
            const std::int64_t antes = msDeProcesador();
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            masLarga = std::max(masLarga, msDeProcesador() - antes);
        }
        QVERIFY2(masLarga < 250, qPrintable(QString::number(masLarga)));
        QCOMPARE(vista.texto().size(), static_cast<qsizetype>(4'000'000 + lineas(100'000).size() - 100'000));
    }
};

QTEST_MAIN(TestVistaTexto)
#include "VistaTextoTest.moc"
