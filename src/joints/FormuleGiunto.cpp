#include "joints/FormuleGiunto.h"

#include <array>
#include <stdexcept>

#include "frame/Errori.h"
#include "frame/FileDati.h"
#include "frame/LetturaFile.h"
#include "joints/Giunto.h"

namespace sagomi {

namespace {

constexpr std::string_view inizioTesto = "START-RTF-GIUNTO";
constexpr std::string_view inizioTag = "ID-RTF-GIUNTO-";
constexpr std::string_view fineRtf = "\r\n\\par }}";
constexpr std::size_t byteMassimi = std::size_t{4} << 20U;
constexpr int fileNonTrovato = 53, percorsoNonAccessibile = 75, argomentoNonValido = 5;

/// Of an id; a blank, a line break or the end follows it.
bool FineId(std::string_view testo, std::size_t posto) {
    return posto >= testo.size() || testo[posto] == '\r' || testo[posto] == '\n' || testo[posto] == ' ';
}

/// Where the tag stands whole: one that goes on is that of another quantity.
std::size_t PostoTag(std::string_view testo, const std::string& tag) {
    std::size_t posto = testo.find(tag);
    while (posto != std::string_view::npos && !FineId(testo, posto + tag.size()))
        posto = testo.find(tag, posto + 1);
    return posto;
}

struct VoceFormula {
    std::string_view controllo, id;
};

constexpr std::array<VoceFormula, 77> voci{{
    {"Textd", "Diam"},
    {"CboDiametriBulloni", "Diam"},
    {"Textd0", "d0"},
    {"Textdw", "rond_d2"},
    {"Textlb", "lb"},
    {"Textaf", "Af"},
    {"Textaw", "aw"},
    {"Textec", "ec"},
    {"Textmc", "mc"},
    {"Textmf", "mf"},
    {"Textm1", "m2"},
    {"Textm2", "mx"},
    {"Textw", "w"},
    {"Textp", "pint"},
    {"Texthf", "hf"},
    {"Texttf", "tf"},
    {"Textbf", "bf"},
    {"Textef", "ef"},
    {"Textex", "ex"},
    {"Textd2", "d2"},
    {"Textdx", "dX"},
    {"Textu", "u"},
    {"Texttf_1", "tf_max"},
    {"TextL", "L_max"},
    {"Textu_1", "u_max"},
    {"Txt_L_Irr_0", "Irr_L1"},
    {"Txt_L_Irr_1", "Irr_L2"},
    {"Txt_S_Irr", "Irr_Spessore"},
    {"Txt_B_Irr", "Irr_B"},
    {"Txt_Sal_Irr", "Irr_a"},
    {"txtF1", "VplRd_Pannello_c"},
    {"txtF2", "FcRd_Anima_c"},
    {"txtF3", "NbRd_Anima_c"},
    {"txtF4", "Bt_Rd"},
    {"txtF5", "FtRd_Anima_c"},
    {"txtF6", "Ftrd_FilaInf_c"},
    {"txtF6_0", "Ftrd_FilaInf_c"},
    {"txtF6_1", "Ftrd_FilaSup_c"},
    {"txtF6_0Ridistr", "Ftrd_FilaInfRid_c"},
    {"txtF6_1Ridistr", "Ftrd_FilaSupRid_c"},
    {"txtF7", "FtRd_FilaInf_f"},
    {"txtF7_0", "FtRd_FilaInf_f"},
    {"txtF7_1", "FtRd_FilaSup_f"},
    {"txtF8", "FtRd_Anima_t"},
    {"txtFmin0", "FtRd_EffInf"},
    {"txtFmin1", "FtRd_EffSup"},
    {"txtMrdTrave", "McyRd"},
    {"TxtMjRd", "MplRdGIUNTO"},
    {"TxtMel", "M_elastico"},
    {"TxtVrd0", "Vrd0"},
    {"TxtVrd1", "Vrd1"},
    {"ResistenzaGiunto", "ResistenzaGiunto"},
    {"TxtSj_0", "Sj_MjRd"},
    {"TxtSj_1", "Sj_Mela"},
    {"TxtSj_2", "Sj_MjSd"},
    {"txtLimite_0", "LimiteRigido2"},
    {"txtLimite_1", "LimiteRigido1"},
    {"txtLimite_2", "LimiteCerniera"},
    {"RigidezzaGiunto1", "RigidezzaGiunto1"},
    {"RigidezzaGiunto2", "RigidezzaGiunto1"},
    {"txtK_0", "k1"},
    {"txtK_1", "k2"},
    {"txtK_2", "k4"},
    {"txtK_3", "k5"},
    {"txtK_4", "k6"},
    {"txtK_5", "k6_Estesa"},
    {"txtK_6", "k3"},
    {"txtmu_0", "mu1"},
    {"txtmu_1", "mu2"},
    {"txtmu_2", "mu4"},
    {"txtmu_3", "mu5"},
    {"txtmu_4", "mu6"},
    {"txtmu_5", "mu6_Estesa"},
    {"txtmu_6", "mu3"},
    {"TxtCoef_0", "Beta"},
    {"TxtCoef_1", "Kwc"},
    {"TxtCoef_2", "Kfc"},
}};

} // namespace

std::optional<std::string> TestoFormula(std::string_view rtf, std::string_view id) {
    const std::size_t inizio = rtf.find(inizioTesto);
    if (inizio == std::string_view::npos || id.empty())
        return {};
    const std::string_view testa = rtf.substr(0, inizio);
    rtf.remove_prefix(inizio + inizioTesto.size());
    const std::string tag = std::string(inizioTag) + std::string(id);
    const std::size_t apre = PostoTag(rtf, tag);
    const std::size_t riga = apre == std::string_view::npos ? apre : rtf.find('\n', apre + tag.size());
    if (riga == std::string_view::npos)
        return {};
    rtf.remove_prefix(riga + 1);
    const std::size_t chiude = PostoTag(rtf, tag);
    if (chiude == std::string_view::npos)
        return {};
    return std::string(testa) + std::string(rtf.substr(0, chiude)) + std::string(fineRtf);
}

std::string LeggeFormula(const std::filesystem::path& cartella, std::string_view id) {
    const std::filesystem::path file = PercorsoSenzaMaiuscole(cartella, fileFormule);
    const std::string nome(fileFormule);
    std::error_code errore;
    if (!std::filesystem::exists(file, errore))
        throw ErroreNumerato("File non trovato: " + nome, fileNonTrovato);
    FileLetto letto;
    try {
        letto = LeggeFile(file, byteMassimi);
    } catch (const std::runtime_error& e) {
        throw ErroreNumerato("Errore di accesso al file " + nome + ": " + e.what(), percorsoNonAccessibile);
    }
    const auto testo =
        TestoFormula({reinterpret_cast<const char*>(letto.byte.data()), letto.byte.size()}, id);
    if (!testo)
        throw ErroreNumerato("Il file " + nome + " non ha la formula di " + std::string(id),
                             argomentoNonValido);
    return *testo;
}

std::string_view IdFormula(std::string_view controllo, const Giunto& giunto) {
    if (controllo == "txtF2" && giunto.ConIrrigidimenti())
        return "FcRd_AnimaIrrigidita_c";
    for (const VoceFormula& voce : voci)
        if (voce.controllo == controllo)
            return voce.id;
    return {};
}

} // namespace sagomi
