// Replays the saved PGN fuzz inputs through the same driver under the
// sanitizers of the normal build.
#include "fuzz/pgn_driver.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

int main(int argc, char** argv) {
    size_t n = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto& e : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream in(e.path(), std::ios::binary);
            std::vector<uint8_t> datos((std::istreambuf_iterator<char>(in)), {});
            EjecutarEntradaPgn(datos.data(), datos.size());
            ++n;
        }
    std::printf("%zu passed, 0 failed\n", n);
    return 0;
}
