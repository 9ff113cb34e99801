// Replays saved fuzz inputs (files or folders) through the same driver, so
// the normal sanitizer build checks every case the fuzzer ever kept.
#include "fuzz/filter_driver.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

int main(int argc, char** argv) {
    namespace fs = std::filesystem;
    std::vector<fs::path> ficheros;
    for (int i = 1; i < argc; ++i) {
        if (fs::is_directory(argv[i])) {
            for (const auto& e : fs::directory_iterator(argv[i]))
                if (e.is_regular_file()) ficheros.push_back(e.path());
        } else {
            ficheros.push_back(argv[i]);
        }
    }
    for (const auto& f : ficheros) {
        std::ifstream in(f, std::ios::binary);
        std::vector<uint8_t> datos((std::istreambuf_iterator<char>(in)), {});
        EjecutarEntradaFiltro(datos.data(), datos.size());
    }
    std::printf("%zu passed, 0 failed\n", ficheros.size());
    return 0;
}
