// Asks where a file is to be saved.
#pragma once

#include <QString>

class QFileDialog;
class QWidget;

// Not open yet: the caller connects to fileSelected() and calls open(), and nothing waits for the answer. It proposes
// that name, and gives its ending to a name without one. It belongs to the window, and is gone once answered.
QFileDialog* crearDialogoGuardar(QWidget& ventana, const QString& titulo, const QString& filtro, const QString& nombre);
