#include "script/ColoresCodigo.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double contrasteMinimo = 5.5;

double lineal(double componente) {
    return componente <= 0.04045 ? componente / 12.92 : std::pow((componente + 0.055) / 1.055, 2.4);
}

double luminancia(const QColor& color) {
    return 0.2126 * lineal(color.redF()) + 0.7152 * lineal(color.greenF()) + 0.0722 * lineal(color.blueF());
}

// A colour of that hue, as strong as it can be while it is legible on the background.
QColor legible(const QColor& fondo, int tono, int saturacion = 200) {
    const bool oscuro = luminancia(fondo) < 0.2;
    constexpr int pasos = 100;
    QColor color;
    for (int paso = 0; paso <= pasos; ++paso) {
        const int luz = oscuro ? 128 + paso * 127 / pasos : 128 - paso * 128 / pasos;
        color = QColor::fromHsl(tono, saturacion, luz);
        if (contraste(color, fondo) >= contrasteMinimo)
            break;
    }
    return color;
}

QColor mezcla(const QColor& fondo, const QColor& tinta, double parte) {
    const auto entre = [parte](float a, float b) { return static_cast<float>(a * (1 - parte) + b * parte); };
    return QColor::fromRgbF(entre(fondo.redF(), tinta.redF()), entre(fondo.greenF(), tinta.greenF()),
                            entre(fondo.blueF(), tinta.blueF()));
}

} // namespace

double contraste(const QColor& a, const QColor& b) {
    const double una = luminancia(a);
    const double otra = luminancia(b);
    return (std::max(una, otra) + 0.05) / (std::min(una, otra) + 0.05);
}

ColoresCodigo::ColoresCodigo(const QPalette& paleta) {
    const QColor fondo = paleta.color(QPalette::Base);
    const QColor tinta = paleta.color(QPalette::Text);
    lineaActual = mezcla(fondo, tinta, 0.07);
    lineaError = mezcla(fondo, QColor(255, 0, 0), 0.18);
    pareja = mezcla(fondo, tinta, 0.1);
    hallazgo = QColor(255, 190, 0, 90);
    margen = mezcla(fondo, tinta, 0.05);
    // The darkest background that each of them meets on a light theme, the lightest on a dark one.
    palabra = legible(lineaError, 220);
    incorporada = legible(lineaError, 285, 140);
    mw = legible(lineaError, 190);
    literal = legible(lineaError, 15, 190);
    numero = legible(lineaError, 40);
    comentario = legible(lineaError, 120, 110);
    error = legible(fondo, 0, 255);
    numeroLinea = mezcla(margen, tinta, 0.6);
}
