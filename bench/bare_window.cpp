// The reference for the station's start: the least program that shows a window. Ends when it has been painted.
#include <QApplication>
#include <QWidget>

namespace {

class Window final : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override { QCoreApplication::exit(0); }
};

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    Window window;
    window.resize(1180, 760);
    window.show();
    return QApplication::exec();
}
