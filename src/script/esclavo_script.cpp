// esclavo-script: runs VBScript files without the station.
//
//   esclavo-script [--comprobar] [--pasadas N] ARCHIVO...
//
// --comprobar only compiles; --pasadas runs every text N times in the same engine, as the station does; - reads
// standard input. Exit status: 0 good, 1 script error, 2 usage.
#include "platform/vbscript/ScriptControl.h"
#include "platform/vbscript/value/Ansi.h"
#include "registers/Esclavos.h"
#include "script/ObjetoMW.h"
#include "script/WScript.h"

#include <array>
#include <charconv>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct Options {
    bool checkOnly = false;
    long passes = 1;
    std::vector<std::string> files;
};

int usage() {
    std::cerr << "Uso: esclavo-script [--comprobar] [--pasadas N] ARCHIVO...\n"
                 "  --comprobar   sólo compila\n"
                 "  --pasadas N   ejecuta el texto N veces en el mismo motor\n"
                 "  -             lee la entrada estándar\n";
    return 2;
}

std::optional<Options> parse(std::span<char*> arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--comprobar") {
            options.checkOnly = true;
        } else if (argument == "--pasadas" && i + 1 < arguments.size()) {
            const std::string_view count = arguments[++i];
            const auto [end, error] = std::from_chars(count.data(), count.data() + count.size(), options.passes);
            if (error != std::errc() || end != count.data() + count.size() || options.passes < 1) {
                return std::nullopt;
            }
        } else if (argument.starts_with("--")) {
            return std::nullopt;
        } else {
            options.files.emplace_back(argument);
        }
    }
    return options.files.empty() ? std::nullopt : std::optional(options);
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

void report(const std::string& file, const vbs::ScriptFailure& failure) {
    std::cout.flush();
    std::cerr << file << ':' << failure.line << ':' << failure.column << ": error " << failure.number << ": "
              << vbs::toUtf8(failure.description) << '\n';
}

// Runs one file; false after an error.
bool runFile(vbs::ScriptControl& control, const WScript& wscript, const std::string& file, const Options& options) {
    const auto text = read(file);
    if (!text) {
        std::cerr << file << ": no se puede leer el archivo\n";
        return false;
    }
    const std::u16string script = vbs::decodeScript(*text);
    if (options.checkOnly) {
        if (control.check(script)) {
            return true;
        }
        report(file, control.error());
        return false;
    }
    for (long pass = 0; pass < options.passes && !wscript.hasQuit(); ++pass) {
        if (!control.addCode(script) && !wscript.hasQuit()) {
            report(file, control.error());
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const auto options = parse(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
    if (!options) {
        return usage();
    }
    vbs::Host host;
    const auto wscript = vbs::makeObject<WScript>(std::cout, options->files);
    Esclavos esclavos;
    const auto mw = vbs::makeObject<ObjetoMW>(esclavos, [](double) {}); // no timer runs here
    bool good = true;
    {
        vbs::ScriptControl control(host);
        control.addObject(u"WScript", vbs::Ref<vbs::Object>(wscript.get()));
        control.addObject(u"mw", vbs::Ref<vbs::Object>(mw.get()));
        for (const std::string& file : options->files) {
            good = runFile(control, *wscript, file, *options) && good;
            if (wscript->hasQuit()) {
                break;
            }
        }
    }
    std::cout.flush();
    return wscript->hasQuit() ? wscript->exitCode() : good ? 0 : 1;
}
