// The dialog in which the operator writes one register of one slave by hand.
//
// It shows the value as a number, as sixteen bits, as a signed number and in binary, and lets him edit the number or
// the bits. Enter is OK, which checks the fields, writes through the store and closes; Esc closes without writing.
// Non-modal; nothing persists from one opening to the next.
//
//     auto* frm = new FrmMW(esclavos, ventana);
//     frm->setAttribute(Qt::WA_DeleteOnClose);
//     frm->abrir(1, 20, "65535");
#pragma once

#include <QDialog>

#include <array>
#include <cstdint>

class Esclavos;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

class FrmMW : public QDialog {
    Q_OBJECT

public:
    // The store is borrowed and outlives the dialog.
    explicit FrmMW(Esclavos& esclavos, QWidget* padre = nullptr);

    // Shows the dialog for a register; `texto` is what its cell shows (no number counts as 0). The text cursor
    // stands behind the value.
    void abrir(int plc, int direccion, const QString& texto);

    void recibirValorMW(double Valor);

    // Refreshes the boxes and labels from the value; a value that is empty or no number becomes 0.
    void actualizarChecks();

    // The key code to keep: the code itself for backspace and digits (and for "-" and "." where they are admitted),
    // else 16, which a text box ignores.
    static std::int16_t ValidarIngresoDeNumeros(std::int16_t CodAscii, bool AdmitirNegativos = false,
                                                bool AdmitirPuntoDecimal = false);

    // 1 if bit NBit of the word is set, else 0. Overflow as in Palabra.h.
    static double wordbit(double WordEnDecimal, double NBit);

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    static constexpr int bits = 16;

    QLineEdit* crearTexto(const char* nombre, const QString& nombreAccesible);
    QWidget* crearBits();
    bool teclaAdmitida(QLineEdit& caja, const QString& texto);
    bool signoPuesto(QLineEdit& caja, char16_t letra);
    void mostrarBits(double valor);
    void clicEnBit(int bit);
    void aceptar();
    QString errorDeCampos() const; // the message to show, empty when all fields are right
    bool escribirValor();

    Esclavos& esclavos_;
    QLineEdit* TxtPlc_;
    QLineEdit* TxtDireccion_;
    QLineEdit* TxtValor_;
    bool signoPendiente_ = false; // "-" was typed over the whole value: the digit that follows gets it
    std::array<QCheckBox*, bits> CheckBin_{};
    QLabel* lblC2_;
    QLabel* LblBinario_;
};
