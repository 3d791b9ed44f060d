// Which page of the manual belongs to a window or a control. F1 opens that of the control with the focus, else that of
// what holds it; who opens it listens to the key (see TeclaManual).
#pragma once

#include <QString>

class QWidget;

// A file of docs/manual, with a heading behind '#' if one is meant: "editor.md", "monitores.md#escrituras".
void ponerPaginaManual(QWidget& control, const char* pagina);

// The nearest one from that control upwards, over the borders of windows too; empty: none.
QString paginaManualDe(const QWidget* control);

// As if F1 had been pressed there: for buttons.
void pedirManual(QWidget& control);
