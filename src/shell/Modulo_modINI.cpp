#include "shell/Modulo_modINI.h"

#include "platform/profile/Ansi.h"
#include "platform/profile/Perfil.h"

std::string sGetINI(const std::filesystem::path& archivo, std::string_view seccion, std::string_view clave,
                    std::string_view porDefecto) {
    constexpr std::size_t tamanoPedido = 255; // one less than the classic buffer of 256
    return utf8DeAnsi(GetPrivateProfileStringA(ansiDeUtf8(seccion), ansiDeUtf8(clave), ansiDeUtf8(porDefecto),
                                               tamanoPedido, archivo));
}

std::error_code WriteINI(const std::filesystem::path& archivo, std::string_view seccion, std::string_view clave,
                         std::string_view valor) {
    return WritePrivateProfileStringA(ansiDeUtf8(seccion), ansiDeUtf8(clave), ansiDeUtf8(valor), archivo);
}
