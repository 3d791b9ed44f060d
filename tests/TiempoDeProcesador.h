// Processor time of the calling thread: what a piece of work takes by itself, however busy the machine is.
#pragma once

#include <cstdint>
#include <ctime>

inline std::int64_t msDeProcesador() {
    timespec usado{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &usado);
    return std::int64_t{usado.tv_sec} * 1000 + usado.tv_nsec / 1'000'000;
}
