// What every window makes its controls of: names, buttons, titles, notices, the colours of state, and texts in and out
// of the window system.
//
//     auto* boton = crearBoton(this, "BtnOcultar", QStringLiteral("Ocultar"), QStringLiteral("Oculta esta ventana"));
//     auto* caja = nombrado(new QLineEdit(this), nombreDeElemento("txtTramas", 3), QStringLiteral("Tramas"));
#pragma once

#include "platform/clock/Reloj.h"

#include <QColor>
#include <QString>

#include <string>
#include <string_view>

class QCheckBox;
class QLabel;
class QPushButton;
class QWidget;

// ---- names: objectName, and the accessible name where it says more than the control's own text

QString nombreDeElemento(const char* nombre, int indice); // of a control array: "MSFlexGrid(3)"

template <typename Objeto>
Objeto* nombrado(Objeto* objeto, const QString& nombre) {
    objeto->setObjectName(nombre);
    return objeto;
}

template <typename Control>
Control* nombrado(Control* control, const QString& nombre, const QString& nombreAccesible) {
    control->setAccessibleName(nombreAccesible);
    return nombrado(control, nombre);
}

template <typename Control>
Control* nombrado(Control* control, const char* nombre, const QString& nombreAccesible = {}) {
    return nombrado(control, QString::fromLatin1(nombre), nombreAccesible);
}

// ---- controls; the parent, which may be null, owns them

QPushButton* crearBoton(QWidget* padre, const char* nombre, const QString& texto, const QString& ayuda = {});
QCheckBox* crearCasilla(QWidget* padre, const char* nombre, const QString& texto, const QString& ayuda = {});
QLabel* crearTitulo(QWidget* padre, const char* nombre, const QString& texto); // bold

// A notice: plain text that can be selected and never widens its window; hidden while it has nothing to say.
QLabel* crearAviso(QWidget* padre, const char* nombre, const QString& nombreAccesible = {});
void avisar(QLabel& aviso, const QString& texto); // empty: nothing to say

// ---- colours of state: those that operators know from their other stations, the same in every window

namespace colores {
constexpr QColor verde{0, 255, 0}; // behind a text: good, open
constexpr QColor rojo{255, 0, 0};  // behind a text: error, closed; as a text: refused
constexpr QColor verdeOscuro{0, 128, 0};
constexpr QColor azulOscuro{0, 0, 128};
constexpr QColor amarillo{255, 255, 0};
} // namespace colores

// Green or red behind a black text, whatever the theme. False: that colour was there already.
bool ponerFondoDeEstado(QWidget& control, bool bien);

// ---- texts

QString deUtf8(std::string_view utf8);
QString deUtf16(std::u16string_view utf16);
QString textoDeHora(Reloj::Hora hora,
                    const QString& formato = QStringLiteral("HH:mm:ss")); // local; QDateTime's letters
