// The variables of the game state, one line each. Included with these six macros defined, it
// gives the declarations (game_state.h), the reset to a fresh start (RestablecerTodo) and the
// console tool's `get`, so a variable added here is declared, reset and readable at once.
//   BANDERA(n)        flag; `get` answers 0 or -1
//   ENTERO(tipo, n)   integer
//   TEXTO(n)          string
//   PAR(n)            two flags, indexed 1 and 2; `get` knows them as n(1) and n(2)
//   CASILLAS(n)       a board [column][row], 0..8 each; not in `get` (the `board` command)
//   LINEAS(n)         lines, 1-based with element 0 unused; not in `get`
// No include guard: every includer defines the six macros and expands the list its own way; the
// list undefines them at its end.

// clang-format off

// Board.
CASILLAS(Tablero)
CASILLAS(TableroCopia)

// The move under examination.
TEXTO(Origen)
TEXTO(Destino)
ENTERO(int32_t, ColOrigen)
ENTERO(int32_t, FilaOrigen)
ENTERO(int32_t, ColDestino)
ENTERO(int32_t, FilaDestino)
ENTERO(int32_t, FichaMovida)
ENTERO(int32_t, FichaDestino)
BANDERA(MovimientoValido)
BANDERA(SoloProbar)
ENTERO(int32_t, FilaRaton)
ENTERO(int32_t, ColRaton)

// En passant.
BANDERA(AlPasoPosible)
ENTERO(int32_t, AlPasoCasilla)
TEXTO(AlPasoTexto)
BANDERA(AlPasoCaduca)

// Castling rights: true means the right is gone.
BANDERA(TorreA1Movida)
BANDERA(TorreH1Movida)
BANDERA(TorreA8Movida)
BANDERA(TorreH8Movida)
PAR(DerechosBlancas)
PAR(DerechosNegras)
ENTERO(int32_t, TipoEnroque)
BANDERA(EnroqueIntento)

// Side to move and move numbers.
ENTERO(int16_t, Turno)
BANDERA(Conectado)
BANDERA(MedioTurno)
ENTERO(int32_t, NumeroJugada)

// Results of the check tests.
BANDERA(Ataque)
BANDERA(Jaque)
BANDERA(Mate)
BANDERA(Ahogado)
ENTERO(int32_t, ReyCol)
ENTERO(int32_t, ReyFila)
ENTERO(int32_t, FichaGuardada)
TEXTO(Atacantes)
TEXTO(CasillaJaque)
TEXTO(JaqueDescubierto)
TEXTO(Capturadores)
BANDERA(BuscandoCaptura)
BANDERA(CasillaCoincide)
BANDERA(OtraPieza)
TEXTO(OtraCol)
TEXTO(OtraFila)

// Promotion.
ENTERO(int32_t, PiezaCoronacion)
ENTERO(int32_t, FichaComidaCoronacion)

// Notation and replay.
TEXTO(Notacion)
TEXTO(NotacionTraducida)
LINEAS(LineasPartida)
ENTERO(int32_t, LineaActual)
ENTERO(int32_t, ColorInicio)
BANDERA(Cargando)
BANDERA(Retrocediendo)
BANDERA(DesdePosicion)
BANDERA(EditandoTablero)
TEXTO(TipoPartida)
TEXTO(ColorJugador)
TEXTO(AlPasoFen)

// Time left on the two clocks, shared by network and engine games. A new game sets them;
// they keep their values after the game ends until then.
ENTERO(int32_t, MinutosBlancas)
ENTERO(int32_t, SegundosBlancas)
ENTERO(int32_t, MinutosNegras)
ENTERO(int32_t, SegundosNegras)

// Engines that play a colour; only read here to decide who moves next.
BANDERA(MotorBlancas)
BANDERA(MotorNegras)
// A drag that was called off while its move was under way.
BANDERA(ArrastreCancelado)

// clang-format on

#undef CASILLAS
#undef TEXTO
#undef ENTERO
#undef BANDERA
#undef PAR
#undef LINEAS
