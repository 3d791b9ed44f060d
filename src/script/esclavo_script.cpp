// esclavo-script: runs VBScript files without the station, on registers of its own. The texts of --help below and the
// manual page packaging/esclavo-script.1 tell what it takes.
#include "platform/locale/SystemLocale.h"
#include "platform/text/Encoding.h"
#include "platform/text/Numbers.h"
#include "platform/text/Utf.h"
#include "platform/vbscript/ScriptControl.h"
#include "registers/Esclavos.h"
#include "script/HostTerminal.h"
#include "script/ObjetoMW.h"
#include "script/WScript.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::string_view help =
    "Uso: esclavo-script [OPCIÓN]... ARCHIVO... [-- ARGUMENTO...]\n"
    "Ejecuta archivos VBScript sin la estación, uno tras otro en el mismo motor. «-» es la entrada estándar.\n"
    "\n"
    "  --comprobar   sólo compila\n"
    "  --pasadas N   ejecuta cada texto N veces, como la estación\n"
    "  --tiempo      dice al final lo que tardaron la compilación y las pasadas\n"
    "  --help, -h    muestra esta ayuda\n"
    "  --version     muestra la versión\n"
    "\n"
    "Los argumentos tras «--» llegan al script en WScript.Arguments.\n"
    "Termina con 0, con 1 tras un error del script, con 2 si la orden está mal escrita, o con lo que diga "
    "WScript.Quit.\n";

struct Options {
    bool help = false;
    bool version = false;
    bool checkOnly = false;
    bool times = false;
    long passes = 1;
    std::vector<std::string> files;
    std::vector<std::string> arguments; // behind "--"
    std::string complaint;              // what is wrong with the command
};

// Takes the option at `i`; false for one that does not exist or lacks what belongs to it.
bool takeOption(Options& options, std::span<char*> arguments, std::size_t& i) {
    const std::string_view option = arguments[i];
    if (option == "--help" || option == "-h") {
        options.help = true;
    } else if (option == "--version") {
        options.version = true;
    } else if (option == "--comprobar") {
        options.checkOnly = true;
    } else if (option == "--tiempo") {
        options.times = true;
    } else if (option == "--pasadas" && i + 1 < arguments.size()) {
        const std::string_view count = arguments[++i];
        const auto [end, error] = std::from_chars(count.data(), count.data() + count.size(), options.passes);
        return error == std::errc() && end == count.data() + count.size() && options.passes >= 1;
    } else {
        return false;
    }
    return true;
}

Options parse(std::span<char*> arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--") {
            options.arguments.assign(arguments.begin() + static_cast<std::ptrdiff_t>(i) + 1, arguments.end());
            break;
        }
        if (argument == "-" || !argument.starts_with('-')) {
            options.files.emplace_back(argument);
        } else if (!takeOption(options, arguments, i)) {
            options.complaint = "no se entiende «" + std::string(arguments[i]) + "»";
            return options;
        }
    }
    if (!options.help && !options.version && options.files.empty()) {
        options.complaint = "falta el archivo";
    }
    return options;
}

std::optional<std::string> read(const std::string& file) {
    if (file == "-") {
        return std::string(std::istreambuf_iterator<char>(std::cin), {});
    }
    std::ifstream in(file, std::ios::binary);
    std::string text;
    std::array<char, 65536> block;
    while (in.read(block.data(), block.size()) || in.gcount() > 0) {
        text.append(block.data(), static_cast<std::size_t>(in.gcount()));
    }
    return in.eof() ? std::optional(text) : std::nullopt; // a folder opens, but cannot be read
}

// The line of the script, or what stands around the place in a very long one, and a caret under the column (from 1).
std::string withCaret(std::u16string_view line, std::size_t column) {
    constexpr std::size_t around = 100;
    const std::size_t place = std::min(column - 1, line.size());
    const std::size_t first = place > around ? place - around : 0;
    const std::u16string_view shown = line.substr(first, 2 * around);
    std::u16string blanks;
    for (const char16_t unit : shown.substr(0, place - first)) {
        const bool secondHalf = unit >= 0xDC00 && unit < 0xE000; // of a character outside the first 65,536
        blanks.append(secondHalf ? 0 : 1, unit == u'\t' ? u'\t' : u' ');
    }
    return text::toUtf8(shown) + '\n' + text::toUtf8(blanks) + "^\n";
}

void report(const std::string& file, const vbs::ScriptFailure& failure) {
    std::cout.flush();
    std::cerr << file << ':' << failure.line << ':' << failure.column << ": error " << failure.number << ": "
              << text::toUtf8(failure.description) << '\n';
    if (failure.line > 0 && failure.column > 0 && !failure.lineText.empty()) {
        std::cerr << withCaret(failure.lineText, failure.column);
    }
}

class Runner {
public:
    Runner(vbs::ScriptControl& control, WScript& wscript, const Options& options)
        : control_(control), wscript_(wscript), options_(options) {}

    // Runs one file; false after an error.
    bool run(const std::string& file) {
        const auto bytes = read(file);
        if (!bytes) {
            std::cerr << file << ": no se puede leer el archivo\n";
            return false;
        }
        const std::u16string script = text::toUtf16(text::decoded(*bytes));
        wscript_.setScript(file);
        if ((options_.checkOnly || options_.times) && !compile(file, script)) {
            return false;
        }
        return options_.checkOnly || runPasses(file, script);
    }

private:
    using Clock = std::chrono::steady_clock;

    // A short pass takes less than a thousandth of a millisecond.
    static std::string shown(Clock::duration duration) {
        const bool small = duration < std::chrono::microseconds(10);
        const double thousandths = small ? std::chrono::duration<double, std::nano>(duration).count()
                                         : std::chrono::duration<double, std::micro>(duration).count();
        return text::writeNumber(std::round(thousandths) / 1000, decimalSign()) + (small ? " µs" : " ms");
    }

    bool compile(const std::string& file, std::u16string_view script) {
        const auto start = Clock::now();
        const bool good = control_.check(script);
        const auto took = Clock::now() - start;
        if (!good) {
            report(file, control_.error());
        }
        if (options_.times) {
            std::cerr << file << ": compilación: " << shown(took) << '\n';
        }
        return good;
    }

    bool runPasses(const std::string& file, std::u16string_view script) {
        const auto start = Clock::now();
        Clock::duration first{};
        long done = 0;
        bool good = true;
        while (good && done < options_.passes && !wscript_.hasQuit()) {
            good = control_.addCode(script) || wscript_.hasQuit();
            first = done++ == 0 ? Clock::now() - start : first;
        }
        const auto all = Clock::now() - start;
        if (!good) {
            report(file, control_.error());
        }
        if (options_.times) {
            std::cout.flush();
            std::cerr << file << ": pasadas: " << done << " en " << shown(all) << ", la primera (compila) en "
                      << shown(first);
            if (done > 1) {
                std::cerr << ", las demás en " << shown((all - first) / (done - 1)) << " de media";
            }
            std::cerr << '\n';
        }
        return good;
    }

    vbs::ScriptControl& control_;
    WScript& wscript_;
    const Options& options_;
};

int runAll(const Options& options) {
    HostTerminal host(std::cin, std::cerr, std::cout);
    const auto wscript = vbs::makeObject<WScript>(std::cin, std::cout, std::cerr, options.arguments);
    Esclavos esclavos;
    const auto mw = vbs::makeObject<ObjetoMW>(esclavos, [](double) {}); // no timer runs here
    bool good = true;
    {
        vbs::ScriptControl control(host);
        control.addObject(u"WScript", vbs::Ref<vbs::Object>(wscript.get()));
        control.addObject(u"mw", vbs::Ref<vbs::Object>(mw.get()));
        Runner runner(control, *wscript, options);
        for (const std::string& file : options.files) {
            good = runner.run(file) && good;
            if (wscript->hasQuit()) {
                break;
            }
        }
    }
    std::cout.flush();
    return wscript->hasQuit() ? wscript->exitCode() : good ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    useSystemLocale();
    const Options options = parse(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
    if (!options.complaint.empty()) {
        std::cerr << help << "\nesclavo-script: " << options.complaint << '\n';
        return 2;
    }
    if (options.help) {
        std::cout << help;
        return 0;
    }
    if (options.version) {
        std::cout << "esclavo-script " ESCLAVO_VERSION "\n";
        return 0;
    }
    return runAll(options);
}
