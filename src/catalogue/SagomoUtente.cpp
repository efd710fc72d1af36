#include "catalogue/SagomoUtente.h"

#include <algorithm>
#include <cmath>
#include <system_error>

#include "catalogue/Catalogo.h"
#include "catalogue/Famiglie.h"
#include "catalogue/Lettore.h"
#include "catalogue/ScrittoreXls.h"
#include "catalogue/ScritturaRighe.h"
#include "frame/Messaggi.h"
#include "sections/AreaEfficace.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace fs = std::filesystem;

CartellaDati CartellaUtenteVuota() {
    CartellaDati cartella;
    for (const FamigliaSchermo& famiglia : FamiglieSchermi()) {
        if (famiglia.foglioUtente.empty())
            continue;
        Foglio& foglio = cartella.fogli.emplace_back();
        foglio.nome = famiglia.foglioUtente;
        for (std::size_t c = 0; c < famiglia.intestazioni.size(); ++c)
            foglio.Scrive(0, c, std::string(famiglia.intestazioni[c]));
        foglio.Scrive(0, 0, std::string("designation")); // written small here, unlike the shipped sheets
    }
    return cartella;
}

void InstallaCartellaUtente(const fs::path& file) {
    std::error_code errore;
    if (!fs::exists(fs::symlink_status(file, errore)))
        ScriveXls(CartellaUtenteVuota(), file);
}

bool PiattiSaldati::Accettabili() const {
    const double bInf = b2.value_or(b);
    const double tInf = tf2.value_or(tf);
    const bool sopraZero =
        std::ranges::all_of(std::vector{h, b, tf, tw, bInf, tInf}, [](double x) { return x > 0 && x < 1e6; });
    return sopraZero && r >= 0 && tf + tInf + 2 * r < h && tw + 2 * r <= std::min(b, bInf);
}

PiattiSaldati PiattiDi(const SezioneDoppioT& s) {
    PiattiSaldati p{.h = s.h, .b = s.b, .tf = s.tf, .tw = s.tw, .r = s.r, .b2 = {}, .tf2 = {}};
    if (s.SaldataAsimm) {
        p.b2 = s.bAlaInf;
        p.tf2 = s.tAlaInf;
    }
    return p;
}

void InizializzaSaldata(SezioneDoppioT& sezione, const PiattiSaldati& p, MostraVplRd* schermo) {
    {
        const MessaggiTaciuti quiet; // the next run says it
        sezione.InizializzaSezioneUtente(schermo, p.h, p.b, p.tw, p.tf, p.r, p.b2, p.tf2);
    }
    InizializzaConAreaEfficace(sezione, schermo);
}

std::string NomeUtente(std::string nome) {
    for (std::size_t i = 0; (i = nome.find('"', i)) != std::string::npos; i += 2)
        nome.replace(i, 1, "''");
    return nome;
}

std::vector<Valore> Completati(const Lettore& riga, RigheDoppioT righe,
                               const std::function<void(SezioneDoppioT&)>& prepara) {
    SezioneDoppioT s;
    LeggeRiga(riga, s, righe);
    prepara(s);
    InizializzaConAreaEfficace(s);
    const PiattiSaldati piatti = PiattiDi(s);
    if (!s.ErroreDatiDatabase || !piatti.Accettabili())
        return {};
    InizializzaSaldata(s, piatti);
    return CampiRiga(s, righe);
}

int CompletaRighe(const fs::path& file, std::string_view tabella, RigheDoppioT righe,
                  const std::function<void(SezioneDoppioT&)>& prepara) {
    const MessaggiTaciuti quiet;
    Lettore lettore;
    lettore.DatabaseName(file);
    lettore.CampiAttesi(CampiDi(righe));
    lettore.RecordSource("SELECT * FROM [" + std::string(tabella) + "]");
    lettore.TabellaModificabile(tabella);
    lettore.Refresh();
    std::vector<RigaScritta> completate;
    for (; !lettore.EOF_(); lettore.MoveNext())
        if (auto campi = Completati(lettore, righe, prepara); !campi.empty())
            completate.push_back({lettore.RigaDelFoglio(lettore.RigaCorrente()), std::move(campi)});
    if (!completate.empty())
        ScriveRighe(file, lettore.Impronta(), tabella, completate);
    return static_cast<int>(completate.size());
}

} // namespace sagomi
