#include "frame/Impostazioni.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

#include "frame/Errori.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/LetturaNumero.h"
#include "frame/Messaggi.h"
#include "frame/MotivoFile.h"
#include "frame/Numeri.h"

namespace sagomi {

namespace {

constexpr const char* versioneFile = "7.8"; // of what is written, whatever the version of the program
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
        std::string versione = versioneFile;
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

/// Puts back what cannot be, and keeps the names of what it has put back.
class Riparazione {
public:
    void Valore(const std::string& nome, Singolo& valore, const Limiti& limiti, double predefinito) {
        if (limiti.Comprende(valore))
            return;
        valore = predefinito;
        generale.ImpostazioniCorrette.push_back(nome);
    }

    /// The first lines of a table have their own defaults, any other that of the first.
    void Tabella(const std::string& nome, Tabella1<Singolo>& tabella, const Limiti& limiti,
                 const Tabella1<Singolo>& predefinita) {
        for (int i = 1; i <= tabella.n(); ++i)
            Valore(nome + "[" + std::to_string(i) + "]", tabella[i], limiti,
                   predefinita[i <= predefinita.n() ? i : 1]);
    }

    void Indice(const std::string& nome, std::int16_t& indice, std::int16_t n) {
        if (indice >= 0 && indice < n)
            return;
        indice = 0;
        generale.ImpostazioniCorrette.push_back(nome);
    }

    /// A factor of 0 has never been given.
    void Fattore(const std::string& nome, Singolo& fattore) {
        constexpr double neutro = 1;
        if (fattore == 0)
            fattore = neutro;
        Valore(nome, fattore, limitiGamma, neutro);
    }
};

void RiparaImpostazioni() {
    const Impostazioni predefinite;
    Riparazione r;
    r.Tabella("fyAcciaio", fyAcciaio, limitiResistenza, predefinite.fyAcciaio);
    r.Tabella("fuAcciaio", fuAcciaio, limitiResistenza, predefinite.fuAcciaio);
    r.Tabella("ClasseBullone", ClasseBullone, limitiRapporto, predefinite.ClasseBullone);
    r.Valore("fck", fck, limitiResistenza, predefinite.fck);
    r.Valore("fsk", fsk, limitiResistenza, predefinite.fsk);
    r.Valore("CoeffOmogeneizzazione", CoeffOmogeneizzazione, limitiRapporto,
             predefinite.CoeffOmogeneizzazione);
    r.Fattore("GammaM0", GammaM0Altro);
    r.Fattore("GammaM1", GammaM1Altro);
    r.Fattore("GammaM2", GammaM2Altro);
    r.Indice("IndiceAcciaio", IndiceAcciaio, NumAcciai);
    r.Indice("IndiceClasseBullone", IndiceClasseBullone, NumClassiBulloni);
    r.Indice("Normativa", Normativa, normativaAltro + 1);
}

constexpr std::string_view nomeFile = "Sagomi.ini";

std::filesystem::path PercorsoFile() { return PercorsoSenzaMaiuscole(PathProgramma, nomeFile); }

bool MuoveFile(std::string_view modo) {
    const std::int16_t nFile = ApreFile(PercorsoFile(), modo);
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

bool Legge() {
    generale.ImpostazioniCorrette.clear();
    const bool riuscito = MuoveInSilenzio("L");
    if (riuscito) {
        RiparaImpostazioni();
    } else {
        ImpostazioniPredefinite();
        Versione.clear();
    }
    generale.ImpostazioniScritte = generale;
    return riuscito;
}

/// A failed writing is not tried again before the next change.
bool Scrive() {
    const bool riuscito = MuoveInSilenzio("S");
    generale.ImpostazioniScritte = generale;
    return riuscito;
}

/// The box names the file and the reason in its title.
void AvvisaIncompleta() {
    const std::filesystem::path file = PercorsoFile();
    Avvisa("Scrittura incompleta del file", file.filename().string() + ": " + MotivoNonScritto(file));
}

} // namespace

bool IniLeggeScrive(std::string_view modo) {
    if (modo == "L")
        return Legge();
    const bool riuscito = modo == "S" && Scrive();
    if (modo == "S" && !riuscito && !ServerAttivo)
        AvvisaIncompleta();
    return riuscito;
}

bool ScriveImpostazioniCambiate() {
    if (!generale.ImpostazioniScritte || *generale.ImpostazioniScritte == generale || Scrive())
        return true;
    if (!ServerAttivo && !std::exchange(generale.ScritturaAvvisata, true))
        AvvisaIncompleta();
    return false;
}

std::string AvvisoImpostazioni() {
    constexpr std::size_t nomiMostrati = 6; // what a line holds
    const std::vector<std::string>& corrette = generale.ImpostazioniCorrette;
    std::string nomi;
    for (std::size_t i = 0; i < std::min(corrette.size(), nomiMostrati); ++i)
        nomi += (i == 0 ? "" : ", ") + corrette[i];
    if (corrette.size() > nomiMostrati)
        nomi += " e altri " + std::to_string(corrette.size() - nomiMostrati);
    return nomi.empty()
               ? nomi
               : std::string(nomeFile) + ": valori non ammessi di " + nomi + ", riportati ai predefiniti";
}

} // namespace sagomi
