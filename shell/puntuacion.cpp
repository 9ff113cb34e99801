#include "shell/puntuacion.h"

#include "shell/formularios.h"
#include "shell/ranking.h"

#include <QLabel>

namespace qa {

void PrintPuntuacion() {
    Ranking* r = Forms().ranking;
    if (!r) return;
    for (int i = 0; i < 10; ++i) {
        QLabel* l = r->Label(i);
        QString t = l->text();
        int dos = static_cast<int>(t.indexOf(':'));
        if (dos >= 0) t.truncate(dos + 1);
        auto& reg = i < 5 ? Puntuacion : PuntuacionRemota;
        l->setText(t + " " + QString::number(CampoPuntuacion(reg, i % 5)));
    }
}

} // namespace qa
