#include <QComboBox>

#include <cmath>

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

// clang-format off
constexpr Forze forze[] = {
    {"trave",          0, normativaNTC, pictEstremitaConcordi,    "0",    "5",   "5",   "60",  "0",   "0",  "0",  "0",  "0",  "5",   "1",   "1", "0",    "0",    "0"},
    {"pressoflessa",   1, normativaEC3, pictEstremitaDiscordi,    "250",  "5",   "2.5", "40",  "-15", "0",  "5",  "2",  "0",  "2.5", "1",   "1", "0",    "0",    "0"},
    {"campata",        2, normativaNTC, pictDistribuitoConcorde,  "120",  "6",   "3",   "30",  "10",  "45", "3",  "0",  "4",  "6",   "1",   "1", "0.45", "0.52", "100"},
    {"sottile",        2, normativaEC3, pictConcentratoContro,    "900",  "4",   "4",   "80",  "60",  "50", "10", "10", "5",  "4",   "0.5", "1", "0.3",  "0.2",  "-80"},
    {"tesa",           0, normativaEC3, pictEstremitaConcordi,    "-150", "3",   "3",   "25",  "25",  "0",  "4",  "-4", "0",  "3",   "1",   "1", "0",    "0",    "0"},
    {"troppa",         1, normativaNTC, pictEstremitaConcordi,    "9000", "3",   "3",   "10",  "0",   "0",  "0",  "0",  "0",  "3",   "1",   "1", "0",    "0",    "0"}};
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

constexpr std::size_t passo = 23; ///< between the rows that are compared

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
        Scrive(&s, "TxtNsd", f.N);
        s.DatiRisultati();
        return s;
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
    const Gara gara = LeggeGara(PathProgramma);
    std::vector<SagomoInGara> some;
    for (std::size_t i = 0; i < gara.sagomi.size(); i += passo)
        if (std::holds_alternative<SezioneDoppioT>(gara.sagomi[i].sezione))
            some.push_back(gara.sagomi[i]);
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

INSTANTIATE_TEST_SUITE_P(Forze, SceltaSchermiTest, testing::ValuesIn(forze),
                         [](const auto& i) { return std::string(i.param.nome); });

} // namespace
