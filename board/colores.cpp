#include "board/colores.h"

#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QWidget>
#include <algorithm>
#include <vector>

namespace qa {

namespace {

struct Registro {
    QPointer<QWidget> formulario;
    int grupo;
};
std::vector<Registro>& Registrados() {
    static std::vector<Registro> r;
    return r;
}

QColor Rgb(int r, int g, int b) {
    auto c = [](int v) { return std::clamp(v, 0, 255); };
    return QColor(c(r), c(g), c(b));
}

// Each form repaints its own background when its size changes.
class AlRedimensionar : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* o, QEvent* e) override {
        if (e->type() == QEvent::Resize)
            for (const Registro& r : Registrados())
                if (r.formulario == o) Pintar(r.formulario);
        return false;
    }
    static void Pintar(QWidget* w) {
        if (Fondo == 2)
            FondoPlano(w->width(), w->height(), w);
        else {
            ColorearControles(w);
            FondoBiselado(w->width(), w->height(), w);
        }
    }
};

void PonerImagen(QWidget* formulario, const QImage& img) {
    QPalette pal = formulario->palette();
    pal.setBrush(QPalette::Window, QBrush(img));
    formulario->setPalette(pal);
    formulario->setAutoFillBackground(true);
}

bool Coloreable(QWidget* w) {
    return qobject_cast<QGroupBox*>(w) || qobject_cast<QLabel*>(w) || w->inherits("QCheckBox") ||
           w->inherits("QRadioButton");
}

void Colorear(QWidget* formulario, const QColor& c) {
    for (QWidget* w : formulario->findChildren<QWidget*>()) {
        if (!Coloreable(w)) continue;
        QPalette pal = w->palette();
        pal.setColor(QPalette::Window, c);
        w->setPalette(pal);
        w->setAutoFillBackground(true);
    }
}

} // namespace

bool LeerColor(const std::string& texto) {
    const QStringList partes = QString::fromStdString(texto).split(QLatin1Char(':'));
    if (partes.size() != 3) return false;
    int v[3];
    for (int i = 0; i < 3; ++i) {
        bool ok = false;
        v[i] = partes[i].trimmed().toInt(&ok);
        if (!ok || v[i] < 0 || v[i] > 255) return false;
    }
    ColorR = v[0];
    ColorG = v[1];
    ColorB = v[2];
    return true;
}

QColor ColorInterior() {
    const int d = Fondo == 1 ? 200 : 0;
    return Rgb(ColorR + d, ColorG + d, ColorB + d);
}

void RegistrarFormulario(QWidget* formulario, int grupo) {
    static AlRedimensionar* filtro = new AlRedimensionar();
    auto& r = Registrados();
    r.erase(std::remove_if(r.begin(), r.end(), [](const Registro& x) { return !x.formulario; }),
            r.end());
    r.push_back({formulario, grupo});
    formulario->installEventFilter(filtro);
}

void PintarFormularios(int codigo) {
    for (const Registro& r : Registrados())
        if (r.formulario && (codigo == 0 || r.grupo == codigo))
            AlRedimensionar::Pintar(r.formulario);
}

void Bisel(int x1, int y1, int x2, int y2, QImage& picture) {
    if (Fondo == 2) return;
    const int d = Fondo == 1 ? 200 : 0;
    picture.fill(Rgb(ColorR + d, ColorG + d, ColorB + d));
    QPainter p(&picture);
    for (int k = 0; k < 6; ++k) {
        p.setPen(Rgb(ColorR + 40 * k, ColorG + 40 * k, ColorB + 40 * k));
        p.drawLine(x1 + k, y1 + k, x2 - k, y1 + k); // top
        p.drawLine(x1 + k, y2 - k, x2 - k, y2 - k); // bottom
        p.drawLine(x1 + k, y1 + k, x1 + k, y2 - k); // left
        p.drawLine(x2 - k, y1 + k, x2 - k, y2 - k); // right
    }
}

void FondoBiselado(int ancho, int alto, QWidget* formulario) {
    if (!formulario || ancho < 1 || alto < 1) return;
    QImage borde(ancho, alto, QImage::Format_RGB32);
    borde.fill(formulario->palette().color(QPalette::Button));
    Bisel(0, 0, ancho - 1, alto - 1, borde);
    PonerImagen(formulario, borde);
}

void FondoPlano(int ancho, int alto, QWidget* formulario) {
    if (!formulario || ancho < 1 || alto < 1) return;
    const QColor sistema = QWidget().palette().color(QPalette::Button);
    QImage borde(ancho, alto, QImage::Format_RGB32);
    borde.fill(sistema);
    PonerImagen(formulario, borde);
    Colorear(formulario, sistema);
}

void ColorearControles(QWidget* formulario) {
    if (formulario) Colorear(formulario, ColorInterior());
}

} // namespace qa
