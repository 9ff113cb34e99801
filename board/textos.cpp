#include "board/textos.h"

#include "language/idioma.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QVariant>

namespace qa {

QString TextoForma(const char* seccion, const char* clave, const char* porDefecto) {
    const std::string& t = Texto(seccion, clave);
    return t.empty() ? QString::fromUtf8(porDefecto) : QString::fromStdString(t);
}

namespace {
constexpr const char* kClave = "qa_texto";

void Poner(QWidget* w) {
    const QStringList c = w->property(kClave).toStringList();
    if (c.size() != 3) return;
    const QString t =
        TextoForma(c[0].toUtf8().constData(), c[1].toUtf8().constData(), c[2].toUtf8().constData());
    if (w->isWindow())
        w->setWindowTitle(t);
    else if (auto* b = qobject_cast<QAbstractButton*>(w))
        b->setText(t);
    else if (auto* g = qobject_cast<QGroupBox*>(w))
        g->setTitle(t);
    else if (auto* l = qobject_cast<QLabel*>(w))
        l->setText(t);
}
} // namespace

void Rotular(QWidget* w, const char* seccion, const char* clave, const char* porDefecto) {
    w->setProperty(kClave, QStringList{QString::fromUtf8(seccion), QString::fromUtf8(clave),
                                       QString::fromUtf8(porDefecto)});
    Poner(w);
}

void Rotulos(QWidget* forma) {
    Poner(forma);
    for (QWidget* w : forma->findChildren<QWidget*>()) Poner(w);
}

} // namespace qa
