// Whole files as bytes: read, replace, append. Every operation opens and closes the file within the call.
//
// Only regular files are read or written: a directory, a pipe or a device in the file's place is an error at once,
// never a wait. Errors come back as std::error_code (std::errc values); nothing throws but std::bad_alloc.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

// Larger files are refused with file_too_large: no text of this program comes near.
constexpr std::size_t maximoBytesArchivo = std::size_t{64} * 1024 * 1024;

// Reads the whole file into `bytes`, which is empty after an error.
std::error_code leerBytes(const std::filesystem::path& archivo, std::string& bytes);

// Creates or replaces the file in one step: the bytes go to a temporary file in the same folder, to the disk, and then
// take the name, so that neither a reader nor a power cut meets half a file. Permissions (and the owner, where that is
// allowed) of a replaced file stay; a symbolic link keeps pointing to the file replaced. A file without any
// write permission is refused with permission_denied. A file that may be written in a folder that may not is written in
// place. After an error the old file stands (in place: as far as it was written) and no temporary one is left.
std::error_code reemplazarBytes(const std::filesystem::path& archivo, std::string_view bytes);

// The same, unless the file no longer holds `leidos` (nothing, when it was missing) once the new bytes are on the disk:
// then it stays as it is, with resource_unavailable_try_again. So what another program saves meanwhile is not lost, but
// for the moment between the last look and the new name.
std::error_code reemplazarBytesLeidos(const std::filesystem::path& archivo, std::string_view leidos,
                                      std::string_view bytes);

// Appends to the file, which is created when missing. A full disk may leave a part of the bytes written.
std::error_code anexarBytes(const std::filesystem::path& archivo, std::string_view bytes);
