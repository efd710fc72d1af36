#include <QComboBox>

#include <cmath>

#include "frame/ui/LineaFormula.h"
#include "frame/ui/UpDown.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class VerdettiTest : public AmbienteSchermi {
protected:
    frmDoppioT& Ipe500() {
        auto& s = Avvia();
        VaA(s, "IPE 500");
        return s;
    }
    static void Acciaio(frmDoppioT& s, int index) {
        s.ComboTipoAcciaio->setCurrentIndex(index);
        emit s.ComboTipoAcciaio->activated(index);
    }
    /// Npl,Rd as the check of the section shows it [kN].
    static double Npl(frmDoppioT& s) {
        NavigaSchermi::Unico().Apre("FrmVerifiche", s);
        return Numero(&Aperto("FrmVerifiche"), "LblNrd4");
    }
    /// A detail of the row in hand.
    static Schermo& Dettaglio(frmDoppioT& s, const char* name) {
        NavigaSchermi::Unico().Apre(QString::fromLatin1(name), s);
        return Aperto(name);
    }
};

// d/tw 41.76, epsilon 0.81362: 51.33, rho 0.8372, of 11552 mm2 0.1628 · 426 · 10.2 are lost: 10845 · 355 /
// GammaM0 of 1 = 3850, 3853 with the outline's chords.
TEST_F(VerdettiTest, ClassFourHasNoMemoryByAnyRoad) {
    auto& s = Ipe500();
    Normativa = normativaEC3;
    ImpostaGamma();
    Acciaio(s, 2);
    Scrive(&s, "TxtNsd", "900");
    EXPECT_NEAR(Npl(s), 3853, 0.5) << "steel, then N";
    Scrive(&s, "TxtNsd", "");
    Acciaio(s, 0);
    Scrive(&s, "TxtNsd", "900");
    Acciaio(s, 2);
    EXPECT_NEAR(Npl(s), 3853, 0.5) << "N, then steel";
    Acciaio(s, 1);
    Acciaio(s, 2);
    EXPECT_NEAR(Npl(s), 3853, 0.5) << "by way of another steel";
    s.Data1->MoveNext();
    VaA(s, "IPE 500");
    EXPECT_NEAR(Npl(s), 3853, 0.5) << "from another row, at first sight";
    Acciaio(s, 0);
    Scrive(&s, "Txt_fy", "355");
    EXPECT_NEAR(Npl(s), 3853, 0.5) << "strength typed";
    Acciaio(s, 1);
    Trova<UpDown>(&Dettaglio(s, "FrmVerifiche"), "UpDown2")->stepUp();
    EXPECT_NEAR(Npl(s), 3853, 0.5) << "steel stepped in a detail";
    Scrive(&s, "Txt_L0_0", "7");
    s.DatiRisultati();
    EXPECT_NEAR(Npl(s), 3853, 0.5) << "length, activation";
}

// Npl of IPE 500, S235, NTC: 11552 · 235 / 1.05 = 2585 kN.
TEST_F(VerdettiTest, ForceBeyondTheSectionIsNoWhateverTheMoments) {
    auto& s = Ipe500();
    auto& f = Dettaglio(s, "FrmVerifiche");
    for (const char* N : {"2700", "-2700"}) {
        Scrive(&f, "TxtNsd", N);
        const bool plastica = Sezione().ClassePressoFlessione < 3;
        const char* sum = plastica ? "Lbl_Risult3_0" : "Lbl_Risult3_1";
        EXPECT_EQ(Scritta(&f, sum), "") << N;
        EXPECT_EQ(Scritta(&f, plastica ? "Lbl_Risultato3_0" : "Lbl_Risultato3_1"), "NO") << N;
        EXPECT_NE(Scritta(&f, "LblMotivo").find("supera da sola Npl,Rd"), std::string::npos) << N;
        if (plastica) {
            EXPECT_EQ(Scritta(&f, "LblMNyRd"), Locale("0.0"));
            EXPECT_EQ(Scritta(&f, "LblMNzRd"), Locale("0.0"));
        }
        EXPECT_TRUE(Scritta(&f, "LblUtilizzo").starts_with("Utilizzo 104") ||
                    Scritta(&f, "LblUtilizzo").starts_with("Utilizzo " + Locale("104.4")))
            << Scritta(&f, "LblUtilizzo");
    }
    Scrive(&f, "TxtNsd", "100");
    EXPECT_EQ(Scritta(&f, "Lbl_Risultato3_0"), "OK");
    EXPECT_EQ(Scritta(&f, "LblMotivo"), "");
}

TEST_F(VerdettiTest, ForceBeyondBucklingOrTensionIsNo) {
    auto& s = Ipe500();
    Scrive(&s, "Txt_L0_1", "8");
    const double Nbz = Sezione().NbzRd / 1000;
    ASSERT_LT(Nbz, 1000);
    for (const char* name : {"FrmPresFless", "FrmMsverg"}) {
        auto& f = Dettaglio(s, name);
        if (std::string(name) == "FrmMsverg") {
            EXPECT_EQ(Testo(&f, "Txt_L"), "8") << "the length about z-z of the caller";
        }
        Scrive(&f, "TxtNsd", "1200");
        EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "NO") << name;
        EXPECT_EQ(Scritta(&f, "Lbl_Risult"), "") << name;
        EXPECT_NE(Scritta(&f, "LblMotivo").find("Nb,z,Rd"), std::string::npos) << name;
        Scrive(&f, "TxtNsd", "-2700");
        EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "NO") << name;
        EXPECT_NE(Scritta(&f, "LblMotivo").find("Npl,Rd"), std::string::npos) << name;
        Scrive(&f, "TxtNsd", "-1200");
        EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "OK") << name << ": tension below Npl,Rd";
    }
}

bool InGrassetto(const Schermo& f, const char* name) { return Trova<QLabel>(&f, name)->font().bold(); }

// The units of a line stand in its symbols; the term that governs is marked in each of the lines.
TEST_F(VerdettiTest, LinesShowUnitsAndWhatGoverns) {
    auto& s = Ipe500();
    auto& f = Dettaglio(s, "FrmVerifiche");
    Scrive(&f, "TxtMysd", "300");
    Scrive(&f, "TxtMzsd", "5");
    EXPECT_TRUE(InGrassetto(f, "LblMNyRd"));
    EXPECT_FALSE(InGrassetto(f, "LblMNzRd"));
    Scrive(&f, "TxtMysd", "0");
    EXPECT_FALSE(InGrassetto(f, "LblMNyRd"));
    EXPECT_TRUE(InGrassetto(f, "LblMNzRd"));
    auto& m = Dettaglio(s, "FrmMsverg");
    for (Schermo* screen : {&f, &m})
        for (const auto* line : screen->findChildren<LineaFormula*>()) {
            int units = 0;
            for (const auto* label : line->findChildren<QLabel*>())
                units += label->text().startsWith(" [kN") ? 1 : 0;
            EXPECT_GE(units, 4) << "two of each term";
        }
}

// N 1200 kN in tension 1200/2585 = 0.464, My and Mz beside it 0.7 and 0.2: the sum shown is negative or
// small.
TEST_F(VerdettiTest, SignsThatCancelDoNotPass) {
    auto& s = Ipe500();
    Preme(&s, "Command2"); // plain ends, uniform moment
    auto& f = Aperto("FrmMsverg");
    Scrive(&f, "Txt_L", "0.5");
    Scrive(&f, "TxtMysd", "350"); // of 2194 · 235 / 1.05 = 491 kNm
    EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "OK");
    Scrive(&f, "TxtMzsd", "-35"); // of 75.2
    EXPECT_LT(Numero(&f, "Lbl_Risult"), 0.3);
    EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "NO");
    EXPECT_NE(Scritta(&f, "LblMotivo").find("valore assoluto"), std::string::npos);
    EXPECT_NE(Scritta(&f, "LblUtilizzo").find("(governa My)"), std::string::npos);
    EXPECT_TRUE(InGrassetto(f, "LblMbRd")) << "marked in the line, too";
    EXPECT_FALSE(InGrassetto(f, "LblNbzRd"));
    Scrive(&f, "TxtMzsd", "0");
    Scrive(&f, "TxtNsd", "-1200");
    EXPECT_LT(Numero(&f, "Lbl_Risult"), 0.3);
    EXPECT_EQ(Scritta(&f, "Lbl_Risultato"), "NO");
    Scrive(&f, "Txt_L", "-1");
    EXPECT_FALSE(InGrassetto(f, "LblMbRd")) << "of no sum nothing governs";
    for (const char* empty : {"Lbl_Mcr", "Lbl_Risult", "Lbl_Risultato", "LblMotivo", "LblUtilizzo"})
        EXPECT_EQ(Scritta(&f, empty), "") << empty;
}

/// What boxes and labels show at the moment in which a message is told.
class AlMessaggio {
public:
    AlMessaggio(const QObject& screen, QList<QByteArray> names) {
        before_ = CollegaMessaggi([this, &screen, names = std::move(names)](const Messaggio& m) {
            for (const QByteArray& name : names) {
                const auto* label = screen.findChild<QLabel*>(QString::fromLatin1(name));
                shown << (label != nullptr ? label->text()
                                           : Trova<QLineEdit>(&screen, name.constData())->text());
            }
            return Inoltra(before_, m);
        });
    }
    ~AlMessaggio() { CollegaMessaggi(before_); }
    AlMessaggio(const AlMessaggio&) = delete;
    AlMessaggio& operator=(const AlMessaggio&) = delete;

    QStringList shown;

private:
    PortaMessaggi before_;
};

TEST_F(VerdettiTest, NoOldResultStandsBesideAMessage) {
    auto& s = Ipe500();
    Preme(&s, "Command2"); // plain ends, uniform moment
    auto& f = Aperto("FrmMsverg");
    Scrive(&f, "Txt_L", "5");
    Scrive(&f, "TxtMysd", "60");
    ASSERT_EQ(Scritta(&f, "Lbl_Risultato"), "OK");
    {
        const AlMessaggio moment(f, {"Lbl_Risult", "Lbl_Risultato", "Lbl_MbRd", "LblUtilizzo"});
        Scrive(&f, "Txt_C1", "0");
        EXPECT_EQ(registratore.testi, std::vector<std::string>{"MbRd = 0"});
        EXPECT_EQ(moment.shown, (QStringList{"", "", "", ""}));
    }
    Scrive(&f, "Txt_C1", "1");
    ASSERT_EQ(Scritta(&f, "Lbl_Risultato"), "OK");
    const AlMessaggio moment(s, {"TxtNbRd_0", "TxtMcRd_0", "TxtClasseCompressione"});
    Scrive(&s, "Txt_fy", "0");
    EXPECT_EQ(moment.shown, (QStringList{"", "", ""}));
}

TEST_F(VerdettiTest, AnImpossibleEntryOfOneAxisLeavesTheOther) {
    auto& s = Ipe500();
    Scrive(&s, "Txt_L0_0", "-1");
    EXPECT_EQ(Testo(&s, "TxtNbRd_0"), "");
    EXPECT_NE(Testo(&s, "TxtNbRd_1"), "");
    Scrive(&s, "Txt_L0_0", "1");
    EXPECT_NE(Testo(&s, "TxtNbRd_0"), "");
}

TEST_F(VerdettiTest, AnOvertypedStrengthShowsInTheNameOfTheGrade) {
    auto& s = Ipe500();
    auto& f = Dettaglio(s, "FrmPresFless");
    EXPECT_EQ(Testo(&f, "Txt_TipoAcciaio"), "S235 (Fe360)");
    auto* fy = Trova<QLineEdit>(&f, "Txt_fy");
    fy->setFocus();
    fy->selectAll();
    QTest::keyClicks(fy, "460");
    EXPECT_EQ(Testo(&f, "Txt_TipoAcciaio"), "S235 (Fe360), fy 460");
    EXPECT_EQ(Sezione().TipoAcciaio, "S235 (Fe360)") << "the curves ask for the grade";
    Acciaio(s, 2);
    f.AllAttivazione();
    EXPECT_EQ(Testo(&f, "Txt_TipoAcciaio"), "S355 (Fe510)");
}

TEST_F(VerdettiTest, UltimateStrengthThatIsNoneIsToldAndPutBack) {
    auto& s = Ipe500();
    auto* fu = Trova<QLineEdit>(&s, "Txt_fu");
    fu->setFocus();
    fu->selectAll();
    QTest::keyClicks(fu, "0");
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_EQ(Sezione().fu, 360);
    s.Data1->MoveNext();
    EXPECT_EQ(Sezione().fu, 360) << "the next row does not take it";
    QTest::keyClick(fu, Qt::Key_Return);
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"fu deve essere > 0"});
    EXPECT_EQ(Testo(&s, "Txt_fu"), "360");
    Scrive(&s, "Txt_fu", "-1");
    EXPECT_EQ(registratore.testi.size(), 2U);
    EXPECT_EQ(Testo(&s, "Txt_fu"), "360");
    Scrive(&s, "Txt_fu", "400");
    EXPECT_EQ(Sezione().fu, 400);
}

// An area too small for the effective one: betaA above 1, which the caller tells when it computes.
TEST_F(VerdettiTest, WhatTheCallerWouldHaveSaidWhileTypingComesAtItsEnd) {
    auto& s = Ipe500();
    Acciaio(s, 2);
    auto& f = Dettaglio(s, "FrmPresFless");
    Sezione().Area = 5000;
    registratore.testi.clear();
    auto* N = Trova<QLineEdit>(&f, "TxtNsd");
    N->setFocus();
    N->selectAll();
    QTest::keyClicks(N, "900");
    EXPECT_TRUE(registratore.testi.empty());
    QTest::keyClick(N, Qt::Key_Return);
    ASSERT_EQ(registratore.testi.size(), 1U);
    EXPECT_TRUE(registratore.testi[0].starts_with("Errore! betaA"));
    N->setFocus();
    QTest::keyClick(N, Qt::Key_Return);
    EXPECT_EQ(registratore.testi.size(), 1U) << "nothing was typed since";
}

TEST_F(VerdettiTest, NoteStandsForFlangesThatDifferUnderALoadAwayFromTheCentroid) {
    auto& s = Ipe500();
    Preme(&s, "Command2"); // plain ends, uniform moment
    auto& f = Aperto("FrmMsverg");
    Scrive(&f, "Txt_L", "6");
    Scrive(&f, "Txt_C2", "0.459");
    auto* note = Trova<QLabel>(&f, "LblNotaMcr");
    EXPECT_TRUE(note->isHidden());
    Sezione().Saldata = true;
    Sezione().SaldataAsimm = true;
    Sezione().bAlaInf = 150;
    Sezione().yG = 270;
    f.AllAttivazione();
    EXPECT_FALSE(note->isHidden());
    Scrive(&f, "Txt_C2", "0");
    EXPECT_TRUE(note->isHidden());
}

// In N or N mm, 1E300 kN is no number of single precision.
TEST_F(VerdettiTest, AForceThatCannotBeIsMarkedAndHasNoVerdict) {
    auto& s = Ipe500();
    const QString reason = QStringLiteral("Il numero è troppo grande");
    const std::initializer_list<std::pair<const char*, const char*>> verdicts = {
        {"FrmVerifiche", "Lbl_Risultato3_0"},
        {"FrmPresFless", "Lbl_Risultato"},
        {"FrmMsverg", "Lbl_Risultato"}};
    for (const auto& [name, verdict] : verdicts) {
        const Schermo& detail = Dettaglio(s, name);
        if (name == std::string("FrmMsverg")) {
            Scrive(&detail, "Txt_L", "4");
            for (const char* factor : {"Txt_k", "Txt_Kw", "Txt_C1"})
                Scrive(&detail, factor, "1");
        }
        Scrive(&detail, "TxtNsd", "20");
        for (const char* box : {"TxtNsd", "TxtMysd", "TxtMzsd", "TxtM1_0"}) {
            auto* entry = detail.findChild<QLineEdit*>(QString::fromLatin1(box));
            if (entry == nullptr)
                continue;
            const QString before = entry->text();
            ASSERT_NE(Scritta(&detail, verdict), "") << name << '.' << box;
            for (const char* number : {"1E300", "1E999"}) {
                entry->setText(QString::fromLatin1(number));
                EXPECT_EQ(Scritta(&detail, verdict), "") << name << '.' << box << ' ' << number;
                EXPECT_TRUE(entry->toolTip().contains(reason)) << name << '.' << box << ' ' << number;
            }
            entry->setText(before);
            EXPECT_NE(Scritta(&detail, verdict), "") << name << '.' << box;
            EXPECT_FALSE(entry->toolTip().contains(reason)) << name << '.' << box;
        }
        const_cast<Schermo&>(detail).close();
    }
    s.TxtNsd->setText(QStringLiteral("1E300"));
    EXPECT_TRUE(s.TxtNsd->toolTip().contains(reason));
    EXPECT_EQ(Testo(&s, "TxtMcRd_0"), "");
    s.TxtNsd->setText(QStringLiteral("20"));
    EXPECT_FALSE(s.TxtNsd->toolTip().contains(reason));
    EXPECT_NE(Testo(&s, "TxtMcRd_0"), "");
}

// Typed on the main screen, with details beside it.
TEST_F(VerdettiTest, AStrengthThatIsNoneEmptiesTheVisibleDetailsToo) {
    auto& s = Ipe500();
    const Schermo& check = Dettaglio(s, "FrmVerifiche");
    const Schermo& moment = Dettaglio(s, "FrmMcRd");
    Scrive(&check, "TxtNsd", "20");
    s.activateWindow();
    s.Txt_fy->setFocus();
    s.Txt_fy->selectAll();
    QTest::keyClick(s.Txt_fy, Qt::Key_0);
    EXPECT_EQ(Testo(&s, "TxtMcRd_0"), "");
    EXPECT_EQ(Scritta(&check, "Lbl_Risultato3_0"), "");
    EXPECT_EQ(Scritta(&moment, "Lbl_McRd_0"), "");
    QTest::keyClick(s.Txt_fy, Qt::Key_Backspace);
    QTest::keyClicks(s.Txt_fy, QStringLiteral("355"));
    EXPECT_EQ(Scritta(&check, "Lbl_Risultato3_0"), "OK");
    // 2194 cm3 of IPE 500
    EXPECT_NEAR(Numero(&moment, "Lbl_McRd_0"), 2194 * 0.355 / GammaM0.Stretto(), 1);
}

} // namespace
