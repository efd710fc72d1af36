#include "catalogue/FoglioXls.h"

#include <algorithm>
#include <limits>

#include <gtest/gtest.h>

#include "Fogli.h"
#include "catalogue/StiliXls.h"

using namespace sagomi;
using prove::FoglioDi;
using prove::LeggeRecord;
using prove::RecordProva;

namespace {

/// A sheet behind a record of six bytes, so that positions do not begin at 0.
std::vector<RecordProva> Scritto(const Foglio& foglio, bool attivo = true) {
    TabellaStringhe stringhe;
    for (const auto& riga : foglio.righe)
        for (const Cella& c : riga)
            if (const auto* t = std::get_if<std::string>(&c.valore))
                stringhe.Raccoglie(*t);
    FlussoBiff flusso;
    flusso.Record(Biff::CodePage, Ottetti().U16(0x04B0));
    EXPECT_EQ(ScriveFoglio(flusso, foglio, stringhe, attivo), 6U);
    auto record = LeggeRecord(flusso.dati());
    record.erase(record.begin());
    return record;
}

std::vector<RecordProva> Del(const std::vector<RecordProva>& record, Biff genere) {
    std::vector<RecordProva> scelti;
    std::copy_if(record.begin(), record.end(), std::back_inserter(scelti),
                 [genere](const RecordProva& r) { return r.E(genere); });
    return scelti;
}

Foglio Tabella(std::size_t righe) {
    Foglio f{"IPE", {}};
    f.Scrive(0, 0, std::string("designation"));
    f.Scrive(0, 1, std::string("h (mm)"));
    for (std::size_t r = 1; r < righe; ++r) {
        f.Scrive(r, 0, "IPE " + std::to_string(r));
        f.Scrive(r, 1, static_cast<double>(r) + 0.333);
    }
    return f;
}

TEST(FoglioXls, BeginsAndEnds) {
    const auto record = Scritto(Tabella(3));
    EXPECT_TRUE(record.front().E(Biff::Bof));
    EXPECT_EQ(record.front().U16(0), 0x0600U); // BIFF8
    EXPECT_EQ(record.front().U16(2), 0x0010U); // a sheet
    EXPECT_TRUE(record.back().E(Biff::Eof));
}

TEST(FoglioXls, UsedRangeIsThatOfTheCellsWithContents) {
    Foglio f{"x", {}};
    f.Scrive(2, 1, 1.0);
    f.Scrive(4, 3, 2.0);
    f.Scrive(9, 9, std::string());
    f.Scrive(10, 10, std::numeric_limits<double>::quiet_NaN());
    f.Scrive(11, 0, std::numeric_limits<double>::infinity());
    const auto misure = Del(Scritto(f), Biff::Dimensions).at(0);
    EXPECT_EQ(misure.U32(0), 2U);
    EXPECT_EQ(misure.U32(4), 5U);
    EXPECT_EQ(misure.U16(8), 1U);
    EXPECT_EQ(misure.U16(10), 4U);
    EXPECT_EQ(Del(Scritto(f), Biff::Row).size(), 2U);
    EXPECT_EQ(Del(Scritto(f), Biff::Rk).size(), 2U);
}

TEST(FoglioXls, EmptySheet) {
    const auto record = Scritto(Foglio{"vuoto", {}});
    const auto misure = Del(record, Biff::Dimensions).at(0);
    EXPECT_EQ(misure.U32(4), 0U);
    EXPECT_TRUE(Del(record, Biff::Pane).empty());
    EXPECT_TRUE(Del(record, Biff::Row).empty());
}

TEST(FoglioXls, HeadingRowStaysInPlace) {
    const auto record = Scritto(Tabella(3));
    const auto vista = Del(record, Biff::Window2).at(0);
    EXPECT_EQ(vista.U16(0) & 0x0008U, 0x0008U); // frozen
    EXPECT_EQ(vista.U16(0) & 0x0600U, 0x0600U); // selected, shown
    const auto riquadro = Del(record, Biff::Pane).at(0);
    EXPECT_EQ(riquadro.U16(0), 0U); // no column
    EXPECT_EQ(riquadro.U16(2), 1U); // one row
    EXPECT_EQ(riquadro.U16(4), 1U); // below it the second row
    EXPECT_EQ(Del(Scritto(Tabella(3), false), Biff::Window2).at(0).U16(0) & 0x0600U, 0U);
}

TEST(FoglioXls, NoHeadingNoPane) {
    const auto record = Scritto(FoglioDi("x", {{1.0, 2.0}}));
    EXPECT_TRUE(Del(record, Biff::Pane).empty());
    EXPECT_EQ(Del(record, Biff::Window2).at(0).U16(0) & 0x0008U, 0U);
}

TEST(FoglioXls, IndexPointsAtColumnsAndBlocks) {
    const auto record = Scritto(Tabella(100)); // 32 + 32 + 32 + 4 rows
    const auto indice = Del(record, Biff::Index).at(0);
    EXPECT_EQ(indice.U32(4), 0U);
    EXPECT_EQ(indice.U32(8), 100U);
    EXPECT_EQ(indice.U32(12), Del(record, Biff::DefColWidth).at(0).posizione);
    const auto blocchi = Del(record, Biff::DbCell);
    ASSERT_EQ(blocchi.size(), 4U);
    ASSERT_EQ(indice.corpo.size(), 16U + 4U * 4U);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(indice.U32(16 + 4 * i), blocchi[i].posizione);
}

TEST(FoglioXls, TheIndexOfASheetThatBeginsFurtherDown) {
    Foglio f{"x", {}};
    for (std::size_t r = 40; r < 110; ++r) // 70 rows: 32 + 32 + 6
        f.Scrive(r, 0, double(r));
    const auto record = Scritto(f);
    const auto indice = Del(record, Biff::Index).at(0);
    EXPECT_EQ(indice.U32(4), 40U);
    EXPECT_EQ(indice.U32(8), 110U);
    const auto blocchi = Del(record, Biff::DbCell);
    ASSERT_EQ(blocchi.size(), 3U);
    ASSERT_EQ(indice.corpo.size(), 16U + 4U * 3U);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(indice.U32(16 + 4 * i), blocchi[i].posizione);
}

/// Follows the offsets of a block: to its first row, then from the second ROW record to the first cell of
/// each row, each counted from the one before.
TEST(FoglioXls, BlockOffsetsLeadToTheFirstCellOfEachRow) {
    const auto record = Scritto(Tabella(70));
    const auto a = [&](std::uint32_t posizione) {
        return *std::find_if(record.begin(), record.end(),
                             [posizione](const RecordProva& r) { return r.posizione == posizione; });
    };
    unsigned riga = 0;
    for (const RecordProva& blocco : Del(record, Biff::DbCell)) {
        const RecordProva prima = a(blocco.posizione - blocco.U32(0));
        ASSERT_TRUE(prima.E(Biff::Row));
        EXPECT_EQ(prima.U16(0), riga);
        std::uint32_t posto = prima.posizione + 4 + static_cast<std::uint32_t>(prima.corpo.size());
        for (std::size_t i = 4; i < blocco.corpo.size(); i += 2) {
            posto += blocco.U16(i);
            const RecordProva cella = a(posto);
            ASSERT_TRUE(cella.E(Biff::LabelSst));
            EXPECT_EQ(cella.U16(0), riga);
            EXPECT_EQ(cella.U16(2), 0U);
            ++riga;
        }
    }
    EXPECT_EQ(riga, 70U);
}

TEST(FoglioXls, SheetWithHolesGoesWithoutIndex) {
    Foglio f = Tabella(3);
    f.Scrive(500, 0, std::string("lontano"));
    const auto record = Scritto(f);
    EXPECT_TRUE(Del(record, Biff::Index).empty());
    EXPECT_TRUE(Del(record, Biff::DbCell).empty());
    EXPECT_EQ(Del(record, Biff::Row).size(), 4U);
}

TEST(FoglioXls, RowsStandBeforeTheirCellsInBlocksOf32) {
    const auto record = Scritto(Tabella(40));
    std::vector<unsigned> ordine; // rows as ROW records, then the rows whose cells came
    for (const RecordProva& r : record)
        if (r.E(Biff::Row))
            ordine.push_back(r.U16(0));
        else if (r.E(Biff::LabelSst) && r.U16(2) == 0)
            ordine.push_back(1000 + r.U16(0));
    ASSERT_EQ(ordine.size(), 80U);
    EXPECT_EQ(ordine[31], 31U);
    EXPECT_EQ(ordine[32], 1000U);
    EXPECT_EQ(ordine[63], 1031U);
    EXPECT_EQ(ordine[64], 32U);
}

TEST(FoglioXls, NumbersShortWhereTheyFit) {
    const auto record = Scritto(FoglioDi("x", {{6.0, 1.05, 3.691, 0.6977}}));
    EXPECT_EQ(Del(record, Biff::Rk).size(), 2U);
    EXPECT_EQ(Del(record, Biff::Number).size(), 2U);
}

TEST(FoglioXls, ColumnWidthsFollowTheContents) {
    const auto record = Scritto(FoglioDi("x", {{std::string("designation"), std::string("h (mm)")},
                                               {std::string("IPE 750x134 speciale"), 80.0}}));
    const auto colonne = Del(record, Biff::ColInfo);
    ASSERT_EQ(colonne.size(), 2U);
    EXPECT_EQ(colonne[0].U16(0), 0U);
    EXPECT_EQ(colonne[0].U16(2), 0U);
    EXPECT_EQ(colonne[0].U16(4), 22U * 256U); // 20 characters and air
    EXPECT_EQ(colonne[1].U16(4), 9U * 256U);  // the heading, bold
}

} // namespace
