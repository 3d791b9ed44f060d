#include "platform/window/MsgBox.h"

#include "CajaDeMensaje.h"

#include <QPointer>

class TestMsgBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aPlainBoxHasNoIconAndTheTitleOfTheProgram() {
        CajaDeMensaje caja;
        MsgBox(nullptr, QStringLiteral("Error de numero de PLC"));
        QCOMPARE(caja.vistas, 1);
        QCOMPARE(caja.texto, QStringLiteral("Error de numero de PLC"));
        QCOMPARE(caja.titulo, QStringLiteral("Trelvano"));
        QCOMPARE(caja.icono, QMessageBox::NoIcon);
    }

    void theOnlyButtonSpeaksSpanish() {
        CajaDeMensaje caja;
        MsgBox(nullptr, QStringLiteral("x"));
        QCOMPARE(caja.botones, QStringList{QStringLiteral("Aceptar")});
    }

    void styleChoosesTheIcon_data() {
        QTest::addColumn<int>("estilo");
        QTest::addColumn<QMessageBox::Icon>("icono");
        QTest::newRow("critical") << 16 << QMessageBox::Critical;
        QTest::newRow("exclamation") << 48 << QMessageBox::Warning;
        QTest::newRow("information") << 64 << QMessageBox::Information;
    }
    void styleChoosesTheIcon() {
        QFETCH(int, estilo);
        QFETCH(QMessageBox::Icon, icono);
        CajaDeMensaje caja;
        MsgBox(nullptr, QStringLiteral("x"), estilo);
        QCOMPARE(caja.icono, icono);
    }

    void style4112IsCriticalAndBlocksEveryWindow() {
        CajaDeMensaje caja;
        QWidget ventana;
        MsgBox(&ventana, QStringLiteral("Programa en ejecucion"), 4112, QStringLiteral("Esclavo Modbus"));
        QCOMPARE(caja.icono, QMessageBox::Critical);
        QCOMPARE(caja.modalidad, Qt::ApplicationModal);
        QCOMPARE(caja.titulo, QStringLiteral("Esclavo Modbus"));
    }

    void styleChoosesTheButtonsAndTheirCodes_data() {
        QTest::addColumn<int>("estilo");
        QTest::addColumn<QStringList>("botones");
        QTest::addColumn<int>("primero"); // the code of the first button, which CajaDeMensaje clicks
        QTest::newRow("ok, cancel") << vbOKCancel << QStringList{"Aceptar", "Cancelar"} << vbOK;
        QTest::newRow("abort, retry, ignore")
            << vbAbortRetryIgnore << QStringList{"&Anular", "&Reintentar", "&Omitir"} << vbAbort;
        QTest::newRow("yes, no, cancel") << vbYesNoCancel << QStringList{"&Sí", "&No", "Cancelar"} << vbYes;
        QTest::newRow("yes, no") << vbYesNo + vbQuestion << QStringList{"&Sí", "&No"} << vbYes;
        QTest::newRow("retry, cancel") << vbRetryCancel << QStringList{"&Reintentar", "Cancelar"} << vbRetry;
    }
    void styleChoosesTheButtonsAndTheirCodes() {
        QFETCH(int, estilo);
        QFETCH(QStringList, botones);
        CajaDeMensaje caja;
        QTEST(MsgBox(nullptr, QStringLiteral("x"), estilo), "primero");
        QCOMPARE(caja.botones, botones);
    }

    void keysChooseTheDefaultButtonAndCancel_data() {
        QTest::addColumn<int>("estilo");
        QTest::addColumn<int>("tecla");
        QTest::addColumn<int>("codigo");
        QTest::newRow("first by default") << vbYesNo << int(Qt::Key_Return) << vbYes;
        QTest::newRow("second") << vbYesNo + 256 << int(Qt::Key_Return) << vbNo;
        QTest::newRow("third") << vbYesNoCancel + 512 << int(Qt::Key_Return) << vbCancel;
        QTest::newRow("escape cancels") << vbYesNoCancel << int(Qt::Key_Escape) << vbCancel;
        QTest::newRow("escape of the only button") << vbOKOnly << int(Qt::Key_Escape) << vbOK;
    }
    void keysChooseTheDefaultButtonAndCancel() {
        QFETCH(int, estilo);
        QFETCH(int, tecla);
        QTimer vigia;
        connect(&vigia, &QTimer::timeout, this, [&] {
            if (QWidget* const caja = QApplication::activeModalWidget())
                QTest::keyClick(caja, static_cast<Qt::Key>(tecla));
        });
        vigia.start(5);
        QTEST(MsgBox(nullptr, QStringLiteral("x"), estilo), "codigo");
    }

    void escapeAnswersNothingWhereNothingCanBeCancelled_data() {
        QTest::addColumn<int>("estilo");
        QTest::addColumn<int>("codigo");
        QTest::newRow("yes, no") << vbYesNo << vbYes;
        QTest::newRow("abort, retry, ignore") << vbAbortRetryIgnore << vbAbort;
    }
    void escapeAnswersNothingWhereNothingCanBeCancelled() {
        QFETCH(int, estilo);
        QTimer vigia;
        connect(&vigia, &QTimer::timeout, this, [&] {
            if (QWidget* const caja = QApplication::activeModalWidget())
                for (const Qt::Key tecla : {Qt::Key_Escape, Qt::Key_Return})
                    QTest::keyClick(caja, tecla);
        });
        vigia.start(5);
        QTEST(MsgBox(nullptr, QStringLiteral("x"), estilo), "codigo");
    }

    void noticeReturnsAtOnceAndGoesAwayWhenClosed() {
        QWidget ventana;
        avisarMsgBox(&ventana, QStringLiteral("Desbordamiento"), vbCritical);
        const QPointer<QMessageBox> aviso = ventana.findChild<QMessageBox*>();
        QVERIFY(aviso && aviso->isVisible());
        QCOMPARE(aviso->windowModality(), Qt::ApplicationModal);
        CajaDeMensaje caja;
        QTRY_VERIFY(!aviso);
        QCOMPARE(caja.texto, QStringLiteral("Desbordamiento"));
    }

    void boxEndsWithItsParent() {
        const QPointer<QWidget> ventana = new QWidget;
        QTimer vigia;
        connect(&vigia, &QTimer::timeout, this, [&] {
            if (QApplication::activeModalWidget() != nullptr)
                delete ventana;
        });
        vigia.start(5);
        QCOMPARE(MsgBox(ventana, QStringLiteral("x"), vbYesNo), vbCancel);
        QVERIFY(!ventana);
    }

    void textIsNeverTakenForMarkup() {
        CajaDeMensaje caja;
        MsgBox(nullptr, QStringLiteral("<b>x</b>"));
        QCOMPARE(caja.texto, QStringLiteral("<b>x</b>"));
    }
};

QTEST_MAIN(TestMsgBox)
#include "MsgBoxTest.moc"
