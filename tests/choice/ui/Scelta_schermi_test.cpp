#include <QComboBox>

#include <algorithm>
#include <cmath>
#include <string_view>

#include "../Forze.h"
#include "choice/Scelta.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "screens/Comandi.h"
#include "screens/FrmPresFless.h"
#include "sections/Verdetto.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// Each set takes every so manyeth row, from its own place on: together they see every row.
constexpr std::size_t passo = std::size(forze);

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
        EXPECT_NEAR(s.Area, row.A, 1e-6 * row.A) << what;
        if constexpr (requires { s.NbvRd; }) {
            EXPECT_NEAR(s.NbvRd, row.NbvRd, 1e-6 * row.NbvRd) << what;
            EXPECT_EQ(s.ClasseCompressione, row.classe) << what;
        } else {
            EXPECT_NEAR(s.NplRd, row.NplRd, 1e-6 * row.NplRd) << what;
            EXPECT_NEAR(s.McyRd, row.McyRd, 1e-6 * row.McyRd) << what;
        }
    }

    /// What the main screen shows of a row, with its four figures.
    static void Mostrati(const SchermoSezione& s, const RigaScelta& row, const std::string& what) {
        const auto shown = [&](const char* box, double value) {
            if (!std::isnan(value)) {
                EXPECT_EQ(Testo(&s, box), FormatoCifre(4, value)) << what << ' ' << box;
            }
        };
        shown("TxtNbRd_0", N_a_kN(row.NbyRd));
        shown("TxtNbRd_1", N_a_kN(row.NbzRd));
        shown("TxtNbRd_2", N_a_kN(row.NbvRd));
        shown("TxtMcRd_0", Nmm_a_kNm(row.McyRd));
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
        Resistenze(Sezione(), row, sagomo.Designazione());
        Mostrati(s, row, sagomo.Designazione());
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
    for (const auto& [pair, sides] : {std::pair{false, false}, {true, false}, {true, true}}) {
        r.doppi = pair;
        r.accostati = sides;
        r.dDoppi = pair ? 12 : 0;
        std::vector<std::string> messages;
        for (const RigaScelta& row : Valuta(some, r, {}, messages)) {
            const SagomoInGara& sagomo = some[row.indice];
            SchermoSezione& s = Mostra(sagomo);
            if (s.Txt_L0.size() > 2)
                s.Txt_L0[2]->setText(QStringLiteral("2"));
            Trova<QCheckBox>(&s, "chkDoppi")->setChecked(pair);
            Trova<QWidget>(&s, "fraDoppi")->findChild<QCheckBox*>()->setChecked(sides);
            Scrive(&s, "txtDoppi", "12");
            s.DatiRisultati();
            Mostrati(s, row, sagomo.Designazione());
            if (auto* channel = SezioneInUso<SezioneSagomoU>()) {
                Resistenze(*channel, row, sagomo.Designazione());
                channel->ClassePressoFlessioneCalcola();
                EXPECT_EQ(channel->ClassePressoFlessione, row.classe) << sagomo.Designazione();
            } else
                Resistenze(*SezioneInUso<SezioneSagomoL>(), row, sagomo.Designazione());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Forze, SceltaSchermiTest, testing::ValuesIn(forze),
                         [](const auto& i) { return std::string(i.param.nome); });

} // namespace
