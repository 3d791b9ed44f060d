// The bar of a script that does not end: what gets through while the script has the thread, and what does not.
#include "script/BarraScript.h"

#include "script/HostScript.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSocketNotifier>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <array>
#include <memory>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

// Does something in the middle of atender(): when the bar paints itself.
class AlPintarse : public QObject {
public:
    AlPintarse(QWidget& control, std::function<void()> accion) : accion_(std::move(accion)) {
        control.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* /*objeto*/, QEvent* evento) override {
        if (evento->type() == QEvent::Paint && accion_)
            QMetaObject::invokeMethod(this, std::exchange(accion_, nullptr), Qt::QueuedConnection);
        return false;
    }

private:
    std::function<void()> accion_;
};

} // namespace

class TestBarraScript : public QObject {
    Q_OBJECT

    void dejarPintar(const std::function<bool()>& condicion) {
        for (int vez = 0; vez < 12'000 && !condicion(); ++vez) {
            barra_->atender(3s);
            QTest::qSleep(5);
        }
    }
    QPushButton* parar() const { return barra_->findChild<QPushButton*>(QStringLiteral("BtnPararScript")); }

    std::unique_ptr<QWidget> ventana_;
    QPushButton* otro_ = nullptr;
    BarraScript* barra_ = nullptr;
    int paradas_ = 0;

private Q_SLOTS:
    void init() {
        paradas_ = 0;
        ventana_ = std::make_unique<QWidget>();
        ventana_->resize(600, 400);
        otro_ = new QPushButton(QStringLiteral("otro"));
        auto* todo = new QVBoxLayout(ventana_.get());
        todo->addStretch();
        todo->addWidget(otro_);
        barra_ = new BarraScript(*ventana_, [this] { ++paradas_; });
        ventana_->show();
        QVERIFY(QTest::qWaitForWindowExposed(ventana_.get(), paciencia));
    }
    void cleanup() { ventana_.reset(); }

    void itIsHiddenUntilItIsNeeded() { QVERIFY(!barra_->isVisible()); }

    void itTellsForHowLongTheScriptRunsAndPaintsItself() {
        bool pintada = false;
        const AlPintarse vigia(*barra_, [&] { pintada = true; });
        dejarPintar([&] { return pintada; });
        QVERIFY(pintada);
        QCOMPARE(barra_->findChild<QLabel*>()->text(), QStringLiteral("El script lleva 3 s —"));
        QVERIFY(ventana_->rect().contains(barra_->geometry()));
    }

    void itsButtonStops() {
        bool hecho = false;
        const AlPintarse vigia(*barra_, [&] {
            QTest::mouseClick(parar(), Qt::LeftButton);
            hecho = true;
        });
        dejarPintar([&] { return hecho; });
        QCOMPARE(paradas_, 1);
    }

    void itsKeyStopsWhereverTheFocusIs() {
        ventana_->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), ventana_.get());
        otro_->setFocus();
        const AlPintarse vigia(*barra_, [&] { QTest::keyClick(ventana_->windowHandle(), Qt::Key_P, Qt::AltModifier); });
        dejarPintar([&] { return paradas_ > 0; }); // the button stays down for a moment
        QCOMPARE(paradas_, 1);
    }

    void noOtherControlTakesInput() {
        int clics = 0;
        connect(otro_, &QPushButton::clicked, this, [&] { ++clics; });
        bool hecho = false;
        const AlPintarse vigia(*barra_, [&] {
            QTest::mouseClick(otro_, Qt::LeftButton);
            QTest::keyClick(otro_, Qt::Key_Space);
            hecho = true;
        });
        dejarPintar([&] { return hecho; });
        QVERIFY(hecho);
        QCOMPARE(clics, 0);
        QTest::mouseClick(otro_, Qt::LeftButton);
        QCOMPARE(clics, 1);
    }

    void noTimerAndNoSocketRunsUntilTheScriptEnds() {
        std::array<int, 2> extremos{};
        QCOMPARE(pipe(extremos.data()), 0);
        QCOMPARE(write(extremos[1], "x", 1), 1);
        int avisos = 0;
        int vencidos = 0;
        QSocketNotifier avisador(extremos[0], QSocketNotifier::Read);
        connect(&avisador, &QSocketNotifier::activated, this, [&] {
            char leido = 0;
            avisos += static_cast<int>(read(extremos[0], &leido, 1));
        });
        QTimer reloj; // always due
        connect(&reloj, &QTimer::timeout, this, [&] { ++vencidos; });
        reloj.start(0);
        for (int vez = 0; vez < 10; ++vez)
            barra_->atender(3s);
        QCOMPARE(avisos, 0);
        QCOMPARE(vencidos, 0);
        QTRY_VERIFY(vencidos > 0);
        QTRY_COMPARE(avisos, 1);
        close(extremos[0]);
        close(extremos[1]);
    }

    void aWindowThatIsClosedStopsTheScriptAndClosesAfterwards() {
        bool hecho = false;
        const AlPintarse vigia(*barra_, [&] {
            hecho = true;
            ventana_->close();
        });
        dejarPintar([&] { return hecho; });
        QCOMPARE(paradas_, 1);
        QTRY_VERIFY(!ventana_->isVisible());
        QCOMPARE(paradas_, 1);
    }

    void theHostShowsItWhileTheScriptRunsAndTakesItAwayAtTheEndOfThePass() {
        HostScript host(ventana_.get(), false);
        int veces = 0;
        host.alParar([&] { ++veces; });
        const auto barra = [&] {
            const auto todas = ventana_->findChildren<BarraScript*>();
            return todas.size() == 2 ? todas.last() : nullptr; // besides this test's own
        };
        host.longRun(600ms);
        QVERIFY(barra() != nullptr && barra()->isVisible());
        QCOMPARE(barra()->findChild<QLabel*>()->text(), QStringLiteral("El script lleva 0 s —"));
        QCOMPARE(host.terminarPasada(), HostScript::Atencion::ninguna);
        QVERIFY(barra() == nullptr);
        host.longRun(2100ms);
        barra()->findChild<QPushButton*>()->click();
        QCOMPARE(veces, 1);
        QCOMPARE(host.terminarPasada(), HostScript::Atencion::parada);
        QCOMPARE(host.terminarPasada(), HostScript::Atencion::ninguna);
    }

    void theHostShowsItInTheMiddleOfALongStepToo() {
        HostScript host(ventana_.get(), false);
        host.longStep(600ms);
        QCOMPARE(ventana_->findChildren<BarraScript*>().size(), 2); // besides this test's own
    }

    void theHostShowsItInTheWindowThatTheOperatorUses() {
        QWidget editor;
        editor.resize(600, 400);
        editor.show();
        editor.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &editor);
        HostScript host(ventana_.get(), false);
        host.longRun(600ms);
        QCOMPARE(editor.findChildren<BarraScript*>().size(), 1);
        ventana_->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), ventana_.get());
        host.longRun(1s);
        QCOMPARE(editor.findChildren<BarraScript*>().size(), 0);
        QCOMPARE(ventana_->findChildren<BarraScript*>().size(), 2); // besides this test's own
    }

    void withoutAScreenOrBehindAHiddenWindowThereIsNone() {
        HostScript sinPantalla(ventana_.get(), true);
        sinPantalla.longRun(5s);
        ventana_->hide();
        HostScript oculta(ventana_.get(), false);
        oculta.longRun(5s);
        QCOMPARE(ventana_->findChildren<BarraScript*>().size(), 1);
    }
};

QTEST_MAIN(TestBarraScript)
#include "BarraScriptTest.moc"
