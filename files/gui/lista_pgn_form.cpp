#include "files/gui/lista_pgn_form.h"

#include "board/textos.h"
#include "core/game_state.h"
#include "files/game_file.h"
#include "files/gui/modelo_lista.h"
#include "files/gui/tablero_mini.h"
#include "files/pgn_browser.h"
#include "files/pgn_scanner.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Variables;

namespace qa {

QVariant ModeloLista::data(const QModelIndex& i, int rol) const {
    if (rol != Qt::DisplayRole || !i.isValid() || i.row() >= rowCount()) return {};
    const auto fila = static_cast<size_t>(i.row());
    const std::string t = vector_ ? (*vector_)[fila] : (*textos_)[fila];
    const QString s = QString::fromUtf8(t.data(), static_cast<qsizetype>(t.size()));
    // Old collections are Latin-1: a text that is no UTF-8 is read as that.
    return s.contains(QChar::ReplacementCharacter)
               ? QString::fromLatin1(t.data(), static_cast<qsizetype>(t.size()))
               : s;
}

namespace {
QString Texto(const std::string& s) {
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

// The seven tags, as the language file names them and as they read while none is loaded.
constexpr const char* kCampos[7] = {"Event", "Site", "Date", "Round", "White", "Black", "Result"};
// The tips of the navigation buttons; element 5 has two, 22 stopped and 23 playing.
constexpr const char* kTips[6] = {"", "18", "19", "20", "21", "22"};
constexpr const char* kTipsPorDefecto[6] = {"", "|<", "<", ">", ">|", "Auto"};
} // namespace

ListaPgnF::ListaPgnF(QWidget* padre) : QWidget(padre, Qt::Window) {
    buscar_ = new QComboBox;
    buscar_->setObjectName("Buscar");
    for (const char* e : kCampos) buscar_->addItem(e);
    frame2_ = new QLabel;
    frame2_->setBuddy(buscar_);
    eventos_ = new QListView;
    eventos_->setObjectName("Eventos");
    eventos_->setUniformItemSizes(true);
    modelo_ = new ModeloLista(ListaPgn::Eventos, this);
    eventos_->setModel(modelo_);
    label2_ = new QLabel;
    cuenta_ = new QLabel;
    mini_ = new TableroMini;

    auto* lista = new QWidget;
    auto* l1 = new QVBoxLayout(lista);
    auto* busqueda = new QHBoxLayout;
    busqueda->addWidget(frame2_);
    busqueda->addWidget(buscar_, 1);
    l1->addLayout(busqueda);
    l1->addWidget(eventos_, 1);
    l1->addWidget(label2_);
    l1->addWidget(cuenta_);

    auto* etiquetas = new QWidget;
    auto* rejilla = new QGridLayout(etiquetas);
    for (int i = 0; i < 7; ++i) {
        campos_[i] = new QLabel;
        rejilla->addWidget(campos_[i], i, 0);
    }
    for (int i = 0; i < 6; ++i) {
        text1_[i] = new QLineEdit;
        text1_[i]->setObjectName(QString("Text1_%1").arg(i));
        rejilla->addWidget(text1_[i], i, 1);
    }
    combo1_ = new QComboBox;
    combo1_->addItems({"*", "1-0", "0-1", "1/2-1/2"}); // not editable: typing is swallowed
    rejilla->addWidget(combo1_, 6, 1);
    rejilla->addWidget(mini_, 7, 0, 1, 2);

    pestanas_ = new QTabWidget;
    pestanas_->addTab(lista, "1");
    pestanas_->addTab(etiquetas, "2");

    auto* botones = new QHBoxLayout;
    const QStyle::StandardPixmap imagenes[6] = {
        QStyle::SP_CustomBase,       QStyle::SP_MediaSkipBackward, QStyle::SP_MediaSeekBackward,
        QStyle::SP_MediaSeekForward, QStyle::SP_MediaSkipForward,  QStyle::SP_MediaPlay};
    for (int i = 1; i <= 5; ++i) {
        command1_[i] = new QPushButton(style()->standardIcon(imagenes[i]), "");
        command1_[i]->setObjectName(QString("Command1_%1").arg(i));
        botones->addWidget(command1_[i]);
        connect(command1_[i], &QPushButton::clicked, this, [this, i] { Boton(i); });
    }
    label3_ = new QLabel;
    combo2_ = new QComboBox;
    combo2_->setEditable(true);
    combo2_->addItems({"1000", "500", "2000", "3000"});
    label3_->setBuddy(combo2_);
    botones->addWidget(label3_);
    botones->addWidget(combo2_);
    guardar_ = new QPushButton;
    guardar_->setObjectName("Guardar");
    cancelar_ = new QPushButton;
    cancelar_->setObjectName("Cancelar");
    botones->addWidget(guardar_);
    botones->addWidget(cancelar_);

    movimientos_ = new QListView;
    movimientos_->setObjectName("PgnMovimientos");
    movimientos_->setUniformItemSizes(true);
    modeloMovimientos_ = new ModeloLista(ListaPgn::PgnMovimientos, this);
    movimientos_->setModel(modeloMovimientos_);
    movimientos_->installEventFilter(this);
    movimientos_->setFont(QFont("Monospace"));

    auto* capa = new QHBoxLayout(this);
    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(pestanas_, 1);
    izquierda->addLayout(botones);
    capa->addLayout(izquierda, 2);
    capa->addWidget(movimientos_, 1);

    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &ListaPgnF::Cargar);
    connect(&autoPlay_, &QTimer::timeout, this, [this] {
        AvanzarPgn();
        Mostrar();
        emit TableroCambiado();
    });
    connect(eventos_, &QListView::clicked, this, [this](const QModelIndex& i) { Elegir(i.row()); });
    // The keys choose a game as the mouse does.
    connect(eventos_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& i) {
                if (!mostrando_ && i.isValid()) Elegir(i.row());
            });
    connect(eventos_, &QListView::doubleClicked, this, [this] { pestanas_->setCurrentIndex(1); });
    connect(buscar_, &QComboBox::activated, this, [this](int i) {
        BuscarClick(i);
        filasMostradas_ = static_cast<size_t>(-1); // same count, other texts
        Mostrar();
        emit TableroCambiado();
    });
    connect(movimientos_, &QListView::clicked, this, [this](const QModelIndex& i) {
        IrAFilaPgn(i.row());
        Mostrar();
        emit TableroCambiado();
    });
    connect(combo2_, &QComboBox::activated, this, [this] {
        if (AutoPlay) autoPlay_.setInterval(combo2_->currentText().toInt());
    });
    connect(guardar_, &QPushButton::clicked, this, [this] {
        EtiquetasPgn e;
        for (int i = 0; i < 6; ++i) e.valor[i] = text1_[i]->text().toStdString();
        e.valor[6] = combo1_->currentText().toStdString();
        emit Guardado(ConfirmarEtiquetasPgn(e) == Guardado::Hecho);
        hide();
    });
    connect(cancelar_, &QPushButton::clicked, this, [this] {
        CancelarEtiquetasPgn();
        emit Guardado(false);
        hide();
    });
    ModoDialogo(false);
    AplicarIdioma();
}

void ListaPgnF::AplicarIdioma() {
    for (int i = 0; i < 7; ++i) {
        const QString campo = TextoForma("Pgn", std::to_string(i + 1).c_str(), kCampos[i]);
        campos_[i]->setText(campo);
        buscar_->setItemText(i, campo);
    }
    // The list is read by the first tag again, so that it lists what the box says.
    if (buscar_->currentIndex() != 0) {
        buscar_->setCurrentIndex(0);
        BuscarClick(0);
        filasMostradas_ = static_cast<size_t>(-1);
    }
    frame2_->setText(TextoForma("Pgn", "8", "Search by"));
    label3_->setText(TextoForma("Pgn", "9", "Interval (ms):"));
    const std::string& l = ListaPgn::Label2;
    const size_t dosPuntos = l.find(':');
    ListaPgn::Label2 = TextoForma("Pgn", "13", "Game:").toStdString() +
                       (dosPuntos == std::string::npos ? "" : l.substr(dosPuntos + 1));
    guardar_->setText(TextoForma("Botones", "Guardar", "Save"));
    cancelar_->setText(TextoForma("Botones", "Cancelar", "Cancel"));
    label2_->setText(Texto(ListaPgn::Label2));
    tituloBase_ = TextoForma("Pgn", "Titulo", "PGN");
    if (!isVisible()) return;
    if (!GuardandoPgn) setWindowTitle(tituloBase_ + Texto(ListaPgn::Titulo));
    Mostrar();
}

void ListaPgnF::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) AplicarIdioma();
    QWidget::changeEvent(e);
}

void ListaPgnF::ModoDialogo(bool dialogo) {
    for (int i = 1; i <= 5; ++i) command1_[i]->setVisible(!dialogo);
    combo2_->setVisible(!dialogo);
    guardar_->setVisible(dialogo);
    cancelar_->setVisible(dialogo);
    movimientos_->setVisible(!dialogo);
    pestanas_->setTabEnabled(0, !dialogo);
    pestanas_->setCurrentIndex(dialogo ? 1 : 0);
}

void ListaPgnF::Abrir(const QString& ruta) {
    const std::string r = ruta.toStdString();
    AbrirPgn(r);
    setWindowTitle(tituloBase_ + Texto(ListaPgn::Titulo));
    filasMostradas_ = static_cast<size_t>(-1);
    ModoDialogo(false);
    Mostrar();
    show();
    timer_.start(300);
}

void ListaPgnF::AbrirComoDialogo() {
    const EtiquetasPgn e = EtiquetasIniciales();
    for (int i = 0; i < 6; ++i) text1_[i]->setText(Texto(e.valor[i]));
    combo1_->setCurrentIndex(0);
    setWindowTitle(tituloBase_);
    ModoDialogo(true);
    show();
}

void ListaPgnF::Elegir(int fila) {
    const bool autoplay = AutoPlay;
    if (!ElegirPartidaPgn(fila)) return;
    if (autoplay) autoPlay_.stop();
    Mostrar();
    timer_.start(10);
}

void ListaPgnF::Cargar() {
    CargarPartidaPgn();
    Mostrar();
    emit TableroCambiado();
}

void ListaPgnF::Boton(int elemento) {
    movimientos_->setFocus();
    PulsarBotonPgn(elemento);
    if (elemento == 5) {
        if (AutoPlay)
            autoPlay_.start(std::max(50, combo2_->currentText().toInt()));
        else
            autoPlay_.stop();
    }
    Mostrar();
    emit TableroCambiado();
}

// The logic's state onto the controls.
void ListaPgnF::Mostrar() {
    if (filasMostradas_ != ListaPgn::Eventos.size()) {
        modelo_->Refrescar();
        filasMostradas_ = ListaPgn::Eventos.size();
    }
    mostrando_ = true;
    if (ListaPgn::EventosIndice >= 0)
        eventos_->setCurrentIndex(modelo_->index(ListaPgn::EventosIndice));
    mostrando_ = false;
    label2_->setText(Texto(ListaPgn::Label2));
    cuenta_->setText(Texto(ListaPgn::EtiquetaCuenta));
    if (!GuardandoPgn) {
        for (int i = 0; i < 6; ++i) text1_[i]->setText(Texto(ListaPgn::Text1[i]));
        combo1_->setItemText(0, ListaPgn::Combo1.empty() ? "*" : Texto(ListaPgn::Combo1));
    }
    // Another game's moves: the view is told once, not at every step through them.
    const std::string primera =
        ListaPgn::PgnMovimientos.empty() ? std::string() : ListaPgn::PgnMovimientos.front();
    if (movimientosMostrados_ != ListaPgn::PgnMovimientos.size() || primeraMostrada_ != primera) {
        modeloMovimientos_->Refrescar();
        movimientosMostrados_ = ListaPgn::PgnMovimientos.size();
        primeraMostrada_ = primera;
    }
    if (ListaPgn::PgnMovimientosIndice >= 0 &&
        ListaPgn::PgnMovimientosIndice < modeloMovimientos_->rowCount())
        movimientos_->setCurrentIndex(modeloMovimientos_->index(ListaPgn::PgnMovimientosIndice));
    for (int i = 1; i <= 4; ++i) {
        command1_[i]->setEnabled(BotonesNavegacion);
        command1_[i]->setToolTip(TextoForma("Tips", kTips[i], kTipsPorDefecto[i]));
    }
    command1_[5]->setToolTip(AutoPlay ? TextoForma("Tips", "23", "Stop")
                                      : TextoForma("Tips", "22", "Auto"));
    command1_[5]->setIcon(
        style()->standardIcon(AutoPlay ? QStyle::SP_MediaStop : QStyle::SP_MediaPlay));
    if (!AutoPlay) autoPlay_.stop();
    mini_->CopiarTablero();
}

bool ListaPgnF::eventFilter(QObject* o, QEvent* e) {
    if (o == movimientos_ && e->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent*>(e)->key();
        const int codigo = tecla == Qt::Key_Left    ? 37
                           : tecla == Qt::Key_Up    ? 38
                           : tecla == Qt::Key_Right ? 39
                           : tecla == Qt::Key_Down  ? 40
                                                    : 0;
        if (codigo && TeclaPgn(codigo)) {
            Mostrar();
            emit TableroCambiado();
            return true;
        }
    }
    return QWidget::eventFilter(o, e);
}

void ListaPgnF::closeEvent(QCloseEvent* e) {
    autoPlay_.stop();
    timer_.stop();
    AutoPlay = false;
    BotonesNavegacion = true;
    if (GuardandoPgn) {
        CancelarEtiquetasPgn();
    } else {
        VariablesCero();
        PonerFichas();
        Turno = 0;
        ListaPgn::Descargar();
        emit Cerrado();
    }
    e->accept();
}

} // namespace qa
