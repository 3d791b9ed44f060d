// How soon the operator sees something: the station's start to its first paint beside a bare Qt window's, and opening
// FrmMW by a double click. Usage: window_times BARE-WINDOW; it starts itself as the station, with the word "station".
#include "ajustes/Claves.h"
#include "shell/Estacion.h"
#include "shell/FrmPrincipal.h"

#include <QApplication>
#include <QTableView>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Waits for the first paint of a window of that class name.
class FirstPaint final : public QObject {
public:
    explicit FirstPaint(const char* window) : window_(window) { qApp->installEventFilter(this); }
    bool seen() const { return seen_; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        seen_ = seen_ || (event->type() == QEvent::Paint && object->objectName() == QLatin1String(window_));
        return false;
    }

private:
    const char* window_;
    bool seen_ = false;
};

void waitFor(const FirstPaint& paint) {
    while (!paint.seen())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// The station up to its first paint; with `dialogs` it then opens FrmMW and prints the milliseconds each time took.
int station(int argc, char** argv, bool dialogs) {
    QApplication application(argc, argv);
    const auto folder = std::filesystem::temp_directory_path() / ("window-times-" + std::to_string(getpid()));
    std::filesystem::create_directory(folder);
    Estacion parts(folder, Arranque{.rutaPrograma = (folder / "esclavo-modbus").string(), .lineaDeComandos = {}});
    parts.config.escribirConfiguracion(claves::puerto, "15999");
    {
        FrmPrincipal window(parts);
        const FirstPaint shown("FrmPrincipal");
        if (!window.cargar())
            return 1;
        waitFor(shown);
        auto* grid = window.findChild<QTableView*>(QStringLiteral("MSFlexGrid(1)"));
        const QPoint cell = grid->visualRect(grid->model()->index(1, 1)).center();
        for (int i = 0; dialogs && i < 21; ++i) {
            const FirstPaint opened("FrmMW");
            const auto began = Clock::now();
            QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, cell);
            waitFor(opened);
            std::printf("%f\n", std::chrono::duration<double, std::milli>(Clock::now() - began).count());
            QTest::keyClick(window.findChild<QWidget*>(QStringLiteral("FrmMW")), Qt::Key_Escape);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    std::filesystem::remove_all(folder);
    return 0;
}

double secondsToRun(const std::string& command) {
    const auto began = Clock::now();
    if (std::system(command.c_str()) != 0)
        std::fprintf(stderr, "window_times: %s failed\n", command.c_str());
    return std::chrono::duration<double>(Clock::now() - began).count();
}

} // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    if (argc == 2 && std::string(argv[1]) == "station")
        return station(argc, argv, false);
    if (argc == 2 && std::string(argv[1]) == "dialogs")
        return station(argc, argv, true);
    if (argc != 2) {
        std::fputs("usage: window_times BARE-WINDOW\n", stderr);
        return 2;
    }
    std::vector<double> ratios;
    std::vector<double> painted;
    for (int i = 0; i < 21; ++i) {
        const double base = secondsToRun(argv[1]);
        painted.push_back(secondsToRun(std::string(argv[0]) + " station 2>/dev/null"));
        ratios.push_back(painted.back() / base);
    }
    std::printf("arranque hasta pintar: %.2f veces una ventana vacía, %.0f ms\n", median(ratios),
                1000 * median(painted));

    std::vector<double> opened;
    FILE* dialogs = popen((std::string(argv[0]) + " dialogs 2>/dev/null").c_str(), "r");
    for (double ms = 0; dialogs != nullptr && std::fscanf(dialogs, "%lf", &ms) == 1;)
        opened.push_back(ms);
    if (dialogs == nullptr || pclose(dialogs) != 0 || opened.empty())
        return 1;
    std::printf("abrir FrmMW: %.1f ms la primera vez, %.1f ms después\n", opened.front(), median(opened));
}
