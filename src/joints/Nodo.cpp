#include "joints/Nodo.h"

#include <array>
#include <cmath>
#include <utility>

#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/NumeroPulito.h"
#include "frame/Unita.h"

namespace sagomi {

namespace {

/// Sides of the joints, by kind of node.
constexpr std::array<std::array<const char*, 2>, 4> lati{
    {{"CroceDx", "CroceSn"}, {"Croce_Dx", "Croce_Sn"}, {"TDx", ""}, {"LDx", ""}}};

void AzzeraParametri(Giunto& g) {
    g.IndiceBullone(1);
    g.tf = g.bf = g.ef = g.d2 = g.hf = g.dX = g.ex = g.u = g.L = 0;
}

void ImpostaGiunto(Giunto& g, const char* tipo) {
    g.TipiGiunto = tipo;
    g.nf = 1;
    g.Irrigidimenti = "No";
    g.IndiceBullone(1);
    g.fubl = 800;
    g.Classe = "8.8";
    g.Acquisito = false;
    g.Kwc = g.Kfc = 1;
    g.Criterio1 = true;
    g.Criterio2 = false;
    g.Beta_Cautel = true;
    g.TipoProgetto = g.TipoUscitaProgetto = 0;
}

/// More than a tenth of the axial resistance. The action is in kN, the resistance in N.
bool AssialeEccessivo(const SezioneDoppioT& trave) { return std::abs(trave.NSd) > N_a_kN(0.1 * trave.NplRd); }

void Azioni(SezioneDoppioT& s, double M, double V, double N) {
    s.Mysd = M;
    s.Vsd() = V;
    s.NSd = N;
}

void AzioniGiunto(Giunto& g, double M, double V, double N) {
    g.MbSd = M;
    g.VbSd = V;
    g.NbSd = N;
}

} // namespace

void Nodo::Cambia() {
    if (DueTravi())
        ConnessioneCorrente = Giunti[nGiunto].Usa();
}

void Nodo::CaratterizzaGiunti() {
    if (Tipovie < nodoCroce || Tipovie > nodoL)
        return;
    const auto& nomi = lati[static_cast<std::size_t>(Tipovie)];
    Giunti[1]->TipiGiunto = nomi[0];
    if (Tipovie <= nodoCroceSenzaColonna)
        Giunti[2]->TipiGiunto = nomi[1];
}

void Nodo::LiberaOggetti() {
    ConnessioneCorrente.reset();
    for (int i = 1; i <= 2; ++i)
        if (Giunti[i])
            Giunti[i]->PuntatoreSezioni(nullptr, nullptr);
}

void Nodo::CancellaMemoria() {
    Giunti[1].reset();
    Giunti[2].reset();
    TraveSx.reset();
    TraveDx.reset();
    Colonnainf.reset();
}

void Nodo::No_Acquisito() {
    for (std::int16_t i = 1; i <= NumeroGiunti; ++i)
        NOT_Acquisito(i);
}

void Nodo::NOT_Acquisito(std::int16_t indice) {
    if (Giunti[indice])
        Giunti[indice]->Acquisito = false;
}

void Nodo::AcquisizioneGiunti(bool& Risultato) const {
    Risultato = true;
    for (int i = 1; i <= NumeroGiunti; ++i) {
        const auto& giunto = Giunti[i].Riferimento();
        Risultato = Risultato && (!giunto || giunto->Acquisito);
    }
}

void Nodo::ControllaNTravi(bool& Risultato) {
    Risultato = AssialeEccessivo(*TraveDx) || (DueTravi() && AssialeEccessivo(*TraveSx));
}

/// The section itself where it has no other role yet, else a copy.
std::shared_ptr<SezioneDoppioT> Nodo::Propria(std::shared_ptr<SezioneDoppioT> sezione,
                                              const std::shared_ptr<SezioneDoppioT>& altra1,
                                              const std::shared_ptr<SezioneDoppioT>& altra2) const {
    if (sezione && (sezione == altra1 || sezione == altra2))
        return std::make_shared<SezioneDoppioT>(*sezione);
    return sezione;
}

void Nodo::PuntatoreColonna(std::shared_ptr<SezioneDoppioT> colonna) {
    Colonnainf = Propria(std::move(colonna), TraveDx.Riferimento(), TraveSx.Riferimento());
    PuntatoreColonna();
}

void Nodo::PuntatoreTraveDestra(std::shared_ptr<SezioneDoppioT> trave) {
    TraveDx = Propria(std::move(trave), TraveSx.Riferimento(), Colonnainf);
    PuntatoreTraveDestra();
}

void Nodo::PuntatoreTraveSinistra(std::shared_ptr<SezioneDoppioT> trave) {
    TraveSx = Propria(std::move(trave), TraveDx.Riferimento(), Colonnainf);
    PuntatoreTraveSinistra();
}

void Nodo::PuntatoreColonna() {
    for (int i = 1; i <= NumeroGiunti; ++i)
        Giunti[i]->Colonna = Colonnainf;
}

void Nodo::PuntatoreTraveDestra() { Giunti[1]->PuntatoreSezioni(TraveDx.Usa(), Colonnainf); }

void Nodo::PuntatoreTraveSinistra() { Giunti[2]->PuntatoreSezioni(TraveSx.Usa(), Colonnainf); }

void Nodo::PuntatoreSezioneCorrente(std::shared_ptr<SezioneDoppioT>& trave,
                                    std::shared_ptr<SezioneDoppioT>& colonna) const {
    trave = ConnessioneCorrente ? ConnessioneCorrente->Trave : nullptr;
    colonna = ConnessioneCorrente ? ConnessioneCorrente->Colonna : nullptr;
}

void Nodo::Scrivi_Some_Load(const CasoAzioni& caso) {
    Azioni(*TraveDx, caso.MDx, caso.VDx, caso.NDx);
    AzioniGiunto(*Giunti[1], caso.MDx, caso.VDx, caso.NDx);
    if (DueTravi()) {
        Azioni(*TraveSx, caso.MSx, caso.VSx, caso.NSx);
        AzioniGiunto(*Giunti[2], caso.MSx, caso.VSx, caso.NSx);
    }
    if (Colonnainf)
        Azioni(*Colonnainf, caso.MCol, caso.VCol, caso.NCol);
    VColSup = caso.VSup;
}

void Nodo::ImpostaNodo() {
    Tipovie = nodoCroce;
    NumeroGiunti = 2;
    nGiunto = 1;
    ImpostaGiunto(*Giunti[1], "CroceDx");
    ImpostaGiunto(*Giunti[2], "CroceSx"); // until CaratterizzaGiunti names the sides
    ConnessioneCorrente = Giunti[1].Usa();
}

void Nodo::AzzeraParametriConnessioni() {
    for (int i = 1; i <= NumeroGiunti; ++i)
        if (Giunti[i])
            AzzeraParametri(*Giunti[i]);
}

void Nodo::AzzeraParametriConnessione(std::int16_t indice) { AzzeraParametri(*Giunti[indice]); }

bool Nodo::Controll_Dati(std::string& casella, double& valore) {
    const double letto = ValoreNumerico(casella);
    if (!NumeroPulito(casella) || !std::isfinite(letto)) {
        casella = TestoPiano(valore);
        return false;
    }
    return std::exchange(valore, letto) != letto;
}

bool Nodo::ControllaLunghezza(std::string& casella, double& valore) {
    double letto = valore;
    const bool cambiato = Controll_Dati(casella, letto);
    if (letto < 0) {
        Avvisa("La luce non può essere negativa", "Giunto Flangiato", Icona::Stop);
        casella = TestoPiano(valore);
        return false;
    }
    valore = letto;
    return cambiato;
}

void Nodo::PreparaSalvataggio() {
    const bool una = Tipovie == nodoT || Tipovie == nodoL;
    ConnessioneCorrente = Giunti[una ? 1 : nGiunto].Usa();
}

void Nodo::PreparaProgetto(Giunto& g) {
    AzzeraParametri(g);
    g.tf = g.tf_max;
    g.saldature(0);
    g.tf = 0;
}

} // namespace sagomi
