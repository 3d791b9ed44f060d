// Times as the status bar and the statistics write them.
#pragma once

#include "platform/clock/Reloj.h"

#include <QString>

// "02:03:04"; from a day on "3 d 02:03:04".
QString textoDuracion(Reloj::Instante::duration duracion);

// The wall clock's time at that moment, in `formato` (QDateTime's letters).
QString textoInstante(const Reloj& reloj, Reloj::Instante instante, const QString& formato);
