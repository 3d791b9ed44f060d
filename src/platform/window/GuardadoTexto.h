// Writes a text to a file beside the rest of the program's work: a few milliseconds a turn, from a copy of the text as
// it was, into a new file that takes the old one's place only when it is whole.
#pragma once

#include "platform/window/TextoBytes.h"

#include <QObject>
#include <QSaveFile>
#include <QTimer>

class QWidget;

class GuardadoTexto final : public QObject {
    Q_OBJECT

public:
    // Asks for a file in a dialog of its own and writes the text there, as UTF-8 with CR LF. A failure is told in a
    // message box. All of it ends with `ventana`; an unfinished file is dropped then.
    static void preguntarYGuardar(QWidget& ventana, const TextoBytes& texto);

    GuardadoTexto(QWidget& ventana, const TextoBytes& texto, const QString& ruta);

Q_SIGNALS:
    void terminado(bool bien);

private:
    void seguir();
    void acabar();

    QWidget& ventana_;
    TextoBytes texto_;
    QSaveFile archivo_;
    std::size_t escritos_ = 0;
    QTimer turno_{this};
};
