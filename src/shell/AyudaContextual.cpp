#include "shell/AyudaContextual.h"

#include <QVariant>
#include <QWidget>

#include <cmath>

namespace {
constexpr double temaPorDefecto = 420;
constexpr const char* propiedad = "HelpContextID";
} // namespace

void ponerAyudaContextual(QWidget& formulario, double helpId) {
    const int tema = static_cast<int>(std::nearbyint(helpId == 0 ? temaPorDefecto : helpId));
    formulario.setProperty(propiedad, tema);
    const auto controles = formulario.findChildren<QWidget*>();
    for (QWidget* control : controles)
        control->setProperty(propiedad, tema);
}
