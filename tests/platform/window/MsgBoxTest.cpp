#include "platform/window/MsgBox.h"

#include "CajaDeMensaje.h"

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

    void textIsNeverTakenForMarkup() {
        CajaDeMensaje caja;
        MsgBox(nullptr, QStringLiteral("<b>x</b>"));
        QCOMPARE(caja.texto, QStringLiteral("<b>x</b>"));
    }
};

QTEST_MAIN(TestMsgBox)
#include "MsgBoxTest.moc"
