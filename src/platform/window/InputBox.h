// The input box: asks for one line of text and waits for the answer.
#pragma once

#include <QString>

class QWidget;

// What was typed; empty after "Cancelar". The parent may be null. Other windows' events, timers and sockets go on.
QString InputBox(QWidget* padre, const QString& pregunta, const QString& titulo, const QString& inicial = {});
