// The controls of the script editor's window, their places and keys.
#include "platform/window/Controles.h"
#include "platform/window/PaginaManual.h"
#include "script/BarraEjecucion.h"
#include "script/BusquedaCodigo.h"
#include "script/EditorCodigo.h"
#include "script/FrmEdicionCodigo.h"
#include "script/PanelEjecucion.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

void FrmEdicionCodigo::crearControles() {
    ponerPaginaManual(*this, "editor.md");
    barra_ = new BarraEjecucion(ejecutor_, chScript_, this);
    txtCodigo_ = nombrado(new EditorCodigo(this), "txtCodigo", QStringLiteral("Código del script"));
    busqueda_ = std::make_unique<BusquedaCodigo>(*txtCodigo_, this);
    panel_ = new PanelEjecucion(ejecutor_, this);
    panel_->hide();
    partes_ = nombrado(new QSplitter(this), "partes", {});
    partes_->setChildrenCollapsible(false);
    partes_->addWidget(txtCodigo_);
    partes_->addWidget(panel_);
    partes_->setStretchFactor(0, 1);
    lblEstado_ = nombrado(new QLabel(this), "lblEstado", QString());
    lblEstado_->setTextFormat(Qt::PlainText);
    lblEstado_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblEstado_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblPosicion_ = nombrado(new QLabel(this), "lblPosicion", QString());
    comprobador_ =
        new ComprobadorCodigo([this] { return txtCodigo_->texto(); },
                              [this] { return txtCodigo_->document()->characterCount(); }, ejecutor_.reloj(), this);

    auto* estado = new QHBoxLayout;
    estado->addWidget(lblEstado_, 1);
    estado->addWidget(lblPosicion_);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(barra_);
    columna->addWidget(partes_, 1);
    columna->addWidget(&busqueda_->barra());
    columna->addLayout(estado);
    crearFilaInferior(*columna);
    resize(txtCodigo_->anchoMargen() + txtCodigo_->fontMetrics().horizontalAdvance(u'0') * 112,
           txtCodigo_->fontMetrics().height() * 42);
    txtCodigo_->setFocus();
}

void FrmEdicionCodigo::crearFilaInferior(QVBoxLayout& columna) {
    txtIntervaloDeTiempo_ =
        nombrado(new QLineEdit(this), "txtIntervaloDeTiempo", QStringLiteral("Intervalo de tiempo en milisegundos"));
    txtIntervaloDeTiempo_->setMaximumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000000000")));
    txtIntervaloDeTiempo_->setToolTip(QStringLiteral("De 10 a 60000 milisegundos"));
    txtIntervaloDeTiempo_->installEventFilter(this);
    auto* rotulo = new QLabel(QStringLiteral("&Intervalo (milisegundos):"), this);
    rotulo->setBuddy(txtIntervaloDeTiempo_);
    auto* btnBuscar =
        crearBoton(this, "btnBuscar", QStringLiteral("&Buscar"), QStringLiteral("Ctrl+F; reemplazar: Ctrl+H"));
    connect(btnBuscar, &QPushButton::clicked, this, [this] { busqueda_->barra().abrir(true); });
    auto* btnAyuda = crearBoton(this, "btnAyuda", QStringLiteral("A&yuda"), QStringLiteral("El manual (F1)"));
    connect(btnAyuda, &QPushButton::clicked, this, [this] { pedirManual(*txtCodigo_); });
    BtnGuardar_ = crearBoton(this, "BtnGuardar", QStringLiteral("&Guardar"), QStringLiteral("Ctrl+S"));
    BtnSalir_ = crearBoton(this, "BtnSalir", QStringLiteral("&Salir"), QStringLiteral("Cierra sin guardar"));

    auto* fila = new QHBoxLayout;
    fila->addWidget(rotulo);
    fila->addWidget(txtIntervaloDeTiempo_);
    fila->addStretch(1);
    for (QPushButton* const boton : {btnBuscar, btnAyuda, BtnGuardar_, BtnSalir_})
        fila->addWidget(boton);
    columna.addLayout(fila);
}

void FrmEdicionCodigo::conectar() {
    connect(BtnGuardar_, &QPushButton::clicked, this, &FrmEdicionCodigo::guardar);
    connect(BtnSalir_, &QPushButton::clicked, this, &FrmEdicionCodigo::salir);
    connect(txtIntervaloDeTiempo_, &QLineEdit::textChanged, this, &FrmEdicionCodigo::mostrarTitulo);
    trasPerderElFoco_.setSingleShot(true);
    connect(&trasPerderElFoco_, &QTimer::timeout, this, [this] {
        if (periodoPendiente_)
            comprobarPeriodo();
    });
    connect(txtCodigo_, &QPlainTextEdit::modificationChanged, this, &FrmEdicionCodigo::mostrarTitulo);
    connect(txtCodigo_, &QPlainTextEdit::cursorPositionChanged, this, &FrmEdicionCodigo::mostrarPosicion);
    connect(txtCodigo_, &QPlainTextEdit::textChanged, this, [this] {
        demasiadoLargo_ = false;
        aviso_.clear();
        comprobador_->pedir();
        mostrarEstado();
    });
    connect(barra_, &BarraEjecucion::pulsado, panel_, &PanelEjecucion::actualizar);
    connect(barra_, &BarraEjecucion::panelPedido, this, &FrmEdicionCodigo::mostrarPanel);
    connect(barra_, &BarraEjecucion::ejemploPedido, this, &FrmEdicionCodigo::ponerEjemplo);
    connect(comprobador_, &ComprobadorCodigo::comprobado, this, [this](const vbs::ScriptFailure& resultado) {
        barra_->mostrarCompilacion(comprobador_->duracion());
        errorCompilacion_ = resultado;
        txtCodigo_->marcarError(static_cast<int>(resultado.line), static_cast<int>(resultado.column));
        mostrarEstado();
    });
    connect(comprobador_, &ComprobadorCodigo::demasiadoLargo, this, [this] {
        demasiadoLargo_ = true;
        barra_->mostrarCompilacion(std::nullopt);
        errorCompilacion_ = {};
        txtCodigo_->marcarError(0, 0);
        mostrarEstado();
    });
}

void FrmEdicionCodigo::crearTeclas() {
    const auto tecla = [this](const QKeySequence& secuencia, auto accion) {
        connect(new QShortcut(secuencia, this), &QShortcut::activated, this, accion);
    };
    tecla(Qt::CTRL | Qt::Key_S, [this] { guardar(); });
    tecla(Qt::CTRL | Qt::Key_F, [this] { busqueda_->barra().abrir(false); });
    tecla(Qt::CTRL | Qt::Key_H, [this] { busqueda_->barra().abrir(true); });
    tecla(Qt::CTRL | Qt::Key_G, [this] { irALinea(); });
    tecla(Qt::Key_F3, [this] { busqueda_->barra().buscar(true); });
    tecla(Qt::SHIFT | Qt::Key_F3, [this] { busqueda_->barra().buscar(false); });
    tecla(Qt::Key_F5, [this] { barra_->alternarEjecucion(); });
    tecla(Qt::Key_F6, [this] { barra_->alternarPanel(); });
    tecla(Qt::Key_F8, [this] { irAlError(); });
    tecla(QKeySequence::ZoomIn, [this] { cambiarLetra(1); });
    tecla(QKeySequence::ZoomOut, [this] { cambiarLetra(-1); });
}
