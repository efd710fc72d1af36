#include "frame/Impostazioni.h"

#include <cstdint>
#include <string>

#include "frame/Errori.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/LetturaNumero.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"

namespace sagomi {

namespace {

constexpr double versioneNormativa = 7.7; // the first that keeps the code of rules and the user's own factors

double NumeroVersione(std::string_view versione) { return LeggeNumero<double>(versione).valore; }

/// Files before 7.7 hold the number of grades as a text, in front of everything else.
bool NumeroDaTesto(std::string_view testo, std::int16_t& numero) {
    const NumeroLetto<double> letto = LeggeNumero<double>(testo);
    if (letto.fine == 0 || letto.fine != testo.size())
        return false;
    try {
        numero = A16Bit(letto.valore);
    } catch (const ErroreAritmetico&) {
        return false;
    }
    return true;
}

/// The records of the file, in their order, in both directions.
class Records {
public:
    Records(std::string_view modo, std::int16_t nFile) : modo_(modo), nFile_(nFile) {}

    bool Muove() { return Intestazione() && Acciai() && Bulloni() && Cemento() && Norme(); }

private:
    [[nodiscard]] bool Legge() const { return modo_ == "L"; }
    bool Campi(const std::vector<Campo>& campi) { return FileInOut(modo_, nFile_, campi); }

    /// Whether the file knows the records that came with version 7.7.
    [[nodiscard]] bool Recente() const { return !Legge() || NumeroVersione(Versione) >= versioneNormativa; }

    bool Intestazione() {
        std::string primo = TestoPiano(NumAcciai);
        std::string versione = versioneProgramma;
        const bool coppia = !Legge() || SeguonoVirgolette(nFile_);
        if (!(coppia ? FileInOutCoppia(modo_, nFile_, primo, versione, "") : Campi({&primo})))
            return false;
        if (Legge())
            Versione = coppia ? versione : "";
        return Recente() ? Campi({&NumAcciai}) : NumeroDaTesto(primo, NumAcciai);
    }

    bool Acciai() {
        if (NumAcciai < 1)
            return false;
        if (Legge()) {
            NomeAcciaio.Dimensiona(NumAcciai);
            fyAcciaio.Dimensiona(NumAcciai);
            fuAcciaio.Dimensiona(NumAcciai);
        }
        for (int i = 1; i <= NumAcciai; ++i)
            if (!Campi({&NomeAcciaio[i]}) || !Campi({&fyAcciaio[i]}) || !Campi({&fuAcciaio[i]}))
                return false;
        return Campi({&IndiceAcciaio});
    }

    bool Bulloni() {
        if (!Campi({&NumClassiBulloni}) || NumClassiBulloni < 1)
            return false;
        if (Legge())
            ClasseBullone.Dimensiona(NumClassiBulloni);
        for (int i = 1; i <= NumClassiBulloni; ++i)
            if (!Campi({&ClasseBullone[i]}))
                return false;
        return Campi({&IndiceClasseBullone});
    }

    bool Cemento() { return Campi({&fck}) && Campi({&fsk}) && Campi({&CoeffOmogeneizzazione}); }

    bool Norme() {
        if (Recente())
            return Campi({&Normativa}) && Campi({&GammaM0Altro, &GammaM1Altro, &GammaM2Altro});
        Normativa = normativaEC3;
        GammaM0Altro = GammaM1Altro = GammaM2Altro = Singolo(0);
        return true;
    }

    std::string_view modo_;
    std::int16_t nFile_;
};

void Ripara(Singolo& valore, double predefinito) {
    if (!(valore > 0))
        valore = predefinito;
}

void RiparaIndice(std::int16_t& indice, std::int16_t n) {
    if (indice < 0 || indice >= n)
        indice = 0;
}

/// What was read, made usable.
void RiparaImpostazioni() {
    for (Singolo* fattore : {&GammaM0Altro, &GammaM1Altro, &GammaM2Altro})
        if (*fattore == 0)
            *fattore = 1;
    Ripara(fck, 25);
    Ripara(fsk, 430);
    Ripara(CoeffOmogeneizzazione, 15);
    RiparaIndice(IndiceAcciaio, NumAcciai);
    RiparaIndice(IndiceClasseBullone, NumClassiBulloni);
    RiparaIndice(Normativa, normativaAltro + 1);
}

bool MuoveFile(std::string_view modo) {
    const std::int16_t nFile = ApreFile(PercorsoSenzaMaiuscole(PathProgramma, "Sagomi.ini"), modo);
    if (nFile == 0)
        return false;
    if (Records(modo, nFile).Muove())
        return ChiudeFile(nFile);
    AbbandonaFile(nFile);
    return false;
}

bool MuoveInSilenzio(std::string_view modo) {
    const PrimitiveSilenziose silenzio;
    return MuoveFile(modo);
}

} // namespace

bool IniLeggeScrive(std::string_view modo) {
    const bool riuscito = MuoveInSilenzio(modo);
    if (modo == "L" && riuscito)
        RiparaImpostazioni();
    if (modo == "L" && !riuscito) {
        ImpostazioniPredefinite();
        Versione.clear();
    }
    if (modo == "S" && !riuscito && !ServerAttivo)
        Avvisa("Scrittura incompleta del file");
    return riuscito;
}

} // namespace sagomi
