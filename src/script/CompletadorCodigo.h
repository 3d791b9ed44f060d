// Completion in the code editor: a list under the word that is being written.
//
// It opens by itself behind "mw." and after three letters of a name, and at any place with Ctrl+Space. The arrows
// choose, Enter and Tab take what is chosen, Tab takes the first where nothing is; Esc closes. Where nothing was chosen
// Enter begins a new line, as if there were no list. Beside the row stands how the operation is used.
#pragma once

#include <QCompleter>
#include <QObject>
#include <QStandardItemModel>

class QKeyEvent;
class QPlainTextEdit;

class CompletadorCodigo final : public QObject {
    Q_OBJECT

public:
    // Borrowed.
    explicit CompletadorCodigo(QPlainTextEdit& editor);

    // Before the editor acts on a key. True: the key is the list's.
    bool atender(QKeyEvent& tecla);

    // After it did.
    void trasTecla(const QKeyEvent& tecla);

    bool abierto() const;

Q_SIGNALS:
    // Something from the list was put into the text.
    void completado();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    // What stands before the text cursor.
    struct Contexto {
        enum class Tras { Nada, MW, WScript, OtroPunto, Ninguno }; // Ninguno: no place for a name
        Tras tras = Tras::Nada;
        QString principio; // of the name so far
    };
    Contexto contexto() const;
    void abrir(const Contexto& contexto, bool pedida);
    void mostrar(const QString& principio);
    void cerrar();
    void llenar(const Contexto& contexto);
    void insertar(const QModelIndex& fila);
    void ensenar(const QModelIndex& fila);
    QString textoAlrededor(qsizetype& lugar) const;

    QPlainTextEdit& editor_;
    QStandardItemModel modelo_;
    QCompleter lista_;
    Contexto::Tras llenaPara_ = Contexto::Tras::Ninguno;
    bool pedida_ = false; // with Ctrl+Space: the first row is chosen at once
};
