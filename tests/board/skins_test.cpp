// Skin folders: listing, loading, and the fall-back to our own set.
#include "board_fixture.h"

#include "board/apariencia.h"

#include "core/game_state.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Variables;

class SkinTest : public TableroTest {
protected:
    void SetUp() override {
        TableroTest::SetUp();
        ASSERT_TRUE(dir.isValid());
        vista->PonerCarpetaApariencias(dir.path());
    }
    // A copy of the coral skin under another name, less the files named.
    void Copiar(const QString& nombre, const QStringList& sin = {}) {
        const QDir origen(QStringLiteral(QA_DATOS "/apariencias/coral"));
        ASSERT_TRUE(origen.exists());
        QDir(dir.path()).mkdir(nombre);
        for (const QString& f : origen.entryList(QDir::Files))
            if (!sin.contains(f))
                QFile::copy(origen.filePath(f), dir.path() + "/" + nombre + "/" + f);
    }
    QTemporaryDir dir;
};

TEST_F(SkinTest, CoralLoadsAndTheListIsInLowerCase) {
    Copiar("Coral");
    const QStringList lista = vista->ActualizarSkins();
    EXPECT_EQ(lista, (QStringList{"(Classic)", "coral"}));
    EXPECT_TRUE(vista->PonerApariencia("coral"));
    ASSERT_TRUE(EsperarRedimension());
    EXPECT_EQ(vista->Apariencia(), "coral");
    EXPECT_EQ(vista->TamanoSkin(), QSize(60, 60));
    EXPECT_TRUE(pic()->ConSkin());
    EXPECT_EQ(EnPantalla(5, 1), Esperada(5, 1, ReyB));
    EXPECT_TRUE(registro.mensajes.empty());
}

TEST_F(SkinTest, MissingPictureFallsBackWithMessage25) {
    Copiar("rota", {"damanf.bmp"});
    QSignalSpy cambio(vista.get(), &qa::VistaTablero::AparienciaCambiada);
    const QImage nuestra = pic()->Imagen().copy();
    EXPECT_FALSE(vista->PonerApariencia("rota"));
    ASSERT_EQ(registro.mensajes.size(), 1u);
    EXPECT_EQ(registro.mensajes[0].titulo, "Quintarena");
    EXPECT_EQ(registro.mensajes[0].texto, "25");
    EXPECT_EQ(registro.mensajes[0].icono, 64);
    ASSERT_EQ(cambio.size(), 1);
    EXPECT_EQ(cambio[0][0].toString(), vista->NombreBase());
    EXPECT_EQ(vista->Apariencia(), vista->NombreBase());
    EXPECT_FALSE(pic()->ConSkin());
    EXPECT_EQ(pic()->Imagen(), nuestra) << "the built-in board, not a blank one";
}

TEST_F(SkinTest, MaskOfAnotherSizeRefusesTheWholeSkin) {
    Copiar("torcida");
    QImage(30, 30, QImage::Format_RGB32).save(dir.path() + "/torcida/torrebf.bmp");
    qa::JuegoFichas s;
    EXPECT_FALSE(qa::Skins(qa::RutaSkin(dir.path(), "TORCIDA"), s));
    EXPECT_FALSE(vista->PonerApariencia("torcida"));
    EXPECT_EQ(registro.mensajes.size(), 1u);
}

TEST_F(SkinTest, NoSkinFolderAtAllFallsBackToo) {
    EXPECT_FALSE(vista->PonerApariencia("nada"));
    EXPECT_EQ(registro.mensajes.size(), 1u);
    EXPECT_EQ(vista->ActualizarSkins(), QStringList{"(Classic)"});
    EXPECT_TRUE(vista->PonerApariencia("(Clásica)")) << "any name in brackets is ours";
    EXPECT_EQ(registro.mensajes.size(), 1u);
}
