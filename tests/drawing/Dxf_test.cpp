#include "drawing/Dxf.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

#include <gtest/gtest.h>

#include <unistd.h>

#include "Registratore.h"
#include "drawing/Grafica.h"
#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

namespace fs = std::filesystem;

using Righe = std::vector<std::string>;

class FileDxf {
public:
    FileDxf() : percorso(fs::temp_directory_path() / ("sagomi_dxf_" + std::to_string(::getpid()) + ".dxf")) {}
    ~FileDxf() { fs::remove(percorso); }
    FileDxf(const FileDxf&) = delete;
    FileDxf& operator=(const FileDxf&) = delete;

    [[nodiscard]] std::string Byte() const {
        std::ifstream f(percorso, std::ios::binary);
        return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
    }

    fs::path percorso;
};

/// The bytes of a file with those entities: lines joined by CR LF, between head and tail.
std::string ConTestaECoda(const Righe& entita) {
    Righe righe{"  0", "SECTION", "  2", "ENTITIES"};
    righe.insert(righe.end(), entita.begin(), entita.end());
    righe.insert(righe.end(), {"  0", "ENDSEC", "  0", "EOF"});
    std::string byte;
    for (const std::string& riga : righe)
        byte += riga + "\r\n";
    return byte;
}

struct CasoDxf {
    const char* nome;
    std::function<void()> disegna;
    Righe attese;
};
void PrintTo(const CasoDxf& c, std::ostream* os) { *os << c.nome; }

class DxfTest : public testing::TestWithParam<CasoDxf> {
protected:
    Registratore registratore;
    FileDxf file;
};

TEST_P(DxfTest, AlByte) {
    std::int16_t n = 0;
    ASSERT_TRUE(DxfApre(file.percorso, n));
    EXPECT_EQ(n, nFileDxf);
    {
        const SuUscita uscita(nullptr, dispositivoDxf);
        GetParam().disegna();
    }
    ASSERT_TRUE(DxfChiude());
    EXPECT_EQ(nFileDxf, 0);
    EXPECT_EQ(file.Byte(), ConTestaECoda(GetParam().attese));
    EXPECT_TRUE(registratore.testi.empty());
}

const std::vector<double> x3{0, 100, 50.5};
const std::vector<double> y3{0, 0, 86.25};

Righe Vertice(const char* x, const char* y) {
    return {"  0", "VERTEX", "  8", "0", " 10", x, " 20", y, " 30", "0.0"};
}

Righe Polilinea(const std::vector<std::pair<const char*, const char*>>& punti) {
    Righe r{"  0",    "POLYLINE", "  8", "0",   " 66", "     1", " 62",
            "     7", " 10",      "0.0", " 20", "0.0", " 30",    "0.0"};
    for (const auto& [x, y] : punti)
        for (const std::string& riga : Vertice(x, y))
            r.push_back(riga);
    r.insert(r.end(), {"  0", "SEQEND", "  8", "0"});
    return r;
}

Righe Linea(const char* colore, const char* x1, const char* y1, const char* x2, const char* y2) {
    return {"  0", "LINE", "  8", "0",   " 62", colore, " 10", x1,    " 20",
            y1,    " 30",  "0.0", " 11", x2,    " 21",  y2,    " 31", "0.0"};
}

Righe Cerchio(const char* colore, const char* x, const char* y, const char* r) {
    return {"  0", "CIRCLE", "  8", "0", " 62", colore, " 10", x, " 20", y, " 30", "0.0", " 40", r};
}

Righe Testo(const char* x, const char* y, const char* h, const char* testo) {
    return {"  0", "TEXT", "  8", "0",   " 62", "     7", " 10", x,
            " 20", y,      " 30", "0.0", " 40", h,        "  1", testo};
}

Righe Insieme(std::initializer_list<Righe> parti) {
    Righe r;
    for (const Righe& parte : parti)
        r.insert(r.end(), parte.begin(), parte.end());
    return r;
}

// Written by hand, group by group.
INSTANTIATE_TEST_SUITE_P(
    Testi, DxfTest,
    testing::Values(
        CasoDxf{"vuoto", [] {}, {}},
        CasoDxf{"linea", [] { DxfLinea(0, 1, 2.5, -3); }, Linea("     7", "0", "1", "2.5", "-3")},
        CasoDxf{"linea_dal_primitivo", [] { LineaPlt(0, 1, 2.5, -3); },
                Linea("     7", "0", "1", "2.5", "-3")},
        CasoDxf{"linea_colore_di_due_cifre",
                [] {
                    PennaPlt(12);
                    LineaPlt(1, 1, 2, 2);
                },
                Linea("    12", "1", "1", "2", "2")},
        CasoDxf{"linea_colore_lungo",
                [] {
                    PennaPlt(-32768);
                    LineaPlt(1, 1, 2, 2);
                },
                Linea("-32768", "1", "1", "2", "2")},
        CasoDxf{"zero_senza_segno", [] { LineaPlt(-0.0, -0.0, 1, 1); }, Linea("     7", "0", "0", "1", "1")},
        CasoDxf{"cifre_minime", [] { LineaPlt(0.1, 1.0 / 3, 1e15, 123456.789); },
                Linea("     7", "0.1", "0.3333333333333333", "1E+15", "123456.789")},
        CasoDxf{"piccolissimi", [] { LineaPlt(1e-5, -2.5e-17, 1, 1); },
                Linea("     7", "1E-05", "-2.5E-17", "1", "1")},
        CasoDxf{"cerchio", [] { CerchioPlt(10, -20, 7.5); }, Cerchio("     7", "10", "-20", "7.5")},
        CasoDxf{"cerchio_scalato",
                [] {
                    yOrigine = 100;
                    ScalaY = 2;
                    CerchioPlt(10, -20, 7.5);
                },
                Cerchio("     7", "10", "90", "7.5")},
        CasoDxf{"cerchio_senza_raggio", [] { CerchioPlt(1, 2, 0); }, {}},
        CasoDxf{"polilinea_aperta", [] { PolilineaPlt(3, x3, y3); },
                Polilinea({{"0", "0"}, {"100", "0"}, {"50.5", "86.25"}})},
        CasoDxf{"polilinea_chiusa", [] { PolilineaPlt(3, x3, y3, true); },
                Polilinea({{"0", "0"}, {"100", "0"}, {"50.5", "86.25"}, {"0", "0"}})},
        CasoDxf{"polilinea_di_due", [] { DxfPolilinea(2, x3, y3); }, Polilinea({{"0", "0"}, {"100", "0"}})},
        CasoDxf{"polilinea_chiusa_di_due", [] { DxfPolilineaChiusa(2, x3, y3); },
                Polilinea({{"0", "0"}, {"100", "0"}, {"0", "0"}})},
        CasoDxf{"polilinea_di_uno",
                [] {
                    PolilineaPlt(1, x3, y3, true);
                    DxfPolilinea(1, x3, y3);
                    DxfPolilineaChiusa(0, x3, y3);
                },
                {}},
        CasoDxf{"testo", [] { TestoPlt(5, 6, 2.5, "IPE 200"); }, Testo("5", "6", "2.5", "IPE 200")},
        CasoDxf{"testo_accentato", [] { TestoPlt(5, 6, 2.5, "perché ¥"); },
                Testo("5", "6", "2.5", "perch\xE9 \xA5")},
        CasoDxf{"testo_su_due_righe", [] { TestoPlt(5, 6, 2.5, "a\r\nb"); }, Testo("5", "6", "2.5", "a  b")},
        // 0.85 · 2 · 3 characters = 5.1 wide
        CasoDxf{"testo_a_destra", [] { TestoPlt(10, 6, 2, "abc", Allinea::Destra); },
                Testo("4.9", "6", "2", "abc")},
        CasoDxf{"piu_entita",
                [] {
                    LineaPlt(1, 2, 3, 4);
                    PennaPlt(8);
                    CerchioPlt(0, 0, 1);
                },
                Insieme({Linea("     7", "1", "2", "3", "4"), Cerchio("     8", "0", "0", "1")})},
        // A square of 4 with two level lines, at 1 and 3.
        CasoDxf{
            "tratteggio",
            [] {
                TratteggioPlt(4, std::vector<double>{0, 4, 4, 0}, std::vector<double>{0, 0, 4, 4}, 0, 2, 8);
            },
            Insieme({Linea("     8", "0", "1", "4", "1"), Linea("     8", "0", "3", "4", "3")})}),
    [](const auto& i) { return std::string(i.param.nome); });

TEST(Dxf, EmptyDrawingHasEightLines) {
    const FileDxf file;
    std::int16_t n = 0;
    ASSERT_TRUE(DxfApre(file.percorso, n));
    ASSERT_TRUE(DxfChiude());
    EXPECT_EQ(file.Byte(), "  0\r\nSECTION\r\n  2\r\nENTITIES\r\n  0\r\nENDSEC\r\n  0\r\nEOF\r\n");
}

TEST(Dxf, AClosedTriangleHasFourVerticesAndNoClosedFlag) {
    const FileDxf file;
    std::int16_t n = 0;
    ASSERT_TRUE(DxfApre(file.percorso, n));
    DxfPolilineaChiusa(3, x3, y3);
    ASSERT_TRUE(DxfChiude());
    const std::string byte = file.Byte();
    int vertici = 0;
    for (std::size_t i = byte.find("VERTEX"); i != std::string::npos; i = byte.find("VERTEX", i + 1))
        ++vertici;
    EXPECT_EQ(vertici, 4);
    EXPECT_EQ(byte.find("\r\n 70\r\n"), std::string::npos);
}

TEST(Dxf, AFileThatCannotBeWrittenIsRefused) {
    std::int16_t n = 5;
    EXPECT_FALSE(DxfApre("/manca/del/tutto.dxf", n));
    EXPECT_EQ(n, 0);
    EXPECT_EQ(nFileDxf, 0);
    EXPECT_FALSE(DxfChiude());
}

TEST(Dxf, AnAbandonedFileLeavesTheOldOne) {
    const FileDxf file;
    {
        std::ofstream vecchio(file.percorso);
        vecchio << "vecchio";
    }
    std::int16_t n = 0;
    ASSERT_TRUE(DxfApre(file.percorso, n));
    DxfLinea(0, 0, 1, 1);
    DxfAbbandona();
    EXPECT_EQ(nFileDxf, 0);
    EXPECT_EQ(file.Byte(), "vecchio");
}

TEST(Dxf, FilterOfTheSaveDialog) {
    EXPECT_EQ(filtroDxf, "All Files (*.*)|*.*|Files per Autocad (*.dxf)|*.dxf");
    EXPECT_EQ(indiceFiltroDxf, 2);
}

// The last vertex is the first one again, in all its coordinates.
TEST(Dxf, AClosedLineEndsWhereItBegins) {
    const FileDxf file;
    std::int16_t n = 0;
    ASSERT_TRUE(DxfApre(file.percorso, n));
    DxfPolilineaChiusa(3, std::vector<double>{1, 3, 4}, std::vector<double>{2, 5, 7});
    ASSERT_TRUE(DxfChiude());
    const std::string byte = file.Byte();
    const std::size_t primo = byte.find("VERTEX");
    const std::size_t lungo = byte.find("VERTEX", primo + 1) - primo;
    EXPECT_EQ(byte.substr(byte.rfind("VERTEX"), lungo), byte.substr(primo, lungo));
}

} // namespace
