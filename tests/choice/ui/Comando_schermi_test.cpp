// What the command line writes against what the screens do.
#include <filesystem>
#include <fstream>
#include <sstream>

#include "choice/Comando.h"
#include "drawing/Dxf.h"
#include "drawing/Grafica.h"
#include "frame/Ambiente.h"
#include "screens/Comandi.h"
#include "screens/PlottaSezioneCorrente.h"

using namespace sagomi;
using namespace sagomi::prove;
namespace fs = std::filesystem;

namespace {

std::string Byte(const fs::path& file) {
    std::ifstream f(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

class ComandoSchermiTest : public AmbienteSchermi {
protected:
    [[nodiscard]] std::string Via(const char* nome) const { return (cartella / nome).string(); }

    CartellaDiProva prova;
    fs::path cartella = prova.percorso;
};

TEST_F(ComandoSchermiTest, ADrawingOfASectionIsThatOfItsScreen) {
    Avvia();
    auto& s = dynamic_cast<SchermoSezione&>(NavigaSchermi::Unico().Prende("frmDoppioT"));
    VaA(s, "IPE 300");
    {
        const StatoUscita before;
        std::int16_t number = 0;
        ASSERT_TRUE(DxfApre(cartella / "schermo.dxf", number));
        Dispositivo = dispositivoDxf;
        OggettoGrafico = nullptr;
        ColorePenna = pennaInchiostro;
        DisegnoSezioneCorrente().PlottaInOggetto(nullptr, "frmDoppioT");
        ASSERT_TRUE(DxfChiude());
    }
    std::istringstream in;
    std::ostringstream out, err;
    EXPECT_EQ(EsegueComando({"IPE 300", "--dxf", Via("comando.dxf")}, PathProgramma, in, out, err), 0)
        << err.str();
    EXPECT_EQ(Byte(cartella / "comando.dxf"), Byte(cartella / "schermo.dxf"));
    EXPECT_GT(fs::file_size(cartella / "comando.dxf"), 1000U);
}

} // namespace
