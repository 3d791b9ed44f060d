#include "platform/grid/MSFlexGrid.h"

#include "platform/grid/ModeloCuadricula.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionHeader>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

constexpr int anchoEncabezado = 80; // 1200 twips at 96 dpi
constexpr int anchoColumna = 64;    // the control's default, 960 twips
constexpr int margen = 6;           // on either side of a text

// Draws the bare text of a cell: a full page is repainted up to 60 times a second, and the standard delegate asks the
// model for ten properties that a cell of this grid never has.
class DibujanteCelda : public QStyledItemDelegate {
public:
    DibujanteCelda(const FuenteCuadricula& fuente, QObject* padre) : QStyledItemDelegate(padre), fuente_(fuente) {}

    void paint(QPainter* pintor, const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override {
        const bool elegida = opcion.state.testFlag(QStyle::State_Selected);
        const auto grupo = opcion.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
        if (elegida)
            pintor->fillRect(opcion.rect, opcion.palette.brush(grupo, QPalette::Highlight));
        else if (const QColor fondo = fuente_.fondo(indice.row() + 1, indice.column() + 1, opcion.palette);
                 fondo.isValid())
            pintor->fillRect(opcion.rect, fondo);
        const QString texto = indice.data().toString();
        if (!texto.isEmpty()) {
            const QRect sitio = opcion.rect.adjusted(margen / 2, 0, -margen / 2, 0);
            pintor->setPen(opcion.palette.color(grupo, elegida ? QPalette::HighlightedText : QPalette::Text));
            pintor->drawText(sitio, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                             opcion.fontMetrics.elidedText(texto, Qt::ElideRight, sitio.width()));
        }
        if (opcion.state.testFlag(QStyle::State_HasFocus)) {
            pintor->setPen(opcion.palette.color(grupo, elegida ? QPalette::HighlightedText : QPalette::Highlight));
            pintor->drawRect(opcion.rect.adjusted(0, 0, -1, -1));
        }
    }

private:
    const FuenteCuadricula& fuente_;
};

} // namespace

MSFlexGrid::MSFlexGrid(const FuenteCuadricula& fuente, QWidget* padre)
    : QTableView(padre), fuente_(fuente), modelo_(new ModeloCuadricula(fuente, this)),
      esquina_(findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)) {
    setItemDelegate(new DibujanteCelda(fuente, this));
    setModel(modelo_);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    horizontalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    verticalHeader()->setModel(nullptr); // see showEvent
    modelo_->agregarFilas();
    esquina_->installEventFilter(this);
    esquina_->setAccessibleName(fuente_.texto(0, 0));
    esquina_->setToolTip(QStringLiteral("Seleccionar todo"));
    medir();
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] { anchosPropios_ |= !repartiendo_; });
}

QString MSFlexGrid::TextMatrix(int row, int col) const {
    if (row < 0 || row >= Rows() || col < 0 || col >= Cols())
        return {};
    return fuente_.texto(row, col);
}

int MSFlexGrid::Row() const {
    return currentIndex().isValid() ? currentIndex().row() + 1 : 1;
}

int MSFlexGrid::Col() const {
    return currentIndex().isValid() ? currentIndex().column() + 1 : 1;
}

void MSFlexGrid::irA(int row, int col) {
    modelo_->agregarFilas();
    const QModelIndex celda = modelo_->index(row - 1, col - 1);
    if (!celda.isValid())
        return;
    // Shift and an arrow select from where a key or the mouse last came to, and only those move that place: the last
    // step is an arrow's.
    const bool haciaLaDerecha = col > 1;
    selectionModel()->setCurrentIndex(celda.siblingAtColumn(haciaLaDerecha ? col - 2 : col),
                                      QItemSelectionModel::NoUpdate);
    QKeyEvent flecha(QEvent::KeyPress, haciaLaDerecha ? Qt::Key_Right : Qt::Key_Left, Qt::NoModifier);
    QTableView::keyPressEvent(&flecha);
    selectionModel()->setCurrentIndex(celda, QItemSelectionModel::ClearAndSelect); // a grid not shown has no arrows
    scrollTo(celda, PositionAtCenter);
}

std::vector<std::pair<int, int>> MSFlexGrid::celdasSeleccionadas() const {
    std::vector<std::pair<int, int>> celdas;
    for (const QModelIndex& indice : selectionModel()->selectedIndexes())
        celdas.emplace_back(indice.row() + 1, indice.column() + 1);
    std::sort(celdas.begin(), celdas.end());
    return celdas;
}

void MSFlexGrid::agregarFilas() {
    modelo_->agregarFilas();
}

void MSFlexGrid::refrescar() {
    modelo_->agregarFilas();
    if (isVisible())
        viewport()->update();
}

void MSFlexGrid::medirTextos() {
    anchosPropios_ = false;
    medir();
    refrescar();
}

QString MSFlexGrid::textoSeleccionado() const {
    const QItemSelection seleccion = selectionModel()->selection();
    QRect marco;
    for (const QItemSelectionRange& tramo : seleccion)
        marco |= QRect(QPoint(tramo.left(), tramo.top()), QPoint(tramo.right(), tramo.bottom()));
    QString texto;
    for (int fila = marco.top(); fila <= marco.bottom(); ++fila) {
        QStringList celdas;
        bool alguna = false;
        for (int columna = marco.left(); columna <= marco.right(); ++columna) {
            const bool elegida = seleccion.contains(modelo_->index(fila, columna));
            alguna |= elegida;
            celdas.append(elegida ? TextMatrix(fila + 1, columna + 1) : QString());
        }
        if (!alguna)
            continue;
        if (!texto.isEmpty())
            texto += QLatin1Char('\n');
        texto += celdas.join(QLatin1Char('\t'));
    }
    return texto;
}

void MSFlexGrid::copiar() const {
    if (selectionModel()->hasSelection())
        QGuiApplication::clipboard()->setText(textoSeleccionado());
}

void MSFlexGrid::pegar() {
    Q_EMIT pegado(Row(), Col(), QGuiApplication::clipboard()->text());
}

void MSFlexGrid::activar() {
    if (currentIndex().isValid())
        Q_EMIT celdaActivada(Row(), Col());
}

void MSFlexGrid::keyPressEvent(QKeyEvent* evento) {
    const int tecla = evento->key();
    if (evento->matches(QKeySequence::Copy)) {
        copiar();
    } else if (evento->matches(QKeySequence::Paste)) {
        pegar();
    } else if (tecla == Qt::Key_F2 || tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
        activar();
    } else {
        QTableView::keyPressEvent(evento);
    }
}

void MSFlexGrid::mouseDoubleClickEvent(QMouseEvent* evento) {
    QTableView::mouseDoubleClickEvent(evento);
    const QModelIndex celda = indexAt(evento->position().toPoint());
    if (evento->button() == Qt::LeftButton && celda.isValid())
        Q_EMIT celdaActivada(celda.row() + 1, celda.column() + 1);
}

void MSFlexGrid::contextMenuEvent(QContextMenuEvent* evento) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("&Copiar\tCtrl+C"), this, &MSFlexGrid::copiar)
        ->setEnabled(selectionModel()->hasSelection());
    menu->addAction(QStringLiteral("&Seleccionar todo\tCtrl+A"), this, &MSFlexGrid::selectAll);
    menu->addAction(QStringLiteral("&Pegar\tCtrl+V"), this, &MSFlexGrid::pegar);
    Q_EMIT menuPedido(menu);
    menu->popup(evento->globalPos());
}

// A header keeps a record for every row. A grid that has never been shown does without: with hundreds of pages of
// thousands of rows that is a sixth of the memory of the registers themselves.
void MSFlexGrid::showEvent(QShowEvent* evento) {
    if (verticalHeader()->model() != modelo_) {
        verticalHeader()->setModel(modelo_);
        verticalHeader()->setSelectionModel(selectionModel());
    }
    QTableView::showEvent(evento);
}

void MSFlexGrid::changeEvent(QEvent* evento) {
    QTableView::changeEvent(evento);
    if (evento->type() == QEvent::FontChange || evento->type() == QEvent::StyleChange)
        medir();
}

void MSFlexGrid::resizeEvent(QResizeEvent* evento) {
    QTableView::resizeEvent(evento);
    repartirColumnas();
}

// Every size follows from the font alone: rows are never measured one by one.
void MSFlexGrid::medir() {
    const QFontMetrics letra = fontMetrics();
    const QFontMetrics titulo = horizontalHeader()->fontMetrics();
    verticalHeader()->setMinimumSectionSize(letra.height());
    verticalHeader()->setDefaultSectionSize(letra.height() + margen);
    const QStringList textos{fuente_.texto(0, 0), QStringLiteral("000000")};
    int ancho = anchoEncabezado;
    for (const QString& texto : textos)
        ancho = std::max(ancho, titulo.horizontalAdvance(texto) + 2 * margen);
    verticalHeader()->setFixedWidth(ancho);
    horizontalHeader()->setFixedHeight(titulo.height() + 2 * margen);
    horizontalHeader()->setMinimumSectionSize(letra.horizontalAdvance(fuente_.textoMasAncho()) + margen + margen / 2);
    repartirColumnas();
    updateGeometries();
}

// The columns share the width of the view until the operator sets one himself.
void MSFlexGrid::repartirColumnas() {
    QHeaderView& cabecera = *horizontalHeader();
    const int columnas = cabecera.count();
    if (anchosPropios_ || columnas == 0)
        return;
    const int normal = std::max(anchoColumna, cabecera.minimumSectionSize());
    const int justo = viewport()->width() / columnas;
    const int minimo = std::min(normal, cabecera.minimumSectionSize());
    repartiendo_ = true;
    for (int i = 0; i < columnas; ++i)
        cabecera.resizeSection(i, std::max(minimo, justo));
    repartiendo_ = false;
}

bool MSFlexGrid::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == esquina_ && evento->type() == QEvent::Paint) {
        pintarEsquina();
        return true;
    }
    return QTableView::eventFilter(objeto, evento);
}

// The corner button of a table view has no text of its own.
void MSFlexGrid::pintarEsquina() {
    QStyleOptionHeader opcion;
    opcion.initFrom(esquina_);
    opcion.fontMetrics = horizontalHeader()->fontMetrics();
    opcion.text = fuente_.texto(0, 0);
    opcion.textAlignment = Qt::AlignCenter;
    opcion.section = 0;
    opcion.position = QStyleOptionHeader::OnlyOneSection;
    QPainter pintor(esquina_);
    pintor.setFont(horizontalHeader()->font());
    style()->drawControl(QStyle::CE_Header, &opcion, &pintor, esquina_);
}
