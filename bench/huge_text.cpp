// What the operator waits for in a monitor that holds 100 MB: the longest event of the loop while the text is scrolled,
// dragged and searched with keys and mouse, and what a repaint takes. Usage: huge_text [MEGABYTES]
//
// An event is everything that the program does in one go, from its own delivery to the end of what it called; the press
// of a key ends with the repaint that it asked for. Processor time is given beside it: the same on a machine that does
// other things too.
#include "platform/window/VistaTexto.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <stdexcept>
#include <string>

namespace {

constexpr std::size_t blockSize = 65536;
constexpr double aim = 50; // ms

double processorTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

double wallTime() {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// Milliseconds of the longest event so far.
struct Longest {
    double wall = 0;
    double processor = 0;
    void add(const Longest& other) {
        wall = std::max(wall, other.wall);
        processor = std::max(processor, other.processor);
    }
};

class Application final : public QApplication {
public:
    using QApplication::QApplication;

    Longest longest;

    bool notify(QObject* receiver, QEvent* event) override {
        if (depth_ > 0)
            return QApplication::notify(receiver, event);
        ++depth_;
        const double wall = wallTime();
        const double processor = processorTime();
        const bool result = QApplication::notify(receiver, event);
        longest.add({wallTime() - wall, processorTime() - processor});
        --depth_;
        return result;
    }

    // The longest event of all that follows from what is done.
    Longest during(const std::function<void()>& act) {
        longest = {};
        act();
        processEvents();
        return longest;
    }

private:
    int depth_ = 0;
};

enum class Kind { lines, oneLine, hexadecimal };

void fill(VistaTexto& box, Kind kind, std::size_t size) {
    std::string block(blockSize, 'x');
    for (std::size_t i = 0; i < block.size(); ++i) {
        if (kind != Kind::oneLine && i % 80 == 79)
            block[i] = '\r';
        else if (kind == Kind::hexadecimal)
            block[i] = static_cast<char>(i);
    }
    for (std::size_t filled = 0; filled < size; filled += block.size()) {
        if (kind == Kind::hexadecimal)
            box.agregarBloque({reinterpret_cast<const std::uint8_t*>(block.data()), block.size()});
        else
            box.agregar(block);
    }
    box.agregar("aguja");
    box.ponerAlDia();
}

Longest pages(Application& application, VistaTexto& box) {
    Longest all;
    for (const Qt::Key key : {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Up})
        for (int i = 0; i < 50; ++i)
            all.add(application.during([&] { QTest::keyClick(&box, key); }));
    return all;
}

Longest ends(Application& application, VistaTexto& box) {
    Longest all;
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End, Qt::Key_Home, Qt::Key_End})
        all.add(application.during([&] { QTest::keyClick(&box, key, Qt::ControlModifier); }));
    return all;
}

// From the end to the middle and a little beyond it, with the button held.
Longest drag(Application& application, VistaTexto& box) {
    QScrollBar& bar = *box.verticalScrollBar();
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Vertical;
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.sliderPosition = bar.value();
    option.pageStep = bar.pageStep();
    option.subControls = QStyle::SC_All;
    const QPoint begin =
        bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar).center();
    Longest all = application.during([&] { QTest::mousePress(&bar, Qt::LeftButton, {}, begin); });
    for (int y = begin.y(); y > bar.height() / 3; y -= 3)
        all.add(application.during([&] { QTest::mouseMove(&bar, {begin.x(), y}); }));
    all.add(application.during([&] { QTest::mouseRelease(&bar, Qt::LeftButton, {}, {begin.x(), bar.height() / 3}); }));
    if (bar.value() > bar.maximum() / 2)
        throw std::runtime_error("the bar was not dragged");
    return all;
}

// What is looked for stands at the very end, the search begins at the start.
Longest search(Application& application, VistaTexto& box) {
    QTest::keyClick(&box, Qt::Key_Home, Qt::ControlModifier);
    const QSignalSpy found(&box, &VistaTexto::busquedaTerminada);
    Longest all = application.during([&] { QTest::keyClick(&box, Qt::Key_F, Qt::ControlModifier); });
    auto* pattern = box.findChild<QLineEdit*>(QStringLiteral("txtBuscar"));
    for (const char letter : std::string("aguja"))
        all.add(application.during([&] { QTest::keyClick(pattern, letter); }));
    all.add(application.during([&] { QTest::keyClick(pattern, Qt::Key_Return); }));
    while (found.isEmpty())
        all.add(application.during([] {}));
    if (box.seleccion() != QLatin1String("aguja"))
        throw std::runtime_error("not found");
    return all;
}

// The median of a repaint of everything, in processor time.
double repaint(VistaTexto& box) {
    std::array<double, 51> times{};
    for (double& time : times) {
        const double before = processorTime();
        box.viewport()->repaint();
        time = processorTime() - before;
    }
    std::nth_element(times.begin(), times.begin() + times.size() / 2, times.end());
    return times[times.size() / 2];
}

void measure(Application& application, const char* title, Kind kind, std::size_t size) {
    VistaTexto box;
    box.resize(1000, 700);
    box.show();
    fill(box, kind, size);
    application.processEvents();
    const auto print = [&](const char* what, const Longest& longest) {
        std::printf("%s, %s: suceso más largo %.1f ms (%.1f de procesador; objetivo %.0f)\n", title, what, longest.wall,
                    longest.processor, aim);
    };
    print("páginas y filas", pages(application, box));
    print("principio y final", ends(application, box));
    print("arrastrar a la mitad", drag(application, box));
    print("buscar hasta el final", search(application, box));
    std::printf("%s, pintar todo: %.2f ms\n", title, repaint(box));
}

} // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    Application application(argc, argv);
    const std::size_t size = (argc > 1 ? std::max(1UL, std::strtoul(argv[1], nullptr, 10)) : 100UL) * 1'000'000;
    try {
        measure(application, "texto en líneas", Kind::lines, size);
        measure(application, "texto sin fin de línea", Kind::oneLine, size);
        measure(application, "hexadecimal", Kind::hexadecimal, size);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "huge_text: %s\n", failure.what());
        return 1;
    }
    return 0;
}
