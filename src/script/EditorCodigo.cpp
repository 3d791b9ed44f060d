#include "script/EditorCodigo.h"

#include "script/CompletadorCodigo.h"
#include "script/ParejasCodigo.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>

namespace {

// Lines looked at above and below for the words of a block, at most.
constexpr int alcanceParejas = 1500;

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

std::u16string_view vista(const QString& texto) {
    return {reinterpret_cast<const char16_t*>(texto.utf16()), static_cast<std::size_t>(texto.size())};
}

std::size_t aTamano(int numero) {
    return static_cast<std::size_t>(numero);
}

} // namespace

EditorCodigo::EditorCodigo(QWidget* parent)
    : QPlainTextEdit(parent), resaltado_(palette()), sangria_(*this), completador_(new CompletadorCodigo(*this)),
      margen_(new MargenNumeros(this)) {
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setLineWrapMode(NoWrap);
    setTabStopDistance(TeclasSangria::columnas * fontMetrics().horizontalAdvance(u' '));
    setCenterOnScroll(false);
    connect(this, &QPlainTextEdit::blockCountChanged, this, &EditorCodigo::colocarMargen);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &EditorCodigo::ponerMarcas);
    connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect& zona, int dy) {
        if (dy != 0)
            margen_->scroll(0, dy);
        else
            margen_->update(0, zona.y(), margen_->width(), zona.height());
    });
    connect(completador_, &CompletadorCodigo::completado, this, [this] { sangria_.trasEscribir(); });
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

void EditorCodigo::cambiarTexto(const QString& texto) {
    QTextCursor cursor(document());
    cursor.select(QTextCursor::Document);
    cursor.insertText(texto);
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
    fallo_ = linea > 0 ? QTextCursor(document()->findBlockByNumber(linea - 1)) : QTextCursor();
    fallo_.movePosition(QTextCursor::EndOfBlock);
    fallo_.movePosition(QTextCursor::StartOfBlock, QTextCursor::KeepAnchor);
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
    if (fallo_.hasSelection())
        lineaEntera(fallo_, colores().lineaError);
    ponerParejas(marcas);
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

// The words or brackets that belong together with what the text cursor touches: a frame of colour and a line below.
void EditorCodigo::ponerParejas(QList<QTextEdit::ExtraSelection>& marcas) const {
    const QTextBlock linea = textCursor().block();
    const int columna = textCursor().positionInBlock();
    if (linea.length() > ResaltadoVBScript::maximoLinea || !puedeTenerPareja(vista(linea.text()), aTamano(columna)))
        return;
    const QTextBlock primera = document()->findBlockByNumber(std::max(linea.blockNumber() - alcanceParejas, 0));
    QString texto;
    QTextBlock otra = primera;
    for (; otra.isValid() && otra.blockNumber() <= linea.blockNumber() + alcanceParejas; otra = otra.next())
        texto += otra.text() + u'\n';
    const auto lugar = aTamano(textCursor().position() - primera.position());
    for (const Tramo& tramo : parejasEn(vista(texto), lugar)) {
        QTextEdit::ExtraSelection marca;
        marca.cursor = QTextCursor(primera);
        marca.cursor.setPosition(primera.position() + static_cast<int>(tramo.inicio));
        marca.cursor.setPosition(marca.cursor.position() + static_cast<int>(tramo.largo), QTextCursor::KeepAnchor);
        marca.format.setBackground(colores().pareja);
        marca.format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
        marcas.append(marca);
    }
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
    cambiarTexto(todo.replace(buscado, nuevo, caja));
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

void EditorCodigo::resaltar(const QString& patron, Qt::CaseSensitivity caja) {
    patron_ = patron;
    cajaPatron_ = caja;
    viewport()->update();
}

// A veil and a line below, over the text.
void EditorCodigo::pintarHallazgos() {
    if (patron_.isEmpty())
        return;
    QPainter pintor(viewport());
    QTextBlock linea = firstVisibleBlock();
    QPointF esquina = blockBoundingGeometry(linea).translated(contentOffset()).topLeft();
    for (; linea.isValid() && esquina.y() < viewport()->height(); linea = linea.next()) {
        const QString texto = linea.text();
        for (qsizetype i = texto.indexOf(patron_, 0, cajaPatron_); i >= 0;
             i = texto.indexOf(patron_, i + patron_.size(), cajaPatron_)) {
            if (linea.position() + i == textCursor().selectionStart() && textCursor().hasSelection())
                continue; // it has a colour of its own
            const QTextLine fila = linea.layout()->lineForTextPosition(static_cast<int>(i));
            if (!fila.isValid())
                break;
            const qreal x = fila.cursorToX(static_cast<int>(i));
            const qreal ancho = fila.cursorToX(static_cast<int>(i + patron_.size())) - x;
            const QRectF caja(esquina + QPointF(x, fila.y()), QSizeF(ancho, fila.height()));
            pintor.fillRect(caja, colores().hallazgo);
            pintor.fillRect(QRectF(caja.left(), caja.bottom() - 2, caja.width(), 2), palette().color(QPalette::Text));
        }
        esquina.ry() += blockBoundingRect(linea).height();
    }
}

void EditorCodigo::paintEvent(QPaintEvent* evento) {
    colorearVisibles();
    QPlainTextEdit::paintEvent(evento);
    pintarHallazgos();
}

void EditorCodigo::changeEvent(QEvent* evento) {
    QPlainTextEdit::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange) {
        resaltado_.cambiarPaleta(palette(), *document());
        ponerMarcas();
    }
    if (evento->type() == QEvent::FontChange) {
        setTabStopDistance(TeclasSangria::columnas * fontMetrics().horizontalAdvance(u' '));
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
        const bool fallida = lineaFallo() == linea.blockNumber() + 1;
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
    if (completador_->atender(*evento))
        return;
    if (!sangria_.atender(*evento)) {
        QPlainTextEdit::keyPressEvent(evento);
        sangria_.trasTecla(*evento);
    }
    completador_->trasTecla(*evento);
}
