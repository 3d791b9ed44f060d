// Questions that one line answers: a box that waits for the answer, and a dialog that nothing waits for.
#pragma once

#include <QString>

class QInputDialog;
class QWidget;

// What was typed; empty after "Cancelar". The parent may be null. Other windows' events, timers and sockets go on.
QString InputBox(QWidget* padre, const QString& pregunta, const QString& titulo, const QString& inicial = {});

// Not open yet: the caller sets what is asked for, connects to its answer, and calls open(). It belongs to the window,
// and is gone once answered.
QInputDialog* crearPregunta(QWidget& ventana, const char* nombre, const QString& titulo, const QString& rotulo,
                            const char* paginaManual);
