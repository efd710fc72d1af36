#include "report/Relazione.h"

#include <array>
#include <cmath>
#include <ctime>

#include "frame/Percento.h"
#include "frame/VersioneProgramma.h"

namespace sagomi {

EsitoRelazione VerdettoRelazione::Da(double utilizzo) {
    if (std::isnan(utilizzo))
        return EsitoRelazione::Assente;
    return utilizzo <= 1 ? EsitoRelazione::Passa : EsitoRelazione::NonPassa;
}

EsitoRelazione Relazione::Esito() const {
    bool qualcuno = false;
    bool manca = false;
    for (const CapitoloRelazione& c : capitoli) {
        if (!c.verdetto)
            continue;
        if (c.verdetto->esito == EsitoRelazione::NonPassa)
            return EsitoRelazione::NonPassa;
        manca = manca || c.verdetto->esito == EsitoRelazione::Assente;
        qualcuno = true;
    }
    return qualcuno && !manca ? EsitoRelazione::Passa : EsitoRelazione::Assente;
}

void AdattaDecimali(CapitoloRelazione& capitolo) {
    const std::string separatore = Utf8DaCodice(CarDecimale);
    const auto cifra = [](char c) { return c >= '0' && c <= '9'; };
    for (PassoRelazione& p : capitolo.passi)
        for (std::string* testo : {&p.descrizione, &p.formula, &p.numeri})
            for (std::size_t i = 1; i + 1 < testo->size(); ++i)
                if ((*testo)[i] == ',' && cifra((*testo)[i - 1]) && cifra((*testo)[i + 1]))
                    testo->replace(i, 1, separatore);
}

std::string_view TestoEsito(EsitoRelazione esito) {
    switch (esito) {
    case EsitoRelazione::Passa:
        return "OK";
    case EsitoRelazione::NonPassa:
        return "NO";
    case EsitoRelazione::Assente:
        break;
    }
    return "-";
}

std::string TestoUtilizzo(double utilizzo) {
    return std::isfinite(utilizzo) ? Percento(utilizzo) + " %" : std::string();
}

std::string ProgrammaRelazione() { return "Sagomi " + std::string(versioneProgramma); }

std::string DataRelazione() {
    const std::time_t ora = std::time(nullptr);
    std::tm giorno{};
    if (localtime_r(&ora, &giorno) == nullptr)
        return {};
    std::array<char, 16> testo{};
    const std::size_t lungo = std::strftime(testo.data(), testo.size(), "%d/%m/%Y", &giorno);
    return {testo.data(), lungo};
}

} // namespace sagomi
