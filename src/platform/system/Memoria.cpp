#include "platform/system/Memoria.h"

#include <sys/mman.h>

bool hayMemoria(std::size_t bytes) noexcept {
    // Not through new: giving a large block back would change how later ones are placed.
    void* const zona = ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return zona != MAP_FAILED && ::munmap(zona, bytes) == 0;
}
