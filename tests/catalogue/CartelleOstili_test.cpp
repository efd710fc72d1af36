// Workbooks that somebody made to hurt, each asked as the first screen asks: refused in Italian or read
// right, in under a second and 300 MB. Each is opened in a process of its own, whose peak of memory the
// system tells.

#include <array>
#include <gsf/gsf-outfile-msole.h>
#include <gsf/gsf-output-stdio.h>
#include <gsf/gsf-utils.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CartellaAMano.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/Famiglie.h"
#include "catalogue/Lettore.h"
#include "frame/Ambiente.h"

using namespace sagomi;
using prove::CartellaAMano;
using testing::EndsWith;
using testing::HasSubstr;

namespace {

using S = std::string;

#ifdef __SANITIZE_ADDRESS__
constexpr double secondi = 20;
constexpr long megabyte = 4000;
#else
constexpr double secondi = 1;
constexpr long megabyte = 300;
#endif

struct Esito {
    S testo;            ///< the message, or field 0 of the first row and how many rows there are
    double secondi = 0; ///< of the processor
    long megabyte = 0;
};

S Chiede(const std::filesystem::path& file, const S& query) {
    try {
        Lettore l;
        l.DatabaseName(file);
        l.RecordSource(query);
        l.Refresh();
        return l.Testo(0) + " / " + std::to_string(l.Righe());
    } catch (const ErroreCatalogo& e) {
        return e.what();
    }
}

double Secondi(const timeval& t) {
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) * 1e-6;
}

/// What a process of its own says of the file. One that dies says nothing.
Esito NelFiglio(const std::filesystem::path& file, const S& query) {
    std::array<int, 2> tubo{};
    EXPECT_EQ(pipe(tubo.data()), 0);
    const pid_t figlio = fork();
    if (figlio == 0) {
        const S testo = Chiede(file, query);
        _exit(write(tubo[1], testo.data(), testo.size()) < 0 ? 1 : 0);
    }
    close(tubo[1]);
    Esito esito;
    std::array<char, 4096> dati{};
    for (ssize_t n = 0; (n = read(tubo[0], dati.data(), dati.size())) > 0;)
        esito.testo.append(dati.data(), static_cast<std::size_t>(n));
    close(tubo[0]);
    rusage uso{};
    int stato = 0;
    wait4(figlio, &stato, 0, &uso);
    EXPECT_EQ(stato, 0);
    esito.secondi = Secondi(uso.ru_utime) + Secondi(uso.ru_stime);
    esito.megabyte = uso.ru_maxrss / 1024;
    return esito;
}

class CartelleOstili : public testing::Test {
protected:
    S Dice(const S& byte, const S& query = "SELECT * FROM [IPE$]") {
        prove::ScriveByte(file, byte);
        const Esito esito = NelFiglio(file, query);
        EXPECT_LT(esito.secondi, secondi);
        EXPECT_LT(esito.megabyte, megabyte);
        return esito.testo;
    }
    S Dice(const CartellaAMano& cartella, const S& query = "SELECT * FROM [IPE$]") {
        return Dice(cartella.File(), query);
    }
    S Rifiuto(const S& causa) const {
        return "Errore nella lettura di \"" + file.string() + "\": " + causa + ".";
    }
    prove::CartellaDiProva dir;
    std::filesystem::path file = dir.percorso / "Sagomi.xls";
};

CartellaAMano Ipe() { return CartellaAMano().Foglio(u"IPE"); }

CartellaAMano Buona(double valore) { return Ipe().Testo(0, 0, u"h").Numero(1, 0, valore); }

/// A container with both streams, "Book" in front.
S ConDueFlussi(const std::filesystem::path& file, const CartellaAMano& book, const CartellaAMano& workbook) {
    gsf_init();
    GsfOutput* uscita = gsf_output_stdio_new(file.c_str(), nullptr);
    GsfOutfile* contenitore = gsf_outfile_msole_new(uscita);
    const auto scrive = [contenitore](const char* nome, const std::vector<std::uint8_t>& dati) {
        GsfOutput* flusso = gsf_outfile_new_child(contenitore, nome, FALSE);
        gsf_output_write(flusso, dati.size(), dati.data());
        gsf_output_close(flusso);
        g_object_unref(flusso);
    };
    scrive("Book", book.Flusso());
    scrive("Workbook", workbook.Flusso());
    gsf_output_close(GSF_OUTPUT(contenitore));
    g_object_unref(contenitore);
    g_object_unref(uscita);
    return prove::LeggeByte(file);
}

TEST_F(CartelleOstili, OfTwoStreamsTheSameIsCheckedAndRead) {
    EXPECT_EQ(Dice(ConDueFlussi(file, Buona(1), Buona(2))), "2 / 1");
    CartellaAMano rotta = Buona(1);
    rotta.Testa(Biff::Sst, Ottetti().U32(9).U32(9).U16(60000).U8(1));
    EXPECT_EQ(Dice(ConDueFlussi(file, rotta, Buona(2))), "2 / 1");
    EXPECT_EQ(Dice(ConDueFlussi(file, Buona(1), rotta)),
              Rifiuto("la cartella di lavoro è danneggiata (testi)"));
    EXPECT_EQ(Dice(Buona(3).File("Book")), "3 / 1");
}

TEST_F(CartelleOstili, FormulasInColumn65535) {
    CartellaAMano c = Ipe();
    for (unsigned r = 0; r < 1000; ++r)
        c.Formula(r, 65535, 0, 0x3FF80000U);
    EXPECT_EQ(Dice(c), Rifiuto("il foglio \"IPE\" è danneggiato (celle oltre la colonna 256)"));
}

TEST_F(CartelleOstili, SheetsAnnouncedLargeAndEmpty) {
    CartellaAMano c;
    for (char16_t i = 0; i < 25; ++i)
        c.Foglio({u'F', static_cast<char16_t>(u'a' + i)})
            .Sciolto(Biff::Dimensions, Ottetti().U32(0).U32(40000).U16(0).U16(256).U16(0));
    EXPECT_EQ(Dice(c, "SELECT * FROM [Fa$] UNION SELECT * FROM [Fy$]"), " / 0");
}

TEST_F(CartelleOstili, TextsLongerThanTheirRecords) {
    CartellaAMano formato = Buona(1);
    formato.Testa(Biff::Format, Ottetti().U16(170).U16(60000).U8(0).U8('0'));
    EXPECT_EQ(Dice(formato), Rifiuto("la cartella di lavoro è danneggiata (testi)"));
    CartellaAMano cella = Buona(1);
    cella.Cella(Biff::Label, 2, 0, Ottetti().U16(60000).U8(1).U8('x'));
    EXPECT_EQ(Dice(cella), Rifiuto("il foglio \"IPE\" è danneggiato (testi)"));
}

/// 65,536 cells make 17 million places.
TEST_F(CartelleOstili, OneCellFarToTheRightInEachRow) {
    CartellaAMano c = Ipe();
    for (unsigned r = 0; r < 65536; ++r)
        c.Numero(r, 255, 1);
    EXPECT_EQ(Dice(c), Rifiuto("l'interrogazione dà troppi dati"));
    EXPECT_EQ(Dice(c, "SELECT [1] FROM [IPE$]"), "1 / 65535");
}

/// 900 KB that would give 2 GB.
TEST_F(CartelleOstili, OneLongTextInEachRow) {
    Ottetti sst = Ottetti().U32(1).U32(1).U16(32000).U8(0);
    const std::u16string parte(8000, u'x');
    CartellaAMano c;
    c.Testa(Biff::Sst, sst.Testo(parte, 0, parte.size(), true));
    for (int i = 0; i < 3; ++i)
        c.Testa(Biff::Continue, Ottetti().U8(0).Testo(parte, 0, parte.size(), true));
    c.Foglio(u"IPE");
    for (unsigned r = 0; r < 65536; ++r)
        c.Cella(Biff::LabelSst, r, 0, Ottetti().U32(0));
    EXPECT_EQ(Dice(c), Rifiuto("i testi della cartella di lavoro superano 64 MB"));
}

TEST_F(CartelleOstili, NamesOfSheetsThatAreNoNames) {
    const S maligno = "IPE$],(WITH RECURSIVE c(x) --";
    CartellaAMano c = Buona(1);
    c.Foglio(Utf16DaUtf8(maligno)).Testo(0, 0, u"h").Numero(1, 0, 2);
    c.Foglio(u"sqlite_master").Testo(0, 0, u"h").Numero(1, 0, 3);
    c.Foglio(u"IPE").Testo(0, 0, u"h").Numero(1, 0, 4);
    c.Foglio(u"ipe").Testo(0, 0, u"h").Numero(1, 0, 5);
    c.Foglio(u"").Testo(0, 0, u"h").Numero(1, 0, 6);
    c.Foglio(u"3000").Numero(0, 2999, 1);
    EXPECT_EQ(Dice(c), "1 / 1"); // the first of its name
    EXPECT_EQ(Dice(c, "SELECT * FROM " + NomeFoglioQuery(maligno)), "2 / 1");
    EXPECT_EQ(Dice(c, "SELECT * FROM [sqlite_master$]"), "3 / 1");
    EXPECT_EQ(Dice(c, "SELECT * FROM [$]"), "6 / 1");
    EXPECT_THAT(Dice(c, "SELECT * FROM [3000$]"), EndsWith("è danneggiato (celle oltre la colonna 256)."));
}

TEST_F(CartelleOstili, QueriesThatNeverEndOrGiveTooMuch) {
    EXPECT_EQ(Dice(Buona(1), "WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x+1 FROM c) "
                             "SELECT max(x) FROM c"),
              Rifiuto("l'interrogazione è troppo lunga"));
    EXPECT_EQ(Dice(Buona(1), "WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x+1 FROM c) "
                             "SELECT x, hex(zeroblob(9000)) FROM c"),
              Rifiuto("l'interrogazione dà troppi dati"));
}

TEST_F(CartelleOstili, ALargeWorkbookIsReadRight) {
    CartellaAMano c = Ipe();
    for (unsigned r = 0; r < 65536; ++r) {
        Ottetti o = Ottetti().U16(r).U16(0);
        for (unsigned k = 0; k < 40; ++k)
            o.U16(15).U32(((r + k) << 2U) | 2U);
        c.Sciolto(Biff::MulRk, o.U16(39));
    }
    EXPECT_EQ(Dice(c, "SELECT * FROM [IPE$] ORDER BY [3] DESC"), "65535 / 65535");
}

} // namespace
