// Memory in stretches of 2 MiB, for what may grow to hundreds of megabytes: each is aligned to its size, so that the
// system can give it as one large page, which costs a third of 512 small ones.
//
//     std::vector<char, AsignadorTramos<char>> bytes;
//     bytes.reserve(TramoMemoria::bytes);            // one stretch; any other size comes from the heap
//     TramoMemoria::enUnaPagina(bytes.data());
#pragma once

#include <cstddef>
#include <new>

namespace TramoMemoria {

constexpr std::size_t bytes = std::size_t{2} << 20U;

void* pedir(); // throws std::bad_alloc
void devolver(void* tramo);

// Asks for one page for the whole stretch; all of it counts as used from its first byte on.
void enUnaPagina(void* tramo);

} // namespace TramoMemoria

template <typename T>
struct AsignadorTramos {
    using value_type = T;

    AsignadorTramos() = default;
    template <typename Otro>
    // Containers convert their allocator by themselves. NOLINTNEXTLINE(google-explicit-constructor)
    AsignadorTramos(const AsignadorTramos<Otro>& /*otro*/) {}

    // Growing by resize() sets nothing: what was written into the memory before stays.
    template <typename U>
    void construct(U* donde) {
        ::new (static_cast<void*>(donde)) U;
    }
    T* allocate(std::size_t cuantos) {
        const std::size_t bytes = cuantos * sizeof(T);
        return static_cast<T*>(bytes == TramoMemoria::bytes ? TramoMemoria::pedir() : ::operator new(bytes));
    }
    void deallocate(T* donde, std::size_t cuantos) {
        if (cuantos * sizeof(T) == TramoMemoria::bytes)
            TramoMemoria::devolver(donde);
        else
            ::operator delete(donde);
    }
    bool operator==(const AsignadorTramos& /*otro*/) const { return true; }
};
