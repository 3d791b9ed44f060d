// The program's style: what it adds to the desktop's.
#include "platform/window/Contraste.h"

#include <QLineEdit>
#include <QStyleFactory>
#include <QTest>
#include <QTreeWidget>
#include <QVBoxLayout>

class TestContraste : public QObject {
    Q_OBJECT

    static QColor borde(QWidget& control) {
        const QImage imagen = control.grab().toImage();
        return imagen.pixelColor(imagen.width() / 2, imagen.height() - 1);
    }

private Q_SLOTS:
    void anEmptyListShowsThatItHasTheFocus() {
        EstiloLegible estilo;
        estilo.setBaseStyle(QStyleFactory::create(QStringLiteral("fusion")));
        QWidget ventana;
        auto* columna = new QVBoxLayout(&ventana);
        auto* lista = new QTreeWidget;
        auto* otro = new QLineEdit;
        lista->setStyle(&estilo);
        columna->addWidget(lista);
        columna->addWidget(otro);
        ventana.show();
        ventana.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &ventana);
        otro->setFocus();
        QVERIFY(borde(*lista) != lista->palette().color(QPalette::Highlight));
        lista->setFocus();
        QCOMPARE(borde(*lista), lista->palette().color(QPalette::Highlight));
    }
};

QTEST_MAIN(TestContraste)
#include "ContrasteTest.moc"
