#include "core/move_list.h"

#include "core/environment.h"
#include "core/game_state.h"

namespace Jugadas {

void AnotarLista(const std::string& texto, int indice) {
    if (indice < 1 || indice > 5) return;
    std::string& t = List[indice];
    if (!Variables::MedioTurno)
        t += std::to_string(Variables::NumeroJugada) + ". ";
    else
        t += std::string(18, ' ');
    t += texto;
    t += FinLinea;
    dibujo().ListasCambiadas();
}

void Vaciar() {
    for (auto& t : List) t.clear();
    List1.clear();
    dibujo().ListasCambiadas();
}

std::vector<std::string> Lineas(int indice) {
    std::vector<std::string> out;
    if (indice < 1 || indice > 5) return out;
    const std::string& t = List[indice];
    size_t inicio = 0;
    while (inicio < t.size()) {
        size_t fin = t.find('\n', inicio);
        if (fin == std::string::npos) fin = t.size();
        std::string linea = t.substr(inicio, fin - inicio);
        if (!linea.empty() && linea.back() == '\r') linea.pop_back();
        out.push_back(linea);
        inicio = fin + 1;
    }
    return out;
}

} // namespace Jugadas
