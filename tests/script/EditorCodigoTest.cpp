// The text box of the editor through real keys: whole text, indentation, undo, marks, colours, large texts.

#include "script/EditorCodigo.h"

#include "TiempoDeProcesador.h"

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include <memory>

class TestEditorCodigo : public QObject {
    Q_OBJECT

    std::unique_ptr<EditorCodigo> e_;

    void teclas(const QString& texto) const {
        const auto lineas = texto.split(u'\n');
        for (int i = 0; i < lineas.size(); ++i) {
            if (i > 0)
                QTest::keyClick(e_.get(), Qt::Key_Return);
            QTest::keyClicks(e_.get(), lineas[i]);
        }
    }
    void seleccionar(int desde, int hasta) const {
        QTextCursor cursor = e_->textCursor();
        cursor.setPosition(desde);
        cursor.setPosition(hasta, QTextCursor::KeepAnchor);
        e_->setTextCursor(cursor);
    }
    // The colour of a character, as the text layout has it; invalid for the colour of the text.
    QColor color(int linea, int columna) const {
        e_->repaint();
        const auto formatos = e_->document()->findBlockByNumber(linea).layout()->formats();
        for (const auto& rango : formatos)
            if (columna >= rango.start && columna < rango.start + rango.length)
                return rango.format.foreground().color();
        return {};
    }
    QString subrayado() const {
        const auto marcas = e_->extraSelections();
        for (const auto& marca : marcas)
            if (marca.format.underlineStyle() == QTextCharFormat::WaveUnderline)
                return marca.cursor.selectedText();
        return {};
    }
    int lineaMarcada() const {
        const auto marcas = e_->extraSelections();
        for (const auto& marca : marcas)
            if (marca.format.background().color() == e_->colores().lineaError)
                return marca.cursor.blockNumber() + 1;
        return 0;
    }

private Q_SLOTS:
    void init() {
        e_ = std::make_unique<EditorCodigo>();
        e_->resize(700, 500);
        e_->show();
        e_->setFocus();
        QVERIFY(QTest::qWaitForWindowExposed(e_.get(), paciencia));
    }

    void cleanup() { e_.reset(); }

    void givesAndTakesItsWholeText_data() {
        QTest::addColumn<QString>("texto");
        QTest::newRow("empty") << QString();
        QTest::newRow("lines") << QStringLiteral("a\n\n  b\n");
        QTest::newRow("empty lines at the head") << QStringLiteral("\n\na");
        QTest::newRow("hard blanks and accents") << QStringLiteral("x = \"a\u00A0b ñ € 漢 😀\"");
        QTest::newRow("tabs") << QStringLiteral("\ta\t=\t1");
    }
    void givesAndTakesItsWholeText() {
        QFETCH(QString, texto);
        e_->ponerTexto(texto);
        QCOMPARE(e_->texto(), texto);
        QCOMPARE(e_->property("plainText").toString(), texto);
    }

    void everyLineEndIsOne() {
        e_->ponerTexto(QStringLiteral("a\r\nb\nc\rd"));
        QCOMPARE(e_->texto(), QStringLiteral("a\nb\nc\nd"));
    }

    void fontIsMonospaced() {
        const QFontMetrics medida(e_->font());
        QCOMPARE(medida.horizontalAdvance(u'i'), medida.horizontalAdvance(u'W'));
    }

    void numbersOfTheLinesHaveRoomBesideTheText() {
        const int antes = e_->anchoMargen();
        QVERIFY(antes >= e_->fontMetrics().horizontalAdvance(QStringLiteral("999")));
        e_->ponerTexto(QString(20000, u'\n'));
        QVERIFY(e_->anchoMargen() > antes);
        QCOMPARE(e_->viewport()->x(), e_->anchoMargen() + e_->frameWidth());
    }

    void clickOnALineNumberSelectsTheLine() {
        e_->ponerTexto(QStringLiteral("uno\ndos\ntres"));
        auto* margen = e_->childAt(e_->frameWidth() + 2, e_->frameWidth() + 30);
        QVERIFY(margen != nullptr && margen != e_->viewport());
        QTest::mouseClick(margen, Qt::LeftButton, {}, QPoint(3, e_->fontMetrics().height() * 3 / 2 + 4));
        QCOMPARE(e_->textCursor().selectedText(), QStringLiteral("dos\u2029"));
    }

    void tabInsertsBlanksUpToTheNextColumn() {
        teclas(QStringLiteral("ab"));
        QTest::keyClick(e_.get(), Qt::Key_Tab);
        QCOMPARE(e_->texto(), QStringLiteral("ab  "));
        QTest::keyClick(e_.get(), Qt::Key_Tab);
        QCOMPARE(e_->texto(), QStringLiteral("ab      "));
    }

    void tabAndShiftTabMoveTheSelectedLines() {
        e_->ponerTexto(QStringLiteral("a\n\n  b\nc"));
        seleccionar(0, 6); // up to the end of "  b"
        QTest::keyClick(e_.get(), Qt::Key_Tab);
        QCOMPARE(e_->texto(), QStringLiteral("    a\n\n      b\nc"));
        QTest::keyClick(e_.get(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(e_->texto(), QStringLiteral("a\n\n  b\nc"));
        QTest::keyClick(e_.get(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(e_->texto(), QStringLiteral("a\n\nb\nc"));
    }

    void lineOfWhichNothingIsSelectedStays() {
        e_->ponerTexto(QStringLiteral("a\nb\nc"));
        seleccionar(0, 2); // the first line with its end
        QTest::keyClick(e_.get(), Qt::Key_Tab);
        QCOMPARE(e_->texto(), QStringLiteral("    a\nb\nc"));
    }

    void shiftTabWithoutASelectionMovesTheLineOfTheCursor() {
        e_->ponerTexto(QStringLiteral("a\n\t b"));
        e_->irA(2, 4);
        QTest::keyClick(e_.get(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(e_->texto(), QStringLiteral("a\n b"));
    }

    void movingLinesIsOneStepToUndo() {
        e_->ponerTexto(QStringLiteral("a\nb\nc"));
        e_->selectAll();
        QTest::keyClick(e_.get(), Qt::Key_Tab);
        QTest::keyClick(e_.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(e_->texto(), QStringLiteral("a\nb\nc"));
        QTest::keyClick(e_.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(e_->texto(), QStringLiteral("    a\n    b\n    c"));
    }

    void newLineKeepsTheIndentation() {
        teclas(QStringLiteral("  a = 1\nb = 2"));
        QCOMPARE(e_->texto(), QStringLiteral("  a = 1\n  b = 2"));
    }

    void blocksIndentThemselvesWhileOneTypes() {
        teclas(QStringLiteral("If a Then\nb = 1\nElse\nb = 2\nEnd If\nc = 3"));
        QCOMPARE(e_->texto(), QStringLiteral("If a Then\n    b = 1\nElse\n    b = 2\nEnd If\nc = 3"));
    }

    void nestedBlocksToo() {
        teclas(
            QStringLiteral("Sub f\nFor i = 1 To 2\nSelect Case i\nCase 1\na = 1\nCase Else\na = 2\nEnd Select\nNext\n"
                           "End Sub\n"));
        QCOMPARE(e_->texto(), QStringLiteral("Sub f\n"
                                             "    For i = 1 To 2\n"
                                             "        Select Case i\n"
                                             "            Case 1\n"
                                             "                a = 1\n"
                                             "            Case Else\n"
                                             "                a = 2\n"
                                             "        End Select\n"
                                             "    Next\n"
                                             "End Sub\n"));
    }

    void closerThatStandsFurtherLeftStays() {
        e_->ponerTexto(QStringLiteral("        If a Then\n    End If"));
        e_->moveCursor(QTextCursor::End);
        QTest::keyClick(e_.get(), Qt::Key_Return);
        QCOMPARE(e_->texto(), QStringLiteral("        If a Then\n    End If\n    "));
    }

    void closerWithoutAnOpenerStays() {
        teclas(QStringLiteral("  Next\n"));
        QCOMPARE(e_->texto(), QStringLiteral("  Next\n  "));
    }

    void closersGoBackAsSoonAsTheyAreWritten_data() {
        QTest::addColumn<QString>("abre");
        QTest::addColumn<QString>("cierra");
        for (const auto& [abre, cierra] :
             std::initializer_list<std::pair<const char*, const char*>>{{"If a Then", "End If"},
                                                                        {"If a Then", "Else"},
                                                                        {"If a Then", "ElseIf"},
                                                                        {"For i = 1 To 2", "Next"},
                                                                        {"Do", "Loop"},
                                                                        {"While a", "Wend"},
                                                                        {"With a", "End With"},
                                                                        {"Select Case a", "End Select"},
                                                                        {"Sub f", "End Sub"},
                                                                        {"Function f", "end function"},
                                                                        {"Property Get f", "End Property"},
                                                                        {"Class c", "End Class"}})
            QTest::newRow(cierra) << QString::fromLatin1(abre) << QString::fromLatin1(cierra);
    }
    void closersGoBackAsSoonAsTheyAreWritten() {
        QFETCH(QString, abre);
        QFETCH(QString, cierra);
        teclas(QStringLiteral("  ") + abre + u'\n' + cierra);
        QCOMPARE(e_->texto(), QStringLiteral("  ") + abre + QStringLiteral("\n  ") + cierra);
    }

    void caseGoesBackToItsSelect() {
        teclas(QStringLiteral("Select Case a\nCase 1\nb = 1\nCase"));
        QCOMPARE(e_->texto(), QStringLiteral("Select Case a\n    Case 1\n        b = 1\n    Case"));
    }

    void nameThatOnlyBeginsLikeACloserStays() {
        teclas(QStringLiteral("For i = 1 To 2\nNextStep = 1"));
        QCOMPARE(e_->texto(), QStringLiteral("For i = 1 To 2\n    NextStep = 1"));
    }

    void moveOfACloserIsForgottenWithItsLine() {
        teclas(QStringLiteral("Do\na = 1\nLoop"));
        QTest::keyClick(e_.get(), Qt::Key_A, Qt::ControlModifier);
        teclas(QStringLiteral("a = 1\nb = 2\nc = 3"));
        QCOMPARE(e_->texto(), QStringLiteral("a = 1\nb = 2\nc = 3"));
    }

    void moveOfACloserIsForgottenWhenLinesComeBeforeIt() {
        teclas(QStringLiteral("Do\nLoop"));
        e_->irA(1, 1);
        teclas(QStringLiteral("a\nb"));
        QTest::keyClick(e_.get(), Qt::Key_Return);
        e_->irA(2, 2);
        teclas(QStringLiteral("c"));
        QCOMPARE(e_->texto(), QStringLiteral("a\nbc\nDo\nLoop"));
    }

    void moveOfACloserIsAStepOfItsOwnToUndo() {
        e_->ponerTexto(QStringLiteral("Do\n    "));
        e_->moveCursor(QTextCursor::End);
        teclas(QStringLiteral("Loop"));
        QCOMPARE(e_->texto(), QStringLiteral("Do\nLoop"));
        QTest::keyClick(e_.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(e_->texto(), QStringLiteral("Do\n    Loop"));
        QTest::keyClick(e_.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(e_->texto(), QStringLiteral("Do\n    "));
    }

    void closerIsNotMovedWhereThereIsTextBehindIt() {
        e_->ponerTexto(QStringLiteral("Do\n    Loo ' nota"));
        e_->irA(2, 8);
        teclas(QStringLiteral("p"));
        QCOMPARE(e_->texto(), QStringLiteral("Do\n    Loop ' nota"));
    }

    void wordsOfABlockAndBracketsAreMarkedTogether_data() {
        QTest::addColumn<int>("linea");
        QTest::addColumn<int>("columna");
        QTest::addColumn<QStringList>("marcados");
        QTest::newRow("block") << 1 << 1 << QStringList{"If", "Then", "Else", "End If"};
        QTest::newRow("from its end") << 5 << 7 << QStringList{"If", "Then", "Else", "End If"};
        QTest::newRow("brackets") << 2 << 10 << QStringList{"(", ")"};
        QTest::newRow("nothing") << 2 << 6 << QStringList{};
    }
    void wordsOfABlockAndBracketsAreMarkedTogether() {
        QFETCH(int, linea);
        QFETCH(int, columna);
        e_->ponerTexto(QStringLiteral("If a Then\n    b = f(1)\nElse\n    b = 2\nEnd If"));
        e_->irA(linea, columna);
        QStringList marcados;
        const auto marcas = e_->extraSelections();
        for (const auto& marca : marcas) {
            if (marca.format.underlineStyle() == QTextCharFormat::SingleUnderline) { // seen without colours, too
                marcados.append(marca.cursor.selectedText());
                QCOMPARE(marca.format.background().color(), e_->colores().pareja);
            }
        }
        QTEST(marcados, "marcados");
    }

    void backspaceTakesOneStepOfIndentation() {
        e_->ponerTexto(QStringLiteral("      a"));
        e_->irA(1, 7);
        QTest::keyClick(e_.get(), Qt::Key_Backspace);
        QCOMPARE(e_->texto(), QStringLiteral("    a"));
        QTest::keyClick(e_.get(), Qt::Key_Backspace);
        QCOMPARE(e_->texto(), QStringLiteral("a"));
        QTest::keyClick(e_.get(), Qt::Key_Backspace);
        QCOMPARE(e_->texto(), QStringLiteral("a"));
    }

    void backspaceBehindTextTakesOneCharacter() {
        teclas(QStringLiteral("    a    "));
        QTest::keyClick(e_.get(), Qt::Key_Backspace);
        QCOMPARE(e_->texto(), QStringLiteral("    a   "));
    }

    void wordsHaveTheColoursOfTheirKinds() {
        e_->ponerTexto(QStringLiteral("If a = 1.5 Then s = CStr(\"x\") ' nota\nmw.leer 1, #2024-05-17#"));
        const ColoresCodigo& c = e_->colores();
        QCOMPARE(color(0, 0), c.palabra);
        QCOMPARE(color(0, 3), QColor());
        QCOMPARE(color(0, 7), c.numero);
        QCOMPARE(color(0, 20), c.incorporada);
        QCOMPARE(color(0, 25), c.literal);
        QCOMPARE(color(0, 30), c.comentario);
        QCOMPARE(color(1, 0), c.mw);
        QCOMPARE(color(1, 3), QColor());
        QCOMPARE(color(1, 11), c.numero);
    }

    void coloursFollowTyping() {
        teclas(QStringLiteral("Di"));
        QCOMPARE(color(0, 0), QColor());
        teclas(QStringLiteral("m a"));
        QCOMPARE(color(0, 0), e_->colores().palabra);
        e_->moveCursor(QTextCursor::Start);
        teclas(QStringLiteral("'"));
        QCOMPARE(color(0, 1), e_->colores().comentario);
    }

    void coloursFollowASplitLine() {
        e_->ponerTexto(QStringLiteral("' uno dos"));
        QCOMPARE(color(0, 6), e_->colores().comentario);
        e_->irA(1, 7);
        QTest::keyClick(e_.get(), Qt::Key_Return);
        QCOMPARE(color(0, 2), e_->colores().comentario);
        QCOMPARE(color(1, 0), QColor());
    }

    void colouringIsNoChangeOfTheText() {
        e_->ponerTexto(QStringLiteral("Dim a"));
        e_->document()->setModified(false);
        QCOMPARE(color(0, 0), e_->colores().palabra);
        QVERIFY(!e_->document()->isModified());
        QVERIFY(!e_->document()->isUndoAvailable());
    }

    void coloursAreLegibleOnEveryTheme_data() {
        QTest::addColumn<QColor>("fondo");
        QTest::addColumn<QColor>("tinta");
        QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black);
        QTest::newRow("dark") << QColor(30, 30, 30) << QColor(220, 220, 220);
        QTest::newRow("black") << QColor(Qt::black) << QColor(Qt::white);
        QTest::newRow("cream") << QColor(253, 246, 227) << QColor(60, 60, 60);
    }
    void coloursAreLegibleOnEveryTheme() {
        QFETCH(QColor, fondo);
        QFETCH(QColor, tinta);
        QPalette paleta;
        paleta.setColor(QPalette::Base, fondo);
        paleta.setColor(QPalette::Text, tinta);
        const ColoresCodigo c(paleta);
        for (const QColor& color : {c.palabra, c.incorporada, c.mw, c.literal, c.numero, c.comentario}) {
            for (const QColor& detras : {fondo, c.lineaActual, c.lineaError, c.pareja})
                QVERIFY2(contraste(color, detras) >= 4.5, qPrintable(color.name() + " on " + detras.name()));
        }
        QVERIFY(contraste(c.error, fondo) >= 4.5);
        QVERIFY(contraste(tinta, c.lineaError) >= 4.5);
        QVERIFY(contraste(c.numeroLinea, c.margen) >= 3);
    }

    void otherThemeColoursAnew() {
        e_->ponerTexto(QStringLiteral("Dim a"));
        const QColor clara = color(0, 0);
        QPalette oscura = e_->palette();
        oscura.setColor(QPalette::Base, Qt::black);
        oscura.setColor(QPalette::Text, Qt::white);
        e_->setPalette(oscura);
        QVERIFY(color(0, 0) != clara);
        QCOMPARE(color(0, 0), e_->colores().palabra);
    }

    void lineOfTheCursorIsMarked() {
        e_->ponerTexto(QStringLiteral("a\nb\nc"));
        e_->irA(2, 1);
        const auto marcas = e_->extraSelections();
        QCOMPARE(marcas.size(), 1);
        QCOMPARE(marcas[0].cursor.blockNumber(), 1);
        QVERIFY(marcas[0].format.boolProperty(QTextFormat::FullWidthSelection));
    }

    void errorIsUnderlinedAtItsWord_data() {
        QTest::addColumn<int>("linea");
        QTest::addColumn<int>("columna");
        QTest::addColumn<QString>("palabra");
        QTest::newRow("word") << 1 << 5 << QStringLiteral("mal");
        QTest::newRow("last character") << 1 << 99 << QStringLiteral("l");
        QTest::newRow("sign") << 2 << 3 << QStringLiteral("=");
        QTest::newRow("empty line: the end of what is above") << 3 << 1 << QStringLiteral("=");
        QTest::newRow("no error") << 0 << 0 << QString();
        QTest::newRow("beyond the text") << 9 << 1 << QString();
    }
    void errorIsUnderlinedAtItsWord() {
        QFETCH(int, linea);
        QFETCH(int, columna);
        e_->ponerTexto(QStringLiteral("Dim mal\nx =\n\n"));
        e_->marcarError(linea, columna);
        QTEST(subrayado(), "palabra");
    }

    void errorInAnEmptyTextHarmsNothing() {
        e_->marcarError(1, 1);
        QCOMPARE(subrayado(), QString());
    }

    void markOfTheFailureMovesWithTheText() {
        e_->ponerTexto(QStringLiteral("a\nb\nc"));
        e_->marcarFallo(2);
        QCOMPARE(lineaMarcada(), 2);
        e_->moveCursor(QTextCursor::Start);
        QTest::keyClick(e_.get(), Qt::Key_Return);
        QCOMPARE(lineaMarcada(), 3);
        e_->marcarFallo(0);
        QCOMPARE(lineaMarcada(), 0);
    }

    void markOfTheFailureGoesWithTheTextOfItsLine() {
        e_->ponerTexto(QStringLiteral("a\nb = 1 / 0\nc"));
        e_->marcarFallo(2);
        e_->irA(2, 1);
        teclas(QStringLiteral("x"));
        QCOMPARE(lineaMarcada(), 2);
        QTest::keyClick(e_.get(), Qt::Key_A, Qt::ControlModifier);
        teclas(QStringLiteral("d\ne"));
        QCOMPARE(lineaMarcada(), 0);
        QCOMPARE(e_->lineaFallo(), 0);
    }

    void replacingAllIsOneStepToUndo() {
        e_->ponerTexto(QStringLiteral("a b A\na"));
        QCOMPARE(e_->reemplazarTodo(QStringLiteral("a"), QStringLiteral("xx"), Qt::CaseInsensitive), 3);
        QCOMPARE(e_->texto(), QStringLiteral("xx b xx\nxx"));
        e_->undo();
        QCOMPARE(e_->texto(), QStringLiteral("a b A\na"));
        QCOMPARE(e_->reemplazarTodo(QStringLiteral("a"), QStringLiteral("x"), Qt::CaseSensitive), 2);
        QCOMPARE(e_->reemplazarTodo(QStringLiteral("zz"), QStringLiteral("x"), Qt::CaseSensitive), 0);
    }

    void textOfFiveMegabytesStaysUsable() {
        QString texto;
        while (texto.size() < 5'000'000)
            texto += QStringLiteral("If mw.leer(1, 5) > 10 Then\n    contador = contador + 1 ' sube\nEnd If\n");
        e_->ponerTexto(texto);
        const std::int64_t antes = msDeProcesador();
        for (int vez = 0; vez < 20; ++vez) {
            e_->irA(vez * 7919, 1);
            teclas(QStringLiteral("x"));
            e_->repaint();
        }
        const std::int64_t usados = msDeProcesador() - antes;
        QVERIFY2(usados < 3000, qPrintable(QString::number(usados)));
        QCOMPARE(e_->texto().size(), texto.size() + 20);
    }

    void longLineStaysUsable() {
        e_->ponerTexto(QStringLiteral("a = \"") + QString(100'000, u'x') + u'"');
        const std::int64_t antes = msDeProcesador();
        teclas(QStringLiteral("abc"));
        e_->repaint();
        const std::int64_t usados = msDeProcesador() - antes;
        QVERIFY2(usados < 3000, qPrintable(QString::number(usados)));
        QCOMPARE(color(0, 0), QColor());
    }

    void binaryTextIsTakenWhole() {
        QString texto;
        for (char16_t c = 1; c < 0xD800; ++c)
            if (c != u'\n' && c != u'\r')
                texto += QChar(c);
        e_->ponerTexto(texto);
        e_->repaint();
        QCOMPARE(e_->texto().remove(u'\n').size(), texto.remove(QChar(0x2029)).size());
    }
};

QTEST_MAIN(TestEditorCodigo)
#include "EditorCodigoTest.moc"
