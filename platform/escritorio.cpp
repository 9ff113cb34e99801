#include "platform/escritorio.h"

#include "platform/escritura.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <cstdlib>
#include <filesystem>
#include <unistd.h>

namespace fs = std::filesystem;

namespace qa {

namespace {

std::string Xml(const std::string& s) {
    std::string r;
    for (char c : s) {
        if (c == '&')
            r += "&amp;";
        else if (c == '<')
            r += "&lt;";
        else if (c == '>')
            r += "&gt;";
        else if (c == '"')
            r += "&quot;";
        else
            r += c;
    }
    return r;
}

// Quoting of the Exec key: the path in double quotes, with its specials escaped.
std::string Comillas(const std::string& s) {
    std::string r = "\"";
    for (char c : s) {
        if (c == '"' || c == '`' || c == '$' || c == '\\') r += '\\';
        r += c;
    }
    return r + "\"";
}

bool Escribir(const fs::path& ruta, const std::string& texto) {
    std::error_code ec;
    fs::create_directories(ruta.parent_path(), ec);
    return EscribirFichero(ruta.string(), texto);
}

void Actualizar(const char* herramienta, const fs::path& carpeta) {
    const QString programa = QStandardPaths::findExecutable(herramienta);
    if (!programa.isEmpty())
        QProcess::startDetached(programa, {QString::fromStdString(carpeta.string())});
}

} // namespace

std::string CarpetaDatosUsuario() {
    if (const char* x = std::getenv("XDG_DATA_HOME"); x && *x) return x;
    if (const char* h = std::getenv("HOME"); h && *h) return std::string(h) + "/.local/share";
    return {};
}

std::string CarpetaEscritura(const std::string& programa,
                             const std::vector<std::string>& semillas) {
    if (::access(programa.c_str(), W_OK) == 0) return programa;
    const std::string datos =
        QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString();
    std::error_code ec;
    if (datos.empty() || (!fs::create_directories(datos, ec) && ec)) return {};
    for (const auto& nombre : semillas) {
        const fs::path origen = fs::path(programa) / nombre;
        const fs::path destino = fs::path(datos) / nombre;
        if (fs::exists(destino, ec) || !fs::exists(origen, ec)) continue;
        fs::copy_file(origen, destino, ec);
        // The shipped copy may be read-only; ours is written from now on.
        fs::permissions(destino, fs::perms::owner_read | fs::perms::owner_write,
                        fs::perm_options::add, ec);
    }
    return datos;
}

bool RegistrarTipoEscritorio(const TipoEscritorio& t) {
    const std::string base = CarpetaDatosUsuario();
    if (base.empty() || t.extension.size() < 2) return false;
    const fs::path mime = fs::path(base) / "mime";
    const fs::path aplicaciones = fs::path(base) / "applications";
    const std::string nombre = "quintarena-" + t.clase;

    std::string paquete =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
        "  <mime-type type=\"" +
        Xml(t.mime) +
        "\">\n"
        "    <comment>" +
        Xml(t.descripcion) +
        "</comment>\n"
        "    <glob pattern=\"*" +
        Xml(t.extension) +
        "\"/>\n"
        "  </mime-type>\n"
        "</mime-info>\n";
    std::string entrada = "[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=" +
                          t.descripcion +
                          "\n"
                          "Exec=" +
                          Comillas(t.programa) +
                          " %f\n"
                          "MimeType=" +
                          t.mime +
                          ";\n"
                          "NoDisplay=true\n"
                          "Terminal=false\n";
    std::error_code ec;
    if (!t.icono.empty() && fs::exists(t.icono, ec)) entrada += "Icon=" + t.icono + "\n";

    bool bien = Escribir(mime / "packages" / (nombre + ".xml"), paquete);
    bien = Escribir(aplicaciones / (nombre + ".desktop"), entrada) && bien;
    Actualizar("update-mime-database", mime);
    Actualizar("update-desktop-database", aplicaciones);
    return bien;
}

} // namespace qa
