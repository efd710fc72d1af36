#include "automation/SezioneSagomi.h"

#include <type_traits>

#include "frame/GeneraleSagomi.h"
#include "screens/GeneraleSchermi.h"

namespace sagomi {

namespace {

template <typename S> constexpr const char* nomeTipo = nullptr;
template <> constexpr const char* nomeTipo<SezioneDoppioT> = "SezioneDoppioT";
template <> constexpr const char* nomeTipo<SezioneSagomoU> = "SezioneSagomoU";
template <> constexpr const char* nomeTipo<SezioneSagomoL> = "SezioneSagomoL";

void CopiaSpessori(SezioneSagomi& o, const ConAnimaEAli auto& s) {
    o.tw = s.tw;
    o.tf = s.tf;
}

void CopiaSpessori(SezioneSagomi& o, const SezioneSagomoL& s) {
    constexpr double nessunaAla = -1;
    o.tw = s.t;
    o.tf = nessunaAla;
}

void CopiaDoppioT(SezioneSagomi& o, const SezioneDoppioT& s) {
    o.bAlaInf = s.bAlaInf;
    o.tAlaInf = s.tAlaInf;
    o.SaldataAsimm = s.SaldataAsimm;
    o.Saldata = s.Saldata;
    o.Wply = s.Wply;
    o.Wplz = s.Wplz;
    o.r = s.r;
}

template <Sagomo S> void CopiaDoppi(SezioneSagomi& o, const S& s) {
    if constexpr (requires { s.Doppi; }) {
        o.Doppi = s.Doppi;
        o.dDoppi = s.dDoppi;
        o.DoppiCorto = s.DoppiCorto;
    } else {
        o.Doppi = false;
        o.dDoppi = 0;
        o.DoppiCorto = false;
    }
}

/// The order of the members counts: those after an error keep what they had.
template <Sagomo S> void Copia(SezioneSagomi& o, const S& s) {
    o.TipoSezione = nomeTipo<S>;
    o.Designation = s.Designation;
    o.h = s.h;
    o.b = s.b;
    o.r1 = s.r1;
    o.r2 = s.r2;
    CopiaSpessori(o, s);
    if constexpr (std::is_same_v<S, SezioneDoppioT>)
        CopiaDoppioT(o, s);
    o.Area = s.Area;
    o.Jz = s.Jz;
    o.Jy = s.Jy;
    o.fy = s.fy;
    o.VersioneSezioneSagomi = 3;
    CopiaDoppi(o, s);
    o.CurvaY = s.CurvaInstabilita("yy");
    o.CurvaZ = s.CurvaInstabilita("zz");
}

// A client that fails is no reason for the screens to stop in the middle of a row.
template <typename F> bool Riesce(F&& f) {
    try {
        return f();
    } catch (...) {
        return false;
    }
}

void Solleva(const std::function<void()>& evento) {
    Riesce([&evento] {
        if (evento)
            evento();
        return true;
    });
}

bool EsisteOggetto() { return ServerAttivo && OggettoServer != nullptr && !ChiusuraInCorso; }

} // namespace

bool SezioneSagomi::Class_Initialize() {
    if (EsisteOggetto())
        return false;
    ServerAttivo = true;
    OggettoServer = this;
    InizializzaProgramma();
    return true;
}

void SezioneSagomi::SagomoCambiato() {
    const bool copiato =
        Riesce([this] { return SullaSezioneInUso([this](const Sagomo auto& s) { Copia(*this, s); }); });
    if (copiato)
        Solleva(ComunicaSagomo);
}

bool SezioneSagomi::Quit() {
    const bool prima = ServerAttivo;
    ServerAttivo = false;
    const bool chiuso = ChiudiProgramma();
    if (!chiuso)
        ServerAttivo = prima;
    return chiuso;
}

void SezioneSagomi::SagomiQuittato() { Solleva(SagomiQuit); }

} // namespace sagomi
