#include "fuzz/net_driver.h"
#include "fuzz/replay.h"

int main(int argc, char** argv) {
    return ReproducirCorpus(argc, argv, EjecutarEntradaRed);
}
