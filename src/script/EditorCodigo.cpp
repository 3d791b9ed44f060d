#include "script/EditorCodigo.h"

#include "script/Sangria.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace {

// Lines looked at for the beginning of a block, at most.
constexpr int alcanceApertura = 5000;

class MargenNumeros final : public QWidget {
public:
    explicit MargenNumeros(EditorCodigo* editor) : QWidget(editor), editor_(editor) { setCursor(Qt::ArrowCursor); }
    QSize sizeHint() const override { return {editor_->anchoMargen(), 0}; }

protected:
    void paintEvent(QPaintEvent* evento) override { editor_->pintarMargen(*evento); }
    void mousePressEvent(QMouseEvent* evento) override {
        QTextCursor cursor(editor_->document()->findBlockByNumber(editor_->lineaEnMargen(evento->pos().y())));
        cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
        editor_->setTextCursor(cursor);
        editor_->setFocus();
    }
    void wheelEvent(QWheelEvent* evento) override { QCoreApplication::sendEvent(editor_->viewport(), evento); }

private:
    EditorCodigo* editor_;
};

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
int columnas(QStringView blancos) {
    int columna = 0;
    for (const QChar c : blancos)
        columna += c == u'\t' ? EditorCodigo::sangria - columna % EditorCodigo::sangria : 1;
    return columna;
}

} // namespace

EditorCodigo::EditorCodigo(QWidget* parent)
    : QPlainTextEdit(parent), resaltado_(palette()), margen_(new MargenNumeros(this)) {
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setLineWrapMode(NoWrap);
    setTabStopDistance(sangria * fontMetrics().horizontalAdvance(u' '));
    setCenterOnScroll(false);
    connect(this, &QPlainTextEdit::blockCountChanged, this, &EditorCodigo::colocarMargen);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &EditorCodigo::ponerMarcas);
    connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect& zona, int dy) {
        if (dy != 0)
            margen_->scroll(0, dy);
        else
            margen_->update(0, zona.y(), margen_->width(), zona.height());
    });
    connect(document(), &QTextDocument::contentsChange, this, [this](int posicion, int /*quitados*/, int puestos) {
        ResaltadoVBScript::olvidar(*document(), posicion, puestos);
    });
    colocarMargen();
    ponerMarcas();
}

QString EditorCodigo::texto() const {
    // Not toPlainText(), which turns hard blanks into plain ones.
    return document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

void EditorCodigo::ponerTexto(const QString& texto) {
    marcarError(0, 0);
    marcarFallo(0);
    setPlainText(texto);
}

// ---------------------------------------------------------------------------------------------------------------
// marks

void EditorCodigo::marcarError(int linea, int columna) {
    error_ = QTextCursor();
    QTextBlock bloque = document()->findBlockByNumber(linea - 1);
    while (linea > 0 && bloque.isValid() && bloque.length() == 1) { // nothing there to underline: where the text ends
        bloque = bloque.previous();
        columna = bloque.length();
    }
    if (linea > 0 && bloque.isValid()) {
        error_ = QTextCursor(bloque);
        error_.setPosition(bloque.position() + std::clamp(columna - 1, 0, bloque.length() - 2));
        error_.movePosition(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
        if (!error_.hasSelection())
            error_.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    }
    ponerMarcas();
}

void EditorCodigo::marcarFallo(int linea) {
    const QTextBlock bloque = document()->findBlockByNumber(linea - 1);
    conFallo_ = linea > 0 && bloque.isValid();
    fallo_ = conFallo_ ? QTextCursor(bloque) : QTextCursor();
    ponerMarcas();
}

void EditorCodigo::ponerMarcas() {
    QList<QTextEdit::ExtraSelection> marcas;
    const auto lineaEntera = [&marcas](QTextCursor cursor, const QColor& fondo) {
        cursor.clearSelection();
        QTextEdit::ExtraSelection marca;
        marca.cursor = cursor;
        marca.format.setBackground(fondo);
        marca.format.setProperty(QTextFormat::FullWidthSelection, true);
        marcas.append(marca);
    };
    lineaEntera(textCursor(), colores().lineaActual);
    if (conFallo_)
        lineaEntera(fallo_, colores().lineaError);
    if (error_.hasSelection()) {
        QTextEdit::ExtraSelection marca;
        marca.cursor = error_;
        marca.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        marca.format.setUnderlineColor(colores().error);
        marcas.append(marca);
    }
    setExtraSelections(marcas);
    margen_->update();
}

void EditorCodigo::irA(int linea, int columna) {
    const QTextBlock bloque = document()->findBlockByNumber(std::clamp(linea, 1, blockCount()) - 1);
    QTextCursor cursor(bloque);
    cursor.setPosition(bloque.position() + std::clamp(columna - 1, 0, bloque.length() - 1));
    setTextCursor(cursor);
    centerCursor();
}

bool EditorCodigo::cursorALaVista() const {
    const QRect cursor = cursorRect();
    return cursor.top() >= 0 && cursor.bottom() <= viewport()->height();
}

int EditorCodigo::reemplazarTodo(const QString& buscado, const QString& nuevo, Qt::CaseSensitivity caja) {
    QString todo = texto();
    const auto veces = static_cast<int>(todo.count(buscado, caja));
    if (veces == 0)
        return 0;
    const int linea = textCursor().blockNumber();
    const int columna = textCursor().positionInBlock();
    QTextCursor cursor(document());
    cursor.select(QTextCursor::Document);
    cursor.insertText(todo.replace(buscado, nuevo, caja));
    irA(linea + 1, columna + 1);
    return veces;
}

// ---------------------------------------------------------------------------------------------------------------
// drawing

void EditorCodigo::colorearVisibles() {
    qreal y = blockBoundingGeometry(firstVisibleBlock()).translated(contentOffset()).top();
    for (QTextBlock linea = firstVisibleBlock(); linea.isValid() && y < viewport()->height(); linea = linea.next()) {
        resaltado_.colorear(linea);
        y += blockBoundingRect(linea).height();
    }
}

void EditorCodigo::paintEvent(QPaintEvent* evento) {
    colorearVisibles();
    QPlainTextEdit::paintEvent(evento);
}

void EditorCodigo::changeEvent(QEvent* evento) {
    QPlainTextEdit::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange) {
        resaltado_.cambiarPaleta(palette(), *document());
        ponerMarcas();
    }
    if (evento->type() == QEvent::FontChange) {
        setTabStopDistance(sangria * fontMetrics().horizontalAdvance(u' '));
        colocarMargen();
    }
}

int EditorCodigo::anchoMargen() const {
    const auto cifras = std::max(QString::number(blockCount()).size(), qsizetype{3});
    return fontMetrics().horizontalAdvance(u'9') * (static_cast<int>(cifras) + 2);
}

void EditorCodigo::colocarMargen() {
    setViewportMargins(anchoMargen(), 0, 0, 0);
    const QRect zona = contentsRect();
    margen_->setGeometry(zona.left(), zona.top(), anchoMargen(), zona.height());
    margen_->setFont(font());
}

void EditorCodigo::resizeEvent(QResizeEvent* evento) {
    QPlainTextEdit::resizeEvent(evento);
    colocarMargen();
}

void EditorCodigo::pintarMargen(QPaintEvent& evento) {
    QPainter pintor(margen_);
    pintor.fillRect(evento.rect(), colores().margen);
    const int derecha = margen_->width() - fontMetrics().horizontalAdvance(u'9');
    qreal y = blockBoundingGeometry(firstVisibleBlock()).translated(contentOffset()).top();
    for (QTextBlock linea = firstVisibleBlock(); linea.isValid() && y <= evento.rect().bottom(); linea = linea.next()) {
        const bool fallida = conFallo_ && fallo_.blockNumber() == linea.blockNumber();
        const bool actual = textCursor().blockNumber() == linea.blockNumber();
        pintor.setPen(fallida ? colores().error : actual ? palette().color(QPalette::Text) : colores().numeroLinea);
        pintor.drawText(QRectF(0, y, derecha, fontMetrics().height()), Qt::AlignRight,
                        QString::number(linea.blockNumber() + 1));
        y += blockBoundingRect(linea).height();
    }
}

int EditorCodigo::lineaEnMargen(int y) const {
    return cursorForPosition(QPoint(0, y)).blockNumber();
}

// ---------------------------------------------------------------------------------------------------------------
// keys

void EditorCodigo::keyPressEvent(QKeyEvent* evento) {
    const QTextCursor cursor = textCursor();
    const bool variasLineas =
        document()->findBlock(cursor.selectionStart()) != document()->findBlock(cursor.selectionEnd());
    if (evento->key() == Qt::Key_Backtab) {
        sangrarSeleccion(-1);
    } else if (evento->key() == Qt::Key_Tab && evento->modifiers() == Qt::NoModifier) {
        variasLineas ? sangrarSeleccion(1) : insertarTabulador();
    } else if ((evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) &&
               (evento->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        nuevaLinea();
    } else if (evento->key() != Qt::Key_Backspace || evento->modifiers() != Qt::NoModifier || !borrarSangria()) {
        QPlainTextEdit::keyPressEvent(evento);
    }
}

// Blanks up to the next tabulator column, in place of the selection.
void EditorCodigo::insertarTabulador() {
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const int columna = columnas(QStringView(cursor.block().text()).left(cursor.positionInBlock()));
    cursor.insertText(QString(sangria - columna % sangria, u' '));
    cursor.endEditBlock();
    setTextCursor(cursor);
}

// Moves every line of the selection (or the cursor's) one step to the right (1) or to the left (-1).
void EditorCodigo::sangrarSeleccion(int sentido) {
    QTextCursor cursor = textCursor();
    const QTextBlock primera = document()->findBlock(cursor.selectionStart());
    QTextBlock ultima = document()->findBlock(cursor.selectionEnd());
    if (ultima != primera && ultima.position() == cursor.selectionEnd())
        ultima = ultima.previous(); // nothing of that line is selected
    cursor.beginEditBlock();
    for (QTextBlock linea = primera; linea.isValid() && linea.blockNumber() <= ultima.blockNumber();
         linea = linea.next()) {
        const QString blancos = sangriaDe(linea.text());
        if (sentido > 0 && linea.length() == 1)
            continue; // an empty line stays empty
        const int columna = columnas(blancos);
        const int nueva = sentido > 0 ? columna + sangria : std::max(columna - sangria, 0);
        QTextCursor cambio(linea);
        cambio.setPosition(linea.position() + static_cast<int>(blancos.size()), QTextCursor::KeepAnchor);
        if (nueva != columna)
            cambio.insertText(QString(nueva, u' '));
    }
    cursor.endEditBlock();
    if (primera != ultima) { // the lines stay selected as a whole
        cursor.setPosition(primera.position());
        cursor.setPosition(ultima.position() + ultima.length() - 1, QTextCursor::KeepAnchor);
        setTextCursor(cursor);
    }
}

// Backspace behind the blanks at the head of a line takes one step of indentation. False: it is an ordinary one.
bool EditorCodigo::borrarSangria() {
    QTextCursor cursor = textCursor();
    const QString antes = cursor.block().text().left(cursor.positionInBlock());
    if (cursor.hasSelection() || antes.isEmpty() || !std::all_of(antes.begin(), antes.end(), esBlanco) ||
        antes.back() == u'\t')
        return false;
    const int sobran = (columnas(antes) - 1) % sangria + 1;
    for (int i = 0; i < sobran && cursor.positionInBlock() > 0; ++i)
        cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    return true;
}

// A new line with the indentation of this one, one step more where this one opens a block.
void EditorCodigo::nuevaLinea() {
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const EfectoLinea esta = efecto(cursor.block().text().left(cursor.positionInBlock()));
    if (esta.cierra > 0)
        alinearCierre(cursor, esta.cierra);
    QString blancos = sangriaDe(cursor.block().text()).left(cursor.positionInBlock());
    if (esta.abre > 0)
        blancos = QString(columnas(blancos) + sangria, u' ');
    cursor.insertBlock();
    cursor.insertText(blancos);
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

// A line that ends a block goes back to the column where the block began, if it stands further to the right.
void EditorCodigo::alinearCierre(QTextCursor& cursor, int cierra) const {
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
    const int columna = columnas(sangriaDe(linea.text())) - pendientes * sangria;
    const QString actual = sangriaDe(cursor.block().text());
    if (columnas(actual) <= columna)
        return;
    QTextCursor cambio(cursor.block());
    cambio.setPosition(cursor.block().position() + static_cast<int>(actual.size()), QTextCursor::KeepAnchor);
    cambio.insertText(QString(columna, u' '));
}
