// Hands every file of the folders and files named on the command line to a fuzz target, once each: what fuzzing found
// stays tested without libFuzzer. A failing target ends the program; the last name printed is the culprit.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cantidad);

namespace {

void repetir(const std::filesystem::path& archivo) {
    std::printf("%s\n", archivo.c_str());
    std::fflush(stdout);
    std::ifstream entrada(archivo, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(entrada), {});
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

} // namespace

int main(int argc, char** argv) {
    int repetidos = 0;
    for (int i = 1; i < argc; ++i) {
        if (std::filesystem::is_regular_file(argv[i])) {
            repetir(argv[i]);
            ++repetidos;
            continue;
        }
        for (const auto& entrada : std::filesystem::recursive_directory_iterator(argv[i])) {
            if (!entrada.is_regular_file())
                continue;
            repetir(entrada.path());
            ++repetidos;
        }
    }
    std::printf("%d inputs\n", repetidos);
    return repetidos > 0 ? 0 : 1; // an empty corpus is a mistake in the call
}
