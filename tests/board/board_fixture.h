#pragma once
// A board on screen (offscreen) with its environment installed, and the hand that moves it.
#include "board/dibujo_tablero.h"
#include "board/lista_jugadas.h"
#include "board/vista_tablero.h"

#include "core/recorder.h"

#include <QPoint>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

class TableroTest : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    qa::PicBuffer* pic() const { return vista->Picture(); }
    // Centre of a board square in the picture, wherever the board is turned.
    QPoint Centro(int col, int fila) const;
    void Arrastrar(QPoint desde, const std::vector<QPoint>& por, QPoint hasta);
    void Arrastrar(int c1, int f1, int c2, int f2);
    void Clic(int col, int fila, Qt::MouseButton boton = Qt::LeftButton);
    void Mover(QPoint p);
    // What a board square must look like: its colour with the piece masked on it.
    QImage Esperada(int col, int fila, int codigo) const;
    QImage EnPantalla(int col, int fila) const;
    // Waits until the resize timer has run and the board is drawn anew.
    bool EsperarRedimension();
    // Runs `accion` on the modal form once it is up.
    void AlAbrirseModal(std::function<void(QWidget*)> accion);

    std::unique_ptr<qa::VistaTablero> vista;
    std::unique_ptr<qa::ListaJugadas> lista;
    EntornoRegistro registro;
    std::unique_ptr<qa::DibujoTablero> dibujo;
};
