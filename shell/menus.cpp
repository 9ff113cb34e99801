// The menu tree and the toolbar of the main window, captioned from the language file.
#include "language/idioma.h"
#include "shell/formularios.h"
#include "shell/mdi.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>
#include <QToolBar>

namespace qa {

namespace {

// The language key of each entry: section "Menu" unless another is named.
struct Leyenda {
    const char* entrada;
    const char* seccion;
    const char* clave;
};
constexpr Leyenda kLeyendas[] = {
    {"mnuArchivos", "Menu", "Menu1"},
    {"mnuAbrirPartida", "Menu", "Menu2"},
    {"mnuGuardarPartida", "Menu", "Menu3"},
    {"mnuGuararChat", "Menu", "Menu4"},
    {"mnuGuararImagen", "Menu", "Menu5"},
    {"mnuSalir", "Menu", "Menu6"},
    {"mnuConectar", "Menu", "Menu7"},
    {"mnuObtenerIp", "Menu", "Menu8"},
    {"mnuEstablecerconexion", "Menu", "Menu9"},
    {"mnuDesconectar", "Menu", "Menu10"},
    {"mnuPartida", "Menu", "Menu11"},
    {"mnuNuevaPartida", "Menu", "Menu12"},
    {"mnuRendirse", "Menu", "Menu13"},
    {"mnuOfrecerTablas", "Menu", "Menu14"},
    {"mnuVer", "Menu", "Menu15"},
    {"mnuMovimientos", "Menu", "Menu16"},
    {"mnuVentanaChat", "Menu", "Menu17"},
    {"mnuReloj", "Menu", "Menu18"},
    {"mnuMostrarRanking", "Menu", "Menu19"},
    {"mnuInvertirTablero", "Menu", "Menu20"},
    {"mnuSonido", "Menu", "Menu21"},
    {"mnuPointClick", "Menu", "Menu22"},
    {"mnuRgb", "Menu", "Menu23"},
    {"mnuOpciones", "Menu", "Menu24"},
    {"mnuAyuda", "Menu", "Menu25"},
    {"mnuTemaAyuda", "Menu", "Menu26"},
    {"mnuAcerca", "Menu", "Menu27"},
    {"mnuSetTablero", "Menu", "Menu28"},
    {"mnuActualizar", "Menu", "Menu29"},
    {"mnuRetroceder", "Menu", "Menu30"},
    {"mnuCopiarJugadas", "Jugadas", "Menu1"},
    {"mnuGuardarComo", "Jugadas", "Menu2"},
    {"mnuNotacion", "Jugadas", "Menu3"},
    {"mnuAlgebraico", "Jugadas", "Menu4"},
    {"mnuCordenadas", "Jugadas", "Menu5"},
    {"mnuAlgebraicoEsp", "Jugadas", "Menu6"},
    {"mnuAlgebraicoIng", "Jugadas", "Menu7"},
    {"mnuCambiarNick", "Chat", "Menu1"},
    {"mnuCopiar", "Chat", "Menu2"},
    {"mnuChatListBorrar", "Chat", "Menu3"},
    {"mnuChatListGuardar", "Chat", "Menu4"},
};

// Toolbar1: index, entry (empty for a separator), icon.
struct Boton {
    int indice;
    const char* entrada;
    QStyle::StandardPixmap icono;
};
constexpr Boton kBotones[] = {
    {1, "mnuAbrirPartida", QStyle::SP_DialogOpenButton},
    {3, "mnuGuardarPartida", QStyle::SP_DialogSaveButton},
    {4, "mnuGuararChat", QStyle::SP_FileDialogContentsView},
    {5, "mnuGuararImagen", QStyle::SP_DesktopIcon},
    {7, "mnuObtenerIp", QStyle::SP_ComputerIcon},
    {8, "mnuEstablecerconexion", QStyle::SP_DriveNetIcon},
    {9, "mnuDesconectar", QStyle::SP_BrowserStop},
    {11, "mnuNuevaPartida", QStyle::SP_FileIcon},
    {12, "mnuRendirse", QStyle::SP_DialogCancelButton},
    {13, "mnuOfrecerTablas", QStyle::SP_DialogApplyButton},
    {14, "mnuRetroceder", QStyle::SP_ArrowBack},
    {16, "mnuSetTablero", QStyle::SP_FileDialogDetailedView},
    {18, "mnuRgb", QStyle::SP_DirHomeIcon},
    {19, "mnuOpciones", QStyle::SP_FileDialogListView},
    {20, "mnuInvertirTablero", QStyle::SP_BrowserReload},
    {22, "mnuTemaAyuda", QStyle::SP_DialogHelpButton},
    {23, "mnuAcerca", QStyle::SP_MessageBoxInformation},
    {25, "mnuActualizar", QStyle::SP_ArrowDown},
    {27, "", QStyle::SP_DialogCloseButton}, // unloads the main window
};

// Tool tips: key of section "Tips" -> button.
constexpr int kTips[][2] = {{1, 1},   {2, 3},   {3, 4},   {4, 5},   {5, 7},   {6, 8},   {7, 9},
                            {8, 11},  {9, 12},  {10, 13}, {11, 18}, {12, 19}, {13, 20}, {14, 22},
                            {15, 23}, {16, 27}, {17, 16}, {29, 14}, {30, 25}};

QString T(const char* seccion, const std::string& clave) {
    return QString::fromStdString(Texto(seccion, clave));
}

} // namespace

QAction* Mdi::Nueva(QMenu* menu, const char* nombre, bool marcable) {
    auto* a = menu->addAction(nombre);
    a->setObjectName(nombre);
    a->setCheckable(marcable);
    entradas_[nombre] = a;
    connect(a, &QAction::triggered, this, [this, n = std::string(nombre)] { Comando(n); });
    return a;
}

QMenu* Mdi::Submenu(QMenu* padre, const char* nombre) {
    QMenu* m = padre ? padre->addMenu(nombre) : menuBar()->addMenu(nombre);
    m->setObjectName(nombre);
    menus_[nombre] = m;
    entradas_[nombre] = m->menuAction();
    return m;
}

void Mdi::CrearMenus() {
    QMenu* m = Submenu(nullptr, "mnuArchivos");
    for (auto n : {"mnuAbrirPartida", "mnuGuardarPartida", "mnuGuararChat", "mnuGuararImagen"})
        Nueva(m, n);
    m->addSeparator();
    Nueva(m, "mnuSalir");

    m = Submenu(nullptr, "mnuConectar");
    for (auto n : {"mnuObtenerIp", "mnuEstablecerconexion", "mnuDesconectar"}) Nueva(m, n);

    m = Submenu(nullptr, "mnuPartida");
    for (auto n : {"mnuNuevaPartida", "mnuRendirse", "mnuOfrecerTablas", "mnuRetroceder"})
        Nueva(m, n);
    m->addSeparator();
    Nueva(m, "mnuSetTablero");

    m = Submenu(nullptr, "mnuVer");
    for (auto n : {"mnuMovimientos", "mnuVentanaChat", "mnuReloj", "mnuMostrarRanking"})
        Nueva(m, n, true);
    m->addSeparator();
    for (auto n : {"mnuInvertirTablero", "mnuSonido", "mnuPointClick"}) Nueva(m, n, true);
    m->addSeparator();
    Nueva(m, "mnuRgb");
    Nueva(m, "mnuOpciones");

    m = Submenu(nullptr, "mnuAyuda");
    Nueva(m, "mnuTemaAyuda");
    Nueva(m, "mnuActualizar");
    m->addSeparator();
    Nueva(m, "mnuAcerca");

    // The two context menus stand outside the menu bar.
    menuJugadas_ = new QMenu(this);
    menuJugadas_->setObjectName("mnuJugadas");
    Nueva(menuJugadas_, "mnuCopiarJugadas");
    Nueva(menuJugadas_, "mnuGuardarComo");
    QMenu* notacion = Submenu(menuJugadas_, "mnuNotacion");
    QMenu* algebraico = Submenu(notacion, "mnuAlgebraico");
    Nueva(algebraico, "mnuAlgebraicoEsp", true);
    Nueva(algebraico, "mnuAlgebraicoIng", true);
    Nueva(algebraico, "mnuAlgebraicoUsuario0", true);
    Nueva(notacion, "mnuCordenadas", true);

    menuChat_ = new QMenu(this);
    menuChat_->setObjectName("mnuChatList");
    for (auto n : {"mnuCambiarNick", "mnuCopiar", "mnuChatListBorrar", "mnuChatListGuardar"})
        Nueva(menuChat_, n);
}

void Mdi::CrearToolbar() {
    toolbar_ = addToolBar("Toolbar1");
    toolbar_->setObjectName("Toolbar1");
    toolbar_->setMovable(false);
    toolbar_->setIconSize(QSize(20, 20));
    int siguiente = 1;
    for (const auto& b : kBotones) {
        for (; siguiente < b.indice; ++siguiente) botones_[siguiente] = toolbar_->addSeparator();
        QAction* a = toolbar_->addAction(style()->standardIcon(b.icono), "");
        a->setObjectName(QString("Boton%1").arg(b.indice));
        const std::string entrada = b.entrada;
        // A button only runs the handler of its menu entry.
        connect(a, &QAction::triggered, this, [this, entrada] {
            if (entrada.empty())
                Descargar();
            else if (QAction* e = Entrada(entrada))
                e->trigger();
        });
        botones_[b.indice] = a;
        siguiente = b.indice + 1;
    }
}

QAction* Mdi::Entrada(const std::string& nombre) const {
    auto it = entradas_.find(nombre);
    return it == entradas_.end() ? nullptr : it->second;
}

QAction* Mdi::Boton(int indice) const {
    auto it = botones_.find(indice);
    return it == botones_.end() ? nullptr : it->second;
}

void Mdi::AplicarIdioma() {
    for (const auto& l : kLeyendas)
        if (QAction* a = Entrada(l.entrada)) a->setText(T(l.seccion, l.clave));
    if (QAction* a = Entrada("mnuAlgebraicoUsuario0"))
        a->setText("(" + T("Jugadas", "Menu4") + ")");
    for (const auto& t : kTips)
        if (QAction* b = Boton(t[1])) b->setToolTip(T("Tips", std::to_string(t[0])));
}

} // namespace qa
