#include "registers/FrmMW.h"

#include "platform/window/Controles.h"
#include "platform/window/MsgBox.h"
#include "registers/ErrorEjecucion.h"
#include "registers/Esclavos.h"
#include "registers/NumeroLocal.h"
#include "registers/Palabra.h"
#include "registers/ValorAMano.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace {

constexpr const char* errorDePlc = "Error de numero de PLC";
constexpr const char* errorDeDireccion = "Error de numero de Direccion";
constexpr const char* errorDeValor = "Error de valor numerico";

constexpr int entreCuartetos = 8; // pixels between groups of four bits
constexpr std::int16_t retroceso = 8;
constexpr std::int16_t teclaIgnorada = 16;

QLabel* crearEtiqueta(const char* nombre) {
    auto* etiqueta = nombrado(new QLabel, nombre);
    etiqueta->setTextFormat(Qt::PlainText);
    return etiqueta;
}

} // namespace

FrmMW::FrmMW(Esclavos& esclavos, QWidget* padre)
    : QDialog(padre), esclavos_(esclavos), TxtPlc_(crearTexto("TxtPlc", QStringLiteral("Número de PLC"))),
      TxtDireccion_(crearTexto("TxtDireccion", QStringLiteral("Dirección de la MW"))),
      TxtValor_(crearTexto("TxtValor", QStringLiteral("Valor"))), lblC2_(crearEtiqueta("lblC2")),
      LblBinario_(crearEtiqueta("LblBinario")) {
    setObjectName(QStringLiteral("FrmMW"));
    setWindowTitle(QStringLiteral("Escribir MW"));

    auto* campos = new QFormLayout;
    campos->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    campos->addRow(QStringLiteral("&PLC:"), TxtPlc_);
    campos->addRow(QStringLiteral("&Dirección:"), TxtDireccion_);
    campos->addRow(QStringLiteral("&Valor:"), TxtValor_);

    QWidget* const filaDeBits = crearBits(); // before the buttons: Tab goes from the fields to them
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    QPushButton* ok = crearBoton(this, "BtnOk", QStringLiteral("&Aceptar"));
    QPushButton* cancelar = crearBoton(this, "BtnCancelar", QStringLiteral("&Cancelar"));
    QPushButton* salir = crearBoton(this, "BtnSalir", QStringLiteral("&Salir"));
    for (QPushButton* boton : {ok, cancelar, salir})
        botones->addWidget(boton);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &FrmMW::aceptar);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    connect(salir, &QPushButton::clicked, this, &QDialog::reject);

    auto* todo = new QVBoxLayout(this);
    todo->addLayout(campos);
    todo->addWidget(filaDeBits);
    todo->addWidget(lblC2_);
    todo->addWidget(LblBinario_);
    todo->addLayout(botones);
    todo->setSizeConstraint(QLayout::SetMinimumSize);

    connect(TxtValor_, &QLineEdit::textChanged, this, &FrmMW::actualizarChecks);
    actualizarChecks();
}

QLineEdit* FrmMW::crearTexto(const char* nombre, const QString& nombreAccesible) {
    auto* caja = nombrado(new QLineEdit(this), nombre, nombreAccesible);
    caja->setAttribute(Qt::WA_InputMethodEnabled, false); // composed characters would pass by the key filter
    caja->installEventFilter(this);
    return caja;
}

// Bit 0 stands rightmost, bit 15 leftmost.
QWidget* FrmMW::crearBits() {
    auto* fila = new QWidget(this);
    auto* caja = new QHBoxLayout(fila);
    caja->setContentsMargins(0, 0, 0, 0);
    caja->setDirection(QBoxLayout::LeftToRight);
    for (int i = bits - 1; i >= 0; --i) {
        auto* casilla = nombrado(new QCheckBox(QString::number(i)), nombreDeElemento("CheckBin", i),
                                 QStringLiteral("Bit %1").arg(i));
        connect(casilla, &QCheckBox::clicked, this, [this, i] { clicEnBit(i); });
        caja->addWidget(casilla);
        if (i > 0 && i % 4 == 0)
            caja->addSpacing(entreCuartetos);
        CheckBin_[static_cast<std::size_t>(i)] = casilla;
    }
    return fila;
}

void FrmMW::abrir(int plc, int direccion, const QString& texto) {
    show();
    raise();
    activateWindow();
    TxtPlc_->setText(QString::number(plc));
    TxtDireccion_->setText(QString::number(direccion));
    recibirValorMW(numeroLocal(texto).value_or(0));
    TxtValor_->setFocus(Qt::OtherFocusReason);
    TxtValor_->end(false);
}

void FrmMW::recibirValorMW(double Valor) {
    TxtValor_->setText(textoLocal(Valor));
    actualizarChecks();
}

void FrmMW::actualizarChecks() {
    const auto valor = numeroLocal(TxtValor_->text());
    if (!valor) {
        TxtValor_->setText(QStringLiteral("0")); // refreshes again
        TxtValor_->selectAll();
        return;
    }
    try {
        mostrarBits(*valor);
    } catch (const ErrorEjecucion&) { // outside 32 bits there are no bits to show
        for (QCheckBox* casilla : CheckBin_)
            casilla->setChecked(false);
        LblBinario_->setText(QStringLiteral("Binario: Desborde"));
    }
    lblC2_->setText(cabeAMano(*valor) ? QStringLiteral("C2:       ") + textoLocal(SIGNINT(*valor))
                                      : QStringLiteral("Desborde"));
}

void FrmMW::mostrarBits(double valor) {
    QString binario;
    for (int i = 0; i < bits; ++i) {
        const bool puesto = wordbit(valor, i) == 1;
        CheckBin_[static_cast<std::size_t>(i)]->setChecked(puesto);
        binario.prepend(puesto ? QLatin1Char('1') : QLatin1Char('0'));
    }
    LblBinario_->setText(QStringLiteral("Binario: ") + binario);
}

double FrmMW::wordbit(double WordEnDecimal, double NBit) {
    return ::NBit(WordEnDecimal, entero16(NBit));
}

void FrmMW::clicEnBit(int bit) {
    const auto indice = static_cast<std::size_t>(bit);
    const auto estado = static_cast<std::int16_t>(CheckBin_[indice]->isChecked() ? 1 : 0);
    try {
        const double valor = numeroLocal(TxtValor_->text()).value_or(0);
        TxtValor_->setText(textoLocal(SetearBIT_YDevolverPalabra(valor, static_cast<std::int16_t>(bit), estado)));
    } catch (const ErrorEjecucion&) {
        MsgBox(this, QLatin1String(valorFueraDeRango));
    }
    actualizarChecks(); // the text may be the same as before while the box is not
}

std::int16_t FrmMW::ValidarIngresoDeNumeros(std::int16_t CodAscii, bool AdmitirNegativos, bool AdmitirPuntoDecimal) {
    if (CodAscii == retroceso || (CodAscii >= '0' && CodAscii <= '9'))
        return CodAscii;
    if ((CodAscii == '.' && AdmitirPuntoDecimal) || (CodAscii == '-' && AdmitirNegativos))
        return CodAscii;
    return teclaIgnorada;
}

// The filter is for keys that type a character; Ctrl+V, arrows, Enter and the like are none of its business.
bool FrmMW::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::KeyPress) {
        const auto* tecla = static_cast<QKeyEvent*>(evento);
        const bool conOrden = tecla->modifiers().testFlag(Qt::ControlModifier);
        const QString texto = tecla->text();
        if (auto* caja = qobject_cast<QLineEdit*>(objeto);
            caja != nullptr && !conOrden && !texto.isEmpty() && texto.at(0).isPrint())
            return !teclaAdmitida(*caja, texto);
        signoPendiente_ = signoPendiente_ && texto.isEmpty();
    } else if (evento->type() == QEvent::FocusOut || evento->type() == QEvent::MouseButtonPress) {
        signoPendiente_ = false;
    }
    return QDialog::eventFilter(objeto, evento);
}

bool FrmMW::teclaAdmitida(QLineEdit& caja, const QString& texto) {
    const char16_t letra = texto.at(0).unicode();
    const bool esValor = &caja == TxtValor_;
    if (letra > 127 || ValidarIngresoDeNumeros(static_cast<std::int16_t>(letra), esValor) == teclaIgnorada)
        return false;
    return !(esValor && signoPuesto(caja, letra));
}

// A minus sign alone is no number and turns into 0 at once. So that -5 can be typed over the whole text all the same,
// the sign is kept for the digit that comes next. Returns whether the text has got what the key stands for.
bool FrmMW::signoPuesto(QLineEdit& caja, char16_t letra) {
    const bool encima = caja.selectedText() == caja.text();
    const bool pendiente = std::exchange(signoPendiente_, encima && letra == u'-');
    if (!encima || !pendiente || letra < u'1' || letra > u'9')
        return false;
    caja.setText(QStringLiteral("-") + QChar(letra));
    return true;
}

QString FrmMW::errorDeCampos() const {
    if (TxtPlc_->text().isEmpty())
        return QLatin1String(errorDePlc);
    if (TxtDireccion_->text().isEmpty())
        return QLatin1String(errorDeDireccion);
    const auto valor = numeroLocal(TxtValor_->text()); // an empty text is no number
    if (!valor)
        return QLatin1String(errorDeValor);
    if (!cabeAMano(*valor))
        return QLatin1String(valorFueraDeRango);
    if (!numeroLocal(TxtPlc_->text()))
        return QLatin1String(errorDePlc);
    if (!numeroLocal(TxtDireccion_->text()))
        return QLatin1String(errorDeDireccion);
    return {};
}

void FrmMW::aceptar() {
    const QString error = errorDeCampos();
    if (!error.isEmpty())
        MsgBox(this, error);
    else if (escribirValor())
        accept();
    else
        MsgBox(this, QStringLiteral("La MW %1 del PLC %2 no existe").arg(TxtDireccion_->text(), TxtPlc_->text()));
}

bool FrmMW::escribirValor() {
    const double plc = numeroLocal(TxtPlc_->text()).value_or(0);
    const double direccion = numeroLocal(TxtDireccion_->text()).value_or(0);
    const double valor = numeroLocal(TxtValor_->text()).value_or(0);
    try {
        escribirAMano(esclavos_, plc, direccion, valor);
        return true;
    } catch (const ErrorEjecucion&) {
        return false;
    }
}
