#include "platform/grid/MSFlexGrid.h"

#include "EventosPendientes.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

// Three columns below the headings; a cell shows "row.column".
class Fuente : public FuenteCuadricula {
public:
    virtual ~Fuente() = default;

    int filas_ = 6;

    int filas() const override { return filas_; }
    int columnas() const override { return 4; }
    QString texto(int fila, int columna) const override {
        if (fila == 0 && columna == 0)
            return QStringLiteral("MW - PLC 255");
        return QStringLiteral("%1.%2").arg(fila).arg(columna);
    }
    QString sugerencia(int fila, int columna) const override {
        return QStringLiteral("celda %1 %2").arg(fila).arg(columna);
    }
};

class ContadorDePinturas : public QObject {
public:
    explicit ContadorDePinturas(QWidget* donde) { donde->installEventFilter(this); }
    int pinturas = 0;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        pinturas += evento->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(objeto, evento);
    }
};

} // namespace

class TestMSFlexGrid : public QObject {
    Q_OBJECT

private:
    Fuente fuente_;
    std::unique_ptr<MSFlexGrid> grid_;

    // Row and column counted with the headings.
    QModelIndex celda(int fila, int columna) const { return grid_->model()->index(fila - 1, columna - 1); }
    QPoint centro(int fila, int columna) const { return grid_->visualRect(celda(fila, columna)).center(); }

    QString copiado() {
        QGuiApplication::clipboard()->clear();
        QTest::keyClick(grid_.get(), Qt::Key_C, Qt::ControlModifier);
        return QGuiApplication::clipboard()->text();
    }

private Q_SLOTS:
    void init() {
        fuente_ = Fuente();
        grid_ = std::make_unique<MSFlexGrid>(fuente_);
        grid_->resize(500, 200);
        grid_->show();
        grid_->activateWindow();
        grid_->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(grid_.get(), paciencia));
    }

    void textMatrixCountsWithTheHeadings() {
        QString texto;
        QVERIFY(QMetaObject::invokeMethod(grid_.get(), "TextMatrix", Q_RETURN_ARG(QString, texto), Q_ARG(int, 2),
                                          Q_ARG(int, 3)));
        QCOMPARE(texto, QStringLiteral("2.3"));
        QCOMPARE(grid_->property("Rows").toInt(), 6);
        QCOMPARE(grid_->property("Cols").toInt(), 4);
    }

    void textMatrixOutsideTheGridIsEmpty() {
        QCOMPARE(grid_->TextMatrix(-1, 0), QString());
        QCOMPARE(grid_->TextMatrix(6, 0), QString());
        QCOMPARE(grid_->TextMatrix(0, 4), QString());
        QCOMPARE(grid_->TextMatrix(0, -1), QString());
    }

    void headersShowTheHeadingRowAndColumn() {
        QCOMPARE(grid_->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("0.2"));
        QCOMPARE(grid_->model()->headerData(1, Qt::Vertical).toString(), QStringLiteral("2.0"));
    }

    void columnZeroIs80PixelsWideOrWiderAndHoldsTheCornerText_data() {
        QTest::addColumn<int>("puntos");
        QTest::newRow("small") << 6;
        QTest::newRow("normal") << 9;
        QTest::newRow("large") << 28;
    }
    void columnZeroIs80PixelsWideOrWiderAndHoldsTheCornerText() {
        QFETCH(int, puntos);
        QFont letra = grid_->font();
        letra.setPointSize(puntos);
        grid_->setFont(letra);
        const auto* esquina = grid_->findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
        const QFontMetrics metrica = grid_->horizontalHeader()->fontMetrics();
        QTRY_VERIFY(esquina->width() >= metrica.horizontalAdvance(QStringLiteral("MW - PLC 255")) + 8);
        QVERIFY(esquina->width() >= 80);
        QVERIFY(esquina->height() >= metrica.height());
        QVERIFY(grid_->rowHeight(0) >= QFontMetrics(letra).height());
    }

    void cornerShowsItsText() {
        auto* esquina = grid_->findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
        QImage con = esquina->grab().toImage();
        const QRgb fondo = con.pixel(con.width() / 2, 3);
        int distintos = 0;
        for (int y = 4; y < con.height() - 4; ++y)
            for (int x = 4; x < con.width() - 4; ++x)
                distintos += qAbs(qGray(con.pixel(x, y)) - qGray(fondo)) > 100 ? 1 : 0;
        QVERIFY2(distintos > 50, qPrintable(QString::number(distintos)));
        QCOMPARE(esquina->accessibleName(), QStringLiteral("MW - PLC 255"));
    }

    void outsideItsRowsTheModelHasNothingToSay() {
        const QAbstractItemModel& modelo = *grid_->model();
        QVERIFY(!modelo.data(QModelIndex()).isValid());
        QVERIFY(!modelo.data(modelo.index(modelo.rowCount(), 0)).isValid());
        QVERIFY(!modelo.data(modelo.index(0, modelo.columnCount())).isValid());
        QVERIFY(!modelo.headerData(modelo.rowCount(), Qt::Vertical).isValid());
        QVERIFY(!modelo.headerData(-1, Qt::Vertical).isValid());
        QVERIFY(!modelo.headerData(modelo.columnCount(), Qt::Horizontal).isValid());
        QVERIFY(modelo.headerData(modelo.rowCount() - 1, Qt::Vertical).isValid());
    }

    void appendedRowsLeaveSelectionAndScrollPosition() {
        fuente_.filas_ = 100;
        grid_->refrescar();
        grid_->setCurrentIndex(celda(50, 2));
        const int posicion = grid_->verticalScrollBar()->value();
        QVERIFY(posicion > 0);
        fuente_.filas_ = 6568;
        grid_->refrescar();
        QCOMPARE(grid_->model()->rowCount(), 6567);
        QCOMPARE(grid_->verticalScrollBar()->value(), posicion);
        QCOMPARE(grid_->Row(), 50);
        QCOMPARE(grid_->selectionModel()->selectedIndexes(), QModelIndexList{celda(50, 2)});
    }

    void aGridThatWasNeverShownIsUsableAndShowsItsRowsLater() {
        MSFlexGrid otra(fuente_);
        fuente_.filas_ = 100;
        otra.refrescar();
        QCOMPARE(otra.model()->rowCount(), 99);
        otra.setCurrentIndex(otra.model()->index(49, 1));
        QCOMPARE(otra.Row(), 50);
        otra.show();
        QVERIFY(QTest::qWaitForWindowExposed(&otra, paciencia));
        QCOMPARE(otra.verticalHeader()->count(), 99);
        QCOMPARE(otra.verticalHeader()->selectionModel(), otra.selectionModel());
        QCOMPARE(otra.Row(), 50);
        QVERIFY(otra.rowHeight(98) >= otra.fontMetrics().height());
    }

    void refreshingPaintsAgain() {
        correrLoPendiente();
        ContadorDePinturas contador(grid_->viewport());
        QCoreApplication::sendPostedEvents();
        QCOMPARE(contador.pinturas, 0);
        grid_->refrescar();
        QCoreApplication::sendPostedEvents();
        QCOMPARE(contador.pinturas, 1);
    }

    void doubleClickTellsTheCellWithHeadings() {
        QSignalSpy espia(grid_.get(), &MSFlexGrid::celdaActivada);
        QTest::mouseDClick(grid_->viewport(), Qt::LeftButton, {}, centro(3, 1));
        QCOMPARE(espia.count(), 1);
        QCOMPARE(espia.at(0), (QVariantList{3, 1}));
        QCOMPARE(grid_->property("Row").toInt(), 3);
        QCOMPARE(grid_->property("Col").toInt(), 1);
    }

    void enterAndF2DoWhatADoubleClickDoes_data() {
        QTest::addColumn<Qt::Key>("tecla");
        QTest::newRow("Enter") << Qt::Key_Enter;
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("F2") << Qt::Key_F2;
    }
    void enterAndF2DoWhatADoubleClickDoes() {
        QFETCH(Qt::Key, tecla);
        QTest::mouseClick(grid_->viewport(), Qt::LeftButton, {}, centro(2, 3));
        QSignalSpy espia(grid_.get(), &MSFlexGrid::celdaActivada);
        QTest::keyClick(grid_.get(), tecla);
        QCOMPARE(espia.count(), 1);
        QCOMPARE(espia.at(0), (QVariantList{2, 3}));
    }

    void arrowsMoveTheCurrentCell() {
        grid_->setCurrentIndex(celda(1, 1));
        QTest::keyClick(grid_.get(), Qt::Key_Down);
        QTest::keyClick(grid_.get(), Qt::Key_Down);
        QTest::keyClick(grid_.get(), Qt::Key_Right);
        QCOMPARE(grid_->Row(), 3);
        QCOMPARE(grid_->Col(), 2);
    }

    void typingDoesNotEditNorMove() {
        grid_->setCurrentIndex(celda(1, 1));
        QTest::keyClicks(grid_.get(), QStringLiteral("3.1"));
        QCOMPARE(grid_->currentIndex(), celda(1, 1));
        QVERIFY(!grid_->isPersistentEditorOpen(celda(1, 1)));
        QCOMPARE(grid_->TextMatrix(1, 1), QStringLiteral("1.1"));
    }

    void tabLeavesTheGrid() {
        grid_->setCurrentIndex(celda(1, 1));
        QTest::keyClick(grid_.get(), Qt::Key_Tab);
        QCOMPARE(grid_->currentIndex(), celda(1, 1));
    }

    void ctrlCCopiesTheSelectionSeparatedByTabs() {
        grid_->setCurrentIndex(celda(2, 1));
        QTest::keyClick(grid_.get(), Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(grid_.get(), Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(copiado(), QStringLiteral("2.1\t2.2\n3.1\t3.2"));
    }

    void aSingleCellIsCopiedBare() {
        grid_->setCurrentIndex(celda(2, 1));
        QCOMPARE(copiado(), QStringLiteral("2.1"));
    }

    void cellsThatAreNotSelectedAreCopiedAsBlanks() {
        grid_->setCurrentIndex(celda(1, 1));
        QTest::mouseClick(grid_->viewport(), Qt::LeftButton, Qt::ControlModifier, centro(3, 3));
        QCOMPARE(copiado(), QStringLiteral("1.1\t\t\n\t\t3.3"));
    }

    void withoutASelectionTheClipboardStays() {
        grid_->clearSelection();
        QGuiApplication::clipboard()->setText(QStringLiteral("antes"));
        QTest::keyClick(grid_.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("antes"));
    }

    void ctrlASelectsEverything() {
        QTest::keyClick(grid_.get(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(copiado().count(QLatin1Char('\n')), 4);
        QCOMPARE(copiado().count(QLatin1Char('\t')), 10);
    }

    void tooltipComesFromTheSource() {
        QCOMPARE(celda(2, 3).data(Qt::ToolTipRole).toString(), QStringLiteral("celda 2 3"));
    }

    void columnsShareTheWidthUntilTheOperatorSetsOne() {
        grid_->resize(800, 200);
        QVERIFY(grid_->columnWidth(0) > 200);
        grid_->horizontalHeader()->resizeSection(0, 70); // what dragging the edge does
        grid_->resize(900, 200);
        QCOMPARE(grid_->columnWidth(0), 70);
    }

    void narrowViewsScrollInsteadOfClippingAValue() {
        grid_->resize(160, 200);
        QVERIFY(grid_->columnWidth(0) > grid_->fontMetrics().horizontalAdvance(QStringLiteral("65535")));
    }
};

QTEST_MAIN(TestMSFlexGrid)
#include "MSFlexGridTest.moc"
