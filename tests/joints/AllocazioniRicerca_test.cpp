// A program of its own: it counts what is allocated while a search runs.
#include <gmock/gmock.h>

#include <cstdlib>
#include <new>

#include "joints/Nodo.h"
#include "joints/OsservatoreProgetto.h"
#include "joints/Sezioni.h"

namespace {

long allocazioni = 0;

} // namespace

void* operator new(std::size_t n) {
    ++allocazioni;
    if (void* p = std::malloc(n))
        return p;
    throw std::bad_alloc();
}
// Not inlined: the compiler would see free() beside new and take the pair for a mistake.
[[gnu::noinline]] void operator delete(void* p) noexcept { std::free(p); }
[[gnu::noinline]] void operator delete(void* p, std::size_t) noexcept { std::free(p); }

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// Counts the candidates before which something was allocated, but for the improving ones.
struct Conta : OsservatoreProgetto {
    void Candidato(const Giunto&) override {
        alloca = candidati++ > 0 && allocazioni != ultime;
        conAllocazioni += alloca ? 1 : 0;
        ultime = allocazioni;
    }
    void Miglioramento(const Giunto&) override { conAllocazioni -= alloca ? 1 : 0; }

    long candidati = 0, conAllocazioni = 0, ultime = 0;
    bool alloca = false;
};

} // namespace

TEST(AllocazioniRicerca, NessunaPerCandidato) {
    for (const char* irrigidimenti : {"No", "Cp", "Si"}) {
        Nodo n;
        n.ImpostaNodo();
        n.Tipovie = nodoT;
        n.NumeroGiunti = 1;
        n.CaratterizzaGiunti();
        n.TraveDx = IPE600();
        n.Colonnainf = HEB400();
        Giunto& g = *n.ConnessioneCorrente;
        g.nf = 2;
        g.tf_max = 40;
        g.L_max = 200;
        g.u_max = 30;
        g.TipoProgetto = 1;
        g.Irrigidimenti = irrigidimenti;
        Conta conta;
        ASSERT_TRUE(n.EsegueCalcolo(&conta));
        EXPECT_GT(conta.candidati, 2000);
        EXPECT_EQ(conta.conAllocazioni, 0) << irrigidimenti;
    }
}
