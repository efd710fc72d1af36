// Reading and writing each kind of file that needs no Qt (documento_bench.cpp has the others).

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "GenereFile.h"
#include "catalogue/Famiglie.h"
#include "catalogue/LettoreXls.h"
#include "catalogue/SagomoUtente.h"
#include "catalogue/ScrittoreXls.h"
#include "catalogue/ScritturaRighe.h"
#include "composite/AcciaioCls.h"
#include "drawing/Dxf.h"
#include "drawing/Grafica.h"
#include "drawing/SuperficieSvg.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"
#include "joints/DisegnoNodo.h"
#include "joints/FormuleGiunto.h"
#include "joints/Nodo.h"
#include "joints/NodoDisegnato.h"

namespace fs = std::filesystem;
using namespace sagomi;
using misure::GenereFile;

namespace {

/// Runs something on an opened data file and closes it.
bool Aperto(const fs::path& file, std::string_view modo, const std::function<bool(std::int16_t)>& fa) {
    const std::int16_t n = ApreFile(file, modo);
    const bool riuscito = n != 0 && fa(n);
    return n != 0 && ChiudeFile(n) && riuscito;
}

GenereFile Cartella() {
    static CartellaDati dati;
    return {"workbook", fs::path(SAGOMI_BIN) / "Sagomi.xls",
            [](const fs::path& file) { return !(dati = LeggeXls(file)).fogli.empty(); },
            [](const fs::path& file) { return ScriveXls(dati, file), true; }};
}

/// A user's workbook with 50 welded sections; written is one row of it, as the program does: the file is
/// read, the row put in, the file written.
GenereFile CartellaUtente(const fs::path& cartella) {
    CartellaDati dati = CartellaUtenteVuota();
    Foglio& foglio = dati.fogli.front();
    const std::size_t colonne = foglio.righe.front().size();
    for (std::size_t r = 1; r <= 50; ++r) {
        foglio.Scrive(r, 0, "mia " + std::to_string(r));
        for (std::size_t c = 1; c < colonne; ++c)
            foglio.Scrive(r, c, static_cast<double>(r * 40 + c) / 8);
    }
    const fs::path file = cartella / cartellaUtente;
    ScriveXls(dati, file);
    const RigaScritta riga{25, {std::string("mia 25"), 12.5}};
    const auto scrive = [file, riga, tabella = NomeTabella(foglio.nome)](const fs::path& scritto) {
        if (!fs::exists(scritto))
            fs::copy_file(file, scritto);
        return !ScriveRighe(scritto, ImprontaDi(scritto), tabella, {riga}).righe.empty();
    };
    return {"user_workbook", file, [](const fs::path& f) { return !LeggeXls(f).fogli.empty(); }, scrive};
}

GenereFile FileGiunto() {
    static Nodo nodo;
    return {"joint", fs::path(SAGOMI_TEST_FILES) / "fuzz/corpus/nodo/due_due_file",
            [](const fs::path& file) {
                return Aperto(file, "L", [](std::int16_t n) { return nodo.AperturaFile(n); });
            },
            [](const fs::path& file) {
                return Aperto(file, "S", [](std::int16_t n) { return nodo.Input_Output("S", n); });
            }};
}

GenereFile FileTrave() {
    static AcciaioCls trave;
    return {"beam", fs::path(SAGOMI_TEST_FILES) / "data/composite/piena.sco",
            [](const fs::path& file) {
                return Aperto(file, "L", [](std::int16_t n) { return trave.FileLeggeScrive("L", n); });
            },
            [](const fs::path& file) {
                return Aperto(file, "S", [](std::int16_t n) { return trave.FileLeggeScrive("S", n); });
            }};
}

/// The settings have one place: the folder of the program.
GenereFile FileImpostazioni(const fs::path& cartella) {
    PathProgramma = cartella;
    IniLeggeScrive("S");
    return {"settings", cartella / "Sagomi.ini", [](const fs::path&) { return IniLeggeScrive("L"); },
            [](const fs::path&) { return IniLeggeScrive("S"); }};
}

/// Draws a joint in its views on a device.
void Disegna(std::string_view dispositivo, Superficie* superficie) {
    static const Disegno disegno = DisegnoNodo(prove::NodoDisegnato(nodoT, 2, "Si"));
    const StatoUscita prima;
    OggettoGrafico = superficie;
    Dispositivo = dispositivo;
    ColorePenna = pennaInchiostro;
    disegno.PlottaInOggetto(superficie, "frmGiunti");
}

GenereFile FileDxf() {
    return {"dxf", {}, {}, [](const fs::path& file) {
                std::int16_t n = 0;
                if (!DxfApre(file, n))
                    return false;
                Disegna(dispositivoDxf, nullptr);
                return DxfChiude();
            }};
}

GenereFile FileSvg() {
    return {"svg", {}, {}, [](const fs::path& file) {
                SuperficieSvg svg;
                Disegna(dispositivoSvg, &svg);
                return ScriveAtomico(file, svg.Documento());
            }};
}

/// The text of one formula of a joint, which lies in the middle of the file.
GenereFile FileFormule() {
    const fs::path cartella = SAGOMI_DATA;
    return {"formulas",
            cartella / fileFormule,
            [cartella](const fs::path&) { return !LeggeFormula(cartella, "k6").empty(); },
            {}};
}

} // namespace

int main(int argc, char** argv) {
    const misure::CartellaMisure cartella;
    ImpostaGamma();
    for (const GenereFile& genere :
         {Cartella(), CartellaUtente(cartella.percorso), FileGiunto(), FileTrave(),
          FileImpostazioni(cartella.percorso), FileDxf(), FileSvg(), FileFormule()})
        Registra(genere, cartella.percorso);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
