// A script's error as a line for people.
#pragma once

#include "platform/vbscript/ScriptControl.h"

#include <QString>

// "Error, línea 3, columna 5: División por cero (error 11)" with `que` for "Error"; a line 0 is not told.
QString textoDeFallo(const QString& que, const vbs::ScriptFailure& fallo, int linea);
