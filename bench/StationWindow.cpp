#include "StationWindow.h"

#include "shell/Estacion.h"
#include "shell/FrmPrincipal.h"

#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTableView>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <new>
#include <string>
#include <sys/mman.h>
#include <thread>
#include <unistd.h>

namespace {

std::int64_t now() {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

std::int64_t residentBytes() {
    std::int64_t total = 0;
    std::int64_t resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * sysconf(_SC_PAGESIZE);
}

// Stands for a click or a key: an event that another thread posts, and that notes how long it waited.
class Probe final : public QObject {
public:
    Probe(QPlainTextEdit* monitor, QTableView* grid) : monitor_(monitor), grid_(grid) {
        grid->viewport()->installEventFilter(this);
    }

    void run() {
        for (int turn = 0;; ++turn) {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
            QCoreApplication::postEvent(this, new Posted);
            if (turn % 10 == 0 && pressed_ == 0)
                press();
        }
    }

    // A key is answered when the grid paints what it has changed.
    bool eventFilter(QObject* object, QEvent* event) override {
        StationReport& report = stationReport();
        const std::size_t n = report.keys;
        if (event->type() == QEvent::Paint && arrived_ && n < StationReport::capacity) {
            report.keyAnswer[n] = now() - pressed_;
            report.keys = n + 1;
            arrived_ = false;
            pressed_ = 0;
        }
        return QObject::eventFilter(object, event);
    }

protected:
    void customEvent(QEvent* event) override {
        StationReport& report = stationReport();
        if (static_cast<Posted*>(event)->key) {
            // Between the first two columns: every press changes what is painted.
            QKeyEvent arrow(QEvent::KeyPress, grid_->currentIndex().column() > 0 ? Qt::Key_Left : Qt::Key_Right,
                            Qt::NoModifier);
            QCoreApplication::sendEvent(grid_, &arrow);
            arrived_ = true;
            return;
        }
        const std::size_t n = report.waits;
        if (n < StationReport::capacity) {
            report.eventWait[n] = now() - static_cast<Posted*>(event)->posted;
            report.waits = n + 1;
        }
        if (const int revision = monitor_->document()->revision(); revision != revision_) {
            revision_ = revision;
            report.monitorChanged = now();
        }
        if (n % 20 == 0)
            report.residentBytes = residentBytes();
    }

private:
    struct Posted : QEvent {
        explicit Posted(bool ofKey = false) : QEvent(User), posted(now()), key(ofKey) {}
        std::int64_t posted;
        bool key; // an arrow is pressed
    };

    void press() {
        pressed_ = now();
        QCoreApplication::postEvent(this, new Posted(true));
    }

    QPlainTextEdit* monitor_;
    QTableView* grid_;
    std::atomic<std::int64_t> pressed_ = 0; // when the key not yet answered was pressed
    bool arrived_ = false;
    int revision_ = -1;
};

void serve(std::uint16_t port, bool txRx) {
    std::string folder = "/tmp/station-window-XXXXXX";
    if (mkdtemp(folder.data()) == nullptr)
        return;
    std::ofstream(folder + "/Sis_Config.ini") << "[Trelvano]\r\nPUERTO_VALOR=" << port << "\r\nver=1\r\n";
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    int argc = 1;
    char name[] = "station";
    char* argv[] = {name, nullptr};
    QApplication application(argc, argv);
    Estacion station(folder, Arranque{.rutaPrograma = folder + "/esclavo-modbus", .lineaDeComandos = {}});
    FrmPrincipal window(station);
    if (!window.cargar())
        return;
    window.findChild<QCheckBox*>(QStringLiteral("ChRxTx"))->setChecked(txRx);
    Probe probe(window.findChild<QPlainTextEdit*>(QStringLiteral("txtTramas(1)")),
                window.findChild<QTableView*>(QStringLiteral("MSFlexGrid(1)")));
    std::thread([&probe] { probe.run(); }).detach();
    QApplication::exec();
}

} // namespace

StationReport& stationReport() {
    static void* const memory =
        mmap(nullptr, sizeof(StationReport), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    static auto* const report = new (memory) StationReport;
    return *report;
}

void serveStation(std::uint16_t port) {
    serve(port, false);
}

void serveStationWithTxRx(std::uint16_t port) {
    serve(port, true);
}
