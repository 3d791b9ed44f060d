// The message box: shows a text with one button, "Aceptar", and waits until it is closed.
//
//     MsgBox(this, QStringLiteral("Programa en ejecucion"), vbCritical + vbSystemModal, QStringLiteral("Esclavo"));
#pragma once

#include <QString>

class QWidget;

// Style values; an icon and the modality are added up.
constexpr int vbOKOnly = 0;
constexpr int vbCritical = 16;
constexpr int vbExclamation = 48;
constexpr int vbInformation = 64;
constexpr int vbSystemModal = 4096; // above all windows, and no other window of the program answers meanwhile

// The parent may be null. Other windows' events, timers and sockets go on running.
void MsgBox(QWidget* padre, const QString& texto, int estilo = vbOKOnly,
            const QString& titulo = QStringLiteral("Trelvano"));
