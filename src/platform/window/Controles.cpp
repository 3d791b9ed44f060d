#include "platform/window/Controles.h"

#include <QCheckBox>
#include <QDateTime>
#include <QLabel>
#include <QPushButton>

namespace {

// A caption without the mark of its key.
QString sinTecla(QString texto) {
    return texto.remove(u'&');
}

} // namespace

QString nombreDeElemento(const char* nombre, int indice) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(nombre)).arg(indice);
}

QPushButton* crearBoton(QWidget* padre, const char* nombre, const QString& texto, const QString& ayuda) {
    auto* boton = nombrado(new QPushButton(texto, padre), nombre, sinTecla(texto));
    boton->setToolTip(ayuda);
    return boton;
}

QCheckBox* crearCasilla(QWidget* padre, const char* nombre, const QString& texto, const QString& ayuda) {
    auto* casilla = nombrado(new QCheckBox(texto, padre), nombre, sinTecla(texto));
    casilla->setToolTip(ayuda);
    return casilla;
}

QLabel* crearTitulo(QWidget* padre, const char* nombre, const QString& texto) {
    auto* titulo = nombrado(new QLabel(texto, padre), nombre);
    QFont negrita = titulo->font();
    negrita.setBold(true);
    titulo->setFont(negrita);
    return titulo;
}

QLabel* crearAviso(QWidget* padre, const char* nombre, const QString& nombreAccesible) {
    auto* aviso = nombrado(new QLabel(padre), nombre, nombreAccesible);
    aviso->setTextFormat(Qt::PlainText); // what a device or a file says is no markup
    aviso->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    aviso->setWordWrap(true);
    aviso->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long word must not widen the window
    aviso->hide();
    return aviso;
}

void avisar(QLabel& aviso, const QString& texto) {
    aviso.setText(texto);
    aviso.setVisible(!texto.isEmpty());
}

bool ponerFondoDeEstado(QWidget& control, bool bien) {
    const QColor color = bien ? colores::verde : colores::rojo;
    QPalette paleta = control.palette();
    if (paleta.color(QPalette::Window) == color)
        return false;
    paleta.setColor(QPalette::Window, color);
    paleta.setColor(QPalette::WindowText, Qt::black);
    control.setPalette(paleta);
    return true;
}

QString deUtf8(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString deUtf16(std::u16string_view utf16) {
    return QString::fromUtf16(utf16.data(), static_cast<qsizetype>(utf16.size()));
}

QString textoDeHora(Reloj::Hora hora, const QString& formato) {
    const auto desde1970 = std::chrono::duration_cast<std::chrono::milliseconds>(hora.time_since_epoch());
    return QDateTime::fromMSecsSinceEpoch(desde1970.count()).toString(formato);
}
