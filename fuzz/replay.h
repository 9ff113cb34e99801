#pragma once
// Replays saved fuzz inputs (files, or every file of a folder) through a
// driver, so the normal sanitizer build checks every case the fuzzer kept.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

inline int ReproducirCorpus(int argc, char** argv, void (*driver)(const uint8_t*, size_t)) {
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
        driver(datos.data(), datos.size());
    }
    std::printf("%zu passed, 0 failed\n", ficheros.size());
    return 0;
}
