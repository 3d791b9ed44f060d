#include "script/Ejemplos.h"

#include <QDir>
#include <QFile>

#include <algorithm>

// Has to be called from outside any namespace.
static void prepararRecursos() {
    Q_INIT_RESOURCE(ejemplos);
}

namespace {

// A sample begins with a comment: its title, and behind a colon or a full stop what it does.
Ejemplo ejemploDe(const QString& texto) {
    QString primera = texto.section(u'\n', 0, 0);
    while (primera.startsWith(u'\'') || primera.startsWith(u' '))
        primera.remove(0, 1);
    const auto fin = std::find_if(primera.begin(), primera.end(), [](QChar c) { return c == u':' || c == u'.'; });
    return {primera.left(fin - primera.begin()), primera, texto};
}

} // namespace

QList<Ejemplo> ejemplos() {
    prepararRecursos();
    QList<Ejemplo> todos;
    const auto archivos = QDir(QStringLiteral(":/ejemplos")).entryInfoList({QStringLiteral("*.vbs")});
    for (const QFileInfo& archivo : archivos) {
        QFile recurso(archivo.filePath());
        if (recurso.open(QIODevice::ReadOnly))
            todos.append(ejemploDe(QString::fromUtf8(recurso.readAll()).remove(u'\r')));
    }
    std::sort(todos.begin(), todos.end(),
              [](const Ejemplo& a, const Ejemplo& b) { return a.titulo.localeAwareCompare(b.titulo) < 0; });
    return todos;
}
