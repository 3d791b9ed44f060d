#include "script/BusquedaCodigo.h"

#include "script/EditorCodigo.h"

#include <QLayout>
#include <QTextCursor>

BusquedaCodigo::BusquedaCodigo(EditorCodigo& editor, QWidget* padre)
    : editor_(editor), barra_(new BarraBusqueda(*this, padre, true)) {}

QString BusquedaCodigo::seleccionParaBuscar() const {
    const QString elegido = editor_.textCursor().selectedText();
    return elegido.contains(QChar::ParagraphSeparator) ? QString() : elegido;
}

void BusquedaCodigo::resaltar(const QString& patron, Qt::CaseSensitivity caja) {
    editor_.resaltar(patron, caja);
}

void BusquedaCodigo::buscar(const QString& patron, Qt::CaseSensitivity caja, bool adelante) {
    using Resultado = BarraBusqueda::Resultado;
    QTextDocument::FindFlags modo;
    modo.setFlag(QTextDocument::FindBackward, !adelante);
    modo.setFlag(QTextDocument::FindCaseSensitively, caja == Qt::CaseSensitive);
    QTextDocument& documento = *editor_.document();
    QTextCursor hallado = documento.find(patron, editor_.textCursor(), modo);
    const bool vuelta = hallado.isNull();
    if (vuelta)
        hallado = documento.find(patron, adelante ? 0 : documento.characterCount() - 1, modo);
    if (hallado.isNull())
        return barra_->mostrarResultado(Resultado::noHallado);
    editor_.setTextCursor(hallado);
    barra_->mostrarResultado(!vuelta    ? Resultado::hallado
                             : adelante ? Resultado::haLlegadoAlFinal
                                        : Resultado::haLlegadoAlPrincipio);
}

void BusquedaCodigo::mostrarBarra(bool mostrada) {
    if (!mostrada) {
        editor_.setFocus(); // before the bar goes, or the focus would pass through the control behind it
        return barra_->hide();
    }
    const bool aLaVista = editor_.cursorALaVista();
    barra_->show();
    barra_->parentWidget()->layout()->activate(); // the text has its new height from here on
    if (aLaVista)
        editor_.ensureCursorVisible();
}

void BusquedaCodigo::reemplazar(const QString& patron, const QString& nuevo, Qt::CaseSensitivity caja) {
    if (editor_.textCursor().selectedText().compare(patron, caja) == 0)
        editor_.textCursor().insertText(nuevo);
}

int BusquedaCodigo::reemplazarTodo(const QString& patron, const QString& nuevo, Qt::CaseSensitivity caja) {
    return editor_.reemplazarTodo(patron, nuevo, caja);
}
