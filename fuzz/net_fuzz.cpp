#include "fuzz/net_driver.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t tam) {
    EjecutarEntradaRed(datos, tam);
    return 0;
}
