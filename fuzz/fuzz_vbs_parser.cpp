// The compiler on any text: it ends, an error tells a number and a place within the text, and compiling once more gives
// the same answer and leaves no memory behind.

#include "platform/vbscript/ScriptControl.h"
#include "platform/vbscript/value/Memory.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

void require(bool met, const char* what) {
    if (met) {
        return;
    }
    std::fprintf(stderr, "violated: %s\n", what);
    std::abort();
}

void requirePlausible(const vbs::ScriptFailure& failure, std::string_view text) {
    const auto lines = static_cast<std::uint32_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }) + 1);
    require(failure.number > 0, "a failure has a number");
    require(!failure.description.empty(), "a failure has a text");
    require(failure.line <= lines, "a failure stands within the text");
    require(failure.number < 1001 || failure.line >= 1, "a compile error has a line");
    require(failure.line == 0 || failure.column >= 1, "a place has a column");
}

// What the first engine of a process makes for all that follow stays.
bool makeTables() {
    vbs::Host host;
    return vbs::ScriptControl(host).check(std::string_view());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    static const bool tablesMade = makeTables();
    require(tablesMade, "an empty text compiles");
    const std::size_t before = vbs::memoryMeter().used;
    {
        vbs::Host host;
        vbs::ScriptControl control(host);
        const bool good = control.check(text);
        const vbs::ScriptFailure first = control.error();
        require(good == (first.number == 0), "the answer and the error state agree");
        if (!good) {
            requirePlausible(first, text);
        }
        require(control.check(text) == good, "compiling again gives the same answer");
        require(control.error().number == first.number && control.error().line == first.line &&
                    control.error().column == first.column,
                "compiling again gives the same error");
    }
    require(vbs::memoryMeter().used == before, "nothing stays behind");
    return 0;
}
