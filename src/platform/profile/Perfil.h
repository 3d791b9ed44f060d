// The profile functions: texts of the form
//
//     [Section]
//     Key=Value            ; only a line that begins with ';' is a comment
//
// in Windows-1252. Sections and keys are found without regard to case, the first match wins, and a section that stands
// more than once counts as one. Blanks around section, key and value are dropped on reading, and so is one pair of
// quotes
// (' or ") around the value. A line that is no section heading, comment or "key=value" is junk: skipped and kept.
// A UTF-8 byte-order mark before the first line is skipped too.
//
// leerValor and conValor are pure functions of the text; the two below them work on a file, opened anew each time.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

// The value of a key, nothing when there is no such key in such a section.
std::optional<std::string> leerValor(std::string_view texto, std::string_view seccion, std::string_view clave);

// The text with the key set to the value. An existing line keeps its place and its spelling of the key; a new line
// goes to the end of its section, before the blank lines that close it; a missing section goes to the end of the text.
// All other bytes stay as they are. The value goes out unchanged, line breaks included; a value equal to the stored
// one gives back the very same text.
std::string conValor(std::string_view texto, std::string_view seccion, std::string_view clave, std::string_view valor);

// The value of a key cut to `tamano` - 1 characters (`tamano` counts the closing zero that such a buffer of characters
// needs); a file, section or key that is missing or cannot be read gives `porDefecto` without its trailing blanks, cut
// alike.
std::string GetPrivateProfileStringA(std::string_view seccion, std::string_view clave, std::string_view porDefecto,
                                     std::size_t tamano, const std::filesystem::path& archivo);

// Sets a key in the file; creates file and section when missing. Nothing is written to the disk when the text would
// not change. A file that exists but cannot be read is an error, never overwritten. What another program saves to the
// file meanwhile stays.
std::error_code WritePrivateProfileStringA(std::string_view seccion, std::string_view clave, std::string_view valor,
                                           const std::filesystem::path& archivo);
