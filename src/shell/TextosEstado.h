// Times as the status bar and the statistics write them.
#pragma once

#include <QString>

#include <chrono>

// "02:03:04"; from a day on "3 d 02:03:04".
QString textoDuracion(std::chrono::steady_clock::duration duracion);

// The wall clock's time at that moment, in `formato` (QDateTime's letters).
QString textoInstante(std::chrono::steady_clock::time_point instante, const QString& formato);
