#include "fuzz/pgn_driver.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t tam) {
    EjecutarEntradaPgn(datos, tam);
    return 0;
}
