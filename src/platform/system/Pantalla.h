// Whether windows can be shown at all, tried before the window system is started: that one ends the program when it
// cannot reach its screen.
//
//     PantallasDelEntorno pantallas(complementos);
//     const EleccionPantalla eleccion = elegirPantalla("", pantallas);
//     if (!eleccion.motivo.empty()) ...   // nobody will see the windows
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <utility>

// The screens there may be. Every name is that of the environment, empty without one.
class Pantallas {
public:
    virtual std::string nombreX() const = 0;       // DISPLAY
    virtual std::string nombreWayland() const = 0; // WAYLAND_DISPLAY
    virtual bool respondeX() const = 0;            // connects to the screen
    virtual bool respondeWayland() const = 0;

protected:
    ~Pantallas() = default;
};

// Stays connected to the X screen that answered for as long as it lives: one whose last client leaves begins anew and
// refuses others meanwhile. So it is kept until the window system has connected itself.
class PantallasDelEntorno final : public Pantallas {
public:
    // `complementos`: the window system's folder of plug-ins; without one for Wayland no such screen answers.
    explicit PantallasDelEntorno(std::filesystem::path complementos) : complementos_(std::move(complementos)) {}

    std::string nombreX() const override;
    std::string nombreWayland() const override;
    bool respondeX() const override;
    bool respondeWayland() const override;

private:
    std::filesystem::path complementos_;
    mutable std::shared_ptr<void> conexionX_;
};

struct EleccionPantalla {
    std::string plataforma; // of the window system: "xcb", "wayland", "offscreen"; empty: as it chooses itself
    std::string motivo;     // why there is no screen (Spanish, no full stop); empty: there is one
};

// `pedida`: the platform that the user asked for, empty without one. One that needs no screen is left as it is.
EleccionPantalla elegirPantalla(const std::string& pedida, const Pantallas& pantallas);
