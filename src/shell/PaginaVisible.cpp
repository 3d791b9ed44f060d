#include "shell/PaginaVisible.h"

#include "shell/LibroManual.h"

#include <QFile>
#include <QFontDatabase>
#include <QImage>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>

#include <algorithm>

namespace {

constexpr int margenTexto = 12; // pixels round the page

QColor entre(const QColor& a, const QColor& b, float parte) {
    const auto uno = [parte](float x, float y) { return x * (1 - parte) + y * parte; };
    return QColor::fromRgbF(uno(a.redF(), b.redF()), uno(a.greenF(), b.greenF()), uno(a.blueF(), b.blueF()));
}

} // namespace

PaginaVisible::PaginaVisible(QWidget* padre) : QTextBrowser(padre), barra_(new BarraBusqueda(*this, padre)) {
    setObjectName(QStringLiteral("txtPagina"));
    setAccessibleName(QStringLiteral("Página del manual"));
    setOpenExternalLinks(false);
    document()->setDocumentMargin(margenTexto);
    connect(this, &QTextBrowser::sourceChanged, this, &PaginaVisible::alCambiarDePagina);
}

// Pages and pictures come as the base class reads them; a sample script is shown as it stands.
QVariant PaginaVisible::loadResource(int tipo, const QUrl& nombre) {
    if (!nombre.path().endsWith(QLatin1String(".vbs")))
        return QTextBrowser::loadResource(tipo, nombre);
    QFile archivo(u':' + nombre.path());
    if (!archivo.open(QIODevice::ReadOnly))
        return {};
    return QStringLiteral("<h1>%1</h1><pre>%2</pre>")
        .arg(nombre.fileName(), QString::fromUtf8(archivo.readAll()).remove(u'\r').toHtmlEscaped());
}

void PaginaVisible::alCambiarDePagina(const QUrl& url) {
    const QString pagina = url.path();
    if (pagina != compuesta_) {
        compuesta_ = pagina;
        componer();
    }
    if (url.hasFragment())
        scrollToAnchor(url.fragment(QUrl::FullyDecoded)); // the anchors stand only now
}

void PaginaVisible::componer() {
    const bool deshacer = document()->isUndoRedoEnabled();
    document()->setUndoRedoEnabled(false);
    ponerAnclas();
    componerTablas();
    componerCodigo();
    ajustarImagenes();
    document()->setUndoRedoEnabled(deshacer);
    setExtraSelections({});
}

void PaginaVisible::ponerAnclas() {
    for (QTextBlock bloque = document()->begin(); bloque.isValid(); bloque = bloque.next()) {
        if (bloque.blockFormat().headingLevel() == 0 || bloque.length() < 2)
            continue;
        QTextCursor primero(bloque);
        primero.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
        QTextCharFormat forma;
        forma.setAnchor(true);
        forma.setAnchorNames({anclaDeTitulo(bloque.text())});
        primero.mergeCharFormat(forma);
    }
}

void PaginaVisible::componerTablas() {
    const QColor raya = entre(palette().color(QPalette::Base), palette().color(QPalette::Text), 0.25F);
    const auto marcos = document()->rootFrame()->childFrames();
    for (QTextFrame* const marco : marcos) {
        auto* const tabla = qobject_cast<QTextTable*>(marco);
        if (tabla == nullptr)
            continue;
        QTextTableFormat forma = tabla->format();
        forma.setBorder(1);
        forma.setBorderCollapse(true);
        forma.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        forma.setBorderBrush(raya);
        forma.setCellPadding(4);
        forma.setCellSpacing(0);
        forma.setTopMargin(6);
        forma.setBottomMargin(10);
        tabla->setFormat(forma);
    }
}

// Words between back quotes and whole blocks on a ground of their own.
void PaginaVisible::componerCodigo() {
    const QColor fondo = entre(palette().color(QPalette::Base), palette().color(QPalette::Text), 0.07F);
    const QString familia = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
    for (QTextBlock bloque = document()->begin(); bloque.isValid(); bloque = bloque.next()) {
        QList<QTextCursor> trozos; // gathered first: a change of form ends the walk over the fragments
        for (auto i = bloque.begin(); !i.atEnd(); ++i)
            if (i.fragment().charFormat().fontFixedPitch()) {
                trozos.append(QTextCursor(bloque));
                trozos.last().setPosition(i.fragment().position());
                trozos.last().setPosition(i.fragment().position() + i.fragment().length(), QTextCursor::KeepAnchor);
            }
        QTextCharFormat letra;
        letra.setFontFamilies({familia});
        letra.setBackground(fondo);
        for (QTextCursor& trozo : trozos)
            trozo.mergeCharFormat(letra);
        if (bloque.blockFormat().hasProperty(QTextFormat::BlockCodeFence) || bloque.blockFormat().nonBreakableLines()) {
            QTextBlockFormat parrafo;
            parrafo.setBackground(fondo);
            parrafo.setNonBreakableLines(false); // the page never scrolls sideways
            QTextCursor(bloque).mergeBlockFormat(parrafo);
        }
    }
}

// No picture wider than the page, none larger than it is.
void PaginaVisible::ajustarImagenes() {
    const int cabe = viewport()->width() - 2 * margenTexto - 4;
    for (QTextBlock bloque = document()->begin(); bloque.isValid(); bloque = bloque.next())
        for (auto i = bloque.begin(); !i.atEnd(); ++i) {
            if (!i.fragment().charFormat().isImageFormat())
                continue;
            QTextImageFormat imagen = i.fragment().charFormat().toImageFormat();
            const QUrl lugar = source().resolved(QUrl(imagen.name()));
            const int ancho = std::min(cabe, QImage(u':' + lugar.path()).width());
            if (static_cast<int>(imagen.width()) == ancho)
                continue;
            imagen.setWidth(ancho);
            QTextCursor cursor(bloque);
            cursor.setPosition(i.fragment().position());
            cursor.setPosition(i.fragment().position() + i.fragment().length(), QTextCursor::KeepAnchor);
            cursor.setCharFormat(imagen);
            break; // one picture a paragraph
        }
}

void PaginaVisible::resizeEvent(QResizeEvent* evento) {
    QTextBrowser::resizeEvent(evento);
    ajustarImagenes();
    // Tables may be a pixel wider than asked for.
    const bool cabe = document()->size().width() <= viewport()->width() + 2;
    setHorizontalScrollBarPolicy(cabe ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}

void PaginaVisible::changeEvent(QEvent* evento) {
    QTextBrowser::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange && !compuesta_.isEmpty())
        componer();
}

void PaginaVisible::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape)
        evento->ignore(); // the window's
    else
        QTextBrowser::keyPressEvent(evento);
}

QString PaginaVisible::seleccionParaBuscar() const {
    const QString elegido = textCursor().selectedText();
    return elegido.contains(QChar::ParagraphSeparator) ? QString() : elegido;
}

void PaginaVisible::resaltar(const QString& patron, Qt::CaseSensitivity caja) {
    QList<ExtraSelection> marcas;
    QTextDocument::FindFlags modo;
    modo.setFlag(QTextDocument::FindCaseSensitively, caja == Qt::CaseSensitive);
    QTextCursor cursor(document());
    while (!patron.isEmpty() && !(cursor = document()->find(patron, cursor, modo)).isNull()) {
        ExtraSelection marca;
        marca.cursor = cursor;
        marca.format.setBackground(QColor(255, 213, 79));
        marca.format.setForeground(Qt::black);
        marcas.append(marca);
    }
    setExtraSelections(marcas);
}

void PaginaVisible::resaltarPalabras(const QString& palabras) {
    const QString texto = sinAcentos(document()->toRawText());
    QList<ExtraSelection> marcas;
    const QStringList lista = sinAcentos(palabras).split(u' ', Qt::SkipEmptyParts);
    for (const QString& palabra : lista)
        for (qsizetype i = texto.indexOf(palabra); i >= 0; i = texto.indexOf(palabra, i + palabra.size())) {
            ExtraSelection marca;
            marca.cursor = QTextCursor(document());
            marca.cursor.setPosition(static_cast<int>(i));
            marca.cursor.setPosition(static_cast<int>(i + palabra.size()), QTextCursor::KeepAnchor);
            marca.format.setBackground(QColor(255, 213, 79));
            marca.format.setForeground(Qt::black);
            marcas.append(marca);
        }
    setExtraSelections(marcas);
}

void PaginaVisible::buscar(const QString& patron, Qt::CaseSensitivity caja, bool adelante) {
    using Resultado = BarraBusqueda::Resultado;
    QTextDocument::FindFlags modo;
    modo.setFlag(QTextDocument::FindBackward, !adelante);
    modo.setFlag(QTextDocument::FindCaseSensitively, caja == Qt::CaseSensitive);
    QTextCursor hallado = document()->find(patron, textCursor(), modo);
    const bool vuelta = hallado.isNull();
    if (vuelta)
        hallado = document()->find(patron, adelante ? 0 : document()->characterCount() - 1, modo);
    if (hallado.isNull())
        return barra_->mostrarResultado(Resultado::noHallado);
    setTextCursor(hallado);
    barra_->mostrarResultado(!vuelta    ? Resultado::hallado
                             : adelante ? Resultado::haLlegadoAlFinal
                                        : Resultado::haLlegadoAlPrincipio);
}

void PaginaVisible::mostrarBarra(bool mostrada) {
    if (!mostrada)
        setFocus();
    barra_->setVisible(mostrada);
}
