#pragma once
// A fresh program with a scratch folder: tests write real files there and
// read them back through the real readers.

#include "../core/test_support.h"

#include <string>

namespace prueba {

class ConFicheros : public Partida {
protected:
    std::string dir;
    void SetUp() override;
    void TearDown() override;
    // Writes texto to dir/nombre and returns the path.
    std::string Escribir(const std::string& nombre, const std::string& texto);
    std::string Leer(const std::string& ruta) const;
    // The message texts shown so far, joined by "|".
    std::string Mensajes() const;
};

// Folder of the real collections the test step unpacked; empty when run outside CTest.
std::string DatosReales();

} // namespace prueba
