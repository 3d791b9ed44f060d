// The raw accessors of a configuration file: the profile functions for texts in UTF-8.
//
// The file is Windows-1252 and is opened anew on every call, because other programs write it too. Neither function
// stops anybody: what cannot be read yields the default, what cannot be written is left.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

// The value of a key, or the default when file, section or key is missing; either is cut to 254 characters.
std::string sGetINI(const std::filesystem::path& archivo, std::string_view seccion, std::string_view clave,
                    std::string_view porDefecto);

// Sets a key; creates file and section when missing. The value goes out as it stands, line breaks included. Returns why
// it could not; a station goes on all the same.
std::error_code WriteINI(const std::filesystem::path& archivo, std::string_view seccion, std::string_view clave,
                         std::string_view valor);
