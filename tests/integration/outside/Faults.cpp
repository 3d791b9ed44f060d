// A world that fails, for the program that this library is preloaded into (LD_PRELOAD). What fails now stands in the
// file that FAULTS names, as "CALLS NUMBER TEXT": from then on those calls (of open,write,fsync,rename;
// comma-separated, read too) end with that errno wherever the path holds TEXT. A failing write first writes half of
// what is asked, as a disk does that fills up. "clock SECONDS" moves the wall clock instead. An empty file: nothing
// fails.
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr std::size_t pageSize = 4096;

template <typename Function>
Function original(const char* name) {
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

// The orders, in the file's own page: a test changes them while the program runs.
const char* orders() {
    static const char* const page = [] {
        const char* const path = std::getenv("FAULTS");
        static const auto realOpen = original<int (*)(const char*, int, ...)>("open");
        const int file = path == nullptr ? -1 : realOpen(path, O_RDONLY | O_CLOEXEC);
        void* const memory = file < 0 ? MAP_FAILED : ::mmap(nullptr, pageSize, PROT_READ, MAP_SHARED, file, 0);
        if (file >= 0)
            ::close(file);
        return memory == MAP_FAILED ? "" : static_cast<const char*>(memory);
    }();
    return page;
}

bool fails(const char* call, const char* path) {
    char calls[64];
    char text[256];
    int number = 0;
    if (path == nullptr || *orders() == '\0' || std::sscanf(orders(), "%63s %d %255s", calls, &number, text) != 3)
        return false;
    const char* const found = std::strstr(calls, call);
    if (found == nullptr || std::strstr(path, text) == nullptr)
        return false;
    errno = number;
    return true;
}

bool failsFor(const char* call, int descriptor) {
    if (*orders() == '\0')
        return false;
    char link[32];
    char path[512];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    const ssize_t length = ::readlink(link, path, sizeof path - 1);
    path[length < 0 ? 0 : length] = '\0';
    return fails(call, path);
}

time_t clockMovedBy() {
    long long seconds = 0;
    return std::sscanf(orders(), "clock %lld", &seconds) == 1 ? static_cast<time_t>(seconds) : 0;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    static const auto real = original<int (*)(const char*, int, ...)>("open");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return fails("open", path) ? -1 : real(path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    static const auto real = original<int (*)(const char*, int, ...)>("open64");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return fails("open", path) ? -1 : real(path, flags, mode);
}

int __open_2(const char* path, int flags) { // what a build with checked library calls makes of open
    return open(path, flags);
}

ssize_t write(int descriptor, const void* bytes, size_t count) {
    static const auto real = original<ssize_t (*)(int, const void*, size_t)>("write");
    if (!failsFor("write", descriptor))
        return real(descriptor, bytes, count);
    return count > 1 ? real(descriptor, bytes, count / 2) : -1;
}

ssize_t read(int descriptor, void* bytes, size_t count) {
    static const auto real = original<ssize_t (*)(int, void*, size_t)>("read");
    return failsFor("read", descriptor) ? -1 : real(descriptor, bytes, count);
}

int fsync(int descriptor) {
    static const auto real = original<int (*)(int)>("fsync");
    return failsFor("fsync", descriptor) ? -1 : real(descriptor);
}

int rename(const char* from, const char* to) {
    static const auto real = original<int (*)(const char*, const char*)>("rename");
    return fails("rename", to) ? -1 : real(from, to);
}

int clock_gettime(clockid_t clock, timespec* now) {
    static const auto real = original<int (*)(clockid_t, timespec*)>("clock_gettime");
    const int result = real(clock, now);
    if (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE)
        now->tv_sec += clockMovedBy();
    return result;
}

time_t time(time_t* result) {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    if (result != nullptr)
        *result = now.tv_sec;
    return now.tv_sec;
}

int gettimeofday(timeval* now, void* zone) {
    static const auto real = original<int (*)(timeval*, void*)>("gettimeofday");
    const int result = real(now, zone);
    now->tv_sec += clockMovedBy();
    return result;
}

} // extern "C"
