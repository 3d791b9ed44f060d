#include "script/FalloScript.h"

#include "platform/window/Controles.h"
QString textoDeFallo(const QString& que, const vbs::ScriptFailure& fallo, int linea) {
    const QString lugar = linea > 0 ? QStringLiteral(", línea %1, columna %2").arg(linea).arg(fallo.column) : QString();
    const QString descripcion = deUtf16(fallo.description);
    return que + lugar + QStringLiteral(": ") + descripcion + QStringLiteral(" (error %1)").arg(fallo.number);
}
