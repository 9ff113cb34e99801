#include "board/apariencia.h"

#include "board/textos.h"
#include "platform/texto.h"

#include <QDir>

namespace qa {

bool EsNombreBase(const QString& nombre) {
    return nombre.startsWith(QLatin1Char('('));
}

QString NombreBase() {
    return TextoForma("Opciones", "Opcion1", "(Clásica)");
}

QStringList ActualizarSkins(const QString& nombreBase, const QString& carpetaApariencias) {
    QStringList lista{nombreBase};
    const QDir dir(carpetaApariencias);
    if (!dir.exists()) return lista;
    for (const QString& n : dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted))
        lista << QString::fromStdString(Minusculas(n.toStdString()));
    return lista;
}

namespace {

// The entry of `dir` whose name is `nombre` without regard to case.
QString Entrada(const QDir& dir, const QString& nombre, QDir::Filters filtro) {
    for (const QString& n : dir.entryList(filtro | QDir::NoDotAndDotDot))
        if (n.compare(nombre, Qt::CaseInsensitive) == 0) return dir.filePath(n);
    return {};
}

QString Extension(const QDir& dir) {
    for (const QString& n : dir.entryList(QDir::Files, QDir::Name))
        if (n.startsWith(QLatin1String("peonb."), Qt::CaseInsensitive)) return n.mid(5);
    return {};
}

QImage Leer(const QDir& dir, const QString& nombre) {
    const QString ruta = Entrada(dir, nombre, QDir::Files);
    if (ruta.isEmpty()) return {};
    return QImage(ruta).convertToFormat(QImage::Format_RGB32);
}

} // namespace

QString RutaSkin(const QString& carpetaApariencias, const QString& nombre) {
    if (nombre.isEmpty()) return {};
    return Entrada(QDir(carpetaApariencias), nombre, QDir::Dirs);
}

bool Skins(const QString& rutaSkin, JuegoFichas& s) {
    s = JuegoFichas();
    const QDir dir(rutaSkin);
    if (rutaSkin.isEmpty() || !dir.exists()) return false;
    const QString ext = Extension(dir);
    if (ext.isEmpty()) return false;
    for (int i = 1; i <= 12; ++i) {
        const QString n = QString::fromLatin1(NombresFichas[i]);
        s.fichas[i] = Leer(dir, n + ext);
        s.mascaras[i] = Leer(dir, n + QLatin1Char('f') + ext);
    }
    s.claro = Leer(dir, QStringLiteral("cuadrob") + ext);
    s.oscuro = Leer(dir, QStringLiteral("cuadron") + ext);
    if (!s.Completo()) return false;
    const QSize primero = s.fichas[1].size();
    for (int i = 1; i <= 12; ++i)
        if (s.fichas[i].size() != primero || s.mascaras[i].size() != primero) return false;
    return s.claro.size() == s.oscuro.size() && s.claro.width() == s.claro.height();
}

} // namespace qa
