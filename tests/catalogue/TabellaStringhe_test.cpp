#include "catalogue/TabellaStringhe.h"

#include <algorithm>
#include <stdexcept>

#include <gtest/gtest.h>

#include "Fogli.h"

using namespace sagomi;
using prove::LeggeRecord;
using prove::RecordProva;

namespace {

/// Reads the strings back by the words of the format: a string goes on in the next record behind a byte that
/// tells its width anew.
std::vector<std::u16string> LeggeStringhe(const std::vector<RecordProva>& record) {
    std::vector<std::u16string> testi;
    std::size_t r = 0;
    std::size_t i = 8;
    const std::uint32_t n = record[0].U32(4);
    while (testi.size() < n) {
        if (i == record[r].corpo.size()) {
            ++r;
            i = 0;
        }
        std::size_t mancano = record[r].U16(i);
        bool largo = record[r].corpo[i + 2] == 1;
        i += 3;
        std::u16string t;
        while (mancano > 0) {
            if (i == record[r].corpo.size()) {
                ++r;
                largo = record[r].corpo[0] == 1;
                i = 1;
            }
            t.push_back(static_cast<char16_t>(largo ? record[r].U16(i) : record[r].corpo[i]));
            i += largo ? 2 : 1;
            --mancano;
        }
        testi.push_back(t);
    }
    return testi;
}

std::vector<RecordProva> Scritta(const TabellaStringhe& t) {
    FlussoBiff f;
    t.Scrive(f);
    return LeggeRecord(f.dati());
}

std::string Ripete(const std::string& s, int n) {
    std::string r;
    for (int i = 0; i < n; ++i)
        r += s;
    return r;
}

TEST(TabellaStringhe, EachTextOnceNumberedByFirstUse) {
    TabellaStringhe t;
    for (const char* s : {"designation", "IPE 80", "designation", "HEA 100", "IPE 80"})
        t.Raccoglie(s);
    EXPECT_EQ(t.Indice("designation"), 0U);
    EXPECT_EQ(t.Indice("HEA 100"), 2U);
    EXPECT_THROW(static_cast<void>(t.Indice("HEB 100")), std::out_of_range);
    const auto record = Scritta(t);
    ASSERT_EQ(record.size(), 2U);
    EXPECT_EQ(record[0].U32(0), 5U); // cells
    EXPECT_EQ(record[0].U32(4), 3U); // texts
    EXPECT_EQ(LeggeStringhe(record), (std::vector<std::u16string>{u"designation", u"IPE 80", u"HEA 100"}));
}

TEST(TabellaStringhe, StringsCrossRecordBorders) {
    TabellaStringhe t;
    std::vector<std::u16string> attesi;
    for (int i = 0; i < 400; ++i) {
        // lengths and widths that put the border everywhere: in heads, between, inside
        const std::string s = std::to_string(i) +
                              Ripete(i % 3 == 0 ? "\u20AC" : (i % 3 == 1 ? "\u00E8" : "x"), i * 7 % 311) +
                              (i % 50 == 0 ? Ripete("\U0001F529", 1500 + i) : "");
        t.Raccoglie(s);
        attesi.push_back(Utf16DaUtf8(s));
    }
    const auto record = Scritta(t);
    EXPECT_GT(record.size(), 10U);
    for (const RecordProva& r : record)
        EXPECT_LE(r.corpo.size(), massimoRecord);
    EXPECT_EQ(LeggeStringhe(record), attesi);
}

/// A table whose first strings leave so many bytes free in the first record.
TabellaStringhe ConSpazio(std::size_t libero, std::vector<std::u16string>& attesi) {
    TabellaStringhe t;
    std::size_t resta = massimoRecord - 8 - libero;
    for (char c = 'a'; resta > 0; ++c) {
        const std::size_t n = resta > 4000 ? 3000 : resta - 3;
        attesi.push_back(Utf16DaUtf8(std::string(n, c)));
        t.Raccoglie(std::string(n, c));
        resta -= n + 3;
    }
    return t;
}

TEST(TabellaStringhe, HeadAndFirstCharacterStayTogether) {
    for (std::size_t libero = 0; libero < 12; ++libero) {
        std::vector<std::u16string> attesi;
        TabellaStringhe t = ConSpazio(libero, attesi);
        t.Raccoglie("\u20AC\u20AC\u20AC\u20AC");
        attesi.emplace_back(u"\u20AC\u20AC\u20AC\u20AC");
        const auto record = Scritta(t);
        EXPECT_EQ(LeggeStringhe(record), attesi) << libero;
        ASSERT_EQ(record.size(), libero < 11 ? 3U : 2U) << libero; // 3 of head and 8 of text
    }
}

TEST(TabellaStringhe, HalvesOfACharacterStayTogether) {
    for (std::size_t libero = 7; libero < 30; ++libero) {
        std::vector<std::u16string> attesi;
        TabellaStringhe t = ConSpazio(libero, attesi);
        const std::string testo = "x" + Ripete("\U0001F529", 20);
        t.Raccoglie(testo);
        attesi.push_back(Utf16DaUtf8(testo));
        const auto record = Scritta(t);
        EXPECT_EQ(LeggeStringhe(record), attesi) << libero;
        ASSERT_EQ(record.size(), 3U) << libero;
        const unsigned ultimo = record[0].U16(record[0].corpo.size() - 2);
        EXPECT_NE(ultimo & 0xFC00U, 0xD800U) << libero;
    }
}

// A string begins where its head of 3 and a character find room, which may be one of two halves.
TEST(TabellaStringhe, AStringBeginsWhereItFindsRoom) {
    for (const auto& [testo, minimo] : {std::pair{"abcd", std::size_t{5}}, {"\u20AC\u20AC\u20AC\u20AC", 7}})
        for (std::size_t libero = 0; libero < 12; ++libero) {
            std::vector<std::u16string> attesi;
            TabellaStringhe t = ConSpazio(libero, attesi);
            t.Raccoglie(testo);
            const auto record = Scritta(t);
            EXPECT_EQ(record[0].corpo.size() == massimoRecord - libero, libero < minimo || libero == 0)
                << testo << ' ' << libero;
        }
}

// One pair alone at every distance from the border: it goes over whole, and all else as far as it finds room.
TEST(TabellaStringhe, APairAtTheBorderGoesOverWhole) {
    for (std::size_t posto = 1; posto < 12; ++posto) {
        std::vector<std::u16string> attesi;
        constexpr std::size_t libero = 3 + 2 * 6; // the head and six units
        TabellaStringhe t = ConSpazio(libero, attesi);
        const std::string testo =
            Ripete("\u20AC", int(posto)) + "\U0001F529" + Ripete("\u20AC", 12 - int(posto));
        t.Raccoglie(testo);
        attesi.push_back(Utf16DaUtf8(testo));
        const auto record = Scritta(t);
        EXPECT_EQ(LeggeStringhe(record), attesi) << posto;
        EXPECT_EQ(record[0].corpo.size(), massimoRecord - (posto == 5 ? 2 : 0)) << posto;
    }
}

TEST(TabellaStringhe, LongestTextAndOneMore) {
    TabellaStringhe t;
    EXPECT_NO_THROW(t.Raccoglie(std::string(32767, 'x')));
    EXPECT_THROW(t.Raccoglie(std::string(32768, 'x')), std::length_error);
}

TEST(TabellaStringhe, EmptyTableIsStillATable) {
    const auto record = Scritta(TabellaStringhe{});
    ASSERT_EQ(record.size(), 2U);
    EXPECT_TRUE(record[0].E(Biff::Sst));
    EXPECT_EQ(record[0].U32(4), 0U);
    EXPECT_TRUE(record[1].E(Biff::ExtSst));
}

TEST(TabellaStringhe, IndexPointsAtEveryEighthString) {
    TabellaStringhe t;
    for (int i = 0; i < 900; ++i)
        t.Raccoglie("HEA " + std::to_string(100 + i) + std::string(40, 'x'));
    FlussoBiff f;
    f.Record(Biff::CodePage, Ottetti().U16(0x04B0)); // the table does not begin at 0
    t.Scrive(f);
    const auto record = LeggeRecord(f.dati());
    const RecordProva& indice = record.back();
    ASSERT_TRUE(indice.E(Biff::ExtSst));
    const unsigned passo = indice.U16(0);
    EXPECT_EQ(passo, 8U);
    ASSERT_EQ(indice.corpo.size(), 2U + 8U * 113U); // 900 / 8 = 112.5
    for (unsigned k = 0; k < 113; ++k) {
        const std::uint32_t posto = indice.U32(2 + 8 * k);
        const std::string nome = "HEA " + std::to_string(100 + passo * k);
        ASSERT_LT(posto + 3 + nome.size(), f.dati().size());
        EXPECT_EQ(std::string(f.dati().begin() + posto + 3, f.dati().begin() + posto + 3 + nome.size()),
                  nome);
        const std::uint32_t nelRecord = indice.U16(2 + 8 * k + 4);
        const bool unRecordComincia = std::any_of(record.begin(), record.end(), [&](const RecordProva& r) {
            return r.posizione + nelRecord == posto && (r.E(Biff::Sst) || r.E(Biff::Continue));
        });
        EXPECT_TRUE(unRecordComincia) << k;
    }
}

} // namespace
