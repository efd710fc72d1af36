// The screen by its object names. Expected values by hand, gamma M0 1. IPE 300 of S235: A 53.81 cm2, Wpl
// 628.4 cm3, so Fa 1264.5 kN, Ma 147.7 kNm. Bars Fs = 1000 · 430/1.15 = 373.9 kN; fcd = 0.85 · 25/1.5 = 14.17
// N/mm2.

#include <array>
#include <cmath>

#include "AmbienteTravi.h"
#include "composite/AcciaioCls.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

constexpr double A = 5381;
constexpr double Fs = 1000 * 430 / 1.15;
constexpr double Fa = A * 235;
constexpr double quota = 420 - 30; ///< of the bars

void Circa(double valore, double atteso, double parte = 0.003) {
    EXPECT_NEAR(valore, atteso, std::abs(atteso) * parte);
}

class FrmAcciaioClsTest : public AmbienteTravi {
protected:
    void Vuote() const {
        for (const char* name :
             {"Txt_MaplRd", "Txt_MplRd", "Txt_NeutroPlastico", "Txt_Vl", "Txt_Sigma_0", "Txt_Sigma_1",
              "Txt_Sigma_2", "Txt_Sigma_3", "Txt_yG", "Txt_Jid", "Txt_JidJa", "Txt_Ss"})
            EXPECT_EQ(Legge(name), "") << name;
        EXPECT_EQ(Etichetta("lblEquilibrio"), "");
        EXPECT_EQ(Etichetta("lblMessaggioClasse"), "");
    }
};

TEST_F(FrmAcciaioClsTest, OpensInThePlaceOfTheSectionsWithTheirSteel) {
    Apre();
    EXPECT_FALSE(partenza->isVisible());
    EXPECT_EQ(f->windowTitle(), "AcciaioCls/Flessione - File: ");
    EXPECT_EQ(Legge("Txt_Prof_0"), "IPE 300");
    EXPECT_EQ(Legge("Txt_TipoAcciaio"), "S235 (Fe360)");
    EXPECT_EQ(Valore("Txt_fy"), 235);
    // b, b inf, tf, tf inf, h, tw, r1, r2, r
    const double dims[] = {150, 150, 10.7, 10.7, 300, 7.1};
    for (int i = 0; i < 6; ++i)
        EXPECT_NEAR(Valore(("txtHsd_" + std::to_string(i)).c_str()), dims[i], 1e-6) << i;
    EXPECT_EQ(Valore("Txt_fck"), 25);
    EXPECT_EQ(Valore("Txt_fsk"), 430);
    EXPECT_EQ(Valore("txtDati_5"), 15);
    EXPECT_EQ(Legge("txtDati_1"), "");
}

TEST_F(FrmAcciaioClsTest, OptionsHaveTheirTextsTipsAndRooms) {
    Apre();
    const std::vector<std::pair<std::string, std::string>> slabs = {
        {"Piena", "Soletta piena"},
        {"Grecata trasv.", "Lamiera grecata con nervature trasversali alla trave"},
        {"Grecata paral.", "Lamiera grecata con nervature parallele alla trave"}};
    const std::vector<std::pair<std::string, std::string>> checks = {
        {"S.L.U. M+", "Verifica allo Stato Limite Ultimo (EC4) - Momento positivo"},
        {"S.L.U. M-", "Verifica allo Stato Limite Ultimo (EC4) - Momento negativo"},
        {"Metodo n  M+", "Calcolo elastico - Momento positivo"},
        {"Metodo n  M-", "Calcolo elastico - Momento negativo"}};
    for (const auto& [group, texts] :
         {std::pair{"OptTipoSoletta_", slabs}, std::pair{"OpTipoVerifica_", checks}})
        for (std::size_t i = 0; i < texts.size(); ++i) {
            const auto* option = Trova<QRadioButton>(f, (group + std::to_string(i)).c_str());
            EXPECT_EQ(option->text().toStdString(), texts[i].first);
            EXPECT_EQ(option->toolTip().toStdString(), texts[i].second);
        }
    const auto shown = [this](const char* name) { return Trova<QWidget>(f, name)->isVisible(); };
    EXPECT_FALSE(shown("FrameLamiera"));
    Sceglie("OptTipoSoletta", 1);
    EXPECT_TRUE(shown("FrameLamiera"));
    Sceglie("OptTipoSoletta", 0);
    EXPECT_FALSE(shown("FrameLamiera"));
    EXPECT_TRUE(shown("frSLU"));
    EXPECT_FALSE(shown("frMetodoN"));
    Sceglie("OpTipoVerifica", 3);
    EXPECT_FALSE(shown("frSLU"));
    EXPECT_TRUE(shown("frMetodoN"));
    EXPECT_EQ(f->Trave().TipoVerifica, metodoNNegativo);
}

TEST_F(FrmAcciaioClsTest, SaggingPlasticMomentWithTheAxisInTheSlab) {
    Apre();
    Piena();
    f->Calcola();
    const double compresso = (Fa - Fs) / (0.85 * 25 / 1.5);
    const double x = compresso / 1200;
    Circa(Valore("Txt_MplRd"), (-Fa * 150 + quota * Fs + (Fa - Fs) * (420 - x / 2)) / 1e6);
    Circa(Valore("Txt_NeutroPlastico"), x);
    Circa(Valore("Txt_Vl"), Fa / 1000);
    Circa(Valore("Txt_MaplRd"), 628.4 * 235 / 1000);
    EXPECT_EQ(Etichetta("lblMessaggioClasse"), "Sezione di classe 1");
    EXPECT_EQ(Legge("Txt_Jid"), "");
    EXPECT_TRUE(registratore.testi.empty());
}

// Ma less the web between the axes of steel and composite section, and the couple of the bars.
TEST_F(FrmAcciaioClsTest, HoggingPlasticMoment) {
    Apre();
    Piena();
    Sceglie("OpTipoVerifica", 1);
    Preme(f, "cmdCalcola");
    const double z = Fs / (2 * 7.1 * 235);
    Circa(Valore("Txt_MplRd"), -(628.4 * 235 / 1000 - 7.1 * z * z * 235 / 1e6 + Fs * (quota - 150) / 1e6));
    Circa(Valore("Txt_NeutroPlastico"), 420 - 150 - z);
    Circa(Valore("Txt_Vl"), Fs / 1000);
}

// The axis lies in the steel: 5381 (x - 270) + 1000 (x - 30) + 80·120 (x - 60) = 0, from the top.
TEST_F(FrmAcciaioClsTest, ElasticStresses) {
    Apre();
    Piena();
    Sceglie("OpTipoVerifica", 2);
    Scrive({{"Txt_M", "200"}});
    f->Calcola();
    const double slab = 1200 * 120 / 15.0;
    const double x = (A * 270 + 1000 * 30 + slab * 60) / (A + 1000 + slab);
    const double J = 8356e4 + A * std::pow(x - 270, 2) + 1000 * std::pow(x - 30, 2) +
                     slab * (120.0 * 120 / 12 + std::pow(x - 60, 2));
    Circa(Valore("Txt_yG"), x);
    Circa(Valore("Txt_Jid"), J / 1e4);
    Circa(Valore("Txt_JidJa"), J / 8356e4);
    Circa(Valore("Txt_Sigma_0"), -200e6 * x / J / 15);
    Circa(Valore("Txt_Sigma_1"), -200e6 * (x - 30) / J);
    Circa(Valore("Txt_Sigma_2"), 200e6 * (120 - x) / J, 0.03); // near the axis
    Circa(Valore("Txt_Sigma_3"), 200e6 * (420 - x) / J);
    const double S = slab * (x - 60) + 1000 * (x - 30);
    Circa(Valore("Txt_Ss"), S / 1000);
    Circa(Valore("Txt_Vl"), S * 200e6 / J / 1000);
    EXPECT_EQ(Trova<QWidget>(f, "Txt_Sigma_0")->property("colore").toInt(), 12);
    EXPECT_EQ(Trova<QWidget>(f, "Txt_Sigma_3")->property("colore").toInt(), 9);
    EXPECT_EQ(Legge("Txt_MplRd"), "");
    EXPECT_EQ(Etichetta("lblSegnoMsd"), "");
}

TEST_F(FrmAcciaioClsTest, MomentOfTheOtherSignIsTold) {
    Apre();
    Piena();
    Scrive({{"Txt_M", "-50"}});
    EXPECT_EQ(Etichetta("lblSegnoMsd"), "");
    Sceglie("OpTipoVerifica", 2);
    EXPECT_EQ(Etichetta("lblSegnoMsd"), "segno di Msd");
    Sceglie("OpTipoVerifica", 3);
    EXPECT_EQ(Etichetta("lblSegnoMsd"), "");
    Scrive({{"Txt_M", "50"}});
    EXPECT_EQ(Etichetta("lblSegnoMsd"), "segno di Msd");
}

TEST_F(FrmAcciaioClsTest, AnyChangeClearsTheOutputs) {
    Apre();
    Piena();
    for (const auto& [box, text] : Dati{{"txtDati_1", "130"},
                                        {"Txt_fck", "30"},
                                        {"txtDati_5", "14"},
                                        {"Txt_fy", "240"},
                                        {"txtHsd_4", "301"},
                                        {"Txt_M", "1"},
                                        {"txtTitolo", "altro"}}) {
        f->Calcola();
        EXPECT_NE(Legge("Txt_MplRd"), "") << box;
        Scrive({{box, text}});
        Vuote();
        EXPECT_EQ(f->Trave().MplRd, 0);
    }
    f->Calcola();
    Sceglie("OpTipoVerifica", 1);
    Vuote();
    f->Calcola();
    Trova<UpDown>(f, "UpDown2")->stepUp();
    Vuote();
}

TEST_F(FrmAcciaioClsTest, EnterInTheMomentCalculates) {
    Apre();
    Piena();
    Batte("Txt_M", "100");
    Vuote();
    Invio("Txt_M");
    EXPECT_NE(Legge("Txt_MplRd"), "");
}

// ---- messages

TEST_F(FrmAcciaioClsTest, NegativeSlabOnADeckIsRefusedOnCalculation) {
    Apre();
    for (const int deck : {1, 2}) {
        Grecata(deck);
        Scrive({{"txtDati_1", "-20"}});
        EXPECT_TRUE(registratore.testi.empty());
        f->Calcola();
        EXPECT_EQ(registratore.testi, (std::vector<std::string>{"hc < 0 ammesso solo per soletta piena",
                                                                "Errore! Controllare i dati"}));
        EXPECT_EQ(registratore.messaggi[0].icona, Icona::Stop);
        Vuote();
        registratore.testi.clear();
        registratore.messaggi.clear();
    }
    Sceglie("OptTipoSoletta", 0);
    Scrive({{"txtDati_4", "-10"}});
    f->Calcola();
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_NE(Legge("Txt_MplRd"), "");
}

TEST_F(FrmAcciaioClsTest, DeckIsMendedInOrderAndWrittenBack) {
    Apre();
    Grecata(2);
    Scrive({{"TxtLam_4", "50"}, {"TxtLam_3", "80"}});
    EXPECT_TRUE(registratore.testi.empty()) << "nothing speaks before";
    f->Calcola();
    EXPECT_EQ(registratore.testi,
              (std::vector<std::string>{"b0t deve essere >= bb",
                                        "L'interasse delle nervature deve essere > bs, bb"}));
    EXPECT_EQ(Valore("TxtLam_4"), 60);
    EXPECT_EQ(Valore("TxtLam_3"), 91);
    EXPECT_EQ(Etichetta("lblNota"), "interasse < bb + bs");
    EXPECT_EQ(Legge("Txt_MplRd"), "");
    registratore.testi.clear();
    f->Calcola(); // it has been mended
    EXPECT_TRUE(registratore.testi.empty());
    Scrive({{"TxtLam_3", "90"}}); // the greater of the two passes
    f->Calcola();
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_EQ(Valore("TxtLam_3"), 90);
}

TEST_F(FrmAcciaioClsTest, DeckIsMendedOnLeavingTheBoxAndNotWhileTyping) {
    Apre();
    Grecata(1);
    Batte("TxtLam_3", "8");
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_EQ(Valore("TxtLam_3"), 8);
    Invio("TxtLam_3");
    EXPECT_EQ(registratore.testi,
              std::vector<std::string>{"L'interasse delle nervature deve essere > bs, bb"});
    EXPECT_EQ(Valore("TxtLam_3"), 91);
}

TEST_F(FrmAcciaioClsTest, DeckThatIsNotGivenYetIsNotMendedOnTheWay) {
    Apre();
    Sceglie("OptTipoSoletta", 2);
    Piena();
    for (const auto& [box, text] : Dati{{"TxtLam_0", "55"}, {"TxtLam_1", "60"}, {"TxtLam_2", "90"}}) {
        Batte(box, text);
        Invio(box);
    }
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_EQ(Legge("TxtLam_3"), "");
}

// bs is the crest of the deck: a rib of 61 mm below and 88 mm above leaves 62 mm of 150, and is 74.5 mm wide
// in the middle.
TEST_F(FrmAcciaioClsTest, UpperWidthIsThatOfTheCrestBetweenTwoRibs) {
    Apre();
    Sceglie("OptTipoSoletta", 1);
    Piena();
    Scrive({{"TxtLam_0", "55"}, {"TxtLam_1", "61"}, {"TxtLam_2", "62"}, {"TxtLam_3", "150"}});
    f->Calcola();
    EXPECT_NEAR(f->Trave().b0, (61 + 88) / 2.0, 1e-9);
    EXPECT_TRUE(Trova<QLabel>(f, "lblLam_2")->toolTip().contains(QStringLiteral("fra due nervature")));
}

TEST_F(FrmAcciaioClsTest, RatioThatIsNoneIsToldAndNotKept) {
    Apre();
    Piena();
    Sceglie("OpTipoVerifica", 2);
    Scrive({{"Txt_M", "100"}, {"txtDati_5", "0"}});
    f->Calcola();
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"Es/Ec deve essere >0"});
    EXPECT_EQ(Legge("Txt_Jid"), "");
    EXPECT_EQ(CoeffOmogeneizzazione, 15) << "the setting stays one";
}

TEST_F(FrmAcciaioClsTest, MoreBarsThanSteelAreAbsurd) {
    Apre();
    Piena();
    Scrive({{"txtDati_3", "5000"}}); // 1869.6 kN
    f->Calcola();
    EXPECT_EQ(
        registratore.testi,
        std::vector<std::string>{"Resistenza barre > resistenza putrella !! Dati assurdi\n"
                                 "Il momento resistente di progetto è calcolato moltiplicando la resistenza\n"
                                 "a trazione della trave per la distanza fra baricentro-trave e armatura"});
    EXPECT_EQ(registratore.messaggi[0].icona, Icona::Avviso);
    Circa(Valore("Txt_MplRd"), Fa * (quota - 150) / 1e6);
    EXPECT_EQ(Valore("Txt_NeutroPlastico"), 120);
}

TEST_F(FrmAcciaioClsTest, WhatWouldMisleadStaysEmpty) {
    Apre();
    Piena();
    const std::vector<std::pair<Dati::value_type, std::string>> cases = {
        {{"txtDati_1", "0"}, "hc = 0"},
        {{"txtDati_4", "130"}, "c fuori dalla soletta"},
        {{"txtDati_2", "0"}, "beff <= 0"}};
    for (const auto& [entry, note] : cases) {
        Piena();
        Scrive({entry});
        f->Calcola();
        EXPECT_EQ(Etichetta("lblNota"), note);
        EXPECT_EQ(Legge("Txt_MplRd"), "");
        EXPECT_NE(dynamic_cast<Casella*>(Trova<QLineEdit>(f, entry.first))->SegnoMostrato(),
                  Casella::Nessuno);
        EXPECT_EQ(f->Trave().Vl, 0) << "the studs get nothing";
    }
    Scrive({{"txtDati_2", "1000"}});
    EXPECT_EQ(Etichetta("lblNota"), "");
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmAcciaioClsTest, SteelThatIsNoneIsAnError) {
    Apre();
    Piena();
    Scrive({{"txtHsd_4", "0"}});
    f->Calcola();
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"Errore! Controllare i dati"});
    Vuote();
}

// Axis in the slab: its compressed concrete counts with the wrong sign in the formula.
TEST_F(FrmAcciaioClsTest, TrueMomentStandsBesideOneThatIsFarFromEquilibrium) {
    Apre();
    Piena();
    Scrive({{"txtDati_3", "4000"}}); // Fs 1495.7 kN is more than Fa
    Sceglie("OpTipoVerifica", 1);
    f->Calcola();
    EXPECT_TRUE(Etichetta("lblEquilibrio").starts_with("in equilibrio: -"));
    EXPECT_TRUE(Etichetta("lblEquilibrio").ends_with(" kNm"));
    const double compresso = Fs * 4 - Fa; // its level is next to the lower edge of the slab
    const double x = compresso / (0.85 * 25 / 1.5) / 1200;
    const std::string text = Etichetta("lblEquilibrio");
    const double M = ValoreNumerico(text.substr(text.find('-'), text.size()));
    Circa(M, (Fa * 150 + compresso * (300 + x / 2) - 4 * Fs * quota) / 1e6);
    EXPECT_LT(Valore("Txt_MplRd"), M) << "the formula's is larger";
}

TEST_F(FrmAcciaioClsTest, SlenderSectionHasPlasticResultsTinted) {
    Apre();
    Piena();
    Scrive({{"txtHsd_5", "1.5"}, {"Txt_fy", "355"}}); // d/tw 166
    f->Calcola();
    EXPECT_TRUE(Etichetta("lblMessaggioClasse").ends_with("\nSolo verifica elastica"))
        << Etichetta("lblMessaggioClasse");
    for (const char* name : {"Txt_MplRd", "Txt_NeutroPlastico", "Txt_Vl", "Txt_MaplRd"}) {
        EXPECT_NE(Legge(name), "");
        EXPECT_NE(dynamic_cast<Casella*>(Trova<QLineEdit>(f, name))->SegnoMostrato(), Casella::Nessuno)
            << name;
    }
    EXPECT_EQ(Etichetta("lblSagomo"), "misure modificate");
    Sceglie("OpTipoVerifica", 2);
    f->Calcola();
    EXPECT_EQ(dynamic_cast<Casella*>(Trova<QLineEdit>(f, "Txt_Vl"))->SegnoMostrato(), Casella::Nessuno);
}

TEST_F(FrmAcciaioClsTest, SolverThatFindsNothingIsToldAndLeavesNothing) {
    Apre();
    Piena();
    // A slab in the steel that outweighs it on both sides keeps the sign of the residual.
    Scrive({{"txtDati_1", "-290"}, {"txtDati_4", "-100"}, {"txtDati_2", "9000"}, {"txtDati_3", "90000"}});
    f->Calcola();
    ASSERT_EQ(registratore.testi.size(), 1U);
    EXPECT_TRUE(registratore.testi[0].starts_with("ERRORE! La funzione non cambia segno"));
    EXPECT_EQ(Legge("Txt_MplRd"), "");
}

// ---- steel, globals

TEST_F(FrmAcciaioClsTest, StepButtonsChangeRowAndGrade) {
    Apre();
    Piena();
    Trova<UpDown>(f, "UpDown1")->stepUp();
    EXPECT_EQ(Legge("Txt_Prof_0"), "IPE 330");
    EXPECT_EQ(Valore("txtHsd_4"), 330);
    EXPECT_EQ(SezioneInUso<SezioneDoppioT>()->Designation, "IPE 330");
    Trova<UpDown>(f, "UpDown1")->stepDown();
    EXPECT_EQ(Legge("Txt_Prof_0"), "IPE 300");
    Trova<UpDown>(f, "UpDown2")->stepUp();
    EXPECT_EQ(Legge("Txt_TipoAcciaio"), "S275 (Fe430)");
    EXPECT_EQ(Valore("Txt_fy"), 275);
    EXPECT_EQ(IndiceAcciaio, 1);
    f->Calcola();
    Circa(Valore("Txt_MaplRd"), 628.4 * 275 / 1000);
}

TEST_F(FrmAcciaioClsTest, ChannelsAndAnglesHaveNoRowToStep) {
    Avvia();
    Trova<QAction>(NavigaSchermi::Unico().Trova("frmDoppioT"), "mnuTipoU")->trigger();
    Trova<QAction>(&Aperto("frmSagomiU"), "mnuAcciaioCls")->trigger();
    f = dynamic_cast<frmAcciaioCls*>(&Aperto("frmAcciaioCls"));
    EXPECT_FALSE(Trova<UpDown>(f, "UpDown1")->isEnabled());
    EXPECT_EQ(Valore("Txt_fy"), 235);
    Piena();
    Scrive({{"txtHsd_0", "150"},
            {"txtHsd_2", "10.7"},
            {"txtHsd_4", "300"},
            {"txtHsd_5", "7.1"},
            {"txtHsd_8", "15"}});
    registratore.testi.clear();
    f->Calcola();
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_NE(Legge("Txt_MplRd"), "");
    Menu("mnuFileItem_3");
    EXPECT_TRUE(Aperto("frmSagomiU").isVisible());
}

TEST_F(FrmAcciaioClsTest, MaterialsAreTheSettings) {
    Apre();
    Piena();
    Scrive({{"Txt_fck", "30"}, {"Txt_fsk", "450"}, {"txtDati_5", "14"}});
    EXPECT_EQ(fck, 30);
    EXPECT_EQ(fsk, 450);
    EXPECT_EQ(CoeffOmogeneizzazione, 14);
    Batte("Txt_fck", "4"); // of 40
    EXPECT_EQ(fck, 30) << "what is being typed is no setting yet";
    Invio("Txt_fck");
    EXPECT_EQ(fck, 4);
}

TEST_F(FrmAcciaioClsTest, MaterialsThatCannotBeAreMarkedAndNotComputedWith) {
    Apre();
    Piena();
    Sceglie("OpTipoVerifica", 2);
    Scrive({{"Txt_M", "100"}});
    for (const auto& [box, text, good] :
         {std::array{"Txt_fck", "0.5", "25"}, {"Txt_fsk", "5001", "430"}, {"txtDati_5", "101", "15"}}) {
        Scrive({{box, text}});
        f->Calcola();
        EXPECT_EQ(Legge("Txt_Jid"), "") << box;
        EXPECT_EQ(Valore(box), ValoreNumerico(Locale(text)));
        EXPECT_NE(dynamic_cast<Casella*>(Trova<QLineEdit>(f, box))->SegnoMostrato(), Casella::Nessuno);
        Scrive({{box, good}});
        f->Calcola();
        EXPECT_NE(Legge("Txt_Jid"), "") << box;
    }
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmAcciaioClsTest, AnotherPartialFactorRenewsTheScreen) {
    Apre();
    Piena();
    f->Calcola();
    Normativa = normativaNTC;
    ImpostaGamma();
    f->AllAttivazione();
    Vuote();
    EXPECT_EQ(Trova<QAction>(f, "NormativaMain")->text(), "Normativa: NTC");
    f->Calcola();
    Circa(Valore("Txt_MaplRd"), 628.4 * 235 / 1000 / 1.05);
}

TEST_F(FrmAcciaioClsTest, AnotherRowBehindIsTakenAndTheSameOneKeepsWhatWasTyped) {
    Apre();
    Piena();
    Scrive({{"txtHsd_4", "310"}});
    Menu("mnuFileItem_3");
    EXPECT_TRUE(partenza->isVisible());
    Trova<QAction>(partenza, "mnuAcciaioCls")->trigger();
    EXPECT_EQ(Valore("txtHsd_4"), 310);
    EXPECT_EQ(Valore("txtDati_1"), 120);
    Menu("mnuFileItem_3");
    VaA(*partenza, "IPE 400");
    Trova<QAction>(partenza, "mnuAcciaioCls")->trigger();
    EXPECT_EQ(Legge("Txt_Prof_0"), "IPE 400");
    EXPECT_EQ(Valore("txtDati_1"), 120);
}

TEST_F(FrmAcciaioClsTest, AnotherGradeKeepsTheBeamOnItsRow) {
    Apre();
    Piena();
    Scrive({{"txtHsd_4", "310"}});
    Trova<UpDown>(f, "UpDown2")->stepUp();
    Menu("mnuFileItem_3");
    Trova<QAction>(partenza, "mnuAcciaioCls")->trigger();
    EXPECT_EQ(Valore("txtHsd_4"), 310);
    EXPECT_EQ(Valore("Txt_fy"), 275);
}

// ---- drawing

TEST_F(FrmAcciaioClsTest, PictureFollowsEachKeyInSilence) {
    Apre();
    auto* picture = Trova<ImmagineDisegno>(f, "pctSezione");
    Piena();
    const QImage before = picture->grab().toImage();
    Batte("txtDati_1", "200");
    EXPECT_NE(picture->grab().toImage(), before);
    EXPECT_TRUE(registratore.testi.empty());
    Vuote();
    EXPECT_TRUE(picture->Mostrato().PlottaInOggetto);
    auto* deck = Trova<ImmagineDisegno>(f, "pctLamiera");
    Grecata(1);
    const QImage ribs = deck->grab().toImage();
    Batte("TxtLam_0", "70");
    EXPECT_NE(deck->grab().toImage(), ribs);
}

TEST_F(FrmAcciaioClsTest, CommandsOpenPlotStudsAndDeck) {
    Apre();
    Grecata(1);
    Preme(f, "CmdPlotta");
    Aperto("FrmPltSezione").close();
    Preme(f, "cmdLamiera");
    Aperto("FrmPltSezione").close();
    Preme(f, "cmdConnessioni");
    EXPECT_TRUE(Aperto("frmConnettori").isVisible());
    EXPECT_NE(Legge("Txt_MplRd"), "") << "the studs need the shear";
}

TEST_F(FrmAcciaioClsTest, ByTheKeyboardAlone) {
    Apre();
    f->activateWindow();
    auto* title = Trova<QLineEdit>(f, "txtTitolo");
    title->setFocus();
    QStringList visited;
    for (int i = 0; i < 60 && f->focusWidget()->objectName() != u"Txt_M"; ++i) {
        visited << f->focusWidget()->objectName();
        QTest::keyClick(f->focusWidget(),
                        qobject_cast<QLineEdit*>(f->focusWidget()) ? Qt::Key_Return : Qt::Key_Tab);
    }
    EXPECT_EQ(f->focusWidget()->objectName(), "Txt_M");
    for (const char* box :
         {"Txt_Prof_0", "Txt_fy", "txtHsd_0", "txtHsd_8", "txtDati_1", "txtDati_5", "Txt_fck"})
        EXPECT_TRUE(visited.contains(QString::fromLatin1(box))) << box;
    EXPECT_LT(visited.indexOf(QStringLiteral("txtHsd_8")), visited.indexOf(QStringLiteral("txtDati_1")));
    EXPECT_LT(visited.indexOf(QStringLiteral("txtDati_4")), visited.indexOf(QStringLiteral("Txt_fck")));
    QSet<QString> keys;
    for (const QAbstractButton* button : f->findChildren<QAbstractButton*>())
        if (!button->shortcut().isEmpty()) {
            EXPECT_FALSE(keys.contains(button->shortcut().toString())) << button->objectName().toStdString();
            keys << button->shortcut().toString();
        }
    EXPECT_TRUE(keys.contains(QStringLiteral("Alt+C")));
    EXPECT_TRUE(keys.contains(QStringLiteral("Alt+P")));
}

TEST_F(FrmAcciaioClsTest, MenuOfRulesOpensTheFactors) {
    Apre();
    Piena();
    f->Calcola();
    Menu("NormativaMain");
    Schermo& factors = Aperto("frmGamma");
    Preme(&factors, "optNormativa_0");
    Preme(&factors, "cmdOK_0");
    EXPECT_EQ(Trova<QAction>(f, "NormativaMain")->text(), "Normativa: NTC");
    Vuote();
}

} // namespace
