#include "registers/FrmGrafica.h"

#include "RelojDePrueba.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>

class TestFrmGrafica : public QObject {
    Q_OBJECT

private:
    RelojDePrueba reloj_;
    std::unique_ptr<Esclavos> esclavos_;
    std::unique_ptr<Anotaciones> anotaciones_;
    QPointer<FrmGrafica> grafica_;
    QTemporaryDir carpeta_;

    // The dialog that the keys open, once it is on the screen; it may not hold the loop that serves the masters.
    QFileDialog* dialogoDe(Qt::Key tecla) {
        const int bucle = QThread::currentThread()->loopLevel();
        QTest::keyClick(grafica_, tecla, Qt::AltModifier);
        QFileDialog* dialogo = nullptr;
        const bool abierto = QTest::qWaitFor(
            [&] {
                dialogo = grafica_->findChild<QFileDialog*>();
                return dialogo != nullptr && dialogo->isVisible();
            },
            paciencia);
        return abierto && QThread::currentThread()->loopLevel() == bucle ? dialogo : nullptr;
    }

    // Pasted as a whole: typed letters open a list of completions that takes the keys.
    static void elegir(QFileDialog& dialogo, const QString& nombre) {
        auto* caja = dialogo.findChild<QLineEdit*>();
        caja->setText(nombre);
        QTest::keyClick(caja, Qt::Key_Return);
    }

    QString ruta(const QString& nombre) const { return QDir(carpeta_.path()).filePath(nombre); }

private Q_SLOTS:
    void init() {
        QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
        esclavos_ = std::make_unique<Esclavos>();
        esclavos_->crearEsclavo(2, 0, 99);
        anotaciones_ = std::make_unique<Anotaciones>(reloj_);
        esclavos_->observarCambios(&anotaciones_->cambios);
        const FrmGrafica::Registro uno{2, 5};
        grafica_ = new FrmGrafica(*esclavos_, *anotaciones_, {&uno, 1});
        grafica_->show();
        QVERIFY(QTest::qWaitForWindowActive(grafica_, paciencia));
    }
    void cleanup() { delete grafica_; }

    void theTableIsSavedAsItIsWhenTheFileIsChosen() {
        QFileDialog* dialogo = dialogoDe(Qt::Key_E);
        QVERIFY(dialogo != nullptr);
        esclavos_->escribir(2, 5, 77);
        elegir(*dialogo, ruta(QStringLiteral("tabla")));
        QTRY_VERIFY(QFile::exists(ruta(QStringLiteral("tabla.csv"))));
        QFile archivo(ruta(QStringLiteral("tabla.csv")));
        QVERIFY(archivo.open(QIODevice::ReadOnly));
        const QByteArray bytes = archivo.readAll();
        QCOMPARE(bytes, QByteArrayLiteral("\xEF\xBB\xBF") + grafica_->comoCsv().toUtf8());
        QVERIFY2(bytes.endsWith(";77\r\n"), bytes.constData());
    }

    void thePictureIsSavedAsLargeAsItIsShown() {
        QFileDialog* dialogo = dialogoDe(Qt::Key_I);
        QVERIFY(dialogo != nullptr);
        elegir(*dialogo, ruta(QStringLiteral("dibujo.png")));
        QTRY_VERIFY(QFile::exists(ruta(QStringLiteral("dibujo.png"))));
        const QImage imagen(ruta(QStringLiteral("dibujo.png")));
        QCOMPARE(imagen.size(), grafica_->findChild<VistaGrafica*>()->grab().size());
    }

    void escapeSavesNothing() {
        const QPointer<QFileDialog> dialogo = dialogoDe(Qt::Key_E);
        QVERIFY(dialogo != nullptr);
        QTest::keyClick(dialogo, Qt::Key_Escape);
        QTRY_VERIFY(dialogo == nullptr);
        QVERIFY(!QFile::exists(QDir::current().filePath(QStringLiteral("grafica.csv"))));
    }

    void aFileThatCannotBeWrittenIsTold() {
        QFileDialog* dialogo = dialogoDe(Qt::Key_E);
        QVERIFY(dialogo != nullptr);
        Q_EMIT dialogo->fileSelected(QStringLiteral("/no/existe/tabla.csv"));
        QTRY_VERIFY(grafica_->findChild<QMessageBox*>() != nullptr);
        const QString texto = grafica_->findChild<QMessageBox*>()->text();
        QVERIFY2(texto.startsWith(QStringLiteral("No se pudo guardar /no/existe/tabla.csv: ")), qPrintable(texto));
    }

    void theChartMayBeClosedWhileItAsks() {
        const QPointer<QFileDialog> dialogo = dialogoDe(Qt::Key_I);
        QVERIFY(dialogo != nullptr);
        grafica_->close();
        QTRY_VERIFY(grafica_ == nullptr);
        QVERIFY(dialogo == nullptr);
    }
};

QTEST_MAIN(TestFrmGrafica)
#include "FrmGraficaTest.moc"
