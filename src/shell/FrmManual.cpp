#include "shell/FrmManual.h"

#include "platform/window/Controles.h"
#include "shell/PaginaVisible.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {
constexpr int lugar = Qt::UserRole; // the URL of an entry
}

FrmManual::FrmManual(QWidget* padre) : QWidget(padre, Qt::Window) {
    setObjectName(QStringLiteral("FrmManual"));
    setWindowTitle(QStringLiteral("Manual del Esclavo Modbus"));
    auto* divisor = nombrado(new QSplitter(this), "divisorManual");
    divisor->setChildrenCollapsible(false);
    divisor->addWidget(crearIzquierda());
    divisor->addWidget(crearDerecha());
    divisor->setStretchFactor(1, 1);
    const int letra = fontMetrics().averageCharWidth();
    divisor->setSizes({letra * 36, letra * 90});
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(divisor);
    resize(std::min(letra * 130, 1000), std::min(fontMetrics().height() * 40, 660));
    llenarIndice();
    crearTeclas();
    connect(pagina_, &QTextBrowser::sourceChanged, this, &FrmManual::alCambiarDePagina);
    pagina_->setFocus();
}

QPushButton* FrmManual::boton(const char* nombre, const QString& texto, const QString& ayuda) {
    auto* nuevo = crearBoton(this, nombre, texto, ayuda);
    nuevo->setAutoDefault(false);
    return nuevo;
}

QWidget* FrmManual::crearIzquierda() {
    auto* lado = new QWidget(this);
    txtBuscarEnTodo_ = nombrado(new QLineEdit(lado), "txtBuscarEnTodo", QStringLiteral("Buscar en el manual"));
    txtBuscarEnTodo_->setPlaceholderText(QStringLiteral("Buscar en el manual (Ctrl+K)"));
    txtBuscarEnTodo_->setToolTip(QStringLiteral("Busca estas palabras en todas las páginas (Ctrl+K)"));
    txtBuscarEnTodo_->setClearButtonEnabled(true);
    txtBuscarEnTodo_->installEventFilter(this);
    indice_ = nombrado(new QTreeWidget(lado), "indiceManual", QStringLiteral("Índice del manual"));
    indice_->setHeaderHidden(true);
    indice_->setIndentation(fontMetrics().averageCharWidth() * 2);
    hallazgos_ = nombrado(new QListWidget(lado), "listaHallazgos", QStringLiteral("Páginas halladas"));
    hallazgos_->setWordWrap(true);
    hallazgos_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    hallazgos_->setAlternatingRowColors(true);
    hallazgos_->setSpacing(2);
    izquierda_ = new QStackedWidget(lado);
    izquierda_->addWidget(indice_);
    izquierda_->addWidget(hallazgos_);
    auto* columna = new QVBoxLayout(lado);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(txtBuscarEnTodo_);
    columna->addWidget(izquierda_, 1);
    connect(txtBuscarEnTodo_, &QLineEdit::textChanged, this, &FrmManual::buscar);
    connect(indice_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* entrada) {
        if (entrada != nullptr && indice_->hasFocus())
            irA(entrada->data(0, lugar).toUrl());
    });
    connect(indice_, &QTreeWidget::itemClicked, this,
            [this](const QTreeWidgetItem* entrada) { irA(entrada->data(0, lugar).toUrl()); });
    connect(hallazgos_, &QListWidget::currentRowChanged, this, &FrmManual::abrirHallazgo);
    return lado;
}

QWidget* FrmManual::crearMandos() {
    auto* mandos = new QWidget(this);
    btnAtras_ = boton("btnAtras", QStringLiteral("◀ Atrás"), QStringLiteral("La página anterior (Alt+Izquierda)"));
    btnAdelante_ =
        boton("btnAdelante", QStringLiteral("Adelante ▶"), QStringLiteral("La página de la que volvió (Alt+Derecha)"));
    btnAtras_->setEnabled(false);
    btnAdelante_->setEnabled(false);
    auto* inicio = boton("btnIndice", QStringLiteral("Índice"), QStringLiteral("La primera página (Alt+Inicio)"));
    auto* enPagina = boton("btnBuscarEnPagina", QStringLiteral("Buscar en la página"), QStringLiteral("Ctrl+F"));
    auto* salir = boton("BtnSalir", QStringLiteral("Salir"), QStringLiteral("Cierra esta ventana (Esc)"));
    auto* fila = new QHBoxLayout(mandos);
    fila->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* const cual : {btnAtras_, btnAdelante_, inicio, enPagina})
        fila->addWidget(cual);
    fila->addStretch(1);
    fila->addWidget(salir);
    pagina_ = new PaginaVisible(this); // after the buttons: Tab goes from them to the page
    connect(btnAtras_, &QPushButton::clicked, pagina_, &QTextBrowser::backward);
    connect(btnAdelante_, &QPushButton::clicked, pagina_, &QTextBrowser::forward);
    connect(inicio, &QPushButton::clicked, this, [this] { abrir(QLatin1String(LibroManual::primera)); });
    connect(enPagina, &QPushButton::clicked, this, [this] { pagina_->barra().abrir(); });
    connect(salir, &QPushButton::clicked, this, &QWidget::close);
    connect(pagina_, &QTextBrowser::backwardAvailable, btnAtras_, &QWidget::setEnabled);
    connect(pagina_, &QTextBrowser::forwardAvailable, btnAdelante_, &QWidget::setEnabled);
    return mandos;
}

QWidget* FrmManual::crearDerecha() {
    auto* lado = new QWidget(this);
    auto* columna = new QVBoxLayout(lado);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(crearMandos());
    columna->addWidget(pagina_, 1);
    columna->addWidget(&pagina_->barra());
    return lado;
}

void FrmManual::llenarIndice() {
    for (const PaginaDelManual& pagina : libro_.paginas()) {
        auto* entrada = new QTreeWidgetItem(indice_, {pagina.titulo});
        entrada->setData(0, lugar, LibroManual::url(pagina.archivo));
        for (const SeccionManual& seccion : pagina.secciones)
            if (seccion.nivel == 2) {
                auto* titulo = new QTreeWidgetItem(entrada, {seccion.titulo});
                titulo->setData(0, lugar, LibroManual::url(pagina.archivo + u'#' + seccion.ancla));
                titulo->setToolTip(0, seccion.titulo);
            }
    }
}

void FrmManual::crearTeclas() {
    const auto tecla = [this](const QKeySequence& secuencia, auto accion) {
        connect(new QShortcut(secuencia, this), &QShortcut::activated, this, accion);
    };
    tecla(Qt::ALT | Qt::Key_Left, [this] { pagina_->backward(); });
    tecla(Qt::ALT | Qt::Key_Right, [this] { pagina_->forward(); });
    tecla(Qt::ALT | Qt::Key_Home, [this] { abrir(QLatin1String(LibroManual::primera)); });
    tecla(Qt::CTRL | Qt::Key_F, [this] { pagina_->barra().abrir(); });
    tecla(Qt::Key_F3, [this] { pagina_->barra().buscar(true); });
    tecla(Qt::SHIFT | Qt::Key_F3, [this] { pagina_->barra().buscar(false); });
    tecla(Qt::CTRL | Qt::Key_K, [this] {
        txtBuscarEnTodo_->setFocus();
        txtBuscarEnTodo_->selectAll();
    });
    tecla(QKeySequence::ZoomIn, [this] { pagina_->zoomIn(); });
    tecla(QKeySequence::ZoomOut, [this] { pagina_->zoomOut(); });
}

void FrmManual::abrir(const QString& pagina) {
    const QString archivo = pagina.section(u'#', 0, 0);
    const auto& todas = libro_.paginas();
    const bool existe =
        std::any_of(todas.begin(), todas.end(), [&](const auto& una) { return una.archivo == archivo; });
    irA(LibroManual::url(existe ? pagina : QLatin1String(LibroManual::primera)));
}

void FrmManual::irA(const QUrl& url) {
    if (pagina_->source() != url)
        pagina_->setSource(url);
}

// Keeps the contents beside the page where the page is.
void FrmManual::alCambiarDePagina(const QUrl& url) {
    if (indice_->hasFocus())
        return;
    for (int i = 0; i < indice_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* const entrada = indice_->topLevelItem(i);
        if (entrada->data(0, lugar).toUrl().path() != url.path())
            continue;
        QTreeWidgetItem* elegida = entrada;
        for (int j = 0; j < entrada->childCount(); ++j)
            if (entrada->child(j)->data(0, lugar).toUrl() == url)
                elegida = entrada->child(j);
        entrada->setExpanded(true);
        indice_->setCurrentItem(elegida);
        return;
    }
}

void FrmManual::buscar(const QString& palabras) {
    const QSignalBlocker callada(hallazgos_);
    hallazgos_->clear();
    const bool hay = !palabras.trimmed().isEmpty();
    izquierda_->setCurrentWidget(hay ? static_cast<QWidget*>(hallazgos_) : indice_);
    pagina_->resaltarPalabras(palabras);
    if (!hay)
        return;
    for (const HallazgoManual& hallazgo : libro_.buscar(palabras)) {
        auto* entrada = new QListWidgetItem(hallazgo.donde + u'\n' + hallazgo.extracto, hallazgos_);
        entrada->setData(lugar, hallazgo.url);
    }
    if (hallazgos_->count() > 0)
        return;
    auto* nada = new QListWidgetItem(QStringLiteral("No se encuentra"), hallazgos_);
    nada->setFlags(Qt::NoItemFlags);
    nada->setForeground(palette().text()); // an answer to read, not a control out of use
}

void FrmManual::abrirHallazgo() {
    const QListWidgetItem* const entrada = hallazgos_->currentItem();
    if (entrada == nullptr || !entrada->data(lugar).isValid())
        return;
    irA(entrada->data(lugar).toUrl());
    pagina_->resaltarPalabras(txtBuscarEnTodo_->text());
}

// From the field down into what was found; Enter opens the first.
bool FrmManual::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == txtBuscarEnTodo_ && evento->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        if (tecla == Qt::Key_Down || tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
            QWidget* const lista = izquierda_->currentWidget();
            lista->setFocus();
            if (lista == hallazgos_)
                hallazgos_->setCurrentRow(0);
            return true;
        }
        if (tecla == Qt::Key_Escape && !txtBuscarEnTodo_->text().isEmpty()) {
            txtBuscarEnTodo_->clear();
            return true;
        }
    }
    return QWidget::eventFilter(objeto, evento);
}

void FrmManual::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(evento);
}
