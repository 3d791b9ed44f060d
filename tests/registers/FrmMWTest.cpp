#include "registers/FrmMW.h"

#include "CajaDeMensaje.h"
#include "registers/Esclavos.h"
#include "registers/Palabra.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>

#include <memory>

class TestFrmMW : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<Esclavos> esclavos_;
    std::unique_ptr<FrmMW> frm_;

    QLineEdit* caja(const char* nombre) { return frm_->findChild<QLineEdit*>(QLatin1String(nombre)); }
    QString rotulo(const char* nombre) { return frm_->findChild<QLabel*>(QLatin1String(nombre))->text(); }
    QCheckBox* bit(int i) { return frm_->findChild<QCheckBox*>(QStringLiteral("CheckBin(%1)").arg(i)); }
    QString valor() { return caja("TxtValor")->text(); }
    double registro(int direccion) { return esclavos_->leer(1, direccion); }

    void abrir(const QString& texto) { frm_->abrir(1, 20, texto); }
    void pulsar(const char* boton) {
        QTest::mouseClick(frm_->findChild<QPushButton*>(QLatin1String(boton)), Qt::LeftButton);
    }
    void pulsarBit(int i) { QTest::mouseClick(bit(i), Qt::LeftButton, {}, QPoint(8, bit(i)->height() / 2)); }
    void pegar(QLineEdit* donde, const QString& texto) {
        QGuiApplication::clipboard()->setText(texto);
        donde->selectAll();
        QTest::keyClick(donde, Qt::Key_V, Qt::ControlModifier);
    }
    QString bitsPuestos() {
        QString texto;
        for (int i = 15; i >= 0; --i)
            texto += bit(i)->isChecked() ? QLatin1Char('1') : QLatin1Char('0');
        return texto;
    }

private Q_SLOTS:
    void init() {
        QLocale::setDefault(QLocale::c());
        esclavos_ = std::make_unique<Esclavos>();
        esclavos_->crearEsclavo(1, 0, 99);
        frm_ = std::make_unique<FrmMW>(*esclavos_);
        abrir(QStringLiteral("0"));
        QVERIFY(QTest::qWaitForWindowActive(frm_.get(), paciencia));
    }

    void openingFillsTheFieldsAndPutsTheCursorBehindTheValue() {
        frm_->abrir(2, 20, QStringLiteral("4321"));
        QCOMPARE(caja("TxtPlc")->text(), QStringLiteral("2"));
        QCOMPARE(caja("TxtDireccion")->text(), QStringLiteral("20"));
        QCOMPARE(valor(), QStringLiteral("4321"));
        QCOMPARE(caja("TxtValor")->cursorPosition(), 4);
        QVERIFY(!caja("TxtValor")->hasSelectedText());
        QVERIFY(caja("TxtValor")->hasFocus());
    }

    void theValueCanBeSelectedAtOnce() {
        abrir(QStringLiteral("4321"));
        QTest::keyClick(caja("TxtValor"), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(caja("TxtValor"), QStringLiteral("7"));
        QCOMPARE(valor(), QStringLiteral("7"));
    }

    void sixteenBoxesStandRightToLeftWithTheirNumbers() {
        for (int i = 0; i < 16; ++i)
            QCOMPARE(bit(i)->text(), QString::number(i));
        for (int i = 1; i < 16; ++i)
            QVERIFY(bit(i)->geometry().right() < bit(i - 1)->geometry().left());
    }

    void minusOneTicksAllBoxesAndIsStoredThroughTwosComplement() {
        abrir(QStringLiteral("-1"));
        QCOMPARE(bitsPuestos(), QStringLiteral("1111111111111111"));
        QCOMPARE(rotulo("lblC2"), QStringLiteral("C2:       -1"));
        QCOMPARE(rotulo("LblBinario"), QStringLiteral("Binario: 1111111111111111"));
        pulsar("BtnOk");
        QCOMPARE(registro(20), 65535.0);
        QVERIFY(!frm_->isVisible());
    }

    void value65535ShowsTheSameBoxesAndMinusOne() {
        abrir(QStringLiteral("65535"));
        QCOMPARE(bitsPuestos(), QStringLiteral("1111111111111111"));
        QCOMPARE(rotulo("lblC2"), QStringLiteral("C2:       -1"));
        pulsar("BtnOk");
        QCOMPARE(registro(20), 65535.0);
    }

    void value32768TicksBox15Alone() {
        abrir(QStringLiteral("32768"));
        QCOMPARE(bitsPuestos(), QStringLiteral("1000000000000000"));
        QCOMPARE(rotulo("lblC2"), QStringLiteral("C2:       -32768"));
        pulsar("BtnOk");
        QCOMPARE(registro(20), 32768.0);
    }

    void value70000ShowsItsLowBitsAndOverflowAndIsRefused() {
        abrir(QStringLiteral("70000"));
        QCOMPARE(bitsPuestos(), QStringLiteral("0001000101110000"));
        QCOMPARE(rotulo("lblC2"), QStringLiteral("Desborde"));
        CajaDeMensaje mensaje;
        pulsar("BtnOk");
        QCOMPARE(mensaje.texto, QStringLiteral("Valor fuera de rango, se admiten valores entre -32768 y 65535"));
        QVERIFY(frm_->isVisible());
        QCOMPARE(valor(), QStringLiteral("70000"));
        QCOMPARE(registro(20), 0.0);
    }

    void theRangeEndsAtMinus32768And65535() {
        abrir(QStringLiteral("-32769"));
        QCOMPARE(rotulo("lblC2"), QStringLiteral("Desborde"));
        CajaDeMensaje mensaje;
        pulsar("BtnOk");
        QCOMPARE(mensaje.vistas, 1);
        abrir(QStringLiteral("-32768"));
        QCOMPARE(rotulo("lblC2"), QStringLiteral("C2:       -32768"));
        pulsar("BtnOk");
        QCOMPARE(registro(20), 32768.0);
    }

    void untickingBox3Of65535Gives65527() {
        abrir(QStringLiteral("65535"));
        pulsarBit(3);
        QCOMPARE(valor(), QStringLiteral("65527"));
        QCOMPARE(rotulo("LblBinario"), QStringLiteral("Binario: 1111111111110111"));
    }

    void tickingBox15Of0Gives32768() {
        pulsarBit(15);
        QCOMPARE(valor(), QStringLiteral("32768"));
    }

    void aBoxCanBeTickedFromTheKeyboard() {
        bit(4)->setFocus();
        QTest::keyClick(bit(4), Qt::Key_Space);
        QCOMPARE(valor(), QStringLiteral("16"));
    }

    void clearingABitDropsEveryBitAbove15() {
        abrir(QStringLiteral("70000"));
        pulsarBit(12);
        QCOMPARE(valor(), QStringLiteral("368"));
    }

    void typingALetterOrAPointDoesNothingInAnyBox() {
        for (const char* nombre : {"TxtPlc", "TxtDireccion", "TxtValor"}) {
            const QString antes = caja(nombre)->text();
            QTest::keyClicks(caja(nombre), QStringLiteral("aZ.,+ e"));
            QKeyEvent letra(QEvent::KeyPress, Qt::Key_Ntilde, Qt::NoModifier, QStringLiteral("ñ"));
            QCoreApplication::sendEvent(caja(nombre), &letra);
            QCOMPARE(caja(nombre)->text(), antes);
        }
    }

    void minusIsAcceptedInTxtValorAlone() {
        for (const char* nombre : {"TxtPlc", "TxtDireccion"}) {
            const QString antes = caja(nombre)->text();
            QTest::keyClicks(caja(nombre), QStringLiteral("-"));
            QCOMPARE(caja(nombre)->text(), antes);
        }
        abrir(QStringLiteral("5"));
        QTest::keyClick(caja("TxtValor"), Qt::Key_Home);
        QTest::keyClicks(caja("TxtValor"), QStringLiteral("-"));
        QCOMPARE(valor(), QStringLiteral("-5"));
    }

    void aNegativeNumberCanBeTypedOverTheWholeText() {
        abrir(QStringLiteral("1234"));
        caja("TxtValor")->selectAll();
        QTest::keyClicks(caja("TxtValor"), QStringLiteral("-57"));
        QCOMPARE(valor(), QStringLiteral("-57"));
    }

    void aMinusAloneOverTheWholeTextIsNoNumberAndTurnsIntoZero() {
        abrir(QStringLiteral("1234"));
        caja("TxtValor")->selectAll();
        QTest::keyClicks(caja("TxtValor"), QStringLiteral("-"));
        QCOMPARE(valor(), QStringLiteral("0"));
        QTest::keyClicks(caja("TxtValor"), QStringLiteral("0"));
        QTest::keyClicks(caja("TxtValor"), QStringLiteral("7"));
        QCOMPARE(valor(), QStringLiteral("07"));
    }

    void aMinusIsForgottenWhenSomethingElseComesBetween() {
        abrir(QStringLiteral("1234"));
        caja("TxtValor")->selectAll();
        QTest::keyClicks(caja("TxtValor"), QStringLiteral("-"));
        QTest::mouseClick(caja("TxtValor"), Qt::LeftButton);
        caja("TxtValor")->selectAll();
        QTest::keyClicks(caja("TxtValor"), QStringLiteral("5"));
        QCOMPARE(valor(), QStringLiteral("5"));
    }

    void digitsAndBackspaceAreKept() {
        QTest::keyClicks(caja("TxtDireccion"), QStringLiteral("13"));
        QTest::keyClick(caja("TxtDireccion"), Qt::Key_Backspace);
        QCOMPARE(caja("TxtDireccion")->text(), QStringLiteral("201"));
    }

    void clearingTxtValorTurnsItIntoZeroAtOnce() {
        abrir(QStringLiteral("5"));
        QTest::keyClick(caja("TxtValor"), Qt::Key_Backspace);
        QCOMPARE(valor(), QStringLiteral("0"));
        QTest::keyClicks(caja("TxtValor"), QStringLiteral("7"));
        QCOMPARE(valor(), QStringLiteral("7"));
    }

    void keyFilterKeepsWhatIsAdmitted() {
        QCOMPARE(FrmMW::ValidarIngresoDeNumeros(8), std::int16_t{8});
        QCOMPARE(FrmMW::ValidarIngresoDeNumeros('0'), std::int16_t{'0'});
        QCOMPARE(FrmMW::ValidarIngresoDeNumeros('9'), std::int16_t{'9'});
        QCOMPARE(FrmMW::ValidarIngresoDeNumeros('a'), std::int16_t{16});
        QCOMPARE(FrmMW::ValidarIngresoDeNumeros('-'), std::int16_t{16});
        QCOMPARE(FrmMW::ValidarIngresoDeNumeros('-', true), std::int16_t{'-'});
        QCOMPARE(FrmMW::ValidarIngresoDeNumeros('.', true), std::int16_t{16});
        QCOMPARE(FrmMW::ValidarIngresoDeNumeros('.', false, true), std::int16_t{'.'});
    }

    void pastedTextIsNotFiltered() {
        pegar(caja("TxtPlc"), QStringLiteral("abc"));
        QCOMPARE(caja("TxtPlc")->text(), QStringLiteral("abc"));
        pegar(caja("TxtValor"), QStringLiteral("12.5"));
        QCOMPARE(valor(), QStringLiteral("12.5"));
        QCOMPARE(rotulo("LblBinario"), QStringLiteral("Binario: 0000000000001100"));
    }

    void pastedTextThatIsNoNumberTurnsIntoZero_data() {
        QTest::addColumn<QString>("texto");
        QTest::newRow("letters") << QStringLiteral("hola");
        QTest::newRow("decimal comma of another locale") << QStringLiteral("12,5");
        QTest::newRow("400 digits") << QString(400, QLatin1Char('9'));
        QTest::newRow("not a number") << QStringLiteral("nan");
        QTest::newRow("infinite") << QStringLiteral("inf");
        QTest::newRow("blanks") << QStringLiteral("   ");
    }
    void pastedTextThatIsNoNumberTurnsIntoZero() {
        QFETCH(QString, texto);
        abrir(QStringLiteral("5"));
        pegar(caja("TxtValor"), texto);
        QCOMPARE(valor(), QStringLiteral("0"));
        QCOMPARE(rotulo("lblC2"), QStringLiteral("C2:       0"));
    }

    void theDecimalCommaIsANumberWhereTheLocaleSaysSo() {
        QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
        abrir(QStringLiteral("12,5"));
        QCOMPARE(valor(), QStringLiteral("12,5"));
        pulsar("BtnOk");
        QCOMPARE(registro(20), 12.5);
    }

    void aValueOutside32BitsShowsOverflowAndIsRefused_data() {
        QTest::addColumn<QString>("texto");
        QTest::newRow("eleven digits") << QStringLiteral("99999999999");
        QTest::newRow("300 digits") << QString(300, QLatin1Char('9'));
        QTest::newRow("negative") << QStringLiteral("-99999999999");
        QTest::newRow("exponent") << QStringLiteral("1e300");
    }
    void aValueOutside32BitsShowsOverflowAndIsRefused() {
        QFETCH(QString, texto);
        pegar(caja("TxtValor"), texto);
        QCOMPARE(valor(), texto);
        QCOMPARE(rotulo("lblC2"), QStringLiteral("Desborde"));
        QCOMPARE(bitsPuestos(), QString(16, QLatin1Char('0')));
        CajaDeMensaje mensaje;
        pulsar("BtnOk");
        QCOMPARE(mensaje.texto, QStringLiteral("Valor fuera de rango, se admiten valores entre -32768 y 65535"));
        pulsarBit(2);
        QCOMPARE(mensaje.vistas, 2);
        QCOMPARE(valor(), texto);
        QVERIFY(!bit(2)->isChecked());
    }

    void emptyFieldsGiveTheirMessagesInOrder() {
        CajaDeMensaje mensaje;
        caja("TxtPlc")->clear();
        caja("TxtDireccion")->clear();
        {
            const QSignalBlocker sinRefresco(caja("TxtValor"));
            caja("TxtValor")->clear();
        }
        pulsar("BtnOk");
        QCOMPARE(mensaje.texto, QStringLiteral("Error de numero de PLC"));
        QTest::keyClicks(caja("TxtPlc"), QStringLiteral("1"));
        pulsar("BtnOk");
        QCOMPARE(mensaje.texto, QStringLiteral("Error de numero de Direccion"));
        QTest::keyClicks(caja("TxtDireccion"), QStringLiteral("20"));
        pulsar("BtnOk");
        QCOMPARE(mensaje.texto, QStringLiteral("Error de valor numerico"));
        {
            const QSignalBlocker sinRefresco(caja("TxtValor"));
            caja("TxtValor")->setText(QStringLiteral("x"));
        }
        pulsar("BtnOk");
        QCOMPARE(mensaje.texto, QStringLiteral("Error de valor numerico"));
        caja("TxtValor")->setText(QStringLiteral("65536"));
        pulsar("BtnOk");
        QCOMPARE(mensaje.texto, QStringLiteral("Valor fuera de rango, se admiten valores entre -32768 y 65535"));
        QCOMPARE(mensaje.vistas, 5);
        QVERIFY(frm_->isVisible());
    }

    void messagesAreInPlainBoxesOfTheProgram() {
        caja("TxtPlc")->clear();
        CajaDeMensaje mensaje;
        pulsar("BtnOk");
        QCOMPARE(mensaje.titulo, QStringLiteral("Trelvano"));
        QCOMPARE(mensaje.icono, QMessageBox::NoIcon);
    }

    void textPastedAsSlaveOrAddressGivesTheMessageOfItsField() {
        CajaDeMensaje mensaje;
        pegar(caja("TxtDireccion"), QStringLiteral("x"));
        pulsar("BtnOk");
        QCOMPARE(mensaje.texto, QStringLiteral("Error de numero de Direccion"));
        pegar(caja("TxtPlc"), QString(400, QLatin1Char('9')));
        pulsar("BtnOk");
        QCOMPARE(mensaje.texto, QStringLiteral("Error de numero de PLC"));
    }

    void aRegisterThatDoesNotExistGivesAMessage_data() {
        QTest::addColumn<QString>("plc");
        QTest::addColumn<QString>("direccion");
        QTest::newRow("slave") << "77"
                               << "0";
        QTest::newRow("address") << "1"
                                 << "100";
        QTest::newRow("negative") << "-1"
                                  << "0";
        QTest::newRow("outside 32 bits") << "1"
                                         << "99999999999";
    }
    void aRegisterThatDoesNotExistGivesAMessage() {
        QFETCH(QString, plc);
        QFETCH(QString, direccion);
        caja("TxtPlc")->setText(plc);
        caja("TxtDireccion")->setText(direccion);
        CajaDeMensaje mensaje;
        pulsar("BtnOk");
        QCOMPARE(mensaje.texto, QStringLiteral("La MW %1 del PLC %2 no existe").arg(direccion, plc));
        QVERIFY(frm_->isVisible());
        QVERIFY(!esclavos_->existe(77));
    }

    void enterIsOk() {
        QTest::keyClicks(caja("TxtValor"), QStringLiteral("42"));
        QTest::keyClick(caja("TxtValor"), Qt::Key_Return);
        QCOMPARE(registro(20), 42.0);
        QVERIFY(!frm_->isVisible());
    }

    void escapeAndTheOtherButtonsCloseWithoutWriting() {
        QTest::keyClicks(caja("TxtValor"), QStringLiteral("42"));
        QTest::keyClick(caja("TxtValor"), Qt::Key_Escape);
        QVERIFY(!frm_->isVisible());
        for (const char* boton : {"BtnCancelar", "BtnSalir"}) {
            abrir(QStringLiteral("42"));
            pulsar(boton);
            QVERIFY(!frm_->isVisible());
        }
        QCOMPARE(registro(20), 0.0);
    }

    void closingDeletesADialogThatIsMadeToGo() {
        auto* otro = new FrmMW(*esclavos_);
        otro->setAttribute(Qt::WA_DeleteOnClose);
        const QPointer<FrmMW> vivo(otro);
        otro->abrir(1, 0, QStringLiteral("3"));
        QTest::keyClick(otro, Qt::Key_Return);
        QTRY_VERIFY(vivo.isNull());
        QCOMPARE(registro(0), 3.0);
    }
};

QTEST_MAIN(TestFrmMW)
#include "FrmMWTest.moc"
