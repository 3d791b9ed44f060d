// The window system's own remarks on stderr: all of them pass but two that help nobody who reads the station's lines.
#pragma once

// To be called before the application is built.
void filtrarMensajesQt();
