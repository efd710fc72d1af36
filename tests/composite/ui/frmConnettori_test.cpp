// The screen of studs. Expected values by hand: d 19, h 100, fu 450, gamma V 1.25 in C25/30, Ecm = 9500 ·
// 33^(1/3) = 30472 N/mm2: PRd1 = 0.8 · 450 · 283.5/1.25 = 81.66 kN, PRd2 = 0.29 · 361 · (25 · 30472)^0.5/1.25
// = 73.10 kN. IPE 300 of S235 below a slab of 120 mm: Vl = Fa = 1264.5 kN, so 17.3, 18 studs in half the
// beam, 36 in all.

#include "composite/ui/frmConnettori.h"

#include <QComboBox>

#include "AmbienteTravi.h"
#include "composite/AcciaioCls.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmConnettoriTest : public AmbienteTravi {
protected:
    frmConnettori& ApreConnettori() {
        Preme(f, "cmdConnessioni");
        c = dynamic_cast<frmConnettori*>(&Aperto("frmConnettori"));
        return *c;
    }
    void Pieno() {
        Apre();
        Piena();
        ApreConnettori();
        ScriveC({{"txtInput_3", "8"}});
    }
    /// Transverse ribs of 55 mm, b0 (200 + 60 - 90)/2 = 85 mm.
    void Trasversali(const char* luce) {
        Apre();
        Grecata(1);
        ApreConnettori();
        ScriveC({{"txtInput_3", luce}});
    }
    void ScriveC(const Dati& dati) const {
        for (const auto& [box, text] : dati)
            Trova<QLineEdit>(c, box)->setText(QString::fromStdString(Locale(text)));
    }
    void SceglieC(const char* elenco, const char* testo) const {
        auto* list = Trova<QComboBox>(c, elenco);
        list->setCurrentIndex(list->findText(QString::fromLatin1(testo)));
    }
    [[nodiscard]] std::string LeggeC(const char* nome) const { return Testo(c, nome); }
    [[nodiscard]] double ValoreC(const char* nome) const { return ValoreNumerico(LeggeC(nome)); }
    [[nodiscard]] std::string Dice(const char* nome) const {
        return Trova<QLabel>(c, nome)->text().toStdString();
    }
    void Progetta() const { Preme(c, "CmdProgetta"); }
    void VuoteC() const {
        for (const char* name : {"TxtPrd", "txtn", "txtPasso", "TxtNerv"})
            EXPECT_EQ(LeggeC(name), "") << name;
    }

    frmConnettori* c = nullptr;
};

TEST_F(FrmConnettoriTest, BeginsWithTheUsualStud) {
    Apre();
    Piena();
    ApreConnettori();
    EXPECT_EQ(ValoreC("txtInput_0"), 100);
    EXPECT_EQ(ValoreC("txtInput_1"), 450);
    EXPECT_EQ(ValoreC("txtInput_2"), 1.25);
    EXPECT_EQ(LeggeC("txtInput_3"), "");
    const auto* d = Trova<QComboBox>(c, "Combo1");
    QStringList items;
    for (int i = 0; i < d->count(); ++i)
        items << d->itemText(i);
    EXPECT_EQ(items, QStringList({"10", "13", "16", "19", "22", "25"}));
    EXPECT_EQ(d->currentText(), "19");
    EXPECT_EQ(Trova<QComboBox>(c, "ComboNr")->currentText(), "1");
    EXPECT_EQ(Dice("lblInput_3"), "L con n connettori [m]");
    VuoteC();
}

TEST_F(FrmConnettoriTest, ABoxThatWasEmptiedStaysSoUntilTheScreenOpensAgain) {
    Apre();
    Piena();
    ApreConnettori();
    Trova<QLineEdit>(c, "txtInput_1")->clear();
    c->AllAttivazione();
    EXPECT_EQ(LeggeC("txtInput_1"), "");
    EXPECT_EQ(ValoreC("txtInput_0"), 100);
    c->close();
    ApreConnettori();
    EXPECT_EQ(ValoreC("txtInput_1"), 450);
}

TEST_F(FrmConnettoriTest, TitlesAndLabelsFollowTheState) {
    Apre();
    Piena();
    ApreConnettori();
    const std::string title = "Progetto Connesioni - Pioli muniti di testa (Pioli Nelson) - ";
    EXPECT_EQ(c->windowTitle().toStdString(), title + "EC4 #6.3.");
    EXPECT_EQ(Trova<QRadioButton>(c, "OptConnect_0")->text(), "A completo ripristino");
    const std::vector<std::array<std::string, 3>> texts = {
        {"Soletta Piena", "soletta PIENA", "EC4#6.3.2."},
        {"Nervature trasversali alle travi", "nervature TRASVERSALI", "EC4#6.3.3.1."},
        {"Nervature parallele alle travi", "nerv.PARALLELE alle travi", "EC4#6.3.3.2."}};
    for (int kind = 0; kind < 3; ++kind) {
        Sceglie("OptTipoSoletta", kind);
        EXPECT_EQ(Dice("lblTipoSoletta"), texts[static_cast<std::size_t>(kind)][0]);
        EXPECT_EQ(Dice("lblOrditura"), texts[static_cast<std::size_t>(kind)][1]);
        EXPECT_EQ(Dice("lblParagrafo"), texts[static_cast<std::size_t>(kind)][2]);
        EXPECT_EQ(Trova<QWidget>(c, "TxtNerv")->isVisible(), kind > 0);
        EXPECT_EQ(Trova<QWidget>(c, "txtb0")->isVisible(), kind > 0);
    }
    EXPECT_EQ(Dice("lblMomento"), "Momento positivo");
    Sceglie("OpTipoVerifica", 1);
    EXPECT_EQ(Dice("lblMomento"), "Momento negativo");
    Sceglie("OpTipoVerifica", 2);
    EXPECT_EQ(c->windowTitle().toStdString(), title + "Metodo n");
    EXPECT_EQ(Trova<QRadioButton>(c, "OptConnect_0")->text(), "Metodo n");
    EXPECT_FALSE(Trova<QWidget>(c, "OptConnect_1")->isEnabled());
    Scrive({{"Txt_M", "-20"}});
    EXPECT_EQ(Dice("lblMomento"), "Momento positivo - segno di Msd");
}

TEST_F(FrmConnettoriTest, FullConnection) {
    Pieno();
    Progetta();
    EXPECT_NEAR(ValoreC("TxtPrd"), 73.10, 0.02);
    EXPECT_EQ(LeggeC("txtn"), "36");
    EXPECT_EQ(LeggeC("txtPasso"), "228"); // 8000/35
    EXPECT_EQ(Dice("lblUnita"), "connettori");
    EXPECT_EQ(Dice("lblK"), "k = 1");
    EXPECT_EQ(Dice("lblHsuD"), "");
    SceglieC("ComboNr", "2");
    VuoteC();
    Progetta();
    EXPECT_EQ(LeggeC("txtn"), "36");
    EXPECT_EQ(LeggeC("txtPasso"), "457"); // 2 · 8000/35
    EXPECT_EQ(Dice("lblUnita"), "coppie conn.");
    EXPECT_TRUE(registratore.testi.empty());
}

// q = 17.3 (|Msd| - Ma)/(MplRd - Ma), Ma 147.7, MplRd 306.9 kNm: for 227.3 kNm half of it.
TEST_F(FrmConnettoriTest, PartialConnection) {
    Pieno();
    Preme(c, "OptConnect_1");
    ScriveC({{"TxtMsd", "227.3"}});
    Progetta();
    EXPECT_EQ(LeggeC("txtn"), "18"); // 8.65, 9, twice
    EXPECT_EQ(LeggeC("txtPasso"), "470");
    EXPECT_NEAR(Valore("Txt_M"), 227.3, 1e-6) << "it is the beam's moment";
    EXPECT_NE(Legge("Txt_MplRd"), "") << "on which the plastic results do not hang";
    ScriveC({{"TxtMsd", "140"}}); // the steel carries it alone
    Progetta();
    EXPECT_EQ(LeggeC("txtn"), "0");
    EXPECT_EQ(LeggeC("txtPasso"), "");
    ScriveC({{"TxtMsd", "320"}});
    Progetta();
    EXPECT_EQ(LeggeC("txtn"), "");
    EXPECT_EQ(Dice("lblHsuD"), "Msd > MplRd");
    SceglieC("ComboNr", "2");
    ScriveC({{"TxtMsd", "-227.3"}});
    Progetta();
    EXPECT_EQ(LeggeC("txtn"), "18");      // 36 · 0.5
    EXPECT_EQ(LeggeC("txtPasso"), "941"); // 2 · 8000/17
}

TEST_F(FrmConnettoriTest, IncompleteDataAreRefused) {
    Apre();
    Piena();
    ApreConnettori();
    EXPECT_FALSE(c->ValidaDati());
    Progetta();
    ASSERT_EQ(registratore.messaggi.size(), 1U);
    EXPECT_EQ(registratore.testi[0], "Dati non accettabili od incompleti ! Controllare");
    EXPECT_EQ(registratore.messaggi[0].titolo, "Attenzione !");
    EXPECT_EQ(registratore.messaggi[0].icona, Icona::Stop);
    ScriveC({{"txtInput_3", "8"}, {"TxtMsd", "-5"}});
    EXPECT_TRUE(c->ValidaDati()) << "the moment may be negative";
    for (const char* box : {"txtInput_0", "txtInput_1", "txtInput_2", "txtInput_3"}) {
        const std::string before = LeggeC(box);
        ScriveC({{box, "-1"}});
        EXPECT_FALSE(c->ValidaDati()) << box;
        Trova<QLineEdit>(c, box)->setText(QString::fromStdString(before));
    }
}

TEST_F(FrmConnettoriTest, LimitsOfTransverseRibsAreBoxes) {
    Trasversali("8");
    SceglieC("Combo1", "22");
    Progetta();
    SceglieC("Combo1", "19");
    Scrive({{"TxtLam_0", "86"}, {"txtDati_1", "160"}});
    Progetta();
    Scrive({{"TxtLam_0", "85.5"}});
    Progetta();
    Scrive({{"TxtLam_0", "85"}, {"TxtLam_3", "190"}}); // b0 80
    Progetta();
    ASSERT_EQ(registratore.testi.size(), 4U);
    EXPECT_EQ(registratore.testi[0], "Diametro dei connettori d > 20 mm !, EC4, # 6.3.3.2(1)");
    EXPECT_EQ(registratore.testi[1], "Altezza lamiera hp > 85 mm ! EC4, # 6.3.3.2(1)");
    EXPECT_EQ(registratore.testi[2], "Altezza lamiera hp > 85 mm ! EC4, # 6.3.3.2(1)");
    EXPECT_EQ(registratore.testi[3], "bo < hp !, EC4, # 6.3.3.2(1)");
    for (const Messaggio& m : registratore.messaggi) {
        EXPECT_EQ(m.titolo, "Attenzione !");
        EXPECT_EQ(m.icona, Icona::Stop);
    }
    VuoteC();
}

TEST_F(FrmConnettoriTest, BeamThatIsRefusedSaysNothingOfStuds) {
    Trasversali("8");
    Scrive({{"txtDati_1", "-20"}});
    Progetta();
    EXPECT_EQ(registratore.testi, (std::vector<std::string>{"hc < 0 ammesso solo per soletta piena",
                                                            "Errore! Controllare i dati"}));
    VuoteC();
}

TEST_F(FrmConnettoriTest, OtherFactorsEmptyTheDesign) {
    Pieno();
    Progetta();
    f->AllAttivazione();
    EXPECT_EQ(LeggeC("txtn"), "36");
    GammaM0 = 1.05;
    f->AllAttivazione();
    VuoteC();
}

TEST_F(FrmConnettoriTest, StudMessagesStandOnTheScreen) {
    Pieno();
    const std::vector<std::pair<const char*, std::string>> heights = {
        {"130", "Il piolo esce dalla soletta!"}, {"56", "h/d < 3 (57 mm) EC4 #6.4.2.(1)"}};
    for (const auto& [height, said] : heights) {
        ScriveC({{"txtInput_0", height}});
        Progetta();
        EXPECT_EQ(Dice("lblHsuD"), said);
        VuoteC();
    }
    ScriveC({{"txtInput_0", "57"}}); // alfa 0.8
    Progetta();
    EXPECT_EQ(Dice("lblHsuD"), "");
    EXPECT_NEAR(ValoreC("TxtPrd"), 0.8 * 73.10, 0.02);
    Grecata(2);
    Scrive({{"TxtLam_0", "70"}});
    ScriveC({{"txtInput_0", "60"}});
    Progetta();
    EXPECT_EQ(Dice("lblHsuD"), "h deve essere maggiore di ha (70 mm)");
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmConnettoriTest, NoShearNoStuds) {
    Pieno();
    Sceglie("OpTipoVerifica", 1);
    Scrive({{"txtDati_3", "0"}});
    Progetta();
    EXPECT_EQ(Dice("lblHsuD"), "Vl non è maggiore di 0: nessun connettore");
    VuoteC();
}

// k = 0.7 · 85/55 (100/55 - 1) = 0.885: PRd 64.7 kN, 40 studs. In 7.6 m they stand every 194 mm, closer than
// the ribs of 200 mm: 19 ribs in half, which carry 1229 of 1264.5 kN; a pair has k 0.626, 91.5 kN, 26.8 more:
// 2 ribs.
TEST_F(FrmConnettoriTest, PairsAreAdvisedWhereThereAreMoreStudsThanRibs) {
    Trasversali("7.6");
    Progetta();
    EXPECT_NEAR(ValoreC("TxtPrd"), 64.70, 0.02);
    EXPECT_EQ(LeggeC("txtn"), "40");
    EXPECT_EQ(LeggeC("TxtNerv"), "0");
    EXPECT_EQ(ValoreC("txtb0"), 85);
    auto& advice = Aperto("frmSuggerimento");
    EXPECT_EQ(Trova<QLabel>(&advice, "lblSuggerimento")->text().toStdString(),
              "Dove si ha taglio massimo disporre\n2 connettori nelle prime 2 nervature");
    EXPECT_EQ(advice.windowTitle(), "Suggerimento");
    Preme(&advice, "cmdOK");
    EXPECT_FALSE(advice.isVisible());
    c->AllAttivazione();
    EXPECT_EQ(LeggeC("txtn"), "40") << "the design stays until something changes";
    c->SuggerimentoPerNervatura(1);
    EXPECT_EQ(Trova<QLabel>(&advice, "lblSuggerimento")->text().toStdString(),
              "Dove si ha taglio massimo disporre\n2 connettori per nervatura");
    advice.close();
    ScriveC({{"txtInput_3", "4"}});
    Progetta();
    EXPECT_FALSE(advice.isVisible());
    EXPECT_EQ(Dice("lblHsuD"), "connettori insufficienti: le nervature non bastano");
    ScriveC({{"txtInput_3", "16"}}); // every 410 mm, each second rib
    Progetta();
    EXPECT_EQ(LeggeC("TxtNerv"), "2");
    EXPECT_EQ(Dice("lblNerv"), " nervature");
    ScriveC({{"txtInput_3", "12"}});
    Progetta();
    EXPECT_EQ(Dice("lblNerv"), "nervatura");
}

TEST_F(FrmConnettoriTest, AnyChangeClearsTheOutputsAlsoThatOfTheBeam) {
    Pieno();
    Progetta();
    ScriveC({{"txtInput_1", "500"}});
    VuoteC();
    Progetta();
    Scrive({{"txtDati_1", "130"}});
    VuoteC();
    Progetta(); // computes the beam anew
    EXPECT_NE(Legge("Txt_MplRd"), "");
    EXPECT_EQ(LeggeC("txtn"), "36");
    Scrive({{"txtDati_4", "500"}});
    Progetta();
    VuoteC();
    EXPECT_EQ(Dice("lblHsuD"), "Vl non è maggiore di 0: nessun connettore");
}

TEST_F(FrmConnettoriTest, ElasticShearCountsTheStuds) {
    Apre();
    Piena();
    Sceglie("OpTipoVerifica", 2);
    Scrive({{"Txt_M", "200"}});
    ApreConnettori();
    ScriveC({{"txtInput_3", "8"}});
    Progetta();
    EXPECT_EQ(ValoreC("txtn"), 2 * std::ceil(Valore("Txt_Vl") / 73.10));
    EXPECT_FALSE(Trova<QWidget>(c, "TxtMsd")->isEnabled()) << "the stresses are those of that moment";
}

TEST_F(FrmConnettoriTest, QuestionMarkShowsBothResistances) {
    Pieno();
    EXPECT_FALSE(Trova<QWidget>(c, "lblDomandaPrd")->isEnabled());
    Progetta();
    Preme(c, "lblDomandaPrd");
    ASSERT_EQ(registratore.testi.size(), 1U);
    EXPECT_NE(registratore.testi[0].find(Locale("PRd1 = 0.8 fu A/gammaV = 81.66 kN")), std::string::npos)
        << registratore.testi[0];
    EXPECT_NE(registratore.testi[0].find(Locale("73.10 kN")), std::string::npos) << registratore.testi[0];
}

TEST_F(FrmConnettoriTest, PictureFollowsTheEntries) {
    Pieno();
    auto* picture = Trova<ImmagineDisegno>(c, "pctConnettori");
    const QImage before = picture->grab().toImage();
    auto* luce = Trova<QLineEdit>(c, "txtInput_3");
    luce->selectAll();
    QTest::keyClicks(luce, "9");
    EXPECT_NE(picture->grab().toImage(), before);
    VuoteC();
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmConnettoriTest, StudsGoIntoTheFile) {
    Pieno();
    SceglieC("Combo1", "16");
    ScriveC({{"txtInput_0", "80"}});
    RispondeFile(InCartella("pioli"));
    Menu("mnuFileItem_2");
    SceglieC("Combo1", "25");
    ScriveC({{"txtInput_0", "110"}, {"txtInput_3", "3"}});
    const Registratore yes(true);
    RispondeFile(InCartella("pioli.sco"));
    Menu("mnuFileItem_1");
    EXPECT_EQ(yes.testi.size(), 1U) << "studs are part of what can be lost";
    EXPECT_EQ(Trova<QComboBox>(c, "Combo1")->currentText(), "16");
    EXPECT_EQ(ValoreC("txtInput_0"), 80);
    EXPECT_EQ(ValoreC("txtInput_3"), 8);
}

TEST_F(FrmConnettoriTest, ByTheKeyboardAlone) {
    Pieno();
    auto* first = Trova<QLineEdit>(c, "txtInput_0");
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Return);
    EXPECT_NE(c->focusWidget(), first);
    auto* last = Trova<QLineEdit>(c, "TxtMsd");
    last->setFocus();
    QTest::keyClicks(last, "10");
    QTest::keyClick(last, Qt::Key_Return);
    EXPECT_EQ(LeggeC("txtn"), "36");
    QTest::keyClick(c, Qt::Key_Escape);
    EXPECT_FALSE(c->isVisible());
    EXPECT_TRUE(f->isVisible());
}

} // namespace
