// Completion in the code editor through real keys: when the list opens, what it offers, what the keys do.

#include "script/CompletadorCodigo.h"

#include "TiempoDeProcesador.h"
#include "registers/Esclavos.h"
#include "script/EditorCodigo.h"
#include "script/ObjetoMW.h"
#include "script/OperacionesMW.h"
#include "script/Vocabulario.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <QToolTip>

#include <memory>

class TestCompletadorCodigo : public QObject {
    Q_OBJECT

    std::unique_ptr<EditorCodigo> e_;

    // As a person types: what is open in front gets the key.
    static void tecla(Qt::Key cual, Qt::KeyboardModifiers con = {}) {
        QTest::keyClick(static_cast<QWidget*>(nullptr), cual, con);
    }
    void teclas(const QString& texto) const {
        for (const QChar c : texto)
            QTest::keyClick(static_cast<QWidget*>(nullptr), c.toLatin1());
    }
    static QAbstractItemView* lista() {
        auto* abierta = qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
        return abierta != nullptr && abierta->objectName() == QStringLiteral("listaCompletar") ? abierta : nullptr;
    }
    static QStringList ofrecidos() {
        QStringList nombres;
        if (const QAbstractItemView* abierta = lista())
            for (int fila = 0; fila < abierta->model()->rowCount(); ++fila)
                nombres.append(abierta->model()->index(fila, 0).data().toString());
        return nombres;
    }

private Q_SLOTS:
    void init() {
        e_ = std::make_unique<EditorCodigo>();
        e_->resize(700, 500);
        e_->show();
        e_->activateWindow();
        e_->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(e_.get(), paciencia));
    }
    void cleanup() { e_.reset(); }

    void dotBehindMwOffersItsOperations() {
        teclas(QStringLiteral("mw."));
        QCOMPARE(ofrecidos().size(), static_cast<qsizetype>(operacionesMW().size()));
        teclas(QStringLiteral("esc"));
        QCOMPARE(ofrecidos(), (QStringList{"escribir", "escribir_bit", "escribir_C2"}));
    }

    void everyOperationIsToldAndEveryOneToldExists() {
        Esclavos esclavos;
        const auto mw = vbs::makeObject<ObjetoMW>(esclavos, [](double) {});
        QCOMPARE(operacionesMW().size(), ObjetoMW::members().size() - 1); // all but the default member
        for (const Sugerencia& sugerencia : sugerenciasDeMW())
            QVERIFY(mw->resolve(sugerencia.texto.toStdU16String()) > 0);
    }

    void enterTakesWhatTheArrowsChose() {
        teclas(QStringLiteral("MW.esc"));
        tecla(Qt::Key_Down);
        tecla(Qt::Key_Down);
        QVERIFY(QToolTip::text().contains(QStringLiteral("esclavo, dirección, bit, valor")));
        tecla(Qt::Key_Return);
        QCOMPARE(e_->texto(), QStringLiteral("MW.escribir_bit"));
        QVERIFY(lista() == nullptr);
    }

    void enterIsANewLineWhereNothingWasChosen() {
        teclas(QStringLiteral("mw.esc"));
        QVERIFY(lista() != nullptr);
        tecla(Qt::Key_Return);
        QCOMPARE(e_->texto(), QStringLiteral("mw.esc\n"));
        QVERIFY(lista() == nullptr);
    }

    void tabTakesTheFirst() {
        teclas(QStringLiteral("x = mw.le"));
        tecla(Qt::Key_Tab);
        QCOMPARE(e_->texto(), QStringLiteral("x = mw.leer"));
    }

    void tabTakesWhatWasChosen() {
        teclas(QStringLiteral("mw.esc"));
        tecla(Qt::Key_Down);
        tecla(Qt::Key_Down);
        tecla(Qt::Key_Tab);
        QCOMPARE(e_->texto(), QStringLiteral("mw.escribir_bit"));
    }

    void escapeClosesTheListAndLeavesTheText() {
        teclas(QStringLiteral("mw.esc"));
        tecla(Qt::Key_Escape);
        QVERIFY(lista() == nullptr);
        QCOMPARE(e_->texto(), QStringLiteral("mw.esc"));
        QVERIFY(e_->isVisible());
    }

    void threeLettersOfferWordsFunctionsConstantsAndNames() {
        e_->ponerTexto(QStringLiteral("Sub vbMio\nEnd Sub\nvbMIO\n"));
        e_->moveCursor(QTextCursor::End);
        teclas(QStringLiteral("vb"));
        QVERIFY(lista() == nullptr);
        teclas(QStringLiteral("m"));
        QVERIFY(ofrecidos().contains(QStringLiteral("vbMonday")));
        QCOMPARE(ofrecidos().count(QStringLiteral("vbMio")), 1); // once, as it is spelled first
        QVERIFY(!ofrecidos().contains(QStringLiteral("vbMIO")));
        QVERIFY(!ofrecidos().contains(QStringLiteral("vbm"))); // which is being written
    }

    void languageIsOfferedAsItsReferenceSpellsIt() {
        teclas(QStringLiteral("elsei"));
        tecla(Qt::Key_Tab);
        QCOMPARE(e_->texto(), QStringLiteral("ElseIf"));
        teclas(QStringLiteral(" isnum"));
        tecla(Qt::Key_Tab);
        QCOMPARE(e_->texto(), QStringLiteral("ElseIf IsNumeric"));
    }

    void controlSpaceOpensAnywhereWithTheFirstChosen() {
        teclas(QStringLiteral("x = Is"));
        tecla(Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(ofrecidos().contains(QStringLiteral("IsArray")));
        tecla(Qt::Key_Escape);
        teclas(QStringLiteral("A"));
        tecla(Qt::Key_Space, Qt::ControlModifier);
        tecla(Qt::Key_Return);
        QCOMPARE(e_->texto(), QStringLiteral("x = IsArray"));
    }

    void backspaceNarrowsAndWidens() {
        teclas(QStringLiteral("mw.escribir_b"));
        QCOMPARE(ofrecidos(), QStringList{QStringLiteral("escribir_bit")});
        tecla(Qt::Key_Backspace);
        tecla(Qt::Key_Backspace);
        QCOMPARE(ofrecidos().size(), 3);
        QCOMPARE(e_->texto(), QStringLiteral("mw.escribir"));
    }

    void wordThatIsCompleteClosesTheList() {
        teclas(QStringLiteral("mw.leer"));
        QVERIFY(lista() == nullptr);
        teclas(QStringLiteral("("));
        QVERIFY(lista() == nullptr);
    }

    void otherKeysCloseTheListAndDoTheirWork() {
        teclas(QStringLiteral("mw.esc"));
        tecla(Qt::Key_Left);
        QVERIFY(lista() == nullptr);
        QCOMPARE(e_->textCursor().positionInBlock(), 5);
    }

    void notWithinTextsCommentsAndNumbers_data() {
        QTest::addColumn<QString>("texto");
        QTest::newRow("text") << QStringLiteral("x = \"mw.esc");
        QTest::newRow("comment") << QStringLiteral("' mw.esc");
        QTest::newRow("member of another object") << QStringLiteral("otro.esc");
        QTest::newRow("blank") << QStringLiteral("mw.escribir 1");
    }
    void notWithinTextsCommentsAndNumbers() {
        QFETCH(QString, texto);
        teclas(texto);
        QVERIFY2(lista() == nullptr, qPrintable(ofrecidos().join(u' ')));
        QCOMPARE(e_->texto(), texto);
    }

    void echoIsOfferedBehindWScript() {
        teclas(QStringLiteral("wscript."));
        QCOMPARE(ofrecidos(), QStringList{QStringLiteral("Echo")});
    }

    void closerThatIsTakenGoesBackToItsBlock() {
        teclas(QStringLiteral("Do"));
        tecla(Qt::Key_Return);
        teclas(QStringLiteral("Loo"));
        tecla(Qt::Key_Tab);
        QCOMPARE(e_->texto(), QStringLiteral("Do\nLoop"));
    }

    void longTextStaysFast() {
        QString texto;
        for (int i = 0; i < 60'000; ++i)
            texto += QStringLiteral("variable%1 = variable%1 + mw.leer(1, 5) ' sube\n").arg(i);
        e_->ponerTexto(texto);
        e_->irA(30'000, 1);
        const std::int64_t antes = msDeProcesador();
        teclas(QStringLiteral("vari"));
        const std::int64_t usados = msDeProcesador() - antes;
        QVERIFY2(usados < 3000, qPrintable(QString::number(usados)));
        QVERIFY(ofrecidos().size() > 100 && ofrecidos().size() <= maximoNombres);
    }
};

QTEST_MAIN(TestCompletadorCodigo)
#include "CompletadorCodigoTest.moc"
