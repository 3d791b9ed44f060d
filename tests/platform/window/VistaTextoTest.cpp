#include "platform/window/VistaTexto.h"

#include "TiempoDeProcesador.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

namespace {

QString lineas(int cuantas) {
    QString texto;
    for (int i = 0; i < cuantas; ++i)
        texto += QStringLiteral("linea %1\r\n").arg(i);
    return texto;
}

void mostrarEnPantalla(VistaTexto& vista) {
    vista.resize(400, 200);
    vista.show();
    QVERIFY(QTest::qWaitForWindowExposed(&vista));
}

} // namespace

class TestVistaTexto : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void appendedTextIsShownSoonAfter() {
        VistaTexto vista;
        vista.agregar(u"hola");
        QVERIFY(!vista.alDia());
        QTRY_COMPARE(vista.toPlainText(), QStringLiteral("hola"));
        QVERIFY(vista.alDia());
    }

    void textIsGivenBackBeforeItIsShown() {
        VistaTexto vista;
        vista.agregar(u"a\r");
        vista.ponerAlDia();
        vista.agregar(u"\nb");
        QCOMPARE(vista.texto(), QStringLiteral("a\nb"));
        QCOMPARE(vista.property("plainText").toString(), QStringLiteral("a\nb"));
    }

    void everyKindOfLineEndEndsALine() {
        VistaTexto vista;
        vista.agregar(u"a\r\nb\nc\rd\n\re");
        vista.ponerAlDia();
        QCOMPARE(vista.toPlainText(), QStringLiteral("a\nb\nc\nd\n\ne"));
    }

    void lineEndCutInTwoIsOneLineEnd() {
        VistaTexto vista;
        vista.agregar(u"a\r");
        vista.ponerAlDia();
        vista.agregar(u"\nb");
        vista.ponerAlDia();
        QCOMPARE(vista.toPlainText(), QStringLiteral("a\nb"));
    }

    void lineOfTheGreatestLengthStaysInOneRow() {
        VistaTexto vista;
        vista.agregar(QString(VistaTexto::maximoLinea, u'x') + QStringLiteral("\r\ny"));
        vista.ponerAlDia();
        QCOMPARE(vista.blockCount(), 2);
    }

    void longerLineGoesOnInTheNextRowAndIsGivenBackWhole() {
        VistaTexto vista;
        const QString larga = QString(VistaTexto::maximoLinea * 2 + 1, u'x');
        vista.agregar(larga.left(1000));
        vista.ponerAlDia();
        vista.agregar(larga.mid(1000) + QStringLiteral("\r\ny"));
        vista.ponerAlDia();
        QCOMPARE(vista.blockCount(), 4);
        for (QTextBlock bloque = vista.document()->begin(); bloque.isValid(); bloque = bloque.next())
            QVERIFY(bloque.text().size() <= VistaTexto::maximoLinea);
        QCOMPARE(vista.texto(), larga + QStringLiteral("\ny"));
    }

    void copyingLeavesOutTheEndsOfRows() {
        VistaTexto vista;
        const QString larga = QString(VistaTexto::maximoLinea + 10, u'x') + QStringLiteral("\ny");
        vista.agregar(larga);
        vista.ponerAlDia();
        QTest::keySequence(&vista, QKeySequence::SelectAll);
        QTest::keySequence(&vista, QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->text(), larga);
    }

    void copyingAPartCopiesThatPart() {
        VistaTexto vista;
        vista.agregar(u"uno\r\ndos\r\ntres");
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
        vista.agregar(u"uno");
        vista.ponerAlDia();
        QTest::keySequence(&vista, QKeySequence::SelectAll);
        vista.agregar(u"dos");
        vista.ponerAlDia();
        QCOMPARE(vista.textCursor().selectedText(), QStringLiteral("uno"));
    }

    void textThatArrivesIsNotSelected() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        for (int vez = 0; vez < 3; ++vez) {
            vista.agregar(u"uno\r\n");
            vista.ponerAlDia();
            QVERIFY(!vista.textCursor().hasSelection());
        }
    }

    void caretAtTheEndLeavesTheNewTextUnselected() {
        VistaTexto vista;
        vista.agregar(u"uno");
        vista.ponerAlDia();
        vista.moveCursor(QTextCursor::End);
        vista.agregar(u"dos");
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
        vista.agregar(u"a\r");
        vista.ponerAlDia();
        vista.agregar(u"pendiente");
        vista.borrar();
        QVERIFY(vista.alDia());
        vista.agregar(u"\nb");
        vista.ponerAlDia();
        QCOMPARE(vista.toPlainText(), QStringLiteral("\nb"));
    }

    // Whatever the backlog, a turn of the event loop stays short.
    void greatBacklogIsShownWithoutHoldingTheThread() {
        VistaTexto vista;
        mostrarEnPantalla(vista);
        vista.agregar(QString(4'000'000, u'x'));
        vista.agregar(lineas(100'000));
        std::int64_t masLarga = 0;
        while (!vista.alDia()) {
            const std::int64_t antes = msDeProcesador();
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            masLarga = std::max(masLarga, msDeProcesador() - antes);
        }
        QVERIFY2(masLarga < 250, qPrintable(QString::number(masLarga)));
        QCOMPARE(vista.texto().size(), 4'000'000 + lineas(100'000).size() - 100'000);
    }
};

QTEST_MAIN(TestVistaTexto)
#include "VistaTextoTest.moc"
