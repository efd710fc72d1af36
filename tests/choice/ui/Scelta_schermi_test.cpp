#include <QComboBox>

#include <algorithm>
#include <cmath>
#include <string_view>

#include "choice/Scelta.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "screens/Comandi.h"
#include "screens/FrmPresFless.h"
#include "sections/Verdetto.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// A set of forces in the units of the screens.
struct Forze {
    const char* nome;
    int acciaio; ///< index in the list
    std::int16_t normativa;
    std::int16_t pict;
    const char *N, *L0y, *L0z;
    const char *My1, *My2, *MyQ, *Mz1, *Mz2, *MzQ;
    const char *L, *k, *Kw, *C2, *C3, *za;
};

void PrintTo(const Forze& f, std::ostream* os) { *os << f.nome; }

// clang-format off
constexpr Forze forze[] = {
    {"trave",          0, normativaNTC, pictEstremitaConcordi,    "0",    "5",   "5",   "60",  "0",   "0",  "0",  "0",  "0",  "5",   "1",   "1", "0",    "0",    "0"},
    {"pressoflessa",   1, normativaEC3, pictEstremitaDiscordi,    "250",  "5",   "2.5", "40",  "-15", "0",  "5",  "2",  "0",  "2.5", "1",   "1", "0",    "0",    "0"},
    {"campata",        2, normativaNTC, pictDistribuitoConcorde,  "120",  "6",   "3",   "30",  "10",  "45", "3",  "0",  "4",  "6",   "1",   "1", "0.45", "0.52", "100"},
    {"sottile",        2, normativaEC3, pictConcentratoContro,    "900",  "4",   "4",   "80",  "60",  "50", "10", "10", "5",  "4",   "0.5", "1", "0.3",  "0.2",  "-80"},
    {"tesa",           0, normativaEC3, pictEstremitaConcordi,    "-150", "3",   "3",   "25",  "25",  "0",  "4",  "-4", "0",  "3",   "1",   "1", "0",    "0",    "0"},
    {"troppa",         1, normativaNTC, pictEstremitaConcordi,    "9000", "3",   "3",   "10",  "0",   "0",  "0",  "0",  "0",  "3",   "1",   "1", "0",    "0",    "0"},
    {"soloForza",      0, normativaEC3, pictEstremitaConcordi,    "600",  "6",   "3",   "0",   "0",   "0",  "0",  "0",  "0",  "3",   "1",   "1", "0",    "0",    "0"},
    {"soloTrazione",   2, normativaNTC, pictEstremitaConcordi,    "-800", "6",   "6",   "0",   "0",   "0",  "0",  "0",  "0",  "6",   "1",   "1", "0",    "0",    "0"},
    {"soloMz",         1, normativaEC3, pictEstremitaDiscordi,    "0",    "4",   "4",   "0",   "0",   "0",  "15", "-6", "0",  "4",   "1",   "1", "0",    "0",    "0"},
    {"contro",         0, normativaNTC, pictDistribuitoContro,    "80",   "7",   "3.5", "50",  "-20", "90", "2",  "2",  "1",  "3.5", "1",   "1", "0.45", "0.52", "150"},
    {"concentrata",    1, normativaNTC, pictConcentratoConcorde,  "60",   "5",   "5",   "20",  "20",  "70", "0",  "0",  "3",  "5",   "1",   "1", "0.55", "0.4",  "-60"},
    {"incastrata",     2, normativaEC3, pictConcentratoContro,    "300",  "3",   "1.5", "120", "-90", "80", "6",  "-3", "2",  "1.5", "0.5", "0.5", "0.42", "0.3", "0"},
    {"snella",         0, normativaEC3, pictEstremitaConcordi,    "40",   "12",  "12",  "15",  "10",  "0",  "1",  "0",  "0",  "12",  "1",   "1", "0",    "0",    "0"},
    {"tozza",          1, normativaEC3, pictEstremitaConcordi,    "1500", "0.5", "0.5", "90",  "40",  "0",  "9",  "4",  "0",  "0.5", "1",   "1", "0",    "0",    "0"},
    {"alta",           1, normativaAltro, pictEstremitaDiscordi,    "700",  "6",   "2",   "200", "-50", "0",  "12", "8",  "0",  "2",   "1",   "1", "0",    "0",    "0"},
    {"altissima",      2, normativaAltro, pictDistribuitoConcorde,  "1200", "5",   "2.5", "60",  "30",  "90", "4",  "2",  "2",  "2.5", "0.7", "1", "0.45", "0.5",  "120"},
    {"tesaInflessa",   2, normativaNTC, pictConcentratoConcorde,  "-400", "5",   "5",   "30",  "-10", "60", "3",  "-1", "2",  "5",   "1",   "1", "0.5",  "0.5",  "80"},
    {"caricoAppeso",   1, normativaNTC, pictDistribuitoConcorde,  "0",    "8",   "8",   "10",  "0",   "100","0",  "0",  "0",  "8",   "1",   "1", "0.45", "0.53", "-200"},
    {"minima",         0, normativaEC3, pictEstremitaConcordi,    "1",    "1",   "1",   "0.5", "0",   "0",  "0.1","0",  "0",  "1",   "1",   "1", "0",    "0",    "0"},
    {"biassiale",      0, normativaAltro, pictDistribuitoContro,    "450",  "4",   "4",   "70",  "50",  "60", "25", "10", "15", "4",   "1",   "1", "0.45", "0.5",  "50"}};
// clang-format on

double Letto(const char* text) { return ValoreNumerico(Locale(text)); }

MomentiMembratura Momenti(const char* M1, const char* M2, const char* MQ) {
    return {.M1 = kNm_a_Nmm(Letto(M1)), .M2 = kNm_a_Nmm(Letto(M2)), .MQ = kNm_a_Nmm(Letto(MQ))};
}

Richiesta RichiestaDi(const Forze& f) {
    Richiesta r;
    r.TipoAcciaio = NomeAcciaio[f.acciaio + 1];
    r.fy = fyAcciaio[f.acciaio + 1];
    r.fu = fuAcciaio[f.acciaio + 1];
    r.NSd = kN_a_N(Letto(f.N));
    r.L0y = m_a_mm(Letto(f.L0y));
    r.L0z = m_a_mm(Letto(f.L0z));
    r.y = Momenti(f.My1, f.My2, f.MyQ);
    r.z = Momenti(f.Mz1, f.Mz2, f.MzQ);
    r.pict = f.pict;
    r.tipoDiagramma = TipoDiPict(f.pict);
    r.LLT = m_a_mm(Letto(f.L));
    r.k = Letto(f.k);
    r.Kw = Letto(f.Kw);
    r.c2 = Letto(f.C2);
    r.c3 = Letto(f.C3);
    r.za = Letto(f.za);
    return r;
}

/// Each set takes every so manyeth row, from its own place on: together they see every row.
constexpr std::size_t passo = std::size(forze);
static_assert(passo >= 20);

std::size_t Primo(const Forze& f) {
    return static_cast<std::size_t>(std::ranges::find(forze, std::string_view(f.nome), &Forze::nome) - forze);
}

class SceltaSchermiTest : public AmbienteSchermi, public testing::WithParamInterface<Forze> {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        Avvia();
        Normativa = GetParam().normativa;
        ImpostaGamma();
    }

    /// The screen of a row, showing it, with steel, lengths and force.
    SchermoSezione& Mostra(const SagomoInGara& sagomo) {
        auto& s = dynamic_cast<SchermoSezione&>(
            NavigaSchermi::Unico().Prende(QString::fromStdString(sagomo.schermo)));
        if (!s.isVisible()) {
            Schermo* from = NavigaSchermi::Unico().Attivo();
            NavigaSchermi::Unico().Passa(s, from);
        }
        for (QCheckBox* box : s.ChkTipo)
            box->setChecked(box->text().toStdString() == sagomo.famiglia);
        CambioFamiglia(s);
        VaA(s, sagomo.Designazione().c_str());
        const Forze& f = GetParam();
        s.ComboTipoAcciaio->setCurrentIndex(f.acciaio);
        emit s.ComboTipoAcciaio->activated(f.acciaio);
        Scrive(&s, "Txt_L0_0", f.L0y);
        Scrive(&s, "Txt_L0_1", f.L0z);
        if (s.TxtNsd != nullptr)
            Scrive(&s, "TxtNsd", f.N);
        s.DatiRisultati();
        return s;
    }

    template <typename S> static void Resistenze(const S& s, const RigaScelta& row, const std::string& what) {
        EXPECT_NEAR(s.NbyRd, row.NbyRd, 1e-6 * row.NbyRd) << what;
        EXPECT_NEAR(s.NbzRd, row.NbzRd, 1e-6 * row.NbzRd) << what;
        if constexpr (requires { s.NbvRd; }) {
            EXPECT_NEAR(s.NbvRd, row.NbvRd, 1e-6 * row.NbvRd) << what;
            EXPECT_EQ(s.ClasseCompressione, row.classe) << what;
        }
    }

    /// The rows of this set.
    template <typename F> static std::vector<SagomoInGara> Alcuni(const F& takes) {
        std::vector<SagomoInGara> all = LeggeGara(PathProgramma).sagomi;
        std::erase_if(all, [&takes](const SagomoInGara& s) { return !takes(s); });
        std::vector<SagomoInGara> some;
        for (std::size_t i = Primo(GetParam()); i < all.size(); i += passo)
            some.push_back(all[i]);
        return some;
    }

    static void Confronta(const Schermo& detail, double shown, double mine, const std::string& what) {
        if (std::isnan(mine) || std::isnan(shown)) {
            EXPECT_EQ(std::isnan(mine), std::isnan(shown)) << what;
            return;
        }
        EXPECT_NEAR(shown, mine, 1e-6 * std::max(1.0, mine)) << what; // entries go through texts into singles
        if (mine < 1 || (mine > 1.01 && mine < 99)) {
            EXPECT_TRUE(Scritta(&detail, "LblUtilizzo").starts_with("Utilizzo " + Formato("0.0", mine * 100)))
                << what << ": " << Scritta(&detail, "LblUtilizzo") << " for " << mine;
        }
    }

    void VerificaSezione(SchermoSezione& s, const RigaScelta& riga, const std::string& what) {
        const Richiesta r = RichiestaDi(GetParam());
        NavigaSchermi::Unico().Apre("FrmVerifiche", s);
        auto& f = Aperto("FrmVerifiche");
        const auto testo = [](const MomentiMembratura& m, const Richiesta& x) {
            return TestoPiano(Nmm_a_kNm(EffettiDelDiagramma(m, x.tipoDiagramma, x.pict).M));
        };
        Trova<QLineEdit>(&f, "TxtMysd")->setText(QString::fromStdString(testo(r.y, r)));
        Trova<QLineEdit>(&f, "TxtMzsd")->setText(QString::fromStdString(testo(r.z, r)));
        Confronta(f, GiudicaResistenza(Sezione()).utilizzo, riga.sezione, what + " sezione");
        EXPECT_EQ(Sezione().ClassePressoFlessione, riga.classe) << what;
        f.close();
    }

    void Membratura(SchermoSezione& s, const RigaScelta& riga, const std::string& what) {
        const Forze& x = GetParam();
        NavigaSchermi::Unico().Apre("FrmPresFless", s);
        auto& f = dynamic_cast<FrmPresFless&>(Aperto("FrmPresFless"));
        f.SelezionaPict(x.pict);
        for (const char* empty : {"TxtM2_0", "TxtM2_1"})
            Scrive(&f, empty, "0");
        const std::pair<const char*, const char*> entries[] = {{"TxtM1_0", x.My1}, {"TxtM2_0", x.My2},
                                                               {"TxtMQ_0", x.MyQ}, {"TxtM1_1", x.Mz1},
                                                               {"TxtM2_1", x.Mz2}, {"TxtMQ_1", x.MzQ}};
        for (const auto& [box, text] : entries)
            Scrive(&f, box, text);
        Confronta(f, GiudicaInstabilita(Sezione()).utilizzo, riga.membratura, what + " membratura");
    }

    void Svergolamento(SchermoSezione& s, const RigaScelta& riga, const std::string& what) {
        const Forze& x = GetParam();
        NavigaSchermi::Unico().Apre("FrmMsverg", s);
        auto& f = Aperto("FrmMsverg");
        const std::pair<const char*, const char*> entries[] = {{"Txt_k", x.k},   {"Txt_Kw", x.Kw},
                                                               {"Txt_C2", x.C2}, {"Txt_C3", x.C3},
                                                               {"Txt_Zg", x.za}, {"Txt_L", x.L}};
        for (const auto& [box, text] : entries)
            Scrive(&f, box, text);
        Confronta(f, GiudicaFlessoTorsionale(Sezione()).utilizzo, riga.svergolamento,
                  what + " svergolamento");
        EXPECT_NEAR(Sezione().MbRd, riga.MbRd, 1e-6 * riga.MbRd) << what;
        f.close();
        Aperto("FrmPresFless").close();
    }
};

TEST_P(SceltaSchermiTest, EveryCheckIsThatOfItsScreen) {
    const auto some =
        Alcuni([](const SagomoInGara& s) { return std::holds_alternative<SezioneDoppioT>(s.sezione); });
    std::vector<std::string> messages;
    const auto rows = Valuta(some, RichiestaDi(GetParam()), {}, messages);
    ASSERT_EQ(rows.size(), some.size());
    for (const RigaScelta& row : rows) {
        const SagomoInGara& sagomo = some[row.indice];
        SchermoSezione& s = Mostra(sagomo);
        Membratura(s, row, sagomo.Designazione());
        Svergolamento(s, row, sagomo.Designazione());
        s.DatiRisultati();
        VerificaSezione(s, row, sagomo.Designazione());
    }
}

TEST_P(SceltaSchermiTest, ResistancesOfChannelsAndAnglesAreThoseOfTheirScreens) {
    const auto some =
        Alcuni([](const SagomoInGara& s) { return !std::holds_alternative<SezioneDoppioT>(s.sezione); });
    Richiesta r = RichiestaDi(GetParam());
    r.L0v = m_a_mm(2);
    for (const bool pair : {false, true}) {
        r.doppi = pair;
        r.dDoppi = pair ? 12 : 0;
        std::vector<std::string> messages;
        for (const RigaScelta& row : Valuta(some, r, {}, messages)) {
            const SagomoInGara& sagomo = some[row.indice];
            SchermoSezione& s = Mostra(sagomo);
            if (s.Txt_L0.size() > 2)
                s.Txt_L0[2]->setText(QStringLiteral("2"));
            Trova<QCheckBox>(&s, "chkDoppi")->setChecked(pair);
            Scrive(&s, "txtDoppi", "12");
            s.DatiRisultati();
            if (const auto* channel = SezioneInUso<SezioneSagomoU>())
                Resistenze(*channel, row, sagomo.Designazione());
            else
                Resistenze(*SezioneInUso<SezioneSagomoL>(), row, sagomo.Designazione());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Forze, SceltaSchermiTest, testing::ValuesIn(forze),
                         [](const auto& i) { return std::string(i.param.nome); });

} // namespace
