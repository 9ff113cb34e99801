#include "language/idioma.h"

#include "platform/ini_file.h"
#include "platform/programa.h"
#include "platform/ruta.h"
#include "platform/texto.h"

#include <algorithm>
#include <filesystem>
#include <map>

namespace qa {

std::string FicheroIdioma;
std::array<std::string, 110> Mensajes;
std::array<std::string, 4> TitulosEpd;
std::array<std::string, 3> TitulosMotor;
std::string TextoSinMotor;

namespace {

std::map<std::string, std::string>& Textos() {
    static std::map<std::string, std::string> textos;
    return textos;
}

std::string Llave(const std::string& seccion, const std::string& clave) {
    return Minusculas(seccion) + '\n' + Minusculas(clave);
}

std::string& AutorLeido() {
    static std::string autor;
    return autor;
}

void Anadir(std::vector<ClaveIdioma>& v, const char* seccion,
            std::initializer_list<const char*> c) {
    for (const char* k : c) v.push_back({seccion, k});
}

void Numeros(std::vector<ClaveIdioma>& v, const char* seccion, int desde, int hasta) {
    for (int i = desde; i <= hasta; ++i) v.push_back({seccion, std::to_string(i)});
}

void Prefijo(std::vector<ClaveIdioma>& v, const char* seccion, const char* prefijo, int hasta) {
    for (int i = 1; i <= hasta; ++i) v.push_back({seccion, prefijo + std::to_string(i)});
}

std::vector<ClaveIdioma> Tabla() {
    std::vector<ClaveIdioma> v;
    Prefijo(v, "Menu", "Menu", 30);
    Anadir(v, "Tablero", {"Titulo"});
    Anadir(v, "Reloj", {"Titulo", "Jugador1", "Jugador2"});
    Prefijo(v, "Jugadas", "Menu", 7);
    Anadir(v, "Jugadas", {"Titulo"});
    Anadir(v, "Coronacion", {"Titulo"});
    Anadir(v, "Botones", {"Aceptar", "Cancelar", "Guardar"});
    Prefijo(v, "Chat", "Menu", 4);
    Anadir(v, "Chat", {"Titulo"});
    Anadir(v, "Opciones",
           {"Titulo", "Frame1", "Frame2", "Frame3", "Check1", "Check2", "Check3", "Texto1",
            "Opcion1"});
    Anadir(v, "Conexion", {"Titulo", "Frame1", "Frame2", "Opcion1", "Opcion2", "Texto1", "Texto2"});
    Anadir(v, "Ip", {"Titulo", "Frame1"});
    Anadir(v, "Color", {"Titulo", "Frame1", "Texto1", "Texto2", "Texto3", "Opcion1", "Opcion2"});
    Anadir(v, "Nuevo", {"Titulo", "Frame1", "Frame2", "Text1"});
    Prefijo(v, "Nuevo", "Opcion", 4);
    Anadir(v, "Pgn", {"Titulo", "Titulo2"});
    Numeros(v, "Pgn", 1, 9);
    Anadir(v, "Pgn", {"13"});
    Numeros(v, "Pgn", 10, 12);
    Numeros(v, "Tips", 1, 17);
    Anadir(v, "Tips", {"29", "30"});
    Numeros(v, "Tips", 18, 23);
    Numeros(v, "Tips", 24, 29);
    Anadir(v, "Tips", {"9", "10"});
    Anadir(v, "CPU", {"1", "2", "3", "21"});
    Numeros(v, "CPU", 4, 20);
    Anadir(v, "SetTablero", {"Titulo", "1", "2", "Frame1", "Option1", "Option2", "Frame2"});
    Prefijo(v, "SetTablero", "Check", 5);
    Anadir(v, "Ranking", {"Titulo", "Frame1", "Frame2"});
    Numeros(v, "Ranking", 1, 5);
    return v;
}

} // namespace

void FijarIdioma(const std::string& nombre) {
    FicheroIdioma = DirectorioPrograma + nombre;
}

std::string TextoMensaje(const std::string& texto) {
    auto n = AEntero(texto);
    if (n && *n >= 0 && *n < static_cast<long>(Mensajes.size()))
        return Mensajes[static_cast<std::size_t>(*n)];
    return texto;
}

ListaIdiomas LlenarIdiomas(const std::string& ajuste) {
    namespace fs = std::filesystem;
    std::vector<std::string> ficheros;
    std::error_code ec;
    fs::directory_iterator it(RutaReal(DirectorioPrograma), ec);
    for (; !ec && it != fs::directory_iterator(); it.increment(ec)) {
        std::string n = it->path().filename().string();
        // A FIFO or a file we may not read is listed, and fails its version check.
        std::error_code ecTipo;
        if (TerminaEn(Minusculas(n), ".lng") && !it->is_directory(ecTipo)) ficheros.push_back(n);
    }
    // By name, case aside; then the files the setting names move behind the others. The
    // reading below leaves the last file current and the choice never looks at the first
    // entry, so this is what lets every language be chosen. Names with an upper-case
    // extension keep their places: they are listed only when they come first.
    std::sort(ficheros.begin(), ficheros.end(), [](const std::string& a, const std::string& b) {
        auto ma = Minusculas(a), mb = Minusculas(b);
        return ma != mb ? ma < mb : a < b;
    });
    std::vector<std::size_t> sitios;
    std::vector<std::string> nuestros;
    for (std::size_t i = 0; i < ficheros.size(); ++i)
        if (TerminaEn(ficheros[i], "lng")) {
            sitios.push_back(i);
            nuestros.push_back(ficheros[i]);
        }
    std::stable_partition(nuestros.begin(), nuestros.end(), [&](const std::string& n) {
        return !EmpiezaSinCaso(n.substr(0, n.size() - 4), ajuste);
    });
    for (std::size_t k = 0; k < sitios.size(); ++k) ficheros[sitios[k]] = nuestros[k];
    ListaIdiomas lista;
    for (std::size_t i = 0; i < ficheros.size(); ++i) {
        const std::string& n = ficheros[i];
        // Only the first name is taken whatever the case of its extension.
        if (i > 0 && !TerminaEn(n, "lng")) continue;
        FijarIdioma(n);
        const bool nuestra = LeerIni(FicheroIdioma, "Version", "Version") == kVersionIdioma;
        if (i == 0 && !nuestra) lista.primeroIncorrecto = true;
        if (nuestra) lista.nombres.push_back(n.substr(0, n.size() - 4));
    }
    return lista;
}

std::string ElegirIdioma(const std::vector<std::string>& nombres, const std::string& ajuste) {
    std::string elegido;
    for (const auto& n : nombres)
        if (EmpiezaSinCaso(n, ajuste)) elegido = n;
    return elegido;
}

const std::vector<ClaveIdioma>& ClavesIdioma() {
    static const std::vector<ClaveIdioma> tabla = Tabla();
    return tabla;
}

bool LeerTextosIdioma() {
    LecturaIni lng(FicheroIdioma);
    AutorLeido() = lng.Leer("Autor", "Nombre");
    if (lng.Leer("Version", "Version") != kVersionIdioma) return false;
    auto& textos = Textos();
    textos.clear();
    for (const auto& c : ClavesIdioma())
        textos[Llave(c.seccion, c.clave)] = lng.Leer(c.seccion, c.clave);
    for (int i = 1; i <= 3; ++i) TitulosEpd[i] = Texto("Pgn", std::to_string(9 + i));
    TitulosMotor[1] = Texto("CPU", "19");
    TitulosMotor[2] = Texto("CPU", "20");
    TextoSinMotor = Texto("CPU", "10");
    for (std::size_t i = 1; i < Mensajes.size(); ++i)
        Mensajes[i] = lng.Leer("Mensajes", std::to_string(i));
    return true;
}

const std::string& AutorIdioma() {
    return AutorLeido();
}

const std::string& Texto(const std::string& seccion, const std::string& clave) {
    static const std::string vacio;
    auto it = Textos().find(Llave(seccion, clave));
    return it == Textos().end() ? vacio : it->second;
}

} // namespace qa
