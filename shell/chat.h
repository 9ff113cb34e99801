#pragma once
// The chat panel: what was said (ChatList) and the line being written (Texto).
#include "shell/formulario_hijo.h"

class QLineEdit;
class QPlainTextEdit;

namespace qa {

class Chat : public FormularioHijo {
    Q_OBJECT
public:
    Chat();
    void AplicarIdioma() override;
    QPlainTextEdit* ChatList() const { return lista_; }
    QLineEdit* Texto() const { return texto_; }
    QString TextoChat() const;

private:
    QPlainTextEdit* lista_;
    QLineEdit* texto_;
};

} // namespace qa
