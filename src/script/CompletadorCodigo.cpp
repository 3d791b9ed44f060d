#include "script/CompletadorCodigo.h"

#include "platform/vbscript/Language.h"
#include "script/ResaltadoVBScript.h"
#include "script/Vocabulario.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolTip>

namespace {

constexpr qsizetype letrasMinimas = 3;
constexpr int lineasAlrededor = 2000; // whose names are offered, above and below
constexpr int filasVisibles = 10;

std::u16string_view vista(const QString& texto) {
    return {reinterpret_cast<const char16_t*>(texto.utf16()), static_cast<std::size_t>(texto.size())};
}

bool esEntrar(const QKeyEvent& tecla) {
    return tecla.key() == Qt::Key_Return || tecla.key() == Qt::Key_Enter;
}

} // namespace

CompletadorCodigo::CompletadorCodigo(QPlainTextEdit& editor) : QObject(&editor), editor_(editor) {
    lista_.setModel(&modelo_);
    lista_.setCaseSensitivity(Qt::CaseInsensitive);
    lista_.setModelSorting(QCompleter::CaseInsensitivelySortedModel);
    lista_.setMaxVisibleItems(filasVisibles);
    lista_.setWrapAround(false);
    lista_.setWidget(&editor_);
    lista_.popup()->setObjectName(QStringLiteral("listaCompletar"));
    lista_.popup()->setAccessibleName(QStringLiteral("Nombres que se pueden escribir"));
    lista_.popup()->installEventFilter(this);
    connect(&lista_, qOverload<const QModelIndex&>(&QCompleter::activated), this, &CompletadorCodigo::insertar);
    connect(&lista_, qOverload<const QModelIndex&>(&QCompleter::highlighted), this, &CompletadorCodigo::ensenar);
}

bool CompletadorCodigo::abierto() const {
    return lista_.popup()->isVisible();
}

bool CompletadorCodigo::atender(QKeyEvent& tecla) {
    if (tecla.key() == Qt::Key_Space && tecla.modifiers() == Qt::ControlModifier) {
        abrir(contexto(), true);
        return true;
    }
    if (!abierto())
        return false;
    const bool elegida = lista_.popup()->currentIndex().isValid();
    if (tecla.key() == Qt::Key_Tab && !elegida) {
        const QModelIndex primera = lista_.completionModel()->index(0, 0);
        cerrar();
        insertar(primera);
        return true;
    }
    if (tecla.key() == Qt::Key_Escape || ((esEntrar(tecla) || tecla.key() == Qt::Key_Tab) && elegida)) {
        tecla.ignore(); // QCompleter does the rest
        return true;
    }
    if (esEntrar(tecla) || tecla.key() == Qt::Key_Backtab)
        cerrar();
    return false;
}

void CompletadorCodigo::trasTecla(const QKeyEvent& tecla) {
    const bool borra = tecla.key() == Qt::Key_Backspace || tecla.key() == Qt::Key_Delete;
    const bool escribe = !tecla.text().isEmpty() && tecla.text().front().isPrint() &&
                         !tecla.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (!abierto() && !escribe)
        return;
    if (!escribe && !borra) {
        if (tecla.key() != Qt::Key_Shift && tecla.key() != Qt::Key_Control && tecla.key() != Qt::Key_AltGr)
            cerrar();
        return;
    }
    const Contexto ahora = contexto();
    const bool deObjeto = ahora.tras == Contexto::Tras::MW || ahora.tras == Contexto::Tras::WScript;
    const bool sigue = abierto() && ahora.tras == llenaPara_ && (deObjeto || !ahora.principio.isEmpty());
    if (sigue)
        mostrar(ahora.principio);
    else if (escribe && (deObjeto || (ahora.tras == Contexto::Tras::Nada && ahora.principio.size() >= letrasMinimas)))
        abrir(ahora, false);
    else
        cerrar();
}

CompletadorCodigo::Contexto CompletadorCodigo::contexto() const {
    using Tras = Contexto::Tras;
    const QTextCursor cursor = editor_.textCursor();
    const QString linea = cursor.block().text().left(cursor.positionInBlock());
    if (linea.size() > ResaltadoVBScript::maximoLinea)
        return {Tras::Ninguno, {}};
    vbs::Token antes[2];
    vbs::Token ultimo;
    vbs::Lexer lexer(vista(linea));
    for (vbs::Token token = lexer.next(); token.kind != vbs::Token::Kind::End; token = lexer.next()) {
        antes[0] = antes[1];
        antes[1] = ultimo;
        ultimo = token;
    }
    const bool tocado = ultimo.offset + ultimo.length == static_cast<std::size_t>(linea.size()) && ultimo.length > 0;
    if (ultimo.kind == vbs::Token::Kind::Comment ||
        (ultimo.kind == vbs::Token::Kind::Bad && ultimo.error == vbs::ErrorNumber::UnterminatedString) ||
        (tocado && (ultimo.kind == vbs::Token::Kind::Number || ultimo.kind == vbs::Token::Kind::Text)))
        return {Tras::Ninguno, {}};
    const bool enPunto = tocado && ultimo.sign == vbs::Token::Sign::Dot;
    const bool enNombre = tocado && (ultimo.kind == vbs::Token::Kind::Identifier || ultimo.word != vbs::Word::None) &&
                          ultimo.text.size() == ultimo.length;
    if (!enPunto && !enNombre)
        return {};
    const QString principio = enNombre ? linea.right(static_cast<qsizetype>(ultimo.length)) : QString();
    if (!enPunto && antes[1].sign != vbs::Token::Sign::Dot)
        return {Tras::Nada, principio};
    const vbs::Token& objeto = enPunto ? antes[1] : antes[0];
    const bool nombreSolo = objeto.kind == vbs::Token::Kind::Identifier;
    return {nombreSolo && vbs::equalNoCase(objeto.text, u"mw")        ? Tras::MW
            : nombreSolo && vbs::equalNoCase(objeto.text, u"wscript") ? Tras::WScript
                                                                      : Tras::OtroPunto,
            principio};
}

void CompletadorCodigo::abrir(const Contexto& contexto, bool pedida) {
    if (contexto.tras == Contexto::Tras::Ninguno || contexto.tras == Contexto::Tras::OtroPunto) {
        cerrar();
        return;
    }
    pedida_ = pedida;
    llenar(contexto);
    mostrar(contexto.principio);
}

void CompletadorCodigo::llenar(const Contexto& contexto) {
    qsizetype lugar = 0;
    const QString texto = textoAlrededor(lugar);
    const QList<Sugerencia> sugerencias = contexto.tras == Contexto::Tras::MW        ? sugerenciasDeMW()
                                          : contexto.tras == Contexto::Tras::WScript ? sugerenciasDeWScript()
                                                                                     : sugerenciasPara(texto, lugar);
    llenaPara_ = contexto.tras;
    modelo_.clear();
    for (const Sugerencia& sugerencia : sugerencias) {
        auto* fila = new QStandardItem(sugerencia.texto);
        fila->setToolTip(sugerencia.ayuda);
        modelo_.appendRow(fila);
    }
}

// The lines around the text cursor; `lugar` is where it stands in them.
QString CompletadorCodigo::textoAlrededor(qsizetype& lugar) const {
    const QTextCursor cursor = editor_.textCursor();
    QTextBlock linea = editor_.document()->findBlockByNumber(std::max(cursor.blockNumber() - lineasAlrededor, 0));
    QString texto;
    for (int i = 0; linea.isValid() && i <= 2 * lineasAlrededor; linea = linea.next(), ++i) {
        if (linea == cursor.block())
            lugar = texto.size() + cursor.positionInBlock();
        if (linea.length() <= ResaltadoVBScript::maximoLinea)
            texto += linea.text();
        texto += u'\n';
    }
    return texto;
}

void CompletadorCodigo::mostrar(const QString& principio) {
    lista_.setCompletionPrefix(principio);
    const bool yaEscrito = lista_.completionCount() == 1 && lista_.currentCompletion() == principio;
    if (lista_.completionCount() == 0 || (yaEscrito && !pedida_)) {
        cerrar();
        return;
    }
    QTextCursor inicio = editor_.textCursor();
    inicio.movePosition(QTextCursor::PreviousCharacter, QTextCursor::MoveAnchor, static_cast<int>(principio.size()));
    QRect lugar = editor_.cursorRect(inicio).translated(editor_.viewport()->pos());
    QAbstractItemView& filas = *lista_.popup();
    lugar.setWidth(filas.sizeHintForColumn(0) + filas.verticalScrollBar()->sizeHint().width() +
                   2 * editor_.fontMetrics().averageCharWidth());
    lista_.complete(lugar);
    filas.setCurrentIndex(pedida_ ? lista_.completionModel()->index(0, 0) : QModelIndex());
}

void CompletadorCodigo::cerrar() {
    lista_.popup()->hide();
}

void CompletadorCodigo::insertar(const QModelIndex& fila) {
    if (!fila.isValid())
        return;
    QTextCursor cursor = editor_.textCursor();
    cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor,
                        static_cast<int>(lista_.completionPrefix().size()));
    const QString ayuda = fila.data(Qt::ToolTipRole).toString();
    cursor.insertText(fila.data(Qt::DisplayRole).toString());
    editor_.setTextCursor(cursor);
    if (llenaPara_ != Contexto::Tras::Nada) // how it goes on
        QToolTip::showText(editor_.viewport()->mapToGlobal(editor_.cursorRect().bottomRight()), ayuda, &editor_);
    Q_EMIT completado();
}

void CompletadorCodigo::ensenar(const QModelIndex& fila) {
    const QAbstractItemView& filas = *lista_.popup();
    const QRect lugar = filas.visualRect(filas.currentIndex());
    QToolTip::showText(filas.viewport()->mapToGlobal(QPoint(filas.width(), lugar.top() - lugar.height())),
                       fila.data(Qt::ToolTipRole).toString(), lista_.popup());
}

bool CompletadorCodigo::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::Hide)
        QToolTip::hideText();
    return QObject::eventFilter(objeto, evento);
}
