#include "shell/entorno_programa.h"

#include "core/environment.h"
#include "language/idioma.h"
#include "shell/formularios.h"
#include "shell/reloj.h"
#include "shell/servicios.h"

#include <QLabel>

namespace qa {

namespace {

// Boxes, sounds, the texts of the language and the clock panel.
class DialogosPrograma final : public EntornoDialogos {
public:
    int MostrarMensaje(const std::string& titulo, const std::string& texto, int icono, int botones,
                       int extra) override {
        return qa::MostrarMensaje(titulo, texto, icono, botones, extra);
    }
    std::string PedirTexto(const std::string& pregunta, const std::string& titulo) override {
        return qa::PedirTexto(pregunta, titulo);
    }
    void Sonar(int n) override { qa::Sonar(n); }
    std::string Mensaje(int n) override {
        return n >= 1 && n < static_cast<int>(Mensajes.size()) ? Mensajes[n] : std::string();
    }
    // White's time is label 3 of the clock panel, Black's label 4.
    std::string TextoReloj(int lado) override {
        QLabel* l = Etiqueta(lado);
        return l ? l->text().toStdString() : std::string();
    }
    void PonerTextoReloj(int lado, const std::string& texto) override {
        if (QLabel* l = Etiqueta(lado)) l->setText(QString::fromStdString(texto));
    }

private:
    static QLabel* Etiqueta(int lado) {
        return Forms().reloj ? Forms().reloj->Label(lado == 2 ? 4 : 3) : nullptr;
    }
};

} // namespace

void InstalarEntornoPrograma() {
    static DialogosPrograma dialogos;
    InstalarDialogos(&dialogos);
}

} // namespace qa
