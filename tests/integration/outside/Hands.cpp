// Hands inside the program: a plugin that Qt loads (QT_QPA_GENERIC_PLUGINS=hands:SOCKET) and that uses windows and
// controls by their names, so that a test from outside depends on no place on the screen and no order of the Tab key.
//
// It listens on the Unix socket SOCKET (sequenced packets), one command a packet, and answers "yes" or "no":
//   shown WINDOW             whether the window can be seen
//   press WINDOW CONTROL     clicks the middle of a control; "no" where an operator could not
//   checked WINDOW CONTROL   whether the button or box is down
//   close WINDOW             as its close box does
//   trigger WINDOW ACTION    picks the menu entry of that text (without "&")
// What a command sets off runs after the answer, from the bottom of the event loop.
#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QGenericPlugin>
#include <QMouseEvent>
#include <QSocketNotifier>
#include <QWidget>

#include <array>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

QWidget* shownWindow(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible())
            return window;
    return nullptr;
}

// What the operator could click now: shown, enabled, and behind no modal box.
QWidget* usable(const QString& window, const QString& control) {
    QWidget* const top = shownWindow(window);
    QWidget* const modal = QApplication::activeModalWidget();
    if (top == nullptr || (modal != nullptr && modal != top))
        return nullptr;
    auto* const found = top->findChild<QWidget*>(control);
    return found != nullptr && found->isVisible() && found->isEnabled() ? found : nullptr;
}

void click(QWidget& widget) {
    auto* const area = qobject_cast<QAbstractScrollArea*>(&widget);
    QWidget& control = area != nullptr ? *area->viewport() : widget;
    const QPointF middle = control.rect().center();
    const QPointF global = control.mapToGlobal(middle);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons down = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QCoreApplication::postEvent(&control,
                                    new QMouseEvent(type, middle, global, Qt::LeftButton, down, Qt::NoModifier));
    }
}

bool trigger(const QString& window, const QString& text) {
    QWidget* const top = shownWindow(window);
    if (top == nullptr || QApplication::activeModalWidget() != nullptr)
        return false;
    for (QAction* action : top->findChildren<QAction*>())
        if (action->text().remove(u'&').section(u'\t', 0, 0) == text && action->isEnabled())
            return QMetaObject::invokeMethod(action, "trigger", Qt::QueuedConnection);
    return false;
}

bool obey(const QString& command) {
    const QString verb = command.section(u' ', 0, 0);
    const QString window = command.section(u' ', 1, 1);
    const QString rest = command.section(u' ', 2);
    if (verb == QLatin1String("shown"))
        return shownWindow(window) != nullptr;
    if (verb == QLatin1String("close"))
        return shownWindow(window) != nullptr &&
               QMetaObject::invokeMethod(shownWindow(window), "close", Qt::QueuedConnection);
    if (verb == QLatin1String("trigger"))
        return trigger(window, rest);
    QWidget* const control = usable(window, rest);
    if (control == nullptr)
        return false;
    if (verb == QLatin1String("checked")) {
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        return button != nullptr && button->isChecked();
    }
    if (verb != QLatin1String("press"))
        return false;
    click(*control);
    return true;
}

// One test at a time: a new connection takes the place of the last.
class Hands final : public QObject {
public:
    explicit Hands(const QString& path) : listener_(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, path.toLocal8Bit().constData(), sizeof address.sun_path - 1);
        if (::bind(listener_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
            ::listen(listener_, 1) != 0)
            qFatal("hands: no se puede escuchar en %s", address.sun_path);
        auto* const arrival = new QSocketNotifier(listener_, QSocketNotifier::Read, this);
        connect(arrival, &QSocketNotifier::activated, this, &Hands::accept);
    }
    ~Hands() override {
        end();
        ::close(listener_);
    }
    Hands(const Hands&) = delete;
    Hands& operator=(const Hands&) = delete;

private:
    void accept() {
        end();
        master_ = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (master_ < 0)
            return;
        commands_ = new QSocketNotifier(master_, QSocketNotifier::Read, this);
        connect(commands_, &QSocketNotifier::activated, this, &Hands::command);
    }

    void command() {
        std::array<char, 512> packet{};
        const ssize_t length = ::recv(master_, packet.data(), packet.size(), MSG_DONTWAIT);
        if (length <= 0) {
            end();
            return;
        }
        const char* const answer = obey(QString::fromUtf8(packet.data(), length)) ? "yes" : "no";
        if (::send(master_, answer, std::strlen(answer), MSG_NOSIGNAL) < 0)
            end();
    }

    void end() {
        if (master_ < 0)
            return;
        commands_->setEnabled(false);
        commands_->deleteLater();
        ::close(master_);
        master_ = -1;
    }

    int listener_;
    int master_ = -1;
    QSocketNotifier* commands_ = nullptr;
};

class HandsPlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "hands.json")

public:
    QObject* create(const QString& /*key*/, const QString& path) override { return new Hands(path); }
};

} // namespace

#include "Hands.moc"
