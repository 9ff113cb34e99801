#include "board_fixture.h"

#include "board/partida_local.h"

#include "core/game_state.h"
#include "core/move_list.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Variables;

void TableroTest::SetUp() {
    RestablecerTodo();
    vista = std::make_unique<qa::VistaTablero>();
    lista = std::make_unique<qa::ListaJugadas>();
    dibujo = std::make_unique<qa::DibujoTablero>(*vista);
    dibujo->PonerListaJugadas(lista.get());
    InstalarRegistro(&registro);
    InstalarDibujo(dibujo.get());
    vista->PonerTamano(60, false);
    vista->Redimensionar();
    qa::PartidaLocal(*pic());
    vista->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(vista.get()));
}

void TableroTest::TearDown() {
    InstalarRegistro(nullptr);
    vista.reset();
    lista.reset();
    RestablecerTodo();
}

bool TableroTest::EsperarRedimension() {
    QSignalSpy redibujado(vista.get(), &qa::VistaTablero::ImagenesCambiadas);
    return redibujado.wait();
}

QPoint TableroTest::Centro(int col, int fila) const {
    const auto [c, f] = pic()->Convertir(col, fila);
    return pic()->Esquina(c, f) + QPoint(pic()->AnchoCasilla / 2, pic()->AltoCasilla / 2);
}

void TableroTest::Mover(QPoint p) {
    QTest::mouseMove(pic(), p);
}

void TableroTest::Arrastrar(QPoint desde, const std::vector<QPoint>& por, QPoint hasta) {
    QTest::mousePress(pic(), Qt::LeftButton, {}, desde);
    for (QPoint p : por) Mover(p);
    Mover(hasta);
    QTest::mouseRelease(pic(), Qt::LeftButton, {}, hasta);
}

void TableroTest::Arrastrar(int c1, int f1, int c2, int f2) {
    const QPoint a = Centro(c1, f1), b = Centro(c2, f2);
    Arrastrar(a, {(a + b) / 2}, b);
}

void TableroTest::Clic(int col, int fila, Qt::MouseButton boton) {
    QTest::mouseClick(pic(), boton, {}, Centro(col, fila));
}

QImage TableroTest::Esperada(int col, int fila, int codigo) const {
    const auto [c, f] = pic()->Convertir(col, fila);
    const bool claro = (c - 1 + 8 - f) % 2 == 0;
    QImage img = (claro ? pic()->R().claro : pic()->R().oscuro).copy();
    QPainter p(&img);
    qa::PintarFicha(p, pic()->R(), codigo, 0, 0);
    return img;
}

QImage TableroTest::EnPantalla(int col, int fila) const {
    const auto [c, f] = pic()->Convertir(col, fila);
    return pic()->Imagen().copy(
        QRect(pic()->Esquina(c, f), QSize(pic()->AnchoCasilla, pic()->AltoCasilla)));
}

void TableroTest::AlAbrirseModal(std::function<void(QWidget*)> accion) {
    auto* sondeo = new QTimer(vista.get());
    sondeo->setInterval(5);
    QObject::connect(sondeo, &QTimer::timeout, sondeo, [sondeo, accion] {
        QWidget* w = QApplication::activeModalWidget();
        if (!w || !w->isVisible()) return;
        sondeo->stop();
        sondeo->deleteLater();
        accion(w);
    });
    sondeo->start();
}
