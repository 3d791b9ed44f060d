#include "shell/LibroManual.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

// Has to be called from outside any namespace.
static void prepararRecursos() {
    Q_INIT_RESOURCE(manual);
}

namespace {

QString leer(const QString& archivo) {
    QFile recurso(QStringLiteral(":/docs/manual/") + archivo);
    return recurso.open(QIODevice::ReadOnly) ? QString::fromUtf8(recurso.readAll()) : QString();
}

// A line of Markdown as it reads: no links, no marks, cells beside each other.
QString legible(QString linea) {
    static const QRegularExpression enlace(QStringLiteral(R"(!?\[([^\]]*)\]\([^)]*\))"));
    static const QRegularExpression raya(QStringLiteral(R"(^\|[-|: ]+\|$)"));
    static const QRegularExpression marcas(QStringLiteral(R"([`*])"));
    if (raya.match(linea).hasMatch())
        return {};
    return linea.replace(enlace, QStringLiteral("\\1")).remove(marcas).replace(u'|', u' ').simplified();
}

PaginaDelManual paginaDe(const QString& archivo) {
    PaginaDelManual pagina{archivo, {}, {SeccionManual{}}};
    bool enCodigo = false;
    const QStringList lineas = leer(archivo).split(u'\n');
    for (const QString& linea : lineas) {
        if (linea.trimmed().startsWith(QLatin1String("```"))) {
            enCodigo = !enCodigo;
            continue;
        }
        const auto nivel = std::find_if(linea.begin(), linea.end(), [](QChar c) { return c != u'#'; }) - linea.begin();
        if (enCodigo || nivel == 0 || nivel >= linea.size() || linea[nivel] != u' ') {
            pagina.secciones.last().texto += (enCodigo ? linea : legible(linea)) + u' ';
            continue;
        }
        const QString titulo = legible(linea.mid(nivel));
        if (nivel == 1)
            pagina.titulo = titulo;
        else
            pagina.secciones.append({titulo, anclaDeTitulo(titulo), {}, static_cast<int>(nivel)});
    }
    return pagina;
}

// What stands round the first of the words, from a blank to a blank.
QString extractoDe(const QString& texto, const QString& palabra) {
    constexpr qsizetype alrededor = 60;
    const qsizetype donde = std::max(qsizetype{0}, sinAcentos(texto).indexOf(palabra));
    const qsizetype desde = donde <= alrededor ? 0 : texto.indexOf(u' ', donde - alrededor) + 1;
    const QString trozo = texto.mid(desde, 3 * alrededor).simplified();
    return (desde > 0 ? QStringLiteral("…") : QString()) + trozo;
}

} // namespace

QString sinAcentos(const QString& texto) {
    QString limpio;
    limpio.reserve(texto.size());
    for (const QChar c : texto) { // one for one, so that places stay the same
        const QString partes = c.decomposition();
        limpio += (partes.isEmpty() ? c : partes[0]).toLower();
    }
    return limpio;
}

QString anclaDeTitulo(const QString& titulo) {
    QString ancla;
    for (const QChar c : titulo.toLower())
        if (c.isLetterOrNumber() || c == u'-' || c == u'_')
            ancla += c;
        else if (c == u' ')
            ancla += u'-';
    return ancla;
}

LibroManual::LibroManual() {
    prepararRecursos();
    static const QRegularExpression enlace(QStringLiteral(R"(\]\(([a-z0-9-]+\.md)\))"));
    QStringList archivos{QLatin1String(primera)};
    for (auto todos = enlace.globalMatch(leer(QLatin1String(primera))); todos.hasNext();)
        if (const QString archivo = todos.next().captured(1); !archivos.contains(archivo))
            archivos.append(archivo);
    for (const QString& archivo : std::as_const(archivos))
        paginas_.append(paginaDe(archivo));
}

QUrl LibroManual::url(const QString& pagina) {
    QUrl url(QStringLiteral("qrc:/docs/manual/") + pagina.section(u'#', 0, 0));
    if (const QString ancla = pagina.section(u'#', 1); !ancla.isEmpty())
        url.setFragment(ancla);
    return url;
}

QList<HallazgoManual> LibroManual::buscar(const QString& palabras) const {
    const QStringList buscadas = sinAcentos(palabras).split(u' ', Qt::SkipEmptyParts);
    QList<HallazgoManual> hallazgos;
    if (buscadas.isEmpty())
        return hallazgos;
    for (const PaginaDelManual& pagina : paginas_)
        for (const SeccionManual& seccion : pagina.secciones) {
            const QString todo = sinAcentos(pagina.titulo + u' ' + seccion.titulo + u' ' + seccion.texto);
            if (!std::all_of(buscadas.begin(), buscadas.end(), [&](const QString& p) { return todo.contains(p); }))
                continue;
            hallazgos.append(
                {seccion.titulo.isEmpty() ? pagina.titulo : pagina.titulo + QStringLiteral(" › ") + seccion.titulo,
                 extractoDe(seccion.texto, buscadas.first()), url(pagina.archivo + u'#' + seccion.ancla)});
        }
    return hallazgos;
}
