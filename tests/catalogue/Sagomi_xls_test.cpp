// The workbook that lies beside the program, as it was built from the tables of figures.

#include <fstream>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Registratore.h"
#include "catalogue/Catalogo.h"
#include "catalogue/ControlloDati.h"
#include "catalogue/Famiglie.h"
#include "catalogue/Lettore.h"
#include "catalogue/LettoreXls.h"
#include "catalogue/RigaDoppioT.h"
#include "catalogue/RigaSagomi.h"
#include "catalogue/ScrittoreXls.h"
#include "frame/Ambiente.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "sections/AreaEfficace.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

using namespace sagomi;

namespace {

using S = std::string;

const std::filesystem::path sagomiXls = SAGOMI_BIN "/Sagomi.xls";

/// Fields of a table, split at commas without further ado: these tables have no quotes.
std::vector<std::vector<S>> LeggeTabella(S foglio) {
    std::replace(foglio.begin(), foglio.end(), ' ', '_');
    std::ifstream testo(SAGOMI_CATALOGUE_DATA "/" + foglio + ".csv");
    std::vector<std::vector<S>> righe;
    for (S linea; std::getline(testo, linea);) {
        auto& riga = righe.emplace_back();
        std::istringstream campi(linea);
        for (S campo; std::getline(campi, campo, ',');)
            riga.push_back(campo);
    }
    return righe;
}

Lettore LettoreSu(const S& query) {
    Lettore l;
    l.DatabaseName(sagomiXls);
    l.RecordSource(query);
    l.Refresh();
    return l;
}

std::vector<S> Tutti(const char* schermo) {
    const auto& fogli = FamigliaDi(schermo).fogli;
    return {fogli.begin(), fogli.end()};
}

TEST(SagomiXls, EveryCellIsThatOfTheTables) {
    const CartellaDati cartella = LeggeXls(sagomiXls);
    std::size_t indice = 0;
    std::size_t righe = 0;
    for (const FamigliaSchermo& famiglia : FamiglieSchermi())
        for (const std::string_view nome : famiglia.fogli) {
            const Foglio& foglio = cartella.fogli.at(indice++);
            ASSERT_EQ(foglio.nome, nome);
            const auto& intestazioni = Intestazioni(famiglia.schermo);
            const auto tabella = LeggeTabella(S(nome));
            ASSERT_EQ(foglio.righe.size(), tabella.size()) << nome;
            for (std::size_t r = 0; r < foglio.righe.size(); ++r) {
                ASSERT_EQ(foglio.righe[r].size(), intestazioni.size()) << nome;
                for (std::size_t c = 0; c < intestazioni.size(); ++c) {
                    Valore atteso = S(intestazioni[c]);
                    if (r > 0)
                        atteso = c == 0 ? Valore(tabella[r][c]) : Valore(ValoreNumerico(tabella[r][c]));
                    ASSERT_EQ(foglio.righe[r][c].valore, atteso) << nome << " riga " << r << " colonna " << c;
                }
            }
            righe += foglio.righe.size() - 1;
        }
    EXPECT_EQ(indice, 27U);
    EXPECT_EQ(righe, 1213U);
}

TEST(SagomiXls, RewritingKeepsAll) {
    const prove::CartellaDiProva dir;
    const CartellaDati prima = LeggeXls(sagomiXls);
    ScriveXls(prima, dir.percorso / "copia.xls");
    const CartellaDati dopo = LeggeXls(dir.percorso / "copia.xls");
    ASSERT_EQ(dopo.fogli.size(), prima.fogli.size());
    for (std::size_t f = 0; f < prima.fogli.size(); ++f) {
        EXPECT_EQ(dopo.fogli[f].nome, prima.fogli[f].nome);
        ASSERT_EQ(dopo.fogli[f].righe.size(), prima.fogli[f].righe.size());
        for (std::size_t r = 0; r < prima.fogli[f].righe.size(); ++r)
            for (std::size_t c = 0; c < prima.fogli[f].righe[r].size(); ++c)
                ASSERT_EQ(dopo.fogli[f].Legge(r, c), prima.fogli[f].Legge(r, c));
    }
    // the bytes as well: styles and widths follow from the cells
    EXPECT_EQ(prove::LeggeByte(dir.percorso / "copia.xls"), prove::LeggeByte(sagomiXls));
}

TEST(SagomiXls, FirstQueryOfEachScreen) {
    const int righe[] = {18, 49, 38, 18, 114};
    for (std::size_t i = 0; i < 5; ++i) {
        const FamigliaSchermo& famiglia = FamiglieSchermi()[i];
        const Lettore l = LettoreSu(S(famiglia.primaQuery));
        EXPECT_EQ(l.Righe(), righe[i]) << famiglia.schermo;
        const auto& intestazioni = Intestazioni(famiglia.schermo);
        ASSERT_EQ(l.Campi(), static_cast<int>(intestazioni.size()));
        for (int c = 0; c < l.Campi(); ++c)
            EXPECT_EQ(l.NomeCampo(c), intestazioni[static_cast<std::size_t>(c)]);
    }
}

/// Position of the column that each key sorts by.
int ColonnaOrdine(const S& schermo, int ordine) {
    if (ordine == 2)
        return 1;
    const auto& i = Intestazioni(schermo);
    const char* nome = ordine == 1                    ? "Iy (cm4)"
                       : schermo == "frmSagomiL"      ? "iy (cm)"
                       : schermo == "frmSaldatiAsimm" ? "Wy1 (cm3)"
                                                      : "Wy (cm3)";
    return static_cast<int>(std::find(i.begin(), i.end(), nome) - i.begin());
}

TEST(SagomiXls, EveryFamilyAloneAndAllTogetherByEveryKey) {
    for (const FamigliaSchermo& famiglia : FamiglieSchermi()) {
        const S schermo(famiglia.schermo);
        for (int ordine = 0; ordine <= 2; ++ordine) {
            int somma = 0;
            for (const S& foglio : Tutti(schermo.c_str()))
                somma += LettoreSu(ComponeQuery(schermo, {foglio}, ordine)).Righe();
            const Lettore tutti = LettoreSu(ComponeQuery(schermo, Tutti(schermo.c_str()), ordine));
            EXPECT_EQ(tutti.Righe(), somma) << schermo;
            const int colonna = ColonnaOrdine(schermo, ordine);
            for (int r = 1; r < tutti.Righe(); ++r)
                ASSERT_LE(NumeroDi(tutti.Cella(r - 1, colonna)), NumeroDi(tutti.Cella(r, colonna)))
                    << schermo << ' ' << ordine << ' ' << r;
        }
    }
}

TEST(SagomiXls, TwoFamiliesAreOneSortedList) {
    Lettore l = LettoreSu(ComponeQuery("frmDoppioT", {"HEA", "HEB"}, 0));
    EXPECT_EQ(l.Righe(), 48);
    EXPECT_EQ(l.Testo(0), "HEA 100"); // 72.76 cm3
    l.MoveNext();
    EXPECT_EQ(l.Testo(0), "HEB 100"); // 89.91 cm3, before HEA 120
    l.MoveNext();
    EXPECT_EQ(l.Testo(0), "HEA 120");
}

TEST(SagomiXls, All792RolledRowsAreThere) {
    const Lettore l = LettoreSu(ComponeQuery("frmDoppioT", Tutti("frmDoppioT"), 0));
    EXPECT_EQ(l.Righe(), 792);
}

TEST(SagomiXls, HeadingsAreFoundWhateverTheirCapitals) {
    EXPECT_EQ(LettoreSu("SELECT [G (KG/M)] FROM ['l uguali'$] ORDER BY [g (Kg/m)]").Numero(0), 0.882);
    EXPECT_EQ(LettoreSu("SELECT * FROM [UPN$] ORDER BY [g (Kg/m)]").Testo(0), "UPN 50");
}

/// Every row of a screen's families against its geometry. Returns how many there are.
/// @param legge, controlla  take a row and a section of kind T
template <typename T, typename Legge, typename Controlla>
int ControllaRighe(const char* schermo, Legge legge, Controlla controlla) {
    Lettore l = LettoreSu(ComponeQuery(schermo, Tutti(schermo), 0));
    int controllate = 0;
    for (; !l.EOF_(); l.MoveNext(), ++controllate) {
        const prove::Registratore r;
        auto sezione = std::make_shared<T>();
        SezioneCorrente = sezione;
        legge(l, *sezione);
        sezione->TipoAcciaio = "S235 (Fe360)";
        sezione->fy = 235;
        sezione->fu = 360;
        InizializzaConAreaEfficace(*sezione);
        controlla(l, *sezione);
        EXPECT_THAT(r.testi, testing::IsEmpty()) << sezione->Designation;
        if constexpr (std::is_same_v<T, SezioneDoppioT>) {
            EXPECT_FALSE(sezione->ErroreDatiDatabase) << sezione->Designation;
        }
    }
    RipristinaGenerale();
    return controllate;
}

TEST(SagomiXls, EveryRowAgreesWithItsGeometry) {
    using T = SezioneDoppioT;
    const auto saldati = [](const Lettore& l, T& s) { ControlloDatiSaldati(l, s); };
    const auto legge = [](RigheDoppioT righe) {
        return [righe](const Lettore& l, T& s) { LeggeRiga(l, s, righe); };
    };
    EXPECT_EQ(ControllaRighe<T>("frmDoppioT", legge(RigheDoppioT::Laminate), ControlloDatiLaminati), 792);
    EXPECT_EQ(ControllaRighe<T>("frmSaldati", legge(RigheDoppioT::Saldate), saldati), 177);
    EXPECT_EQ(ControllaRighe<T>("frmSaldatiAsimm", legge(RigheDoppioT::SaldateAsimmetriche), saldati), 38);
}

// 18 UPN, 9 UAP, 114 equal and 65 unequal angles: 206 rows.
TEST(SagomiXls, EveryChannelAndAngleAgreesWithItsGeometry) {
    const auto legge = [](const Lettore& l, auto& s) { LeggeRiga(l, s); };
    const auto controlla = [](const Lettore& l, const auto& s) { ControlloDatiSagomi(l, s); };
    EXPECT_EQ(ControllaRighe<SezioneSagomoU>("frmSagomiU", legge, controlla), 27);
    EXPECT_EQ(ControllaRighe<SezioneSagomoL>("frmSagomiL", legge, controlla), 179);
}

} // namespace
