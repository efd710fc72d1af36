#include <array>
#include <string>

#include "composite/AcciaioCls.h"
#include "composite/MascheraTrave.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

constexpr std::int16_t tipiSoletta = 3;
constexpr std::int16_t tipiVerifica = 4;

bool Lettura(std::string_view modo) { return modo == "L"; }

/// A text as a record can hold it: a quote inside becomes two apostrophes.
std::string SenzaVirgolette(std::string testo) {
    for (std::size_t i = testo.find('"'); i != std::string::npos; i = testo.find('"', i))
        testo.replace(i, 1, "''");
    return testo;
}

/// A kind that does not exist is no whole file.
bool Esiste(std::int16_t tipo, std::int16_t tipi) {
    if (tipo >= 0 && tipo < tipi)
        return true;
    Avvisa("Lettura incompleta del file");
    Avvisa("Valore fuori dai limiti: " + std::to_string(tipo));
    return false;
}

void NumeroLeggeScrive(CampiMaschera& maschera, std::string_view modo, std::string_view controllo, int indice,
                       Singolo& valore) {
    if (Lettura(modo))
        valore = ValoreNumerico(maschera.Testo(controllo, indice));
    else
        maschera.Testo(controllo, indice, TestoPiano(valore));
}

} // namespace

std::string TestoMomento(Singolo Nmm) {
    const double kNm = Nmm_a_kNm(Nmm);
    std::string corto = TestoPiano(Singolo(kNm));
    const bool torna = Singolo(kNm_a_Nmm(ValoreNumerico(corto))).Stretto() == Nmm.Stretto();
    return torna ? corto : TestoPiano(kNm);
}

void AcciaioCls::DatiGrecataLeggeScrive(CampiMaschera& maschera, std::string_view modo) {
    int indice = 0;
    for (const Singolo* dato : {&ha, &bb, &bs, &iNervature, &b0t}) {
        if (Lettura(modo))
            DatoLamiera(maschera.Testo("TxtLam", indice), indice);
        else
            maschera.Testo("TxtLam", indice, TestoPiano(*dato));
        ++indice;
    }
}

void AcciaioCls::DatiSolettaLeggeScrive(CampiMaschera& maschera, std::string_view modo) {
    int indice = 1;
    for (Singolo* dato : {&hc, &beff, &As, &c, &CoeffOmogeneizzazione})
        NumeroLeggeScrive(maschera, modo, "txtDati", indice++, *dato);
    NumeroLeggeScrive(maschera, modo, "Txt_fck", CampiMaschera::campoSolo, fck);
    NumeroLeggeScrive(maschera, modo, "Txt_fsk", CampiMaschera::campoSolo, fsk);
    if (Lettura(modo))
        Msd = kNm_a_Nmm(ValoreNumerico(maschera.Testo("Txt_M", CampiMaschera::campoSolo)));
    else
        maschera.Testo("Txt_M", CampiMaschera::campoSolo, TestoMomento(Msd));
}

void AcciaioCls::DatiProgettoLeggeScrive(MascheraTrave& maschera, std::string_view modo) {
    if (Lettura(modo)) {
        Titolo = maschera.Testo("txtTitolo", CampiMaschera::campoSolo);
        return;
    }
    maschera.Testo("txtTitolo", CampiMaschera::campoSolo, Titolo);
    maschera.Opzione("OptTipoSoletta", TipoSoletta);
    maschera.Opzione("OpTipoVerifica", TipoVerifica);
}

bool AcciaioCls::RecordLeggeScrive(std::string_view modo, std::int16_t nFile, Singolo& n,
                                   Singolo& resistenzaCls, Singolo& snervamentoBarre) {
    return FileInOut(modo, nFile, {&Titolo}) && FileInOut(modo, nFile, {&TipoSoletta, &TipoVerifica}) &&
           FileInOut(modo, nFile, {&hc, &beff, &As, &c, &n, &resistenzaCls, &snervamentoBarre}) &&
           FileInOut(modo, nFile, {&ha, &bb, &bs, &iNervature, &b0t}) &&
           FileInOut(modo, nFile, {&Msd, &Luce}) && FileInOut(modo, nFile, {&hPiolo, &dPiolo}) &&
           FileInOut(modo, nFile, {&TipoConnettore});
}

bool AcciaioCls::LeggeScrive(std::string_view modo, std::int16_t nFile) {
    AcciaioCls altra;
    Singolo n = CoeffOmogeneizzazione;
    Singolo resistenzaCls = fck;
    Singolo snervamentoBarre = fsk;
    if (!Lettura(modo)) {
        altra = *this;
        altra.Titolo = SenzaVirgolette(Titolo);
    }
    if (!altra.RecordLeggeScrive(modo, nFile, n, resistenzaCls, snervamentoBarre))
        return false;
    if (!Lettura(modo))
        return true;
    if (!Esiste(altra.TipoSoletta, tipiSoletta) || !Esiste(altra.TipoVerifica, tipiVerifica))
        return false;
    altra.Sezione = Sezione;
    *this = std::move(altra);
    CoeffOmogeneizzazione = n;
    fck = resistenzaCls;
    fsk = snervamentoBarre;
    return true;
}

bool AcciaioCls::FileLeggeScrive(std::string_view modo, std::int16_t nFile) {
    SezioneDoppioT sezione;
    if (!Lettura(modo) && Sezione) {
        sezione = *Sezione;
        sezione.Designation = SenzaVirgolette(sezione.Designation);
        sezione.TipoAcciaio = SenzaVirgolette(sezione.TipoAcciaio);
    }
    if (!sezione.LeggeScrive(modo, nFile) || !LeggeScrive(modo, nFile))
        return false;
    if (Lettura(modo))
        Sezione = std::make_shared<SezioneDoppioT>(sezione);
    return true;
}

} // namespace sagomi
