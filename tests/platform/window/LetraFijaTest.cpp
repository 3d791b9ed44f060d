#include "platform/window/LetraFija.h"

#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <QTest>

namespace {

const QString todos = QStringLiteral("Lectura [FF] 10:32:05 -> ñÑáü ¿?¡! €“”…· 0Ww|_");

QFont fija(int puntos) {
    QFont letra = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    letra.setPointSize(puntos);
    return letra;
}

template <typename Escribir>
QImage pintado(const QFont& letra, qreal escala, Escribir escribir) {
    QImage imagen(QSize(700, 40) * escala, QImage::Format_RGB32);
    imagen.setDevicePixelRatio(escala);
    imagen.fill(Qt::white);
    QPainter pintor(&imagen);
    pintor.setFont(letra);
    pintor.setPen(Qt::darkBlue);
    escribir(pintor, QPointF(4, 25));
    return imagen;
}

} // namespace

class TestLetraFija : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aRowLooksAsThePainterWritesIt() {
        for (const int puntos : {8, 10, 13, 20})
            for (const qreal escala : {1.0, 1.5, 2.0, 3.0}) {
                const QFont letra = fija(puntos);
                const LetraFija fija(letra);
                const auto comoPintor = [](QPainter& p, QPointF base) { p.drawText(base, todos); };
                const auto porGlifos = [&](QPainter& p, QPointF base) { fija.escribir(p, base, todos); };
                QCOMPARE(pintado(letra, escala, porGlifos), pintado(letra, escala, comoPintor));
            }
    }

    void aColumnIsAsWideAsACharacterInItsRow() {
        const LetraFija letra(fija(11));
        QVERIFY(qAbs(QFontMetricsF(fija(11)).horizontalAdvance(todos) -
                     letra.ancho() * static_cast<double>(todos.size())) < 0.01);
    }

    void whatTheFontDoesNotHaveIsLeftToThePainter() {
        const QString ajeno = QStringLiteral("ab 漢字 cd");
        const LetraFija letra(fija(10));
        const auto comoPintor = [&](QPainter& p, QPointF base) { p.drawText(base, ajeno); };
        const auto porGlifos = [&](QPainter& p, QPointF base) { letra.escribir(p, base, ajeno); };
        QCOMPARE(pintado(fija(10), 1, porGlifos), pintado(fija(10), 1, comoPintor));
    }

    void nothingWritesNothing() {
        const LetraFija letra(fija(10));
        const auto nada = [](QPainter&, QPointF) {};
        const auto vacio = [&](QPainter& p, QPointF base) { letra.escribir(p, base, QString()); };
        QCOMPARE(pintado(fija(10), 1, vacio), pintado(fija(10), 1, nada));
    }
};

QTEST_MAIN(TestLetraFija)
#include "LetraFijaTest.moc"
