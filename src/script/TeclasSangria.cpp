#include "script/TeclasSangria.h"

#include "platform/vbscript/Language.h"
#include "script/Sangria.h"

#include <QKeyEvent>
#include <QTextBlock>

#include <algorithm>

namespace {

// Lines looked at for the beginning of a block, at most.
constexpr int alcanceApertura = 5000;

EfectoLinea efecto(const QString& linea) {
    return efectoDeLinea(
        std::u16string_view(reinterpret_cast<const char16_t*>(linea.utf16()), static_cast<std::size_t>(linea.size())));
}

bool esBlanco(QChar c) {
    return c == u' ' || c == u'\t';
}

QString sangriaDe(const QString& linea) {
    const auto fin = std::find_if_not(linea.begin(), linea.end(), esBlanco);
    return linea.left(fin - linea.begin());
}

// Columns that a beginning of blanks takes.
int ancho(QStringView blancos) {
    int columna = 0;
    for (const QChar c : blancos)
        columna += c == u'\t' ? TeclasSangria::columnas - columna % TeclasSangria::columnas : 1;
    return columna;
}

void ponerSangria(const QTextBlock& linea, const QString& blancos) {
    QTextCursor cambio(linea);
    cambio.setPosition(linea.position() + static_cast<int>(sangriaDe(linea.text()).size()), QTextCursor::KeepAnchor);
    cambio.insertText(blancos);
}

} // namespace

bool TeclasSangria::atender(const QKeyEvent& tecla) {
    const QTextCursor cursor = editor_.textCursor();
    const bool variasLineas =
        editor_.document()->findBlock(cursor.selectionStart()) != editor_.document()->findBlock(cursor.selectionEnd());
    switch (tecla.key()) {
    case Qt::Key_Backtab:
        sangrarSeleccion(-1);
        return true;
    case Qt::Key_Tab:
        if (tecla.modifiers() != Qt::NoModifier)
            return false;
        variasLineas ? sangrarSeleccion(1) : insertarTabulador();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if ((tecla.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
            return false;
        nuevaLinea();
        return true;
    case Qt::Key_Backspace:
        return tecla.modifiers() == Qt::NoModifier && borrarSangria();
    default:
        return false;
    }
}

void TeclasSangria::trasTecla(const QKeyEvent& tecla) {
    const QString escrito = tecla.text();
    if (tecla.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return;
    if (tecla.key() == Qt::Key_Backspace || (!escrito.isEmpty() && vbs::isNamePart(escrito.back().unicode())))
        trasEscribir();
}

void TeclasSangria::trasEscribir() {
    QTextCursor cursor = editor_.textCursor();
    const QTextBlock linea = cursor.block();
    if (movida_ != linea.blockNumber() || lineas_ != editor_.blockCount())
        movida_ = -1; // another line by now
    if (cursor.hasSelection() || !cursor.atBlockEnd())
        return;
    const EfectoLinea esta = efecto(linea.text());
    const QString actual = sangriaDe(linea.text());
    const bool movida = movida_ >= 0 && ancho(actual) < ancho(sangriaPrevia_);
    if (esta.cierra == 0 && !movida)
        return;
    cursor.beginEditBlock(); // a step of its own: who did not want it undoes it and keeps the word
    if (esta.cierra > 0)
        alinearCierre(cursor, esta.cierra);
    else
        ponerSangria(linea, sangriaPrevia_);
    cursor.endEditBlock();
    if (esta.cierra == 0)
        movida_ = -1;
    else if (sangriaDe(linea.text()) != actual) {
        movida_ = linea.blockNumber();
        lineas_ = editor_.blockCount();
        sangriaPrevia_ = actual;
    }
}

// Blanks up to the next tabulator column, in place of the selection.
void TeclasSangria::insertarTabulador() {
    QTextCursor cursor = editor_.textCursor();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const int columna = ancho(QStringView(cursor.block().text()).left(cursor.positionInBlock()));
    cursor.insertText(QString(columnas - columna % columnas, u' '));
    cursor.endEditBlock();
    editor_.setTextCursor(cursor);
}

// Moves every line of the selection (or the cursor's) one step to the right (1) or to the left (-1).
void TeclasSangria::sangrarSeleccion(int sentido) {
    QTextCursor cursor = editor_.textCursor();
    const QTextBlock primera = editor_.document()->findBlock(cursor.selectionStart());
    QTextBlock ultima = editor_.document()->findBlock(cursor.selectionEnd());
    if (ultima != primera && ultima.position() == cursor.selectionEnd())
        ultima = ultima.previous(); // nothing of that line is selected
    cursor.beginEditBlock();
    for (QTextBlock linea = primera; linea.isValid() && linea.blockNumber() <= ultima.blockNumber();
         linea = linea.next()) {
        const QString blancos = sangriaDe(linea.text());
        if (sentido > 0 && linea.length() == 1)
            continue; // an empty line stays empty
        const int columna = ancho(blancos);
        const int nueva = sentido > 0 ? columna + columnas : std::max(columna - columnas, 0);
        if (nueva != columna)
            ponerSangria(linea, QString(nueva, u' '));
    }
    cursor.endEditBlock();
    if (primera != ultima) { // the lines stay selected as a whole
        cursor.setPosition(primera.position());
        cursor.setPosition(ultima.position() + ultima.length() - 1, QTextCursor::KeepAnchor);
        editor_.setTextCursor(cursor);
    }
}

// Backspace behind the blanks at the head of a line takes one step of indentation. False: it is an ordinary one.
bool TeclasSangria::borrarSangria() {
    QTextCursor cursor = editor_.textCursor();
    const QString antes = cursor.block().text().left(cursor.positionInBlock());
    if (cursor.hasSelection() || antes.isEmpty() || !std::all_of(antes.begin(), antes.end(), esBlanco) ||
        antes.back() == u'\t')
        return false;
    const int sobran = (ancho(antes) - 1) % columnas + 1;
    for (int i = 0; i < sobran && cursor.positionInBlock() > 0; ++i)
        cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    return true;
}

// A new line with the indentation of this one, one step more where this one opens a block.
void TeclasSangria::nuevaLinea() {
    QTextCursor cursor = editor_.textCursor();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const EfectoLinea esta = efecto(cursor.block().text().left(cursor.positionInBlock()));
    if (esta.cierra > 0)
        alinearCierre(cursor, esta.cierra);
    QString blancos = sangriaDe(cursor.block().text()).left(cursor.positionInBlock());
    if (esta.abre > 0)
        blancos = QString(ancho(blancos) + columnas, u' ');
    cursor.insertBlock();
    cursor.insertText(blancos);
    cursor.endEditBlock();
    editor_.setTextCursor(cursor);
    editor_.ensureCursorVisible();
}

// A line that ends a block goes back to the column where the block began, if it stands further to the right.
void TeclasSangria::alinearCierre(const QTextCursor& cursor, int cierra) const {
    int pendientes = cierra;
    QTextBlock linea = cursor.block().previous();
    for (int vistas = 0; linea.isValid() && vistas < alcanceApertura; linea = linea.previous(), ++vistas) {
        const EfectoLinea otra = efecto(linea.text());
        pendientes -= otra.abre;
        if (pendientes <= 0)
            break;
        pendientes += otra.cierra;
    }
    if (pendientes > 0 || !linea.isValid())
        return;
    // What that line opened beyond what ends here (the cases of a Select) still stands one step to the right of it.
    const int columna = ancho(sangriaDe(linea.text())) - pendientes * columnas;
    if (ancho(sangriaDe(cursor.block().text())) > columna)
        ponerSangria(cursor.block(), QString(columna, u' '));
}
