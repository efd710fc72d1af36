// A row of a search put back into the joint gives what the search had found: the moment in the row, and of
// the last row, which is the best, all that the design left.
#include <gmock/gmock.h>

#include <stdexcept>

#include "Registratore.h"
#include "frame/Numeri.h"
#include "joints/NodoDaFile.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

std::string Momento(const Giunto& g) { return Formato("0.00", g.MplRdGIUNTO); }

TEST(NodoSelezione, OgniRigaDaIlSuoMomento) {
    int righe = 0;
    const auto casi = LeggeCasi(SAGOMI_TEST_DATA "/joints/ricerche.txt");
    for (std::size_t c = 0; c < casi.size(); c += 2) { // both numbers of rows, all stiffeners
        const CasoDaFile& dato = casi[c];
        const Registratore boxes;
        NodoDaFile caso(dato, true);
        if (!caso.nodo.EsegueCalcolo())
            continue;
        const auto progetto = Valori(caso.giunto());
        const TabellaSelezione tabella = caso.giunto().RisultatiIntermedi_Estrai();
        for (int i = 1; i <= tabella.n(); ++i, ++righe) {
            caso.nodo.EsegueSelezione(i);
            EXPECT_EQ(Momento(caso.giunto()), std::get<std::string>(tabella[i][2])) << dato.nome << " " << i;
            EXPECT_EQ(caso.giunto().RisultatiIntermedi_Estrai(), tabella);
            EXPECT_TRUE(caso.giunto().Acquisito);
        }
        EXPECT_EQ(Valori(caso.giunto()), progetto) << dato.nome;
    }
    EXPECT_GT(righe, 50);
}

TEST(NodoSelezione, UnaRigaCheMancaLasciaIDati) {
    const Registratore boxes;
    NodoDaFile caso(LeggeCasi(SAGOMI_TEST_DATA "/joints/ricerche.txt").front(), true);
    caso.nodo.EsegueCalcolo();
    const double tf = caso.giunto().tf;
    EXPECT_THROW(caso.nodo.EsegueSelezione(0), std::out_of_range);
    EXPECT_THROW(caso.nodo.EsegueSelezione(10000), std::out_of_range);
    EXPECT_EQ(caso.giunto().tf, tf);
}

} // namespace
