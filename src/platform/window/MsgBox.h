// The message box: shows a text with one or more buttons and waits until it is closed.
//
//     MsgBox(this, QStringLiteral("Programa en ejecucion"), vbCritical + vbSystemModal, QStringLiteral("Esclavo"));
#pragma once

#include <QString>

class QWidget;

// Style values; buttons, an icon, the default button (256 the second, 512 the third) and the modality are added up.
constexpr int vbOKOnly = 0;
constexpr int vbOKCancel = 1;
constexpr int vbAbortRetryIgnore = 2;
constexpr int vbYesNoCancel = 3;
constexpr int vbYesNo = 4;
constexpr int vbRetryCancel = 5;
constexpr int vbCritical = 16;
constexpr int vbQuestion = 32;
constexpr int vbExclamation = 48;
constexpr int vbInformation = 64;
constexpr int vbDefaultButton2 = 256;
constexpr int vbSystemModal = 4096; // above all windows, and no other window of the program answers meanwhile

// The button that closed the box; Esc and the close box count as vbCancel where there is such a button.
constexpr int vbOK = 1;
constexpr int vbCancel = 2;
constexpr int vbAbort = 3;
constexpr int vbRetry = 4;
constexpr int vbIgnore = 5;
constexpr int vbYes = 6;
constexpr int vbNo = 7;

// The parent may be null. Other windows' events, timers and sockets go on running, and may take the parent away: the
// box ends with it, as vbCancel, and its caller has to expect that.
int MsgBox(QWidget* padre, const QString& texto, int estilo = vbOKOnly,
           const QString& titulo = QStringLiteral("Trelvano"));

// Shows the box and returns at once; it goes away when it is closed. For errors of work that must not wait.
void avisarMsgBox(QWidget* padre, const QString& texto, int estilo, const QString& titulo = QStringLiteral("Trelvano"));
