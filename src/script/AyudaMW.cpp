#include "script/AyudaMW.h"

#include "script/OperacionesMW.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

constexpr const char* introduccion =
    "<h2>El objeto <code>mw</code></h2>"
    "<p>Los scripts leen y escriben con <code>mw</code> los mismos registros que ven los maestros Modbus. El texto "
    "entero se ejecuta en cada intervalo; las variables globales conservan su valor de una pasada a la siguiente.</p>"
    "<p>Mayúsculas y minúsculas dan igual. Un procedimiento se llama sin paréntesis; una función cuyo resultado se "
    "usa, con ellos.</p>";

constexpr const char* teclas =
    "<h2>Teclas del editor</h2>"
    "<table cellpadding='3'>"
    "<tr><td><b>Ctrl+Espacio</b></td><td>Completar el nombre; Tab o Entrar lo toma, Esc cierra "
    "la lista</td></tr>"
    "<tr><td><b>Ctrl+S</b></td><td>Guardar</td></tr>"
    "<tr><td><b>Ctrl+F, Ctrl+H</b></td><td>Buscar, reemplazar</td></tr>"
    "<tr><td><b>F5</b></td><td>Poner el script en marcha, pararlo</td></tr>"
    "<tr><td><b>F6</b></td><td>Variables y consola</td></tr>"
    "<tr><td><b>F3, Mayús+F3</b></td><td>Siguiente, anterior</td></tr>"
    "<tr><td><b>Ctrl+G</b></td><td>Ir a una línea</td></tr>"
    "<tr><td><b>F8</b></td><td>Ir al error</td></tr>"
    "<tr><td><b>Tab, Mayús+Tab</b></td><td>Sangrar la selección, quitarle sangría</td></tr>"
    "<tr><td><b>Ctrl+Z, Ctrl+Mayús+Z</b></td><td>Deshacer, rehacer</td></tr>"
    "<tr><td><b>Ctrl++, Ctrl+-</b></td><td>Letra más grande, más pequeña</td></tr>"
    "</table>";

QString pagina() {
    QString html = QString::fromUtf8(introduccion);
    for (const OperacionMW& operacion : operacionesMW())
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
