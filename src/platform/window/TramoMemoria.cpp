#include "platform/window/TramoMemoria.h"

#include <cstdint>
#include <sys/mman.h>

// Twice the size is asked for, and what lies before and behind the aligned half given back.
void* TramoMemoria::pedir() {
    void* const todo = mmap(nullptr, 2 * bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (todo == MAP_FAILED)
        throw std::bad_alloc();
    auto* const desde = static_cast<char*>(todo);
    const std::size_t antes = (bytes - reinterpret_cast<std::uintptr_t>(desde) % bytes) % bytes;
    if (antes > 0)
        munmap(desde, antes);
    munmap(desde + antes + bytes, bytes - antes);
    return desde + antes;
}

void TramoMemoria::devolver(void* tramo) {
    munmap(tramo, bytes);
}

void TramoMemoria::enUnaPagina(void* tramo) {
    madvise(tramo, bytes, MADV_HUGEPAGE); // where there are none it stays as it is
}
