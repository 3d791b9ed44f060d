#include "registers/FrmGrafica.h"

#include "PasoDelTiempo.h"
#include "RelojDePrueba.h"
#include "TiempoDeProcesador.h"

#include <QDateTime>
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

#include <chrono>
#include <memory>
#include <tuple>
#include <vector>

using namespace std::chrono_literals;

class TestFrmGrafica : public QObject {
    Q_OBJECT

private:
    RelojDePrueba reloj_;
    std::unique_ptr<Esclavos> esclavos_;
    std::unique_ptr<Anotaciones> anotaciones_;
    QPointer<FrmGrafica> grafica_;
    QTemporaryDir carpeta_;
    int pinturas_ = 0;

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

    bool eventFilter(QObject* objeto, QEvent* evento) override {
        pinturas_ += evento->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(objeto, evento);
    }

    static int cuantosDe(const QImage& imagen, const QColor& color) {
        int hallados = 0;
        for (int y = 0; y < imagen.height(); ++y)
            for (int x = 0; x < imagen.width(); ++x)
                hallados += imagen.pixel(x, y) == color.rgb() ? 1 : 0;
        return hallados;
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

    void theTableHasARowForEachChangeWithWhatHeldThen() {
        const FrmGrafica::Registro dos[] = {{2, 5}, {2, 6}};
        FrmGrafica grafica(*esclavos_, *anotaciones_, dos);
        grafica.setAttribute(Qt::WA_DeleteOnClose, false);
        std::vector<QDateTime> horas{QDateTime::fromMSecsSinceEpoch(anotaciones_->cambios.hora())};
        for (const auto& [pausa, direccion, valor] :
             {std::tuple{1005ms, 5, 10.0}, {30ms, 6, 12.5}, {1000ms, 5, 20.0}, {2971ms, 5, 21.0}}) {
            reloj_.pasar(pausa);
            esclavos_->escribir(2, direccion, valor);
            horas.push_back(QDateTime::fromMSecsSinceEpoch(anotaciones_->cambios.hora()));
        }
        QString esperado = QStringLiteral("fecha;hora;\"2:5\";\"2:6\"\r\n");
        const char* valores[] = {";0;0", ";10;0", ";10;12,5", ";20;12,5", ";21;12,5"};
        for (std::size_t i = 0; i < horas.size(); ++i)
            esperado += horas[i].toString(QStringLiteral("dd/MM/yyyy;HH:mm:ss.zzz")) + QString::fromLatin1(valores[i]) +
                        QStringLiteral("\r\n");
        QCOMPARE(grafica.comoCsv(), esperado);
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

    // Registers that change in every column of pixels, from the bottom to the top: seconds, if each were a stroke.
    void aLargeChartFullOfChangesIsPaintedInNoTime() {
        std::vector<LineaGrafica> lineas;
        for (int i = 0; i < static_cast<int>(VistaGrafica::maxLineas); ++i) {
            lineas.push_back({2, i, QStringLiteral("2:%1").arg(i), {}, {}});
            for (int ms = 0; ms < 60'000; ms += 20)
                lineas.back().historia.anotar(ms, ms % 40 == 0 ? 0 : 65535.0 / (i + 1));
        }
        VistaGrafica vista(lineas, [] { return std::int64_t{60'000}; });
        vista.resize(1900, 1000);
        QImage imagen(vista.size(), QImage::Format_RGB32);
        const std::int64_t antes = msDeProcesador();
        vista.render(&imagen);
        const std::int64_t gastado = msDeProcesador() - antes;
        QVERIFY2(gastado < 1000, qPrintable(QString::number(gastado)));
        QVERIFY(cuantosDe(imagen, VistaGrafica::color(0, false)) > 10'000);
    }

    // Whatever the dash, and wherever the step falls in it.
    void aLoneStepIsDrawnFromEndToEnd() {
        std::vector<LineaGrafica> lineas;
        for (int i = 0; i < static_cast<int>(VistaGrafica::maxLineas); ++i)
            lineas.push_back({2, i, {}, {}, {}});
        std::int64_t ahora = 60'000;
        VistaGrafica vista(lineas, [&] { return ahora; });
        for (std::size_t cual = 0; cual < lineas.size(); ++cual) {
            for (LineaGrafica& linea : lineas)
                linea.historia.vaciar();
            lineas[cual].historia.anotar(0, 0);
            lineas[cual].historia.anotar(30'000, 100);
            for (ahora = 60'000; ahora < 62'000; ahora += 80) { // about a column
                const QImage imagen = vista.grab().toImage();
                const int alto = imagen.height() / 2; // between the two values
                QVERIFY2(cuantosDe(imagen.copy(0, alto, imagen.width(), 1), VistaGrafica::color(cual, false)) > 0,
                         qPrintable(QStringLiteral("línea %1, %2 ms").arg(cual).arg(ahora)));
            }
        }
    }

    void theChartIsPaintedAsOftenAsItMovesOn() {
        auto* vista = grafica_->findChild<VistaGrafica*>();
        const auto pinturasEnDiezSegundos = [&](std::int64_t ventana) {
            vista->ponerVentana(ventana);
            pinturas_ = 0;
            PasoDelTiempo tiempo(*grafica_);
            for (int ms = 0; ms < 10'000; ms += 10) {
                reloj_.pasar(10ms);
                tiempo.pasar(10ms);
            }
            return pinturas_;
        };
        vista->installEventFilter(this);
        QVERIFY(pinturasEnDiezSegundos(10'000) >= 150);
        const int conUnaHora = pinturasEnDiezSegundos(3'600'000);
        QVERIFY2(conUnaHora >= 35 && conUnaHora <= 42, qPrintable(QString::number(conUnaHora)));
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
