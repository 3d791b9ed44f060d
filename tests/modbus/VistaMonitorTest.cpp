#include "modbus/VistaMonitor.h"

#include "PasoDelTiempo.h"
#include "modbus/Monitores.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <memory>

using namespace std::chrono_literals;

class TestVistaMonitor : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<TextoMonitor> monitor_;
    std::unique_ptr<VistaMonitor> vista_;

    QString texto() const { return vista_->toPlainText(); }
    void crear(VistaMonitor::Seguimiento seguimiento) {
        vista_.reset();
        vista_ = std::make_unique<VistaMonitor>(*monitor_, nullptr, seguimiento);
        vista_->resize(500, 150);
        vista_->show();
        QVERIFY(QTest::qWaitForWindowExposed(vista_.get(), paciencia));
    }
    void pasar(std::chrono::milliseconds cuanto) { PasoDelTiempo(*vista_).pasar(cuanto); }
    // The text of the monitor starts over by itself.
    void llenar() { monitor_->agregar(std::string(TextoMonitor::limitePorDefecto, 'x')); }
    void tecla(Qt::Key tecla, Qt::KeyboardModifiers con = {}) { QTest::keyClick(vista_.get(), tecla, con); }
    void agregarLineas(int cantidad) {
        for (int i = 0; i < cantidad; ++i)
            monitor_->agregar("10:32:05 ( <-RX- Lectura ) 0 1 0 0 0 6 1 3 0 0 0 10\r\n");
    }

private Q_SLOTS:
    void init() {
        vista_.reset();
        monitor_ = std::make_unique<TextoMonitor>();
        crear(VistaMonitor::Seguimiento::siempre);
    }

    void aLineAppearsAsALine() {
        monitor_->agregar("uno\r\n");
        QTRY_COMPARE(texto(), QStringLiteral("uno\n"));
        monitor_->agregar("dos\r\n");
        QTRY_COMPARE(texto(), QStringLiteral("uno\ndos\n"));
        QCOMPARE(vista_->blockCount(), 3);
    }

    void aLineEndCutInTwoIsOneLineEnd() {
        monitor_->agregar("uno\r");
        QTRY_COMPARE(texto(), QStringLiteral("uno"));
        monitor_->agregar("\ndos");
        QTRY_COMPARE(texto(), QStringLiteral("uno\ndos"));
    }

    void bytesAreLatin1() {
        monitor_->agregar("DESBORDAMIENTO DE DIRECCI\xD3N\r\n");
        QTRY_COMPARE(texto(), QStringLiteral("DESBORDAMIENTO DE DIRECCIÓN\n"));
    }

    void theTextSoFarIsShownFromTheStart() {
        monitor_->agregar("antes\r\n");
        const VistaMonitor otra(*monitor_);
        QCOMPARE(otra.toPlainText(), QStringLiteral("antes\n"));
    }

    void atTheLimitTheBoxKeepsItsTextAndOneCharacterMoreEmptiesIt() {
        monitor_->agregar(std::string(60'000, 'x'));
        QTRY_COMPARE(texto().size(), 60'000);
        monitor_->agregar("y");
        QTRY_COMPARE(texto(), QString());
        monitor_->agregar("nuevo\r\n");
        QTRY_COMPARE(texto(), QStringLiteral("nuevo\n"));
    }

    void aTextThatStartedOverBetweenTwoLooksReplacesTheOldOne() {
        monitor_->agregar("viejo\r\n");
        QTRY_COMPARE(texto(), QStringLiteral("viejo\n"));
        monitor_->borrar();
        monitor_->agregar("nuevo y bastante mas largo\r\n");
        QTRY_COMPARE(texto(), QStringLiteral("nuevo y bastante mas largo\n"));
    }

    void clearingEmptiesTheBox() {
        Monitores monitores;
        const VistaMonitor tramas(monitores.tramas(3));
        monitores.agregarTrama(3, ClaseTrama::lectura, "linea\r\n");
        QTRY_COMPARE(tramas.toPlainText(), QStringLiteral("linea\n"));
        monitores.borrarTramas();
        QTRY_COMPARE(tramas.toPlainText(), QString());
    }

    void theCaretGoesToTheEndAndTheNewestLineIsInView() {
        agregarLineas(100);
        QTRY_COMPARE(vista_->blockCount(), 101);
        vista_->moveCursor(QTextCursor::Start);
        QCOMPARE(vista_->verticalScrollBar()->value(), 0);
        monitor_->agregar("la ultima\r\n");
        QTRY_COMPARE(vista_->blockCount(), 102);
        QVERIFY(vista_->textCursor().atEnd());
        QCOMPARE(vista_->verticalScrollBar()->value(), vista_->verticalScrollBar()->maximum());
    }

    void theNewestLineStaysInViewWhenTheBoxGetsSmaller() {
        agregarLineas(50);
        QTRY_COMPARE(vista_->blockCount(), 51);
        vista_->resize(200, 100);
        QTRY_COMPARE(vista_->verticalScrollBar()->value(), vista_->verticalScrollBar()->maximum());
    }

    void aViewThatIsScrolledUpStaysWhereItIs() {
        crear(VistaMonitor::Seguimiento::siEstaAlFinal);
        agregarLineas(100);
        QTRY_COMPARE(vista_->blockCount(), 101);
        tecla(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(vista_->verticalScrollBar()->value(), 0);
        agregarLineas(1);
        QTRY_COMPARE(vista_->blockCount(), 102);
        QCOMPARE(vista_->verticalScrollBar()->value(), 0);
    }

    void aViewThatIsScrolledUpKeepsATextThatStartedOverUntilItsEndIsAskedFor() {
        crear(VistaMonitor::Seguimiento::siEstaAlFinal);
        agregarLineas(100);
        QTRY_COMPARE(vista_->blockCount(), 101);
        const QString antes = texto();
        tecla(Qt::Key_Home, Qt::ControlModifier);
        llenar();
        monitor_->agregar("nuevo\r\n");
        pasar(1min); // nothing is to happen
        QCOMPARE(texto(), antes);
        tecla(Qt::Key_End, Qt::ControlModifier);
        QTRY_COMPARE(texto(), QStringLiteral("nuevo\n"));
    }

    void aSelectionIsKeptAndCanBeCopiedWhenTheTextStartsOver() {
        monitor_->agregar("uno\r\ndos\r\n");
        QTRY_COMPARE(vista_->blockCount(), 3);
        tecla(Qt::Key_A, Qt::ControlModifier);
        llenar();
        monitor_->agregar("nuevo\r\n");
        pasar(1min); // nothing is to happen
        tecla(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("uno\ndos\n"));
        tecla(Qt::Key_Escape);
        QTRY_COMPARE(texto(), QStringLiteral("nuevo\n"));
    }

    void clearingByHandEmptiesABoxThatIsHeldOrPaused() {
        for (const bool pausa : {false, true}) {
            monitor_->agregar("uno\r\n");
            QTRY_COMPARE(texto(), QStringLiteral("uno\n"));
            tecla(Qt::Key_A, Qt::ControlModifier);
            vista_->pausar(pausa);
            monitor_->borrar();
            QTRY_COMPARE(texto(), QString());
            vista_->pausar(false);
        }
    }

    void aPauseFreezesTheBoxAndTheMonitorGoesOnAsItsLimitSays() {
        monitor_->agregar("antes\r\n");
        QTRY_COMPARE(texto(), QStringLiteral("antes\n"));
        tecla(Qt::Key_P, Qt::ControlModifier);
        llenar();
        monitor_->agregar("durante\r\n");
        pasar(1min); // nothing is to happen
        QCOMPARE(texto(), QStringLiteral("antes\n"));
        QCOMPARE(monitor_->texto(), std::string_view("durante\r\n"));
        tecla(Qt::Key_P, Qt::ControlModifier);
        QTRY_COMPARE(texto(), QStringLiteral("durante\n"));
    }

    void theOperatorCanCopyButNotEdit() {
        monitor_->agregar("uno\r\ndos\r\n");
        QTRY_COMPARE(vista_->blockCount(), 3);
        QTest::keyClicks(vista_.get(), QStringLiteral("abc"));
        QTest::keyClick(vista_.get(), Qt::Key_Backspace);
        QCOMPARE(texto(), QStringLiteral("uno\ndos\n"));
        QTest::keyClick(vista_.get(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(vista_.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("uno\ndos\n"));
    }

    void nothingIsKeptForUndoing() {
        agregarLineas(3);
        QTRY_COMPARE(vista_->blockCount(), 4);
        QVERIFY(!vista_->document()->isUndoAvailable());
    }

    void aHiddenBoxIsRightWithinAFifthOfASecond() {
        vista_->hide();
        agregarLineas(1000); // more than it takes at once
        const auto largo = static_cast<qsizetype>(monitor_->texto().size() -
                                                  std::count(monitor_->texto().begin(), monitor_->texto().end(), '\r'));
        pasar(200ms);
        QCOMPARE(texto().size(), largo);
    }

    void aHiddenBoxIsRightAsSoonAsItIsShown() {
        vista_->hide();
        agregarLineas(300);
        vista_->show();
        QCOMPARE(vista_->blockCount(), 301);
    }

    void heavyTrafficIsTakenInAtMostThirtyTimesASecond() {
        PasoDelTiempo tiempo(*vista_);
        int cambios = 0;
        connect(vista_.get(), &QPlainTextEdit::textChanged, this, [&cambios] { ++cambios; });
        for (int i = 0; i < 400; ++i) {
            monitor_->agregar("10:32:05 ( <-RX- Lectura ) 0 1 0 0 0 6 1 3 0 0 0 10\r\n");
            tiempo.pasar(5ms);
        }
        disconnect(vista_.get(), nullptr, this, nullptr);
        QVERIFY2(cambios >= 10 && cambios <= 2 * 30, qPrintable(QString::number(cambios)));
    }

    void theBoxCanGoBeforeItsMonitor() {
        vista_.reset();
        monitor_->agregar("nadie mira\r\n");
        QCOMPARE(monitor_->texto(), std::string_view("nadie mira\r\n"));
    }
};

QTEST_MAIN(TestVistaMonitor)
#include "VistaMonitorTest.moc"
