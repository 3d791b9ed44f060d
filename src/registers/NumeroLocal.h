// Numbers as the operator reads and types them: with the decimal sign of his locale, without thousands separators.
#pragma once

#include <QString>

#include <optional>

// 12.5 is "12,5" where the decimal sign is a comma.
QString textoLocal(double x);

// Empty when the text is not a number (surrounding blanks are no fault) or too large for one.
std::optional<double> numeroLocal(const QString& texto);
