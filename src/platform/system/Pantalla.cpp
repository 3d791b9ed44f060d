#include "platform/system/Pantalla.h"

#include "platform/posix/Descriptor.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <dlfcn.h>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>

namespace {

std::string delEntorno(const char* variable) {
    const char* const valor = std::getenv(variable);
    return valor != nullptr ? valor : "";
}

// The library through which the window system talks to X; where it is missing, so is X for that one too.
class BibliotecaXcb {
public:
    BibliotecaXcb() : biblioteca_(::dlopen("libxcb.so.1", RTLD_NOW | RTLD_LOCAL)) {}
    ~BibliotecaXcb() {
        if (biblioteca_ != nullptr)
            ::dlclose(biblioteca_);
    }
    BibliotecaXcb(const BibliotecaXcb&) = delete;
    BibliotecaXcb& operator=(const BibliotecaXcb&) = delete;

    // Connects to the screen that DISPLAY names, with its permissions; nullptr when that fails.
    void* conectar() const {
        const auto conectar = funcion<void*(const char*, int*)>("xcb_connect");
        const auto conFallo = funcion<int(void*)>("xcb_connection_has_error");
        if (conectar == nullptr || conFallo == nullptr)
            return nullptr;
        void* const conexion = conectar(nullptr, nullptr);
        if (conFallo(conexion) == 0)
            return conexion;
        desconectar(conexion);
        return nullptr;
    }
    void desconectar(void* conexion) const {
        if (const auto desconectar = funcion<void(void*)>("xcb_disconnect"); desconectar != nullptr)
            desconectar(conexion);
    }

private:
    template <typename Funcion>
    Funcion* funcion(const char* nombre) const {
        return biblioteca_ != nullptr ? reinterpret_cast<Funcion*>(::dlsym(biblioteca_, nombre)) : nullptr;
    }

    void* biblioteca_;
};

bool hayComplementoWayland(const std::filesystem::path& complementos) {
    std::error_code error;
    std::filesystem::directory_iterator entrada(complementos / "platforms", error);
    for (; !error && entrada != std::filesystem::directory_iterator(); entrada.increment(error))
        if (entrada->path().filename().native().starts_with("libqwayland"))
            return true;
    return false;
}

bool conectaSocket(const std::string& ruta) {
    sockaddr_un direccion{};
    if (ruta.size() >= sizeof direccion.sun_path)
        return false;
    direccion.sun_family = AF_UNIX;
    std::copy(ruta.begin(), ruta.end(), std::begin(direccion.sun_path));
    const Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    return socket && ::connect(socket.number(), reinterpret_cast<const sockaddr*>(&direccion), sizeof direccion) == 0;
}

std::string motivo(const std::string& nombre, const char* variable) {
    return nombre.empty() ? "no hay pantalla" : "no se puede abrir la pantalla \"" + nombre + "\" (" + variable + ")";
}

} // namespace

std::string PantallasDelEntorno::nombreX() const {
    return delEntorno("DISPLAY");
}

std::string PantallasDelEntorno::nombreWayland() const {
    return delEntorno("WAYLAND_DISPLAY");
}

bool PantallasDelEntorno::respondeX() const {
    auto biblioteca = std::make_shared<BibliotecaXcb>();
    if (void* const conexion = biblioteca->conectar(); conexion != nullptr)
        conexionX_ = {conexion, [biblioteca](void* abierta) { biblioteca->desconectar(abierta); }};
    return conexionX_ != nullptr;
}

bool PantallasDelEntorno::respondeWayland() const {
    const std::string nombre = nombreWayland();
    return hayComplementoWayland(complementos_) &&
           conectaSocket(nombre.starts_with('/') ? nombre : delEntorno("XDG_RUNTIME_DIR") + "/" + nombre);
}

EleccionPantalla elegirPantalla(const std::string& pedida, const Pantallas& pantallas) {
    const bool pideX = pedida.starts_with("xcb");
    const bool pideWayland = pedida.starts_with("wayland");
    if (!pedida.empty() && !pideX && !pideWayland)
        return {};
    const std::string nombreX = pantallas.nombreX();
    const std::string nombreWayland = pantallas.nombreWayland();
    const bool hayX = !pideWayland && !nombreX.empty() && pantallas.respondeX();
    const bool hayWayland = !pideX && !nombreWayland.empty() && pantallas.respondeWayland();
    if (!pedida.empty() && (hayX || hayWayland))
        return {};
    if (hayX && hayWayland)
        return {};
    if (hayX)
        return {"xcb", ""};
    if (hayWayland)
        return {"wayland", ""};
    const bool culpaX = !pideWayland && (pideX || !nombreX.empty());
    return {"offscreen", culpaX ? motivo(nombreX, "DISPLAY") : motivo(nombreWayland, "WAYLAND_DISPLAY")};
}
