#include "shell/Modulo_modINI.h"

#include "platform/profile/Perfil.h"
#include "platform/text/CodePage.h"

std::string sGetINI(const std::filesystem::path& archivo, std::string_view seccion, std::string_view clave,
                    std::string_view porDefecto) {
    constexpr std::size_t tamanoPedido = 255; // so that values are cut to 254 characters
    return text::utf8FromAnsi(GetPrivateProfileStringA(text::ansiFromUtf8(seccion), text::ansiFromUtf8(clave),
                                                       text::ansiFromUtf8(porDefecto), tamanoPedido, archivo));
}

std::error_code WriteINI(const std::filesystem::path& archivo, std::string_view seccion, std::string_view clave,
                         std::string_view valor) {
    return WritePrivateProfileStringA(text::ansiFromUtf8(seccion), text::ansiFromUtf8(clave), text::ansiFromUtf8(valor),
                                      archivo);
}
