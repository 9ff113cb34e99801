#pragma once
// The door from the game to the peer of a network game: everything the core and the game files
// tell the other program, as calls. The network layer owns the texts on the wire; a game file's
// lines go through as they stand in the file. The callers reach these only while Conectado.

#include <cstdint>
#include <string>

// The lines of a game file that travel while it replays.
enum class LineaPartida {
    Tipo,         // the game kind, one letter
    RelojBlancas, // White's time, four digits
    RelojNegras,  // Black's time
    Jugada,       // a move, four digits and maybe a promotion piece
};

class EntornoRed {
public:
    virtual ~EntornoRed() = default;
    // The move just played on this board, in board squares.
    virtual void EnviarMovimiento(int colOrigen, int filaOrigen, int colDestino, int filaDestino,
                                  int32_t pieza) = 0;

    // A game file replayed for both boards: its start, its lines, a line that did not play,
    // the sides at its end (the peer's colour, 1 or 2, and the peer's turn, 0 if it is not
    // the peer's move) and its completion.
    virtual void EnviarInicioPartida() = 0;
    virtual void EnviarLineaPartida(LineaPartida tipo, const std::string& linea) = 0;
    virtual void EnviarErrorPartida() = 0;
    virtual void EnviarLadoRival(int colorRival, int turnoRival) = 0;
    virtual void EnviarFinPartida() = 0;

    // The EPD browser closed, or its file failed, without a position chosen.
    virtual void CancelarEpd() = 0;
    // A position opened as a new game goes to the peer.
    virtual void EnviarPosicion() = 0;
    // Which side the local player takes, 1 or 2.
    virtual int PreguntarColor() = 0;
    // A rated game's result for the rating record: 1 lost, 2 won, 3 drawn.
    virtual void SumaDePartidas(int resultado) = 0;
};

// The peer in force; never null.
EntornoRed& red();
// nullptr gives the role back to the shared recorder.
void InstalarRed(EntornoRed* e);
