// Joints and nodes in data files. The order of the fields is that of the table of the format.
#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "Registratore.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "joints/Nodo.h"
#include "joints/Sezioni.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

namespace fs = std::filesystem;

class FileGiunti : public testing::Test {
protected:
    FileGiunti() { RipristinaGenerale(); }
    ~FileGiunti() override {
        fs::remove(percorso);
        RipristinaGenerale();
    }

    [[nodiscard]] std::string Byte() const {
        std::ifstream f(percorso, std::ios::binary);
        return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
    }
    [[nodiscard]] std::vector<std::string> Righe() const {
        std::istringstream testo(Byte());
        std::vector<std::string> righe;
        for (std::string riga; std::getline(testo, riga);)
            righe.push_back(riga.substr(0, riga.find('\r')));
        return righe;
    }
    template <typename A> bool ConFile(std::string_view modo, A azione) {
        const std::int16_t n = ApreFile(percorso, modo);
        const bool esito = azione(n);
        ChiudeFile(n);
        return esito;
    }
    bool Salva(Nodo& n) {
        return ConFile("S", [&](std::int16_t f) { return n.Input_Output("S", f); });
    }
    bool Apre(Nodo& n) {
        return ConFile("L", [&](std::int16_t f) { return n.AperturaFile(f); });
    }

    fs::path percorso = fs::temp_directory_path() / ("sagomi_giunto_" + std::to_string(::getpid()));
    Registratore boxes;
};

/// Every field holds its place in the file.
void Numera(Giunto& g) {
    g.IndiceBullone(6);
    g.Irrigidimenti = "testo 1";
    g.TipiGiunto = "testo 2";
    g.Acquisito = true;
    g.Classe = "testo 4";
    g.fubl = 5;
    g.Diam = 7;
    g.d0 = 8;
    g.Areares = 9;
    g.bul_k = 10;
    g.bul_e = 11;
    g.bul_s = 12;
    g.bul_m = 13;
    g.rond_d2 = 14;
    g.rond_s = 15;
    g.lb = 16;
    g.nf = 17;
    g.tf = 18;
    g.tf_max = 19;
    g.bf = 20;
    g.bfmin = 21;
    g.p = 22;
    g.pint = 23;
    g.ef = 24;
    g.mf = 25;
    g.mc = 27;
    g.mxc = 28;
    g.m2c = 29;
    g.mcmin = 30;
    g.dX = 31;
    g.ex = 32;
    g.mx = 33;
    g.mxmin = 34;
    g.d2 = 35;
    g.m2 = 36;
    g.minecef = 37;
    g.w = 38;
    g.L = 39;
    g.L_max = 40;
    g.hf = 41;
    g.aw = 42;
    g.Af = 43;
    g.ec = 44;
    g.u = 45;
    g.u_max = 46;
    g.Beta = 47;
    g.Kfc = 48;
    g.Kwc = 49;
    g.FtRd_EffInf = 50;
    g.FtRd_EffSup = 51;
    g.ComponenteDeboleFilaInf = "testo 52";
    g.ComponenteDeboleFilaSup = "testo 53";
    g.RDebole = 54;
    g.ComponenteDebole = "testo 55";
    g.TipoMessaggio = 56;
    g.VplRd_Pannello_c = 57;
    g.FcRd_Anima_c = 58;
    g.NbRd_Anima_c = 59;
    g.FcRd_AnimaIrrigidita_c = 60;
    g.FtRd_Anima_c = 61;
    g.FtRd_Individuale = 62;
    g.FtRd_Gruppo = 63;
    g.Ftrd_FilaInf_c = 64;
    g.Ftrd_FilaSup_c = 65;
    g.Ftrd_FilaInfRid_c = 66;
    g.Ftrd_FilaSupRid_c = 67;
    g.FtRd_FilaInf_f = 68;
    g.FtRd_FilaSup_f = 69;
    g.FtRd_Anima_t = 70;
    g.Vrd0 = 71;
    g.Vrd1 = 72;
    g.k1 = 73;
    g.k2 = 74;
    g.k3 = 75;
    g.k4 = 76;
    g.k5 = 77;
    g.k6 = 78;
    g.k6_Estesa = 79;
    g.mu1 = 80;
    g.mu2 = 81;
    g.mu3 = 82;
    g.mu4 = 83;
    g.mu4_Estesa = 84;
    g.mu5 = 85;
    g.mu5_Estesa = 86;
    g.mu6 = 87;
    g.mu6_Estesa = 88;
    g.Sj_MjRd_ = 89;
    g.Sj_MjRd_Estesa = 90;
    g.Sj_MjRd = 91;
    g.Sj_Mela_ = 92;
    g.Sj_Mela_Estesa = 93;
    g.Sj_Mela = 94;
    g.Sj_MjSd_ = 95;
    g.Sj_MjSd_Estesa = 96;
    g.Sj_MjSd = 97;
    g.RigidezzaGiunto1 = "testo 98";
    g.RigidezzaGiunto2 = "testo 99";
    g.Sjini = 100;
    g.Sj_Es = 101;
    g.Sj_Secante = 102;
    g.MplRdGIUNTO = 103;
    g.M_elastico = 104;
    g.bfmax = 105;
    g.RotturaAlaCol = "testo 106";
    g.Rotturaflan_ext = "testo 107";
    g.Rotturaflan_int = "testo 108";
    g.Criterio1 = true;
    g.Criterio2 = true;
    g.Irr_Spessore = 111;
    g.Irr_B = 112;
    g.Irr_L1 = 113;
    g.Irr_L2 = 114;
    g.Irr_a = 115;
    g.ResistenzaGiunto = "testo 116";
    g.LimiteRigido1 = 117;
    g.LimiteRigido2 = 118;
    g.LimiteCerniera = 119;
    g.Errore = "testo 120";
    g.Cambia_af = true;
    g.Beta_Cautel = true;
    g.TipoProgetto = 123;
    g.TipoUscitaProgetto = 124;
}

/// Two beams, checked on the right.
void Riempie(Nodo& n) {
    n.ImpostaNodo();
    n.CaratterizzaGiunti();
    n.TraveDx = IPE300();
    n.TraveSx = IPE300();
    n.TraveDx->Mysd = 40;
    n.TraveDx->Vsd() = 55;
    n.Colonnainf = HEB300();
    n.VColSup = 12.5;
    Giunto& g = *n.ConnessioneCorrente;
    g.Criterio1 = false;
    g.IndiceBullone(7);
    g.tf = 15;
    g.bf = 170;
    g.ef = 40;
    g.d2 = 45;
    (void)n.EsegueCalcolo();
}

} // namespace

TEST_F(FileGiunti, CentoventiquattroCampiUnoPerRiga) {
    Giunto g;
    Numera(g);
    ASSERT_TRUE(ConFile("S", [&](std::int16_t f) { return g.FileInOutGiunto("S", f); }));
    EXPECT_THAT(Righe(), testing::ElementsAreArray({"\"testo 1\"",
                                                    "\"testo 2\"",
                                                    "#TRUE#",
                                                    "\"testo 4\"",
                                                    "5",
                                                    "6",
                                                    "7",
                                                    "8",
                                                    "9",
                                                    "10",
                                                    "11",
                                                    "12",
                                                    "13",
                                                    "14",
                                                    "15",
                                                    "16",
                                                    "17",
                                                    "18",
                                                    "19",
                                                    "20",
                                                    "21",
                                                    "22",
                                                    "23",
                                                    "24",
                                                    "25",
                                                    "44",
                                                    "27",
                                                    "28",
                                                    "29",
                                                    "30",
                                                    "31",
                                                    "32",
                                                    "33",
                                                    "34",
                                                    "35",
                                                    "36",
                                                    "37",
                                                    "38",
                                                    "39",
                                                    "40",
                                                    "41",
                                                    "42",
                                                    "43",
                                                    "44",
                                                    "45",
                                                    "46",
                                                    "47",
                                                    "48",
                                                    "49",
                                                    "50",
                                                    "51",
                                                    "\"testo 52\"",
                                                    "\"testo 53\"",
                                                    "54",
                                                    "\"testo 55\"",
                                                    "56",
                                                    "57",
                                                    "58",
                                                    "59",
                                                    "60",
                                                    "61",
                                                    "62",
                                                    "63",
                                                    "64",
                                                    "65",
                                                    "66",
                                                    "67",
                                                    "68",
                                                    "69",
                                                    "70",
                                                    "71",
                                                    "72",
                                                    "73",
                                                    "74",
                                                    "75",
                                                    "76",
                                                    "77",
                                                    "78",
                                                    "79",
                                                    "80",
                                                    "81",
                                                    "82",
                                                    "83",
                                                    "84",
                                                    "85",
                                                    "86",
                                                    "87",
                                                    "88",
                                                    "89",
                                                    "90",
                                                    "91",
                                                    "92",
                                                    "93",
                                                    "94",
                                                    "95",
                                                    "96",
                                                    "97",
                                                    "\"testo 98\"",
                                                    "\"testo 99\"",
                                                    "100",
                                                    "101",
                                                    "102",
                                                    "103",
                                                    "104",
                                                    "105",
                                                    "\"testo 106\"",
                                                    "\"testo 107\"",
                                                    "\"testo 108\"",
                                                    "#TRUE#",
                                                    "#TRUE#",
                                                    "111",
                                                    "112",
                                                    "113",
                                                    "114",
                                                    "115",
                                                    "\"testo 116\"",
                                                    "117",
                                                    "118",
                                                    "119",
                                                    "\"testo 120\"",
                                                    "#TRUE#",
                                                    "#TRUE#",
                                                    "123",
                                                    "124"}));
    Giunto letto;
    ASSERT_TRUE(ConFile("L", [&](std::int16_t f) { return letto.FileInOutGiunto("L", f); }));
    EXPECT_EQ(letto.IndiceBullone(), 6);
    EXPECT_EQ(letto.ec, 44);
    EXPECT_EQ(letto.TipoUscitaProgetto, 124);
    EXPECT_EQ(letto.RigidezzaGiunto2, "testo 99");
}

TEST_F(FileGiunti, ScrittoLettoRiscrittoUguale) {
    Nodo n;
    Riempie(n);
    ASSERT_TRUE(Salva(n));
    const std::string prima = Byte();
    Nodo letto;
    ASSERT_TRUE(Apre(letto));
    EXPECT_EQ(letto.ConnessioneCorrente, letto.Giunti[1].Riferimento());
    EXPECT_EQ(letto.ConnessioneCorrente->ResistenzaGiunto, n.ConnessioneCorrente->ResistenzaGiunto);
    EXPECT_EQ(letto.ConnessioneCorrente->MplRdGIUNTO, n.ConnessioneCorrente->MplRdGIUNTO);
    EXPECT_NEAR(letto.ConnessioneCorrente->z, 0.2893, 1e-6);
    EXPECT_EQ(letto.ConnessioneCorrente->Trave, letto.TraveDx.Riferimento());
    EXPECT_EQ(letto.Giunti[2]->Colonna, letto.Colonnainf);
    EXPECT_EQ(letto.TraveDx->lunghezza(), 6);
    EXPECT_EQ(letto.TraveDx->Vsd(), 55);
    EXPECT_EQ(letto.VColSup, 12.5);
    ASSERT_TRUE(Salva(letto));
    EXPECT_EQ(Byte(), prima);
    EXPECT_TRUE(boxes.testi.empty());
}

// 1 kind, 65 column, 2 x 124 joints, 2 x 65 beams, 3; the class of strength of the right joint takes two
// lines.
TEST_F(FileGiunti, RigheDelNodo) {
    Nodo n;
    Riempie(n);
    ASSERT_TRUE(Salva(n));
    EXPECT_EQ(Righe().size(), 4U + 2 * 124 + 3 * 65 + 1);
    n.Tipovie = nodoT;
    n.NumeroGiunti = 1;
    ASSERT_TRUE(Salva(n));
    EXPECT_EQ(Righe().size(), 4U + 124 + 2 * 65 + 1); // one joint, one beam
    Nodo letto;
    ASSERT_TRUE(Apre(letto));
    EXPECT_FALSE(letto.Giunti[2]);
    EXPECT_FALSE(letto.TraveSx);
}

// A file cut at any line is told and stops the reading.
TEST_F(FileGiunti, FileTroncato) {
    Nodo n;
    Riempie(n);
    ASSERT_TRUE(Salva(n));
    const std::string intero = Byte();
    for (std::size_t fine = intero.find('\n'); fine + 1 < intero.size(); fine = intero.find('\n', fine + 1)) {
        std::ofstream(percorso, std::ios::binary) << intero.substr(0, fine + 1);
        boxes.testi.clear();
        Nodo letto;
        EXPECT_FALSE(Apre(letto)) << fine;
        EXPECT_FALSE(boxes.testi.empty()) << fine;
    }
}

TEST_F(FileGiunti, NodoNonValido) {
    Nodo n;
    Riempie(n);
    n.NumeroGiunti = 7;
    ASSERT_TRUE(Salva(n));
    Nodo letto;
    EXPECT_FALSE(Apre(letto));
    EXPECT_THAT(boxes.testi, testing::ElementsAre("Il file non contiene un nodo valido"));
}

TEST_F(FileGiunti, SecondoGiuntoNonValido) {
    Nodo n;
    Riempie(n);
    n.Giunti[2]->nf = 3;
    ASSERT_TRUE(Salva(n));
    Nodo letto;
    EXPECT_FALSE(Apre(letto));
    EXPECT_THAT(boxes.testi, testing::ElementsAre("Il file non contiene un nodo valido"));
}

TEST_F(FileGiunti, FileDiBulloniDiverse) {
    Nodo n;
    Riempie(n);
    EXPECT_TRUE(n.Controllafile());
    EXPECT_TRUE(boxes.testi.empty());
    n.Giunti[2]->nf = 2;
    EXPECT_FALSE(n.Controllafile());
    n.nGiunto = 2;
    EXPECT_FALSE(n.Controllafile());
    EXPECT_THAT(boxes.testi,
                testing::ElementsAre("Il giunto sinistro ha un numero di file di bulloni diverso da quello "
                                     "destro.\r\nContinuare?",
                                     "Il giunto destro ha un numero di file di bulloni diverso da quello "
                                     "sinistro.\r\nContinuare?"));
    EXPECT_EQ(boxes.messaggi[0].titolo, "Giunto Flangiato");
    EXPECT_EQ(boxes.messaggi[0].bottoni, Bottoni::SiNo);
}

TEST_F(FileGiunti, IrrigidimentiDiversi) {
    Nodo n;
    Riempie(n);
    n.nGiunto = 2; // the right joint is accepted, without stiffeners
    n.Cambia();
    EXPECT_TRUE(n.ControllaGiunti("No"));
    EXPECT_FALSE(n.ControllaGiunti("Si"));
    EXPECT_THAT(boxes.testi,
                testing::ElementsAre("Il giunto calcolato precedentemente presenta una diversa "
                                     "soluzione nel pannello d'anima della colonna.\r\nContinuare?"));
    n.No_Acquisito();
    EXPECT_TRUE(n.ControllaGiunti("Si"));
}
