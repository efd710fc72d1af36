// Every row of every family under every set of forces and every code, against what the screens do with it:
// the row read anew as the main screen of its kind reads it, then, in the order of the screens, the functions
// that they call on the section in use. Every column of the table is compared. tests/choice/ui walks a part
// of it through the screens themselves.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <tuple>

#include "Forze.h"
#include "Registratore.h"
#include "catalogue/Famiglie.h"
#include "catalogue/Lettore.h"
#include "catalogue/RigaDoppioT.h"
#include "catalogue/RigaSagomi.h"
#include "catalogue/SagomoUtente.h"
#include "catalogue/ScritturaRighe.h"
#include "choice/TabellaScelta.h"
#include "frame/Ambiente.h"
#include "sections/AreaEfficace.h"
#include "sections/PressoFlessione.h"
#include "sections/SezioneDoppia.h"
#include "sections/Verdetto.h"

using namespace sagomi;
using namespace sagomi::prove;
namespace fs = std::filesystem;

namespace {

/// A row as its main screen has it before steel and entries.
struct RigaSchermo {
    std::string famiglia;
    double g = 0;
    SezioneQualsiasi sezione;
};

RigheDoppioT RigheDi(std::string_view schermo) {
    return schermo == "frmSaldati"        ? RigheDoppioT::Saldate
           : schermo == "frmSaldatiAsimm" ? RigheDoppioT::SaldateAsimmetriche
                                          : RigheDoppioT::Laminate;
}

RigaSchermo Letta(const Lettore& riga, const FamigliaSchermo& f, std::string_view foglio) {
    RigaSchermo letta{std::string(foglio), riga.Numero(1), {}};
    if (f.schermo == "frmSagomiU") {
        SezioneSagomoU u;
        LeggeRiga(riga, u);
        letta.sezione = u;
    } else if (f.schermo == "frmSagomiL") {
        SezioneSagomoL l;
        LeggeRiga(riga, l);
        letta.sezione = l;
    } else {
        SezioneDoppioT s;
        LeggeRiga(riga, s, RigheDi(f.schermo));
        letta.sezione = s;
    }
    return letta;
}

/// The rows of a sheet by name and weight: families may share a name.
using Righe = std::multimap<std::string, RigaSchermo>;

void LeggeFoglio(const fs::path& cartella, const FamigliaSchermo& f, std::string_view foglio, Righe& righe) {
    Lettore rows;
    rows.DatabaseName(cartella);
    rows.RecordSource(ComponeQueryFoglio(f.schermo, NomeFoglioQuery(foglio), 0));
    rows.Refresh();
    for (; !rows.EOF_(); rows.MoveNext())
        righe.emplace(std::string(foglio) + ' ' + rows.Testo(0), Letta(rows, f, foglio));
}

Righe LeggeTutte(const fs::path& cartella) {
    Righe righe;
    for (const FamigliaSchermo& f : FamiglieSchermi())
        for (const std::string_view foglio : f.fogli)
            LeggeFoglio(cartella, f, foglio, righe);
    return righe;
}

/// The section in use as a main screen makes it of its row and its entries.
template <typename S> S& MetteInUso(const S& letta, const Richiesta& r) {
    auto s = std::make_shared<S>(letta);
    s->TipoAcciaio = r.TipoAcciaio;
    s->fy = r.fy;
    s->fu = r.fu;
    s->L0y = r.L0y;
    s->L0z = r.L0z;
    if constexpr (ConLunghezzaV<S>)
        s->L0v = r.L0v;
    if constexpr (ConMomenti<S>)
        s->NSd = r.NSd;
    SezioneCorrente = s;
    return *s;
}

double SeVale(const Verdetto& v) { return v.utilizzo; }

/// FrmPresFless, opened from a main screen: the diagram of each axis with the shift of the centroid.
double Membratura(SezioneDoppioT& s, const Richiesta& r) {
    s.ClassePressoFlessioneCalcola();
    MomentiMembratura y = r.y;
    MomentiMembratura z = r.z;
    y.NeN = s.TerminiMNInstab().y.NeN;
    z.NeN = s.TerminiMNInstab().z.NeN;
    ApplicaDiagrammi(s, EffettiDelDiagramma(y, r.tipoDiagramma, r.pict),
                     EffettiDelDiagramma(z, r.tipoDiagramma, r.pict));
    s.McrFunz();
    s.MbRdSub();
    return SeVale(GiudicaInstabilita(s));
}

/// FrmMsverg, opened from there.
double Svergolamento(SezioneDoppioT& s, const Richiesta& r) {
    s.k = r.k;
    s.Kw = r.Kw;
    s.c2 = r.c2;
    s.c3 = r.c3;
    s.za = r.za;
    s.LLT = r.LLT.value();
    s.ClassePressoFlessioneCalcola();
    s.McrFunz();
    s.MbRdSub();
    return SeVale(GiudicaFlessoTorsionale(s));
}

/// FrmVerifiche on a section that has just been read.
double Sezione(SezioneDoppioT& s, const Richiesta& r) {
    s.Mysd = EffettiDelDiagramma(r.y, r.tipoDiagramma, r.pict).M;
    s.Mzsd = EffettiDelDiagramma(r.z, r.tipoDiagramma, r.pict).M;
    s.ClassePressoFlessioneCalcola();
    return SeVale(GiudicaResistenza(s));
}

/// The greatest check, the first of equal ones, and whether all hold.
void Conclude(RigaScelta& riga) {
    riga.verificato = true;
    for (const auto& [verifica, valore] : {std::pair{VerificaScelta::Sezione, riga.sezione},
                                           {VerificaScelta::Membratura, riga.membratura},
                                           {VerificaScelta::Svergolamento, riga.svergolamento}}) {
        riga.verificato = riga.verificato && valore <= 1;
        if (std::isnan(riga.massimo) || valore > riga.massimo) {
            riga.massimo = valore;
            riga.governa = verifica;
        }
    }
}

RigaScelta DalloSchermo(const SezioneDoppioT& letta, const Richiesta& r) {
    RigaScelta riga;
    SezioneDoppioT& s = MetteInUso(letta, r);
    InizializzaConAreaEfficace(s);
    riga.h = s.h;
    riga.b = std::max<double>(s.b, s.bAlaInf);
    riga.A = s.Area;
    riga.NplRd = s.NplRd;
    riga.NbyRd = s.NbyRd;
    riga.NbzRd = s.NbzRd;
    riga.McyRd = s.McyRd;
    riga.membratura = Membratura(s, r);
    riga.svergolamento = Svergolamento(s, r);
    riga.MbRd = s.MbRd;
    SezioneDoppioT& nuova = MetteInUso(letta, r);
    InizializzaConAreaEfficace(nuova);
    riga.sezione = Sezione(nuova, r);
    riga.classe = nuova.ClassePressoFlessione;
    Conclude(riga);
    return riga;
}

/// Outer measures of a pair; its screen shows those of one piece.
template <typename S> void Ingombro(const S& uno, const Richiesta& r, RigaScelta& riga) {
    const bool inAltezza = r.doppi && r.accostati && ConLunghezzaV<S>; // angles by their short legs
    riga.h = inAltezza ? 2 * uno.h + r.dDoppi : double(uno.h);
    riga.b = r.doppi && !inAltezza ? 2 * uno.b + r.dDoppi : double(uno.b);
}

/// The section in use as a screen of pairs makes it.
template <typename S> S& InCoppia(const S& letta, const Richiesta& r, RigaScelta& riga) {
    S& s = MetteInUso(letta, r);
    if (r.doppi) {
        S uno = s;
        uno.InizializzaSezione();
        RendeDoppia(s, SingoloDi(uno), r.dDoppi, r.accostati);
    }
    InizializzaConAreaEfficace(s);
    riga.doppio = r.doppi;
    Ingombro(letta, r, riga);
    riga.A = s.Area;
    riga.NbyRd = s.NbyRd;
    riga.NbzRd = s.NbzRd;
    return s;
}

/// Under the axial force alone: the least resistance to buckling against a compression, the area against a
/// pull.
void Assiale(RigaScelta& riga, const Richiesta& r) {
    if (r.y.M1 != 0 || r.z.M1 != 0 || r.y.MQ != 0 || r.z.MQ != 0)
        return; // neither screen nor check
    const double Nb = std::min({riga.NbyRd, riga.NbzRd, std::isnan(riga.NbvRd) ? riga.NbyRd : riga.NbvRd});
    riga.membratura = riga.massimo = r.NSd > 0 ? r.NSd / Nb : -r.NSd / riga.NplRd;
    riga.governa = VerificaScelta::Membratura;
    riga.verificato = riga.massimo <= 1;
}

RigaScelta DalloSchermo(const SezioneSagomoU& letta, const Richiesta& r) {
    RigaScelta riga;
    SezioneSagomoU& s = InCoppia(letta, r, riga);
    s.ClassePressoFlessioneCalcola();
    riga.classe = s.ClassePressoFlessione;
    riga.NplRd = s.NplRd;
    riga.McyRd = s.McyRd;
    Assiale(riga, r);
    return riga;
}

RigaScelta DalloSchermo(const SezioneSagomoL& letta, const Richiesta& r) {
    RigaScelta riga;
    SezioneSagomoL& s = InCoppia(letta, r, riga);
    riga.classe = s.ClasseCompressione;
    riga.NbvRd = s.NbvRd;
    riga.NplRd = s.Area * s.fy * s.betaA() / GammaM0;
    Assiale(riga, r);
    return riga;
}

bool Uguali(double a, double b) {
    constexpr double tolleranza = 1e-9;
    return std::isnan(a) ? std::isnan(b) : std::abs(a - b) <= tolleranza * std::max(1.0, std::abs(a));
}

/// All columns, verdict and what governs.
testing::AssertionResult Stesse(const RigaScelta& mia, const RigaScelta& schermo) {
    for (const ColonnaScelta& c : ColonneScelta())
        if (c.valore != nullptr && !Uguali(c.valore(mia), c.valore(schermo)))
            return testing::AssertionFailure()
                   << c.titolo << ": " << c.valore(mia) << ", the screens have " << c.valore(schermo);
    if (mia.verificato != schermo.verificato || mia.governa != schermo.governa ||
        mia.doppio != schermo.doppio)
        return testing::AssertionFailure() << "verdict or check that governs: " << mia.massimo;
    return testing::AssertionSuccess();
}

class TutteLeRighe : public testing::TestWithParam<std::tuple<Forze, std::int16_t>> {
protected:
    void SetUp() override {
        RipristinaGenerale();
        Normativa = std::get<1>(GetParam());
        GammaM0Altro = 1.03;
        GammaM1Altro = 1.07;
        ImpostaGamma();
        richiesta = RichiestaDi(std::get<0>(GetParam()));
        richiesta.L0v = 0.8 * richiesta.L0y;
    }
    void TearDown() override { RipristinaGenerale(); }

    /// Rows of the sweep against those of the screens.
    /// @return how many
    std::size_t Confronta(const std::vector<SagomoInGara>& sagomi, const Righe& schermi) const {
        std::vector<std::string> messages;
        const auto rows = Valuta(sagomi, richiesta, {}, messages);
        EXPECT_EQ(rows.size(), sagomi.size());
        for (const RigaScelta& row : rows) {
            const SagomoInGara& sagomo = sagomi[row.indice];
            const auto [da, a] = schermi.equal_range(sagomo.famiglia + ' ' + sagomo.Designazione());
            const auto found = std::find_if(da, a, [&](const auto& s) { return s.second.g == sagomo.g; });
            if (found == a) {
                ADD_FAILURE() << sagomo.Designazione() << " is on no screen";
                continue;
            }
            RigaScelta shown = std::visit([this](const auto& s) { return DalloSchermo(s, richiesta); },
                                          found->second.sezione);
            shown.g = (shown.doppio ? 2 : 1) * found->second.g;
            EXPECT_TRUE(Stesse(row, shown)) << sagomo.famiglia << ' ' << sagomo.Designazione();
        }
        return rows.size();
    }

    Richiesta richiesta;
    sagomi::prove::Registratore quiet;
};

TEST_P(TutteLeRighe, AreThoseOfTheScreens) {
    static const std::vector<SagomoInGara> sagomi =
        LeggeGara(SAGOMI_BIN,
                  [] {
                      std::vector<std::string> all;
                      for (const FamigliaSchermo& f : FamiglieSchermi())
                          all.insert(all.end(), f.fogli.begin(), f.fogli.end());
                      return all;
                  }())
            .sagomi;
    static const Righe schermi = LeggeTutte(fs::path(SAGOMI_BIN) / "Sagomi.xls");
    EXPECT_GT(Confronta(sagomi, schermi), 1200U);
}

TEST_P(TutteLeRighe, ChannelsAndAnglesInPairsToo) {
    static const std::vector<std::string> famiglie = [] {
        std::vector<std::string> some;
        for (const char* schermo : {"frmSagomiU", "frmSagomiL"})
            for (const std::string_view foglio : FamigliaDi(schermo).fogli)
                some.emplace_back(foglio);
        return some;
    }();
    static const std::vector<SagomoInGara> sagomi = LeggeGara(SAGOMI_BIN, famiglie).sagomi;
    static const Righe schermi = LeggeTutte(fs::path(SAGOMI_BIN) / "Sagomi.xls");
    richiesta.doppi = true;
    richiesta.dDoppi = 12;
    for (const bool sides : {false, true}) {
        richiesta.accostati = sides;
        EXPECT_GT(Confronta(sagomi, schermi), 200U);
        const Richiesta whole = richiesta;
        richiesta.y = richiesta.z = {}; // the axial force alone has a verdict
        if (!SenzaAzioni(richiesta)) {
            EXPECT_GT(Confronta(sagomi, schermi), 200U);
        }
        richiesta = whole;
    }
}

/// The user's own sheets with rows that have their dimensions only.
void ScriveUtente(const fs::path& file) {
    InstallaCartellaUtente(file);
    const std::vector<RigaScritta> equal = {{{}, {std::string("MIO 400"), {}, 400.0, 200.0, 8.0, 14.0, 5.0}},
                                            {{}, {std::string("SNELLO"), {}, 900.0, 300.0, 6.0, 10.0, 4.0}},
                                            {{}, {std::string("TOZZO"), {}, 200.0, 210.0, 16.0, 24.0, {}}}};
    ScriveRighe(file, ImprontaDi(file), "'DoppioT Simmetrico'$", equal);
    const std::string other(FamigliaDi("frmSaldatiAsimm").foglioUtente);
    const std::vector<RigaScritta> unequal = {
        {{}, {std::string("DIVERSO"), {}, 500.0, 200.0, 260.0, 8.0, 12.0, 16.0, 5.0}},
        {{}, {std::string("SOTTILE"), {}, 800.0, 320.0, 180.0, 6.0, 9.0, 14.0, 3.0}}};
    ScriveRighe(file, ImprontaDi(file), NomeTabella(other), unequal);
}

// The sweep completes them for itself; the screens write what follows from the dimensions into the sheet.
TEST_P(TutteLeRighe, OfTheUsersOwnToo) {
    const CartellaDiProva prova;
    const fs::path folder = prova.percorso;
    const fs::path file = folder / cartellaUtente;
    ScriveUtente(file);
    const std::vector<SagomoInGara> sagomi =
        LeggeGara(folder, {"DoppioT Simmetrico", std::string(FamigliaDi("frmSaldatiAsimm").foglioUtente)})
            .sagomi;
    ASSERT_EQ(sagomi.size(), 5U);
    Righe schermi;
    for (const char* schermo : {"frmSaldati", "frmSaldatiAsimm"}) {
        const FamigliaSchermo& f = FamigliaDi(schermo);
        EXPECT_GT(CompletaRighe(file, NomeTabella(f.foglioUtente), RigheDi(schermo),
                                [this](SezioneDoppioT& s) {
                                    s.TipoAcciaio = richiesta.TipoAcciaio;
                                    s.fy = richiesta.fy;
                                    s.fu = richiesta.fu;
                                }),
                  0);
        LeggeFoglio(file, f, f.foglioUtente, schermi);
    }
    EXPECT_EQ(Confronta(sagomi, schermi), 5U);
}

INSTANTIATE_TEST_SUITE_P(Forze, TutteLeRighe,
                         testing::Combine(testing::ValuesIn(forze),
                                          testing::Values(normativaNTC, normativaEC3, normativaAltro)),
                         [](const auto& i) {
                             return std::string(std::get<0>(i.param).nome) +
                                    std::to_string(std::get<1>(i.param));
                         });

} // namespace
