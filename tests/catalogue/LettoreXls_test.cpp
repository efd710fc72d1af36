#include "catalogue/LettoreXls.h"

#include <freexl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CartellaAMano.h"
#include "Fogli.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/SagomoUtente.h"
#include "catalogue/ScrittoreXls.h"
#include "catalogue/ScritturaRighe.h"
#include "frame/Ambiente.h"
#include "sections/SezioneDoppioT.h"

using namespace sagomi;
using prove::CartellaAMano;
using testing::HasSubstr;

namespace {

using S = std::string;

/// What LeggeXls says of a file with these bytes.
S ErroreDi(const S& byte) {
    const prove::CartellaDiProva dir;
    const auto file = dir.percorso / "Sagomi.xls";
    prove::ScriveByte(file, byte);
    try {
        LeggeXls(file);
    } catch (const ErroreCatalogo& e) {
        const S inizio = "Errore nella lettura di \"" + file.string() + "\": ";
        EXPECT_THAT(e.what(), testing::StartsWith(inizio));
        return S(e.what()).substr(inizio.size());
    }
    return "nessun errore";
}

S CartellaBuona() {
    const prove::CartellaDiProva dir;
    CartellaDati c;
    Foglio f{"IPE", {}};
    for (std::size_t r = 0; r < 300; ++r)
        for (std::size_t k = 0; k < 5; ++k)
            f.Scrive(r, k,
                     k == 0 ? Valore("IPE " + std::to_string(r)) : Valore(static_cast<double>(r) + 0.333));
    c.fogli.push_back(f);
    ScriveXls(c, dir.percorso / "a.xls");
    return prove::LeggeByte(dir.percorso / "a.xls");
}

TEST(LeggeXls, TellsWhatIsWrongWithAFile) {
    EXPECT_EQ(ErroreDi(CartellaBuona()), "nessun errore");
    EXPECT_EQ(ErroreDi(""), "il file non è una cartella di lavoro .xls.");
    EXPECT_EQ(ErroreDi("designation,g (Kg/m)\nIPE 80,6\n"), "il file non è una cartella di lavoro .xls.");
    EXPECT_EQ(ErroreDi(ContenitoreOle("Altro", std::vector<std::uint8_t>(5000, 1))),
              "il file non contiene una cartella di lavoro.");
    S danno = CartellaBuona();
    danno[512 + 22] = 99; // the second record of the stream runs over its end
    danno[512 + 23] = 99;
    EXPECT_THAT(ErroreDi(danno), HasSubstr("danneggiata"));
}

TEST(LeggeXls, MissingFileAndFolder) {
    const prove::CartellaDiProva dir;
    const auto prova = [](const std::filesystem::path& file, const S& causa) {
        const auto legge = [&] { LeggeXls(file); };
        EXPECT_THAT(legge, testing::ThrowsMessage<ErroreCatalogo>("Errore nella lettura di \"" +
                                                                  file.string() + "\": " + causa + "."));
    };
    prova(dir.percorso / "Sagomi.xls", "il file non esiste");
    prova(dir.percorso, "non è un file");
}

TEST(LeggeXls, ASheetThatCannotBeReadIsTold) {
    const S byte = CartellaAMano().Foglio(u"buono").Foglio(u"guasto").Numero(0, 300, 1).File();
    EXPECT_EQ(ErroreDi(byte), "il foglio \"guasto\" è danneggiato (celle oltre la colonna 256).");
    EXPECT_EQ(ErroreDi(CartellaAMano().File()), "la cartella di lavoro non ha fogli.");
    EXPECT_THAT(ErroreDi(CartellaAMano().Testa(Biff::FilePass, Ottetti().U16(1)).File()),
                HasSubstr("protetto da una parola d'ordine"));
}

/// The format allows them; with a place for each between them they would take gigabytes.
TEST(LeggeXls, CellsTooFarApartAreRefused) {
    CartellaAMano c;
    c.Foglio(u"x");
    for (unsigned r = 0; r < 20000; ++r)
        c.Numero(r, 255, 1);
    EXPECT_EQ(ErroreDi(c.File()), "le celle del foglio \"x\" sono troppo lontane fra loro.");
}

/// A cell as freexl gives it; errors and texts of formulas it does not know.
Valore CellaFreexl(const void* cartella, unsigned r, unsigned short c) {
    FreeXL_CellValue v{};
    EXPECT_EQ(freexl_get_cell_value(cartella, r, c, &v), FREEXL_OK);
    switch (v.type) {
    case FREEXL_CELL_INT:
        return static_cast<double>(v.value.int_value);
    case FREEXL_CELL_DOUBLE:
        return v.value.double_value;
    case FREEXL_CELL_TEXT:
    case FREEXL_CELL_SST_TEXT:
        return S(v.value.text_value);
    default:
        return {};
    }
}

/// Holds every cell of a workbook against freexl. Returns how many there are.
std::size_t ConfrontaConFreexl(const std::filesystem::path& file) {
    const CartellaDati letta = LeggeXls(file);
    const void* altra = nullptr;
    EXPECT_EQ(freexl_open(file.c_str(), &altra), FREEXL_OK);
    std::size_t celle = 0;
    for (unsigned short i = 0; i < letta.fogli.size(); ++i) {
        const char* nome = nullptr;
        freexl_get_worksheet_name(altra, i, &nome);
        EXPECT_EQ(letta.fogli[i].nome, nome);
        freexl_select_active_worksheet(altra, i);
        unsigned righe = 0;
        unsigned short colonne = 0;
        freexl_worksheet_dimensions(altra, &righe, &colonne);
        EXPECT_EQ(letta.fogli[i].righe.size(), righe);
        for (unsigned r = 0; r < righe; ++r)
            for (unsigned short c = 0; c < colonne; ++c, ++celle)
                EXPECT_EQ(letta.fogli[i].Legge(r, c), CellaFreexl(altra, r, c)) << nome << r << ' ' << c;
    }
    freexl_close(altra);
    return celle;
}

TEST(LeggeXls, EveryCellOfTheCatalogueIsThatOfFreexl) {
    EXPECT_GT(ConfrontaConFreexl(SAGOMI_BIN "/Sagomi.xls"), 20000U);
}

// Headings, a row with all its values, one that was typed with its dimensions only.
TEST(LeggeXls, EveryCellOfTheUsersWorkbookIsThatOfFreexl) {
    const prove::CartellaDiProva dir;
    const auto file = dir.percorso / "SagomiUtente.xls";
    InstallaCartellaUtente(file);
    for (const double h : {300.0, 512.5})
        ScriveRighe(file, ImprontaDi(file), "'DoppioT Simmetrico'$",
                    {{{}, {S("è \"A\""), {}, h, 200.0, 7.1, 20.0, 6.0}}});
    EXPECT_EQ(CompletaRighe(file, "'DoppioT Simmetrico'$", RigheDoppioT::Saldate,
                            [](SezioneDoppioT& s) { s.fy = 235; }),
              2);
    EXPECT_EQ(ConfrontaConFreexl(file), 3U * 18U + 21U);
}

TEST(LeggeXls, DamageAnywhereIsAnErrorOrSomeValuesButNeverACrash) {
    const S buona = CartellaBuona();
    std::uint32_t caso = 12345;
    const auto sorte = [&caso](std::size_t n) {
        caso = caso * 1664525U + 1013904223U;
        return static_cast<std::size_t>(caso >> 8U) % n;
    };
    int rifiutate = 0;
    for (int i = 0; i < 400; ++i) {
        S danno = buona;
        if (i % 3 == 0)
            danno.resize(sorte(danno.size()));
        for (int k = 0; k < 12 && i % 3 != 0; ++k)
            danno[sorte(i % 3 == 1 ? danno.size() : 3000)] = static_cast<char>(sorte(256));
        rifiutate += ErroreDi(danno) != "nessun errore" ? 1 : 0;
    }
    EXPECT_GT(rifiutate, 200);
}

} // namespace
