#include "joints/RelazioneGiunto.h"

#include "joints/Nodo.h"
#include "joints/TestiGiunto.h"

namespace sagomi {

namespace {

constexpr std::string_view mm = "[mm]", kN = "[kN]", kNm = "[kNm]", kNm_rad = "[kNm/rad]";

/// Writes the lines of one joint.
class Relatore {
public:
    Relatore(std::vector<VoceRelazione>& righe, const Nodo& nodo, int indice)
        : righe_(righe), nodo_(nodo), testi_(nodo, indice), destro_(indice == 1),
          giunto_(nodo.Giunti[indice].Riferimento().get()) {}

    void Scrive();

private:
    void Riga(std::string_view testo) { righe_.push_back({std::string(testo), {}, {}}); }
    void Valore(std::string_view testo, std::string_view controllo, std::string_view unita = {});
    void Testo(std::string_view controllo);

    void Sagomi();
    void Bulloni();
    void Saldature();
    void Flangia();
    void Irrigidimenti();
    void Resistenze();
    void Coefficienti(std::string_view titolo, const std::string& vettore);
    void Efficaci();
    void Tagli();
    void Momenti();
    void Rigidezze();

    [[nodiscard]] bool DueFile() const { return giunto_->nf == 2; }

    std::vector<VoceRelazione>& righe_;
    const Nodo& nodo_;
    TestiGiunto testi_;
    bool destro_;
    const Giunto* giunto_;
};

void Relatore::Valore(std::string_view testo, std::string_view controllo, std::string_view unita) {
    const std::string valore = testi_.Valore(controllo);
    const bool numero = !valore.empty() && valore != testoInfinito;
    righe_.push_back({std::string(testo), valore, std::string(numero ? unita : std::string_view()), true});
}

/// A text of more than one line, as it stands.
void Relatore::Testo(std::string_view controllo) {
    std::string_view resto = testi_[controllo];
    for (std::size_t fine = resto.find("\r\n"); fine != std::string_view::npos; fine = resto.find("\r\n")) {
        Riga(resto.substr(0, fine));
        resto.remove_prefix(fine + 2);
    }
    Riga(resto);
}

void Relatore::Scrive() {
    Riga(std::string("  -------------------------- GIUNTO : ") + (destro_ ? "destro" : "sinistro") +
         " --------------------------");
    if (giunto_ == nullptr || !giunto_->Acquisito || !giunto_->Trave) {
        Riga("non calcolato");
        return;
    }
    Sagomi();
    Bulloni();
    Saldature();
    Flangia();
    Irrigidimenti();
    Resistenze();
    Coefficienti("  ----- Coefficiente di rigidezza dei componenti ------", "txtK_");
    Coefficienti("  ----- Coefficienti correttivi dei componenti ------", "txtmu_");
    Efficaci();
    Tagli();
    Momenti();
    Rigidezze();
}

void Relatore::Sagomi() {
    Riga("     Colonna Inferiore : " + (nodo_.Colonnainf ? nodo_.Colonnainf->Designation : ""));
    Riga("     Trave : " + giunto_->Trave->Designation);
}

void Relatore::Bulloni() {
    Riga("  ---- Bulloni ----");
    Valore("     d = ", "Textd", mm);
    Valore("     d0 = ", "Textd0", mm);
    Valore("     dw = ", "Textdw", mm);
    Valore("     lb = ", "Textlb", mm);
}

void Relatore::Saldature() {
    Riga("  ---- Saldature trave ----");
    Valore("     Ala: af = ", "Textaf", mm);
    Valore("     Anima: aw = ", "Textaw", mm);
}

void Relatore::Flangia() {
    Riga("  ---- Flangia ----");
    Valore("     Spessore: tf = ", "Texttf", mm);
    Valore("     Larghezza: bf = ", "Textbf", mm);
    Valore("     Distanza orizzontale del foro dal bordo (lato flangia): ef = ", "Textef", mm);
    Valore("     Passo orizzontale fori: w = ", "Textw", mm);
    Valore("     Passo verticale fori interni: p = ", "Textp", mm);
    Valore("     Distanza orizzontale del foro dal bordo (lato colonna): ec = ", "Textec", mm);
    Valore("     Distanza orizzontale del foro dall'anima della colonna: mc = ", "Textmc", mm);
    Valore("     Distanza orizzontale del foro dall'anima della trave: mf = ", "Textmf", mm);
    Valore("     Distanza verticale del foro dall'ala della trave: m1 = ", "Textm1", mm);
    if (DueFile()) {
        Valore("     Distanza verticale del foro dall'ala della trave: m2 = ", "Textm2", mm);
        Valore("     Distanza verticale del foro dal bordo della flangia: ex = ", "Textex", mm);
        Valore("     Distanza del bordo inferiore della flangia dall'ala della trave: u = ", "Textu", mm);
    }
    Valore("     Altezza della flangia: hf = ", "Texthf", mm);
}

void Relatore::Irrigidimenti() {
    if (!giunto_->ConIrrigidimenti())
        return;
    Riga("  ---- Irrigidimenti ----");
    Valore("     Spessore = ", "Txt_S_Irr", mm);
    Valore("     Larghezza: B = ", "Txt_B_Irr", mm);
    if (giunto_->Irrigidimenti == "Cp") {
        Valore("     Lunghezza irrigidimenti = ", "Txt_L_Irr_0", mm);
        return;
    }
    Valore("     Lunghezza irrigidimento inferiore = ", "Txt_L_Irr_0", mm);
    Valore("     Lunghezza irrigidimento superiore = ", "Txt_L_Irr_1", mm);
}

void Relatore::Resistenze() {
    Riga("  --------- Resistenza dei singoli componenti ----------");
    Valore("     Anima della colonna a trazione  = ", "txtF5", kN);
    Valore("     Anima della trave a trazione = ", "txtF8", kN);
    Valore("     Singola fila di bulloni a trazione = ", "txtF4", kN);
    Valore("     Ala della colonna a flessione     Fila int. = ", DueFile() ? "txtF6_0" : "txtF6", kN);
    if (DueFile())
        Valore("                                  Fila est. = ", "txtF6_1", kN);
    Valore("     Flangia d'estremità a flessione     Fila int. = ", DueFile() ? "txtF7_0" : "txtF7", kN);
    if (DueFile())
        Valore("                                    Fila est. = ", "txtF7_1", kN);
    Valore("     Anima della colonna a compressione (schiacciamento) = ", "txtF2", kN);
    if (!giunto_->ConIrrigidimenti())
        Valore("     Anima della colonna a compressione (instabilità) = ", "txtF3", kN);
    Valore("     Pannello d'anima della colonna a taglio = ", "txtF1", kN);
}

/// The coefficients k, or their corrections, of the components.
void Relatore::Coefficienti(std::string_view titolo, const std::string& vettore) {
    Riga(titolo);
    Valore("     Pannello d'anima della colonna a taglio = ", vettore + "0");
    Valore("     Anima della colonna a trazione  = ", vettore + "1");
    Valore("     Ala della colonna a flessione     = ", vettore + "2");
    Valore("     Singola fila di bulloni a trazione = ", vettore + "3");
    Valore("     Flangia d'estremità a flessione   = ", vettore + "4");
    Valore("     Anima della colonna a compressione = ", vettore + "6");
}

void Relatore::Efficaci() {
    Riga("  ----------------------------------------------------------------");
    Valore("     Coefficiente riduttivo di taglio beta = ", "TxtCoef_0");
    Valore("     Coefficiente riduttivo Kwc = ", "TxtCoef_1");
    Valore("     Coefficiente riduttivo Kfc = ", "TxtCoef_2");
    Valore("     Resistenza efficace bulloni interni Frd.eff = ", "txtFmin0", kN);
    if (DueFile())
        Valore("     Resistenza efficace bulloni esterni Frd.eff = ", "txtFmin1", kN);
}

void Relatore::Tagli() {
    Valore("     Taglio sollecitante = ", destro_ ? "TxtT_T" : "TxtV_Sn", kN);
    Valore("     Taglio Resistente Giunto Vj.rd (solo fila in zona compressa) = ", "TxtVrd0", kN);
    Valore("     Taglio Resistente Giunto Vj.rd (fila compressa e fila tesa) = ", "TxtVrd1", kN);
}

void Relatore::Momenti() {
    Valore("     Momento sollecitante = ", destro_ ? "TxtM_Dx" : "TxtM_Sn", kNm);
    Valore("     Momento Resistente Elastico del Giunto Mj.rd = ", "TxtMel", kNm);
    Valore("     Momento Resistente Ultimo del Giunto Mj.rd = ", "TxtMjRd", kNm);
    Valore("     Momento Resistente Trave Mrd = ", "txtMrdTrave", kNm);
    Testo("ResistenzaGiunto");
}

void Relatore::Rigidezze() {
    Valore("     Rigidezza rotazionale secante per Mj.Rd Sj = ", "TxtSj_0", kNm_rad);
    Valore("     Rigidezza rotazionale secante per Mj.el Sj = ", "TxtSj_1", kNm_rad);
    Valore("     Rigidezza rotazionale secante per Mj.Sd Sj = ", "TxtSj_2", kNm_rad);
    Valore("     Limite Rigido - Semirigido telaio controventato = ", "txtLimite_0", kNm_rad);
    Valore("     Limite Rigido - Semirigido telaio non controventato = ", "txtLimite_1", kNm_rad);
    Valore("     Limite Semirigido - Cerniera = ", "txtLimite_2", kNm_rad);
    Testo("RigidezzaGiunto1");
    Testo("RigidezzaGiunto2");
}

} // namespace

std::string VoceRelazione::Riga() const {
    return unita.empty() ? testo + valore : testo + valore + ' ' + unita;
}

std::vector<VoceRelazione> VociRelazione(const Nodo& nodo, int indice) {
    std::vector<VoceRelazione> voci;
    Relatore(voci, nodo, indice).Scrive();
    return voci;
}

std::vector<std::string> RigheRelazione(const Nodo& nodo, const TestaRelazione& testa) {
    std::vector<std::string> righe{"   NOME FILE: " + testa.nomeFile, "   DESCRIZIONE: " + testa.descrizione};
    for (int i = 1; i <= nodo.NumeroGiunti; ++i)
        for (const VoceRelazione& voce : VociRelazione(nodo, i))
            righe.push_back(voce.Riga());
    return righe;
}

bool StampaRelazione(const Nodo& nodo, const TestaRelazione& testa,
                     const std::function<bool(std::string_view riga)>& scrive) {
    for (const std::string& riga : RigheRelazione(nodo, testa))
        if (!scrive(riga))
            return false;
    return true;
}

} // namespace sagomi
