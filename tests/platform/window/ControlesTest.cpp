// The widget kit: names, notices, colours of state.
#include "platform/window/Controles.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

class TestControles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void elementOfAControlArrayBearsItsIndex() {
        QCOMPARE(nombreDeElemento("MSFlexGrid", 3), QStringLiteral("MSFlexGrid(3)"));
    }

    void controlIsFoundByItsNameAndReadAloudByAnother() {
        QWidget ventana;
        const auto* control = nombrado(new QLabel(&ventana), "lblEstado", QStringLiteral("Estado del puerto"));
        QCOMPARE(ventana.findChild<QLabel*>(QStringLiteral("lblEstado")), control);
        QCOMPARE(control->accessibleName(), QStringLiteral("Estado del puerto"));
    }

    void buttonIsReadAloudWithoutTheMarkOfItsKey() {
        QWidget ventana;
        const auto* boton = crearBoton(&ventana, "BtnX", QStringLiteral("&Guardar"), QStringLiteral("Ctrl+S"));
        QCOMPARE(boton->text(), QStringLiteral("&Guardar"));
        QCOMPARE(boton->accessibleName(), QStringLiteral("Guardar"));
        QCOMPARE(boton->toolTip(), QStringLiteral("Ctrl+S"));
    }

    void noticeShowsWhileItHasSomethingToSayAndTakesNoMarkup() {
        QWidget ventana;
        auto* aviso = crearAviso(&ventana, "lblAviso");
        ventana.show();
        QVERIFY(!aviso->isVisible());
        avisar(*aviso, QStringLiteral("<b>no</b>"));
        QVERIFY(aviso->isVisible());
        QCOMPARE(aviso->textFormat(), Qt::PlainText);
        avisar(*aviso, {});
        QVERIFY(!aviso->isVisible());
    }

    void longNoticeWidensNoWindow() {
        QWidget ventana;
        auto* aviso = crearAviso(&ventana, "lblAviso");
        avisar(*aviso, QString(5000, u'x'));
        QCOMPARE(aviso->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
    }

    void stateIsGreenOrRedBehindBlack() {
        QCheckBox casilla;
        QVERIFY(ponerFondoDeEstado(casilla, true));
        QCOMPARE(casilla.palette().color(QPalette::Window), QColor(0, 255, 0));
        QCOMPARE(casilla.palette().color(QPalette::WindowText), QColor(Qt::black));
        QVERIFY(!ponerFondoDeEstado(casilla, true));
        QVERIFY(ponerFondoDeEstado(casilla, false));
        QCOMPARE(casilla.palette().color(QPalette::Window), QColor(255, 0, 0));
    }

    void textsComeWholeFromEitherEncoding() {
        using namespace std::string_view_literals;
        QCOMPARE(deUtf8("añ\0o"sv), QString::fromUtf8("añ\0o", 5));
        QCOMPARE(deUtf16(u"a\0ñ"sv).size(), 3);
    }
};

QTEST_MAIN(TestControles)
#include "ControlesTest.moc"
