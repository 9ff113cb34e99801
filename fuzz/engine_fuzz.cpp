#include "fuzz/engine_driver.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t tam) {
    EjecutarEntradaMotor(datos, tam);
    return 0;
}
