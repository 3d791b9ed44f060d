#include "script/PanelEjecucion.h"

#include "platform/window/Controles.h"
#include "platform/window/PaginaManual.h"
#include "script/ConsolaScript.h"
#include "script/ResumenValor.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBlock>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Columna { Nombre, Tipo, Valor, columnas };

void poner(QTreeWidgetItem& fila, int columna, const QString& texto) {
    if (fila.text(columna) == texto)
        return;
    fila.setText(columna, texto);
    fila.setToolTip(columna, texto);
}

} // namespace

PanelEjecucion::PanelEjecucion(EjecutorScript& ejecutor, QWidget* padre) : QWidget(padre), ejecutor_(ejecutor) {
    setObjectName(QStringLiteral("panelEjecucion"));
    auto* partes = new QSplitter(Qt::Vertical, this);
    partes->setChildrenCollapsible(false);
    partes->addWidget(crearVariables());
    partes->addWidget(crearConsola());
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(partes);
}

QWidget* PanelEjecucion::crearVariables() {
    auto* parte = new QWidget(this);
    resumen_ = nombrado(new QLabel(QStringLiteral("Variables globales"), parte), "lblVariables");
    variables_ = nombrado(new QTreeWidget(parte), "listaVariables",
                          QStringLiteral("Variables globales del script, después de cada pasada"));
    variables_->setHeaderLabels({QStringLiteral("Nombre"), QStringLiteral("Tipo"), QStringLiteral("Valor")});
    variables_->setRootIsDecorated(false);
    variables_->setUniformRowHeights(true);
    variables_->setAlternatingRowColors(true);
    const int letra = fontMetrics().averageCharWidth();
    variables_->setColumnWidth(Nombre, letra * 16);
    variables_->setColumnWidth(Tipo, letra * 13);
    resumen_->setBuddy(variables_);
    auto* columna = new QVBoxLayout(parte);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(resumen_);
    columna->addWidget(variables_, 1);
    return parte;
}

QWidget* PanelEjecucion::crearConsola() {
    auto* parte = new QWidget(this);
    ponerPaginaManual(*parte, "scripts.md#la-consola");
    auto* rotulo = new QLabel(QStringLiteral("Consola (WScript.Echo)"), parte);
    auto* borrar = crearBoton(parte, "btnBorrarConsola", QStringLiteral("Borrar &consola"));
    connect(borrar, &QPushButton::clicked, this, &PanelEjecucion::borrarConsola);
    consola_ = nombrado(new QPlainTextEdit(parte), "txtConsola", QStringLiteral("Consola del script"));
    consola_->setReadOnly(true);
    consola_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    consola_->setUndoRedoEnabled(false);
    consola_->setLineWrapMode(QPlainTextEdit::NoWrap);
    consola_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    consola_->setPlaceholderText(QStringLiteral("Lo que el script escribe con WScript.Echo"));
    rotulo->setBuddy(consola_);
    auto* fila = new QHBoxLayout;
    fila->addWidget(rotulo, 1);
    fila->addWidget(borrar);
    auto* columna = new QVBoxLayout(parte);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addLayout(fila);
    columna->addWidget(consola_, 1);
    return parte;
}

void PanelEjecucion::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    mostrarVariables();
    mostrarConsola();
}

void PanelEjecucion::actualizar() {
    if (!isVisible())
        return;
    if (ejecutor_.pasadas().cuantas != pasadaMostrada_)
        mostrarVariables();
    mostrarConsola();
}

// Rows stay where they are, so that what one has selected or scrolled to does, too.
void PanelEjecucion::mostrarVariables() {
    pasadaMostrada_ = ejecutor_.pasadas().cuantas;
    int cuantas = 0;
    ejecutor_.globales([&](std::u16string_view nombre, const vbs::Value& valor, vbs::Context& contexto) {
        if (++cuantas > maximoVariables)
            return;
        if (cuantas > variables_->topLevelItemCount())
            variables_->addTopLevelItem(new QTreeWidgetItem(columnas));
        QTreeWidgetItem& fila = *variables_->topLevelItem(cuantas - 1);
        const ResumenValor resumen = resumirValor(contexto, valor);
        poner(fila, Nombre, deUtf16(nombre));
        poner(fila, Tipo, deUtf16(resumen.tipo));
        poner(fila, Valor, deUtf16(resumen.valor));
    });
    while (variables_->topLevelItemCount() > cuantas)
        delete variables_->takeTopLevelItem(variables_->topLevelItemCount() - 1);
    resumen_->setText(cuantas > maximoVariables
                          ? QStringLiteral("Variables globales: se ven %1 de %2").arg(maximoVariables).arg(cuantas)
                          : QStringLiteral("Variables globales: %1").arg(cuantas));
}

// Takes away what the console no longer has and adds what is new; the place that one reads and a selection stay.
void PanelEjecucion::mostrarConsola() {
    const ConsolaScript& consola = ejecutor_.consola();
    const std::uint64_t primera = consola.idas();
    const std::uint64_t fin = primera + consola.lineas().size();
    if (primera >= finMostrado_)
        consola_->clear();
    else if (primera > primeraMostrada_) {
        QTextCursor viejas(consola_->document());
        viejas.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor,
                            static_cast<int>(primera - primeraMostrada_));
        viejas.removeSelectedText();
    }
    QStringList nuevas;
    for (std::uint64_t linea = std::max(primera, finMostrado_); linea < fin; ++linea)
        nuevas.append(deUtf16(consola.lineas()[linea - primera]));
    if (!nuevas.isEmpty())
        consola_->appendPlainText(nuevas.join(u'\n'));
    primeraMostrada_ = primera;
    finMostrado_ = fin;
}

void PanelEjecucion::borrarConsola() {
    ejecutor_.consola().borrar();
    mostrarConsola();
}
