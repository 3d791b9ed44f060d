#include "platform/vbscript/value/Memory.h"

#include "platform/vbscript/value/Errors.h"
#include "platform/vbscript/value/Work.h"

namespace vbs {

MemoryMeter& memoryMeter() noexcept {
    static constinit thread_local MemoryMeter meter;
    return meter;
}

void chargeMemory(std::size_t bytes) {
    MemoryMeter& meter = memoryMeter();
    if (bytes > meter.ceiling || meter.used > meter.ceiling - bytes) {
        raise(ErrorNumber::OutOfMemory);
    }
    meter.used += bytes;
    chargeWalk(bytes); // somebody fills it
}

void releaseMemory(std::size_t bytes) noexcept {
    memoryMeter().used -= bytes;
}

} // namespace vbs
