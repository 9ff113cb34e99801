#pragma once
// "Default.ini": read into the controls and menu checks at start, written back from them at the
// close. There are no defaults in the program: the shipped file is the default.
#include <string>

namespace qa {

struct Lugar {
    double top = 0, left = 0, width = 0, height = 0; // twips
};

// Values of forms the shell does not have yet (new game, engine levels, colours, PGN browser).
// They stand here so the settings make the round trip until those forms hold them.
struct ControlesPendientes {
    std::string Nick;
    std::string NuevoText1; // minutes of a new game
    std::string Level2Text1, Level2Text2, Level2Text3, Level2Combo1;
    int Level2Option = 0;
    std::string AutoPlay, Dir, Tipo;
    Lugar ListaPgn, PgnMovimientos, Cpu, Epd;
};
ControlesPendientes& Controles();

// The four notation entries, in the order of the setting Check (1 to 4).
inline constexpr const char* kNotaciones[] = {"mnuAlgebraicoEsp", "mnuAlgebraicoIng",
                                              "mnuCordenadas", "mnuAlgebraicoUsuario0"};
// The notation checked in the menu, 1 to 4 (1 when none is).
int NotacionMarcada();

bool ExisteFichero(const std::string& fichero);
bool LiberarFichero(const std::string& fichero);

// The whole read of the settings file; a bad value leaves its control as it was.
void LeerOpciones();

// The writes of the close, in the order of the file's table.
void GuardarOpciones();

// A setting that reads 0 or 1; anything else is nothing.
int LeerBandera(const std::string& seccion, const std::string& clave);

} // namespace qa
