#include "shell/SeRepiteProgramaEnRunTime.h"

#include "platform/system/Procesos.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

std::string enMayusculas(std::string_view texto) {
    std::string mayusculas(texto);
    for (char& c : mayusculas)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return mayusculas;
}

} // namespace

bool SeRepiteProgramaEnRunTime(std::string_view nombre, const std::filesystem::path& raiz) {
    const std::vector<std::string> procesos = nombresDeProcesos(raiz).value_or(std::vector<std::string>{});
    const std::string buscado = enMayusculas(nombre);
    return std::count_if(procesos.begin(), procesos.end(), [&](const std::string& proceso) {
               return enMayusculas(proceso).find(buscado) != std::string::npos;
           }) >= 2;
}
