// Bookkeeping of what scripts allocate: strings, arrays and objects charge their bytes here, so that a script that
// grows for ever meets error 7 instead of eating the machine.
//
// The meter belongs to the thread: every engine of a thread shares the count of living bytes, and the engine that is
// running sets the ceiling. Nothing here allocates.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace vbs {

struct MemoryMeter {
    std::size_t used = 0;                                  // bytes alive
    std::size_t ceiling = std::size_t{2048} * 1024 * 1024; // a charge that would pass it raises error 7
};

// The meter of this thread.
MemoryMeter& memoryMeter() noexcept;

// Charges `bytes`; raises error 7 (out of memory) when the ceiling would be passed, and then charges nothing.
void chargeMemory(std::size_t bytes);
void releaseMemory(std::size_t bytes) noexcept;

// Sets the ceiling for as long as it lives; engines that run inside each other keep their own.
class MemoryCeiling {
public:
    explicit MemoryCeiling(std::size_t bytes) noexcept : before_(memoryMeter().ceiling) {
        memoryMeter().ceiling = bytes;
    }
    ~MemoryCeiling() { memoryMeter().ceiling = before_; }
    MemoryCeiling(const MemoryCeiling&) = delete;
    MemoryCeiling& operator=(const MemoryCeiling&) = delete;

private:
    std::size_t before_;
};

// Charges bytes for as long as it lives; a member of objects that scripts can make in any number.
class MemoryCharge {
public:
    explicit MemoryCharge(std::size_t bytes) : bytes_(bytes) { chargeMemory(bytes); }
    ~MemoryCharge() { releaseMemory(bytes_); }
    MemoryCharge(const MemoryCharge&) = delete;
    MemoryCharge& operator=(const MemoryCharge&) = delete;

private:
    std::size_t bytes_;
};

// For the vectors of builtins whose length a script decides: what they hold is charged while they hold it.
template <class T>
struct ChargedAllocator {
    using value_type = T;

    ChargedAllocator() noexcept = default;
    template <class U>
    explicit ChargedAllocator(const ChargedAllocator<U>& /*other*/) noexcept {}

    T* allocate(std::size_t count) {
        chargeMemory(count * sizeof(T));
        try {
            return std::allocator<T>().allocate(count);
        } catch (...) {
            releaseMemory(count * sizeof(T));
            throw;
        }
    }
    void deallocate(T* place, std::size_t count) noexcept {
        std::allocator<T>().deallocate(place, count);
        releaseMemory(count * sizeof(T));
    }
    bool operator==(const ChargedAllocator&) const noexcept = default;
};

template <class T>
using ChargedVector = std::vector<T, ChargedAllocator<T>>;

} // namespace vbs
