// The help topic that every window and control carries.
#pragma once

class QWidget;

// Sets the help-context number of a window and of each of its controls, the property
// "HelpContextID". `helpId` 0 means topic 420; a fraction is rounded, halves to even.
void ponerAyudaContextual(QWidget& formulario, double helpId = 0);
