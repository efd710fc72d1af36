#include "choice/TabellaScelta.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <utility>

#include "frame/Numeri.h"
#include "frame/Unita.h"

namespace sagomi {

namespace {

constexpr auto forza = "#,##0";
constexpr auto momento = "#,##0.0";
constexpr auto rapporto = "0.000";

double Forza(double N) { return N_a_kN(N); }

/// The weight of a run of figures counts, not their first one: "IPE 80" before "IPE 100".
bool NomePrima(std::string_view a, std::string_view b) {
    const auto cifra = [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; };
    const auto numero = [&](std::string_view s, std::size_t& i) {
        double n = 0;
        for (; i < s.size() && cifra(s[i]); ++i)
            n = n * 10 + (s[i] - '0');
        return n;
    };
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < a.size() && j < b.size()) {
        if (cifra(a[i]) && cifra(b[j])) {
            const double x = numero(a, i);
            const double y = numero(b, j);
            if (x != y)
                return x < y;
        } else if (a[i] != b[j]) {
            return a[i] < b[j];
        } else {
            ++i;
            ++j;
        }
    }
    return a.size() - i < b.size() - j;
}

/// Numbers, those that are none behind the others.
PrimaDi PrimaPerValore(std::span<const RigaScelta> righe, double (*valore)(const RigaScelta&),
                       bool discendente) {
    return [=](std::uint32_t a, std::uint32_t b) {
        const double x = valore(righe[a]);
        const double y = valore(righe[b]);
        if (std::isnan(x) || std::isnan(y))
            return !std::isnan(x) && std::isnan(y);
        return discendente ? y < x : x < y;
    };
}

const std::string& TestoDi(const SagomoInGara& sagomo, int colonna) {
    return colonna == colonnaNome ? sagomo.Designazione() : sagomo.famiglia;
}

/// There is no number that tells whether the row holds.
bool SenzaNumero(const RigaScelta& riga) {
    return std::isnan(riga.massimo) || (!riga.verificato && riga.massimo <= 1);
}

/// The reason as short as the column needs it.
std::string MotivoBreve(const std::string& motivo) {
    if (motivo == motivoFlessione)
        return "flessione senza verifica";
    for (const VerificaScelta v :
         {VerificaScelta::Sezione, VerificaScelta::Membratura, VerificaScelta::Svergolamento})
        if (motivo == MotivoSenzaVerdetto(v))
            return std::string(NomeVerifica(v)) + " senza verdetto";
    return motivo.empty() ? "-" : motivo;
}

} // namespace

const std::vector<ColonnaScelta>& ColonneScelta() {
    static const std::vector<ColonnaScelta> colonne = {
        {"sagomo", "", "Nome del sagomo nel catalogo", "UB 1016x305x487", nullptr},
        {"famiglia", "", "Famiglia, il foglio della cartella di lavoro", "L Disuguali", nullptr},
        {"g (kg/m)", "#,##0.0", "Massa per metro, di una coppia quella di entrambi", "1.000,0",
         [](const RigaScelta& r) { return r.g; }},
        {"h (mm)", forza, "Altezza", "1.100", [](const RigaScelta& r) { return r.h; }},
        {"b (mm)", forza, "Larghezza", "1.100", [](const RigaScelta& r) { return r.b; }},
        {"A (cm2)", "#,##0.0", "Area", "1.000,0", [](const RigaScelta& r) { return mm2_a_cm2(r.A); }},
        {"cl.", "0", "Classe a presso-flessione, degli angolari a compressione, EC3 tab. 5.2", "4",
         [](const RigaScelta& r) { return double(r.classe); }},
        {"Npl,Rd (kN)", forza, "Resistenza della sezione a sforzo normale, ENV 1993-1-1 5.4.4", "10.000",
         [](const RigaScelta& r) { return Forza(r.NplRd); }},
        {"Nby,Rd (kN)", forza, "Resistenza all'instabilità intorno a y-y, ENV 1993-1-1 5.5.1", "10.000",
         [](const RigaScelta& r) { return Forza(r.NbyRd); }},
        {"Nbz,Rd (kN)", forza, "Resistenza all'instabilità intorno a z-z, ENV 1993-1-1 5.5.1", "10.000",
         [](const RigaScelta& r) { return Forza(r.NbzRd); }},
        {"Nbv,Rd (kN)", forza, "Degli angolari, resistenza all'instabilità intorno a v-v, ENV 1993-1-1 5.5.1",
         "10.000", [](const RigaScelta& r) { return Forza(r.NbvRd); }},
        {"Mcy,Rd (kNm)", momento, "Momento resistente intorno a y-y, ENV 1993-1-1 5.4.5", "10.000,0",
         [](const RigaScelta& r) { return Nmm_a_kNm(r.McyRd); }},
        {"Mb,Rd (kNm)", momento, "Resistenza all'instabilità flesso-torsionale, ENV 1993-1-1 5.5.2",
         "10.000,0", [](const RigaScelta& r) { return Nmm_a_kNm(r.MbRd); }},
        {"sez.", rapporto, "Verifica della sezione, passa se non supera 1, EC3 6.2.9", "10,000",
         [](const RigaScelta& r) { return r.sezione; }},
        {"membr.", rapporto, "Verifica della membratura, passa se non supera 1, ENV 1993-1-1 5.5.4", "10,000",
         [](const RigaScelta& r) { return r.membratura; }},
        {"sverg.", rapporto, "Verifica a svergolamento, passa se non supera 1, ENV 1993-1-1 5.5.4", "10,000",
         [](const RigaScelta& r) { return r.svergolamento; }},
        {"utilizzo", "", "La maggiore delle verifiche e il suo nome",
         "OK  1.000 %  svergolamento               ", [](const RigaScelta& r) { return r.massimo; }}};
    return colonne;
}

int ColonnaUtilizzo() { return static_cast<int>(ColonneScelta().size()) - 1; }

std::string TestoUtilizzo(const RigaScelta& riga) {
    if (riga.SenzaVerdetto())
        return {};
    if (SenzaNumero(riga))
        return MotivoBreve(riga.motivo);
    constexpr double troppo = 99.99; // beyond it the number says no more
    std::string testo =
        riga.massimo > troppo ? "> " + Formato("#,##0", troppo * 100) : Formato("0", riga.massimo * 100);
    // 100 % is what just holds; what just does not shall not read so.
    if (riga.massimo > 1 && testo == "100")
        testo = Formato("0.0###", riga.massimo * 100);
    testo = (riga.verificato ? "OK  " : "NO  ") + testo + " %";
    if (riga.governa != VerificaScelta::Nessuna)
        testo += "  " + std::string(NomeVerifica(riga.governa));
    return testo;
}

std::string TestoScelta(const RigaScelta& riga, const SagomoInGara& sagomo, int colonna) {
    if (colonna <= colonnaFamiglia)
        return TestoDi(sagomo, colonna);
    if (colonna == ColonnaUtilizzo())
        return TestoUtilizzo(riga);
    const ColonnaScelta& c = ColonneScelta()[static_cast<std::size_t>(colonna)];
    const double valore = c.valore(riga);
    return std::isfinite(valore) ? Formato(c.figura, valore) : std::string();
}

std::string TestoInteroScelta(const RigaScelta& riga, const SagomoInGara& sagomo, int colonna) {
    if (colonna <= colonnaFamiglia)
        return TestoDi(sagomo, colonna);
    if (colonna == ColonnaUtilizzo())
        return SenzaNumero(riga) && !riga.motivo.empty() ? riga.motivo : TestoUtilizzo(riga);
    const double valore = ColonneScelta()[static_cast<std::size_t>(colonna)].valore(riga);
    return std::isfinite(valore) ? TestoPiano(valore) : std::string();
}

PrimaDi PrimaNellaScelta(std::span<const RigaScelta> righe, std::span<const SagomoInGara> sagomi,
                         const OrdineScelta& ordine) {
    if (ordine.colonna < 0)
        return [righe](std::uint32_t a, std::uint32_t b) {
            return std::pair(ChiavePeso(righe[a]), a) < std::pair(ChiavePeso(righe[b]), b);
        };
    if (const auto valore = ColonneScelta()[static_cast<std::size_t>(ordine.colonna)].valore)
        return PrimaPerValore(righe, valore, ordine.discendente);
    return [sagomi, ordine](std::uint32_t a, std::uint32_t b) {
        const std::string& x = TestoDi(sagomi[a], ordine.colonna);
        const std::string& y = TestoDi(sagomi[b], ordine.colonna);
        return ordine.discendente ? NomePrima(y, x) : NomePrima(x, y);
    };
}

void OrdinaScelta(std::vector<std::uint32_t>& posti, std::span<const RigaScelta> righe,
                  std::span<const SagomoInGara> sagomi, const OrdineScelta& ordine) {
    std::ranges::stable_sort(posti, PrimaNellaScelta(righe, sagomi, ordine));
}

std::vector<std::uint32_t> PiuLeggeriFra(std::span<const std::uint32_t> posti,
                                         std::span<const RigaScelta> righe,
                                         std::span<const SagomoInGara> sagomi) {
    std::vector<std::pair<std::string_view, std::uint32_t>> migliori; // families are few
    std::size_t noto = 0;
    for (const std::uint32_t p : posti) {
        if (!righe[p].verificato || righe[p].SenzaVerdetto())
            continue;
        const std::string_view famiglia = sagomi[p].famiglia;
        if (noto >= migliori.size() || migliori[noto].first != famiglia) // as a rule that of the row before
            noto = static_cast<std::size_t>(
                std::ranges::find(migliori, famiglia, [](const auto& m) { return m.first; }) -
                migliori.begin());
        if (noto == migliori.size())
            migliori.emplace_back(famiglia, p);
        else if (std::pair(righe[p].g, p) < std::pair(righe[migliori[noto].second].g, migliori[noto].second))
            migliori[noto].second = p;
    }
    std::vector<std::uint32_t> leggeri;
    leggeri.reserve(migliori.size());
    for (const auto& [famiglia, posto] : migliori)
        leggeri.push_back(posto);
    return leggeri;
}

} // namespace sagomi
