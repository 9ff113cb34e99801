#include "board/colores.h"

#include "platform/texto.h"

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

// Wide, so that a base colour near the 32-bit limit plus a step cannot overflow.
QColor Rgb(std::int64_t r, std::int64_t g, std::int64_t b) {
    auto c = [](std::int64_t v) { return static_cast<int>(std::clamp<std::int64_t>(v, 0, 255)); };
    return QColor(c(r), c(g), c(b));
}

QColor Base(std::int64_t mas) {
    return Rgb(ColorR + mas, ColorG + mas, ColorB + mas);
}

// Each form repaints its own background when its size changes.
constexpr const char* kFiltro = "AlRedimensionar";
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

void LeerColor(const std::string& texto) {
    std::int32_t campos[3] = {0, 0, 0};
    std::size_t campo = 0;
    for (char c : texto) {
        if (c == ':') {
            ++campo;
            continue;
        }
        if (campo > 2) continue;
        if (auto v = AEntero(std::to_string(campos[campo]) + c))
            campos[campo] = static_cast<std::int32_t>(*v);
    }
    ColorR = campos[0];
    ColorG = campos[1];
    ColorB = campos[2];
}

QColor ColorInterior() {
    return Base(Fondo == 1 ? 200 : 0);
}

void RegistrarFormulario(QWidget* formulario, int grupo) {
    auto& r = Registrados();
    r.erase(std::remove_if(r.begin(), r.end(), [](const Registro& x) { return !x.formulario; }),
            r.end());
    r.push_back({formulario, grupo});
    // The form owns its filter, so the filter goes with it.
    if (!formulario->findChild<QObject*>(kFiltro, Qt::FindDirectChildrenOnly)) {
        auto* filtro = new AlRedimensionar(formulario);
        filtro->setObjectName(kFiltro);
        formulario->installEventFilter(filtro);
    }
}

void PintarFormularios(int codigo) {
    for (const Registro& r : Registrados())
        if (r.formulario && (codigo == 0 || r.grupo == codigo))
            AlRedimensionar::Pintar(r.formulario);
}

void Bisel(int x1, int y1, int x2, int y2, QImage& picture) {
    if (Fondo == 2) return;
    picture.fill(Base(Fondo == 1 ? 200 : 0));
    QPainter p(&picture);
    for (int k = 0; k < 6; ++k) {
        p.setPen(Base(40 * k));
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
