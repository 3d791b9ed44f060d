#include "script/AyudaMW.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

struct Operacion {
    const char* firma;
    const char* efecto;
    const char* ejemplo;
};

constexpr Operacion operaciones[] = {
    {"mw.leer(esclavo, dirección [, bit])",
     "El valor del registro, de 0 a 65535; con <i>bit</i> (0 a 15), ese bit: 0 o 1. Si el esclavo o el registro no "
     "existen, los crea y devuelve 0.",
     "nivel = mw.leer(1, 10)\nmarcha = mw.leer(1, 0, 3)"},
    {"mw.escribir esclavo, dirección, valor",
     "Escribe un valor de 0 a 65535; uno fuera de ese intervalo no cambia nada. Si el esclavo o el registro no "
     "existen, error 9.",
     "mw.escribir 1, 10, 1500"},
    {"mw.escribir_C2 esclavo, dirección, valor", "Escribe un valor con signo, de -32768 a 32767, en complemento a dos.",
     "mw.escribir_C2 1, 11, -25"},
    {"mw.escribir_bit esclavo, dirección, bit, valor",
     "Pone un bit (0 a 15) del registro a 1 o a 0 y deja los demás como están.", "mw.escribir_bit 1, 0, 3, 1"},
    {"mw.SINGLEINT(número)", "El número en complemento a dos: si es negativo, le suma 65536.",
     "palabra = mw.SINGLEINT(-2)   ' 65534"},
    {"mw.NBit(palabra, bit)", "Un bit de una palabra: 0 o 1.", "If mw.NBit(estado, 7) = 1 Then parar = True"},
    {"mw.SetearBIT_YDevolverPalabra(palabra, bit, valor)",
     "La palabra con ese bit a 1 (valor 1) o a 0 (otro valor); no escribe ningún registro.",
     "estado = mw.SetearBIT_YDevolverPalabra(estado, 2, 1)"},
    {"mw.darValorEsclavoLogico esclavo, dirección, valor", "Lo mismo que mw.escribir.",
     "mw.darValorEsclavoLogico 1, 10, 0"},
    {"mw.ejecucion_timers número", "Con 1 pide una pasada del script; dentro de una pasada no hace nada.",
     "mw.ejecucion_timers 1"},
};

constexpr const char* introduccion =
    "<h2>El objeto <code>mw</code></h2>"
    "<p>Los scripts leen y escriben con <code>mw</code> los mismos registros que ven los maestros Modbus. El texto "
    "entero se ejecuta en cada intervalo; las variables globales conservan su valor de una pasada a la siguiente.</p>"
    "<p>Mayúsculas y minúsculas dan igual. Un procedimiento se llama sin paréntesis; una función cuyo resultado se "
    "usa, con ellos.</p>";

constexpr const char* teclas = "<h2>Teclas del editor</h2>"
                               "<table cellpadding='3'>"
                               "<tr><td><b>Ctrl+S</b></td><td>Guardar</td></tr>"
                               "<tr><td><b>Ctrl+F, Ctrl+H</b></td><td>Buscar, reemplazar</td></tr>"
                               "<tr><td><b>F3, Mayús+F3</b></td><td>Siguiente, anterior</td></tr>"
                               "<tr><td><b>Ctrl+G</b></td><td>Ir a una línea</td></tr>"
                               "<tr><td><b>F8</b></td><td>Ir al error</td></tr>"
                               "<tr><td><b>Tab, Mayús+Tab</b></td><td>Sangrar la selección, quitarle sangría</td></tr>"
                               "<tr><td><b>Ctrl+Z, Ctrl+Mayús+Z</b></td><td>Deshacer, rehacer</td></tr>"
                               "<tr><td><b>Ctrl++, Ctrl+-</b></td><td>Letra más grande, más pequeña</td></tr>"
                               "</table>";

QString pagina() {
    QString html = QString::fromUtf8(introduccion);
    for (const Operacion& operacion : operaciones)
        html += QStringLiteral("<p><b><code>%1</code></b><br>%2</p><pre>    %3</pre>")
                    .arg(QString::fromUtf8(operacion.firma), QString::fromUtf8(operacion.efecto),
                         QString::fromUtf8(operacion.ejemplo).toHtmlEscaped().replace(u'\n', QLatin1String("\n    ")));
    return html + QString::fromUtf8(teclas);
}

} // namespace

AyudaMW::AyudaMW(QWidget* padre) : QWidget(padre, Qt::Window) {
    setObjectName(QStringLiteral("AyudaMW"));
    setWindowTitle(QStringLiteral("Ayuda de los scripts"));
    auto* texto = new QTextBrowser(this);
    texto->setObjectName(QStringLiteral("txtAyuda"));
    texto->setAccessibleName(QStringLiteral("Ayuda"));
    texto->document()->setDefaultStyleSheet(QStringLiteral("code, pre { font-family: '%1'; }")
                                                .arg(QFontDatabase::systemFont(QFontDatabase::FixedFont).family()));
    texto->setHtml(pagina());
    auto* diseno = new QVBoxLayout(this);
    diseno->setContentsMargins(0, 0, 0, 0);
    diseno->addWidget(texto);
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 38);
}

void AyudaMW::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(evento);
}
