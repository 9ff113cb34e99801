#include "shell/cli/cli_session.h"

#include <iostream>
#include <string>

int main() {
    std::ios::sync_with_stdio(false);
    SesionCli sesion(std::cout, std::cerr);
    std::string linea;
    while (std::getline(std::cin, linea)) sesion.Ejecutar(linea);
    return 0;
}
