#pragma once
// Start and end of the program: Main, the command line, the panels at start, the close.
#include <string>
#include <vector>

class QWidget;

namespace qa {

// Runs the start in its order; false when the program has ended on the way (missing settings,
// no language, a failed display check). Then the event loop is not entered.
bool Main(const std::vector<std::string>& argumentos);

// True once the program has ended: nothing more is to be done or saved.
bool FinPrograma();
// Ends the program at once, with nothing saved (a missing settings or language file).
void TerminarPrograma();

// SIGTERM or SIGINT: the main window is closed as by its close button, at the first point where
// that is safe. A box or dialog that waits for an answer is put away unanswered, the start
// stops where it stands, and the close saves only what had been read by then.
void PedirCierre();
// True once a close has been asked for from outside; the start and its questions stop.
bool CierrePedido();

// The name the command line hands on: the arguments as one text, "~" names in their long
// form, a surrounding pair of quotes dropped, all in lower case.
std::string NombreDeLineaDeOrdenes(const std::string& linea);
// The real name of an existing file, or empty: the long form of a short name.
std::string RutaLarga(const std::string& ruta);
// Hands the command line's name to the loader of its type; true when the panels were shown.
void AbrirLineaDeOrdenes(const std::string& nombre);

// Shows each checked panel, unless the PGN browser is up.
void MostrarPaneles();

// Half the main window's size minus half the form's.
void CentrarEnMdi(QWidget* formulario);

// The three file types of the program registered with the desktop; the Regit keys.
void RegistrarFicheros();
void RegistrarExtension(int tipo, const std::string& extension, const std::string& claseFichero,
                        const std::string& claseFichero2, const std::string& descripcion,
                        const std::string& claseFichero3);

// Language: reads the current file into every caption; CambiarIdioma makes the options
// dialog's choice current.
void Idioma();
void CambiarIdioma();
// The broken-language path of LeerIni: tell the user and fall back to Spanish.
void AvisarIdiomaIncorrecto();

} // namespace qa

namespace qa {

// The real folder of the program: the executable's, unless a test has set another.
void FijarCarpetaPrograma(const std::string& carpeta);
std::string CarpetaPrograma();
// DirectorioPrograma from CarpetaPrograma, and where the written files go (DirectorioDatos).
void FijarCarpetas();

// Creates every form of the shell, hidden, as children of the main window.
void CrearFormularios();
// Deletes the main window and all its forms (tests start the program more than once).
void LiberarFormularios();

} // namespace qa
