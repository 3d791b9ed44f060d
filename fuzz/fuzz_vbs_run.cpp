// Scripts at will, against register tables, on a budget of time and memory.
//
// Whatever the text: it ends near its time-out, the engine runs the next text all the same, a second pass is possible,
// and when the engine goes nothing that scripts made stays behind.

#include "platform/vbscript/ScriptControl.h"
#include "platform/vbscript/value/Memory.h"
#include "registers/Esclavos.h"
#include "script/ObjetoMW.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string_view>

namespace {

constexpr std::chrono::milliseconds budget{20};
constexpr double patience = 5.0; // seconds of the processor: sanitizers, and the longest step without a look
constexpr std::size_t ceiling = std::size_t{24} << 20;

void require(bool met, const char* what) {
    if (met) {
        return;
    }
    std::fprintf(stderr, "violated: %s\n", what);
    std::abort();
}

void runOnce(vbs::ScriptControl& control, std::string_view text) {
    const std::clock_t start = std::clock();
    const bool good = control.addCode(text);
    require(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC < patience, "a script ends near its time-out");
    require(good == (control.error().number == 0), "the answer and the error state agree");
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
        Esclavos esclavos;
        esclavos.crearEsclavo(1, 0, 99);
        const auto mw = vbs::makeObject<ObjetoMW>(esclavos, [](double) {});
        vbs::ScriptControl control(host);
        control.addObject(u"mw", vbs::Ref<vbs::Object>(mw.get()));
        control.setTimeout(budget);
        control.setMemoryCeiling(before + ceiling);
        runOnce(control, text);
        runOnce(control, text);
        control.reset();
        require(control.addCode("x = 1 + 1"), "the engine stays usable");
    }
    require(vbs::memoryMeter().used == before, "nothing stays behind");
    return 0;
}
