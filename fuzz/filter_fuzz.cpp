#include "fuzz/filter_driver.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t tam) {
    EjecutarEntradaFiltro(datos, tam);
    return 0;
}
