#include "script/BarraBusqueda.h"

#include "platform/window/Controles.h"
#include "script/EditorCodigo.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

BarraBusqueda::BarraBusqueda(EditorCodigo& editor, QWidget* padre) : QWidget(padre), editor_(editor) {
    setObjectName(QStringLiteral("barraBusqueda"));
    auto* rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(0, 0, 0, 0);
    txtBuscar_ = crearCampo("txtBuscar", QStringLiteral("Buscar:"), *rejilla, 0);
    txtReemplazar_ = crearCampo("txtReemplazar", QStringLiteral("Reemplazar por:"), *rejilla, 1);
    rotuloReemplazar_ = qobject_cast<QLabel*>(rejilla->itemAtPosition(1, 0)->widget());

    auto* btnSiguiente = crearBoton(this, "btnSiguiente", QStringLiteral("Sig&uiente"));
    auto* btnAnterior = crearBoton(this, "btnAnterior", QStringLiteral("&Anterior"));
    btnReemplazar_ = crearBoton(this, "btnReemplazar", QStringLiteral("&Reemplazar"));
    btnReemplazarTodo_ = crearBoton(this, "btnReemplazarTodo", QStringLiteral("Reemplazar &todo"));
    chMayusculas_ = new QCheckBox(QStringLiteral("&Mayúsculas y minúsculas"), this);
    chMayusculas_->setObjectName(QStringLiteral("chMayusculas"));
    mensaje_ = new QLabel(this);
    mensaje_->setObjectName(QStringLiteral("lblBusqueda"));
    btnSiguiente->setToolTip(QStringLiteral("F3"));
    btnAnterior->setToolTip(QStringLiteral("Mayús+F3"));
    rejilla->addWidget(btnSiguiente, 0, 2);
    rejilla->addWidget(btnAnterior, 0, 3);
    rejilla->addWidget(chMayusculas_, 0, 4);
    rejilla->addWidget(btnReemplazar_, 1, 2);
    rejilla->addWidget(btnReemplazarTodo_, 1, 3);
    rejilla->addWidget(mensaje_, 0, 5);
    rejilla->setColumnStretch(1, 1);

    connect(btnSiguiente, &QPushButton::clicked, this, [this] { buscar(false); });
    connect(btnAnterior, &QPushButton::clicked, this, [this] { buscar(true); });
    connect(btnReemplazar_, &QPushButton::clicked, this, &BarraBusqueda::reemplazar);
    connect(btnReemplazarTodo_, &QPushButton::clicked, this, &BarraBusqueda::reemplazarTodo);
    connect(txtBuscar_, &QLineEdit::textEdited, mensaje_, &QLabel::clear);
    hide();
}

QLineEdit* BarraBusqueda::crearCampo(const char* nombre, const QString& rotulo, QGridLayout& rejilla, int fila) {
    auto* campo = new QLineEdit(this);
    campo->setObjectName(QLatin1String(nombre));
    campo->setAccessibleName(rotulo.chopped(1));
    campo->setFont(editor_.font());
    auto* etiqueta = new QLabel(rotulo, this);
    etiqueta->setBuddy(campo);
    rejilla.addWidget(etiqueta, fila, 0);
    rejilla.addWidget(campo, fila, 1);
    return campo;
}

void BarraBusqueda::abrir(bool conReemplazo) {
    const QString seleccionado = editor_.textCursor().selectedText();
    if (!seleccionado.isEmpty() && !seleccionado.contains(QChar::ParagraphSeparator))
        txtBuscar_->setText(seleccionado);
    for (QWidget* const control : {static_cast<QWidget*>(rotuloReemplazar_), static_cast<QWidget*>(txtReemplazar_),
                                   static_cast<QWidget*>(btnReemplazar_), static_cast<QWidget*>(btnReemplazarTodo_)})
        control->setVisible(conReemplazo);
    mensaje_->clear();
    const bool aLaVista = editor_.cursorALaVista();
    show();
    parentWidget()->layout()->activate(); // the text has its new height from here on
    if (aLaVista)
        editor_.ensureCursorVisible();
    txtBuscar_->setFocus();
    txtBuscar_->selectAll();
}

Qt::CaseSensitivity BarraBusqueda::caja() const {
    return chMayusculas_->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

void BarraBusqueda::buscar(bool haciaAtras) {
    const QString buscado = txtBuscar_->text();
    if (buscado.isEmpty()) {
        abrir(txtReemplazar_->isVisible());
        return;
    }
    QTextDocument::FindFlags modo;
    modo.setFlag(QTextDocument::FindBackward, haciaAtras);
    modo.setFlag(QTextDocument::FindCaseSensitively, caja() == Qt::CaseSensitive);
    QTextDocument& documento = *editor_.document();
    QTextCursor hallado = documento.find(buscado, editor_.textCursor(), modo);
    const bool vuelta = hallado.isNull();
    if (vuelta)
        hallado = documento.find(buscado, haciaAtras ? documento.characterCount() - 1 : 0, modo);
    if (hallado.isNull()) {
        decir(QStringLiteral("No se encontró"));
        return;
    }
    editor_.setTextCursor(hallado);
    decir(!vuelta      ? QString()
          : haciaAtras ? QStringLiteral("Se siguió desde el final")
                       : QStringLiteral("Se siguió desde el principio"));
}

bool BarraBusqueda::seleccionadoCoincide() const {
    return !txtBuscar_->text().isEmpty() &&
           editor_.textCursor().selectedText().compare(txtBuscar_->text(), caja()) == 0;
}

void BarraBusqueda::reemplazar() {
    if (seleccionadoCoincide())
        editor_.textCursor().insertText(txtReemplazar_->text());
    buscar(false);
}

void BarraBusqueda::reemplazarTodo() {
    if (txtBuscar_->text().isEmpty())
        return;
    const int veces = editor_.reemplazarTodo(txtBuscar_->text(), txtReemplazar_->text(), caja());
    decir(veces == 0   ? QStringLiteral("No se encontró")
          : veces == 1 ? QStringLiteral("1 reemplazo")
                       : QStringLiteral("%1 reemplazos").arg(veces));
}

void BarraBusqueda::decir(const QString& mensaje) {
    mensaje_->setText(mensaje);
}

void BarraBusqueda::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape)
        cerrar();
    else if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter)
        txtReemplazar_->hasFocus() ? reemplazar() : buscar(evento->modifiers().testFlag(Qt::ShiftModifier));
    else
        QWidget::keyPressEvent(evento);
}

void BarraBusqueda::cerrar() {
    editor_.setFocus(); // before the bar goes, or the focus would pass through the control behind it
    hide();
}
