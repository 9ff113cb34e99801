#include "shell/chat.h"

#include "language/idioma.h"
#include "shell/formularios.h"
#include "shell/mdi.h"
#include "shell/servicios.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace qa {

Chat::Chat() : FormularioHijo("mnuVentanaChat"), lista_(new QPlainTextEdit), texto_(new QLineEdit) {
    setObjectName("Chat");
    lista_->setObjectName("ChatList");
    lista_->setReadOnly(true);
    lista_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(lista_, &QWidget::customContextMenuRequested, this, [] {
        if (Forms().mdi) MenuContextual(Forms().mdi->MenuChatList());
    });
    texto_->setObjectName("Texto");
    auto* cuerpo = new QWidget;
    auto* capas = new QVBoxLayout(cuerpo);
    capas->setContentsMargins(2, 2, 2, 2);
    capas->addWidget(lista_);
    capas->addWidget(texto_);
    setWidget(cuerpo);
    resize(300, 200);
}

QString Chat::TextoChat() const {
    return lista_->toPlainText();
}

void Chat::AplicarIdioma() {
    setWindowTitle(QString::fromStdString(qa::Texto("Chat", "Titulo")));
}

} // namespace qa
